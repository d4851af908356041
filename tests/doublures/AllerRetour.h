#pragma once

#include "interchange/commun/RapportImport.h"
#include "interchange/gedcom/DatesGedcom.h"
#include "interchange/gedcom/LignesGedcom.h"
#include "interchange/gedcom/NomGedcom.h"
#include "interchange/jeux/JeuxDeCaracteres.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvane::doublures {

/// Looks for each value of a GEDCOM file in the file that an import and an export make of it, in
/// the record that it belonged to, and counts what comes back by class: names, dates, places,
/// texts, references.
class AllerRetour {
public:
    enum class Classe { Nom, Date, Lieu, Texte, Reference, Nombre };

    /// `avant` is the file, `apres` the one that came of it in ANSI, `rapport` what the import
    /// said.
    AllerRetour(std::string_view avant, std::string_view apres,
                const interchange::RapportImport& rapport)
        : rapport_{rapport} {
        LireApres(apres);
        Comparer(avant);
    }

    struct Compte {
        std::size_t valeurs = 0;
        std::size_t revenues = 0;
        /// References of a union that stand with both its partners: a union takes part in an event
        /// through them.
        std::size_t partagees = 0;
    };
    [[nodiscard]] Compte Total() const {
        Compte total;
        for (const Compte& compte : comptes_) {
            total.valeurs += compte.valeurs;
            total.revenues += compte.revenues;
            total.partagees += compte.partagees;
        }
        return total;
    }
    [[nodiscard]] const Compte& De(Classe classe) const {
        return comptes_[static_cast<std::size_t>(classe)];
    }
    /// Values that do not come back but are named by the import report or changed by a rule, by
    /// rule and path.
    [[nodiscard]] const std::map<std::string, std::size_t>& Changees() const { return changees_; }
    /// Values that nothing accounts for: "line path: value". Empty when all is right.
    [[nodiscard]] const std::vector<std::string>& Perdues() const { return perdues_; }
    [[nodiscard]] std::string Texte() const {
        std::string texte;
        for (std::size_t i = 0; i < std::min<std::size_t>(perdues_.size(), 20); ++i)
            texte += perdues_[i] + '\n';
        return texte;
    }

private:
    struct Ligne {
        std::size_t niveau = 0;
        std::string cle;
        std::string tag;
        std::string valeur;
        std::uint32_t numero = 0;
        std::string chemin;
    };
    struct Record {
        std::string texte;             ///< values, flat, parted by "\n"
        std::string serre;             ///< the same without any blank
        std::set<std::string> lignes;  ///< "tag value" of each line
    };

    /// Dots of keywords and any run of blanks are one blank.
    static std::string Plat(std::string_view texte) {
        std::string plat;
        for (const char c : texte) {
            const bool blanc = c == '.' || (c >= 0 && c <= ' ');
            if (!blanc)
                plat += c;
            else if (!plat.empty() && plat.back() != ' ')
                plat += ' ';
        }
        RemplacerTout(plat, "@@", "@");
        while (plat.ends_with(' '))
            plat.pop_back();
        return plat;
    }
    static std::string SansBlanc(std::string texte) {
        std::erase(texte, ' ');
        return texte;
    }

    static std::vector<Ligne> Lire(std::string_view octets) {
        using namespace interchange;
        std::vector<Ligne> lignes;
        const ChoixDeJeu jeu = ChoisirJeu(octets);
        std::string texte =
            Decoder(octets.substr(jeu.marque), jeu.jeu, octets.find("1 SOUR DORVANE") < 1000)
                .octets;
        std::ranges::replace(texte, '\0', ' ');
        const auto fin = ChercherFinDeLigne(texte);
        if (!fin) return lignes;
        LecteurDeLignes lecteur{texte, *fin};
        LigneGedcom ligne;
        std::vector<std::string> chemin;
        for (auto sorte = lecteur.Lire(ligne); sorte != LecteurDeLignes::Sorte::Fin;
             sorte = lecteur.Lire(ligne)) {
            if (sorte != LecteurDeLignes::Sorte::Ligne) continue;
            chemin.resize(std::min<std::size_t>(ligne.niveau, chemin.size()));
            chemin.emplace_back(ligne.etiquette);
            Ligne lue{ligne.niveau,
                      std::string{ligne.cle},
                      std::string{ligne.etiquette},
                      std::string{SansBlancs(ligne.valeur)},
                      ligne.numero,
                      {}};
            for (const std::string& tag : chemin)
                lue.chemin += lue.chemin.empty() ? tag : '.' + tag;
            if (ligne.niveau == 0 && lue.tag == "TRLR") break;
            lignes.push_back(std::move(lue));
        }
        return lignes;
    }

