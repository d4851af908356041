#pragma once

#include "interchange/gedcom/ContexteImport.h"
#include "interchange/gedcom/LiensImport.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// What the header and the submitter tell about the base.
struct EnTeteLu {
    std::string note;              ///< description of the base; empty: none
    std::string_view cleDeposant;  ///< identifier of the submitter that the header names
    std::string auteur;
    std::vector<std::string> adresse;  ///< at most 7 lines
};

/// Reads the records that are neither persons nor families, first pass: sources become events,
/// notes become documents.
class LecteurAnnexes {
public:
    LecteurAnnexes(const ContexteImport& contexte, LiensImport& liens)
        : contexte_{contexte}, liens_{liens} {}

    /// A line of level 0. `numero`: what the record becomes, an event or a document, by its tag; 0
    /// for a record that is only read over.
    void Commencer(const LigneGedcom& ligne, std::uint32_t numero);
    /// A line of level 1 or deeper.
    void Lire(const LigneGedcom& ligne);
    /// Ends the record.
    void Terminer();

    [[nodiscard]] EnTeteLu& EnTete() { return entete_; }

private:
    [[nodiscard]] bool LireEnTete(const LigneGedcom& ligne);
    [[nodiscard]] bool LireDeposant(const LigneGedcom& ligne);
    [[nodiscard]] bool LireSource(const LigneGedcom& ligne);
    [[nodiscard]] bool LireNoteDeSource(const LigneGedcom& ligne);
    [[nodiscard]] bool LireDocument(const LigneGedcom& ligne);
    [[nodiscard]] bool LireTexte(const LigneGedcom& ligne, std::string& note);
    void AjouterAdresse(const LigneGedcom& ligne);
    void LireDateDeSource(const LigneGedcom& ligne);
    void LireTypeDeSource(std::string_view valeur);
    void Ecarter(const LigneGedcom& ligne);
    void Suivre(std::string& texte) { courant_ = &texte; }

    ContexteImport contexte_;
    LiensImport& liens_;
    EnTeteLu entete_;
    CodeEtiquette genre_ = 0;
    std::string_view cle_;
    std::uint32_t numero_ = 0;
    bool deposantRetenu_ = false;
    EvenementLu evenement_;
    storage::Document document_;
    std::string* courant_ = nullptr;
    std::string adresse_;
    std::size_t lignesAdresse_ = 0;
    std::size_t niveauEcarte_ = 0;
};

}  // namespace dorvane::interchange
