#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "interchange/commun/SelectionExport.h"
#include "interchange/gedcom/ExportGedcom.h"
#include "interchange/lgr/EcrireLgr.h"
#include "messages/Export.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

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

/// Who is written, and whether all events and documents are. False when there is no such person.
bool Selectionner(Atelier& atelier, const OptionsExporter& o, std::vector<bool>& choisis,
                  bool& complet) {
    using interchange::SensExport;
    interchange::ReglagesSelection reglages = o.reglages;
    interchange::SelectionExport selection{*atelier.session.base};
    const std::uint32_t depart = o.ascendants != 0 ? o.ascendants : o.descendants;
    if (depart != 0) {
        if (!PersonneExiste(atelier, depart)) return false;
        selection.MarquerParente(
            NoOrdre{depart}, o.ascendants != 0 ? SensExport::Ascendants : SensExport::Descendants,
            o.generations);
    } else {
        selection.MarquerTous();
        reglages.complet = true;
    }
    choisis = selection.Choisis(reglages);
    complet = interchange::ExportComplet(reglages);
    return true;
}

int Rapporter(Atelier& atelier, const OptionsExporter& o, bool fait, std::uint32_t individus,
              std::uint32_t familles, std::uint32_t evenements, std::uint32_t documents) {
    if (!fait) {
        atelier.dialogue.Informer(
            shell::Msg(message::FichierNonEcrit, Utf8VersTexte(o.sortie).octets));
        return RefusSysteme;
    }
    std::cout << individus << ' ' << familles << ' ' << evenements << ' ' << documents << '\n';
    return Fait;
}

int Exporter(Atelier& atelier, const OptionsExporter& o) {
    std::vector<bool> choisis;
    bool complet = true;
    if (!Selectionner(atelier, o, choisis, complet)) return Refus;
    if (EstLgr(o.sortie)) {
        const interchange::ResultatLgr r =
            interchange::ExporterLgr(atelier.session, o.sortie, {std::move(choisis), complet});
        const interchange::ComptesLgr& c = r.comptes;
        return Rapporter(atelier, o, r.issue == interchange::IssueExport::Fait, c.individus,
                         c.unions, c.evenements, c.documents);
    }
    interchange::OptionsExport options;
    options.jeu =
        o.jeu.value_or(interchange::JeuDuReglage(atelier.session.parametres.generaux.jeuExport));
    options.reduit = o.reduit;
    options.choisis = std::move(choisis);
    options.complet = complet;
    const interchange::ResultatExport r =
        interchange::ExporterGedcom(atelier.session, o.sortie, options);
    const interchange::ComptesExport& c = r.comptes;
    if (c.perdus > 0)
        atelier.dialogue.Informer(
            shell::Msg(message::CaracteresPerdusALExport, std::to_string(c.perdus)));
    return Rapporter(atelier, o, r.issue == interchange::IssueExport::Fait, c.individus, c.familles,
                     c.evenements, c.documents);
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
