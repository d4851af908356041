#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include "messages/Dorvane.h"
#include "messages/Reglages.h"
#include "shell/Session.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/graphe/PaletteGraphe.h"
#include "windows/reglages/PagesParametre.h"

#include <iterator>

namespace dorvane::windows {

namespace {

enum Colonnes { Police, Taille, Cases, Proportionnel, NbColonnes };
constexpr NoMessage Presentations[] = {
    message::MenuPresentationGrandesCases, message::MenuPresentationCasesMoyennes,
    message::MenuPresentationPetitesCases, message::MenuPresentationUneLigne};
constexpr int NbPresentations = static_cast<int>(std::size(Presentations));
constexpr int Pastille = 16;

template <class Controle>
Controle* Cellule(const QTableWidget& table, int ligne, int colonne) {
    return qobject_cast<Controle*>(table.cellWidget(ligne, colonne));
}

QSpinBox* Nombre(int de, int a) {
    auto* champ = new QSpinBox;
    champ->setRange(de, a);
    champ->setFrame(false);
    return champ;
}

/// The way back of `CouleurDe`.
std::uint32_t NombreDe(const QColor& couleur) {
    return static_cast<std::uint32_t>(couleur.red()) |
           static_cast<std::uint32_t>(couleur.green()) << 8U |
           static_cast<std::uint32_t>(couleur.blue()) << 16U;
}

}  // namespace

ParametreGraphe::ParametreGraphe(shell::Session& session, QWidget* parent)
    : PageParametre{session, parent},
      presentation_{new QComboBox{this}},
      table_{new QTableWidget{NbPresentations, NbColonnes, this}},
      degrade_{new QCheckBox{this}},
      parente_{Nombre(1, 99)},
      nouvelles_{new QCheckBox{this}} {
    auto* colonne = new QVBoxLayout{this};
    auto* formulaire = new QFormLayout;
    auto* etiquette = new QLabel{this};
    etiquette->setObjectName(QStringLiteral("LblPrésentation"));
    etiquette->setBuddy(presentation_);
    presentation_->setObjectName(QStringLiteral("CboPrésentation"));
    formulaire->addRow(etiquette, presentation_);
    colonne->addLayout(formulaire);
    FaireTable();
    colonne->addWidget(table_);

    auto* groupe = new QGroupBox{this};
    groupe->setObjectName(QStringLiteral("GrpCouleurs"));
    auto* grille = new QGridLayout{groupe};
    for (int i = 0; i < 3; ++i)
        grille->setColumnStretch(i, 1);
    auto* aide = new QLabel{groupe};
    aide->setObjectName(QStringLiteral("LblAideCouleurs"));
    aide->setWordWrap(true);
    grille->addWidget(aide, 0, 0, 1, 4);
    for (std::size_t i = 0; i < boutons_.size(); ++i) {
        boutons_[i] = new QPushButton{groupe};
        boutons_[i]->setObjectName(QStringLiteral("CmdCouleur%1").arg(i));
        boutons_[i]->setAutoDefault(false);
        grille->addWidget(boutons_[i], 1 + static_cast<int>(i / 3), static_cast<int>(i % 3));
        connect(boutons_[i], &QPushButton::clicked, this, [this, i] { ChoisirCouleur(i); });
    }
    degrade_->setObjectName(QStringLiteral("ChkDégradé"));
    grille->addWidget(degrade_, 3, 1);
    colonne->addWidget(groupe);

    auto* bas = new QFormLayout;
    auto* profondeur = new QLabel{this};
    profondeur->setObjectName(QStringLiteral("LblParenté"));
    parente_->setObjectName(QStringLiteral("SpnParenté"));
    parente_->setFrame(true);
    parente_->setMaximumWidth(90);
    profondeur->setBuddy(parente_);
    bas->addRow(profondeur, parente_);
    colonne->addLayout(bas);
    nouvelles_->setObjectName(QStringLiteral("ChkNouvelles"));
    colonne->addWidget(nouvelles_);
    colonne->addStretch();
}

void ParametreGraphe::FaireTable() {
    table_->setObjectName(QStringLiteral("TblPrésentations"));
    table_->setTabKeyNavigation(false);
    table_->setSelectionMode(QAbstractItemView::NoSelection);
    table_->setFocusPolicy(Qt::NoFocus);
    table_->horizontalHeader()->setSectionResizeMode(Police, QHeaderView::Stretch);
    for (int i = 0; i < NbPresentations; ++i) {
        auto* police = new QFontComboBox;
        police->setFrame(false);
        table_->setCellWidget(i, Police, police);
        table_->setCellWidget(i, Taille, Nombre(4, 72));
        table_->setCellWidget(i, Cases, Nombre(1, 512));
        auto* proportionnel = new QCheckBox;
        // An empty box would not show on the ground of a dark table.
        proportionnel->setAutoFillBackground(true);
        table_->setCellWidget(i, Proportionnel, proportionnel);
    }
    table_->resizeRowsToContents();
    table_->setFixedHeight(table_->horizontalHeader()->sizeHint().height() +
                           NbPresentations * table_->rowHeight(0) + 2 * table_->frameWidth());
    connect(presentation_, &QComboBox::currentIndexChanged, this, [this](int rang) {
        if (rang >= 0) affichage_.typePresentation = rang + 1;
    });
}

std::array<std::uint32_t*, 7> ParametreGraphe::Couleurs(shell::Affichage& a) {
    return {&a.couleurCadreHomme,  &a.couleurCadreFemme,  &a.couleurCadreIndetermine,
            &a.couleurPoliceHomme, &a.couleurPoliceFemme, &a.couleurPoliceIndetermine,
            &a.couleurFond};
}

void ParametreGraphe::ChoisirCouleur(std::size_t rang) {
    std::uint32_t& couleur = *Couleurs(affichage_)[rang];
    const QColor choisie =
        QColorDialog::getColor(CouleurDe(couleur), this, SansMnemonique(boutons_[rang]->text()));
    if (!choisie.isValid()) return;
    couleur = NombreDe(choisie);
    MontrerCouleur(rang);
}

void ParametreGraphe::MontrerCouleur(std::size_t rang) {
    QPixmap image{Pastille, Pastille};
    image.fill(CouleurDe(*Couleurs(affichage_)[rang]));
    boutons_[rang]->setIcon(QIcon{image});
}

void ParametreGraphe::Traduire() {
    const int rang = presentation_->currentIndex();
    presentation_->clear();
    QStringList lignes;
    for (const NoMessage presentation : Presentations) {
        lignes << SansMnemonique(TexteEcran(S(), presentation));
        presentation_->addItem(lignes.last());
    }
    presentation_->setCurrentIndex(rang);
    table_->setVerticalHeaderLabels(lignes);
    table_->setHorizontalHeaderLabels(
        {TexteEcran(S(), message::ColonnePolice), TexteEcran(S(), message::ColonneTaillePolice),
         TexteEcran(S(), message::ColonneCases), TexteEcran(S(), message::ColonneProportionnel)});
    for (int i = 0; i < NbPresentations; ++i)
        for (int colonne = 0; colonne < NbColonnes; ++colonne)
            table_->cellWidget(i, colonne)
                ->setAccessibleName(lignes[i] + u' ' +
                                    table_->horizontalHeaderItem(colonne)->text());
}

void ParametreGraphe::Charger(const shell::Reglages& r) {
    affichage_ = r.affichage;
    presentation_->setCurrentIndex(affichage_.typePresentation - 1);
    for (int i = 0; i < NbPresentations; ++i) {
        const shell::Presentation& p = affichage_.presentations[static_cast<std::size_t>(i)];
        Cellule<QFontComboBox>(*table_, i, Police)->setEditText(TexteVersQt(p.nomPolice));
        Cellule<QSpinBox>(*table_, i, Taille)->setValue(p.taillePolice);
        Cellule<QSpinBox>(*table_, i, Cases)->setValue(p.nombreCases);
        Cellule<QCheckBox>(*table_, i, Proportionnel)->setChecked(p.proportionnel);
    }
    for (std::size_t i = 0; i < boutons_.size(); ++i)
        MontrerCouleur(i);
    degrade_->setChecked(affichage_.degrade);
    parente_->setValue(affichage_.maximumRechercheParente);
    nouvelles_->setVisible(S().BaseOuverte());
}

std::size_t ParametreGraphe::Lire(shell::Reglages& r) {
    std::size_t remplaces = 0;
    r.affichage = affichage_;
    for (int i = 0; i < NbPresentations; ++i) {
        shell::Presentation& p = r.affichage.presentations[static_cast<std::size_t>(i)];
        p.nomPolice =
            LireChamp(Cellule<QFontComboBox>(*table_, i, Police)->currentText(), remplaces);
        p.taillePolice = Cellule<QSpinBox>(*table_, i, Taille)->value();
        p.nombreCases = Cellule<QSpinBox>(*table_, i, Cases)->value();
        p.proportionnel = Cellule<QCheckBox>(*table_, i, Proportionnel)->isChecked();
    }
    r.affichage.degrade = degrade_->isChecked();
    r.affichage.maximumRechercheParente = parente_->value();
    r.pourNouvelles = nouvelles_->isChecked();
    return remplaces;
}

}  // namespace dorvane::windows
