#pragma once

#include "storage/Base.h"
#include "storage/Progression.h"

#include <cstdint>
#include <filesystem>

namespace dorvane::storage {

enum class IssueReorganisation {
    Faite,
    Abandonnee,  ///< the user gave up
    Refusee,     ///< the system refuses to write the new file, or does not give it back as written
    TropAbimee,  ///< records run into one another: the new file would be far longer than the old
};

/// What became of the content.
struct BilanReorganisation {
    IssueReorganisation issue = IssueReorganisation::Refusee;
    std::uint32_t unionsSansEpoux = 0;   ///< unions left out, with their texts
    std::uint32_t documentsAbimes = 0;   ///< records without an end: copied as empty ones
    std::uint32_t evenementsAbimes = 0;  ///< the same for events
    std::uint64_t tailleAvant = 0;       ///< bytes of the old file
    std::uint64_t tailleApres = 0;       ///< bytes of the new one
};

/// Writes all that lives in `source` into a new file at `vers`, densely and strictly forward, and
/// checks that it reads back. Persons keep their numbers; documents, events, unions and entries of
/// the index get new ones without holes. `source` is as it was, and `vers` is gone, unless `Faite`.
/// The labels of `source` are neutral (`ConvertirAncienne`). The caller holds the lock of `vers`.
[[nodiscard]] BilanReorganisation ReorganiserVers(Disque& disque, Base& source,
                                                  const std::filesystem::path& vers,
                                                  Progression& progression);

}  // namespace dorvane::storage
