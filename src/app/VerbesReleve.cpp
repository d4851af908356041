#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "interchange/commandes/Importer.h"
#include "messages/Dorvane.h"
#include "messages/Releve.h"
#include "shell/FichierSur.h"
#include "values/Texte1252.h"

#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <system_error>

namespace dorvane::outil {

namespace {

namespace fs = std::filesystem;
using interchange::SorteReleve;

struct OptionsReleve {
    SorteReleve sorte = SorteReleve::Bapteme;
    std::string fichier;
    std::string base;
    bool remplacer = false;
    bool json = false;
};

nlohmann::ordered_json EnJson(const interchange::RapportReleve& rapport,
                              const shell::Session& session) {
    nlohmann::ordered_json constats = nlohmann::ordered_json::array();
    for (const interchange::RapportReleve::Constat& c : rapport.constats)
        constats.push_back(
            {{"ligne", c.ligne}, {"constat", TexteVersUtf8(session.Message(c.message))}});
    return {{"lignes", rapport.lignes},
            {"individus", rapport.individus},
            {"evenements", rapport.evenements},
            {"unions", rapport.unions},
            {"constats", std::move(constats)}};
}

int ImporterActes(const OptionsReleve& o) {
    Atelier atelier{{}};
    const std::string nom = Utf8VersTexte(o.fichier).octets;
    const fs::path base =
        o.base.empty() ? fs::path{o.fichier}.replace_extension(".LGD") : fs::path{o.base};
    const std::optional<std::string> octets = shell::LireTout(o.fichier);
    if (!octets) {
        atelier.dialogue.Informer(shell::Msg(message::FichierIllisible, nom));
        return RefusSysteme;
    }
    if (const int statut =
            VerifierCible(atelier, {.fichier = base, .remplacer = o.remplacer, .lu = o.fichier});
        statut != Fait)
        return statut;
    const interchange::Releve releve = interchange::LireReleve(*octets, o.sorte);
    if (releve.lignes.empty()) {
        atelier.dialogue.Informer(shell::Msg(message::FichierSansLigneDeReleve, nom));
        return Refus;
    }
    const interchange::Importation importation =
        interchange::ImporterActesVers(atelier.session, releve, o.fichier, base);
    if (!importation.issue) return Statut(importation.issue);
    if (o.json)
        std::cout << EnJson(importation.releve, atelier.session).dump(2) << '\n';
    else
        std::cout << TexteVersUtf8(importation.texte);
    return Fait;
}

}  // namespace

void DeclarerVerbesReleve(Verbe racine) {
    Declarer<OptionsReleve>(
        racine, "releve", "Fait une base d'un relevé d'actes tapé dans un tableur",
        [](Verbe& v, OptionsReleve& o) {
            v.Choix<SorteReleve>("SORTE", o.sorte,
                                 {{"bapteme", SorteReleve::Bapteme},
                                  {"mariage", SorteReleve::Mariage},
                                  {"sepulture", SorteReleve::Sepulture},
                                  {"ascendance", SorteReleve::Ascendance}},
                                 "bapteme, mariage, sepulture ou ascendance")
                .Requise();
            v.Ajouter("FICHIER", o.fichier, "Le fichier .txt ou .csv").Requise();
            v.Ajouter("--base", o.base, "Le fichier .LGD à écrire");
            v.Drapeau("--remplacer", o.remplacer, "Remplace la base qui existe");
            v.Drapeau("--json", o.json);
        },
        ImporterActes);
}

}  // namespace dorvane::outil
