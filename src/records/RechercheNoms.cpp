#include "records/RechercheNoms.h"

#include "messages/Famille.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"

#include <algorithm>

namespace dorvane::records {

namespace {

constexpr std::uint32_t PasRecherche = 500;  // about a millisecond

}  // namespace

bool RechercheNoms::Commencer(std::string_view texte, bool cumul) {
    if (texte.empty() || !session_.BaseOuverte()) return false;
    texte_ = Replie(texte);
    if (!cumul) resultat_.clear();
    rang_ = 0;
    trouves_ = 0;
    return true;
}

std::uint32_t RechercheNoms::Total() const {
    return session_.BaseOuverte() ? session_.base->entete.NbTriIndividus : 0;
}

bool RechercheNoms::Convient(NoOrdre n) {
    tampon_.clear();
    ReplieDans(tampon_, NomAffiche(session_, n));
    return tampon_.find(texte_) != std::string::npos;
}

bool RechercheNoms::Continuer(std::uint32_t combien) {
    for (; combien != 0 && rang_ < Total(); --combien) {
        const NoOrdre n = session_.base->R_TRI.IndividuAuRang(++rang_);
        if (Convient(n) && Ajouter(n)) ++trouves_;
    }
    return rang_ < Total();
}

bool RechercheNoms::Ajouter(NoOrdre individu) {
    if (!session_.BaseOuverte() || !Existe(*session_.base, individu)) return false;
    const auto place = std::lower_bound(resultat_.begin(), resultat_.end(), individu);
    if (place != resultat_.end() && *place == individu) return false;
    resultat_.insert(place, individu);
    return true;
}

bool RechercheNoms::Ecarter(NoOrdre individu) {
    const auto place = std::lower_bound(resultat_.begin(), resultat_.end(), individu);
    if (place == resultat_.end() || *place != individu) return false;
    resultat_.erase(place);
    return true;
}

bool RechercheNoms::Relire() {
    const auto partis = std::erase_if(resultat_, [this](NoOrdre n) {
        return !session_.BaseOuverte() || !Existe(*session_.base, n);
    });
    return partis != 0;
}

bool Rechercher(RechercheNoms& recherche, shell::Session& session, std::string_view texte,
                bool cumul, const std::function<void()>& montrer) {
    if (texte.empty()) return false;
    if (session.progression.EnCours() || !recherche.Commencer(texte, cumul)) {
        session.dialogue.Informer(shell::Msg(message::OperationImpossible));
        return false;
    }
    bool abandon = false;
    {
        const shell::CadreProgression cadre{session.progression,
                                            shell::Msg(message::TitreRechercheDUnNom),
                                            shell::Msg(message::TitreRechercheDUnNom)};
        std::uint32_t montres = 0;
        for (bool encore = true; encore && !abandon;) {
            encore = recherche.Continuer(PasRecherche);
            if (recherche.Trouves() != montres) montrer();
            montres = recherche.Trouves();
            abandon = encore && !session.progression.Avancer(recherche.Fait(), recherche.Total());
        }
    }
    if (abandon) return false;
    if (recherche.Trouves() == 0)
        session.dialogue.Informer(shell::Msg(message::InfoAucunePersonneDeCeNom));
    return true;
}

}  // namespace dorvane::records
