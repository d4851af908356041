#include "values/Noms.h"

#include "values/Annees.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace dorvane {

namespace {

constexpr std::array<std::string_view, 41> MotsInitiaux{
    "af",  "ben",  "d",     "da",   "de",   "della", "den", "des",  "di",  "du",  "el",
    "et",  "II",   "III",   "IV",   "IX",   "l",     "la",  "las",  "le",  "les", "of",
    "van", "VI",   "VII",   "VIII", "von",  "XI",    "XII", "XIII", "XIV", "XIX", "XV",
    "XVI", "XVII", "XVIII", "XX",   "XXIX", "XXVII", "y",   "zu"};

/// One place for each byte: true for the separators.
constexpr std::array<bool, 256> Separateurs = [] {
    std::array<bool, 256> table{};
    for (const char octet : " '-_’´"_1252)
        table[static_cast<unsigned char>(octet)] = true;
    return table;
}();

/// True when the word at `place` of `texte`, which may be followed by other words, stands between
/// separators (or at the head).
bool EstMotEntier(std::string_view texte, std::size_t place, std::size_t longueur) {
    const std::size_t apres = place + longueur;
    return apres < texte.size() && EstSeparateur(texte[apres]) &&
           (place == 0 || EstSeparateur(texte[place - 1]));
}

/// Takes the particles from the head of `nom`, in the order of the table, and gives them joined,
/// each with a blank before it. `nom` has a blank at its end.
std::string OterParticules(std::string_view& nom, const ReglesNoms& regles) {
    std::string otees;
    for (const Particule& particule : regles.particules) {
        const std::size_t longueur = particule.replie.size();
        if (!particule.noms || longueur == 0) continue;
        while (longueur < nom.size() && EstSeparateur(nom[longueur]) &&
               CompareReplies(nom.substr(0, longueur), particule.replie) == 0) {
            nom.remove_prefix(longueur + 1);
            otees.append(1, ' ').append(particule.mot);
        }
    }
    return otees;
}

}  // namespace

Particule FaireParticule(std::string_view mot, std::string_view drapeaux) {
    drapeaux = SansBlancs(drapeaux);
    const std::size_t blanc = std::min(drapeaux.find(' '), drapeaux.size());
    return {.mot = std::string(mot),
            .replie = Replie(mot),
            .prenoms = drapeaux.substr(0, blanc) == "1",
            .noms = SansBlancs(drapeaux.substr(blanc)) == "1"};
}

std::span<const std::string_view> ParticulesInitiales() {
    return MotsInitiaux;
}

ReglesNoms ReglesInitiales() {
    ReglesNoms regles;
    regles.particules.reserve(MotsInitiaux.size());
    for (const std::string_view mot : MotsInitiaux)
        regles.particules.push_back(FaireParticule(mot, "1 1"));
    return regles;
}

bool EstSeparateur(char octet) {
    return Separateurs[static_cast<unsigned char>(octet)];
}

std::string CapitaliseNom(std::string_view texte, std::string_view mode, const ReglesNoms& regles) {
    std::string sortie = EnMinuscules(texte);
    // The last word, too, is followed by a separator.
    sortie.push_back(' ');
    for (std::size_t i = 0; i < sortie.size(); ++i)
        if (i == 0 || EstSeparateur(sortie[i - 1])) sortie[i] = EnMajuscule(sortie[i]);

    const std::string replie = Replie(sortie);
    for (const Particule& particule : regles.particules) {
        const bool employee = (mode == "N" && particule.noms) || (mode == "P" && particule.prenoms);
        const std::size_t longueur = particule.replie.size();
        if (!employee || longueur == 0) continue;
        for (std::size_t place = replie.find(particule.replie); place != std::string::npos;
             place = replie.find(particule.replie, place + 1))
            if (EstMotEntier(sortie, place, longueur))
                sortie.replace(place, longueur, particule.mot);
    }

    sortie.pop_back();
    return sortie;
}

std::string CleNom(std::string_view nom, const ReglesNoms& regles) {
    std::string cle;
    CleNomDans(cle, nom, regles);
    return cle;
}

void CleNomDans(std::string& sortie, std::string_view nom, const ReglesNoms& regles) {
    const auto debut = static_cast<std::ptrdiff_t>(sortie.size());
    if (regles.deplacer) {
        const std::string avecBlanc = std::string(nom) + ' ';
        std::string_view reste = avecBlanc;
        const std::string otees = OterParticules(reste, regles);
        if (otees.empty())
            sortie += SansBlancs(reste);
        else
            sortie.append(SansBlancsAGauche(reste)).append(1, '(').append(SansBlancs(otees)) += ')';
    } else {
        sortie += SansBlancs(nom);
    }
    std::replace_if(sortie.begin() + debut, sortie.end(), EstSeparateur, '.');
}

std::string CleTri(std::string_view nom, std::string_view prenom, std::string_view naissance,
                   TypeTri tri, const ReglesNoms& regles) {
    std::string cle;
    CleTriDans(cle, nom, prenom, naissance, tri, regles);
    return cle;
}

void CleTriDans(std::string& sortie, std::string_view nom, std::string_view prenom,
                std::string_view naissance, TypeTri tri, const ReglesNoms& regles) {
    if (!AUneCle(tri)) return;
    if (tri == TypeTri::Naissance) {
        const QuatreOctets annee = AnneeTri(naissance);
        sortie.append(annee.data(), annee.size()).push_back(' ');
    }
    // A separator and the dot that replaces it have the same comparison form, so the name needs
    // not become a `CleNom` first unless its particles move.
    if (regles.deplacer)
        ReplieDans(sortie, CleNom(nom, regles));
    else
        ReplieDans(sortie, SansBlancs(nom));
    sortie.push_back(' ');
    ReplieDans(sortie, prenom);
}

}  // namespace dorvane
