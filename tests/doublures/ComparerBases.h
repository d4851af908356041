#pragma once

#include "storage/Base.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace dorvane::doublures {

/// Says in what two bases differ, store by store, as far as a user can tell: dead space, the
/// numbers of unions and the entries of deleted persons do not count. Persons, events and documents
/// have the same numbers in both, or those of the second are `decalage` higher.
class ComparerBases {
public:
    struct Options {
        std::uint32_t individus = 0;   ///< persons: number in the second less that in the first
        std::uint32_t documents = 0;   ///< the same for documents
        std::uint32_t evenements = 0;  ///< and for events
        bool partiel =
            false;  ///< the second holds more: what is of the whole base is not looked at
    };

    ComparerBases(storage::Base& a, storage::Base& b, Options options)
        : a_{a}, b_{b}, options_{options}, vivantsA_{Table(a)}, vivantsB_{Table(b)} {
        Apparier();
        for (NoOrdre n{1}; n.valeur <= a.entete.DernierIndividu; ++n.valeur)
            if (Vivant(a_, n)) VoirIndividu(n);
        for (NoEvenement e{1}; e.valeur <= a.entete.DernierEvenement; ++e.valeur)
            if (a_.R_TRI.RangEvt(e) != 0) VoirEvenement(e);
        for (NoDocument d{1}; d.valeur <= a.entete.DernierDocument; ++d.valeur)
            if (a_.R_TRI.RangDocument(d) != 0) VoirDocument(d);
        if (!options.partiel) VoirBase();
    }
    ComparerBases(storage::Base& a, storage::Base& b) : ComparerBases{a, b, Options{}} {}

    /// One line for each difference; empty when there is none.
    [[nodiscard]] const std::string& Ecarts() const { return ecarts_; }

private:
    void Dire(std::string_view quoi, std::uint32_t numero, const std::string& a = {},
              const std::string& b = {}) {
        if (ecarts_.size() > 4000) return;
        ecarts_.append(quoi).append(" ").append(std::to_string(numero));
        if (!a.empty() || !b.empty())
            ecarts_.append(": <").append(a).append("> <").append(b).append(">");
        ecarts_.push_back('\n');
    }
    template <class Valeur>
    void Voir(std::string_view quoi, std::uint32_t numero, const Valeur& a, const Valeur& b) {
        if (a == b) return;
        if constexpr (std::is_convertible_v<Valeur, std::string_view>)
            Dire(quoi, numero, std::string{a}, std::string{b});
        else if constexpr (std::is_same_v<Valeur, std::vector<std::string>>)
            Dire(quoi, numero, Joindre(a), Joindre(b));
        else
            Dire(quoi, numero);
    }
    static std::string Joindre(const std::vector<std::string>& textes) {
        std::string tout;
        for (const std::string& texte : textes)
            tout.append(texte).append(", ");
        return tout;
    }
    [[nodiscard]] bool Vivant(const storage::Base& base, NoOrdre n) const {
        return n && (&base == &a_ ? vivantsA_ : vivantsB_).count(n.valeur) != 0;
    }
    static std::set<std::uint32_t> Table(const storage::Base& base) {
        const std::vector<std::uint16_t>& numeros = base.R_TRI.individus.Numeros();
        return {numeros.begin(), numeros.end()};
    }
    [[nodiscard]] NoOrdre Autre(NoOrdre n) const {
        return NoOrdre{n ? n.valeur + options_.individus : 0};
    }

