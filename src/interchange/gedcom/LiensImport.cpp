#include "interchange/gedcom/LiensImport.h"

#include "interchange/gedcom/NomGedcom.h"
#include "messages/Messages.h"
#include "values/Comparaison.h"
#include "values/Octets.h"

#include <algorithm>
#include <unordered_set>

namespace dorvane::interchange {
namespace {

/// A role between parentheses is the user's own word; any other is a tag or a label.
std::string_view SansParentheses(std::string_view role) {
    if (role.size() >= 2 && role.front() == '(' && role.back() == ')')
        return SansBlancs(role.substr(1, role.size() - 2));
    return role;
}

}  // namespace

void LiensImport::AjouterEvenement(NoEvenement e, EvenementLu evenement) {
    evenements_.resize(std::max<std::size_t>(evenements_.size(), e.valeur));
    evenements_[e.valeur - 1] = std::move(evenement);
}

void LiensImport::Lier(NoOrdre individu, std::string_view cle, const LigneGedcom& ligne) {
    liens_.push_back({individu, cle, {}, ligne.numero});
}

std::string LiensImport::TagDe(const LigneGedcom& ligne) const {
    std::string tag = contexte_.textes.Tag(SansDoubleArobase(SansParentheses(ligne.valeur)));
    if (tag.size() > storage::MaxTexteElement)
        contexte_.rapport.Noter(Constat::Remplace, ligne.etiquette, ligne.numero);
    return tag;
}

void LiensImport::NommerDernierLien(const LigneGedcom& ligne) {
    if (!liens_.empty()) liens_.back().texte = TagDe(ligne);
}

void LiensImport::Participer(NoOrdre individu, std::string_view cle, std::string_view role,
                             const LigneGedcom& ligne) {
    participations_.push_back({individu, cle, std::string{role}, ligne.numero});
}

void LiensImport::NommerDernierRole(const LigneGedcom& ligne, std::size_t combien) {
    const std::string role = TagDe(ligne);
    combien = std::min(combien, participations_.size());
    for (std::size_t i = participations_.size() - combien; i < participations_.size(); ++i)
        participations_[i].texte = role;
}

void LiensImport::Attacher(NoOrdre individu, std::string_view cleNote, const LigneGedcom& ligne) {
    documents_.push_back({individu, cleNote, {}, ligne.numero});
}

void LiensImport::AttacherAEvenement(std::string_view cleSource, std::string_view cleNote,
                                     const LigneGedcom& ligne) {
    pieces_.push_back({cleSource, cleNote, ligne.numero});
}

std::uint32_t LiensImport::Resoudre(const TableCles& table, std::string_view cle,
                                    std::uint32_t ligne, std::string_view chemin) {
    const std::uint32_t numero = table.Chercher(cle);
    if (numero == 0)
        contexte_.rapport.Noter(Constat::Reference,
                                std::string{chemin} + " @" + std::string{cle} + "@", ligne);
    return numero;
}

// Each link stands on both sides under the same label; an entry that is there already is not added
// again.
void LiensImport::EcrireLiens(const ClesImport& cles) {
    struct Cote {
        NoOrdre de;
        NoOrdre vers;
        const std::string* libelle;
        std::uint32_t ligne;
    };
    const std::string parDefaut =
        contexte_.textes.Tag(contexte_.textes.Message(message::RelationParDefaut));
    std::vector<Cote> cotes;
    for (const Lien& lien : liens_) {
        const NoOrdre autre{Resoudre(cles.individus, lien.cle, lien.ligne, "INDI.ASSO")};
        if (!autre) continue;
        if (autre == lien.individu) {
            contexte_.rapport.Noter(Constat::NonRepris, "INDI.ASSO", lien.ligne);
            continue;
        }
        const std::string* libelle = lien.texte.empty() ? &parDefaut : &lien.texte;
        cotes.push_back({lien.individu, autre, libelle, lien.ligne});
        cotes.push_back({autre, lien.individu, libelle, lien.ligne});
    }
    std::ranges::stable_sort(cotes, {}, &Cote::de);
    for (std::size_t i = 0; i < cotes.size();) {
        const NoOrdre de = cotes[i].de;
        std::string liste;
        const std::size_t debut = i;
        for (; i < cotes.size() && cotes[i].de == de; ++i) {
            const bool deja =
                std::any_of(cotes.begin() + static_cast<std::ptrdiff_t>(debut),
                            cotes.begin() + static_cast<std::ptrdiff_t>(i), [&](const Cote& c) {
                                return c.vers == cotes[i].vers && *c.libelle == *cotes[i].libelle;
                            });
            if (deja) continue;
            if (liste.size() / 6 >= storage::MaxElements) {
                contexte_.rapport.Noter(Constat::Limite, "INDI.ASSO", cotes[i].ligne);
                continue;
            }
            liste += contexte_.base.R_LIEN.ComposerElement(cotes[i].vers, *cotes[i].libelle);
        }
        contexte_.base.R_LIEN.EcrireListe(de, liste);
    }
}

void LiensImport::EcrireDocuments(const ClesImport& cles) {
    std::ranges::stable_sort(documents_, {}, &Lien::individu);
    for (std::size_t i = 0; i < documents_.size();) {
        const NoOrdre de = documents_[i].individu;
        std::string liste;
        for (; i < documents_.size() && documents_[i].individu == de; ++i) {
            const std::uint32_t d =
                Resoudre(cles.notes, documents_[i].cle, documents_[i].ligne, "INDI.NOTE");
            if (d == 0) continue;
            const std::string element = NumVersChaine2(d);
            bool deja = false;
            for (std::size_t k = 0; k < liste.size(); k += 2)
                deja = deja || liste.compare(k, 2, element) == 0;
            if (deja) continue;
            if (liste.size() / 2 >= storage::MaxElements)
                contexte_.rapport.Noter(Constat::Limite, "INDI.NOTE", documents_[i].ligne);
            else
                liste += element;
        }
        if (!liste.empty()) contexte_.base.R_LSTIMG.EcrireListe(de, liste);
    }
}

/// Writes the events of each person by date, and gathers the persons of each event in the order of
/// the file.
void LiensImport::EcrireParticipations(std::vector<std::vector<storage::LienEvenement>>& personnes,
                                       const ClesImport& cles) {
    struct Part {
        NoOrdre individu;
        std::uint32_t evenement;
        std::size_t rang;
    };
    std::vector<Part> parts;
    parts.reserve(participations_.size());
    for (std::size_t i = 0; i < participations_.size(); ++i) {
        const Lien& p = participations_[i];
        const std::uint32_t e = Resoudre(cles.sources, p.cle, p.ligne, "SOUR");
        if (e != 0 && p.individu) parts.push_back({p.individu, e, i});
    }
    // By person, then date, then the order of the file.
    std::ranges::sort(parts, [&](const Part& a, const Part& b) {
        if (a.individu != b.individu) return a.individu < b.individu;
        const std::int32_t da = evenements_[a.evenement - 1].cleDate;
        const std::int32_t db = evenements_[b.evenement - 1].cleDate;
        return da != db ? da < db : a.rang < b.rang;
    });
    std::vector<std::size_t> gardes;
    for (std::size_t i = 0; i < parts.size();) {
        const NoOrdre de = parts[i].individu;
        const std::size_t debut = i;
        std::string liste;
        for (; i < parts.size() && parts[i].individu == de; ++i) {
            const std::string& role = participations_[parts[i].rang].texte;
            const bool deja =
                std::any_of(parts.begin() + static_cast<std::ptrdiff_t>(debut),
                            parts.begin() + static_cast<std::ptrdiff_t>(i), [&](const Part& p) {
                                return p.evenement == parts[i].evenement &&
                                       participations_[p.rang].texte == role;
                            });
            if (deja) continue;
            if (liste.size() / 6 >= storage::MaxElements) {
                contexte_.rapport.Noter(Constat::Limite, "SOUR",
                                        participations_[parts[i].rang].ligne);
                continue;
            }
            liste += contexte_.base.R_LSTEVT.ComposerElement(NoEvenement{parts[i].evenement}, role);
            gardes.push_back(parts[i].rang);
        }
        contexte_.base.R_LSTEVT.EcrireListe(de, liste);
    }
    std::ranges::sort(gardes);
    for (const std::size_t rang : gardes) {
        const Lien& p = participations_[rang];
        personnes[cles.sources.Chercher(p.cle) - 1].push_back({p.individu, p.texte});
    }
}

void LiensImport::EcrireEvenements(const ClesImport& cles) {
    std::vector<std::vector<storage::LienEvenement>> personnes(evenements_.size());
    std::vector<std::vector<NoDocument>> documents(evenements_.size());
    EcrireParticipations(personnes, cles);
    for (const Piece& piece : pieces_) {
        const std::uint32_t e = Resoudre(cles.sources, piece.source, piece.ligne, "SOUR");
        const std::uint32_t d = Resoudre(cles.notes, piece.note, piece.ligne, "SOUR.NOTE");
        if (e == 0 || d == 0) continue;
        std::vector<NoDocument>& liste = documents[e - 1];
        if (std::ranges::find(liste, NoDocument{d}) == liste.end()) liste.emplace_back(d);
    }
    storage::Base& base = contexte_.base;
    for (std::size_t i = 0; i < evenements_.size(); ++i) {
        EvenementLu& lu = evenements_[i];
        const NoEvenement e{static_cast<std::uint32_t>(i + 1)};
        storage::PartiesEvt parties;
        parties.cleDate = lu.cleDate;
        parties.note = std::move(lu.note);
        parties.liens = std::move(personnes[i]);
        parties.documents = std::move(documents[i]);
        parties.description = std::move(lu.description);
        base.R_EVT.EcrireEvt(e, parties);
        base.R_TRI.FixerRang(e.valeur, e);
    }
    base.entete.NbTriEvenements = static_cast<std::uint32_t>(evenements_.size());
    base.R_TRI.TrierEvenements();
}

void LiensImport::Ecrire(const ClesImport& cles) {
    EcrireLiens(cles);
    EcrireDocuments(cles);
    EcrireEvenements(cles);
}

}  // namespace dorvane::interchange
