#include "interchange/gedcom/LecteurIndividu.h"

#include "messages/Messages.h"
#include "storage/Textes.h"
#include "values/Comparaison.h"
#include "values/SortesEvenement.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace dorvane::interchange {

void LecteurIndividu::Commencer(NoOrdre individu) {
    individu_ = individu;
    fiche_.Commencer();
    sexe_ = Sexe::Indetermine;
    nomVu_ = false;
    valeurNom_ = {};
    nom_ = {};
    prenomSeul_ = nomSeul_ = derniereSource_ = {};
    lienOuvert_ = roleOuvert_ = false;
}

void LecteurIndividu::Lire(const LigneGedcom& ligne) {
    if (contexte_.pile.Niveau() == 1) {
        fiche_.FermerStructure();
        derniereSource_ = {};
        lienOuvert_ = roleOuvert_ = false;
        LireNiveau1(ligne);
        return;
    }
    if (fiche_.EstEcartee(ligne)) return;
    if (!LireSousLigne(ligne)) fiche_.Ecarter(ligne);
}

void LecteurIndividu::LireNiveau1(const LigneGedcom& ligne) {
    if (LireEvenement(ligne) || LireTexte(ligne)) return;
    switch (ligne.code) {
        case "NAME"_tag:
            LireNom(ligne);
            return;
        case "SEX"_tag:
            sexe_ = ligne.valeur == "M" ? Sexe::Homme : Sexe::Femme;
            // "U" and "MALE" make a woman, and that must not pass unseen.
            if (ligne.valeur != "M" && ligne.valeur != "F")
                contexte_.Noter(Constat::Remplace, ligne);
            return;
        case "NOTE"_tag:
        case "SOUR"_tag:
            if (!LireSousLigne(ligne)) fiche_.Ecarter(ligne);
            return;
        case "ASSO"_tag:
        case "ALIA"_tag:
            if (const std::string_view cle = CleDeReference(ligne.valeur); !cle.empty()) {
                liens_.Lier(individu_, cle, ligne);
                lienOuvert_ = ligne.code == "ASSO"_tag;
                return;
            }
            break;
        case "FAMC"_tag:
        case "FAMS"_tag:
            NoterFamille(ligne);
            return;
        default:
            break;
    }
    fiche_.Ecarter(ligne);
}

void LecteurIndividu::NoterFamille(const LigneGedcom& ligne) {
    familles_.push_back({CleDeReference(ligne.valeur),
                         ligne.code == "FAMC"_tag ? "INDI.FAMC" : "INDI.FAMS", ligne.numero,
                         individu_, ligne.code == "FAMC"_tag});
}

namespace {

/// Whether the row of a tag that goes to a row of its own name has a date; nothing for other tags.
std::optional<bool> RangeeDatee(CodeEtiquette etiquette) {
    static constexpr CodeEtiquette Datees[] = {
        "BARM"_tag, "BASM"_tag, "BLES"_tag, "BURI"_tag, "CENS"_tag, "CHR"_tag,  "CONF"_tag,
        "CONL"_tag, "CREM"_tag, "EMIG"_tag, "IMMI"_tag, "ORDI"_tag, "ORDN"_tag, "ADOP"_tag,
    };
    static constexpr CodeEtiquette SansDate[] = {
        "CAST"_tag, "DSCR"_tag, "EDUC"_tag, "ENDL"_tag, "FCOM"_tag, "GIVN"_tag, "GRAD"_tag,
        "LEGA"_tag, "IDNO"_tag, "MEDI"_tag, "MILI"_tag, "NAMR"_tag, "RETI"_tag, "NATI"_tag,
        "NATU"_tag, "NCHI"_tag, "NICK"_tag, "NMR"_tag,  "NPFX"_tag, "NSFX"_tag, "OCCU"_tag,
        "PROB"_tag, "PROP"_tag, "RELI"_tag, "RESI"_tag, "SIGN"_tag, "SITE"_tag, "SSN"_tag,
        "STAT"_tag, "SPFX"_tag, "SURN"_tag, "WILL"_tag,
    };
    if (std::ranges::find(Datees, etiquette) != std::end(Datees)) return true;
    if (std::ranges::find(SansDate, etiquette) != std::end(SansDate)) return false;
    return std::nullopt;
}

}  // namespace

