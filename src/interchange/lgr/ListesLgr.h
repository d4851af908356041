#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/lgr/ContenuLgr.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// Which numbers of one kind the file gives, and where.
class NumerosLgr {
public:
    /// Place of the record with this number; `Inconnu` when there is none.
    static constexpr std::uint32_t Inconnu = 0xFFFFFFFF;

    /// Notes the records, of which those without a number, past `limite` or with one that was
    /// given before are left out.
    template <class Record>
    void Prendre(const std::vector<Record>& records, std::uint32_t limite, std::string_view section,
                 RapportImport& rapport) {
        ordre_.reserve(records.size());
        for (std::uint32_t i = 0; i < records.size(); ++i) {
            const std::uint32_t n = records[i].numero;
            if (n == 0 || n > limite || Connu(n)) {
                rapport.Noter(n == 0       ? Constat::Illisible
                              : n > limite ? Constat::Limite
                                           : Constat::Doublon,
                              section, records[i].ligne);
                continue;
            }
            if (places_.size() <= n) places_.resize(n + 1, Inconnu);
            places_[n] = i;
            ordre_.push_back(i);
        }
    }

    [[nodiscard]] std::uint32_t Place(std::uint32_t numero) const {
        return numero < places_.size() ? places_[numero] : Inconnu;
    }
    [[nodiscard]] bool Connu(std::uint32_t numero) const { return Place(numero) != Inconnu; }
    /// Highest number taken; 0 for none.
    [[nodiscard]] std::uint32_t Dernier() const {
        return places_.empty() ? 0 : static_cast<std::uint32_t>(places_.size() - 1);
    }
    /// Places of those taken, in the order of the file.
    [[nodiscard]] const std::vector<std::uint32_t>& Ordre() const { return ordre_; }
    /// The same by number.
    [[nodiscard]] std::vector<std::uint32_t> ParNumero() const {
        std::vector<std::uint32_t> places;
        places.reserve(ordre_.size());
        for (const std::uint32_t place : places_)
            if (place != Inconnu) places.push_back(place);
        return places;
    }

private:
    std::vector<std::uint32_t> places_;  ///< by number
    std::vector<std::uint32_t> ordre_;
};

/// What ties the records of a file to one another, brought into agreement: each fact stands on both
/// sides, once, in lists of at most 200. Records are known by their places in the file.
class ListesLgr {
public:
    using Place = std::uint32_t;
    static constexpr Place Aucune = NumerosLgr::Inconnu;

    struct Lien {
        Place vers;
        std::string_view texte;
        bool vu = false;
    };
    struct Couple {
        Place epoux = Aucune;
        Place epouse = Aucune;
    };
    struct Parents {
        Place pere = Aucune;
        Place mere = Aucune;
    };

    /// All but the content are needed for the call only.
    void Accorder(const ContenuLgr& contenu, const NumerosLgr& individus,
                  const NumerosLgr& documents, const NumerosLgr& evenements,
                  RapportImport& rapport);

    [[nodiscard]] const Parents& ParentsDe(Place individu) const { return parents_[individu]; }
    [[nodiscard]] const Couple& CoupleDe(Place mariage) const { return couples_[mariage]; }
    /// Places of unions.
    [[nodiscard]] const std::vector<Place>& UnionsDe(Place individu) const {
        return unions_[individu];
    }
    [[nodiscard]] const std::vector<Lien>& LiensDe(Place individu) const {
        return liens_[individu];
    }
    /// Events with roles, in the order of the file.
    [[nodiscard]] const std::vector<Lien>& EvenementsDe(Place individu) const {
        return roles_[individu];
    }
    [[nodiscard]] const std::vector<Place>& DocumentsDe(Place individu) const {
        return documents_[individu];
    }
    /// Persons of an event with their roles.
    [[nodiscard]] const std::vector<Lien>& PersonnesDe(Place evenement) const {
        return personnes_[evenement];
    }
    [[nodiscard]] const std::vector<Place>& PiecesDe(Place evenement) const {
        return pieces_[evenement];
    }

private:
    struct Sources;
    void AccorderParents(const Sources& s);
    void AccorderUnions(const Sources& s);
    void LireUnions(const Sources& s);
    void AccorderLiens(const Sources& s);
    void AccorderDocuments(const Sources& s);
    void LireRoles(const Sources& s);
    void AccorderEvenements(const Sources& s);

    std::vector<Parents> parents_;
    std::vector<Couple> couples_;
    std::vector<std::vector<Place>> unions_;
    std::vector<std::vector<Lien>> liens_;
    std::vector<std::vector<Lien>> roles_;
    std::vector<std::vector<Place>> documents_;
    std::vector<std::vector<Lien>> personnes_;
    std::vector<std::vector<Place>> pieces_;
};

}  // namespace dorvane::interchange
