#include "records/DessinFamille.h"

#include "storage/Base.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <map>

namespace dorvane::records {

namespace {

using Sorte = CaseFamille::Sorte;

constexpr MesuresGraphe Mesures[] = {
    {250, 92, 16, 76, 16, 13, false, true},
    {196, 50, 12, 66, 13, 12, false, false},
    {176, 36, 9, 60, 12, 11, false, false},
    {300, 24, 7, 54, 12, 11, true, false},
};

/// A spouse stands this much narrower than its column: the line of the couple runs beside it.
constexpr double Retrait = 18;
/// An unknown person is a small box.
constexpr double LargeurInconnu = 0.36;

/// The smallest rectangle around both.
Rectangle Autour(const Rectangle& a, const Rectangle& b) {
    const double gauche = std::min(a.gauche, b.gauche);
    const double haut = std::min(a.haut, b.haut);
    return {gauche, haut, std::max(a.Droite(), b.Droite()) - gauche,
            std::max(a.Bas(), b.Bas()) - haut};
}

class Dessinateur {
public:
    Dessinateur(storage::Base& base, const ModeleFamille& modele, const MesuresGraphe& mesures)
        : base_{base}, cases_{modele.cases}, m_{mesures} {}

    DessinFamille Dessiner() {
        for (const CaseFamille& c : cases_) {
            dessin_.boites.push_back(Boite(c));
            const Rectangle& boite = dessin_.boites.back();
            dessin_.cadre = dessin_.boites.size() == 1 ? boite : Autour(dessin_.cadre, boite);
        }
        for (std::size_t i = 1; i < cases_.size(); ++i) {
            if (cases_[i].sorte == Sorte::Conjoint) TracerCouple(i);
            if (cases_[i].sorte == Sorte::Ascendant) TracerParent(i);
            if (cases_[i].sorte == Sorte::Descendant) enfants_[cases_[i].parent].push_back(i);
        }
        for (const auto& [parent, enfants] : enfants_)
            TracerEnfants(parent, enfants);
        return std::move(dessin_);
    }

private:
    [[nodiscard]] double Gauche(const CaseFamille& c) const {
        return c.generation * (m_.largeur + m_.gouttiere) - m_.largeur / 2;
    }

    [[nodiscard]] Rectangle Boite(const CaseFamille& c) const {
        double largeur = m_.largeur;
        if (!c.individu)
            largeur *= LargeurInconnu;
        else if (c.sorte == Sorte::Conjoint)
            largeur -= Retrait;
        const double milieu = c.place * (m_.hauteur + m_.ecart);
        return {Gauche(c), milieu - m_.hauteur / 2, largeur, m_.hauteur};
    }

    [[nodiscard]] std::string Annee(NoMariage mariage) const {
        return std::string{SansBlancs(base_.R_DEBMAR.LireCellule(mariage))};
    }

    static Point CoteDroit(const Rectangle& boite) { return {boite.Droite(), boite.Milieu().y}; }
    static Point CoteGauche(const Rectangle& boite) { return {boite.gauche, boite.Milieu().y}; }

    void Relier(Point de, double x, Point vers) {
        dessin_.traits.push_back({de, Point{x, de.y}, Point{x, vers.y}, vers});
    }

    /// The line of a couple leaves the person below, and comes to the spouse from the right.
    void TracerCouple(std::size_t i) {
        const CaseFamille& personne = cases_[cases_[i].parent];
        const Rectangle& dessus = dessin_.boites[cases_[i].parent];
        const Rectangle& boite = dessin_.boites[i];
        const double x = Gauche(personne) + m_.largeur - Retrait / 2;
        Relier({x, dessus.Bas()}, x, CoteDroit(boite));
        const double vide = (EcartConjoints - 1) * m_.hauteur + EcartConjoints * m_.ecart;
        dessin_.unions.push_back(
            {Point{boite.gauche + (m_.largeur - Retrait) / 2, boite.haut - vide / 2},
             Annee(cases_[i].mariage)});
    }

    void TracerParent(std::size_t i) {
        const Rectangle& enfant = dessin_.boites[cases_[i].parent];
        const double x = enfant.Droite() + m_.gouttiere / 2;
        Relier(CoteDroit(enfant), x, CoteGauche(dessin_.boites[i]));
        // The couple is named once, by the second of the two boxes.
        const bool second = i > 0 && cases_[i].mariage && cases_[i].parent != i - 1;
        if (second)
            dessin_.unions.push_back({Point{x, enfant.Milieu().y}, Annee(cases_[i].mariage)});
    }

    /// Each other parent has a line of its own between the generations.
    void TracerEnfants(std::size_t parent, const std::vector<std::size_t>& enfants) {
        std::vector<std::size_t> departs;
        for (const std::size_t i : enfants)
            if (std::find(departs.begin(), departs.end(), cases_[i].depart) == departs.end())
                departs.push_back(cases_[i].depart);
        std::sort(departs.begin(), departs.end());
        const double pas = m_.gouttiere / static_cast<double>(departs.size() + 1);
        for (const std::size_t i : enfants) {
            const auto rang = std::find(departs.begin(), departs.end(), cases_[i].depart);
            const double voie = pas * static_cast<double>(rang - departs.begin() + 1);
            Relier(CoteGauche(dessin_.boites[cases_[i].depart]), Gauche(cases_[parent]) - voie,
                   CoteDroit(dessin_.boites[i]));
        }
    }

    storage::Base& base_;
    const std::vector<CaseFamille>& cases_;
    const MesuresGraphe& m_;
    std::map<std::size_t, std::vector<std::size_t>> enfants_;
    DessinFamille dessin_;
};

}  // namespace

const MesuresGraphe& MesuresDe(int presentation) {
    return Mesures[presentation >= 1 && presentation <= 4 ? presentation - 1 : 1];
}

DessinFamille DessinerFamille(storage::Base& base, const ModeleFamille& modele,
                              const MesuresGraphe& mesures) {
    return Dessinateur{base, modele, mesures}.Dessiner();
}

}  // namespace dorvane::records
