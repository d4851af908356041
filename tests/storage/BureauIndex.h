#pragma once

#include "storage/Essai.h"

#include <map>
#include <string>
#include <vector>

namespace dorvane::storage {

using Mots = std::vector<std::string>;
using Index = std::map<std::string, std::vector<std::uint32_t>>;

/// A base whose texts and word index are kept together.
struct Bureau : Essai {
    void Ecrire(std::uint32_t n, const std::string& texte) const {
        base->R_INDEX.MajIndex(NoOrdre{n}, base->R_TEXTE.LireTexte(NoOrdre{n}), texte);
        base->R_TEXTE.EcrireTexte(NoOrdre{n}, texte);
    }
    [[nodiscard]] Index De(std::uint32_t k) const {
        Index index;
        for (const NoIndex e : base->R_INDEX.ListeMots(NoMotCle{k}))
            for (const NoOrdre n : base->R_INDEX.PersonnesIndex(e))
                index[base->R_INDEX.MotIndex(e)].push_back(n.valeur);
        return index;
    }
    [[nodiscard]] Mots MotsDe(std::uint32_t k) const {
        Mots mots;
        for (const NoIndex e : base->R_INDEX.ListeMots(NoMotCle{k}))
            mots.push_back(base->R_INDEX.MotIndex(e));
        return mots;
    }
};

}  // namespace dorvane::storage
