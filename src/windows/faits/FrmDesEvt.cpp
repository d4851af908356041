#include "windows/faits/FrmDesEvt.h"

#include "ui_FrmDesEvt.h"
#include <QCompleter>
#include <QHeaderView>
#include <QKeyEvent>

#include "messages/Faits.h"
#include "records/AccordEvenements.h"
#include "records/FicheEvenement.h"
#include "records/MotsUsuels.h"
#include "records/NomsAffiches.h"
#include "records/TagSaisi.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/SortesEvenement.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Completeur.h"
#include "windows/controles/FrmTexte.h"
#include "windows/controles/Icones.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/OuvrirDocument.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/faits/FrmLstImage.h"
#include "windows/faits/ModeleDocuments.h"
#include "windows/faits/ModeleLiens.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace dorvane::windows {

namespace {

/// A table of a few rows, without the trappings of a sheet.
void Preparer(QTableView& table, QAbstractItemModel& modele, int large) {
    table.setModel(&modele);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setSectionResizeMode(large, QHeaderView::Stretch);
}

/// Words that hold what is typed are proposed, whatever their case.
void Completer(QComboBox& liste) {
    liste.completer()->setCompletionMode(QCompleter::PopupCompletion);
    liste.completer()->setFilterMode(Qt::MatchContains);
    liste.completer()->setCaseSensitivity(Qt::CaseInsensitive);
}

}  // namespace

