// What a file says ends up in the base or in the report: each value of each line of the files of
// other programs is looked for in what became of its record.
#include "interchange/CorpusEssai.h"
#include "interchange/EssaiImport.h"
#include "interchange/gedcom/ContexteImport.h"
#include "interchange/gedcom/DatesGedcom.h"
#include "interchange/gedcom/FicheGedcom.h"
#include "interchange/gedcom/NomGedcom.h"
#include "interchange/jeux/JeuxDeCaracteres.h"
#include "messages/Messages.h"
#include "values/Comparaison.h"
#include "values/Dates.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>

using namespace dorvane;
using namespace dorvane::interchange;
using doublures::EssaiImport;

namespace {

/// A text as it is compared: the dots of keywords and any run of blanks are one blank.
std::string Aplatir(std::string_view texte) {
    std::string plat{" "};
    for (const char c : texte) {
        const bool blanc = c == ' ' || c == '.' || c == '\r' || c == '\n' || c == '\t';
        if (!blanc)
            plat += c;
        else if (plat.back() != ' ')
            plat += ' ';
    }
    RemplacerTout(plat, "@@", "@");
    while (plat.size() > 1 && plat.back() == ' ')
        plat.pop_back();
    return plat.substr(1);
}

/// By the digit of a QUAY line.
constexpr std::array<NoMessage, 4> Fiabilites{message::FiabiliteNulle, message::FiabiliteDouteuse,
                                              message::FiabiliteSourceSecondaire,
                                              message::FiabiliteSourceOriginale};

/// Goes through a file beside its import.
class Verificateur {
public:
    Verificateur(EssaiImport& essai, std::string_view fichier)
        : essai_{essai}, textes_{essai.session} {
        const ChoixDeJeu jeu = ChoisirJeu(fichier);
        texte_ = Decoder(fichier.substr(jeu.marque), jeu.jeu, fichier.find("1 SOUR DORVANE") < 1000)
                     .octets;
        std::ranges::replace(texte_, '\0', ' ');
        for (int k = 0; k < static_cast<int>(Constat::Nombre); ++k)
            for (const auto& [chemin, mention] :
                 essai.importation.rapport.Liste(static_cast<Constat>(k))) {
                lignes_.insert(mention.lignes.begin(), mention.lignes.end());
                if (mention.nombre > mention.lignes.size()) chemins_.insert(chemin);
            }
    }

    /// The lines whose value is nowhere, one a line.
    std::string Verifier() {
        const auto fin = ChercherFinDeLigne(texte_);
        if (!fin) return {};
        ReleverCles(*fin);
        LecteurDeLignes lecteur{texte_, *fin};
        LigneGedcom ligne;
        for (auto sorte = lecteur.Lire(ligne); sorte != LecteurDeLignes::Sorte::Fin;
             sorte = lecteur.Lire(ligne)) {
            if (sorte == LecteurDeLignes::Sorte::Illisible) {
                if (!lignes_.contains(ligne.numero)) Manquer(ligne, "unreadable");
                continue;
            }
            if (sorte == LecteurDeLignes::Sorte::Vide) continue;
            const bool place = pile_.Entrer(ligne.niveau, ligne.etiquette, ligne.code);
            ouvertes_[pile_.Niveau()] = ligne.numero;
            if (ligne.niveau == 0) {
                if (ligne.code == "TRLR"_tag) break;
                OuvrirRecord(ligne);
            } else if (!EstDit(ligne) && (!place || !EstDansLaBase(ligne))) {
                Manquer(ligne, place ? Chemin() : "no parent");
            }
        }
        return manques_;
    }

private:
    void ReleverCles(FinDeLigne fin) {
        LecteurDeLignes lecteur{texte_, fin};
        LigneGedcom ligne;
        for (auto sorte = lecteur.Lire(ligne); sorte != LecteurDeLignes::Sorte::Fin;
             sorte = lecteur.Lire(ligne))
            if (sorte == LecteurDeLignes::Sorte::Ligne && ligne.niveau == 0 && !ligne.cle.empty())
                cles_[std::string{ligne.cle}].insert(ligne.code);
    }

