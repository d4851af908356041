#include "records/FichierDeDocument.h"

#include "doublures/DossierTemporaire.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;

TEST_CASE("FichierDeDocument: a document is found as written, with slashes, by its name") {
    const doublures::DossierTemporaire dossier;
    const std::filesystem::path base = dossier / "Martin.LGD";
    doublures::EcrireFichier(dossier / "images/a.png", "x");
    doublures::EcrireFichier(dossier / "b.png", "x");
    CHECK(FichierDeDocument(base, "images/a.png") == dossier / "images/a.png");
    CHECK(FichierDeDocument(base, "images\\a.png") == dossier / "images/a.png");
    CHECK(FichierDeDocument(base, "c:\\photos\\b.png") == dossier / "b.png");
    CHECK(FichierDeDocument(base, "c:\\photos\\c.png").empty());
    CHECK(FichierDeDocument(base, "images").empty());
    CHECK(FichierDeDocument(base, "").empty());
}

TEST_CASE("FichierDeDocument: the name is in code page 1252, the file system speaks UTF-8") {
    const doublures::DossierTemporaire dossier;
    doublures::EcrireFichier(dossier / "été.png", "x");
    CHECK(FichierDeDocument(dossier / "Martin.LGD", "\xE9t\xE9.png") == dossier / "été.png");
}
