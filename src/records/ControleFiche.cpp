#include "records/ControleFiche.h"

#include "messages/Fiche.h"
#include "messages/Messages.h"
#include "records/TexteFiche.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <array>

namespace dorvane::records {

namespace {

constexpr std::size_t TailleAnnee = 4;

/// The longest of the five fields that share the name line.
Champ ChampLePlusLong(const SaisieFiche& saisie) {
    struct Longueur {
        Champ champ;
        std::size_t taille;
    };
    const std::array<Longueur, 5> longueurs{{
        {Champ::Nom, saisie.nom.size()},
        {Champ::Prenom, saisie.prenom.size()},
        {Champ::AutrePrenom, saisie.autrePrenom.size()},
        {Champ::JourMoisNaissance, saisie.jourMoisNaissance.size()},
        {Champ::JourMoisDeces, saisie.jourMoisDeces.size()},
    }};
    return std::max_element(
               longueurs.begin(), longueurs.end(),
               [](const Longueur& a, const Longueur& b) { return a.taille < b.taille; })
        ->champ;
}

/// The message that names a field for the user; none for one that has no name.
NoMessage LibelleDeChamp(Champ champ) {
    switch (champ) {
        case Champ::Nom:
            return message::ChampNom;
        case Champ::Prenom:
            return message::ChampPrenoms;
        case Champ::AutrePrenom:
            return message::ChampAutresPrenoms;
        case Champ::JourMoisNaissance:
            return message::ChampJourMoisNaissance;
        case Champ::JourMoisDeces:
            return message::ChampJourMoisDeces;
        case Champ::Aucun:
        case Champ::Sexe:
        case Champ::AnneeNaissance:
        case Champ::Lien:
            break;
    }
    return {};
}

}  // namespace

Champ ControlerFiche(shell::Session& session, const SaisieFiche& saisie) {
    Champ champ = Champ::Aucun;
    if (SansBlancs(saisie.anneeNaissance).empty()) {
        session.dialogue.Informer(shell::Msg(message::InfoAnneeNaissanceVide));
        champ = Champ::AnneeNaissance;
    }
    if (SansBlancs(saisie.nom).empty() && SansBlancs(saisie.prenom).empty()) {
        session.dialogue.Informer(shell::Msg(message::PersonneSansNomNiPrenom));
        return Champ::Nom;
    }
    SaisieFiche repartie = saisie;
    RepartirNoms(repartie);
    if (ComposerLigneNom(session, repartie).size() > MaxLigneNom) {
        const Champ long_ = ChampLePlusLong(saisie);
        session.dialogue.Informer(shell::Msg(message::NomsEtDatesTropLongs,
                                             std::to_string(MaxLigneNom),
                                             session.Message(LibelleDeChamp(long_))));
        return long_;
    }
    return champ;
}

std::string CelluleDe(std::string_view annee) {
    return std::string{SansBlancs(SansBlancs(annee).substr(0, TailleAnnee))};
}

}  // namespace dorvane::records
