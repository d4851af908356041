#pragma once

#include "records/FicheDocument.h"
#include "values/Numeros.h"

#include <filesystem>
#include <string>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// The file that a document names: as written, with "/" for "\", else by its file name beside the
/// base. Empty when there is none. `fichier` is in code page 1252.
[[nodiscard]] std::filesystem::path FichierDeDocument(const std::filesystem::path& base,
                                                      const std::string& fichier);

/// The file of a document of the open base; empty when it is not there.
[[nodiscard]] std::filesystem::path FichierDeDocument(const shell::Session& session,
                                                      NoDocument document);

/// What there is of a document.
struct EtatDocument {
    NatureDocument nature = NatureDocument::Rien;
    /// The file of its name, whatever its nature; empty when there is none.
    std::filesystem::path fichier{};

    /// A file or a link that is not there.
    [[nodiscard]] bool Absent() const {
        return fichier.empty() &&
               (nature == NatureDocument::Fichier || nature == NatureDocument::Lien);
    }
    friend bool operator==(const EtatDocument&, const EtatDocument&) = default;
};
[[nodiscard]] EtatDocument EtatDe(const std::filesystem::path& base,
                                  const storage::Document& document);

/// The word for a document that has no file to show; none for a file that is there.
[[nodiscard]] NoMessage MessageDEtat(const EtatDocument& etat);

}  // namespace dorvane::records
