#include "interchange/communes/GestionCommunes.h"

#include "doublures/SessionEssai.h"
#include "messages/Communes.h"
#include "messages/Messages.h"
#include "shell/Demarrage.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::interchange;
using dorvane::shell::Msg;
using dorvane::shell::Reponse;
using dorvane::storage::Commune;
using dorvane::storage::NoCommune;

namespace {

/// The real disk, on which nothing new comes into one folder.
class DisqueFerme final : public storage::Disque {
public:
    std::filesystem::path ferme;

    std::unique_ptr<storage::Fichier> Ouvrir(const std::filesystem::path& chemin,
                                             storage::ModeOuverture mode) override {
        if (mode != storage::ModeOuverture::LectureSeule && !ferme.empty() &&
            chemin.parent_path() == ferme)
            return nullptr;
        return reel_.Ouvrir(chemin, mode);
    }
    bool Existe(const std::filesystem::path& c) override { return reel_.Existe(c); }
    bool Supprimer(const std::filesystem::path& c) override { return reel_.Supprimer(c); }
    bool Renommer(const std::filesystem::path& de, const std::filesystem::path& vers) override {
        return reel_.Renommer(de, vers);
    }
    bool Copier(const std::filesystem::path& de, const std::filesystem::path& vers) override {
        return reel_.Copier(de, vers);
    }
    void DonnerDroits(const std::filesystem::path& c, const std::filesystem::path& comme) override {
        reel_.DonnerDroits(c, comme);
    }
    bool ViderDossier(const std::filesystem::path& c) override { return reel_.ViderDossier(c); }
    storage::ResultatVerrou Verrouiller(const std::filesystem::path& c) override {
        return reel_.Verrouiller(c);
    }

private:
    storage::DisqueReel reel_;
};

Commune Lieu(std::string_view nom, std::string_view rattachement = {},
             std::string_view precision = {}) {
    Commune c;
    c.nom = nom;
    c.rattachement = rattachement;
    c.precision = precision;
    return c;
}

void Ecrire(const std::filesystem::path& fichier, const std::vector<Commune>& communes) {
    storage::ProgressionMuette muet;
    std::string octets;
    REQUIRE(storage::ComposerLgx(communes, muet, octets));
    REQUIRE(shell::EcrireTout(fichier, octets));
}

struct Gazette : doublures::SessionEssai {
    Gazette() {
        shell::Demarrage(seance);
        dialogue.entendu.clear();
        dialogue.questions.clear();
        dialogue.titres.clear();
        seance.parametres.generaux.fichierCommunes = fichier;
        Ecrire(fichier, {Lieu("Mer", {}, "Loir-et-Cher"), Lieu("Blois"), Lieu("Mer", {}, "Eure"),
                         Lieu("Aulnay", "blois"), Lieu("Orval", "Blois")});
        REQUIRE(communes.Ouvrir());
    }
    std::vector<Commune> Fichier(const std::filesystem::path& chemin) {
        const auto r = storage::BaseCommunes::OuvrirCommunes(disqueFerme, chemin);
        REQUIRE(r.base != nullptr);
        std::vector<Commune> lues;
        for (std::uint32_t n = 1; n <= r.base->Nombre(); ++n)
            lues.push_back(r.base->LireCommune(NoCommune{n}));
        return lues;
    }
    [[nodiscard]] std::vector<std::uint32_t> Numeros(std::string_view texte,
                                                     bool parSon = false) const {
        std::vector<std::uint32_t> numeros;
        for (const NoCommune n : communes.Chercher(texte, parSon))
            numeros.push_back(n.valeur);
        return numeros;
    }
    /// The next list that is asked for.
    void Liste(std::string_view csv) {
        doublures::EcrireFichier(dossier / "liste.csv", csv);
        dialogue.fichiers.emplace_back(dossier / "liste.csv");
    }
    std::string Bilan() { return dialogue.entendu.empty() ? "" : dialogue.entendu.back().valeur; }
    [[nodiscard]] std::string Chemin() const { return shell::CheminAffiche(fichier); }

