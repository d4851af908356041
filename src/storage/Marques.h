#pragma once

#include "values/Numeros.h"

#include <cstdint>

namespace dorvane::storage {

enum class Incident {
    EvenementAbime,  ///< number of the event: its description has no end
    DocumentAbime,   ///< number of the document: its record or its note has no end
    TableDeTri,      ///< 0: a removal from the person table did not find the person
    IndexPlein,      ///< 0: a word was left out, the index or a list of it is full; told once
};

/// Who wants to know what happens in a base. Called in the middle of operations: nothing is written
/// to the base from here.
class Observateur {
public:
    Observateur() = default;
    virtual ~Observateur() = default;
    Observateur(const Observateur&) = delete;
    Observateur& operator=(const Observateur&) = delete;

    /// A father or mother cell of `enfant` was given `parent` (0: none).
    virtual void ParentChange(NoOrdre enfant, NoOrdre parent) = 0;
    virtual void Signaler(Incident incident, std::uint32_t numero) = 0;
};

/// What has changed since the last commit, and who is told.
struct Marques {
    bool ModifBase = false;  ///< any cell, record or field of the header
    bool ModifTriIndividus = false;
    bool ModifTriDocuments = false;
    bool ModifTriEvenements = false;
    bool AffichagePerime = false;        ///< the main display shows what is no longer true
    Observateur* observateur = nullptr;  ///< null: nobody is told

    [[nodiscard]] bool Modifie() const {
        return ModifBase || ModifTriIndividus || ModifTriDocuments || ModifTriEvenements;
    }
    void Signaler(Incident incident, std::uint32_t numero) const {
        if (observateur != nullptr) observateur->Signaler(incident, numero);
    }
};

}  // namespace dorvane::storage
