#pragma once

#include "interchange/gedcom/SlotsImport.h"
#include "interchange/releves/LectureActe.h"
#include "interchange/releves/Releve.h"
#include "storage/Base.h"
#include "values/Sexe.h"

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
    Sexe sexe = Sexe::Indetermine;
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

/// The event of an act.
struct EvenementActe {
    std::string_view tag;
    std::optional<Serie> jour;
    std::string_view lieu;
    std::string titre;
    std::string texte;
};

/// Where the records of the acts go.
class SortieActes {
public:
    SortieActes() = default;
    virtual ~SortieActes() = default;
    SortieActes(const SortieActes&) = delete;
    SortieActes& operator=(const SortieActes&) = delete;

    /// There is room for so many persons more, and for an event.
    [[nodiscard]] virtual bool APlace(std::uint32_t personnes) const = 0;
    /// 0 for an empty person.
    virtual NoOrdre Creer(const PersonneActe& personne) = 0;
    /// Both parents, either of which may be 0.
    virtual void Rattacher(NoOrdre enfant, NoOrdre pere, NoOrdre mere) = 0;
    /// 0 when either partner is missing.
    virtual NoMariage Unir(NoOrdre epoux, NoOrdre epouse, const DateLue& date,
                           std::string_view lieu) = 0;
    /// An event with its participants, roles as tags, linked to document 1.
    virtual void CreerEvenement(const EvenementActe& evenement,
                                const std::vector<storage::LienEvenement>& participants) = 0;
};

/// Writes nothing: tells how many records there would be.
class CompteActes final : public SortieActes {
public:
    [[nodiscard]] bool APlace(std::uint32_t personnes) const override;
    NoOrdre Creer(const PersonneActe& personne) override;
    void Rattacher(NoOrdre /*enfant*/, NoOrdre /*pere*/, NoOrdre /*mere*/) override {}
    NoMariage Unir(NoOrdre epoux, NoOrdre epouse, const DateLue& date,
                   std::string_view lieu) override;
    void CreerEvenement(const EvenementActe& evenement,
                        const std::vector<storage::LienEvenement>& participants) override;

    std::uint32_t individus = 0;
    std::uint32_t unions = 0;
    std::uint32_t evenements = 0;
};

/// Writes the records of a survey into a new base: keywords, persons, events, unions, and the
/// tables at the end.
class EcrivainReleve final : public SortieActes {
public:
    /// `base` is new; both outlive the object. The keywords of the kind get numbers from 1.
    EcrivainReleve(storage::Base& base, const Releve& releve);

    [[nodiscard]] bool APlace(std::uint32_t personnes) const override;
    NoOrdre Creer(const PersonneActe& personne) override;
    void Rattacher(NoOrdre enfant, NoOrdre pere, NoOrdre mere) override;
    NoMariage Unir(NoOrdre epoux, NoOrdre epouse, const DateLue& date,
                   std::string_view lieu) override;
    void CreerEvenement(const EvenementActe& evenement,
                        const std::vector<storage::LienEvenement>& participants) override;
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