    DisqueFerme disqueFerme;
    shell::Session seance{Lieux(), {dialogue, progression, horloge, ecran, disqueFerme}};
    std::filesystem::path fichier = dossier / "partage/France.lgx";
    GestionCommunes communes{seance};
};

using Liste32 = std::vector<std::uint32_t>;

}  // namespace

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: a missing file and one of another kind are told") {
    GestionCommunes autres{seance};
    seance.parametres.generaux.fichierCommunes = dossier / "absent.lgx";
    CHECK_FALSE(autres.Ouvrir());
    doublures::EcrireFichier(dossier / "autre.lgx", "text");
    seance.parametres.generaux.fichierCommunes = dossier / "autre.lgx";
    CHECK_FALSE(autres.Ouvrir());
    CHECK(dialogue.entendu == std::vector{Msg(message::FichierCommunesIntrouvable),
                                          Msg(message::FichierPasUneBaseDeCommunes,
                                              shell::CheminAffiche(dossier / "autre.lgx"))});
    CHECK(communes.Perimee());
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: a name finds all that begin so, in order of names") {
    CHECK(Numeros("mer") == Liste32{1, 3});
    CHECK(Numeros("") == Liste32{4, 2, 1, 3, 5});
    CHECK(Numeros("  ", true).size() == 5);
    CHECK(Numeros("zz").empty());
    CHECK(communes.Nombre() == 5);
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: by ear, the rows come in the order of names") {
    static_cast<void>(communes.Enregistrer({}, Lieu("Ormal")));
    static_cast<void>(communes.Enregistrer({}, Lieu("Aulnai")));
    CHECK(Numeros("Aulnet", true) == Liste32{7, 4});
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: a commune without a name is refused") {
    CHECK_FALSE(communes.Enregistrer({}, Lieu("   ", {}, "Eure")));
    CHECK(dialogue.entendu == std::vector{Msg(message::CommuneSansNom)});
    CHECK(Fichier(fichier).size() == 5);
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: what no record holds is refused, or left out") {
    const std::string longue(storage::MaxFicheCommune, 'x');
    CHECK_FALSE(communes.Enregistrer({}, Lieu(longue)));
    CHECK_FALSE(communes.Enregistrer(NoCommune{2}, Lieu("Blois", {}, longue)));
    CHECK(dialogue.entendu ==
          std::vector{Msg(message::CommuneTropLongue), Msg(message::CommuneTropLongue)});
    Liste("nom\nTalcy\n" + longue + "\n");
    CHECK(communes.ChargerListe(false));
    CHECK(Bilan().find(seance.catalogue.Composer(Msg(message::InfoLignesTropLongues, "1", "3"))) !=
          std::string::npos);
    CHECK(Fichier(fichier).size() == 6);
    // A comment stands by itself.
    Commune bavarde = Lieu("Blois");
    bavarde.commentaire = longue;
    CHECK(communes.Enregistrer(NoCommune{2}, bavarde));
    CHECK(Fichier(fichier).at(1) == bavarde);
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: what is saved is in the file at once") {
    CHECK(communes.Enregistrer({}, Lieu("Talcy")) == NoCommune{6});
    CHECK(communes.Enregistrer(NoCommune{2}, Lieu("Blois", {}, "Centre")) == NoCommune{2});
    CHECK(Fichier(fichier).at(5).nom == "Talcy");
    CHECK(Fichier(fichier).at(1).precision == "Centre");
    CHECK(communes.Nombre() == 6);
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Gazette,
                  "GestionCommunes: deleting asks, and tells what then belongs to nothing") {
    SUBCASE("no") {
        CHECK_FALSE(communes.Supprimer(NoCommune{2}));
        CHECK(dialogue.entendu ==
              std::vector{Msg(message::ConfirmerSupprimerCommuneDeRattachement, "Blois", "2")});
        CHECK(dialogue.questions.at(0).defaut == Reponse::Non);
        CHECK(dialogue.questions.at(0).grave);
        CHECK(communes.Nombre() == 5);
    }
    SUBCASE("yes") {
        dialogue.reponses = {Reponse::Oui};
        CHECK(communes.Supprimer(NoCommune{2}));
        CHECK(communes.Nombre() == 4);
        CHECK(Fichier(fichier).at(1).nom.empty());
    }
    SUBCASE("a homonym takes over") {
        CHECK(communes.Enregistrer({}, Lieu("BLOIS")));
        CHECK_FALSE(communes.Supprimer(NoCommune{2}));
        CHECK(dialogue.entendu == std::vector{Msg(message::ConfirmerSupprimerCommune, "Blois")});
    }
    SUBCASE("one that is not there") {
        CHECK_FALSE(communes.Supprimer(NoCommune{99}));
        CHECK(dialogue.entendu.empty());
    }
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: what another program has written stays, and is read") {
    Ecrire(fichier, {Lieu("Orval")});
    CHECK_FALSE(communes.Enregistrer(NoCommune{2}, Lieu("Blois", {}, "Centre")));
    CHECK(dialogue.entendu == std::vector{Msg(message::FichierCommunesChangeAilleurs, Chemin())});
    CHECK(Fichier(fichier) == std::vector{Lieu("Orval")});
    CHECK(communes.Nombre() == 1);
    // The number has gone: the commune comes in as a new one.
    CHECK(communes.Enregistrer(NoCommune{2}, Lieu("Blois")) == NoCommune{2});
    CHECK(Fichier(fichier).size() == 2);
}

