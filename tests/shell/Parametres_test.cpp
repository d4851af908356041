#include "shell/Parametres.h"

#include "doublures/DossierTemporaire.h"
#include "values/Texte1252.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

struct Foyer {
    DossierTemporaire dossier;
    Lieux lieux{dossier / "programme", dossier / "config", dossier / "cache"};
    std::filesystem::path base = dossier / "Famille.LGD";
    std::filesystem::path fichier = dossier / "config/parametres.json";

    Foyer() { std::filesystem::create_directories(lieux.repertoire); }

    [[nodiscard]] Parametres Charges() const {
        Parametres parametres{lieux};
        parametres.ChargerParametres();
        return parametres;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Foyer,
                  "Parametres: a first run without any .ini gives the table of defaults, "
                  "and the store holds all keys afterwards") {
    Parametres parametres{lieux};
    CHECK(parametres.ChargerParametres() == Magasin::Etat::Absent);
    const ReglagesGeneraux& g = parametres.generaux;
    CHECK(g.langue == "Français");
    CHECK(g.frequenceSauvegarde == 15);
    CHECK_FALSE(g.assistant);
    CHECK_FALSE(g.barreMenus);
    CHECK(g.barreFenetres);
    CHECK_FALSE(g.motClePrenom);
    CHECK_FALSE(g.motCleNom);
    CHECK(g.affichageNom == "FNAM/BIRN/");
    CHECK(g.ordreDate == "dd/mm/yyyy");
    CHECK(g.travail == lieux.repertoire / "Temp");
    CHECK(std::filesystem::is_directory(g.travail));
    CHECK(g.aide == lieux.repertoire / "Français.chm");
    CHECK(g.fichierCommunes == lieux.repertoire / "France.lgx");
    CHECK(g.geneanet == lieux.repertoire / "geneanet");
    CHECK(g.historique.empty());

    Magasin magasin{fichier};
    REQUIRE(magasin.Charger() == Magasin::Etat::Lu);
    const std::pair<const char*, const char*> cles[] = {
        {"Langue", "Français"},
        {"Fréquence Sauvegarde", "15"},
        {"Sauvegardes Gardées", "5"},
        {"Assistant", "0"},
        {"Barre de menus", "0"},
        {"Barre de fenêtres", "1"},
        {"Mot clé Prénom", "0"},
        {"Mot clé Nom", "0"},
        {"Icones", "0,1,2,3,4,10,99,11,12,13,14,8,99,28,29,99,15,16,99,17,18,99,22,23,24"},
        {"Affichage Nom", "FNAM/BIRN/"},
        {"Ordre date", "dd/mm/yyyy"},
        {"Jeu Export", "1"},
        {"Couleur Fond", "16711808"},
        {"Dégradé", "1"},
        {"Couleur Cadre Homme", "16776960"},
        {"Couleur Cadre Femme", "65535"},
        {"Couleur Cadre Indéterminé", "12632256"},
        {"Couleur Police Homme", "4194304"},
        {"Couleur Police Femme", "255"},
        {"Couleur Police Indéterminé", "0"},
        {"Maximum Recherche Parenté", "10"},
        {"Type Présentation", "2"},
        {"Nom Police 1", "Arial"},
        {"Nom Police 4", "Arial"},
        {"Taille Police 1", "8"},
        {"Taille Police 4", "8"},
        {"Nombre Cases 1", "8"},
        {"Nombre Cases 2", "32"},
        {"Nombre Cases 3", "48"},
        {"Nombre Cases 4", "64"},
        {"Proportionnel 1", "1"},
        {"Proportionnel 4", "1"}};
    for (const auto& [cle, valeur] : cles) {
        CAPTURE(cle);
        CHECK(magasin.Chercher("Defaut", cle) == valeur);
    }
    for (const char* cle : {"Aide", "Travail", "Fichier Communes", "Généanet"})
        CHECK_FALSE(magasin.Lire("Defaut", cle).empty());
}

TEST_CASE_FIXTURE(Foyer, "Parametres: a first run fills the word lists") {
    const Parametres parametres = Charges();
    REQUIRE(parametres.generaux.particules.size() == 41);
    CHECK(parametres.generaux.particules.front().mot == "af");
    CHECK(parametres.generaux.particules.back().mot == "zu");
    CHECK(parametres.Valeur("Particule", "XIV") == "1 1");
    CHECK(parametres.Mots("Liste Rubriques") == std::vector<std::string>{"TITL", "RELA", "EVEN"});
    CHECK(parametres.Valeur("Liste Rubriques", "TITL") == "0");
    CHECK(parametres.Mots("Rubrique TITL").size() == 10);
    CHECK(parametres.Mots("Rubrique RELA").size() == 31);
    CHECK(parametres.Mots("Rubrique EVEN").size() == 29);
    CHECK(parametres.ListeEvenements().size() == 26);
    CHECK(parametres.ListeEvenements().front() == "BIRT");
    CHECK(parametres.RolesEvenement("BIRT") ==
          std::vector<RoleEvenement>{{true, Sexe::Vide, "CHIL"},
                                     {false, Sexe::Homme, "FATH"},
                                     {false, Sexe::Femme, "MOTH"},
                                     {false, Sexe::Vide, "WITN"}});
    CHECK(parametres.RolesEvenement("MARR") ==
          std::vector<RoleEvenement>{{true, Sexe::Homme, "HUSB"}, {true, Sexe::Femme, "WIFE"}});
    CHECK(parametres.RolesEvenement("BURI") == parametres.RolesEvenement("DEAT"));
    CHECK(parametres.RolesEvenement("inconnu").empty());
}

TEST_CASE_FIXTURE(Foyer, "Parametres: the second run reads what the first has saved") {
    {
        Parametres parametres = Charges();
        parametres.generaux.langue = "English";
        parametres.generaux.frequenceSauvegarde = 3;
        parametres.generaux.barreMenus = true;
        parametres.generaux.affichage.presentations[2].nomPolice = "Écriture"_1252;
        parametres.generaux.particules.erase(parametres.generaux.particules.begin());
        parametres.generaux.particules.push_back(FaireParticule("zur", "0 1"));
        REQUIRE(parametres.SauverParametres());
    }
    const Parametres relus = Charges();
    CHECK(relus.generaux.langue == "English");
    CHECK(relus.generaux.frequenceSauvegarde == 3);
    CHECK(relus.generaux.barreMenus);
    CHECK(relus.generaux.affichage.presentations[2].nomPolice == "Écriture"_1252);
    CHECK(relus.generaux.particules.front().mot == "ben");
    CHECK(relus.generaux.particules.back().mot == "zur");
    CHECK_FALSE(relus.generaux.particules.back().prenoms);
    CHECK(relus.generaux.particules.back().noms);
    CHECK(relus.Valeur("Particule", "af", "absent") == "absent");
}

TEST_CASE_FIXTURE(Foyer, "Parametres: junk numbers read as their leading number or 0") {
    EcrireFichier(fichier,
                  R"({"Defaut": {"Langue": "Français", "Fréquence Sauvegarde": "12 minutes",
        "Couleur Fond": "rouge", "Nombre Cases 1": "-5", "Taille Police 1": " 9,5",
        "Maximum Recherche Parenté": "99999999999999", "Barre de menus": "1x",
        "Assistant": "oui", "Couleur Cadre Femme": "4294967295"}})");
    const Parametres parametres = Charges();
    CHECK(parametres.generaux.frequenceSauvegarde == 12);
    CHECK(parametres.generaux.affichage.couleurFond == 0);
    CHECK(parametres.generaux.affichage.presentations[0].nombreCases == 0);
    CHECK(parametres.generaux.affichage.presentations[0].taillePolice == 9);
    CHECK(parametres.generaux.affichage.maximumRechercheParente == 2147483647);
    CHECK(parametres.generaux.affichage.couleurCadreFemme <= 0xFFFFFFU);
    CHECK(parametres.generaux.barreMenus);
    CHECK_FALSE(parametres.generaux.assistant);
    // Absent from the file: defaults, and flags up.
    CHECK(parametres.generaux.affichage.couleurPoliceFemme == 255);
    CHECK(parametres.generaux.barreFenetres);
}

