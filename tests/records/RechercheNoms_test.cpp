#include "records/RechercheNoms.h"

#include "records/EssaiFamille.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Personnes = std::vector<NoOrdre>;
using Dits = std::vector<std::string>;

struct Famille : EssaiFamille {
    bool Chercher(std::string_view texte, bool cumul = false) {
        return Rechercher(recherche, session, texte, cumul, [this] { ++montres; });
    }
    int montres = 0;
    RechercheNoms recherche{session};
    NoOrdre nicolas = Creer(Sexe::Homme, "Zola", "Nicolas", "1850");
    NoOrdre anne = Creer(Sexe::Femme, "Évrard"_1252, "Anne-Marie", "1820");
    NoOrdre luc = Creer(Sexe::Homme, "Martin", "Luc", "1821");
};

}  // namespace

TEST_CASE_FIXTURE(Famille,
                  "A text is found anywhere in the display name, whatever its case and accents") {
    CHECK(Chercher("LA"));
    CHECK(recherche.Resultat() == Personnes{nicolas});
    CHECK(Chercher("evrard"));
    CHECK(recherche.Resultat() == Personnes{anne});
    CHECK(Chercher("É"_1252));
    CHECK(recherche.Resultat() == Personnes{anne});
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Famille, "Separators count as blanks on both sides") {
    CHECK(Chercher("Anne'Marie"));
    CHECK(recherche.Resultat() == Personnes{anne});
    CHECK(Chercher("anne marie"));
    CHECK(recherche.Resultat() == Personnes{anne});
    CHECK(Chercher("annemarie"));
    CHECK(recherche.Resultat().empty());
    CHECK(Dit() == Dits{"InfoAucunePersonneDeCeNom"});
}

TEST_CASE_FIXTURE(Famille, "Results stand by person number though the table stands by name") {
    CHECK(base.R_TRI.IndividuAuRang(1) == anne);
    CHECK(Chercher("a"));
    CHECK(recherche.Resultat() == Personnes{nicolas, anne, luc});
    CHECK(recherche.Trouves() == 3);
    CHECK(montres == 1);
}

TEST_CASE_FIXTURE(
    Famille, "With cumul the list is completed, without doubles; without it is emptied first") {
    CHECK(Chercher("martin"));
    CHECK(Chercher("zola", true));
    CHECK(recherche.Resultat() == Personnes{nicolas, luc});
    CHECK(Dit().empty());
    // Nobody new: what is told is the same as when nobody was found.
    CHECK(Chercher("zola", true));
    CHECK(recherche.Resultat() == Personnes{nicolas, luc});
    CHECK(Dit() == Dits{"InfoAucunePersonneDeCeNom"});
    CHECK(Chercher("evrard"));
    CHECK(recherche.Resultat() == Personnes{anne});
}

TEST_CASE_FIXTURE(Famille, "An empty text searches nothing and leaves the list") {
    CHECK(Chercher("zola"));
    CHECK_FALSE(Chercher(""));
    CHECK(recherche.Resultat() == Personnes{nicolas});
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Famille, "A person whose name was deleted is never seen") {
    base.R_TRI.RetirerIndividu(nicolas);
    base.R_NOM.EcrireNom(nicolas, "");
    base.R_NAISS.EcrireCellule(nicolas, "");
    base.R_SEXE.EcrireCellule(nicolas, Sexe::Vide);
    CHECK(Chercher("zola"));
    CHECK(recherche.Resultat().empty());
    CHECK_FALSE(recherche.Ajouter(nicolas));
    CHECK(Dit() == Dits{"InfoAucunePersonneDeCeNom"});
}

TEST_CASE_FIXTURE(Famille, "An empty template gives empty names and no hit") {
    session.parametres.generaux.affichageNom = "";
    session.AppliquerReglages();
    CHECK(Chercher("a"));
    CHECK(recherche.Resultat().empty());
    CHECK(Dit() == Dits{"InfoAucunePersonneDeCeNom"});
}

