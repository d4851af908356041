#include "records/SorteConstat.h"

#include "messages/Messages.h"

#include <iterator>
#include <utility>

namespace dorvane::records {

namespace {

constexpr std::pair<SorteConstat, NoMessage> Phrases[] = {
    {SorteConstat::HorsOrdreDeTri, message::ConstatHorsOrdreDeTri},
    {SorteConstat::SexeIndetermine, message::ConstatSexeIndetermine},
    {SorteConstat::AnneeNaissanceAbsente, message::ConstatAnneeNaissanceAbsente},
    {SorteConstat::NomAbsent, message::ConstatNomAbsent},
    {SorteConstat::PrenomAbsent, message::ConstatPrenomAbsent},
    {SorteConstat::PersonneIsolee, message::ConstatPersonneIsolee},
    {SorteConstat::DecesAvantNaissance, message::ConstatDecesAvantNaissance},
    {SorteConstat::DecesPlusDe100AnsApresNaissance,
     message::ConstatDecesPlusDe100AnsApresNaissance},
    {SorteConstat::PereNonMasculin, message::ConstatPereNonMasculin},
    {SorteConstat::AbsentDesEnfantsDuPere, message::ConstatAbsentDesEnfantsDuPere},
    {SorteConstat::PerePasNeAvantEnfant, message::ConstatPerePasNeAvantEnfant},
    {SorteConstat::PereMoinsDe10Ans, message::ConstatPereMoinsDe10Ans},
    {SorteConstat::PerePlusDe75Ans, message::ConstatPerePlusDe75Ans},
    {SorteConstat::NaissancePlusDe10AnsApresDecesPere,
     message::ConstatNaissancePlusDe10AnsApresDecesPere},
    {SorteConstat::NaissancePlusDUnAnApresDecesPere,
     message::ConstatNaissancePlusDUnAnApresDecesPere},
    {SorteConstat::NaissanceAvantCelleDuPere, message::ConstatNaissanceAvantCelleDuPere},
    {SorteConstat::MereNonFeminine, message::ConstatMereNonFeminine},
    {SorteConstat::AbsentDesEnfantsDeLaMere, message::ConstatAbsentDesEnfantsDeLaMere},
    {SorteConstat::MerePasNeeAvantEnfant, message::ConstatMerePasNeeAvantEnfant},
    {SorteConstat::MereMoinsDe10Ans, message::ConstatMereMoinsDe10Ans},
    {SorteConstat::MerePlusDe50Ans, message::ConstatMerePlusDe50Ans},
    {SorteConstat::NaissancePlusDe10AnsApresDecesMere,
     message::ConstatNaissancePlusDe10AnsApresDecesMere},
    {SorteConstat::NaissanceAvantCelleDeLaMere, message::ConstatNaissanceAvantCelleDeLaMere},
    {SorteConstat::ParentsConnusPereSansUnion, message::ConstatParentsConnusPereSansUnion},
    {SorteConstat::UnionParentsDebuteApresNaissance,
     message::ConstatUnionParentsDebuteApresNaissance},
    {SorteConstat::UnionParentsFinieAvantNaissance,
     message::ConstatUnionParentsFinieAvantNaissance},
    {SorteConstat::EnfantAvecAutrePere, message::ConstatEnfantAvecAutrePere},
    {SorteConstat::EnfantAvecAutreMere, message::ConstatEnfantAvecAutreMere},
    {SorteConstat::ParentDeSexeIndetermine, message::ConstatParentDeSexeIndetermine},
    {SorteConstat::UnionAvecAutreEpoux, message::ConstatUnionAvecAutreEpoux},
    {SorteConstat::UnionAvecAutreEpouse, message::ConstatUnionAvecAutreEpouse},
    {SorteConstat::FinUnionAvantDebut, message::ConstatFinUnionAvantDebut},
    {SorteConstat::UnionAvantNaissance, message::ConstatUnionAvantNaissance},
    {SorteConstat::UnionApresDeces, message::ConstatUnionApresDeces},
    {SorteConstat::FinUnionAvantNaissance, message::ConstatFinUnionAvantNaissance},
    {SorteConstat::FinUnionApresDeces, message::ConstatFinUnionApresDeces},
    {SorteConstat::DateNaissanceDiffere, message::ConstatDateNaissanceDiffere},
    {SorteConstat::LieuNaissanceDiffere, message::ConstatLieuNaissanceDiffere},
    {SorteConstat::DateDecesDiffere, message::ConstatDateDecesDiffere},
    {SorteConstat::LieuDecesDiffere, message::ConstatLieuDecesDiffere},
    {SorteConstat::DateBaptemeDiffere, message::ConstatDateBaptemeDiffere},
    {SorteConstat::LieuBaptemeDiffere, message::ConstatLieuBaptemeDiffere},
    {SorteConstat::DateInhumationDiffere, message::ConstatDateInhumationDiffere},
    {SorteConstat::LieuInhumationDiffere, message::ConstatLieuInhumationDiffere},
    {SorteConstat::DateMariageDiffere, message::ConstatDateMariageDiffere},
    {SorteConstat::LieuMariageDiffere, message::ConstatLieuMariageDiffere},
    {SorteConstat::EvenementMariageSansUnion, message::ConstatEvenementMariageSansUnion},
};

/// A kind is the place of its sentence.
constexpr bool ToutesALeurPlace() {
    if (std::size(Phrases) != NbSortesConstat) return false;
    for (std::size_t i = 0; i < NbSortesConstat; ++i)
        if (static_cast<std::size_t>(Phrases[i].first) != i) return false;
    return true;
}
static_assert(ToutesALeurPlace());

}  // namespace

NoMessage MessageDe(SorteConstat sorte) {
    return Phrases[static_cast<std::size_t>(sorte)].second;
}

}  // namespace dorvane::records
