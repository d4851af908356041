#include "app/Calculer.h"

#include "values/Annees.h"
#include "values/Calendriers.h"
#include "values/Comparaison.h"
#include "values/Noms.h"
#include "values/Phonetique.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <istream>
#include <optional>
#include <ostream>
#include <utility>
#include <vector>

namespace dorvane::outil {

namespace {

constexpr std::string_view Hexa = "0123456789ABCDEF";

int ValeurHexa(char octet) {
    const std::size_t valeur = Hexa.find(EnMajuscule(octet));
    return valeur == std::string_view::npos ? -1 : static_cast<int>(valeur);
}

/// The byte of a simple escape, or nothing.
std::optional<char> EchappementSimple(char lettre) {
    switch (lettre) {
        case 't':
            return '\t';
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case '\\':
            return '\\';
        default:
            return std::nullopt;
    }
}

/// An argument as bytes of code page 1252; nothing when an escape is wrong.
std::optional<std::string> LireArgument(std::string_view utf8) {
    const std::string texte = Utf8VersTexte(utf8).octets;
    std::string octets;
    octets.reserve(texte.size());
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] != '\\') {
            octets.push_back(texte[i]);
            continue;
        }
        if (++i == texte.size()) return std::nullopt;
        if (const std::optional<char> simple = EchappementSimple(texte[i])) {
            octets.push_back(*simple);
            continue;
        }
        if (texte[i] != 'x' || i + 2 >= texte.size()) return std::nullopt;
        const int haut = ValeurHexa(texte[i + 1]);
        const int bas = ValeurHexa(texte[i + 2]);
        if (haut < 0 || bas < 0) return std::nullopt;
        octets.push_back(static_cast<char>(haut * 16 + bas));
        i += 2;
    }
    return octets;
}

/// A control byte, or one of the five that code page 1252 leaves free.
bool SansCaractere(unsigned char octet) {
    constexpr std::string_view Libres = "\x81\x8D\x8F\x90\x9D";
    return octet < 0x20 || octet == 0x7F ||
           Libres.find(static_cast<char>(octet)) != std::string_view::npos;
}

std::string EcrireReponse(std::string_view octets) {
    std::string ligne;
    for (const char octet : octets) {
        const auto code = static_cast<unsigned char>(octet);
        if (octet == '\t')
            ligne += "\\t";
        else if (octet == '\n')
            ligne += "\\n";
        else if (octet == '\r')
            ligne += "\\r";
        else if (octet == '\\')
            ligne += "\\\\";
        else if (SansCaractere(code))
            ligne.append("\\x").append(1, Hexa[code >> 4U]).append(1, Hexa[code & 0xFU]);
        else
            ligne += TexteVersUtf8({&octet, 1});
    }
    return ligne;
}

/// What an operation works on. The arguments are in code page 1252, and as many as it takes.
struct Demande {
    std::vector<std::string> arguments;
    OrdreDate ordre = OrdreDate::JourMoisAnnee;
    const MotsDates& mots;

    [[nodiscard]] const std::string& Texte(std::size_t i = 0) const { return arguments[i]; }
};

std::string VraiOuFaux(bool reponse) {
    return reponse ? "true" : "false";
}

ReglesNoms ReglesPour(std::string_view deplacer) {
    ReglesNoms regles = ReglesInitiales();
    regles.deplacer = deplacer == "1";
    return regles;
}

/// A day or a position typed by a user; 0, which stands in no list, for what is no number.
int LireNombre(std::string_view texte) {
    texte = SansBlancs(texte);
    if (!EstNumerique(texte)) return 0;
    if (texte.starts_with('+')) texte.remove_prefix(1);
    int nombre = 0;
    // A number too long for an int stands in no list either.
    return std::from_chars(texte.data(), texte.data() + texte.size(), nombre).ec == std::errc{}
               ? nombre
               : 0;
}

std::string Convertir(const Demande& d, DateConvertie (*convertir)(const DateDeListe&)) {
    const DateConvertie resultat =
        convertir({LireNombre(d.Texte(0)), LireNombre(d.Texte(1)), LireNombre(d.Texte(2))});
    if (resultat.refus) return "message " + std::to_string(resultat.refus.valeur);
    const DateDeListe& date = resultat.date;
    return std::to_string(date.jour) + ' ' + std::to_string(date.mois) + ' ' +
           std::to_string(date.annee);
}

std::string TrierPersonne(const Demande& d) {
    // Of the modes, only single characters stand for an order.
    const auto tri = static_cast<TypeTri>(d.Texte(3).size() == 1 ? d.Texte(3)[0] : '0');
    return CleTri(d.Texte(0), d.Texte(1), d.Texte(2), tri, ReglesPour(d.Texte(4)));
}

std::string EcrireSerie(const Demande& d) {
    const std::optional<Serie> serie = DateVersSerie(d.Texte(), d.ordre);
    return serie ? std::to_string(*serie) : std::string();
}

struct Operation {
    std::string_view nom;
    std::size_t arguments;
    bool avecOrdre;  ///< an `OrdreDate` may follow the arguments
    std::string (*calculer)(const Demande&);
};

