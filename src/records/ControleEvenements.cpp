#include "records/ControleEvenements.h"

#include "records/AccordEvenements.h"
#include "storage/Base.h"

#include <optional>
#include <string>
#include <vector>

namespace dorvane::records {
namespace {

struct MessagesEvt {
    std::uint32_t date;
    std::uint32_t lieu;
};

MessagesEvt MessagesDe(MiroirFiche miroir) {
    switch (miroir) {
        case MiroirFiche::Naissance:
            return {494, 493};
        case MiroirFiche::Deces:
            return {492, 491};
        case MiroirFiche::Bapteme:
            return {480, 479};
        case MiroirFiche::Inhumation:
            return {482, 481};
        case MiroirFiche::Mariage:
            return {490, 489};
        case MiroirFiche::Aucun:
            break;
    }
    return {};
}

constexpr std::uint32_t UnionInconnue = 488;

}  // namespace

void ControlerEvenements(shell::Session& session, NoOrdre individu,
                         const std::function<void(std::uint32_t)>& dire) {
    storage::Base& base = *session.base;
    const std::size_t nombre = base.R_LSTEVT.NbElements(individu);
    for (std::size_t k = 1; k <= nombre; ++k) {
        const NoEvenement e = base.R_LSTEVT.ElementListe(individu, k);
        if (!base.R_EVT.LireCellule(e)) continue;
        const MiroirFiche miroir =
            MiroirDe(base.R_EVT.TypeEvt(e), base.R_LSTEVT.TexteElement(individu, k));
        if (miroir == MiroirFiche::Aucun) continue;
        const DateEtLieu fait = LireEvenement(session, e);
        std::optional<DateEtLieu> fiche;
        if (miroir == MiroirFiche::Mariage) {
            const NoMariage m =
                UnionRacontee(base, base.R_EVT.Liens(e), individu, CouperDate(fait.date).annee);
            if (!m) {
                dire(UnionInconnue);
                continue;
            }
            fiche = LireUnion(session, m);
        } else {
            fiche = LireFiche(session, individu, miroir);
        }
        if (!fiche) continue;
        const MessagesEvt messages = MessagesDe(miroir);
        if (fiche->date != fait.date) dire(messages.date);
        if (!MemeLieu(fiche->lieu, fait.lieu)) dire(messages.lieu);
    }
}

}  // namespace dorvane::records
