#pragma once

#include "shell/Session.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dorvane::records {

/// A keyword as the list shows it.
struct LigneMotCle {
    NoMotCle mot{};
    char code = ' ';      ///< the character in front of its words
    std::string libelle;  ///< in the language in use
    bool indexe = false;
    bool fixe = false;     ///< serves the names and places of the sheet: it stays
    bool datable = false;  ///< a kind of event: its line has a date unless the user says otherwise
};

/// The keywords of the open base in the order of the directory; places left by a removal are
/// passed over.
[[nodiscard]] std::vector<LigneMotCle> ListerMotsCles(shell::Session& session);

/// What is typed for a keyword, in code page 1252.
struct SaisieMotCle {
    std::string code;
    std::string libelle;
    bool indexe = false;
};

/// Adds a keyword at the first free place. Its words are indexed at once when it is to have a word
/// list. 0 when refused: the message has been shown.
NoMotCle AjouterMotCle(shell::Session& session, const SaisieMotCle& saisie);

/// Changes a keyword. Turning the index on builds it; turning it off drops only the flag. False
/// when refused or given up: nothing has changed.
bool ModifierMotCle(shell::Session& session, NoMotCle mot, const SaisieMotCle& saisie);

/// Takes a keyword and its lines of the two sheets away, after a question; what is written in the
/// texts stays. False when refused or the user says no.
bool SupprimerMotCle(shell::Session& session, NoMotCle mot);

/// Swaps a keyword with its neighbour in the list: `sens` -1 up, 1 down. Its new number, or 0 at
/// an end of the list.
NoMotCle DeplacerMotCle(shell::Session& session, NoMotCle mot, int sens);

/// Which of the two sheets has a line.
enum class TableLignes : std::uint8_t { Individu, Mariage };

/// One line of a sheet.
struct LigneFiche {
    NoMotCle mot{};  ///< 0 for a symbol of no keyword
    std::string libelle;
    bool datee = false;
};

/// The lines in order, at most 10.
[[nodiscard]] std::vector<LigneFiche> ListerLignes(shell::Session& session, TableLignes table);

/// Adds a line for a keyword behind the others. False, and nothing happens, for the eleventh, for
/// one that is there, and for the keywords of names and places.
bool AjouterLigne(shell::Session& session, TableLignes table, NoMotCle mot, bool datee);

/// Takes the line at `rang`, from 0, out. The texts stay.
bool RetirerLigne(shell::Session& session, TableLignes table, std::size_t rang);

/// Swaps the line at `rang`, from 0, with its neighbour. False at an end.
bool DeplacerLigne(shell::Session& session, TableLignes table, std::size_t rang, int sens);

}  // namespace dorvane::records
