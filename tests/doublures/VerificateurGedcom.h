#pragma once

#include "interchange/jeux/TablesDeCaracteres.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::doublures {

/// Checks a file against the published grammar of GEDCOM 5.5: levels, tags in their context, line
/// length, references both ways, the declared character set. Beyond the grammar it lets through
/// what this program adds on purpose: ADDR and PEDI of a person, RESI of a family, CONC under any
/// long value, a name of any length, the sets ANSI, HTML and UTF-8, bytes of code page 437 under
/// ASCII. Values of dates are free, as they are in a base.
class VerificateurGedcom {
public:
    /// `reduit`: the header names no submitter.
    explicit VerificateurGedcom(std::string_view octets, bool reduit = false) : reduit_{reduit} {
        std::size_t numero = 0;
        for (std::size_t i = 0; i < octets.size();) {
            ligne_ = ++numero;
            const std::size_t fin = octets.find("\r\n", i);
            if (fin == std::string_view::npos) {
                Dire("no CR LF at the end of the last line");
                VoirLigne(octets.substr(i));
                break;
            }
            VoirLigne(octets.substr(i, fin - i));
            i = fin + 2;
        }
        VoirEnsemble();
    }

    /// "12: what is wrong", by line; empty when all is right.
    [[nodiscard]] const std::vector<std::string>& Ecarts() const { return ecarts_; }
    /// The first of them, one a line.
    [[nodiscard]] std::string Texte() const {
        std::string texte;
        for (std::size_t i = 0; i < std::min<std::size_t>(ecarts_.size(), 12); ++i)
            texte += ecarts_[i] + '\n';
        return texte;
    }

private:
    struct Renvoi {
        std::string de;
        std::string tag;
        std::string vers;
        std::size_t ligne;
    };
    static constexpr std::size_t LigneLaPlusLongue = 255;  // with its line end

    static bool Dans(std::string_view mots, std::string_view mot) {
        for (std::size_t i = mots.find(mot); i != std::string_view::npos; i = mots.find(mot, i + 1))
            if ((i == 0 || mots[i - 1] == ' ') &&
                (i + mot.size() == mots.size() || mots[i + mot.size()] == ' '))
                return true;
        return false;
    }
    static constexpr std::string_view FaitsPersonne =
        "BIRT CHR DEAT BURI CREM ADOP BAPM BARM BASM BLES CHRA CONF FCOM ORDN NATU EMIG IMMI CENS "
        "PROB WILL GRAD RETI EVEN BAPL CONL ENDL SLGC CAST DSCR EDUC IDNO NATI NCHI NMR OCCU PROP "
        "RELI RESI SSN TITL";
    static constexpr std::string_view FaitsFamille =
        "ANUL CENS DIV DIVF ENGA MARR MARB MARC MARL MARS EVEN RESI";

