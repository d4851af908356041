#pragma once

#include "storage/Base.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dorvane::storage {

/// Takes the word index of one base over into another that is being written: entries are numbered
/// densely in the order in which the lists of the keywords name them, dead ones are left out.
class CopieIndex {
public:
    /// Both outlive the object. `cible` is empty.
    CopieIndex(Base& source, Base& cible) : s_{source}, c_{cible} {}

    /// The words of a text leave the person: of a union that is not copied. Before `Numeroter`.
    void Retirer(NoOrdre n, std::string_view texte);

    [[nodiscard]] std::uint32_t NbTypes() const;
    /// Gives the entries of keyword `k` their numbers. In the order of the keywords.
    void Numeroter(NoMotCle k);
    /// Entries that are copied.
    [[nodiscard]] std::uint32_t Nombre() const {
        return static_cast<std::uint32_t>(anciens_.size());
    }

    /// Writes keywords and word lists; those without words share one empty list. Always true.
    bool EcrireTypes();
    /// Writes entry `e`, a new number: word, persons, cell.
    void Copier(NoIndex e);

private:
    /// The persons of an old entry without those whose word leaves.
    [[nodiscard]] std::vector<NoOrdre> PersonnesDe(NoIndex ancien, char symbole);

    Base& s_;
    Base& c_;
    std::unordered_map<std::string, std::vector<NoOrdre>> retraits_;  // by symbol and word
    std::vector<std::uint16_t> carte_;                                // new entry by old one
    std::vector<std::uint16_t> anciens_;                              // old entry by new one less 1
    std::vector<char> symboles_;                                      // of the keyword, the same
    std::vector<std::vector<std::uint16_t>> listes_;                  // new entries by keyword
};

}  // namespace dorvane::storage
