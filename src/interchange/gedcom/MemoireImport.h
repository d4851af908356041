#pragma once

#include "interchange/gedcom/FamillesImport.h"
#include "storage/ConstruireIndex.h"
#include "storage/R_TRI.h"
#include "values/Annees.h"
#include "values/Noms.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// What the sort and the index need of the records just read, so that nothing is read back from the
/// file: names, years and texts, one behind the other.
class MemoireImport final : public storage::FournisseurNoms, public storage::FournisseurTextes {
public:
    /// `familles` outlives the object.
    explicit MemoireImport(const FamillesImport& familles) : familles_{familles} {}

    /// Bytes of the file that is read: about what the texts will take.
    void Prevoir(std::size_t octets) { octets_.reserve(octets); }

    /// Persons and unions come in the order of their numbers.
    void AjouterIndividu(std::string_view ligneNom, std::string_view annee, std::string_view texte);
    void AjouterUnion(std::string_view texte);

    [[nodiscard]] storage::ElementTri ElementDe(NoOrdre n) override;
    void TextesDe(NoOrdre n, std::vector<std::string_view>& textes) override;

    /// The persons stand in the order of `typeTri` as they came.
    [[nodiscard]] bool EstTriee(TypeTri typeTri, const ReglesNoms& regles);

private:
    struct Personne {
        std::uint64_t debut;
        std::uint32_t nom;  ///< lengths, in the order in which the parts stand
        std::uint32_t prenom;
        std::uint32_t texte;
        QuatreOctets annee;
    };
    struct Tranche {
        std::uint64_t debut;
        std::uint64_t longueur;
    };
    [[nodiscard]] std::string_view Prendre(std::uint64_t debut, std::uint64_t longueur) const {
        return std::string_view{octets_}.substr(debut, longueur);
    }

    const FamillesImport& familles_;
    std::string octets_;
    std::vector<Personne> personnes_;
    std::vector<Tranche> unions_;
};

}  // namespace dorvane::interchange
