#include "windows/FrmMisajour.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>

#include "records/Fiche.h"
#include "records/Individus.h"
#include "records/Liens.h"
#include "records/ModeleFamille.h"
#include "windows/BoutonPersonne.h"
#include "windows/EditeurNote.h"
#include "windows/Essai.h"
#include "windows/GlisserPersonne.h"
#include "windows/TableFiche.h"
#include "windows/Unicode.h"

#include <set>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The sheet over the family of the Martins, on Paul (3).
struct Feuille : FenetreEssai {
    Feuille() {
        DemarrerFamille();
        fiche = std::make_unique<FrmMisajour>(S(), &Fenetre());
        Fenetre().Accueillir(*fiche);
        fiche->show();
        fiche->activateWindow();
        REQUIRE(QTest::qWaitFor([this] { return QApplication::activeWindow() == fiche.get(); }));
        REQUIRE(fiche->Ouvrir(NoOrdre{3}));
    }

    template <class Controle>
    Controle& C(const char* nom) {
        auto* controle = fiche->findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    QLineEdit& Champ(const char* nom) { return C<QLineEdit>(nom); }
    QString Texte(const char* nom) { return Champ(nom).text(); }
    TableFiche& Liste(const char* nom) { return C<TableFiche>(nom); }
    void Page(int page) {
        QTest::keyClick(fiche.get(), static_cast<Qt::Key>(Qt::Key_1 + page), Qt::ControlModifier);
    }
    void Taper(const char* nom, const char* texte) {
        Champ(nom).setFocus();
        Champ(nom).selectAll();
        Frapper(texte);
    }
    void Frapper(const char* texte) {
        if (*texte == '\0') QTest::keyClick(fiche->focusWidget(), Qt::Key_Delete);
        for (const QChar c : QString::fromUtf8(texte)) {
            QKeyEvent appui{QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString{c}};
            QApplication::sendEvent(fiche->focusWidget(), &appui);
        }
    }
    void Entree() { QTest::keyClick(fiche->focusWidget(), Qt::Key_Return); }
    void Cliquer(const char* nom) {
        auto& bouton = C<QAbstractButton>(nom);
        CAPTURE(nom);
        REQUIRE(bouton.isEnabled());
        QTest::mouseClick(&bouton, Qt::LeftButton);
    }
    storage::Base& B() { return *S().base; }
    bool AEnregistrer() { return C<QPushButton>("C_Maj").isEnabled(); }

    std::unique_ptr<FrmMisajour> fiche;
};

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

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: the next and the previous person without leaving the sheet") {
    const NoOrdre suivante = records::VoisinDansLOrdre(B(), NoOrdre{3}, 1);
    Cliquer("CmdSuivant");
    CHECK(fiche->Individu() == suivante);
    Cliquer("CmdPrécédent");
    CHECK(fiche->Individu() == NoOrdre{3});
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
        std::set<QChar> lettres;
        const auto prendre = [&lettres](const QString& texte) {
            const qsizetype place = texte.indexOf(u'&');
            if (place < 0 || place + 1 >= texte.size()) return;
            CAPTURE(texte.toStdString());
            CHECK(lettres.insert(texte[place + 1].toLower()).second);
        };
        for (const QLabel* etiquette : fiche->findChildren<QLabel*>())
            prendre(etiquette->text());
        for (const QPushButton* bouton : fiche->findChildren<QPushButton*>())
            prendre(bouton->text());
        CHECK(lettres.size() >= 18);
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

TEST_CASE_FIXTURE(Feuille,
                  "FrmMisajour: a person is dropped on a parent, a list of spouses or children") {
    REQUIRE(fiche->Ouvrir(NoOrdre{8}));
    const auto deposer = [this](QWidget& cible, NoOrdre individu) {
        const std::unique_ptr<QMimeData> donnees{PersonneVersMime(S(), individu)};
        const QPoint point{10, 10};
        QDragEnterEvent entree{point, Qt::CopyAction, donnees.get(), Qt::LeftButton,
                               Qt::NoModifier};
        QApplication::sendEvent(&cible, &entree);
        if (!entree.isAccepted()) return false;
        QDropEvent depot{point, Qt::CopyAction, donnees.get(), Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&cible, &depot);
        return true;
    };
    SUBCASE("a spouse") {
        CHECK(deposer(*Liste("L_Conjoint").viewport(), NoOrdre{4}));
        CHECK(records::UnionDe(B(), NoOrdre{8}, NoOrdre{4}));
        CHECK(Liste("L_Conjoint").Lignes().size() == 1);
    }
    SUBCASE("a mother in place of the one who is there: a man is refused") {
        const auto texte = RepondreBoite(QMessageBox::Ok);
        CHECK(deposer(C<BoutonPersonne>("N_Mère"), NoOrdre{6}));
        CHECK(texte->contains("ne convient pas"));
        CHECK(B().R_MERE.LireCellule(NoOrdre{8}) == NoOrdre{5});
    }
    SUBCASE("what is no person is not taken") {
        QMimeData texte;
        texte.setText("Martin");
        QDragEnterEvent entree{QPoint{10, 10}, Qt::CopyAction, &texte, Qt::LeftButton,
                               Qt::NoModifier};
        entree.setAccepted(false);
        QApplication::sendEvent(&C<BoutonPersonne>("N_Mère"), &entree);
        CHECK_FALSE(entree.isAccepted());
    }
}

TEST_CASE_FIXTURE(Feuille, "FrmMisajour: events of the person are listed, opened and unlinked") {
    const NoEvenement e = B().NouvelEvenement();
    B().R_EVT.EcrireEvt(e, {.cleDate = DateVersSerie(DateCivile{4, 6, 1850}),
                            .liens = {{{NoOrdre{3}, "HUSB"}, {NoOrdre{4}, "WIFE"}}},
                            .description = storage::DescriptionEvt{"Rennes", "", "MARR"}});
    B().R_TRI.AjouterEvt(e);
    B().R_LSTEVT.ModifierListe(NoOrdre{3}, e, 'A', "HUSB");
    B().R_LSTEVT.ModifierListe(NoOrdre{4}, e, 'A', "WIFE");
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
        B().R_LSTIMG.ModifierListe(NoOrdre{3}, d, 'A');
    }
    fiche->Recharger();
    Page(4);
    REQUIRE(Liste("LstImage").Lignes().size() == 2);
    CHECK(Liste("LstImage").Lignes()[0].textes[0] == "Acte");
    Cliquer("CmdImageDown");
    CHECK(B().R_LSTIMG.Elements(NoOrdre{3}) == std::vector{NoDocument{2}, NoDocument{1}});
    CHECK(Liste("LstImage").Courante()->numero == 1);
    RepondreBoite(QMessageBox::Yes);
    Cliquer("CmdImageSup");
    CHECK(B().R_LSTIMG.Elements(NoOrdre{3}) == std::vector{NoDocument{2}});
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
