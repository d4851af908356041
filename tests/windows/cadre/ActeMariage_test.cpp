#include <QCheckBox>

#include "doublures/Coherence.h"
#include "storage/Evenements.h"
#include "storage/Listes.h"
#include "storage/R_TRI.h"
#include "storage/Textes.h"
#include "windows/Conduite.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The numbers that the persons get, in the order in which they are typed.
enum Numero : std::uint32_t {
    Yves = 1,
    Jean,
    Anne,
    Marie,
    Jeanne,
    Herve,
    Catherine,
    Corentin,
    Guillaume,
    Francois,
    MarieAnne,
    Pierre
};

/// The marriage act of Plouvern, 14 February 1786, typed in by somebody who has it on the table.
struct Acte : Conduite {
    Acte() { Nouvelle(chemin); }

    void TaperEpoux() const {
        CreerSeul({"Le Goarant", "Yves", Sexe::Homme, "3 mars", "1752", "Plouvern"});
        OuvrirFiche();
        {
            Enchainement formes;
            Creation(formes, {"", "Jean", Sexe::Vide, "", "1722", "", "", "1790"});
            Cliquer(Fiche(), "CmdCréPère");
        }
        CHECK(Foyer() == "N_Père");
        {
            Enchainement formes;
            Creation(formes, {"Kerdoncuff", "Anne", Sexe::Vide, "", "1726"})
                .Boite(QMessageBox::Yes, QStringLiteral("créer une union avec Jean Le Goarant"));
            Cliquer(Fiche(), "CmdCréMère");
        }
        CHECK(Foyer() == "N_Mère");
    }

    void TaperPremiereUnion() const {
        Page(2);
        Enchainement formes;
        Creation(formes,
                 {"Quémener", "Marie", Sexe::Vide, "", "1755", "", "2 mai", "1784", "Plouvern"});
        Cliquer(Fiche(), "CmdCréConjoint");
        CHECK(Foyer() == "TxtJMar");
        Remplir(Fiche(), "TxtJMar", "12/1");
        Remplir(Fiche(), "T_Dmar", "1774");
        Remplir(Fiche(), "T_Fmar", "1784");
        Remplir(Fiche(), "TxtLieuMar", "Lanverec");
        Enregistrer();
    }

    void TaperEpouse() const {
        {
            Enchainement formes;
            Creation(formes, {"Tanguy", "Jeanne", Sexe::Vide, "20 juin", "1760", "Saint-Brévan"});
            Cliquer(Fiche(), "CmdCréConjoint");
        }
        Remplir(Fiche(), "TxtJMar", "14 février");
        Remplir(Fiche(), "T_Dmar", "1786");
        Remplir(Fiche(), "TxtLieuMar", "Plouvern");
        Enregistrer();
        CliquerRangee(Controler<QTableView>(Fiche(), "L_Conjoint"), "Jeanne");
        QTest::keyClick(Fiche().focusWidget(), Qt::Key_Return);
        REQUIRE(Fiche().Individu() == NoOrdre{Jeanne});
        {
            Enchainement formes;
            Creation(formes, {"", "Hervé", Sexe::Vide, "", "1730"});
            Cliquer(Fiche(), "CmdCréPère");
        }
        Enchainement formes;
        Creation(formes, {"Salaün", "Catherine", Sexe::Vide, "", "1733", "", "", "1781"})
            .Boite(QMessageBox::Yes, QStringLiteral("créer une union avec Hervé Tanguy"));
        Cliquer(Fiche(), "CmdCréMère");
    }

    /// Born of the bride before the marriage; the act names no father.
    void TaperEnfantNaturel() const {
        Devant(Fenetre());
        CreerSeul({"Tanguy", "Corentin", Sexe::Homme, "9 septembre", "1783", "Saint-Brévan"});
        Page(2);
        Enchainement formes;
        formes
            .Fenetre("FrmEnfants",
                     [](QWidget& choix) {
                         Taper(*choix.focusWidget(), QStringLiteral("corentin"));
                         QTest::keyClick(choix.focusWidget(), Qt::Key_Return);
                     })
            .Boite(QMessageBox::No,
                   QStringLiteral("Yves Le Goarant est-il le père de Corentin Tanguy"));
        Cliquer(Fiche(), "CmdRechEnft");
    }

