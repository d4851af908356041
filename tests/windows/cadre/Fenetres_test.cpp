#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>

#include "windows/Essai.h"
#include "windows/cadre/DialogueQt.h"
#include "windows/cadre/FrmCalendrier.h"
#include "windows/cadre/ImageGraphe.h"
#include "windows/communes/FrmCommune.h"
#include "windows/controles/FrmRapport.h"
#include "windows/controles/FrmTexte.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/echange/FrmExporter.h"
#include "windows/echange/FrmReleve.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/faits/FrmLstEvt.h"
#include "windows/faits/FrmLstImage.h"
#include "windows/faits/FrmUtilImage.h"
#include "windows/fiche/FrmMisajour.h"
#include "windows/graphe/FrmPalette.h"
#include "windows/mots/FrmMot.h"
#include "windows/mots/FrmMotCle.h"
#include "windows/mots/FrmUsuels.h"
#include "windows/personnes/FrmConjoints.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmEnfants.h"
#include "windows/personnes/FrmLiens.h"
#include "windows/personnes/FrmNom.h"
#include "windows/personnes/FrmNouveauLien.h"
#include "windows/personnes/FrmPere.h"
#include "windows/personnes/FrmRecherche.h"
#include "windows/personnes/ModeleNoms.h"
#include "windows/reglages/FrmParametre.h"
#include "windows/soin/FrmControle.h"

#include <map>
#include <memory>
#include <set>
#include <vector>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The calculator and its fields.
struct Calculateur : FenetreEssai {
    Calculateur() {
        Demarrer({});
        fenetre = std::make_unique<FrmCalendrier>(S(), &Fenetre());
        fenetre->setAttribute(Qt::WA_DeleteOnClose, false);
        fenetre->show();
    }
    template <class Controle>
    Controle& C(const char* nom) {
        auto* controle = fenetre->findChild<Controle*>(QString::fromUtf8(nom));
        REQUIRE(controle != nullptr);
        return *controle;
    }
    void Gregorien(const char* jour, int mois, const char* annee) {
        Saisir("T_JourG", "LstMoisG", "LstAnnéeG", jour, mois, annee);
    }
    void Republicain(const char* jour, int mois, const char* annee) {
        Saisir("T_JourR", "LstMoisR", "LstAnnéeR", jour, mois, annee);
    }
    QString LuG() { return Lu("T_JourG", "LstMoisG", "LstAnnéeG"); }
    QString LuR() { return Lu("T_JourR", "LstMoisR", "LstAnnéeR"); }

    std::unique_ptr<FrmCalendrier> fenetre;

private:
    void Saisir(const char* champJour, const char* champMois, const char* champAnnee,
                const char* jour, int mois, const char* annee) {
        C<QComboBox>(champMois).setCurrentIndex(mois - 1);
        C<QComboBox>(champAnnee).setCurrentText(QString::fromLatin1(annee));
        C<QLineEdit>(champJour).selectAll();
        QTest::keyClicks(&C<QLineEdit>(champJour), QString::fromLatin1(jour));
    }
    QString Lu(const char* jour, const char* mois, const char* annee) {
        return C<QLineEdit>(jour).text() + u' ' + C<QComboBox>(mois).currentText() + u' ' +
               C<QComboBox>(annee).currentText();
    }
};

