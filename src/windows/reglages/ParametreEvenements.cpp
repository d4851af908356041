#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTableWidget>
#include <QToolButton>

#include "messages/Reglages.h"
#include "records/MotsUsuels.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "values/Comparaison.h"
#include "values/SortesEvenement.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Icones.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ListeOrdonnee.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"
#include "windows/reglages/PagesParametre.h"

#include <algorithm>

namespace dorvane::windows {

namespace {

enum Colonnes { Role, Sexe, Obligatoire, NbColonnes };
constexpr int LargeurColonne = 96;
constexpr std::array Sexes{dorvane::Sexe::Vide, dorvane::Sexe::Homme, dorvane::Sexe::Femme};

}  // namespace

ParametreEvenements::ParametreEvenements(shell::Session& session, QWidget* parent)
    : PageParametre{session, parent},
      types_{new ListeOrdonnee{QStringLiteral("LstTypesEvt"), this}},
      roles_{new QTableWidget{0, NbColonnes, this}},
      type_{new QLineEdit{this}},
      ajouterRole_{new QToolButton{this}},
      retirerRole_{new QToolButton{this}} {
    roles_->setObjectName(QStringLiteral("TblRoles"));
    roles_->verticalHeader()->hide();
    roles_->setTabKeyNavigation(false);
    roles_->setSelectionBehavior(QAbstractItemView::SelectRows);
    roles_->horizontalHeader()->setSectionResizeMode(Role, QHeaderView::Stretch);
    roles_->setColumnWidth(Sexe, LargeurColonne);
    roles_->setColumnWidth(Obligatoire, LargeurColonne);
    type_->setObjectName(QStringLiteral("TxtTypeEvt"));
    SuivreLangue(*type_, SorteSaisie::Libelle);
    ajouterRole_->setObjectName(QStringLiteral("CmdRoleAjt"));
    ajouterRole_->setIcon(Icone("Ajouter"));
    retirerRole_->setObjectName(QStringLiteral("CmdRoleSup"));
    retirerRole_->setIcon(Icone("Retirer"));
    const auto etiquette = [this](const char* nom, QWidget* pour) {
        auto* texte = new QLabel{this};
        texte->setObjectName(QString::fromUtf8(nom));
        texte->setBuddy(pour);
        return texte;
    };
    auto* gauche = new QVBoxLayout;
    gauche->addWidget(etiquette("LblTypesEvt", &types_->Liste()));
    gauche->addWidget(types_);
    auto* rangType = new QHBoxLayout;
    rangType->addWidget(etiquette("LblTypeEvt", type_));
    rangType->addWidget(type_);
    gauche->addLayout(rangType);
    auto* droite = new QVBoxLayout;
    droite->addWidget(etiquette("LblRoles", roles_));
    droite->addWidget(roles_);
    auto* rangRoles = new QHBoxLayout;
    rangRoles->addWidget(ajouterRole_);
    rangRoles->addWidget(retirerRole_);
    rangRoles->addStretch();
    droite->addLayout(rangRoles);
    auto* rang = new QHBoxLayout{this};
    rang->addLayout(gauche, 2);
    rang->addLayout(droite, 3);
    connect(&types_->Liste(), &QListWidget::currentRowChanged, this,
            &ParametreEvenements::MontrerRoles);
    connect(types_, &ListeOrdonnee::ajoutDemande, this, &ParametreEvenements::AjouterType);
    connect(type_, &QLineEdit::returnPressed, this, &ParametreEvenements::AjouterType);
    connect(ajouterRole_, &QToolButton::clicked, this, [this] {
        AjouterRole({false, dorvane::Sexe::Vide, {}});
        roles_->setCurrentCell(roles_->rowCount() - 1, Role);
        roles_->cellWidget(roles_->rowCount() - 1, Role)->setFocus();
    });
    connect(retirerRole_, &QToolButton::clicked, this, [this] {
        if (roles_->currentRow() >= 0) roles_->removeRow(roles_->currentRow());
    });
}

std::string ParametreEvenements::Neutre(const QString& texte, std::size_t& remplaces) const {
    const std::string octets = LireChamp(texte, remplaces);
    return shell::TagDeLibelle(S().catalogue, SansBlancs(octets));
}

QString ParametreEvenements::Affiche(const std::string& neutre) const {
    return TexteVersQt(shell::LibelleDeTag(S().catalogue, neutre));
}

void ParametreEvenements::Traduire() {
    GarderRoles(remplaces_);
    roles_->setHorizontalHeaderLabels({TexteEcran(S(), message::ColonneRoleReglages),
                                       TexteEcran(S(), message::ColonneSexeReglages),
                                       TexteEcran(S(), message::ColonneObligatoireReglages)});
    ListerTypes(std::max(0, types_->Liste().currentRow()));
}

/// The rows carry the place of their kind in `evenements_`.
void ParametreEvenements::ListerTypes(int rang) {
    montre_ = -1;
    QList<ListeOrdonnee::Entree> entrees;
    for (std::size_t i = 0; i < evenements_.size(); ++i)
        entrees << ListeOrdonnee::Entree{Affiche(evenements_[i].type), static_cast<int>(i)};
    types_->Poser(entrees);
    types_->Liste().setCurrentRow(rang);
    MontrerRoles();
}

void ParametreEvenements::AjouterType() {
    std::size_t remplaces = 0;
    const std::string type = Neutre(type_->text(), remplaces);
    if (type.empty() || !AccepterRemplaces(S(), remplaces)) return type_->setFocus();
    // A kind that is there already is shown.
    const QList<ListeOrdonnee::Entree> entrees = types_->Entrees();
    for (int i = 0; i < entrees.size(); ++i)
        if (Replie(evenements_[static_cast<std::size_t>(entrees[i].valeur.toInt())].type) ==
            Replie(type)) {
            types_->Liste().setCurrentRow(i);
            return type_->selectAll();
        }
    GarderRoles(remplaces_);
    evenements_.push_back({type, {{true, dorvane::Sexe::Vide, "MAIN"}}});
    types_->Ajouter({Affiche(type), static_cast<int>(evenements_.size()) - 1});
    type_->clear();
}

bool ParametreEvenements::MotEnAttente() const {
    return !type_->text().trimmed().isEmpty();
}

void ParametreEvenements::VerserMot() {
    AjouterType();
}

void ParametreEvenements::AjouterRole(const shell::RoleEvenement& role) {
    const int ligne = roles_->rowCount();
    roles_->insertRow(ligne);
    auto* libelle = new QComboBox;
    libelle->setEditable(true);
    libelle->setFrame(false);
    SuivreLangue(*libelle->lineEdit(), SorteSaisie::Libelle);
    libelle->setAccessibleName(TexteEcran(S(), message::ColonneRoleReglages));
    for (const std::string& mot :
         records::ListerMotsUsuels(S(), shell::LibelleDeTag(S().catalogue, tag::Relation)))
        libelle->addItem(TexteVersQt(mot));
    libelle->setEditText(Affiche(role.label));
    auto* sexe = new QComboBox;
    sexe->setFrame(false);
    sexe->setAccessibleName(TexteEcran(S(), message::ColonneSexeReglages));
    for (const NoMessage message :
         {message::RoleSexeIndifferent, message::RoleSexeHomme, message::RoleSexeFemme})
        sexe->addItem(TexteEcran(S(), message));
    sexe->setCurrentIndex(static_cast<int>(std::ranges::find(Sexes, role.sexe) - Sexes.begin()) %
                          3);
    auto* obligatoire = new QCheckBox;
    obligatoire->setChecked(role.principal);
    // An empty box would not show on the ground of a dark table.
    obligatoire->setAutoFillBackground(true);
    obligatoire->setAccessibleName(TexteEcran(S(), message::ColonneObligatoireReglages));
    roles_->setCellWidget(ligne, Role, libelle);
    roles_->setCellWidget(ligne, Sexe, sexe);
    roles_->setCellWidget(ligne, Obligatoire, obligatoire);
}

void ParametreEvenements::GarderRoles(std::size_t& remplaces) {
    if (montre_ < 0 || static_cast<std::size_t>(montre_) >= evenements_.size()) return;
    std::vector<shell::RoleEvenement> roles;
    for (int i = 0; i < roles_->rowCount(); ++i) {
        const auto* libelle = qobject_cast<QComboBox*>(roles_->cellWidget(i, Role));
        const auto* sexe = qobject_cast<QComboBox*>(roles_->cellWidget(i, Sexe));
        const auto* obligatoire = qobject_cast<QCheckBox*>(roles_->cellWidget(i, Obligatoire));
        const std::string label = Neutre(libelle->currentText(), remplaces);
        if (!label.empty())
            roles.push_back({obligatoire->isChecked(),
                             Sexes[static_cast<std::size_t>(std::max(0, sexe->currentIndex()))],
                             label});
    }
    evenements_[static_cast<std::size_t>(montre_)].roles = std::move(roles);
}

void ParametreEvenements::MontrerRoles() {
    GarderRoles(remplaces_);
    const QListWidgetItem* type = types_->Liste().currentItem();
    montre_ = type == nullptr ? -1 : type->data(Qt::UserRole).toInt();
    roles_->setRowCount(0);
    if (montre_ < 0) return;
    for (const shell::RoleEvenement& role : evenements_[static_cast<std::size_t>(montre_)].roles)
        AjouterRole(role);
}

void ParametreEvenements::Charger(const shell::Reglages& r) {
    montre_ = -1;
    remplaces_ = 0;
    evenements_ = r.evenements;
    ListerTypes(0);
}

std::size_t ParametreEvenements::Lire(shell::Reglages& r) {
    // What is on the screen belongs to the kind that is shown.
    std::size_t remplaces = remplaces_;
    GarderRoles(remplaces);
    r.evenements.clear();
    for (const ListeOrdonnee::Entree& entree : types_->Entrees())
        r.evenements.push_back(evenements_[static_cast<std::size_t>(entree.valeur.toInt())]);
    return remplaces;
}

}  // namespace dorvane::windows
