#pragma once

#include "storage/Base.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::doublures {

/// Says what does not fit together in a base: every fact that stands in two places is looked at
/// from both. Written against the records themselves, without the operations that keep them.
class Coherence {
public:
    struct Options {
        /// Each link stands on both sides. Not so any more once labels have been changed.
        bool liensDoubles = true;
    };

    Coherence(storage::Base& base, Options options) : base_{base}, options_{options} {
        LireTables();
        for (NoOrdre n{1}; n.valeur <= base.entete.DernierIndividu; ++n.valeur)
            VoirIndividu(n);
        for (NoMariage m{1}; m.valeur <= base.entete.DernierMariage; ++m.valeur)
            VoirMariage(m);
        for (NoEvenement e{1}; e.valeur <= base.entete.DernierEvenement; ++e.valeur)
            VoirEvenement(e);
        VoirTris();
        VoirIndex();
    }
    explicit Coherence(storage::Base& base) : Coherence{base, Options{}} {}

    /// One line for each thing that is wrong; empty when all is right.
    [[nodiscard]] const std::string& Ecarts() const { return ecarts_; }

private:
    void Dire(std::string_view quoi, std::uint32_t a, std::uint32_t b = 0) {
        if (ecarts_.size() > 4000) return;
        ecarts_.append(quoi).append(" ").append(std::to_string(a));
        if (b != 0) ecarts_.append(", ").append(std::to_string(b));
        ecarts_.push_back('\n');
    }
    template <class Liste, class Element>
    [[nodiscard]] static std::ptrdiff_t Fois(const Liste& liste, const Element& element) {
        return std::count(liste.begin(), liste.end(), element);
    }
    [[nodiscard]] bool Vivant(NoOrdre n) const { return vivants_.count(n.valeur) != 0; }

    void LireTables() {
        for (const std::uint16_t n : base_.R_TRI.individus.Numeros()) {
            if (n == 0 || n > base_.entete.DernierIndividu) Dire("sort table: no such person", n);
            if (!vivants_.insert(n).second) Dire("sort table: person twice", n);
        }
        for (const std::uint16_t e : base_.R_TRI.evenements.Numeros()) {
            if (e == 0 || e > base_.entete.DernierEvenement) Dire("sort table: no such event", e);
            if (!evenements_.insert(e).second) Dire("sort table: event twice", e);
        }
        for (const std::uint16_t d : base_.R_TRI.documents.Numeros()) {
            if (d == 0 || d > base_.entete.DernierDocument) Dire("sort table: no such document", d);
            if (!documents_.insert(d).second) Dire("sort table: document twice", d);
        }
        if (base_.entete.NbTriIndividus != vivants_.size()) Dire("count of persons", 0);
        if (base_.entete.NbTriEvenements != evenements_.size()) Dire("count of events", 0);
        if (base_.entete.NbTriDocuments != documents_.size()) Dire("count of documents", 0);
        if (base_.entete.DernierIndividu > storage::MaxIndividus) Dire("too many persons", 0);
        if (base_.entete.DernierMariage > 64000) Dire("too many unions", 0);
    }

