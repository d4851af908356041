#pragma once

#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

namespace dorvane::storage {

/// What the system has refused, from bad to worse.
enum class Defaut {
    Aucun,
    Ecriture,  ///< what should have been written is still known
    Vidage,    ///< nobody knows what the disk holds of what was written since the last flush
    Lecture,   ///< what was read is not what the file holds
};

/// The bytes of one open file, by 1-based position. Closed when the object goes; an error of
/// closing is swallowed.
///
/// No call reports an error. The first operation that the system refuses is remembered and the
/// writes after it do nothing, so that the commit asks `EnDefaut` once, before it makes anything
/// definitive, and no caller in between has to. What a refused write should have written is the
/// caller's to keep: after `Reprendre` it may be written again.
class Fichier {
public:
    Fichier() = default;
    virtual ~Fichier() = default;
    Fichier(const Fichier&) = delete;
    Fichier& operator=(const Fichier&) = delete;

    /// Reads from `debut` (not 0) on. Answers how many bytes there were; those past the end of the
    /// file are set to 0. Bytes that the file has and the system does not give are a fault.
    virtual std::size_t Lire(Position debut, std::span<char> octets) = 0;
    virtual void Ecrire(Position debut, std::span<const char> octets) = 0;
    /// Returns once all that was written is on the disk itself. The name of a file that was just
    /// created is safe after `Disque::ViderDossier` only.
    virtual void Vider() = 0;
    [[nodiscard]] virtual std::uint64_t Taille() = 0;
    /// What was refused, the worst of it.
    [[nodiscard]] virtual Defaut DefautDe() const = 0;
    [[nodiscard]] bool EnDefaut() const { return DefautDe() != Defaut::Aucun; }
    /// Forgets refused writes and flushes, so that they can be tried again once there is room. A
    /// reading that failed is not forgotten.
    virtual void Reprendre() = 0;
};

/// A lock held on a base. Given back when the object goes, or when the process dies.
class Verrou {
public:
    Verrou() = default;
    virtual ~Verrou() = default;
    Verrou(const Verrou&) = delete;
    Verrou& operator=(const Verrou&) = delete;
};

enum class ModeOuverture {
    LireEcrire,    ///< an existing file
    LectureSeule,  ///< an existing file, never written
    Neuf,          ///< a new file; refused when the name is taken
    Creer,         ///< a new file; what stood under the name, a link too, goes
};

enum class EtatVerrou {
    Pris,
    Occupe,  ///< another program, or another `Base` of this one, holds it
    Refuse,  ///< the system does not let us make the lock
};

struct ResultatVerrou {
    EtatVerrou etat = EtatVerrou::Refuse;
    std::unique_ptr<Verrou> verrou;
};

/// All that a base does with files goes through here, so that a test can refuse, tear or stop any
/// operation. An operation that answers bool says whether the system did it.
class Disque {
public:
    Disque() = default;
    virtual ~Disque() = default;
    Disque(const Disque&) = delete;
    Disque& operator=(const Disque&) = delete;

    /// Null when the system refuses or the file is not there.
    [[nodiscard]] virtual std::unique_ptr<Fichier> Ouvrir(const std::filesystem::path& chemin,
                                                          ModeOuverture mode) = 0;
    [[nodiscard]] virtual bool Existe(const std::filesystem::path& chemin) = 0;
    [[nodiscard]] virtual bool Supprimer(const std::filesystem::path& chemin) = 0;
    /// Replaces `vers` if it is there.
    [[nodiscard]] virtual bool Renommer(const std::filesystem::path& de,
                                        const std::filesystem::path& vers) = 0;
    /// Copies the bytes and the rights and returns once they are on the disk. Replaces `vers`; the
    /// caller copies beside and renames when `vers` must never be half there.
    [[nodiscard]] virtual bool Copier(const std::filesystem::path& de,
                                      const std::filesystem::path& vers) = 0;
    /// Gives `chemin` the rights, and where it may the owner, that `comme` has.
    virtual void DonnerDroits(const std::filesystem::path& chemin,
                              const std::filesystem::path& comme) = 0;
    /// Makes removals, renamings and new names in the folder of `fichier` safe on the disk.
    virtual bool ViderDossier(const std::filesystem::path& fichier) = 0;
    /// Advisory lock by a file of its own beside `base`. Removed when given back; one left behind
    /// by a dead program locks nobody out.
    [[nodiscard]] virtual ResultatVerrou Verrouiller(const std::filesystem::path& base) = 0;
};

}  // namespace dorvane::storage
