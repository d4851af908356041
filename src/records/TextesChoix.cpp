#include "records/TextesChoix.h"

#include "messages/Famille.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"

#include <string>
#include <string_view>

namespace dorvane::records {

using shell::Msg;

namespace {

/// A bound of years as one reads it: without the zeros that fill it up.
std::string AnneeLisible(std::string_view borne) {
    while (borne.size() > 1 && borne.front() == '0')
        borne.remove_prefix(1);
    return std::string{borne};
}

}  // namespace

shell::Phrase TexteTitre(shell::Session& session, const Choix& choix) {
    const std::string nom = NomAffiche(session, choix.Demande().reference);
    switch (choix.Demande().sorte) {
        case SorteChoix::Parent:
            return Msg(choix.Demande().sexe == Sexe::Homme ? message::TitreChercherPere
                                                           : message::TitreChercherMere,
                       nom);
        case SorteChoix::Enfant:
            return Msg(message::TitreChercherEnfant, nom);
        case SorteChoix::Conjoint:
            return Msg(message::TitreChercherConjoint, nom);
        case SorteChoix::Lien:
            break;
    }
    return Msg(message::TitreChoisirPersonneALier, nom);
}

shell::Phrase TexteFenetre(shell::Session& session, const Choix& choix) {
    if (choix.FenetreLevee()) return Msg(message::ProchesSansEgardAuxDates);
    const std::string nom = NomAffiche(session, choix.Demande().reference);
    if (choix.Demande().sorte == SorteChoix::Lien) return Msg(message::ProchesContemporains, nom);
    if (choix.SansAnnee())
        return Msg(choix.Demande().sorte == SorteChoix::Enfant
                       ? message::ProchesNaissanceInconnueCocherAnnees
                       : message::ProchesSansAnneeDeNaissance,
                   nom);
    const FenetreAnnees& annees = choix.Fenetre();
    if (annees.de == "-") return Msg(message::ProchesNesJusquEn, AnneeLisible(annees.a));
    return Msg(message::ProchesNesDeA, AnneeLisible(annees.de), AnneeLisible(annees.a));
}

shell::Phrase TexteVide(const Choix& choix) {
    const std::string& filtre = choix.Filtre();
    if (choix.ParNumero()) return Msg(message::AucunProcheDeCeNumero, filtre);
    if (choix.FenetreLevee())
        return filtre.empty() ? Msg(message::AucunAutreProche)
                              : Msg(message::AucunProcheDeCeNom, filtre);
    return filtre.empty() ? Msg(message::AucunProcheSelonDates)
                          : Msg(message::AucunProcheSelonDatesEtNom, filtre);
}

}  // namespace dorvane::records
