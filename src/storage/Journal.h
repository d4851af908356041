#pragma once

#include "storage/Disque.h"
#include "values/Numeros.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace dorvane::storage {

/// The before-images of one transaction, in the file with the extension "LOG".
///
/// A record is 1004 bytes: `Num4` position, then the 1000 bytes that stood there. Each batch begins
/// with a seal: a record of the same form whose position lies just behind the last commit, where
/// its bytes do no harm, and which holds the number of records of the batch, their checksum and the
/// name of the base. A batch that did not reach the disk whole is thus known and left out: nothing
/// had been overwritten yet. A journal without seals, as older programs leave it, is replayed
/// record by record.
class Journal {
public:
    static constexpr std::uint32_t TailleImage = 1000;
    static constexpr std::uint32_t TailleFiche = 1004;

    /// The journal of `base`. `disque` outlives it. Nothing is made before the first `Ecrire`.
    Journal(Disque& disque, const std::filesystem::path& base);

    /// Has the image at `debut` been taken in this transaction?
    [[nodiscard]] bool Contient(Position debut) const { return pris_.contains(debut.valeur); }
    /// Nothing has been taken in this transaction.
    [[nodiscard]] bool Vide() const { return pris_.empty(); }

    /// Adds `longueur` bytes of `base` from `debut` on to the batch, in pieces of 1000. The last
    /// piece is drawn back so as to end with the area, unless the area is shorter than a piece.
    void Prendre(Fichier& base, Position debut, std::uint32_t longueur);

    /// Writes the batch and returns once it is on the disk. `finCommise`: last byte of the last
    /// commit. False when the system refused: the batch goes on waiting and may be written again.
    [[nodiscard]] bool Ecrire(std::uint32_t finCommise);

    /// Removes the file: the instant of the commit. False when the system refused; it may be asked
    /// again.
    [[nodiscard]] bool Supprimer();
    /// Lets writes go on after a refusal. The batch is then written again as a whole, so that a
    /// flush that failed does no harm.
    void Reprendre() {
        if (fichier_) fichier_->Reprendre();
    }

private:
    Disque& disque_;
    std::filesystem::path chemin_;
    std::string nomBase_;
    std::unique_ptr<Fichier> fichier_;
    std::uint64_t fin_ = 0;  ///< bytes written so far
    bool nomme_ = false;     ///< its name is safe on the disk
    std::string lot_;        ///< records of the batch that waits
    std::unordered_set<std::uint32_t> pris_;
};

/// The journal of a base: its last three letters replaced by "LOG".
[[nodiscard]] std::filesystem::path CheminJournal(const std::filesystem::path& base);

/// What a journal tells of itself before it is replayed.
struct EtatJournal {
    bool lisible = false;          ///< false: it cannot be opened, or a reading of it failed
    std::string base;              ///< file name of its base; empty when it does not tell
    std::uint32_t finCommise = 0;  ///< last byte of the commit that it leads back to; 0 unknown
    std::string enTete;  ///< first 200 bytes of the base as it would bring them back, or empty
};
[[nodiscard]] EtatJournal ExaminerJournal(Disque& disque, const std::filesystem::path& chemin);

/// Whether a journal found beside `base` is that of another base of the folder: "x.LGD" and "x.lgd"
/// have theirs under one name.
[[nodiscard]] bool EstDAutrui(Disque& disque, const EtatJournal& journal,
                              const std::filesystem::path& base);

/// Brings `base` back to its last commit with the journal at `chemin`, which stays where it is.
/// Records that name position 0 or one past the end of `base` are skipped, a torn last one is
/// dropped. Answers how many images were written back; nothing when the journal could not be read.
[[nodiscard]] std::optional<std::uint32_t> RejouerJournal(Disque& disque,
                                                          const std::filesystem::path& chemin,
                                                          Fichier& base);

}  // namespace dorvane::storage
