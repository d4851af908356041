#pragma once

#include "storage/Disque.h"
#include "storage/Journal.h"
#include "values/Numeros.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dorvane::storage {

/// Bytes of the longest text that is read or written. A text of a damaged file may have its end
/// gigabytes further on; no family has written as much.
inline constexpr std::size_t MaxTexte = 64U << 20U;

/// A stretch of the file, smaller than a block, that a commit overwrites in place.
struct Zone {
    Position debut{};
    std::uint32_t longueur = 0;
};

/// The bytes of one base and its transaction: what is appended, what is overwritten, and the
/// journal that can undo it.
///
/// Appended bytes lie beyond the end of the last commit and wait in a tail of about 1 MB; they need
/// no image. Blocks that the last commit knows wait in memory (2 MB at most) until the commit; when
/// there are too many, their images go to the journal, the journal is flushed, and only then are
/// they overwritten.
///
/// When the system refuses a write, all that waits goes on waiting, in memory (64 MB of appended
/// bytes at most), and the next commit tries again: once there is room nothing is lost. When a
/// flush fails, nobody knows what the disk holds: no commit follows, but a copy may still be made.
/// After a reading that failed nobody knows what the base is: there is no copy either.
///
/// Reading goes through pages of 4 KB (16 MB of them at most, taken as they are touched) and, for
/// blocks, through copies of whole blocks (6 MB at most), so that a walk in any order asks the
/// system for each byte about once.
class Volume {
public:
    /// `base` names the journal. `disque` outlives the volume. `finFichier` is the last byte in
    /// use; `nouveau`: there is no commit to come back to, and no journal before the first one.
    Volume(Disque& disque, std::unique_ptr<Fichier> fichier, const std::filesystem::path& base,
           std::uint32_t finFichier, bool nouveau);
    ~Volume();
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    /// Last byte in use; the next allocation starts behind it.
    [[nodiscard]] std::uint32_t FinFichier() const { return finFichier_; }

    /// Only right after the opening, once the header is read: the end of the last commit.
    void FixerFin(std::uint32_t fin) { finFichier_ = finCommise_ = fin; }

    /// Reads what stands at `debut`, wherever it waits. Answers how many bytes there are before
    /// the end of the file; the rest is set to 0. Position 0 gives 0 bytes.
    std::size_t Lire(Position debut, std::span<char> octets);

    /// The text from `debut` up to the first byte `fin`, which is left out. Ends at the end of the
    /// file, or once `limite` bytes are read. `*trouve` tells whether `fin` was seen.
    [[nodiscard]] std::string LireTexte(Position debut, std::size_t limite, bool* trouve = nullptr,
                                        char fin = '#');
    /// The same, added to `sortie`. True when `fin` was seen.
    bool LireTexteDans(std::string& sortie, Position debut, std::size_t limite, char fin = '#');

    /// These bytes go before what is appended next: they end a record that a damaged file leaves
    /// open.
    void Terminer(std::string octets) { aTerminer_ = std::move(octets); }

    /// Appends and answers the position; 0 when the file is full (4 GB), or when too much waits
    /// for a disk that refuses.
    Position Ajouter(std::string_view octets);
    /// The same for two pieces that stand behind each other, such as a text and its "#".
    Position Ajouter(std::string_view debut, std::string_view suite);

    /// Overwrites an allocated area, with its image in the journal if the last commit knows it.
    void EcrireBloc(Position debut, std::string_view octets);
    /// Reads a block as the last `EcrireBloc` left it.
    void LireBloc(Position debut, std::span<char> octets);

    /// The areas of the last commit whose images must be taken before anything is overwritten.
    void ProtegerZones(std::vector<Zone> zones) { zones_ = std::move(zones); }

    /// Ends the transaction: all that waits, then `entete` at position 1. False when the system
    /// refused: the file on the disk, once reopened, is the previous commit, and this may be called
    /// again.
    [[nodiscard]] bool Commettre(std::string_view entete);
    /// The file is not under its name yet: as before the first commit, nothing needs a journal.
    void OublierCommit() {
        finCommise_ = 0;
        zones_.clear();
    }
    /// Writes what the commit of `entete` would leave into a new file at `chemin`, on another disk
    /// perhaps. False when the system refuses, after a reading that failed, and when not all could
    /// be kept; no file is left.
    [[nodiscard]] bool CopierVers(Disque& disque, const std::filesystem::path& chemin,
                                  std::string_view entete);

    /// Flushes what has been written; what waits in memory goes on waiting.
    void ViderSurDisque() { fichier_->Vider(); }

    /// A write, a reading or a flush has been refused since the last commit.
    [[nodiscard]] bool EnDefaut() const;
    /// How many bytes may wait in memory: appended ones, and overwritten blocks.
    void FixerTampons(std::size_t queue, std::size_t attente) {
        maxQueue_ = queue;
        maxAttente_ = attente;
    }
    /// Size of the file itself, without what waits.
    [[nodiscard]] std::uint64_t TailleDisque() { return fichier_->Taille(); }

private:
    static constexpr std::size_t TaillePage = 4096;
    static constexpr std::size_t NbPages = 4096;
    static constexpr std::size_t MaxBlocsLus = 6U << 20U;
    static constexpr std::size_t PagesParLecture = 16;
    static constexpr std::size_t MaxRefus = 64U << 20U;

    /// Bytes of one page of the file, from an offset on.
    std::string_view Page(std::uint64_t decalage);
    /// What stands at an offset, in the file or in the tail; as much as lies together.
    std::string_view Morceau(std::uint64_t decalage);
    void OublierBloc(Position debut);
    /// Keeps a block that waits to be written.
    void Retenir(Position debut, std::string_view octets);
    void OublierPages(std::uint64_t debut, std::uint64_t longueur);
    void EcrireFichier(Position debut, std::string_view octets);
    void ViderQueue();
    void ViderBlocs();
    void EcrireBlocs();
    [[nodiscard]] bool Journaliser();
    [[nodiscard]] bool Protegee(Position debut, std::size_t longueur) const;

    std::unique_ptr<Fichier> fichier_;
    Journal journal_;
    std::uint32_t finFichier_;
    std::uint32_t finCommise_;  ///< last byte of the last commit; 0 when there is none
    std::string aTerminer_;     ///< goes before what is appended next
    std::string queue_;         ///< appended bytes not yet written: they end at `finFichier_`
    std::map<std::uint32_t, std::string> blocs_;  ///< overwritten blocks that wait, by position
    std::size_t tailleBlocs_ = 0;
    std::size_t maxQueue_ = 1U << 20U;
    std::size_t maxAttente_ = 2U << 20U;
    std::vector<Zone> zones_;
    bool refuse_ = false;  ///< the journal: may be tried again
    bool plein_ = false;   ///< something could not be kept: no commit follows

    std::unordered_map<std::uint32_t, std::string> blocsLus_;  ///< read cache of whole blocks
    std::size_t tailleBlocsLus_ = 0;
    std::unique_ptr<char[]> pages_;          ///< read cache, `NbPages` pages side by side
    std::vector<std::uint32_t> noPage_;      ///< number of the page in each place, from 1; 0 empty
    std::vector<std::uint16_t> taillePage_;  ///< bytes of it that the file has
    std::uint32_t suivante_ = 0;             ///< page behind the last one read from the disk
};

}  // namespace dorvane::storage
