#pragma once

#include "doublures/Coherence.h"
#include "doublures/ComparerBases.h"
#include "doublures/FicheEssai.h"
#include "interchange/commandes/Importer.h"
#include "interchange/commandes/IntegrerLgr.h"
#include "interchange/lgr/EcrireLgr.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <memory>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

namespace dorvane::doublures {

/// A session with an empty base, whose exchange text is made, changed and read again.
struct EssaiLgr : FicheEssai {
    /// The bytes of the open base as an exchange text.
    std::string Exporter(const interchange::ChoixExport& options = {}) {
        std::string octets;
        REQUIRE(interchange::ComposerLgr(session, options, octets, comptes));
        return octets;
    }

    /// A new base of these bytes; it is not the one of the session.
    void Importer(std::string_view octets) {
        neuve.reset();
        EcrireFichier(fichier, octets);
        importation = interchange::ImporterVers(session, fichier, chemin);
        if (!importation.issue) return;
        storage::ProgressionMuette muet;
        neuve = storage::OuvrirBase(disque, chemin, muet).base;
        REQUIRE(neuve != nullptr);
    }
    /// The same for lines of a literal in code page 1252.
    void ImporterLignes(std::string_view lignes) { Importer(EnLignes(lignes)); }

    /// What differs between the open base and the one that its exchange text gives.
    std::string AllerRetour() {
        Importer(Exporter());
        REQUIRE(importation.issue);
        std::string ecarts = ComparerBases{B(), *neuve}.Ecarts();
        // What was wrong before stays so.
        if (Coherence{B(), {false}}.Ecarts().empty()) ecarts += Coherence{*neuve, {false}}.Ecarts();
        return ecarts;
    }

    interchange::Integration Integrer(std::string_view octets) {
        EcrireFichier(fichier, octets);
        return interchange::IntegrerLgr(session, fichier);
    }

    // What `FamilleEssai` lacks.
    NoDocument Document(std::string_view titre) {
        const NoDocument d = B().NouveauDocument();
        B().R_IMAGE.EcrireDoc(d, {std::string{titre}, {}, {}, {}});
        B().R_TRI.AjouterDocument(d);
        return d;
    }
    NoEvenement Evenement(std::int32_t date, std::string_view type) {
        const NoEvenement e = B().NouvelEvenement();
        B().R_EVT.EcrireEvt(e, {.cleDate = date,
                                .description = storage::DescriptionEvt{{}, {}, std::string{type}}});
        B().R_TRI.AjouterEvt(e);
        return e;
    }
    void Participer(NoEvenement e, NoOrdre n, std::string_view role) {
        std::vector<storage::LienEvenement> liens = B().R_EVT.Liens(e);
        liens.push_back({n, std::string{role}});
        B().R_EVT.EcrireEvt(e, {.liens = liens});
        B().R_LSTEVT.ModifierListe(n, e, storage::ActionListe::Ajouter, role);
    }

    static std::string EnLignes(std::string_view lignes) {
        std::string texte;
        for (const char c : lignes)
            texte += c == '\n' ? std::string{"\r\n"} : std::string(1, c);
        return texte;
    }
    /// The lines between two others, with LF.
    static std::string Section(std::string_view octets, std::string_view debut,
                               std::string_view fin) {
        const std::size_t ou = octets.find(std::string{debut} + "\r\n");
        if (ou == std::string_view::npos) return "absent";
        const std::size_t de = ou + debut.size() + 2;
        std::string texte;
        for (const char c : octets.substr(de, octets.find(fin, de) - de))
            if (c != '\r') texte += c;
        return texte;
    }

    [[nodiscard]] std::string Texte(std::uint32_t n) const {
        return std::string{neuve->R_TEXTE.LireTexte(NoOrdre{n})};
    }
    [[nodiscard]] std::string Nom(std::uint32_t n) const {
        return std::string{neuve->R_NOM.LireTexte(NoOrdre{n})};
    }

    std::filesystem::path fichier = dossier / "essai.lgr";
    std::filesystem::path chemin = dossier / "essai.LGD";
    interchange::ComptesExport comptes;
    interchange::Importation importation;
    std::unique_ptr<storage::Base> neuve;
};

}  // namespace dorvane::doublures
