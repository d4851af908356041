#include "windows/fiche/FrmMisajour.h"

#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>

#include "records/AccordEvenements.h"
#include "records/Famille.h"
#include "records/Fiche.h"
#include "records/Individus.h"
#include "windows/FeuilleEssai.h"
#include "windows/controles/BoutonPersonne.h"
#include "windows/controles/EditeurNote.h"

#include <set>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

QString MarqueDe(QWidget& champ) {
    return champ.accessibleDescription();
}

}  // namespace

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: shows the person, the parents and what hangs on it") {
    CHECK(Texte("T_Nom") == "Martin");
    CHECK(Texte("T_Prénom") == "Paul");
    CHECK(Texte("T_Naiss") == "1820");
    CHECK(C<QRadioButton>("O_Sexe(0)").isChecked());
    CHECK(C<BoutonPersonne>("N_Père").Individu() == NoOrdre{1});
    CHECK(C<BoutonPersonne>("N_Mère").accessibleName() == "Rose Blanc (o1795)");
    CHECK(Liste("L_Conjoint").Lignes().size() == 2);
    CHECK(Liste("L_Enfants").Lignes().size() == 3);
    CHECK(Texte("T_Dmar") == "1850");
    CHECK(C<QTabWidget>("SSTab1").tabText(1) == "Unions et enfants (2, 3)");
    CHECK(fiche->windowTitle().startsWith("Fiche – Paul Martin (1820-1890)"));
    CHECK_FALSE(AEnregistrer());
    CHECK(S().PersonneFiche == NoOrdre{3});
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: a changed field is marked, Enter saves, the chart follows") {
    Taper("T_Prénom", "Pauline");
    CHECK_FALSE(MarqueDe(Champ("T_Prénom")).isEmpty());
    CHECK(MarqueDe(Champ("T_Nom")).isEmpty());
    CHECK(AEnregistrer());
    Entree();
    CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Pauline");
    CHECK(MarqueDe(Champ("T_Prénom")).isEmpty());
    CHECK_FALSE(AEnregistrer());
    CHECK(C<QPushButton>("C_Maj").text() == "Mis à jour");
    CHECK(fiche->windowTitle().contains("Pauline Martin"));
    CHECK_FALSE(B().marques.AffichagePerime);
    Taper("T_Prénom", "Paul");
    CHECK(C<QPushButton>("C_Maj").text() == "&Enregistrer");
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: typing back what was there leaves nothing to save") {
    Taper("T_Prénom", "Pa");
    CHECK(AEnregistrer());
    Frapper("ul");
    CHECK_FALSE(AEnregistrer());
    CHECK(MarqueDe(Champ("T_Prénom")).isEmpty());
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: Escape with changes asks; no drops them, yes saves them") {
    Taper("T_Prénom", "Pierre");
    SUBCASE("no") {
        const auto texte = RepondreBoite(QMessageBox::No);
        QTest::keyClick(fiche.get(), Qt::Key_Escape);
        CHECK(texte->startsWith("La fiche a été modifiée."));
        CHECK_FALSE(fiche->isVisible());
        CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Paul");
    }
    SUBCASE("yes") {
        RepondreBoite(QMessageBox::Yes);
        QTest::keyClick(fiche.get(), Qt::Key_Escape);
        CHECK_FALSE(fiche->isVisible());
        CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Pierre");
    }
    CHECK_FALSE(S().PersonneFiche);
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: Escape without changes closes without a question") {
    QTest::keyClick(fiche.get(), Qt::Key_Escape);
    CHECK_FALSE(fiche->isVisible());
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: a yes whose commit is refused keeps the sheet and what was typed") {
    Taper("T_Nom", "");
    Taper("T_Prénom", "");
    SurModal([](QWidget& boite) {
        RepondreBoite(QMessageBox::Ok);
        QTest::mouseClick(qobject_cast<QMessageBox*>(&boite)->button(QMessageBox::Yes),
                          Qt::LeftButton);
    });
    QTest::keyClick(fiche.get(), Qt::Key_Escape);
    CHECK(fiche->isVisible());
    CHECK(Texte("T_Naiss") == "1820");
    CHECK(fiche->focusWidget() == &Champ("T_Nom"));
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: the sex of a person with children goes back to what it was") {
    Taper("T_Prénom", "Pierre");
    QTest::mouseClick(&C<QRadioButton>("O_Sexe(1)"), Qt::LeftButton);
    const auto texte = RepondreBoite(QMessageBox::Ok);
    Cliquer("C_Maj");
    CHECK(texte->startsWith("Le sexe ne peut pas être changé"));
    CHECK(C<QRadioButton>("O_Sexe(0)").isChecked());
    CHECK(Texte("T_Prénom") == "Pierre");
    CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Paul");
}

