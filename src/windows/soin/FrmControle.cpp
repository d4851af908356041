#include "windows/soin/FrmControle.h"

#include "ui_FrmControle.h"
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>

#include "messages/Controle.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/LignesFiche.h"
#include "records/NomsAffiches.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ListeFiltree.h"
#include "windows/controles/OuvrirTexte.h"
#include "windows/controles/Unicode.h"
#include "windows/soin/ModeleAnomalies.h"

#include <algorithm>
#include <utility>

namespace dorvane::windows {

namespace {

constexpr qint64 EntreVersements = 250;  ///< ms between two updates of the lists
constexpr ListeFiltree::Messages Comptes{message::NombreAnomalies, message::NombreAnomaliesFiltrees,
                                         message::AucuneAnomalieNeContient,
                                         message::InfoAucuneAnomalie};

}  // namespace

FrmControle::FrmControle(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmControle"), parent},
      ui_{std::make_unique<Ui::FrmControle>()},
      modele_{new ModeleAnomalies{session, this}},
      sortes_{new ModeleSortes{session, this}},
      liste_{nullptr} {
    ui_->setupUi(this);
    PreparerListes();
    connect(liste_, &ListeFiltree::choisi, this, &FrmControle::MontrerFiche);
    connect(liste_, &ListeFiltree::ouvert, this, [this] { OuvrirFiche(Choisie()); });
    connect(ui_->GrdAno, &QWidget::customContextMenuRequested, this, &FrmControle::MontrerMenu);
    connect(ui_->GrdFiche, &TableFiche::ouverte, this, [this] {
        const LigneFiche* ligne = ui_->GrdFiche->Courante();
        if (ligne == nullptr) return;
        OuvrirFiche(ligne->individu ? ligne->individu : Choisie());
    });
    connect(ui_->CmdFiche, &QPushButton::clicked, this, [this] { OuvrirFiche(Choisie()); });
    connect(ui_->CmdAller, &QPushButton::clicked, this, &FrmControle::Aller);
    connect(ui_->CmdTexte, &QPushButton::clicked, this, &FrmControle::CmdTexteClique);
    connect(ui_->CmdRelancer, &QPushButton::clicked, this, &FrmControle::Relancer);
    connect(ui_->CmdQuitter, &QPushButton::clicked, this, &FrmControle::reject);
    FrmControle::Traduire();
    ui_->TxtFiltre->setFocus();
}

FrmControle::~FrmControle() = default;

void FrmControle::PreparerListes() {
    const int cadratin = fontMetrics().averageCharWidth();
    QTableView& anomalies = *ui_->GrdAno;
    anomalies.setModel(modele_);
    anomalies.setColumnWidth(ModeleAnomalies::Numero_, 11 * cadratin);
    anomalies.setColumnWidth(ModeleAnomalies::Anomalie, 62 * cadratin);
    anomalies.setColumnHidden(ModeleAnomalies::Compte, true);
    anomalies.horizontalHeader()->setStretchLastSection(true);
    liste_ =
        new ListeFiltree{S(),
                         {ui_->TxtFiltre, ui_->GrdAno, ui_->LblNombre, ui_->Pages, ui_->LblVide},
                         Comptes,
                         *modele_,
                         QStringLiteral("FrmControle"),
                         this};

    QTableView& sortes = *ui_->LstSortes;
    sortes.setModel(sortes_);
    sortes.verticalHeader()->hide();
    sortes.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    sortes.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    sortes.horizontalHeader()->setHighlightSections(false);
    sortes.horizontalHeader()->setSectionsClickable(false);
    sortes.horizontalHeader()->setSectionResizeMode(ModeleSortes::Sorte, QHeaderView::Stretch);
    sortes.horizontalHeader()->setSectionResizeMode(ModeleSortes::Nombre,
                                                    QHeaderView::ResizeToContents);
    connect(sortes.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FrmControle::MontrerSorte);

    ui_->GrdFiche->Attacher(S(), "FrmControle", 2, 1);
    ui_->GrdFiche->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui_->GrdFiche->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    ui_->Partage->setSizes({48 * cadratin, 130 * cadratin});
    ui_->Partage->setStretchFactor(1, 1);
    ui_->PartageFiche->setSizes({360, 200});
    ui_->PartageFiche->setStretchFactor(0, 1);
}

void FrmControle::Traduire() {
    FenetreFille::Traduire();
    liste_->Traduire();
    sortes_->Traduire();
    MontrerFiche();
    PoserEtat();
}

void FrmControle::Recharger() {
    modele_->Relire();
    MontrerFiche();
}

void FrmControle::Controler() {
    if (etat_ == Etat::EnCours || !S().base) return;
    etat_ = Etat::EnCours;
    arret_ = false;
    modele_->Vider();
    sortes_->Vider();
    ui_->LstSortes->setCurrentIndex(sortes_->index(0, 0));
    ui_->Avancement->setRange(0, static_cast<int>(S().base->entete.NbTriIndividus));
    ui_->Avancement->setValue(0);
    std::vector<records::Constat> recus;
    Verser(recus);
    QElapsedTimer depuis;
    depuis.start();
    int rang = 0;
    const records::BilanControle bilan = records::ControlerBase(
        S(), [&recus](const records::Constat& constat) { recus.push_back(constat); },
        [&] {
            ++rang;
            if (depuis.elapsed() >= EntreVersements) {
                ui_->Avancement->setValue(rang);
                Verser(recus);
                depuis.start();
            }
            return !arret_;
        });
    etat_ = bilan.complet ? Etat::Complet : Etat::Interrompu;
    Verser(recus);
    if (modele_->Nombre() != 0) ui_->GrdAno->setFocus();
}

void FrmControle::Verser(std::vector<records::Constat>& recus) {
    modele_->Recevoir(std::exchange(recus, {}));
    sortes_->Compter(modele_->Comptes());
    liste_->Poser(modele_->Numeros(sorte_));
    PoserEtat();
}

void FrmControle::MontrerSorte() {
    sorte_ = sortes_->SorteDe(ui_->LstSortes->currentIndex().row());
    liste_->Poser(modele_->Numeros(sorte_));
    PoserEtat();
}

NoOrdre FrmControle::Choisie() const {
    const records::Constat* constat = modele_->Constat(liste_->Choisi());
    if (constat == nullptr || !S().base || !records::Existe(*S().base, constat->individu))
        return {};
    return constat->individu;
}

/// The person as the base has it now, who may have changed since the scan, or be gone.
void FrmControle::MontrerFiche() {
    const NoOrdre individu = Choisie();
    std::vector<LigneFiche> lignes;
    for (const records::LigneLue& lue : records::LignesFiche(S(), individu)) {
        LigneFiche ligne;
        ligne.textes = {TexteEcran(lue.libelle), TexteVersQt(lue.texte)};
        ligne.numero = static_cast<std::uint32_t>(lignes.size()) + 1;
        ligne.individu = lue.individu;
        if (lue.individu) ligne.icone = IconeSexe(S().base->R_SEXE.LireCellule(lue.individu));
        lignes.push_back(std::move(ligne));
    }
    ui_->GrdFiche->Poser(std::move(lignes));
    ui_->GrdFiche->DireVide(TexteEcran(S(), liste_->Choisi() == 0
                                                ? message::AideChoisirAnomalie
                                                : message::FicheDePersonneDisparue));
    const QString nom = TexteVersQt(SansBlancs(records::NomEtDates(S(), individu)));
    ui_->LblFiche->setText(nom.isEmpty() ? TexteEcran(S(), message::FicheDeLaPersonne)
                                         : QString{nom}.replace(u'&', QStringLiteral("&&")));
    PoserBoutons();
}

void FrmControle::PoserEtat() {
    const bool enCours = etat_ == Etat::EnCours;
    NoMessage message{};
    if (enCours) message = message::EtatControleEnCours;
    if (etat_ == Etat::Complet)
        message =
            modele_->Nombre() == 0 ? message::InfoAucuneAnomalie : message::EtatControleTermine;
    if (etat_ == Etat::Interrompu) message = message::EtatControleInterrompu;
    ui_->LblEtat->setText(message ? TexteEcran(S(), message) : QString{});
    ui_->Avancement->setVisible(enCours);
    // An empty list says why: the scan may not have come to an end.
    if (modele_->Nombre() == 0) ui_->LblVide->setText(ui_->LblEtat->text());
    ui_->CmdQuitter->setText(TexteEcran(
        S(), enCours ? message::BoutonInterrompreControle : message::BoutonFermerControle));
    PoserBoutons();
}

void FrmControle::PoserBoutons() {
    const bool choisie{Choisie()};
    ui_->CmdFiche->setEnabled(choisie);
    ui_->CmdAller->setEnabled(choisie);
    ui_->CmdTexte->setEnabled(modele_->rowCount({}) > 0);
    ui_->CmdRelancer->setEnabled(etat_ != Etat::EnCours && S().BaseOuverte());
}

bool FrmControle::Libre() const {
    if (!S().progression.EnCours()) return true;
    S().dialogue.Informer(shell::Msg(message::OperationImpossible));
    return false;
}

void FrmControle::OuvrirFiche(NoOrdre individu) {
    if (individu && Libre()) Q_EMIT ficheDemandee(individu.valeur);
}

void FrmControle::Aller() {
    const NoOrdre individu = Choisie();
    if (individu && Libre()) Q_EMIT allerDemande(individu.valeur);
}

void FrmControle::Relancer() {
    if (shell::CommandePermise(S())) Controler();
}

/// The rows as they are shown, in their order.
void FrmControle::CmdTexteClique() {
    std::filesystem::path chemin = S().Travail() / (S().Message(message::NomFichierControle) + '-');
    chemin += S().CheminBase.stem();
    chemin += ".txt";
    if (shell::EcrireTout(chemin, records::TexteDesConstats(modele_->Montres())))
        OuvrirTexte(S(), chemin, windowTitle(), *parentWidget());
    else
        S().dialogue.Informer(
            shell::Msg(message::ListeAnomaliesNonEcrite, shell::CheminAffiche(chemin)));
}

void FrmControle::MontrerMenu(const QPoint& point) {
    const records::Constat* constat = modele_->Constat(liste_->Choisi());
    if (constat == nullptr) return;
    auto* menu = new QMenu{this};
    menu->setObjectName(QStringLiteral("MnuAnomalie"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto ajouter = [&](const char* nom, NoMessage message, auto action) {
        QAction* nouvelle = menu->addAction(TexteEcran(S(), message), this, action);
        nouvelle->setObjectName(QString::fromLatin1(nom));
        return nouvelle;
    };
    const bool presente{Choisie()};
    ajouter("OuvrirFiche", message::MenuOuvrirFiche, [this] {
        OuvrirFiche(Choisie());
    })->setEnabled(presente);
    ajouter("Aller", message::MenuMontrerDansGraphe, [this] { Aller(); })->setEnabled(presente);
    menu->addSeparator();
    ajouter("CetteSorte", message::MenuCetteSorteDAnomalie, [this, sorte = constat->sorte] {
        ui_->LstSortes->setCurrentIndex(sortes_->index(sortes_->Rangee(sorte), 0));
    });
    ajouter("CettePersonne", message::MenuAnomaliesDeLaPersonne,
            [this, identite = TexteVersQt(constat->identite)] {
                ui_->LstSortes->setCurrentIndex(sortes_->index(0, 0));
                ui_->TxtFiltre->setText(identite);
            });
    menu->addSeparator();
    records::Constat copie = *constat;
    copie.texte = S().Message(records::MessageDe(copie.sorte));
    ajouter("CopierLigne", message::MenuCopierLigne, [ligne = records::TexteDesConstats({copie})] {
        QGuiApplication::clipboard()->setText(QString::fromStdString(ligne).trimmed());
    });
    menu->popup(ui_->GrdAno->viewport()->mapToGlobal(point));
}

void FrmControle::reject() {
    if (etat_ == Etat::EnCours)
        arret_ = true;
    else
        FenetreFille::reject();
}

/// A closed window keeps nothing: another base may come.
void FrmControle::done(int resultat) {
    liste_->Memoriser();
    FenetreFille::done(resultat);
    etat_ = Etat::Neuf;
    modele_->Vider();
    sortes_->Vider();
    sorte_.reset();
    liste_->Poser({});
    ui_->TxtFiltre->clear();
    PoserEtat();
}

}  // namespace dorvane::windows
