#include "windows/echange/FrmExporter.h"

#include "ui_FrmExporter.h"
#include <QDesktopServices>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QUrl>

#include "messages/Dorvane.h"
#include "messages/Export.h"
#include "messages/Exporter.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/BoutonPersonne.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <string>

namespace dorvane::windows {

namespace {

using interchange::DemandeExport;
using interchange::FormatExport;
using interchange::JeuExport;
using interchange::Lancement;
using interchange::ParcoursExport;
using interchange::SensExport;

constexpr int PasBarre = 1000;  ///< the bar counts in thousandths
const QString Separateur = QStringLiteral("  ·  ");

QString Remplir(const shell::Session& session, NoMessage message, const QString& valeur) {
    return TexteEcran(session, message).replace(QStringLiteral("&1"), valeur);
}

QString Remplir(const shell::Session& session, NoMessage message, std::uint32_t nombre) {
    return Remplir(session, message, QString::number(nombre));
}

/// "Ascendants de Paul Martin (1820-1890), 3 génération(s)".
QString DireParcours(shell::Session& session, const ParcoursExport& parcours) {
    const QString nom = TexteVersQt(records::NomEtDates(session, parcours.depart)).trimmed();
    return Remplir(session,
                   parcours.sens == SensExport::Ascendants ? message::TitreAscendantsDe
                                                           : message::TitreDescendantsDe,
                   nom) +
           QStringLiteral(", ") + QString::number(parcours.generations) +
           TexteEcran(session, message::EtatSuffixeGenerations);
}

}  // namespace

FrmExporter::FrmExporter(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmExporter"), parent},
      ui_{std::make_unique<Ui::FrmExporter>()} {
    ui_->setupUi(this);
    ui_->OptBase_0->setObjectName(QStringLiteral("OptBase(0)"));
    ui_->OptBase_1->setObjectName(QStringLiteral("OptBase(1)"));
    ui_->OptExport_0->setObjectName(QStringLiteral("OptExport(0)"));
    ui_->OptExport_1->setObjectName(QStringLiteral("OptExport(1)"));
    ui_->UpDown1->findChild<QLineEdit*>()->setObjectName(QStringLiteral("TxtGen"));
    ui_->EtiNom->Attacher(session);
    // Names of sets are the same in every language.
    ui_->CboJeu->addItems({QStringLiteral("ASCII"), QStringLiteral("ANSI"), QStringLiteral("ANSEL"),
                           QStringLiteral("HTML"), QStringLiteral("UTF-8")});
    setAcceptDrops(true);
    ui_->BarAvancement->hide();
    ui_->PnlResultat->hide();
    FenetreFille::Traduire();
    Relier();
    Proposer();
    Traduire();
}

FrmExporter::~FrmExporter() = default;

void FrmExporter::Relier() {
    for (QRadioButton* option : {ui_->OptBase_0, ui_->OptBase_1})
        connect(option, &QRadioButton::clicked, this, &FrmExporter::Compter);
    for (QCheckBox* option : {ui_->ChkCollateraux, ui_->ChkComplet, ui_->Chk1900})
        connect(option, &QCheckBox::clicked, this, &FrmExporter::Compter);
    connect(ui_->ChxFormat, &QComboBox::currentIndexChanged, this, &FrmExporter::PoserEtats);
    connect(ui_->EtiNom, &BoutonPersonne::clicked, this, &FrmExporter::ChoisirDepart);
    connect(ui_->EtiNom, &BoutonPersonne::deposee, this,
            [this](quint32 individu) { PoserDepart(NoOrdre{individu}); });
    connect(ui_->CmdListe, &QPushButton::clicked, this, &FrmExporter::ChoisirDepart);
    connect(ui_->CmdSélection, &QPushButton::clicked, this, &FrmExporter::AjouterParcours);
    connect(ui_->CmdVider, &QPushButton::clicked, this, &FrmExporter::Vider);
    ui_->LstSélection->installEventFilter(this);
    connect(ui_->CmdDossier, &QPushButton::clicked, this, [this] {
        QDesktopServices::openUrl(
            QUrl::fromLocalFile(CheminVersQt(dernier_.fichier.parent_path())));
    });
    connect(ui_->CmdLancer, &QPushButton::clicked, this, &FrmExporter::Lancer);
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::reject);
}

/// What was ticked the last time.
void FrmExporter::Proposer() {
    const DemandeExport demande = interchange::DernierExport(S());
    (demande.entiere ? ui_->OptBase_0 : ui_->OptBase_1)->setChecked(true);
    const ParcoursExport& parcours = demande.parcours.front();
    (parcours.sens == SensExport::Ascendants ? ui_->OptExport_0 : ui_->OptExport_1)
        ->setChecked(true);
    ui_->UpDown1->setValue(static_cast<int>(parcours.generations));
    ui_->ChkCollateraux->setChecked(demande.reglages.collateraux);
    ui_->ChkComplet->setChecked(demande.reglages.complet);
    ui_->Chk1900->setChecked(demande.reglages.ecarter1900);
    ui_->ChxFormat->setCurrentIndex(static_cast<int>(demande.format));
    ui_->CboJeu->setCurrentIndex(static_cast<int>(demande.jeu));
}

void FrmExporter::Selectionner(const std::vector<NoOrdre>& liste) {
    if (enCours_) return;
    preparation_.Prendre(liste);
    ui_->OptBase_1->setChecked(true);
    ui_->PnlResultat->hide();
    Recharger();
}

void FrmExporter::Traduire() {
    FenetreFille::Traduire();
    ui_->CmdFermer->setText(enCours_
                                ? SansMnemonique(TexteEcran(S(), message::BoutonAnnulerTraitement))
                                : TexteEcran(S(), message::BoutonFermerExport));
    PoserDepart(ui_->EtiNom->Individu());
    if (!ui_->PnlResultat->isHidden()) MontrerResultat(dernier_);
    MontrerSelection();
    Compter();
}

/// Persons may have gone since, or changed their names.
void FrmExporter::Recharger() {
    if (enCours_ || !S().base) return;
    preparation_.Epurer(*S().base);
    PoserDepart(ui_->EtiNom->Individu());
    MontrerSelection();
    Compter();
}

void FrmExporter::showEvent(QShowEvent* evenement) {
    if (!evenement->spontaneous() && S().base) {
        if (ui_->EtiNom->Individu() != S().PersonneEnCours) PoserDepart(S().PersonneEnCours);
        Recharger();
        (ui_->OptBase_0->isChecked() ? ui_->OptBase_0 : ui_->OptBase_1)->setFocus();
    }
    FenetreFille::showEvent(evenement);
}

void FrmExporter::resizeEvent(QResizeEvent* evenement) {
    FenetreFille::resizeEvent(evenement);
    BornerHauteur();
}

/// Texts that wrap are higher in a narrow window: nothing may be covered.
void FrmExporter::BornerHauteur() {
    setMinimumHeight(layout()->minimumHeightForWidth(width()));
}

void FrmExporter::reject() {
    if (enCours_)
        Q_EMIT annulationDemandee();
    else
        FenetreFille::reject();
}

/// The next time begins without a selection.
void FrmExporter::done(int resultat) {
    Retenir();
    preparation_.Vider();
    ui_->PnlResultat->hide();
    FenetreFille::done(resultat);
}

void FrmExporter::dragEnterEvent(QDragEnterEvent* evenement) {
    if (!enCours_ && PersonneDeMime(S(), evenement->mimeData())) evenement->acceptProposedAction();
}

/// Whoever drops a person beside the field wants a part of the base, too.
void FrmExporter::dropEvent(QDropEvent* evenement) {
    const NoOrdre individu = PersonneDeMime(S(), evenement->mimeData());
    if (enCours_ || !individu) return;
    evenement->acceptProposedAction();
    ui_->OptBase_1->setChecked(true);
    PoserDepart(individu);
    Compter();
}

bool FrmExporter::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == ui_->LstSélection && evenement->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evenement)->key() == Qt::Key_Delete) {
        RetirerLigne();
        return true;
    }
    return FenetreFille::eventFilter(objet, evenement);
}

