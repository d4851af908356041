#pragma once

#include <string>
#include <string_view>

namespace dorvane {

/// `texte` with every embedded rich-text segment (from "{\rtf1" to its closing brace, or to the end
/// when it is missing) reduced to its plain text; what stands around the segments stays.
/// Paragraphs become a carriage return and a line feed; a character that code page 1252 lacks
/// becomes "?". Nothing makes it fail: groups nested past 100 levels are left out.
///
/// Without any segment the answer is `texte` itself and costs no copy; otherwise it is a view of
/// `tampon`, whose former content is lost, and which `texte` must not be a view of.
[[nodiscard]] std::string_view TexteSansRtf(std::string_view texte, std::string& tampon);

}  // namespace dorvane
