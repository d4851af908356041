#include <QAbstractItemView>
#include <QCompleter>
#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>

#include "records/AccordEvenements.h"
#include "records/Fiche.h"
#include "records/Liens.h"
#include "windows/FeuilleEssai.h"
#include "windows/controles/BoutonPersonne.h"
#include "windows/controles/EditeurNote.h"
#include "windows/fiche/FrmMisajour.h"

using namespace dorvane;
using namespace dorvane::windows;

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: opening another person asks for what is typed") {
    Taper("T_Prénom", "Pierre");
    SUBCASE("no: the changes are dropped and the move goes on") {
        RepondreBoite(QMessageBox::No);
        CHECK(fiche->Ouvrir(NoOrdre{4}));
        CHECK(Texte("T_Nom") == QStringLiteral("Évrard"));
        CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Paul");
    }
    SUBCASE("yes: saved first") {
        RepondreBoite(QMessageBox::Yes);
        CHECK(fiche->Ouvrir(NoOrdre{4}));
        CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Pierre");
    }
    SUBCASE("the same person: nothing is asked, nothing is lost") {
        CHECK(fiche->Ouvrir(NoOrdre{3}));
        CHECK(Texte("T_Prénom") == "Pierre");
    }
    SUBCASE("no person: refused") {
        CHECK_FALSE(fiche->Ouvrir(NoOrdre{99}));
        CHECK(Texte("T_Prénom") == "Pierre");
    }
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: a formatted note is shown, and not changed in its field") {
    records::SaisieFiche texte = records::ChargerFiche(S(), NoOrdre{3});
    texte.note = "{\\rtf1\\ansi {\\b Meunier} de Brest.}";
    REQUIRE_FALSE(records::ValiderFiche(S(), texte).EstRefusee());
    fiche->Recharger();
    CHECK(C<EditeurNote>("TxtInd").toPlainText() == "Meunier de Brest.");
    CHECK(C<EditeurNote>("TxtInd").isReadOnly());
    Taper("T_Prénom", "Pierre");
    Entree();
    CHECK(records::ChargerFiche(S(), NoOrdre{3}).note == texte.note);
}

TEST_CASE_FIXTURE(
    Feuille, "FrmMisajour: the fields of the union that is selected are saved with the sheet") {
    Page(1);
    Liste("L_Conjoint").Choisir(3);
    CHECK(Texte("T_Dmar") == "1860");
    Taper("TxtJMar", "5 mai");
    Taper("TxtLieuMar", "Rennes");
    Entree();
    CHECK(B().R_TXTMAR.LireTexte(NoMariage{3}) == "5/5 @Rennes");
    // The selection stands after the reload.
    CHECK(Liste("L_Conjoint").Courante()->numero == 3);
    CHECK(Texte("TxtLieuMar") == "Rennes");
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: another union is selected while one is being typed") {
    Page(1);
    Taper("TxtLieuMar", "Rennes");
    SUBCASE("no: what was typed is dropped") {
        RepondreBoite(QMessageBox::No);
        Liste("L_Conjoint").Choisir(3);
        CHECK(B().R_TXTMAR.LireTexte(NoMariage{2}).empty());
    }
    SUBCASE("yes: saved") {
        RepondreBoite(QMessageBox::Yes);
        Liste("L_Conjoint").Choisir(3);
        CHECK(B().R_TXTMAR.LireTexte(NoMariage{2}) == " @Rennes");
    }
    CHECK(Liste("L_Conjoint").Courante()->numero == 3);
    CHECK(Texte("T_Dmar") == "1860");
    CHECK(Texte("TxtLieuMar").isEmpty());
    CHECK_FALSE(AEnregistrer());
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: the parents' buttons are enabled by what is known") {
    CHECK(C<QToolButton>("C_Spère").isEnabled());
    CHECK_FALSE(C<QToolButton>("CmdCréPère").isEnabled());
    CHECK_FALSE(C<QToolButton>("C_Rechpère").isEnabled());
    REQUIRE(fiche->Ouvrir(NoOrdre{1}));
    CHECK_FALSE(C<QToolButton>("C_Spère").isEnabled());
    CHECK(C<QToolButton>("CmdCréPère").isEnabled());
    CHECK(C<QToolButton>("C_Rechmère").isEnabled());
    CHECK(C<BoutonPersonne>("N_Père").accessibleName() == QStringLiteral("Père inconnu"));
}