    static void ChercherDansNoms(Enchainement& formes, const char* filtre, const char* role) {
        formes.Fenetre("FrmNom", [filtre, role](QWidget& noms) {
            CHECK(noms.windowTitle().contains(QString::fromUtf8(role)));
            Taper(*noms.focusWidget(), QString::fromUtf8(filtre));
            QTest::keyClick(noms.focusWidget(), Qt::Key_Return);
        });
    }

    /// The marriage as an event, from the sheet of the bride, with its four witnesses: two who are
    /// in the base, two who are not.
    void TaperTemoins() const {
        Page(4);
        CHECK(Foyer() == "GrdEvts");
        Enchainement formes{20000};
        formes.Fenetre("FrmDesEvt", [](QWidget& evenement) {
            Remplir(evenement, "CboTypeEvt", "mariage");
            QTest::keyClick(evenement.focusWidget(), Qt::Key_Tab);
            CHECK(evenement.focusWidget()->objectName() == "TxtDate");
            Remplir(evenement, "TxtDate", "14/2/1786");
            Remplir(evenement, "TxtLieu", "Plouvern");
            // The bride has her role, the groom's is the next.
            auto& role = Controler<QComboBox>(evenement, "CboRole");
            CHECK(role.currentText() == QStringLiteral("Époux"));
            Cliquer(evenement, "CmdRechLien");
            Remplir(evenement, "CboRole", "Témoin");
            Cliquer(evenement, "CmdCréLien");
            // One witness is followed by another.
            CHECK(role.currentText() == QStringLiteral("Témoin"));
            for (const char* bouton : {"CmdCréLien", "CmdRechLien", "CmdRechLien"})
                Cliquer(evenement, bouton);
            QTest::keyClick(evenement.focusWidget(), Qt::Key_Return);
            CHECK_FALSE(evenement.isVisible());
        });
        ChercherDansNoms(formes, "yves", "Époux");
        Creation(formes, {"Abgrall", "Guillaume", Sexe::Homme, "", "1740"});
        Creation(formes, {"Morvan", "François", Sexe::Homme, "", "1765"});
        ChercherDansNoms(formes, "jean le", "Témoin");
        ChercherDansNoms(formes, "hervé", "Témoin");
        Cliquer(Fiche(), "CmdEvtAjout");
    }

    void TaperJumeaux() const {
        REQUIRE(Fiche().Individu() == NoOrdre{Jeanne});
        Page(2);
        CliquerRangee(Controler<QTableView>(Fiche(), "L_Conjoint"), "Yves");
        for (const Personne& jumeau :
             {Personne{"Le Goarant", "Marie Anne", Sexe::Femme, "3 novembre", "1787", "Plouvern"},
              Personne{"Le Goarant", "Pierre", Sexe::Homme, "3 novembre", "1787", "Plouvern"}}) {
            Enchainement formes;
            formes.Fenetre("FrmCréation", [jumeau](QWidget& forme) {
                CHECK(forme.focusWidget()->objectName() == "T_Nom");
                RemplirFormulaire(forme, jumeau);
                QTest::keyClick(forme.focusWidget(), Qt::Key_Return);
            });
            Cliquer(Fiche(), "CmdCréEnfant");
        }
    }

    [[nodiscard]] static QStringList Proposes(const QWidget& choix) {
        const QAbstractItemModel& modele = *Controler<QTableView>(choix, "Grille1").model();
        QStringList noms;
        for (int i = 0; i < modele.rowCount(); ++i)
            noms << modele.index(i, 1).data().toString();
        return noms;
    }

