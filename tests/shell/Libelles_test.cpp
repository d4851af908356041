#include "shell/Libelles.h"

#include "doublures/SessionEssai.h"
#include "messages/Messages.h"
#include "values/Texte1252.h"

#include <cstring>
#include <set>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;

namespace {

struct DeuxLangues {
    DeuxLangues() {
        Poser(francais, doublures::CatalogueDuProjet("fr"));
        Poser(anglais, doublures::CatalogueDuProjet("en"));
    }

    static void Poser(Catalogue& catalogue, const std::string& octets) {
        catalogue.Ouvrir([octets](std::uint64_t decalage, std::span<char> sortie) -> std::size_t {
            if (decalage >= octets.size()) return 0;
            const std::size_t n = std::min(sortie.size(), octets.size() - decalage);
            std::memcpy(sortie.data(), octets.data() + decalage, n);
            return n;
        });
    }

    Catalogue francais;
    Catalogue anglais;
};

}  // namespace

TEST_CASE_FIXTURE(DeuxLangues,
                  "Libelles: a label gives its tag, and the tag its label in the "
                  "language in use") {
    CHECK(TagDeLibelle(francais, "Profession") == "OCCU");
    CHECK(LibelleDeTag(francais, "OCCU") == "Profession");
    CHECK(LibelleDeTag(anglais, "OCCU") == "Occupation");
    CHECK(TagDeLibelle(francais, "Décès"_1252) == "DEAT");
}

TEST_CASE_FIXTURE(DeuxLangues,
                  "Libelles: a label in another case than the catalogue's comes back "
                  "unchanged") {
    CHECK(TagDeLibelle(francais, "profession") == "profession");
    CHECK(TagDeLibelle(francais, "PROFESSION") == "PROFESSION");
    CHECK(TagDeLibelle(francais, "Profession ") == "Profession ");
}

TEST_CASE_FIXTURE(DeuxLangues, "Libelles: a tag stays a tag, and what is neither stays as it is") {
    CHECK(TagDeLibelle(francais, "BIRT") == "BIRT");
    CHECK(TagDeLibelle(francais, "parrain de guerre") == "parrain de guerre");
    CHECK(TagDeLibelle(francais, "").empty());
    CHECK(LibelleDeTag(francais, "XXXX") == "XXXX");
    CHECK(LibelleDeTag(francais, "birt") == "birt");
}

TEST_CASE_FIXTURE(DeuxLangues,
                  "Libelles: without a catalogue no text is taken for an empty label") {
    const Catalogue vide;
    CHECK(TagDeLibelle(vide, "Profession") == "Profession");
    CHECK(TagDeLibelle(vide, "").empty());
    CHECK(TableLibelles{vide}.TagDeLibelle("").empty());
    CHECK(LibelleDeTag(vide, "OCCU").empty());
}

TEST_CASE_FIXTURE(DeuxLangues,
                  "Libelles: every tag stands once, has a text in both languages, and "
                  "the first row of a shared label wins") {
    std::set<std::string_view> vus;
    for (const RangTag& rang : TableTags()) {
        CAPTURE(rang.tag);
        CHECK(vus.insert(rang.tag).second);
        CHECK_FALSE(LibelleDeTag(francais, rang.tag).empty());
        CHECK_FALSE(LibelleDeTag(anglais, rang.tag).empty());
        const std::string retour = TagDeLibelle(francais, LibelleDeTag(francais, rang.tag));
        CHECK(LibelleDeTag(francais, retour) == LibelleDeTag(francais, rang.tag));
    }
    CHECK(TableTags().size() == 135);
    CHECK(MessageDeTag("EVEN") == message::TagEVEN);
    CHECK(MessageDeTag("SPOU") == NoMessage{});
}

TEST_CASE_FIXTURE(DeuxLangues, "Libelles: the table of a long job answers like the single calls") {
    const TableLibelles table{francais};
    for (const RangTag& rang : TableTags()) {
        const std::string libelle = LibelleDeTag(francais, rang.tag);
        CAPTURE(rang.tag);
        CHECK(table.LibelleDeTag(rang.tag) == libelle);
        CHECK(table.TagDeLibelle(libelle) == TagDeLibelle(francais, libelle));
        CHECK(table.TagDeLibelle(rang.tag) == rang.tag);
    }
    CHECK(table.TagDeLibelle("profession") == "profession");
    CHECK(table.LibelleDeTag("XXXX") == "XXXX");
}
