#pragma once

#include <QDialog>

#include "values/Sexe.h"
#include "windows/personnes/FenetreChoix.h"

namespace dorvane::windows {

/// "FrmPère": looks for the father or the mother of a child, and makes the link
/// itself when a person is chosen. `exec` answers `Accepted` once the link was made.
class FrmPere final : public FenetreChoix {
public:
    /// Starts with the surname of the child as filter.
    FrmPere(shell::Session& session, NoOrdre enfant, Cote cote, QWidget* parent);

protected:
    [[nodiscard]] bool Prendre(NoOrdre individu) override;

private:
    NoOrdre enfant_;
    Cote cote_;
};

}  // namespace dorvane::windows