/// All windows that have captions, in one place.
struct Toutes : FenetreEssai {
    Toutes() {
        DemarrerFamille();
        fenetres.emplace_back(new FrmNom{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmCommune{S(), &Fenetre()});
        fenetres.emplace_back(new FrmRapport{S(), {}, {}, &Fenetre()});
        fenetres.emplace_back(new FrmPalette{S(), Palette::Claire, &Fenetre()});
        fenetres.emplace_back(new FrmCalendrier{S(), &Fenetre()});
        fenetres.emplace_back(new FrmPere{S(), NoOrdre{3}, 'H', &Fenetre()});
        fenetres.emplace_back(new FrmEnfants{S(), NoOrdre{3}, &Fenetre()});
        fenetres.emplace_back(new FrmConjoints{S(), NoOrdre{3}, &Fenetre()});
        fenetres.emplace_back(new FrmLiens{S(), NoOrdre{3}, &Fenetre()});
        fenetres.emplace_back(new FrmNouveauLien{S(), NoOrdre{3}, NoOrdre{1}, &Fenetre()});
        fenetres.emplace_back(new FrmRecherche{S(), &Fenetre()});
        fenetres.emplace_back(new FrmControle{S(), &Fenetre()});
        fenetres.emplace_back(new FrmMisajour{S(), &Fenetre()});
        fenetres.emplace_back(new FrmCreation{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmDesEvt{S(), {}, {}, {}, &Fenetre()});
        fenetres.emplace_back(new FrmLstEvt{S(), &Fenetre()});
        fenetres.emplace_back(new FrmMot{S(), NoOrdre{3}, {}, &Fenetre()});
        fenetres.emplace_back(new FrmDesImage{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmLstImage{S(), &Fenetre()});
        fenetres.emplace_back(new FrmUtilImage{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmTexte{S(), &Fenetre()});
        fenetres.emplace_back(new FrmMotCle{S(), &Fenetre()});
        fenetres.emplace_back(new FrmUsuels{S(), &Fenetre()});
        fenetres.emplace_back(new FrmExporter{S(), &Fenetre()});
        fenetres.emplace_back(new FrmParametre{S(), BoutonsIcones(), &Fenetre()});
        fenetres.emplace_back(new FrmReleve{S(),
                                            interchange::SorteReleve::Bapteme,
                                            "1780;1;1;Mer;Dupont;Jean;?\n",
                                            {},
                                            &Fenetre()});
        for (FenetreFille* fille : fenetres) {
            parNom[fille->objectName()] = fille;
            // Parts that translate themselves have captions of their own.
            for (const Legende& legende : TableLegendes()) {
                const QString nom = QString::fromUtf8(legende.fenetre);
                if (auto* partie = fille->findChild<QWidget*>(nom)) parNom.emplace(nom, partie);
            }
        }
        parNom[QStringLiteral("MDIForm1")] = &Fenetre();
    }
    std::vector<FenetreFille*> fenetres;
    std::map<QString, QWidget*> parNom;
};

/// The letter of a mnemonic, in small; 0 when there is none.
QChar Mnemonique(const QString& texte) {
    for (qsizetype i = 0; i + 1 < texte.size(); ++i) {
        if (texte[i] != u'&') continue;
        if (texte[i + 1] != u'&') return texte[i + 1].toLower();
        ++i;
    }
    return {};
}

void VerifierMenu(const QMenu& menu) {
    std::set<QChar> lettres;
    for (const QAction* action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible()) continue;
        const QChar lettre = Mnemonique(action->text());
        // Names of persons and of languages have none.
        if (lettre.isNull()) continue;
        CAPTURE(action->text());
        CHECK(lettres.insert(lettre).second);
    }
}

/// What of a window can be seen at once.
void VerifierPage(const QWidget& fenetre) {
    std::set<QChar> lettres;
    const auto prendre = [&lettres, &fenetre](const QString& texte, const QWidget* controle) {
        const QChar lettre = Mnemonique(texte);
        if (lettre.isNull() || (controle != nullptr && !controle->isVisibleTo(&fenetre))) return;
        CAPTURE(texte.toStdString());
        CHECK(lettres.insert(lettre).second);
    };
    if (const auto* barre = fenetre.findChild<QMenuBar*>())
        for (const QAction* action : barre->actions())
            prendre(action->text(), nullptr);
    for (const QLabel* etiquette : fenetre.findChildren<QLabel*>())
        if (etiquette->window() == &fenetre) prendre(etiquette->text(), etiquette);
    for (const QAbstractButton* bouton : fenetre.findChildren<QAbstractButton*>())
        if (bouton->window() == &fenetre && !bouton->inherits("QToolButton"))
            prendre(bouton->text(), bouton);
}

void VerifierMnemoniques(QWidget& fenetre) {
    // The pages of a dialog are there one at a time.
    if (auto* onglets = fenetre.findChild<QTabWidget*>()) {
        for (int i = 0; i < onglets->count(); ++i) {
            onglets->setCurrentIndex(i);
            VerifierPage(fenetre);
        }
    } else if (auto* pages = fenetre.findChild<QStackedWidget*>(QStringLiteral("Pages"))) {
        for (int i = 0; i < pages->count(); ++i) {
            pages->setCurrentIndex(i);
            VerifierPage(fenetre);
        }
    } else {
        VerifierPage(fenetre);
    }
    for (const QMenu* menu : fenetre.findChildren<QMenu*>())
        VerifierMenu(*menu);
}

}  // namespace

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: the other date follows while one is typed") {
    CHECK_FALSE(fenetre->isModal());
    Gregorien("22", 9, "1792");
    CHECK(LuR() == QStringLiteral("1 Vendémiaire I"));
    Gregorien("1", 1, "1793");
    CHECK(LuR() == QStringLiteral("12 Nivôse I"));
    Republicain("1", 1, "I");
    CHECK(LuG() == "22 septembre 1792");
    Republicain("6", 13, "IV");
    CHECK(LuG() == "22 septembre 1796");
}

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: the buttons convert as well") {
    Gregorien("9", 11, "1799");
    C<QLineEdit>("T_JourR").clear();
    QTest::mouseClick(&C<QPushButton>("CmdGR"), Qt::LeftButton);
    CHECK(LuR() == "18 Brumaire VIII");
    C<QLineEdit>("T_JourG").clear();
    QTest::mouseClick(&C<QPushButton>("CmdRG"), Qt::LeftButton);
    CHECK(LuG() == "9 novembre 1799");
}

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: what is refused is told beside its field") {
    auto& jourG = C<QLabel>("LblRefusJourG");
    auto& jourR = C<QLabel>("LblRefusJourR");
    Gregorien("32", 1, "1800");
    CHECK(jourG.text() == QStringLiteral("Le jour doit être compris entre 1 et 31."));
    Gregorien("31", 1, "1800");
    CHECK(jourG.text().isEmpty());
    Republicain("31", 1, "II");
    CHECK(jourR.text() == QStringLiteral("Le jour doit être compris entre 1 et 30."));
    CHECK(jourG.text().isEmpty());
    Republicain("x", 1, "II");
    CHECK_FALSE(jourR.text().isEmpty());

    // Nothing is told before a button asks for what is still missing.
    C<QComboBox>("LstMoisG").setCurrentIndex(-1);
    CHECK(C<QLabel>("LblRefusMoisG").text().isEmpty());
    QTest::mouseClick(&C<QPushButton>("CmdGR"), Qt::LeftButton);
    CHECK(C<QLabel>("LblRefusMoisG").text() == "Choisissez un mois dans la liste.");
    C<QComboBox>("LstMoisG").setCurrentIndex(0);
    C<QComboBox>("LstAnnéeG").setCurrentIndex(-1);
    QTest::mouseClick(&C<QPushButton>("CmdGR"), Qt::LeftButton);
    CHECK(C<QLabel>("LblRefusAnnéeG").text() ==
          QStringLiteral("Choisissez une année dans la liste."));
}

