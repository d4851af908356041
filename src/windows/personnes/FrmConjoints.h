#pragma once

#include <QDialog>

#include "windows/personnes/FenetreChoix.h"

namespace dorvane::windows {

/// "FrmConjoints": looks for a partner of a person. `exec` answers `Accepted`, `Choisie` the
/// partner; the caller makes the union.
class FrmConjoints final : public FenetreChoix {
public:
    FrmConjoints(shell::Session& session, NoOrdre individu, QWidget* parent);
};

}  // namespace dorvane::windows
