#pragma once

#include "windows/controles/FenetreFille.h"

#include <memory>
#include <string>

class QMenu;
class QToolBar;

namespace Ui {
class FrmTexte;
}

namespace dorvane::windows {

/// The large editor of a note, with its formatting and the usual words.
class FrmTexte final : public FenetreFille {
    Q_OBJECT

public:
    FrmTexte(shell::Session& session, QWidget* parent);
    ~FrmTexte() override;

    /// Lets the user edit a stored note, in code page 1252. True when it was saved and differs;
    /// `note` is then the new one. `titre` in the caption says whose it is; `auPlus`: bytes of the
    /// stored form, 0 for no limit.
    [[nodiscard]] bool Editer(std::string& note, const QString& titre = {}, std::size_t auPlus = 0);

    void Traduire() override;

protected:
    void reject() override;
    /// The text goes to the window below; nothing of it is in the base yet.
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    void FaireBarre();
    QAction* Bouton(const char* nom, const char* icone, const QKeySequence& touches);
    void SuivreCurseur();
    void Compter();
    void Sauver();
    void FaireRubriques();
    void MontrerRubrique(const QString& rubrique);
    void InsererMot();

    std::unique_ptr<Ui::FrmTexte> ui_;
    QToolBar* barre_;
    QMenu* rubriques_;
    QString titre_;
    std::size_t auPlus_ = 0;
};

}  // namespace dorvane::windows
