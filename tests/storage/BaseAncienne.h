#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvane::storage {

/// Makes by hand the bytes of a base as an older version left it, block by block.
class BaseAncienne {
public:
    explicit BaseAncienne(std::string_view marque) : octets_(3573, '\0') {
        Poser(1, std::string(30, ' '));
        Poser(1, marque);
    }
    BaseAncienne& Poser(std::size_t position, std::string_view morceau) {
        if (octets_.size() < position - 1 + morceau.size())
            octets_.resize(position - 1 + morceau.size());
        octets_.replace(position - 1, morceau.size(), morceau);
        return *this;
    }
    BaseAncienne& Num2(std::size_t position, unsigned valeur) {
        return Poser(position, Nombre(valeur, 2));
    }
    BaseAncienne& Num4(std::size_t position, unsigned valeur) {
        return Poser(position, Nombre(valeur, 4));
    }
    /// Adds bytes at the end and answers their position.
    unsigned Ajouter(std::string_view morceau) {
        octets_ += morceau;
        return static_cast<unsigned>(octets_.size() - morceau.size() + 1);
    }
    /// A first block of 1000 cells, filled with `neuf`, and the cells given from the first on.
    BaseAncienne& Colonne(std::size_t repertoire, std::size_t largeur, char neuf,
                          const std::vector<std::string>& cellules) {
        std::string bloc(1000 * largeur, neuf);
        for (std::size_t i = 0; i < cellules.size(); ++i)
            bloc.replace(i * largeur, largeur, cellules[i]);
        return Num4(repertoire, Ajouter(bloc));
    }
    /// Persons with names and years, in order; returns after setting the counters.
    BaseAncienne& Individus(const std::vector<std::pair<std::string, std::string>>& individus) {
        std::vector<std::string> sexes;
        std::vector<std::string> annees;
        std::vector<std::string> noms;
        std::string tri;
        unsigned n = 0;
        for (const auto& [nom, annee] : individus) {
            sexes.emplace_back("H");
            annees.push_back(annee);
            noms.push_back(Nombre(Ajouter(nom + "#"), 4));
            tri += Nombre(++n, 2);
        }
        Colonne(529, 1, ' ', sexes).Colonne(657, 4, ' ', annees).Colonne(1169, 4, '\0', noms);
        tri.resize(2000, ' ');
        Num4(401, Ajouter(tri));
        return Num2(35, n).Num2(37, n).Poser(45, "1");
    }
    BaseAncienne& MotsCles(const std::vector<std::pair<char, std::string>>& types) {
        std::size_t k = 0;
        for (const auto& [symbole, libelle] : types) {
            std::string fiche = symbole + libelle + "#";
            fiche.resize(40, ' ');
            Num4(201 + 4 * k++, Ajouter(fiche));
        }
        return Num2(46, static_cast<unsigned>(k));
    }
    [[nodiscard]] std::string Finir() {
        Num4(31, static_cast<unsigned>(octets_.size()));
        return octets_;
    }
    [[nodiscard]] static std::string Nombre(unsigned valeur, int largeur) {
        std::string nombre;
        for (int i = largeur - 1; i >= 0; --i)
            nombre += static_cast<char>(valeur >> (8 * i) & 0xFFU);
        return nombre;
    }

private:
    std::string octets_;
};

}  // namespace dorvane::storage
