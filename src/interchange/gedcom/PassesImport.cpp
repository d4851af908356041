#include "interchange/gedcom/PassesImport.h"

#include "interchange/commun/OrdreImport.h"
#include "interchange/gedcom/NomGedcom.h"
#include "messages/Messages.h"
#include "shell/Parametres.h"
#include "storage/ConstruireIndex.h"
#include "storage/Textes.h"
#include "values/Marqueurs.h"

#include <algorithm>
#include <string>

namespace dorvane::interchange {
namespace {

/// One number for the place of a person in the family of that rank in the file.
constexpr std::uint64_t Appartenance(std::uint64_t rang, NoOrdre individu, bool enfant) {
    return rang << 32U | std::uint64_t{individu.valeur} << 1U | (enfant ? 1U : 0U);
}

constexpr std::uint32_t PasDeProgression = 100;  ///< records between two steps of the frame

}  // namespace

bool PassesImport::Avancer(std::size_t ou, NoMessage message, std::uint32_t nombre) {
    if (nombre != compteMontre_ && nombre % PasDeProgression == 0) {
        compteMontre_ = nombre;
        session_.progression.Phase(
            shell::Litteral(textes_.Message(message) + ' ' + std::to_string(nombre)));
    }
    if (++enregistrements_ % PasDeProgression != 0) return true;
    // In kilobytes: a file may be larger than a counter.
    return session_.progression.Avancer(static_cast<std::uint32_t>(ou / 1024),
                                        static_cast<std::uint32_t>(texte_.size() / 1024 + 1));
}

void PassesImport::OuvrirIndividu(const LigneGedcom& ligne) {
    const NoOrdre n = base_.NouvelIndividu();
    if (!n) {
        contexte_.Noter(Constat::Limite, ligne);
        return;
    }
    genre_ = Genre::Individu;
    if (!ligne.cle.empty() && !cles_.individus.Noter(ligne.cle, n.valeur))
        contexte_.Noter(Constat::Doublon, ligne);
    individu_.Commencer(n);
}

void PassesImport::OuvrirAnnexe(const LigneGedcom& ligne) {
    const CodeEtiquette code = ligne.code;
    std::uint32_t numero = 0;
    bool cleNeuve = true;
    if (code == "SOUR"_tag) {
        numero = base_.NouvelEvenement().valeur;
        cleNeuve = numero == 0 || ligne.cle.empty() || cles_.sources.Noter(ligne.cle, numero);
    } else if (code == "NOTE"_tag || code == "TITL"_tag) {
        numero = base_.NouveauDocument().valeur;
        cleNeuve = numero == 0 || ligne.cle.empty() || cles_.notes.Noter(ligne.cle, numero);
    } else if (code != "HEAD"_tag && code != "SUBM"_tag) {
        contexte_.Noter(Constat::NonRepris, ligne);
    }
    if (numero == 0 && (code == "SOUR"_tag || code == "NOTE"_tag || code == "TITL"_tag))
        contexte_.Noter(Constat::Limite, ligne);
    if (!cleNeuve) contexte_.Noter(Constat::Doublon, ligne);
    genre_ = Genre::Annexe;
    if (numero != 0) NoterRemplacement(ligne);
    annexes_.Commencer(ligne, numero);
}

void PassesImport::OuvrirEnregistrement(const LigneGedcom& ligne, std::size_t debut) {
    genre_ = Genre::Aucun;
    switch (ligne.code) {
        case "INDI"_tag:
            OuvrirIndividu(ligne);
            break;
        case "FAM"_tag:
            genre_ = Genre::Famille;
            debuts_.push_back({debut, ligne.numero});
            if (!ligne.cle.empty() &&
                !cles_.familles.Noter(ligne.cle, static_cast<std::uint32_t>(debuts_.size())))
                contexte_.Noter(Constat::Doublon, ligne);
            break;
        case "TRLR"_tag:
            rapport_.finTrouvee = true;
            break;
        default:
            OuvrirAnnexe(ligne);
    }
}

void PassesImport::FermerEnregistrement() {
    if (genre_ == Genre::Annexe) annexes_.Terminer();
    if (genre_ == Genre::Individu) {
        individu_.Terminer();
        familles_.AjouterIndividu(individu_.SexeDit());
        memoire_.AjouterIndividu(individu_.LigneNom(), individu_.AnneeNaissance(),
                                 individu_.Texte());
        const NoOrdre n{base_.entete.DernierIndividu};
        base_.R_TRI.FixerRang(n.valeur, n);
        base_.entete.NbTriIndividus = n.valeur;
    }
    genre_ = Genre::Aucun;
}

// "#" ends a record. ";" parts the fields of a name line, where day and month stand too, and byte
// 255 those of an event or a document.
void PassesImport::NoterRemplacement(const LigneGedcom& ligne) const {
    if (!separateurs_ || (pile_.Racine() == "HEAD"_tag && pile_.Etiquette(1) != "NOTE")) return;
    const auto contient = [&](char c) { return ligne.valeur.find(c) != std::string_view::npos; };
    bool remplace = contient('#');
    switch (ligne.code) {
        case "NAME"_tag:
        case "DATE"_tag:
            remplace = remplace || contient(';');
            break;
        case "TITL"_tag:
        case "PLAC"_tag:
        case "EVEN"_tag:
        case "REFN"_tag:
        case "TYPE"_tag:
            remplace = remplace || (genre_ == Genre::Annexe && contient('\xFF'));
            break;
        default:
            break;
    }
    if (remplace) contexte_.Noter(Constat::Remplace, ligne);
}

void PassesImport::LireLigne(const LigneGedcom& ligne) {
    if (genre_ == Genre::Famille) return;
    if (!pile_.Entrer(ligne.niveau, ligne.etiquette, ligne.code)) {
        rapport_.Noter(Constat::SansParent, ligne.etiquette, ligne.numero);
        return;
    }
    NoterRemplacement(ligne);
    if (genre_ == Genre::Individu)
        individu_.Lire(ligne);
    else if (genre_ == Genre::Annexe)
        annexes_.Lire(ligne);
    else
        contexte_.Noter(Constat::NonRepris, ligne);
}

bool PassesImport::AvancerDUnEnregistrement(const LigneGedcom& ligne, std::size_t ou) {
    if (ligne.code == "NOTE"_tag || ligne.code == "TITL"_tag)
        return Avancer(ou, message::Document, base_.entete.DernierDocument);
    return Avancer(ou, message::EtatPersonnesLues, base_.entete.DernierIndividu);
}

bool PassesImport::PremierePasse() {
    LecteurDeLignes lecteur{texte_, fin_};
    LigneGedcom ligne;
    bool continuer = true;
    while (continuer && !rapport_.finTrouvee) {
        switch (lecteur.Lire(ligne)) {
            case LecteurDeLignes::Sorte::Fin:
                continuer = false;
                break;
            case LecteurDeLignes::Sorte::Vide:
                ++rapport_.lignesVides;
                break;
            case LecteurDeLignes::Sorte::Illisible:
                rapport_.Noter(Constat::Illisible, {}, ligne.numero);
                break;
            case LecteurDeLignes::Sorte::Ligne:
                if (ligne.niveau > 0) {
                    LireLigne(ligne);
                    break;
                }
                FermerEnregistrement();
                pile_.Entrer(0, ligne.etiquette, ligne.code);
                OuvrirEnregistrement(ligne, lecteur.Debut());
                if (!AvancerDUnEnregistrement(ligne, lecteur.Debut())) return false;
        }
        rapport_.lignes = ligne.numero;
    }
    FermerEnregistrement();
    // What stands behind the last record is no record; the report says how much of it there is.
    while (true) {
        const LecteurDeLignes::Sorte sorte = lecteur.Lire(ligne);
        if (sorte == LecteurDeLignes::Sorte::Fin) break;
        if (sorte != LecteurDeLignes::Sorte::Vide)
            rapport_.Noter(Constat::NonRepris, "TRLR +", ligne.numero);
    }
    AjouterDescription();
    return true;
}

void PassesImport::AjouterDescription() {
    const EnTeteLu& entete = annexes_.EnTete();
    if (entete.note.empty()) return;
    const NoDocument d = base_.NouveauDocument();
    if (!d) return;
    storage::Document document;
    document.titre = textes_.Message(message::TitreDescriptionBase);
    document.note = storage::SansDiese(SansDoubleArobase(entete.note));
    base_.R_IMAGE.EcrireDoc(d, document);
}

void PassesImport::LireFamille(LecteurFamille& lecteur, const Famille& famille) {
    LecteurDeLignes lignes{texte_, fin_, famille.debut, famille.ligne};
    LigneGedcom ligne;
    bool premiere = true;
    for (auto sorte = lignes.Lire(ligne); sorte != LecteurDeLignes::Sorte::Fin;
         sorte = lignes.Lire(ligne)) {
        if (sorte != LecteurDeLignes::Sorte::Ligne) continue;
        if (ligne.niveau == 0 && !premiere) break;
        if (!pile_.Entrer(ligne.niveau, ligne.etiquette, ligne.code)) {
            rapport_.Noter(Constat::SansParent, ligne.etiquette, ligne.numero);
            continue;
        }
        NoterRemplacement(ligne);
        if (premiere)
            lecteur.Commencer(ligne);
        else
            lecteur.Lire(ligne);
        premiere = false;
    }
}

void PassesImport::ReleverMembres(const LecteurFamille& lecteur, std::uint64_t rang) {
    membres_.push_back(Appartenance(rang, lecteur.Epoux(), false));
    membres_.push_back(Appartenance(rang, lecteur.Epouse(), false));
    for (const NoOrdre enfant : lecteur.Enfants())
        membres_.push_back(Appartenance(rang, enfant, true));
}

// The families decide who is in them: what a person says alone is lost, and named.
void PassesImport::VerifierFamilles() {
    std::ranges::sort(membres_);
    for (const LecteurIndividu::Reference& r : individu_.Familles()) {
        const std::uint32_t rang = cles_.familles.Chercher(r.cle);
        if (rang == 0)
            rapport_.Noter(Constat::Reference,
                           std::string{r.chemin} + " @" + std::string{r.cle} + "@", r.ligne);
        else if (!std::ranges::binary_search(membres_, Appartenance(rang, r.individu, r.enfant)))
            rapport_.Noter(Constat::NonRepris, r.chemin, r.ligne);
    }
}

bool PassesImport::SecondePasse() {
    session_.progression.Phase(shell::Msg(message::EtatSecondeLecture));
    LecteurFamille lecteur{contexte_, slotsMariage_, liens_, familles_, cles_};
    compteMontre_ = 0;
    std::uint64_t rang = 0;
    membres_.reserve(debuts_.size() * 4);
    for (const Famille& famille : debuts_) {
        LireFamille(lecteur, famille);
        if (lecteur.Terminer()) memoire_.AjouterUnion(lecteur.Texte());
        ReleverMembres(lecteur, ++rang);
        if (!Avancer(famille.debut, message::LibUnion, base_.entete.DernierMariage)) return false;
    }
    VerifierFamilles();
    familles_.Ecrire();
    liens_.Ecrire(cles_);
    storage::Base& base = base_;
    for (std::uint32_t d = 1; d <= base.entete.DernierDocument; ++d)
        base.R_TRI.FixerRang(d, NoDocument{d});
    base.entete.NbTriDocuments = base.entete.DernierDocument;
    base.R_TRI.TrierDocuments();
    EcrireSlots();
    rapport_.individus = base.entete.DernierIndividu;
    rapport_.unions = base.entete.DernierMariage;
    rapport_.evenements = base.entete.DernierEvenement;
    rapport_.documents = base.entete.DernierDocument;
    return true;
}

void PassesImport::EcrireSlots() {
    base_.entete.SlotsIndividu = slotsIndividu_.PourEnTete(base_.entete.SlotsIndividu);
    base_.entete.SlotsMariage = slotsMariage_.PourEnTete(base_.entete.SlotsMariage);
    base_.marques.ModifBase = true;
}

ReglesNoms PassesImport::Regles() const {
    ReglesNoms regles = base_.regles;
    regles.deplacer = base_.entete.OptParticules;
    return regles;
}

bool PassesImport::Trier() {
    if (session_.parametres.generaux.triImport &&
        session_.dialogue.Confirmer(shell::Msg(message::ProposerTrierBaseImportee)))
        return TrierImport(session_, base_, memoire_);
    // A table out of order would mislead every search by rank.
    if (!memoire_.EstTriee(base_.entete.TypeTri, Regles()))
        base_.entete.TypeTri = TypeTri::Creation;
    return true;
}

bool PassesImport::Indexer() {
    std::vector<NoMotCle> types;
    for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k)
        if (base_.motsCles.LibelleType(NoMotCle{k}).indexe ||
            base_.motsCles.LibelleType(NoMotCle{k}).symbole == marqueur::Nom)
            types.emplace_back(k);
    return IndexerImport(session_, base_, types, memoire_);
}

}  // namespace dorvane::interchange
