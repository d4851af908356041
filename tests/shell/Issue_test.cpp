#include "shell/Issue.h"

#include "doublures/SessionEssai.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "storage/Base.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;

TEST_CASE("Issue: only what is done is true, and who did not want it is told apart") {
    CHECK(Issue::Faite());
    CHECK_FALSE(Issue::Refusee());
    CHECK_FALSE(Issue::Arretee());
    CHECK_FALSE(Issue::ParSysteme());
    CHECK(Issue{} == Issue::Refusee());
    CHECK(Issue::Arretee() != Issue::Refusee());
    CHECK(Issue::Refusee(Msg(message::FichierDisparu)) != Issue::Refusee());
}

TEST_CASE_FIXTURE(doublures::SessionEssai, "Issue: the reason is told once, and handed on") {
    const Issue refusee = Issue::Refusee(Msg(message::FichierDisparu));
    CHECK(Dire(session.dialogue, refusee) == refusee);
    CHECK(dialogue.entendu == std::vector{Msg(message::FichierDisparu)});
    SUBCASE("what has no reason says nothing") {
        CHECK(Dire(session.dialogue, Issue::Arretee()) == Issue::Arretee());
        CHECK(Dire(session.dialogue, Issue::Faite()));
        CHECK(dialogue.entendu.size() == 1);
    }
}

TEST_CASE("Issue: what cannot be opened is the system's or the file's own fault") {
    using storage::Ouverture;
    CHECK(IssueDOuverture(Ouverture::Faite, "/d/a.LGD"));
    CHECK(IssueDOuverture(Ouverture::Introuvable, "/d/a.LGD") ==
          Issue::ParSysteme(Msg(message::FichierDisparu)));
    CHECK(IssueDOuverture(Ouverture::Refusee, "/d/a.LGD") ==
          Issue::ParSysteme(Msg(message::AccesBaseRefuse, "/d/a.LGD")));
    CHECK(IssueDOuverture(Ouverture::Occupee, "/d/a.LGD") ==
          Issue::Refusee(Msg(message::BaseOccupee, "/d/a.LGD")));
    CHECK(IssueDOuverture(Ouverture::PasUneBase, "/d/a.LGD") ==
          Issue::Refusee(Msg(message::FichierPasUneBase, "/d/a.LGD")));
    CHECK(IssueDOuverture(Ouverture::Abimee, "/d/a.LGD").cause == Cause::Systeme);
}

TEST_CASE(
    "Issue: a new base that another program holds is refused, any other refusal is the disk") {
    using storage::Ouverture;
    CHECK(IssueDeCreation(Ouverture::Faite, "/d/a.LGD"));
    CHECK(IssueDeCreation(Ouverture::Occupee, "/d/a.LGD") ==
          Issue::Refusee(Msg(message::BaseOccupee, "/d/a.LGD")));
    CHECK(IssueDeCreation(Ouverture::Refusee, "/d/a.LGD") ==
          Issue::ParSysteme(Msg(message::CreationBaseRefusee, "/d/a.LGD")));
}
