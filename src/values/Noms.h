#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane {

/// A word that is no proper part of a name: "de", "van", or the number of a ruler.
struct Particule {
    std::string mot;      ///< in the case that a name takes when capitalised: "de", "XIV"
    std::string replie;   ///< its comparison form
    bool prenoms = true;  ///< counts in first names
    bool noms = true;     ///< counts in surnames
};

/// An entry as the settings keep it: `drapeaux` is two flags separated by a blank, first names then
/// surnames, "1" for yes ("1 1" is both). A flag that is missing is no.
[[nodiscard]] Particule FaireParticule(std::string_view mot, std::string_view drapeaux);

/// The words that a first run puts into the settings, in their order, all with "1 1".
[[nodiscard]] std::span<const std::string_view> ParticulesInitiales();

/// What steers the form of names in one database.
struct ReglesNoms {
    std::vector<Particule> particules;  ///< in the order of the settings, which matters
    bool deplacer = false;              ///< particles at the head of a surname go behind it
};

/// The rules of a first run: the initial particles, left where they are.
[[nodiscard]] ReglesNoms ReglesInitiales();

/// True for the six characters that end a word inside a name: blank ' - _ ’ and ´.
[[nodiscard]] bool EstSeparateur(char octet);

/// A name with a capital at the head of each word, and the particles in their own case. `mode` is
/// "N" for surnames, "P" for first names; any other applies no particle.
[[nodiscard]] std::string CapitaliseNom(std::string_view texte, std::string_view mode,
                                        const ReglesNoms& regles);

/// Sort form of a surname, one word with dots, in its own case: "de La Tour" is "de.La.Tour", or
/// "Tour.(de.la)" when particles are moved. Callers fold it.
[[nodiscard]] std::string CleNom(std::string_view nom, const ReglesNoms& regles);

/// Appends the same form to `sortie`, without an allocation of its own unless particles move.
void CleNomDans(std::string& sortie, std::string_view nom, const ReglesNoms& regles);

/// How the table of persons is ordered, with the values that the file keeps.
enum class TypeTri : char {
    Creation = '0',   ///< new persons at the end; there is no key
    Naissance = '1',  ///< birth year, then name
    Nom = '2',        ///< name
};

/// Persons stand by a key: not in the order of creation, nor under a byte that is no order.
[[nodiscard]] constexpr bool AUneCle(TypeTri tri) {
    return tri == TypeTri::Naissance || tri == TypeTri::Nom;
}

/// Sort key of a person, compared byte by byte as unsigned: for `Naissance` the `AnneeTri` of
/// `naissance` and a blank, then the folded `CleNom`, a blank and the folded first name. Empty for
/// `Creation`, and for any other value that a damaged file may hold.
[[nodiscard]] std::string CleTri(std::string_view nom, std::string_view prenom,
                                 std::string_view naissance, TypeTri tri, const ReglesNoms& regles);

/// Appends the same key to `sortie`, without an allocation of its own unless particles move.
void CleTriDans(std::string& sortie, std::string_view nom, std::string_view prenom,
                std::string_view naissance, TypeTri tri, const ReglesNoms& regles);

}  // namespace dorvane