    void LireApres(std::string_view octets) {
        std::string cle;
        for (const Ligne& ligne : Lire(octets)) {
            if (ligne.niveau == 0) cle = ligne.cle.empty() ? ligne.tag : ligne.cle;
            Record& record = apres_[cle];
            // What goes on is one text again: the blank at a cut was dropped.
            record.texte += (ligne.tag == "CONC" ? " " : "\n") + Plat(ligne.valeur);
            record.lignes.insert(ligne.tag + ' ' + ligne.valeur);
        }
        for (auto& [nom, record] : apres_)
            record.serre = SansBlanc(record.texte);
    }

    /// The record of the second file that a record of the first became.
    void Numeroter(const std::vector<Ligne>& lignes) {
        std::map<std::string, std::size_t> rangs;
        std::string famille;
        std::map<std::string, std::array<bool, 2>> partenaires;
        std::vector<std::pair<std::uint32_t, std::string>> familles;
        std::set<std::string> personnes;
        for (const Ligne& ligne : lignes) {
            if (ligne.niveau == 0) {
                famille = ligne.tag == "FAM" ? ligne.cle : "";
                const std::string_view sorte = ligne.tag == "INDI"   ? "I"
                                               : ligne.tag == "SOUR" ? "E"
                                               : ligne.tag == "NOTE" ? "D"
                                                                     : "";
                if (!sorte.empty()) {
                    const std::string numero =
                        std::string{sorte} + std::to_string(++rangs[ligne.tag]);
                    cles_.emplace(ligne.tag + ligne.cle, numero);
                    records_.emplace(ligne.numero, numero);
                }
                if (ligne.tag == "FAM") familles.emplace_back(ligne.numero, ligne.cle);
            } else if (!famille.empty() && ligne.niveau == 1) {
                const std::string qui = Vise(ligne);
                if (ligne.tag == "HUSB") maris_[famille] = qui;
                if (ligne.tag == "WIFE") femmes_[famille] = qui;
                if (ligne.tag == "CHIL") enfants_.emplace(qui, famille);
                if (ligne.tag == "CHIL" && EstDit(ligne)) enfantsDits_.insert(qui);
            }
        }
        std::size_t union_ = 0;
        for (const auto& [numero, f] : familles)
            if (Trouver("INDI", maris_[f]) != "" && Trouver("INDI", femmes_[f]) != "") {
                const std::string cle = 'F' + std::to_string(++union_);
                cles_.emplace("FAM" + f, cle);
                records_.emplace(numero, cle);
            }
    }
    static std::string Vise(const Ligne& ligne) {
        return std::string{interchange::CleDeReference(ligne.valeur)};
    }
    [[nodiscard]] std::string Trouver(const std::string& sorte, const std::string& cle) const {
        const auto trouve = cles_.find(sorte + cle);
        return trouve == cles_.end() ? std::string{} : trouve->second;
    }

    [[nodiscard]] bool EstDit(const Ligne& ligne) const {
        for (int k = 0; k < static_cast<int>(interchange::Constat::Nombre); ++k)
            for (const auto& [chemin, mention] :
                 rapport_.Liste(static_cast<interchange::Constat>(k))) {
                if (std::ranges::binary_search(mention.lignes, ligne.numero)) return true;
                // Of a long list only the beginning is kept.
                if (mention.nombre > mention.lignes.size() && chemin == ligne.chemin) return true;
            }
        return false;
    }

