#pragma once

#include "interchange/gedcom/EcrivainGedcom.h"
#include "interchange/gedcom/ExportGedcom.h"
#include "interchange/gedcom/FamillesExport.h"
#include "storage/Slots.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}
namespace dorvane::storage {
class Base;
}

namespace dorvane::interchange {

/// One export: what its phases share. Each phase writes its records in their order.
class RedactionGedcom {
public:
    /// Both outlive the object.
    RedactionGedcom(shell::Session& session, const OptionsGedcom& options);

    void EcrireEnTete(const std::string& nomFichier);
    void EcrireIndividu(NoOrdre n);
    /// A family with nobody of the selection writes nothing.
    void EcrireFamille(std::uint32_t famille);
    void EcrireSource(NoEvenement e);
    void EcrireDocument(NoDocument d);
    void Terminer() { sortie_.Ligne(0, "TRLR"); }

    /// In the sort table and in the selection.
    [[nodiscard]] bool EstEcrit(NoOrdre n) const;
    [[nodiscard]] bool EstEcrit(NoEvenement e) const;
    [[nodiscard]] bool EstEcrit(NoDocument d) const;
    [[nodiscard]] std::uint32_t NombreFamilles() const {
        return static_cast<std::uint32_t>(familles_.familles.size()) - 1;
    }
    /// The file; nothing can be written afterwards.
    [[nodiscard]] std::string Prendre() { return sortie_.Prendre(); }
    [[nodiscard]] ComptesExport Comptes() const {
        ComptesExport comptes = comptes_;
        comptes.perdus = sortie_.Perdus();
        return comptes;
    }

private:
    /// Where the lines of a person or of a family differ.
    enum class Sujet { Individu, Famille };

    void MarquerChoisis();
    void ReleverCodes();
    [[nodiscard]] bool AMotCle(std::string_view texte) const;
    void EcrireNom(NoOrdre n, const storage::TableSlots& slots);
    void EcrireVie(std::string_view etiquette, std::string_view jourMois, std::string_view annee,
                   std::string_view lieu);
    void EcrireRubriques(const storage::DefinitionSlots& definition,
                         const storage::TableSlots& slots, Sujet sujet, bool attributs);
    void EcrireRubrique(std::string_view tag, const storage::ValeurSlot& valeur, Sujet sujet);
    void EcrireTexteLibre(std::string_view premiereLigne, std::string_view note, Sujet sujet);
    [[nodiscard]] bool EcrireMotCle(std::string_view mot, Sujet sujet);
    void EcrireLiensFamille(NoOrdre n);
    void EcrireRole(std::string_view role);
    void EcrireAutresLiens(NoOrdre n);

    shell::Session& session_;
    storage::Base& base_;
    const OptionsGedcom& options_;
    EcrivainGedcom sortie_;
    FamillesExport familles_;
    storage::DefinitionSlots definitionIndividu_;
    storage::DefinitionSlots definitionMariage_;
    std::vector<bool> individus_;
    std::vector<bool> evenementsEnTable_;  ///< by number: the event is in the sort table
    std::vector<bool> evenements_;
    std::vector<bool> documents_;
    std::array<bool, 256> codes_{};  ///< codes of keywords of which the format has the tag
    ComptesExport comptes_;
};

}  // namespace dorvane::interchange
