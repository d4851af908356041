#include "interchange/lgr/ImportLgr.h"

#include "interchange/lgr/EssaiLgr.h"
#include "messages/Dorvane.h"
#include "messages/Echange.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "storage/Slots.h"

#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::Coherence;
using doublures::EssaiLgr;

namespace {

/// A father and his son, married or not, with the lists of the current version.
const std::string Famille =
    "[INDIVIDUS]\n"
    " 1 \nDupont;Jean;;1820;\nH\nBrest\n\n 0 \n 0 \n|Dupont \xB6Jean\nUne note.\n#\n#\n"
    "{Mariages}\n 1 \n#\n"
    " 2 \nLe Goff;Anne;;1825;\nF\n\n\n 0 \n 0 \n#\n#\n{Mariages}\n 1 \n#\n"
    " 3 \nDupont;Luc;;1850;\nH\n\n\n 1 \n 2 \n#\n#\n#\n"
    "[FIN INDIVIDUS]\n"
    "[MARIAGES]\n 1 \n 2 \n1848\nBrest\n#\n[FIN MARIAGES]\n";

std::string Version(const std::string& version, const std::string& suite) {
    return "[Dorvane Version " + version + "]\n" + suite + "[FIN]\n";
}

struct Lecture : EssaiLgr {
    void Lire(const std::string& lignes, const std::string& version = "99.0") {
        ImporterLignes(Version(version, lignes));
    }
    [[nodiscard]] std::vector<NoMariage> Unions(std::uint32_t n) const {
        return neuve->R_MARIAG.Elements(NoOrdre{n});
    }
};

using Marie = std::vector<NoMariage>;

}  // namespace

TEST_CASE_FIXTURE(Lecture, "A new base: persons, parents, children and unions of a file") {
    Lire(Famille);
    REQUIRE(importation.issue);
    CHECK(Nom(1) == "Dupont;Jean;");
    CHECK(neuve->R_NAISS.LireCellule(NoOrdre{1}) == "1820");
    CHECK(neuve->R_SEXE.LireCellule(NoOrdre{2}) == Sexe::Femme);
    CHECK(neuve->R_PERE.LireCellule(NoOrdre{3}) == NoOrdre{1});
    CHECK(neuve->R_ENFANT.Elements(NoOrdre{2}) == std::vector{NoOrdre{3}});
    CHECK(Unions(1) == Marie{NoMariage{1}});
    CHECK(neuve->R_DEBMAR.LireCellule(NoMariage{1}) == "1848");
    // Places that the texts do not name are entered there.
    CHECK(Texte(1) == "|Dupont \xB6Jean $Brest\r\nUne note.");
    CHECK(storage::LieuMariage(*neuve, NoMariage{1}) == "Brest");
    CHECK(neuve->entete.OptOrigine97);
    CHECK(importation.rapport.finTrouvee);
    CHECK(Coherence{*neuve}.Ecarts() == "");
}

