#pragma once

#include "interchange/gedcom/FamillesImport.h"
#include "interchange/gedcom/FicheGedcom.h"
#include "interchange/gedcom/LiensImport.h"
#include "interchange/gedcom/TableCles.h"
#include "values/Sexe.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// Reads the records of families, second pass: parents and children are linked as the lines come,
/// a union is made at the end of a family that has both partners.
class LecteurFamille {
public:
    LecteurFamille(const ContexteImport& contexte, SlotsImport& slots, LiensImport& liens,
                   FamillesImport& familles, const ClesImport& cles)
        : contexte_{contexte},
          liens_{liens},
          familles_{familles},
          cles_{cles},
          fiche_{contexte, slots} {}

    /// The line of level 0.
    void Commencer(const LigneGedcom& ligne);
    /// A line of level 1 or deeper.
    void Lire(const LigneGedcom& ligne);
    /// Writes the union, if there is one, and answers it. Its text stays in `Texte`.
    NoMariage Terminer();

    [[nodiscard]] const std::string& Texte() const { return texte_; }
    /// Whom the record names, until the next one begins.
    [[nodiscard]] NoOrdre Epoux() const { return epoux_; }
    [[nodiscard]] NoOrdre Epouse() const { return epouse_; }
    [[nodiscard]] const std::vector<NoOrdre>& Enfants() const { return enfants_; }

private:
    void LireNiveau1(const LigneGedcom& ligne);
    void LirePartenaire(const LigneGedcom& ligne, Cote cote);
    void LireEnfant(const LigneGedcom& ligne);
    bool LireSousLigne(const LigneGedcom& ligne);
    bool LireNote(const LigneGedcom& ligne);
    void LireSource(const LigneGedcom& ligne);
    void Participer();
    NoOrdre Trouver(const LigneGedcom& ligne);

    struct Source {
        std::string_view cle;
        LigneGedcom ligne;
        std::optional<LigneGedcom> role;
    };
    ContexteImport contexte_;
    LiensImport& liens_;
    FamillesImport& familles_;
    const ClesImport& cles_;
    FicheGedcom fiche_;
    LigneGedcom debut_;
    NoOrdre epoux_;
    NoOrdre epouse_;
    std::vector<NoOrdre> enfants_;
    /// Lines of the children who have one parent so far.
    std::vector<std::uint32_t> lignesEnfants_;
    std::vector<Source> sources_;
    bool contenu_ = false;  ///< the record holds more than its members
    std::string texte_;
};

}  // namespace dorvane::interchange
