#pragma once

#include "storage/Base.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::storage {

/// Writes out all that a base says, so that two states are compared as one text.
class Inventaire {
public:
    /// `limite`: records of each kind that are looked at, for bases of hostile size.
    explicit Inventaire(Base& base, std::uint32_t limite = 70000) : base_{base}, limite_{limite} {
        EcrireEntete();
        EcrireMotsCles();
        for (NoOrdre n{1}; n.valeur <= Borne(base.entete.DernierIndividu); ++n.valeur)
            EcrireIndividu(n);
        for (NoMariage m{1}; m.valeur <= Borne(base.entete.DernierMariage); ++m.valeur)
            EcrireMariage(m);
        for (NoEvenement e{1}; e.valeur <= Borne(base.entete.DernierEvenement); ++e.valeur)
            EcrireEvenement(e);
        for (NoDocument d{1}; d.valeur <= Borne(base.entete.DernierDocument); ++d.valeur) {
            const Document& document = base.R_IMAGE.LireDoc(d);
            Ligne("doc", d.valeur);
            Champ(document.titre).Champ(document.fichier).Champ(document.type).Champ(document.note);
        }
        EcrireTris();
    }
    [[nodiscard]] const std::string& Texte() const { return sortie_; }

private:
    [[nodiscard]] std::uint32_t Borne(std::uint32_t nombre) const {
        return std::min(nombre, limite_);
    }
    void Ligne(std::string_view quoi, std::uint32_t numero) {
        sortie_ += '\n';
        sortie_ += quoi;
        Nombre(numero);
    }
    Inventaire& Champ(std::string_view texte) {
        sortie_ += '|';
        sortie_ += texte;
        return *this;
    }
    Inventaire& Nombre(std::int64_t nombre) {
        sortie_ += ' ';
        sortie_ += std::to_string(nombre);
        return *this;
    }
    void EcrireEntete() {
        const EnTete& e = base_.entete;
        Ligne("entete", e.NbTriIndividus);
        Nombre(e.DernierIndividu).Nombre(e.DernierMariage).Nombre(e.DernierEvenement);
        Nombre(e.NbTriEvenements).Nombre(e.DernierDocument).Nombre(e.NbTriDocuments);
        Nombre(e.NbIndex)
            .Nombre(static_cast<char>(e.TypeTri))
            .Nombre(e.DocBase.valeur)
            .Nombre(e.OptParticules);
        for (const Slot& slot : e.SlotsIndividu)
            Nombre(slot.symbole).Nombre(slot.drapeau);
    }
    void EcrireMotsCles() {
        for (NoMotCle k{1}; k.valeur <= base_.motsCles.Nombre(); ++k.valeur) {
            const MotCle type = base_.motsCles.LibelleType(k);
            Ligne("type", k.valeur);
            Nombre(type.symbole).Champ(type.libelle).Nombre(type.indexe);
            std::uint32_t nombre = 0;
            for (const NoIndex e : base_.R_INDEX.ListeMots(k)) {
                if (++nombre > limite_) break;
                Champ(base_.R_INDEX.MotIndex(e));
                std::uint32_t personnes = 0;
                for (const NoOrdre n : base_.R_INDEX.PersonnesIndex(e))
                    if (++personnes <= limite_) Nombre(n.valeur);
            }
        }
    }
    void EcrireIndividu(NoOrdre n) {
        Ligne("individu", n.valeur);
        Nombre(static_cast<char>(base_.R_SEXE.LireCellule(n))).Champ(base_.R_NAISS.LireCellule(n));
        Champ(base_.R_DECES.LireCellule(n)).Champ(base_.R_DECES.AnneeTri(n));
        Nombre(base_.R_PERE.LireCellule(n).valeur).Nombre(base_.R_MERE.LireCellule(n).valeur);
        Champ(base_.R_NOM.LireTexte(n)).Champ(base_.R_NOM.PrenomDe(n));
        Champ(base_.R_TEXTE.LireTexte(n)).Champ(NoteDe(base_, n)).Champ(LieuNaissance(base_, n));
        for (const ValeurSlot& slot : SlotsDe(base_, n))
            Champ(slot.jourMois).Champ(slot.annee).Champ(slot.lieu);
        for (const NoOrdre enfant : base_.R_ENFANT.Elements(n))
            Nombre(enfant.valeur);
        Champ("u");
        for (const NoMariage m : base_.R_MARIAG.Elements(n))
            Nombre(m.valeur);
        Champ("d");
        for (const NoDocument d : base_.R_LSTIMG.Elements(n))
            Nombre(d.valeur);
        for (std::size_t k = 1; k <= base_.R_LIEN.NbElements(n); ++k)
            Nombre(base_.R_LIEN.ElementListe(n, k).valeur).Champ(base_.R_LIEN.TexteElement(n, k));
        for (std::size_t k = 1; k <= base_.R_LSTEVT.NbElements(n); ++k)
            Nombre(base_.R_LSTEVT.ElementListe(n, k).valeur)
                .Champ(base_.R_LSTEVT.TexteElement(n, k));
    }
    void EcrireMariage(NoMariage m) {
        Ligne("mariage", m.valeur);
        Nombre(base_.R_EPOUX.LireCellule(m).valeur).Nombre(base_.R_EPOUSE.LireCellule(m).valeur);
        Champ(base_.R_DEBMAR.LireCellule(m)).Champ(base_.R_FINMAR.LireCellule(m));
        Champ(base_.R_TXTMAR.LireTexte(m)).Champ(DateMariageBrute(base_, m));
        Champ(LieuMariage(base_, m)).Champ(NoteMariage(base_, m));
    }
    void EcrireEvenement(NoEvenement e) {
        Ligne("evt", e.valeur);
        Nombre(base_.R_EVT.CleDateEvt(e)).Champ(base_.R_EVT.NoteEvt(e));
        const DescriptionEvt& description = base_.R_EVT.Description(e);
        Champ(description.lieu).Champ(description.libelle).Champ(description.type);
        std::uint32_t nombre = 0;
        for (const LienEvenement& lien : base_.R_EVT.Liens(e))
            if (++nombre <= limite_) Nombre(lien.individu.valeur).Champ(lien.role);
        for (const NoDocument d : base_.R_EVT.Documents(e))
            if (++nombre <= limite_) Nombre(d.valeur);
    }
    void EcrireTris() {
        const EnTete& e = base_.entete;
        Ligne("tri", 0);
        for (std::uint32_t r = 1; r <= e.NbTriIndividus; ++r)
            Nombre(base_.R_TRI.IndividuAuRang(r).valeur);
        Ligne("triEvt", 0);
        for (std::uint32_t r = 1; r <= e.NbTriEvenements; ++r)
            Nombre(base_.R_TRI.EvtAuRang(r).valeur);
        Ligne("triDoc", 0);
        for (std::uint32_t r = 1; r <= e.NbTriDocuments; ++r)
            Nombre(base_.R_TRI.DocumentAuRang(r).valeur);
    }

    Base& base_;
    std::uint32_t limite_;
    std::string sortie_;
};

}  // namespace dorvane::storage
