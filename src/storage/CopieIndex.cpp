#include "storage/CopieIndex.h"

#include "values/Octets.h"

#include <algorithm>

namespace dorvane::storage {

void CopieIndex::Retirer(NoOrdre n, std::string_view texte) {
    for (NoMotCle k{1}; k.valeur <= NbTypes(); ++k.valeur) {
        const MotCle& type = s_.motsCles.LibelleType(k);
        if (!type.mots) continue;
        // Two keywords of one symbol hold the same words: they leave both lists by one entry here.
        bool deja = false;
        for (NoMotCle autre{1}; autre < k; ++autre.valeur)
            deja = deja || (s_.motsCles.PosMotsType(autre) &&
                            s_.motsCles.LibelleType(autre).symbole == type.symbole);
        if (deja) continue;
        for (const std::string& mot : MotsDuTexte(texte, type.symbole))
            retraits_[type.symbole + mot].push_back(n);
    }
}

std::uint32_t CopieIndex::NbTypes() const {
    return std::min(s_.entete.NbMotsCles, MaxMotsCles);
}

std::vector<NoOrdre> CopieIndex::PersonnesDe(NoIndex ancien, char symbole) {
    std::vector<NoOrdre> personnes = s_.R_INDEX.PersonnesIndex(ancien);
    if (retraits_.empty()) return personnes;
    const auto retrait = retraits_.find(symbole + s_.R_INDEX.MotIndex(ancien));
    if (retrait == retraits_.end()) return personnes;
    for (const NoOrdre n : retrait->second) {
        const auto place = std::find(personnes.begin(), personnes.end(), n);
        if (place != personnes.end()) personnes.erase(place);
    }
    return personnes;
}

void CopieIndex::Numeroter(NoMotCle k) {
    if (carte_.empty()) carte_.assign(s_.entete.NbIndex + 1ULL, 0);
    std::vector<std::uint16_t>& liste = listes_.emplace_back();
    const char symbole = s_.motsCles.LibelleType(k).symbole;
    for (const NoIndex ancien : s_.R_INDEX.ListeMots(k)) {
        if (!ancien || ancien.valeur >= carte_.size()) continue;
        std::uint16_t& nouveau = carte_[ancien.valeur];
        if (nouveau == 0) {
            const CelluleMot cellule = s_.R_INDEX.CelluleIndex(ancien);
            if (!cellule.personnes || !cellule.mot || cellule.nombre == 0) continue;
            if (!retraits_.empty() && PersonnesDe(ancien, symbole).empty()) continue;
            anciens_.push_back(static_cast<std::uint16_t>(ancien.valeur));
            symboles_.push_back(symbole);
            nouveau = static_cast<std::uint16_t>(anciens_.size());
        }
        liste.push_back(nouveau);
    }
}

bool CopieIndex::EcrireTypes() {
    Position vide{};
    for (NoMotCle k{1}; k.valeur <= listes_.size(); ++k.valeur) {
        MotCle type = s_.motsCles.LibelleType(k);
        if (type == MotCle{}) continue;  // a keyword that was taken away keeps its place
        const std::vector<std::uint16_t>& liste = listes_[k.valeur - 1];
        if (type.mots && liste.empty()) {
            if (!vide) vide = c_.volume.Ajouter(NumVersChaine2(0));
            type.mots = vide;
        } else if (type.mots) {
            std::string octets = NumVersChaine2(static_cast<std::uint32_t>(liste.size()));
            for (const std::uint16_t e : liste)
                octets += NumVersChaine2(e);
            type.mots = c_.volume.Ajouter(octets);
        }
        c_.motsCles.CreerType(k, type);
    }
    c_.entete.NbMotsCles = static_cast<std::uint32_t>(listes_.size());
    return true;
}

void CopieIndex::Copier(NoIndex e) {
    const NoIndex ancien{anciens_[e.valeur - 1]};
    CelluleMot cellule;
    cellule.mot = c_.volume.Ajouter(s_.R_INDEX.MotIndex(ancien), "#");
    std::string octets;
    for (const NoOrdre n : PersonnesDe(ancien, symboles_[e.valeur - 1]))
        octets += NumVersChaine2(n.valeur);
    cellule.nombre = static_cast<std::uint32_t>(octets.size() / 2);
    cellule.personnes = c_.volume.Ajouter(octets);
    c_.R_INDEX.EcrireCelluleIndex(e, cellule);
}

}  // namespace dorvane::storage
