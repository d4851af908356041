#include "records/TexteFiche.h"

#include "doublures/FicheEssai.h"
#include "values/Texte1252.h"

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::records;

namespace {

struct Texte : doublures::FicheEssai {
    Texte() {
        // Two slots with a date, one without.
        B().entete.SlotsIndividu = {};
        B().entete.SlotsIndividu[0] = {Symbole("CHR"), '1'};
        B().entete.SlotsIndividu[1] = {Symbole("OCCU"), ' '};
        B().entete.SlotsMariage = {};
        B().entete.SlotsMariage[0] = {Symbole("CHR"), '1'};
        fiche.nom = "de La Tour";
        fiche.prenom = "Jean Marie";
        fiche.lieuNaissance = "Saint Malo";
        fiche.lieuDeces = "Rennes";
    }

    char Symbole(std::string_view tag) {
        for (NoMotCle k{1}; k.valeur <= B().motsCles.Nombre(); ++k.valeur)
            if (B().motsCles.LibelleType(k).libelle == tag)
                return B().motsCles.LibelleType(k).symbole;
        const NoMotCle neuf{B().motsCles.Nombre() + 1};
        const char symbole = tag == "CHR" ? '^' : '\\';
        B().motsCles.CreerType(neuf, {symbole, std::string{tag}, false, {}});
        return symbole;
    }
    std::string S(std::string_view tag) { return {Symbole(tag)}; }
    std::string Composer() { return ComposerTexteIndividu(session, fiche); }

    SaisieFiche fiche;
};

}  // namespace

TEST_CASE_FIXTURE(Texte,
                  "ComposerTexteIndividu: the first line holds the keys of the names and the "
                  "places, blanks as dots") {
    CHECK(Composer() == "|de.La.Tour ¶Jean.Marie $Saint.Malo ~Rennes"_1252);
}

TEST_CASE_FIXTURE(Texte, "ComposerTexteIndividu: what is empty leaves its mark out") {
    fiche.prenom.clear();
    fiche.lieuDeces = "   ";
    CHECK(Composer() == "|de.La.Tour $Saint.Malo");
    fiche = {};
    CHECK(Composer().empty());
}

TEST_CASE_FIXTURE(Texte,
                  "ComposerTexteIndividu: with one keyword for each first name the blanks stay") {
    B().entete.OptPrenomUnique = true;
    CHECK(Composer() == "|de.La.Tour ¶Jean Marie $Saint.Malo ~Rennes"_1252);
}

TEST_CASE_FIXTURE(Texte, "ComposerTexteIndividu: particles go behind the name when so set") {
    B().entete.OptParticules = true;
    CHECK(Composer().starts_with("|Tour.(de.la) "));
}

TEST_CASE_FIXTURE(Texte,
                  "ComposerTexteIndividu: a slot line holds its tag, a whole date in digits and "
                  "the place") {
    fiche.slots[0] = {"12 mai", "1850", "Saint Malo"};
    CHECK(Composer().ends_with("\r\nCHR 12/5/1850 " + S("CHR") + "Saint.Malo"));
}

TEST_CASE_FIXTURE(Texte, "ComposerTexteIndividu: a slot that is no whole date pads its year") {
    SUBCASE("words of dates") {
        fiche.slots[0] = {"vers 12 mai", "1850", ""};
        CHECK(Composer().ends_with("\r\nCHR ABT 12 MAY 1850"));
    }
    SUBCASE("no year") {
        fiche.slots[0] = {"12 mai", "", ""};
        CHECK(Composer().ends_with("\r\nCHR 12/5     "));
    }
    SUBCASE("a short year") {
        fiche.slots[0] = {"12 mai", "85", ""};
        CHECK(Composer().ends_with("\r\nCHR 12/5   85"));
    }
    SUBCASE("a year alone") {
        fiche.slots[0] = {"", "185", ""};
        CHECK(Composer().ends_with("\r\nCHR  185"));
    }
}

TEST_CASE_FIXTURE(Texte,
                  "ComposerTexteIndividu: a slot that holds only a place writes a line with the "
                  "tag and the place") {
    fiche.slots[0] = {"", "", "Saint Malo"};
    CHECK(Composer().ends_with("\r\nCHR " + S("CHR") + "Saint.Malo"));
}

