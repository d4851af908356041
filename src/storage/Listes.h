#pragma once

#include "storage/ActionListe.h"
#include "storage/Colonnes.h"

#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

class Evenements;

inline constexpr std::size_t MaxElements = 200;     ///< entries of a list that are ever read
inline constexpr std::size_t MaxTexteElement = 49;  ///< bytes of a label or role when written

/// Lists that hang on persons: the cell is the position of a record of entries that ends with two
/// bytes 0. A record is never changed in place. At most 200 entries are read.
class ColonneListe : public Colonne<NoOrdre, FormePosition> {
public:
    ColonneListe(Volume& volume, Marques& marques, std::size_t tailleElement)
        : Colonne{volume, marques}, tailleElement_{tailleElement} {}
    virtual ~ColonneListe() = default;
    ColonneListe(const ColonneListe&) = delete;
    ColonneListe& operator=(const ColonneListe&) = delete;

    /// The entries as they stand, without the end mark; valid until the next call on this column.
    [[nodiscard]] std::string_view ListeDe(NoOrdre n);
    /// 0 to 200.
    [[nodiscard]] std::size_t NbElements(NoOrdre n) { return ListeDe(n).size() / tailleElement_; }
    /// Stores a whole list: `octets` are entries without the end mark; empty takes the list away.
    void EcrireListe(NoOrdre n, std::string_view octets);
    void InitColonne();

protected:
    /// First two bytes of entry `k`, from 1; 0 past the end.
    [[nodiscard]] std::uint32_t Tete(NoOrdre n, std::size_t k);

    std::size_t tailleElement_;

private:
    std::string memo_;
    NoOrdre noMemo_{};
};

/// Entries of 2 bytes: numbers of unions (`R_MARIAG`) or documents (`R_LSTIMG`).
template <class Element>
class ListeNumeros : public ColonneListe {
public:
    /// `perime`: a change makes the display stale.
    ListeNumeros(Volume& volume, Marques& marques, bool perime)
        : ColonneListe{volume, marques, 2}, perime_{perime} {}

    /// Entry `k`, from 1; 0 past the end.
    [[nodiscard]] Element ElementListe(NoOrdre n, std::size_t k) { return Element{Tete(n, k)}; }
    [[nodiscard]] std::vector<Element> Elements(NoOrdre n);
    /// Puts `element` at its place, or cuts out the first equal one.
    void ModifierListe(NoOrdre n, Element element, ActionListe action);

protected:
    /// Where a new `element` goes: an offset in `liste`. At the end, unless the list has an order.
    [[nodiscard]] virtual std::size_t Place(std::string_view liste, Element element);

private:
    bool perime_;
};

/// `R_ENFANT`: children by year of birth, equal years in order of arrival.
class ListeEnfants final : public ListeNumeros<NoOrdre> {
public:
    ListeEnfants(Volume& volume, Marques& marques, ColonneAnnees<NoOrdre>& naissances)
        : ListeNumeros{volume, marques, true}, naissances_{naissances} {}

protected:
    [[nodiscard]] std::size_t Place(std::string_view liste, NoOrdre enfant) override;

private:
    ColonneAnnees<NoOrdre>& naissances_;
};

/// Entries of 6 bytes: a number and the position of a text of at most 49 bytes.
template <class Element>
class ListeTextes : public ColonneListe {
public:
    ListeTextes(Volume& volume, Marques& marques) : ColonneListe{volume, marques, 6} {}

    /// Number of entry `k`, from 1; 0 past the end.
    [[nodiscard]] Element ElementListe(NoOrdre n, std::size_t k) { return Element{Tete(n, k)}; }
    /// Text of entry `k` as stored; empty past the end.
    [[nodiscard]] std::string TexteElement(NoOrdre n, std::size_t k);
    /// An entry for `EcrireListe`: `texte` is appended, cut to 49 bytes.
    [[nodiscard]] std::string ComposerElement(Element element, std::string_view texte);
    /// Adds an entry with this text, or cuts out the one that the kind of list looks for.
    void ModifierListe(NoOrdre n, Element element, ActionListe action, std::string_view texte = {});
    /// Gives entry `k`, from 1, a new text; past the end nothing happens.
    void ChangerTexte(NoOrdre n, std::size_t k, std::string_view texte);

protected:
    /// Which entry a removal cuts out: its rank from 1, 0 for none.
    [[nodiscard]] virtual std::size_t Chercher(NoOrdre n, Element element,
                                               std::string_view texte) = 0;
    /// After an entry was added.
    virtual void Ranger(NoOrdre n) = 0;
};

/// `R_LIEN`: other persons with the label of the link, in order of creation. A removal cuts
/// out the first entry with that person and that label.
class ListeLiens final : public ListeTextes<NoOrdre> {
public:
    using ListeTextes::ListeTextes;

protected:
    [[nodiscard]] std::size_t Chercher(NoOrdre n, NoOrdre autre, std::string_view libelle) override;
    void Ranger(NoOrdre /*n*/) override {}
};

/// `R_LSTEVT`: events with the role of the person, by date. A removal cuts out the first entry
/// with that event.
class ListeEvenements final : public ListeTextes<NoEvenement> {
public:
    ListeEvenements(Volume& volume, Marques& marques, Evenements& evenements)
        : ListeTextes{volume, marques}, evenements_{evenements} {}

    /// Puts the events of the person back in the order of their dates. Nothing is written if they
    /// are.
    void TrierEvenements(NoOrdre n);

protected:
    [[nodiscard]] std::size_t Chercher(NoOrdre n, NoEvenement evenement,
                                       std::string_view role) override;
    void Ranger(NoOrdre n) override { TrierEvenements(n); }

private:
    Evenements& evenements_;
};

}  // namespace dorvane::storage
