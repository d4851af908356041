#pragma once

#include <QLineEdit>

#include "shell/Libelles.h"
#include "values/MotsDates.h"

#include <string>
#include <string_view>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// What a field holds that reads otherwise in another language.
enum class SorteSaisie {
    JourMois,       ///< "12 mars"
    DateEvenement,  ///< "12 mars 1820"
    Libelle,        ///< the name of a kind, a role, a relation, a keyword
};

/// From now on what stands in the field follows the language of the program.
void SuivreLangue(QLineEdit& champ, SorteSaisie sorte);

/// The words of a language, kept while another one takes its place.
class MotsDeLangue {
public:
    /// Takes the language in use.
    explicit MotsDeLangue(const shell::Session& session);

    /// What a field says, in code page 1252, in the words of the language in use now. What is not
    /// written in words of the former language comes back as it stands.
    [[nodiscard]] std::string Traduire(std::string_view saisie, SorteSaisie sorte,
                                       const shell::Session& session) const;

private:
    MotsDates dates_;
    shell::TableLibelles libelles_;
};

/// Writes what stands in the fields of a window, saved or not, in the words of the language in use,
/// and says the marks of changed fields anew. The fields send no signal.
void TraduireSaisies(const QWidget& fenetre, const MotsDeLangue& avant,
                     const shell::Session& session);

}  // namespace dorvane::windows