TEST_CASE_FIXTURE(
    Feuille, "FrmMisajour: a missing birth year is told, saved all the same, and has the focus") {
    Taper("T_Naiss", "");
    const auto texte = RepondreBoite(QMessageBox::Ok);
    Entree();
    CHECK(*texte == "L'année de naissance n'est pas renseignée.");
    CHECK(B().R_NAISS.LireCellule(NoOrdre{3}).empty());
    CHECK(fiche->focusWidget() == &Champ("T_Naiss"));
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: names, dates and facts are typed with the keyboard alone") {
    Taper("TxtJNaiss", "14/7");
    QTest::keyClick(fiche->focusWidget(), Qt::Key_Tab);
    CHECK(Texte("TxtJNaiss") == QStringLiteral("14 juillet"));
    CHECK(C<QLabel>("LblJourNaiss").text() == "vendredi");
    Taper("TxtIndL(0)", "Meunier");
    Taper("TxtIndJ(1)", "vers 16 juillet");
    Taper("TxtIndA(1)", "1820");
    C<EditeurNote>("TxtInd").setFocus();
    QTest::keyClicks(&C<EditeurNote>("TxtInd"), "Une note");
    QTest::keyClick(&C<EditeurNote>("TxtInd"), Qt::Key_Return, Qt::ControlModifier);
    const records::SaisieFiche lue = records::ChargerFiche(S(), NoOrdre{3});
    CHECK(lue.jourMoisNaissance == "14 juillet");
    CHECK(lue.slots[0].lieu == "Meunier");
    CHECK(lue.slots[1] == storage::ValeurSlot{"vers 16 juillet", "1820", ""});
    CHECK(lue.note == "Une note");
    CHECK_FALSE(AEnregistrer());
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: the chart goes to the person of the sheet once it is saved") {
    REQUIRE(fiche->Ouvrir(NoOrdre{6}));
    CHECK(EnCours() == 3);
    Taper("T_Prénom", "Lucien");
    Entree();
    CHECK(EnCours() == 6);
    CHECK(fiche->Individu() == NoOrdre{6});
    CHECK(Texte("T_Prénom") == "Lucien");
}

