#pragma once

#include <QDialog>

#include "windows/controles/FenetreFille.h"
#include "windows/graphe/PaletteGraphe.h"

class QButtonGroup;

namespace dorvane::windows {

/// Asked once, at the first start: which colours the chart has. Each choice shows at once in the
/// chart behind.
class FrmPalette final : public FenetreFille {
    Q_OBJECT

public:
    FrmPalette(shell::Session& session, Palette depart, QWidget* parent);

    [[nodiscard]] Palette Choix() const;

Q_SIGNALS:
    void paletteEssayee(dorvane::windows::Palette palette);

private:
    QButtonGroup* choix_;
};

}  // namespace dorvane::windows