FrmDesEvt::FrmDesEvt(shell::Session& session, NoEvenement evenement, NoOrdre pour,
                     const std::string& role, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmDesEvt"), parent},
      ui_{std::make_unique<Ui::FrmDesEvt>()},
      saisie_{evenement ? records::ChargerEvenement(session, evenement)
                        : records::NouvelEvenement(pour, role)},
      liens_{new ModeleLiens{session, saisie_, this}},
      documents_{new ModeleDocuments{session, "FrmDesEvt", "LstDoc", this}} {
    ui_->setupUi(this);
    setModal(true);
    PreparerListes();
    Traduire();
    Montrer();
    Connecter();
    if (saisie_.evenement && pour) {
        const std::string libelle = shell::LibelleDeTag(session.catalogue, role);
        if (!libelle.empty()) ui_->CboRole->setEditText(TexteVersQt(libelle));
        AjouterLien(pour, false);
    }
    if (saisie_.evenement)
        ui_->TxtDate->setFocus();
    else
        ui_->CboTypeEvt->setFocus();
}

FrmDesEvt::~FrmDesEvt() = default;

void FrmDesEvt::PreparerListes() {
    Preparer(*ui_->GrdLiens, *liens_, ModeleLiens::Personne);
    const int cadratin = fontMetrics().averageCharWidth();
    ui_->GrdLiens->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    ui_->GrdLiens->setColumnWidth(ModeleLiens::Role, 20 * cadratin);
    ui_->GrdLiens->setColumnWidth(ModeleLiens::Dates, 16 * cadratin);
    ui_->GrdLiens->setItemDelegateForColumn(ModeleLiens::Role, new EditeurRole{S(), saisie_, this});
    Preparer(*ui_->LstDoc, *documents_, ModeleDocuments::Titre);
    ui_->LstDoc->setIconSize({ModeleDocuments::CoteVignette, ModeleDocuments::CoteVignette});
    ui_->LstDoc->verticalHeader()->setDefaultSectionSize(ModeleDocuments::CoteVignette + 6);
    ui_->LstDoc->setColumnHidden(ModeleDocuments::Fichier, true);
    for (const auto& [bouton, icone] : {std::pair{ui_->CmdMot, "MnuMotsClés"},
                                        {ui_->CmdLienUp, "Monter"},
                                        {ui_->CmdLienDown, "Descendre"},
                                        {ui_->CmdSupLien, "Retirer"},
                                        {ui_->CmdVoirDoc, "Chercher"},
                                        {ui_->CmdDocUp, "Monter"},
                                        {ui_->CmdDocDown, "Descendre"},
                                        {ui_->CmdSuppDoc, "Retirer"}})
        bouton->setIcon(Icone(icone));
    ui_->CboRole->lineEdit()->setMaxLength(static_cast<int>(storage::MaxTexteElement));
    Completer(*ui_->CboTypeEvt);
    Completer(*ui_->CboRole);
    new Completeur{*ui_->TxtLieu, S(), records::mots::Lieux};
    SuivreLangue(*ui_->TxtDate, SorteSaisie::DateEvenement);
    for (QWidget* liste :
         {static_cast<QWidget*>(ui_->GrdLiens), static_cast<QWidget*>(ui_->LstDoc)})
        liste->installEventFilter(this);
}

void FrmDesEvt::Connecter() {
    const auto clic = [this](QAbstractButton* bouton, auto action) {
        connect(bouton, &QAbstractButton::clicked, this, action);
    };
    connect(ui_->TxtDate, &QLineEdit::textChanged, this, &FrmDesEvt::SuivreDate);
    // Of a new event all is new.
    for (QLineEdit* champ : {ui_->TxtDate, ui_->TxtLieu, ui_->TxtLib})
        connect(champ, &QLineEdit::textChanged, this, [this, champ] {
            if (saisie_.evenement) MarquerChamp(*champ, S());
        });
    connect(ui_->TxtDate, &QLineEdit::editingFinished, this, [this] {
        const std::string saisie = QtVersTexte(ui_->TxtDate->text()).octets;
        if (const auto date = SaisirDateEvenement(saisie, S().Ordre(), S().Mots()))
            ui_->TxtDate->setText(TexteVersQt(AfficherDateEvenement(*date, S().Mots())));
    });
    connect(ui_->CboTypeEvt, &QComboBox::currentTextChanged, this, &FrmDesEvt::SuivreType);
    connect(liens_, &ModeleLiens::roleChange, this, &FrmDesEvt::ChangerRole);
    connect(ui_->GrdLiens->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FrmDesEvt::PoserBoutons);
    connect(liens_, &QAbstractItemModel::modelReset, this, &FrmDesEvt::PoserBoutons);
    connect(ui_->LstDoc->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FrmDesEvt::PoserBoutons);
    connect(ui_->GrdLiens, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!liens_->Lien(index.row())) ChercherPersonne();
    });
    connect(ui_->LstDoc, &QTableView::doubleClicked, this,
            [this] { OuvrirDocument(S(), DocumentChoisi()); });
    clic(ui_->CmdMaj, &FrmDesEvt::CmdMajClique);
    clic(ui_->CmdAnnuler, &FrmDesEvt::reject);
    clic(ui_->CmdRechLien, &FrmDesEvt::ChercherPersonne);
    clic(ui_->CmdCréLien, &FrmDesEvt::CreerPersonne);
    clic(ui_->CmdSupLien, &FrmDesEvt::RetirerLien);
    clic(ui_->CmdLienUp, [this] { DeplacerLien(-1); });
    clic(ui_->CmdLienDown, [this] { DeplacerLien(1); });
    clic(ui_->CmdMot, &FrmDesEvt::SaisirMots);
    clic(ui_->CmdRechDoc, [this] { AjouterDocument(FrmLstImage::Choisir(S(), this)); });
    clic(ui_->CmdCréationDoc, [this] {
        FrmDesImage fenetre{S(), {}, this};
        if (fenetre.exec() != QDialog::Accepted) return;
        ecrit_ = true;
        AjouterDocument(fenetre.Document());
    });
    clic(ui_->CmdVoirDoc, [this] { OuvrirDocument(S(), DocumentChoisi()); });
    clic(ui_->CmdSuppDoc, &FrmDesEvt::RetirerDocument);
    clic(ui_->CmdDocUp, [this] { DeplacerDocument(-1); });
    clic(ui_->CmdDocDown, [this] { DeplacerDocument(1); });
    clic(ui_->CmdTxtComment, [this] {
        std::string note = ui_->TxtComment->Note();
        FrmTexte fenetre{S(), this};
        if (fenetre.Editer(note, windowTitle())) {
            saisie_.note = note;
            ui_->TxtComment->Poser(note);
        }
    });
}

void FrmDesEvt::Traduire() {
    FenetreFille::Traduire();
    const std::string resume = records::ResumeEvenement(S(), saisie_.evenement);
    setWindowTitle(resume.empty() ? TexteEcran(S(), message::TitreNouvelEvenement)
                                  : TexteEcran(resume));
    RemplirTypes();
    const QString role = ui_->CboRole->currentText();
    RemplirRoles();
    if (!role.isEmpty()) ui_->CboRole->setEditText(role);
    SuivreDate();
}

