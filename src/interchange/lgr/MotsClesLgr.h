#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/lgr/ContenuLgr.h"
#include "shell/Libelles.h"
#include "storage/Base.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvane::interchange {

/// The keywords of an exchange text brought together with those of a base: a keyword of the same
/// tag is the same whatever its marker, and a new one takes the marker that it had or the next
/// free one. "|" and "¶" always stand for the names. In a base without persons a keyword that the
/// file does not have gives way to one that has its marker: no text changes.
class MotsClesLgr {
public:
    /// Enters the keywords that the base lacks. `base` outlives the object. Past 50 keywords the
    /// further ones are left out and noted.
    MotsClesLgr(storage::Base& base, const shell::TableLibelles& libelles,
                const ContenuLgr& contenu, RapportImport& rapport);

    /// The marker in the base for a marker of the file.
    [[nodiscard]] char Marqueur(char marqueur) const {
        return table_[static_cast<unsigned char>(marqueur)];
    }
    /// A text of a person or a union with the markers, and the labels of its lines, of the base.
    /// Answers `texte` itself where nothing changes, else `tampon`.
    [[nodiscard]] std::string_view Convertir(std::string_view texte, std::string& tampon) const;

    /// Keywords of the file in its order.
    [[nodiscard]] const std::vector<NoMotCle>& Types() const { return types_; }

    /// The base had no such keyword.
    [[nodiscard]] bool EstNouveau(NoMotCle k) const {
        return std::ranges::find(nouveaux_, k) != nouveaux_.end();
    }

private:
    void Reprendre(const MotCleLgr& motCle, const ContenuLgr& contenu,
                   const shell::TableLibelles& libelles, RapportImport& rapport);
    [[nodiscard]] NoMotCle Chercher(std::string_view tag, const shell::TableLibelles& libelles);
    [[nodiscard]] bool EstLibre(char marqueur);
    [[nodiscard]] char MarqueurLibre(char voulu);
    [[nodiscard]] NoMotCle Place();
    void FaireCeder(char marqueur, const ContenuLgr& contenu, const shell::TableLibelles& libelles);
    void ConvertirMarqueurs(std::string_view texte, std::string& sortie) const;
    [[nodiscard]] std::size_t ConvertirRiche(std::string_view texte, std::string& sortie) const;
    void ConvertirLibelles(std::string& texte) const;

    storage::Base& base_;
    std::array<char, 256> table_{};
    bool change_ = false;                                        ///< `table_` changes something
    std::vector<std::pair<std::string, std::string>> libelles_;  ///< of the file, of the base
    std::vector<NoMotCle> types_;
    std::vector<NoMotCle> nouveaux_;
};

/// Brings the keyword line of a person from the name settings of the file to those of the base.
struct NomsLgr {
    bool nom = false;           ///< the setting of surnames differs
    bool prenom = false;        ///< the setting of first names differs
    bool prenomUnique = false;  ///< that of the base: blanks of first names stay
    const ReglesNoms& regles;   ///< of the base
    [[nodiscard]] std::string Adapter(std::string_view texte, std::string_view nomFamille,
                                      std::string_view prenoms) const;
};

}  // namespace dorvane::interchange
