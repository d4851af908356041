#include "app/Outil.h"

#include "app/Atelier.h"
#include "app/Commandes.h"
#include "app/Verbes.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace dorvane::outil {
namespace {

/// The verbs, and what their options were read into. The verb given leaves its work in `faire`.
struct Ligne {
    std::string base;
    std::uint32_t numero = 0;
    bool json = false;
    bool remplacer = false;
    std::string langue;
    OptionsImport import;
    std::vector<std::string> sources;
    std::string dossier;
    std::string operation;
    std::vector<std::string> arguments;
    std::function<int()> faire;
};

void DeclarerBases(CLI::App& app, Ligne& l) {
    CLI::App* nouveau = app.add_subcommand("nouveau", "Crée une base vide");
    nouveau->add_option("BASE", l.base)->required();
    nouveau->callback([&l] { l.faire = [&l] { return Creer(l.base); }; });

    CLI::App* infos = app.add_subcommand("infos", "Dit ce qu'une base contient");
    infos->add_option("BASE", l.base)->required();
    infos->add_flag("--json", l.json);
    infos->callback([&l] { l.faire = [&l] { return DonnerInfos(l.base, l.json); }; });

    CLI::App* lister = app.add_subcommand("lister", "Liste les personnes dans l'ordre de tri");
    lister->add_option("BASE", l.base)->required();
    lister->add_flag("--json", l.json);
    lister->callback([&l] { l.faire = [&l] { return Lister(l.base, l.json); }; });

    CLI::App* personne = app.add_subcommand("personne", "Montre tout d'une personne");
    personne->add_option("BASE", l.base)->required();
    personne->add_option("N", l.numero)->required();
    personne->add_flag("--json", l.json);
    personne->callback(
        [&l] { l.faire = [&l] { return MontrerPersonne(l.base, l.numero, l.json); }; });

    CLI::App* sauvegarder = app.add_subcommand("sauvegarder", "Copie une base en .SAV");
    sauvegarder->add_option("BASE", l.base)->required();
    sauvegarder->callback([&l] { l.faire = [&l] { return Sauvegarder(l.base); }; });

    CLI::App* restaurer = app.add_subcommand("restaurer", "Reprend une base d'un .SAV");
    restaurer->add_option("SAV", l.base)->required();
    restaurer->add_flag("--remplacer", l.remplacer, "Remplace la base qui existe");
    restaurer->callback([&l] { l.faire = [&l] { return Restaurer(l.base, l.remplacer); }; });
}

void DeclarerImport(CLI::App& app, Ligne& l) {
    CLI::App* importer = app.add_subcommand(
        "importer", "Fait une base d'un fichier GEDCOM ou d'un fichier d'échange .lgr");
    importer->add_option("FICHIER", l.base)->required();
    importer->add_option("--base", l.import.base, "Le fichier .LGD à écrire");
    importer->add_flag("--remplacer", l.import.remplacer, "Remplace la base qui existe");
    importer->add_flag("--trier", l.import.trier, "Trie les personnes");
    importer->add_option("--langue", l.import.langue, "Catalogue des textes, Français ou English");
    importer->add_flag("--json", l.import.json);
    importer->callback([&l] {
        l.faire = [&l] {
            l.import.fichier = l.base;
            return Importer(l.import);
        };
    });
}

void DeclarerCatalogue(CLI::App& app, Ligne& l) {
    CLI::App* catalogue = app.add_subcommand("catalogue", "Les textes du programme");
    catalogue->require_subcommand(1);
    CLI::App* compiler =
        catalogue->add_subcommand("compiler", "Fait les .mes des listes de textes");
    compiler->add_option("SOURCE", l.sources, "Listes .tsv, lues ensemble")->required();
    compiler->add_option("--vers", l.dossier, "Dossier des .mes")->required();
    compiler->callback(
        [&l] { l.faire = [&l] { return CompilerCatalogues(l.sources, l.dossier); }; });
    CLI::App* lister = catalogue->add_subcommand("lister", "Ecrit les textes d'un .mes");
    lister->add_option("FICHIER", l.base)->required();
    lister->callback([&l] { l.faire = [&l] { return ListerCatalogue(l.base); }; });
}

void DeclarerCalcul(CLI::App& app, Ligne& l) {
    CLI::App* calculer =
        app.add_subcommand("calculer", "Une opération sur des valeurs ; - lit un appel par ligne");
    calculer->add_option("--langue", l.langue, "Catalogue des mots, Français ou English");
    calculer->add_option("OPERATION", l.operation)->required();
    calculer->add_option("ARG", l.arguments);
    // Arguments may begin with a dash: "-44" is a year.
    calculer->prefix_command();
    calculer->callback([&l, calculer] {
        bool finDesOptions = false;
        for (const std::string& reste : calculer->remaining()) {
            if (reste == "--" && !finDesOptions) {
                finDesOptions = true;
                continue;
            }
            if (l.operation.empty())
                l.operation = reste;
            else
                l.arguments.push_back(reste);
        }
        l.faire = [&l] { return CalculerValeurs(l.operation, l.arguments, l.langue); };
    });
}

}  // namespace

int Executer(int nombre, const char* const* arguments) {
    CLI::App app{"Dorvane en ligne de commande", "dorvane-outil"};
    app.require_subcommand(1);
    Ligne ligne;
    DeclarerBases(app, ligne);
    DeclarerImport(app, ligne);
    DeclarerCatalogue(app, ligne);
    DeclarerVerbesFiche(app, ligne.faire);
    DeclarerVerbesFaits(app, ligne.faire);
    DeclarerVerbesReglages(app, ligne.faire);
    DeclarerVerbesSoin(app, ligne.faire);
    DeclarerVerbesExport(app, ligne.faire);
    DeclarerVerbesEchange(app, ligne.faire);
    DeclarerVerbesCommunes(app, ligne.faire);
    DeclarerVerbesReleve(app, ligne.faire);
    DeclarerCalcul(app, ligne);
    try {
        app.parse(nombre, arguments);
    } catch (const CLI::ParseError& erreur) {
        return app.exit(erreur) == 0 ? Fait : MauvaisUsage;
    }
    return ligne.faire();
}

}  // namespace dorvane::outil