constexpr std::array<Operation, 21> Operations{{
    {"Replie", 1, false, [](const Demande& d) { return Replie(d.Texte()); }},
    {"BlancsEnPoints", 1, false, [](const Demande& d) { return BlancsEnPoints(d.Texte()); }},
    {"PointsEnBlancs", 1, false, [](const Demande& d) { return PointsEnBlancs(d.Texte()); }},
    {"ClePhonetique", 1, false, [](const Demande& d) { return ClePhonetique(d.Texte()); }},
    {"CapitaliseNom", 2, false,
     [](const Demande& d) { return CapitaliseNom(d.Texte(0), d.Texte(1), ReglesInitiales()); }},
    {"CleNom", 2, false,
     [](const Demande& d) { return CleNom(d.Texte(0), ReglesPour(d.Texte(1))); }},
    {"ClesProches", 2, false,
     [](const Demande& d) { return VraiOuFaux(ClesProches(d.Texte(0), d.Texte(1))); }},
    {"CleTri", 5, false, TrierPersonne},
    {"CvtPremierDuMois", 1, false,
     [](const Demande& d) { return CvtPremierDuMois(d.Texte(), d.mots); }},
    {"CvtDateAffichage", 1, false,
     [](const Demande& d) { return CvtDateAffichage(d.Texte(), d.mots); }},
    {"CvtDateLocale", 1, false, [](const Demande& d) { return CvtDateLocale(d.Texte(), d.mots); }},
    {"CvtDateMotsCles", 1, false, [](const Demande& d) { return CvtDateMotsCles(d.Texte()); }},
    {"CvtSaisieDate", 1, true,
     [](const Demande& d) { return CvtSaisieDate(d.Texte(), d.ordre, d.mots); }},
    {"PermuteJourMois", 1, true,
     [](const Demande& d) { return PermuteJourMois(d.Texte(), d.ordre); }},
    {"DateValide", 1, true,
     [](const Demande& d) { return VraiOuFaux(DateValide(d.Texte(), d.ordre)); }},
    {"DateVersSerie", 1, true, EcrireSerie},
    {"NomJourSemaine", 1, true,
     [](const Demande& d) { return NomJourSemaine(d.Texte(), d.ordre, d.mots); }},
    {"AnneeTri", 1, false,
     [](const Demande& d) { return std::string(TexteDe(AnneeTri(d.Texte()))); }},
    {"AnneeTriDeces", 1, false,
     [](const Demande& d) { return std::string(TexteDe(AnneeTriDeces(d.Texte()))); }},
    {"RepublicainVersGregorien", 3, false,
     [](const Demande& d) { return Convertir(d, RepublicainVersGregorien); }},
    {"GregorienVersRepublicain", 3, false,
     [](const Demande& d) { return Convertir(d, GregorienVersRepublicain); }},
}};

Calcul Refuser(std::string raison) {
    return {.correct = false, .texte = std::move(raison)};
}

}  // namespace

Calcul Calculer(std::string_view operation, std::span<const std::string> arguments,
                const MotsDates& mots) {
    const auto* const choisie = std::ranges::find(Operations, operation, &Operation::nom);
    if (choisie == Operations.end())
        return Refuser("opération inconnue : " + EcrireReponse(Utf8VersTexte(operation).octets));
    const std::size_t auPlus = choisie->arguments + (choisie->avecOrdre ? 1 : 0);
    if (arguments.size() < choisie->arguments || arguments.size() > auPlus)
        return Refuser("nombre d'arguments : " + std::to_string(arguments.size()) + " au lieu de " +
                       std::to_string(choisie->arguments));

    Demande demande{.arguments = {}, .mots = mots};
    for (const std::string& argument : arguments) {
        std::optional<std::string> lu = LireArgument(argument);
        if (!lu) return Refuser("échappement mal formé");
        demande.arguments.push_back(*std::move(lu));
    }
    if (arguments.size() > choisie->arguments && !demande.arguments.back().empty()) {
        const std::optional<OrdreDate> ordre = LireOrdreDate(demande.arguments.back());
        if (!ordre) return Refuser("ordre de date inconnu");
        demande.ordre = *ordre;
    }
    return {.correct = true, .texte = EcrireReponse(choisie->calculer(demande))};
}

int ServirCalculs(std::istream& entree, std::ostream& sortie, const MotsDates& mots) {
    bool toutCorrect = true;
    for (std::string ligne; std::getline(entree, ligne);) {
        std::vector<std::string> champs;
        std::size_t debut = 0;
        for (std::size_t tab = ligne.find('\t'); tab != std::string::npos;
             tab = ligne.find('\t', debut)) {
            champs.push_back(ligne.substr(debut, tab - debut));
            debut = tab + 1;
        }
        champs.push_back(ligne.substr(debut));

        const Calcul calcul = Calculer(champs[0], std::span{champs}.subspan(1), mots);
        if (!calcul.correct) {
            toutCorrect = false;
            sortie << "erreur: ";
        }
        sortie << calcul.texte << '\n';
        // Whoever asks one line at a time waits for its answer.
        if (entree.rdbuf()->in_avail() <= 0) sortie.flush();
    }
    sortie.flush();
    return toutCorrect ? 0 : 2;
}

}  // namespace dorvane::outil