void FrmExporter::PoserDepart(NoOrdre individu) {
    const bool existe = S().base && records::Existe(*S().base, individu);
    ui_->EtiNom->Poser(existe ? individu : NoOrdre{},
                       TexteEcran(S(), message::TitreChoisirPersonne));
    PoserEtats();
}

void FrmExporter::ChoisirDepart() {
    const NoOrdre choisie = S().dialogue.ChoisirPersonne({ui_->EtiNom->Individu(), {}, {}});
    if (choisie) PoserDepart(choisie);
}

ParcoursExport FrmExporter::ParcoursMontre() const {
    return {ui_->EtiNom->Individu(),
            ui_->OptExport_0->isChecked() ? SensExport::Ascendants : SensExport::Descendants,
            static_cast<std::uint32_t>(ui_->UpDown1->value())};
}

DemandeExport FrmExporter::Demande() const {
    DemandeExport demande;
    demande.format = static_cast<FormatExport>(std::max(0, ui_->ChxFormat->currentIndex()));
    demande.jeu = static_cast<JeuExport>(std::max(0, ui_->CboJeu->currentIndex()));
    demande.entiere = ui_->OptBase_0->isChecked();
    demande.reglages = {ui_->ChkCollateraux->isChecked(), ui_->ChkComplet->isChecked(),
                        ui_->Chk1900->isChecked()};
    demande.liste = preparation_.Liste();
    demande.parcours = preparation_.Parcours();
    return demande;
}

