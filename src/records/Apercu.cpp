#include "records/Apercu.h"

#include "messages/Famille.h"
#include "records/Famille.h"
#include "records/ModeleFamille.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

namespace dorvane::records {

std::string ApercuDe(shell::Session& session, NoOrdre individu) {
    if (!session.BaseOuverte() || !Existe(*session.base, individu)) return {};
    std::string texte = session.catalogue.Composer(
        shell::Msg(message::NumeroDePersonne, std::to_string(individu.valeur)));
    const auto ajouter = [&](NoMessage message, NoOrdre n) {
        const std::string nom = NomEtDates(session, n);
        texte += " – "_1252;
        texte += session.catalogue.Composer(shell::Msg(message, SansBlancs(nom)));
    };
    for (const EntreeFamille& entree : EntreesFamille(*session.base, individu)) {
        if (entree.groupe == EntreeFamille::Groupe::Conjoints)
            ajouter(message::ApercuConjoint, entree.individu);
        else if (entree.groupe == EntreeFamille::Groupe::Parents)
            ajouter(session.base->R_PERE.LireCellule(individu) == entree.individu
                        ? message::ApercuPere
                        : message::ApercuMere,
                    entree.individu);
    }
    return texte;
}

}  // namespace dorvane::records
