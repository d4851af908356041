#include "records/Questions.h"

#include "records/NomsAffiches.h"
#include "shell/Session.h"

#include <utility>

namespace dorvane::records {

shell::Phrase Nommer(shell::Session& session, std::uint32_t message, NoOrdre premier,
                     NoOrdre second) {
    return shell::Msg(message, NomAffiche(session, premier), NomAffiche(session, second));
}

bool Refuser(shell::Session& session, const shell::Phrase& motif) {
    session.dialogue.Informer(motif);
    return false;
}

bool ConfirmerRetrait(shell::Session& session, shell::Phrase perte) {
    perte.suite = NoMessage{617};
    return session.dialogue.Confirmer(
        {std::move(perte), shell::Msg(618), shell::Boutons::OuiNon, shell::Reponse::Non, true});
}

}  // namespace dorvane::records
