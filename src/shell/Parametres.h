#pragma once

#include "shell/Magasin.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {

/// Where the program finds its files. All paths are absolute.
struct Lieux {
    std::filesystem::path repertoire;     ///< program folder: the ".mes" files, "France.lgx"
    std::filesystem::path configuration;  ///< folder of the settings and of older ".ini" files
    std::filesystem::path cache;          ///< takes "Temp" when the program folder is read-only
};

/// The places of this process: `DORVANE_PARTAGE` when set, else the folder of the executable if it
/// holds a ".mes", else "../share/dorvane" beside it; "dorvane" under `XDG_CONFIG_HOME` (or
/// "~/.config") and `XDG_CACHE_HOME` (or "~/.cache").
[[nodiscard]] Lieux LieuxDuSysteme();

/// One of the four sizes of the family chart.
struct Presentation {
    std::string nomPolice = "Arial";  ///< in code page 1252
    int taillePolice = 8;             ///< points
    int nombreCases = 8;              ///< boxes on a page
    bool proportionnel = true;        ///< text as large as its box allows

    friend bool operator==(const Presentation&, const Presentation&) = default;
};

/// How the chart looks. A colour is 24 bits, red in the lowest byte.
struct Affichage {
    std::uint32_t couleurFond = 16711808;
    bool degrade = true;
    std::string couleurDegrade{};  ///< channel of the grade, a word; empty is "Bleu"
    std::uint32_t couleurCadreHomme = 16776960;
    std::uint32_t couleurCadreFemme = 65535;
    std::uint32_t couleurCadreIndetermine = 12632256;
    std::uint32_t couleurPoliceHomme = 4194304;
    std::uint32_t couleurPoliceFemme = 255;
    std::uint32_t couleurPoliceIndetermine = 0;
    int maximumRechercheParente = 10;  ///< generations
    int typePresentation = 2;          ///< 1 to 4
    std::array<Presentation, 4> presentations{
        Presentation{"Arial", 8, 8, true}, Presentation{"Arial", 8, 32, true},
        Presentation{"Arial", 8, 48, true}, Presentation{"Arial", 8, 64, true}};

    /// The presentation in use.
    [[nodiscard]] const Presentation& Courante() const {
        return presentations[static_cast<std::size_t>(typePresentation - 1)];
    }
    friend bool operator==(const Affichage&, const Affichage&) = default;
};

/// The two layout numbers of the main display that a presentation sets.
struct Disposition {
    int large;
    int haute;
    friend bool operator==(const Disposition&, const Disposition&) = default;
};
[[nodiscard]] Disposition DispositionDe(int typePresentation);

/// A word that may stand beside a name without being part of its sort form.
struct MotParticule {
    std::string mot;  ///< in code page 1252, in the case that a name takes
    bool prenom;      ///< counts in given names
    bool nom;         ///< counts in surnames
    friend bool operator==(const MotParticule&, const MotParticule&) = default;
};

/// One role of a kind of event.
struct RoleEvenement {
    bool principal;     ///< the person whom the event is about
    char sexe;          ///< 'H', 'F', or ' ' for either
    std::string label;  ///< tag of the role, or the user's own word, in code page 1252
    friend bool operator==(const RoleEvenement&, const RoleEvenement&) = default;
};

/// The options of the program, in memory; texts in code page 1252.
struct ReglagesGeneraux {
    std::string langue;                     ///< stem of the ".mes" file, UTF-8
    std::filesystem::path aide;             ///< help file
    std::filesystem::path travail;          ///< working folder, no trailing separator
    std::filesystem::path fichierCommunes;  ///< base of communes
    std::filesystem::path geneanet;         ///< folder of the hand-over
    int frequenceSauvegarde = 15;           ///< minutes
    bool assistant = false;
    bool barreMenus = false;    ///< the icon bar shows
    bool barreFenetres = true;  ///< the window bar shows
    bool motClePrenom = false;  ///< what a new base starts with
    bool motCleNom = false;     ///< what a new base starts with
    std::string icones;         ///< button numbers joined by ",", 99 a separator
    std::string affichageNom;   ///< name template, each token followed by "/"
    std::string ordreDate;      ///< "dd/mm/yyyy" or one of the four others
    Affichage affichage;        ///< what a new base starts with
    std::vector<MotParticule> particules;
    std::vector<std::filesystem::path> historique;  ///< at most 5, most recent first
};

/// The options of one base, in memory; texts in code page 1252.
struct ReglagesBase {
    std::uint32_t personneEnCours = 1;
    std::uint32_t deCujus1 = 0;
    std::uint32_t deCujus2 = 0;
    std::string conversionNom;     ///< "1" upper case, "2" capitals, else as typed
    std::string conversionPrenom;  ///< the same
    std::string conversionLieu;    ///< the same
    std::string nomImage;
    std::string auteur;
    std::array<std::string, 8> adresse;
    std::string typeDocument;  ///< the types, each followed by "/"
    Affichage affichage;
};

/// The value of a key in an older settings file, trimmed; empty when it is not there. The first
/// line that starts with the key behind the first line that holds "[section]" counts. `section`
/// and `cle` are UTF-8, the file is in code page 1252 and the answer too.
[[nodiscard]] std::string LireIni(const std::filesystem::path& fichier, std::string_view section,
                                  std::string_view cle);

/// The settings: what is on disk (`magasin`) and what the program works with.
class Parametres {
public:
    explicit Parametres(Lieux lieux);

    /// Reads everything at start-up; at the first run fills the store with the defaults, or with
    /// what an older ".ini" holds, and saves it. Tells what became of the file.
    Magasin::Etat ChargerParametres();

    /// Reads the options of a base when it is opened or created: from its section, else from an
    /// older ".ini", else the defaults.
    void LireParametresBase(const std::filesystem::path& chemin);

    /// Writes the options of the base in its section. False when the system refuses.
    bool SauverParametresBase(const std::filesystem::path& chemin);

    /// Writes the options of the program. False when the system refuses.
    bool SauverParametres();

    /// Puts the history at once into the store and on disk.
    bool SauverHistorique();

    /// Saves one value of section `Defaut` at once. `valeur` in code page 1252.
    bool SauverValeur(std::string_view cle, std::string_view valeur);

    /// A value of any section, in code page 1252; `defaut` when it is absent.
    [[nodiscard]] std::string Valeur(std::string_view section, std::string_view cle,
                                     std::string_view defaut = {}) const;

    /// The roles of a kind of event, in order; empty when the kind is not known. `type` in code
    /// page 1252.
    [[nodiscard]] std::vector<RoleEvenement> RolesEvenement(std::string_view type) const;

    /// The kinds of event known, in order, in code page 1252.
    [[nodiscard]] std::vector<std::string> ListeEvenements() const;

    /// The folder "Temp": in the program folder when that can be written, else in the cache. It is
    /// created. Empty when the system refuses both.
    [[nodiscard]] std::filesystem::path DossierTemp() const;

    Lieux lieux;
    Magasin magasin;
    ReglagesGeneraux generaux;
    ReglagesBase base;

private:
    void RemplirPremiereFois();
    void LireGeneraux();
};

}  // namespace dorvane::shell
