#include "app/CommandeBase.h"
#include "app/DecrirePersonne.h"
#include "app/Verbes.h"
#include "interchange/commandes/Importer.h"
#include "messages/Dorvane.h"
#include "values/Texte1252.h"

#include <array>
#include <iostream>
#include <nlohmann/json.hpp>
#include <system_error>

namespace dorvane::outil {
namespace {

namespace fs = std::filesystem;
using interchange::Constat;

struct OptionsImport {
    std::string fichier;
    std::string base;  ///< empty: the name of the file with ".LGD", beside it
    bool remplacer = false;
    bool trier = false;
    bool json = false;
    std::string langue;
};

constexpr std::array<std::pair<Constat, const char*>, 10> NomsDesConstats{
    {{Constat::NonRepris, "nonRepris"},
     {Constat::SansPlace, "sansPlace"},
     {Constat::DansLaNote, "dansLaNote"},
     {Constat::Remplace, "remplaces"},
     {Constat::Reference, "references"},
     {Constat::Doublon, "doublons"},
     {Constat::Limite, "limites"},
     {Constat::SansParent, "sansParent"},
     {Constat::Illisible, "illisibles"},
     {Constat::SansUnion, "sansUnion"}}};

Json DecrireRapport(const interchange::RapportImport& rapport) {
    Json constats = Json::object();
    for (const auto& [constat, nom] : NomsDesConstats) {
        Json liste = Json::object();
        for (const auto& [chemin, mention] : rapport.Liste(constat))
            liste[TexteVersUtf8(chemin)] = {{"nombre", mention.nombre}, {"lignes", mention.lignes}};
        if (!liste.empty()) constats[nom] = std::move(liste);
    }
    return constats;
}

Json DecrireImport(const interchange::Importation& importation, const fs::path& base) {
    const interchange::RapportImport& r = importation.rapport;
    return {{"base", base.string()},
            {"individus", r.individus},
            {"unions", r.unions},
            {"evenements", r.evenements},
            {"documents", r.documents},
            {"lignes", r.lignes},
            {"jeu", NomDeJeu(r.jeu.jeu)},
            {"jeuDeclare", TexteVersUtf8(r.jeu.declare)},
            {"translitteres", r.translitteres},
            {"perdus", r.perdus},
            {"octetsNuls", r.octetsNuls},
            {"rapport", importation.fichierRapport.string()},
            {"constats", DecrireRapport(r)}};
}

int Importer(const OptionsImport& options) {
    Atelier atelier{options.langue};
    fs::path base = options.base;
    if (base.empty()) base = fs::path{options.fichier}.replace_extension(".LGD");
    if (const int statut = VerifierCible(
            atelier, {.fichier = base, .remplacer = options.remplacer, .lu = options.fichier});
        statut != Fait)
        return statut;
    atelier.dialogue.reponse = options.trier ? shell::Reponse::Oui : shell::Reponse::Non;
    const interchange::Importation importation =
        interchange::ImporterVers(atelier.session, options.fichier, base);
    if (!importation.issue) return Statut(importation.issue);
    if (options.json)
        std::cout << EnTexte(DecrireImport(importation, base)) << '\n';
    else
        std::cout << TexteVersUtf8(importation.texte);
    return Fait;
}

}  // namespace

void DeclarerVerbesImport(Verbe racine) {
    Declarer<OptionsImport>(
        racine, "importer", "Fait une base d'un fichier GEDCOM ou d'un fichier d'échange .lgr",
        [](Verbe& v, OptionsImport& o) {
            v.Ajouter("FICHIER", o.fichier).Requise();
            v.Ajouter("--base", o.base, "Le fichier .LGD à écrire");
            v.Drapeau("--remplacer", o.remplacer, "Remplace la base qui existe");
            v.Drapeau("--trier", o.trier, "Trie les personnes");
            v.Ajouter("--langue", o.langue, "Catalogue des textes, Français ou English");
            v.Drapeau("--json", o.json);
        },
        Importer);
}

}  // namespace dorvane::outil
