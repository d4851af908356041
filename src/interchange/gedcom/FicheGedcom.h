#pragma once

#include "interchange/gedcom/ContexteImport.h"
#include "interchange/gedcom/DatesGedcom.h"
#include "interchange/gedcom/SlotsImport.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dorvane::interchange {

/// What the records of a person and of a family have in common: main events with a date and a
/// place, ten rows of further ones, and a text. The reader of each record takes its own tags and
/// hands the rest over.
class FicheGedcom {
public:
    /// The events that the base holds in cells of their own: birth and death, or the union.
    struct Principal {
        bool vu = false;
        DateLue date;
        std::string lieu;
    };
    enum class Rang : std::uint8_t { Premier, Second };

    FicheGedcom(const ContexteImport& contexte, SlotsImport& slots)
        : contexte_{contexte}, slots_{slots} {}

    /// Begins a record.
    void Commencer();
    /// Ends what the line of level 1 read last has opened. Called before each line of level 1, and
    /// at the end of the record.
    void FermerStructure();

    /// Lines of level 1 that open a structure.
    void OuvrirPrincipal(Rang rang, const LigneGedcom& ligne);
    /// `libelle`: the tag that labels the row, mostly the tag itself. `evenement`: the value of the
    /// line says nothing, date and place follow.
    void OuvrirSlot(const LigneGedcom& ligne, std::string_view etiquette, std::string_view libelle,
                    bool evenement);
    /// An event that no row is for, put into the note under its TYPE.
    void OuvrirAutre(const LigneGedcom& ligne);

    /// Adds a line "message: value" to the text, behind the label of the event that is open. What
    /// continues the value goes there too.
    void AjouterTexte(NoMessage message, std::string_view valeur);
    /// Adds the value alone as a line of the text.
    void AjouterNote(std::string_view valeur);
    /// Adds the value as a line of the text behind the label of the event that is open, which there
    /// must be.
    void AjouterApresLibelle(std::string_view valeur);
    /// An event is open.
    [[nodiscard]] bool EnEvenement() const { return structure_ != Structure::Aucune; }
    /// Adds to the end of the text as it stands.
    void AjouterSuite(std::string_view texte);
    /// Passes over a line, and over what continues it.
    void Ignorer() { courant_ = nullptr; }
    /// Notes a line as not taken over, with all that stands under it.
    void Ecarter(const LigneGedcom& ligne, Constat constat = Constat::NonRepris);
    /// The line stands under one that was not taken over; it is noted.
    [[nodiscard]] bool EstEcartee(const LigneGedcom& ligne);

    /// A line of level 2 or deeper. False when the tag is not one of those that both records have
    /// in common: the caller takes it or has it noted.
    [[nodiscard]] bool LireSousLigne(const LigneGedcom& ligne);

    [[nodiscard]] const Principal& Lire(Rang rang) const {
        return principaux_[static_cast<std::size_t>(rang)];
    }
    /// The rows in use, then the text, without the first line of the record.
    void ComposerSuite(std::string& texte) const;
    /// Is there any of it?
    [[nodiscard]] bool ASuite() const { return aSlot_ || !notes_.empty(); }

private:
    enum class Structure : std::uint8_t { Aucune, Principal, Slot, Autre };

    /// The line stands directly under the one that opened the event.
    [[nodiscard]] bool SousEvenement() const {
        return EnEvenement() && contexte_.pile.Niveau() == 2;
    }
    [[nodiscard]] std::string& Notes() {
        return structure_ == Structure::Autre ? notesAutre_ : notes_;
    }
    void GarderValeur(const LigneGedcom& ligne);
    void NoterFaitNu();
    void OuvrirStructure(Structure structure, std::string_view libelle);
    void Continuer(const LigneGedcom& ligne, bool nouvelleLigne);
    bool LireDate(const LigneGedcom& ligne);
    bool LireLieu(const LigneGedcom& ligne);
    bool LireHeure(const LigneGedcom& ligne);
    bool LireType(const LigneGedcom& ligne);
    bool LireAdresse(const LigneGedcom& ligne);
    bool LireAdoption(const LigneGedcom& ligne);
    bool LireCitation(const LigneGedcom& ligne);
    /// What a citation says of its event, and the words that it quotes.
    bool LireCorpsDeSource(const LigneGedcom& ligne);
    bool LireTexteLibelle(const LigneGedcom& ligne);
    /// Adds a value to the row of `etiquette`; false when there is no row left.
    bool AjouterAuSlot(const LigneGedcom& ligne, std::string_view etiquette);

    const ContexteImport& contexte_;
    SlotsImport& slots_;
    std::array<Principal, 2> principaux_;
    std::string notes_;

    Structure structure_ = Structure::Aucune;
    std::string libelle_;  ///< of the open event, in the user's language
    Rang principal_ = Rang::Premier;
    std::size_t slot_ = SlotsImport::Aucun;
    bool aSlot_ = false;

    // The event that goes to the note: gathered, then written as one line at its end.
    DateLue dateAutre_;
    std::string lieuAutre_;
    std::string valeurAutre_;
    std::string notesAutre_;

    /// The line of an event of which the file only says that it took place; line 0: none is open.
    struct FaitNu {
        std::uint32_t ligne = 0;
        std::string chemin;
        std::size_t notes = 0;  ///< bytes of the note when it was opened
    };
    FaitNu nu_;

    std::string* courant_ = nullptr;  ///< the text that CONT and CONC continue
    bool courantTient_ = false;       ///< that text is one line of its record: no line break fits
    std::size_t niveauEcarte_ = 0;    ///< lines deeper than this are not taken over; 0: none
};

/// The age of an AGE line in the user's words.
[[nodiscard]] std::string TraduireAge(std::string_view age, TextesImport& textes);

}  // namespace dorvane::interchange
