#include "records/TextesChoix.h"

#include "messages/Famille.h"
#include "records/EssaiFamille.h"

using namespace dorvane;
using namespace dorvane::records;

namespace {

/// Anne Blanc, whom nobody can be a relative of, and whose year may be missing.
struct Seule : EssaiFamille {
    Choix De(SorteChoix sorte, const char* annee, Sexe sexe = Sexe::Vide) {
        return Choix{session, {sorte, Creer(Sexe::Femme, "Blanc", "Anne", annee), sexe}};
    }
};

std::string Texte(const shell::Phrase& phrase) {
    return std::string{message::Nom(phrase.no)} + '(' + phrase.valeur +
           (phrase.valeur2.empty() ? "" : ", " + phrase.valeur2) + ')';
}

}  // namespace

TEST_CASE_FIXTURE(Seule, "TexteTitre: whom is looked for, of whom") {
    const auto titre = [this](SorteChoix sorte, Sexe sexe = Sexe::Vide) {
        return Texte(TexteTitre(session, De(sorte, "1800", sexe)));
    };
    CHECK(titre(SorteChoix::Parent, Sexe::Homme) == "TitreChercherPere(Anne Blanc)");
    CHECK(titre(SorteChoix::Parent, Sexe::Femme) == "TitreChercherMere(Anne Blanc)");
    CHECK(titre(SorteChoix::Enfant) == "TitreChercherEnfant(Anne Blanc)");
    CHECK(titre(SorteChoix::Conjoint) == "TitreChercherConjoint(Anne Blanc)");
    CHECK(titre(SorteChoix::Lien) == "TitreChoisirPersonneALier(Anne Blanc)");
}

TEST_CASE_FIXTURE(Seule, "TexteFenetre: the years of birth without zeros, or why there are none") {
    const auto fenetre = [this](SorteChoix sorte, const char* annee) {
        return Texte(TexteFenetre(session, De(sorte, annee, Sexe::Homme)));
    };
    CHECK(fenetre(SorteChoix::Parent, "1855") == "ProchesNesDeA(1755, 1845)");
    CHECK(fenetre(SorteChoix::Parent, "855") == "ProchesNesDeA(755, 845)");
    CHECK(fenetre(SorteChoix::Parent, "") == "ProchesSansAnneeDeNaissance(Anne Blanc)");
    CHECK(fenetre(SorteChoix::Enfant, "") == "ProchesNaissanceInconnueCocherAnnees(Anne Blanc)");
    CHECK(fenetre(SorteChoix::Lien, "1855") == "ProchesContemporains(Anne Blanc)");
    Choix tous = De(SorteChoix::Parent, "1855", Sexe::Homme);
    tous.LeverFenetre(true);
    CHECK(Texte(TexteFenetre(session, tous)) == "ProchesSansEgardAuxDates()");
}

TEST_CASE_FIXTURE(Seule, "TexteVide: the filter, the years or both hide all, or nobody is there") {
    Choix choix = De(SorteChoix::Parent, "1855", Sexe::Homme);
    CHECK(Texte(TexteVide(choix)) == "AucunProcheSelonDates()");
    choix.Filtrer("Noir");
    CHECK(Texte(TexteVide(choix)) == "AucunProcheSelonDatesEtNom(" + choix.Filtre() + ")");
    choix.LeverFenetre(true);
    CHECK(Texte(TexteVide(choix)) == "AucunProcheDeCeNom(" + choix.Filtre() + ")");
    choix.Filtrer("");
    CHECK(Texte(TexteVide(choix)) == "AucunAutreProche()");
    choix.Filtrer("77");
    CHECK(Texte(TexteVide(choix)) == "AucunProcheDeCeNumero(77)");
}
