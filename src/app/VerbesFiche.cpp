#include "app/CommandeBase.h"
#include "app/Verbes.h"
#include "messages/Outil.h"
#include "records/AccordEvenements.h"
#include "records/Famille.h"
#include "records/Fiche.h"
#include "records/Filiation.h"
#include "records/Individus.h"
#include "records/Liens.h"
#include "records/Unions.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <vector>

namespace dorvane::outil {

namespace {

using Texte = std::optional<std::string>;

/// The fields of a sheet; those that are not given stay as they are.
struct OptionsFiche : OptionsBase {
    std::uint32_t numero = 0;
    Texte nom, prenom, autres, sexe, note;
    Texte naissance, lieuNaissance, deces, lieuDeces;
    std::vector<std::string> lignes;  ///< label, date, place, three by three
    std::uint32_t mariage = 0;
    Texte dateUnion, finUnion, lieuUnion, noteUnion;
};

void DeclarerChamps(Verbe& verbe, OptionsFiche& o) {
    verbe.Ajouter("--nom", o.nom, "Nom");
    verbe.Ajouter("--prenom", o.prenom, "Prénoms");
    verbe.Ajouter("--autres", o.autres, "Autre prénom");
    verbe.Ajouter("--sexe", o.sexe, "H, F ou I").Parmi({"H", "F", "I"});
    verbe.Ajouter("--naissance", o.naissance, "Date : 12/3/1820, vers 1820, 1820");
    verbe.Ajouter("--lieu-naissance", o.lieuNaissance);
    verbe.Ajouter("--deces", o.deces);
    verbe.Ajouter("--lieu-deces", o.lieuDeces);
    verbe.Ajouter("--ligne", o.lignes, "Ligne d'un mot-clé : LIBELLE DATE LIEU").ParGroupes(3);
    verbe.Ajouter("--note", o.note, "Note libre");
}

void PoserDate(Atelier& atelier, const Texte& option, std::string& jourMois, std::string& annee) {
    if (!option) return;
    const DateTapee coupee = CouperDateTapee(LireArgument(atelier, *option));
    jourMois = coupee.jourMois;
    annee = coupee.annee;
}

/// The row of a keyword of the sheet by its label or tag; told when the sheet has no such row.
storage::ValeurSlot* ChercherLigne(Atelier& atelier, records::RangeesSlots& rangees,
                                   const std::string& libelle) {
    const storage::DefinitionSlots definition = atelier.session.base->DefinitionIndividu();
    const std::string tag = shell::TagDeLibelle(atelier.session.catalogue, libelle);
    const std::size_t nombre = storage::NbSlots(definition.slots);
    for (std::size_t i = 0; i < nombre; ++i)
        if (definition.libelles[i] == tag || definition.libelles[i] == libelle) return &rangees[i];
    atelier.dialogue.Informer(shell::Msg(message::FicheSansCetteLigne, libelle));
    return nullptr;
}

bool PoserLignes(Atelier& atelier, const std::vector<std::string>& lignes,
                 records::RangeesSlots& rangees) {
    for (std::size_t i = 0; i + 2 < lignes.size(); i += 3) {
        storage::ValeurSlot* rangee =
            ChercherLigne(atelier, rangees, LireArgument(atelier, lignes[i]));
        if (rangee == nullptr) return false;
        PoserDate(atelier, lignes[i + 1], rangee->jourMois, rangee->annee);
        Prendre(atelier, lignes[i + 2], rangee->lieu);
    }
    return true;
}

bool PoserUnion(Atelier& atelier, const OptionsFiche& o, records::SaisieFiche& saisie) {
    if (o.mariage == 0) return true;
    const std::vector<NoMariage> unions =
        atelier.session.base->R_MARIAG.Elements(NoOrdre{o.numero});
    if (std::ranges::find(unions, NoMariage{o.mariage}) == unions.end()) {
        atelier.dialogue.Informer(
            shell::Msg(message::UnionDUneAutrePersonne, std::to_string(o.mariage)));
        return false;
    }
    records::SaisieUnion mariage = records::ChargerUnion(atelier.session, NoMariage{o.mariage});
    PoserDate(atelier, o.dateUnion, mariage.jourMois, mariage.debut);
    Prendre(atelier, o.finUnion, mariage.fin);
    Prendre(atelier, o.lieuUnion, mariage.lieu);
    Prendre(atelier, o.noteUnion, mariage.note);
    saisie.mariage = std::move(mariage);
    return true;
}

bool PoserChamps(Atelier& atelier, const OptionsFiche& o, records::SaisieFiche& saisie) {
    if (o.sexe) saisie.sexe = static_cast<Sexe>(o.sexe->front());
    Prendre(atelier, o.nom, saisie.nom);
    Prendre(atelier, o.prenom, saisie.prenom);
    Prendre(atelier, o.autres, saisie.autrePrenom);
    PoserDate(atelier, o.naissance, saisie.jourMoisNaissance, saisie.anneeNaissance);
    Prendre(atelier, o.lieuNaissance, saisie.lieuNaissance);
    PoserDate(atelier, o.deces, saisie.jourMoisDeces, saisie.anneeDeces);
    Prendre(atelier, o.lieuDeces, saisie.lieuDeces);
    Prendre(atelier, o.note, saisie.note);
    return PoserLignes(atelier, o.lignes, saisie.slots) && PoserUnion(atelier, o, saisie);
}

int CreerPersonne(Atelier& atelier, const OptionsFiche& o) {
    records::SaisieFiche saisie;
    if (!PoserChamps(atelier, o, saisie)) return Refus;
    const records::IssueFiche issue = records::CreerIndividu(atelier.session, saisie);
    if (issue.EstRefusee()) return Refus;
    std::cout << issue.individu.valeur << '\n';
    return Fait;
}

int ModifierPersonne(Atelier& atelier, const OptionsFiche& o) {
    if (!PersonneExiste(atelier, o.numero)) return Refus;
    records::SaisieFiche saisie = records::ChargerFiche(atelier.session, NoOrdre{o.numero});
    if (!PoserChamps(atelier, o, saisie)) return Refus;
    return records::ValiderFiche(atelier.session, saisie).EstRefusee() ? Refus : Fait;
}

int SupprimerPersonne(Atelier& atelier, const OptionsFiche& o) {
    if (!PersonneExiste(atelier, o.numero)) return Refus;
    return records::SupprimerIndividu(atelier.session, NoOrdre{o.numero}) ? Fait : Refus;
}

struct OptionsLien : OptionsBase {
    std::uint32_t numero = 0;
    std::string parente;
    std::uint32_t autre = 0;
    std::string libelle;
    std::uint32_t mariage = 0;
};

int Lier(Atelier& atelier, const OptionsLien& o) {
    if (!PersonneExiste(atelier, o.numero) || !PersonneExiste(atelier, o.autre)) return Refus;
    shell::Session& session = atelier.session;
    const NoOrdre ici{o.numero};
    const NoOrdre autre{o.autre};
    if (o.parente == "pere" || o.parente == "mere")
        return records::DonnerParent(session, ici, o.parente == "pere" ? Cote::Pere : Cote::Mere,
                                     autre)
                   ? Fait
                   : Refus;
    if (o.parente == "enfant") return records::AttacherEnfant(session, ici, autre) ? Fait : Refus;
    if (o.parente == "conjoint") {
        if (!records::PeutAvoirConjoint(session, ici, records::Provenance::Cherche)) return Refus;
        const NoMariage mariage = records::CreerUnion(session, ici, autre);
        if (!mariage) return Refus;
        std::cout << mariage.valeur << '\n';
        return Fait;
    }
    return records::AjouterLien(session, ici, autre, LireArgument(atelier, o.libelle)) ? Fait
                                                                                       : Refus;
}

/// The union of two persons; the one that is named when there are several.
NoMariage UnionDe(storage::Base& base, const OptionsLien& o) {
    for (const NoMariage m : base.R_MARIAG.Elements(NoOrdre{o.numero})) {
        if (o.mariage != 0 && m.valeur != o.mariage) continue;
        if (base.R_EPOUX.LireCellule(m).valeur == o.autre ||
            base.R_EPOUSE.LireCellule(m).valeur == o.autre)
            return m;
    }
    return {};
}

std::size_t RangDuLien(shell::Session& session, const OptionsLien& o) {
    const std::string libelle = Utf8VersTexte(o.libelle).octets;
    for (const records::LienAffiche& lien : records::ListerLiens(session, NoOrdre{o.numero}))
        if (lien.autre.valeur == o.autre && (o.libelle.empty() || lien.libelle == libelle))
            return lien.rang;
    return 0;
}

int Delier(Atelier& atelier, const OptionsLien& o) {
    if (!PersonneExiste(atelier, o.numero)) return Refus;
    shell::Session& session = atelier.session;
    const NoOrdre ici{o.numero};
    bool fait = false;
    bool trouve = true;
    if (o.parente == "pere" || o.parente == "mere") {
        const Cote cote = o.parente == "pere" ? Cote::Pere : Cote::Mere;
        trouve = static_cast<bool>(records::LireParent(*session.base, ici, cote));
        fait = trouve && records::RetirerParent(session, ici, cote);
    } else if (o.parente == "enfant") {
        const auto enfants = session.base->R_ENFANT.Elements(ici);
        trouve = std::ranges::find(enfants, NoOrdre{o.autre}) != enfants.end();
        fait = trouve && records::RetirerEnfant(session, ici, NoOrdre{o.autre});
    } else if (o.parente == "conjoint") {
        const NoMariage mariage = UnionDe(*session.base, o);
        trouve = static_cast<bool>(mariage);
        fait = trouve && records::RetirerUnion(session, mariage);
    } else {
        const std::size_t rang = RangDuLien(session, o);
        trouve = rang != 0;
        fait = trouve && records::RetirerLien(session, ici, rang);
    }
    if (!trouve)
        atelier.dialogue.Informer(
            shell::Msg(message::PersonneSansCeLien, std::to_string(o.numero)));
    return fait ? Fait : Refus;
}

void DeclarerNumero(Verbe& verbe, std::uint32_t& numero) {
    verbe.Ajouter("N", numero, "Numéro de la personne").Requise();
}

}  // namespace

void DeclarerVerbesFiche(Verbe racine) {
    Declarer<OptionsFiche>(racine, "creer", "Crée une personne et écrit son numéro", DeclarerChamps,
                           CreerPersonne);
    Declarer<OptionsFiche>(
        racine, "modifier", "Change les champs donnés d'une personne",
        [](Verbe& verbe, OptionsFiche& o) {
            DeclarerNumero(verbe, o.numero);
            DeclarerChamps(verbe, o);
            const Option mariage =
                verbe.Ajouter("--union", o.mariage, "Numéro de l'union à changer");
            verbe.Ajouter("--date-union", o.dateUnion).Exige(mariage);
            verbe.Ajouter("--fin-union", o.finUnion, "Année de fin").Exige(mariage);
            verbe.Ajouter("--lieu-union", o.lieuUnion).Exige(mariage);
            verbe.Ajouter("--note-union", o.noteUnion).Exige(mariage);
        },
        ModifierPersonne);
    Declarer<OptionsFiche>(
        racine, "supprimer", "Supprime une personne sans famille ni liens",
        [](Verbe& verbe, OptionsFiche& o) { DeclarerNumero(verbe, o.numero); }, SupprimerPersonne);
    const auto parente = [](Verbe& verbe, OptionsLien& o) {
        DeclarerNumero(verbe, o.numero);
        verbe.Ajouter("PARENTE", o.parente, "pere, mere, enfant, conjoint ou lien")
            .Requise()
            .Parmi({"pere", "mere", "enfant", "conjoint", "lien"});
    };
    Declarer<OptionsLien>(
        racine, "lier", "Donne à une personne un père, une mère, un enfant, un conjoint, un lien",
        [parente](Verbe& verbe, OptionsLien& o) {
            parente(verbe, o);
            verbe.Ajouter("AUTRE", o.autre, "Numéro de l'autre personne").Requise();
            verbe.Ajouter("--libelle", o.libelle, "Libellé d'un lien");
        },
        Lier);
    Declarer<OptionsLien>(
        racine, "delier", "Retire un parent, un enfant, une union, un lien",
        [parente](Verbe& verbe, OptionsLien& o) {
            parente(verbe, o);
            verbe.Ajouter("AUTRE", o.autre, "Numéro de l'autre personne, sauf pour un parent");
            verbe.Ajouter("--libelle", o.libelle, "Libellé du lien");
            verbe.Ajouter("--union", o.mariage, "Numéro de l'union, s'il y en a plusieurs");
        },
        Delier);
}

}  // namespace dorvane::outil
