#include "interchange/commun/IssueExport.h"

#include "shell/FichierSur.h"

namespace dorvane::interchange {

IssueExport EcrireExport(const std::filesystem::path& chemin, const std::string& octets,
                         bool entier) {
    if (!shell::EcrireTout(entier ? chemin : shell::CheminPartiel(chemin), octets))
        return IssueExport::Refus;
    return entier ? IssueExport::Fait : IssueExport::Abandon;
}

}  // namespace dorvane::interchange