    [[nodiscard]] std::string Chemin() const {
        std::string chemin;
        for (std::size_t i = 0; i <= pile_.Niveau(); ++i)
            chemin.append(i > 0 ? "." : "").append(pile_.Etiquette(i));
        return chemin;
    }

    void Manquer(const LigneGedcom& ligne, const std::string& quoi) {
        manques_ += std::to_string(ligne.numero) + ' ' + quoi + ": " +
                    TexteVersUtf8(ligne.valeur.substr(0, 120)) + '\n';
    }

    /// The report names the line, or the record that it belongs to as a whole.
    [[nodiscard]] bool EstDit(const LigneGedcom& ligne) const {
        // What qualifies a link goes with it.
        const bool qualifie = ligne.code == "RELA"_tag || ligne.code == "ROLE"_tag;
        if (qualifie && lignes_.contains(ouvertes_[pile_.Niveau() - 1])) return true;
        return recordDit_ || lignes_.contains(ligne.numero) || chemins_.contains(Chemin());
    }

    void OuvrirRecord(const LigneGedcom& ligne) {
        genre_ = ligne.code;
        meule_.clear();
        recordDit_ = false;
        storage::Base& base = *essai_.base;
        const bool limite = Est(Constat::Limite, ligne);
        switch (genre_) {
            case "INDI"_tag:
                recordDit_ = limite;
                if (!limite) EmpilerIndividu(NoOrdre{++individu_});
                break;
            case "FAM"_tag:
                recordDit_ = limite || Est(Constat::SansUnion, ligne);
                if (!recordDit_) EmpilerUnion(NoMariage{++union_});
                break;
            case "SOUR"_tag:
                recordDit_ = limite;
                if (!limite) EmpilerEvenement(NoEvenement{++evenement_});
                break;
            case "NOTE"_tag:
            case "TITL"_tag:
                recordDit_ = limite;
                if (!limite) EmpilerDocument(NoDocument{++document_});
                break;
            case "HEAD"_tag:
                if (base.entete.DernierDocument > 0)
                    EmpilerDocument(NoDocument{base.entete.DernierDocument});
                break;
            case "SUBM"_tag:
                EmpilerAuteur();
                break;
            default:
                recordDit_ = lignes_.contains(ligne.numero);
        }
        meule_ = Aplatir(meule_);
        if (!ligne.valeur.empty() && !EstDit(ligne) && !Contient(ligne.valeur))
            Manquer(ligne, std::string{ligne.etiquette});
    }

    [[nodiscard]] bool Est(Constat constat, const LigneGedcom& ligne) const {
        const auto& liste = essai_.importation.rapport.Liste(constat);
        return std::ranges::any_of(liste, [&](const auto& m) {
            return std::ranges::find(m.second.lignes, ligne.numero) != m.second.lignes.end() &&
                   (m.first == ligne.etiquette || m.first == "FAM +");
        });
    }

    void Empiler(std::string_view texte) { meule_.append(texte).append(" \n"); }

