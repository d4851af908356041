#pragma once

#include "shell/Session.h"
#include "storage/Base.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::records {

/// What the phases of a repair share: the base, who lives in it, and the journal.
class AtelierDepannage {
public:
    /// A base is open in `session`, which outlives the object.
    explicit AtelierDepannage(shell::Session& ouverte)
        : session{ouverte},
          base{*ouverte.base},
          dernierConnu{ouverte.base->entete.DernierIndividu},
          vivants(1ULL << 16U) {}

    shell::Session& session;
    storage::Base& base;
    const std::uint32_t dernierConnu;  ///< highest number of a person when the repair began
    std::vector<bool> vivants;         ///< by number: the persons of the sort table at that time
    std::string journal{};             ///< lines ended by a line feed, code page 1252
    std::uint32_t reparations = 0;

    /// While the screen lives the user may create a person: a number is never given twice.
    [[nodiscard]] bool Vivant(NoOrdre n) const {
        if (n.valeur > dernierConnu) return n.valeur <= base.entete.DernierIndividu;
        return n.valeur < vivants.size() && vivants[n.valeur];
    }
    /// Name and life dates.
    [[nodiscard]] std::string Nommer(NoOrdre n) const;

    /// One repair: what was done, and to what.
    void Noter(std::string_view fait, std::string_view detail);
    /// A line about what could not be mended.
    void Regretter(NoMessage message, std::string_view valeur);

    /// Begins a phase under its own text.
    void Phase(std::string_view litteral);
    void Phase(NoMessage message);
    /// Between two records. False: the job ends.
    [[nodiscard]] bool Continuer(std::uint32_t fait, std::uint32_t total);
};

/// The sort tables: ranks that name nobody or somebody twice go, living persons who are missing
/// come, and an order that is broken is made anew. Fills `vivants`. These answer false once the
/// user has given up.
[[nodiscard]] bool DepannerTris(AtelierDepannage& atelier);
/// Unions against the lists of their partners.
[[nodiscard]] bool DepannerMariages(AtelierDepannage& atelier);
/// Parents against lists of children, and lists against the cells.
[[nodiscard]] bool DepannerPersonnes(AtelierDepannage& atelier);
/// Links, events and documents against the lists of persons.
[[nodiscard]] bool DepannerFaits(AtelierDepannage& atelier);
/// The word index against the texts.
[[nodiscard]] bool DepannerIndex(AtelierDepannage& atelier);

}  // namespace dorvane::records
