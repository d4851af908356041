#pragma once

#include "shell/Ini.h"
#include "shell/Magasin.h"
#include "values/Noms.h"
#include "values/Sexe.h"

#include <array>
#include <cstddef>
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

/// Most bases that are remembered as opened before.
inline constexpr std::size_t TailleHistorique = 5;

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

/// One role of a kind of event.
struct RoleEvenement {
    bool principal;     ///< the person whom the event is about
    Sexe sexe;          ///< `Vide` for either
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
    int sauvegardesGardees = 5;             ///< backups of other days, 0 to 99
    bool assistant = false;
    bool barreMenus = false;    ///< the icon bar shows
    bool barreFenetres = true;  ///< the window bar shows
    bool motClePrenom = false;  ///< what a new base starts with
    bool motCleNom = false;     ///< what a new base starts with
    std::string icones;         ///< button numbers joined by ",", 99 a separator
    std::string affichageNom;   ///< name template, each token followed by "/"
    std::string ordreDate;      ///< "dd/mm/yyyy" or one of the four others
    bool triImport = true;      ///< an import offers to sort the base
    /// Character set of GEDCOM exports: "0" ASCII, "1" ANSI, "2" ANSEL, "3" HTML, "4" UTF-8.
    std::string jeuExport;
    Affichage affichage;                            ///< what a new base starts with
    std::vector<Particule> particules;              ///< their order matters
    std::vector<std::filesystem::path> historique;  ///< `TailleHistorique` at most, newest first
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

/// The leading number of a text, blanks before it passed over; 0 when there is none. What would not
/// fit is the nearest that does.
[[nodiscard]] std::int32_t NombreIndulgent(std::string_view texte);

/// A path as the settings keep it, UTF-8; bytes of it that are not UTF-8 go through private
/// characters and come back.
[[nodiscard]] std::string CheminVersUtf8(const std::filesystem::path& chemin);
[[nodiscard]] std::filesystem::path Utf8VersChemin(std::string_view utf8);

/// A path as it is shown, in code page 1252: what that lacks is shown as "?".
[[nodiscard]] std::string CheminAffiche(const std::filesystem::path& chemin);

/// The settings: what is on disk (`magasin`) and what the program works with.
class Parametres {
public:
    explicit Parametres(Lieux lieux);

    /// Reads everything at start-up; at the first run fills the store with the defaults, or with
    /// what an older ".ini" holds, and saves it. Tells what became of the file.
    Magasin::Etat ChargerParametres();

    /// Reads the options of a base when it is opened or created: from its section, else from an
    /// older ".ini", else the defaults. True when it has a section.
    bool LireParametresBase(const std::filesystem::path& chemin);

    /// Writes the options of the base in its section. False when the system refuses.
    bool SauverParametresBase(const std::filesystem::path& chemin);

    /// Saves the working folder at once. False when the system refuses.
    bool SauverTravail();

    /// Writes the options of the program. False when the system refuses.
    bool SauverParametres();

    /// Puts `chemin` at the head of the history, with what other programs have put there since,
    /// and saves it. At most 5 stay. False when the system refuses.
    bool MemoriserHistorique(const std::filesystem::path& chemin);

    /// A value of any section, `defaut` when it is absent. Section and key in UTF-8, values in code
    /// page 1252.
    [[nodiscard]] std::string Valeur(std::string_view section, std::string_view cle,
                                     std::string_view defaut = {}) const;

    /// Changes one value and saves it at once. False when the system refuses.
    bool SauverValeur(std::string_view section, std::string_view cle, std::string_view valeur);

    /// The keys of a section that is a list of words, in order, in code page 1252.
    [[nodiscard]] std::vector<std::string> Mots(std::string_view section) const;
    /// Adds a word to such a section, or takes it away, and saves. `mot` in code page 1252.
    bool AjouterMot(std::string_view section, std::string_view mot, std::string_view valeur = {});
    bool SupprimerMot(std::string_view section, std::string_view mot);

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
    void RemplirListes(std::string_view ini);
    void LireGeneraux();
    void EcrireGeneraux();
    void EcrireHistorique();
};

}  // namespace dorvane::shell
