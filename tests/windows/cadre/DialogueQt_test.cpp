#include "windows/cadre/DialogueQt.h"

#include "windows/Essai.h"
#include "windows/controles/Unicode.h"

using namespace dorvane;
using namespace dorvane::windows;

TEST_CASE("FiltresFichiers: pairs become filters that take both cases") {
    CHECK(FiltresFichiers(std::string{"Généalogie (*.lgd) |*.lgd|"_1252}).join(u'|') ==
          QStringLiteral("Généalogie (*.lgd *.LGD)"));
    CHECK(FiltresFichiers("Tous (*.ged;*.lgr)|*.ged;*.lgr|Texte|*.TXT").join(u'|') ==
          "Tous (*.ged *.GED *.lgr *.LGR)|Texte (*.txt *.TXT)");
    CHECK(FiltresFichiers("").isEmpty());
}

TEST_CASE("DialogueQt: a path that is not UTF-8 goes to the toolkit and comes back") {
    const std::filesystem::path accent{"/d/été.LGD"};
    CHECK(QtVersChemin(CheminVersQt(accent)) == accent);
}
