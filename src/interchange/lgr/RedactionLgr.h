#pragma once

#include "interchange/lgr/EcrireLgr.h"
#include "values/Numeros.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {
class Base;
struct Slot;
}  // namespace dorvane::storage

namespace dorvane::interchange {

/// The records of one exchange text. What is written is settled at the beginning; each record then
/// goes to the end of a run of bytes.
class RedactionLgr {
public:
    /// Both outlive the object.
    RedactionLgr(shell::Session& session, const ChoixExport& choix);

    /// Everything in front of the persons.
    void EcrireTete(std::string& sortie);
    void EcrireIndividu(std::string& sortie, NoOrdre n);
    void EcrireUnion(std::string& sortie, NoMariage m);
    void EcrireDocument(std::string& sortie, NoDocument d);
    void EcrireEvenement(std::string& sortie, NoEvenement e);
    /// The indexed keywords and the end.
    void EcrirePied(std::string& sortie);

    [[nodiscard]] bool EstEcrit(NoOrdre n) const { return Dans(individus_, n.valeur); }
    /// A union is written when its husband is.
    [[nodiscard]] bool EstEcrite(NoMariage m) const {
        return m.valeur < rangs_.size() && rangs_[m.valeur] != 0;
    }
    [[nodiscard]] bool EstEcrit(NoDocument d) const { return Dans(documents_, d.valeur); }
    [[nodiscard]] bool EstEcrit(NoEvenement e) const { return Dans(evenements_, e.valeur); }

    [[nodiscard]] const ComptesExport& Comptes() const { return comptes_; }

private:
    [[nodiscard]] static bool Dans(const std::vector<bool>& ensemble, std::uint32_t n) {
        return n < ensemble.size() && ensemble[n];
    }
    void MarquerIndividus();
    void MarquerUnions();
    void MarquerAnnexes();
    void Ligne(std::string& sortie, std::string_view valeur);
    void Texte(std::string& sortie, std::string_view texte);
    void EcrireReglages(std::string& sortie);
    void EcrireMotsCles(std::string& sortie);
    template <class Slots>
    void EcrireSlots(std::string& sortie, std::string_view section, const Slots& slots);
    void EcrireIdentite(std::string& sortie, NoOrdre n);
    void EcrireListes(std::string& sortie, NoOrdre n);

    shell::Session& session_;
    storage::Base& base_;
    const ChoixExport& choix_;
    std::vector<bool> individus_;
    std::vector<bool> documents_;
    std::vector<bool> evenements_;
    std::vector<std::uint32_t> rangs_;  ///< of the unions in the file, from 1; 0 for none
    ComptesExport comptes_;
};

}  // namespace dorvane::interchange
