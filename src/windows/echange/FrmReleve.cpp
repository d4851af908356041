#include "windows/echange/FrmReleve.h"

#include "ui_FrmReleve.h"
#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>

#include "messages/Releve.h"
#include "shell/Session.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/echange/ModeleReleve.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dorvane::windows {

namespace {

using interchange::SorteReleve;

constexpr std::array<SorteReleve, 4> Sortes{SorteReleve::Bapteme, SorteReleve::Mariage,
                                            SorteReleve::Sepulture, SorteReleve::Ascendance};
/// A list of findings longer than this is told by its length; the report has them all.
constexpr std::size_t MaxConstats = 500;
/// Rows whose texts settle the width of the columns.
constexpr int RangeesMesurees = 100;

QString Compter(const shell::Session& session, NoMessage message, std::size_t nombre) {
    return TexteEcran(session, message).replace(QStringLiteral("&1"), QString::number(nombre));
}

}  // namespace

FrmReleve::FrmReleve(shell::Session& session, SorteReleve sorte, std::string octets,
                     const QString& nom, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmRelevé"), parent},
      ui_{std::make_unique<Ui::FrmReleve>()},
      modele_{new ModeleReleve{session, this}},
      octets_{std::move(octets)},
      nom_{nom} {
    ui_->setupUi(this);
    releve_.sorte = sorte;
    ui_->GrdLignes->setModel(modele_);
    ui_->GrdLignes->verticalHeader()->hide();
    ui_->GrdLignes->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    ui_->GrdLignes->horizontalHeader()->setResizeContentsPrecision(RangeesMesurees);
    ui_->EtiFichier->setText(nom_);
    connect(ui_->CboSorte, &QComboBox::currentIndexChanged, this, &FrmReleve::Lire);
    connect(ui_->LstConstats, &QListWidget::currentRowChanged, this, &FrmReleve::AllerAuConstat);
    connect(ui_->CmdImporter, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->CmdAnnuler, &QPushButton::clicked, this, &QDialog::reject);
    Traduire();
    ui_->CmdImporter->setFocus();
}

FrmReleve::~FrmReleve() = default;

void FrmReleve::Traduire() {
    FenetreFille::Traduire();
    {
        const QSignalBlocker silence{ui_->CboSorte};
        ui_->CboSorte->clear();
        for (const SorteReleve sorte : Sortes) {
            QString nom = TexteVersQt(interchange::NomReleve(S(), sorte));
            nom.replace(0, 1, nom.left(1).toUpper());
            ui_->CboSorte->addItem(nom);
        }
        ui_->CboSorte->setCurrentIndex(static_cast<int>(releve_.sorte));
    }
    Lire();
}

void FrmReleve::Lire() {
    releve_ = interchange::LireReleve(
        octets_, Sortes[static_cast<std::size_t>(std::max(0, ui_->CboSorte->currentIndex()))]);
    rapport_ = interchange::ExaminerReleve(S(), releve_);
    modele_->Poser(releve_, rapport_);
    Montrer();
}

void FrmReleve::Montrer() {
    ui_->GrdLignes->resizeColumnsToContents();
    ui_->CmdImporter->setEnabled(!releve_.lignes.empty());
    if (releve_.lignes.empty())
        ui_->LblTitres->setText(
            TexteEcran(S(), message::FichierSansLigneDeReleve).replace(QStringLiteral("&1"), nom_));
    else
        ui_->LblTitres->setText(TexteEcran(
            S(), releve_.titres ? message::AideTitresDuReleve : message::AideColonnesDuReleve));
    QStringList bilan;
    bilan << TexteEcran(S(), message::RapportJeuDeCaracteresReleve)
                 .replace(QStringLiteral("&1"), TexteVersQt(interchange::NomDeJeu(releve_.jeu.jeu)))
          << Compter(S(), message::RapportLignesReprises, rapport_.lignes)
          << Compter(S(), message::RapportPersonnesReleve, rapport_.individus)
          << Compter(S(), message::RapportEvenementsReleve, rapport_.evenements)
          << Compter(S(), message::RapportUnionsReleve, rapport_.unions);
    if (releve_.remplaces != 0)
        bilan << Compter(S(), message::RapportCaracteresRemplaces, releve_.remplaces);
    ui_->LblBilan->setText(bilan.join(QStringLiteral("  ·  ")));
    MontrerConstats();
}

void FrmReleve::MontrerConstats() {
    const bool aucun = rapport_.constats.empty();
    ui_->LblConstats->setVisible(!aucun);
    ui_->LstConstats->setVisible(!aucun);
    ui_->LblConstats->setText(
        Compter(S(), message::NombreLignesAVerifier, rapport_.constats.size()));
    ui_->LstConstats->clear();
    for (std::size_t i = 0; i < std::min(rapport_.constats.size(), MaxConstats); ++i) {
        const interchange::RapportReleve::Constat& constat = rapport_.constats[i];
        ui_->LstConstats->addItem(
            TexteEcran(S(), message::RapportLigneEtConstat)
                .replace(QStringLiteral("&2"), TexteEcran(S(), constat.message))
                .replace(QStringLiteral("&1"), QString::number(constat.ligne)));
    }
}

void FrmReleve::AllerAuConstat(int rang) {
    if (rang < 0) return;
    const int rangee = modele_->Rangee(rapport_.constats[static_cast<std::size_t>(rang)].ligne);
    if (rangee >= 0) ui_->GrdLignes->selectRow(rangee);
}

}  // namespace dorvane::windows