TEST_CASE("Parametres: the lenient number") {
    const std::pair<const char*, int> cas[] = {{"", 0},
                                               {"   ", 0},
                                               {"abc", 0},
                                               {"12", 12},
                                               {"  12abc", 12},
                                               {"-7", -7},
                                               {"+7", 7},
                                               {"-", 0},
                                               {"1 2", 1},
                                               {"3.9", 3},
                                               {"2147483647", 2147483647},
                                               {"2147483648", 2147483647},
                                               {"-99999999999", -2147483647}};
    for (const auto& [texte, nombre] : cas) {
        CAPTURE(texte);
        CHECK(NombreIndulgent(texte) == nombre);
    }
}

TEST_CASE_FIXTURE(Foyer, "Parametres: a presentation stored as 0 reads as 2, and sets the layout") {
    Parametres parametres = Charges();
    const std::string section = base.native();
    parametres.magasin.Ecrire(section, "Personne en cours", "5");
    for (const auto& [ecrit, lu] : {std::pair{"0", 2}, {"1", 1}, {"4", 4}, {"5", 2}, {"-1", 2}}) {
        parametres.magasin.Ecrire(section, "Type Présentation", ecrit);
        CHECK(parametres.LireParametresBase(base));
        CHECK(parametres.base.affichage.typePresentation == lu);
    }
    CHECK(DispositionDe(1) == Disposition{2, 1});
    CHECK(DispositionDe(2) == Disposition{4, 2});
    CHECK(DispositionDe(3) == Disposition{6, 3});
    CHECK(DispositionDe(4) == Disposition{8, 4});
    CHECK(DispositionDe(0) == Disposition{4, 2});
}

