#pragma once

#include "shell/Session.h"
#include "storage/R_INDEX.h"
#include "values/Marqueurs.h"
#include "values/Numeros.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::records {

/// The words that fields complete, by the symbols of their keywords, in code page 1252.
namespace mots {
inline constexpr std::string_view Noms{&marqueur::Nom, 1};
inline constexpr std::string_view Prenoms{&marqueur::Prenom, 1};
inline constexpr char MarqueursLieux[] = {marqueur::LieuNaissance, marqueur::LieuDeces,
                                          marqueur::LieuMariage};
inline constexpr std::string_view Lieux{MarqueursLieux, sizeof MarqueursLieux};
}  // namespace mots

/// Proposes known words while one is typed, from the word index of the base; places also from the
/// communes, behind those of the base. A word costs a few reads however many there are. It is made
/// anew when another base is opened.
class Completion {
public:
    /// `session` outlives the object. `symboles`: keywords whose words are proposed.
    Completion(shell::Session& session, std::string_view symboles)
        : session_{session}, symboles_{symboles} {}

    /// At most `max` words that begin with `debut`, whatever its case and accents, each as the
    /// first person who carries it has it written; without doubles, by their folded form. Empty
    /// for an empty `debut` unless `tous`, which does not ask for communes.
    [[nodiscard]] std::vector<std::string> Chercher(std::string_view debut, std::size_t max,
                                                    bool tous = false);

private:
    /// The word list of one keyword, read again only once it has changed.
    struct Liste {
        Position lue{};
        std::vector<NoIndex> mots;
    };

    [[nodiscard]] std::string Ecriture(NoIndex e, const std::string& mot, char symbole);
    void AjouterCommunes(std::string_view debut, std::size_t max,
                         std::vector<std::string>& lieux) const;

    shell::Session& session_;
    std::string symboles_;
    std::vector<Liste> listes_;
};

}  // namespace dorvane::records