TEST_CASE_FIXTURE(
    Feuille, "FrmMisajour: a field that is saved while one stands in it takes its form first") {
    S().parametres.base.conversionNom = "1";
    Taper("T_Nom", "durand");
    QTest::keyClick(fiche->focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    CHECK(B().R_NOM.NomDe(NoOrdre{3}) == "DURAND");
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: the next and the previous person without leaving the sheet") {
    const NoOrdre suivante = records::VoisinDansLOrdre(B(), NoOrdre{3}, 1);
    Cliquer("CmdSuivant");
    CHECK(fiche->Individu() == suivante);
    Cliquer("CmdPrécédent");
    CHECK(fiche->Individu() == NoOrdre{3});
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: what another window changes is shown, what is typed stays") {
    records::SaisieFiche autre = records::ChargerFiche(S(), NoOrdre{3});
    autre.anneeDeces = "1895";
    REQUIRE_FALSE(records::ValiderFiche(S(), autre).EstRefusee());
    SUBCASE("nothing typed") {
        fiche->Recharger();
        CHECK(Texte("T_Décès") == "1895");
    }
    SUBCASE("something typed") {
        Taper("T_Prénom", "Pierre");
        fiche->Recharger();
        CHECK(Texte("T_Prénom") == "Pierre");
        CHECK(AEnregistrer());
        // The other change is not taken back when this one is saved.
        CHECK(Texte("T_Décès") == "1895");
        Entree();
        CHECK(B().R_DECES.LireCellule(NoOrdre{3}) == "1895");
        CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Pierre");
    }
}

TEST_CASE_FIXTURE(
    Feuille,
    "FrmMisajour: a person with relatives is not deleted, one without is, after a question") {
    auto texte = RepondreBoite(QMessageBox::Ok);
    Cliquer("CmdSupprimer");
    CHECK(texte->endsWith("cette personne a des enfants."));
    records::SaisieFiche seule;
    seule.nom = "Seul";
    seule.anneeNaissance = "1800";
    REQUIRE_FALSE(records::CreerIndividu(S(), seule).EstRefusee());
    REQUIRE(fiche->Ouvrir(NoOrdre{9}));
    texte = RepondreBoite(QMessageBox::Yes);
    Cliquer("CmdSupprimer");
    CHECK(texte->contains("Seul (o1800)"));
    CHECK_FALSE(records::Existe(B(), NoOrdre{9}));
    CHECK(fiche->Individu() == S().PersonneEnCours);
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: characters that the base lacks are told before they are lost") {
    Taper("T_Prénom", "Ωmega");
    RepondreBoite(QMessageBox::No);
    Entree();
    CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Paul");
    CHECK(Texte("T_Prénom") == QStringLiteral("Ωmega"));
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: a change of language shows at once and loses nothing") {
    Taper("T_Prénom", "Pierre");
    S().catalogue.Ouvrir(dossier / "partage/English.mes");
    S().AppliquerReglages();
    fiche->Traduire();
    CHECK(C<QLabel>("LblNom").text() == "&Surname:");
    CHECK(C<QTabWidget>("SSTab1").tabText(0) == "Facts");
    CHECK(Texte("T_Prénom") == "Pierre");
    CHECK(AEnregistrer());
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: no mnemonic stands twice, in either language") {
    for (const char* langue : {"partage/Français.mes", "partage/English.mes"}) {
        CAPTURE(langue);
        S().catalogue.Ouvrir(dossier / langue);
        fiche->Traduire();
        // The keys of a page that is not shown do nothing.
        auto& onglets = C<QTabWidget>("SSTab1");
        for (int page = 0; page < onglets.count(); ++page) {
            onglets.setCurrentIndex(page);
            CAPTURE(page);
            std::set<QChar> lettres;
            const auto prendre = [&lettres](const QString& texte, const QWidget& controle) {
                const qsizetype place = texte.indexOf(u'&');
                if (place < 0 || place + 1 >= texte.size() || !controle.isVisible()) return;
                CAPTURE(texte.toStdString());
                CHECK(lettres.insert(texte[place + 1].toLower()).second);
            };
            for (const QLabel* etiquette : fiche->findChildren<QLabel*>())
                prendre(etiquette->text(), *etiquette);
            for (const QPushButton* bouton : fiche->findChildren<QPushButton*>())
                prendre(bouton->text(), *bouton);
            CHECK(lettres.size() >= 13);
        }
    }
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: the order of Tab is the order of reading, on every page") {
    QStringList ordre;
    const auto parcourir = [&](const char* jusque) {
        ordre.clear();
        for (int i = 0; i < 60; ++i) {
            ordre << fiche->focusWidget()->objectName();
            if (ordre.last() == QString::fromUtf8(jusque)) break;
            // A note and a list let Tab pass, too.
            QTest::keyClick(fiche->focusWidget(), Qt::Key_Tab);
        }
        return ordre.join(u' ').toStdString();
    };
    const std::string tete =
        "T_Nom T_Prénom Tx_PrénomAutres O_Sexe(0) TxtJNaiss T_Naiss TxtLieuNaiss TxtJDécès "
        "T_Décès TxtLieuDécès N_Père C_Spère N_Mère C_Smère qt_tabwidget_tabbar ";
    CHECK(parcourir("CmdPrécédent") ==
          tete +
              "TxtIndL(0) CmdIndSel(0) TxtIndJ(1) TxtIndA(1) TxtIndL(1) CmdIndSel(1) TxtIndJ(2) "
              "TxtIndA(2) TxtIndL(2) CmdIndSel(2) C_Texte TxtInd CmdPrécédent");
    Page(1);
    Champ("T_Nom").setFocus();
    CHECK(
        parcourir("CmdPrécédent") ==
        tete +
            "L_Conjoint C_Rechconjoint CmdCréConjoint C_Smar CmdMarDown TxtJMar T_Dmar T_Fmar "
            "TxtLieuMar TxtMarJ(0) TxtMarA(0) TxtMarL(0) CmdMarSel(0) C_TexteMar TxtMar L_Enfants "
            "CmdRechEnft CmdCréEnfant CmdSupEnft CmdPrécédent");
    CHECK(parcourir("CmdFermer") == "CmdPrécédent CmdSuivant CmdGraphe CmdSupprimer CmdFermer");
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: every field has a name for assistive programs") {
    for (const QWidget* champ : fiche->findChildren<QWidget*>()) {
        if (champ->focusPolicy() == Qt::NoFocus || champ->isHidden() ||
            champ->objectName().isEmpty() || champ->objectName().startsWith("qt_"))
            continue;
        const auto* bouton = qobject_cast<const QAbstractButton*>(champ);
        const bool nomme =
            !champ->accessibleName().isEmpty() || (bouton != nullptr && !bouton->text().isEmpty());
        bool ami = false;
        for (const QLabel* etiquette : fiche->findChildren<QLabel*>())
            ami = ami || etiquette->buddy() == champ;
        CAPTURE(champ->objectName().toStdString());
        CHECK((nomme || ami || champ->objectName() == "SSTab1"));
    }
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "FrmMisajour: a new person is typed in the sheet and becomes its person") {
    DemarrerFamille();
    FrmMisajour fiche{S(), &Fenetre()};
    fiche.show();
    REQUIRE(fiche.Ouvrir({}));
    CHECK(fiche.Individu() == NoOrdre{});
    fiche.findChild<QLineEdit*>("T_Nom")->setText("Durand");
    fiche.findChild<QLineEdit*>("T_Naiss")->setText("1850");
    QTest::mouseClick(fiche.findChild<QPushButton*>("C_Maj"), Qt::LeftButton);
    CHECK(fiche.Individu() == NoOrdre{9});
    CHECK(S().base->R_NOM.NomDe(NoOrdre{9}) == "Durand");
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmMisajour: without a base the sheet is empty and harmless") {
    Demarrer({});
    FrmMisajour fiche{S(), &Fenetre()};
    fiche.show();
    CHECK_FALSE(fiche.Ouvrir(NoOrdre{1}));
    fiche.Recharger();
    CHECK(fiche.ConfirmerFermeture());
    QTest::keyClick(&fiche, Qt::Key_Escape);
    CHECK_FALSE(fiche.isVisible());
}
