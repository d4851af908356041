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
#include "windows/controles/ListeFiltree.h"
#include "windows/controles/OuvrirDocument.h"
#include "windows/controles/Unicode.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/faits/FrmUtilImage.h"
#include "windows/faits/ModeleDocuments.h"

namespace dorvane::windows {

FrmLstImage::FrmLstImage(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmLstImage"), parent},
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
    table.horizontalHeader()->setStretchLastSection(true);
    liste_ =
        new ListeFiltree{session,
                         {ui_->TxtFiltre, ui_->LstImage, ui_->LblNombre, ui_->Pages, ui_->LblVide},
                         {message::NombreDocuments, message::NombreDocumentsFiltres,
                          message::AucunDocumentNeContient, message::BaseSansDocument},
                         *modele_,
                         QStringLiteral("FrmLstImage"),
                         this};
    table.verticalHeader()->setDefaultSectionSize(ModeleDocuments::CoteVignette + 6);
    connect(liste_, &ListeFiltree::choisi, this, &FrmLstImage::PoserBoutons);
    connect(liste_, &ListeFiltree::ouvert, this, [this] {
        if (choix_)
            accept();
        else
            MettreAJour();
    });
    connect(ui_->CmdAjout, &QPushButton::clicked, this,
            [this] { Ajouter({std::filesystem::path{}}); });
    connect(ui_->CmdMaj, &QPushButton::clicked, this, &FrmLstImage::MettreAJour);
    connect(ui_->CmdOuvrir, &QPushButton::clicked, this, [this] { OuvrirDocument(S(), Choisi()); });
    connect(ui_->CmdSupp, &QPushButton::clicked, this, &FrmLstImage::Supprimer);
    connect(ui_->CmdUtil, &QPushButton::clicked, this, &FrmLstImage::MontrerUsages);
    connect(ui_->DocBase, &QPushButton::clicked, this, &FrmLstImage::PoserTitre);
    connect(ui_->CmdChoisir, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::reject);
    connect(liste_, &ListeFiltree::retire, this, &FrmLstImage::Supprimer);
    for (QWidget* cible : {static_cast<QWidget*>(this), table.viewport()}) {
        cible->setAcceptDrops(true);
        cible->installEventFilter(this);
    }
    ui_->CmdChoisir->hide();
    Traduire();
    Recharger();
    ui_->TxtFiltre->setFocus();
}

FrmLstImage::~FrmLstImage() = default;

NoDocument FrmLstImage::Choisir(shell::Session& session, QWidget* parent) {
    FrmLstImage fenetre{session, parent};
    fenetre.choix_ = true;
    fenetre.ui_->CmdChoisir->show();
    fenetre.ui_->CmdChoisir->setDefault(true);
    for (QPushButton* bouton : {fenetre.ui_->CmdSupp, fenetre.ui_->CmdUtil, fenetre.ui_->DocBase})
        bouton->hide();
    return fenetre.exec() == QDialog::Accepted ? fenetre.Choisi() : NoDocument{};
}

NoDocument FrmLstImage::Choisi() const {
    return NoDocument{liste_->Choisi()};
}

void FrmLstImage::Traduire() {
    FenetreFille::Traduire();
    liste_->Traduire();
}

void FrmLstImage::Recharger() {
    liste_->Poser(ModeleDocuments::Numeros(S()));
    PoserBoutons();
}

void FrmLstImage::PoserBoutons() {
    const NoDocument choisi = Choisi();
    for (QPushButton* bouton :
         {ui_->CmdMaj, ui_->CmdOuvrir, ui_->CmdSupp, ui_->CmdUtil, ui_->DocBase, ui_->CmdChoisir})
        bouton->setEnabled(bool{choisi});
    ui_->CmdAjout->setEnabled(S().BaseOuverte());
    ui_->DocBase->setChecked(S().base && choisi && S().base->entete.DocBase == choisi);
}

/// One new document for each file; an empty path is a document without a file as yet.
void FrmLstImage::Ajouter(const std::vector<std::filesystem::path>& fichiers) {
    if (!S().base) return;
    NoDocument dernier{};
    for (const std::filesystem::path& fichier : fichiers) {
        FrmDesImage fenetre{S(), {}, this};
        if (!fichier.empty()) fenetre.ProposerFichier(fichier);
        // Giving up one gives up the rest.
        if (fenetre.exec() != QDialog::Accepted) break;
        dernier = fenetre.Document();
    }
    if (!dernier) return;
    Recharger();
    liste_->Choisir(dernier.valeur);
    Q_EMIT baseChangee();
}

void FrmLstImage::MettreAJour() {
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
    if (fenetre.exec() != QDialog::Accepted) return;
    Recharger();
    liste_->Choisir(document.valeur);
    Q_EMIT baseChangee();
}

void FrmLstImage::Supprimer() {
    if (choix_ || !records::SupprimerDocument(S(), Choisi())) return;
    Recharger();
    Q_EMIT baseChangee();
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
        FenetreFille::keyPressEvent(evenement);
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
            this, [this, fichiers = FichiersDeMime(donnees)] { Ajouter(fichiers); },
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
        return FenetreFille::eventFilter(objet, evenement);
    auto* depose = static_cast<QDropEvent*>(evenement);
    const QModelIndex index = objet == ui_->LstImage->viewport()
                                  ? ui_->LstImage->indexAt(depose->position().toPoint())
                                  : QModelIndex{};
    const NoDocument sur{modele_->Numero(index.isValid() ? index.row() : -1)};
    const bool personne{PersonneDeMime(S(), depose->mimeData())};
    const bool accepte =
        S().BaseOuverte() &&
        (personne ? type == QEvent::DragEnter || sur : !FichiersDeMime(depose->mimeData()).empty());
    depose->setAccepted(accepte);
    if (accepte && type == QEvent::Drop) Deposer(depose->mimeData(), sur);
    return true;
}

void FrmLstImage::done(int resultat) {
    liste_->Memoriser();
    FenetreFille::done(resultat);
}

}  // namespace dorvane::windows
