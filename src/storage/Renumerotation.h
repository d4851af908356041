#pragma once

#include "storage/Base.h"
#include "storage/CopieIndex.h"
#include "storage/ParcoursReorganisation.h"
#include "storage/Progression.h"
#include "storage/Reorganiser.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace dorvane::storage {

/// New numbers by old ones; 0: the record is dropped.
using Carte = std::vector<std::uint16_t>;

[[nodiscard]] inline std::uint32_t Nouveau(const Carte& carte, std::uint32_t ancien) {
    return ancien < carte.size() ? carte[ancien] : 0;
}

/// Which records of an old file a reorganisation takes over, and under which numbers: documents and
/// events by rank, unions by their husbands in sort order, entries of the index by keyword. Persons
/// keep theirs.
class Renumerotation {
public:
    /// All outlive the object.
    Renumerotation(Base& source, CopieIndex& index, ParcoursReorganisation& parcours,
                   Progression& progression)
        : s_{source}, index_{index}, parcours_{parcours}, progression_{progression} {}

    /// The phases before the copy. `bilan` takes the records without an end and the unions that are
    /// left out. False: the work ends.
    [[nodiscard]] bool Faire(BilanReorganisation& bilan) {
        return Controler(bilan) && NumeroterDocuments() && NumeroterEvenements() &&
               NumeroterMariages(bilan) && NumeroterIndex() && LireRangs();
    }

    Carte carteDocuments;
    Carte carteEvenements;
    Carte carteMariages;
    std::vector<std::uint16_t> documents;  ///< old numbers by new ones less 1
    std::vector<std::uint16_t> evenements;
    std::vector<std::uint16_t> mariages;
    std::vector<std::uint16_t> individus;  ///< the sort table

private:
    bool Controler(BilanReorganisation& bilan);
    template <class EstLa>
    bool Numeroter(std::string_view titre, const std::vector<std::uint16_t>& table,
                   std::uint32_t dernier, Carte& carte, std::vector<std::uint16_t>& vivants,
                   EstLa estLa);
    bool NumeroterDocuments();
    bool NumeroterEvenements();
    bool NumeroterMariages(BilanReorganisation& bilan);
    bool NumeroterIndex();
    bool LireRangs();

    Base& s_;
    CopieIndex& index_;
    ParcoursReorganisation& parcours_;
    Progression& progression_;
};

}  // namespace dorvane::storage
