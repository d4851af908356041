#include "interchange/commun/SelectionExport.h"

#include "records/Famille.h"
#include "storage/Base.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dorvane::interchange {

namespace {

constexpr char Blanc = ' ';
constexpr char Parcouru = '1';
constexpr char Proche = '2';
constexpr char Retenu = '3';
constexpr char Collateral = '4';

constexpr std::string_view DerniereNaissance = "1900";

struct Etape {
    NoOrdre individu;
    std::uint32_t generations;
};

}  // namespace

SelectionExport::SelectionExport(storage::Base& base)
    : base_{base}, marques_(base.entete.DernierIndividu + 1ULL, Blanc) {}

void SelectionExport::Vider() {
    std::ranges::fill(marques_, Blanc);
    nbRetenus_ = nbMarques_ = 0;
    entiere_ = false;
}

void SelectionExport::MarquerTous() {
    entiere_ = true;
    for (std::uint32_t rang = 1; rang <= base_.entete.NbTriIndividus; ++rang)
        if (const NoOrdre n = base_.R_TRI.IndividuAuRang(rang); Existe(n))
            marques_[n.valeur] = Retenu;
    FixerMarques();
}

void SelectionExport::MarquerListe(std::span<const NoOrdre> individus) {
    for (const NoOrdre n : individus)
        if (Existe(n)) marques_[n.valeur] = Retenu;
    FixerMarques();
}

void SelectionExport::MarquerParente(NoOrdre depart, SensExport sens, std::uint32_t generations) {
    if (!Existe(depart) || generations == 0) return;
    const std::string avant = marques_;
    Parcourir(depart, sens, generations);
    // Where this walk stops it makes near kin of persons whom an earlier one has selected.
    for (std::size_t n = 1; n < avant.size(); ++n)
        if (avant[n] == Retenu) marques_[n] = Retenu;
    FixerMarques();
}

/// Depth first, the father's side before the mother's, the first child before the next: in a family
/// where somebody is reached twice, the first way that leads to him counts.
void SelectionExport::Parcourir(NoOrdre depart, SensExport sens, std::uint32_t generations) {
    const bool montant = sens == SensExport::Ascendants;
    const auto peutMarquer = [this](NoOrdre n) {
        return Existe(n) && marques_[n.valeur] != Parcouru;
    };
    records::ParcourirFamille(
        Etape{depart, generations}, [&](const Etape& etape, std::vector<Etape>& suivantes) {
            const NoOrdre n = etape.individu;
            if (marques_[n.valeur] == Parcouru) return true;
            marques_[n.valeur] = Parcouru;
            for (const records::Couple& couple : records::CouplesDe(base_, n))
                if (peutMarquer(couple.partenaire)) marques_[couple.partenaire.valeur] = Retenu;
            const std::array<NoOrdre, 2> parents = records::ParentsDe(base_, n);
            const std::vector<NoOrdre> enfants = base_.R_ENFANT.Elements(n);
            std::span<const NoOrdre> proches = enfants;
            std::span<const NoOrdre> suite = parents;
            if (!montant) std::swap(proches, suite);
            for (const NoOrdre proche : proches)
                if (peutMarquer(proche) && marques_[proche.valeur] != Retenu)
                    marques_[proche.valeur] = Proche;
            for (const NoOrdre autre : suite) {
                if (!peutMarquer(autre)) continue;
                if (etape.generations == 1)
                    marques_[autre.valeur] = Proche;
                else
                    suivantes.push_back({autre, etape.generations - 1});
            }
            return true;
        });
}

void SelectionExport::FixerMarques() {
    nbRetenus_ = nbMarques_ = 0;
    for (char& marque : marques_) {
        if (marque == Blanc) continue;
        marque = marque == Parcouru || marque == Retenu ? Retenu : Collateral;
        ++nbMarques_;
        if (marque == Retenu) ++nbRetenus_;
    }
}

char SelectionExport::Marque(NoOrdre n) const {
    return Existe(n) ? marques_[n.valeur] : Blanc;
}

ChoixExport SelectionExport::Choix(const ReglagesSelection& reglages) const {
    ChoixExport choix;
    choix.choisis.resize(marques_.size());
    for (std::uint32_t n = 1; n < marques_.size(); ++n) {
        const bool marque = marques_[n] == Retenu || (reglages.collateraux && marques_[n] != Blanc);
        choix.choisis[n] = marque && !(reglages.ecarter1900 &&
                                       base_.R_NAISS.AnneeTri(NoOrdre{n}) > DerniereNaissance);
    }
    choix.complet = (reglages.complet || entiere_) && !reglages.ecarter1900;
    return choix;
}

}  // namespace dorvane::interchange
