#include "interchange/gedcom/TitreDocument.h"

#include <doctest/doctest.h>

namespace dorvane::interchange {

TEST_CASE("TitreDocument: a short first line is the title, and what follows is not") {
    CHECK(TitreDocument("Acte de Mer") == "Acte de Mer");
    CHECK(TitreDocument("Acte de Mer\r\nfolio 12") == "Acte de Mer");
    CHECK(TitreDocument("").empty());
}

TEST_CASE("TitreDocument: a long first line is cut between words and says so") {
    const std::string titre = TitreDocument(std::string(40, 'a') + ' ' + std::string(40, 'b'));
    CHECK(titre.size() <= 63);
    CHECK(titre.starts_with(std::string(40, 'a')));
    CHECK(titre.ends_with("..."));
    CHECK(titre.find('b') == std::string::npos);
}

}  // namespace dorvane::interchange
