#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace dorvane::storage {

/// Reads the bytes of a base by its format alone, with nothing of the program: what the program
/// writes is checked against it. All positions are 1-based.
class LecteurLgd {
public:
    explicit LecteurLgd(std::string octets) : octets_{std::move(octets)} {}

    [[nodiscard]] const std::string& Tout() const { return octets_; }
    [[nodiscard]] unsigned Octet(std::size_t position) const {
        return position >= 1 && position <= octets_.size()
                   ? static_cast<unsigned char>(octets_[position - 1])
                   : 0U;
    }
    [[nodiscard]] unsigned Num2(std::size_t position) const {
        return Octet(position) * 256 + Octet(position + 1);
    }
    [[nodiscard]] unsigned Num4(std::size_t position) const {
        return Num2(position) * 65536 + Num2(position + 2);
    }
    [[nodiscard]] std::string Brut(std::size_t position, std::size_t longueur) const {
        std::string morceau;
        for (std::size_t i = 0; i < longueur; ++i)
            morceau += static_cast<char>(Octet(position + i));
        return morceau;
    }
    /// Text from `position` up to "#".
    [[nodiscard]] std::string Texte(std::size_t position) const {
        std::string texte;
        if (position == 0) return texte;
        for (; position <= octets_.size() && Octet(position) != '#'; ++position)
            texte += static_cast<char>(Octet(position));
        return texte;
    }

    struct Colonne {
        unsigned repertoire;  ///< position of the directory, or of the header field that holds it
        unsigned largeur;
        int suite;      ///< offset of the second half in its overflow zone; -1: none
        unsigned zone;  ///< header position of the overflow zone
        bool indirecte;
    };
    [[nodiscard]] static const Colonne& Format(const std::string& nom) {
        static const std::map<std::string, Colonne> formats{
            {"TRI", {401, 2, 0, 161, false}},        {"SEXE", {529, 1, 128, 161, false}},
            {"NAISS", {657, 4, 256, 161, false}},    {"DECES", {785, 4, 384, 161, false}},
            {"PERE", {913, 2, 512, 161, false}},     {"MERE", {1041, 2, 640, 161, false}},
            {"NOM", {1169, 4, 768, 161, false}},     {"TEXTE", {1297, 4, 896, 161, false}},
            {"ENFANT", {1425, 4, 1024, 161, false}}, {"MARIAG", {1553, 4, 1152, 161, false}},
            {"LSTIMG", {2705, 4, 1280, 161, false}}, {"LIEN", {2961, 4, 1408, 161, false}},
            {"LSTEVT", {58, 4, 1536, 161, true}},    {"EPOUX", {1681, 2, 0, 169, false}},
            {"EPOUSE", {1809, 2, 128, 169, false}},  {"DEBMAR", {1937, 4, 256, 169, false}},
            {"FINMAR", {2065, 4, 384, 169, false}},  {"TXTMAR", {2833, 4, 512, 169, false}},
            {"INDEX", {2193, 10, 0, 165, false}},    {"IMAGE", {2449, 4, -1, 0, false}},
            {"TRIDOC", {2577, 2, -1, 0, false}},     {"EVT", {50, 4, -1, 0, true}},
            {"TRIEVT", {54, 2, -1, 0, true}}};
        return formats.at(nom);
    }
    /// Position of block `bloc`, from 1; 0: never written.
    [[nodiscard]] unsigned Bloc(const std::string& nom, unsigned bloc) const {
        const Colonne& c = Format(nom);
        const unsigned directes = nom == "INDEX" ? 64 : 32;
        if (bloc > directes)
            return c.suite < 0 || Num4(c.zone) == 0
                       ? 0
                       : Num4(Num4(c.zone) + static_cast<unsigned>(c.suite) +
                              (bloc - directes - 1) * 4);
        const unsigned debut = c.indirecte ? Num4(c.repertoire) : c.repertoire;
        return debut == 0 ? 0 : Num4(debut + (bloc - 1) * 4);
    }
    /// Position of cell `n`; 0 when its block was never written.
    [[nodiscard]] unsigned Cellule(const std::string& nom, unsigned n) const {
        const Colonne& c = Format(nom);
        const unsigned parBloc = nom == "INDEX" ? 400 : 1000;
        const unsigned debut = Bloc(nom, (n - 1) / parBloc + 1);
        return debut == 0 ? 0 : debut + (n - 1) % parBloc * c.largeur;
    }
    [[nodiscard]] unsigned Num2De(const std::string& nom, unsigned n) const {
        return Num2(Cellule(nom, n));
    }
    [[nodiscard]] unsigned Num4De(const std::string& nom, unsigned n) const {
        return Num4(Cellule(nom, n));
    }
    [[nodiscard]] std::string TexteDe(const std::string& nom, unsigned n) const {
        return Texte(Num4De(nom, n));
    }
    /// First numbers of the entries of a list of `taille` bytes each.
    [[nodiscard]] std::vector<unsigned> Liste(const std::string& nom, unsigned n,
                                              unsigned taille) const {
        std::vector<unsigned> numeros;
        unsigned position = Num4De(nom, n);
        for (; position != 0 && Num2(position) != 0; position += taille)
            numeros.push_back(Num2(position));
        return numeros;
    }
    [[nodiscard]] std::vector<unsigned> Tri(const std::string& nom, unsigned nombre) const {
        std::vector<unsigned> numeros;
        for (unsigned r = 1; r <= nombre; ++r)
            numeros.push_back(Num2De(nom, r));
        return numeros;
    }

private:
    std::string octets_;
};

}  // namespace dorvane::storage