    /// Unions have other numbers: the k-th with a husband in the one is the k-th in the other.
    void Apparier() {
        std::vector<std::uint32_t> deB;
        for (NoMariage m{1}; m.valeur <= b_.entete.DernierMariage; ++m.valeur) {
            const NoOrdre epoux = b_.R_EPOUX.LireCellule(m);
            if (epoux && (!options_.partiel || epoux.valeur > options_.individus))
                deB.push_back(m.valeur);
        }
        std::size_t k = 0;
        for (NoMariage m{1}; m.valeur <= a_.entete.DernierMariage; ++m.valeur) {
            if (!Vivant(a_, a_.R_EPOUX.LireCellule(m))) continue;
            if (k == deB.size()) {
                Dire("union is missing", m.valeur);
                continue;
            }
            unions_[m.valeur] = deB[k++];
            VoirUnion(m, NoMariage{unions_[m.valeur]});
        }
        if (k < deB.size() && !options_.partiel) Dire("union too many", deB[k]);
    }
    void VoirUnion(NoMariage a, NoMariage b) {
        Voir("husband", a.valeur, Autre(a_.R_EPOUX.LireCellule(a)), b_.R_EPOUX.LireCellule(b));
        Voir("wife", a.valeur, Autre(a_.R_EPOUSE.LireCellule(a)), b_.R_EPOUSE.LireCellule(b));
        Voir("beginning", a.valeur, a_.R_DEBMAR.LireCellule(a), b_.R_DEBMAR.LireCellule(b));
        Voir("end", a.valeur, a_.R_FINMAR.LireCellule(a), b_.R_FINMAR.LireCellule(b));
        Voir("text of union", a.valeur, std::string{a_.R_TXTMAR.LireTexte(a)},
             std::string{b_.R_TXTMAR.LireTexte(b)});
    }

    void VoirIndividu(NoOrdre a) {
        const NoOrdre b = Autre(a);
        if (!Vivant(b_, b)) {
            Dire("person is missing", a.valeur);
            return;
        }
        VoirNom(a, b);
        // A person of no known sex has a blank until the sheet is saved.
        const auto sexe = [](Sexe s) { return static_cast<char>(SexeLu(s)); };
        Voir("sex", a.valeur, sexe(a_.R_SEXE.LireCellule(a)), sexe(b_.R_SEXE.LireCellule(b)));
        Voir("birth year", a.valeur, a_.R_NAISS.LireCellule(a), b_.R_NAISS.LireCellule(b));
        Voir("death year", a.valeur, a_.R_DECES.LireCellule(a), b_.R_DECES.LireCellule(b));
        Voir("father", a.valeur, Parent(a_.R_PERE.LireCellule(a)), b_.R_PERE.LireCellule(b));
        Voir("mother", a.valeur, Parent(a_.R_MERE.LireCellule(a)), b_.R_MERE.LireCellule(b));
        Voir("text", a.valeur, std::string{a_.R_TEXTE.LireTexte(a)},
             std::string{b_.R_TEXTE.LireTexte(b)});
        VoirListes(a, b);
    }
    [[nodiscard]] NoOrdre Parent(NoOrdre n) { return Vivant(a_, n) ? Autre(n) : NoOrdre{}; }
    void VoirNom(NoOrdre a, NoOrdre b) {
        const std::string brutA{a_.R_NOM.LireTexte(a)};
        const std::string brutB{b_.R_NOM.LireTexte(b)};
        const storage::LigneNom nomA = storage::DecouperNom(brutA);
        const storage::LigneNom nomB = storage::DecouperNom(brutB);
        Voir("surname", a.valeur, nomA.nom, nomB.nom);
        Voir("first name", a.valeur, nomA.prenom, nomB.prenom);
        Voir("other name", a.valeur, nomA.autrePrenom, nomB.autrePrenom);
        Voir("birth day", a.valeur, nomA.jourMoisNaissance, nomB.jourMoisNaissance);
        Voir("death day", a.valeur, nomA.jourMoisDeces, nomB.jourMoisDeces);
    }
    void VoirListes(NoOrdre a, NoOrdre b) {
        std::vector<NoMariage> unions;
        for (const NoMariage m : a_.R_MARIAG.Elements(a))
            if (const auto ou = unions_.find(m.valeur); ou != unions_.end())
                unions.emplace_back(ou->second);
        Voir("unions", a.valeur, unions, b_.R_MARIAG.Elements(b));

        // Of children born in one year the format keeps no order.
        std::multiset<std::uint32_t> enfantsA;
        std::multiset<std::uint32_t> enfantsB;
        for (const NoOrdre n : a_.R_ENFANT.Elements(a))
            if (Vivant(a_, n)) enfantsA.insert(Autre(n).valeur);
        std::string avant;
        for (const NoOrdre n : b_.R_ENFANT.Elements(b)) {
            enfantsB.insert(n.valeur);
            const std::string annee = b_.R_NAISS.AnneeTri(n);
            if (annee < avant) Dire("children out of order", b.valeur);
            avant = annee;
        }
        Voir("children", a.valeur, enfantsA, enfantsB);

        std::vector<NoDocument> documents;
        for (const NoDocument d : a_.R_LSTIMG.Elements(a))
            if (a_.R_TRI.RangDocument(d) != 0)
                documents.emplace_back(d.valeur + options_.documents);
        Voir("documents", a.valeur, documents, b_.R_LSTIMG.Elements(b));
        Voir("links", a.valeur, Liens(a_, a, options_.individus), Liens(b_, b, 0));
        Voir("events", a.valeur, Evenements(a_, a, options_.evenements), Evenements(b_, b, 0));
    }
    std::vector<std::string> Liens(storage::Base& base, NoOrdre n, std::uint32_t decalage) {
        std::vector<std::string> liens;
        for (std::size_t k = 1; k <= base.R_LIEN.NbElements(n); ++k)
            if (const NoOrdre autre = base.R_LIEN.ElementListe(n, k); Vivant(base, autre))
                liens.push_back(std::to_string(autre.valeur + decalage) + ' ' +
                                base.R_LIEN.TexteElement(n, k));
        return liens;
    }
    static std::vector<std::string> Evenements(storage::Base& base, NoOrdre n,
                                               std::uint32_t decalage) {
        std::vector<std::string> evenements;
        for (std::size_t k = 1; k <= base.R_LSTEVT.NbElements(n); ++k)
            evenements.push_back(
                std::to_string(base.R_LSTEVT.ElementListe(n, k).valeur + decalage) + ' ' +
                base.R_LSTEVT.TexteElement(n, k));
        return evenements;
    }

