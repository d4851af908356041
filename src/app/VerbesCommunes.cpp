#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "interchange/communes/LireListeCommunes.h"
#include "messages/Communes.h"
#include "messages/Messages.h"
#include "storage/BaseCommunes.h"
#include "values/Phonetique.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace dorvane::outil {

namespace {

struct OptionsCommunes {
    std::string fichier;
    std::string liste;
    std::string nom;
    bool remplacer = false;
    bool son = false;
    bool debut = false;
    bool json = false;
};

/// Reads a list, and tells of it what is left out.
shell::Issue LireListe(Atelier& atelier, const std::string& nom,
                       interchange::ListeCommunes& liste) {
    shell::Issue issue = shell::Dire(atelier.dialogue, interchange::LireListeCommunes(nom, liste));
    if (!issue) return issue;
    for (const std::size_t ligne : liste.sansNom)
        atelier.dialogue.Informer(shell::Msg(message::LigneDeListeSansNom, std::to_string(ligne)));
    for (const std::size_t ligne : liste.tropLongues)
        atelier.dialogue.Informer(
            shell::Msg(message::LigneDeListeTropLongue, std::to_string(ligne)));
    if (liste.remplaces != 0)
        atelier.dialogue.Informer(
            shell::Msg(message::ListeCommunesHorsJeuDeCaracteres, std::to_string(liste.remplaces)));
    return issue;
}

int CreerCommunes(const OptionsCommunes& o) {
    Atelier atelier{{}};
    if (const int statut =
            VerifierCible(atelier, {.fichier = o.fichier, .remplacer = o.remplacer, .lu = o.liste});
        statut != Fait)
        return statut;
    interchange::ListeCommunes liste;
    if (!o.liste.empty())
        if (const shell::Issue lue = LireListe(atelier, o.liste, liste); !lue) return Statut(lue);
    storage::DisqueReel disque;
    storage::ProgressionMuette muet;
    std::string octets;
    if (!storage::ComposerLgx(liste.communes, muet, octets) ||
        !storage::EcrireLgx(disque, o.fichier, o.fichier + ".nouveau", octets)) {
        atelier.dialogue.Informer(
            shell::Msg(message::FichierCommunesNonEcrit, shell::CheminAffiche(o.fichier)));
        return RefusSysteme;
    }
    std::cout << liste.communes.size() << '\n';
    return Fait;
}

/// Opens a base of communes and runs `travail` on it.
template <int (*travail)(Atelier&, storage::BaseCommunes&, const OptionsCommunes&)>
int AvecCommunes(const OptionsCommunes& o) {
    Atelier atelier{{}};
    storage::DisqueReel disque;
    const storage::ResultatCommunes r = storage::BaseCommunes::OuvrirCommunes(disque, o.fichier);
    if (r.etat == storage::OuvertureCommunes::Faite) return travail(atelier, *r.base, o);
    const bool absente = r.etat == storage::OuvertureCommunes::Absente;
    atelier.dialogue.Informer(absente ? shell::Msg(message::FichierCommunesIntrouvable)
                                      : shell::Msg(message::FichierPasUneBaseDeCommunes,
                                                   shell::CheminAffiche(o.fichier)));
    return absente ? RefusSysteme : Refus;
}

nlohmann::ordered_json EnJson(storage::NoCommune n, const storage::Commune& c) {
    return {{"numero", n.valeur},
            {"nom", TexteVersUtf8(c.nom)},
            {"code", TexteVersUtf8(c.code)},
            {"autreCode", TexteVersUtf8(c.autreCode)},
            {"rattachement", TexteVersUtf8(c.rattachement)},
            {"precision", TexteVersUtf8(c.precision)},
            {"commentaire", TexteVersUtf8(c.commentaire)}};
}

int ChercherCommunes(Atelier& /*atelier*/, storage::BaseCommunes& base, const OptionsCommunes& o) {
    const std::string nom = Utf8VersTexte(o.nom).octets;
    const std::vector<storage::NoCommune> trouvees =
        o.son     ? base.ChercherSoundex(ClePhonetique(nom))
        : o.debut ? base.ChercherDebut(nom, storage::BaseCommunes::MaxCommunes)
                  : base.ChercherCommune(nom);
    nlohmann::ordered_json liste = nlohmann::ordered_json::array();
    for (const storage::NoCommune n : trouvees) {
        const storage::Commune c = base.LireCommune(n);
        if (o.json)
            liste.push_back(EnJson(n, c));
        else
            std::cout << n.valeur << '\t' << TexteVersUtf8(c.code) << '\t'
                      << TexteVersUtf8(storage::TexteLieu(c)) << '\n';
    }
    if (o.json) std::cout << liste.dump(2) << '\n';
    return trouvees.empty() ? Refus : Fait;
}

int ReorganiserCommunes(Atelier& atelier, storage::BaseCommunes& base, const OptionsCommunes& o) {
    if (base.ReorganiserCommunes(atelier.progression) == storage::EcritureCommunes::Faite)
        return Fait;
    atelier.dialogue.Informer(
        shell::Msg(message::FichierCommunesNonEcrit, shell::CheminAffiche(o.fichier)));
    return RefusSysteme;
}

void DeclarerFichier(Verbe& v, OptionsCommunes& o) {
    v.Ajouter("FICHIER", o.fichier, "Le fichier .lgx").Requise();
}

}  // namespace

void DeclarerVerbesCommunes(Verbe racine) {
    const Verbe communes = racine.Groupe("communes", "La base des communes (.lgx)");
    Declarer<OptionsCommunes>(
        communes, "creer", "Fait une base de communes d'une liste CSV, ou une base vide",
        [](Verbe& v, OptionsCommunes& o) {
            DeclarerFichier(v, o);
            v.Ajouter("LISTE", o.liste,
                      "Le fichier CSV : nom, code, autre code, rattachement, precision, "
                      "commentaire");
            v.Drapeau("--remplacer", o.remplacer, "Remplace le fichier qui existe");
        },
        CreerCommunes);
    Declarer<OptionsCommunes>(
        communes, "chercher", "Cherche des communes par leur nom",
        [](Verbe& v, OptionsCommunes& o) {
            DeclarerFichier(v, o);
            v.Ajouter("NOM", o.nom).Requise();
            const Option son = v.Drapeau("--son", o.son, "Celles dont le nom sonne pareil");
            v.Drapeau("--debut", o.debut, "Celles dont le nom commence ainsi").Exclut(son);
            v.Drapeau("--json", o.json);
        },
        AvecCommunes<ChercherCommunes>);
    Declarer<OptionsCommunes>(communes, "reorganiser",
                              "Récrit une base de communes sans ce qui est mort", DeclarerFichier,
                              AvecCommunes<ReorganiserCommunes>);
}

}  // namespace dorvane::outil