TEST_CASE_FIXTURE(Texte, "ComposerTexteIndividu: a plain slot keeps its words behind the mark") {
    fiche.slots[1].lieu = "maître maçon"_1252;
    CHECK(Composer().ends_with("\r\nOCCU " + S("OCCU") + std::string{"maître.maçon"_1252}));
}

TEST_CASE_FIXTURE(Texte,
                  "ComposerTexteIndividu: rows behind the last slot of the base are not written") {
    fiche.slots[2] = {"1 mai", "1850", "Brest"};
    CHECK(Composer().find('\r') == std::string::npos);
}

TEST_CASE_FIXTURE(Texte, "ComposerTexteIndividu: the note comes last, its lines ended as stored") {
    fiche.slots[0] = {"", "1850", ""};
    fiche.note = "Une ligne\nune autre\r\nla fin";
    CHECK(Composer().ends_with("\r\nCHR 1850\r\nUne ligne\r\nune autre\r\nla fin"));
}

TEST_CASE_FIXTURE(Texte,
                  "ComposerTexteIndividu: '#' becomes '-', and inside rich text its escape") {
    fiche.lieuNaissance = "Lot #3";
    fiche.note = "a # b";
    CHECK(Composer().find('#') == std::string::npos);
    CHECK(Composer().ends_with("a - b"));
    fiche.note = "{\\rtf1 a # b}";
    CHECK(Composer().ends_with("{\\rtf1 a \\'23 b}"));
}

TEST_CASE_FIXTURE(Texte, "ComposerTexteIndividu: line ends inside a field do not open a line") {
    fiche.prenom = "Jean\r\nCHR 1/1/1800";
    fiche.lieuNaissance = "Brest\nnote";
    CHECK(Composer().find_first_of("\r\n") == std::string::npos);
}

TEST_CASE_FIXTURE(
    Texte, "ComposerTexteIndividu: a mark typed in a field is not taken for that of another") {
    fiche.nom = "du $Bourg";
    fiche.prenom = "Anne ~Lyon";
    fiche.lieuNaissance = "Pont ~Croix";
    fiche.lieuDeces = "";
    CHECK(storage::LireLieu(Composer(), '$') == "Pont -Croix");
    CHECK(storage::LireLieu(Composer(), '~').empty());
}

TEST_CASE_FIXTURE(Texte, "ComposerTexteMariage: date words, '@' and the place, slots, note") {
    SaisieUnion mariage;
    mariage.jourMois = "12 mars";
    mariage.lieu = "La Rochelle";
    mariage.slots[0] = {"", "1850", ""};
    mariage.note = "Trois témoins"_1252;
    CHECK(ComposerTexteMariage(session, mariage) ==
          "12/3 @La.Rochelle\r\nCHR 1850\r\nTrois témoins"_1252);
    CHECK(ComposerTexteMariage(session, {}).empty());
    mariage = {};
    mariage.jourMois = "@12";
    CHECK(ComposerTexteMariage(session, mariage).find('@') == std::string::npos);
}

TEST_CASE_FIXTURE(Texte, "ComposerLigneNom: three names, and the two dates when one is filled") {
    fiche.autrePrenom = " Jeannot ";
    CHECK(ComposerLigneNom(session, fiche) == "de La Tour;Jean Marie;Jeannot");
    fiche.jourMoisDeces = "vers 1er mars";
    CHECK(ComposerLigneNom(session, fiche) == "de La Tour;Jean Marie;Jeannot;;ABT 1 MAR");
    fiche.jourMoisNaissance = "12; mars";
    CHECK(storage::DecouperNom(ComposerLigneNom(session, fiche)).jourMoisDeces == "ABT 1 MAR");
}

TEST_CASE("RepartirNoms: a ';' sends what follows to the next name") {
    SaisieFiche fiche;
    SUBCASE("one") {
        fiche.nom = "Dupont;Jean";
        RepartirNoms(fiche);
        CHECK(fiche.nom == "Dupont");
        CHECK(fiche.prenom == "Jean");
    }
    SUBCASE("in front of what is there") {
        fiche.nom = "Dupont;Jean";
        fiche.prenom = "Marie";
        RepartirNoms(fiche);
        CHECK(fiche.prenom == "Jean");
        CHECK(fiche.autrePrenom == "Marie");
    }
    SUBCASE("two in the surname") {
        fiche.nom = "Dupont;Jean;Jeannot";
        RepartirNoms(fiche);
        CHECK(fiche.nom == "Dupont");
        CHECK(fiche.prenom == "Jean");
        CHECK(fiche.autrePrenom == "Jeannot");
    }
    SUBCASE("a ';' of the last name stays") {
        fiche.nom = "Dupont;Jean;Jeannot;12/3;4/5";
        RepartirNoms(fiche);
        CHECK(fiche.autrePrenom == "Jeannot;12/3;4/5");
    }
    SUBCASE("nothing behind it") {
        fiche.nom = "Dupont;";
        RepartirNoms(fiche);
        CHECK(fiche.nom == "Dupont");
        CHECK(fiche.prenom.empty());
    }
}

