#pragma once

#include <QLineEdit>

#include <functional>
#include <string>
#include <string_view>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// Fields that remember what is stored, and look different once they say something else: a soft
/// tint of the selection colour, and words for those who do not see it.

/// Shows a stored value, in code page 1252, and takes the mark away.
void PoserChamp(QLineEdit& champ, std::string_view texte);
/// The same when `garder` is false; else a field that was changed keeps what it says, and only
/// what it is compared with is the new value.
void RelireChamp(QLineEdit& champ, std::string_view texte, bool garder);

/// Sets or takes away the mark by what the field says now.
void MarquerChamp(QLineEdit& champ, const shell::Session& session);

/// Writes what the field says, and what it is compared with, in other words. The cursor stays.
void ReecrireChamp(QLineEdit& champ, const std::function<QString(const QString&)>& reecrire);

/// The field looks like a changed one.
[[nodiscard]] bool EstMarque(const QWidget& widget);

/// Gives any widget the look of a changed one, or takes it away.
void MarquerModifie(QWidget& widget, bool modifie, const shell::Session& session);

/// A field in code page 1252; `remplaces` grows by the characters that this lacks.
[[nodiscard]] std::string LireChamp(const QString& texte, std::size_t& remplaces);

/// The colour of a label that warns, readable on the window behind it.
void Avertir(QWidget& etiquette);

}  // namespace dorvane::windows
