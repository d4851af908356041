#pragma once

#include "interchange/DatesGedcom.h"
#include "interchange/JeuxDeCaracteres.h"
#include "interchange/LignesGedcom.h"
#include "interchange/RapportImport.h"
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
            const bool blanc = c == ' ' || c == '.' || c == '\t';
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
        std::vector<std::string> familles;
        std::set<std::string> personnes;
        for (const Ligne& ligne : lignes) {
            if (ligne.niveau == 0) {
                famille = ligne.tag == "FAM" ? ligne.cle : "";
                const std::string_view sorte = ligne.tag == "INDI"   ? "I"
                                               : ligne.tag == "SOUR" ? "E"
                                               : ligne.tag == "NOTE" ? "D"
                                                                     : "";
                if (!sorte.empty())
                    cles_.emplace(ligne.tag + ligne.cle,
                                  std::string{sorte} + std::to_string(++rangs[ligne.tag]));
                if (ligne.tag == "FAM") familles.push_back(ligne.cle);
            } else if (!famille.empty() && ligne.niveau == 1) {
                const std::string qui = Vise(ligne);
                if (ligne.tag == "HUSB") maris_[famille] = qui;
                if (ligne.tag == "WIFE") femmes_[famille] = qui;
            }
        }
        std::size_t union_ = 0;
        for (const std::string& f : familles)
            if (Trouver("INDI", maris_[f]) != "" && Trouver("INDI", femmes_[f]) != "")
                cles_.emplace("FAM" + f, 'F' + std::to_string(++union_));
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
                const auto trouve = apres_.find(Trouver(ligne.tag, ligne.cle));
                ici = trouve == apres_.end() ? nullptr : &trouve->second;
                famille_ = ligne.tag == "FAM" ? ligne.cle : "";
                if (ligne.tag != "NOTE") continue;
            }
            if (record == nullptr || record->tag == "HEAD" || record->tag == "SUBM") continue;
            if (ligne.valeur.empty()) continue;
            const Classe classe = ClasseDe(ligne);
            Compte& compte = comptes_[static_cast<std::size_t>(classe)];
            ++compte.valeurs;
            const std::string regle = ici == nullptr ? "?" : Chercher(ligne, classe, *ici);
            if (regle.empty())
                ++compte.revenues;
            else if (regle == AvecPartenaires)
                ++compte.partagees;
            else if (EstDit(ligne) || EstDit(*record))
                ++changees_["in the report: " + ligne.chemin];
            else if (regle != "?")
                ++changees_[regle + ": " + ligne.chemin];
            else
                perdues_.push_back(std::to_string(ligne.numero) + ' ' + ligne.chemin + ": " +
                                   TexteVersUtf8(ligne.valeur.substr(0, 100)));
        }
    }

    static Classe ClasseDe(const Ligne& ligne) {
        if (!Vise(ligne).empty()) return Classe::Reference;
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
            const std::string dite =
                Plat(lue.jourMois + (lue.jourMois.find('/') != std::string::npos ? '/' : ' ') +
                     lue.annee);
            if (ici.texte.find(dite) != std::string::npos) return "date in the note";
        }
        if (ici.texte.find(plat) != std::string::npos) return {};
        // A word longer than a line comes back with a blank at the cut.
        if (ici.serre.find(SansBlanc(plat)) != std::string::npos) return "blanks";
        if (ligne.tag == "SEX") return ligne.valeur == "M" || ligne.valeur == "F" ? "?" : "sex";
        if (ligne.tag == "AGE") return "age in words";
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
        if (attendue.empty()) return "?";
        const std::string ligneAttendue =
            (tag == "ALIA" ? "ASSO" : tag) + std::string{" @"} + attendue + '@';
        if (ici.lignes.contains(ligneAttendue)) return {};
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

    /// In the second file, of the same partners as a family of the first file; empty for none.
    [[nodiscard]] std::string PremiereUnion(const std::string& famille) const {
        const auto qui = [](const std::map<std::string, std::string>& cote, const std::string& f) {
            const auto trouve = cote.find(f);
            return trouve == cote.end() ? std::string{} : trouve->second;
        };
        std::string premiere;
        for (const auto& [f, mari] : maris_) {
            const std::string union_ = Trouver("FAM", f);
            if (union_.empty() || mari != qui(maris_, famille) ||
                qui(femmes_, f) != qui(femmes_, famille))
                continue;
            const auto numero = [](const std::string& n) { return std::stoul(n.substr(1)); };
            if (premiere.empty() || numero(union_) < numero(premiere)) premiere = union_;
        }
        return premiere;
    }

    static constexpr std::string_view AvecPartenaires = "with the partners";

    const interchange::RapportImport& rapport_;
    std::map<std::string, Record> apres_;
    std::map<std::string, std::string> cles_;  ///< record of the first file by tag and key
    std::map<std::string, std::string> maris_;
    std::map<std::string, std::string> femmes_;
    std::string famille_;
    std::array<Compte, static_cast<std::size_t>(Classe::Nombre)> comptes_{};
    std::map<std::string, std::size_t> changees_;
    std::vector<std::string> perdues_;
};

}  // namespace dorvane::doublures