    void Comparer(std::string_view octets) {
        const std::vector<Ligne> lignes = Lire(octets);
        Numeroter(lignes);
        const Ligne* record = nullptr;
        const Record* ici = nullptr;
        for (const Ligne& ligne : lignes) {
            if (ligne.niveau == 0) {
                record = &ligne;
                const auto numero = records_.find(ligne.numero);
                const auto trouve =
                    numero == records_.end() ? apres_.end() : apres_.find(numero->second);
                ici = trouve == apres_.end() ? nullptr : &trouve->second;
                famille_ = ligne.tag == "FAM" ? ligne.cle : "";
                individu_ = numero == records_.end() ? "" : numero->second;
                if (ligne.tag != "NOTE") continue;
            }
            if (record == nullptr || record->tag == "HEAD" || record->tag == "SUBM") continue;
            precedentes_.resize(std::min(precedentes_.size(), ligne.niveau));
            precedentes_.resize(ligne.niveau + 1);
            precedentes_[ligne.niveau] = ligne.numero;
            if (ligne.niveau == 1 && ligne.tag == "NAME") nom_ = ligne.valeur;
            if (ligne.valeur.empty()) continue;
            const Classe classe = ClasseDe(ligne);
            Compte& compte = comptes_[static_cast<std::size_t>(classe)];
            ++compte.valeurs;
            // A family without two partners has no record of its own: its children say it.
            const bool sansUnion = ici == nullptr && record->tag == "FAM";
            const std::string regle = sansUnion        ? ChercherSansUnion(ligne)
                                      : ici == nullptr ? "?"
                                                       : Chercher(ligne, classe, *ici);
            if (regle.empty())
                ++compte.revenues;
            else if (regle == AvecPartenaires)
                ++compte.partagees;
            else if (EstDit(ligne) || EstDit(*record) || SonParentEstDit(ligne))
                ++changees_["in the report: " + ligne.chemin];
            else if (regle != "?")
                ++changees_[regle + ": " + ligne.chemin];
            else
                perdues_.push_back(std::to_string(ligne.numero) + ' ' + ligne.chemin + ": " +
                                   TexteVersUtf8(ligne.valeur.substr(0, 100)));
        }
    }

    static Classe ClasseDe(const Ligne& ligne) {
        if (!Vise(ligne).empty() && ligne.niveau > 0) return Classe::Reference;
        if (ligne.chemin.starts_with("INDI.NAME")) return Classe::Nom;
        if (ligne.tag == "DATE") return Classe::Date;
        if (ligne.tag == "PLAC") return Classe::Lieu;
        return Classe::Texte;
    }

    /// Empty when the value is back, else the rule that changes it, "?" for none.
    [[nodiscard]] std::string Chercher(const Ligne& ligne, Classe classe, const Record& ici) const {
        const std::string plat = Plat(ligne.valeur);
        if (classe == Classe::Reference) return ChercherReference(ligne, ici);
        if (classe == Classe::Date) {
            if (ici.lignes.contains("DATE " + ligne.valeur)) return {};
            const interchange::DateLue lue = interchange::LireDateGedcom(ligne.valeur);
            if (ici.lignes.contains("DATE " +
                                    interchange::EcrireDateGedcom(lue.jourMois, lue.annee)))
                return "date in the words of a base";
            // The day of an event loses its leading zero.
            if (ligne.valeur.starts_with('0') &&
                ici.lignes.contains("DATE " + ligne.valeur.substr(1)))
                return "day without its zero";
            const std::string dite =
                Plat(lue.jourMois + (lue.jourMois.find('/') != std::string::npos ? '/' : ' ') +
                     lue.annee);
            if (ici.texte.find(dite) != std::string::npos) return "date in the note";
        }
        if (ici.texte.find(plat) != std::string::npos) return {};
        // A word longer than a line comes back with a blank at the cut.
        if (ici.serre.find(SansBlanc(plat)) != std::string::npos) return "blanks";
        if (classe == Classe::Nom) {
            const interchange::NomLu lu = interchange::LireNomGedcom(ligne.valeur, false);
            const std::string donne =
                Plat(lu.prenom + (lu.autres.empty() ? "" : ' ' + lu.autres) + " /" + lu.nom + '/');
            if (ligne.tag == "NAME" && ici.texte.find('\n' + donne) != std::string::npos)
                return "given names before the family name, which is never empty";
            if (ligne.tag != "NAME" && interchange::RepeteLeNom(ligne.valeur, nom_))
                return "repeats the name";
        }
        if (ligne.tag == "PEDI") return "filiation in words";
        if (ligne.tag == "SEX" && SexeDesFamilles(ligne)) return "sex that the families say";
        if (ligne.chemin == "FAM.MARR" && ligne.valeur == "Y") return "the union says it";
        // The report names an event of which nothing else is said.
        if (ligne.valeur == "Y") return "what stands under it says it";
        if (ligne.tag == "ROLE" && !famille_.empty()) return "role of the partners";
        if (ligne.tag == "SEX") return ligne.valeur == "M" || ligne.valeur == "F" ? "?" : "sex";
        // The numbers of an age stay, its letters become words.
        if (ligne.tag == "AGE") {
            const std::string nombre =
                ligne.valeur.substr(0, ligne.valeur.find_first_not_of("0123456789"));
            if (nombre.empty() || ici.texte.find(' ' + nombre + ' ') != std::string::npos)
                return "age in words";
        }
        if (ligne.tag == "QUAY") return "quality in words";
        return "?";
    }

