#include "interchange/gedcom/NomGedcom.h"

#include "storage/Textes.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {

std::string NomLu::Ligne() const {
    std::string ligne;
    ligne.reserve(nom.size() + prenom.size() + autres.size() + 2);
    const auto ajouter = [&](std::string_view texte) {
        texte = texte.substr(0, NomLePlusLong);
        if (texte.find_first_of("#;") == std::string_view::npos)
            ligne += texte;
        else
            ligne += storage::SansSeparateur(texte);
    };
    ajouter(nom);
    ligne += ';';
    ajouter(prenom);
    ligne += ';';
    ajouter(autres);
    return ligne;
}

NomLu LireNomGedcom(std::string_view valeur, bool prenomUnique) {
    NomLu lu;
    const std::size_t barre = valeur.find('/');
    if (barre == std::string_view::npos) {
        lu.nom = SansBlancs(valeur);
        return lu;
    }
    const std::string_view avant = valeur.substr(0, barre);
    const std::string_view reste = valeur.substr(barre + 1);
    if (reste == "/") {
        lu.nom = SansBlancs(avant);
        if (lu.nom.empty()) lu.nom = "?";
        return lu;
    }
    const std::size_t fin = std::min(reste.find('/'), reste.size());
    const std::string_view apres = reste.substr(std::min(fin + 1, reste.size()));
    lu = FaireNom(reste.substr(0, fin), barre == 0 ? apres : avant, prenomUnique);
    // "Jean /Dupont/ fils": neither a surname nor a given name.
    lu.entier = barre == 0 || SansBlancs(apres).empty();
    return lu;
}

NomLu FaireNom(std::string_view nom, std::string_view donne, bool prenomUnique) {
    NomLu lu;
    lu.nom = SansBlancs(nom);
    donne = SansBlancs(donne);
    const std::size_t blanc = std::min(donne.find(' '), donne.size());
    lu.prenom = donne.substr(0, blanc);
    lu.autres = SansBlancs(donne.substr(blanc));
    if (!lu.nom.empty()) lu.motsCles.append(1, marqueur::Nom).append(BlancsEnPoints(lu.nom));
    if (!donne.empty()) {
        lu.motsCles.append(lu.motsCles.empty() ? "" : " ").append(1, marqueur::Prenom);
        lu.motsCles += prenomUnique ? std::string{donne} : BlancsEnPoints(donne);
    }
    return lu;
}

std::string SansDoubleArobase(std::string_view valeur) {
    std::string texte{valeur};
    if (texte.find('@') != std::string::npos) RemplacerTout(texte, "@@", "@");
    return texte;
}

bool OterArobases(std::string& texte) {
    if (texte.find('@') == std::string::npos) return false;
    RemplacerTout(texte, "@#D", "");
    std::ranges::replace(texte, '@', ' ');
    while (texte.find("  ") != std::string::npos)
        RemplacerTout(texte, "  ", " ");
    texte = std::string{SansBlancs(texte)};
    return true;
}

bool RepeteLeNom(std::string_view piece, std::string_view nom) {
    // Nearly always it stands there letter for letter.
    const std::size_t ou = nom.find(piece);
    if (ou != std::string_view::npos) {
        const auto borne = [&](std::size_t i) {
            return i >= nom.size() || nom[i] == ' ' || nom[i] == '/';
        };
        if ((ou == 0 || borne(ou - 1)) && borne(ou + piece.size())) return true;
    }
    const auto mots = [](std::string_view texte) {
        std::string replie = Replie(texte);
        for (char& c : replie) {
            const bool lettre = (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
            if (!lettre && !EstChiffre(c)) c = ' ';
        }
        return ' ' + replie + ' ';
    };
    const std::string dans = mots(nom);
    const std::string tous = mots(piece);
    for (std::string_view reste = SansBlancs(tous); !reste.empty();) {
        const std::size_t fin = std::min(reste.find(' '), reste.size());
        const std::string mot = ' ' + std::string{reste.substr(0, fin)} + ' ';
        if (dans.find(mot) == std::string::npos) return false;
        reste = SansBlancs(reste.substr(fin));
    }
    return true;
}

}  // namespace dorvane::interchange
