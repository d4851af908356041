#include "windows/cadre/ImageGraphe.h"

#include <QImage>

#include "windows/Essai.h"
#include "windows/controles/Unicode.h"
#include "windows/graphe/PaletteGraphe.h"

using namespace dorvane;
using namespace dorvane::windows;

TEST_CASE_FIXTURE(FenetreEssai,
                  "ImagerFenetre: the chart of a base becomes a picture, or a refusal") {
    qputenv("DORVANE_PARTAGE", (dossier / "partage").c_str());
    qputenv("XDG_CONFIG_HOME", (dossier / "reglages").c_str());
    const std::filesystem::path sortie = dossier / "image.png";
    REQUIRE(ImagerFenetre({sortie, base, {640, 400}, false}));
    const QImage image{CheminVersQt(sortie)};
    CHECK(image.size() == QSize{640, 400});
    // Not a bare ground: the boxes of men are there.
    const QColor homme = FairePalette(PaletteDuBureau(), {}).homme.fond;
    int points = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            points += image.pixelColor(x, y) == homme ? 1 : 0;
    CHECK(points > 2000);
    CHECK_FALSE(ImagerFenetre({sortie, dossier / "absente.LGD", {640, 400}, false}));
    CHECK_FALSE(ImagerFenetre({dossier / "nulle/part.png", base, {640, 400}, false}));
}
