#include "records/TagSaisi.h"

#include "shell/Libelles.h"
#include "shell/Session.h"
#include "values/Comparaison.h"

#include <algorithm>

namespace dorvane::records {

std::string TagSaisi(const shell::Session& session, std::span<const TagOffert> offerts,
                     std::string_view saisie) {
    const std::string texte{SansBlancs(saisie)};
    const std::string replie = Replie(texte);
    const auto place = std::ranges::find_if(
        offerts, [&replie](const TagOffert& offert) { return Replie(offert.libelle) == replie; });
    return place == offerts.end() ? shell::TagDeLibelle(session.catalogue, texte) : place->tag;
}

}  // namespace dorvane::records
