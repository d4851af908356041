#pragma once

#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "records/SaisieFiche.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::doublures {

/// A session with an empty base, for the rules of the sheet.
struct FicheEssai : SessionEssai {
    FicheEssai() {
        shell::Demarrage(session);
        dialogue.fichiers.emplace_back(dossier / "Famille.LGD");
        shell::MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
        dialogue.entendu.clear();
        dialogue.titres.clear();
    }

    storage::Base& B() { return *session.base; }
    FamilleEssai F() { return FamilleEssai{B()}; }

    /// The order of the sort table.
    std::vector<NoOrdre> Ordre() {
        std::vector<NoOrdre> ordre;
        for (std::uint32_t rang = 1; rang <= B().entete.NbTriIndividus; ++rang)
            ordre.push_back(B().R_TRI.IndividuAuRang(rang));
        return ordre;
    }

    /// The index says what a recount from the texts says, and every list is in its order.
    void VerifierIndex() {
        for (NoMotCle k{1}; k.valeur <= B().motsCles.Nombre(); ++k.valeur) {
            if (!B().motsCles.PosMotsType(k)) continue;
            CAPTURE(k.valeur);
            CHECK(LireIndex(k) == Recompter(B().motsCles.LibelleType(k).symbole));
        }
    }

    /// Lists and table under their rules: children by year, persons by key.
    void VerifierOrdres() {
        const std::vector<NoOrdre> ordre = Ordre();
        for (std::size_t i = 1; i < ordre.size(); ++i)
            CHECK(B().R_TRI.CleDe(ordre[i - 1]) <= B().R_TRI.CleDe(ordre[i]));
        for (const NoOrdre n : ordre) {
            CHECK(std::count(ordre.begin(), ordre.end(), n) == 1);
            const std::vector<NoOrdre> enfants = B().R_ENFANT.Elements(n);
            for (std::size_t i = 1; i < enfants.size(); ++i)
                CHECK(B().R_NAISS.AnneeTri(enfants[i - 1]) <= B().R_NAISS.AnneeTri(enfants[i]));
        }
    }

private:
    using Index = std::map<std::string, std::vector<NoOrdre>>;

    Index LireIndex(NoMotCle k) {
        Index index;
        std::string precedent;
        for (const NoIndex e : B().R_INDEX.ListeMots(k)) {
            const std::string mot = B().R_INDEX.MotIndex(e);
            CHECK(precedent < mot);
            precedent = mot;
            std::vector<NoOrdre> personnes = B().R_INDEX.PersonnesIndex(e);
            for (std::size_t i = 1; i < personnes.size(); ++i)
                CHECK(B().R_NAISS.AnneeTri(personnes[i - 1]) <= B().R_NAISS.AnneeTri(personnes[i]));
            std::sort(personnes.begin(), personnes.end());
            index[mot] = personnes;
        }
        return index;
    }

    Index Recompter(char symbole) {
        Index index;
        const auto compter = [&index, symbole](NoOrdre n, const std::string& texte) {
            for (const std::string& mot : storage::MotsDuTexte(texte, symbole))
                index[mot].push_back(n);
        };
        for (NoOrdre n{1}; n.valeur <= B().entete.DernierIndividu; ++n.valeur) {
            compter(n, std::string{B().R_TEXTE.LireTexte(n)});
            for (const NoMariage m : B().R_MARIAG.Elements(n))
                compter(n, std::string{B().R_TXTMAR.LireTexte(m)});
        }
        for (auto& [mot, personnes] : index)
            std::sort(personnes.begin(), personnes.end());
        return index;
    }
};

}  // namespace dorvane::doublures