TEST_CASE_FIXTURE(Calculateur,
                  "FrmCalendrier: a year outside the lists leaves its list without a choice") {
    Gregorien("1", 1, "1792");
    CHECK(C<QComboBox>("LstAnnéeR").currentIndex() == -1);
    CHECK_FALSE(C<QLineEdit>("T_JourR").text().isEmpty());
    CHECK_FALSE(C<QLabel>("LblRefusAnnéeR").text().isEmpty());
    Republicain("1", 5, "XIV");
    CHECK(C<QComboBox>("LstAnnéeG").currentIndex() == -1);
    CHECK(C<QLineEdit>("T_JourG").text() == "20");
}

TEST_CASE_FIXTURE(Calculateur, "FrmCalendrier: months keep their place when the language changes") {
    Gregorien("22", 9, "1792");
    REQUIRE(shell::ChoisirLangue(S(), "English"));
    fenetre->Traduire();
    CHECK(LuG() == "22 September 1792");
    CHECK(C<QComboBox>("LstMoisG").count() == 12);
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK_FALSE(fenetre->isVisible());
}

TEST_CASE_FIXTURE(Toutes, "Legendes: every caption has its control, and a text in both languages") {
    for (const char* langue : {"Français", "English"}) {
        REQUIRE(shell::ChoisirLangue(S(), langue));
        for (const Legende& legende : TableLegendes()) {
            CAPTURE(std::string{legende.fenetre});
            CAPTURE(std::string{legende.controle});
            const auto fenetre = parNom.find(QString::fromUtf8(legende.fenetre));
            REQUIRE(fenetre != parNom.end());
            const QString nom = QString::fromUtf8(legende.controle);
            CHECK((nom.isEmpty() || fenetre->second->findChild<QObject*>(nom) != nullptr));
            CHECK_FALSE(S().Message(legende.message).empty());
        }
    }
}