    void VoirIndividu(NoOrdre n) {
        if (!Vivant(n)) VoirVide(n);
        VoirParent(n, base_.R_PERE.LireCellule(n), Sexe::Femme);
        VoirParent(n, base_.R_MERE.LireCellule(n), Sexe::Homme);
        if (base_.R_PERE.LireCellule(n) &&
            base_.R_PERE.LireCellule(n) == base_.R_MERE.LireCellule(n))
            Dire("same father and mother", n.valeur);
        VoirEnfants(n);
        VoirUnions(n);
        VoirLiens(n);
        VoirEvenementsDe(n);
        const std::vector<NoDocument> documents = base_.R_LSTIMG.Elements(n);
        for (const NoDocument d : documents) {
            if (documents_.count(d.valeur) == 0)
                Dire("person with a lost document", n.valeur, d.valeur);
            if (Fois(documents, d) != 1) Dire("person with a document twice", n.valeur, d.valeur);
        }
    }
    /// Who is in no sort table was deleted: nothing is left of that person.
    void VoirVide(NoOrdre n) {
        const bool vide =
            base_.R_NOM.LireTexte(n).empty() && base_.R_TEXTE.LireTexte(n).empty() &&
            base_.R_NAISS.LireCellule(n).empty() && base_.R_DECES.LireCellule(n).empty() &&
            base_.R_SEXE.LireCellule(n) == Sexe::Vide && !base_.R_PERE.LireCellule(n) &&
            !base_.R_MERE.LireCellule(n) && base_.R_ENFANT.NbElements(n) == 0 &&
            base_.R_MARIAG.NbElements(n) == 0 && base_.R_LIEN.NbElements(n) == 0 &&
            base_.R_LSTEVT.NbElements(n) == 0 && base_.R_LSTIMG.NbElements(n) == 0;
        if (!vide) Dire("deleted person is not empty", n.valeur);
    }
    void VoirParent(NoOrdre n, NoOrdre parent, Sexe jamais) {
        if (!parent) return;
        if (!Vivant(parent)) Dire("parent is nobody", n.valeur, parent.valeur);
        if (base_.R_SEXE.LireCellule(parent) == jamais)
            Dire("sex of parent", n.valeur, parent.valeur);
        if (Fois(base_.R_ENFANT.Elements(parent), n) != 1)
            Dire("child not once in the list of the parent", n.valeur, parent.valeur);
        if (Monte(parent, n)) Dire("person is its own ancestor", n.valeur);
    }
    [[nodiscard]] bool Monte(NoOrdre depart, NoOrdre but) {
        std::set<std::uint32_t> vus;
        std::vector<NoOrdre> pile{depart};
        while (!pile.empty()) {
            const NoOrdre n = pile.back();
            pile.pop_back();
            if (n == but) return true;
            if (!n || !vus.insert(n.valeur).second) continue;
            pile.push_back(base_.R_PERE.LireCellule(n));
            pile.push_back(base_.R_MERE.LireCellule(n));
        }
        return false;
    }
    void VoirEnfants(NoOrdre n) {
        const std::vector<NoOrdre> enfants = base_.R_ENFANT.Elements(n);
        std::string avant;
        for (const NoOrdre enfant : enfants) {
            if (base_.R_PERE.LireCellule(enfant) != n && base_.R_MERE.LireCellule(enfant) != n)
                Dire("child in the list without a cell", n.valeur, enfant.valeur);
            const std::string annee = base_.R_NAISS.AnneeTri(enfant);
            if (annee < avant) Dire("children out of order", n.valeur, enfant.valeur);
            avant = annee;
        }
    }
    void VoirUnions(NoOrdre n) {
        const std::vector<NoMariage> unions = base_.R_MARIAG.Elements(n);
        for (const NoMariage m : unions) {
            if (m.valeur > base_.entete.DernierMariage) Dire("no such union", n.valeur, m.valeur);
            if (Fois(unions, m) != 1) Dire("union twice in the list", n.valeur, m.valeur);
            if (base_.R_EPOUX.LireCellule(m) != n && base_.R_EPOUSE.LireCellule(m) != n)
                Dire("union in the list without a cell", n.valeur, m.valeur);
        }
    }
    void VoirMariage(NoMariage m) {
        const NoOrdre epoux = base_.R_EPOUX.LireCellule(m);
        const NoOrdre epouse = base_.R_EPOUSE.LireCellule(m);
        for (const NoOrdre n : {epoux, epouse}) {
            if (!n) continue;
            if (!Vivant(n)) Dire("partner is nobody", m.valeur, n.valeur);
            if (Fois(base_.R_MARIAG.Elements(n), m) != 1)
                Dire("union not once in the list of the partner", m.valeur, n.valeur);
        }
        if (epoux && base_.R_SEXE.LireCellule(epoux) == Sexe::Femme)
            Dire("husband is a woman", m.valeur);
        if (epouse && base_.R_SEXE.LireCellule(epouse) == Sexe::Homme)
            Dire("wife is a man", m.valeur);
        if (epoux && epoux == epouse) Dire("union with oneself", m.valeur);
        const bool vide = base_.R_TXTMAR.LireTexte(m).empty() &&
                          base_.R_DEBMAR.LireCellule(m).empty() &&
                          base_.R_FINMAR.LireCellule(m).empty();
        if (!epoux && !epouse && !vide) Dire("removed union is not empty", m.valeur);
    }
    void VoirLiens(NoOrdre n) {
        std::vector<std::pair<NoOrdre, std::string>> liens = Liens(n);
        for (const auto& lien : liens) {
            if (!Vivant(lien.first)) Dire("link with nobody", n.valeur, lien.first.valeur);
            if (lien.first == n) Dire("link with oneself", n.valeur);
            if (Fois(liens, lien) != 1) Dire("link twice", n.valeur, lien.first.valeur);
            if (options_.liensDoubles && Fois(Liens(lien.first), std::pair{n, lien.second}) != 1)
                Dire("link on one side", n.valeur, lien.first.valeur);
        }
    }
    [[nodiscard]] std::vector<std::pair<NoOrdre, std::string>> Liens(NoOrdre n) {
        std::vector<std::pair<NoOrdre, std::string>> liens;
        for (std::size_t k = 1; k <= base_.R_LIEN.NbElements(n); ++k)
            liens.emplace_back(base_.R_LIEN.ElementListe(n, k), base_.R_LIEN.TexteElement(n, k));
        return liens;
    }

