#include "windows/cadre/DialogueQt.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include "shell/Session.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/personnes/FrmNom.h"

namespace dorvane::windows {

namespace {

using shell::Boutons;
using shell::DemandeFichier;
using shell::Reponse;

QMessageBox::StandardButton Bouton(Reponse reponse, Boutons boutons) {
    switch (reponse) {
        case Reponse::Oui:
            return boutons == Boutons::ValiderAnnuler ? QMessageBox::Ok : QMessageBox::Yes;
        case Reponse::Non:
            return boutons == Boutons::ValiderAnnuler ? QMessageBox::Cancel : QMessageBox::No;
        case Reponse::Annuler:
            break;
    }
    return boutons == Boutons::OuiNon ? QMessageBox::No : QMessageBox::Cancel;
}

QMessageBox::StandardButtons Offerts(Boutons boutons) {
    switch (boutons) {
        case Boutons::OuiNon:
            return QMessageBox::Yes | QMessageBox::No;
        case Boutons::OuiNonAnnuler:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Boutons::ValiderAnnuler:
            break;
    }
    return QMessageBox::Ok | QMessageBox::Cancel;
}

/// A box whose text can be selected.
void Preparer(QMessageBox& boite, const QString& texte, const QString& titre) {
    boite.setWindowTitle(titre);
    boite.setTextFormat(Qt::PlainText);
    boite.setText(texte);
    boite.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

/// The wait cursor is put aside while the user is asked.
class SansSablier {
public:
    SansSablier() {
        while (QApplication::overrideCursor() != nullptr) {
            QApplication::restoreOverrideCursor();
            ++profondeur_;
        }
    }
    ~SansSablier() {
        for (; profondeur_ > 0; --profondeur_)
            QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    SansSablier(const SansSablier&) = delete;
    SansSablier& operator=(const SansSablier&) = delete;

private:
    int profondeur_ = 0;
};

/// Who asked is the window in use again once the box has gone: a desktop may turn to the main one.
class RetourAuDemandeur {
public:
    explicit RetourAuDemandeur(QWidget* fenetre) : fenetre_{fenetre} {}
    ~RetourAuDemandeur() {
        if (fenetre_ != nullptr && fenetre_->isVisible()) fenetre_->activateWindow();
    }
    RetourAuDemandeur(const RetourAuDemandeur&) = delete;
    RetourAuDemandeur& operator=(const RetourAuDemandeur&) = delete;

    [[nodiscard]] QWidget* Fenetre() const { return fenetre_; }

private:
    QPointer<QWidget> fenetre_;
};

void Placer(QFileDialog& dialogue, const std::filesystem::path& depart) {
    if (depart.empty()) return;
    const QString chemin = CheminVersQt(depart);
    std::error_code erreur;
    if (std::filesystem::is_directory(depart, erreur)) {
        dialogue.setDirectory(chemin);
        return;
    }
    dialogue.setDirectory(CheminVersQt(depart.parent_path()));
    dialogue.selectFile(CheminVersQt(depart.filename()));
}

}  // namespace

QStringList FiltresFichiers(const std::string& filtre) {
    QStringList filtres;
    const QStringList parts = TexteVersQt(filtre).split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList motifs;
        for (const QString& motif : parts[i + 1].split(u';', Qt::SkipEmptyParts))
            motifs << motif.trimmed().toLower() << motif.trimmed().toUpper();
        motifs.removeDuplicates();
        // The description ends in its own patterns; those of the dialog stand for them.
        QString description = parts[i];
        description.truncate(description.indexOf(u'(') < 0 ? description.size()
                                                           : description.indexOf(u'('));
        filtres << description.trimmed() + QStringLiteral(" (") + motifs.join(u' ') + u')';
    }
    return filtres;
}

void DialogueQt::Attacher(shell::Session& session, MDIForm1& fenetre) {
    session_ = &session;
    fenetre_ = &fenetre;
}

QWidget* DialogueQt::Dessous() const {
    QWidget* actif = QApplication::activeModalWidget();
    if (actif == nullptr) actif = QApplication::activeWindow();
    return actif != nullptr ? actif : fenetre_.data();
}

QString DialogueQt::Composer(const shell::Phrase& texte) const {
    return TexteEcran(session_->catalogue.Composer(texte));
}

QString DialogueQt::Titre(const shell::Phrase& titre) const {
    const QString texte = titre.EstVide() ? QString{} : Composer(titre);
    return texte.isEmpty() ? QStringLiteral("Dorvane") : texte;
}

void DialogueQt::Informer(const shell::Phrase& texte, const shell::Phrase& titre) {
    const SansSablier sansSablier;
    const RetourAuDemandeur retour{Dessous()};
    QMessageBox boite{retour.Fenetre()};
    Preparer(boite, Composer(texte), Titre(titre));
    boite.setIcon(QMessageBox::Information);
    boite.exec();
}

void DialogueQt::Annoncer(const shell::Phrase& texte) {
    if (fenetre_ != nullptr) fenetre_->Annoncer(texte.EstVide() ? QString{} : Composer(texte));
}

Reponse DialogueQt::Demander(const shell::Question& question) {
    const SansSablier sansSablier;
    const RetourAuDemandeur retour{Dessous()};
    QMessageBox boite{retour.Fenetre()};
    Preparer(boite, Composer(question.texte), Titre(question.titre));
    boite.setIcon(question.grave ? QMessageBox::Warning : QMessageBox::Question);
    boite.setStandardButtons(Offerts(question.boutons));
    boite.setDefaultButton(Bouton(question.defaut, question.boutons));
    boite.setEscapeButton(Bouton(Reponse::Annuler, question.boutons));
    const int choix = boite.exec();
    if (choix == QMessageBox::Yes || choix == QMessageBox::Ok) return Reponse::Oui;
    if (choix == QMessageBox::No) return Reponse::Non;
    return question.boutons == Boutons::OuiNon ? Reponse::Non : Reponse::Annuler;
}

NoOrdre DialogueQt::ChoisirPersonne(const shell::DemandePersonne& demande) {
    const SansSablier sansSablier;
    const RetourAuDemandeur retour{Dessous()};
    FrmNom fenetre{*session_, demande, retour.Fenetre()};
    return fenetre.exec() == QDialog::Accepted ? fenetre.Choisie() : NoOrdre{};
}

std::optional<std::filesystem::path> DialogueQt::ChoisirFichier(const DemandeFichier& demande) {
    const SansSablier sansSablier;
    const RetourAuDemandeur retour{Dessous()};
    QFileDialog dialogue{retour.Fenetre()};
    if (!demande.titre.EstVide()) dialogue.setWindowTitle(Composer(demande.titre));
    if (!demande.filtre.empty()) dialogue.setNameFilters(FiltresFichiers(demande.filtre));
    switch (demande.sorte) {
        case DemandeFichier::Sorte::Ouvrir:
            dialogue.setFileMode(QFileDialog::ExistingFile);
            break;
        case DemandeFichier::Sorte::Enregistrer:
            dialogue.setAcceptMode(QFileDialog::AcceptSave);
            dialogue.setFileMode(QFileDialog::AnyFile);
            break;
        case DemandeFichier::Sorte::Dossier:
            dialogue.setFileMode(QFileDialog::Directory);
            dialogue.setOption(QFileDialog::ShowDirsOnly);
            break;
    }
    if (demande.extension.size() > 1)
        dialogue.setDefaultSuffix(TexteVersQt(demande.extension.substr(1)));
    Placer(dialogue, demande.depart);
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty())
        return std::nullopt;
    return QtVersChemin(dialogue.selectedFiles().constFirst());
}

}  // namespace dorvane::windows