TEST_CASE_FIXTURE(Toutes, "Legendes: no mnemonic stands twice in a window or a menu") {
    for (const char* langue : {"Français", "English"}) {
        REQUIRE(shell::ChoisirLangue(S(), langue));
        Fenetre().Actualiser();
        for (FenetreFille* fille : fenetres)
            fille->Traduire();
        for (const auto& [nom, fenetre] : parNom) {
            if (!fenetre->isWindow()) continue;
            CAPTURE(nom.toStdString());
            VerifierMnemoniques(*fenetre);
        }
    }
}

TEST_CASE("TexteEcran: no-break spaces stand before double signs and inside quotes") {
    CHECK(TexteEcran(std::string{"« Oui » : 3 ?"_1252}) ==
          QStringLiteral("«\u00A0Oui\u00A0»\u00A0: 3\u00A0?"));
    CHECK(TexteEcran(std::string{"12:30, no?"}) == "12:30, no?");
    CHECK(SansMnemonique(QStringLiteral("&Ouvrir...")) == "Ouvrir");
    CHECK(SansMnemonique(QStringLiteral("Dupont && fils")) == "Dupont & fils");
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "FrmNom: typing narrows the list, and the count says what is hidden") {
    DemarrerFamille();
    FrmNom fenetre{S(), {NoOrdre{3}, {}, {}}, &Fenetre()};
    fenetre.show();
    auto* filtre = fenetre.findChild<QLineEdit*>(QStringLiteral("TxtFiltre"));
    auto* nombre = fenetre.findChild<QLabel*>(QStringLiteral("LblNombre"));
    auto* vide = fenetre.findChild<QLabel*>(QStringLiteral("LblVide"));
    auto* choisir = fenetre.findChild<QPushButton*>(QStringLiteral("CmdChoisir"));
    CHECK(fenetre.Choisie() == NoOrdre{3});
    CHECK(nombre->text() == QStringLiteral("Personnes\u00A0: 8"));
    QTest::keyClicks(filtre, QStringLiteral("EVRARD"));
    CHECK(nombre->text() == QStringLiteral("Personnes\u00A0: 1 sur 8"));
    CHECK(fenetre.Choisie() == NoOrdre{4});
    QTest::keyClicks(filtre, QStringLiteral(" 1825"));
    CHECK(fenetre.Choisie() == NoOrdre{4});
    QTest::keyClicks(filtre, QStringLiteral(" zz"));
    CHECK(fenetre.Choisie() == NoOrdre{});
    CHECK(vide->isVisible());
    CHECK(vide->text().contains(QStringLiteral("EVRARD 1825 zz")));
    CHECK_FALSE(choisir->isEnabled());
    filtre->clear();
    CHECK(nombre->text() == QStringLiteral("Personnes\u00A0: 8"));
    // The arrows walk in the list while the filter has the focus.
    QTest::keyClick(filtre, Qt::Key_PageUp);
    QTest::keyClick(filtre, Qt::Key_Down);
    CHECK(fenetre.Choisie() == NoOrdre{4});
    QTest::keyClick(filtre, Qt::Key_Return);
    CHECK(fenetre.result() == QDialog::Accepted);
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmNom: columns tell parents, sex and family in words as well") {
    DemarrerFamille();
    const ModeleNoms modele{S(), {NoOrdre{1}, NoOrdre{3}, NoOrdre{6}, NoOrdre{4}}, nullptr};
    const auto texte = [&](int rangee, int colonne, int role = Qt::DisplayRole) {
        return modele.data(modele.index(rangee, colonne), role).toString();
    };
    CHECK(modele.rowCount({}) == 4);
    CHECK(texte(0, ModeleNoms::Parents) == "xx");
    CHECK(texte(1, ModeleNoms::Parents).isEmpty());
    CHECK(texte(1, ModeleNoms::Parents, Qt::ToolTipRole) == QStringLiteral("Père et mère connus"));
    CHECK(texte(1, ModeleNoms::Sexe, Qt::ToolTipRole) == "Sexe masculin");
    CHECK(texte(1, ModeleNoms::Famille, Qt::ToolTipRole) == "Unions et enfants");
    CHECK(texte(2, ModeleNoms::Famille, Qt::ToolTipRole).isEmpty());
    CHECK(modele.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString() == "Nom");
    CHECK(modele.data(modele.index(9, 0), Qt::DisplayRole).isNull());
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmRapport: the report can be copied, saved and closed") {
    Demarrer({});
    auto* fenetre =
        new FrmRapport{S(), QStringLiteral("Rapport"), QStringLiteral("Été\nfin"), &Fenetre()};
    fenetre->show();
    const auto bouton = [&](const char* nom) {
        return fenetre->findChild<QPushButton*>(QString::fromLatin1(nom));
    };
    CHECK(fenetre->findChild<QPlainTextEdit*>()->isReadOnly());
    QTest::mouseClick(bouton("CmdCopier"), Qt::LeftButton);
    CHECK(QGuiApplication::clipboard()->text() == QStringLiteral("Été\nfin"));
    RepondreFichier(dossier / "rapport");
    QTest::mouseClick(bouton("CmdEnregistrer"), Qt::LeftButton);
    CHECK(doublures::LireFichier(dossier / "rapport.txt") == "Été\nfin\n");
    RepondreFichier({});
    QTest::mouseClick(bouton("CmdEnregistrer"), Qt::LeftButton);
    const QPointer<FrmRapport> suivi{fenetre};
    QTest::mouseClick(bouton("CmdFermer"), Qt::LeftButton);
    CHECK(QTest::qWaitFor([&] { return suivi.isNull(); }, 2000));
}

