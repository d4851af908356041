#pragma once

#include <ctime>

namespace dorvane::windows {

/// What the program itself has worked since the object was made or last asked, in milliseconds.
/// Waiting, and whatever else the machine does meanwhile, do not count.
class TempsProcesseur {
public:
    [[nodiscard]] long Relever() {
        const std::clock_t avant = depuis_;
        depuis_ = std::clock();
        return static_cast<long>((depuis_ - avant) / (CLOCKS_PER_SEC / 1000));
    }

private:
    std::clock_t depuis_ = std::clock();
};

}  // namespace dorvane::windows
