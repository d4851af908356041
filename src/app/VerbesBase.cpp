#include "app/CommandeBase.h"
#include "app/DecrirePersonne.h"
#include "app/Verbes.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "storage/Base.h"

#include <iostream>
#include <nlohmann/json.hpp>
#include <system_error>

namespace dorvane::outil {
namespace {

namespace fs = std::filesystem;

struct OptionsFichier {
    std::string base;
    std::uint32_t numero = 0;
    bool json = false;
    bool remplacer = false;
};

/// A row of `lister` for people: number, name, dates, parted by tabs.
void EcrireLigne(std::ostream& sortie, const Json& ligne) {
    const auto date = [](const Json& d) {
        std::string texte = d.at("jourmois").get<std::string>();
        const std::string annee = d.at("annee").get<std::string>();
        const bool chiffres = texte.find('/') != std::string::npos;
        if (!texte.empty() && !annee.empty()) texte += chiffres ? "/" : " ";
        return texte + annee;
    };
    const auto texte = [&](const char* cle) { return ligne.at(cle).get<std::string>(); };
    const std::string autres = texte("autres");
    sortie << ligne.at("numero") << '\t' << texte("nom") << '\t' << texte("prenom")
           << (autres.empty() ? "" : " ") << autres << '\t' << texte("sexe") << '\t'
           << date(ligne.at("naissance")) << '\t'
           << ligne.at("naissance").at("lieu").get<std::string>() << '\t' << date(ligne.at("deces"))
           << '\t' << ligne.at("deces").at("lieu").get<std::string>() << '\n';
}

/// A document as lines "key: value", nested ones indented.
void EcrireEnClair(std::ostream& sortie, const Json& objet, const std::string& retrait = {}) {
    for (const auto& [cle, valeur] : objet.items()) {
        if (valeur.is_null() || (valeur.is_string() && valeur.get<std::string>().empty())) continue;
        if (valeur.is_structured()) {
            if (valeur.empty()) continue;
            sortie << retrait << (objet.is_array() ? "-" : cle + ":") << '\n';
            EcrireEnClair(sortie, valeur, retrait + "  ");
        } else {
            sortie << retrait << (objet.is_array() ? "- " : cle + ": ")
                   << (valeur.is_string() ? valeur.get<std::string>() : EnTexte(valeur, -1))
                   << '\n';
        }
    }
}

void Ecrire(const Json& objet, bool json) {
    if (json)
        std::cout << EnTexte(objet) << '\n';
    else
        EcrireEnClair(std::cout, objet);
}

int Creer(const OptionsFichier& o) {
    Atelier atelier{{}};
    if (const int statut = VerifierCible(atelier, {o.base, o.remplacer}); statut != Fait)
        return statut;
    const fs::path base = shell::CheminEntier(o.base);
    shell::ReprendreAvantRemplacement(atelier.session, base);
    const shell::ReglagesGeneraux& generaux = atelier.session.parametres.generaux;
    storage::ResultatOuverture nouvelle =
        storage::NouvelleBase(atelier.session.disque, base,
                              {TypeTri::Naissance, generaux.motClePrenom, generaux.motCleNom});
    shell::Issue issue = shell::IssueDeCreation(nouvelle.etat, base);
    if (issue) {
        nouvelle.base->marques.ModifBase = true;
        if (nouvelle.base->Fermer()) return Fait;
        issue = shell::IssueDeCreation(storage::Ouverture::Refusee, base);
    }
    return Statut(shell::Dire(atelier.dialogue, issue));
}

int DonnerInfos(const OptionsFichier& o) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(o.base); statut != Fait) return statut;
    Ecrire(DecrireBase(*atelier.session.base), o.json);
    return atelier.Fermer();
}

int Lister(const OptionsFichier& o) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(o.base); statut != Fait) return statut;
    storage::Base& ouverte = *atelier.session.base;
    if (o.json) std::cout << '[';
    bool premiere = true;
    for (std::uint32_t rang = 1; rang <= ouverte.entete.NbTriIndividus; ++rang) {
        const NoOrdre n = ouverte.R_TRI.IndividuAuRang(rang);
        if (!n) continue;
        const Json ligne = DecrireLigne(ouverte, n);
        if (o.json)
            std::cout << (premiere ? "\n" : ",\n") << EnTexte(ligne, -1);
        else
            EcrireLigne(std::cout, ligne);
        premiere = false;
    }
    if (o.json) std::cout << "\n]\n";
    return atelier.Fermer();
}

int MontrerPersonne(const OptionsFichier& o) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(o.base); statut != Fait) return statut;
    storage::Base& ouverte = *atelier.session.base;
    const NoOrdre n{o.numero};
    if (!n || o.numero > ouverte.entete.DernierIndividu || ouverte.R_TRI.RangIndividu(n) == 0) {
        atelier.dialogue.Informer(
            shell::Msg(message::NumeroDePersonneInexistant, std::to_string(o.numero)));
        return Refus;
    }
    Ecrire(DecrirePersonne(ouverte, n), o.json);
    return atelier.Fermer();
}

int Restaurer(const OptionsFichier& o) {
    const fs::path sauvegarde = o.base;
    Atelier atelier{{}};
    std::error_code erreur;
    if (!fs::exists(sauvegarde, erreur)) {
        atelier.dialogue.Informer(shell::Msg(message::FichierDisparu));
        return RefusSysteme;
    }
    atelier.dialogue.fichier = sauvegarde;
    if (o.remplacer) atelier.dialogue.reponse = shell::Reponse::Oui;
    if (const shell::Issue issue = shell::MnuRestauration(atelier.session); !issue)
        return Statut(issue);
    std::cout << atelier.session.CheminBase.string() << '\n';
    return atelier.Fermer();
}

void DeclarerFichier(Verbe& v, OptionsFichier& o) {
    v.Ajouter("BASE", o.base).Requise();
}

void DeclarerRemplacer(Verbe& v, OptionsFichier& o) {
    v.Drapeau("--remplacer", o.remplacer, "Remplace la base qui existe");
}

void DeclarerLecture(Verbe& v, OptionsFichier& o) {
    DeclarerFichier(v, o);
    v.Drapeau("--json", o.json);
}

}  // namespace

void DeclarerVerbesBase(Verbe racine) {
    using O = OptionsFichier;
    Declarer<O>(
        racine, "nouveau", "Crée une base vide",
        [](Verbe& v, O& o) {
            DeclarerFichier(v, o);
            DeclarerRemplacer(v, o);
        },
        Creer);
    Declarer<O>(racine, "infos", "Dit ce qu'une base contient", DeclarerLecture, DonnerInfos);
    Declarer<O>(racine, "lister", "Liste les personnes dans l'ordre de tri", DeclarerLecture,
                Lister);
    Declarer<O>(
        racine, "personne", "Montre tout d'une personne",
        [](Verbe& v, O& o) {
            DeclarerFichier(v, o);
            v.Ajouter("N", o.numero).Requise();
            v.Drapeau("--json", o.json);
        },
        MontrerPersonne);
    Declarer<O>(racine, "sauvegarder", "Copie une base en .SAV", DeclarerFichier,
                [](const O& o) { return SauvegarderBase(o.base); });
    Declarer<O>(
        racine, "restaurer", "Reprend une base d'un .SAV",
        [](Verbe& v, O& o) {
            v.Ajouter("SAV", o.base).Requise();
            DeclarerRemplacer(v, o);
        },
        Restaurer);
}

}  // namespace dorvane::outil
