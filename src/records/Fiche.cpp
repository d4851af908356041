#include "records/Fiche.h"

#include "messages/Messages.h"
#include "records/ControleFiche.h"
#include "records/Individus.h"
#include "records/Liens.h"
#include "records/Rangement.h"
#include "records/TexteFiche.h"
#include "shell/Libelles.h"
#include "shell/Numerotation.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"

#include <algorithm>

namespace dorvane::records {

namespace {

bool DansLaBase(const shell::Session& session, NoOrdre n) {
    return session.base && n && n.valeur <= session.base->entete.DernierIndividu;
}

RangeesSlots Rangees(const shell::Session& session, const storage::TableSlots& lus) {
    RangeesSlots rangees;
    for (std::size_t k = 0; k < std::min(rangees.size(), lus.size()); ++k)
        rangees[k] = {MontrerJourMois(session, lus[k].jourMois), lus[k].annee, lus[k].lieu};
    return rangees;
}

void Rogner(std::string& champ) {
    champ = std::string{SansBlancs(champ)};
}

void Rogner(RangeesSlots& rangees) {
    for (storage::ValeurSlot& rangee : rangees) {
        Rogner(rangee.jourMois);
        Rogner(rangee.annee);
        Rogner(rangee.lieu);
    }
}

/// A note as it comes back from its record: without outer blanks and line ends.
void RognerNote(std::string& note) {
    std::erase(note, '\r');
    const auto bord = [](char c) { return c == '\n' || c == ' '; };
    while (!note.empty() && bord(note.back()))
        note.pop_back();
    note.erase(note.begin(), std::find_if_not(note.begin(), note.end(), bord));
}

/// The fields without what does not count in a comparison.
SaisieFiche Nette(SaisieFiche saisie) {
    for (std::string* champ :
         {&saisie.nom, &saisie.prenom, &saisie.autrePrenom, &saisie.jourMoisNaissance,
          &saisie.anneeNaissance, &saisie.lieuNaissance, &saisie.jourMoisDeces, &saisie.anneeDeces,
          &saisie.lieuDeces})
        Rogner(*champ);
    Rogner(saisie.slots);
    RognerNote(saisie.note);
    if (saisie.mariage) {
        SaisieUnion& mariage = *saisie.mariage;
        for (std::string* champ : {&mariage.jourMois, &mariage.debut, &mariage.fin, &mariage.lieu})
            Rogner(*champ);
        Rogner(mariage.slots);
        RognerNote(mariage.note);
    }
    if (saisie.lien) Rogner(saisie.lien->libelle);
    return saisie;
}

/// The steps of a commit, in their order.
class Validation {
public:
    Validation(shell::Session& session, SaisieFiche& saisie)
        : session_{session}, base_{*session.base}, saisie_{saisie}, n_{saisie.individu} {}

    IssueFiche Executer() {
        if (!n_) {
            issue_ = CreerIndividu(session_, saisie_);
            if (issue_.EstRefusee()) return issue_;
            n_ = saisie_.individu;
            ecrit_ = true;
        } else {
            place_ = LirePlaceTri(base_, n_);
            issue_.champ = ControlerFiche(session_, saisie_);
            if (issue_.champ != Champ::Aucun && issue_.champ != Champ::AnneeNaissance)
                return issue_;
            if (!LibelleCourt()) return Refuser(Champ::Lien);
            if (!ChangerSexe()) return Refuser(Champ::Sexe);
            ChangerNoms();
            ChangerAnnees();
            ChangerTexte();
            if (base_.R_NAISS.AnneeTri(n_) != anneeTri_) ReclasserParAnnee(base_, n_);
        }
        ChangerUnion();
        if (!ChangerLien()) return Refuser(Champ::Lien);
        if (ecrit_) base_.marques.AffichagePerime = true;
        issue_.etat = ecrit_ ? IssueFiche::Etat::Ecrite : IssueFiche::Etat::Inchangee;
        issue_.individu = n_;
        return issue_;
    }

private:
    IssueFiche Refuser(Champ champ) {
        if (ecrit_) base_.marques.AffichagePerime = true;
        issue_.champ = champ;
        issue_.individu = n_;
        return issue_;
    }

    /// A label that would be cut is refused before anything is written; an empty one later, when
    /// its turn comes.
    [[nodiscard]] bool LibelleCourt() {
        if (!saisie_.lien || SansBlancs(saisie_.lien->libelle).empty()) return true;
        return LibelleValable(session_, SansBlancs(saisie_.lien->libelle));
    }

    [[nodiscard]] std::string Stocke(const SaisieLien& lien) const {
        return storage::SansDiese(
            shell::TagDeLibelle(session_.catalogue, SansBlancs(lien.libelle)));
    }

