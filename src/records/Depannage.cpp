#include "records/Depannage.h"

#include "messages/Messages.h"
#include "messages/Soin.h"
#include "records/AtelierDepannage.h"
#include "records/NomsAffiches.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <utility>

namespace dorvane::records {

namespace {

using shell::Msg;

constexpr std::uint32_t PasCompteur = 100;
constexpr std::uint32_t MaxLignes = 20000;  // a base of garbage has millions: they are only counted

/// Writes the journal in the working folder; empty when that is refused, which is told.
std::filesystem::path EcrireJournal(shell::Session& session, const AtelierDepannage& atelier) {
    std::filesystem::path chemin = session.Travail() / session.CheminBase.stem();
    chemin += ".TXT";
    const std::string texte = atelier.journal.empty()
                                  ? session.Message(message::InfoRienAReparer) + '\n'
                                  : atelier.journal;
    if (shell::EcrireTout(chemin, TexteVersUtf8(texte))) return chemin;
    session.dialogue.Informer(Msg(message::CompteRenduNonEcrit, shell::CheminAffiche(chemin)));
    return {};
}

}  // namespace

std::string AtelierDepannage::Nommer(NoOrdre n) const {
    if (reparations >= MaxLignes) return {};
    const std::string nom = NomEtDates(session, n);
    return std::string{SansBlancs(nom)} + " (" + std::to_string(n.valeur) + ')';
}

void AtelierDepannage::Noter(std::string_view fait, std::string_view detail) {
    if (++reparations > MaxLignes) return;
    journal.append(fait).append("\t").append(detail).append("\n");
}

void AtelierDepannage::Regretter(NoMessage message, std::string_view valeur) {
    std::string texte = session.Message(message);
    RemplacerTout(texte, "&1", valeur);
    journal.append(texte).append("\n");
}

void AtelierDepannage::Phase(std::string_view litteral) {
    session.progression.Phase(shell::Litteral(litteral));
}

void AtelierDepannage::Phase(NoMessage message) {
    session.progression.Phase(Msg(message));
}

bool AtelierDepannage::Continuer(std::uint32_t fait, std::uint32_t total) {
    return fait % PasCompteur != 0 || (session.progression.Avancer(fait, total) &&
                                       // While the screen lives the user may close the base.
                                       session.base.get() == &base);
}

BilanDepannage DepannerBase(shell::Session& session, bool sauvegarder) {
    BilanDepannage bilan;
    if (!session.base) return bilan;
    if (sauvegarder)
        if (shell::Issue copiee = shell::Sauvegarder(session); !copiee) {
            session.ecran.Actualiser();
            return {.issue = std::move(copiee)};
        }
    AtelierDepannage atelier{session};
    {
        const shell::CadreProgression cadre{session.progression, Msg(message::TitreDepannageBase),
                                            Msg(message::TitreDepannageBase)};
        bilan.complet = DepannerTris(atelier) && DepannerMariages(atelier) &&
                        DepannerPersonnes(atelier) && DepannerFaits(atelier) &&
                        DepannerIndex(atelier);
    }
    bilan.issue = shell::Issue::Faite();
    bilan.reparations = atelier.reparations;
    bilan.journal = EcrireJournal(session, atelier);
    session.dialogue.Annoncer(
        Msg(message::EtatDepannageTermine, std::to_string(bilan.reparations)));
    session.ecran.Actualiser();
    return bilan;
}

BilanDepannage MnuDepannage(shell::Session& session) {
    if (shell::Issue permise = shell::CommandePermise(session); !permise)
        return {.issue = std::move(permise)};
    if (!session.base) return {};
    switch (session.dialogue.Demander({Msg(message::ProposerCopieAvantDepannage),
                                       Msg(message::ProposerCopieAvantOperation),
                                       shell::Boutons::OuiNonAnnuler})) {
        case shell::Reponse::Oui:
            return DepannerBase(session, true);
        case shell::Reponse::Non:
            return DepannerBase(session, false);
        case shell::Reponse::Annuler:
            break;
    }
    return {.issue = shell::Issue::Arretee()};
}

}  // namespace dorvane::records
