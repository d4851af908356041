#pragma once

#include "values/Numeros.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// The search for a text in the display names, and the list of who was found. The list lives as
/// long as the object, in ascending person number, and can be extended and pruned by hand.
class RechercheNoms {
public:
    /// `session` outlives the object.
    explicit RechercheNoms(shell::Session& session) : session_{session} {}

    /// Makes ready for a search of `texte`, which is folded here. Without `cumul` the list is
    /// emptied first. False, and nothing changes, when the text is empty or no base is open.
    [[nodiscard]] bool Commencer(std::string_view texte, bool cumul);
    /// Looks at the next `combien` persons in sort order; false once all have been looked at.
    bool Continuer(std::uint32_t combien);

    [[nodiscard]] std::uint32_t Fait() const { return rang_; }        ///< persons looked at
    [[nodiscard]] std::uint32_t Total() const;                        ///< persons in the sort table
    [[nodiscard]] std::uint32_t Trouves() const { return trouves_; }  ///< new ones, this search

    /// `ListeResultat`.
    [[nodiscard]] const std::vector<NoOrdre>& Resultat() const { return resultat_; }
    /// At its place; false when the person is in the list already, or is none.
    bool Ajouter(NoOrdre individu);
    bool Ecarter(NoOrdre individu);
    void Vider() { resultat_.clear(); }
    /// Takes out who has been deleted since; true when there was somebody.
    bool Relire();

private:
    [[nodiscard]] bool Convient(NoOrdre n);

    shell::Session& session_;
    std::string texte_;
    std::vector<NoOrdre> resultat_;
    std::uint32_t rang_ = 0;
    std::uint32_t trouves_ = 0;
    std::string tampon_;
};

/// A whole search under the progress port, which lets the windows live between two steps.
/// `montrer` is called after each step that has found somebody. Tells when nobody was found, when
/// no base is open and when another job runs. False when nothing was searched, and when the user
/// gave up: what was found stays.
bool Rechercher(RechercheNoms& recherche, shell::Session& session, std::string_view texte,
                bool cumul, const std::function<void()>& montrer);

}  // namespace dorvane::records
