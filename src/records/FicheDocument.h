#pragma once

#include "storage/Documents.h"
#include "values/Numeros.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// All that the window of a document shows; texts in code page 1252.
struct SaisieDocument {
    NoDocument document{};  ///< 0: a new document
    storage::Document valeurs{};
    friend bool operator==(const SaisieDocument&, const SaisieDocument&) = default;
};

enum class ChampDocument : std::uint8_t { Aucun, Titre, Fichier, Type, Note };

struct IssueDocument {
    enum class Etat {
        Ecrit,
        Inchange,  ///< nothing differed, nothing was written
        Refuse     ///< nothing was written; the message has been shown
    };
    Etat etat = Etat::Refuse;
    ChampDocument champ = ChampDocument::Aucun;  ///< only when refused
    friend bool operator==(const IssueDocument&, const IssueDocument&) = default;
};

/// What is stored; a new document for 0 and for one that is no more. A record that is damaged is
/// told, and read as empty.
[[nodiscard]] SaisieDocument ChargerDocument(shell::Session& session, NoDocument document);
[[nodiscard]] bool DocumentModifie(shell::Session& session, const SaisieDocument& saisie);

/// Saves. A new document gets its number in `saisie.document`. Two documents may have one title.
[[nodiscard]] IssueDocument ValiderDocument(shell::Session& session, SaisieDocument& saisie);

/// Asks, then takes the document away from the sort table, from all persons and all events, and
/// from the title of the base. False: it stays.
bool SupprimerDocument(shell::Session& session, NoDocument document);

/// Tells it when the person has 200 documents, and none can be added.
[[nodiscard]] bool PeutAvoirDocument(shell::Session& session, NoOrdre individu);
/// The documents of a person, at most 200. Attaching one twice, or a 201st, is refused by message.
bool AttacherDocument(shell::Session& session, NoOrdre individu, NoDocument document);
/// Asks, then detaches entry `rang`, from 1. The document itself stays.
bool DetacherDocument(shell::Session& session, NoOrdre individu, std::size_t rang);
/// Moves entry `rang`, from 1, up (-1) or down (1). False at the ends.
bool DeplacerDocument(shell::Session& session, NoOrdre individu, std::size_t rang, int pas);

/// The same for a stored event, whose list has no limit.
bool AttacherDocument(shell::Session& session, NoEvenement evenement, NoDocument document);
bool DetacherDocument(shell::Session& session, NoEvenement evenement, std::size_t rang);
bool DeplacerDocument(shell::Session& session, NoEvenement evenement, std::size_t rang, int pas);

/// Who uses a document: persons by number, then events by date.
struct UsagesDocument {
    std::vector<NoOrdre> individus{};
    std::vector<NoEvenement> evenements{};
    [[nodiscard]] bool Aucun() const { return individus.empty() && evenements.empty(); }
    friend bool operator==(const UsagesDocument&, const UsagesDocument&) = default;
};
[[nodiscard]] UsagesDocument ChercherUsages(shell::Session& session, NoDocument document);

/// The title as it is shown: what stands in front of its first "/"; the file name of a document
/// without a title.
[[nodiscard]] std::string TitreAffiche(const storage::Document& document);
[[nodiscard]] std::string TitreAffiche(shell::Session& session, NoDocument document);

/// What opens a document.
enum class NatureDocument : std::uint8_t {
    Rien,      ///< no file is named
    Fichier,   ///< a file
    Lien,      ///< a text file ".lgo" that names the file
    Adresse,   ///< an address of the web
    Courriel,  ///< a mail address
};
[[nodiscard]] NatureDocument NatureDe(const storage::Document& document);

/// The address of a document of the web or of mail, with its scheme; empty for files.
[[nodiscard]] std::string AdresseDe(const storage::Document& document);

/// A file as a document of the open base names it: relative when it lies below the folder of the
/// base, else whole.
[[nodiscard]] std::filesystem::path CheminPourDocument(const shell::Session& session,
                                                       const std::filesystem::path& fichier);

/// Writes beside the base a link file that names `cible`; its path, empty when the system refuses.
[[nodiscard]] std::filesystem::path CreerLien(const shell::Session& session,
                                              const std::filesystem::path& cible);
/// The file that a link file names; empty when it cannot be read or is not one of ours.
[[nodiscard]] std::filesystem::path LireLien(const std::filesystem::path& lien);

/// The kinds of documents known to the base, and "E-Mail".
[[nodiscard]] std::vector<std::string> TypesDocument(const shell::Session& session);

/// The document whose title stands as the title of the base; 0 takes it away.
void PoserDocBase(shell::Session& session, NoDocument document);

}  // namespace dorvane::records