    void VoirEvenementsDe(NoOrdre n) {
        std::int32_t avant = storage::CleSansDate;
        for (std::size_t k = 1; k <= base_.R_LSTEVT.NbElements(n); ++k) {
            const NoEvenement e = base_.R_LSTEVT.ElementListe(n, k);
            if (evenements_.count(e.valeur) == 0)
                Dire("person with a lost event", n.valeur, e.valeur);
            const std::int32_t cle = base_.R_EVT.CleDateEvt(e);
            if (cle < avant) Dire("events of a person out of order", n.valeur, e.valeur);
            avant = cle;
            const storage::LienEvenement lien{n, base_.R_LSTEVT.TexteElement(n, k)};
            if (Fois(base_.R_EVT.Liens(e), lien) != 1)
                Dire("event does not know its person", n.valeur, e.valeur);
        }
    }
    void VoirEvenement(NoEvenement e) {
        const bool la = evenements_.count(e.valeur) != 0;
        if (la != bool{base_.R_EVT.LireCellule(e)}) Dire("event and sort table", e.valeur);
        if (!la) return;
        for (const storage::LienEvenement& lien : base_.R_EVT.Liens(e)) {
            std::ptrdiff_t fois = 0;
            for (std::size_t k = 1; k <= base_.R_LSTEVT.NbElements(lien.individu); ++k)
                fois += base_.R_LSTEVT.ElementListe(lien.individu, k) == e &&
                                base_.R_LSTEVT.TexteElement(lien.individu, k) == lien.role
                            ? 1
                            : 0;
            if (!Vivant(lien.individu)) Dire("event of nobody", e.valeur, lien.individu.valeur);
            if (fois != 1) Dire("person does not know its event", lien.individu.valeur, e.valeur);
        }
        for (const NoDocument d : base_.R_EVT.Documents(e))
            if (documents_.count(d.valeur) == 0)
                Dire("event with a lost document", e.valeur, d.valeur);
    }