    /// The tags that may stand under a line, by its path; "" for records, "*" before a tag for a
    /// structure that is the same everywhere.
    static std::string_view Enfants(const std::string& chemin, std::string_view tag) {
        static const std::map<std::string, std::string, std::less<>> Table{
            {"", "HEAD SUBN SUBM FAM INDI OBJE NOTE REPO SOUR TRLR"},
            {"HEAD", "SOUR DEST DATE SUBM SUBN FILE COPR GEDC CHAR LANG PLAC NOTE"},
            {"HEAD.SOUR", "VERS NAME CORP DATA"},
            {"HEAD.SOUR.CORP", "ADDR PHON"},
            {"HEAD.SOUR.DATA", "DATE COPR"},
            {"HEAD.DATE", "TIME"},
            {"HEAD.GEDC", "VERS FORM"},
            {"HEAD.CHAR", "VERS"},
            {"HEAD.PLAC", "FORM"},
            {"SUBM", "NAME ADDR PHON OBJE LANG RFN RIN CHAN"},
            {"INDI",
             "RESN NAME SEX SUBM ASSO ALIA ANCI DESI SOUR OBJE NOTE RFN AFN REFN RIN CHAN "
             "FAMC FAMS ADDR PEDI " +
                 std::string{FaitsPersonne}},
            {"FAM", "HUSB WIFE CHIL NCHI SUBM SLGS SOUR OBJE NOTE REFN RIN CHAN " +
                        std::string{FaitsFamille}},
            {"SOUR", "DATA AUTH TITL ABBR PUBL TEXT REPO OBJE NOTE REFN RIN CHAN"},
            {"SOUR.DATA", "EVEN AGNC NOTE"},
            {"SOUR.DATA.EVEN", "DATE PLAC"},
            {"SOUR.TITL", "CONT"},
            {"NOTE", "CONT SOUR REFN RIN CHAN"},
            {"*NAME", "NPFX GIVN NICK SPFX SURN NSFX SOUR NOTE"},
            {"*ASSO", "TYPE RELA NOTE SOUR"},
            {"*FAMC", "PEDI NOTE"},
            {"*FAMS", "NOTE"},
            {"*SOUR", "PAGE EVEN DATA QUAY OBJE NOTE CONT TEXT"},
            {"*NOTE", "CONT SOUR"},
            {"*REFN", "TYPE"},
            {"*CHAN", "DATE NOTE"},
            {"*ADDR", "CONT ADR1 ADR2 CITY STAE POST CTRY"},
            {"*PLAC", "FORM SOUR NOTE"},
            {"*", "TYPE DATE PLAC ADDR PHON AGE AGNC CAUS SOUR OBJE NOTE HUSB WIFE FAMC"},
        };
        if (const auto exact = Table.find(chemin); exact != Table.end()) return exact->second;
        if (chemin.ends_with(".SOUR.EVEN")) return "ROLE";
        if (const auto commun = Table.find('*' + std::string{tag}); commun != Table.end())
            return commun->second;
        const bool niveau1 = std::count(chemin.begin(), chemin.end(), '.') == 1;
        const bool fait = niveau1 && ((chemin.starts_with("INDI.") && Dans(FaitsPersonne, tag)) ||
                                      (chemin.starts_with("FAM.") && Dans(FaitsFamille, tag)));
        return fait ? std::string_view{Table.find("*")->second} : std::string_view{};
    }

    void Dire(const std::string& quoi) { ecarts_.push_back(std::to_string(ligne_) + ": " + quoi); }

    void VoirLigne(std::string_view ligne) {
        if (ligne.size() + 2 > LigneLaPlusLongue && !ligne.starts_with("1 NAME "))
            Dire("longer than 255");
        for (const char c : ligne)
            if (static_cast<unsigned char>(c) < 0x20 && c != '\t') {
                Dire("control character");
                break;
            }
        std::size_t chiffres = 0;
        while (chiffres < ligne.size() && ligne[chiffres] >= '0' && ligne[chiffres] <= '9')
            ++chiffres;
        if (chiffres == 0 || chiffres > 2 || chiffres >= ligne.size() || ligne[chiffres] != ' ' ||
            (chiffres == 2 && ligne[0] == '0'))
            return Dire("no level");
        const std::size_t niveau = std::stoul(std::string{ligne.substr(0, chiffres)});
        std::string_view reste = ligne.substr(chiffres + 1);
        std::string cle;
        if (reste.starts_with('@')) {
            const std::size_t fin = reste.find('@', 1);
            if (fin == std::string_view::npos || fin + 1 >= reste.size() || reste[fin + 1] != ' ')
                return Dire("identifier without end");
            cle = reste.substr(1, fin - 1);
            reste = reste.substr(fin + 2);
        }
        const std::string tag{reste.substr(0, reste.find(' '))};
        const bool aValeur = tag.size() < reste.size();
        const std::string_view valeur = aValeur ? reste.substr(tag.size() + 1) : std::string_view{};
        if (tag.empty() || tag.size() > 31 || !std::ranges::all_of(tag, [](char c) {
                return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
            }))
            return Dire("no tag");
        if (aValeur && valeur.empty()) Dire("blank without a value");
        Entrer(niveau, cle, tag, valeur);
    }

