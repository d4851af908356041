#pragma once

#include "doublures/SessionEssai.h"
#include "interchange/commandes/Importer.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "storage/Slots.h"
#include "values/Texte1252.h"

#include <memory>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

namespace dorvane::doublures {

/// Imports GEDCOM texts and holds the base that came of the last one.
struct EssaiImport : SessionEssai {
    explicit EssaiImport(const std::string& langue = "Français") {
        shell::Demarrage(session);
        shell::ChoisirLangue(session, langue);
        dialogue.reponses = {shell::Reponse::Oui};
    }

    /// A file of these bytes, imported and opened; its persons are sorted.
    void ImporterOctets(std::string_view octets) {
        base.reset();
        EcrireFichier(fichier, octets);
        importation = interchange::ImporterVers(session, fichier, chemin);
        if (!importation.issue) return;
        base = storage::OuvrirBase(session.disque, chemin, session.progression).base;
        REQUIRE(base != nullptr);
    }

    /// The same for lines of a literal in code page 1252, between a header and TRLR.
    void Importer(std::string_view lignes) {
        std::string texte = "0 HEAD\r\n1 SOUR ESSAI\r\n1 CHAR ANSI\r\n";
        for (const char c : lignes)
            texte += c == '\n' ? std::string{"\r\n"} : std::string(1, c);
        ImporterOctets(texte + "0 TRLR\r\n");
    }

    [[nodiscard]] std::string Texte(std::uint32_t n) const {
        return std::string{base->R_TEXTE.LireTexte(NoOrdre{n})};
    }
    [[nodiscard]] std::string Nom(std::uint32_t n) const {
        return std::string{base->R_NOM.LireTexte(NoOrdre{n})};
    }
    [[nodiscard]] std::size_t Constats(interchange::Constat constat) const {
        return importation.rapport.Nombre(constat);
    }

    std::filesystem::path fichier = dossier / "essai.ged";
    std::filesystem::path chemin = dossier / "essai.LGD";
    interchange::Importation importation;
    std::unique_ptr<storage::Base> base;
};

}  // namespace dorvane::doublures
