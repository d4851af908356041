#pragma once

#include <QDialog>

#include "shell/Reglages.h"
#include "windows/controles/FenetreFille.h"
#include "windows/reglages/BoutonIcone.h"

#include <vector>

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
    /// `boutons`: what may stand in the icon bar.
    FrmParametre(shell::Session& session, const std::vector<BoutonIcone>& boutons, QWidget* parent);

    void Traduire() override;

    /// Asks first when something is not saved.
    void reject() override;

protected:
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    void Ajouter(PageParametre* page);
    /// What the pages say now, over what was set when the window opened.
    [[nodiscard]] shell::Reglages Lire(std::size_t& remplaces) const;
    void Valider();

    QListWidget* liste_;
    QStackedWidget* pages_;
    QPushButton* valider_;
    QPushButton* annuler_;
    shell::Reglages ouverture_;
    shell::Reglages montres_;  ///< as the pages showed them then
};

}  // namespace dorvane::windows
