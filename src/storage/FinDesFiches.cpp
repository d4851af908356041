// The last record of a damaged file: nothing may be written over it, nor run into it.
#include "storage/Base.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string>

namespace dorvane::storage {
namespace {

/// How a record ends.
enum class Forme {
    Texte,  ///< with "#"
    Liste,  ///< with an entry of zeros
    Tete,   ///< by its length: of an event
    Zone,   ///< the same: directories that the header names
};

constexpr std::uint64_t TailleTeteEvt = 20;
constexpr std::uint64_t TailleZone = 1664;  // of the largest

struct Fiche {
    Position debut{};
    Forme forme = Forme::Tete;
};

/// Keeps the last of the records that it is shown. Positions outside the file name none.
class Derniere {
public:
    explicit Derniere(std::uint64_t taille) : taille_{taille} {}

    void Voir(Position debut, Forme forme) {
        if (debut > fiche_.debut && debut.valeur <= taille_) fiche_ = {debut, forme};
    }
    template <class Cle, class Colonne>
    void VoirColonne(Colonne& colonne, std::uint32_t nombre, Forme forme) {
        for (Cle n{1}; n.valeur <= std::min(nombre, colonne.Portee()); ++n.valeur)
            Voir(colonne.LireCellule(n), forme);
    }
    [[nodiscard]] const Fiche& Trouvee() const { return fiche_; }

private:
    std::uint64_t taille_;
    Fiche fiche_;
};

Fiche ChercherDerniere(Base& b, std::uint64_t taille) {
    Derniere derniere{taille};
    for (const Position zone :
         {b.entete.PosRepEvt, b.entete.PosRepTriEvt, b.entete.PosRepLstEvt,
          b.entete.PosSuiteIndividus, b.entete.PosSuiteIndex, b.entete.PosSuiteMariages})
        derniere.Voir(zone, Forme::Zone);
    const std::uint32_t individus = b.entete.DernierIndividu;
    derniere.VoirColonne<NoOrdre>(b.R_NOM, individus, Forme::Texte);
    derniere.VoirColonne<NoOrdre>(b.R_TEXTE, individus, Forme::Texte);
    derniere.VoirColonne<NoMariage>(b.R_TXTMAR, b.entete.DernierMariage, Forme::Texte);
    derniere.VoirColonne<NoDocument>(b.R_IMAGE, b.entete.DernierDocument, Forme::Texte);
    derniere.VoirColonne<NoEvenement>(b.R_EVT, b.entete.DernierEvenement, Forme::Tete);
    for (ColonneListe* liste : std::initializer_list<ColonneListe*>{
             &b.R_ENFANT, &b.R_MARIAG, &b.R_LSTIMG, &b.R_LIEN, &b.R_LSTEVT})
        derniere.VoirColonne<NoOrdre>(*liste, individus, Forme::Liste);
    for (NoIndex e{1}; e.valeur <= b.entete.NbIndex; ++e.valeur) {
        const CelluleMot cellule = b.R_INDEX.CelluleIndex(e);
        derniere.Voir(cellule.mot, Forme::Texte);
        derniere.Voir(cellule.personnes, Forme::Liste);
    }
    for (NoMotCle k{1}; k.valeur <= b.motsCles.Nombre(); ++k.valeur)
        derniere.Voir(b.motsCles.PosMotsType(k), Forme::Liste);
    return derniere.Trouvee();
}

/// The record has its end within a file of `fin` bytes.
bool EstFinie(Volume& volume, const Fiche& fiche, std::uint64_t fin) {
    const std::uint64_t reste = fin + 1 - fiche.debut.valeur;
    if (fiche.forme == Forme::Tete) return reste >= TailleTeteEvt;
    if (fiche.forme == Forme::Zone) return reste >= TailleZone;
    if (fiche.forme == Forme::Texte) {
        bool finie = false;
        static_cast<void>(volume.LireTexte(fiche.debut, reste, &finie));
        return finie;
    }
    std::string octets(std::min<std::uint64_t>(reste, 2), '\0');
    volume.Lire(Position{static_cast<std::uint32_t>(fin + 1 - octets.size())}, octets);
    return octets == std::string(2, '\0');
}

/// What ends a record that lacks its end.
std::string FinManquante(Forme forme) {
    // Whatever the width of its entries, two of them are zeros then.
    constexpr std::size_t FinDeListe = 12;
    return forme == Forme::Texte ? "#" : std::string(forme == Forme::Liste ? FinDeListe : 0, '\0');
}

}  // namespace

std::uint64_t Base::FinDesFiches(std::uint64_t fin, std::uint64_t taille) {
    char dernier = '\0';
    volume.Lire(Position{static_cast<std::uint32_t>(fin)}, std::span{&dernier, 1});
    // A file that ends where its header says, behind the end mark of a record, is whole.
    if (fin == taille && (dernier == '#' || dernier == '\0')) return fin;
    const Fiche derniere = ChercherDerniere(*this, taille);
    if (!derniere.debut) return fin;
    if (derniere.debut.valeur > fin || !EstFinie(volume, derniere, fin)) fin = taille;
    if (!EstFinie(volume, derniere, fin)) volume.Terminer(FinManquante(derniere.forme));
    return fin;
}

}  // namespace dorvane::storage
