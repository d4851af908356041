#pragma once

#include "shell/Horloge.h"

namespace dorvane::doublures {

/// A clock that stands still: 14 July 2005, 15:16:17.
class HorlogeFixe final : public shell::Horloge {
public:
    shell::Moment moment{2005, 7, 14, 15, 16, 17};

    [[nodiscard]] shell::Moment Maintenant() const override { return moment; }
};

}  // namespace dorvane::doublures