void FrmExporter::AjouterParcours() {
    const ParcoursExport parcours = ParcoursMontre();
    if (!parcours.depart) return ChoisirDepart();
    preparation_.Ajouter(parcours);
    MontrerSelection();
    ui_->LstSélection->setCurrentRow(ui_->LstSélection->count() - 1);
    Compter();
}

void FrmExporter::RetirerLigne() {
    const int rangee = ui_->LstSélection->currentRow();
    if (rangee < 0) return;
    preparation_.Retirer(static_cast<std::size_t>(rangee));
    MontrerSelection();
    ui_->LstSélection->setCurrentRow(std::min(rangee, ui_->LstSélection->count() - 1));
    Compter();
}

void FrmExporter::Vider() {
    preparation_.Vider();
    MontrerSelection();
    Compter();
    ui_->CmdSélection->setFocus();
}

void FrmExporter::MontrerSelection() {
    ui_->LstSélection->clear();
    if (!S().base) return;
    if (const auto nombre = static_cast<std::uint32_t>(preparation_.Liste().size()); nombre != 0)
        ui_->LstSélection->addItem(Remplir(S(), message::NombrePersonnesDUneListe, nombre));
    for (const ParcoursExport& parcours : preparation_.Parcours())
        ui_->LstSélection->addItem(DireParcours(S(), parcours));
}

bool FrmExporter::Vide() const {
    return !S().base || S().base->entete.NbTriIndividus == 0;
}

/// The counters, and what a file would hold now.
void FrmExporter::Compter() {
    if (enCours_) return;
    PoserEtats();
    if (Vide()) {
        ui_->LblRetenus->setText(Remplir(S(), message::NombrePersonnesChoisies, 0));
        ui_->LblMarques->setText(Remplir(S(), message::NombreAvecCollateraux, 0));
        ui_->LblFiche->setText(TexteEcran(S(), message::RienAExporterBaseVide));
        return;
    }
    const interchange::ComptesSelection comptes = interchange::CompterExport(S(), Demande());
    ui_->LblRetenus->setText(Remplir(S(), message::NombrePersonnesChoisies, comptes.retenus));
    ui_->LblMarques->setText(Remplir(S(), message::NombreAvecCollateraux, comptes.marques));
    if (comptes.retenus == 0)
        ui_->LblFiche->setText(TexteEcran(S(), message::RienAExporterSansSelection));
    else if (comptes.individus == 0)
        ui_->LblFiche->setText(TexteEcran(S(), message::RienAExporterNesApres1900));
    else
        ui_->LblFiche->setText(
            QStringList{Remplir(S(), message::NombrePersonnes, comptes.individus),
                        Remplir(S(), message::NombreEvenementsExport, comptes.evenements),
                        Remplir(S(), message::NombreDocumentsExport, comptes.documents)}
                .join(Separateur));
}

