#pragma once

#include <QPointer>

#include "shell/Ecran.h"
#include "windows/cadre/MDIForm1.h"

namespace dorvane::windows {

/// What the session asks of the windows.
class EcranQt final : public shell::Ecran {
public:
    /// Before the session is started; `fenetre` may go first.
    void Attacher(MDIForm1& fenetre) { fenetre_ = &fenetre; }

    [[nodiscard]] bool FermerFiche() override {
        return fenetre_ == nullptr || fenetre_->ConfirmerFermeture();
    }
    void FermerFenetres() override {
        if (fenetre_ != nullptr) fenetre_->FermerFenetres();
    }
    void Actualiser() override {
        if (fenetre_ != nullptr) fenetre_->Actualiser();
    }
    void MontrerRapport(const shell::Phrase& titre, const std::string& texte) override {
        if (fenetre_ != nullptr) fenetre_->MontrerRapport(titre, texte);
    }

private:
    QPointer<MDIForm1> fenetre_;
};

}  // namespace dorvane::windows
