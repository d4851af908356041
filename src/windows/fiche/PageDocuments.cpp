#include "windows/fiche/PageDocuments.h"

#include "ui_PageDocuments.h"
#include <QHeaderView>

#include "messages/Faits.h"
#include "messages/Fiche.h"
#include "records/FicheDocument.h"
#include "records/FichierDeDocument.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/OuvrirDocument.h"
#include "windows/controles/TableFiche.h"
#include "windows/controles/Unicode.h"
#include "windows/controles/Vignettes.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/faits/FrmLstImage.h"

#include <filesystem>

namespace dorvane::windows {

namespace {

constexpr int CoteVignette = 36;  ///< pixels of the pictures in the list

}  // namespace

PageDocuments::PageDocuments(shell::Session& session, ServicesFiche& fiche, QWidget* parent)
    : PageFiche{session, fiche, parent}, ui_{std::make_unique<Ui::PageDocuments>()} {
    ui_->setupUi(this);
    ui_->LstImage->Attacher(session, "PageDocuments", 3, 2);
    ui_->LstImage->setIconSize({CoteVignette, CoteVignette});
    ui_->LstImage->verticalHeader()->setDefaultSectionSize(CoteVignette + 4);
    ui_->LstImage->Prendre(TableFiche::Depot::Fichiers);
    connect(ui_->LstImage, &TableFiche::fichiersDeposes, this, &PageDocuments::AjouterFichiers);
    connect(ui_->LstImage, &TableFiche::ouverte, this, &PageDocuments::Voir);
    connect(ui_->LstImage, &TableFiche::suppressionDemandee, this, &PageDocuments::Retirer);
    connect(ui_->LstImage, &TableFiche::choisie, this, &PageDocuments::PoserBoutons);
    connect(ui_->CmdImageAjout, &QPushButton::clicked, this, &PageDocuments::Ajouter);
    connect(ui_->CmdImageMaj, &QPushButton::clicked, this, &PageDocuments::Modifier);
    connect(ui_->CmdImageVoir, &QPushButton::clicked, this, &PageDocuments::Voir);
    connect(ui_->CmdImageSup, &QPushButton::clicked, this, &PageDocuments::Retirer);
    connect(ui_->CmdImgUp, &QToolButton::clicked, this, [this] { Ranger(-1); });
    connect(ui_->CmdImgDown, &QToolButton::clicked, this, [this] { Ranger(1); });
}

PageDocuments::~PageDocuments() = default;

void PageDocuments::Charger(NoOrdre individu, bool /*garder*/) {
    PoserIndividu(individu);
    std::vector<LigneFiche> lignes;
    if (individu)
        for (const NoDocument document : S().base->R_LSTIMG.Elements(individu)) {
            LigneFiche ligne;
            ligne.numero = document.valeur;
            const storage::Document lu = S().base->R_IMAGE.LireDoc(document);
            ligne.textes << TexteVersQt(records::TitreAffiche(lu))
                         << TexteVersQt(shell::LibelleDeTag(S().catalogue, lu.type))
                         << TexteVersQt(lu.fichier);
            const records::EtatDocument etat = records::EtatDe(S().CheminBase, lu);
            if (etat.Absent()) {
                ligne.icone = Icone("FichierAbsent");
                ligne.textes.last() +=
                    QStringLiteral(" \u2013 ") + TexteEcran(S(), message::FichierAbsent);
            } else if (const QPixmap vignette = VignetteDeFichier(etat.fichier, CoteVignette);
                       !vignette.isNull()) {
                ligne.icone = QIcon{vignette};
            }
            lignes.push_back(std::move(ligne));
        }
    ui_->LstImage->Poser(std::move(lignes));
    PoserBoutons();
}

std::size_t PageDocuments::Rang() const {
    return static_cast<std::size_t>(ui_->LstImage->currentIndex().row() + 1);
}

NoDocument PageDocuments::Document() const {
    const LigneFiche* ligne = ui_->LstImage->Courante();
    return NoDocument{ligne != nullptr ? ligne->numero : 0};
}

void PageDocuments::PoserBoutons() {
    const bool choisi = static_cast<bool>(Document());
    for (QAbstractButton* bouton : {static_cast<QAbstractButton*>(ui_->CmdImageMaj),
                                    static_cast<QAbstractButton*>(ui_->CmdImageVoir),
                                    static_cast<QAbstractButton*>(ui_->CmdImageSup)})
        bouton->setEnabled(choisi);
    ui_->CmdImgUp->setEnabled(choisi && Rang() > 1);
    ui_->CmdImgDown->setEnabled(choisi && Rang() < ui_->LstImage->Lignes().size());
}

void PageDocuments::Ajouter() {
    if (!Fiche().Preparer() || !records::PeutAvoirDocument(S(), Individu())) return;
    const NoDocument document = FrmLstImage::Choisir(S(), window());
    if (document && records::AttacherDocument(S(), Individu(), document)) Fiche().Ecrit(false);
}

/// One new document for each file.
void PageDocuments::AjouterFichiers(const std::vector<std::filesystem::path>& fichiers) {
    if (!S().base || !Fiche().Preparer()) return;
    bool ecrit = false;
    for (const std::filesystem::path& fichier : fichiers) {
        if (!records::PeutAvoirDocument(S(), Individu())) break;
        FrmDesImage fenetre{S(), {}, window()};
        fenetre.ProposerFichier(fichier);
        // Giving up one gives up the rest.
        if (fenetre.exec() != QDialog::Accepted) break;
        if (records::AttacherDocument(S(), Individu(), fenetre.Document())) ecrit = true;
    }
    if (ecrit) Fiche().Ecrit(false);
}

void PageDocuments::Modifier() {
    if (!Document()) return;
    FrmDesImage fenetre{S(), Document(), window()};
    if (fenetre.exec() == QDialog::Accepted) Fiche().Ecrit(false);
}

void PageDocuments::Voir() {
    if (Document()) OuvrirDocument(S(), Document());
}

void PageDocuments::Retirer() {
    const std::size_t rang = Rang();
    if (!Document() || !Fiche().Preparer()) return;
    if (records::DetacherDocument(S(), Individu(), rang)) Fiche().Ecrit(false);
}

void PageDocuments::Ranger(int pas) {
    const std::size_t rang = Rang();
    if (!Document() || !Fiche().Preparer()) return;
    if (records::DeplacerDocument(S(), Individu(), rang, pas)) Fiche().Ecrit(false);
}

void PageDocuments::Traduire() {
    TraduireFenetre(*this, S());
    Habiller(*ui_->CmdImgUp, "Monter", message::BulleMonterDocument);
    Habiller(*ui_->CmdImgDown, "Descendre", message::BulleDescendreDocument);
    ui_->LstImage->DireVide(TexteEcran(S(), message::AucunDocumentFiche));
}

QString PageDocuments::Compte() const {
    const auto nombre = ui_->LstImage->Lignes().size();
    return nombre == 0 ? QString{} : QString::number(nombre);
}

QList<QWidget*> PageDocuments::Ordre() const {
    return {ui_->LstImage,    ui_->CmdImageAjout, ui_->CmdImageMaj, ui_->CmdImageVoir,
            ui_->CmdImageSup, ui_->CmdImgUp,      ui_->CmdImgDown};
}

}  // namespace dorvane::windows
