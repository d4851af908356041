#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/lgr/ContenuLgr.h"
#include "interchange/lgr/ListesLgr.h"
#include "interchange/lgr/MotsClesLgr.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "storage/ConstruireIndex.h"
#include "storage/R_TRI.h"
#include "values/Annees.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// Called every 100 records; false to stop.
using SuivreLgr = std::function<bool(NoMessage message, std::uint32_t nombre)>;

/// Writes the records of an exchange text into a base behind those that it has: each number is
/// raised by the highest one given. Numbers past the limits of a base are left out and noted.
class PoserLgr final : public storage::FournisseurNoms, public storage::FournisseurTextes {
public:
    /// All outlive the object. `noms`: how keyword lines are adapted; null when they stay.
    PoserLgr(storage::Base& base, const shell::TableLibelles& libelles, const ContenuLgr& contenu,
             const MotsClesLgr& motsCles, const NomsLgr* noms, RapportImport& rapport);

    /// Everything but the word index and the order of the table of persons, where the new ones
    /// stand behind in the order of the file. False when `suivre` said so.
    [[nodiscard]] bool Poser(const SuivreLgr& suivre);

    // For a base that held nothing before: what the sort and the index need.
    [[nodiscard]] storage::ElementTri ElementDe(NoOrdre n) override;
    void TextesDe(NoOrdre n, std::vector<std::string_view>& textes) override;
    /// The persons stand in the file in the order of `typeTri`.
    [[nodiscard]] bool EstTriee(TypeTri typeTri);

    [[nodiscard]] NoDocument Document(std::uint32_t numero) const {
        return NoDocument{documents_.Connu(numero) ? numero + decalageDocuments_ : 0};
    }

private:
    struct Vie {
        std::uint32_t debut;  ///< of `noms_`
        std::uint16_t nom;
        std::uint16_t prenom;
        QuatreOctets annee;
        std::string_view texte;
    };
    [[nodiscard]] bool PoserIndividus(const SuivreLgr& suivre);
    void PoserIndividu(const IndividuLgr& lu);
    [[nodiscard]] std::string_view TexteDIndividu(const IndividuLgr& lu, std::string_view nom,
                                                  std::string_view prenom);
    [[nodiscard]] std::string_view Garder(std::string_view texte, std::string_view lu);
    void PoserSexeEtParents(const IndividuLgr& lu, NoOrdre n);
    [[nodiscard]] bool PoserUnions(const SuivreLgr& suivre);
    void PoserUnion(std::uint32_t rang);
    [[nodiscard]] std::string_view TexteDUnion(const UnionLgr& lue, std::string_view jourMois);
    void PoserListes();
    [[nodiscard]] bool PoserDocuments(const SuivreLgr& suivre);
    [[nodiscard]] bool PoserEvenements(const SuivreLgr& suivre);
    void PoserEvenement(const EvenementLgr& lu, std::uint32_t place);
    [[nodiscard]] std::string Champ(std::string_view valeur) const;
    [[nodiscard]] std::string Label(std::string_view valeur) const;
    [[nodiscard]] std::string Limiter(std::string texte, std::size_t taille,
                                      std::string_view section, std::uint32_t ligne);

    storage::Base& base_;
    const shell::TableLibelles& libelles_;
    const ContenuLgr& contenu_;
    const MotsClesLgr& motsCles_;
    const NomsLgr* nomsAdaptes_;
    RapportImport& rapport_;
    std::uint32_t decalageIndividus_;
    std::uint32_t decalageUnions_;
    std::uint32_t decalageDocuments_;
    std::uint32_t decalageEvenements_;
    NumerosLgr individus_;
    NumerosLgr documents_;
    NumerosLgr evenements_;
    ListesLgr listes_;
    std::vector<Vie> vies_;  ///< by place in the file
    std::string noms_;
    std::vector<std::string_view> textesUnions_;  ///< by place in the file
    std::vector<std::int32_t> clesDates_;         ///< of the events, by place in the file
    std::deque<std::string> propres_;             ///< texts that are not those of the file
    std::string tampon_;
};

}  // namespace dorvane::interchange
