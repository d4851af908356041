#include "records/FichierDeDocument.h"

#include "doublures/DossierTemporaire.h"
#include "messages/Faits.h"

#include <tuple>

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

TEST_CASE("EtatDe: only a file or a link that is not there is absent, and says so") {
    const doublures::DossierTemporaire dossier;
    doublures::EcrireFichier(dossier / "a.png", "x");
    doublures::EcrireFichier(dossier / "a.lgo", "a.png\n");
    const auto etat = [&dossier](const char* fichier, const char* type = "") {
        return EtatDe(dossier / "Martin.LGD", storage::Document{"Titre", fichier, type, ""});
    };
    CHECK(etat("a.png") == EtatDocument{NatureDocument::Fichier, dossier / "a.png"});
    CHECK(etat("a.lgo") == EtatDocument{NatureDocument::Lien, dossier / "a.lgo"});
    CHECK(etat("b.png") == EtatDocument{NatureDocument::Fichier, {}});
    for (const char* present : {"a.png", "a.lgo"}) {
        CHECK_FALSE(etat(present).Absent());
        CHECK_FALSE(MessageDEtat(etat(present)));
    }
    for (const char* absent : {"b.png", "b.lgo"}) {
        CHECK(etat(absent).Absent());
        CHECK(MessageDEtat(etat(absent)) == message::FichierAbsent);
    }
    for (const auto& [fichier, type, message] :
         {std::tuple{"", "", message::SansFichier},
          {"https://exemple.fr", "", message::AdresseWeb},
          {"jean@exemple.fr", "E-Mail", message::AdresseElectronique}}) {
        CHECK_FALSE(etat(fichier, type).Absent());
        CHECK(MessageDEtat(etat(fichier, type)) == message);
    }
}