    [[nodiscard]] bool ChangerSexe() {
        const Sexe ancien = base_.R_SEXE.LireCellule(n_);
        const Sexe nouveau = SexeLu(saisie_.sexe);
        if (ancien == nouveau) return true;
        // A cell left blank at the creation says the same as "I".
        const bool meme = SexeLu(ancien) == nouveau;
        if (!meme && (base_.R_ENFANT.NbElements(n_) != 0 || base_.R_MARIAG.NbElements(n_) != 0)) {
            session_.dialogue.Informer(shell::Msg(message::SexeNonModifiable));
            saisie_.sexe = SexeLu(ancien);
            return false;
        }
        base_.R_SEXE.EcrireCellule(n_, nouveau);
        ecrit_ = true;
        return true;
    }

    void ChangerNoms() {
        const storage::LigneNom lus = base_.R_NOM.LireNom(n_);
        const bool memes =
            SansBlancs(lus.nom) == SansBlancs(saisie_.nom) &&
            SansBlancs(lus.prenom) == SansBlancs(saisie_.prenom) &&
            SansBlancs(lus.autrePrenom) == SansBlancs(saisie_.autrePrenom) &&
            MontrerJourMois(session_, lus.jourMoisNaissance) ==
                SansBlancs(saisie_.jourMoisNaissance) &&
            MontrerJourMois(session_, lus.jourMoisDeces) == SansBlancs(saisie_.jourMoisDeces);
        if (memes && session_.indexationFaite) return;
        RepartirNoms(saisie_);
        base_.R_NOM.EcrireNom(n_, ComposerLigneNom(session_, saisie_));
        ecrit_ = true;
        if (!memes) RelegenderDeCujus();
        if (base_.entete.TypeTri == TypeTri::Nom) ReplacerDansTri(base_, n_, place_);
    }

    /// The menu shows the names of the two reference persons.
    void RelegenderDeCujus() {
        for (const int k : {1, 2})
            if (session_.deCujus[static_cast<std::size_t>(k - 1)].individu == n_)
                shell::NumeroterDeCujus(session_, k);
    }

    void ChangerAnnees() {
        anneeTri_ = base_.R_NAISS.AnneeTri(n_);
        if (const std::string annee = CelluleDe(saisie_.anneeDeces);
            annee != CelluleDe(base_.R_DECES.LireCellule(n_))) {
            base_.R_DECES.EcrireCellule(n_, annee);
            ecrit_ = true;
        }
        if (const std::string annee = CelluleDe(saisie_.anneeNaissance);
            annee != CelluleDe(base_.R_NAISS.LireCellule(n_))) {
            base_.R_NAISS.EcrireCellule(n_, annee);
            ecrit_ = true;
        }
        if (base_.entete.TypeTri == TypeTri::Naissance) ReplacerDansTri(base_, n_, place_);
    }

    void ChangerTexte() {
        const std::string texte = ComposerTexteIndividu(session_, saisie_);
        if (texte == base_.R_TEXTE.LireTexte(n_)) return;
        EcrireTexteIndividu(session_, n_, texte);
        ecrit_ = true;
    }

    template <class Annees>
    void ChangerAnneeUnion(Annees& annees, NoMariage mariage, std::string_view saisie) {
        const std::string annee = CelluleDe(saisie);
        if (annee == CelluleDe(annees.LireCellule(mariage))) return;
        annees.EcrireCellule(mariage, annee);
        ecrit_ = true;
    }

    void ChangerUnion() {
        if (!saisie_.mariage) return;
        const NoMariage mariage = saisie_.mariage->mariage;
        // The union may have gone by another window in the meantime.
        const std::vector<NoMariage> unions = base_.R_MARIAG.Elements(n_);
        if (std::find(unions.begin(), unions.end(), mariage) == unions.end()) return;
        ChangerAnneeUnion(base_.R_DEBMAR, mariage, saisie_.mariage->debut);
        ChangerAnneeUnion(base_.R_FINMAR, mariage, saisie_.mariage->fin);
        const std::string texte = ComposerTexteMariage(session_, *saisie_.mariage);
        if (texte == base_.R_TXTMAR.LireTexte(mariage)) return;
        EcrireTexteMariage(session_, mariage, texte);
        ecrit_ = true;
    }

    [[nodiscard]] bool ChangerLien() {
        if (!saisie_.lien) return true;
        const std::size_t rang = saisie_.lien->rang;
        if (!base_.R_LIEN.ElementListe(n_, rang)) return true;
        const std::string libelle = Stocke(*saisie_.lien);
        if (libelle.empty()) {
            session_.dialogue.Informer(shell::Msg(message::LibelleLienVide));
            return false;
        }
        if (libelle == base_.R_LIEN.TexteElement(n_, rang)) return true;
        // Two links with one person that say the same would be one too many: refused there.
        if (!records::ChangerLien(session_, n_, rang, SansBlancs(saisie_.lien->libelle)))
            return false;
        ecrit_ = true;
        return true;
    }