    [[nodiscard]] std::string ChercherReference(const Ligne& ligne, const Record& ici) const {
        const std::string vise = Vise(ligne);
        const std::string& tag = ligne.tag;
        const bool personne =
            tag == "HUSB" || tag == "WIFE" || tag == "CHIL" || tag == "ASSO" || tag == "ALIA";
        const std::string sorte = personne ? "INDI" : tag == "FAMC" || tag == "FAMS" ? "FAM" : tag;
        const std::string attendue = Trouver(sorte, vise);
        if (attendue.empty() && tag != "FAMC" && tag != "FAMS") return "?";
        const std::string ligneAttendue =
            (tag == "ALIA" ? "ASSO" : tag) + std::string{" @"} + attendue + '@';
        if (ici.lignes.contains(ligneAttendue)) return {};
        const std::string moi = CleIci();
        const auto [debut, fin] = enfants_.equal_range(moi);
        if ((tag == "FAMC" &&
             std::none_of(debut, fin, [&](const auto& p) { return p.second == vise; })) ||
            (tag == "FAMS" && Qui(maris_, vise) != moi && Qui(femmes_, vise) != moi))
            return "?";  // the report names it
        if (attendue.empty() && (tag == "FAMC" || tag == "FAMS")) return SansUnion(vise, ici);
        if ((tag == "HUSB" && Qui(maris_, famille_) != vise) ||
            (tag == "WIFE" && Qui(femmes_, famille_) != vise))
            return "a second partner replaces the first";
        // Of a child who stands above a partner the report says it.
        if (tag == "FAMC" && enfantsDits_.contains(moi)) return "child above a partner";
        if (tag == "SOUR" && !famille_.empty()) {
            // A union takes part in an event through its partners.
            const auto dit = [&](const std::map<std::string, std::string>& cote) {
                const auto qui = cote.find(famille_);
                const auto record =
                    apres_.find(qui == cote.end() ? "" : Trouver("INDI", qui->second));
                return record != apres_.end() && record->second.lignes.contains(ligneAttendue);
            };
            if (dit(maris_) && dit(femmes_)) return std::string{AvecPartenaires};
        }
        if ((tag == "FAMC" || tag == "CHIL") && enfants_.count(tag == "CHIL" ? vise : CleIci()) > 1)
            return "child of a later family";
        // A base does not know of which of two unions of one pair a child is.
        const std::string premiere = PremiereUnion(tag == "CHIL" ? famille_ : vise);
        if (tag == "FAMC" && ici.lignes.contains("FAMC @" + premiere + '@'))
            return "children with the first union of the pair";
        if (const auto union_ = apres_.find(premiere);
            tag == "CHIL" && union_ != apres_.end() &&
            union_->second.lignes.contains(ligneAttendue))
            return "children with the first union of the pair";
        return "?";
    }

