#pragma once

#include "shell/Catalogue.h"
#include "shell/Dialogue.h"
#include "shell/Ecran.h"
#include "shell/Horloge.h"
#include "shell/Parametres.h"
#include "shell/Progression.h"
#include "values/FormesNom.h"
#include "values/MotsDates.h"
#include "values/Noms.h"
#include "values/Numeros.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dorvane::storage {
class Base;
class Disque;
enum class Incident;
}  // namespace dorvane::storage

namespace dorvane::shell {

class Communes;

/// What the session cannot do by itself. All outlive the session.
struct Ports {
    Dialogue& dialogue;
    Progression& progression;
    Horloge& horloge;
    Ecran& ecran;
    storage::Disque& disque;
};

/// One of the two reference persons and the numbers of the family around that person.
struct DeCujus {
    NoOrdre individu{};  ///< 0: none chosen
    /// By person number, from 0 on: 0 no number; positive, index into `numerosAsc`; negative,
    /// minus the index into `numerosDesc`. Empty while there is no numbering.
    std::vector<std::int32_t> sosa;
    std::vector<std::int32_t> numerosAsc;  ///< from index 1: Sosa number, at most 16383
    std::vector<std::string> numerosDesc;  ///< from index 1: string such as ".1a2"
    bool perime = false;                   ///< must be computed again before use
    std::string libelle;                   ///< menu caption, "[...]" or "{...}" when none

    /// The number of a person as it is shown, without brackets; empty when there is none.
    [[nodiscard]] std::string NumeroDe(NoOrdre individu) const;
};

/// All that the program holds between two commands: the open base, the settings, the texts, the
/// current person. Every operation receives it.
class Session {
public:
    Session(const Lieux& lieux, const Ports& ports);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Dialogue& dialogue;
    Progression& progression;
    Horloge& horloge;
    Ecran& ecran;
    storage::Disque& disque;

    Parametres parametres;
    Catalogue catalogue;
    /// With which places are completed; never null.
    std::unique_ptr<Communes> communes;

    /// The open base; null when none is open.
    std::unique_ptr<storage::Base> base;

    std::filesystem::path CheminBase;     ///< empty when no base is open
    std::filesystem::path CheminEchange;  ///< `CheminBase` with "LGR" as its last three letters
    std::filesystem::path CheminJournal;  ///< the same with "LOG"
    std::filesystem::path CheminGedcom;   ///< the same with "GED"
    std::string NomBase;                  ///< file name without extension, in code page 1252
    NoOrdre PersonneEnCours{};            ///< person of the main window; 0 when none
    NoOrdre PersonneFiche{};              ///< person of the person sheet; 0 when none
    std::array<DeCujus, 2> deCujus;       ///< `De Cujus` 1 and 2 at 0 and 1
    int compteurMinuterie = 0;            ///< ticks since the last automatic save
    dorvane::TypeTri TypeTri =
        dorvane::TypeTri::Naissance;  ///< sort order that the next new base starts with
    bool sansReglages = false;        ///< the user knows that the settings cannot be saved
    /// The index follows the flags of the open base. False once one of them has changed: every
    /// commit of a sheet then writes name and text again.
    bool indexationFaite = true;
    /// What the base has reported since it was opened, with the number of the record. At most 100.
    std::vector<std::pair<storage::Incident, std::uint32_t>> incidents;

    /// Imports a ".LGR" or ".GED" file, set by the floor above. Empty: such files are ignored.
    std::function<void(const std::filesystem::path&)> importer;

    [[nodiscard]] bool BaseOuverte() const { return base != nullptr; }

    /// The words of dates in the language in use.
    [[nodiscard]] const MotsDates& Mots() const { return motsDates_; }
    /// The order in which a date is typed.
    [[nodiscard]] OrdreDate Ordre() const { return ordreDate_; }
    /// The template of display names.
    [[nodiscard]] const ModeleNom& Modele() const { return modeleNom_; }
    /// The rules of names: the particles of the settings, moved or not as the open base says.
    [[nodiscard]] const ReglesNoms& Regles() const;

    /// Takes over what was changed in `parametres.generaux` or in the catalogue: words of dates,
    /// order of dates, name template, particles.
    void AppliquerReglages();

    /// Takes an open base over as the one of the session, or gives it up with null.
    void PoserBase(std::unique_ptr<storage::Base> nouvelle);

    /// The working folder for temporary files, no trailing separator.
    [[nodiscard]] const std::filesystem::path& Travail() const {
        return parametres.generaux.travail;
    }

    /// A text of the catalogue in use, in code page 1252; empty when there is none.
    [[nodiscard]] std::string Message(NoMessage no) const { return catalogue.Message(no); }

private:
    class Veilleur;

    MotsDates motsDates_;
    OrdreDate ordreDate_ = OrdreDate::JourMoisAnnee;
    ModeleNom modeleNom_;
    mutable ReglesNoms regles_;
    std::unique_ptr<Veilleur> veilleur_;
};

}  // namespace dorvane::shell