TEST_CASE_FIXTURE(Gazette,
                  "GestionCommunes: when the file cannot even be read again, memory holds "
                  "what it did before") {
    doublures::EcrireFichier(fichier, "broken meanwhile");
    CHECK_FALSE(communes.Enregistrer({}, Lieu("Talcy")));
    CHECK(dialogue.entendu == std::vector{Msg(message::FichierCommunesChangeAilleurs, Chemin())});
    CHECK(communes.Nombre() == 5);
    CHECK(doublures::LireFichier(fichier) == "broken meanwhile");
}

TEST_CASE_FIXTURE(Gazette,
                  "GestionCommunes: a file of the program folder that cannot be written is "
                  "copied after a question, and the settings name the copy") {
    disqueFerme.ferme = dossier / "partage";
    const std::filesystem::path copie = dossier / "config/France.lgx";
    const auto question =
        Msg(message::ProposerCopieFichierCommunes, Chemin(), shell::CheminAffiche(copie));
    SUBCASE("no") {
        CHECK_FALSE(communes.Enregistrer({}, Lieu("Talcy")));
        CHECK(dialogue.entendu == std::vector{question});
        CHECK(communes.Nombre() == 5);
        CHECK_FALSE(std::filesystem::exists(copie));
        CHECK(seance.parametres.generaux.fichierCommunes == fichier);
    }
    SUBCASE("yes, for a change") {
        dialogue.reponses = {Reponse::Oui};
        CHECK(communes.Enregistrer(NoCommune{2}, Lieu("Blois", {}, "Centre")) == NoCommune{2});
        CHECK(dialogue.entendu == std::vector{question});
        CHECK(Fichier(copie).at(1).precision == "Centre");
        CHECK(Fichier(fichier).at(1).precision.empty());
        CHECK_FALSE(communes.Perimee());
        // From then on without a question, and in the next session too.
        CHECK(communes.Enregistrer({}, Lieu("Talcy")) == NoCommune{6});
        CHECK(dialogue.entendu.size() == 1);
        shell::Parametres relus{Lieux()};
        relus.ChargerParametres();
        CHECK(relus.generaux.fichierCommunes == copie);
    }
    SUBCASE("yes, for a list, beside an older copy") {
        Ecrire(copie, {Lieu("Ancienne")});
        dialogue.reponses = {Reponse::Oui};
        Liste("nom\nTalcy\n");
        CHECK(communes.ChargerListe(false));
        CHECK(Fichier(copie) == std::vector{Lieu("Ancienne")});
        CHECK(Fichier(dossier / "config/France-2.lgx").size() == 6);
    }
    SUBCASE("yes, but there is no place for it either") {
        std::filesystem::remove_all(dossier / "config");
        doublures::EcrireFichier(dossier / "config", "a file in the way");
        dialogue.reponses = {Reponse::Oui};
        CHECK_FALSE(communes.Enregistrer({}, Lieu("Talcy")));
        CHECK(dialogue.entendu == std::vector{question, Msg(message::FichierCommunesNonEcrit,
                                                            shell::CheminAffiche(copie))});
        CHECK(communes.Nombre() == 5);
    }
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: a file of the user's own is not copied elsewhere") {
    fichier = dossier / "moi/Pays.lgx";
    std::filesystem::create_directories(fichier.parent_path());
    Ecrire(fichier, {Lieu("Blois")});
    seance.parametres.generaux.fichierCommunes = fichier;
    REQUIRE(communes.Ouvrir());
    disqueFerme.ferme = fichier.parent_path();
    CHECK_FALSE(communes.Enregistrer({}, Lieu("Talcy")));
    CHECK_FALSE(communes.Reorganiser());
    dialogue.reponses = {Reponse::Oui};
    CHECK_FALSE(communes.Supprimer(NoCommune{1}));
    CHECK(dialogue.entendu == std::vector{Msg(message::FichierCommunesNonEcrit, Chemin()),
                                          Msg(message::FichierCommunesNonEcrit, Chemin()),
                                          Msg(message::ConfirmerSupprimerCommune, "Blois"),
                                          Msg(message::FichierCommunesNonEcrit, Chemin())});
    CHECK(communes.Nombre() == 1);
    CHECK(Fichier(fichier) == std::vector{Lieu("Blois")});
}