    /// The key of the person whose record is looked at.
    [[nodiscard]] std::string CleIci() const {
        for (const auto& [cle, numero] : cles_)
            if (numero == individu_) return cle.substr(4);
        return {};
    }
    static std::string Qui(const std::map<std::string, std::string>& cote, const std::string& f) {
        const auto trouve = cote.find(f);
        return trouve == cote.end() ? std::string{} : trouve->second;
    }
    /// In the second file, of the same partners as a family of the first file; empty for none.
    [[nodiscard]] std::string PremiereUnion(const std::string& famille) const {
        std::string premiere;
        for (const auto& [f, mari] : maris_) {
            const std::string union_ = Trouver("FAM", f);
            if (union_.empty() || mari != Qui(maris_, famille) ||
                Qui(femmes_, f) != Qui(femmes_, famille))
                continue;
            const auto numero = [](const std::string& n) { return std::stoul(n.substr(1)); };
            if (premiere.empty() || numero(union_) < numero(premiere)) premiere = union_;
        }
        return premiere;
    }

    static constexpr std::string_view DUnParent = "family of one parent";

    /// A reference to a family without two partners: its parent is one of a family of this record,
    /// or a later family has replaced him, or there is nothing in it.
    [[nodiscard]] std::string SansUnion(const std::string& famille, const Record& ici) const {
        if (Qui(maris_, famille).empty() && Qui(femmes_, famille).empty())
            return "family of nobody";
        for (const std::string& ligne : ici.lignes)
            if (ligne.starts_with("FAMC @") || ligne.starts_with("FAMS @")) {
                const auto autre = apres_.find(ligne.substr(6, ligne.size() - 7));
                if (autre != apres_.end() && Parent(autre->second, famille))
                    return std::string{DUnParent};
            }
        for (const auto& [enfant, f] : enfants_)
            if (f == famille && enfants_.count(enfant) > 1) return "child of a later family";
        const bool enfant = std::ranges::any_of(
            enfants_, [&](const auto& paire) { return paire.second == famille; });
        return enfant ? "?" : "family of one person without children";
    }
    [[nodiscard]] bool Parent(const Record& record, const std::string& famille) const {
        for (const auto& [tag, cote] : {std::pair{"HUSB @", &maris_}, {"WIFE @", &femmes_}}) {
            const auto qui = cote->find(famille);
            if (qui == cote->end()) continue;
            const std::string numero = Trouver("INDI", qui->second);
            if (!numero.empty() && record.lignes.contains(tag + numero + '@')) return true;
        }
        return false;
    }
    /// A line of such a family.
    [[nodiscard]] std::string ChercherSansUnion(const Ligne& ligne) const {
        if (ligne.tag != "CHIL") return "?";
        const auto enfant = apres_.find(Trouver("INDI", Vise(ligne)));
        return enfant == apres_.end() ? "?" : SansUnion(famille_, enfant->second);
    }
    /// The person is a husband or a wife of the other sex than the line says.
    [[nodiscard]] bool SexeDesFamilles(const Ligne& ligne) const {
        const auto& cote = ligne.valeur == "M" ? femmes_ : maris_;
        return std::ranges::any_of(cote, [&](const auto& paire) {
            const auto numero = cles_.find("INDI" + paire.second);
            return numero != cles_.end() && numero->second == individu_;
        });
    }
    /// What qualifies a line goes with it.
    [[nodiscard]] bool SonParentEstDit(const Ligne& ligne) const {
        if (ligne.tag != "RELA" && ligne.tag != "ROLE") return false;
        Ligne parent = ligne;
        parent.numero = precedentes_[ligne.niveau - 1];
        parent.chemin.clear();
        return EstDit(parent);
    }

    static constexpr std::string_view AvecPartenaires = "with the partners";

    const interchange::RapportImport& rapport_;
    std::map<std::string, Record> apres_;
    std::map<std::string, std::string> cles_;          ///< record of the first file by tag and key
    std::map<std::uint32_t, std::string> records_;     ///< the same by its first line
    std::multimap<std::string, std::string> enfants_;  ///< families of a child, in the first file
    std::set<std::string> enfantsDits_;                ///< of whom the report names a CHIL line
    std::vector<std::uint32_t> precedentes_;           ///< lines that are open, by level
    std::string nom_;
    std::string individu_;
    std::map<std::string, std::string> maris_;
    std::map<std::string, std::string> femmes_;
    std::string famille_;
    std::array<Compte, static_cast<std::size_t>(Classe::Nombre)> comptes_{};
    std::map<std::string, std::size_t> changees_;
    std::vector<std::string> perdues_;
};

}  // namespace dorvane::doublures
