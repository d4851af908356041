#include "records/Choix.h"

#include "records/Famille.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/SortesEvenement.h"

#include <algorithm>
#include <cstdlib>

namespace dorvane::records {

namespace {

/// The number made of the first 3 characters of the sort form of a year. A character that is no
/// digit ("18?") counts as 0; a "-" in front makes it negative.
int DizaineDe(std::string_view anneeTri) {
    int dizaine = 0;
    for (const char c : anneeTri.substr(0, 3))
        dizaine = dizaine * 10 + (EstChiffre(c) ? c - '0' : 0);
    return anneeTri.starts_with('-') ? -dizaine : dizaine;
}

std::string TroisChiffres(int dizaine) {
    const std::string texte = std::to_string(std::clamp(dizaine, 0, 999));
    return std::string(3 - texte.size(), '0') + texte;
}

/// Bounds so many decades away from a year. Below the year 0 the lower one passes all, and the
/// upper one lets empty years pass.
FenetreAnnees Borner(std::string_view anneeTri, int de, int a) {
    const int dizaine = DizaineDe(anneeTri);
    const char unite = anneeTri[3];
    return {dizaine + de < 0 ? "-" : TroisChiffres(dizaine + de) + unite,
            TroisChiffres(dizaine + a) + unite};
}

/// A death year that can be compared: neither empty nor "?" nor words.
bool Connue(std::string_view deces) {
    return !deces.starts_with("000") ? !deces.starts_with('Z') : deces[3] > '0' && deces[3] <= '9';
}

FenetreAnnees FenetreDe(SorteChoix sorte, std::string_view naissance, std::string_view deces) {
    switch (sorte) {
        case SorteChoix::Parent:
            return Borner(naissance, -10, -1);
        case SorteChoix::Enfant:
            return Borner(naissance, 1, 10);
        case SorteChoix::Conjoint:
            return Borner(naissance, -10, 10);
        case SorteChoix::Lien:
            break;
    }
    // Who died in an unknown year may have known anybody born later.
    return {"-", Connue(deces) ? std::string{deces} : std::string{}};
}

/// Dead after a year of birth, or not known to be dead.
bool Vit(std::string_view deces, std::string_view naissance) {
    return !Connue(deces) || deces > naissance;
}

NoOrdre NumeroTape(std::string_view filtre) {
    filtre = SansBlancs(filtre);
    const bool chiffres = !filtre.empty() && filtre.size() <= 5 &&
                          std::all_of(filtre.begin(), filtre.end(), EstChiffre);
    return NoOrdre{chiffres ? static_cast<std::uint32_t>(
                                  std::strtoul(std::string{filtre}.c_str(), nullptr, 10))
                            : 0};
}

}  // namespace

std::string_view MarqueParents(storage::Base& base, NoOrdre individu) {
    const bool pere{base.R_PERE.LireCellule(individu)};
    const bool mere{base.R_MERE.LireCellule(individu)};
    if (pere) return mere ? "" : "P";
    return mere ? "M" : "*";
}

Choix::Choix(shell::Session& session, const DemandeChoix& demande)
    : session_{session},
      demande_{demande},
      naissance_{session.base->R_NAISS.AnneeTri(demande.reference)},
      deces_{session.base->R_DECES.AnneeTri(demande.reference)},
      sexe_{session.base->R_SEXE.LireCellule(demande.reference)} {
    fenetre_ = FenetreDe(demande.sorte, naissance_, deces_);
    Recommencer();
}

void Choix::Filtrer(std::string_view filtre) {
    filtre_ = Replie(filtre);
    mots_ = CouperEnMots(filtre_);
    numero_ = NumeroTape(filtre_);
    Recommencer();
}

void Choix::LeverFenetre(bool levee) {
    levee_ = levee;
    Recommencer();
}

void Choix::Recommencer() {
    storage::Base& base = *session_.base;
    offerts_.clear();
    no_ = 0;
    if (numero_) {
        if (numero_ != demande_.reference && Existe(base, numero_) && SexeConvient(numero_))
            offerts_.push_back(numero_);
        return;
    }
    // In a table by years of birth nobody behind the upper bound can fit.
    const bool arret = base.entete.TypeTri == TypeTri::Naissance && !levee_ && !fenetre_.a.empty();
    for (std::uint32_t rang = 1; rang <= base.entete.NbTriIndividus; ++rang) {
        const NoOrdre n = base.R_TRI.IndividuAuRang(rang);
        if (!n || n == demande_.reference) continue;
        const std::string naissance = base.R_NAISS.AnneeTri(n);
        if (arret && naissance > fenetre_.a) return;
        if (SexeConvient(n) && (levee_ || VieConvient(n, naissance)) && NomConvient(n))
            offerts_.push_back(n);
    }
}

std::vector<NoOrdre> Choix::Page() const {
    const std::size_t debut = no_ * TaillePage;
    const std::size_t fin = std::min(debut + TaillePage, offerts_.size());
    return {offerts_.begin() + static_cast<std::ptrdiff_t>(debut),
            offerts_.begin() + static_cast<std::ptrdiff_t>(fin)};
}

std::size_t Choix::NbPages() const {
    return std::max<std::size_t>(1, (offerts_.size() + TaillePage - 1) / TaillePage);
}

bool Choix::Precedente() {
    if (!APrecedente()) return false;
    --no_;
    return true;
}

bool Choix::Suivante() {
    if (!ASuivante()) return false;
    ++no_;
    return true;
}

bool Choix::SexeConvient(NoOrdre n) const {
    const Sexe sexe = session_.base->R_SEXE.LireCellule(n);
    switch (demande_.sorte) {
        case SorteChoix::Parent:
            return sexe == demande_.sexe;
        case SorteChoix::Conjoint:
            return sexe != sexe_;
        case SorteChoix::Enfant:
        case SorteChoix::Lien:
            break;
    }
    return true;
}

bool Choix::VieConvient(NoOrdre n, const std::string& naissance) const {
    if (naissance < fenetre_.de || (!fenetre_.a.empty() && naissance > fenetre_.a)) return false;
    switch (demande_.sorte) {
        case SorteChoix::Parent:
            return true;
        case SorteChoix::Enfant:
            return !Connue(deces_) || naissance <= deces_;
        case SorteChoix::Conjoint:
            return Vit(session_.base->R_DECES.AnneeTri(n), naissance_);
        case SorteChoix::Lien:
            break;
    }
    return Vit(session_.base->R_DECES.AnneeTri(n), naissance_) && Vit(deces_, naissance);
}

bool Choix::NomConvient(NoOrdre n) {
    if (mots_.empty()) return true;
    // All names of the person count, whether the template shows them or not; ";" is a blank here.
    const storage::LigneNom ligne = session_.base->R_NOM.LireNom(n);
    tampon_.clear();
    for (const std::string_view nom : {ligne.nom, ligne.prenom, ligne.autrePrenom}) {
        ReplieDans(tampon_, nom);
        tampon_.push_back(' ');
    }
    if (ContientTout(tampon_, mots_)) return true;
    const ModeleNom& modele = session_.Modele();
    const bool autres = std::any_of(modele.begin(), modele.end(), [](const std::string& jeton) {
        return jeton != tag::Prenom && jeton != tag::Nom && jeton != tag::AutresPrenoms;
    });
    if (!autres) return false;
    ReplieDans(tampon_, NomAffiche(session_, n));
    return ContientTout(tampon_, mots_);
}

}  // namespace dorvane::records
