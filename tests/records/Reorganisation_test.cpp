// A base that was edited as the windows let one do it fits together before and after.
#include "shell/Reorganisation.h"

#include "doublures/Coherence.h"
#include "doublures/ContenuBase.h"
#include "doublures/HistoireEssai.h"
#include "records/BureauSoin.h"
#include "records/Depannage.h"

using namespace dorvane;

TEST_CASE("Reorganisation: after any day of editing all facts still stand in both places") {
    for (std::uint32_t graine = 1; graine <= 15; ++graine) {
        CAPTURE(graine);
        records::BureauSoin bureau{graine % 2 == 0 ? TypeTri::Naissance : TypeTri::Nom};
        doublures::HistoireEssai histoire{bureau, graine};
        for (int tour = 0; tour < 3; ++tour) {
            for (int i = 0; i < 100; ++i) {
                bureau.dialogue.reponses.assign(8, histoire.Repondre());
                histoire.Agir();
            }
            bureau.dialogue.reponses.clear();
            REQUIRE(doublures::Ecarts(bureau.B()) == "");
            const std::string contenu = storage::ContenuBase{bureau.B()}.Texte();
            REQUIRE(shell::ReorganiserBase(bureau.session, false).cause == shell::Cause::Fait);
            CHECK(doublures::Ecarts(bureau.B()) == "");
            CHECK(storage::ContenuBase{bureau.B()}.Texte() == contenu);
            CHECK(records::DepannerBase(bureau.session, false).reparations == 0);
        }
    }
}
