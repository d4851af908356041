#include "windows/communes/FrmCommune.h"

#include "ui_FrmCommune.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

#include "messages/Communes.h"
#include "shell/Session.h"
#include "windows/communes/ModeleCommunes.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ListeFiltree.h"
#include "windows/controles/SuiviLieu.h"
#include "windows/controles/Unicode.h"

#include <string>
#include <utility>
#include <vector>

namespace dorvane::windows {

namespace {

using storage::Commune;
using storage::NoCommune;

constexpr const char* SectionVolets = "Fenêtres";
constexpr const char* CleVolets = "FrmCommune.Volets";

}  // namespace

FrmCommune::FrmCommune(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmCommune"), parent},
      ui_{std::make_unique<Ui::FrmCommune>()},
      communes_{session},
      modele_{new ModeleCommunes{session, communes_, this}},
      lieux_{parent == nullptr ? nullptr : parent->findChild<SuiviLieu*>()} {
    setAttribute(Qt::WA_DeleteOnClose);
    ui_->setupUi(this);
    ui_->LstCommunes->setModel(modele_);
    const int cadratin = fontMetrics().averageCharWidth();
    ui_->LstCommunes->setColumnWidth(ModeleCommunes::Nom, 26 * cadratin);
    ui_->LstCommunes->setColumnWidth(ModeleCommunes::Rattachement, 14 * cadratin);
    ui_->LstCommunes->setColumnWidth(ModeleCommunes::Precision, 15 * cadratin);
    ui_->LstCommunes->setColumnWidth(ModeleCommunes::Code, 9 * cadratin);
    ui_->LstCommunes->horizontalHeader()->setStretchLastSection(true);
    // The words for an empty list depend on the search: they are set with it.
    liste_ =
        new ListeFiltree{session,
                         {nullptr, ui_->LstCommunes, ui_->LblNombre, ui_->Pages, ui_->LblVide},
                         {message::NombreCommunes, message::NombreCommunesFiltrees,
                          message::InfoAucuneCommuneCommencePar, message::InfoBaseCommunesVide},
                         *modele_,
                         objectName(),
                         this};
    ui_->CmdRattachement->setIcon(Icone("MnuSuivant"));
    for (QLabel* avis : {ui_->LblAvisRattachement, ui_->LblAvisCode, ui_->LblAvisAutreCode})
        Avertir(*avis);
    ui_->Volets->restoreState(QByteArray::fromBase64(
        QByteArray::fromStdString(session.parametres.Valeur(SectionVolets, CleVolets))));
    PoserMasques();
    PoserMenuListe();
    Connecter();
    Traduire();
    Montrer({});
    ui_->TxtCherche->setFocus();
}

FrmCommune::~FrmCommune() = default;

void FrmCommune::Connecter() {
    connect(ui_->TxtCherche, &QLineEdit::textChanged, this, &FrmCommune::ChercherDepuisLeDebut);
    connect(ui_->ChkSon, &QCheckBox::toggled, this, &FrmCommune::ChercherDepuisLeDebut);
    ui_->TxtCherche->installEventFilter(this);
    connect(liste_, &ListeFiltree::choisi, this, &FrmCommune::ChoisirDansListe);
    connect(liste_, &ListeFiltree::ouvert, this,
            [this](quint32 numero) { Utiliser(communes_.Base().LireCommune(NoCommune{numero})); });
    connect(liste_, &ListeFiltree::retire, this, &FrmCommune::Supprimer);
    CompleterRattachement();
    for (QLineEdit* champ : Champs())
        connect(champ, &QLineEdit::textChanged, this, &FrmCommune::SuivreFiche);
    connect(ui_->TxtCommentaire, &QPlainTextEdit::textChanged, this, &FrmCommune::SuivreFiche);
    connect(ui_->MnuMaj, &QPushButton::clicked, this, &FrmCommune::Enregistrer);
    connect(ui_->CmdNouvelle, &QPushButton::clicked, this, &FrmCommune::Nouvelle);
    connect(ui_->CmdSupprimer, &QPushButton::clicked, this, &FrmCommune::Supprimer);
    connect(ui_->CmdRattachement, &QToolButton::clicked, this, &FrmCommune::AllerAuRattachement);
    connect(ui_->CmdReorganiser, &QPushButton::clicked, this,
            [this] { Travailler([this] { return communes_.Reorganiser(); }); });
    connect(ui_->CmdUtiliser, &QPushButton::clicked, this, [this] {
        std::size_t remplaces = 0;
        Utiliser(Lire(remplaces));
    });
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::close);
    if (lieux_ != nullptr)
        connect(lieux_, &SuiviLieu::change, this, &FrmCommune::SuivreDestination);
}

void FrmCommune::PoserMenuListe() {
    auto* menu = new QMenu{this};
    for (const auto& [nom, remplacer] :
         {std::pair{"MnuAjouterListe", false}, std::pair{"MnuRemplacerListe", true}}) {
        QAction* action = menu->addAction(QString{});
        action->setObjectName(QString::fromLatin1(nom));
        connect(action, &QAction::triggered, this, [this, tout = remplacer] {
            Travailler([this, tout] { return communes_.ChargerListe(tout); });
        });
    }
    ui_->CmdListe->setMenu(menu);
}

std::array<QLineEdit*, 5> FrmCommune::Champs() const {
    return {ui_->TxtNom, ui_->TxtRattachement, ui_->TxtPrecision, ui_->TxtCode, ui_->TxtAutreCode};
}

bool FrmCommune::Ouvrir() {
    if (ouverte_) return true;
    ouverte_ = static_cast<bool>(communes_.Ouvrir());
    if (ouverte_) Chercher({});
    return ouverte_;
}

void FrmCommune::Traduire() {
    FenetreFille::Traduire();
    liste_->Traduire();
    Compter();
    SuivreFiche();
    SuivreDestination();
}

void FrmCommune::Recharger() {
    if (!ouverte_ || !communes_.Perimee() || Modifiee()) return;
    Montrer({});
    if (communes_.Ouvrir())
        Chercher({});
    else
        close();
}

// The list.

void FrmCommune::ChercherDepuisLeDebut() {
    Chercher({});
}

void FrmCommune::Chercher(NoCommune choisie) {
    if (!ouverte_) return;
    std::vector<std::uint32_t> numeros;
    for (const NoCommune n :
         communes_.Chercher(QtVersTexte(ui_->TxtCherche->text()).octets, ui_->ChkSon->isChecked()))
        numeros.push_back(n.valeur);
    remplit_ = true;
    liste_->Poser(std::move(numeros));
    if (!Modifiee() || choisie) liste_->Choisir(choisie.valeur);
    remplit_ = false;
    Compter();
    if (!Modifiee()) Montrer(NoCommune{liste_->Choisi()});
}

void FrmCommune::Compter() {
    const int montres = modele_->Total();
    const std::string total = std::to_string(communes_.Nombre());
    const bool toutes = std::to_string(montres) == total;
    ui_->LblNombre->setText(TexteEcran(S().catalogue.Composer(
        toutes ? shell::Msg(message::NombreCommunes, total)
               : shell::Msg(message::NombreCommunesFiltrees, std::to_string(montres), total))));
    const std::string cherche = QtVersTexte(ui_->TxtCherche->text()).octets;
    const shell::Phrase vide =
        communes_.Nombre() == 0
            ? shell::Msg(message::InfoBaseCommunesVide)
            : shell::Msg(ui_->ChkSon->isChecked() ? message::InfoAucuneCommuneSePrononce
                                                  : message::InfoAucuneCommuneCommencePar,
                         cherche);
    ui_->LblVide->setText(TexteEcran(S().catalogue.Composer(vide)));
    ui_->CmdReorganiser->setEnabled(communes_.Nombre() != 0);
}

void FrmCommune::ChoisirDansListe(quint32 numero) {
    if (remplit_ || numero == numero_.valeur) return;
    if (!Modifiee())
        Montrer(NoCommune{numero});
    else  // the list has to come to rest before a box stands over it
        QTimer::singleShot(0, this, [this, numero] { Quitter(NoCommune{numero}); });
}

/// Leaves a sheet with unsaved entries for another commune; back to its row if it stays.
void FrmCommune::Quitter(NoCommune vers) {
    const NoCommune ici = numero_;
    if (ConfirmerFermeture()) {
        AllerA(vers);
        return;
    }
    remplit_ = true;
    if (ici && modele_->Rangee(ici.valeur) >= 0)
        liste_->Choisir(ici.valeur);
    else
        ui_->LstCommunes->setCurrentIndex({});
    remplit_ = false;
}

void FrmCommune::AllerA(NoCommune n) {
    if (modele_->Rangee(n.valeur) < 0) {
        const QSignalBlocker silence{ui_->TxtCherche};
        const QSignalBlocker silenceSon{ui_->ChkSon};
        ui_->ChkSon->setChecked(false);
        ui_->TxtCherche->setText(TexteVersQt(communes_.Base().LireCommune(n).nom));
    }
    Chercher(n);
}

/// A job during which the windows live: this one keeps still.
void FrmCommune::Travailler(const std::function<shell::Issue()>& travail) {
    if (S().progression.EnCours() || !ConfirmerFermeture()) return;
    const NoCommune ici = numero_;
    travaille_ = true;
    setEnabled(false);
    static_cast<void>(travail());
    setEnabled(true);
    travaille_ = false;
    // Done or not, the base may have been read again.
    Montrer({});
    Chercher(ici);
}

// Where places go.

void FrmCommune::SuivreDestination() {
    const bool champ = lieux_ != nullptr && lieux_->Champ() != nullptr;
    ui_->CmdUtiliser->setText(
        TexteEcran(S(), champ ? message::BoutonUtiliserLieu : message::BoutonCopierLieu));
    ui_->CmdUtiliser->setToolTip(
        TexteEcran(S(), champ ? message::BulleUtiliserLieu : message::BulleCopierLieu));
}

void FrmCommune::Utiliser(const Commune& commune) {
    const std::string lieu = storage::TexteLieu(storage::NettoyerCommune(commune));
    if (lieu.empty()) return;
    const bool pose = lieux_ != nullptr && lieux_->Poser(TexteVersQt(lieu));
    if (!pose) QGuiApplication::clipboard()->setText(TexteVersQt(lieu));
    ui_->LblEtat->setText(TexteEcran(S().catalogue.Composer(
        shell::Msg(pose ? message::InfoLieuMisDansLaFiche : message::InfoLieuCopie, lieu))));
}

bool FrmCommune::ConfirmerFermeture() {
    if (travaille_) return false;
    if (!Modifiee()) return true;
    return QuitterSaisie(
        shell::Msg(message::ProposerEnregistrerCommune), [this] { return Enregistrer(); },
        [this] { Montrer(numero_); });
}

bool FrmCommune::EnregistrerSaisie() {
    return !ui_->MnuMaj->isEnabled() || Enregistrer();
}

void FrmCommune::reject() {
    if (ConfirmerFermeture()) FenetreFille::reject();
}

void FrmCommune::done(int resultat) {
    liste_->Memoriser();
    // A refusal is told when the settings are saved at the end.
    static_cast<void>(S().parametres.SauverValeur(
        SectionVolets, CleVolets, ui_->Volets->saveState().toBase64().toStdString()));
    FenetreFille::done(resultat);
}

void FrmCommune::changeEvent(QEvent* evenement) {
    if (evenement->type() == QEvent::ActivationChange) SuivreDestination();
    FenetreFille::changeEvent(evenement);
}

/// The arrows move in the list while the search has the focus; Enter uses the row.
bool FrmCommune::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet != ui_->TxtCherche || evenement->type() != QEvent::KeyPress)
        return FenetreFille::eventFilter(objet, evenement);
    switch (static_cast<QKeyEvent*>(evenement)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            QCoreApplication::sendEvent(ui_->LstCommunes, evenement);
            return true;
        default:
            return FenetreFille::eventFilter(objet, evenement);
    }
}

}  // namespace dorvane::windows