TEST_CASE_FIXTURE(Texte, "MontrerJourMois gives back what SaisirJourMois has stored") {
    for (const std::string_view date :
         {"12 mars"_1252, "vers 12 mars"_1252, "après 3 mars"_1252, "12"_1252, ""_1252}) {
        CAPTURE(date);
        CHECK(MontrerJourMois(session, SaisirJourMois(session, date)) == date);
    }
    CHECK(SaisirJourMois(session, "12 mars") == "12/3");
}

TEST_CASE_FIXTURE(Texte, "JourDeLaSemaine: the weekday of a whole date, nothing for another") {
    CHECK(JourDeLaSemaine(session, "14 juillet", "1789") == "mardi");
    CHECK(JourDeLaSemaine(session, "1er mars", " 1820") == "mercredi");
    CHECK(JourDeLaSemaine(session, "30 fevrier", "1820").empty());
    CHECK(JourDeLaSemaine(session, "14 juillet", "").empty());
    CHECK(JourDeLaSemaine(session, "", "1789").empty());
}

TEST_CASE_FIXTURE(Texte, "AppliquerCasse: each option of the base on its fields") {
    shell::ReglagesBase& reglages = session.parametres.base;
    CHECK(AppliquerCasse(session, "de la tour", Casse::Nom) == "de la tour");
    reglages.conversionNom = "1";
    reglages.conversionPrenom = "2";
    reglages.conversionLieu = "2";
    CHECK(AppliquerCasse(session, "élie"_1252, Casse::Nom) == "ÉLIE"_1252);
    CHECK(AppliquerCasse(session, "JEAN-marie", Casse::Prenom) == "Jean-Marie");
    reglages.conversionNom = "2";
    CHECK(AppliquerCasse(session, "DE la tour", Casse::Nom) == "de la Tour");
    // No particles in places.
    CHECK(AppliquerCasse(session, "bois de la ville", Casse::Lieu) == "Bois De La Ville");
}

TEST_CASE_FIXTURE(Texte, "AviserDate: says what is odd, and nothing of what is usual") {
    const auto avis = [this](std::string_view jourMois, std::string_view annee,
                             std::string_view naissance = "", std::string_view deces = "") {
        return AviserDate(session, jourMois, annee, naissance, deces);
    };
    CHECK(avis("", "") == AvisDate::Bon);
    CHECK(avis("12 mars", "1850") == AvisDate::Bon);
    CHECK(avis("vers mars", "1850") == AvisDate::Bon);
    CHECK(avis("mars", "1850") == AvisDate::Bon);
    CHECK(avis("entre 12 mars et 14 mars", "1850") == AvisDate::Bon);
    CHECK(avis("", "-44") == AvisDate::Bon);
    CHECK(avis("29 fevrier", "") == AvisDate::AnneeManque);
    CHECK(avis("12 mars", "") == AvisDate::AnneeManque);
    CHECK(avis("", "18?") == AvisDate::AnneeIllisible);
    CHECK(avis("", "-") == AvisDate::AnneeIllisible);
    CHECK(avis("31 avril", "1850") == AvisDate::DateIllisible);
    CHECK(avis("un jour", "1850") == AvisDate::DateIllisible);
    CHECK(avis("29 fevrier", "1850") == AvisDate::DateIllisible);
    CHECK(avis("", "1840", "1850", "1900") == AvisDate::AvantNaissance);
    CHECK(avis("", "1901", "1850", "1900") == AvisDate::ApresDeces);
    CHECK(avis("", "1850", "1850", "1850") == AvisDate::Bon);
    CHECK(avis("", "1971", "1850") == AvisDate::VieTropLongue);
    CHECK(avis("", "1840", "18?", "?") == AvisDate::Bon);
}