TEST_CASE_FIXTURE(Gazette,
                  "GestionCommunes: reorganising shows four phases and two sizes, and "
                  "keeps numbers") {
    dialogue.reponses = {Reponse::Oui};
    REQUIRE(communes.Supprimer(NoCommune{1}));
    for (int i = 0; i < 300; ++i)
        REQUIRE(communes.Enregistrer(NoCommune{2}, Lieu("Blois", {}, std::to_string(i))));
    const auto avant = std::filesystem::file_size(fichier);
    dialogue.entendu.clear();
    CHECK(communes.Reorganiser());
    const auto apres = std::filesystem::file_size(fichier);
    CHECK(apres < avant);
    CHECK(dialogue.entendu == std::vector{Msg(message::InfoBaseCommunesReorganisee,
                                              std::to_string((avant + 1023) / 1024),
                                              std::to_string((apres + 1023) / 1024))});
    CHECK(progression.titres == std::vector{shell::Litteral("Réorganisation communes"_1252)});
    CHECK(progression.textes == std::vector{shell::Litteral("Réorganisation Communes"_1252),
                                            shell::Litteral("Réorganisation Index"_1252),
                                            shell::Litteral("Réorganisation Soundex"_1252),
                                            shell::Litteral("Réorganisation Commentaire"_1252)});
    CHECK(communes.Base().LireCommune(NoCommune{2}).precision == "299");
    CHECK(communes.Base().LireCommune(NoCommune{1}).nom.empty());
    CHECK(Numeros("") == Liste32{4, 2, 3, 5});
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: reorganising keeps what another program has added") {
    std::vector<Commune> avec = Fichier(fichier);
    avec.push_back(Lieu("Talcy"));
    Ecrire(fichier, avec);
    CHECK(communes.Reorganiser());
    CHECK(Fichier(fichier) == avec);
    CHECK(communes.Nombre() == 6);
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: who gives up a long job finds the file as it was") {
    std::vector<Commune> beaucoup;
    std::string csv = "nom\n";
    for (int i = 0; i < 3000; ++i) {
        beaucoup.push_back(Lieu("Lieu " + std::to_string(i)));
        csv += "Autre " + std::to_string(i) + '\n';
    }
    Ecrire(fichier, beaucoup);
    const std::string octets = doublures::LireFichier(fichier);
    for (const std::uint32_t pas : {1U, 3U, 8U}) {
        CAPTURE(pas);
        progression.pas = 0;
        progression.annulerAu = pas;
        CHECK_FALSE(communes.Reorganiser());
        Liste(csv);
        progression.pas = 0;
        CHECK_FALSE(communes.ChargerListe(false));
        CHECK(doublures::LireFichier(fichier) == octets);
        CHECK(communes.Nombre() == 3000);
        CHECK(progression.cadres == 0);
    }
    CHECK(dialogue.entendu.empty());
}