    void EmpilerIndividu(NoOrdre n) {
        storage::Base& base = *essai_.base;
        Empiler(base.R_NOM.LireTexte(n));
        Empiler(base.R_TEXTE.LireTexte(n));
        Empiler(base.R_NAISS.LireCellule(n));
        Empiler(base.R_DECES.LireCellule(n));
        for (std::size_t k = 1; k <= base.R_LIEN.NbElements(n); ++k)
            Empiler(base.R_LIEN.TexteElement(n, k));
        for (std::size_t k = 1; k <= base.R_LSTEVT.NbElements(n); ++k)
            Empiler(base.R_LSTEVT.TexteElement(n, k));
    }
    void EmpilerUnion(NoMariage m) {
        storage::Base& base = *essai_.base;
        Empiler(base.R_TXTMAR.LireTexte(m));
        Empiler(base.R_DEBMAR.LireCellule(m));
        for (const NoOrdre n : {base.R_EPOUX.LireCellule(m), base.R_EPOUSE.LireCellule(m)})
            for (std::size_t k = 1; k <= base.R_LSTEVT.NbElements(n); ++k)
                Empiler(base.R_LSTEVT.TexteElement(n, k));
    }
    void EmpilerEvenement(NoEvenement e) {
        storage::Base& base = *essai_.base;
        Empiler(base.R_EVT.NoteEvt(e));
        const storage::DescriptionEvt& d = base.R_EVT.Description(e);
        Empiler(d.lieu);
        Empiler(d.libelle);
        Empiler(d.type);
        cleDate_ = base.R_EVT.CleDateEvt(e);
    }
    void EmpilerDocument(NoDocument d) {
        const storage::Document& document = essai_.base->R_IMAGE.LireDoc(d);
        Empiler(document.fichier);
        Empiler(document.type);
        Empiler(document.note);
    }
    void EmpilerAuteur() {
        shell::Parametres& parametres = essai_.session.parametres;
        static_cast<void>(parametres.LireParametresBase(essai_.chemin));
        Empiler(parametres.base.auteur);
        for (const std::string& adresse : parametres.base.adresse)
            Empiler(adresse);
    }

    [[nodiscard]] bool Contient(std::string_view valeur) const {
        return meule_.find(Aplatir(valeur)) != std::string::npos;
    }

    [[nodiscard]] bool DateYEst(const LigneGedcom& ligne) const {
        if (Contient(ligne.valeur)) return true;
        const DateLue date = LireDateGedcom(ligne.valeur);
        if (genre_ == "SOUR"_tag)
            return cleDate_ != storage::CleSansDate &&
                   DateVersSerie(DateEntiere(date), OrdreDate::JourMoisAnnee) == cleDate_;
        return Contient(date.jourMois) && Contient(date.annee);
    }

    /// The record that a reference names is in the file: what becomes of the link is counted
    /// elsewhere.
    [[nodiscard]] bool ReferenceConnue(const LigneGedcom& ligne) const {
        const auto ou = cles_.find(std::string{CleDeReference(ligne.valeur)});
        if (ou == cles_.end()) return false;
        switch (ligne.code) {
            case "FAMC"_tag:
            case "FAMS"_tag:
                return ou->second.contains("FAM"_tag);
            case "SOUR"_tag:
                return ou->second.contains("SOUR"_tag);
            case "NOTE"_tag:
            case "TITL"_tag:
                return ou->second.contains("NOTE"_tag) || ou->second.contains("TITL"_tag);
            case "HUSB"_tag:
            case "WIFE"_tag:
            case "CHIL"_tag:
            case "ASSO"_tag:
            case "ALIA"_tag:
                return ou->second.contains("INDI"_tag);
            default:
                return false;
        }
    }

    [[nodiscard]] bool ContientMessage(NoMessage no) { return Contient(textes_.Message(no)); }

