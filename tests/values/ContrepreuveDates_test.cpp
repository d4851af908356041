// Dates against a second, naive writing of their rules, on texts made by chance.
#include "doublures/MotsDeTest.h"
#include "values/Annees.h"
#include "values/Contrepreuve.h"

#include <algorithm>
#include <map>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::contrepreuve;

namespace {

constexpr int Tours = 20000;

constexpr std::array<std::string_view, 12> Jetons{"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                  "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
constexpr std::array<std::string_view, 12> Anglais{"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                   "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                   "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
constexpr std::array<std::string_view, 12> Francais{"JANVIER",   "FEVRIER", "MARS",     "AVRIL",
                                                    "MAI",       "JUIN",    "JUILLET",  "AOUT",
                                                    "SEPTEMBRE", "OCTOBRE", "NOVEMBRE", "DECEMBRE"};

std::string S(std::string_view vue) {
    return std::string(vue);
}

/// The check of dates, by parts in the order given.
bool Existe(const std::string& date, OrdreDate ordre) {
    const std::string texte = Rogne(date);
    const bool barres = Ou(texte, "/") != 0;
    if (barres && Ou(texte, " ") != 0) return false;
    std::vector<std::string> parties(1);
    for (const char c : texte) {
        if (c != (barres ? '/' : ' '))
            parties.back() += c;
        else if (barres || !parties.back().empty())
            parties.emplace_back();
    }
    if (parties.size() != 3) return false;
    std::string places = "jma";
    if (ordre == OrdreDate::MoisJourAnnee) places = "mja";
    if (ordre == OrdreDate::AnneeMoisJour) places = "amj";
    if (ordre == OrdreDate::AnneeJourMois) places = "ajm";
    if (ordre == OrdreDate::MoisAnneeJour) places = "maj";
    const auto partie = [&](char c) { return parties[places.find(c)]; };
    const auto entier = [](const std::string& t) {
        if (t.empty() || t.find_first_not_of("0123456789") != std::string::npos) return -1;
        const std::string utile = t.substr(std::min(t.find_first_not_of('0'), t.size()));
        return utile.size() > 5 ? 99999 : utile.empty() ? 0 : std::stoi(utile);
    };
    const int jour = entier(partie('j'));
    int annee = entier(partie('a'));
    if (partie('a').size() < 3 && annee >= 0) annee += annee < 30 ? 2000 : 1900;
    int mois = entier(partie('m'));
    const std::string nom = Plie(partie('m'));
    for (int m = 11; m >= 0; --m)
        for (const auto& noms : {Jetons, Francais, Anglais}) {
            const std::string un = S(noms[static_cast<std::size_t>(m)]);
            if (nom == un || nom == Gauche(un, 3)) mois = m + 1;
        }
    if (annee < 100 || annee > 9999 || mois < 1 || mois > 12 || jour < 1) return false;
    const bool bissextile = annee % 400 == 0 || (annee % 4 == 0 && annee % 100 != 0);
    const std::array<int, 12> longueurs{
        31, bissextile ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return jour <= longueurs[static_cast<std::size_t>(mois) - 1];
}

std::string PremierDuMois(const std::string& texte, const MotsDates& mots) {
    std::string s = " " + texte;
    const std::string cherche = " " + mots.premier.mot + " ";
    for (std::size_t p = Ou(s, cherche); p != 0; p = Ou(s, cherche))
        s = Gauche(s, p) + "1" + Milieu(s, p + cherche.size() - 1);
    return Milieu(s, 2);
}

std::string Permute(const std::string& texte, OrdreDate ordre) {
    const std::size_t p = Ou(texte, "/");
    if (p == 0 || ordre == OrdreDate::JourMoisAnnee || ordre == OrdreDate::AnneeJourMois)
        return texte;
    if (ordre == OrdreDate::MoisAnneeJour) return {};
    return Milieu(texte, p + 1) + "/" + Gauche(texte, p - 1);
}

std::string Saisie(const std::string& tape, OrdreDate ordre, const MotsDates& mots) {
    std::string u = PremierDuMois(Rogne(tape), mots);
    std::string s = Plie(u);
    std::string annee;
    const std::size_t blanc = Ou(s, " ");
    if (blanc != 0 && Numerique(Gauche(s, blanc - 1))) {
        std::string mois = Milieu(s, blanc + 1);
        const std::size_t autre = Ou(mois, " ");
        if (autre != 0) {
            annee = Milieu(mois, autre + 1);
            mois = Gauche(mois, autre - 1);
        }
        for (std::size_t k = 1; k <= 12; ++k)
            if (mois == Plie(mots.mois[k - 1].mot)) {
                u = Gauche(s, blanc - 1) + "/" + std::to_string(k);
                break;
            }
    }
    std::string essai;
    const std::string an = annee.empty() ? "2000" : annee;
    if (ordre == OrdreDate::JourMoisAnnee || ordre == OrdreDate::MoisJourAnnee)
        essai = Permute(u, ordre) + "/" + an;
    else if (ordre != OrdreDate::MoisAnneeJour)
        essai = an + "/" + Permute(u, ordre);
    if (!essai.empty() && Existe(essai, ordre)) return annee.empty() ? u : u + "/" + annee;

    const auto remplacer = [&s](const std::string& mot, const std::string& jeton) {
        const std::size_t p = Ou(s, mot);
        if (p != 0) s = Gauche(s, p - 1) + jeton + Milieu(s, p + mot.size());
    };
    for (std::size_t k = 0; k < 12; ++k)
        remplacer(Plie(mots.mois[k].mot), S(Jetons[k]));
    remplacer(Plie(mots.apres.mot), "AFT");
    remplacer(Plie(mots.avant.mot), "BEF");
    remplacer(Plie(mots.vers.mot), "ABT");
    remplacer(Plie(mots.estimee.mot), "EST");
    remplacer(Plie(mots.entre.mot), "BET");
    remplacer(" " + Plie(mots.et.mot), " AND");
    remplacer(Plie(mots.calculee.mot), "CAL");
    return s == Plie(u) ? u : s;
}

std::string Affichage(const std::string& stocke, const MotsDates& mots) {
    std::string s = " " + stocke + " ";
    const std::size_t barre = Ou(s, "/");
    if (barre != 0) {
        std::string jour = Gauche(s, barre - 1) + " ";
        if (Gauche(jour, 2) == " 0") jour = " " + Milieu(jour, 3);
        std::string suite = Milieu(s, barre + 1);
        while (Gauche(suite, 1) == " ")
            suite = Milieu(suite, 2);
        if (Gauche(suite, 1) == "+") suite = Milieu(suite, 2);
        int mois = 0;
        for (std::size_t i = 0; i < suite.size() && Dans(suite[i], "0123456789"); ++i)
            mois = std::min(mois * 10 + (suite[i] - '0'), 1000);
        if (mois < 1 || mois > 12) return Rogne(stocke);
        s = jour + mots.mois[static_cast<std::size_t>(mois) - 1].mot;
    } else {
        const auto montrer = [&s](const std::string& jeton, const std::string& mot) {
            const std::size_t p = Ou(s, " " + jeton + " ");
            if (p == 0) return;
            // The head of May is measured to another word.
            const std::size_t tete = jeton == "MAY" ? Ou(s, " MAI ") : p;
            s = Gauche(s, tete) + mot + Milieu(s, p + 1 + jeton.size());
        };
        for (std::size_t k = 0; k < 12; ++k)
            montrer(S(Jetons[k]), mots.mois[k].mot);
        montrer("BEF", mots.avant.mot);
        montrer("AFT", mots.apres.mot);
        montrer("ABT", mots.vers.mot);
        montrer("BET", mots.entre.mot);
        montrer("AND", mots.et.mot);
        montrer("EST", mots.estimee.mot);
        montrer("CAL", mots.calculee.mot);
    }
    if (Gauche(s, 3) == " 1 ") s = " " + mots.premier.mot + Milieu(s, 3);
    return Rogne(s);
}

/// The ordered list of what is looked for, tried from its head again after each replacement.
std::vector<std::pair<std::string, std::string>> ListeLocale(const MotsDates& mots) {
    std::vector<std::pair<std::string, std::string>> liste;
    for (std::size_t k = 0; k < 12; ++k)
        liste.emplace_back(Anglais[k], mots.mois[k].mot);
    for (std::size_t k = 0; k < 12; ++k) {
        liste.emplace_back(Plie(mots.mois[k].mot), mots.mois[k].mot);
        if (Jetons[k] != "MAY") liste.emplace_back(Jetons[k], mots.mois[k].mot);
    }
    liste.emplace_back("ABT", mots.vers.mot);
    liste.emplace_back("AFT", mots.apres.mot);
    liste.emplace_back("BEF", mots.avant.mot);
    liste.emplace_back("EST", mots.estimee.mot);
    liste.emplace_back("CAL", mots.calculee.mot);
    liste.emplace_back("BET", mots.entre.mot);
    liste.emplace_back("AND", mots.et.mot);
    liste.emplace_back(Plie(mots.premier.mot), mots.premier.mot);
    liste.emplace_back("01", mots.premier.mot);
    for (char c = '2'; c <= '9'; ++c)
        liste.emplace_back(std::string("0") + c, std::string(1, c));
    return liste;
}

std::string Locale(const std::string& texte, const MotsDates& mots) {
    std::string s = " " + texte;
    if (Droite(s, 2) == "BC") {
        s = Gauche(s, s.size() - 2);
        while (Droite(s, 1) == " ")
            s = Gauche(s, s.size() - 1);
        std::size_t debut = s.size();
        while (debut > 0 && s[debut - 1] != ' ')
            --debut;
        s = Gauche(s, debut) + "-" + Milieu(s, debut + 1);
    }
    std::string t = Plie(s);
    const auto liste = ListeLocale(mots);
    for (bool trouve = true; trouve;) {
        trouve = false;
        for (const auto& [mot, valeur] : liste) {
            const std::size_t p = Ou(t, " " + mot + " ");
            if (p == 0) continue;
            if (mot == "EST" && Milieu(s, p, 5) == " est ") break;
            for (std::string* x : {&s, &t})
                *x = Gauche(*x, p) + valeur + Milieu(*x, p + 1 + mot.size());
            trouve = true;
            break;
        }
    }
    return Milieu(s, 2);
}

std::string MotsCles(const std::string& texte) {
    std::string s = texte;
    std::size_t debut = s.size();
    while (debut > 0 && s[debut - 1] != ' ')
        --debut;
    const std::size_t tiret = Ou(Milieu(s, debut + 1), "-");
    if (tiret != 0) s = Gauche(s, debut + tiret - 1) + Milieu(s, debut + tiret + 1) + " BC";
    s = Plie(" " + s);
    std::vector<std::pair<std::string, std::string>> liste;
    for (std::size_t k = 0; k < 12; ++k) {
        liste.emplace_back(Francais[k], Jetons[k]);
        if (Anglais[k] != "MAY") liste.emplace_back(Anglais[k], Jetons[k]);
    }
    const std::array<std::array<std::string_view, 3>, 6> Autres{{{"VERS", "ABOUT", "ABT"},
                                                                 {"APRES", "AFTER", "AFT"},
                                                                 {"AVANT", "BEFORE", "BEF"},
                                                                 {"ESTIMEE", "ESTIMATED", "EST"},
                                                                 {"CALCULEE", "CALCULATED", "CAL"},
                                                                 {"ENTRE", "BETWEEN", "BET"}}};
    for (const auto& ligne : Autres) {
        liste.emplace_back(ligne[0], ligne[2]);
        liste.emplace_back(ligne[1], ligne[2]);
    }
    liste.emplace_back("ET", "AND");
    liste.emplace_back("1ER", "1");
    liste.emplace_back("1ST", "1");
    for (bool trouve = true; trouve;) {
        trouve = false;
        for (const auto& [mot, valeur] : liste) {
            const std::size_t p = Ou(s, " " + mot + " ");
            if (p == 0) continue;
            s.replace(p, mot.size(), valeur);
            trouve = true;
            break;
        }
    }
    return Milieu(s, 2);
}

bool Valide(const std::string& texte, OrdreDate ordre) {
    const std::string separateur = Ou(texte, "/") != 0 ? "/" : " ";
    const std::size_t un = Ou(texte, separateur);
    if (un == 0) return false;
    const std::size_t deux = Ou(Milieu(texte, un + 1), separateur);
    if (deux == 0) return false;
    std::string a = Gauche(texte, un - 1);
    std::string b = Milieu(texte, un + 1, deux - 1);
    std::string c = Milieu(texte, un + deux + 1);
    if (separateur == "/") {
        a = Rogne(a);
        b = Rogne(b);
        c = Rogne(c);
    }
    constexpr const char* Noms[] = {"dd/mm/yyyy", "mm/dd/yyyy", "yyyy/mm/dd", "yyyy/dd/mm",
                                    "mm/yyyy/dd"};
    const std::string nom = Noms[static_cast<std::size_t>(ordre)];
    std::string date;
    if (nom == "dd/mm/yyyy") date = a + separateur + b + separateur + c;
    if (nom == "yyyy/dd/mm") date = c + separateur + a + separateur + b;
    if (nom == "yyyy/mm/dd") date = c + separateur + b + separateur + a;
    if (nom == "mm/yy/yyyy") date = b + separateur + a + separateur + c;
    return Existe(date, ordre);
}

constexpr std::array<std::string_view, 58> Mots{"janvier",
                                                "février"_1252,
                                                "mars",
                                                "mai",
                                                "août"_1252,
                                                "décembre"_1252,
                                                "juin",
                                                "juillet",
                                                "January",
                                                "MARCH",
                                                "May",
                                                "August",
                                                "JAN",
                                                "FEB",
                                                "MAR",
                                                "MAY",
                                                "MAI",
                                                "AUG",
                                                "DEC",
                                                "ABT",
                                                "AFT",
                                                "BEF",
                                                "EST",
                                                "est",
                                                "CAL",
                                                "BET",
                                                "AND",
                                                "BC",
                                                "vers",
                                                "après"_1252,
                                                "avant",
                                                "estimée"_1252,
                                                "entre",
                                                "et",
                                                "calculée"_1252,
                                                "about",
                                                "between",
                                                "1er",
                                                "1ST",
                                                "1",
                                                "01",
                                                "02",
                                                "09",
                                                "12",
                                                "29",
                                                "31",
                                                "2",
                                                "44",
                                                "-44",
                                                "1820",
                                                "1821",
                                                "2000",
                                                "99",
                                                "850",
                                                "12/3",
                                                "01/3",
                                                "0/0",
                                                "29/2/1821"};

constexpr std::array<OrdreDate, 5> Ordres{OrdreDate::JourMoisAnnee, OrdreDate::MoisJourAnnee,
                                          OrdreDate::AnneeMoisJour, OrdreDate::AnneeJourMois,
                                          OrdreDate::MoisAnneeJour};

/// Runs `comparer` on texts by chance, in both languages.
template <class Comparer>
void Parcourir(std::uint32_t graine, Comparer comparer) {
    Hasard hasard{graine, Liste(Mots)};
    for (int i = 0; i < Tours; ++i) {
        const std::string texte = hasard.Texte();
        CAPTURE(TexteVersUtf8(texte));
        comparer(texte, i % 4 == 3 ? essais::MotsAnglais() : essais::MotsFrancais());
    }
}

}  // namespace

TEST_CASE("Against a second writing: the check of dates in every order") {
    Parcourir(11, [](const std::string& texte, const MotsDates&) {
        for (const OrdreDate ordre : Ordres) {
            REQUIRE(EstDate(texte, ordre) == Existe(texte, ordre));
            REQUIRE(DateValide(texte, ordre) == Valide(texte, ordre));
        }
    });
    // By chance few texts are dates; these mostly are.
    std::mt19937 tirage{12};
    int dates = 0;
    for (int i = 0; i < Tours; ++i) {
        const std::string separateur = tirage() % 2 == 0 ? "/" : " ";
        std::string texte = std::to_string(tirage() % 34);
        texte.append(separateur).append(std::to_string(tirage() % 14));
        texte.append(separateur).append(std::to_string(tirage() % 10100));
        CAPTURE(texte);
        REQUIRE(EstDate(texte, OrdreDate::JourMoisAnnee) ==
                Existe(texte, OrdreDate::JourMoisAnnee));
        if (EstDate(texte, OrdreDate::JourMoisAnnee)) ++dates;
    }
    CHECK(dates > Tours / 2);
}

TEST_CASE("Against a second writing: CvtPremierDuMois and PermuteJourMois") {
    Parcourir(13, [](const std::string& texte, const MotsDates& mots) {
        REQUIRE(CvtPremierDuMois(texte, mots) == PremierDuMois(texte, mots));
        for (const OrdreDate ordre : Ordres)
            REQUIRE(PermuteJourMois(texte, ordre) == Permute(texte, ordre));
    });
}

TEST_CASE("Against a second writing: CvtSaisieDate in every order") {
    Parcourir(14, [](const std::string& texte, const MotsDates& mots) {
        for (const OrdreDate ordre : Ordres)
            REQUIRE(CvtSaisieDate(texte, ordre, mots) == Saisie(texte, ordre, mots));
    });
}

TEST_CASE("Against a second writing: CvtDateAffichage, of typed and of stored texts") {
    Parcourir(15, [](const std::string& texte, const MotsDates& mots) {
        REQUIRE(CvtDateAffichage(texte, mots) == Affichage(texte, mots));
        const std::string stocke = Saisie(texte, OrdreDate::JourMoisAnnee, mots);
        REQUIRE(CvtDateAffichage(stocke, mots) == Affichage(stocke, mots));
    });
}

TEST_CASE("Against a second writing: CvtDateLocale") {
    Parcourir(16, [](const std::string& texte, const MotsDates& mots) {
        REQUIRE(CvtDateLocale(texte, mots) == Locale(texte, mots));
        REQUIRE(CvtDateLocale(texte + " 1820 ", mots) == Locale(texte + " 1820 ", mots));
    });
}

TEST_CASE("Against a second writing: CvtDateMotsCles") {
    Parcourir(17, [](const std::string& texte, const MotsDates&) {
        REQUIRE(CvtDateMotsCles(texte) == MotsCles(texte));
        REQUIRE(CvtDateMotsCles(texte + " 1820") == MotsCles(texte + " 1820"));
    });
}

TEST_CASE("Against a second writing: AnneeTri and AnneeTriDeces") {
    std::mt19937 tirage{18};
    constexpr std::string_view Signes =
        "0123456789 -?/a\0"
        "+";
    for (int i = 0; i < Tours; ++i) {
        std::string annee;
        for (std::size_t n = tirage() % 7; n > 0; --n)
            annee += Signes[tirage() % Signes.size()];
        std::string tri = annee.size() >= 4 ? Gauche(annee, 4) : Droite("    " + annee, 4);
        for (std::size_t p = 1; p <= 4; ++p) {
            const char c = tri[p - 1];
            if (c == '-') {
                tri[p - 1] = '0';
                tri[0] = '-';
            } else if (c <= ' ') {
                tri[p - 1] = '0';
            }
        }
        CAPTURE(annee);
        REQUIRE(std::string(TexteDe(AnneeTri(annee))) == tri);
        REQUIRE(std::string(TexteDe(AnneeTriDeces(annee))) ==
                (Numerique(Gauche(tri, 3)) ? tri : "Z   "));
    }
}
