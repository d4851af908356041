#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/gedcom/EtiquettesGedcom.h"
#include "interchange/gedcom/LignesGedcom.h"
#include "shell/Session.h"
#include "storage/Base.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace dorvane::interchange {

/// The texts of the catalogue that an import writes into notes, each read once.
class TextesImport {
public:
    /// `session` outlives the object.
    explicit TextesImport(const shell::Session& session) : session_{session} {}

    [[nodiscard]] const std::string& Message(NoMessage no);
    /// Label of a tag in the language in use; the tag itself when it has none.
    [[nodiscard]] const std::string& Libelle(std::string_view etiquette);
    /// The tag of a label; a tag, and a text that is no label, come back as they stand.
    [[nodiscard]] std::string Tag(std::string_view libelle) const;

private:
    const shell::Session& session_;
    std::unordered_map<std::uint32_t, std::string> messages_;
    std::unordered_map<std::string, std::string> libelles_;
};

/// What all readers of an import share.
struct ContexteImport {
    storage::Base& base;
    TextesImport& textes;
    RapportImport& rapport;
    PileEtiquettes& pile;

    /// Notes the line entered last under the path of its tags.
    void Noter(Constat constat, const LigneGedcom& ligne) const;
};

}  // namespace dorvane::interchange