TEST_CASE_FIXTURE(Famille,
                  "What the template shows can be found: further names, a name of the mother") {
    base.R_MERE.EcrireCellule(luc, anne);
    base.R_ENFANT.ModifierListe(anne, luc, storage::ActionListe::Ajouter);
    session.parametres.generaux.affichageNom = "FNAM/BIRN/MOTN/";
    session.AppliquerReglages();
    CHECK(Chercher("martin evrard"));
    CHECK(recherche.Resultat() == Personnes{luc});
}

TEST_CASE_FIXTURE(Famille, "The list is extended and pruned by hand, in order") {
    CHECK(recherche.Ajouter(luc));
    CHECK(recherche.Ajouter(nicolas));
    CHECK_FALSE(recherche.Ajouter(luc));
    CHECK_FALSE(recherche.Ajouter({}));
    CHECK_FALSE(recherche.Ajouter(NoOrdre{50}));
    CHECK(recherche.Resultat() == Personnes{nicolas, luc});
    CHECK(recherche.Ecarter(nicolas));
    CHECK_FALSE(recherche.Ecarter(nicolas));
    CHECK(recherche.Resultat() == Personnes{luc});
    recherche.Vider();
    CHECK(recherche.Resultat().empty());
}

TEST_CASE_FIXTURE(Famille, "A search goes by steps, and who gives up keeps what was found") {
    for (int i = 0; i < 1200; ++i)
        Creer(Sexe::Homme, "Dupont", "Jean");
    progression.annulerAu = 1;
    CHECK_FALSE(Chercher("dupont"));
    CHECK(recherche.Fait() == 500);
    CHECK(recherche.Resultat().size() == 500);
    CHECK(montres == 1);
    CHECK(progression.cadres == 0);
    CHECK(Dit().empty());
    progression.annulerAu = 0;
    progression.pas = 0;
    CHECK(Chercher("dupont"));
    CHECK(recherche.Resultat().size() == 1200);
    CHECK(progression.pas == 2);
    CHECK(montres == 4);
    dialogue.pendant = nullptr;
}

TEST_CASE_FIXTURE(Famille, "No search begins while another job runs, nor without a base") {
    progression.cadres = 1;
    CHECK_FALSE(Chercher("zola"));
    progression.cadres = 0;
    CHECK(recherche.Resultat().empty());
    CHECK(Dit() == Dits{"OperationImpossible"});
    RechercheNoms sans{session};
    std::unique_ptr<storage::Base> gardee = std::move(session.base);
    dialogue.pendant = nullptr;
    CHECK_FALSE(Chercher("zola"));
    CHECK_FALSE(Chercher(""));
    CHECK(Dit() == Dits{"OperationImpossible"});
    CHECK_FALSE(sans.Commencer("zola", false));
    CHECK(sans.Total() == 0);
    CHECK_FALSE(sans.Continuer(10));
    session.base = std::move(gardee);
}

TEST_CASE_FIXTURE(Famille, "A base that is closed in the middle of a search ends it") {
    for (int i = 0; i < 600; ++i)
        Creer(Sexe::Homme, "Dupont", "Jean");
    std::unique_ptr<storage::Base> gardee;
    progression.aChaquePas = [&] { gardee = std::move(session.base); };
    CHECK(Chercher("dupont"));
    CHECK(recherche.Resultat().size() == 500);
    progression.aChaquePas = nullptr;
    session.base = std::move(gardee);
}

TEST_CASE_FIXTURE(Famille, "Who was deleted leaves the list when it is read again") {
    CHECK(Chercher("a"));
    CHECK_FALSE(recherche.Relire());
    base.R_TRI.RetirerIndividu(anne);
    base.R_NOM.EcrireNom(anne, "");
    base.R_NAISS.EcrireCellule(anne, "");
    base.R_SEXE.EcrireCellule(anne, Sexe::Vide);
    CHECK(recherche.Relire());
    CHECK(recherche.Resultat() == Personnes{nicolas, luc});
}
