#pragma once

#include <QDialog>

#include "windows/personnes/FenetreChoix.h"

namespace dorvane::windows {

/// "FrmPère": looks for the father (`sexe` 'H') or the mother ('F') of a child, and makes the link
/// itself when a person is chosen. `exec` answers `Accepted` once the link was made.
class FrmPere final : public FenetreChoix {
public:
    /// Starts with the surname of the child as filter.
    FrmPere(shell::Session& session, NoOrdre enfant, char sexe, QWidget* parent);

protected:
    [[nodiscard]] bool Prendre(NoOrdre individu) override;

private:
    NoOrdre enfant_;
    char sexe_;
};

}  // namespace dorvane::windows
