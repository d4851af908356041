#include "storage/Slots.h"

#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Dates.h"
#include "values/Marqueurs.h"
#include "values/TexteRiche.h"

#include <cstdio>
#include <optional>

namespace dorvane::storage {
namespace {

constexpr std::string_view Retour = "\r\n";
constexpr std::size_t TailleAnnee = 4;

std::string_view SansRetoursEnTete(std::string_view texte) {
    while (texte.starts_with(Retour))
        texte.remove_prefix(Retour.size());
    return texte;
}

std::string_view SansRetoursEnFin(std::string_view texte) {
    while (texte.ends_with(Retour))
        texte.remove_suffix(Retour.size());
    return texte;
}

/// Start of the line that begins with `libelle` and a blank.
std::size_t ChercherLigne(std::string_view texte, std::string_view libelle) {
    const std::string cherche = std::string{libelle} + ' ';
    for (std::size_t i = texte.find(cherche); i != std::string_view::npos;
         i = texte.find(cherche, i + 1))
        if (i == 0 || texte[i - 1] == '\n') return i;
    return std::string_view::npos;
}

/// Takes the line at `debut` out of `texte` and answers what stands behind its label, still with
/// the blank in front.
std::string RetirerLigne(std::string& texte, std::size_t debut, std::size_t tailleLibelle) {
    const std::size_t fin = texte.find('\n', debut);
    std::string valeur = texte.substr(debut + tailleLibelle,
                                      fin == std::string::npos ? fin : fin - debut - tailleLibelle);
    if (valeur.ends_with('\r')) valeur.pop_back();
    texte.erase(debut, fin == std::string::npos ? fin : fin + 1 - debut);
    return valeur;
}

void LireDateDeSlot(std::string_view valeur, ValeurSlot& slot) {
    const std::string_view nette = SansBlancs(valeur);
    const std::optional<DateCivile> date =
        EstChiffre(nette[0]) ? LireDate(nette, OrdreDate::JourMoisAnnee) : std::nullopt;
    if (date) {
        slot.annee = std::to_string(date->annee);
        slot.jourMois = std::to_string(date->jour) + '/' + std::to_string(date->mois);
        return;
    }
    // Of the untrimmed value: a blank year is kept as four blanks behind the day.
    if (valeur.size() > TailleAnnee) {
        slot.annee = SansBlancs(valeur.substr(valeur.size() - TailleAnnee));
        slot.jourMois = SansBlancs(valeur.substr(0, valeur.size() - TailleAnnee));
    } else {
        slot.annee = nette;
    }
    if (slot.jourMois.ends_with('/')) slot.jourMois.pop_back();
    if (slot.annee.starts_with('/')) slot.annee.erase(0, 1);
}

ValeurSlot LireSlot(std::string_view valeur, const Slot& slot) {
    ValeurSlot lu;
    const std::size_t symbole = valeur.find(slot.symbole);
    if (symbole != std::string_view::npos) {
        lu.lieu = PointsEnBlancs(valeur.substr(symbole + 1));
        // With the blank in front of the symbol.
        valeur = valeur.substr(0, symbole == 0 ? 0 : symbole - 1);
    }
    if (SansBlancs(valeur).empty()) return lu;
    if (slot.drapeau == '1')
        LireDateDeSlot(valeur, lu);
    else if (lu.lieu.empty())
        lu.lieu = SansBlancs(valeur);
    return lu;
}

std::string_view PremiereLigne(std::string_view texte) {
    return texte.substr(0, texte.find('\r'));
}

}  // namespace

TexteDecoupe DecouperTexte(std::string_view texte, const DefinitionSlots& definition) {
    TexteDecoupe decoupe;
    const std::size_t fin = texte.find(Retour);
    if (fin == std::string_view::npos) return decoupe;
    std::string reste{SansRetoursEnFin(SansRetoursEnTete(texte.substr(fin)))};
    if (reste.empty()) return decoupe;
    reste += Retour;
    for (std::size_t k = 0; k < NbSlots(definition.slots); ++k) {
        const std::string& libelle = definition.libelles[k];
        const std::size_t debut =
            libelle.empty() ? std::string::npos : ChercherLigne(reste, libelle);
        if (debut == std::string::npos)
            decoupe.slots.emplace_back();
        else
            decoupe.slots.push_back(
                LireSlot(RetirerLigne(reste, debut, libelle.size()), definition.slots[k]));
    }
    decoupe.note = SansBlancs(SansRetoursEnFin(SansRetoursEnTete(reste)));
    return decoupe;
}

std::string LireLieu(std::string_view texte, char symbole) {
    std::string tampon;
    const std::string_view brut = TexteSansRtf(texte, tampon);
    const std::size_t place = brut.find(symbole);
    if (place == std::string_view::npos) return {};
    const std::string_view jeton = brut.substr(place + 1);
    return PointsEnBlancs(jeton.substr(0, jeton.find_first_of(" \r")));
}

std::string LieuNaissance(Base& base, NoOrdre n) {
    return LireLieu(base.R_TEXTE.LireTexte(n), marqueur::LieuNaissance);
}

std::string LieuDeces(Base& base, NoOrdre n) {
    return LireLieu(base.R_TEXTE.LireTexte(n), marqueur::LieuDeces);
}

std::string NoteDe(Base& base, NoOrdre n) {
    return DecouperTexte(base.R_TEXTE.LireTexte(n), base.DefinitionIndividu()).note;
}

TableSlots SlotsDe(Base& base, NoOrdre n) {
    return DecouperTexte(base.R_TEXTE.LireTexte(n), base.DefinitionIndividu()).slots;
}

std::string LieuMariage(Base& base, NoMariage m) {
    return LireLieu(base.R_TXTMAR.LireTexte(m), marqueur::LieuMariage);
}

std::string DateMariageBrute(Base& base, NoMariage m) {
    const std::string_view ligne = PremiereLigne(base.R_TXTMAR.LireTexte(m));
    return std::string{SansBlancs(ligne.substr(0, ligne.find(marqueur::LieuMariage)))};
}

std::string NoteMariage(Base& base, NoMariage m) {
    return DecouperTexte(base.R_TXTMAR.LireTexte(m), base.DefinitionMariage()).note;
}

TableSlots SlotsMariageDe(Base& base, NoMariage m) {
    return DecouperTexte(base.R_TXTMAR.LireTexte(m), base.DefinitionMariage()).slots;
}

}  // namespace dorvane::storage
