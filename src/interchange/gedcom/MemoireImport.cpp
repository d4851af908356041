#include "interchange/gedcom/MemoireImport.h"

#include "interchange/commun/OrdreImport.h"
#include "storage/Textes.h"

namespace dorvane::interchange {

void MemoireImport::AjouterIndividu(std::string_view ligneNom, std::string_view annee,
                                    std::string_view texte) {
    const storage::LigneNom champs = storage::DecouperNom(ligneNom);
    personnes_.push_back({octets_.size(), static_cast<std::uint32_t>(champs.nom.size()),
                          static_cast<std::uint32_t>(champs.prenom.size()),
                          static_cast<std::uint32_t>(texte.size()), AnneeTri(annee)});
    octets_.append(champs.nom).append(champs.prenom).append(texte);
}

void MemoireImport::AjouterUnion(std::string_view texte) {
    unions_.push_back({octets_.size(), texte.size()});
    octets_ += texte;
}

storage::ElementTri MemoireImport::ElementDe(NoOrdre n) {
    const Personne& p = personnes_[n.valeur - 1];
    return {Prendre(p.debut, p.nom), Prendre(p.debut + p.nom, p.prenom), TexteDe(p.annee)};
}

void MemoireImport::TextesDe(NoOrdre n, std::vector<std::string_view>& textes) {
    const Personne& p = personnes_[n.valeur - 1];
    textes.push_back(Prendre(p.debut + p.nom + p.prenom, p.texte));
    for (const NoMariage m : familles_.UnionsDe(n)) {
        const Tranche& t = unions_[m.valeur - 1];
        textes.push_back(Prendre(t.debut, t.longueur));
    }
}

bool MemoireImport::EstTriee(TypeTri typeTri, const ReglesNoms& regles) {
    std::vector<NoOrdre> ordre;
    for (std::uint32_t n = 1; n <= personnes_.size(); ++n)
        ordre.emplace_back(n);
    return SontTries(*this, ordre, typeTri, regles);
}

}  // namespace dorvane::interchange
