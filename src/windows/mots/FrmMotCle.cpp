#include "windows/mots/FrmMotCle.h"

#include "ui_FrmMotCle.h"
#include <QHeaderView>
#include <QSignalBlocker>

#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "messages/Mots.h"
#include "shell/Session.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Icones.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"

#include <algorithm>

namespace dorvane::windows {

namespace {

enum Colonnes { Libelle, Code, Index, NbColonnes };

constexpr int LargeurCode = 60;
constexpr int LargeurIndex = 100;

std::string CodeDe(const records::LigneMotCle& mot) {
    return mot.mot ? std::string{mot.code} : std::string{};
}

}  // namespace

FrmMotCle::FrmMotCle(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmMotClé"), parent},
      ui_{std::make_unique<Ui::FrmMotCle>()} {
    setAttribute(Qt::WA_DeleteOnClose);
    ui_->setupUi(this);
    // The generated code names the window after its class.
    setObjectName(QStringLiteral("FrmMotClé"));
    using records::TableLignes;
    panneaux_ = {{TableLignes::Individu, ui_->GrdDonnéeInd, ui_->CmdAjtMotInd, ui_->CmdSupMotInd,
                  ui_->CmdMotIndUp, ui_->CmdMotIndDown},
                 {TableLignes::Mariage, ui_->GrdDonnéeMar, ui_->CmdAjtMotMar, ui_->CmdSupMotMar,
                  ui_->CmdMotMarUp, ui_->CmdMotMarDown}};
    QTableWidget& liste = *ui_->LstMClé;
    liste.setColumnCount(NbColonnes);
    liste.verticalHeader()->hide();
    liste.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    liste.horizontalHeader()->setHighlightSections(false);
    liste.horizontalHeader()->setSectionResizeMode(Libelle, QHeaderView::Stretch);
    liste.setColumnWidth(Code, LargeurCode);
    liste.setColumnWidth(Index, LargeurIndex);
    ui_->Tx_LMClé->setMaximumWidth(LargeurCode);
    ui_->CmdMotUp->setIcon(Icone("Monter"));
    ui_->CmdMotDown->setIcon(Icone("Descendre"));
    connect(&liste, &QTableWidget::currentCellChanged, this, [this] { MontrerMot(); });
    SuivreLangue(*ui_->Tx_MClé, SorteSaisie::Libelle);
    connect(ui_->Tx_MClé, &QLineEdit::textChanged, this, &FrmMotCle::ActiverBoutons);
    connect(ui_->Tx_LMClé, &QLineEdit::textChanged, this, &FrmMotCle::ActiverBoutons);
    connect(ui_->C_Ajout, &QPushButton::clicked, this, &FrmMotCle::Ajouter);
    connect(ui_->C_Maj, &QPushButton::clicked, this, &FrmMotCle::Modifier);
    connect(ui_->C_Supp, &QPushButton::clicked, this, &FrmMotCle::Supprimer);
    connect(ui_->CmdMotUp, &QToolButton::clicked, this, [this] { Deplacer(-1); });
    connect(ui_->CmdMotDown, &QToolButton::clicked, this, [this] { Deplacer(1); });
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::close);
    for (const Panneau& panneau : panneaux_)
        Relier(panneau);
    Traduire();
    liste.setFocus();
}

FrmMotCle::~FrmMotCle() = default;

void FrmMotCle::Relier(const Panneau& panneau) {
    panneau.ajouter->setIcon(Icone("Verser"));
    panneau.retirer->setIcon(Icone("Retirer"));
    panneau.monter->setIcon(Icone("Monter"));
    panneau.descendre->setIcon(Icone("Descendre"));
    const auto rang = [panneau] { return panneau.liste->currentRow(); };
    connect(panneau.liste, &QListWidget::currentRowChanged, this, &FrmMotCle::ActiverBoutons);
    connect(panneau.ajouter, &QToolButton::clicked, this, [this, panneau] {
        Changer(
            records::AjouterLigne(S(), panneau.table, Choisi().mot, ui_->ChkDatée->isChecked()));
        ListerLignes(panneau, panneau.liste->count());
    });
    connect(panneau.retirer, &QToolButton::clicked, this, [this, panneau, rang] {
        const int avant = rang();
        Changer(records::RetirerLigne(S(), panneau.table, static_cast<std::size_t>(avant)));
        ListerLignes(panneau, avant);
    });
    const auto deplacer = [this, panneau, rang](int sens) {
        const int avant = rang();
        if (!records::DeplacerLigne(S(), panneau.table, static_cast<std::size_t>(avant), sens))
            return;
        Changer(true);
        ListerLignes(panneau, avant + sens);
    };
    connect(panneau.monter, &QToolButton::clicked, this, [deplacer] { deplacer(-1); });
    connect(panneau.descendre, &QToolButton::clicked, this, [deplacer] { deplacer(1); });
}

void FrmMotCle::Traduire() {
    FenetreFille::Traduire();
    QStringList titres;
    for (int colonne = 0; colonne < NbColonnes; ++colonne)
        titres << TitreColonne(S(), "FrmMotClé", "LstMClé", colonne);
    ui_->LstMClé->setHorizontalHeaderLabels(titres);
    Recharger();
}

void FrmMotCle::Recharger() {
    Relire(true);
}

void FrmMotCle::Relire(bool garder) {
    ListerMots(Choisi().mot, garder);
    for (const Panneau& panneau : panneaux_)
        ListerLignes(panneau, panneau.liste->currentRow());
}

records::LigneMotCle FrmMotCle::Choisi() const {
    const auto rangee = static_cast<std::size_t>(ui_->LstMClé->currentRow());
    return rangee < mots_.size() ? mots_[rangee] : records::LigneMotCle{};
}

/// What is typed; nothing when the user does not want it without the characters that are lost.
std::optional<records::SaisieMotCle> FrmMotCle::Saisie() const {
    std::size_t remplaces = 0;
    records::SaisieMotCle saisie;
    saisie.code = LireChamp(ui_->Tx_LMClé->text(), remplaces);
    saisie.libelle = LireChamp(ui_->Tx_MClé->text(), remplaces);
    saisie.indexe = ui_->ChxIndex->isChecked();
    if (!AccepterRemplaces(S(), remplaces)) return std::nullopt;
    return saisie;
}

void FrmMotCle::ListerMots(NoMotCle choisi, bool garder) {
    mots_ = S().base ? records::ListerMotsCles(S()) : std::vector<records::LigneMotCle>{};
    QTableWidget& liste = *ui_->LstMClé;
    {
        const QSignalBlocker silence{&liste};
        liste.setRowCount(static_cast<int>(mots_.size()));
        for (int i = 0; i < liste.rowCount(); ++i) {
            const records::LigneMotCle& mot = mots_[static_cast<std::size_t>(i)];
            liste.setItem(i, Libelle, new QTableWidgetItem{TexteVersQt(mot.libelle)});
            auto* code = new QTableWidgetItem{TexteVersQt({&mot.code, 1})};
            code->setTextAlignment(Qt::AlignCenter);
            liste.setItem(i, Code, code);
            liste.setItem(i, Index,
                          new QTableWidgetItem{TexteEcran(
                              S(), mot.indexe ? message::MotCleIndexe : message::MotCleNonIndexe)});
        }
        const auto ici = std::ranges::find(mots_, choisi, &records::LigneMotCle::mot);
        liste.setCurrentCell(ici == mots_.end() ? 0 : static_cast<int>(ici - mots_.begin()),
                             Libelle);
    }
    MontrerMot(garder);
}

void FrmMotCle::ListerLignes(const Panneau& panneau, int rang) {
    panneau.liste->clear();
    if (!S().base) return;
    for (const records::LigneFiche& ligne : records::ListerLignes(S(), panneau.table)) {
        QString texte = TexteVersQt(ligne.libelle);
        if (ligne.datee)
            texte += QStringLiteral(" (%1)").arg(TexteEcran(S(), message::LigneAvecDate));
        panneau.liste->addItem(texte);
    }
    panneau.liste->setCurrentRow(std::clamp(rang, -1, panneau.liste->count() - 1));
    ActiverBoutons();
}

void FrmMotCle::MontrerMot(bool garder) {
    const records::LigneMotCle mot = Choisi();
    const bool garde = garder && mot.mot == montre_.mot;
    const bool indexChange = garde && ui_->ChxIndex->isChecked() != montre_.indexe;
    montre_ = mot;
    RelireChamp(*ui_->Tx_MClé, mot.libelle, garde);
    RelireChamp(*ui_->Tx_LMClé, CodeDe(mot), garde);
    if (!indexChange) ui_->ChxIndex->setChecked(mot.indexe);
    if (!garde) ui_->ChkDatée->setChecked(mot.datable);
    ActiverBoutons();
}

bool FrmMotCle::CodeChange() const {
    return QtVersTexte(ui_->Tx_LMClé->text()).octets != CodeDe(montre_);
}

bool FrmMotCle::Modifie() const {
    return CodeChange() || QtVersTexte(ui_->Tx_MClé->text()).octets != montre_.libelle ||
           ui_->ChxIndex->isChecked() != montre_.indexe;
}

bool FrmMotCle::Enregistrer() {
    return CodeChange() || !montre_.mot ? Ajouter() : Modifier();
}

bool FrmMotCle::EnregistrerSaisie() {
    return !S().base || !Modifie() || Enregistrer();
}

bool FrmMotCle::ConfirmerFermeture() {
    if (!S().base || !Modifie()) return true;
    const bool nouveau = CodeChange() || !montre_.mot;
    return QuitterSaisie(
        shell::Msg(nouveau ? message::ProposerAjouterMotCle : message::ProposerEnregistrerMotCle,
                   QtVersTexte(ui_->Tx_MClé->text()).octets),
        [this] { return Enregistrer(); }, [this] { MontrerMot(); });
}

void FrmMotCle::reject() {
    if (ConfirmerFermeture()) FenetreFille::reject();
}

void FrmMotCle::ActiverBoutons() {
    const records::LigneMotCle mot = Choisi();
    const bool rempli = !ui_->Tx_MClé->text().trimmed().isEmpty();
    ui_->C_Ajout->setEnabled(rempli);
    ui_->C_Maj->setEnabled(static_cast<bool>(mot.mot));
    ui_->C_Supp->setEnabled(mot.mot && !mot.fixe);
    const int rangee = ui_->LstMClé->currentRow();
    ui_->CmdMotUp->setEnabled(rangee > 0);
    ui_->CmdMotDown->setEnabled(rangee >= 0 && rangee + 1 < ui_->LstMClé->rowCount());
    for (const Panneau& panneau : panneaux_) {
        const int rang = panneau.liste->currentRow();
        const int nombre = panneau.liste->count();
        panneau.ajouter->setEnabled(mot.mot && !mot.fixe && nombre < 10);
        panneau.retirer->setEnabled(rang >= 0);
        panneau.monter->setEnabled(rang > 0);
        panneau.descendre->setEnabled(rang >= 0 && rang + 1 < nombre);
    }
}

void FrmMotCle::Changer(bool change) {
    if (change) Q_EMIT baseChangee();
}

bool FrmMotCle::Ajouter() {
    const auto saisie = Saisie();
    const NoMotCle nouveau = saisie ? records::AjouterMotCle(S(), *saisie) : NoMotCle{};
    if (!nouveau) {
        ui_->Tx_LMClé->setFocus();
        ui_->Tx_LMClé->selectAll();
        return false;
    }
    ListerMots(nouveau);
    Changer(true);
    return true;
}

bool FrmMotCle::Modifier() {
    const NoMotCle mot = Choisi().mot;
    const auto saisie = Saisie();
    if (!saisie || !records::ModifierMotCle(S(), mot, *saisie)) {
        ui_->Tx_MClé->setFocus();
        return false;
    }
    Relire(false);
    Changer(true);
    return true;
}

void FrmMotCle::Supprimer() {
    if (!records::SupprimerMotCle(S(), Choisi().mot)) return;
    Relire(false);
    Changer(true);
}

void FrmMotCle::Deplacer(int sens) {
    const NoMotCle nouveau = records::DeplacerMotCle(S(), Choisi().mot, sens);
    if (!nouveau) return;
    ListerMots(nouveau);
    Changer(true);
}

}  // namespace dorvane::windows
