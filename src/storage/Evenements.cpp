// Head: five Num4 (date key + 1000000, note, persons, documents, description).
// Description: place, byte 0, label, byte 0, kind, "#". Lists end with two bytes 0.
#include "storage/Evenements.h"

#include "storage/Listes.h"
#include "storage/Textes.h"
#include "values/Octets.h"

#include <algorithm>
#include <limits>

namespace dorvane::storage {
namespace {

constexpr std::size_t TailleTete = 20;
constexpr std::size_t MaxEcrit = 32000;        // a longer description would read as damaged
constexpr std::size_t MaxDescription = 32100;  // where readers by pieces of 100 give up
constexpr std::int64_t Decalage = 1000000;     // keeps the stored keys positive
constexpr std::size_t TailleLien = 6;
constexpr std::size_t TailleDocument = 2;
constexpr std::size_t MorceauListe = 200;

/// A byte 0 would end the field.
std::string SansZero(std::string_view champ) {
    std::string propre = SansDiese(champ);
    std::replace(propre.begin(), propre.end(), '\0', ' ');
    return propre;
}

DescriptionEvt Decouper(std::string_view texte) {
    DescriptionEvt description;
    for (std::string* champ : {&description.lieu, &description.libelle, &description.type}) {
        const std::size_t fin = texte.find('\0');
        *champ = texte.substr(0, fin);
        if (fin == std::string_view::npos) break;
        texte.remove_prefix(fin + 1);
    }
    return description;
}

}  // namespace

const Evenements::Tete& Evenements::LireTete(NoEvenement e) {
    if (e && e == noTete_) return tete_;
    std::string octets(TailleTete, '\0');
    volume_.Lire(LireCellule(e), octets);
    const auto champ = [&](std::size_t i) {
        return Chaine4VersNum(std::string_view{octets}.substr(i * 4, 4));
    };
    tete_ = {champ(0), Position{champ(1)}, Position{champ(2)}, Position{champ(3)},
             Position{champ(4)}};
    noTete_ = e;
    return tete_;
}

std::int32_t Evenements::CleDateEvt(NoEvenement e) {
    const std::int64_t cle = std::int64_t{LireTete(e).cle} - Decalage;
    return static_cast<std::int32_t>(
        std::min<std::int64_t>(cle, std::numeric_limits<std::int32_t>::max()));
}

const DescriptionEvt& Evenements::Description(NoEvenement e) {
    if (e && e == noDescription_) return description_;
    description_ = {};
    noDescription_ = e;
    const Position position = LireTete(e).description;
    if (!position) return description_;
    bool fini = false;
    const std::string texte = volume_.LireTexte(position, MaxDescription, &fini);
    if (fini)
        description_ = Decouper(texte);
    else
        marques_.Signaler(Incident::EvenementAbime, e.valeur);
    return description_;
}

std::string Evenements::NoteEvt(NoEvenement e) {
    return volume_.LireTexte(LireTete(e).note, MaxTexte);
}

std::string Evenements::LireListe(Position debut, std::size_t taille) {
    std::string liste;
    if (!debut) return liste;
    // The end pair counts at the start of an entry only: a position may hold two bytes 0.
    std::size_t fin = 0;
    while (true) {
        if (fin + taille > liste.size()) {
            std::string morceau(MorceauListe, '\0');
            const std::size_t lus = volume_.Lire(
                Position{debut.valeur + static_cast<std::uint32_t>(liste.size())}, morceau);
            liste += morceau;
            if (lus == 0) break;
        }
        if (Chaine2VersNum(std::string_view{liste}.substr(fin, 2)) == 0) break;
        if (fin / taille >= MaxNumeros) break;
        fin += taille;
    }
    liste.resize(std::min(fin, liste.size() / taille * taille));
    return liste;
}

std::vector<LienEvenement> Evenements::Liens(NoEvenement e) {
    const std::string liste = LireListe(LireTete(e).liens, TailleLien);
    std::vector<LienEvenement> liens;
    for (std::size_t i = 0; i < liste.size(); i += TailleLien) {
        const std::string_view entree = std::string_view{liste}.substr(i, TailleLien);
        liens.push_back(
            {NoOrdre{Chaine2VersNum(entree)},
             volume_.LireTexte(Position{Chaine4VersNum(entree.substr(2))}, MaxTexteElement + 1)});
    }
    return liens;
}

std::vector<NoDocument> Evenements::Documents(NoEvenement e) {
    const std::string liste = LireListe(LireTete(e).documents, TailleDocument);
    std::vector<NoDocument> documents;
    for (std::size_t i = 0; i < liste.size(); i += TailleDocument)
        documents.emplace_back(Chaine2VersNum(std::string_view{liste}.substr(i, TailleDocument)));
    return documents;
}

Position Evenements::AjouterListe(std::string_view entrees) {
    return entrees.empty() ? Position{} : volume_.Ajouter(entrees, {"\0\0", 2});
}

Position Evenements::AjouterLiens(const std::vector<LienEvenement>& liens) {
    std::string entrees;
    for (const LienEvenement& lien : liens) {
        const std::string role = SansDiese(lien.role);
        const Position texte =
            volume_.Ajouter(std::string_view{role}.substr(0, MaxTexteElement), "#");
        entrees += NumVersChaine2(lien.individu.valeur) + NumVersChaine4(texte.valeur);
    }
    return AjouterListe(entrees);
}

Position Evenements::AjouterDescription(const DescriptionEvt& description) {
    if (description == DescriptionEvt{}) return {};
    std::string texte = SansZero(description.lieu);
    texte += '\0' + SansZero(description.libelle);
    texte += '\0' + SansZero(description.type);
    return volume_.Ajouter(std::string_view{texte}.substr(0, MaxEcrit), "#");
}

void Evenements::EcrireEvt(NoEvenement e, const PartiesEvt& parties) {
    if (!e) return;
    Tete tete = LireTete(e);
    if (parties.cleDate) {
        const std::int64_t cle = std::max<std::int64_t>(0, *parties.cleDate + Decalage);
        tete.cle = static_cast<std::uint32_t>(cle);
    }
    if (parties.note) {
        const std::string note = SansDiese(*parties.note).substr(0, MaxTexte);
        tete.note = note.empty() ? Position{} : volume_.Ajouter(note, "#");
    }
    if (parties.liens) tete.liens = AjouterLiens(*parties.liens);
    if (parties.documents) {
        std::string entrees;
        for (const NoDocument d : *parties.documents)
            entrees += NumVersChaine2(d.valeur);
        tete.documents = AjouterListe(entrees);
    }
    if (parties.description) tete.description = AjouterDescription(*parties.description);
    std::string octets = NumVersChaine4(tete.cle);
    for (const Position position : {tete.note, tete.liens, tete.documents, tete.description})
        octets += NumVersChaine4(position.valeur);
    EcrireCellule(e, volume_.Ajouter(octets));
    Oublier();
}

void Evenements::EffacerEvt(NoEvenement e) {
    EcrireCellule(e, {});
    Oublier();
}

void Evenements::Oublier() {
    noTete_ = {};
    noDescription_ = {};
}

void Evenements::InitColonne() {
    Colonne::InitColonne();
    Oublier();
}

}  // namespace dorvane::storage
