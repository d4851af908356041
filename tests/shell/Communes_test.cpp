#include "shell/Communes.h"

#include "doublures/SessionEssai.h"
#include "storage/BaseCommunes.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;

namespace {

struct Gazette : doublures::SessionEssai {
    Gazette() { session.parametres.generaux.fichierCommunes = fichier; }

    /// A file of communes by these names, with a date of its own: a clock of the disk that goes in
    /// large steps would give two files the same.
    void Poser(const std::filesystem::path& chemin, const std::vector<std::string>& noms) {
        std::vector<storage::Commune> communes;
        for (const std::string& nom : noms) {
            communes.emplace_back();
            communes.back().nom = nom;
        }
        storage::ProgressionMuette muet;
        std::string octets;
        REQUIRE(storage::ComposerLgx(communes, muet, octets));
        REQUIRE(EcrireTout(chemin, octets));
        date += std::chrono::seconds{2};
        std::filesystem::last_write_time(chemin, date);
    }
    bool Connait(const char* nom) {
        const storage::BaseCommunes* base = session.communes->Base();
        return base != nullptr && !base->ChercherCommune(nom).empty();
    }

    std::filesystem::path fichier = dossier / "Pays.lgx";
    std::filesystem::file_time_type date = std::filesystem::file_time_type::clock::now();
};

}  // namespace

TEST_CASE_FIXTURE(Gazette, "Communes: the file of the settings is read at the first use") {
    Poser(fichier, {"Blois", "Mer"});
    CHECK(Connait("blois"));
    CHECK_FALSE(Connait("Tours"));
}

TEST_CASE_FIXTURE(Gazette, "Communes: a missing or unreadable file is none, without a word") {
    CHECK(session.communes->Base() == nullptr);
    doublures::EcrireFichier(fichier, "not a base of communes");
    CHECK(session.communes->Base() == nullptr);
    session.parametres.generaux.fichierCommunes = dossier.chemin;
    CHECK(session.communes->Base() == nullptr);
    session.parametres.generaux.fichierCommunes.clear();
    CHECK(session.communes->Base() == nullptr);
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Gazette, "Communes: while nothing has changed the same base answers") {
    Poser(fichier, {"Blois"});
    const storage::BaseCommunes* base = session.communes->Base();
    REQUIRE(base != nullptr);
    CHECK(session.communes->Base() == base);
}

TEST_CASE_FIXTURE(Gazette, "Communes: a file that was written, taken away or put there is seen") {
    CHECK_FALSE(Connait("Blois"));
    Poser(fichier, {"Blois"});
    CHECK(Connait("Blois"));
    // The same size: only the date tells.
    Poser(fichier, {"Tours"});
    CHECK_FALSE(Connait("Blois"));
    CHECK(Connait("Tours"));
    std::filesystem::remove(fichier);
    CHECK_FALSE(Connait("Tours"));
}

TEST_CASE_FIXTURE(Gazette, "Communes: another file in the settings is read") {
    Poser(fichier, {"Blois"});
    Poser(dossier / "Autre.lgx", {"Tours"});
    CHECK(Connait("Blois"));
    session.parametres.generaux.fichierCommunes = dossier / "Autre.lgx";
    CHECK(Connait("Tours"));
    CHECK_FALSE(Connait("Blois"));
}
