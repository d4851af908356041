#include "values/LangueDates.h"

#include "values/Comparaison.h"

#include <algorithm>

namespace dorvane {

namespace {

/// Figures and signs alone say the same in every language.
bool ADesLettres(std::string_view texte) {
    return std::ranges::any_of(texte,
                               [](char octet) { return EnMajuscule(octet) != EnMinuscule(octet); });
}

}  // namespace

std::string TraduireJourMois(std::string_view saisie, OrdreDate ordre, const MotsDates& avant,
                             const MotsDates& apres) {
    const std::string stocke = CvtSaisieDate(saisie, ordre, avant);
    if (!ADesLettres(saisie) || stocke == SansBlancs(saisie)) return std::string{saisie};
    std::string montre = CvtDateAffichage(stocke, apres);
    // Tokens and figures are read back in every language.
    return CvtSaisieDate(montre, ordre, apres) == stocke ? montre : stocke;
}

std::string TraduireDateEvenement(std::string_view saisie, OrdreDate ordre, const MotsDates& avant,
                                  const MotsDates& apres) {
    const std::optional<Serie> date = SaisirDateEvenement(saisie, ordre, avant);
    if (!date || !ADesLettres(saisie)) return std::string{saisie};
    std::string montre = AfficherDateEvenement(*date, apres);
    return SaisirDateEvenement(montre, ordre, apres) == date ? montre : std::string{saisie};
}

}  // namespace dorvane