bool LecteurIndividu::LireEvenement(const LigneGedcom& ligne) {
    switch (ligne.code) {
        case "BIRT"_tag:
            fiche_.OuvrirPrincipal(FicheGedcom::Rang::Premier, ligne);
            return true;
        case "DEAT"_tag:
            fiche_.OuvrirPrincipal(FicheGedcom::Rang::Second, ligne);
            return true;
        case "BAPM"_tag:
        case "CHRA"_tag:
            fiche_.OuvrirSlot(ligne, tag::Bapteme, tag::Bapteme, true);
            return true;
        case "BAPL"_tag:
            fiche_.OuvrirSlot(ligne, "BAPL", tag::Bapteme, true);
            return true;
        case "TITL"_tag:
            // A reference is a document, as a NOTE has them.
            if (!CleDeReference(ligne.valeur).empty()) return LireNote(ligne);
            fiche_.OuvrirSlot(ligne, ligne.etiquette, ligne.etiquette, false);
            return true;
        case "EVEN"_tag:
            fiche_.OuvrirAutre(ligne);
            return true;
        default:
            break;
    }
    const std::optional<bool> date = RangeeDatee(ligne.code);
    if (date) fiche_.OuvrirSlot(ligne, ligne.etiquette, ligne.etiquette, *date);
    return date.has_value();
}

bool LecteurIndividu::LireTexte(const LigneGedcom& ligne) {
    switch (ligne.code) {
        case "AGNC"_tag:
        case "CAUS"_tag:
        case "CHAN"_tag:
        case "GODP"_tag:
        case "TEMP"_tag:
        case "AUTH"_tag:
        case "CORP"_tag:
        case "PUBL"_tag:
        case "REFN"_tag:
            return fiche_.LireSousLigne(ligne);
        case "ADDR"_tag:
        case "PHON"_tag:
            fiche_.AjouterTexte(message::AdressePostale, ligne.valeur);
            return true;
        default:
            return false;
    }
}

void LecteurIndividu::LireNom(const LigneGedcom& ligne) {
    if (nomVu_) {
        contexte_.Noter(Constat::DansLaNote, ligne);
        fiche_.AjouterTexte(message::NomCite, ligne.valeur);
        return;
    }
    nomVu_ = true;
    fiche_.Ignorer();
    valeurNom_ = ligne.valeur;
    nom_ = LireNomGedcom(SansDoubleArobase(ligne.valeur), reglages_.prenomUnique);
    if (!nom_.entier) {
        contexte_.Noter(Constat::DansLaNote, ligne);
        fiche_.AjouterTexte(message::NomCite, ligne.valeur);
    }
    if (std::max({nom_.nom.size(), nom_.prenom.size(), nom_.autres.size()}) > NomLePlusLong)
        contexte_.Noter(Constat::Remplace, ligne);
}

bool LecteurIndividu::LireSousNom(const LigneGedcom& ligne) {
    switch (ligne.code) {
        case "GIVN"_tag:
            prenomSeul_ = ligne.valeur;
            break;
        case "SURN"_tag:
            nomSeul_ = ligne.valeur;
            break;
        case "NICK"_tag:
        case "NPFX"_tag:
        case "NSFX"_tag:
        case "SPFX"_tag:
            fiche_.OuvrirSlot(ligne, ligne.etiquette, ligne.etiquette, false);
            return true;
        default:
            return false;
    }
    fiche_.Ignorer();
    if (!SansBlancs(valeurNom_).empty() && !RepeteLeNom(ligne.valeur, valeurNom_))
        contexte_.Noter(Constat::NonRepris, ligne);
    return true;
}

bool LecteurIndividu::LireNote(const LigneGedcom& ligne) {
    if (const std::string_view cle = CleDeReference(ligne.valeur); !cle.empty()) {
        fiche_.Ignorer();
        if (contexte_.pile.Parent() == "SOUR"_tag && !derniereSource_.empty())
            liens_.AttacherAEvenement(derniereSource_, cle, ligne);
        else
            liens_.Attacher(individu_, cle, ligne);
        return true;
    }
    if (contexte_.pile.Niveau() == 1)
        fiche_.AjouterNote(ligne.valeur);
    else
        fiche_.AjouterTexte(message::Document, ligne.valeur);
    return true;
}

bool LecteurIndividu::LireSource(const LigneGedcom& ligne) {
    roleOuvert_ = false;
    derniereSource_ = CleDeReference(ligne.valeur);
    if (derniereSource_.empty()) {
        fiche_.AjouterTexte(message::Source, ligne.valeur);
        return true;
    }
    fiche_.Ignorer();
    liens_.Participer(individu_, derniereSource_, {}, ligne);
    roleOuvert_ = true;
    return true;
}

