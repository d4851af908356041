#pragma once

#include "storage/Colonnes.h"
#include "storage/Disque.h"
#include "storage/Documents.h"
#include "storage/EnTete.h"
#include "storage/Evenements.h"
#include "storage/Listes.h"
#include "storage/Marques.h"
#include "storage/MotsCles.h"
#include "storage/Progression.h"
#include "storage/R_INDEX.h"
#include "storage/R_TRI.h"
#include "storage/Slots.h"
#include "storage/Textes.h"
#include "storage/Volume.h"
#include "values/Noms.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

namespace dorvane::storage {

enum class Ouverture {
    Faite,
    Introuvable,       ///< no such file
    Refusee,           ///< the system refuses to open, write or lock it
    Occupee,           ///< another program has it open
    PasUneBase,        ///< bears no version mark; nothing was written to it
    Abimee,            ///< a journal is there and could not be replayed
    JournalIllisible,  ///< a journal is there and cannot be read: it stays, nothing was written
    JournalDAutrui,    ///< the journal is that of another base of the folder: it stays
    NomReserve,        ///< bears a name that the program gives to files of its own
};

/// What a new base starts with.
struct OptionsBase {
    dorvane::TypeTri TypeTri = dorvane::TypeTri::Naissance;
    bool OptPrenomUnique = false;
    bool OptParticules = false;
};

/// One open genealogy database. Several may be open at a time, each on its own file. A base that
/// goes without `Fermer` loses what came after the last commit.
class Base {
    /// Set before the columns, which hold it.
    std::unique_ptr<Volume> volumePossede_;

public:
    Base(Disque& disque, std::filesystem::path chemin, std::unique_ptr<Verrou> verrou,
         std::unique_ptr<Volume> volume);
    ~Base();
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;

    EnTete entete;
    Marques marques;
    Volume& volume;
    /// Particles of names, for the sort keys. The initial ones until the floor above sets its own;
    /// `deplacer` follows `EnTete::OptParticules` by itself.
    ReglesNoms regles;

    MotsCles motsCles;
    ColonneSexes R_SEXE;
    ColonneAnnees<NoOrdre> R_NAISS;
    ColonneDeces R_DECES;
    ColonneParents R_PERE;
    ColonneParents R_MERE;
    ColonneNoms R_NOM;
    ColonneTextes<NoOrdre> R_TEXTE;
    ListeEnfants R_ENFANT;
    ListeNumeros<NoMariage> R_MARIAG;
    ColonnePartenaires R_EPOUX;
    ColonnePartenaires R_EPOUSE;
    ColonneAnnees<NoMariage> R_DEBMAR;
    ColonneAnnees<NoMariage> R_FINMAR;
    ColonneTextes<NoMariage> R_TXTMAR;
    Documents R_IMAGE;
    ListeNumeros<NoDocument> R_LSTIMG;
    ListeLiens R_LIEN;
    Evenements R_EVT;
    ListeEvenements R_LSTEVT;
    MotsIndex R_INDEX;
    TablesTri R_TRI;

    /// Next number of a kind, with its counter; 0 once the limit is reached. The 32001st person
    /// gets the base its overflow zone. Sort tables and cells are the caller's.
    [[nodiscard]] NoOrdre NouvelIndividu();
    [[nodiscard]] NoMariage NouveauMariage();
    [[nodiscard]] NoEvenement NouvelEvenement();
    [[nodiscard]] NoDocument NouveauDocument();
    /// Raises the highest person number to `n` at once, for imports that keep numbers.
    void FixerDernierIndividu(std::uint32_t n);

    /// Slots of the two sheets with the labels of their keywords.
    [[nodiscard]] DefinitionSlots DefinitionIndividu();
    [[nodiscard]] DefinitionSlots DefinitionMariage();