TEST_CASE_FIXTURE(Foyer, "Parametres: the options of a base come back from its section") {
    {
        Parametres parametres = Charges();
        CHECK_FALSE(parametres.LireParametresBase(base));
        CHECK(parametres.base.personneEnCours == 1);
        ReglagesBase& r = parametres.base;
        r.personneEnCours = 42;
        r.deCujus1 = 7;
        r.deCujus2 = 8;
        r.conversionNom = "1";
        r.conversionPrenom = "2";
        r.conversionLieu = "2";
        r.nomImage = "/images/blason";
        r.auteur = "Amélie Œuvrard"_1252;
        r.adresse[0] = "1, rue de l’Été"_1252;
        r.adresse[7] = "France";
        r.typeDocument = "Photo/Acte/";
        r.affichage.couleurFond = 255;
        r.affichage.typePresentation = 3;
        r.affichage.presentations[3] = {"Courier", 11, 12, false};
        REQUIRE(parametres.SauverParametresBase(base));
        CHECK(parametres.magasin.Lire(base.native(), "Nom Image") == "/images/blason/");
        CHECK(parametres.magasin.Chercher(base.native(), "Adresse 2") == "");
    }
    Parametres relus = Charges();
    CHECK(relus.LireParametresBase(base));
    const ReglagesBase& r = relus.base;
    CHECK(r.personneEnCours == 42);
    CHECK(r.deCujus1 == 7);
    CHECK(r.deCujus2 == 8);
    CHECK(r.conversionNom == "1");
    CHECK(r.conversionPrenom == "2");
    CHECK(r.conversionLieu == "2");
    CHECK(r.nomImage == "/images/blason");
    CHECK(r.auteur == "Amélie Œuvrard"_1252);
    CHECK(r.adresse[0] == "1, rue de l’Été"_1252);
    CHECK(r.adresse[7] == "France");
    CHECK(r.typeDocument == "Photo/Acte/");
    CHECK(r.affichage.couleurFond == 255);
    CHECK(r.affichage.presentations[3] == Presentation{"Courier", 11, 12, false});
    // The defaults for other bases are not touched.
    CHECK(relus.generaux.affichage.couleurFond == 16711808);
}

TEST_CASE_FIXTURE(Foyer,
                  "Parametres: a base moved to another folder falls back to the defaults, "
                  "and its person to 1") {
    Parametres parametres = Charges();
    parametres.generaux.affichage.couleurFond = 77;
    parametres.LireParametresBase(base);
    parametres.base.personneEnCours = 42;
    parametres.base.affichage.couleurFond = 255;
    REQUIRE(parametres.SauverParametresBase(base));
    CHECK_FALSE(parametres.LireParametresBase(dossier / "ailleurs/Famille.LGD"));
    CHECK(parametres.base.personneEnCours == 1);
    CHECK(parametres.base.affichage.couleurFond == 77);
}

