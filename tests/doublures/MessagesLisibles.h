#pragma once

#include "messages/Noms.h"
#include "values/Numeros.h"

#include <ostream>
#include <vector>

namespace dorvane {

/// Lets a failed check print messages by their names.
inline std::ostream& operator<<(std::ostream& flux, NoMessage message) {
    return flux << (message ? message::Nom(message) : "none");
}

inline std::ostream& operator<<(std::ostream& flux, const std::vector<NoMessage>& messages) {
    for (const NoMessage message : messages)
        flux << '[' << message << ']';
    return flux;
}

}  // namespace dorvane
