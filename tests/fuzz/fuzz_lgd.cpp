// links: storage
// Any bytes as a base: it is refused, or opens; then it can be walked, edited, committed and opened
// again without a crash, a hang or growth without bound.
#include "doublures/DisqueMemoire.h"
#include "doublures/Inventaire.h"
#include "doublures/SeanceEssai.h"
#include "storage/Base.h"
#include "storage/ConstruireIndex.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr const char* Chemin = "essai.LGD";
constexpr std::uint32_t Limite = 40;  // records of each kind that are looked at

void Parcourir(Base& base) {
    const Inventaire inventaire{base, Limite};
    if (inventaire.Texte().empty()) std::abort();
    (void)base.R_TRI.RangIndividu(NoOrdre{1});
}

void Travailler(Base& base) {
    SeanceEssai seance{base, 5};
    for (int i = 0; i < 12; ++i)
        seance.Agir();
    ProgressionMuette muet;
    if (base.entete.NbTriIndividus <= 1000) {
        base.R_TRI.TrierIndividus(muet);
        ConstruireIndex(base, '|', muet);
    }
    base.R_LSTEVT.TrierEvenements(NoOrdre{1});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    constexpr std::size_t TailleMax = 200000;
    if (taille > TailleMax) return 0;
    std::string octets{reinterpret_cast<const char*>(donnees), taille};
    // Most inputs are to come past the mark.
    if (taille >= MarqueCourante.size() && octets[0] != '[')
        octets.replace(0, MarqueCourante.size(), MarqueCourante);
    DisqueMemoire disque;
    disque.capacite = 64U << 20U;
    disque.Poser(Chemin, octets);
    ProgressionMuette muet;
    {
        const ResultatOuverture resultat = OuvrirBase(disque, Chemin, muet);
        if (!resultat.base) {
            if (disque.Octets(Chemin) != octets) std::abort();
            return 0;
        }
        Parcourir(*resultat.base);
        Travailler(*resultat.base);
        const bool fait = resultat.base->Enregistrer();
        if (!fait && !resultat.base->EnDefaut()) std::abort();
    }
    const ResultatOuverture encore = OuvrirBase(disque, Chemin, muet);
    if (!encore.base) std::abort();
    Parcourir(*encore.base);
    return 0;
}