void FrmExporter::PoserEtats() {
    const bool vide = Vide();
    const bool partie = ui_->OptBase_1->isChecked();
    const bool gedcom = ui_->ChxFormat->currentIndex() == static_cast<int>(FormatExport::Gedcom);
    ui_->PnlChoix->setEnabled(!vide && !enCours_);
    ui_->PnlFormat->setEnabled(!vide && !enCours_);
    ui_->PnlSelect->setEnabled(partie);
    ui_->CmdSélection->setEnabled(bool{ui_->EtiNom->Individu()});
    ui_->CmdVider->setEnabled(!preparation_.EstVide());
    // Whoever leaves births out does not want the rest of the base.
    ui_->ChkComplet->setEnabled(!ui_->Chk1900->isChecked());
    ui_->LblJeu->setEnabled(gedcom);
    ui_->CboJeu->setEnabled(gedcom);
    ui_->LblUsage->setText(
        TexteEcran(S(), gedcom ? message::UsageFormatGedcom : message::UsageFormatDorvane));
    ui_->CmdLancer->setEnabled(!vide && !enCours_);
}

void FrmExporter::Occuper(bool enCours) {
    enCours_ = enCours;
    ui_->BarAvancement->setRange(0, 0);
    ui_->BarAvancement->hide();
    ui_->CmdFermer->setText(enCours
                                ? SansMnemonique(TexteEcran(S(), message::BoutonAnnulerTraitement))
                                : TexteEcran(S(), message::BoutonFermerExport));
    PoserEtats();
}

/// The walk that is shown is kept, whether it was taken or not.
void FrmExporter::Retenir() {
    DemandeExport demande = Demande();
    demande.parcours = {ParcoursMontre()};
    interchange::RetenirExport(S(), demande);
}

void FrmExporter::Lancer() {
    if (enCours_) return;
    ui_->PnlResultat->hide();
    Retenir();
    Occuper(true);
    dernier_ = interchange::LancerExport(S(), Demande());
    Occuper(false);
    Compter();
    if (dernier_.issue) {
        MontrerResultat(dernier_);
        ui_->CmdDossier->setFocus();
    } else if (dernier_.vide) {
        (ui_->CmdSélection->isEnabled() ? ui_->CmdSélection : ui_->CmdListe)->setFocus();
    } else {
        ui_->CmdLancer->setFocus();
    }
}

void FrmExporter::MontrerResultat(const Lancement& lancement) {
    const interchange::ComptesExport& comptes = lancement.comptes;
    QStringList lignes;
    lignes << TexteEcran(S(), message::InfoExportTermine)
           << QStringList{Remplir(S(), message::NombrePersonnes, comptes.individus),
                          Remplir(S(), message::NombreUnionsExport, comptes.unions),
                          Remplir(S(), message::NombreEvenementsExport, comptes.evenements),
                          Remplir(S(), message::NombreDocumentsExport, comptes.documents)}
                  .join(Separateur)
           << Remplir(S(), message::FichierExporte, CheminVersQt(lancement.fichier));
    if (comptes.perdus > 0)
        lignes << Remplir(S(), message::CaracteresPerdusALExport, QString::number(comptes.perdus));
    if (comptes.omis > 0) lignes << Remplir(S(), message::UnionsEtEntreesOmises, comptes.omis);
    ui_->LblResultat->setText(lignes.join(u'\n'));
    ui_->PnlResultat->show();
    BornerHauteur();
}

void FrmExporter::DireAvancement(const QString& texte, quint32 fait, quint32 total) {
    if (!enCours_) return;
    ui_->LblFiche->setText(texte);
    ui_->BarAvancement->setRange(0, total == 0 ? 0 : PasBarre);
    if (total != 0) {
        ui_->BarAvancement->setValue(static_cast<int>(std::uint64_t{fait} * PasBarre / total));
        ui_->BarAvancement->setFormat(QStringLiteral("%1/%2").arg(fait).arg(total));
    }
    ui_->BarAvancement->show();
}

}  // namespace dorvane::windows