    void Entrer(std::size_t niveau, const std::string& cle, const std::string& tag,
                std::string_view valeur) {
        if (niveau > chemin_.size()) return Dire("level jumps");
        chemin_.resize(niveau);
        const std::string ici = Chemin();
        const std::string_view parent = chemin_.empty() ? "" : std::string_view{chemin_.back()};
        const bool suite = tag == "CONC" && niveau > 0;
        if (!suite && tag[0] != '_' && !Dans(Enfants(ici, parent), tag))
            Dire("no " + tag + " under " + (ici.empty() ? "nothing" : ici));
        chemin_.push_back(tag);
        if (niveau == 0)
            OuvrirRecord(cle, tag);
        else if (!cle.empty())
            Dire("identifier below level 0");
        if (++fois_[Chemin()] > 1 && Dans("INDI.SEX FAM.HUSB FAM.WIFE HEAD.CHAR HEAD.GEDC "
                                          "HEAD.SUBM HEAD.SOUR SOUR.TITL SOUR.DATA",
                                          Chemin()))
            Dire("a second " + Chemin());
        VoirValeur(tag, valeur);
    }

    void OuvrirRecord(const std::string& cle, const std::string& tag) {
        fois_.clear();
        record_ = cle;
        if (records_++ == 0 && tag != "HEAD") Dire("does not begin with HEAD");
        if (finVue_) Dire("a record behind TRLR");
        finVue_ = tag == "TRLR";
        if (Dans("HEAD TRLR", tag)) {
            if (!cle.empty()) Dire("identifier of " + tag);
            return;
        }
        if (cle.empty()) return Dire(tag + " without identifier");
        if (cle.size() > 20) Dire("identifier longer than 20");
        if (!sortes_.emplace(cle, tag).second) Dire("identifier twice: " + cle);
    }

    void VoirValeur(const std::string& tag, std::string_view valeur) {
        const std::string ici = Chemin();
        const bool renvoi = valeur.size() > 2 && valeur.front() == '@' && valeur.back() == '@' &&
                            valeur[1] != '#' &&
                            valeur.substr(1, valeur.size() - 2).find('@') == std::string_view::npos;
        if (renvoi) {
            renvois_.push_back(
                {record_, tag, std::string{valeur.substr(1, valeur.size() - 2)}, ligne_});
            return;
        }
        if (Dans("INDI.FAMC INDI.FAMS INDI.ASSO FAM.HUSB FAM.WIFE FAM.CHIL HEAD.SUBM", ici))
            Dire("no reference in " + tag);
        for (std::size_t i = valeur.find('@'); i != std::string_view::npos;
             i = valeur.find('@', i + 2)) {
            if (i + 1 < valeur.size() && valeur[i + 1] == '#') {
                i = std::min(valeur.find('@', i + 1), valeur.size()) - 1;
                continue;
            }
            if (i + 1 >= valeur.size() || valeur[i + 1] != '@') {
                Dire("a single @ in a value");
                break;
            }
        }
        if (ici == "INDI.SEX" && valeur != "M" && valeur != "F" && valeur != "U") Dire("SEX");
        if (ici == "INDI.NAME" && std::count(valeur.begin(), valeur.end(), '/') > 2) Dire("NAME");
        if (ici == "HEAD.GEDC.VERS") version_ = valeur;
        if (ici == "HEAD.CHAR") jeu_ = valeur;
        VoirOctets(valeur);
    }

