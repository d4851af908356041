#include "windows/controles/Remplaces.h"

#include "messages/Fiche.h"
#include "shell/Session.h"

namespace dorvane::windows {

bool AccepterRemplaces(shell::Session& session, std::size_t remplaces) {
    return remplaces == 0 || session.dialogue.Confirmer(shell::Msg(
                                 message::ConfirmerCaracteresPerdus, std::to_string(remplaces)));
}

}  // namespace dorvane::windows
