#pragma once

#include "storage/Disque.h"
#include "values/Numeros.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>

namespace dorvane::storage {

/// The before-images of one transaction, in the file with the extension "LOG".
///
/// A record is 1004 bytes: `Num4` position, then the 1000 bytes that stood there. Each batch begins
/// with a seal: a record of the same form whose position lies just behind the last commit, where
/// its bytes do no harm, and which holds the number of records of the batch and their checksum. A
/// batch that did not reach the disk whole is thus known and left out: nothing had been overwritten
/// yet. A journal without seals, as older programs leave it, is replayed record by record.
class Journal {
public:
    static constexpr std::uint32_t TailleImage = 1000;
    static constexpr std::uint32_t TailleFiche = 1004;

    /// `disque` outlives the journal. Nothing is made before the first `Ecrire`.
    Journal(Disque& disque, std::filesystem::path chemin);

    /// Has the image at `debut` been taken in this transaction?
    [[nodiscard]] bool Contient(Position debut) const { return pris_.contains(debut.valeur); }
    /// Nothing has been taken in this transaction.
    [[nodiscard]] bool Vide() const { return pris_.empty(); }

    /// Adds `longueur` bytes of `base` from `debut` on to the batch, in pieces of 1000. The last
    /// piece is drawn back so as to end with the area, unless the area is shorter than a piece.
    void Prendre(Fichier& base, Position debut, std::uint32_t longueur);

    /// Writes the batch and returns once it is on the disk. `finCommise`: last byte of the last
    /// commit. False when the system refused.
    [[nodiscard]] bool Ecrire(std::uint32_t finCommise);

    /// Removes the file: the instant of the commit. False when the system refused.
    [[nodiscard]] bool Supprimer();

private:
    Disque& disque_;
    std::filesystem::path chemin_;
    std::unique_ptr<Fichier> fichier_;
    std::uint64_t fin_ = 0;  ///< bytes written so far
    std::string lot_;        ///< records of the batch that waits
    std::unordered_set<std::uint32_t> pris_;
};

/// Brings `base` back to its last commit with the journal at `chemin`, which stays where it is.
/// Records that name position 0 or one past the end of `base` are skipped, a torn last one is
/// dropped. Answers how many images were written back.
std::uint32_t RejouerJournal(Disque& disque, const std::filesystem::path& chemin, Fichier& base);

/// The first 30 bytes of the base as the journal would bring them back; empty when it holds none.
[[nodiscard]] std::string MarqueDuJournal(Disque& disque, const std::filesystem::path& chemin);

}  // namespace dorvane::storage
