#pragma once

#include <QString>

#include "values/Numeros.h"

#include <cstdint>
#include <string>
#include <vector>

class QObject;
class QWidget;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// What of a control a message of the catalogue fills.
enum class Propriete : std::uint8_t {
    Texte,    ///< text of a button, label or menu entry, title of a menu, group or bar
    Bulle,    ///< tip
    Invite,   ///< what an empty field shows
    Acces,    ///< name for assistive programs
    Colonne,  ///< header of column `indice`
    Ligne     ///< text of row `indice` of a list
};

/// One caption: which text stands where.
struct Legende {
    const char* fenetre;   ///< name of the window
    const char* controle;  ///< name of the control, UTF-8; empty is the window itself
    Propriete propriete;
    NoMessage message;
    int indice = 0;  ///< column or row, from 0
};

/// All captions of all windows.
[[nodiscard]] const std::vector<Legende>& TableLegendes();

/// Pours the catalogue into the controls of a window, by their names. Columns of tables are asked
/// for by their models instead.
void TraduireFenetre(QWidget& fenetre, const shell::Session& session);

/// Gives a control its text: a menu its title, an entry its tip with its shortcut besides.
void PoserTexte(QObject& controle, const QString& texte);

/// The header of a column of a table; empty when the table has none.
[[nodiscard]] QString TitreColonne(const shell::Session& session, const char* fenetre,
                                   const char* controle, int colonne);

/// A text of the catalogue as the screen shows it: no-break spaces stand before ":" and the like.
[[nodiscard]] QString TexteEcran(const shell::Session& session, NoMessage message);

/// The same for a text in code page 1252.
[[nodiscard]] QString TexteEcran(const std::string& texte);

/// A caption without the marks of its mnemonic and without trailing dots.
[[nodiscard]] QString SansMnemonique(QString legende);

}  // namespace dorvane::windows
