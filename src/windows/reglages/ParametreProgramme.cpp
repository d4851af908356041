#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

#include "messages/Reglages.h"
#include "shell/Session.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ListeOrdonnee.h"
#include "windows/controles/Unicode.h"
#include "windows/reglages/PagesParametre.h"

#include <algorithm>

namespace dorvane::windows {

namespace {

struct Ordre {
    const char* valeur;
    NoMessage nom;
};
constexpr std::array<Ordre, 5> Ordres{{{"dd/mm/yyyy", message::OrdreDateJourMoisAnnee},
                                       {"mm/dd/yyyy", message::OrdreDateMoisJourAnnee},
                                       {"yyyy/mm/dd", message::OrdreDateAnneeMoisJour},
                                       {"yyyy/dd/mm", message::OrdreDateAnneeJourMois},
                                       {"mm/yyyy/dd", message::OrdreDateMoisAnneeJour}}};
constexpr int FrequenceAuPlus = 1440;

}  // namespace

ParametreProgramme::ParametreProgramme(shell::Session& session,
                                       const std::vector<BoutonIcone>& offerts, QWidget* parent)
    : PageParametre{session, parent},
      frequence_{new QSpinBox{this}},
      ordre_{new QComboBox{this}},
      triImport_{new QCheckBox{this}},
      jeu_{new QComboBox{this}},
      barreIcones_{new QCheckBox{this}},
      barreFenetres_{new QCheckBox{this}},
      icones_{new ListeOrdonnee{QStringLiteral("LstIcones"), this}},
      boutons_{new QComboBox{this}},
      offerts_{offerts} {
    auto* colonne = new QVBoxLayout{this};
    auto* dossiers = new QGroupBox{this};
    dossiers->setObjectName(QStringLiteral("GrpDossiers"));
    auto* grille = new QGridLayout{dossiers};
    travail_ = FaireChemin(dossiers, "Travail", "CmdTravail", true, "");
    communes_ = FaireChemin(dossiers, "Communes", "CmdCommunes", false, "*.lgx *.LGX");
    geneanet_ = FaireChemin(dossiers, "Généanet", "CmdGeneanet", false, "généanet (ged2gen.bat)");
    int ligne = 0;
    for (const char* nom : {"Travail", "Communes", "Généanet"}) {
        const QString q = QString::fromUtf8(nom);
        grille->addWidget(dossiers->findChild<QLabel*>(QStringLiteral("Lbl") + q), ligne, 0);
        grille->addWidget(dossiers->findChild<QLineEdit*>(QStringLiteral("Txt") + q), ligne, 1);
        grille->addWidget(dossiers->findChildren<QPushButton*>().at(ligne), ligne, 2);
        ++ligne;
    }
    auto* formulaire = new QFormLayout;
    const auto rangee = [this, formulaire](const char* nom, QWidget* champ, const char* controle) {
        auto* etiquette = new QLabel{this};
        etiquette->setObjectName(QString::fromUtf8(nom));
        etiquette->setBuddy(champ);
        champ->setObjectName(QString::fromUtf8(controle));
        formulaire->addRow(etiquette, champ);
    };
    frequence_->setRange(1, FrequenceAuPlus);
    frequence_->setMaximumWidth(110);
    rangee("LblFréquence", frequence_, "SpnFréquence");
    rangee("LblOrdreDate", ordre_, "CboOrdreDate");
    triImport_->setObjectName(QStringLiteral("ChkTriImport"));
    formulaire->addRow(QString{}, triImport_);
    // Names of sets are the same in every language.
    jeu_->addItems({QStringLiteral("ASCII"), QStringLiteral("ANSI"), QStringLiteral("ANSEL"),
                    QStringLiteral("HTML"), QStringLiteral("UTF-8")});
    rangee("LblJeu", jeu_, "CboJeu");

    auto* barres = new QGroupBox{this};
    barres->setObjectName(QStringLiteral("GrpBarres"));
    auto* rangBarres = new QVBoxLayout{barres};
    barreIcones_->setObjectName(QStringLiteral("ChkBarreIcones"));
    barreFenetres_->setObjectName(QStringLiteral("ChkBarreFenêtres"));
    boutons_->setObjectName(QStringLiteral("CboBouton"));
    icones_->Liste().setMaximumHeight(130);
    for (QWidget* widget : {static_cast<QWidget*>(barreIcones_), static_cast<QWidget*>(boutons_),
                            static_cast<QWidget*>(icones_), static_cast<QWidget*>(barreFenetres_)})
        rangBarres->addWidget(widget);
    colonne->addWidget(dossiers);
    colonne->addLayout(formulaire);
    colonne->addWidget(barres);
    colonne->addStretch();
    connect(icones_, &ListeOrdonnee::ajoutDemande, this, &ParametreProgramme::AjouterIcone);
}

/// A label, a field and a button that opens the file dialog. `filtre` names what is looked for; of
/// a file named there, the hand-over keeps the folder.
QLineEdit* ParametreProgramme::FaireChemin(QWidget* ligne, const char* nom, const char* bouton,
                                           bool dossier, const char* filtre) {
    const QString q = QString::fromUtf8(nom);
    auto* etiquette = new QLabel{ligne};
    etiquette->setObjectName(QStringLiteral("Lbl") + q);
    auto* champ = new QLineEdit{ligne};
    champ->setObjectName(QStringLiteral("Txt") + q);
    etiquette->setBuddy(champ);
    auto* parcourir = new QPushButton{QStringLiteral("…"), ligne};
    parcourir->setObjectName(QString::fromLatin1(bouton));
    parcourir->setAutoDefault(false);
    const QString motif = QString::fromUtf8(filtre);
    connect(parcourir, &QPushButton::clicked, this, [this, champ, etiquette, dossier, motif] {
        const QString titre = SansMnemonique(etiquette->text());
        QString choisi = dossier ? QFileDialog::getExistingDirectory(this, titre, champ->text())
                                 : QFileDialog::getOpenFileName(this, titre, champ->text(), motif);
        if (choisi.endsWith(u"/ged2gen.bat", Qt::CaseInsensitive))
            choisi.chop(static_cast<int>(std::char_traits<char>::length("/ged2gen.bat")));
        if (!choisi.isEmpty()) champ->setText(choisi);
    });
    return champ;
}

void ParametreProgramme::FaireBoutons() {
    const int rang = boutons_->currentIndex();
    boutons_->clear();
    boutons_->addItem(TexteEcran(S(), message::TraitDeSeparation), SeparateurIcones);
    for (const BoutonIcone& bouton : offerts_)
        boutons_->addItem(Icone(bouton.commande), SansMnemonique(TexteEcran(S(), bouton.legende)),
                          bouton.no);
    boutons_->setCurrentIndex(std::max(0, rang));
}

void ParametreProgramme::AjouterIcone() {
    icones_->Ajouter({boutons_->currentText(), boutons_->currentData()});
    icones_->Liste().currentItem()->setIcon(boutons_->itemIcon(boutons_->currentIndex()));
}

void ParametreProgramme::Traduire() {
    FaireBoutons();
    const int rang = ordre_->currentIndex();
    ordre_->clear();
    for (const Ordre& ordre : Ordres)
        ordre_->addItem(TexteEcran(S(), ordre.nom), QLatin1String{ordre.valeur});
    ordre_->setCurrentIndex(rang);
    frequence_->setSuffix(u' ' + TexteEcran(S(), message::UniteMinutes));
}

void ParametreProgramme::Charger(const shell::Reglages& r) {
    travail_->setText(CheminVersQt(r.generaux.travail));
    communes_->setText(CheminVersQt(r.generaux.fichierCommunes));
    geneanet_->setText(CheminVersQt(r.generaux.geneanet));
    frequence_->setValue(r.generaux.frequenceSauvegarde);
    ordre_->setCurrentIndex(
        std::max(0, ordre_->findData(QString::fromStdString(r.generaux.ordreDate))));
    triImport_->setChecked(r.generaux.triImport);
    jeu_->setCurrentIndex(
        std::clamp(QString::fromStdString(r.generaux.jeuExport).toInt(), 0, jeu_->count() - 1));
    barreIcones_->setChecked(r.generaux.barreMenus);
    barreFenetres_->setChecked(r.generaux.barreFenetres);
    icones_->Poser({});
    for (const QString& no :
         QString::fromStdString(r.generaux.icones).split(u',', Qt::SkipEmptyParts)) {
        // Numbers of functions that are not there yet stay in the settings.
        const int rang = boutons_->findData(no.trimmed().toInt());
        icones_->Ajouter(
            {rang < 0 ? no.trimmed() : boutons_->itemText(rang), no.trimmed().toInt()});
        if (rang < 0)
            icones_->Liste().currentItem()->setHidden(true);
        else
            icones_->Liste().currentItem()->setIcon(boutons_->itemIcon(rang));
    }
    icones_->Liste().setCurrentRow(0);
}

std::size_t ParametreProgramme::Lire(shell::Reglages& r) {
    r.generaux.travail = QtVersChemin(travail_->text().trimmed());
    r.generaux.fichierCommunes = QtVersChemin(communes_->text().trimmed());
    r.generaux.geneanet = QtVersChemin(geneanet_->text().trimmed());
    r.generaux.frequenceSauvegarde = frequence_->value();
    r.generaux.ordreDate = ordre_->currentData().toString().toStdString();
    r.generaux.triImport = triImport_->isChecked();
    r.generaux.jeuExport = std::to_string(jeu_->currentIndex());
    r.generaux.barreMenus = barreIcones_->isChecked();
    r.generaux.barreFenetres = barreFenetres_->isChecked();
    QStringList numeros;
    for (const ListeOrdonnee::Entree& entree : icones_->Entrees())
        numeros << entree.valeur.toString();
    r.generaux.icones = numeros.join(u',').toStdString();
    return 0;
}

}  // namespace dorvane::windows