    shell::Session& session_;
    storage::Base& base_;
    SaisieFiche& saisie_;
    NoOrdre n_;
    PlaceTri place_;
    std::string anneeTri_;
    IssueFiche issue_;
    bool ecrit_ = false;
};

}  // namespace

SaisieFiche ChargerFiche(shell::Session& session, NoOrdre individu) {
    SaisieFiche fiche;
    if (!DansLaBase(session, individu)) return fiche;
    storage::Base& base = *session.base;
    fiche.individu = individu;
    const storage::LigneNom ligne = base.R_NOM.LireNom(individu);
    fiche.nom = SansBlancs(ligne.nom);
    fiche.prenom = SansBlancs(ligne.prenom);
    fiche.autrePrenom = SansBlancs(ligne.autrePrenom);
    fiche.jourMoisNaissance = MontrerJourMois(session, ligne.jourMoisNaissance);
    fiche.jourMoisDeces = MontrerJourMois(session, ligne.jourMoisDeces);
    fiche.anneeNaissance = SansBlancs(base.R_NAISS.LireCellule(individu));
    fiche.anneeDeces = SansBlancs(base.R_DECES.LireCellule(individu));
    fiche.sexe = SexeLu(base.R_SEXE.LireCellule(individu));
    const std::string texte{base.R_TEXTE.LireTexte(individu)};
    const std::string_view premiere = std::string_view{texte}.substr(0, texte.find('\r'));
    fiche.lieuNaissance = SansBlancs(storage::LireLieu(premiere, marqueur::LieuNaissance));
    fiche.lieuDeces = SansBlancs(storage::LireLieu(premiere, marqueur::LieuDeces));
    storage::TexteDecoupe decoupe = storage::DecouperTexte(texte, base.DefinitionIndividu());
    fiche.slots = Rangees(session, decoupe.slots);
    fiche.note = std::move(decoupe.note);
    return fiche;
}

SaisieUnion ChargerUnion(shell::Session& session, NoMariage mariage) {
    SaisieUnion fiche;
    if (!session.base || !mariage || mariage.valeur > session.base->entete.DernierMariage)
        return fiche;
    storage::Base& base = *session.base;
    fiche.mariage = mariage;
    fiche.debut = SansBlancs(base.R_DEBMAR.LireCellule(mariage));
    fiche.fin = SansBlancs(base.R_FINMAR.LireCellule(mariage));
    const std::string texte{base.R_TXTMAR.LireTexte(mariage)};
    const std::string_view premiere = std::string_view{texte}.substr(0, texte.find('\r'));
    fiche.jourMois =
        MontrerJourMois(session, premiere.substr(0, premiere.find(marqueur::LieuMariage)));
    fiche.lieu = SansBlancs(storage::LireLieu(premiere, marqueur::LieuMariage));
    storage::TexteDecoupe decoupe = storage::DecouperTexte(texte, base.DefinitionMariage());
    fiche.slots = Rangees(session, decoupe.slots);
    fiche.note = std::move(decoupe.note);
    return fiche;
}

SaisieLien ChargerLien(shell::Session& session, NoOrdre individu, std::size_t rang) {
    if (!DansLaBase(session, individu)) return {};
    return {rang, shell::LibelleDeTag(session.catalogue,
                                      session.base->R_LIEN.TexteElement(individu, rang))};
}

bool FicheModifiee(shell::Session& session, const SaisieFiche& saisie) {
    SaisieFiche stockee = ChargerFiche(session, saisie.individu);
    if (!saisie.individu) stockee.sexe = saisie.sexe;
    if (saisie.mariage) stockee.mariage = ChargerUnion(session, saisie.mariage->mariage);
    if (saisie.lien) stockee.lien = ChargerLien(session, saisie.individu, saisie.lien->rang);
    return Nette(std::move(stockee)) != Nette(saisie);
}

IssueFiche EcrireFiche(shell::Session& session, SaisieFiche& saisie) {
    if (!session.base || (saisie.individu && !DansLaBase(session, saisie.individu))) return {};
    return Validation{session, saisie}.Executer();
}

std::vector<Fratrie> FratrieDe(shell::Session& session, NoOrdre individu) {
    std::vector<Fratrie> fratrie;
    if (!DansLaBase(session, individu)) return fratrie;
    storage::Base& base = *session.base;
    const auto ajouter = [&](NoOrdre parent, bool Fratrie::*meme) {
        if (!parent) return;
        for (const NoOrdre enfant : base.R_ENFANT.Elements(parent)) {
            if (enfant == individu) continue;
            auto place = std::find_if(fratrie.begin(), fratrie.end(),
                                      [enfant](const Fratrie& f) { return f.individu == enfant; });
            if (place == fratrie.end()) place = fratrie.insert(place, Fratrie{enfant});
            (*place).*meme = true;
        }
    };
    ajouter(base.R_PERE.LireCellule(individu), &Fratrie::memePere);
    ajouter(base.R_MERE.LireCellule(individu), &Fratrie::memeMere);
    std::stable_sort(fratrie.begin(), fratrie.end(), [&base](const Fratrie& a, const Fratrie& b) {
        return base.R_NAISS.AnneeTri(a.individu) < base.R_NAISS.AnneeTri(b.individu);
    });
    return fratrie;
}

}  // namespace dorvane::records
