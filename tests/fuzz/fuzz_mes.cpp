// links: shell
// Any bytes as a catalogue: texts are read without a crash and never hold more than 199 bytes.
#include "shell/Catalogue.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    dorvane::shell::Catalogue catalogue;
    catalogue.Ouvrir([=](std::uint64_t decalage, std::span<char> sortie) -> std::size_t {
        if (decalage >= taille) return 0;
        const std::size_t n = std::min(sortie.size(), taille - static_cast<std::size_t>(decalage));
        std::memcpy(sortie.data(), donnees + decalage, n);
        return n;
    });
    for (const std::uint32_t numero :
         {0U, 1U, 2U, 21U, 1000U, 1001U, 2400U, 31999U, 32000U, 32001U}) {
        const dorvane::NoMessage no{numero};
        if (catalogue.Message(no).size() > 199) std::abort();
        static_cast<void>(catalogue.Composer(dorvane::shell::Msg(no, "&2", "&1")));
    }
    return 0;
}
