#pragma once

#include "interchange/gedcom/FicheGedcom.h"
#include "interchange/gedcom/LiensImport.h"
#include "interchange/gedcom/NomGedcom.h"
#include "values/Sexe.h"

#include <string>
#include <string_view>

namespace dorvane::interchange {

/// Reads the records of persons, first pass.
class LecteurIndividu {
public:
    struct Reglages {
        bool prenomUnique = false;
    };
    struct Reference {
        std::string_view cle;
        std::string_view chemin;
        std::uint32_t ligne;
        NoOrdre individu;
        bool enfant;  ///< FAMC, else FAMS
    };

    LecteurIndividu(const ContexteImport& contexte, SlotsImport& slots, LiensImport& liens,
                    Reglages reglages)
        : contexte_{contexte}, liens_{liens}, fiche_{contexte, slots}, reglages_{reglages} {}

    void Commencer(NoOrdre individu);
    /// A line of level 1 or deeper.
    void Lire(const LigneGedcom& ligne);
    /// Writes the cells and records of the person. The text stays in `Texte` until the next one.
    void Terminer();

    [[nodiscard]] const std::string& Texte() const { return texte_; }
    /// The name line, likewise.
    [[nodiscard]] const std::string& LigneNom() const { return ligneNom_; }
    [[nodiscard]] Sexe SexeDit() const { return sexe_; }
    [[nodiscard]] std::string_view AnneeNaissance() const {
        return fiche_.Lire(FicheGedcom::Rang::Premier).date.annee;
    }
    /// The families that persons name, to be looked for once all are known.
    [[nodiscard]] const std::vector<Reference>& Familles() const { return familles_; }

private:
    void LireNiveau1(const LigneGedcom& ligne);
    bool LireEvenement(const LigneGedcom& ligne);
    bool LireTexte(const LigneGedcom& ligne);
    void NoterFamille(const LigneGedcom& ligne);
    void LireNom(const LigneGedcom& ligne);
    bool LireSousLigne(const LigneGedcom& ligne);
    bool LireNote(const LigneGedcom& ligne);
    bool LireSource(const LigneGedcom& ligne);
    bool LireFiliation(const LigneGedcom& ligne);
    bool LireSousNom(const LigneGedcom& ligne);

    ContexteImport contexte_;
    LiensImport& liens_;
    FicheGedcom fiche_;
    Reglages reglages_;

    NoOrdre individu_;
    Sexe sexe_ = Sexe::Indetermine;
    bool nomVu_ = false;
    NomLu nom_;
    std::string_view valeurNom_;
    std::string_view prenomSeul_;  ///< GIVN and SURN under an empty NAME
    std::string_view nomSeul_;
    std::string texte_;
    std::string ligneNom_;
    std::string_view derniereSource_;
    bool lienOuvert_ = false;
    bool roleOuvert_ = false;
    std::vector<Reference> familles_;
};

}  // namespace dorvane::interchange
