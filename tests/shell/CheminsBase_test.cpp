// The names that follow from that of a base.
#include "doublures/SessionEssai.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/Reorganisation.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

namespace fs = std::filesystem;

struct Bureau : SessionEssai {
    Bureau() { Demarrage(session); }

    void Nouveau(const fs::path& chemin) {
        dialogue.fichiers.emplace_back(chemin);
        MnuNouveau(session);
        REQUIRE(session.BaseOuverte());
    }
};

}  // namespace

TEST_CASE(
    "DeriverChemins: journal, exchange and GEDCOM replace the last three letters as written") {
    const CheminsBase chemins = DeriverChemins("/d/Famille.lgd");
    CHECK(chemins.journal == "/d/Famille.LOG");
    CHECK(chemins.echange == "/d/Famille.LGR");
    CHECK(chemins.gedcom == "/d/Famille.GED");
    CHECK(chemins.nom == "Famille");
    CHECK(DeriverChemins("/d/Été.LGD").nom == "Été"_1252);
    CHECK(DeriverChemins("ab").journal == "LOG");
}

TEST_CASE_FIXTURE(
    Bureau, "A base reached by a link: journal, lock, backup and history are the file's own") {
    fs::create_directories(dossier / "vrai");
    fs::create_directories(dossier / "liens");
    const fs::path vraie = fs::canonical(dossier.chemin) / "vrai" / "Famille.LGD";
    Nouveau(vraie);
    session.base->R_TRI.AjouterIndividu(session.base->NouvelIndividu());
    MnuFermer(session);
    const fs::path lien = dossier / "liens" / "Autre.LGD";
    fs::create_symlink(vraie, lien);
    fs::create_directory_symlink(dossier / "vrai", dossier / "liens" / "dossier");
    for (const fs::path& chemin : {lien, dossier / "liens" / "dossier" / "Famille.LGD",
                                   dossier / "liens" / ".." / "vrai" / "Famille.LGD"}) {
        CAPTURE(chemin);
        MnuOuvrir(session, chemin);
        REQUIRE(session.BaseOuverte());
        CHECK(session.CheminBase == vraie);
        CHECK(session.CheminJournal == fs::path{vraie}.replace_extension(".LOG"));
        CHECK(session.parametres.generaux.historique == std::vector<fs::path>{vraie});
        CHECK(fs::exists(vraie.string() + ".verrou"));
        CHECK(MnuSauvegarde(session));
        CHECK(fs::remove(vraie.parent_path() / "Famille.SAV"));
        CHECK(ReorganiserBase(session, false));
        MnuFermer(session);
        CHECK(fs::is_symlink(lien));
        CHECK(std::distance(fs::directory_iterator{dossier / "liens"}, {}) == 2);
    }
    // A new base by that name replaces the file, not the link.
    dialogue.reponses = {Reponse::Oui};
    Nouveau(lien);
    MnuFermer(session);
    CHECK(fs::is_symlink(lien));
    MnuOuvrir(session, vraie);
    CHECK(session.base->entete.NbTriIndividus == 0);
}

TEST_CASE("EstFichierDeBase: the base, its journal, its backup and its lock, by whatever name") {
    const doublures::DossierTemporaire dossier;
    const fs::path base = dossier / "Famille.LGD";
    for (const char* nom : {"Famille.LGD", "Famille.LOG", "Famille.SAV", "Famille.LGD.verrou"}) {
        CHECK(EstFichierDeBase(dossier / nom, base));
        EcrireFichier(dossier / nom, nom);
        fs::create_symlink(dossier / nom, dossier / (std::string{nom} + ".lien"));
        CHECK(EstFichierDeBase(dossier / (std::string{nom} + ".lien"), base));
        fs::create_hard_link(dossier / nom, dossier / (std::string{nom} + ".double"));
        CHECK(EstFichierDeBase(dossier / (std::string{nom} + ".double"), base));
    }
    EcrireFichier(dossier / "Famille.ged", "x");
    CHECK_FALSE(EstFichierDeBase(dossier / "Famille.ged", base));
    CHECK_FALSE(EstFichierDeBase(dossier / "Autre.LGD", base));
    CHECK_FALSE(EstFichierDeBase(dossier / "Famille.LGD", {}));
}

TEST_CASE("CheminSauvegarde: a name with two dots is cut at the first one, the journal's is not") {
    CHECK(CheminSauvegarde("/d/a.b.LGD") == "/d/a.SAV");
    CHECK(DeriverChemins("/d/a.b.LGD").journal == "/d/a.b.LOG");
    CHECK(DeriverChemins("/d/a.b.LGD").nom == "a.b");
    CHECK(CheminRestauration("/d/a.b.SAV") == "/d/a.LGD");
}

TEST_CASE("CheminSauvegarde: a dot in a folder does not count") {
    CHECK(CheminSauvegarde("/a.d/b.c.LGD") == "/a.d/b.SAV");
    CHECK(CheminSauvegarde("/a.d/b") == "/a.d/b.SAV");
    CHECK(CheminRestauration("/a.d/b.SAV") == "/a.d/b.LGD");
}
