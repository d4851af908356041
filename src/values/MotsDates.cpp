#include "values/MotsDates.h"

#include "messages/Messages.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace dorvane {

namespace {

// As they stand in `MotsDates`: the week begins with Sunday.
constexpr std::array<NoMessage, 7> JoursDeLaSemaine{
    message::JourDimanche, message::JourLundi,    message::JourMardi, message::JourMercredi,
    message::JourJeudi,    message::JourVendredi, message::JourSamedi};

constexpr std::array<NoMessage, 12> Mois{message::TagJAN, message::TagFEB, message::TagMAR,
                                         message::TagAPR, message::TagMAY, message::TagJUN,
                                         message::TagJUL, message::TagAUG, message::TagSEP,
                                         message::TagOCT, message::TagNOV, message::TagDEC};

constexpr std::string_view SansAnnee = "2000";  // leap: the 29th of February has to pass

constexpr std::array<std::string_view, 12> JetonsMois{"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                      "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

constexpr std::array<std::string_view, 12> MoisAnglais{
    "JANUARY", "FEBRUARY", "MARCH",     "APRIL",   "MAY",      "JUNE",
    "JULY",    "AUGUST",   "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};

constexpr std::size_t Mai = 4;

struct Paire {
    std::string_view mot;
    std::string_view jeton;
};

constexpr std::array<Paire, 38> MotsConnus{
    {{"JANVIER", "JAN"},    {"JANUARY", "JAN"},  {"FEVRIER", "FEB"},   {"FEBRUARY", "FEB"},
     {"MARS", "MAR"},       {"MARCH", "MAR"},    {"AVRIL", "APR"},     {"APRIL", "APR"},
     {"MAI", "MAY"},        {"JUIN", "JUN"},     {"JUNE", "JUN"},      {"JUILLET", "JUL"},
     {"JULY", "JUL"},       {"AOUT", "AUG"},     {"AUGUST", "AUG"},    {"SEPTEMBRE", "SEP"},
     {"SEPTEMBER", "SEP"},  {"OCTOBRE", "OCT"},  {"OCTOBER", "OCT"},   {"NOVEMBRE", "NOV"},
     {"NOVEMBER", "NOV"},   {"DECEMBRE", "DEC"}, {"DECEMBER", "DEC"},  {"VERS", "ABT"},
     {"ABOUT", "ABT"},      {"APRES", "AFT"},    {"AFTER", "AFT"},     {"AVANT", "BEF"},
     {"BEFORE", "BEF"},     {"ESTIMEE", "EST"},  {"ESTIMATED", "EST"}, {"CALCULEE", "CAL"},
     {"CALCULATED", "CAL"}, {"ENTRE", "BET"},    {"BETWEEN", "BET"},   {"ET", "AND"},
     {"1ER", "1"},          {"1ST", "1"}}};

std::string EntreBlancs(std::string_view mot) {
    return std::string(1, ' ').append(mot).append(1, ' ');
}

void RemplacerPremier(std::string& texte, std::string_view cherche, std::string_view valeur) {
    const std::size_t place = texte.find(cherche);
    if (place != std::string::npos) texte.replace(place, cherche.size(), valeur);
}

/// Replaces a word, wherever a blank stands on each side, in `texte` and at the same places of
/// `suivi` (as long, or none). A blank that closes one word may open the next.
void RemplacerMot(std::string& texte, std::string* suivi, std::string_view mot,
                  std::string_view valeur) {
    if (mot.empty() || mot == valeur) return;
    const std::string cherche = EntreBlancs(mot);
    std::size_t place = texte.find(cherche);
    if (place == std::string::npos) return;

    std::string nouveau;
    std::string nouveauSuivi;
    std::size_t lu = 0;
    for (; place != std::string::npos; place = texte.find(cherche, lu)) {
        nouveau.append(texte, lu, place + 1 - lu).append(valeur);
        if (suivi != nullptr) nouveauSuivi.append(*suivi, lu, place + 1 - lu).append(valeur);
        lu = place + 1 + mot.size();
    }
    texte = nouveau.append(texte, lu);
    if (suivi != nullptr) *suivi = nouveauSuivi.append(*suivi, lu);
}

/// A text and its folded form, which stay of one length. What has been replaced stands in both as
/// it is shown, in lower case, so that it is not found again.
struct TexteSuivi {
    std::string montre;
    std::string replie;

    void Remplacer(std::string_view mot, const MotDate& valeur) {
        RemplacerMot(replie, &montre, mot, valeur.mot);
    }
    void Remplacer(std::string_view mot, std::string_view valeur) {
        RemplacerMot(replie, &montre, mot, valeur);
    }
};

/// "ABT 44 BC" becomes "ABT -44". `s` begins with a blank.
void ReduireAvantJesusChrist(std::string& s) {
    if (!s.ends_with("BC")) return;
    s.resize(s.size() - 2);
    s.resize(SansBlancsADroite(s).size());
    const std::size_t blanc = s.rfind(' ');
    s.insert(blanc == std::string::npos ? 0 : blanc + 1, 1, '-');
}

/// The English names and the tokens of months. The token of May is its English name.
void EcrireMois(TexteSuivi& t, const MotsDates& mots) {
    for (std::size_t m = 0; m < MoisAnglais.size(); ++m)
        t.Remplacer(MoisAnglais[m], mots.mois[m]);
    for (std::size_t m = 0; m < JetonsMois.size(); ++m) {
        t.Remplacer(mots.mois[m].replie, mots.mois[m]);
        if (m != Mai) t.Remplacer(JetonsMois[m], mots.mois[m]);
    }
}

/// "EST" as a token, and false at the French word in lower case: what follows is a sentence.
bool EcrireEstimee(TexteSuivi& t, const MotsDates& mots) {
    constexpr std::string_view Jeton = " EST ";
    for (std::size_t place = t.replie.find(Jeton); place != std::string::npos;
         place = t.replie.find(Jeton, place)) {
        if (std::string_view(t.montre).substr(place, Jeton.size()) == " est ") return false;
        if (mots.estimee.mot == "EST") {
            ++place;
            continue;
        }
        t.replie.replace(place + 1, Jeton.size() - 2, mots.estimee.mot);
        t.montre.replace(place + 1, Jeton.size() - 2, mots.estimee.mot);
        place += 1 + mots.estimee.mot.size();
    }
    return true;
}

/// The month position, from 1, for a folded word of the catalogue; 0 for any other.
int ChercherMois(std::string_view replie, const MotsDates& mots) {
    for (std::size_t m = 0; m < mots.mois.size(); ++m)
        if (replie == mots.mois[m].replie) return static_cast<int>(m) + 1;
    return 0;
}

/// Puts the tokens in place of the words, each at its first occurrence, even inside a longer word.
void PoserJetons(std::string& s, const MotsDates& mots) {
    const auto poser = [&s](const std::string& mot, std::string_view jeton) {
        if (!mot.empty()) RemplacerPremier(s, mot, jeton);
    };
    for (std::size_t m = 0; m < JetonsMois.size(); ++m)
        poser(mots.mois[m].replie, JetonsMois[m]);
    poser(mots.apres.replie, "AFT");
    poser(mots.avant.replie, "BEF");
    poser(mots.vers.replie, "ABT");
    poser(mots.estimee.replie, "EST");
    poser(mots.entre.replie, "BET");
    if (!mots.et.replie.empty()) poser(' ' + mots.et.replie, " AND");
    poser(mots.calculee.replie, "CAL");
}

/// The number at the head of a text, behind blanks and a sign; 0 when there is none or when it is
/// no month.
int LireNumeroMois(std::string_view texte) {
    texte = SansBlancsAGauche(texte);
    if (texte.starts_with('+')) texte.remove_prefix(1);
    int numero = 0;
    for (std::size_t i = 0; i < texte.size() && EstChiffre(texte[i]); ++i)
        numero = std::min(numero * 10 + (texte[i] - '0'), 100);
    return numero <= 12 ? numero : 0;
}

/// Tokens in words, each at its first occurrence.
std::string MontrerJetons(std::string s, const MotsDates& mots) {
    for (std::size_t m = 0; m < JetonsMois.size(); ++m) {
        const std::string cherche = EntreBlancs(JetonsMois[m]);
        const std::size_t place = s.find(cherche);
        if (place == std::string::npos) continue;
        if (m == Mai) {
            // "MAI" and not "MAY", on purpose: what stands before the month is lost from the shown
            // text, and stored dates are read with that.
            const std::size_t tete = s.find(" MAI ");
            const std::string garde = tete == std::string::npos ? "" : s.substr(0, tete + 1);
            s.replace(0, place + cherche.size() - 1, garde + mots.mois[m].mot);
        } else {
            s.replace(place + 1, cherche.size() - 2, mots.mois[m].mot);
        }
    }
    const auto montrer = [&s](std::string_view jeton, const MotDate& mot) {
        RemplacerPremier(s, EntreBlancs(jeton), EntreBlancs(mot.mot));
    };
    montrer("BEF", mots.avant);
    montrer("AFT", mots.apres);
    montrer("ABT", mots.vers);
    montrer("BET", mots.entre);
    montrer("AND", mots.et);
    montrer("EST", mots.estimee);
    montrer("CAL", mots.calculee);
    return s;
}

/// Two digits for the day and the English month, between blanks: what `CvtDateLocale` turns into
/// the words of any catalogue.
std::string FormatInterne(const DateCivile& date) {
    std::string texte = date.jour < 10 ? " 0" : " ";
    texte += std::to_string(date.jour);
    return texte + EntreBlancs(MoisAnglais[static_cast<std::size_t>(date.mois) - 1]);
}

/// A displayed date: a day, a month word, a year of 4 characters.
std::optional<DateCivile> LireDateAffichee(std::string_view date, OrdreDate ordre,
                                           const MotsDates& mots) {
    constexpr std::size_t LongueurAuMoins = 6;
    constexpr std::size_t LongueurAnnee = 4;
    if (date.size() < LongueurAuMoins || !EstChiffre(date[0])) return std::nullopt;
    const std::string premier = CvtPremierDuMois(date, mots);
    const std::string_view u = premier;
    const std::size_t coupe = u.size() - std::min(u.size(), LongueurAnnee);
    const std::string_view annee = SansBlancs(u.substr(coupe));
    if (!EstNumerique(annee)) return std::nullopt;
    const std::string jourMois = CvtSaisieDate(u.substr(0, coupe), ordre, mots);
    return LireDate(JoindreAnnee(jourMois, annee, ordre), ordre);
}

}  // namespace

MotsDates LireMotsDates(const std::function<std::string(NoMessage)>& texteDe) {
    const auto lire = [&texteDe](NoMessage message) {
        MotDate mot;
        mot.mot = texteDe(message);
        mot.replie = Replie(mot.mot);
        return mot;
    };
    MotsDates mots;
    static_assert(std::tuple_size_v<decltype(mots.mois)> == Mois.size());
    static_assert(std::tuple_size_v<decltype(mots.semaine)> == JoursDeLaSemaine.size());
    std::ranges::transform(Mois, mots.mois.begin(), lire);
    std::ranges::transform(JoursDeLaSemaine, mots.semaine.begin(), texteDe);
    mots.vers = lire(message::TagABT);
    mots.apres = lire(message::TagAFT);
    mots.avant = lire(message::TagBEF);
    mots.estimee = lire(message::TagEST);
    mots.entre = lire(message::TagBET);
    mots.et = lire(message::TagAND);
    mots.premier = lire(message::PremierDuMois);
    mots.calculee = lire(message::TagCAL);
    return mots;
}

std::string CvtPremierDuMois(std::string_view texte, const MotsDates& mots) {
    std::string s = std::string(1, ' ').append(texte);
    RemplacerMot(s, nullptr, mots.premier.mot, "1");
    return s.substr(1);
}

std::string CvtSaisieDate(std::string_view saisie, OrdreDate ordre, const MotsDates& mots) {
    std::string u = CvtPremierDuMois(SansBlancs(saisie), mots);
    std::string s = Replie(u);

    std::string annee;
    const std::size_t blanc = s.find(' ');
    if (blanc != std::string::npos && EstNumerique(s.substr(0, blanc))) {
        const std::string reste = s.substr(blanc + 1);
        const std::size_t coupe = std::min(reste.find(' '), reste.size());
        annee = reste.substr(std::min(coupe + 1, reste.size()));
        const int mois = ChercherMois(std::string_view(reste).substr(0, coupe), mots);
        if (mois > 0) u = s.substr(0, blanc) + '/' + std::to_string(mois);
    }

    const std::string essai = JoindreAnnee(u, annee.empty() ? SansAnnee : annee, ordre);
    if (EstDate(essai, ordre)) return annee.empty() ? u : u + "/" + annee;

    PoserJetons(s, mots);
    return s != Replie(u) ? s : u;
}

std::string CvtDateAffichage(std::string_view jourMois, const MotsDates& mots) {
    std::string s = EntreBlancs(jourMois);
    const std::size_t barre = s.find('/');
    if (barre != std::string::npos) {
        const int mois = LireNumeroMois(std::string_view(s).substr(barre + 1));
        if (mois == 0) return std::string(SansBlancs(jourMois));
        s.resize(barre);
        s.push_back(' ');
        if (s.starts_with(" 0")) s.erase(1, 1);
        s += mots.mois[static_cast<std::size_t>(mois) - 1].mot;
    } else {
        s = MontrerJetons(std::move(s), mots);
    }
    if (s.starts_with(" 1 ")) s.replace(1, 1, mots.premier.mot);
    return std::string(SansBlancs(s));
}

std::string CvtDateLocale(std::string_view texte, const MotsDates& mots) {
    TexteSuivi t;
    t.montre = std::string(1, ' ').append(texte);
    ReduireAvantJesusChrist(t.montre);
    t.replie = Replie(t.montre);

    EcrireMois(t, mots);
    t.Remplacer("ABT", mots.vers);
    t.Remplacer("AFT", mots.apres);
    t.Remplacer("BEF", mots.avant);
    if (EcrireEstimee(t, mots)) {
        t.Remplacer("CAL", mots.calculee);
        t.Remplacer("BET", mots.entre);
        t.Remplacer("AND", mots.et);
        t.Remplacer(mots.premier.replie, mots.premier);
        t.Remplacer("01", mots.premier);
        for (char chiffre = '2'; chiffre <= '9'; ++chiffre)
            t.Remplacer(std::string{'0', chiffre}, std::string_view(&chiffre, 1));
    }
    return t.montre.substr(std::min<std::size_t>(1, t.montre.size()));
}

std::string CvtDateMotsCles(std::string_view texte) {
    std::string s(texte);
    const std::size_t blanc = s.rfind(' ');
    const std::size_t tiret = s.find('-', blanc == std::string::npos ? 0 : blanc);
    if (tiret != std::string::npos) s.erase(tiret, 1).append(" BC");

    s = Replie(s.insert(0, 1, ' '));
    for (const auto& [mot, jeton] : MotsConnus)
        RemplacerMot(s, nullptr, mot, jeton);
    return s.substr(1);
}

std::string NomJourSemaine(std::string_view date, OrdreDate ordre, const MotsDates& mots) {
    const std::optional<DateCivile> jour = LireDateAffichee(date, ordre, mots);
    if (!jour) return {};
    return mots.semaine[static_cast<std::size_t>(JourDeSemaine(*jour))] + ' ';
}

std::string AfficherDateEvenement(Serie serie, const MotsDates& mots) {
    const std::optional<DateCivile> date = SerieVersDate(serie);
    if (!date) return {};
    const std::string texte = FormatInterne(*date) + std::to_string(date->annee);
    return std::string(SansBlancs(CvtDateLocale(texte, mots)));
}

std::optional<Serie> SaisirDateEvenement(std::string_view saisie, OrdreDate ordre,
                                         const MotsDates& mots) {
    // The blank behind lets the word for the first day be found at the very end, too.
    const std::string premier = CvtPremierDuMois(std::string(saisie) + ' ', mots);
    const std::optional<Serie> serie = DateVersSerie(premier, ordre);
    return serie ? serie : DateVersSerie(CvtDateMotsCles(saisie), ordre);
}

std::string QuitterJourMois(std::string_view saisie, OrdreDate ordre, const MotsDates& mots) {
    const std::optional<DateCivile> date = LireDate(JoindreAnnee(saisie, SansAnnee, ordre), ordre);
    if (!date) return std::string(saisie);
    return std::string(SansBlancs(CvtDateLocale(FormatInterne(*date), mots)));
}

std::string DateDeMotCle(std::string_view jourMois, std::string_view annee, OrdreDate ordre) {
    // A year of one or two digits is itself, not one of our time, and never makes a date here.
    constexpr std::size_t AnneeEntiere = 3;
    const std::string_view nette = SansBlancs(annee);
    const std::optional<DateCivile> date =
        nette.size() < AnneeEntiere ? std::nullopt
                                    : LireDate(JoindreAnnee(jourMois, nette, ordre), ordre);
    if (date)
        return std::to_string(date->jour) + "/" + std::to_string(date->mois) + "/" +
               std::to_string(date->annee);
    std::string cellule(annee);
    if (cellule.size() < 4) cellule.insert(0, 4 - cellule.size(), ' ');
    return std::string(jourMois).append(1, ' ').append(cellule);
}

}  // namespace dorvane
