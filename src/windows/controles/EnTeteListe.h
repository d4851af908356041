#pragma once

class QString;
class QTableView;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// Lets the user hide and show the columns of a list by the menu of its header, and brings back
/// widths, order and hidden columns as they were last left under that name. One column always
/// stays. `session` outlives the list.
void PreparerEntete(QTableView& liste, shell::Session& session, const QString& nom);

/// Keeps the columns as they are.
void MemoriserEntete(const QTableView& liste, shell::Session& session, const QString& nom);

}  // namespace dorvane::windows
