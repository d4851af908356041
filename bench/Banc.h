#pragma once

#include "doublures/SessionEssai.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"

#include <cstdlib>
#include <filesystem>

namespace dorvane::banc {

/// A session on a copy of the base, which the benchmarks may change.
struct Banc : doublures::SessionEssai {
    Banc() {
        const char* source = std::getenv("DORVANE_BENCH_LGD");
        if (source == nullptr) std::abort();
        std::filesystem::copy_file(source, dossier / "banc.LGD");
        shell::Demarrage(session);
        shell::MnuOuvrir(session, dossier / "banc.LGD");
        if (!session.BaseOuverte()) std::abort();
    }
    storage::Base& B() { return *session.base; }
};

/// The one of the process. DORVANE_BENCH_LGD names the base.
inline Banc& LeBanc() {
    static Banc banc;
    return banc;
}

}  // namespace dorvane::banc
