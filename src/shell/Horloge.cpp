#include "shell/Horloge.h"

#include <sys/stat.h>

#include <ctime>

namespace dorvane::shell {

namespace {

Moment EnHeureLocale(std::time_t instant) {
    std::tm local{};
    if (localtime_r(&instant, &local) == nullptr) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

}  // namespace

Moment HorlogeSysteme::Maintenant() const {
    return EnHeureLocale(std::time(nullptr));
}

std::optional<Moment> MomentDuFichier(const std::filesystem::path& chemin) {
    struct stat etat {};
    if (stat(chemin.c_str(), &etat) != 0) return std::nullopt;
    return EnHeureLocale(etat.st_mtime);
}

}  // namespace dorvane::shell