TEST_CASE_FIXTURE(
    Feuille, "FrmMisajour: a father is created from the sheet, with the surname of the child") {
    REQUIRE(fiche->Ouvrir(NoOrdre{1}));
    SurModal([](QWidget& creation) {
        CHECK(creation.objectName() == QStringLiteral("FrmCréation"));
        auto* nom = creation.findChild<QLineEdit*>("T_Nom");
        CHECK(nom->text() == "Martin");
        creation.findChild<QLineEdit*>(QStringLiteral("T_Prénom"))->setText("Jean");
        creation.findChild<QLineEdit*>("T_Naiss")->setText("1760");
        QTest::keyClick(nom, Qt::Key_Return);
    });
    Cliquer("CmdCréPère");
    CHECK(C<BoutonPersonne>("N_Père").Individu() == NoOrdre{9});
    CHECK(B().R_PERE.LireCellule(NoOrdre{1}) == NoOrdre{9});
    CHECK(B().R_ENFANT.Elements(NoOrdre{9}) == std::vector{NoOrdre{1}});
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: giving the form of the father up links nobody") {
    REQUIRE(fiche->Ouvrir(NoOrdre{1}));
    SurModal([](QWidget& creation) { QTest::keyClick(&creation, Qt::Key_Escape); });
    Cliquer("CmdCréPère");
    CHECK_FALSE(B().R_PERE.LireCellule(NoOrdre{1}));
    CHECK(B().entete.DernierIndividu == 8);
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: an operation saves what is typed first") {
    REQUIRE(fiche->Ouvrir(NoOrdre{1}));
    Taper("T_Prénom", "Louis Marie");
    SurModal([](QWidget& creation) { QTest::keyClick(&creation, Qt::Key_Escape); });
    Cliquer("CmdCréMère");
    CHECK(B().R_NOM.PrenomDe(NoOrdre{1}) == "Louis Marie");
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: the father is taken away after a question") {
    RepondreBoite(QMessageBox::Yes);
    Cliquer("C_Spère");
    CHECK_FALSE(B().R_PERE.LireCellule(NoOrdre{3}));
    CHECK_FALSE(C<BoutonPersonne>("N_Père").Individu());
    CHECK(C<BoutonPersonne>("N_Mère").Individu() == NoOrdre{2});
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: a child created under a union has both parents of it") {
    Page(1);
    Liste("L_Conjoint").Choisir(3);
    SurModal([](QWidget& creation) {
        creation.findChild<QLineEdit*>(QStringLiteral("T_Prénom"))->setText("Rosalie");
        auto* annee = creation.findChild<QLineEdit*>("T_Naiss");
        annee->setText("1855");
        QTest::keyClick(annee, Qt::Key_Return);
    });
    Cliquer("CmdCréEnfant");
    CHECK(B().R_PERE.LireCellule(NoOrdre{9}) == NoOrdre{3});
    CHECK(B().R_MERE.LireCellule(NoOrdre{9}) == NoOrdre{5});
    CHECK(Liste("L_Enfants").Lignes().size() == 4);
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: a union is moved, and removed after a question") {
    Page(1);
    Cliquer("CmdMarDown");
    CHECK(B().R_MARIAG.Elements(NoOrdre{3}) == std::vector{NoMariage{3}, NoMariage{2}});
    CHECK(Liste("L_Conjoint").Courante()->numero == 2);
    RepondreBoite(QMessageBox::Yes);
    Cliquer("C_Smar");
    CHECK(B().R_MARIAG.Elements(NoOrdre{3}) == std::vector{NoMariage{3}});
    CHECK(Texte("T_Dmar") == "1860");
    // Her children keep both parents.
    CHECK(B().R_MERE.LireCellule(NoOrdre{6}) == NoOrdre{4});
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: Enter or a double click on a relative opens that sheet") {
    Page(1);
    Liste("L_Enfants").Choisir(8);
    QTest::keyClick(&Liste("L_Enfants"), Qt::Key_Return);
    CHECK(fiche->Individu() == NoOrdre{8});
    CHECK(C<QTabWidget>("SSTab1").tabText(5) == QStringLiteral("Frères et sœurs (2)"));
    QTest::mouseClick(&C<BoutonPersonne>("N_Père"), Qt::LeftButton);
    CHECK(fiche->Individu() == NoOrdre{3});
}

TEST_CASE_FIXTURE(
    Feuille,
    "FrmMisajour: the place of a dated fact completes from all places, its button from its own") {
    Taper("TxtLieuNaiss", "Saint-Malo");
    Taper("TxtIndL(2)", "Brest");
    Entree();
    Taper("TxtIndL(1)", "sai");
    auto* mots = Champ("TxtIndL(1)").completer();
    CHECK(mots->popup()->isVisible());
    CHECK(mots->model()->index(0, 0).data().toString() == "Saint-Malo");
    mots->popup()->hide();
    Cliquer("CmdIndSel(2)");
    CHECK(Champ("TxtIndL(2)").completer()->model()->rowCount() == 1);
    Champ("TxtIndL(2)").completer()->popup()->hide();
}

