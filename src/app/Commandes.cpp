#include "app/Commandes.h"

#include "app/Atelier.h"
#include "app/Calculer.h"
#include "app/DecrirePersonne.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CompilerCatalogue.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <array>
#include <iostream>
#include <optional>
#include <system_error>
#include <utility>

namespace dorvane::outil {
namespace {

namespace fs = std::filesystem;

std::string NomAffichable(const fs::path& chemin) {
    return Utf8VersTexte(chemin.string()).octets;
}

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

}  // namespace

int Creer(const fs::path& base) {
    Atelier atelier{{}};
    std::error_code erreur;
    if (fs::exists(base, erreur)) {
        atelier.dialogue.Informer(
            shell::Msg(message::FichierExisteSansRemplacer, NomAffichable(base)));
        return Refus;
    }
    const shell::ReglagesGeneraux& generaux = atelier.session.parametres.generaux;
    storage::ResultatOuverture nouvelle = storage::NouvelleBase(
        atelier.session.disque, base, {'1', generaux.motClePrenom, generaux.motCleNom});
    if (nouvelle.etat == storage::Ouverture::Faite) {
        nouvelle.base->marques.ModifBase = true;
        if (nouvelle.base->Fermer()) return Fait;
    }
    nouvelle.base.reset();
    if (nouvelle.etat == storage::Ouverture::Occupee) {
        atelier.dialogue.Informer(shell::Msg(message::BaseOccupee, NomAffichable(base)));
        return Refus;
    }
    (void)atelier.session.disque.Supprimer(base);
    atelier.dialogue.Informer(shell::Msg(message::CreationBaseRefusee, NomAffichable(base)));
    return RefusSysteme;
}

int DonnerInfos(const fs::path& base, bool json) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(base); statut != Fait) return statut;
    Ecrire(DecrireBase(*atelier.session.base), json);
    return atelier.Fermer();
}

int Lister(const fs::path& base, bool json) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(base); statut != Fait) return statut;
    storage::Base& ouverte = *atelier.session.base;
    if (json) std::cout << '[';
    bool premiere = true;
    for (std::uint32_t rang = 1; rang <= ouverte.entete.NbTriIndividus; ++rang) {
        const NoOrdre n = ouverte.R_TRI.IndividuAuRang(rang);
        if (!n) continue;
        const Json ligne = DecrireLigne(ouverte, n);
        if (json)
            std::cout << (premiere ? "\n" : ",\n") << EnTexte(ligne, -1);
        else
            EcrireLigne(std::cout, ligne);
        premiere = false;
    }
    if (json) std::cout << "\n]\n";
    return atelier.Fermer();
}

int MontrerPersonne(const fs::path& base, std::uint32_t numero, bool json) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(base); statut != Fait) return statut;
    storage::Base& ouverte = *atelier.session.base;
    const NoOrdre n{numero};
    if (!n || numero > ouverte.entete.DernierIndividu || ouverte.R_TRI.RangIndividu(n) == 0) {
        atelier.dialogue.Informer(
            shell::Msg(message::NumeroDePersonneInexistant, std::to_string(numero)));
        return Refus;
    }
    Ecrire(DecrirePersonne(ouverte, n), json);
    return atelier.Fermer();
}

int Sauvegarder(const fs::path& base) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(base); statut != Fait) return statut;
    // Only a whole, closed file is copied: a leftover journal was replayed by the opening.
    if (const int statut = atelier.Fermer(); statut != Fait) return statut;
    const fs::path copie = shell::CheminSauvegarde(base);
    if (!shell::CopierTout(base, copie)) {
        atelier.dialogue.Informer(shell::Msg(message::SauvegardeNonEcrite, NomAffichable(copie)));
        return RefusSysteme;
    }
    std::cout << copie.string() << '\n';
    return Fait;
}

int Restaurer(const fs::path& sauvegarde, bool remplacer) {
    Atelier atelier{{}};
    std::error_code erreur;
    if (!fs::exists(sauvegarde, erreur)) {
        atelier.dialogue.Informer(shell::Msg(message::FichierDisparu));
        return RefusSysteme;
    }
    atelier.dialogue.fichier = sauvegarde;
    if (remplacer) atelier.dialogue.reponse = shell::Reponse::Oui;
    shell::MnuRestauration(atelier.session);
    if (!atelier.session.BaseOuverte())
        return atelier.dialogue.dernier == message::SauvegardeNonRecopiee ? RefusSysteme : Refus;
    std::cout << atelier.session.CheminBase.string() << '\n';
    return atelier.Fermer();
}

int CompilerCatalogues(const std::vector<std::string>& sources, const fs::path& dossier) {
    std::vector<shell::SourceCatalogue> textes;
    for (const std::string& source : sources) {
        const std::optional<std::string> texte = shell::LireTout(source);
        if (!texte) {
            std::cerr << source << ": illisible\n";
            return RefusSysteme;
        }
        textes.push_back({source, *texte});
    }
    constexpr std::array<std::pair<const char*, const char*>, 2> Langues{
        {{"fr", "Français.mes"}, {"en", "English.mes"}}};
    for (const auto& [colonne, fichier] : Langues) {
        const shell::CatalogueCompile compile = shell::CompilerCatalogue(textes, colonne);
        for (const shell::ErreurCatalogue& e : compile.erreurs)
            std::cerr << e.source << ':' << e.ligne << ": " << colonne << ": " << e.texte << '\n';
        if (!compile.erreurs.empty()) return Refus;
        if (!shell::EcrireTout(dossier / fichier, compile.octets)) {
            std::cerr << (dossier / fichier).string() << ": refus\n";
            return RefusSysteme;
        }
    }
    return Fait;
}

int ListerCatalogue(const fs::path& fichier) {
    constexpr std::uint32_t DernierMessage = 32000;
    shell::Catalogue catalogue;
    if (!catalogue.Ouvrir(fichier)) {
        std::cerr << fichier.string() << ": illisible\n";
        return RefusSysteme;
    }
    for (std::uint32_t no = 1; no <= DernierMessage; ++no)
        if (const std::string texte = catalogue.Message(NoMessage{no}); !texte.empty())
            std::cout << no << '\t' << TexteVersUtf8(texte) << '\n';
    return Fait;
}

int CalculerValeurs(const std::string& operation, const std::vector<std::string>& arguments,
                    const std::string& langue) {
    const Atelier atelier{langue};
    if (operation == "-") return ServirCalculs(std::cin, std::cout, atelier.session.Mots());
    const Calcul calcul = Calculer(operation, arguments, atelier.session.Mots());
    (calcul.correct ? std::cout : std::cerr) << calcul.texte << '\n';
    return calcul.correct ? Fait : MauvaisUsage;
}

}  // namespace dorvane::outil