    void VoirEvenement(NoEvenement a) {
        const NoEvenement b{a.valeur + options_.evenements};
        if (b_.R_TRI.RangEvt(b) == 0) {
            Dire("event is missing", a.valeur);
            return;
        }
        Voir("date of event", a.valeur, a_.R_EVT.CleDateEvt(a), b_.R_EVT.CleDateEvt(b));
        Voir("place of event", a.valeur, a_.R_EVT.LieuEvt(a), b_.R_EVT.LieuEvt(b));
        Voir("title of event", a.valeur, a_.R_EVT.LibelleEvt(a), b_.R_EVT.LibelleEvt(b));
        Voir("kind of event", a.valeur, a_.R_EVT.TypeEvt(a), b_.R_EVT.TypeEvt(b));
        Voir("note of event", a.valeur, a_.R_EVT.NoteEvt(a), b_.R_EVT.NoteEvt(b));
        std::vector<NoDocument> documents;
        for (const NoDocument d : a_.R_EVT.Documents(a))
            if (a_.R_TRI.RangDocument(d) != 0)
                documents.emplace_back(d.valeur + options_.documents);
        Voir("documents of event", a.valeur, documents, b_.R_EVT.Documents(b));
        Voir("persons of event", a.valeur, Personnes(a_, a, options_.individus),
             Personnes(b_, b, 0));
    }
    /// The first 200 persons in their order, the roles of one person in any order: an event names
    /// no more of them.
    std::pair<std::vector<std::uint32_t>, std::multiset<std::string>> Personnes(
        storage::Base& base, NoEvenement e, std::uint32_t decalage) {
        std::pair<std::vector<std::uint32_t>, std::multiset<std::string>> personnes;
        for (const storage::LienEvenement& lien : base.R_EVT.Liens(e)) {
            if (!Vivant(base, lien.individu)) continue;
            if (personnes.first.size() < storage::MaxElements)
                personnes.first.push_back(lien.individu.valeur + decalage);
            personnes.second.insert(std::to_string(lien.individu.valeur + decalage) + ' ' +
                                    lien.role);
        }
        return personnes;
    }
    void VoirDocument(NoDocument a) {
        const NoDocument b{a.valeur + options_.documents};
        if (b_.R_TRI.RangDocument(b) == 0) {
            Dire("document is missing", a.valeur);
            return;
        }
        const storage::Document un = a_.R_IMAGE.LireDoc(a);
        const storage::Document autre = b_.R_IMAGE.LireDoc(b);
        Voir("title of document", a.valeur, un.titre, autre.titre);
        Voir("file of document", a.valeur, un.fichier, autre.fichier);
        Voir("kind of document", a.valeur, un.type, autre.type);
        Voir("note of document", a.valeur, un.note, autre.note);
    }

