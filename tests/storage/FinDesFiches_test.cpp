// A header that tells of less than the file holds, and a last record that has no end.
#include "doublures/Inventaire.h"
#include "doublures/SeanceEssai.h"
#include "storage/Essai.h"
#include "values/Octets.h"

using namespace dorvane;
using namespace dorvane::storage;

namespace {

struct Abimee : Essai {
    Abimee() {
        SeanceEssai seance{*base, 11};
        for (int i = 0; i < 400; ++i)
            seance.Agir();
        // Texts and lists behind the last block.
        for (int fois = 0; fois < 3; ++fois) {
            Rouvrir();
            for (NoOrdre n{1}; n.valeur <= base->entete.DernierIndividu; ++n.valeur) {
                base->R_TEXTE.EcrireTexte(n, "texte " + std::to_string(n.valeur));
                base->R_NOM.EcrireNom(n, "Nom" + std::to_string(n.valeur) + ";;;;");
            }
            for (NoEvenement e{1}; e.valeur <= base->entete.DernierEvenement; ++e.valeur)
                base->R_EVT.EcrireEvt(e, {.note = "note " + std::to_string(e.valeur)});
        }
        REQUIRE(base->Fermer());
        base.reset();
    }
    void PoserFin(std::uint32_t fin) const {
        constexpr std::size_t PlaceFin = 30;
        std::string octets = disque->Octets(Chemin);
        octets.replace(PlaceFin, 4, NumVersChaine4(fin));
        disque->Poser(Chemin, std::move(octets));
    }
    /// One edit that writes a record of each kind, a commit, and all that the base then says.
    std::string Modifier() {
        Ouvrir();
        const NoOrdre n{1};
        base->R_TEXTE.EcrireTexte(n, "après la panne");
        base->R_NOM.EcrireNom(n, "Nouveau;Nom;;;");
        base->R_IMAGE.EcrireDoc(base->NouveauDocument(), {"titre", "a.jpg", "", "note"});
        base->R_EVT.EcrireEvt(base->NouvelEvenement(), {.note = "note d'événement"});
        Rouvrir();
        std::string tout = Inventaire{*base}.Texte();
        base.reset();
        return tout;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Abimee, "OuvrirBase: a header that tells of too short a file costs no record") {
    const std::string entiers = disque->Octets(Chemin);
    const std::string attendu = Modifier();
    const auto taille = static_cast<std::uint32_t>(entiers.size());
    for (const std::uint32_t fin :
         {0U, 3088U, taille / 4, taille / 2, taille - 2000, taille - 40, taille - 1}) {
        CAPTURE(fin);
        disque->Poser(Chemin, entiers);
        PoserFin(fin);
        CHECK(Modifier() == attendu);
    }
}

TEST_CASE_FIXTURE(Abimee, "OuvrirBase: what a session that died has appended is written over") {
    const std::string entiers = disque->Octets(Chemin);
    disque->Poser(Chemin, entiers + std::string(5000, 'x'));
    Ouvrir();
    CHECK(base->volume.FinFichier() == entiers.size());
}

TEST_CASE_FIXTURE(Essai, "OuvrirBase: a last text without its end does not run into what follows") {
    const NoOrdre n = Creer("Martin;Jean;;;", "1820");
    base->R_TEXTE.EcrireTexte(n, "x");
    REQUIRE(base->Enregistrer());
    base->R_TEXTE.EcrireTexte(n, "le dernier");
    REQUIRE(base->Fermer());
    base.reset();
    std::string octets = disque->Octets(Chemin);
    REQUIRE(octets.ends_with("le dernier#"));
    SUBCASE("the mark alone is missing") {
        octets.pop_back();
    }
    SUBCASE("words are missing as well, and the header still tells of them") {
        octets.resize(octets.size() - 4);
    }
    disque->Poser(Chemin, octets);
    Ouvrir();
    const std::string lu{base->R_TEXTE.LireTexte(n)};
    CHECK(std::string{"le dernier"}.starts_with(lu));
    CHECK(lu.size() >= 7);
    const NoOrdre autre = Creer("Durand;Anne;;;", "1830");
    base->R_TEXTE.EcrireTexte(autre, "la suite");
    Rouvrir();
    CHECK(base->R_TEXTE.LireTexte(n) == lu);
    CHECK(base->R_TEXTE.LireTexte(autre) == "la suite");
}

TEST_CASE_FIXTURE(Essai, "OuvrirBase: a last list without its end does not run into what follows") {
    const NoOrdre n = Creer("Martin;Jean;;;", "1820");
    for (int i = 0; i < 3; ++i)
        Creer("Martin;Paul;;;", "1850");
    base->R_TEXTE.EcrireTexte(n, "x");
    base->R_ENFANT.EcrireListe(n, std::string("\0\2", 2));
    REQUIRE(base->Enregistrer());
    base->R_ENFANT.EcrireListe(n, std::string("\0\2\0\3\0\4", 6));
    REQUIRE(base->Fermer());
    base.reset();
    std::string octets = disque->Octets(Chemin);
    REQUIRE(octets.ends_with(std::string("\0\3\0\4\0\0", 6)));
    octets.resize(octets.size() - 2);
    disque->Poser(Chemin, octets);
    Ouvrir();
    base->R_TEXTE.EcrireTexte(n, "la suite");
    Rouvrir();
    CHECK(base->R_ENFANT.NbElements(n) == 3);
    CHECK(base->R_TEXTE.LireTexte(n) == "la suite");
}