TEST_CASE_FIXTURE(
    Feuille, "FrmMisajour: the label of a link is saved with the sheet; an empty one is refused") {
    REQUIRE(records::AjouterLien(S(), NoOrdre{3}, NoOrdre{1}, "Parrain"));
    fiche->Recharger();
    Page(2);
    CHECK(Texte("TxtLien") == "Parrain");
    Taper("TxtLien", "Voisin");
    Entree();
    CHECK(B().R_LIEN.TexteElement(NoOrdre{3}, 1) == "Voisin");
    Page(0);
    Taper("T_Prénom", "Pierre");
    Page(2);
    Taper("TxtLien", "");
    const auto texte = RepondreBoite(QMessageBox::Ok);
    Entree();
    CHECK(*texte == "Indiquez le libellé du lien.");
    CHECK(fiche->focusWidget() == &Champ("TxtLien"));
    CHECK(B().R_LIEN.TexteElement(NoOrdre{3}, 1) == "Voisin");
}

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: rows follow the keywords of the base, and keep what is typed") {
    Taper("TxtIndL(2)", "Brest");
    B().entete.SlotsIndividu = {};
    B().entete.SlotsIndividu[0] = {'^', '1'};
    fiche->Recharger();
    CHECK(fiche->findChild<QLineEdit*>("TxtIndL(1)") == nullptr);
    CHECK(Texte("TxtIndL(0)") == "Brest");
    CHECK(AEnregistrer());
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: events of the person are listed, opened and unlinked") {
    const NoEvenement e = B().NouvelEvenement();
    B().R_EVT.EcrireEvt(e, {.cleDate = DateVersSerie(DateCivile{4, 6, 1850}),
                            .liens = {{{NoOrdre{3}, "HUSB"}, {NoOrdre{4}, "WIFE"}}},
                            .description = storage::DescriptionEvt{"Rennes", "", "MARR"}});
    B().R_TRI.AjouterEvt(e);
    B().R_LSTEVT.ModifierListe(NoOrdre{3}, e, storage::ActionListe::Ajouter, "HUSB");
    B().R_LSTEVT.ModifierListe(NoOrdre{4}, e, storage::ActionListe::Ajouter, "WIFE");
    fiche->Recharger();
    Page(3);
    REQUIRE(Liste("GrdEvts").Lignes().size() == 1);
    CHECK(Liste("GrdEvts").Lignes()[0].textes.first(2) == QStringList{"4 juin 1850", "Mariage"});
    CHECK(Liste("GrdEvts").Lignes()[0].textes[3] == "Rennes");
    QString ouverte;
    SurModal([&ouverte](QWidget& fenetre) {
        ouverte = fenetre.objectName();
        QTest::keyClick(&fenetre, Qt::Key_Escape);
    });
    QTest::keyClick(&Liste("GrdEvts"), Qt::Key_Return);
    CHECK(ouverte == "FrmDesEvt");
    RepondreBoite(QMessageBox::Yes);
    Cliquer("CmdEvtSup");
    CHECK(Liste("GrdEvts").Lignes().empty());
    CHECK(B().R_LSTEVT.NbElements(NoOrdre{3}) == 0);
    CHECK(B().R_LSTEVT.NbElements(NoOrdre{4}) == 1);
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: documents of the person are listed, moved and detached") {
    for (const char* titre : {"Acte/1", "Photo"}) {
        const NoDocument d = B().NouveauDocument();
        B().R_IMAGE.EcrireDoc(d, {titre, "absent.jpg", "", ""});
        B().R_TRI.AjouterDocument(d);
        B().R_LSTIMG.ModifierListe(NoOrdre{3}, d, storage::ActionListe::Ajouter);
    }
    fiche->Recharger();
    Page(4);
    REQUIRE(Liste("LstImage").Lignes().size() == 2);
    CHECK(Liste("LstImage").Lignes()[0].textes[0] == "Acte");
    // Neither file is there: the rows say so.
    for (const auto& ligne : Liste("LstImage").Lignes())
        CHECK(ligne.textes[2].endsWith(QStringLiteral("Fichier absent")));
    Cliquer("CmdImgDown");
    CHECK(B().R_LSTIMG.Elements(NoOrdre{3}) == std::vector{NoDocument{2}, NoDocument{1}});
    CHECK(Liste("LstImage").Courante()->numero == 1);
    RepondreBoite(QMessageBox::Yes);
    Cliquer("CmdImageSup");
    CHECK(B().R_LSTIMG.Elements(NoOrdre{3}) == std::vector{NoDocument{2}});
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: every button with a text has a key, in both languages") {
    for (const char* langue : {"Français", "English"}) {
        REQUIRE(shell::ChoisirLangue(S(), langue));
        fiche->Traduire();
        for (const QPushButton* bouton : fiche->findChildren<QPushButton*>()) {
            CAPTURE(bouton->text());
            CHECK(bouton->text().contains(u'&'));
        }
    }
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: places of a union and names of children have their room") {
    Page(1);
    REQUIRE(Champ("TxtMarL(0)").isVisible());
    const int lettre = fiche->fontMetrics().averageCharWidth();
    CHECK(Champ("TxtMarL(0)").width() >= 18 * lettre);
    CHECK(Liste("L_Enfants").columnWidth(0) >= 24 * lettre);
    CHECK(Liste("L_Conjoint").columnWidth(0) >= 30 * lettre);
    // On a screen of 1280 by 720 the whole sheet is seen.
    CHECK(fiche->width() <= 1260);
    CHECK(fiche->minimumSizeHint().height() <= 640);
    fiche->resize(fiche->minimumSizeHint());
    CHECK(Champ("TxtMarL(0)").width() >= 90);
}
