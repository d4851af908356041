#pragma once

#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>

namespace dorvane::records {

/// The kinds of findings of a check, in the order in which they are listed: the person, father,
/// mother, their union, children, unions, events.
enum class SorteConstat : std::uint8_t {
    HorsOrdreDeTri,
    SexeIndetermine,
    AnneeNaissanceAbsente,
    NomAbsent,
    PrenomAbsent,
    PersonneIsolee,
    DecesAvantNaissance,
    DecesPlusDe100AnsApresNaissance,
    PereNonMasculin,
    AbsentDesEnfantsDuPere,
    PerePasNeAvantEnfant,
    PereMoinsDe10Ans,
    PerePlusDe75Ans,
    NaissancePlusDe10AnsApresDecesPere,
    NaissancePlusDUnAnApresDecesPere,
    NaissanceAvantCelleDuPere,
    MereNonFeminine,
    AbsentDesEnfantsDeLaMere,
    MerePasNeeAvantEnfant,
    MereMoinsDe10Ans,
    MerePlusDe50Ans,
    NaissancePlusDe10AnsApresDecesMere,
    NaissanceAvantCelleDeLaMere,
    ParentsConnusPereSansUnion,
    UnionParentsDebuteApresNaissance,
    UnionParentsFinieAvantNaissance,
    EnfantAvecAutrePere,
    EnfantAvecAutreMere,
    ParentDeSexeIndetermine,
    UnionAvecAutreEpoux,
    UnionAvecAutreEpouse,
    FinUnionAvantDebut,
    UnionAvantNaissance,
    UnionApresDeces,
    FinUnionAvantNaissance,
    FinUnionApresDeces,
    DateNaissanceDiffere,
    LieuNaissanceDiffere,
    DateDecesDiffere,
    LieuDecesDiffere,
    DateBaptemeDiffere,
    LieuBaptemeDiffere,
    DateInhumationDiffere,
    LieuInhumationDiffere,
    DateMariageDiffere,
    LieuMariageDiffere,
    EvenementMariageSansUnion,
};

inline constexpr std::size_t NbSortesConstat =
    static_cast<std::size_t>(SorteConstat::EvenementMariageSansUnion) + 1;

/// The sentence that tells a finding of this kind.
[[nodiscard]] NoMessage MessageDe(SorteConstat sorte);

}  // namespace dorvane::records
