#include "app/DecrirePersonne.h"

#include "storage/Slots.h"
#include "values/Comparaison.h"
#include "values/Dates.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

namespace dorvane::outil {
namespace {

template <class Sorte>
Json NumeroOuNul(Numero<Sorte> n) {
    return n ? Json(n.valeur) : Json(nullptr);
}

Json DateEtLieu(std::string_view jourMois, std::string_view annee, std::string_view lieu) {
    return {{"jourmois", TexteVersUtf8(jourMois)},
            {"annee", TexteVersUtf8(SansBlancs(annee))},
            {"lieu", TexteVersUtf8(lieu)}};
}

/// An event date as "yyyy-mm-dd", null when there is none.
Json DateEvt(std::int32_t serie) {
    const auto date = SerieVersDate(serie);
    if (!date) return nullptr;
    const auto deux = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    std::string annee = std::to_string(date->annee);
    annee.insert(0, 4 - std::min<std::size_t>(4, annee.size()), '0');
    return annee + '-' + deux(date->mois) + '-' + deux(date->jour);
}

Json DecrireSlots(const storage::TableSlots& valeurs, const storage::DefinitionSlots& definition) {
    Json slots = Json::array();
    for (std::size_t i = 0; i < valeurs.size(); ++i) {
        const storage::ValeurSlot& v = valeurs[i];
        if (v == storage::ValeurSlot{}) continue;
        Json slot = {{"etiquette", TexteVersUtf8(definition.libelles[i])}};
        slot.update(DateEtLieu(v.jourMois, v.annee, v.lieu));
        slots.push_back(std::move(slot));
    }
    return slots;
}

Json DecrireUnion(storage::Base& base, NoMariage m) {
    return {{"numero", m.valeur},
            {"epoux", NumeroOuNul(base.R_EPOUX.LireCellule(m))},
            {"epouse", NumeroOuNul(base.R_EPOUSE.LireCellule(m))},
            {"debut", DateEtLieu(storage::DateMariageBrute(base, m), base.R_DEBMAR.LireCellule(m),
                                 storage::LieuMariage(base, m))},
            {"fin", TexteVersUtf8(SansBlancs(base.R_FINMAR.LireCellule(m)))},
            {"rubriques", DecrireSlots(storage::SlotsMariageDe(base, m), base.DefinitionMariage())},
            {"note", TexteVersUtf8(storage::NoteMariage(base, m))},
            {"texte", TexteVersUtf8(base.R_TXTMAR.LireTexte(m))}};
}

Json DecrireEvenement(storage::Base& base, NoEvenement e, std::string_view role) {
    Json personnes = Json::array();
    for (const storage::LienEvenement& lien : base.R_EVT.Liens(e))
        personnes.push_back({{"numero", lien.individu.valeur}, {"role", TexteVersUtf8(lien.role)}});
    Json documents = Json::array();
    for (const NoDocument d : base.R_EVT.Documents(e))
        documents.push_back(d.valeur);
    return {{"numero", e.valeur},
            {"role", TexteVersUtf8(role)},
            {"type", TexteVersUtf8(base.R_EVT.TypeEvt(e))},
            {"date", DateEvt(base.R_EVT.CleDateEvt(e))},
            {"lieu", TexteVersUtf8(base.R_EVT.LieuEvt(e))},
            {"libelle", TexteVersUtf8(base.R_EVT.LibelleEvt(e))},
            {"note", TexteVersUtf8(base.R_EVT.NoteEvt(e))},
            {"personnes", std::move(personnes)},
            {"documents", std::move(documents)}};
}

Json DecrireDocument(storage::Base& base, NoDocument d) {
    const storage::Document& document = base.R_IMAGE.LireDoc(d);
    return {{"numero", d.valeur},
            {"titre", TexteVersUtf8(document.titre)},
            {"fichier", TexteVersUtf8(document.fichier)},
            {"type", TexteVersUtf8(document.type)},
            {"note", TexteVersUtf8(document.note)}};
}

Json DecrireFlags(const storage::Slots& slots) {
    Json liste = Json::array();
    for (std::size_t i = 0; i < storage::NbSlots(slots); ++i)
        liste.push_back({{"symbole", TexteVersUtf8(std::string(1, slots[i].symbole))},
                         {"date", slots[i].drapeau == '1'}});
    return liste;
}

}  // namespace

std::string EnTexte(const Json& objet, int retrait) {
    return objet.dump(retrait, ' ', false, Json::error_handler_t::replace);
}

Json DecrireBase(storage::Base& base) {
    const storage::EnTete& e = base.entete;
    Json motsCles = Json::array();
    for (std::uint32_t k = 1; k <= base.motsCles.Nombre(); ++k) {
        const storage::MotCle type = base.motsCles.LibelleType(NoMotCle{k});
        motsCles.push_back({{"symbole", TexteVersUtf8(std::string(1, type.symbole))},
                            {"etiquette", TexteVersUtf8(type.libelle)},
                            {"indexe", type.indexe},
                            {"mots", base.R_INDEX.ListeMots(NoMotCle{k}).size()}});
    }
    return {{"version", TexteVersUtf8(SansBlancs(e.marque))},
            {"octets", base.volume.FinFichier()},
            {"individus", e.NbTriIndividus},
            {"dernierIndividu", e.DernierIndividu},
            {"unions", e.DernierMariage},
            {"evenements", e.NbTriEvenements},
            {"documents", e.NbTriDocuments},
            {"typeTri", TexteVersUtf8(std::string(1, static_cast<char>(e.TypeTri)))},
            {"entreesIndex", e.NbIndex},
            {"prenomUnique", e.OptPrenomUnique},
            {"particules", e.OptParticules},
            {"libellesNeutres", e.LibellesNeutres},
            {"documentBase", NumeroOuNul(e.DocBase)},
            {"rubriquesIndividu", DecrireFlags(e.SlotsIndividu)},
            {"rubriquesUnion", DecrireFlags(e.SlotsMariage)},
            {"motsCles", std::move(motsCles)}};
}

Json DecrireLigne(storage::Base& base, NoOrdre n) {
    const storage::LigneNom nom = base.R_NOM.LireNom(n);
    return {{"numero", n.valeur},
            {"nom", TexteVersUtf8(nom.nom)},
            {"prenom", TexteVersUtf8(nom.prenom)},
            {"autres", TexteVersUtf8(nom.autrePrenom)},
            {"sexe", TexteVersUtf8(std::string(1, static_cast<char>(base.R_SEXE.LireCellule(n))))},
            {"naissance", DateEtLieu(nom.jourMoisNaissance, base.R_NAISS.LireCellule(n),
                                     storage::LieuNaissance(base, n))},
            {"deces", DateEtLieu(nom.jourMoisDeces, base.R_DECES.LireCellule(n),
                                 storage::LieuDeces(base, n))},
            {"pere", NumeroOuNul(base.R_PERE.LireCellule(n))},
            {"mere", NumeroOuNul(base.R_MERE.LireCellule(n))}};
}

Json DecrirePersonne(storage::Base& base, NoOrdre n) {
    Json personne = DecrireLigne(base, n);
    const std::string texte{base.R_TEXTE.LireTexte(n)};
    const std::string_view premiere =
        std::string_view{texte}.substr(0, std::min(texte.find('\r'), texte.size()));
    personne["motsCles"] = TexteVersUtf8(premiere);
    personne["rubriques"] = DecrireSlots(storage::SlotsDe(base, n), base.DefinitionIndividu());
    personne["note"] = TexteVersUtf8(storage::NoteDe(base, n));
    personne["texte"] = TexteVersUtf8(texte);

    Json enfants = Json::array();
    for (const NoOrdre enfant : base.R_ENFANT.Elements(n))
        enfants.push_back(enfant.valeur);
    personne["enfants"] = std::move(enfants);
    Json unions = Json::array();
    for (const NoMariage m : base.R_MARIAG.Elements(n))
        unions.push_back(DecrireUnion(base, m));
    personne["unions"] = std::move(unions);
    Json liens = Json::array();
    for (std::size_t k = 1; k <= base.R_LIEN.NbElements(n); ++k)
        liens.push_back({{"individu", base.R_LIEN.ElementListe(n, k).valeur},
                         {"libelle", TexteVersUtf8(base.R_LIEN.TexteElement(n, k))}});
    personne["liens"] = std::move(liens);
    Json evenements = Json::array();
    for (std::size_t k = 1; k <= base.R_LSTEVT.NbElements(n); ++k)
        evenements.push_back(DecrireEvenement(base, base.R_LSTEVT.ElementListe(n, k),
                                              base.R_LSTEVT.TexteElement(n, k)));
    personne["evenements"] = std::move(evenements);
    Json documents = Json::array();
    for (const NoDocument d : base.R_LSTIMG.Elements(n))
        documents.push_back(DecrireDocument(base, d));
    personne["documents"] = std::move(documents);
    return personne;
}

}  // namespace dorvane::outil
