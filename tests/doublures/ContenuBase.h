#pragma once

#include "storage/Base.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

/// Writes out what a base says without the numbers of documents, events, unions and entries of the
/// index: each stands by its content. A base and the same base reorganised give the same text.
class ContenuBase {
public:
    explicit ContenuBase(Base& base) : b_{base} {
        for (const std::uint16_t n : base.R_TRI.individus.Numeros())
            vivants_.insert(n);
        for (const std::uint16_t e : base.R_TRI.evenements.Numeros())
            evenements_.insert(e);
        for (const std::uint16_t d : base.R_TRI.documents.Numeros())
            documents_.insert(d);
        Ligne("tri ");
        for (const std::uint16_t n : base.R_TRI.individus.Numeros())
            Champ(n);
        Ligne("base ");
        Document(base.entete.DocBase);
        Champ(static_cast<unsigned char>(base.entete.TypeTri));
        for (NoOrdre n{1}; n.valeur <= base.entete.DernierIndividu; ++n.valeur)
            Individu(n);
        for (const std::uint16_t d : base.R_TRI.documents.Numeros()) {
            Ligne("document ");
            Document(NoDocument{d});
        }
        for (const std::uint16_t e : base.R_TRI.evenements.Numeros()) {
            Ligne("evenement ");
            Evenement(NoEvenement{e});
        }
        Index();
    }
    [[nodiscard]] const std::string& Texte() const { return texte_; }

private:
    void Ligne(std::string_view quoi) { texte_.append("\n").append(quoi); }
    void Champ(std::string_view champ) { texte_.append(champ).append("|"); }
    void Champ(std::int64_t nombre) { Champ(std::to_string(nombre)); }

    void Individu(NoOrdre n) {
        Ligne("personne ");
        Champ(n.valeur);
        Champ(std::string(1, static_cast<char>(b_.R_SEXE.LireCellule(n))));
        Champ(b_.R_NAISS.LireCellule(n));
        Champ(b_.R_DECES.LireCellule(n));
        Champ(b_.R_PERE.LireCellule(n).valeur);
        Champ(b_.R_MERE.LireCellule(n).valeur);
        Champ(b_.R_NOM.LireTexte(n));
        Champ(b_.R_TEXTE.LireTexte(n));
        for (const NoOrdre enfant : b_.R_ENFANT.Elements(n))
            Champ(enfant.valeur);
        for (const NoMariage m : b_.R_MARIAG.Elements(n))
            Mariage(m);
        for (const NoDocument d : b_.R_LSTIMG.Elements(n))
            Document(d);
        for (std::size_t k = 1; k <= b_.R_LIEN.NbElements(n); ++k) {
            Champ(b_.R_LIEN.ElementListe(n, k).valeur);
            Champ(b_.R_LIEN.TexteElement(n, k));
        }
        for (std::size_t k = 1; k <= b_.R_LSTEVT.NbElements(n); ++k) {
            const NoEvenement e = b_.R_LSTEVT.ElementListe(n, k);
            if (evenements_.count(e.valeur) == 0) continue;
            Champ(b_.R_LSTEVT.TexteElement(n, k));
            Evenement(e);
        }
    }
    /// Unions without a living husband are not content.
    void Mariage(NoMariage m) {
        const NoOrdre epoux = b_.R_EPOUX.LireCellule(m);
        if (m.valeur > b_.entete.DernierMariage || vivants_.count(epoux.valeur) == 0) return;
        Champ("union");
        Champ(epoux.valeur);
        Champ(b_.R_EPOUSE.LireCellule(m).valeur);
        Champ(b_.R_DEBMAR.LireCellule(m));
        Champ(b_.R_FINMAR.LireCellule(m));
        Champ(b_.R_TXTMAR.LireTexte(m));
    }
    void Document(NoDocument d) {
        if (documents_.count(d.valeur) == 0) return;
        const storage::Document document = b_.R_IMAGE.LireDoc(d);
        Champ(document.titre);
        Champ(document.fichier);
        Champ(document.type);
        Champ(document.note);
    }
    void Evenement(NoEvenement e) {
        const DescriptionEvt description = b_.R_EVT.Description(e);
        Champ(b_.R_EVT.CleDateEvt(e));
        Champ(description.lieu);
        Champ(description.libelle);
        Champ(description.type);
        Champ(b_.R_EVT.NoteEvt(e));
        for (const LienEvenement& lien : b_.R_EVT.Liens(e)) {
            Champ(lien.individu.valeur);
            Champ(lien.role);
        }
        for (const NoDocument d : b_.R_EVT.Documents(e))
            Document(d);
    }
    void Index() {
        for (NoMotCle k{1}; k.valeur <= b_.motsCles.Nombre(); ++k.valeur) {
            const MotCle type = b_.motsCles.LibelleType(k);
            Ligne("mot ");
            Champ(std::string(1, type.symbole));
            Champ(type.libelle);
            Champ(type.mots ? 1 : 0);
            for (const NoIndex e : b_.R_INDEX.ListeMots(k)) {
                const std::vector<NoOrdre> personnes = b_.R_INDEX.PersonnesIndex(e);
                if (personnes.empty()) continue;
                Champ(b_.R_INDEX.MotIndex(e));
                for (const NoOrdre n : personnes)
                    Champ(n.valeur);
            }
        }
    }

    Base& b_;
    std::set<std::uint32_t> vivants_;
    std::set<std::uint32_t> evenements_;
    std::set<std::uint32_t> documents_;
    std::string texte_;
};

}  // namespace dorvane::storage
