#include "records/Incidents.h"

#include "messages/Faits.h"
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
    const NoMessage message = incident == storage::Incident::EvenementAbime
                                  ? message::IncidentEvenement
                                  : message::IncidentDocument;
    session.dialogue.Informer(shell::Msg(message, std::to_string(numero)));
}

}  // namespace dorvane::records
