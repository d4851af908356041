#pragma once

#include "windows/FenetreFille.h"

class QDialogButtonBox;
class QListWidget;
class QPushButton;
class QStackedWidget;

namespace dorvane::windows {

class PageParametre;

/// The settings of the program and of the open base.
class FrmParametre final : public FenetreFille {
    Q_OBJECT

public:
    FrmParametre(shell::Session& session, QWidget* parent);

    void Traduire() override;

private:
    void Ajouter(PageParametre* page);
    void Valider();

    QListWidget* liste_;
    QStackedWidget* pages_;
    QPushButton* valider_;
    QPushButton* annuler_;
};

}  // namespace dorvane::windows
