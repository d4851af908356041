#include "interchange/gedcom/ContexteImport.h"

#include "shell/Libelles.h"

namespace dorvane::interchange {

const std::string& TextesImport::Message(NoMessage no) {
    const auto [ou, nouveau] = messages_.try_emplace(no.valeur);
    if (nouveau) ou->second = session_.Message(no);
    return ou->second;
}

const std::string& TextesImport::Libelle(std::string_view etiquette) {
    const auto [ou, nouveau] = libelles_.try_emplace(std::string{etiquette});
    if (nouveau) ou->second = shell::LibelleDeTag(session_.catalogue, etiquette);
    return ou->second;
}

std::string TextesImport::Tag(std::string_view libelle) const {
    return shell::TagDeLibelle(session_.catalogue, libelle);
}

void ContexteImport::Noter(Constat constat, const LigneGedcom& ligne) const {
    std::string chemin;
    for (std::size_t rang = 0; rang <= pile.Niveau(); ++rang) {
        if (rang > 0) chemin += '.';
        chemin += pile.Etiquette(rang);
    }
    rapport.Noter(constat, chemin, ligne.numero);
}

}  // namespace dorvane::interchange
