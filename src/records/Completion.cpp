#include "records/Completion.h"

#include "shell/Communes.h"
#include "storage/Base.h"
#include "storage/BaseCommunes.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/Noms.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace dorvane::records {

namespace {

/// Whoever carries a word has it written in a record; past these the word is shown by itself.
constexpr std::size_t MaxPorteurs = 8;

/// Communes looked at once more than a name is typed: more than any name has homonyms.
constexpr std::size_t MaxHomonymes = 1000;

/// What a person has written behind a symbol, in whole words.
std::vector<std::string> EcrituresDe(storage::Base& base, NoOrdre n, char symbole) {
    if (symbole == marqueur::Nom) return {base.R_NOM.NomDe(n)};
    if (symbole == marqueur::Prenom) {
        std::string prenom = base.R_NOM.PrenomDe(n);
        std::string premier = prenom.substr(0, prenom.find(' '));
        return {std::move(prenom), std::move(premier)};
    }
    std::vector<std::string> lieux{storage::LireLieu(base.R_TEXTE.LireTexte(n), symbole)};
    if (symbole == marqueur::LieuMariage)
        for (const NoMariage m : base.R_MARIAG.Elements(n))
            lieux.push_back(storage::LieuMariage(base, m));
    for (const storage::ValeurSlot& slot : storage::SlotsDe(base, n))
        lieux.push_back(slot.lieu);
    return lieux;
}

}  // namespace

std::vector<std::string> Completion::Chercher(std::string_view debut, std::size_t max, bool tous) {
    if (!session_.base) return {};
    storage::Base& base = *session_.base;
    const std::string cherche{SansBlancs(Replie(debut))};
    if (cherche.empty() && !tous) return {};
    listes_.resize(symboles_.size());
    std::map<std::string, std::string> trouves;  // written form by folded word
    for (std::size_t i = 0; i < symboles_.size(); ++i) {
        const NoMotCle k = base.motsCles.TypeDuSymbole(symboles_[i]);
        const Position position = k ? base.motsCles.PosMotsType(k) : Position{};
        if (!position) continue;
        Liste& liste = listes_[i];
        if (liste.lue != position) liste = {position, base.R_INDEX.ListeMots(k)};
        auto e = std::lower_bound(
            liste.mots.begin(), liste.mots.end(), cherche,
            [&base](NoIndex a, const std::string& mot) { return base.R_INDEX.MotIndex(a) < mot; });
        for (std::size_t vus = 0; e != liste.mots.end() && vus < max; ++e, ++vus) {
            const std::string mot = base.R_INDEX.MotIndex(*e);
            if (!mot.starts_with(cherche)) break;
            if (trouves.find(mot) == trouves.end())
                trouves.emplace(mot, Ecriture(*e, mot, symboles_[i]));
        }
    }
    std::vector<std::string> mots;
    for (auto& [mot, ecriture] : trouves) {
        if (mots.size() == max) break;
        mots.push_back(std::move(ecriture));
    }
    if (!cherche.empty() && symboles_.find(mots::Lieux) != std::string::npos)
        AjouterCommunes(debut, max, mots);
    return mots;
}

/// A commune fits by its name, and once a comma is typed by the whole of its place.
void Completion::AjouterCommunes(std::string_view debut, std::size_t max,
                                 std::vector<std::string>& lieux) const {
    const storage::BaseCommunes* communes = session_.communes->Base();
    const std::string_view nom = SansBlancs(debut.substr(0, debut.find(',')));
    if (communes == nullptr || nom.empty() || lieux.size() >= max) return;
    const bool nomSeul = debut.find(',') == std::string_view::npos;
    std::set<std::string> vus;
    for (const std::string& lieu : lieux)
        vus.insert(Replie(lieu));
    const std::string cherche{SansBlancs(Replie(debut))};
    for (const storage::NoCommune n :
         communes->ChercherDebut(nom, nomSeul ? 2 * max : MaxHomonymes)) {
        if (lieux.size() == max) return;
        std::string lieu = storage::TexteLieu(communes->LireCommune(n));
        const std::string replie = Replie(lieu);
        if (replie.starts_with(cherche) && vus.insert(replie).second)
            lieux.push_back(std::move(lieu));
    }
}

std::string Completion::Ecriture(NoIndex e, const std::string& mot, char symbole) {
    storage::Base& base = *session_.base;
    const std::vector<NoOrdre> porteurs = base.R_INDEX.PersonnesIndex(e);
    for (std::size_t i = 0; i < std::min(porteurs.size(), MaxPorteurs); ++i)
        for (const std::string& ecriture : EcrituresDe(base, porteurs[i], symbole))
            if (SansBlancs(Replie(ecriture)) == mot ||
                (symbole == marqueur::Nom &&
                 SansBlancs(Replie(CleNom(ecriture, session_.Regles()))) == mot))
                return std::string{SansBlancs(ecriture)};
    return CapitaliseNom(EnMinuscules(mot), "N", session_.Regles());
}

}  // namespace dorvane::records
