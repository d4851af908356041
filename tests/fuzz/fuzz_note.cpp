// links: values
// Any bytes as a note: it is read, written and read again without a crash, and a note that is not
// simple keeps its form from then on.
#include "values/NoteRiche.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    const std::string octets{donnees, donnees + taille};
    const std::string une = dorvane::EcrireNoteRiche(dorvane::LireNoteRiche(octets));
    const std::string deux = dorvane::EcrireNoteRiche(dorvane::LireNoteRiche(une));
    // Each reading of endless braces unwraps a hundred of them.
    const bool profonde = std::ranges::count(octets, '{') > 90;
    if (une != deux && !profonde && octets.starts_with("{\\rtf1")) std::abort();
    return 0;
}
