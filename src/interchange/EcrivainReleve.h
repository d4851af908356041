#pragma once

#include "interchange/LectureActe.h"
#include "interchange/Releve.h"
#include "interchange/SlotsImport.h"
#include "storage/Base.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// A person of an act. The first given name is the one in use, the rest are further ones.
struct PersonneActe {
    std::string_view nom;
    std::string_view prenoms;
    char sexe = 'I';
    DateLue naissance{};
    std::string_view lieuNaissance{};
    DateLue deces{};
    std::string_view lieuDeces{};
    DateLue inhumation{};
    std::string_view lieuInhumation{};
    std::string_view profession{};
    std::string note{};

    [[nodiscard]] bool EstVide() const { return nom.empty() && prenoms.empty(); }
};

/// Writes the records of a survey into a new base: keywords, persons, events, unions, and the
/// tables at the end.
class EcrivainReleve {
public:
    /// `base` is new and outlives the object. The keywords of the kind get numbers from 1.
    EcrivainReleve(storage::Base& base, SorteReleve sorte);

    /// There is room for the persons of one more act, and for its event.
    [[nodiscard]] bool APlace() const;

    /// 0 for an empty person.
    NoOrdre Creer(const PersonneActe& personne);
    /// Both parents, either of which may be 0.
    void Rattacher(NoOrdre enfant, NoOrdre pere, NoOrdre mere);
    /// 0 when either partner is missing.
    NoMariage Unir(NoOrdre epoux, NoOrdre epouse, const DateLue& date, std::string_view lieu);

    struct Evenement {
        std::string_view tag;
        std::optional<Serie> jour;
        std::string_view lieu;
        std::string titre;
        std::string texte;
    };
    /// An event with its participants, roles as tags, linked to document 1.
    void CreerEvenement(const Evenement& evenement,
                        const std::vector<storage::LienEvenement>& participants);
    /// Document 1, which names the file and the kind of survey.
    void CreerDocument(const std::string& titre, const std::string& fichier);

    /// Sort tables, slots and word lists.
    void Terminer();

private:
    [[nodiscard]] std::string Texte(const PersonneActe& personne, const std::string& motsCles,
                                    const std::string& autres);

    storage::Base& base_;
    MarqueursImport marqueurs_;
    SlotsImport slots_;
    char marqueAutres_ = '\0';
};

}  // namespace dorvane::interchange
