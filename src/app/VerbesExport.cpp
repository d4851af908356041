#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "interchange/commandes/LancerExport.h"
#include "messages/Export.h"
#include "values/Comparaison.h"

#include <filesystem>
#include <iostream>

namespace dorvane::outil {

namespace {

struct OptionsExporter : OptionsBase {
    std::string sortie;
    std::optional<interchange::JeuExport> jeu;  ///< nothing: the one of the settings
    bool reduit = false;
    std::uint32_t ascendants = 0;   ///< whose; 0: nobody's
    std::uint32_t descendants = 0;  ///< the same
    std::uint32_t generations = interchange::GenerationsParDefaut;
    interchange::ReglagesSelection reglages;
};

bool EstLgr(const std::filesystem::path& sortie) {
    return EnMajuscules(sortie.extension().string()) == ".LGR";
}

interchange::DemandeExport Demander(const Atelier& atelier, const OptionsExporter& o) {
    using interchange::SensExport;
    interchange::DemandeExport demande;
    if (EstLgr(o.sortie)) demande.format = interchange::FormatExport::Dorvane;
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

int Exporter(Atelier& atelier, const OptionsExporter& o) {
    const interchange::DemandeExport demande = Demander(atelier, o);
    if (!demande.entiere && !PersonneExiste(atelier, demande.parcours.front().depart.valeur))
        return Refus;
    const interchange::ResultatExport r =
        interchange::ExporterVers(atelier.session, demande, o.sortie);
    const interchange::ComptesExport& c = r.comptes;
    if (c.perdus > 0)
        atelier.dialogue.Informer(
            shell::Msg(message::CaracteresPerdusALExport, std::to_string(c.perdus)));
    if (r.issue)
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
            v.Ajouter("SORTIE", o.sortie, "Le fichier .ged ou .lgr").Requise();
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