TEST_CASE_FIXTURE(Foyer, "Parametres: an older .ini gives the global values once") {
    EcrireFichier(dossier / "config/Dorvane.ini",
                  "; ancien\r\n[Autre]\r\nCouleur Fond=1\r\n[Defaut]\r\nCouleur Fond= 123 \r\n"
                  "Affichage Nom/Pr\xE9nom=3\r\nAffichage tous Pr\xE9noms=1\r\n"
                  "Fr\xE9quence Sauvegarde=4\r\nNom Police 2=Times\r\n"
                  "Historique 0=/x/a.LGD\r\nHistorique 1=/x/b.LGD\r\n[Particule]\r\nvon=0 1\r\n"
                  "[Graphisme]\r\nTGA=Non\r\n");
    const Parametres parametres = Charges();
    CHECK(parametres.generaux.affichage.couleurFond == 123);
    CHECK(parametres.generaux.frequenceSauvegarde == 4);
    CHECK(parametres.generaux.affichageNom == "NUMB/BIRN/FNAM/OFNM/");
    CHECK(parametres.generaux.affichage.presentations[1].nomPolice == "Times");
    CHECK(parametres.generaux.historique ==
          std::vector<std::filesystem::path>{"/x/a.LGD", "/x/b.LGD"});
    REQUIRE(parametres.generaux.particules.size() == 1);
    CHECK_FALSE(parametres.generaux.particules[0].prenoms);
    CHECK(parametres.Valeur("Graphisme", "TGA") == "Non");
    EcrireFichier(dossier / "config/Dorvane.ini", "[Defaut]\nCouleur Fond=9\n");
    CHECK(Charges().generaux.affichage.couleurFond == 123);
}

TEST_CASE_FIXTURE(Foyer, "Parametres: a store written before exports had a set exports in ANSI") {
    EcrireFichier(fichier, R"({"Defaut": {"Langue": "Français"}})");
    CHECK(Charges().generaux.jeuExport == "1");
}

TEST_CASE_FIXTURE(Foyer, "Parametres: the old keys of names become a template") {
    const std::pair<const char*, const char*> cas[] = {
        {"", "FNAM/BIRN/"},
        {"Affichage Nom/Pr\xE9nom=1\n", "BIRN/FNAM/"},
        {"Affichage Nom/Pr\xE9nom=2\n", "FNAM/BIRN/"},
        {"Affichage Nom/Pr\xE9nom=3\n", "NUMB/BIRN/FNAM/"},
        {"Affichage tous Pr\xE9noms=1\n", "FNAM/BIRN/OFNM/"},
        {"Affichage tous Pr\xE9noms=2\n", "FNAM/BIRN/"}};
    for (const auto& [ini, modele] : cas) {
        CAPTURE(modele);
        std::filesystem::remove(fichier);
        EcrireFichier(dossier / "config/Dorvane.ini", "[Defaut]\n" + std::string{ini});
        CHECK(Charges().generaux.affichageNom == modele);
    }
}

TEST_CASE_FIXTURE(Foyer,
                  "Parametres: a base of an older version brings its own .ini, then the "
                  "global one") {
    EcrireFichier(dossier / "config/Dorvane/Famille.ini",
                  "[Defaut]\nPersonne en cours=12\nConversion nom=1\n");
    EcrireFichier(dossier / "config/Dorvane.ini", "[Famille.LGD]\nDe Cujus=3\nConversion nom=2\n");
    Parametres parametres = Charges();
    CHECK_FALSE(parametres.LireParametresBase(base));
    CHECK(parametres.base.personneEnCours == 12);
    CHECK(parametres.base.deCujus1 == 3);
    CHECK(parametres.base.conversionNom == "1");
    CHECK(parametres.base.affichage.typePresentation == 2);
    CHECK(parametres.magasin.LireSection(base.native()).empty());
    REQUIRE(parametres.SauverParametresBase(base));
    CHECK(Charges().magasin.Lire(base.native(), "Personne en cours") == "12");
}