TEST_CASE_FIXTURE(Gazette,
                  "GestionCommunes: a list is added without what is there, and what was "
                  "left out is told") {
    Liste("nom;precision\nTalcy;\nMer;Eure\n;Loiret\nTalcy;\nMer;Oise\n\xC5\x81\xC3\xB3\n");
    CHECK(communes.ChargerListe(false));
    const std::vector<Commune> apres = Fichier(fichier);
    REQUIRE(apres.size() == 8);
    CHECK(apres[5] == Lieu("Talcy"));
    CHECK(apres[6] == Lieu("Mer", {}, "Oise"));
    CHECK(communes.Nombre() == 8);
    REQUIRE(dialogue.entendu.size() == 1);
    const auto dit = [&](const shell::Phrase& phrase) {
        return Bilan().find(seance.catalogue.Composer(phrase)) != std::string::npos;
    };
    CHECK(dit(Msg(message::InfoCommunesAjoutees, "3")));
    CHECK(dit(Msg(message::InfoCommunesDejaPresentes, "2")));
    CHECK(dit(Msg(message::InfoLignesSansNom, "1", "4")));
    CHECK(dit(Msg(message::ListeCommunesHorsJeuDeCaracteres, "1")));
    const std::string bilan = Bilan();
    CHECK(std::count(bilan.begin(), bilan.end(), '\n') == 3);
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: a list that replaces names what is lost") {
    Liste("nom\nTalcy\n");
    SUBCASE("no") {
        CHECK_FALSE(communes.ChargerListe(true));
        CHECK(dialogue.entendu ==
              std::vector{Msg(message::ConfirmerRemplacerCommunesParListe, "5", "liste.csv")});
        CHECK(dialogue.questions.at(0).defaut == Reponse::Non);
        CHECK(communes.Nombre() == 5);
    }
    SUBCASE("yes") {
        dialogue.reponses = {Reponse::Oui};
        CHECK(communes.ChargerListe(true));
        CHECK(Fichier(fichier) == std::vector{Lieu("Talcy")});
    }
    SUBCASE("an empty base has nothing to lose") {
        Ecrire(fichier, {});
        CHECK(communes.ChargerListe(true));
        CHECK(dialogue.questions.empty());
        CHECK(Fichier(fichier) == std::vector{Lieu("Talcy")});
    }
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: a list that cannot be used changes nothing") {
    const std::string avant = doublures::LireFichier(fichier);
    const std::string liste = shell::CheminAffiche(dossier / "liste.csv");
    CHECK_FALSE(communes.ChargerListe(false));  // given up
    dialogue.fichiers.emplace_back(dossier / "liste.csv");
    CHECK_FALSE(communes.ChargerListe(false));
    Liste("code;commentaire\n1;2\n");
    CHECK_FALSE(communes.ChargerListe(true));
    Liste("nom\n");
    CHECK_FALSE(communes.ChargerListe(true));
    std::string trop = "nom\n";
    for (std::uint32_t i = 0; i <= storage::BaseCommunes::MaxCommunes; ++i)
        trop += 'x' + std::to_string(i) + '\n';
    Liste(trop);
    CHECK_FALSE(communes.ChargerListe(true));
    trop.resize(trop.size() - 8);
    trop.resize(trop.rfind('\n'));
    Liste(trop);
    CHECK_FALSE(communes.ChargerListe(false));
    const std::string max = std::to_string(storage::BaseCommunes::MaxCommunes);
    CHECK(dialogue.entendu == std::vector{Msg(message::ListeCommunesIllisible, liste),
                                          Msg(message::ListeCommunesSansColonneNom, liste),
                                          Msg(message::ListeCommunesVide, liste),
                                          Msg(message::ListeCommunesTropGrande, liste, max),
                                          Msg(message::BaseCommunesPleine, max)});
    CHECK(doublures::LireFichier(fichier) == avant);
}

TEST_CASE_FIXTURE(Gazette, "GestionCommunes: a full base takes no further commune") {
    std::vector<Commune> toutes(storage::BaseCommunes::MaxCommunes, Lieu("X"));
    for (std::size_t i = 0; i < toutes.size(); ++i)
        toutes[i].nom = "X" + std::to_string(i);
    Ecrire(fichier, toutes);
    REQUIRE(communes.Ouvrir());
    CHECK_FALSE(communes.Enregistrer({}, Lieu("Talcy")));
    CHECK(dialogue.entendu == std::vector{Msg(message::BaseCommunesPleine,
                                              std::to_string(storage::BaseCommunes::MaxCommunes))});
    CHECK(communes.Enregistrer(NoCommune{7}, Lieu("Talcy")) == NoCommune{7});
}
