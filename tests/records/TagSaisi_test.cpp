#include "records/TagSaisi.h"

#include "records/EssaiFamille.h"

#include <vector>

using namespace dorvane;
using namespace dorvane::records;

namespace {

const std::vector<TagOffert> Offerts{{"Bapt\xEAme", "CHR"}, {"bapteme", "AUTRE"}, {"Bal", "Bal"}};

}  // namespace

TEST_CASE_FIXTURE(EssaiFamille, "TagSaisi: an entry whatever its case and accents, the first one") {
    CHECK(TagSaisi(session, Offerts, " BAPTEME ") == "CHR");
    CHECK(TagSaisi(session, Offerts, "bal") == "Bal");
}

TEST_CASE_FIXTURE(EssaiFamille, "TagSaisi: else the user's own word, without blanks around it") {
    CHECK(TagSaisi(session, Offerts, " Ch\xE2teau ") == "Ch\xE2teau");
    CHECK(TagSaisi(session, Offerts, "").empty());
}
