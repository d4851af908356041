#include "interchange/gedcom/TitreDocument.h"

namespace dorvane::interchange {

namespace {

constexpr std::size_t TitreLePlusLong = 60;

}  // namespace

std::string TitreDocument(std::string_view note) {
    note = note.substr(0, note.find_first_of("\r\n"));
    if (note.size() <= TitreLePlusLong) return std::string{note};
    note = note.substr(0, TitreLePlusLong);
    const std::size_t blanc = note.rfind(' ');
    if (blanc != std::string_view::npos && blanc > TitreLePlusLong / 2)
        note = note.substr(0, blanc);
    return std::string{note} + "...";
}

}  // namespace dorvane::interchange
