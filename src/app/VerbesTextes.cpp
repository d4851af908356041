#include "app/Atelier.h"
#include "app/Calculer.h"
#include "app/Verbes.h"
#include "shell/CompilerCatalogue.h"
#include "shell/FichierSur.h"
#include "values/Texte1252.h"

#include <array>
#include <iostream>
#include <optional>
#include <utility>

namespace dorvane::outil {

namespace {

namespace fs = std::filesystem;

struct OptionsCatalogue {
    std::vector<std::string> sources;
    std::string dossier;
    std::string fichier;
};

int CompilerCatalogues(const OptionsCatalogue& o) {
    const fs::path dossier = o.dossier;
    std::vector<shell::SourceCatalogue> textes;
    for (const std::string& source : o.sources) {
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

int ListerCatalogue(const OptionsCatalogue& o) {
    constexpr std::uint32_t DernierMessage = 32000;
    shell::Catalogue catalogue;
    if (!catalogue.Ouvrir(o.fichier)) {
        std::cerr << o.fichier << ": illisible\n";
        return RefusSysteme;
    }
    for (std::uint32_t no = 1; no <= DernierMessage; ++no)
        if (const std::string texte = catalogue.Message(NoMessage{no}); !texte.empty())
            std::cout << no << '\t' << TexteVersUtf8(texte) << '\n';
    return Fait;
}

struct OptionsCalcul {
    std::string operation;
    std::vector<std::string> arguments;
    std::string langue;
};

/// `-` in place of the arguments reads one call a line from standard input.
int CalculerValeurs(const OptionsCalcul& o) {
    const Atelier atelier{o.langue};
    if (o.operation == "-") return ServirCalculs(std::cin, std::cout, atelier.session.Mots());
    const Calcul calcul = Calculer(o.operation, o.arguments, atelier.session.Mots());
    (calcul.correct ? std::cout : std::cerr) << calcul.texte << '\n';
    return calcul.correct ? Fait : MauvaisUsage;
}

/// Arguments may begin with a dash, "-44" is a year: from the first of these on they are no
/// options.
OptionsCalcul AvecLeReste(const Verbe& verbe, OptionsCalcul o) {
    bool finDesOptions = false;
    for (const std::string& reste : verbe.Reste()) {
        if (reste == "--" && !finDesOptions)
            finDesOptions = true;
        else if (o.operation.empty())
            o.operation = reste;
        else
            o.arguments.push_back(reste);
    }
    return o;
}

}  // namespace

void DeclarerVerbeCatalogue(Verbe racine) {
    using O = OptionsCatalogue;
    const Verbe catalogue = racine.Groupe("catalogue", "Les textes du programme");
    Declarer<O>(
        catalogue, "compiler", "Fait les .mes des listes de textes",
        [](Verbe& v, O& o) {
            v.Ajouter("SOURCE", o.sources, "Listes .tsv, lues ensemble").Requise();
            v.Ajouter("--vers", o.dossier, "Dossier des .mes").Requise();
        },
        CompilerCatalogues);
    Declarer<O>(
        catalogue, "lister", "Ecrit les textes d'un .mes",
        [](Verbe& v, O& o) { v.Ajouter("FICHIER", o.fichier).Requise(); }, ListerCatalogue);
}

void DeclarerVerbeCalculer(Verbe racine) {
    auto o = std::make_shared<OptionsCalcul>();
    Verbe verbe =
        racine.Sous("calculer", "Une opération sur des valeurs ; - lit un appel par ligne");
    verbe.Ajouter("--langue", o->langue, "Catalogue des mots, Français ou English");
    verbe.Ajouter("OPERATION", o->operation).Requise();
    verbe.Ajouter("ARG", o->arguments);
    verbe.LaisserLeReste();
    verbe.Faire([o, verbe] { return CalculerValeurs(AvecLeReste(verbe, *o)); });
}

}  // namespace dorvane::outil
