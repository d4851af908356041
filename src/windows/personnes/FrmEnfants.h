#pragma once

#include <QDialog>

#include "windows/personnes/FenetreChoix.h"

namespace dorvane::windows {

/// "FrmEnfants": looks for a child of a person. `exec` answers `Accepted`, `Choisie` the child; the
/// caller makes the link.
class FrmEnfants final : public FenetreChoix {
public:
    /// Starts with the surname of the person as filter.
    FrmEnfants(shell::Session& session, NoOrdre individu, QWidget* parent);
};

}  // namespace dorvane::windows
