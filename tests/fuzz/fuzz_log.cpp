// links: storage
// Any bytes as the journal beside a small base: the replay ends, the file does not grow by more
// than one record, and what is there opens or is refused.
#include "doublures/DisqueMemoire.h"
#include "doublures/Inventaire.h"
#include "doublures/SeanceEssai.h"
#include "storage/Base.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr const char* Chemin = "essai.LGD";

std::string FairePetiteBase() {
    DisqueMemoire disque;
    const ResultatOuverture resultat = NouvelleBase(disque, Chemin, {});
    SeanceEssai seance{*resultat.base, 3};
    for (int i = 0; i < 30; ++i)
        seance.Agir();
    if (!resultat.base->Enregistrer()) std::abort();
    return disque.Octets(Chemin);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    static const std::string Base0 = FairePetiteBase();
    DisqueMemoire disque;
    disque.Poser(Chemin, Base0);
    disque.Poser("essai.LOG", {reinterpret_cast<const char*>(donnees), taille});
    ProgressionMuette muet;
    const ResultatOuverture resultat = OuvrirBase(disque, Chemin, muet);
    if (disque.Octets(Chemin).size() > Base0.size() + Journal::TailleImage) std::abort();
    if (!resultat.base) return 0;
    if (disque.Existe("essai.LOG")) std::abort();
    const Inventaire inventaire{*resultat.base, 40};
    SeanceEssai seance{*resultat.base, 9};
    for (int i = 0; i < 5; ++i)
        seance.Agir();
    if (!resultat.base->Enregistrer() && !resultat.base->EnDefaut()) std::abort();
    return 0;
}