bool LecteurIndividu::LireFiliation(const LigneGedcom& ligne) {
    if (contexte_.pile.Parent() != "FAMC"_tag) return false;
    const std::string_view v = ligne.valeur;
    const NoMessage filiation = v == "adopted"   ? message::FiliationAdoptive
                                : v == "birth"   ? message::TagBIRT
                                : v == "foster"  ? message::FiliationFamilleAccueil
                                : v == "sealing" ? message::FiliationScellement
                                                 : NoMessage{};
    fiche_.AjouterTexte(message::TagPEDI,
                        filiation ? std::string_view{contexte_.textes.Message(filiation)} : v);
    return true;
}

bool LecteurIndividu::LireSousLigne(const LigneGedcom& ligne) {
    const CodeEtiquette parent = contexte_.pile.Parent();
    if (parent == "NAME"_tag && LireSousNom(ligne)) return true;
    switch (ligne.code) {
        case "NOTE"_tag:
            return LireNote(ligne);
        case "TITL"_tag:
            return !CleDeReference(ligne.valeur).empty() && LireNote(ligne);
        case "SOUR"_tag:
            return LireSource(ligne);
        case "PEDI"_tag:
            return LireFiliation(ligne);
        case "AGE"_tag:
            if (!fiche_.EnEvenement()) return false;
            fiche_.AjouterApresLibelle(TraduireAge(ligne.valeur, contexte_.textes));
            return true;
        case "RELA"_tag:
            if (!lienOuvert_ || parent != "ASSO"_tag) return false;
            liens_.NommerDernierLien(ligne);
            return true;
        case "ROLE"_tag:
            if (!roleOuvert_ || (parent != "SOUR"_tag && parent != "EVEN"_tag)) return false;
            liens_.NommerDernierRole(ligne, 1);
            return true;
        case "FAMC"_tag:
            // Under an adoption or a baptism it says by which family; the family record says it
            // too.
            fiche_.Ignorer();
            if (!fiche_.EnEvenement()) return false;
            NoterFamille(ligne);
            return true;
        default:
            return fiche_.LireSousLigne(ligne);
    }
}

// The text: keyword line, CR LF, one line for each event row in use, then the note.
void LecteurIndividu::Terminer() {
    fiche_.FermerStructure();
    if (nom_.nom.empty() && nom_.prenom.empty() && (!nomSeul_.empty() || !prenomSeul_.empty()))
        nom_ = FaireNom(nomSeul_, prenomSeul_, reglages_.prenomUnique);

    const FicheGedcom::Principal& naissance = fiche_.Lire(FicheGedcom::Rang::Premier);
    const FicheGedcom::Principal& deces = fiche_.Lire(FicheGedcom::Rang::Second);
    storage::Base& base = contexte_.base;
    std::string& ligne = ligneNom_;
    ligne = nom_.Ligne();
    if (!naissance.date.jourMois.empty() || !deces.date.jourMois.empty())
        ligne.append(1, ';').append(
            storage::SansSeparateur(std::string_view{naissance.date.jourMois}.substr(0, 90)));
    if (!deces.date.jourMois.empty())
        ligne.append(1, ';').append(
            storage::SansSeparateur(std::string_view{deces.date.jourMois}.substr(0, 90)));
    base.R_NOM.EcrireNom(individu_, ligne);
    base.R_SEXE.EcrireCellule(individu_, sexe_);
    if (!naissance.date.annee.empty()) base.R_NAISS.EcrireCellule(individu_, naissance.date.annee);
    if (!deces.date.annee.empty()) base.R_DECES.EcrireCellule(individu_, deces.date.annee);

    texte_ = nom_.motsCles;
    if (!naissance.lieu.empty()) texte_.append(" $").append(BlancsEnPoints(naissance.lieu));
    if (!deces.lieu.empty()) texte_.append(" ~").append(BlancsEnPoints(deces.lieu));
    if (!texte_.empty() || fiche_.ASuite()) {
        texte_ += "\r\n";
        fiche_.ComposerSuite(texte_);
    }
    if (texte_.find('#') != std::string::npos) texte_ = storage::SansDiese(texte_);
    // A mark of the format stands twice in every value.
    if (texte_.find("@@") != std::string::npos) texte_ = SansDoubleArobase(texte_);
    base.R_TEXTE.EcrireTexte(individu_, texte_);
}

}  // namespace dorvane::interchange