    /// The groom recognises the natural child.
    void Reconnaitre() const {
        CliquerRangee(Controler<QTableView>(Fiche(), "L_Enfants"), "Corentin");
        QTest::keyClick(Fiche().focusWidget(), Qt::Key_Return);
        REQUIRE(Fiche().Individu() == NoOrdre{Corentin});
        Enchainement formes;
        formes.Fenetre("FrmPère", [](QWidget& choix) {
            // The name of the child stands there, ready to be typed over.
            CHECK(Proposes(choix) == QStringList{QStringLiteral("Hervé Tanguy")});
            CHECK(Controler<QLabel>(choix, "LblFenetre").text() ==
                  QStringLiteral("Personnes nées de 1683 à 1773."));
            Taper(*choix.focusWidget(), QStringLiteral("goar"));
            const QStringList enAge{QStringLiteral("Jean Le Goarant"),
                                    QStringLiteral("Yves Le Goarant")};
            CHECK(Proposes(choix) == enAge);
            // Without regard to the years, his own half-brother is offered too.
            auto& toutes = Controler<QCheckBox>(choix, "ChkAnnees");
            toutes.setFocus();
            QTest::keyClick(&toutes, Qt::Key_Space);
            CHECK(Proposes(choix).contains(QStringLiteral("Pierre Le Goarant")));
            QTest::keyClick(&toutes, Qt::Key_Space);
            auto& nom = Controler<QLineEdit>(choix, "TxtNom");
            nom.setFocus();
            QTest::keyClick(&nom, Qt::Key_Down);
            QTest::keyClick(&nom, Qt::Key_Return);
        });
        Cliquer(Fiche(), "C_Rechpère");
        CHECK(Foyer() == "N_Père");
    }

    /// The signature on the act spells it otherwise.
    void CorrigerNom() const {
        Cliquer(Fiche(), "N_Père");
        REQUIRE(Fiche().Individu() == NoOrdre{Yves});
        Remplir(Fiche(), "T_Nom", "Le Gouarant");
        QTest::keyClick(Fiche().focusWidget(), Qt::Key_Return);
        CHECK_FALSE(Controler<QWidget>(Fiche(), "C_Maj").isEnabled());
    }

    void TaperTout() const {
        TaperEpoux();
        TaperPremiereUnion();
        TaperEpouse();
        TaperEnfantNaturel();
        TaperTemoins();
        TaperJumeaux();
        Reconnaitre();
        CorrigerNom();
    }

    void Rouvrir() const {
        Devant(Fenetre());
        Action("MnuEnregistrer").trigger();
        Action("MnuFermer").trigger();
        REQUIRE_FALSE(S().BaseOuverte());
        RepondreFichier(chemin);
        Action("MnuOuvrir").trigger();
        REQUIRE(S().BaseOuverte());
    }

    [[nodiscard]] QString Foyer() const { return Fiche().focusWidget()->objectName(); }

    std::filesystem::path chemin = dossier / "Plouvern.LGD";
};

/// A person as the act tells it, for the comparison with the reopened base.
struct Attendu {
    Numero numero;
    const char* ligne;  ///< names, and days and months of birth and death
    Sexe sexe;
    const char* naissance;
    const char* deces;
    std::uint32_t pere;
    std::uint32_t mere;
    const char* texte;
};

