// The two lists of the window of an event: persons and documents.
#include "ui_FrmDesEvt.h"
#include <QKeyEvent>

#include "messages/Faits.h"
#include "records/FicheEvenement.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Unicode.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/faits/ModeleDocuments.h"
#include "windows/faits/ModeleLiens.h"
#include "windows/mots/FrmMot.h"
#include "windows/personnes/FrmCreation.h"

#include <algorithm>
#include <utility>

namespace dorvane::windows {

void FrmDesEvt::ChercherPersonne() {
    // A role that nobody has is filled where it stands.
    const int rangee = ui_->GrdLiens->currentIndex().row();
    if (ui_->GrdLiens->hasFocus() && !liens_->Lien(rangee) && !liens_->RoleDe(rangee).empty())
        ui_->CboRole->setEditText(
            TexteVersQt(shell::LibelleDeTag(S().catalogue, liens_->RoleDe(rangee))));
    const std::string role = QtVersTexte(ui_->CboRole->currentText()).octets;
    shell::DemandePersonne demande;
    demande.depart = S().PersonneEnCours;
    if (!role.empty()) demande.titre = shell::Msg(message::TitreChoisirPersonnePourRole, role);
    AjouterLien(S().dialogue.ChoisirPersonne(demande), false);
}

void FrmDesEvt::CreerPersonne() {
    static_cast<void>(Lire());
    const records::SaisieFiche fiche =
        records::DepartDePersonne(S(), saisie_, TagDe(*ui_->CboRole));
    SaisieDepart depart;
    depart.nom = fiche.nom;
    depart.sexe = fiche.sexe;
    depart.jourMoisNaissance = fiche.jourMoisNaissance;
    depart.anneeNaissance = fiche.anneeNaissance;
    depart.lieuNaissance = fiche.lieuNaissance;
    depart.anneeDeces = fiche.anneeDeces;
    depart.jourMoisDeces = fiche.jourMoisDeces;
    depart.lieuDeces = fiche.lieuDeces;
    AjouterLien(FrmCreation::Creer(S(), depart, this), true);
}

void FrmDesEvt::AjouterLien(NoOrdre individu, bool cree) {
    if (!individu) return;
    if (cree) {
        // The person is in the base, whatever becomes of the event.
        ecrit_ = true;
        saisie_.crees.push_back(individu);
    }
    const std::string role = TagDe(*ui_->CboRole);
    if (!records::LienPossible(S(), saisie_, individu, role)) return;
    saisie_.liens.push_back({individu, role});
    MontrerLiens(static_cast<int>(saisie_.liens.size()) - 1);
}

void FrmDesEvt::RetirerLien() {
    const int rangee = ui_->GrdLiens->currentIndex().row();
    const auto lien = liens_->Lien(rangee);
    if (!lien) return;
    saisie_.liens.erase(saisie_.liens.begin() + static_cast<std::ptrdiff_t>(*lien));
    MontrerLiens(rangee);
}

void FrmDesEvt::DeplacerLien(int pas) {
    const int rangee = ui_->GrdLiens->currentIndex().row();
    const auto de = liens_->Lien(rangee);
    const auto vers = liens_->Lien(rangee + pas);
    if (!de || !vers) return;
    std::swap(saisie_.liens[*de], saisie_.liens[*vers]);
    MontrerLiens(rangee + pas);
}

void FrmDesEvt::ChangerRole(int rangee, const QString& role) {
    const auto lien = liens_->Lien(rangee);
    if (!lien) return;
    const int avant = ui_->CboRole->currentIndex();
    ui_->CboRole->setEditText(role);
    saisie_.liens[*lien].role = TagDe(*ui_->CboRole);
    ui_->CboRole->setCurrentIndex(avant);
    // The cell is still being edited.
    QMetaObject::invokeMethod(
        this, [this, rangee] { MontrerLiens(rangee); }, Qt::QueuedConnection);
}

void FrmDesEvt::SaisirMots() {
    const auto lien = liens_->Lien(ui_->GrdLiens->currentIndex().row());
    if (!lien) return;
    static_cast<void>(Lire());
    FrmMot fenetre{S(), saisie_.liens[*lien].individu, saisie_, this};
    if (fenetre.exec() == QDialog::Accepted) ecrit_ = true;
}

NoDocument FrmDesEvt::DocumentChoisi() const {
    return NoDocument{documents_->Numero(ui_->LstDoc->currentIndex().row())};
}

void FrmDesEvt::AjouterDocument(NoDocument document) {
    if (!document) return;
    std::vector<NoDocument>& liste = saisie_.documents;
    if (std::find(liste.begin(), liste.end(), document) != liste.end())
        S().dialogue.Informer(shell::Msg(message::DocumentDejaDansLaListe));
    else
        liste.push_back(document);
    MontrerDocuments(document);
}

void FrmDesEvt::RetirerDocument() {
    const int rangee = ui_->LstDoc->currentIndex().row();
    if (!DocumentChoisi()) return;
    saisie_.documents.erase(saisie_.documents.begin() + rangee);
    MontrerDocuments(NoDocument{documents_->Numero(rangee + 1)});
}

void FrmDesEvt::DeplacerDocument(int pas) {
    const int rangee = ui_->LstDoc->currentIndex().row();
    const int vers = rangee + pas;
    if (rangee < 0 || vers < 0 || vers >= documents_->Total()) return;
    const NoDocument choisi = DocumentChoisi();
    std::swap(saisie_.documents[static_cast<std::size_t>(rangee)],
              saisie_.documents[static_cast<std::size_t>(vers)]);
    MontrerDocuments(choisi);
}

/// Del takes a row out, Alt with an arrow moves it.
bool FrmDesEvt::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::KeyPress) return FenetreFille::eventFilter(objet, evenement);
    const auto* touche = static_cast<QKeyEvent*>(evenement);
    const bool personnes = objet == ui_->GrdLiens;
    if (touche->key() == Qt::Key_Delete) {
        personnes ? RetirerLien() : RetirerDocument();
        return true;
    }
    const bool monte = touche->key() == Qt::Key_Up;
    if ((touche->modifiers() & Qt::AltModifier) != 0 && (monte || touche->key() == Qt::Key_Down)) {
        personnes ? DeplacerLien(monte ? -1 : 1) : DeplacerDocument(monte ? -1 : 1);
        return true;
    }
    return FenetreFille::eventFilter(objet, evenement);
}

}  // namespace dorvane::windows
