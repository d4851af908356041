#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "interchange/commandes/LancerExport.h"
#include "messages/Export.h"
#include "messages/Outil.h"
#include "shell/CycleDeVie.h"

#include <iostream>
#include <optional>

namespace dorvane::outil {

namespace {

using interchange::FormatExport;

constexpr const char* SortieStandard = "-";

struct OptionsExporter : OptionsBase {
    std::string sortie;
    bool remplacer = false;
    std::optional<FormatExport> format;         ///< nothing: as the extension says
    std::optional<interchange::JeuExport> jeu;  ///< nothing: the one of the settings
    bool reduit = false;
    std::uint32_t ascendants = 0;   ///< whose; 0: nobody's
    std::uint32_t descendants = 0;  ///< the same
    std::uint32_t generations = interchange::GenerationsParDefaut;
    interchange::ReglagesSelection reglages;
};

/// The format that the line or the extension says; nothing for another extension.
std::optional<FormatExport> FormatDe(const OptionsExporter& o) {
    const std::string extension = shell::ExtensionDe(o.sortie);
    if (o.format) return o.format;
    if (extension == ".lgr") return FormatExport::Dorvane;
    if (extension == ".ged" || o.sortie == SortieStandard) return FormatExport::Gedcom;
    return std::nullopt;
}

interchange::DemandeExport Demander(const Atelier& atelier, const OptionsExporter& o,
                                    FormatExport format) {
    using interchange::SensExport;
    interchange::DemandeExport demande;
    demande.format = format;
    demande.jeu =
        o.jeu.value_or(interchange::JeuDuReglage(atelier.session.parametres.generaux.jeuExport));
    demande.reduit = o.reduit;
    demande.reglages = o.reglages;
    const std::uint32_t depart = o.ascendants != 0 ? o.ascendants : o.descendants;
    demande.entiere = depart == 0;
    demande.parcours = {{NoOrdre{depart},
                         o.ascendants != 0 ? SensExport::Ascendants : SensExport::Descendants,
                         o.generations}};
    return demande;
}

/// Writes the bytes of an export to the standard output; the counts are the caller's.
interchange::ResultatExport Emettre(Atelier& atelier, const interchange::DemandeExport& demande) {
    interchange::ResultatExport r{shell::Issue::Faite(), {}};
    std::string octets;
    const std::string nom = atelier.session.NomBase + ".ged";
    if (!interchange::ComposerExport(atelier.session, demande, nom, octets, r.comptes))
        r.issue = shell::Issue::Arretee();
    else
        std::cout << octets;
    return r;
}

int Exporter(Atelier& atelier, const OptionsExporter& o) {
    const std::optional<FormatExport> format = FormatDe(o);
    if (!format) {
        atelier.dialogue.Informer(
            shell::Msg(message::ExtensionDExportInconnue, shell::CheminAffiche(o.sortie)));
        return MauvaisUsage;
    }
    const interchange::DemandeExport demande = Demander(atelier, o, *format);
    const bool emise = o.sortie == SortieStandard;
    if (!demande.entiere && !PersonneExiste(atelier, demande.parcours.front().depart.valeur))
        return Refus;
    if (!emise)
        if (const int statut = VerifierCible(atelier, {.fichier = o.sortie,
                                                       .remplacer = o.remplacer,
                                                       .base = atelier.session.CheminBase});
            statut != Fait)
            return statut;
    const interchange::ResultatExport r =
        emise ? Emettre(atelier, demande)
              : interchange::ExporterVers(atelier.session, demande, o.sortie);
    const interchange::ComptesExport& c = r.comptes;
    if (c.perdus > 0)
        atelier.dialogue.Informer(
            shell::Msg(message::CaracteresPerdusALExport, std::to_string(c.perdus)));
    if (r.issue && !emise)
        std::cout << c.individus << ' ' << c.unions << ' ' << c.evenements << ' ' << c.documents
                  << '\n';
    return Statut(shell::Dire(atelier.dialogue, r.issue));
}

/// Who is written.
void DeclarerSelection(Verbe& v, OptionsExporter& o) {
    Option haut = v.Ajouter("--ascendants", o.ascendants,
                            "Seulement cette personne, ses ascendants et leurs conjoints");
    Option bas = v.Ajouter("--descendants", o.descendants,
                           "Seulement cette personne, ses descendants et leurs conjoints");
    haut.Entre(1, 64000).Exclut(bas);
    bas.Entre(1, 64000);
    // What says nothing of a whole base is a mistake there.
    const auto avecDepart = [haut, bas] {
        return haut.EstDonnee() || bas.EstDonnee() ? std::string{}
                                                   : "--ascendants ou --descendants manque";
    };
    v.Ajouter("--generations", o.generations, "Jusqu'à cette génération ; 1 : la personne seule")
        .Entre(1, 64000)
        .Verifier(avecDepart);
    v.Drapeau("--collateraux", o.reglages.collateraux, "Avec les collatéraux").Verifier(avecDepart);
    v.Drapeau("--complet", o.reglages.complet, "Avec les événements et documents de toute la base")
        .Verifier(avecDepart);
    v.Drapeau("--ecarter-1900", o.reglages.ecarter1900, "Sans les naissances après 1900");
}

}  // namespace

void DeclarerVerbesExport(Verbe racine) {
    Declarer<OptionsExporter>(
        racine, "exporter",
        "Écrit la base ou une partie en GEDCOM ou en texte d'échange (.lgr) ; dit combien de "
        "personnes, de familles, d'événements et de documents",
        [](Verbe& v, OptionsExporter& o) {
            using interchange::JeuExport;
            v.Ajouter("SORTIE", o.sortie, "Le fichier .ged ou .lgr, ou - pour la sortie standard")
                .Requise();
            v.Choix<FormatExport>(
                "--format", o.format,
                {{"gedcom", FormatExport::Gedcom}, {"lgr", FormatExport::Dorvane}},
                "gedcom ou lgr, quelle que soit l'extension");
            v.Drapeau("--remplacer", o.remplacer, "Remplace le fichier qui existe");
            v.Choix<JeuExport>("--jeu", o.jeu,
                               {{"ascii", JeuExport::Ascii},
                                {"ansi", JeuExport::Ansi},
                                {"ansel", JeuExport::Ansel},
                                {"html", JeuExport::Html},
                                {"utf8", JeuExport::Utf8}},
                               "ascii, ansi, ansel, html ou utf8");
            v.Drapeau("--reduit", o.reduit, "En-tête réduit");
            DeclarerSelection(v, o);
        },
        Exporter);
}

}  // namespace dorvane::outil
