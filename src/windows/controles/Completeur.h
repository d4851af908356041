#pragma once

#include <QCompleter>

#include "records/Completion.h"

#include <string>
#include <string_view>
#include <vector>

class QLineEdit;
class QStringListModel;

namespace dorvane::windows {

/// Proposes the known words of a field in a list under it while one is typed.
class Completeur final : public QCompleter {
public:
    /// Stays with `champ`, in place of any other. `symboles`: the keywords whose words are
    /// proposed, in code page 1252; `enListe`: those of `MontrerTout`, empty for the same.
    Completeur(QLineEdit& champ, shell::Session& session, std::string_view symboles,
               std::string_view enListe = {});

    /// Shows the words that begin as the field does; all of them for an empty field.
    void MontrerTout();

private:
    void Poser(const std::vector<std::string>& trouves, const QString& debut);

    QLineEdit& champ_;
    records::Completion tapes_;
    records::Completion liste_;
    QStringListModel* mots_;
};

}  // namespace dorvane::windows