/// A kind or a role may be typed in any case: it is the entry of the list that it stands for.
void FrmDesEvt::TraduireListe(QComboBox& liste, const MotsDeLangue& avant) {
    const std::string saisi = QtVersTexte(liste.currentText()).octets;
    const std::string tag = TagDe(liste);
    const bool offert = liste.findData(QByteArray::fromStdString(tag)) >= 0;
    const QSignalBlocker silence{liste};
    liste.setEditText(TexteVersQt(offert ? shell::LibelleDeTag(S().catalogue, tag)
                                         : avant.Traduire(saisi, SorteSaisie::Libelle, S())));
}

void FrmDesEvt::ChangerLangue(const MotsDeLangue& avant) {
    for (QComboBox* liste : {ui_->CboTypeEvt, ui_->CboRole})
        if (!liste->currentText().isEmpty()) TraduireListe(*liste, avant);
    FenetreFille::ChangerLangue(avant);
    static_cast<void>(Lire());
    const int rangee = ui_->GrdLiens->currentIndex().row();
    liens_->Relire();
    ui_->GrdLiens->setCurrentIndex(liens_->index(rangee, 0));
}

bool FrmDesEvt::EnregistrerSaisie() {
    CmdMajClique();
    return !isVisible();
}

void FrmDesEvt::RemplirTypes() {
    const QString saisi = ui_->CboTypeEvt->currentText();
    const QSignalBlocker muet{ui_->CboTypeEvt};
    ui_->CboTypeEvt->clear();
    for (const std::string& type : S().parametres.ListeEvenements())
        ui_->CboTypeEvt->addItem(TexteVersQt(shell::LibelleDeTag(S().catalogue, type)),
                                 QByteArray::fromStdString(type));
    ui_->CboTypeEvt->setCurrentIndex(-1);
    ui_->CboTypeEvt->setEditText(saisi);
}

void FrmDesEvt::RemplirRoles() {
    const QSignalBlocker muet{ui_->CboRole};
    ui_->CboRole->clear();
    const std::vector<shell::RoleEvenement> roles = records::RolesDe(S(), saisie_);
    for (const shell::RoleEvenement& role : roles)
        ui_->CboRole->addItem(TexteVersQt(shell::LibelleDeTag(S().catalogue, role.label)),
                              QByteArray::fromStdString(role.label));
    // Behind the roles of the kind, the usual words of relations: witness, godfather, guardian...
    for (const std::string& mot :
         records::ListerMotsUsuels(S(), shell::LibelleDeTag(S().catalogue, tag::Relation)))
        if (ui_->CboRole->findText(TexteVersQt(mot)) < 0)
            ui_->CboRole->addItem(TexteVersQt(mot), QByteArray::fromStdString(
                                                        shell::TagDeLibelle(S().catalogue, mot)));
    const std::optional<std::size_t> propose = records::ProchainRole(saisie_, roles);
    ui_->CboRole->setCurrentIndex(propose ? static_cast<int>(*propose) : -1);
}

void FrmDesEvt::Montrer() {
    PoserChamp(*ui_->TxtDate, saisie_.date);
    {
        const QSignalBlocker muet{ui_->CboTypeEvt};
        ui_->CboTypeEvt->setEditText(TexteVersQt(shell::LibelleDeTag(S().catalogue, saisie_.type)));
    }
    PoserChamp(*ui_->TxtLieu, saisie_.lieu);
    PoserChamp(*ui_->TxtLib, saisie_.libelle);
    ui_->TxtComment->Poser(saisie_.note);
    MontrerLiens(0);
    MontrerDocuments({});
    SuivreDate();
}

/// Takes the fields over; answers how many characters the base cannot hold.
std::size_t FrmDesEvt::Lire() {
    std::size_t remplaces = 0;
    saisie_.date = LireChamp(ui_->TxtDate->text(), remplaces);
    saisie_.lieu = LireChamp(ui_->TxtLieu->text(), remplaces);
    saisie_.libelle = LireChamp(ui_->TxtLib->text(), remplaces);
    saisie_.type = TagDe(*ui_->CboTypeEvt);
    static_cast<void>(LireChamp(ui_->CboTypeEvt->currentText(), remplaces));
    saisie_.note = ui_->TxtComment->Note();
    remplaces += ui_->TxtComment->Remplaces();
    return remplaces;
}

/// The stored form of what stands in a list.
std::string FrmDesEvt::TagDe(const QComboBox& liste) const {
    std::vector<records::TagOffert> offerts;
    offerts.reserve(static_cast<std::size_t>(liste.count()));
    for (int i = 0; i < liste.count(); ++i)
        offerts.push_back(
            {QtVersTexte(liste.itemText(i)).octets, liste.itemData(i).toByteArray().toStdString()});
    return records::TagSaisi(S(), offerts, QtVersTexte(liste.currentText()).octets);
}