constexpr Attendu Personnes[] = {
    {Yves, "Le Gouarant;Yves;;3/3;", Sexe::Homme, "1752", "", Jean, Anne,
     "|Le.Gouarant ¶Yves $Plouvern"},
    {Jean, "Le Goarant;Jean;", Sexe::Homme, "1722", "1790", 0, 0, "|Le.Goarant ¶Jean"},
    {Anne, "Kerdoncuff;Anne;", Sexe::Femme, "1726", "", 0, 0, "|Kerdoncuff ¶Anne"},
    {Marie, "Quémener;Marie;;;2/5", Sexe::Femme, "1755", "1784", 0, 0,
     "|Quémener ¶Marie ~Plouvern"},
    {Jeanne, "Tanguy;Jeanne;;20/6;", Sexe::Femme, "1760", "", Herve, Catherine,
     "|Tanguy ¶Jeanne $Saint-Brévan"},
    {Herve, "Tanguy;Hervé;", Sexe::Homme, "1730", "", 0, 0, "|Tanguy ¶Hervé"},
    {Catherine, "Salaün;Catherine;", Sexe::Femme, "1733", "1781", 0, 0, "|Salaün ¶Catherine"},
    {Corentin, "Tanguy;Corentin;;9/9;", Sexe::Homme, "1783", "", Yves, Jeanne,
     "|Tanguy ¶Corentin $Saint-Brévan"},
    {Guillaume, "Abgrall;Guillaume;", Sexe::Homme, "1740", "", 0, 0, "|Abgrall ¶Guillaume"},
    {Francois, "Morvan;François;", Sexe::Homme, "1765", "", 0, 0, "|Morvan ¶François"},
    {MarieAnne, "Le Goarant;Marie Anne;;3/11;", Sexe::Femme, "1787", "", Yves, Jeanne,
     "|Le.Goarant ¶Marie.Anne $Plouvern"},
    {Pierre, "Le Goarant;Pierre;;3/11;", Sexe::Homme, "1787", "", Yves, Jeanne,
     "|Le.Goarant ¶Pierre $Plouvern"},
};

std::vector<std::uint32_t> Enfants(storage::Base& base, Numero parent) {
    std::vector<std::uint32_t> enfants;
    for (const NoOrdre n : base.R_ENFANT.Elements(NoOrdre{parent}))
        enfants.push_back(n.valeur);
    return enfants;
}

void ComparerUnion(storage::Base& base, NoMariage m, Numero epoux, Numero epouse, const char* debut,
                   const char* fin, const char* texte) {
    CAPTURE(m.valeur);
    CHECK(base.R_EPOUX.LireCellule(m) == NoOrdre{epoux});
    CHECK(base.R_EPOUSE.LireCellule(m) == NoOrdre{epouse});
    CHECK(base.R_DEBMAR.LireCellule(m) == debut);
    CHECK(base.R_FINMAR.LireCellule(m) == fin);
    CHECK(base.R_TXTMAR.LireTexte(m) == texte);
}

}  // namespace

TEST_CASE_FIXTURE(Acte, "A marriage act typed by mouse and keys stands in the file as it is told") {
    TaperTout();
    Rouvrir();
    storage::Base& lue = B();
    REQUIRE(lue.entete.DernierIndividu == std::size(Personnes));
    for (const Attendu& attendu : Personnes) {
        CAPTURE(attendu.ligne);
        const NoOrdre n{attendu.numero};
        CHECK(TexteVersQt(lue.R_NOM.LireTexte(n)) == QString::fromUtf8(attendu.ligne));
        CHECK(lue.R_SEXE.LireCellule(n) == attendu.sexe);
        CHECK(lue.R_NAISS.LireCellule(n) == attendu.naissance);
        CHECK(lue.R_DECES.LireCellule(n) == attendu.deces);
        CHECK(lue.R_PERE.LireCellule(n) == NoOrdre{attendu.pere});
        CHECK(lue.R_MERE.LireCellule(n) == NoOrdre{attendu.mere});
        CHECK(TexteVersQt(lue.R_TEXTE.LireTexte(n)) == QString::fromUtf8(attendu.texte));
    }
    // The child born first stands first, the twins in the order in which they were typed.
    const std::vector<std::uint32_t> fratrie{Corentin, MarieAnne, Pierre};
    CHECK(Enfants(lue, Yves) == fratrie);
    CHECK(Enfants(lue, Jeanne) == fratrie);
    CHECK(Enfants(lue, Jean) == std::vector<std::uint32_t>{Yves});
    CHECK(Enfants(lue, Catherine) == std::vector<std::uint32_t>{Jeanne});
    CHECK(Enfants(lue, Marie).empty());

    REQUIRE(lue.entete.DernierMariage == 4);
    ComparerUnion(lue, NoMariage{1}, Jean, Anne, "", "", "");
    ComparerUnion(lue, NoMariage{2}, Yves, Marie, "1774", "1784", "12/1 @Lanverec");
    ComparerUnion(lue, NoMariage{3}, Yves, Jeanne, "1786", "", "14/2 @Plouvern");
    ComparerUnion(lue, NoMariage{4}, Herve, Catherine, "", "", "");
    CHECK(lue.R_MARIAG.Elements(NoOrdre{Yves}) ==
          std::vector<NoMariage>{NoMariage{2}, NoMariage{3}});

    // By years of birth, as a new base sorts.
    const std::uint16_t ordre[] = {Jean,  Anne,   Herve,    Catherine, Guillaume, Yves,
                                   Marie, Jeanne, Francois, Corentin,  MarieAnne, Pierre};
    const auto tri = lue.R_TRI.individus.Numeros();
    CHECK(std::equal(tri.begin(), tri.end(), std::begin(ordre), std::end(ordre)));
    CHECK(doublures::Coherence{lue}.Ecarts() == "");
}

