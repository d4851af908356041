#pragma once

#include "storage/Colonnes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::storage {

/// A person linked to an event.
struct LienEvenement {
    NoOrdre individu{};
    std::string role;  ///< as stored, at most 49 bytes
    friend bool operator==(const LienEvenement&, const LienEvenement&) = default;
};

/// What says the event in words.
struct DescriptionEvt {
    std::string lieu;
    std::string libelle;
    std::string type;  ///< kind, language-neutral form
    friend bool operator==(const DescriptionEvt&, const DescriptionEvt&) = default;
};

/// What `EcrireEvt` changes; a part that is not given stays as it was.
struct PartiesEvt {
    std::optional<std::int32_t> cleDate{};
    std::optional<std::string> note{};
    std::optional<std::vector<LienEvenement>> liens{};
    std::optional<std::vector<NoDocument>> documents{};
    std::optional<DescriptionEvt> description{};
};

/// Date key of an event without a date; it sorts first.
inline constexpr std::int32_t CleSansDate = -1000000;

/// `R_EVT`: the events. All parts are appended, then the head, then the cell is changed. Texts hold
/// no "#", fields of the description no byte 0.
class Evenements : public Colonne<NoEvenement, FormePosition> {
public:
    Evenements(Volume& volume, Marques& marques) : Colonne{volume, marques, 32} {}

    /// Day serial of the date; `CleSansDate` when there is none and for an empty cell.
    [[nodiscard]] std::int32_t CleDateEvt(NoEvenement e);
    [[nodiscard]] std::string LieuEvt(NoEvenement e) { return Description(e).lieu; }
    [[nodiscard]] std::string LibelleEvt(NoEvenement e) { return Description(e).libelle; }
    /// The kind as stored.
    [[nodiscard]] std::string TypeEvt(NoEvenement e) { return Description(e).type; }
    /// All three at once; valid until the next call. Empty, and an incident, when it has no end.
    [[nodiscard]] const DescriptionEvt& Description(NoEvenement e);
    [[nodiscard]] std::string NoteEvt(NoEvenement e);
    [[nodiscard]] std::vector<LienEvenement> Liens(NoEvenement e);
    [[nodiscard]] std::vector<NoDocument> Documents(NoEvenement e);

    void EcrireEvt(NoEvenement e, const PartiesEvt& parties);
    /// Takes the event away: its cell becomes 0.
    void EffacerEvt(NoEvenement e);
    void InitColonne();

private:
    static constexpr std::size_t MaxNumeros = 65535;  ///< no list of the file has more entries

    struct Tete {
        std::uint32_t cle = 0;
        Position note{};
        Position liens{};
        Position documents{};
        Position description{};
    };
    const Tete& LireTete(NoEvenement e);
    std::string LireListe(Position debut, std::size_t taille);
    Position AjouterListe(std::string_view entrees);
    Position AjouterDescription(const DescriptionEvt& description);
    void Oublier();
    Position AjouterLiens(const std::vector<LienEvenement>& liens);

    NoEvenement noTete_{};
    Tete tete_;
    NoEvenement noDescription_{};
    DescriptionEvt description_;
};

}  // namespace dorvane::storage
