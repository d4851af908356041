#pragma once

#include "storage/Commune.h"
#include "storage/Disque.h"
#include "storage/ImageLgx.h"
#include "storage/Progression.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

enum class OuvertureCommunes {
    Faite,
    Absente,    ///< there is no such file, or it may not be read
    Illisible,  ///< a file of another kind, or damaged beyond use
};

enum class EcritureCommunes {
    Faite,
    Refusee,          ///< the system refuses to write; the file is as before
    ChangeeAilleurs,  ///< somebody else has written the file since it was read; it is left alone
    Abandonnee        ///< the user gave up; the file is as before
};

class BaseCommunes;

struct ResultatCommunes {
    OuvertureCommunes etat = OuvertureCommunes::Absente;
    std::unique_ptr<BaseCommunes> base;
};

/// The gazetteer that helps to type places: communes by number, by name and by sound. Names are
/// found by their comparison form (`Replie`), sounds by `ClePhonetique`.
class BaseCommunes {
public:
    /// One cell of each index is for its sentinel.
    static constexpr std::uint32_t MaxCommunes = ImageLgx::MaxCellules - 1;

    /// Reads a file into memory and closes it. `disque` outlives the object.
    [[nodiscard]] static ResultatCommunes OuvrirCommunes(Disque& disque,
                                                         const std::filesystem::path& chemin);

    /// Highest commune number; deleted ones keep theirs.
    [[nodiscard]] std::uint32_t Nombre() const { return image_.Nombre(AireLgx::Communes); }
    /// An empty name means a deleted commune, a damaged record or a number out of reach.
    [[nodiscard]] Commune LireCommune(NoCommune n) const;

    /// All communes by their numbers from 1, deleted ones with an empty name. Nothing when they
    /// would hold more than the file: it is damaged.
    [[nodiscard]] std::optional<std::vector<Commune>> Toutes() const;

    /// All communes of a name, in the order in which they came in.
    [[nodiscard]] std::vector<NoCommune> ChercherCommune(std::string_view nom) const;
    /// All communes of a phonetic key.
    [[nodiscard]] std::vector<NoCommune> ChercherSoundex(std::string_view cle) const;
    /// At most `max` communes whose name begins with `debut`, in the order of names; all names
    /// for an empty one.
    [[nodiscard]] std::vector<NoCommune> ChercherDebut(std::string_view debut,
                                                       std::size_t max) const;

    /// Adds a commune. 0 when its name is empty, it is too long, or the base is full.
    NoCommune AjouterCommune(const Commune& commune);
    /// Replaces what a commune holds. False, and nothing done, when there is no such commune, the
    /// new name is empty or all is too long.
    bool MajCommune(NoCommune n, const Commune& commune);
    /// The number stays unused. False when there is no such commune.
    bool SupprimerCommune(NoCommune n);

    [[nodiscard]] bool Modifiee() const { return modifiee_; }
    /// Writes the file beside and renames it, when anything has changed.
    [[nodiscard]] EcritureCommunes EnregistrerCommunes();
    /// Writes the base anew without what is dead, through "Commune.reo" beside the file. `Refusee`
    /// also when the file is damaged. Where it is not done, all is as it was.
    [[nodiscard]] EcritureCommunes ReorganiserCommunes(Progression& progression);

private:
    /// One of the two indexes, with the link of a record that belongs to it.
    struct Index {
        AireLgx aire;
        NoCommune EnregistrementCommune::*suivante;
        std::size_t decalage;  ///< of the link, in bytes behind the first one
        std::string_view sentinelle;
    };
    static const Index ParNom;
    static const Index ParSon;

    BaseCommunes(Disque& disque, std::filesystem::path chemin, ImageLgx image, std::size_t marque);

    /// False for a deleted commune. `*liens`: where the links of the record stand.
    bool Lire(NoCommune n, EnregistrementCommune& e, Position* liens = nullptr) const;
    [[nodiscard]] std::uint32_t NbEntrees(const Index& index) const;
    /// Text of an entry, from 1, without its "#"; empty for a damaged one.
    [[nodiscard]] std::string_view TexteEntree(const Index& index, std::uint32_t i) const;
    [[nodiscard]] NoCommune PremiereDe(const Index& index, std::uint32_t i) const;
    /// First entry that is not below `cle`; one past the last when there is none.
    [[nodiscard]] std::uint32_t ChercherEntree(const Index& index, std::string_view cle) const;
    [[nodiscard]] std::vector<NoCommune> Chaine(const Index& index, NoCommune premiere) const;
    [[nodiscard]] std::vector<NoCommune> ChercherCle(const Index& index,
                                                     std::string_view cle) const;
    void Inscrire(const Index& index, std::string_view cle, NoCommune n);
    void Rayer(const Index& index, std::string_view cle, NoCommune n);
    void OterEntree(const Index& index, std::uint32_t i);
    void FixerPremiere(const Index& index, std::uint32_t i, NoCommune n);
    void Enchainer(const Index& index, NoCommune n, NoCommune suivante);
    void EcrireFiche(NoCommune n, EnregistrementCommune& e, const Commune& commune);

    Disque& disque_;
    std::filesystem::path chemin_;
    ImageLgx image_;
    std::size_t marque_;  ///< of the bytes as they stand in the file
    bool modifiee_ = false;
};

/// The key by which a name stands in the name index.
[[nodiscard]] std::string CleCommune(std::string_view nom);

/// A dense file of these communes, numbered from 1 in their order; those without a name leave a
/// hole. Both indexes are sorted once. False once the user gives up; `octets` is then not used.
[[nodiscard]] bool ComposerLgx(std::span<const Commune> communes, Progression& progression,
                               std::string& octets);

/// Writes a new base of communes beside `chemin`, as `voisin`, and renames it. False when the
/// system refuses; what stood there stays.
[[nodiscard]] bool EcrireLgx(Disque& disque, const std::filesystem::path& chemin,
                             const std::filesystem::path& voisin, std::string_view octets);

}  // namespace dorvane::storage
