#include "records/ControleEvenements.h"

#include "records/AccordEvenements.h"
#include "storage/Base.h"

#include <optional>
#include <string>
#include <vector>

namespace dorvane::records {
namespace {

struct ConstatsEvt {
    SorteConstat date;
    SorteConstat lieu;
};

/// What is told when an event differs from `miroir`, which is not `Aucun`.
ConstatsEvt ConstatsDe(MiroirFiche miroir) {
    switch (miroir) {
        case MiroirFiche::Naissance:
            return {SorteConstat::DateNaissanceDiffere, SorteConstat::LieuNaissanceDiffere};
        case MiroirFiche::Deces:
            return {SorteConstat::DateDecesDiffere, SorteConstat::LieuDecesDiffere};
        case MiroirFiche::Bapteme:
            return {SorteConstat::DateBaptemeDiffere, SorteConstat::LieuBaptemeDiffere};
        case MiroirFiche::Inhumation:
            return {SorteConstat::DateInhumationDiffere, SorteConstat::LieuInhumationDiffere};
        case MiroirFiche::Mariage:
        case MiroirFiche::Aucun:
            break;
    }
    return {SorteConstat::DateMariageDiffere, SorteConstat::LieuMariageDiffere};
}

}  // namespace

void ControlerEvenements(shell::Session& session, NoOrdre individu,
                         const std::function<void(SorteConstat)>& dire) {
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
                dire(SorteConstat::EvenementMariageSansUnion);
                continue;
            }
            fiche = LireUnion(session, m);
        } else {
            fiche = LireFiche(session, individu, miroir);
        }
        if (!fiche) continue;
        const ConstatsEvt constats = ConstatsDe(miroir);
        if (fiche->date != fait.date) dire(constats.date);
        if (!MemeLieu(fiche->lieu, fait.lieu)) dire(constats.lieu);
    }
}

}  // namespace dorvane::records
