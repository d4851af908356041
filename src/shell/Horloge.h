#pragma once

#include <filesystem>
#include <optional>

namespace dorvane::shell {

/// A moment of local time. `mois` 1 to 12, `jour` 1 to 31, `annee` in full.
struct Moment {
    int annee = 1970;
    int mois = 1;
    int jour = 1;
    int heure = 0;
    int minute = 0;
    int seconde = 0;

    friend bool operator==(const Moment&, const Moment&) = default;
};

/// When the system says that a file was last changed; nothing when it does not.
[[nodiscard]] std::optional<Moment> MomentDuFichier(const std::filesystem::path& chemin);

/// The only way to know the time: a file that bears a date is then the same at every test.
class Horloge {
public:
    virtual ~Horloge() = default;
    [[nodiscard]] virtual Moment Maintenant() const = 0;
};

/// The clock of the machine, in local time.
class HorlogeSysteme final : public Horloge {
public:
    [[nodiscard]] Moment Maintenant() const override;
};

}  // namespace dorvane::shell
