#include "windows/faits/FrmLstImage.h"

#include "ui_FrmLstImage.h"
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

#include "messages/Faits.h"
#include "records/FicheDocument.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/OuvrirDocument.h"
#include "windows/controles/Unicode.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/faits/FrmUtilImage.h"
#include "windows/faits/ModeleDocuments.h"

namespace dorvane::windows {

FrmLstImage::FrmLstImage(shell::Session& session, QWidget* parent)
    : FenetreListe{session, QStringLiteral("FrmLstImage"), parent},
      ui_{std::make_unique<Ui::FrmLstImage>()},
      modele_{new ModeleDocuments{session, "FrmLstImage", "LstImage", this}} {
    ui_->setupUi(this);
    QTableView& table = *ui_->LstImage;
    table.setModel(modele_);
    const int cadratin = fontMetrics().averageCharWidth();
    table.setIconSize({ModeleDocuments::CoteVignette, ModeleDocuments::CoteVignette});
    table.setColumnWidth(ModeleDocuments::Titre, 58 * cadratin);
    table.setColumnWidth(ModeleDocuments::Type, 18 * cadratin);
    table.setColumnWidth(ModeleDocuments::Fichier, 36 * cadratin);
    connect(ui_->CmdOuvrir, &QPushButton::clicked, this, [this] { OuvrirDocument(S(), Choisi()); });
    connect(ui_->CmdUtil, &QPushButton::clicked, this, &FrmLstImage::MontrerUsages);
    connect(ui_->DocBase, &QPushButton::clicked, this, &FrmLstImage::PoserTitre);
    Monter({ui_->TxtFiltre, ui_->LstImage, ui_->LblNombre, ui_->Pages, ui_->LblVide},
           {message::NombreDocuments, message::NombreDocumentsFiltres,
            message::AucunDocumentNeContient, message::BaseSansDocument},
           *modele_, {ui_->CmdAjout, ui_->CmdMaj, ui_->CmdSupp, ui_->CmdChoisir, ui_->CmdFermer});
    table.verticalHeader()->setDefaultSectionSize(ModeleDocuments::CoteVignette + 6);
}

FrmLstImage::~FrmLstImage() = default;

NoDocument FrmLstImage::Choisir(shell::Session& session, QWidget* parent) {
    FrmLstImage fenetre{session, parent};
    const Ui::FrmLstImage& ui = *fenetre.ui_;
    return NoDocument{fenetre.FenetreListe::Choisir({ui.CmdSupp, ui.CmdUtil, ui.DocBase})};
}

NoDocument FrmLstImage::Choisi() const {
    return NoDocument{NumeroChoisi()};
}

std::vector<std::uint32_t> FrmLstImage::Numeros() const {
    return ModeleDocuments::Numeros(S());
}

void FrmLstImage::PoserBoutons() {
    FenetreListe::PoserBoutons();
    const NoDocument choisi = Choisi();
    for (QPushButton* bouton : {ui_->CmdOuvrir, ui_->CmdUtil, ui_->DocBase})
        bouton->setEnabled(bool{choisi});
    ui_->DocBase->setChecked(S().base && choisi && S().base->entete.DocBase == choisi);
}

void FrmLstImage::Ajouter() {
    AjouterFichiers({std::filesystem::path{}});
}

bool FrmLstImage::SupprimerChoisi() {
    return records::SupprimerDocument(S(), Choisi());
}

/// One new document for each file; an empty path is a document without a file as yet.
void FrmLstImage::AjouterFichiers(const std::vector<std::filesystem::path>& fichiers) {
    if (!S().base) return;
    NoDocument dernier{};
    for (const std::filesystem::path& fichier : fichiers) {
        FrmDesImage fenetre{S(), {}, this};
        if (!fichier.empty()) fenetre.ProposerFichier(fichier);
        // Giving up one gives up the rest.
        if (fenetre.exec() != QDialog::Accepted) break;
        dernier = fenetre.Document();
    }
    if (dernier) Ecrite(dernier.valeur);
}

void FrmLstImage::OuvrirChoisi() {
    const NoDocument choisi = Choisi();
    if (!choisi || !S().base) return;
    if (records::NatureDe(S().base->R_IMAGE.LireDoc(choisi)) == records::NatureDocument::Courriel)
        OuvrirDocument(S(), choisi);
    else
        Modifier(choisi);
}

void FrmLstImage::Modifier(NoDocument document) {
    if (!document || !S().base) return;
    FrmDesImage fenetre{S(), document, this};
    if (fenetre.exec() == QDialog::Accepted) Ecrite(document.valeur);
}

void FrmLstImage::MontrerUsages() {
    FrmUtilImage fenetre{S(), Choisi(), this};
    connect(&fenetre, &FenetreFille::allerDemande, this, &FenetreFille::allerDemande);
    connect(&fenetre, &FenetreFille::ficheDemandee, this, &FenetreFille::ficheDemandee);
    connect(&fenetre, &FenetreFille::baseChangee, this, &FenetreFille::baseChangee);
    fenetre.exec();
}

void FrmLstImage::PoserTitre(bool pose) {
    records::PoserDocBase(S(), pose ? Choisi() : NoDocument{});
    modele_->Relire();
    PoserBoutons();
    Q_EMIT baseChangee();
}

void FrmLstImage::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_F2)
        Modifier(Choisi());
    else
        FenetreListe::keyPressEvent(evenement);
}

void FrmLstImage::contextMenuEvent(QContextMenuEvent* evenement) {
    const NoDocument choisi = Choisi();
    if (!choisi || !S().base) return;
    auto* menu = new QMenu{this};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(TexteEcran(S(), message::MenuModifierFicheDocument), this,
                    [this, choisi] { Modifier(choisi); })
        ->setShortcut(QKeySequence{Qt::Key_F2});
    menu->addAction(TexteEcran(S(), message::MenuOuvrirFichierDocument), this,
                    [this, choisi] { OuvrirDocument(S(), choisi); });
    menu->popup(evenement->globalPos());
}

void FrmLstImage::Deposer(const QMimeData* donnees, NoDocument sur) {
    const NoOrdre individu = PersonneDeMime(S(), donnees);
    if (!individu) {
        // The program that the files come from waits until the drop has ended.
        QMetaObject::invokeMethod(
            this, [this, fichiers = FichiersDeMime(donnees)] { AjouterFichiers(fichiers); },
            Qt::QueuedConnection);
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, individu, sur] {
            if (!sur || !records::AttacherDocument(S(), individu, sur)) return;
            S().dialogue.Annoncer(shell::Msg(message::EtatDocumentAttache,
                                             records::TitreAffiche(S(), sur),
                                             records::NomAffiche(S(), individu)));
            Q_EMIT baseChangee();
        },
        Qt::QueuedConnection);
}

bool FrmLstImage::eventFilter(QObject* objet, QEvent* evenement) {
    const QEvent::Type type = evenement->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return FenetreListe::eventFilter(objet, evenement);
    auto* depose = static_cast<QDropEvent*>(evenement);
    const NoDocument sur{Sous(objet, *depose)};
    const bool personne{PersonneDeMime(S(), depose->mimeData())};
    const bool accepte =
        S().BaseOuverte() &&
        (personne ? type == QEvent::DragEnter || sur : !FichiersDeMime(depose->mimeData()).empty());
    depose->setAccepted(accepte);
    if (accepte && type == QEvent::Drop) Deposer(depose->mimeData(), sur);
    return true;
}

}  // namespace dorvane::windows
