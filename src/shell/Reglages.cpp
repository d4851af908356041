#include "shell/Reglages.h"

#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "messages/Reglages.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

constexpr int FrequenceAuPlus = 1440;  ///< minutes: a day
constexpr std::string_view Liste = "Liste Evénements";

std::string SectionRoles(std::string_view type) {
    return "Evénements\\" + TexteVersUtf8(type);
}

std::string CleDeRole(const RoleEvenement& role) {
    return std::string{role.principal ? 'M' : ' ', static_cast<char>(role.sexe)} + role.label;
}

/// A folder to work in: there, or made now.
bool DossierUtilisable(const fs::path& dossier) {
    std::error_code erreur;
    if (dossier.empty()) return false;
    fs::create_directories(dossier, erreur);
    return fs::is_directory(dossier, erreur);
}

bool EvenementsBons(const std::vector<TypeEvenement>& evenements) {
    for (std::size_t i = 0; i < evenements.size(); ++i) {
        if (SansBlancs(evenements[i].type).empty()) return false;
        for (std::size_t k = 0; k < i; ++k)
            if (evenements[k].type == evenements[i].type) return false;
        for (const RoleEvenement& role : evenements[i].roles)
            if (SansBlancs(role.label).empty()) return false;
    }
    return true;
}

ChampReglage Verifier(Session& session, const Reglages& r) {
    if (!DossierUtilisable(r.generaux.travail)) {
        session.dialogue.Informer(
            Msg(message::DossierDeTravailImpossible, CheminAffiche(r.generaux.travail)));
        return ChampReglage::Travail;
    }
    if (r.generaux.frequenceSauvegarde < 1 || r.generaux.frequenceSauvegarde > FrequenceAuPlus) {
        session.dialogue.Informer(
            Msg(message::FrequenceSauvegardeHorsBornes, std::to_string(FrequenceAuPlus)));
        return ChampReglage::Frequence;
    }
    if (!EvenementsBons(r.evenements)) {
        session.dialogue.Informer(Msg(message::TypeOuRoleSansNomOuEnDouble));
        return ChampReglage::Evenements;
    }
    return ChampReglage::Aucun;
}

bool MemesParticules(const std::vector<Particule>& a, const std::vector<Particule>& b) {
    return std::ranges::equal(a, b, [](const Particule& x, const Particule& y) {
        return x.replie == y.replie && x.noms == y.noms;
    });
}

bool Trier(Session& session) {
    const CadreProgression cadre{session.progression, Litteral("Tri de la base"),
                                 Litteral("Préparation du tri"_1252)};
    return session.base->R_TRI.TrierIndividus(session.progression);
}

/// Particles and flags decide what a surname is sorted by: the table follows them, or they stay.
void ChangerClesNoms(Session& session, Reglages& r) {
    storage::Base& base = *session.base;
    const bool memesCles =
        r.deplacerParticules == base.entete.OptParticules &&
        (!r.deplacerParticules ||
         MemesParticules(r.generaux.particules, session.parametres.generaux.particules));
    if (memesCles && r.prenomUnique == base.entete.OptPrenomUnique) return;
    const bool avant = base.entete.OptParticules;
    const std::vector<Particule> particules = base.regles.particules;
    base.entete.OptParticules = r.deplacerParticules;
    base.regles.particules = r.generaux.particules;
    if (!memesCles && base.entete.TypeTri != TypeTri::Creation && !Trier(session)) {
        base.entete.OptParticules = r.deplacerParticules = avant;
        base.regles.particules = particules;
        r.generaux.particules = session.parametres.generaux.particules;
    }
    base.entete.OptPrenomUnique = r.prenomUnique;
    base.marques.ModifBase = true;
    // From here on each commit of a sheet brings the keyword line of its person up to date.
    session.indexationFaite = false;
}

/// The store keeps the order in which keys were written: another order is written from the start.
void RangerSection(Magasin& magasin, std::string_view section,
                   const std::vector<Magasin::Entree>& entrees) {
    magasin.RemplacerSection(section, entrees);
    if (std::ranges::equal(magasin.LireSection(section), entrees, {}, &Magasin::Entree::first,
                           &Magasin::Entree::first))
        return;
    magasin.SupprimerSection(section);
    magasin.RemplacerSection(section, entrees);
}

void EcrireEvenements(Magasin& magasin, const std::vector<TypeEvenement>& evenements) {
    const std::vector<Magasin::Entree> avant = magasin.LireSection(Liste);
    std::vector<Magasin::Entree> liste;
    liste.reserve(evenements.size());
    for (const TypeEvenement& evenement : evenements) {
        const std::string nom = TexteVersUtf8(evenement.type);
        const auto ancien = std::ranges::find(avant, nom, &Magasin::Entree::first);
        liste.emplace_back(nom, ancien == avant.end() ? std::string{} : ancien->second);
        std::vector<Magasin::Entree> roles;
        roles.reserve(evenement.roles.size());
        for (const RoleEvenement& role : evenement.roles)
            roles.emplace_back(TexteVersUtf8(CleDeRole(role)), std::string{});
        RangerSection(magasin, SectionRoles(evenement.type), roles);
    }
    for (const auto& [nom, valeur] : avant)
        if (std::ranges::find(liste, nom, &Magasin::Entree::first) == liste.end())
            magasin.SupprimerSection("Evénements\\" + nom);
    RangerSection(magasin, Liste, liste);
}

