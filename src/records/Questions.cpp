#include "records/Questions.h"

#include "messages/Messages.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"

#include <utility>

namespace dorvane::records {

shell::Phrase Nommer(shell::Session& session, NoMessage message, NoOrdre premier, NoOrdre second) {
    return shell::Msg(message, NomAffiche(session, premier), NomAffiche(session, second));
}

bool Refuser(shell::Session& session, const shell::Phrase& motif) {
    session.dialogue.Informer(motif);
    return false;
}

bool ConfirmerRetrait(shell::Session& session, shell::Phrase perte) {
    perte.suite = message::ConfirmerSuppression;
    return session.dialogue.Confirmer({std::move(perte), shell::Msg(message::TitreSuppression),
                                       shell::Boutons::OuiNon, shell::Reponse::Non, true});
}

}  // namespace dorvane::records
