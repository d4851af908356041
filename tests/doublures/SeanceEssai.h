#pragma once

#include "doublures/Inventaire.h"
#include "storage/Base.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace dorvane::storage {

/// A working day on a base: persons, unions, events, documents, index, sort tables. The same seed
/// gives the same day.
class SeanceEssai {
public:
    SeanceEssai(Base& base, std::uint32_t graine) : base_{base}, hasard_{graine} {}

    /// One thing that a user does. What a refused disk has left behind does not matter.
    void Agir() {
        switch (Tirer(9)) {
            case 0:
            case 1:
                CreerIndividu();
                break;
            case 2:
                Renommer();
                break;
            case 3:
                Unir();
                break;
            case 4:
                AjouterEvenement();
                break;
            case 5:
                AjouterDocument();
                break;
            case 6:
                EcrireTexte(Individu(), TexteAuHasard());
                break;
            case 7:
                Supprimer();
                break;
            default:
                Lier();
                break;
        }
    }

private:
    std::uint32_t Tirer(std::uint32_t sur) {
        return static_cast<std::uint32_t>(hasard_() % std::uint64_t{sur});
    }
    NoOrdre Individu() {
        return NoOrdre{base_.entete.DernierIndividu == 0 ? 0
                                                         : 1 + Tirer(base_.entete.DernierIndividu)};
    }
    std::string Mot() {
        static constexpr const char* Mots[] = {"DURAND", "MARTIN", "ABEL", "Jean",      "Anne",
                                               "Brest",  "Lyon",   "Zoe",  "Saint.Malo"};
        return Mots[Tirer(9)];
    }
    std::string Annee() { return std::to_string(1700 + Tirer(200)); }
    std::string TexteAuHasard() {
        std::string texte = "|" + Mot() + " \xB6" + Mot() + " $" + Mot();
        if (Tirer(2) == 0) texte += "\r\nOCCU meunier\r\n" + std::string(Tirer(300), 'n');
        return texte;
    }
    void EcrireTexte(NoOrdre n, const std::string& texte) {
        if (!n) return;
        base_.R_INDEX.MajIndex(n, base_.R_TEXTE.LireTexte(n), texte);
        base_.R_TEXTE.EcrireTexte(n, texte);
    }
    void CreerIndividu() {
        const NoOrdre n = base_.NouvelIndividu();
        if (!n) return;
        base_.R_NOM.EcrireNom(n, Mot() + ";" + Mot() + ";;1/2");
        base_.R_NAISS.EcrireCellule(n, Annee());
        base_.R_SEXE.EcrireCellule(n, Tirer(2) == 0 ? Sexe::Homme : Sexe::Femme);
        base_.R_TRI.AjouterIndividu(n);
        EcrireTexte(n, TexteAuHasard());
        const NoOrdre pere = Individu();
        if (pere == n) return;
        base_.R_PERE.EcrireCellule(n, pere);
        base_.R_ENFANT.ModifierListe(pere, n, storage::ActionListe::Ajouter);
    }
    void Renommer() {
        const NoOrdre n = Individu();
        if (!n) return;
        base_.R_TRI.RetirerIndividu(n);
        base_.R_NOM.EcrireNom(n, Mot() + ";" + Mot());
        base_.R_TRI.AjouterIndividu(n);
    }
    void Unir() {
        const NoMariage m = base_.NouveauMariage();
        const NoOrdre epoux = Individu();
        if (!m || !epoux) return;
        base_.R_EPOUX.EcrireCellule(m, epoux);
        base_.R_EPOUSE.EcrireCellule(m, Individu());
        base_.R_DEBMAR.EcrireCellule(m, Annee());
        base_.R_TXTMAR.EcrireTexte(m, "1/2@" + Mot());
        base_.R_MARIAG.ModifierListe(epoux, m, storage::ActionListe::Ajouter);
    }
    void AjouterEvenement() {
        const NoEvenement e = base_.NouvelEvenement();
        const NoOrdre n = Individu();
        if (!e || !n) return;
        base_.R_EVT.EcrireEvt(e, {.cleDate = static_cast<std::int32_t>(Tirer(40000)) - 20000,
                                  .note = std::string(Tirer(100), 'e'),
                                  .liens = {{{n, "CHIL"}}},
                                  .documents = {},
                                  .description = DescriptionEvt{Mot(), "", "BAPM"}});
        base_.R_TRI.AjouterEvt(e);
        base_.R_LSTEVT.ModifierListe(n, e, storage::ActionListe::Ajouter, "CHIL");
    }
    void AjouterDocument() {
        const NoDocument d = base_.NouveauDocument();
        const NoOrdre n = Individu();
        if (!d || !n) return;
        base_.R_IMAGE.EcrireDoc(d, {Mot(), "photo.jpg", "PHOTO", std::string(Tirer(50), 'd')});
        base_.R_TRI.AjouterDocument(d);
        base_.R_LSTIMG.ModifierListe(n, d, storage::ActionListe::Ajouter);
    }
    void Lier() {
        const NoOrdre n = Individu();
        const NoOrdre autre = Individu();
        if (n == autre) return;
        base_.R_LIEN.ModifierListe(n, autre, storage::ActionListe::Ajouter, "GODP");
        base_.R_LIEN.ModifierListe(autre, n, storage::ActionListe::Ajouter, "GODP");
    }
    void Supprimer() {
        const NoOrdre n = Individu();
        if (!n || Tirer(3) != 0) return;
        EcrireTexte(n, "");
        base_.R_TRI.RetirerIndividu(n);
        base_.R_NOM.EcrireNom(n, "");
        base_.R_NAISS.EcrireCellule(n, "");
        base_.R_SEXE.EcrireCellule(n, Sexe::Vide);
    }

    Base& base_;
    std::mt19937 hasard_;
};

}  // namespace dorvane::storage
