#include "windows/faits/ModeleEvenements.h"

#include "records/FicheEvenement.h"
#include "records/NomsAffiches.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Octets.h"

namespace dorvane::windows {

ModeleEvenements::ModeleEvenements(shell::Session& session, QObject* parent)
    : ModeleListe{session, NbColonnes, "FrmLstEvt", "GrdEvts", parent} {}

std::vector<std::uint32_t> ModeleEvenements::Numeros(const shell::Session& session) {
    if (!session.base) return {};
    const std::vector<std::uint16_t>& tri = session.base->R_TRI.evenements.Numeros();
    return {tri.begin(), tri.end()};
}

std::string ModeleEvenements::Texte(std::uint32_t numero, int colonne) const {
    const NoEvenement evenement{numero};
    if (colonne == Personnes) {
        std::string noms;
        for (const storage::LienEvenement& lien : S().base->R_EVT.Liens(evenement)) {
            if (!noms.empty()) noms += ", ";
            noms += records::NomAffiche(S(), lien.individu);
        }
        return noms;
    }
    if (colonne == Date) return records::LigneDe(S(), evenement).date;
    const storage::DescriptionEvt& description = S().base->R_EVT.Description(evenement);
    switch (colonne) {
        case Type:
            return shell::LibelleDeTag(S().catalogue, description.type);
        case Libelle:
            return description.libelle;
        default:
            return description.lieu;
    }
}

std::string ModeleEvenements::Cle(std::uint32_t numero, int colonne) const {
    if (colonne != Date) return ModeleListe::Cle(numero, colonne);
    // Stored keys are positive.
    const std::int64_t cle = S().base->R_EVT.CleDateEvt(NoEvenement{numero});
    return NumVersChaine4(static_cast<std::uint32_t>(cle - storage::CleSansDate));
}

}  // namespace dorvane::windows
