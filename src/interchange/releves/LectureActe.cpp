#include "interchange/releves/LectureActe.h"

#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace dorvane::interchange {

namespace {

constexpr OrdreDate Ordre = OrdreDate::JourMoisAnnee;

/// A year of three or four digits; the date check would take "85" for one of our own time.
bool EstAnnee(std::string_view texte) {
    return texte.size() >= 3 && texte.size() <= 4 &&
           std::all_of(texte.begin(), texte.end(), EstChiffre);
}

std::optional<DateCivile> Lire(std::string_view jour, std::string_view mois,
                               std::string_view annee) {
    std::string texte{jour};
    return LireDate(texte.append("/").append(mois).append("/").append(annee), Ordre);
}

DateLue Garder(const DateCivile& date) {
    return LireDateGedcom(EcrireJourGedcom(date.jour, date.mois, date.annee));
}

/// "MAR 1780": what stands behind the day of a whole date.
DateLue GarderMois(const DateCivile& date) {
    const std::string entiere = EcrireJourGedcom(1, date.mois, date.annee);
    return LireDateGedcom(std::string_view{entiere}.substr(2));
}

/// Takes a number off the head; nothing when there is none.
std::optional<int> PrendreNombre(std::string_view& reste) {
    reste = SansBlancs(reste);
    int nombre = 0;
    const auto [fin, erreur] = std::from_chars(reste.data(), reste.data() + reste.size(), nombre);
    constexpr int Plafond = 100000;  // days of a very long life
    if (erreur != std::errc{} || nombre < 0 || nombre > Plafond) return {};
    reste.remove_prefix(static_cast<std::size_t>(fin - reste.data()));
    return nombre;
}

std::string PrendreMot(std::string_view& reste) {
    reste = SansBlancs(reste);
    std::size_t fin = 0;
    while (fin < reste.size() && reste[fin] != ' ' && !EstChiffre(reste[fin]))
        ++fin;
    std::string mot = Replie(reste.substr(0, fin));
    reste.remove_prefix(fin);
    return mot;
}

/// Length of the word that a dead person's names begin with; 0 when there is none.
std::size_t MotDuMort(std::string_view noms) {
    const std::string minuscules = EnMinuscules(noms);
    for (const std::string_view mot : {"feu ", "feue "})
        if (minuscules.starts_with(mot)) return mot.size();
    return 0;
}

bool Ajouter(Age& age, int nombre, std::string_view unite) {
    if (unite == "AN" || unite == "ANS" || unite == "ANNEE" || unite == "ANNEES")
        age.ans += nombre;
    else if (unite == "MOIS")
        age.mois += nombre;
    else if (unite.starts_with("SEM"))
        age.jours += 7 * nombre;
    else if (unite == "JOUR" || unite == "JOURS")
        age.jours += nombre;
    else
        return false;
    return true;
}

}  // namespace

DateActe LireDateActe(std::string_view annee, std::string_view mois, std::string_view jour) {
    annee = SansBlancs(annee);
    mois = SansBlancs(mois);
    jour = SansBlancs(jour);
    DateActe lue;
    if (!EstAnnee(annee)) {
        lue.date = LireDateGedcom(annee);
        return lue;
    }
    if (const std::optional<DateCivile> entiere = Lire(jour, mois, annee)) {
        lue.serie = DateVersSerie(*entiere);
        lue.date = Garder(*entiere);
        return lue;
    }
    lue.approchee = !jour.empty();
    if (const std::optional<DateCivile> duMois = Lire("01", mois, annee)) {
        lue.serie = DateVersSerie(*duMois);
        lue.date = GarderMois(*duMois);
        return lue;
    }
    lue.approchee = lue.approchee || !mois.empty();
    if (const std::optional<DateCivile> deLAn = Lire("01", "01", annee))
        lue.serie = DateVersSerie(*deLAn);
    lue.date = {{}, std::string{annee}};
    return lue;
}

DateLue LireDateLibre(std::string_view texte) {
    texte = SansBlancs(texte);
    const std::size_t annee = texte.find_last_of("/ ");
    if (annee != std::string_view::npos && EstAnnee(texte.substr(annee + 1)))
        if (const std::optional<DateCivile> date = LireDate(texte, Ordre)) return Garder(*date);
    return LireDateGedcom(texte);
}

std::optional<Age> LireAge(std::string_view texte) {
    Age age;
    std::string_view reste = SansBlancs(texte);
    if (reste.empty()) return {};
    while (!reste.empty()) {
        const std::optional<int> nombre = PrendreNombre(reste);
        if (!nombre) return {};
        const std::string unite = PrendreMot(reste);
        const bool nu = unite.empty() && SansBlancs(reste).empty();
        if (!Ajouter(age, *nombre, nu ? "ANS" : unite)) return {};
        reste = SansBlancs(reste);
        for (const std::string_view et : {"et ", ", "})
            if (reste.starts_with(et)) reste.remove_prefix(et.size());
    }
    age.enAns = age.mois == 0 && age.jours == 0;
    return age;
}

DateLue NaissanceSelonAge(const Age& age, const std::optional<Serie>& jour) {
    const std::optional<DateCivile> date = jour ? SerieVersDate(*jour) : std::nullopt;
    if (!date) return {};
    if (age.enAns) {
        const int derniere = date->annee - age.ans;
        return LireDateGedcom("BET " + std::to_string(derniere - 1) + " AND " +
                              std::to_string(derniere));
    }
    // Months first, on the first of a month, so that every day exists.
    const int mois = date->annee * 12 + date->mois - 1 - age.ans * 12 - age.mois;
    if (mois < 100 * 12) return {};
    const DateCivile premier{1, mois % 12 + 1, mois / 12};
    const std::optional<DateCivile> ne =
        SerieVersDate(DateVersSerie(premier) + date->jour - 1 - age.jours);
    if (!ne) return {};
    return LireDateGedcom("CAL " + EcrireJourGedcom(ne->jour, ne->mois, ne->annee));
}

DateLue AnneeSelonAge(const Age& age, const std::optional<Serie>& jour) {
    const std::optional<DateCivile> date = jour ? SerieVersDate(*jour) : std::nullopt;
    if (!date) return {};
    return LireDateGedcom("CAL " + std::to_string(date->annee - age.ans));
}

ParentActe LireParent(std::string_view nom, std::string_view prenoms) {
    ParentActe parent{SansBlancs(nom), SansBlancs(prenoms), false};
    for (std::string_view* champ : {&parent.nom, &parent.prenoms})
        if (const std::size_t mort = MotDuMort(*champ); mort != 0) {
            *champ = SansBlancs(champ->substr(mort));
            parent.decede = true;
        }
    // Nothing else stands in the column; as a surname it is one.
    const std::string minuscules = EnMinuscules(parent.prenoms);
    if (minuscules == "feu" || minuscules == "feue") {
        parent.prenoms = {};
        parent.decede = true;
    }
    return parent;
}

}  // namespace dorvane::interchange