TEST_CASE("FiltresFichiers: pairs become filters that take both cases") {
    CHECK(FiltresFichiers(std::string{"Généalogie (*.lgd) |*.lgd|"_1252}).join(u'|') ==
          QStringLiteral("Généalogie (*.lgd *.LGD)"));
    CHECK(FiltresFichiers("Tous (*.ged;*.lgr)|*.ged;*.lgr|Texte|*.TXT").join(u'|') ==
          "Tous (*.ged *.GED *.lgr *.LGR)|Texte (*.txt *.TXT)");
    CHECK(FiltresFichiers("").isEmpty());
}

TEST_CASE("DialogueQt: a path that is not UTF-8 goes to the toolkit and comes back") {
    const std::filesystem::path accent{"/d/été.LGD"};
    CHECK(QtVersChemin(CheminVersQt(accent)) == accent);
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "ImagerFenetre: the chart of a base becomes a picture, or a refusal") {
    qputenv("DORVANE_PARTAGE", (dossier / "partage").c_str());
    qputenv("XDG_CONFIG_HOME", (dossier / "reglages").c_str());
    const std::filesystem::path sortie = dossier / "image.png";
    REQUIRE(ImagerFenetre({sortie, base, {640, 400}, false}));
    const QImage image{CheminVersQt(sortie)};
    CHECK(image.size() == QSize{640, 400});
    // Not a bare ground: the boxes of men are there.
    const QColor homme = FairePalette(PaletteDuBureau(), {}).homme.fond;
    int points = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            points += image.pixelColor(x, y) == homme ? 1 : 0;
    CHECK(points > 2000);
    CHECK_FALSE(ImagerFenetre({sortie, dossier / "absente.LGD", {640, 400}, false}));
    CHECK_FALSE(ImagerFenetre({dossier / "nulle/part.png", base, {640, 400}, false}));
}
