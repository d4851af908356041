#include "shell/Reglages.h"

#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "messages/Messages.h"
#include "messages/Reglages.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;

namespace {

struct Bureau : doublures::SessionEssai {
    Bureau() { Demarrage(session); }

    /// Three persons in an order of each kind: created 1 2 3, by year 3 1 2, by name 2 3 1.
    void Ouvrir() {
        dialogue.fichiers.emplace_back(dossier / "Tri.LGD");
        MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
        doublures::FamilleEssai famille{*session.base};
        famille.Creer(Sexe::Homme, "Martin", "Jean", "1820");
        famille.Creer(Sexe::Femme, "Abel", "Rose", "1830");
        famille.Creer(Sexe::Homme, "de Bon", "Luc", "1810");
        dialogue.entendu.clear();
    }
    [[nodiscard]] std::string Ordre() const {
        std::string ordre;
        for (std::uint32_t r = 1; r <= session.base->entete.NbTriIndividus; ++r)
            ordre += std::to_string(session.base->R_TRI.IndividuAuRang(r).valeur);
        return ordre;
    }
    [[nodiscard]] std::string ValeurBase(const char* cle) const {
        return session.parametres.Valeur(CheminVersUtf8(session.CheminBase), cle);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "ChangerTri: asks, sorts and keeps the order for the next new base") {
    Ouvrir();
    REQUIRE(Ordre() == "312");
    dialogue.reponses = {Reponse::Oui, Reponse::Oui};
    CHECK(ChangerTri(session, TypeTri::Nom));
    CHECK(Ordre() == "231");
    CHECK(session.base->entete.TypeTri == TypeTri::Nom);
    CHECK(session.TypeTri == TypeTri::Nom);
    CHECK(ChangerTri(session, TypeTri::Creation));
    CHECK(Ordre() == "123");
    REQUIRE(dialogue.entendu.size() == 2);
    CHECK(dialogue.entendu[0] ==
          Phrase{message::ConfirmerNouveauTri, {}, {}, message::ConfirmerOperation});
    CHECK(dialogue.entendu[1] ==
          Phrase{message::ConfirmerOrdreDeCreation, {}, {}, message::ConfirmerOperation});
    CHECK(session.base->marques.ModifBase);
}

TEST_CASE_FIXTURE(Bureau, "ChangerTri: a no, or a sort given up, leaves the order") {
    Ouvrir();
    SUBCASE("no") {
        dialogue.reponses = {Reponse::Non};
    }
    SUBCASE("given up") {
        dialogue.reponses = {Reponse::Oui};
        progression.annulerAu = progression.pas + 1;
    }
    CHECK_FALSE(ChangerTri(session, TypeTri::Nom));
    CHECK(Ordre() == "312");
    CHECK(session.base->entete.TypeTri == TypeTri::Naissance);
}

TEST_CASE_FIXTURE(Bureau,
                  "ValiderReglages: the mode of the base asks nothing when it is the same") {
    Ouvrir();
    Reglages r = LireReglages(session);
    CHECK(ValiderReglages(session, r) == ChampReglage::Aucun);
    CHECK(dialogue.entendu.empty());
    CHECK(session.indexationFaite);
}

TEST_CASE_FIXTURE(Bureau, "ValiderReglages: particles that move sort the persons again") {
    Ouvrir();
    dialogue.reponses = {Reponse::Oui};
    REQUIRE(ChangerTri(session, TypeTri::Nom));
    REQUIRE(Ordre() == "231");
    Reglages r = LireReglages(session);
    r.deplacerParticules = true;
    session.base->marques.ModifBase = false;
    CHECK(ValiderReglages(session, r) == ChampReglage::Aucun);
    // "BON (DE)" stands before "DE BON" would, and behind "ABEL" still.
    CHECK(Ordre() == "231");
    CHECK(session.base->R_TRI.CleDe(NoOrdre{3}).substr(0, 3) == "BON");
    CHECK(session.base->R_TRI.RangIndividu(NoOrdre{3}) == 2);
    CHECK(session.base->entete.OptParticules);
    CHECK(session.parametres.generaux.motCleNom);
    CHECK(session.base->marques.ModifBase);
    CHECK_FALSE(session.indexationFaite);

    SUBCASE("a particle taken out of the table moves the person back") {
        Reglages sans = LireReglages(session);
        std::erase_if(sans.generaux.particules, [](const Particule& p) { return p.mot == "de"; });
        CHECK(ValiderReglages(session, sans) == ChampReglage::Aucun);
        CHECK(session.base->R_TRI.CleDe(NoOrdre{3}).substr(0, 6) == "DE BON");
        CHECK(session.base->R_TRI.RangIndividu(NoOrdre{3}) == 2);
    }
    SUBCASE("given up, flag and table stay") {
        Reglages retour = LireReglages(session);
        retour.deplacerParticules = false;
        progression.annulerAu = progression.pas + 1;
        CHECK(ValiderReglages(session, retour) == ChampReglage::Aucun);
        CHECK(session.base->entete.OptParticules);
        CHECK(retour.deplacerParticules);
    }
}

TEST_CASE_FIXTURE(Bureau,
                  "ValiderReglages: a working folder is made, or refused before anything changes") {
    Reglages r = LireReglages(session);
    r.generaux.frequenceSauvegarde = 5;
    SUBCASE("made") {
        r.generaux.travail = dossier / "nouveau/travail";
        CHECK(ValiderReglages(session, r) == ChampReglage::Aucun);
        CHECK(std::filesystem::is_directory(dossier / "nouveau/travail"));
        CHECK(session.parametres.generaux.frequenceSauvegarde == 5);
    }
    SUBCASE("refused") {
        doublures::EcrireFichier(dossier / "fichier", "x");
        r.generaux.travail = dossier / "fichier/travail";
        CHECK(ValiderReglages(session, r) == ChampReglage::Travail);
        CHECK(dialogue.entendu.back().no == message::DossierDeTravailImpossible);
        CHECK(session.parametres.generaux.frequenceSauvegarde == 15);
    }
    SUBCASE("a frequency out of reason") {
        r.generaux.frequenceSauvegarde = 0;
        CHECK(ValiderReglages(session, r) == ChampReglage::Frequence);
    }
}

TEST_CASE_FIXTURE(Bureau,
                  "ValiderReglages: kinds of events and roles keep the order they are given") {
    Reglages r = LireReglages(session);
    REQUIRE(r.evenements.size() > 2);
    REQUIRE(r.evenements[0].roles.size() > 1);
    std::swap(r.evenements[0], r.evenements[2]);
    // What is no longer compulsory is another entry at the same place.
    TypeEvenement& naissance = r.evenements[2];
    naissance.roles[0].principal = false;
    const std::vector<TypeEvenement> voulus = r.evenements;
    CHECK_FALSE(MemesReglages(r, LireReglages(session)));
    CHECK(ValiderReglages(session, r) == ChampReglage::Aucun);
    CHECK(LireReglages(session).evenements == voulus);
    CHECK(MemesReglages(r, LireReglages(session)));
    session.parametres.magasin.Charger();
    CHECK(LireReglages(session).evenements == voulus);
}

TEST_CASE_FIXTURE(Bureau, "ValiderReglages: kinds of events come, go and change their roles") {
    Reglages r = LireReglages(session);
    const std::size_t nombre = r.evenements.size();
    REQUIRE(nombre > 5);
    r.evenements.push_back(
        {"Tirage au sort", {{true, Sexe::Homme, "MAIN"}, {false, Sexe::Vide, "WITN"}}});
    std::erase_if(r.evenements, [](const TypeEvenement& e) { return e.type == "BLES"; });
    r.evenements[0].roles.pop_back();
    const std::vector<TypeEvenement> voulus = r.evenements;
    CHECK(ValiderReglages(session, r) == ChampReglage::Aucun);
    CHECK(LireReglages(session).evenements == voulus);
    CHECK(session.parametres.Mots("Evénements\\Tirage au sort") ==
          std::vector<std::string>{"MHMAIN", "  WITN"});
    r.evenements.push_back(r.evenements.back());
    CHECK(ValiderReglages(session, r) == ChampReglage::Evenements);
}

TEST_CASE_FIXTURE(Bureau,
                  "ValiderReglages: what belongs to the base is kept in its section at once") {
    Ouvrir();
    Reglages r = LireReglages(session);
    r.base.auteur = "Moi";
    r.base.conversionNom = "1";
    r.affichage.couleurFond = 255;
    r.generaux.affichageNom = "BIRN/FNAM/";
    const std::uint32_t neuves = session.parametres.generaux.affichage.couleurFond;
    SUBCASE("new bases keep their colours") {
        CHECK(ValiderReglages(session, r) == ChampReglage::Aucun);
        CHECK(session.parametres.generaux.affichage.couleurFond == neuves);
    }
    SUBCASE("unless they are to follow") {
        r.pourNouvelles = true;
        CHECK(ValiderReglages(session, r) == ChampReglage::Aucun);
        CHECK(session.parametres.generaux.affichage.couleurFond == 255);
    }
    CHECK(ValeurBase("Auteur") == "Moi");
    CHECK(ValeurBase("Couleur Fond") == "255");
    CHECK(session.Modele() == ModeleNom{"BIRN", "FNAM"});
    CHECK(session.parametres.Valeur("Defaut", "Affichage Nom") == "BIRN/FNAM/");
}
