#include "app/CommandeBase.h"
#include "app/DecrirePersonne.h"
#include "app/Verbes.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "messages/Outil.h"
#include "records/FicheMotsCles.h"
#include "records/NomsAffiches.h"
#include "records/RechercheNoms.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>

namespace dorvane::outil {

namespace {

using Texte = std::optional<std::string>;
using records::TableLignes;

struct OptionsMotCle : OptionsBase {
    std::uint32_t mot = 0;
    Texte code, libelle;
    bool indexe = false;
    bool sansIndex = false;
    std::string table;
    bool datee = false;
};

std::optional<records::LigneMotCle> ChercherMotCle(Atelier& atelier, std::uint32_t numero) {
    for (const records::LigneMotCle& ligne : records::ListerMotsCles(atelier.session))
        if (ligne.mot.valeur == numero) return ligne;
    atelier.dialogue.Informer(shell::Msg(message::MotCleInexistant, std::to_string(numero)));
    return std::nullopt;
}

bool ALaLigne(shell::Session& session, TableLignes table, NoMotCle mot) {
    return std::ranges::any_of(records::ListerLignes(session, table),
                               [mot](const auto& ligne) { return ligne.mot == mot; });
}

int ListerMotsCles(Atelier& atelier, const OptionsMotCle& o) {
    shell::Session& session = atelier.session;
    Json liste = Json::array();
    for (const records::LigneMotCle& ligne : records::ListerMotsCles(session)) {
        const Json objet{{"numero", ligne.mot.valeur},
                         {"code", TexteVersUtf8({&ligne.code, 1})},
                         {"libelle", TexteVersUtf8(ligne.libelle)},
                         {"indexe", ligne.indexe},
                         {"fiche", ALaLigne(session, TableLignes::Individu, ligne.mot)},
                         {"union", ALaLigne(session, TableLignes::Mariage, ligne.mot)}};
        if (o.json)
            liste.push_back(objet);
        else
            std::cout << ligne.mot.valeur << '\t' << objet["code"].get<std::string>() << '\t'
                      << objet["libelle"].get<std::string>() << '\t'
                      << TexteVersUtf8(session.Message(ligne.indexe ? message::MotCleIndexe
                                                                    : message::MotCleNonIndexe))
                      << '\n';
    }
    if (o.json) std::cout << EnTexte(liste) << '\n';
    return Fait;
}

int AjouterMotCle(Atelier& atelier, const OptionsMotCle& o) {
    records::SaisieMotCle saisie{{}, {}, o.indexe};
    Prendre(atelier, o.code, saisie.code);
    Prendre(atelier, o.libelle, saisie.libelle);
    const NoMotCle mot = records::AjouterMotCle(atelier.session, saisie);
    if (!mot) return Refus;
    std::cout << mot.valeur << '\n';
    return Fait;
}

int ModifierMotCle(Atelier& atelier, const OptionsMotCle& o) {
    const auto avant = ChercherMotCle(atelier, o.mot);
    if (!avant) return Refus;
    records::SaisieMotCle saisie{std::string(1, avant->code), avant->libelle,
                                 o.indexe || (avant->indexe && !o.sansIndex)};
    Prendre(atelier, o.code, saisie.code);
    Prendre(atelier, o.libelle, saisie.libelle);
    return records::ModifierMotCle(atelier.session, avant->mot, saisie) ? Fait : Refus;
}

int EffacerMotCle(Atelier& atelier, const OptionsMotCle& o) {
    if (!ChercherMotCle(atelier, o.mot)) return Refus;
    return records::SupprimerMotCle(atelier.session, NoMotCle{o.mot}) ? Fait : Refus;
}

/// Puts the keyword among the lines of a sheet, or takes it out when it stands there.
int BasculerLigne(Atelier& atelier, const OptionsMotCle& o) {
    const auto mot = ChercherMotCle(atelier, o.mot);
    if (!mot) return Refus;
    shell::Session& session = atelier.session;
    const TableLignes table = o.table == "union" ? TableLignes::Mariage : TableLignes::Individu;
    const auto lignes = records::ListerLignes(session, table);
    const auto ici = std::ranges::find(lignes, mot->mot, &records::LigneFiche::mot);
    const bool fait =
        ici == lignes.end()
            ? records::AjouterLigne(session, table, mot->mot, o.datee)
            : records::RetirerLigne(session, table, static_cast<std::size_t>(ici - lignes.begin()));
    return fait ? Fait : Refus;
}

void DeclarerMotCle(Verbe racine) {
    using O = OptionsMotCle;
    const Verbe verbe = racine.Groupe("motcle", "Les mots-clés d'une base");
    const auto numero = [](Verbe& v, O& o) {
        v.Ajouter("K", o.mot, "Numéro du mot-clé").Requise();
    };
    Declarer<O>(
        verbe, "lister", "Les mots-clés dans leur ordre",
        [](Verbe& v, O& o) { v.Drapeau("--json", o.json); }, ListerMotsCles);
    Declarer<O>(
        verbe, "ajouter", "Ajoute un mot-clé et écrit son numéro",
        [](Verbe& v, O& o) {
            v.Ajouter("CODE", o.code, "Un caractère").Requise();
            v.Ajouter("LIBELLE", o.libelle).Requise();
            v.Drapeau("--indexe", o.indexe, "Indexe ses mots");
        },
        AjouterMotCle);
    Declarer<O>(
        verbe, "modifier", "Change un mot-clé",
        [numero](Verbe& v, O& o) {
            numero(v, o);
            v.Ajouter("--code", o.code);
            v.Ajouter("--libelle", o.libelle);
            const Option indexe = v.Drapeau("--indexe", o.indexe);
            v.Drapeau("--sans-index", o.sansIndex).Exclut(indexe);
        },
        ModifierMotCle);
    Declarer<O>(verbe, "supprimer", "Supprime un mot-clé ; les textes restent", numero,
                EffacerMotCle);
    Declarer<O>(
        verbe, "ligne", "Met un mot-clé dans la fiche ou l'union, ou l'en retire",
        [numero](Verbe& v, O& o) {
            numero(v, o);
            v.Ajouter("TABLE", o.table, "fiche ou union").Requise().Parmi({"fiche", "union"});
            v.Drapeau("--datee", o.datee, "La ligne a une date");
        },
        BasculerLigne);
}

struct OptionsRecherche : OptionsBase {
    std::string texte;
};

int ChercherNoms(Atelier& atelier, const OptionsRecherche& o) {
    const std::string texte = LireArgument(atelier, o.texte);
    shell::Session& session = atelier.session;
    records::RechercheNoms recherche{session};
    if (!records::Rechercher(recherche, session, texte, false, [] {})) return Refus;
    Json liste = Json::array();
    for (const NoOrdre n : recherche.Resultat()) {
        const std::string nom = TexteVersUtf8(records::NomAffiche(session, n));
        const std::string dates = TexteVersUtf8(records::DatesDeVie(session, n));
        if (o.json)
            liste.push_back({{"numero", n.valeur}, {"nom", nom}, {"dates", dates}});
        else
            std::cout << n.valeur << '\t' << nom << '\t' << dates << '\n';
    }
    if (o.json) std::cout << EnTexte(liste) << '\n';
    return recherche.Resultat().empty() ? Refus : Fait;
}

struct OptionsParametre {
    std::string section;
    std::string cle;
    std::string valeur;
};

int LireParametre(const OptionsParametre& o) {
    Atelier atelier{{}};
    const shell::Magasin& magasin = atelier.session.parametres.magasin;
    if (o.section.empty()) {
        for (const std::string& section : magasin.Sections())
            std::cout << section << '\n';
        return Fait;
    }
    if (o.cle.empty()) {
        for (const auto& [cle, valeur] : magasin.LireSection(o.section))
            std::cout << cle << '\t' << valeur << '\n';
        return Fait;
    }
    const std::optional<std::string> valeur = magasin.Chercher(o.section, o.cle);
    if (!valeur) {
        atelier.dialogue.Informer(shell::Msg(message::ReglageInexistant,
                                             Utf8VersTexte(o.cle).octets,
                                             Utf8VersTexte(o.section).octets));
        return Refus;
    }
    std::cout << *valeur << '\n';
    return Fait;
}

int EcrireParametre(const OptionsParametre& o) {
    Atelier atelier{{}};
    atelier.session.parametres.magasin.Ecrire(o.section, o.cle, o.valeur);
    if (atelier.session.parametres.magasin.Enregistrer()) return Fait;
    atelier.dialogue.Informer(shell::Msg(message::ReglagesNonEnregistres));
    return RefusSysteme;
}

void DeclarerParametre(Verbe racine) {
    const Verbe verbe = racine.Groupe("parametre", "Les réglages du programme");
    Declarer<OptionsParametre>(
        verbe, "lire", "Les sections, les clés d'une, ou une valeur",
        [](Verbe& v, OptionsParametre& o) {
            v.Ajouter("SECTION", o.section);
            v.Ajouter("CLE", o.cle);
            v.Alias("LIRE");
        },
        LireParametre);
    Declarer<OptionsParametre>(
        verbe, "ecrire", "Change une valeur",
        [](Verbe& v, OptionsParametre& o) {
            v.Ajouter("SECTION", o.section).Requise();
            v.Ajouter("CLE", o.cle).Requise();
            v.Ajouter("VALEUR", o.valeur).Requise();
            v.Alias("ECRIRE");
        },
        EcrireParametre);
}

}  // namespace

void DeclarerVerbesReglages(Verbe racine) {
    DeclarerMotCle(racine);
    Declarer<OptionsRecherche>(
        racine, "rechercher", "Les personnes dont le nom contient un texte",
        [](Verbe& v, OptionsRecherche& o) {
            v.Ajouter("TEXTE", o.texte).Requise();
            v.Drapeau("--json", o.json);
        },
        ChercherNoms);
    DeclarerParametre(racine);
}

}  // namespace dorvane::outil
