#pragma once

#include <QCompleter>

#include "records/Completion.h"

#include <string_view>

class QLineEdit;
class QStringListModel;

namespace dorvane::windows {

/// Proposes the known words of a field in a list under it while one is typed.
class Completeur final : public QCompleter {
public:
    /// Stays with `champ`. `symboles`: the keywords whose words are known, in code page 1252.
    Completeur(QLineEdit& champ, shell::Session& session, std::string_view symboles);

    /// Shows the words that begin as the field does; all of them for an empty field.
    void MontrerTout();

private:
    void Proposer(const QString& debut, std::size_t max, bool tous);

    QLineEdit& champ_;
    records::Completion completion_;
    QStringListModel* mots_;
};

}  // namespace dorvane::windows