void PoserAffichage(Session& session, const Reglages& r) {
    Parametres& parametres = session.parametres;
    if (!session.base || r.pourNouvelles) parametres.generaux.affichage = r.affichage;
    if (!session.base) return;
    const ReglagesBase avant = parametres.base;
    parametres.base = r.base;
    // What the window does not edit goes on living in the session.
    parametres.base.personneEnCours = avant.personneEnCours;
    parametres.base.deCujus1 = avant.deCujus1;
    parametres.base.deCujus2 = avant.deCujus2;
    parametres.base.affichage = r.affichage;
}

}  // namespace

Reglages LireReglages(const Session& session) {
    const Parametres& parametres = session.parametres;
    Reglages r;
    r.generaux = parametres.generaux;
    r.base = parametres.base;
    r.affichage = session.base ? parametres.base.affichage : parametres.generaux.affichage;
    r.typeTri = session.base ? session.base->entete.TypeTri : session.TypeTri;
    r.prenomUnique =
        session.base ? session.base->entete.OptPrenomUnique : parametres.generaux.motClePrenom;
    r.deplacerParticules =
        session.base ? session.base->entete.OptParticules : parametres.generaux.motCleNom;
    for (const std::string& type : parametres.ListeEvenements())
        r.evenements.push_back({type, parametres.RolesEvenement(type)});
    return r;
}

bool MemesReglages(const Reglages& a, const Reglages& b) {
    const auto general = [](const ReglagesGeneraux& g) {
        return std::tie(g.travail, g.fichierCommunes, g.geneanet, g.frequenceSauvegarde,
                        g.barreMenus, g.barreFenetres, g.icones, g.affichageNom, g.ordreDate,
                        g.triImport, g.jeuExport);
    };
    const auto deBase = [](const ReglagesBase& r) {
        return std::tie(r.conversionNom, r.conversionPrenom, r.conversionLieu, r.auteur, r.adresse,
                        r.typeDocument);
    };
    const auto reste = [](const Reglages& r) {
        return std::tie(r.affichage, r.pourNouvelles, r.typeTri, r.prenomUnique,
                        r.deplacerParticules, r.evenements);
    };
    return general(a.generaux) == general(b.generaux) && deBase(a.base) == deBase(b.base) &&
           reste(a) == reste(b) &&
           std::ranges::equal(a.generaux.particules, b.generaux.particules,
                              [](const Particule& x, const Particule& y) {
                                  return x.mot == y.mot && x.prenoms == y.prenoms &&
                                         x.noms == y.noms;
                              });
}

bool ChangerTri(Session& session, TypeTri typeTri) {
    storage::Base& base = *session.base;
    const TypeTri avant = base.entete.TypeTri;
    if (typeTri == avant) return true;
    Phrase question = Msg(typeTri == TypeTri::Creation ? message::ConfirmerOrdreDeCreation
                                                       : message::ConfirmerNouveauTri);
    question.suite = message::ConfirmerOperation;
    if (!session.dialogue.Confirmer(question)) return false;
    base.entete.TypeTri = typeTri;
    if (!Trier(session)) {
        base.entete.TypeTri = avant;
        return false;
    }
    session.TypeTri = typeTri;
    base.marques.ModifBase = true;
    base.marques.AffichagePerime = true;
    return true;
}

ChampReglage ValiderReglages(Session& session, Reglages& r) {
    if (const ChampReglage champ = Verifier(session, r); champ != ChampReglage::Aucun) return champ;
    if (session.base) {
        ChangerClesNoms(session, r);
        if (!ChangerTri(session, r.typeTri)) r.typeTri = session.base->entete.TypeTri;
    } else {
        session.TypeTri = r.typeTri;
    }
    Parametres& parametres = session.parametres;
    // The language and the history are changed elsewhere.
    r.generaux.langue = parametres.generaux.langue;
    r.generaux.historique = parametres.generaux.historique;
    r.generaux.affichage = parametres.generaux.affichage;
    r.generaux.motClePrenom = r.prenomUnique;
    r.generaux.motCleNom = r.deplacerParticules;
    parametres.generaux = r.generaux;
    PoserAffichage(session, r);
    EcrireEvenements(parametres.magasin, r.evenements);
    session.AppliquerReglages();
    const bool base = !session.base || parametres.SauverParametresBase(session.CheminBase);
    if (!parametres.SauverParametres() || !base)
        session.dialogue.Informer(Msg(message::ReglagesNonEnregistres));
    return ChampReglage::Aucun;
}

}  // namespace dorvane::shell
