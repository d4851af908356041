#include "interchange/gedcom/LecteurFamille.h"

#include "interchange/gedcom/NomGedcom.h"
#include "messages/Messages.h"
#include "storage/Textes.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/SortesEvenement.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {

void LecteurFamille::Commencer(const LigneGedcom& ligne) {
    fiche_.Commencer();
    debut_ = ligne;
    epoux_ = epouse_ = {};
    enfants_.clear();
    lignesEnfants_.clear();
    sources_.clear();
    contenu_ = false;
}

void LecteurFamille::Lire(const LigneGedcom& ligne) {
    if (contexte_.pile.Niveau() == 1) {
        fiche_.FermerStructure();
        LireNiveau1(ligne);
        return;
    }
    if (fiche_.EstEcartee(ligne)) return;
    if (!LireSousLigne(ligne)) fiche_.Ecarter(ligne);
}

NoOrdre LecteurFamille::Trouver(const LigneGedcom& ligne) {
    fiche_.Ignorer();
    const std::string_view cle = CleDeReference(ligne.valeur);
    const NoOrdre individu{cles_.individus.Chercher(cle)};
    if (!individu)
        contexte_.rapport.Noter(
            Constat::Reference,
            "FAM." + std::string{ligne.etiquette} + " @" + std::string{cle} + "@", ligne.numero);
    return individu;
}

void LecteurFamille::LirePartenaire(const LigneGedcom& ligne, Cote cote) {
    const NoOrdre individu = Trouver(ligne);
    if (!individu) return;
    NoOrdre& place = cote == Cote::Pere ? epoux_ : epouse_;
    if (place) contexte_.Noter(Constat::Doublon, ligne);
    // Those above have got their parents by now, without this one.
    for (const std::uint32_t numero : lignesEnfants_)
        contexte_.rapport.Noter(Constat::NonRepris, "FAM.CHIL", numero);
    lignesEnfants_.clear();
    place = individu;
    if (familles_.CorrigerSexe(individu, SexeDuCote(cote)))
        contexte_.Noter(Constat::Remplace, ligne);
}

// The child is given the parents that the record has named so far.
void LecteurFamille::LireEnfant(const LigneGedcom& ligne) {
    const NoOrdre enfant = Trouver(ligne);
    if (!enfant) return;
    if (std::ranges::find(enfants_, enfant) != enfants_.end()) {
        contexte_.Noter(Constat::Doublon, ligne);
        return;
    }
    enfants_.push_back(enfant);
    if (epoux_) familles_.PoserParent(enfant, epoux_, Cote::Pere, ligne);
    if (epouse_) familles_.PoserParent(enfant, epouse_, Cote::Mere, ligne);
    if (!epoux_ && !epouse_)
        contexte_.Noter(Constat::NonRepris, ligne);
    else if (!epoux_ || !epouse_)
        lignesEnfants_.push_back(ligne.numero);
}

void LecteurFamille::LireNiveau1(const LigneGedcom& ligne) {
    switch (ligne.code) {
        case "HUSB"_tag:
            LirePartenaire(ligne, Cote::Pere);
            return;
        case "WIFE"_tag:
            LirePartenaire(ligne, Cote::Mere);
            return;
        case "CHIL"_tag:
            LireEnfant(ligne);
            return;
        default:
            break;
    }
    contenu_ = true;
    switch (ligne.code) {
        case "MARR"_tag:
            fiche_.OuvrirPrincipal(FicheGedcom::Rang::Premier, ligne);
            return;
        case "MARB"_tag:
        case "CENS"_tag:
        case "MARC"_tag:
        case "MARS"_tag:
        case "MARL"_tag:
        case "ENGA"_tag:
        case "DIV"_tag:
        case "DIVF"_tag:
        case "ANUL"_tag:
            fiche_.OuvrirSlot(ligne, ligne.etiquette, ligne.etiquette, true);
            return;
        case "EVEN"_tag:
            fiche_.OuvrirAutre(ligne);
            return;
        case "NCHI"_tag:
            fiche_.AjouterTexte(message::NombreEnfants, ligne.valeur);
            return;
        case "RESI"_tag:
            fiche_.AjouterTexte(message::TagRESI,
                                ligne.valeur.empty() ? "" : "%" + BlancsEnPoints(ligne.valeur));
            return;
        default:
            if (!LireSousLigne(ligne)) fiche_.Ecarter(ligne);
    }
}

