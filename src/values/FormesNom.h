#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane {

/// Template of a display name: the tokens in their order, 10 at most. "FNAM" is the first name,
/// "BIRN" the surname, "OFNM" the further first names, "FATN" and "MOTN" the surnames of the
/// parents, "NUMB" the numbers of the person; any other is the tag of a keyword.
using ModeleNom = std::vector<std::string>;

/// Reads the text of the settings, tokens each followed by "/": "FNAM/BIRN/". An empty slot ends
/// the list, and so does the tenth token.
[[nodiscard]] ModeleNom LireModeleNom(std::string_view texte);

/// The way back to the settings.
[[nodiscard]] std::string EcrireModeleNom(const ModeleNom& modele);

/// Receives one value of a token.
using SortieValeur = std::function<void(std::string_view valeur)>;

/// Tells the values of a token, each by a call of `sortie`; none when the person has none.
using ValeursDeJeton = std::function<void(std::string_view jeton, const SortieValeur& sortie)>;

/// Display name: the values of each token in the order of the template, with a blank before each;
/// an empty value adds nothing. Empty for a person without names.
[[nodiscard]] std::string ComposerNom(const ModeleNom& modele, const ValeursDeJeton& valeurs);

/// What life dates are made of: the two year cells and the two day-month texts, as stored.
struct Vie {
    std::string_view anneeNaissance;
    std::string_view jourMoisNaissance;
    std::string_view anneeDeces;
    std::string_view jourMoisDeces;
};

/// "<", ">" or "~" when a stored day-month text begins with a token for before, after or about;
/// empty otherwise.
[[nodiscard]] std::string_view MarqueDate(std::string_view jourMois);

/// "1820-~1890", "o1820", "+<1890", or nothing when there is neither year.
[[nodiscard]] std::string DatesDeVie(const Vie& vie);

/// `nom`, a blank, and "(1820-~1890)", "(o1820) " with a blank at its end, or "(+<1890)". Without
/// years the name and its blank stand alone.
[[nodiscard]] std::string NomEtDates(std::string_view nom, const Vie& vie);

}  // namespace dorvane