TEST_CASE_FIXTURE(Acte, "The witnesses of the act hang on its event, each with the role") {
    TaperTout();
    Rouvrir();
    storage::Base& lue = B();
    REQUIRE(lue.entete.DernierEvenement == 1);
    const NoEvenement mariage{1};
    CHECK(lue.R_EVT.TypeEvt(mariage) == "MARR");
    CHECK(lue.R_EVT.LieuEvt(mariage) == "Plouvern");
    CHECK(lue.R_EVT.CleDateEvt(mariage) ==
          SaisirDateEvenement("14/2/1786", S().Ordre(), S().Mots()));
    const std::vector<storage::LienEvenement> liens{
        {NoOrdre{Jeanne}, "WIFE"},   {NoOrdre{Yves}, "HUSB"}, {NoOrdre{Guillaume}, "WITN"},
        {NoOrdre{Francois}, "WITN"}, {NoOrdre{Jean}, "WITN"}, {NoOrdre{Herve}, "WITN"}};
    CHECK(lue.R_EVT.Liens(mariage) == liens);
    for (const storage::LienEvenement& lien : liens) {
        CAPTURE(lien.individu.valeur);
        REQUIRE(lue.R_LSTEVT.NbElements(lien.individu) == 1);
        CHECK(lue.R_LSTEVT.ElementListe(lien.individu, 1) == mariage);
        CHECK(lue.R_LSTEVT.TexteElement(lien.individu, 1) == lien.role);
    }
    CHECK(lue.R_LSTEVT.NbElements(NoOrdre{Catherine}) == 0);
}

TEST_CASE_FIXTURE(Acte, "Quitting with an unsaved sheet asks: yes saves it into the file") {
    TaperEpoux();
    Remplir(Fiche(), "T_Prénom", "Yves Marie");
    const char* garde = "Yves Marie";
    {
        Enchainement boites;
        SUBCASE("yes") {
            boites.Boite(QMessageBox::Yes, QStringLiteral("La fiche a été modifiée"));
        }
        SUBCASE("no") {
            boites.Boite(QMessageBox::No, QStringLiteral("La fiche a été modifiée"));
            garde = "Yves";
        }
        boites.Boite(QMessageBox::Yes, QStringLiteral("quitter Dorvane"));
        Action("MnuQuitter").trigger();
    }
    CHECK_FALSE(Fenetre().isVisible());
    storage::DisqueReel disque;
    storage::ProgressionMuette muet;
    const auto lue = storage::OuvrirBase(disque, chemin, muet).base;
    REQUIRE(lue != nullptr);
    CHECK(lue->R_NOM.PrenomDe(NoOrdre{Yves}) == garde);
    CHECK(lue->entete.DernierIndividu == 3);
    CHECK(doublures::Coherence{*lue}.Ecarts() == "");
}
