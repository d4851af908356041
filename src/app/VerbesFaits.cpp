#include "app/CommandeBase.h"
#include "app/DecrirePersonne.h"
#include "app/Verbes.h"
#include "messages/Outil.h"
#include "records/AccordEvenements.h"
#include "records/FicheDocument.h"
#include "records/FicheEvenement.h"
#include "records/NomsAffiches.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <nlohmann/json.hpp>
#include <vector>

namespace dorvane::outil {

namespace {

using Texte = std::optional<std::string>;

struct OptionsEvenement : OptionsBase {
    std::uint32_t evenement = 0;
    std::uint32_t personne = 0;
    std::string role;
    Texte type, date, lieu, libelle, note;
    std::vector<std::string> personnes;  ///< NUMBER:ROLE
    std::vector<std::uint32_t> documents;
};

struct OptionsDocument : OptionsBase {
    std::uint32_t document = 0;
    std::uint32_t personne = 0;
    Texte titre, fichier, type, note;
};

bool EvenementExiste(Atelier& atelier, std::uint32_t numero) {
    storage::Base& base = *atelier.session.base;
    if (base.R_TRI.RangEvt(NoEvenement{numero}) != 0) return true;
    atelier.dialogue.Informer(shell::Msg(message::EvenementInexistant, std::to_string(numero)));
    return false;
}

bool DocumentExiste(Atelier& atelier, std::uint32_t numero) {
    storage::Base& base = *atelier.session.base;
    if (base.R_TRI.RangDocument(NoDocument{numero}) != 0) return true;
    atelier.dialogue.Informer(shell::Msg(message::DocumentInexistant, std::to_string(numero)));
    return false;
}

Json Decrire(shell::Session& session, const records::LigneEvenement& ligne) {
    Json liens = Json::array();
    for (const storage::LienEvenement& lien : session.base->R_EVT.Liens(ligne.evenement))
        liens.push_back({{"personne", lien.individu.valeur}, {"role", TexteVersUtf8(lien.role)}});
    return {{"numero", ligne.evenement.valeur},        {"date", TexteVersUtf8(ligne.date)},
            {"type", TexteVersUtf8(ligne.type)},       {"lieu", TexteVersUtf8(ligne.lieu)},
            {"libelle", TexteVersUtf8(ligne.libelle)}, {"personnes", std::move(liens)}};
}

int ListerEvenements(Atelier& atelier, const OptionsEvenement& o) {
    shell::Session& session = atelier.session;
    std::vector<records::LigneEvenement> lignes;
    if (o.personne != 0) {
        if (!PersonneExiste(atelier, o.personne)) return Refus;
        lignes = records::EvenementsDe(session, NoOrdre{o.personne});
    } else {
        for (std::uint32_t r = 1; r <= session.base->entete.NbTriEvenements; ++r)
            lignes.push_back(records::LigneDe(session, session.base->R_TRI.EvtAuRang(r)));
    }
    Json liste = Json::array();
    for (const records::LigneEvenement& ligne : lignes) {
        if (o.json)
            liste.push_back(Decrire(session, ligne));
        else
            std::cout << ligne.evenement.valeur << '\t' << TexteVersUtf8(ligne.date) << '\t'
                      << TexteVersUtf8(ligne.type) << '\t' << TexteVersUtf8(ligne.lieu) << '\t'
                      << TexteVersUtf8(ligne.libelle) << '\n';
    }
    if (o.json) std::cout << EnTexte(liste) << '\n';
    return Fait;
}

void DeclarerChamps(Verbe& verbe, OptionsEvenement& o) {
    verbe.Ajouter("--type", o.type, "Type : étiquette ou libellé");
    verbe.Ajouter("--date", o.date, "Date entière : 12/3/1820");
    verbe.Ajouter("--lieu", o.lieu);
    verbe.Ajouter("--libelle", o.libelle, "Libellé propre à l'événement");
    verbe.Ajouter("--note", o.note);
    verbe.Ajouter("--personne", o.personnes, "NUMERO:ROLE").UneALaFois();
    verbe.Ajouter("--document", o.documents, "Numéro d'un document").UneALaFois();
}

/// "12:WITN", the role as a tag or in the user's words.
bool LireLien(Atelier& atelier, const std::string& texte, storage::LienEvenement& lien) {
    std::uint32_t numero = 0;
    const char* fin = texte.data() + texte.size();
    const auto lu = std::from_chars(texte.data(), fin, numero);
    if (lu.ec != std::errc{} || lu.ptr == fin || *lu.ptr != ':') {
        atelier.dialogue.Informer(
            shell::Msg(message::ArgumentDeLienMalEcrit, Utf8VersTexte(texte).octets));
        return false;
    }
    if (!PersonneExiste(atelier, numero)) return false;
    const std::string role = LireArgument(atelier, std::string{lu.ptr + 1, fin});
    lien = {NoOrdre{numero}, shell::TagDeLibelle(atelier.session.catalogue, role)};
    return true;
}

bool PoserChamps(Atelier& atelier, const OptionsEvenement& o, records::SaisieEvenement& saisie) {
    Prendre(atelier, o.type, saisie.type);
    Prendre(atelier, o.date, saisie.date);
    Prendre(atelier, o.lieu, saisie.lieu);
    Prendre(atelier, o.libelle, saisie.libelle);
    Prendre(atelier, o.note, saisie.note);
    saisie.type = shell::TagDeLibelle(atelier.session.catalogue, saisie.type);
    for (const std::string& texte : o.personnes) {
        storage::LienEvenement lien;
        if (!LireLien(atelier, texte, lien) ||
            !records::LienPossible(atelier.session, saisie, lien.individu, lien.role))
            return false;
        saisie.liens.push_back(std::move(lien));
    }
    for (const std::uint32_t document : o.documents) {
        if (!DocumentExiste(atelier, document)) return false;
        saisie.documents.emplace_back(document);
    }
    return true;
}

int Sauver(Atelier& atelier, const OptionsEvenement& o, records::SaisieEvenement saisie) {
    if (!PoserChamps(atelier, o, saisie)) return Refus;
    const records::IssueEvenement issue = records::ValiderEvenement(atelier.session, saisie);
    if (issue.etat == records::IssueEvenement::Etat::Refuse) return Refus;
    if (o.evenement == 0) std::cout << saisie.evenement.valeur << '\n';
    return Fait;
}

int CreerEvenement(Atelier& atelier, const OptionsEvenement& o) {
    return Sauver(atelier, o, {});
}

int ModifierEvenement(Atelier& atelier, const OptionsEvenement& o) {
    if (!EvenementExiste(atelier, o.evenement)) return Refus;
    return Sauver(atelier, o, records::ChargerEvenement(atelier.session, NoEvenement{o.evenement}));
}

int EffacerEvenement(Atelier& atelier, const OptionsEvenement& o) {
    if (!EvenementExiste(atelier, o.evenement)) return Refus;
    return records::SupprimerEvenement(atelier.session, NoEvenement{o.evenement}) ? Fait : Refus;
}

int LierEvenement(Atelier& atelier, const OptionsEvenement& o) {
    if (!EvenementExiste(atelier, o.evenement) || !PersonneExiste(atelier, o.personne))
        return Refus;
    const std::string role = LireArgument(atelier, o.role);
    return records::LierPersonne(atelier.session, NoEvenement{o.evenement}, NoOrdre{o.personne},
                                 shell::TagDeLibelle(atelier.session.catalogue, role))
               ? Fait
               : Refus;
}

int DelierEvenement(Atelier& atelier, const OptionsEvenement& o) {
    if (!EvenementExiste(atelier, o.evenement) || !PersonneExiste(atelier, o.personne))
        return Refus;
    const std::string role = LireArgument(atelier, o.role);
    return records::DelierPersonne(atelier.session, NoEvenement{o.evenement}, NoOrdre{o.personne},
                                   shell::TagDeLibelle(atelier.session.catalogue, role))
               ? Fait
               : Refus;
}

int ListerDocuments(Atelier& atelier, const OptionsDocument& o) {
    storage::Base& base = *atelier.session.base;
    Json liste = Json::array();
    for (std::uint32_t r = 1; r <= base.entete.NbTriDocuments; ++r) {
        const NoDocument d = base.R_TRI.DocumentAuRang(r);
        const storage::Document& document = base.R_IMAGE.LireDoc(d);
        const Json ligne{{"numero", d.valeur},
                         {"titre", TexteVersUtf8(document.titre)},
                         {"fichier", TexteVersUtf8(document.fichier)},
                         {"type", TexteVersUtf8(document.type)},
                         {"note", TexteVersUtf8(document.note)}};
        if (o.json)
            liste.push_back(ligne);
        else
            std::cout << d.valeur << '\t' << ligne["titre"].get<std::string>() << '\t'
                      << ligne["fichier"].get<std::string>() << '\t'
                      << ligne["type"].get<std::string>() << '\n';
    }
    if (o.json) std::cout << EnTexte(liste) << '\n';
    return Fait;
}

void DeclarerChamps(Verbe& verbe, OptionsDocument& o) {
    verbe.Ajouter("--titre", o.titre);
    verbe.Ajouter("--fichier", o.fichier, "Fichier, adresse du web ou de courriel");
    verbe.Ajouter("--type", o.type);
    verbe.Ajouter("--note", o.note);
}

/// A file that is there is named relative to the base; anything else stands as it was given.
Texte NomDeFichier(const shell::Session& session, const Texte& donne) {
    std::error_code erreur;
    if (!donne || !std::filesystem::exists(*donne, erreur)) return donne;
    return records::CheminPourDocument(session, std::filesystem::absolute(*donne, erreur)).string();
}

int Sauver(Atelier& atelier, const OptionsDocument& o, records::SaisieDocument saisie) {
    const Texte fichier = NomDeFichier(atelier.session, o.fichier);
    Prendre(atelier, o.titre, saisie.valeurs.titre);
    Prendre(atelier, fichier, saisie.valeurs.fichier);
    Prendre(atelier, o.type, saisie.valeurs.type);
    Prendre(atelier, o.note, saisie.valeurs.note);
    const records::IssueDocument issue = records::ValiderDocument(atelier.session, saisie);
    if (issue.etat == records::IssueDocument::Etat::Refuse) return Refus;
    if (o.document == 0) std::cout << saisie.document.valeur << '\n';
    return Fait;
}

int CreerDocument(Atelier& atelier, const OptionsDocument& o) {
    return Sauver(atelier, o, {});
}

int ModifierDocument(Atelier& atelier, const OptionsDocument& o) {
    if (!DocumentExiste(atelier, o.document)) return Refus;
    return Sauver(atelier, o, records::ChargerDocument(atelier.session, NoDocument{o.document}));
}

int EffacerDocument(Atelier& atelier, const OptionsDocument& o) {
    if (!DocumentExiste(atelier, o.document)) return Refus;
    return records::SupprimerDocument(atelier.session, NoDocument{o.document}) ? Fait : Refus;
}

int Attacher(Atelier& atelier, const OptionsDocument& o) {
    if (!DocumentExiste(atelier, o.document) || !PersonneExiste(atelier, o.personne)) return Refus;
    return records::AttacherDocument(atelier.session, NoOrdre{o.personne}, NoDocument{o.document})
               ? Fait
               : Refus;
}

int Detacher(Atelier& atelier, const OptionsDocument& o) {
    if (!DocumentExiste(atelier, o.document) || !PersonneExiste(atelier, o.personne)) return Refus;
    const auto documents = atelier.session.base->R_LSTIMG.Elements(NoOrdre{o.personne});
    const auto ici = std::ranges::find(documents, NoDocument{o.document});
    if (ici == documents.end()) {
        atelier.dialogue.Informer(
            shell::Msg(message::PersonneSansCeLien, std::to_string(o.personne)));
        return Refus;
    }
    const auto rang = static_cast<std::size_t>(ici - documents.begin()) + 1;
    return records::DetacherDocument(atelier.session, NoOrdre{o.personne}, rang) ? Fait : Refus;
}

int DonnerUsages(Atelier& atelier, const OptionsDocument& o) {
    if (!DocumentExiste(atelier, o.document)) return Refus;
    const records::UsagesDocument usages =
        records::ChercherUsages(atelier.session, NoDocument{o.document});
    Json objet{{"personnes", Json::array()}, {"evenements", Json::array()}};
    for (const NoOrdre n : usages.individus)
        objet["personnes"].push_back(n.valeur);
    for (const NoEvenement e : usages.evenements)
        objet["evenements"].push_back(e.valeur);
    std::cout << EnTexte(objet, -1) << '\n';
    return Fait;
}

void DeclarerEvenement(Verbe racine) {
    using O = OptionsEvenement;
    const Verbe verbe = racine.Groupe("evenement", "Les événements d'une base");
    const auto numero = [](Verbe& v, O& o) {
        v.Ajouter("E", o.evenement, "Numéro de l'événement").Requise();
    };
    const auto lien = [numero](Verbe& v, O& o) {
        numero(v, o);
        v.Ajouter("N", o.personne, "Numéro de la personne").Requise();
        v.Ajouter("ROLE", o.role, "Rôle : étiquette ou libellé");
    };
    Declarer<O>(
        verbe, "lister", "Les événements de la base, ou d'une personne",
        [](Verbe& v, O& o) {
            v.Ajouter("N", o.personne, "Numéro de la personne");
            v.Drapeau("--json", o.json);
        },
        ListerEvenements);
    Declarer<O>(
        verbe, "creer", "Crée un événement et écrit son numéro",
        [](Verbe& v, O& o) { DeclarerChamps(v, o); }, CreerEvenement);
    Declarer<O>(
        verbe, "modifier", "Change les champs donnés d'un événement",
        [numero](Verbe& v, O& o) {
            numero(v, o);
            DeclarerChamps(v, o);
        },
        ModifierEvenement);
    Declarer<O>(verbe, "supprimer", "Supprime un événement", numero, EffacerEvenement);
    Declarer<O>(verbe, "lier", "Ajoute une personne à un événement", lien, LierEvenement);
    Declarer<O>(verbe, "delier", "Retire une personne d'un événement", lien, DelierEvenement);
}

void DeclarerDocument(Verbe racine) {
    using O = OptionsDocument;
    const Verbe verbe = racine.Groupe("document", "Les documents d'une base");
    const auto numero = [](Verbe& v, O& o) {
        v.Ajouter("D", o.document, "Numéro du document").Requise();
    };
    const auto lien = [numero](Verbe& v, O& o) {
        numero(v, o);
        v.Ajouter("N", o.personne, "Numéro de la personne").Requise();
    };
    Declarer<O>(
        verbe, "lister", "Les documents par titre",
        [](Verbe& v, O& o) { v.Drapeau("--json", o.json); }, ListerDocuments);
    Declarer<O>(
        verbe, "creer", "Crée un document et écrit son numéro",
        [](Verbe& v, O& o) { DeclarerChamps(v, o); }, CreerDocument);
    Declarer<O>(
        verbe, "modifier", "Change les champs donnés d'un document",
        [numero](Verbe& v, O& o) {
            numero(v, o);
            DeclarerChamps(v, o);
        },
        ModifierDocument);
    Declarer<O>(verbe, "supprimer", "Supprime un document et ses emplois", numero, EffacerDocument);
    Declarer<O>(verbe, "attacher", "Donne un document à une personne", lien, Attacher);
    Declarer<O>(verbe, "detacher", "Le lui retire", lien, Detacher);
    Declarer<O>(verbe, "usages", "Qui emploie un document", numero, DonnerUsages);
}

}  // namespace

void DeclarerVerbesFaits(Verbe racine) {
    DeclarerEvenement(racine);
    DeclarerDocument(racine);
}

}  // namespace dorvane::outil