TEST_CASE_FIXTURE(Lecture,
                  "A new base: numbers stay, also with gaps; a person without a text has none") {
    Lire("[INDIVIDUS]\n 7 \nDupont;Jean;;;\n \n\n\n 0 \n 0 \n#\n#\n#\n[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    CHECK(neuve->entete.DernierIndividu == 7);
    CHECK(neuve->entete.NbTriIndividus == 1);
    CHECK(Nom(7) == "Dupont;Jean;");
    CHECK(Texte(7) == "");
    CHECK(neuve->R_SEXE.LireCellule(NoOrdre{7}) == Sexe::Indetermine);
}

TEST_CASE_FIXTURE(Lecture, "A new base: dates of every form, and years in the place of places") {
    Lire(
        "[INDIVIDUS]\n"
        " 1 \nA;;;12/3/1820;ABT 1890\nH\n\n\n 0 \n 0 \n#\n#\n#\n"
        " 2 \nB;;; -44;12/3     \nH\n\n\n 0 \n 0 \n#\n#\n#\n"
        " 3 \nC;;;12/3;\nH\n1820\n18??\n 0 \n 0 \n#\n#\n#\n"
        " 4 \nD;;;1820;\nH\n1900\n75\n 0 \n 0 \n|D ~75\n#\n#\n#\n"
        "[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    CHECK(Nom(1) == "A;;;12/3;ABT");
    CHECK(neuve->R_DECES.LireCellule(NoOrdre{1}) == "1890");
    CHECK(neuve->R_NAISS.AnneeTri(NoOrdre{2}) == "-044");
    CHECK(Nom(2) == "B;;;;12/3");
    CHECK(neuve->R_NAISS.LireCellule(NoOrdre{3}) == "1820");
    CHECK(neuve->R_DECES.LireCellule(NoOrdre{3}) == "18??");
    CHECK(Texte(3) == "");
    // A year is known, or the text names a place of digits: these are places.
    CHECK(storage::LieuNaissance(*neuve, NoOrdre{4}) == "1900");
    CHECK(storage::LieuDeces(*neuve, NoOrdre{4}) == "75");
    CHECK(neuve->R_DECES.LireCellule(NoOrdre{4}) == "");
}

TEST_CASE_FIXTURE(Lecture, "Below 3.0 a person ends with the text, and a union has four lines") {
    Lire(
        "[INDIVIDUS]\n 1 \nDupont;Jean;;1820;\nH\n\n\n 0 \n 0 \nTexte.\n#\n"
        " 2 \nLe Goff;Anne;;;\nF\n\n\n 0 \n 0 \n#\n[FIN INDIVIDUS]\n"
        "[MARIAGES]\n 1 \n 2 \n1/5/1848\nBrest\n[FIN MARIAGES]\n",
        "2.1");
    REQUIRE(importation.issue);
    CHECK(neuve->entete.NbTriIndividus == 2);
    CHECK(Texte(1) == "Texte.");
    CHECK(Unions(2) == Marie{NoMariage{1}});
    CHECK(neuve->R_TXTMAR.LireTexte(NoMariage{1}) == "1/5 @Brest");
    CHECK_FALSE(neuve->entete.OptOrigine97);
}

TEST_CASE_FIXTURE(Lecture, "From 3.0 on the documents of a person follow the text") {
    for (const char* version : {"3.0", "3.1"}) {
        CAPTURE(version);
        Lire(
            "[INDIVIDUS]\n 1 \nDupont;Jean;;;\nH\n\n\n 0 \n 0 \nTexte.\n#\n 1 \n 2 \n#\n"
            " 2 \nLe Goff;Anne;;;\nF\n\n\n 0 \n 0 \n#\n#\n[FIN INDIVIDUS]\n"
            "[IMAGES]\n 1 \nUn\na.jpg\n#\n 2 \nDeux\nb.jpg\nNote.\n#\n[FIN IMAGES]\n"
            "[MARIAGES]\n 1 \n 2 \n1848\nBrest\n[FIN MARIAGES]\n",
            version);
        REQUIRE(importation.issue);
        CHECK(neuve->entete.NbTriIndividus == 2);
        CHECK(neuve->R_LSTIMG.Elements(NoOrdre{1}) == std::vector{NoDocument{1}, NoDocument{2}});
        CHECK(neuve->R_IMAGE.NoteDoc(NoDocument{2}) == "Note.");
        CHECK(Unions(1) == Marie{NoMariage{1}});
    }
}

TEST_CASE_FIXTURE(Lecture, "A file of 97.0 has its unions from the section of unions") {
    // The list of the first is wrong, that of the second is missing.
    std::string lignes = Famille;
    lignes.replace(lignes.find("{Mariages}\n 1 \n"), 15, "{Mariages}\n 9 \n");
    lignes.erase(lignes.rfind("{Mariages}\n 1 \n"), 15);
    Lire(lignes, "97.0");
    REQUIRE(importation.issue);
    CHECK(Unions(1) == Marie{NoMariage{1}});
    CHECK(Unions(2) == Marie{NoMariage{1}});
    CHECK(importation.rapport.Nombre(Constat::Reference) == 0);
    CHECK(neuve->entete.OptOrigine97);
}

TEST_CASE_FIXTURE(Lecture, "From 97.1 on the lists of unions give the order") {
    Lire(
        "[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n#\n#\n{Mariages}\n 2 \n 1 \n#\n"
        " 2 \nB;;;;\nF\n\n\n 0 \n 0 \n#\n#\n{Mariages}\n 1 \n 2 \n#\n[FIN INDIVIDUS]\n"
        "[MARIAGES]\n 1 \n 2 \n\n\n#\n 1 \n 2 \n\n\n#\n[FIN MARIAGES]\n",
        "97.1");
    REQUIRE(importation.issue);
    CHECK(Unions(1) == Marie{NoMariage{2}, NoMariage{1}});
    CHECK(Unions(2) == Marie{NoMariage{1}, NoMariage{2}});
}

TEST_CASE_FIXTURE(Lecture, "Below 97.0 labels are those of the language, from there on tags") {
    const std::string lignes =
        "[MOTS CLES]\n\\\nProfession\n[FIN MOTS CLES]\n"
        "[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n|A\nProfession meunier\n#\n#\n"
        "[FIN INDIVIDUS]\n";
    Lire(lignes, "3.1");
    REQUIRE(importation.issue);
    CHECK(Texte(1) == "|A\r\nOCCU meunier");
    CHECK(storage::SlotsDe(*neuve, NoOrdre{1})[0].lieu == "meunier");
    CHECK(neuve->entete.LibellesNeutres);
}

TEST_CASE_FIXTURE(Lecture, "Below 97.0 roles and links are in words as well") {
    const std::string lignes =
        "[INDIVIDUS]\n"
        " 1 \nA;;;;\nH\n\n\n 0 \n 0 \n#\n#\n 2 \nT\xE9moin\n{Ev\xE9nements}\n 1 ;Enfant\n#\n"
        " 2 \nB;;;;\nF\n\n\n 0 \n 0 \n#\n#\n#\n[FIN INDIVIDUS]\n"
        "[EVENEMENTS]\n 1 \n0\n\nCHR\n\n 1 ;\n\n#\n[FIN EVENEMENTS]\n";
    const auto textes = [this](const std::string& lien, const std::string& role) {
        REQUIRE(importation.issue);
        CHECK(neuve->R_LIEN.TexteElement(NoOrdre{1}, 1) == lien);
        CHECK(neuve->R_LIEN.TexteElement(NoOrdre{2}, 1) == lien);
        CHECK(neuve->R_LSTEVT.TexteElement(NoOrdre{1}, 1) == role);
        CHECK(neuve->R_EVT.Liens(NoEvenement{1}).at(0).role == role);
    };
    Lire(lignes, "5.0");
    textes("WITN", "CHIL");
    Lire(lignes, "97.0");
    textes("T\xE9moin", "Enfant");
}

TEST_CASE_FIXTURE(
    Lecture, "Sections come in any order, unknown ones and lines after the end are passed over") {
    const std::size_t unions = Famille.find("[MARIAGES]");
    Lire("[INDEX]\n|\n[FIN INDEX]\n[AUTRE]\nx\n[FIN AUTRE]\n" + Famille.substr(unions) +
         Famille.substr(0, unions) + "[FIN]\n[IMAGES]\n 1 \nUn\na\n#\n[FIN IMAGES]\n");
    REQUIRE(importation.issue);
    CHECK(Unions(1) == Marie{NoMariage{1}});
    CHECK(neuve->entete.NbTriIndividus == 3);
    CHECK(neuve->entete.DernierDocument == 0);
}

TEST_CASE_FIXTURE(Lecture,
                  "A number that is none reads as 0: such a record is left out and counted") {
    Lire(
        "[INDIVIDUS]\nun\nA;;;;\nH\n\n\n 0 \n 0 \n#\n#\n#\n"
        " 2 \nB;;;;\nH\n\n\nun\n 1 \n#\n#\n#\n[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    CHECK(neuve->entete.NbTriIndividus == 1);
    CHECK(Nom(2) == "B;;");
    CHECK(importation.rapport.Nombre(Constat::Illisible, "INDIVIDUS") == 1);
    // Mother 1 is not in the file.
    CHECK(neuve->R_MERE.LireCellule(NoOrdre{2}) == NoOrdre{});
    CHECK(importation.rapport.Nombre(Constat::Reference, "INDIVIDUS") == 1);
}

TEST_CASE_FIXTURE(Lecture,
                  "Texts keep lines that look like sections, and returns that stand alone") {
    const std::string texte = "|A\n[FIN INDIVIDUS]\n{Mariages}\n 1 \n[FIN]\na\rb\n\n fin ";
    Lire("[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n" + texte + "\n#\n#\n#\n[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    CHECK(Texte(1) == EnLignes(texte));
    CHECK(neuve->entete.NbTriIndividus == 1);
}

TEST_CASE_FIXTURE(Lecture, "A file whose lines end otherwise is read all the same") {
    for (const char* fin : {"\n", "\r", "\n\r"}) {
        std::string octets;
        for (const char c : Version("99.0", Famille))
            octets += c == '\n' ? std::string{fin} : std::string(1, c);
        Importer(octets);
        REQUIRE(importation.issue);
        CHECK(neuve->entete.NbTriIndividus == 3);
        CHECK(Texte(1) == "|Dupont \xB6Jean $Brest\r\nUne note.");
    }
}

TEST_CASE_FIXTURE(Lecture,
                  "A text in UTF-8 with its mark is read; what the code page lacks is counted") {
    Importer("\xEF\xBB\xBF" +
             TexteVersUtf8(EnLignes(Version("99.0",
                                            "[INDIVIDUS]\n 1 \nH\xE9lias;;;;\nH\n\n\n 0 \n"
                                            " 0 \n\n#\n#\n{Ev\xE9nements}\n 1 ;X\n#\n"
                                            "[FIN INDIVIDUS]\n[EVENEMENTS]\n 1 \n0\n\n\n\n"
                                            "\n\n#\n[FIN EVENEMENTS]\n"))));
    REQUIRE(importation.issue);
    CHECK(Nom(1) == "H\xE9lias;;");
    CHECK(neuve->R_EVT.Liens(NoEvenement{1}).at(0).individu == NoOrdre{1});
}

TEST_CASE_FIXTURE(Lecture,
                  "Labels of a link may differ; a link that one side only names is on both") {
    Lire(
        "[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n#\n#\n 2 \nparrain\n 3 \nami\n 3 \nami\n#\n"
        " 2 \nB;;;;\nH\n\n\n 0 \n 0 \n#\n#\n 1 \nfilleul\n#\n"
        " 3 \nC;;;;\nH\n\n\n 0 \n 0 \n#\n#\n#\n[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    storage::ListeLiens& liens = neuve->R_LIEN;
    CHECK(liens.NbElements(NoOrdre{1}) == 2);
    CHECK(liens.TexteElement(NoOrdre{1}, 1) == "parrain");
    CHECK(liens.NbElements(NoOrdre{2}) == 1);
    CHECK(liens.TexteElement(NoOrdre{2}, 1) == "filleul");
    CHECK(liens.ElementListe(NoOrdre{3}, 1) == NoOrdre{1});
    CHECK(liens.TexteElement(NoOrdre{3}, 1) == "ami");
}

TEST_CASE_FIXTURE(Lecture,
                  "Who is named by an event or by a person only takes part on both sides") {
    const std::string evenements = "{Ev\xE9nements}\n";
    Lire("[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n#\n#\n" + evenements +
         " 1 ;CHIL\n#\n 2 \nB;;;;\nH\n\n\n 0 \n 0 \n#\n#\n" + evenements +
         " 1 ;GODF\n 1 ;WITN\n#\n 3 \nC;;;;\nH\n\n\n 0 \n 0 \n#\n#\n#\n[FIN INDIVIDUS]\n"
         "[EVENEMENTS]\n 1 \n-100\nBrest\nBapt\xEAme\nLe sien\n 3 ; 1 ; 1 ;9;\n\n\n#\n"
         "[FIN EVENEMENTS]\n");
    REQUIRE(importation.issue);
    const std::vector<storage::LienEvenement> attendus{
        {NoOrdre{3}, ""}, {NoOrdre{1}, "CHIL"}, {NoOrdre{2}, "GODF"}, {NoOrdre{2}, "WITN"}};
    CHECK(neuve->R_EVT.Liens(NoEvenement{1}) == attendus);
    CHECK(neuve->R_LSTEVT.NbElements(NoOrdre{2}) == 2);
    CHECK(neuve->R_LSTEVT.ElementListe(NoOrdre{3}, 1) == NoEvenement{1});
    // A label of the language is stored as its tag.
    CHECK(neuve->R_EVT.TypeEvt(NoEvenement{1}) == "CHR");
    CHECK(importation.rapport.Nombre(Constat::Reference, "EVENEMENTS") == 1);
}

TEST_CASE_FIXTURE(Lecture,
                  "A parent with 201 children keeps 200, the last has that parent no more") {
    std::string lignes = "[INDIVIDUS]\n 1 \nA;;;1700;\nH\n\n\n 0 \n 0 \n#\n#\n#\n";
    for (int n = 2; n <= 202; ++n)
        lignes += ' ' + std::to_string(n) + " \nB;;;1800;\nH\n\n\n 1 \n 0 \n#\n#\n#\n";
    Lire(lignes + "[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    CHECK(neuve->R_ENFANT.NbElements(NoOrdre{1}) == 200);
    CHECK(neuve->R_PERE.LireCellule(NoOrdre{201}) == NoOrdre{1});
    CHECK(neuve->R_PERE.LireCellule(NoOrdre{202}) == NoOrdre{});
    CHECK(importation.rapport.Nombre(Constat::Limite, "INDIVIDUS") == 1);
}

TEST_CASE_FIXTURE(Lecture,
                  "Numbers past the limits and numbers given twice are left out and told") {
    const std::string reste = " \nA;;;;\nH\n\n\n 0 \n 0 \n#\n#\n#\n";
    Lire("[INDIVIDUS]\n 64000" + reste + " 64001" + reste + " 64000" + reste +
         "[FIN INDIVIDUS]\n[IMAGES]\n 32001 \nUn\na\n#\n[FIN IMAGES]\n"
         "[EVENEMENTS]\n 32001 \n0\n\n\n\n\n\n#\n[FIN EVENEMENTS]\n");
    REQUIRE(importation.issue);
    CHECK(neuve->entete.NbTriIndividus == 1);
    CHECK(neuve->entete.DernierIndividu == 64000);
    CHECK(importation.rapport.Nombre(Constat::Doublon, "INDIVIDUS") == 1);
    std::vector<NoMessage> entendu;
    for (const shell::Phrase& phrase : dialogue.entendu)
        entendu.push_back(phrase.no);
    CHECK(entendu == std::vector{message::MaximumPersonnesBaseAtteint,
                                 message::MaximumEvenementsBaseAtteint,
                                 message::MaximumDocumentsBaseAtteint});
}

TEST_CASE_FIXTURE(Lecture, "The order of the file tells the order of the base") {
    const auto personne = [](const char* n, const char* nom, const char* annee) {
        return std::string{" "} + n + " \n" + nom + ";;;" + annee + ";\nH\n\n\n 0 \n 0 \n#\n#\n#\n";
    };
    Lire("[INDIVIDUS]\n" + personne("2", "Abel", "1900") + personne("1", "Zola", "1800") +
         "[FIN INDIVIDUS]\n");
    CHECK(neuve->entete.TypeTri == TypeTri::Nom);
    Lire("[INDIVIDUS]\n" + personne("1", "Zola", "1900") + personne("2", "Abel", "1800") +
         "[FIN INDIVIDUS]\n");
    CHECK(neuve->entete.TypeTri == TypeTri::Creation);
    Lire("[INDIVIDUS]\n" + personne("3", "Zola", "1900") + personne("1", "Abel", "1800") +
         personne("2", "Caen", "1850") + "[FIN INDIVIDUS]\n");
    CHECK(neuve->entete.TypeTri == TypeTri::Naissance);
    CHECK(neuve->R_TRI.individus.Numeros() == std::vector<std::uint16_t>{1, 2, 3});
}

TEST_CASE_FIXTURE(Lecture,
                  "Keywords of the index section are indexed, and the surnames in any case") {
    Lire(
        "[MOTS CLES]\n|\nBIRN\n\xB6\nFNAM\n$\nBIRT\n\xB5\nSurnom\n[FIN MOTS CLES]\n"
        "[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n|A \xB6Jean $Brest \xB5Petit\n#\n#\n#\n"
        "[FIN INDIVIDUS]\n[INDEX]\n$\n\xB5\n[FIN INDEX]\n");
    REQUIRE(importation.issue);
    const auto indexe = [&](char symbole) {
        return neuve->motsCles.LibelleType(neuve->motsCles.TypeDuSymbole(symbole)).indexe;
    };
    CHECK(indexe('|'));
    CHECK_FALSE(indexe('\xB6'));
    CHECK(indexe('$'));
    CHECK(indexe('\xB5'));
    CHECK(neuve->R_INDEX.ChercherMot(neuve->motsCles.TypeDuSymbole('\xB5'), "PETIT"));
    CHECK(Coherence{*neuve}.Ecarts() == "");
}

TEST_CASE_FIXTURE(Lecture, "The settings of the file are those of the new base only") {
    ImporterLignes(Version("99.0",
                           "[INI]\n Couleur Fond = 255 \nType Pr\xE9sentation=0\nDe Cujus=3\n"
                           "Personne en cours=2\nAuteur=Moi\nAdresse 2=Ici = l\xE0\n"
                           "Type Document 1=Photo\nType Document 2=Acte\nInconnu=1\nsans\n"
                           "[FIN INI]\n" +
                               Famille));
    REQUIRE(importation.issue);
    REQUIRE(session.parametres.LireParametresBase(shell::CheminEntier(chemin)));
    const shell::ReglagesBase& b = session.parametres.base;
    CHECK(b.affichage.couleurFond == 255);
    CHECK(b.affichage.typePresentation == 2);
    CHECK(b.deCujus1 == 3);
    CHECK(b.personneEnCours == 2);
    CHECK(b.auteur == "Moi");
    CHECK(b.adresse[1] == "Ici = l\xE0");
    CHECK(b.typeDocument == "Photo/Acte/");
    CHECK(session.parametres.Valeur("Defaut", "Auteur") == "");
}

TEST_CASE_FIXTURE(Lecture, "A file that is no exchange text makes no base and says why") {
    for (const char* octets :
         {"", "bonjour\r\n", "0 HEAD\r\n0 TRLR\r\n", "[Dorvane Version 99.0]"}) {
        CAPTURE(octets);
        dialogue.entendu.clear();
        Importer(octets);
        CHECK_FALSE(importation.issue);
        CHECK(dialogue.entendu ==
              std::vector{shell::Msg(message::FichierPasUnEchange, "essai.lgr")});
        CHECK_FALSE(std::filesystem::exists(chemin));
    }
}

TEST_CASE_FIXTURE(Lecture, "A file that is cut off gives what it holds, and the report says so") {
    const std::string octets = EnLignes(Version("99.0", Famille));
    for (std::size_t taille = 30; taille < octets.size(); ++taille) {
        CAPTURE(taille);
        Importer(octets.substr(0, taille));
        REQUIRE(importation.issue);
        const bool entier = taille == octets.size() - 2;
        CHECK(importation.rapport.finTrouvee == entier);
        CHECK(Coherence{*neuve}.Ecarts() == "");
    }
    CHECK(neuve->entete.NbTriIndividus == 3);
    Importer(octets.substr(0, octets.size() - 8));
    CHECK(importation.texte.find(session.Message(message::RapportFinManquante)) !=
          std::string::npos);
}

TEST_CASE_FIXTURE(Lecture, "A cancel at any step leaves no base, or the former one") {
    std::string lignes = "[INDIVIDUS]\n";
    for (int n = 1; n <= 250; ++n)
        lignes += ' ' + std::to_string(n) + " \nB;;;1800;\nH\n\n\n 0 \n 0 \n|B\n#\n#\n#\n";
    lignes += "[FIN INDIVIDUS]\n";
    Lire(lignes);
    REQUIRE(importation.issue);
    const std::uint32_t pas = progression.pas;
    REQUIRE(pas > 4);
    neuve.reset();
    const std::string avant = doublures::LireFichier(chemin);
    for (std::uint32_t n = 1; n < 6; ++n) {
        CAPTURE(n);
        progression.pas = 0;
        progression.annulerAu = n;
        dialogue.entendu.clear();
        Lire(lignes);
        CHECK_FALSE(importation.issue);
        CHECK(dialogue.entendu == std::vector{shell::Msg(message::ImportAbandonne)});
        CHECK(doublures::LireFichier(chemin) == avant);
        CHECK_FALSE(std::filesystem::exists(dossier / "essai.LGD.nouveau"));
        CHECK(progression.cadres == 0);
    }
}

TEST_CASE_FIXTURE(Lecture, "A text or a name that a record cannot hold is fitted, and counted") {
    Lire("[INDIVIDUS]\n 1 \n" + std::string(1200, 'A') +
         ";B#C;;1820;\nH\nBrest#\n\n 0 \n 0 \n"
         "un#deux\n#\n#\n#\n[FIN INDIVIDUS]\n[IMAGES]\n 1 \nT\nf\n" +
         std::string(40000, 'n') + "\n#\n[FIN IMAGES]\n");
    REQUIRE(importation.issue);
    CHECK(Nom(1).size() == 1000);
    CHECK(Texte(1) == "un-deux $Brest-");
    CHECK(neuve->R_IMAGE.NoteDoc(NoDocument{1}).size() == 32000);
    CHECK(importation.rapport.Nombre(Constat::Remplace) == 2);
}

TEST_CASE_FIXTURE(Lecture, "From the menu a file of another extension is read, a base is not") {
    session.PoserBase(nullptr);
    doublures::EcrireFichier(fichier, EnLignes(Version("99.0", Famille)));
    ImporterFichier(session, fichier);
    REQUIRE(session.BaseOuverte());
    CHECK(session.base->entete.NbTriIndividus == 3);
    const std::string avant = doublures::LireFichier(chemin);
    ImporterFichier(session, chemin);
    CHECK(doublures::LireFichier(chemin) == avant);
}

TEST_CASE_FIXTURE(Lecture,
                  "A new base: a keyword that the file lacks gives way, so that no text changes") {
    Lire(
        "[MOTS CLES]\n^\nSobriquet\n\\\nOCCU\n[FIN MOTS CLES]\n"
        "[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n|A ^Petit\n2^3\n#\n#\n#\n[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    CHECK(Texte(1) == "|A ^Petit\r\n2^3");
    CHECK(neuve->motsCles.LibelleType(NoMotCle{1}).libelle == "Sobriquet");
    CHECK(neuve->motsCles.LibelleType(NoMotCle{2}).libelle == "OCCU");
    CHECK(neuve->motsCles.TypeDuSymbole('|'));
}

TEST_CASE_FIXTURE(
    Lecture, "A new base: a keyword whose marker another one of the file needs takes a free one") {
    // "$" is that of the places of birth in every base.
    Lire(
        "[MOTS CLES]\n$\nSobriquet\n[FIN MOTS CLES]\n"
        "[INDIVIDUS]\n 1 \nA;;;;\nH\n\n\n 0 \n 0 \n|A $Petit\n#\n#\n#\n[FIN INDIVIDUS]\n");
    REQUIRE(importation.issue);
    CHECK(Texte(1) == "|A \xB5Petit");
}

TEST_CASE_FIXTURE(Lecture,
                  "A new base: name settings, rows and the description are those of the file") {
    Lire(
        "[PARAMETRES]\n1\n1\n[FIN PARAMETRES]\n[DESCRIPTION]\n 2 \n[FIN DESCRIPTION]\n"
        "[DONNEES INDIVIDUS]\n%\n1\n?\n1\n[FIN DONNEES INDIVIDUS]\n"
        "[DONNEES MARIAGES]\n[FIN DONNEES MARIAGES]\n"
        "[IMAGES]\n 2 \nMa famille\n\n#\n[FIN IMAGES]\n");
    REQUIRE(importation.issue);
    CHECK(neuve->entete.OptParticules);
    CHECK(neuve->entete.OptPrenomUnique);
    CHECK(neuve->entete.DocBase == NoDocument{2});
    // No keyword has the marker "?".
    CHECK(storage::NbSlots(neuve->entete.SlotsIndividu) == 1);
    CHECK(neuve->entete.SlotsIndividu[0] == storage::Slot{'%', '1'});
    CHECK(storage::NbSlots(neuve->entete.SlotsMariage) == 0);
}
