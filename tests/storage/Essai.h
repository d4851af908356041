#pragma once

#include "doublures/DisqueMemoire.h"
#include "storage/Base.h"
#include "storage/LecteurLgd.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

namespace dorvane::storage {

/// Keeps what a base tells.
class ObservateurEssai final : public Observateur {
public:
    void ParentChange(NoOrdre enfant, NoOrdre parent) override {
        parents.emplace_back(enfant.valeur, parent.valeur);
    }
    void Signaler(Incident incident, std::uint32_t numero) override {
        incidents.emplace_back(incident, numero);
    }
    std::vector<std::pair<std::uint32_t, std::uint32_t>> parents;
    std::vector<std::pair<Incident, std::uint32_t>> incidents;
};

/// A new base on a disk in memory.
struct Essai {
    static constexpr const char* Chemin = "famille.LGD";
    static constexpr const char* CheminLog = "famille.LOG";

    Essai() { base = std::move(NouvelleBase(*disque, Chemin, {}).base); }

    /// Commits, closes and opens again.
    void Rouvrir() {
        REQUIRE(base->Fermer());
        base.reset();
        Ouvrir();
    }
    /// Opens what is on the disk, after a base that was given up.
    void Ouvrir() {
        ResultatOuverture resultat = OuvrirBase(*disque, Chemin, muet);
        REQUIRE(resultat.etat == Ouverture::Faite);
        base = std::move(resultat.base);
    }
    [[nodiscard]] LecteurLgd Lire() const { return LecteurLgd{disque->Octets(Chemin)}; }

    /// A person with a name line and a birth year, in the sort table.
    NoOrdre Creer(std::string_view ligne, std::string_view annee) const {
        const NoOrdre n = base->NouvelIndividu();
        base->R_NOM.EcrireNom(n, ligne);
        base->R_NAISS.EcrireCellule(n, annee);
        base->R_SEXE.EcrireCellule(n, Sexe::Homme);
        base->R_TRI.AjouterIndividu(n);
        return n;
    }

    ProgressionMuette muet;
    std::unique_ptr<DisqueMemoire> disque = std::make_unique<DisqueMemoire>();
    std::unique_ptr<Base> base;
};

}  // namespace dorvane::storage