/// The weekday beside a date, or what it lacks.
void FrmDesEvt::SuivreDate() {
    const std::string saisie = QtVersTexte(ui_->TxtDate->text()).octets;
    const std::optional<Serie> date = SaisirDateEvenement(saisie, S().Ordre(), S().Mots());
    ui_->LblAvis->setPalette(palette());
    if (date) {
        const std::string jour =
            NomJourSemaine(AfficherDateEvenement(*date, S().Mots()), S().Ordre(), S().Mots());
        ui_->LblAvis->setText(TexteVersQt(SansBlancs(jour)));
    } else {
        ui_->LblAvis->setText(
            SansBlancs(saisie).empty() ? QString{} : TexteEcran(S(), message::AideDateEvenement));
        Avertir(*ui_->LblAvis);
    }
}

void FrmDesEvt::SuivreType() {
    saisie_.type = TagDe(*ui_->CboTypeEvt);
    records::ChoisirRoles(S(), saisie_);
    MontrerLiens(ui_->GrdLiens->currentIndex().row());
}

void FrmDesEvt::MontrerLiens(int rangee) {
    liens_->Relire();
    RemplirRoles();
    ui_->GrdLiens->setCurrentIndex(
        liens_->index(std::clamp(rangee, 0, std::max(0, liens_->rowCount({}) - 1)), 0));
    PoserBoutons();
}

void FrmDesEvt::MontrerDocuments(NoDocument choisi) {
    std::vector<std::uint32_t> numeros;
    numeros.reserve(saisie_.documents.size());
    for (const NoDocument document : saisie_.documents)
        numeros.push_back(document.valeur);
    documents_->Poser(std::move(numeros));
    ui_->LstDoc->setCurrentIndex(
        documents_->index(std::max(0, documents_->Rangee(choisi.valeur)), 0));
    PoserBoutons();
}

void FrmDesEvt::PoserBoutons() {
    const auto lien = liens_->Lien(ui_->GrdLiens->currentIndex().row());
    ui_->CmdSupLien->setEnabled(lien.has_value());
    ui_->CmdMot->setEnabled(lien.has_value());
    ui_->CmdLienUp->setEnabled(lien && *lien > 0);
    ui_->CmdLienDown->setEnabled(lien && *lien + 1 < saisie_.liens.size());
    const int rangee = documents_->Rangee(DocumentChoisi().valeur);
    ui_->CmdVoirDoc->setEnabled(rangee >= 0);
    ui_->CmdSuppDoc->setEnabled(rangee >= 0);
    ui_->CmdDocUp->setEnabled(rangee > 0);
    ui_->CmdDocDown->setEnabled(rangee >= 0 && rangee + 1 < documents_->Total());
}

void FrmDesEvt::CmdMajClique() {
    using Etat = records::IssueEvenement::Etat;
    if (!S().base || !AccepterRemplaces(S(), Lire())) return;
    const records::IssueEvenement issue = records::ValiderEvenement(S(), saisie_);
    if (issue.etat != Etat::Refuse) {
        ecrit_ = true;
        if (issue.etat != Etat::Incomplet) return accept();
        Traduire();
        Montrer();
        ui_->LblEtat->setText(TexteEcran(S(), message::EvenementEnregistreRolesACompleter));
    }
    switch (issue.champ) {
        case records::ChampEvenement::Date:
            return ui_->TxtDate->setFocus();
        case records::ChampEvenement::Type:
            return ui_->CboTypeEvt->setFocus();
        case records::ChampEvenement::Lieu:
            return ui_->TxtLieu->setFocus();
        case records::ChampEvenement::Role:
        case records::ChampEvenement::Liens:
            // The first role that lacks a person is at hand.
            return ui_->CmdRechLien->setFocus();
        case records::ChampEvenement::Documents:
        case records::ChampEvenement::Aucun:
            return;
    }
}

void FrmDesEvt::reject() {
    static_cast<void>(Lire());
    if (!records::EvenementModifie(S(), saisie_)) return FenetreFille::reject();
    Renoncer(shell::Msg(message::ProposerEnregistrerEvenement), [this] { CmdMajClique(); });
}

void FrmDesEvt::done(int resultat) {
    FenetreFille::done(resultat);
    if (ecrit_) Q_EMIT baseChangee();
}

}  // namespace dorvane::windows
