#pragma once

#include "storage/ActionListe.h"
#include "storage/Documents.h"
#include "storage/EnTete.h"
#include "storage/Evenements.h"
#include "storage/Marques.h"
#include "storage/Progression.h"
#include "storage/TableTri.h"
#include "storage/Textes.h"
#include "storage/Volume.h"
#include "values/Noms.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

/// What a person is sorted by.
struct ElementTri {
    std::string_view nom;
    std::string_view prenom;
    std::string_view annee;  ///< year of birth as its cell holds it
};

/// Who has the names and years at hand during a full sort. The views live until the next call.
class FournisseurNoms {
public:
    FournisseurNoms() = default;
    virtual ~FournisseurNoms() = default;
    FournisseurNoms(const FournisseurNoms&) = delete;
    FournisseurNoms& operator=(const FournisseurNoms&) = delete;
    [[nodiscard]] virtual ElementTri ElementDe(NoOrdre n) = 0;
};

/// The three tables: persons, documents, events. Ranks count from 1.
class TablesTri {
public:
    TablesTri(Volume& volume, Marques& marques, EnTete& entete, ReglesNoms& regles,
              ColonneNoms& noms, ColonneAnnees<NoOrdre>& naissances, Evenements& evenements,
              Documents& documents);

    /// The three loads at opening.
    void ChargerTris();

    /// The record at a rank; 0 for rank 0 and above the count of the header.
    [[nodiscard]] NoOrdre IndividuAuRang(std::uint32_t rang) const;
    [[nodiscard]] NoEvenement EvtAuRang(std::uint32_t rang) const;
    [[nodiscard]] NoDocument DocumentAuRang(std::uint32_t rang) const;

    /// Sets an entry; a rank just behind the last one appends. Sets the mark of the table.
    void FixerRang(std::uint32_t rang, NoOrdre n);
    void FixerRang(std::uint32_t rang, NoEvenement e);
    void FixerRang(std::uint32_t rang, NoDocument d);

    /// The rank of a person; 0 when not found under the key that the person has now.
    [[nodiscard]] std::uint32_t RangIndividu(NoOrdre n);
    /// The rank of an event or document, by a walk; 0 when there is none.
    [[nodiscard]] std::uint32_t RangEvt(NoEvenement e) const;
    [[nodiscard]] std::uint32_t RangDocument(NoDocument d) const;
    /// The rank where a person who is not in the table goes: behind equal keys.
    [[nodiscard]] std::uint32_t RangInsertion(NoOrdre n);

    /// Inserts `n` at the rank or removes it. The caller changes `NbTriIndividus`, before or after,
    /// and sets `ModifTriIndividus`. A removal that does not find `n` is told as an incident and
    /// goes on.
    void ModifierTri(std::uint32_t rang, NoOrdre n, ActionListe action);
    /// The same with the count and the mark: the ordinary way to add or take away a person.
    void AjouterIndividu(NoOrdre n);
    void RetirerIndividu(NoOrdre n);
    /// Removes an event or document, with the count and the mark.
    void RetirerEvt(NoEvenement e);
    void RetirerDocument(NoDocument d);
    /// Adds an event or document at its place, with the count and the mark.
    void AjouterEvt(NoEvenement e);
    void AjouterDocument(NoDocument d);

    /// Sorts the persons in the table by the key of `TypeTri`, equal keys in the order in which
    /// they stand; without a key by number. Shows in the frame of the caller. False when the user
    /// gave up: the table is as before.
    bool TrierIndividus(Progression& progression);
    /// The same with names and years that the caller has in memory.
    bool TrierIndividus(FournisseurNoms& noms, Progression& progression);
    /// Sorts the events by date, or the documents by folded title, equal ones as they stand.
    void TrierEvenements();
    void TrierDocuments();

    /// The key of a person under `TypeTri`; empty where there is none.
    [[nodiscard]] std::string CleDe(NoOrdre n);

    /// Writes a table if its mark is set, and clears the mark.
    void EcrireTriIndividus();
    void EcrireTriEvenements();
    void EcrireTriDocuments();

    TableTri individus;
    TableTri documents;
    TableTri evenements;

private:
    const ReglesNoms& Regles();

    Marques& marques_;
    EnTete& entete_;
    ReglesNoms& regles_;
    ColonneNoms& noms_;
    ColonneAnnees<NoOrdre>& naissances_;
    Evenements& evt_;
    Documents& doc_;
    NoOrdre noMemo_{};
    std::uint32_t rangMemo_ = 0;
};

}  // namespace dorvane::storage
