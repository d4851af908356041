#include "windows/controles/Remplaces.h"

#include "shell/Session.h"

namespace dorvane::windows {

bool AccepterRemplaces(shell::Session& session, std::size_t remplaces) {
    return remplaces == 0 ||
           session.dialogue.Confirmer(shell::Msg(2610, std::to_string(remplaces)));
}

}  // namespace dorvane::windows
