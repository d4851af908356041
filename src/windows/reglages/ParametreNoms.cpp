#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTableWidget>
#include <QToolButton>

#include "messages/Reglages.h"
#include "records/ExempleNom.h"
#include "records/FicheMotsCles.h"
#include "records/NomsAffiches.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/FormesNom.h"
#include "values/SortesEvenement.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ListeOrdonnee.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"
#include "windows/reglages/PagesParametre.h"

namespace dorvane::windows {

namespace {

constexpr std::array Jetons{tag::Prenom,  tag::Nom,       tag::AutresPrenoms,
                            tag::Numeros, tag::NomDuPere, tag::NomDeLaMere};
constexpr std::array<NoMessage, 6> MessagesJetons{
    message::ElementPrenoms,       message::ElementNom,       message::ElementAutresPrenoms,
    message::ElementNumeroDeCujus, message::ElementNomDuPere, message::ElementNomDeLaMere};
/// The orders of persons, as their options stand on the page.
constexpr std::array Tris{TypeTri::Creation, TypeTri::Naissance, TypeTri::Nom};
constexpr int JetonsAuPlus = 10;
constexpr NoMessage MessagesCasses[] = {message::CasseCommeTape, message::CasseMajuscules,
                                        message::CasseInitiales};

QGroupBox* Groupe(QWidget& page, const char* nom) {
    auto* groupe = new QGroupBox{&page};
    groupe->setObjectName(QString::fromUtf8(nom));
    return groupe;
}

/// The three options of a case setting: as typed, capitals, first letters.
std::string CasseDe(const QComboBox& liste) {
    return liste.currentIndex() <= 0 ? std::string{} : std::to_string(liste.currentIndex());
}

}  // namespace

PageParametre::PageParametre(shell::Session& session, QWidget* parent)
    : QWidget{parent}, session_{session} {}

ParametreNoms::ParametreNoms(shell::Session& session, QWidget* parent)
    : PageParametre{session, parent},
      modele_{new ListeOrdonnee{QStringLiteral("LstModèle"), this}},
      jetons_{new QComboBox{this}},
      exemple_{new QLabel{this}},
      prenomUnique_{new QCheckBox{this}},
      deplacer_{new QCheckBox{this}} {
    auto* colonne = new QVBoxLayout{this};
    QGroupBox* tri = Groupe(*this, "GrpTri");
    auto* rangTri = new QVBoxLayout{tri};
    for (std::size_t i = 0; i < tris_.size(); ++i) {
        tris_[i] = new QRadioButton{tri};
        tris_[i]->setObjectName(QStringLiteral("OptTri%1").arg(i));
        rangTri->addWidget(tris_[i]);
    }
    QGroupBox* nom = Groupe(*this, "GrpModèle");
    auto* rangNom = new QVBoxLayout{nom};
    jetons_->setObjectName(QStringLiteral("CboJeton"));
    exemple_->setObjectName(QStringLiteral("LblExemple"));
    exemple_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    rangNom->addWidget(jetons_);
    rangNom->addWidget(modele_);
    rangNom->addWidget(exemple_);
    modele_->Liste().setMaximumHeight(110);
    QGroupBox* casse = Groupe(*this, "GrpCasse");
    auto* formulaire = new QFormLayout{casse};
    constexpr std::array<const char*, 3> Noms{"CboCasseNom", "CboCassePrénom", "CboCasseLieu"};
    for (std::size_t i = 0; i < casses_.size(); ++i) {
        casses_[i] = new QComboBox{casse};
        casses_[i]->setObjectName(QString::fromUtf8(Noms[i]));
        auto* etiquette = new QLabel{casse};
        etiquette->setObjectName(QStringLiteral("LblCasse%1").arg(i));
        etiquette->setBuddy(casses_[i]);
        formulaire->addRow(etiquette, casses_[i]);
    }
    QGroupBox* mots = Groupe(*this, "GrpMotsNoms");
    auto* rangMots = new QVBoxLayout{mots};
    prenomUnique_->setObjectName(QStringLiteral("ChkPrénomUnique"));
    deplacer_->setObjectName(QStringLiteral("ChkParticules"));
    rangMots->addWidget(prenomUnique_);
    rangMots->addWidget(deplacer_);
    for (QGroupBox* groupe : {tri, nom, casse, mots})
        colonne->addWidget(groupe);
    colonne->addStretch();
    connect(modele_, &ListeOrdonnee::change, this, &ParametreNoms::MontrerExemple);
    connect(modele_, &ListeOrdonnee::ajoutDemande, this, [this] {
        if (modele_->Liste().count() < JetonsAuPlus)
            modele_->Ajouter({jetons_->currentText(), jetons_->currentData()});
    });
    Traduire();
}

QString ParametreNoms::TexteJeton(const QString& jeton) const {
    for (std::size_t i = 0; i < Jetons.size(); ++i)
        if (jeton == TexteVersQt(Jetons[i])) return TexteEcran(S(), MessagesJetons[i]);
    return TexteVersQt(shell::LibelleDeTag(S().catalogue, QtVersTexte(jeton).octets));
}

void ParametreNoms::FaireJetons() {
    const int rang = jetons_->currentIndex();
    jetons_->clear();
    for (const std::string_view jeton : Jetons)
        jetons_->addItem(TexteJeton(QLatin1String{jeton}), QString{QLatin1String{jeton}});
    if (S().base)
        for (const records::LigneMotCle& mot : records::ListerMotsCles(S())) {
            if (mot.fixe) continue;
            const QString tag = TexteVersQt(S().base->motsCles.LibelleType(mot.mot).libelle);
            jetons_->addItem(TexteVersQt(mot.libelle), tag);
        }
    jetons_->setCurrentIndex(std::max(0, rang));
}

void ParametreNoms::Traduire() {
    FaireJetons();
    QList<ListeOrdonnee::Entree> entrees = modele_->Entrees();
    for (ListeOrdonnee::Entree& entree : entrees)
        entree.texte = TexteJeton(entree.valeur.toString());
    modele_->Poser(entrees);
    for (QComboBox* liste : casses_) {
        const int rang = liste->currentIndex();
        liste->clear();
        for (const NoMessage message : MessagesCasses)
            liste->addItem(TexteEcran(S(), message));
        liste->setCurrentIndex(std::max(0, rang));
    }
    MontrerExemple();
}

std::string ParametreNoms::Modele() const {
    ModeleNom modele;
    for (const ListeOrdonnee::Entree& entree : modele_->Entrees())
        modele.push_back(QtVersTexte(entree.valeur.toString()).octets);
    return EcrireModeleNom(modele);
}

void ParametreNoms::MontrerExemple() {
    const ModeleNom modele = LireModeleNom(Modele());
    const std::string nom = records::ExempleDeNom(S(), modele);
    exemple_->setText(TexteEcran(S().catalogue.Composer(
        shell::Msg(nom.empty() ? message::AucunElementDuNom : message::ExempleDeNom, nom))));
}

void ParametreNoms::Charger(const shell::Reglages& r) {
    // A byte that is no order counts as the order next to it.
    const auto tri =
        static_cast<std::size_t>(std::ranges::lower_bound(Tris, r.typeTri) - Tris.begin());
    tris_[std::min(tri, Tris.size() - 1)]->setChecked(true);
    QList<ListeOrdonnee::Entree> entrees;
    for (const std::string& jeton : LireModeleNom(r.generaux.affichageNom)) {
        const QString valeur = TexteVersQt(jeton);
        entrees << ListeOrdonnee::Entree{TexteJeton(valeur), valeur};
    }
    modele_->Poser(entrees);
    const std::array<const std::string*, 3> valeurs{&r.base.conversionNom, &r.base.conversionPrenom,
                                                    &r.base.conversionLieu};
    for (std::size_t i = 0; i < casses_.size(); ++i) {
        casses_[i]->setCurrentIndex(*valeurs[i] == "1" ? 1 : *valeurs[i] == "2" ? 2 : 0);
        casses_[i]->setEnabled(S().BaseOuverte());
    }
    prenomUnique_->setChecked(r.prenomUnique);
    deplacer_->setChecked(r.deplacerParticules);
    MontrerExemple();
}

std::size_t ParametreNoms::Lire(shell::Reglages& r) {
    for (std::size_t i = 0; i < tris_.size(); ++i)
        if (tris_[i]->isChecked()) r.typeTri = Tris[i];
    // A template without tokens would leave every person without a name.
    if (const std::string modele = Modele(); !modele.empty()) r.generaux.affichageNom = modele;
    r.base.conversionNom = CasseDe(*casses_[0]);
    r.base.conversionPrenom = CasseDe(*casses_[1]);
    r.base.conversionLieu = CasseDe(*casses_[2]);
    r.prenomUnique = prenomUnique_->isChecked();
    r.deplacerParticules = deplacer_->isChecked();
    return 0;
}

ParametreParticules::ParametreParticules(shell::Session& session, QWidget* parent)
    : PageParametre{session, parent},
      table_{new QTableWidget{this}},
      mot_{new QLineEdit{this}},
      ajouter_{new QToolButton{this}},
      retirer_{new QToolButton{this}} {
    table_->setObjectName(QStringLiteral("TblParticules"));
    table_->setColumnCount(3);
    table_->verticalHeader()->hide();
    table_->setTabKeyNavigation(false);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    mot_->setObjectName(QStringLiteral("TxtParticule"));
    ajouter_->setObjectName(QStringLiteral("CmdPartAjt"));
    ajouter_->setIcon(Icone("Ajouter"));
    retirer_->setObjectName(QStringLiteral("CmdPartSup"));
    retirer_->setIcon(Icone("Retirer"));
    auto* aide = new QLabel{this};
    aide->setObjectName(QStringLiteral("LblAideParticules"));
    aide->setWordWrap(true);
    auto* rang = new QHBoxLayout;
    auto* etiquette = new QLabel{this};
    etiquette->setObjectName(QStringLiteral("LblParticule"));
    etiquette->setBuddy(mot_);
    for (QWidget* widget : {static_cast<QWidget*>(etiquette), static_cast<QWidget*>(mot_),
                            static_cast<QWidget*>(ajouter_), static_cast<QWidget*>(retirer_)})
        rang->addWidget(widget);
    auto* colonne = new QVBoxLayout{this};
    colonne->addWidget(aide);
    colonne->addWidget(table_);
    colonne->addLayout(rang);
    connect(ajouter_, &QToolButton::clicked, this, &ParametreParticules::Ajouter);
    connect(retirer_, &QToolButton::clicked, this, &ParametreParticules::Retirer);
}

void ParametreParticules::Traduire() {
    table_->setHorizontalHeaderLabels({TexteEcran(S(), message::ColonneMotCleDesNoms),
                                       TexteEcran(S(), message::ColonneDansLesPrenoms),
                                       TexteEcran(S(), message::ColonneDansLesNoms)});
}

void ParametreParticules::AjouterLigne(const Particule& particule) {
    const int ligne = table_->rowCount();
    table_->insertRow(ligne);
    table_->setItem(ligne, 0, new QTableWidgetItem{TexteVersQt(particule.mot)});
    const std::array<bool, 2> coches{particule.prenoms, particule.noms};
    for (int i = 0; i < 2; ++i) {
        auto* coche = new QTableWidgetItem;
        coche->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        coche->setCheckState(coches[static_cast<std::size_t>(i)] ? Qt::Checked : Qt::Unchecked);
        table_->setItem(ligne, i + 1, coche);
    }
}

void ParametreParticules::Ajouter() {
    std::size_t remplaces = 0;
    const std::string saisi = LireChamp(mot_->text(), remplaces);
    if (!AccepterRemplaces(S(), remplaces)) return mot_->setFocus();
    const std::string mot{SansBlancs(saisi)};
    if (mot.empty()) return mot_->setFocus();
    const auto deja = table_->findItems(TexteVersQt(mot), Qt::MatchFixedString);
    if (deja.isEmpty()) AjouterLigne({mot, Replie(mot), true, true});
    table_->setCurrentItem(deja.isEmpty() ? table_->item(table_->rowCount() - 1, 0) : deja.first());
    mot_->clear();
    mot_->setFocus();
}

bool ParametreParticules::MotEnAttente() const {
    return !mot_->text().trimmed().isEmpty();
}

void ParametreParticules::VerserMot() {
    Ajouter();
}

void ParametreParticules::Retirer() {
    if (table_->currentRow() >= 0) table_->removeRow(table_->currentRow());
}

void ParametreParticules::Charger(const shell::Reglages& r) {
    table_->setRowCount(0);
    for (const Particule& particule : r.generaux.particules)
        AjouterLigne(particule);
}

std::size_t ParametreParticules::Lire(shell::Reglages& r) {
    std::size_t remplaces = 0;
    std::vector<Particule> particules;
    for (int i = 0; i < table_->rowCount(); ++i) {
        const std::string texte = LireChamp(table_->item(i, 0)->text(), remplaces);
        const std::string mot{SansBlancs(texte)};
        if (mot.empty()) continue;
        particules.push_back({mot, Replie(mot), table_->item(i, 1)->checkState() == Qt::Checked,
                              table_->item(i, 2)->checkState() == Qt::Checked});
    }
    r.generaux.particules = std::move(particules);
    return remplaces;
}

}  // namespace dorvane::windows
