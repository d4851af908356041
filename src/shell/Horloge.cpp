#include "shell/Horloge.h"

#include <ctime>

namespace dorvane::shell {

Moment HorlogeSysteme::Maintenant() const {
    const std::time_t instant = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&instant, &local) == nullptr) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

}  // namespace dorvane::shell
