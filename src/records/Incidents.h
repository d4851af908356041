#pragma once

#include "storage/Marques.h"

#include <cstdint>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// Tells that a record which is opened was found damaged; nothing when it was not.
void DireIncident(shell::Session& session, storage::Incident incident, std::uint32_t numero);

}  // namespace dorvane::records
