#pragma once

#include <QDialog>

#include "windows/personnes/FenetreChoix.h"

namespace dorvane::windows {

/// "FrmLiens": looks for any person to link with another. `exec` answers `Accepted`, `Choisie` the
/// person; the caller makes the link.
class FrmLiens final : public FenetreChoix {
public:
    FrmLiens(shell::Session& session, NoOrdre individu, QWidget* parent);
};

}  // namespace dorvane::windows