    /// Commits if any mark is set; the base stays open. False when the system refused: the file,
    /// once opened again, is the previous commit, while this object keeps all that was changed and
    /// may be asked again once there is room.
    [[nodiscard]] bool Enregistrer();
    /// Writes the base as it stands, changes included, into a new file at `chemin`; this one stays
    /// as it is. False when the system refuses; no file is left.
    [[nodiscard]] bool EnregistrerCopie(Disque& disque, const std::filesystem::path& chemin);
    /// Commits and gives up file and lock. Nothing may be called afterwards. False as above.
    [[nodiscard]] bool Fermer();
    /// Returns once what the file holds is on the disk itself, as closing and opening it again
    /// would. Changes no byte and commits nothing. False when the system refuses.
    [[nodiscard]] bool ViderSurDisque();
    /// The system has refused something since the last commit.
    [[nodiscard]] bool EnDefaut() const { return volume.EnDefaut(); }

    [[nodiscard]] const std::filesystem::path& Chemin() const { return chemin_; }

    /// Empties every cache of cells and records; the file is as it is.
    void InitColonnes();

private:
    friend struct Ouvreur;

    [[nodiscard]] DefinitionSlots Definition(const Slots& slots);
    void LireEnTete();
    void LireAnciensReglages();
    void ReconstruireSlots();
    /// Drops directory entries that lie outside a file of `taille` bytes; answers the last byte of
    /// the blocks that are left.
    [[nodiscard]] std::uint64_t VerifierRepertoires(std::uint64_t taille);
    /// The last byte in use of a file of `taille` bytes whose header says `fin`: the whole file
    /// when a cell names a record behind it. A last record that has no end is ended by what is
    /// written next. Only a file that does not end with a record, as its header says, is walked.
    [[nodiscard]] std::uint64_t FinDesFiches(std::uint64_t fin, std::uint64_t taille);
    void ViderColonnes();
    /// Gives all that waits to the volume; answers the 200 bytes of the header.
    [[nodiscard]] std::string PreparerEnTete();
    [[nodiscard]] bool PrendreSaPlace();
    /// Takes the file of a new base away that was never committed.
    void AbandonnerProvisoire();
    void EcrireRepertoiresEvt();
    void AllouerSuiteIndividus();
    [[nodiscard]] std::vector<Zone> ZonesDuCommit() const;

    Disque& disque_;
    std::filesystem::path chemin_;
    /// Where the file of a new base stands until its first commit; empty afterwards.
    std::filesystem::path provisoire_;
    std::unique_ptr<Verrou> verrou_;
};

struct ResultatOuverture {
    Ouverture etat = Ouverture::Refusee;
    std::unique_ptr<Base> base;  ///< set when `etat` is `Faite`
    bool reprise = false;        ///< a journal of a session that died was replayed
    /// Where a journal was put that belongs to a later state of the base, of which an older copy
    /// stands here; empty: there was none.
    std::filesystem::path journalEcarte{};
};

/// Whether a name is of those that the program gives to what lies beside a base: journal, backup,
/// lock, working files, in capitals or not. A base of that name would be taken for one of them.
[[nodiscard]] bool EstNomReserve(const std::filesystem::path& chemin);

/// How many persons the header of the file at `chemin` tells of; nothing when it cannot be read or
/// is no base. A journal beside it is not looked at.
[[nodiscard]] std::optional<std::uint32_t> CompterPersonnes(Disque& disque,
                                                            const std::filesystem::path& chemin);

/// Opens the file at `chemin`: lock, version mark, journal, header, sort tables. `disque` outlives
/// the base. `progression` shows the replay of a journal.
[[nodiscard]] ResultatOuverture OuvrirBase(Disque& disque, const std::filesystem::path& chemin,
                                           Progression& progression);

/// Makes a new base, which takes the place of what stands at `chemin` and of a journal beside it at
/// its first commit; until then it is written beside, and goes when it is given up.
[[nodiscard]] ResultatOuverture NouvelleBase(Disque& disque, const std::filesystem::path& chemin,
                                             const OptionsBase& options);

/// Removes the journal that lies beside a base which is about to be replaced: it belongs to no one
/// and must not be replayed. False when there is one and the system refuses, or when it is that of
/// another base of the folder.
[[nodiscard]] bool SupprimerJournal(Disque& disque, const std::filesystem::path& base);

}  // namespace dorvane::storage
