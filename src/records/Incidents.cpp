#include "records/Incidents.h"

#include "shell/Session.h"

#include <algorithm>
#include <string>
#include <utility>

namespace dorvane::records {

void DireIncident(shell::Session& session, storage::Incident incident, std::uint32_t numero) {
    const std::pair cherche{incident, numero};
    if (std::find(session.incidents.begin(), session.incidents.end(), cherche) ==
        session.incidents.end())
        return;
    const std::uint32_t message = incident == storage::Incident::EvenementAbime ? 3020 : 3021;
    session.dialogue.Informer(shell::Msg(message, std::to_string(numero)));
}

}  // namespace dorvane::records
