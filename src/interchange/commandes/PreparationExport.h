#pragma once

#include "interchange/commandes/LancerExport.h"
#include "values/Numeros.h"

#include <cstddef>
#include <vector>

namespace dorvane::storage {
class Base;
}

namespace dorvane::interchange {

/// What is selected for an export, as it adds up: a list of persons that another window hands over,
/// and walks from a person. It shows in rows: first the list, when there is one, then the walks.
class PreparationExport {
public:
    /// Takes a list in place of all that was selected. An empty one selects nobody.
    void Prendre(const std::vector<NoOrdre>& liste);
    /// Adds a walk, unless it is there.
    void Ajouter(const ParcoursExport& parcours);
    /// Takes a row out; nothing for a row that is not there.
    void Retirer(std::size_t rangee);
    void Vider();
    /// Leaves out whom the base does not have, or no more.
    void Epurer(storage::Base& base);

    [[nodiscard]] bool EstVide() const { return NbRangees() == 0; }
    [[nodiscard]] std::size_t NbRangees() const;
    [[nodiscard]] const std::vector<NoOrdre>& Liste() const { return liste_; }
    [[nodiscard]] const std::vector<ParcoursExport>& Parcours() const { return parcours_; }

private:
    std::vector<NoOrdre> liste_;
    std::vector<ParcoursExport> parcours_;
};

}  // namespace dorvane::interchange