    [[nodiscard]] bool EstDansLaBase(const LigneGedcom& ligne) {
        const std::string_view v = ligne.valeur;
        if (v.empty()) return true;
        const CodeEtiquette parent = pile_.Parent();
        // The header speaks of the program that wrote the file.
        if (genre_ == "HEAD"_tag && pile_.Etiquette(1) != "NOTE") return true;
        if (!CleDeReference(v).empty() && ReferenceConnue(ligne)) return true;
        switch (ligne.code) {
            case "SEX"_tag:
                return v == "M" || v == "F";
            case "GIVN"_tag:
            case "SURN"_tag:
                // Pieces of a name repeat it.
                if (parent == "NAME"_tag) return RepeteLeNom(v, meule_);
                break;
            case "DATE"_tag:
                return DateYEst(ligne);
            case "AGE"_tag:
                return Contient(TraduireAge(v, textes_));
            case "QUAY"_tag:
                return v.size() == 1 && v[0] >= '0' && v[0] <= '3'
                           ? ContientMessage(Fiabilites[static_cast<std::size_t>(v[0] - '0')])
                           : Contient(v);
            case "PEDI"_tag:
                return Contient(v) ||
                       (v == "adopted" && ContientMessage(message::FiliationAdoptive)) ||
                       (v == "birth" && ContientMessage(message::TagBIRT)) ||
                       (v == "foster" && ContientMessage(message::FiliationFamilleAccueil)) ||
                       (v == "sealing" && ContientMessage(message::FiliationScellement));
            case "ADOP"_tag:
                if (parent == "FAMC"_tag || parent == "ADOP"_tag)
                    return ContientMessage(v == "HUSB"   ? message::TagFATH
                                           : v == "WIFE" ? message::TagMOTH
                                                         : message::PereEtMere);
                break;
            case "TYPE"_tag:
            case "EVEN"_tag:
            case "ROLE"_tag:
            case "RELA"_tag: {
                std::string_view mot = v;
                if (mot.starts_with('(') && mot.ends_with(')')) mot = mot.substr(1, mot.size() - 2);
                const std::string tag = textes_.Tag(SansBlancs(mot));
                if (Contient(tag) || Contient(textes_.Libelle(tag))) return true;
                if (v == "BAPM" || v == "CHRA") return Contient("CHR");
                break;
            }
            case "NAME"_tag: {
                if (pile_.Niveau() != 1) break;
                std::string nom{v};
                std::ranges::replace(nom, '/', ' ');
                if (genre_ == "SUBM"_tag) return Contient(nom) || Contient(EffacerBarres(v));
                // Surname and given names stand apart: each word is looked for.
                return MotsPresents(nom);
            }
            default:
                break;
        }
        // "Y" only says that the event took place.
        if (v == "Y" && pile_.Niveau() == 1) return true;
        return Contient(v);
    }

    static std::string EffacerBarres(std::string_view valeur) {
        std::string texte{valeur};
        std::erase(texte, '/');
        return texte;
    }

    [[nodiscard]] bool MotsPresents(std::string_view texte) const {
        const std::string plat = Aplatir(texte);
        for (std::string_view reste = plat; !reste.empty();) {
            const std::size_t fin = std::min(reste.find(' '), reste.size());
            if (meule_.find(reste.substr(0, fin)) == std::string::npos) return false;
            reste.remove_prefix(std::min(fin + 1, reste.size()));
        }
        return true;
    }

    EssaiImport& essai_;
    TextesImport textes_;
    std::string texte_;
    std::set<std::uint32_t> lignes_;
    std::set<std::string> chemins_;
    std::map<std::string, std::set<CodeEtiquette>> cles_;
    PileEtiquettes pile_;
    std::array<std::uint32_t, 6> ouvertes_{};  ///< number of the line open at each level
    CodeEtiquette genre_ = 0;
    bool recordDit_ = false;
    std::uint32_t individu_ = 0;
    std::uint32_t union_ = 0;
    std::uint32_t evenement_ = 0;
    std::uint32_t document_ = 0;
    std::int32_t cleDate_ = 0;
    std::string meule_;
    std::string manques_;
};

void VerifierCorpus(EssaiImport& essai, const std::filesystem::path& corpus) {
    for (const doublures::Rang& rang : doublures::LireIndex(corpus / "index.tsv")) {
        const std::string& nom = rang.at("file");
        CAPTURE(nom);
        essai.dialogue.reponses = {shell::Reponse::Oui};
        const std::string octets =
            doublures::LireFichierOuGz(corpus / nom, essai.dossier / "brouillon");
        essai.ImporterOctets(octets);
        if (essai.importation.issue) CHECK(Verificateur{essai, octets}.Verifier() == "");
    }
}

}  // namespace

TEST_CASE_FIXTURE(EssaiImport,
                  "Completeness: each value of a file is in its record or in the report") {
    VerifierCorpus(*this, doublures::CorpusMaison());
}

TEST_SUITE("voisin") {
    TEST_CASE_FIXTURE(EssaiImport,
                      "Completeness: each value of a foreign file is in its record or told") {
        if (const std::filesystem::path corpus = doublures::CorpusVoisin(); !corpus.empty())
            VerifierCorpus(*this, corpus);
        else
            MESSAGE("skipped: the files of other programs are not beside the sources");
    }
}