TEST_CASE_FIXTURE(Foyer,
                  "LireIniTexte: the first line that starts like the key counts, up to the next "
                  "section") {
    const std::string_view texte =
        "cle=avant\n[Un]\n autre=x\nDe Cujus 2=deux\nDe Cujus=un\nvide=\nsans egal\n"
        "egal=a=b\n[Deux]\ncle=dans deux\nCl\xE9=accent\n";
    CHECK(LireIniTexte(texte, "Un", "De Cujus") == "deux");
    CHECK(LireIniTexte(texte, "Un", "De Cujus 2") == "deux");
    CHECK(LireIniTexte(texte, "Un", "cle") == std::nullopt);
    CHECK(LireIniTexte(texte, "Deux", "cle") == "dans deux");
    CHECK(LireIniTexte(texte, "Deux", "Clé") == "accent");
    CHECK(LireIniTexte(texte, "Un", "egal") == "a=b");
    CHECK(LireIniTexte(texte, "Un", "vide") == "");
    CHECK(LireIniTexte(texte, "Un", "sans") == "");
    CHECK(LireIniTexte(texte, "Trois", "cle") == std::nullopt);
}

TEST_CASE_FIXTURE(Foyer, "Parametres: a help file of the old format takes the new extension") {
    EcrireFichier(fichier, R"({"Defaut": {"Langue": "English", "Aide": "/p/English.HLP"}})");
    CHECK(Charges().generaux.aide == "/p/English.chm");
}

TEST_CASE_FIXTURE(Foyer, "Parametres: an empty working folder becomes Temp and is saved") {
    EcrireFichier(fichier, R"({"Defaut": {"Langue": "English", "Travail": ""}})");
    CHECK(Charges().generaux.travail == lieux.repertoire / "Temp");
    CHECK(LireFichier(fichier).find("Temp") != std::string::npos);
}

TEST_CASE_FIXTURE(Foyer,
                  "Parametres: Temp goes to the cache when the program folder cannot hold it") {
    // A file in its place refuses a folder even to the superuser.
    EcrireFichier(lieux.repertoire / "Temp", "obstacle");
    CHECK(Parametres{lieux}.DossierTemp() == lieux.cache / "Temp");
    std::filesystem::remove(lieux.cache / "Temp");
    EcrireFichier(lieux.cache / "Temp", "obstacle");
    CHECK(Parametres{lieux}.DossierTemp().empty());
}

TEST_CASE_FIXTURE(Foyer,
                  "Parametres: the history holds five bases, the last one first, each once") {
    Parametres parametres = Charges();
    for (const char* nom : {"a", "b", "c", "d", "e", "f"})
        REQUIRE(parametres.MemoriserHistorique(dossier / nom));
    const auto noms = [](const Parametres& p) {
        std::string suite;
        for (const auto& chemin : p.generaux.historique)
            suite += chemin.filename().string();
        return suite;
    };
    CHECK(noms(parametres) == "fedcb");
    REQUIRE(parametres.MemoriserHistorique(dossier / "f"));
    CHECK(noms(parametres) == "fedcb");
    REQUIRE(parametres.MemoriserHistorique(dossier / "d"));
    CHECK(noms(parametres) == "dfecb");
    CHECK(noms(Charges()) == "dfecb");
}

TEST_CASE_FIXTURE(Foyer, "Parametres: an empty key ends the history") {
    EcrireFichier(fichier, R"({"Defaut": {"Langue": "English", "Historique 0": "/x/a.LGD",
        "Historique 1": "", "Historique 2": "/x/c.LGD"}})");
    CHECK(Charges().generaux.historique == std::vector<std::filesystem::path>{"/x/a.LGD"});
}

TEST_CASE_FIXTURE(Foyer, "Parametres: what another program put in the history stays") {
    Parametres un = Charges();
    Parametres deux = Charges();
    REQUIRE(un.MemoriserHistorique(dossier / "a"));
    REQUIRE(deux.MemoriserHistorique(dossier / "b"));
    CHECK(Charges().generaux.historique ==
          std::vector<std::filesystem::path>{dossier / "b", dossier / "a"});
}

