#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvane::shell {

/// The settings store: sections of keys with a text each, kept in one JSON file.
///
/// Sections, keys and values are UTF-8, and keep the order in which they were first written. Two
/// programs may use the file at once: what is written is only what this one has changed, laid over
/// what the file holds at that moment.
class Magasin {
public:
    using Entree = std::pair<std::string, std::string>;

    /// The file need not exist, nor its folder; both are made by the first `Enregistrer`.
    explicit Magasin(std::filesystem::path fichier) : fichier_{std::move(fichier)} {}

    enum class Etat {
        Absent,    ///< no file: the store is empty
        Lu,        ///< read
        Abime,     ///< not what we write: set aside as `misDeCote`, and the store is empty
        Illisible  ///< cannot be read or set aside: the store is empty and will not be written
    };

    /// Reads the file; what was in memory is forgotten.
    Etat Charger();

    /// Where a damaged file was moved to; empty when there was none.
    [[nodiscard]] const std::filesystem::path& MisDeCote() const { return misDeCote_; }

    /// Takes these keys of a section as the file holds them now; no key named: the whole section.
    /// What this program has changed and not yet written stays.
    void Relire(std::string_view section, const std::vector<std::string>& cles = {});

    /// The value, empty when it is absent.
    [[nodiscard]] std::string Lire(std::string_view section, std::string_view cle) const;

    /// The value, or nothing when it is absent: tells an empty value from none.
    [[nodiscard]] std::optional<std::string> Chercher(std::string_view section,
                                                      std::string_view cle) const;

    /// All keys of a section in order; empty when there is no such section.
    [[nodiscard]] std::vector<Entree> LireSection(std::string_view section) const;

    [[nodiscard]] std::vector<std::string> Sections() const;

    /// Changes a value in memory. A value equal to the one held is no change. Bytes that are not
    /// UTF-8 are replaced when written.
    void Ecrire(std::string_view section, std::string_view cle, std::string_view valeur);

    /// A key that is written again after this stands at the end of its section.
    void Supprimer(std::string_view section, std::string_view cle);

    /// Makes the section hold these keys, in this order for the new ones, and no other.
    void RemplacerSection(std::string_view section, const std::vector<Entree>& entrees);

    void SupprimerSection(std::string_view section);

    /// Writes what was changed since the last call: beside the file, flushed, then renamed over
    /// it. False when the system refuses; the changes then stay to be written.
    bool Enregistrer();

private:
    struct Section {
        std::string nom;
        std::vector<Entree> entrees;
    };
    using Contenu = std::vector<Section>;

    struct Change {
        std::string section;
        std::string cle;
        std::optional<std::string> valeur;  ///< nothing: the key was taken away
    };

    [[nodiscard]] Etat LireFichier(Contenu& contenu) const;
    [[nodiscard]] bool MettreDeCote();
    [[nodiscard]] const Section* Trouver(std::string_view section) const;
    static void Poser(Contenu& contenu, const Change& change);
    void Changer(Change change);

    std::filesystem::path fichier_;
    std::filesystem::path misDeCote_;
    Contenu contenu_;
    // What this program has changed and not yet written, in order.
    std::vector<Change> changes_;
    bool fige_ = false;
};

}  // namespace dorvane::shell