    void VoirOctets(std::string_view valeur) {
        bool juste = true;
        for (std::size_t i = 0; i < valeur.size() && juste; ++i) {
            const auto octet = static_cast<unsigned char>(valeur[i]);
            if (jeu_ == "ANSEL" && octet >= 0x80) {
                // A mark stands in front of its letter.
                const bool marque = octet >= 0xE0;
                juste = interchange::CodeDeAnsel(octet) != 0 &&
                        (!marque || (i + 1 < valeur.size() && valeur[i + 1] != ' '));
            } else if (jeu_ == "UTF-8" && octet >= 0x80) {
                const std::size_t suite = octet >= 0xF0   ? 3
                                          : octet >= 0xE0 ? 2
                                          : octet >= 0xC2 ? 1
                                                          : 0;
                juste = suite != 0 && i + suite < valeur.size();
                for (std::size_t k = 1; k <= suite && juste; ++k)
                    juste = (static_cast<unsigned char>(valeur[i + k]) & 0xC0U) == 0x80;
                i += suite;
            } else if (jeu_ == "ANSI") {
                juste = octet != 0x81 && octet != 0x8D && octet != 0x8F && octet != 0x90 &&
                        octet != 0x9D;
            } else if (jeu_ == "HTML" && octet == '&') {
                const std::size_t fin = valeur.find(';', i);
                juste = fin != std::string_view::npos && fin - i <= 8 && fin - i > 2;
            } else if (jeu_ == "HTML") {
                juste = octet != '<' && octet != '>';
            }
        }
        if (!juste) Dire("not in the set " + jeu_);
    }

    void VoirEnsemble() {
        if (!finVue_) Dire("does not end with TRLR");
        if (version_ != "5.5") Dire("GEDC VERS");
        if (!Dans("ASCII ANSEL UNICODE ANSI HTML UTF-8", jeu_) || jeu_.empty()) Dire("CHAR");
        if (!reduit_ && std::ranges::find(renvois_, "SUBM", &Renvoi::tag) == renvois_.end())
            Dire("HEAD without SUBM");
        std::set<std::array<std::string, 3>> liens;
        for (const Renvoi& r : renvois_) {
            ligne_ = r.ligne;
            const auto sorte = sortes_.find(r.vers);
            if (sorte == sortes_.end()) {
                Dire("leads nowhere: " + r.tag + ' ' + r.vers);
                continue;
            }
            const std::string attendue = Dans("FAMC FAMS", r.tag)                  ? "FAM"
                                         : Dans("HUSB WIFE CHIL ASSO ALIA", r.tag) ? "INDI"
                                                                                   : r.tag;
            if (sorte->second != attendue) Dire(r.tag + " leads to " + sorte->second);
            liens.insert({r.de, r.tag, r.vers});
        }
        // What a person says of his families, the families say of him.
        for (const Renvoi& r : renvois_) {
            ligne_ = r.ligne;
            const auto existe = [&](const char* tag) {
                return liens.contains({r.vers, tag, r.de});
            };
            const bool juste = r.tag == "FAMC"   ? existe("CHIL")
                               : r.tag == "CHIL" ? existe("FAMC")
                               : r.tag == "FAMS" ? existe("HUSB") || existe("WIFE")
                               : r.tag == "HUSB" || r.tag == "WIFE" ? existe("FAMS")
                                                                    : true;
            if (!juste) Dire(r.tag + " of one side only: " + r.de + ", " + r.vers);
        }
    }

    [[nodiscard]] std::string Chemin() const {
        std::string chemin;
        for (const std::string& tag : chemin_)
            chemin += chemin.empty() ? tag : '.' + tag;
        return chemin;
    }

    bool reduit_;
    bool finVue_ = false;
    std::size_t ligne_ = 0;
    std::size_t records_ = 0;
    std::string record_;
    std::string version_;
    std::string jeu_;
    std::vector<std::string> chemin_;
    std::map<std::string, int> fois_;
    std::map<std::string, std::string> sortes_;
    std::vector<Renvoi> renvois_;
    std::vector<std::string> ecarts_;
};

}  // namespace dorvane::doublures
