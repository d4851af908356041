#include "app/CommandeBase.h"
#include "app/DecrirePersonne.h"
#include "app/Verbes.h"
#include "records/ControleBase.h"
#include "records/Depannage.h"
#include "shell/CycleDeVie.h"
#include "shell/Reorganisation.h"
#include "values/Texte1252.h"

#include <iostream>
#include <nlohmann/json.hpp>

namespace dorvane::outil {

namespace {

struct OptionsSoin : OptionsBase {
    bool sansSauvegarde = false;
};

int Reorganiser(const OptionsSoin& o) {
    const std::filesystem::path chemin = shell::CheminEntier(o.base);
    if (!o.sansSauvegarde)
        if (const int statut = SauvegarderBase(chemin); statut != Fait) return statut;
    Atelier atelier{{}};
    return Statut(shell::ReecrireBase(atelier.session, chemin));
}

int Controler(Atelier& atelier, const OptionsSoin& o) {
    Json liste = Json::array();
    std::vector<records::Constat> constats;
    const records::BilanControle bilan =
        records::ControlerBase(atelier.session, [&](const records::Constat& constat) {
            if (o.json)
                liste.push_back({{"personne", constat.individu.valeur},
                                 {"rang", constat.rang},
                                 {"message", records::MessageDe(constat.sorte).valeur},
                                 {"texte", TexteVersUtf8(constat.texte)},
                                 {"identite", TexteVersUtf8(constat.identite)}});
            else
                constats.push_back(constat);
        });
    if (o.json)
        std::cout << EnTexte(liste) << '\n';
    else
        std::cout << records::TexteDesConstats(constats);
    return bilan.constats == 0 ? Fait : Refus;
}

/// The copy is made of the closed file, before anything else.
int Depanner(const OptionsSoin& o) {
    if (!o.sansSauvegarde)
        if (const int statut = SauvegarderBase(o.base); statut != Fait) return statut;
    records::BilanDepannage bilan;
    const int statut = AvecBase(o, [&bilan](Atelier& atelier) {
        bilan = records::DepannerBase(atelier.session, false);
        return Statut(bilan.issue);
    });
    // Nothing is mended before it is committed.
    if (statut != Fait) return statut;
    std::cout << bilan.reparations << '\n';
    if (!bilan.journal.empty()) std::cout << bilan.journal.string() << '\n';
    return Fait;
}

/// A verb that opens the base itself, once it is copied.
void DeclarerSeul(Verbe& verbe, OptionsSoin& options) {
    DeclarerBase(verbe, options);
    verbe.Drapeau("--sans-sauvegarde", options.sansSauvegarde, "Ne copie pas la base en .SAV");
}

}  // namespace

void DeclarerVerbesSoin(Verbe racine) {
    Declarer<OptionsSoin>(racine, "reorganiser",
                          "Réécrit la base sans ce qui n'y sert plus ; la copie d'abord en .SAV",
                          DeclarerSeul, Reorganiser);
    Declarer<OptionsSoin>(
        racine, "controler",
        "Dit ce qui paraît faux : numéro, anomalie et nom, un par ligne ; statut 1 s'il y en a",
        [](Verbe& v, OptionsSoin& o) { v.Drapeau("--json", o.json); }, Controler);
    Declarer<OptionsSoin>(racine, "depanner",
                          "Répare les liens de la base ; la copie d'abord en .SAV ; dit combien de "
                          "réparations, et où est leur compte rendu",
                          DeclarerSeul, Depanner);
}

}  // namespace dorvane::outil