    /// Each table against the order of its keys.
    void VoirTris() {
        if (AUneCle(base_.entete.TypeTri)) {
            std::string avant;
            for (const std::uint16_t n : base_.R_TRI.individus.Numeros()) {
                std::string cle = base_.R_TRI.CleDe(NoOrdre{n});
                if (cle < avant) Dire("persons out of order", n);
                avant = std::move(cle);
            }
        }
        std::int32_t date = storage::CleSansDate;
        for (const std::uint16_t e : base_.R_TRI.evenements.Numeros()) {
            const std::int32_t cle = base_.R_EVT.CleDateEvt(NoEvenement{e});
            if (cle < date) Dire("events out of order", e);
            date = cle;
        }
        std::string titre;
        for (const std::uint16_t d : base_.R_TRI.documents.Numeros()) {
            if (!base_.R_IMAGE.LireCellule(NoDocument{d})) Dire("document without a record", d);
            std::string cle = Replie(base_.R_IMAGE.TitreDoc(NoDocument{d}));
            if (cle < titre) Dire("documents out of order", d);
            titre = std::move(cle);
        }
    }

    /// Each word list against the words of all texts.
    void VoirIndex() {
        for (NoMotCle k{1}; k.valeur <= base_.motsCles.Nombre(); ++k.valeur) {
            if (!base_.motsCles.PosMotsType(k)) continue;
            const std::map<std::string, std::vector<NoOrdre>> voulus =
                Recompter(base_.motsCles.LibelleType(k).symbole);
            std::size_t nombre = 0;
            std::string avant;
            for (const NoIndex e : base_.R_INDEX.ListeMots(k)) {
                const std::string mot = base_.R_INDEX.MotIndex(e);
                if (nombre++ != 0 && mot <= avant) Dire("words out of order", k.valeur, e.valeur);
                avant = mot;
                const auto voulu = voulus.find(mot);
                VoirPersonnes(k, e, voulu == voulus.end() ? std::vector<NoOrdre>{} : voulu->second);
            }
            if (nombre != voulus.size()) Dire("words missing or too many", k.valeur);
        }
    }
    [[nodiscard]] std::map<std::string, std::vector<NoOrdre>> Recompter(char symbole) {
        std::map<std::string, std::vector<NoOrdre>> mots;
        const auto compter = [&](NoOrdre n, std::string_view texte) {
            if (!n) return;
            for (const std::string& mot : storage::MotsDuTexte(texte, symbole))
                mots[mot].push_back(n);
        };
        for (NoOrdre n{1}; n.valeur <= base_.entete.DernierIndividu; ++n.valeur)
            compter(n, std::string{base_.R_TEXTE.LireTexte(n)});
        for (NoMariage m{1}; m.valeur <= base_.entete.DernierMariage; ++m.valeur)
            for (const NoOrdre n : {base_.R_EPOUX.LireCellule(m), base_.R_EPOUSE.LireCellule(m)})
                compter(n, std::string{base_.R_TXTMAR.LireTexte(m)});
        return mots;
    }
    void VoirPersonnes(NoMotCle k, NoIndex e, std::vector<NoOrdre> voulues) {
        std::vector<NoOrdre> personnes = base_.R_INDEX.PersonnesIndex(e);
        std::string avant;
        for (const NoOrdre n : personnes) {
            const std::string annee = base_.R_NAISS.AnneeTri(n);
            if (annee < avant) Dire("persons of a word out of order", k.valeur, n.valeur);
            avant = annee;
        }
        std::sort(personnes.begin(), personnes.end());
        std::sort(voulues.begin(), voulues.end());
        if (personnes != voulues) Dire("persons of a word", k.valeur, e.valeur);
    }

    storage::Base& base_;
    Options options_;
    std::set<std::uint32_t> vivants_;
    std::set<std::uint32_t> evenements_;
    std::set<std::uint32_t> documents_;
    std::string ecarts_;
};

/// The same in one call, for checks: `CHECK(Ecarts(base) == "")`.
[[nodiscard]] inline std::string Ecarts(storage::Base& base) {
    return Coherence{base}.Ecarts();
}

}  // namespace dorvane::doublures