TEST_CASE_FIXTURE(Foyer,
                  "Parametres: two programs that end at the same time both keep their "
                  "changes") {
    const Parametres avant = Charges();
    pid_t enfants[2] = {};
    for (int qui = 0; qui < 2; ++qui) {
        enfants[qui] = fork();
        REQUIRE(enfants[qui] >= 0);
        if (enfants[qui] == 0) {
            Parametres parametres = Charges();
            if (qui == 0) parametres.generaux.langue = "English";
            if (qui == 1) parametres.generaux.frequenceSauvegarde = 99;
            parametres.LireParametresBase(dossier / std::to_string(qui));
            const bool bien = parametres.SauverParametresBase(dossier / std::to_string(qui)) &&
                              parametres.SauverParametres();
            _exit(bien ? 0 : 1);
        }
    }
    for (const pid_t enfant : enfants) {
        int statut = -1;
        REQUIRE(waitpid(enfant, &statut, 0) == enfant);
        CHECK(WEXITSTATUS(statut) == 0);
    }
    Parametres relus = Charges();
    CHECK(relus.generaux.langue == "English");
    CHECK(relus.generaux.frequenceSauvegarde == 99);
    CHECK(relus.LireParametresBase(dossier / "0"));
    CHECK(relus.LireParametresBase(dossier / "1"));
}

TEST_CASE_FIXTURE(Foyer,
                  "Parametres: paths with any bytes come back, and two of them never share a "
                  "section") {
    for (const std::string nom : {"/tmp/Łódź/日本.LGD", "/tmp/\xE9t\xE9.LGD", "/tmp/\xC3.LGD",
                                  "/tmp/\xED\xA0\x80.LGD", "/tmp/\xF5.LGD", "/tmp/?.LGD"}) {
        CAPTURE(nom);
        CHECK(Utf8VersChemin(CheminVersUtf8(nom)).native() == nom);
        Parametres parametres = Charges();
        CHECK_FALSE(parametres.LireParametresBase(nom));
        parametres.base.personneEnCours = 9;
        REQUIRE(parametres.SauverParametresBase(nom));
        REQUIRE(parametres.MemoriserHistorique(nom));
        Parametres relus = Charges();
        CHECK(relus.LireParametresBase(nom));
        CHECK(relus.generaux.historique.front().native() == nom);
    }
    CHECK(CheminAffiche("/tmp/Łé") == "/tmp/L\xE9");
}

TEST_CASE_FIXTURE(Foyer, "Parametres: words and single values are saved at once") {
    Parametres parametres = Charges();
    REQUIRE(parametres.AjouterMot("Rubrique TITL", "Vidame"));
    REQUIRE(parametres.AjouterMot("Rubrique TITL", "Écuyer"_1252, "x"));
    REQUIRE(parametres.SupprimerMot("Rubrique TITL", "KING"));
    REQUIRE(parametres.SauverValeur("Graphisme", "TGA", "Non"));
    const Parametres relus = Charges();
    const std::vector<std::string> mots = relus.Mots("Rubrique TITL");
    CHECK(mots.size() == 11);
    CHECK(mots.back() == "Écuyer"_1252);
    CHECK(std::find(mots.begin(), mots.end(), "KING") == mots.end());
    CHECK(relus.Valeur("Graphisme", "TGA") == "Non");
    CHECK(relus.Valeur("Graphisme", "BMP", "oui") == "oui");
}

TEST_CASE_FIXTURE(Foyer, "Parametres: the places follow the environment") {
    const auto poser = [](const char* nom, const std::string& valeur) {
        setenv(nom, valeur.c_str(), 1);
    };
    const char* avant = std::getenv("XDG_CONFIG_HOME");
    const std::string configuration = avant == nullptr ? "" : avant;
    poser("DORVANE_PARTAGE", (dossier / "partage").string());
    poser("XDG_CONFIG_HOME", (dossier / "c").string());
    const Lieux lus = LieuxDuSysteme();
    CHECK(lus.repertoire == dossier / "partage");
    CHECK(lus.configuration == dossier / "c/dorvane");
    poser("XDG_CONFIG_HOME", "relatif");
    CHECK(LieuxDuSysteme().configuration ==
          std::filesystem::path{std::getenv("HOME")} / ".config/dorvane");
    unsetenv("DORVANE_PARTAGE");
    CHECK(LieuxDuSysteme().repertoire.filename() == "dorvane");
    if (avant == nullptr)
        unsetenv("XDG_CONFIG_HOME");
    else
        poser("XDG_CONFIG_HOME", configuration);
}
