// Compiles the lists of texts into the catalogues of the program, while it is being built.
#include "shell/CompilerCatalogue.h"
#include "shell/FichierSur.h"

#include <iostream>
#include <optional>

using namespace dorvane::shell;

int main(int nombre, char** arguments) {
    const std::vector<std::string> args{arguments + 1, arguments + nombre};
    if (args.size() < 2) {
        std::cerr << "usage: catalogue SOURCE.tsv [SOURCE.tsv...] FOLDER\n";
        return 2;
    }
    std::vector<SourceCatalogue> sources;
    for (std::size_t i = 0; i + 1 < args.size(); ++i) {
        const std::optional<std::string> texte = LireTout(args[i]);
        if (!texte) {
            std::cerr << args[i] << ": cannot be read\n";
            return 3;
        }
        sources.push_back({args[i], *texte});
    }
    int issue = 0;
    const std::pair<const char*, const char*> langues[] = {{"fr", "Français.mes"},
                                                           {"en", "English.mes"}};
    for (const auto& [colonne, fichier] : langues) {
        const CatalogueCompile compile = CompilerCatalogue(sources, colonne);
        for (const ErreurCatalogue& erreur : compile.erreurs)
            std::cerr << erreur.source << ':' << erreur.ligne << ": " << colonne << ": "
                      << erreur.texte << '\n';
        if (!compile.erreurs.empty()) {
            issue = 1;
        } else if (!EcrireTout(std::filesystem::path{args.back()} / fichier, compile.octets)) {
            std::cerr << fichier << ": cannot be written\n";
            issue = 3;
        }
    }
    return issue;
}