bool LecteurFamille::LireNote(const LigneGedcom& ligne) {
    if (const std::string_view cle = CleDeReference(ligne.valeur); !cle.empty()) {
        // A union holds no documents, but the event of a source does.
        if (contexte_.pile.Parent() != "SOUR"_tag || sources_.empty()) return false;
        fiche_.Ignorer();
        liens_.AttacherAEvenement(sources_.back().cle, cle, ligne);
        return true;
    }
    if (contexte_.pile.Niveau() == 1)
        fiche_.AjouterNote(ligne.valeur);
    else
        fiche_.AjouterTexte(message::Document, ligne.valeur);
    return true;
}

void LecteurFamille::LireSource(const LigneGedcom& ligne) {
    const std::string_view cle = CleDeReference(ligne.valeur);
    if (cle.empty()) {
        fiche_.AjouterTexte(message::Source, ligne.valeur);
        return;
    }
    fiche_.Ignorer();
    sources_.push_back({cle, ligne, std::nullopt});
}

bool LecteurFamille::LireSousLigne(const LigneGedcom& ligne) {
    const CodeEtiquette parent = contexte_.pile.Parent();
    switch (ligne.code) {
        case "NOTE"_tag:
            return LireNote(ligne);
        case "SOUR"_tag:
            LireSource(ligne);
            return true;
        case "HUSB"_tag:
        case "WIFE"_tag:
            fiche_.Ignorer();
            return fiche_.EnEvenement();
        case "AGE"_tag:
            if (parent != "HUSB"_tag && parent != "WIFE"_tag) return false;
            fiche_.AjouterTexte(parent == "HUSB"_tag ? message::AgeEpoux : message::AgeEpouse,
                                TraduireAge(ligne.valeur, contexte_.textes));
            return true;
        case "ROLE"_tag:
            if (sources_.empty() || (parent != "SOUR"_tag && parent != "EVEN"_tag)) return false;
            sources_.back().role = ligne;
            return true;
        default:
            return fiche_.LireSousLigne(ligne);
    }
}

/// Both partners take part in the events that the union cites.
void LecteurFamille::Participer() {
    for (const Source& source : sources_) {
        if (epoux_) liens_.Participer(epoux_, source.cle, role::Epoux, source.ligne);
        if (epouse_ && epouse_ != epoux_)
            liens_.Participer(epouse_, source.cle, role::Epouse, source.ligne);
        if (source.role)
            liens_.NommerDernierRole(*source.role,
                                     (epoux_ ? 1U : 0U) + (epouse_ && epouse_ != epoux_ ? 1U : 0U));
    }
}

// The text: date words, "@" and the place, CR LF, the event rows in use, then the note.
NoMariage LecteurFamille::Terminer() {
    fiche_.FermerStructure();
    texte_.clear();
    Participer();
    if (!epoux_ || !epouse_) {
        contexte_.rapport.Noter(Constat::SansUnion, contenu_ ? "FAM +" : "FAM", debut_.numero);
        return {};
    }
    const NoMariage m = familles_.Unir(epoux_, epouse_, debut_);
    if (!m) return {};
    const FicheGedcom::Principal& union_ = fiche_.Lire(FicheGedcom::Rang::Premier);
    if (!union_.date.annee.empty()) contexte_.base.R_DEBMAR.EcrireCellule(m, union_.date.annee);
    texte_ = union_.date.jourMois;
    if (!union_.lieu.empty()) {
        if (!texte_.empty()) texte_ += ' ';
        texte_.append(1, marqueur::LieuMariage).append(BlancsEnPoints(union_.lieu));
    }
    if (!texte_.empty() || fiche_.ASuite()) {
        texte_ += "\r\n";
        fiche_.ComposerSuite(texte_);
    }
    if (texte_.find('#') != std::string::npos) texte_ = storage::SansDiese(texte_);
    if (texte_.find("@@") != std::string::npos) texte_ = SansDoubleArobase(texte_);
    contexte_.base.R_TXTMAR.EcrireTexte(m, texte_);
    return m;
}

}  // namespace dorvane::interchange
