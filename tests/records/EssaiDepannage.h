#pragma once

#include "doublures/Coherence.h"
#include "records/BureauSoin.h"
#include "records/Depannage.h"
#include "shell/FichierSur.h"
#include "values/Texte1252.h"

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::records {

/// A base that is damaged by hand and mended.
struct EssaiDepannage : BureauSoin {
    using BureauSoin::BureauSoin;
    BilanDepannage bilan;

    /// Repairs without a copy; the lines of the journal, in code page 1252.
    std::vector<std::string> Depanner() {
        bilan = DepannerBase(session, false);
        REQUIRE(bilan.issue);
        const std::string texte =
            Utf8VersTexte(shell::LireTout(bilan.journal).value_or("illisible")).octets;
        std::vector<std::string> lignes;
        std::istringstream flux{texte};
        for (std::string ligne; std::getline(flux, ligne);)
            lignes.push_back(ligne);
        return lignes;
    }
    std::string Ligne(std::string_view ligne) { return std::string{ligne}; }
    /// Nothing is left to mend, and the two places of each fact agree.
    void Sain() {
        CHECK(doublures::Ecarts(B()) == "");
        B().marques = {};
        Depanner();
        CHECK(bilan.reparations == 0);
        CHECK_FALSE(B().marques.Modifie());
    }
    NoOrdre Homme(const char* prenom, const char* annee = "1820") {
        return Creer(Sexe::Homme, "DURAND", prenom, annee);
    }
    NoOrdre Femme(const char* prenom, const char* annee = "1825") {
        return Creer(Sexe::Femme, "MARTIN", prenom, annee);
    }
};

}  // namespace dorvane::records
