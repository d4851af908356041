#pragma once

#include <QDialog>

#include "values/Numeros.h"
#include "windows/FenetreFille.h"

namespace dorvane::windows {

/// All events of the base by date.
class FrmLstEvt final : public FenetreFille {
public:
    FrmLstEvt(shell::Session& session, QWidget* parent);
    ~FrmLstEvt() override;

    /// Runs the list as a chooser; 0 when the user gives up.
    [[nodiscard]] static NoEvenement Choisir(shell::Session& session, QWidget* parent);
};

}  // namespace dorvane::windows
