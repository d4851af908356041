#include "windows/faits/FrmDesImage.h"

#include "ui_FrmDesImage.h"
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

#include "messages/Faits.h"
#include "records/FichierDeDocument.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/FrmTexte.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/OuvrirDocument.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"
#include "windows/controles/Vignettes.h"

namespace dorvane::windows {

namespace {

using records::NatureDocument;

constexpr int CoteApercu = 256;
constexpr std::size_t MaxNote = 32000;

}  // namespace

FrmDesImage::FrmDesImage(shell::Session& session, NoDocument document, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmDesImage"), parent},
      ui_{std::make_unique<Ui::FrmDesImage>()},
      saisie_{records::ChargerDocument(session, document)} {
    ui_->setupUi(this);
    setModal(true);
    FrmDesImage::Traduire();
    PoserChamp(*ui_->TxtIntitulé, saisie_.valeurs.titre);
    PoserChamp(*ui_->TxtNomfic, saisie_.valeurs.fichier);
    ui_->CboTypeDoc->setEditText(TexteVersQt(saisie_.valeurs.type));
    ui_->TxtComment->Poser(saisie_.valeurs.note);
    SuivreFichier();
    // Of a new document all is new.
    for (QLineEdit* champ : {ui_->TxtIntitulé, ui_->TxtNomfic})
        connect(champ, &QLineEdit::textChanged, this, [this, champ] {
            if (saisie_.document) MarquerChamp(*champ, S());
        });
    connect(ui_->TxtNomfic, &QLineEdit::textChanged, this, &FrmDesImage::SuivreFichier);
    connect(ui_->CboTypeDoc, &QComboBox::currentTextChanged, this, &FrmDesImage::SuivreFichier);
    connect(ui_->CmdFichier, &QPushButton::clicked, this, &FrmDesImage::CmdFichierClique);
    connect(ui_->ChkOle, &QCheckBox::clicked, this, &FrmDesImage::BasculerLien);
    connect(ui_->CmdValider, &QPushButton::clicked, this, &FrmDesImage::CmdValiderClique);
    connect(ui_->CmdAnnuler, &QPushButton::clicked, this, &FrmDesImage::reject);
    connect(ui_->CmdOuvrir, &QPushButton::clicked, this, [this] {
        static_cast<void>(Lire());
        OuvrirDocument(S(), saisie_.valeurs);
    });
    connect(ui_->CmdTxtComment, &QPushButton::clicked, this, [this] {
        std::string note = ui_->TxtComment->Note();
        FrmTexte fenetre{S(), this};
        if (!fenetre.Editer(note, ui_->TxtIntitulé->text(), MaxNote)) return;
        saisie_.valeurs.note = note;
        ui_->TxtComment->Poser(note);
    });
    ui_->TxtIntitulé->setFocus();
}

FrmDesImage::~FrmDesImage() = default;

void FrmDesImage::Traduire() {
    FenetreFille::Traduire();
    const std::string titre = records::TitreAffiche(saisie_.valeurs);
    setWindowTitle(saisie_.document ? TexteEcran(S().catalogue.Composer(
                                          shell::Msg(message::TitreDocument, titre)))
                                    : TexteEcran(S(), message::TitreNouveauDocument));
    RemplirTypes();
}

void FrmDesImage::RemplirTypes() {
    const QString saisi = ui_->CboTypeDoc->currentText();
    ui_->CboTypeDoc->clear();
    for (const std::string& type : records::TypesDocument(S()))
        ui_->CboTypeDoc->addItem(TexteVersQt(type));
    ui_->CboTypeDoc->setCurrentIndex(-1);
    ui_->CboTypeDoc->setEditText(saisi);
}

/// Takes the fields over; answers how many characters the base cannot hold.
std::size_t FrmDesImage::Lire() {
    std::size_t remplaces = 0;
    saisie_.valeurs.titre = LireChamp(ui_->TxtIntitulé->text(), remplaces);
    saisie_.valeurs.fichier = LireChamp(ui_->TxtNomfic->text(), remplaces);
    saisie_.valeurs.type = LireChamp(ui_->CboTypeDoc->currentText(), remplaces);
    saisie_.valeurs.note = ui_->TxtComment->Note();
    remplaces += ui_->TxtComment->Remplaces();
    return remplaces;
}

void FrmDesImage::CmdFichierClique() {
    static_cast<void>(Lire());
    std::filesystem::path depart =
        records::FichierDeDocument(S().CheminBase, saisie_.valeurs.fichier);
    if (depart.empty()) depart = S().CheminBase.parent_path();
    const auto choisi =
        S().dialogue.ChoisirFichier({shell::DemandeFichier::Sorte::Ouvrir,
                                     shell::Msg(message::TitreChoisirFichierDocument),
                                     S().Message(message::FiltreFichiersImage),
                                     {},
                                     depart});
    if (choisi) ProposerFichier(*choisi);
}

void FrmDesImage::ProposerFichier(const std::filesystem::path& fichier) {
    if (ui_->TxtIntitulé->text().trimmed().isEmpty())
        ui_->TxtIntitulé->setText(CheminVersQt(fichier.stem()));
    if (ui_->ChkOle->isChecked()) {
        const std::filesystem::path lien = records::CreerLien(S(), fichier);
        if (!lien.empty()) return NommerFichier(lien);
        S().dialogue.Informer(
            shell::Msg(message::FichierDeLienNonEcrit, shell::CheminAffiche(fichier)));
    }
    NommerFichier(fichier);
}

/// A name with characters that the base lacks would lead nowhere.
void FrmDesImage::NommerFichier(const std::filesystem::path& chemin) {
    const QString nom = CheminVersQt(records::CheminPourDocument(S(), chemin));
    if (QtVersTexte(nom).remplaces == 0)
        ui_->TxtNomfic->setText(nom);
    else
        S().dialogue.Informer(
            shell::Msg(message::NomFichierHorsJeuDeCaracteres, shell::CheminAffiche(chemin)));
}

/// Ticked, the file is reached through a link file beside the base; unticked, by its own name.
void FrmDesImage::BasculerLien(bool lien) {
    static_cast<void>(Lire());
    const std::filesystem::path fichier =
        records::FichierDeDocument(S().CheminBase, saisie_.valeurs.fichier);
    const bool estLien = records::NatureDe(saisie_.valeurs) == NatureDocument::Lien;
    if (lien && !estLien && !fichier.empty()) {
        ProposerFichier(fichier);
    } else if (!lien && estLien) {
        const std::filesystem::path cible = records::LireLien(fichier);
        if (!cible.empty()) NommerFichier(cible);
    }
    SuivreFichier();
}

void FrmDesImage::SuivreFichier() {
    static_cast<void>(Lire());
    const NatureDocument nature = records::NatureDe(saisie_.valeurs);
    if (nature == NatureDocument::Lien) ui_->ChkOle->setChecked(true);
    if (nature == NatureDocument::Adresse || nature == NatureDocument::Courriel)
        ui_->ChkOle->setChecked(false);
    ui_->CmdOuvrir->setEnabled(nature != NatureDocument::Rien);
    MontrerApercu();
}

void FrmDesImage::MontrerApercu() {
    const records::EtatDocument etat = records::EtatDe(S().CheminBase, saisie_.valeurs);
    NoMessage message = records::MessageDEtat(etat);
    QPixmap image;
    if (!message) {
        const bool lien = etat.nature == NatureDocument::Lien;
        image =
            VignetteDeFichier(lien ? records::LireLien(etat.fichier) : etat.fichier, CoteApercu);
        if (image.isNull()) message = message::AucunApercu;
    }
    ui_->LblApercu->setPixmap(image);
    if (image.isNull()) ui_->LblApercu->setText(TexteEcran(S(), message));
    ui_->LblAvis->setText(etat.Absent() ? TexteEcran(S(), message::FichierPasASaPlace) : QString{});
    ui_->LblAvis->setVisible(etat.Absent());
    Avertir(*ui_->LblAvis);
}

void FrmDesImage::CmdValiderClique() {
    if (!S().base || !AccepterRemplaces(S(), Lire())) return;
    const records::IssueDocument issue = records::ValiderDocument(S(), saisie_);
    if (issue.etat != records::IssueDocument::Etat::Refuse) return accept();
    switch (issue.champ) {
        case records::ChampDocument::Titre:
            return ui_->TxtIntitulé->setFocus();
        case records::ChampDocument::Fichier:
            return ui_->TxtNomfic->setFocus();
        case records::ChampDocument::Type:
            return ui_->CboTypeDoc->setFocus();
        case records::ChampDocument::Note:
            return ui_->TxtComment->setFocus();
        case records::ChampDocument::Aucun:
            return;
    }
}

void FrmDesImage::reject() {
    static_cast<void>(Lire());
    if (!S().base || !records::DocumentModifie(S(), saisie_)) return FenetreFille::reject();
    Renoncer(shell::Msg(message::ProposerEnregistrerDocument), [this] { CmdValiderClique(); });
}

bool FrmDesImage::EnregistrerSaisie() {
    CmdValiderClique();
    return !isVisible();
}

void FrmDesImage::dragEnterEvent(QDragEnterEvent* evenement) {
    if (!FichiersDeMime(evenement->mimeData()).empty()) evenement->acceptProposedAction();
}

void FrmDesImage::dropEvent(QDropEvent* evenement) {
    const std::vector<std::filesystem::path> fichiers = FichiersDeMime(evenement->mimeData());
    if (fichiers.empty()) return;
    evenement->acceptProposedAction();
    ProposerFichier(fichiers.front());
}

}  // namespace dorvane::windows