    void VoirBase() {
        const storage::EnTete& a = a_.entete;
        const storage::EnTete& b = b_.entete;
        Voir("number of persons", 0, a.NbTriIndividus, b.NbTriIndividus);
        Voir("number of events", 0, a.NbTriEvenements, b.NbTriEvenements);
        Voir("number of documents", 0, a.NbTriDocuments, b.NbTriDocuments);
        Voir("order of persons", 0, a_.R_TRI.individus.Numeros(), b_.R_TRI.individus.Numeros());
        Voir("name setting", 1, a.OptParticules, b.OptParticules);
        Voir("name setting", 2, a.OptPrenomUnique, b.OptPrenomUnique);
        Voir("description", 0, a.DocBase, b.DocBase);
        Voir("rows of persons", 0, Slots(a.SlotsIndividu), Slots(b.SlotsIndividu));
        Voir("rows of unions", 0, Slots(a.SlotsMariage), Slots(b.SlotsMariage));
        VoirMotsCles();
    }
    static std::string Slots(const storage::Slots& slots) {
        std::string texte;
        for (std::size_t k = 0; k < storage::NbSlots(slots); ++k)
            texte.append(1, slots[k].symbole).append(1, slots[k].drapeau);
        return texte;
    }
    /// Those of the first in their order; what the second has besides every base has.
    void VoirMotsCles() {
        std::uint32_t k = 0;
        for (NoMotCle m{1}; m.valeur <= a_.motsCles.Nombre(); ++m.valeur) {
            const storage::MotCle un = a_.motsCles.LibelleType(m);
            if (un.symbole == ' ') continue;
            const storage::MotCle autre = b_.motsCles.LibelleType(NoMotCle{++k});
            Voir("symbol of keyword", m.valeur, std::string{un.symbole},
                 std::string{autre.symbole});
            Voir("label of keyword", m.valeur, un.libelle, autre.libelle);
            Voir("index of keyword", m.valeur, un.indexe, autre.indexe);
            if (un.indexe && autre.indexe) VoirMots(m, NoMotCle{k});
        }
    }
    void VoirMots(NoMotCle a, NoMotCle b) {
        const auto mots = [](storage::Base& base, NoMotCle k) {
            std::map<std::string, std::multiset<std::uint32_t>> tous;
            for (const NoIndex e : base.R_INDEX.ListeMots(k))
                for (const NoOrdre n : base.R_INDEX.PersonnesIndex(e))
                    tous[base.R_INDEX.MotIndex(e)].insert(n.valeur);
            return tous;
        };
        Voir("words of keyword", a.valeur, mots(a_, a), mots(b_, b));
    }

    storage::Base& a_;
    storage::Base& b_;
    Options options_;
    std::set<std::uint32_t> vivantsA_;
    std::set<std::uint32_t> vivantsB_;
    std::map<std::uint32_t, std::uint32_t> unions_;
    std::string ecarts_;
};

}  // namespace dorvane::doublures
