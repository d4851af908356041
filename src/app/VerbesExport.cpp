#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "interchange/ExportGedcom.h"
#include "values/Texte1252.h"

#include <iostream>
#include <map>

namespace dorvane::outil {

namespace {

struct OptionsExporter : OptionsBase {
    std::string sortie;
    std::optional<interchange::JeuExport> jeu;  ///< nothing: the one of the settings
    bool reduit = false;
};

int Exporter(Atelier& atelier, const OptionsExporter& o) {
    interchange::OptionsExport options;
    options.jeu =
        o.jeu.value_or(interchange::JeuDuReglage(atelier.session.parametres.generaux.jeuExport));
    options.reduit = o.reduit;
    const interchange::ResultatExport resultat =
        interchange::ExporterGedcom(atelier.session, o.sortie, options);
    if (resultat.issue != interchange::IssueExport::Fait) {
        atelier.dialogue.Informer(shell::Msg(3701, Utf8VersTexte(o.sortie).octets));
        return RefusSysteme;
    }
    std::cout << resultat.comptes.individus << ' ' << resultat.comptes.familles << ' '
              << resultat.comptes.evenements << ' ' << resultat.comptes.documents << '\n';
    return Fait;
}

}  // namespace

void DeclarerVerbesExport(CLI::App& app, std::function<int()>& faire) {
    Declarer<OptionsExporter>(
        app, faire, "exporter",
        "Écrit la base en GEDCOM ; dit combien de personnes, de familles, "
        "d'événements et de documents",
        [](CLI::App& v, OptionsExporter& o) {
            using interchange::JeuExport;
            v.add_option("SORTIE", o.sortie, "Le fichier .ged")->required();
            v.add_option("--jeu", o.jeu, "ascii, ansi, ansel, html ou utf8")
                ->transform(CLI::CheckedTransformer(
                    std::map<std::string, JeuExport>{{"ascii", JeuExport::Ascii},
                                                     {"ansi", JeuExport::Ansi},
                                                     {"ansel", JeuExport::Ansel},
                                                     {"html", JeuExport::Html},
                                                     {"utf8", JeuExport::Utf8}}));
            v.add_flag("--reduit", o.reduit, "En-tête réduit");
        },
        Exporter);
}

}  // namespace dorvane::outil
