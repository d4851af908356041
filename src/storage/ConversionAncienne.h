#pragma once

#include "storage/Base.h"
#include "storage/Progression.h"

#include <functional>
#include <string>
#include <string_view>

namespace dorvane::storage {

/// How texts of an old base become language-neutral. Both receive and answer code page 1252.
struct ConversionsTextes {
    /// The tag of a label; a text that is no label comes back as it stands.
    std::function<std::string(std::string_view)> tagDeLibelle;
    /// The stored form of a date in words.
    std::function<std::string(std::string_view)> dateStockee;
};

/// Brings the labels and the dates in words of a base with `LibellesNeutres` "0" to the neutral
/// form, with the word index: keywords, links, roles, kinds of event, lines of slots, days and
/// months. Nothing is written before the commit, however much it is: the caller may give the base
/// up and the file is as it was. False when the user gave up, or when a reading failed: the base is
/// then `EnDefaut`. Nothing for a neutral base.
[[nodiscard]] bool ConvertirAncienne(Base& base, const ConversionsTextes& conversions,
                                     Progression& progression);

}  // namespace dorvane::storage
