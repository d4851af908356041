// links: storage
// Any bytes as a base of communes: it is refused, or opens; then it can be searched, edited, saved,
// opened again and reorganised without a crash, a hang or growth without bound, and what was just
// written is found.
#include "doublures/DisqueMemoire.h"
#include "storage/BaseCommunes.h"
#include "values/Phonetique.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <source_location>
#include <string>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr const char* Chemin = "essai.lgx";

void Exiger(bool vrai, std::source_location ou = std::source_location::current()) {
    if (vrai) return;
    std::cerr << "fuzz_lgx.cpp:" << ou.line() << '\n';
    std::abort();
}

void Chercher(const BaseCommunes& base) {
    for (const NoCommune n : base.ChercherDebut("", 50)) {
        const Commune c = base.LireCommune(n);
        (void)TexteLieu(c);
        (void)base.ChercherCommune(c.nom);
        (void)base.ChercherSoundex(ClePhonetique(c.nom));
    }
    Exiger(base.ChercherDebut("", BaseCommunes::MaxCommunes).size() <= BaseCommunes::MaxCommunes);
    Exiger(base.LireCommune(NoCommune{base.Nombre() + 1}).nom.empty());
}

void Travailler(BaseCommunes& base) {
    for (const NoCommune n : base.ChercherDebut("", 12)) {
        Commune c = base.LireCommune(n);
        switch (n.valeur % 3) {
            case 0:
                (void)base.SupprimerCommune(n);
                Exiger(base.LireCommune(n).nom.empty());
                break;
            case 1:
                c.nom += " neuve";
                c.commentaire += "suite";
                if (base.MajCommune(n, c)) Exiger(base.LireCommune(n) == NettoyerCommune(c));
                break;
            default:
                c.rattachement = "Blois";
                (void)base.MajCommune(n, c);
                break;
        }
    }
    Commune nouvelle;
    nouvelle.nom = "Villeneuve";
    nouvelle.commentaire = "ajout";
    if (const NoCommune n = base.AjouterCommune(nouvelle)) Exiger(base.LireCommune(n) == nouvelle);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    constexpr std::size_t TailleMax = 200000;
    if (taille > TailleMax) return 0;
    const std::string octets{reinterpret_cast<const char*>(donnees), taille};
    DisqueMemoire disque;
    disque.capacite = 64U << 20U;
    disque.Poser(Chemin, octets);
    {
        const ResultatCommunes r = BaseCommunes::OuvrirCommunes(disque, Chemin);
        if (!r.base) {
            Exiger(disque.Octets(Chemin) == octets);
            return 0;
        }
        Chercher(*r.base);
        Travailler(*r.base);
        Exiger(r.base->EnregistrerCommunes() == EcritureCommunes::Faite);
    }
    const ResultatCommunes encore = BaseCommunes::OuvrirCommunes(disque, Chemin);
    Exiger(encore.base != nullptr);
    Chercher(*encore.base);
    const auto toutes = encore.base->Toutes();
    ProgressionMuette muet;
    // A damaged base is left alone; any other keeps all its communes.
    Exiger((encore.base->ReorganiserCommunes(muet) == EcritureCommunes::Faite) ==
           toutes.has_value());
    if (!toutes) return 0;
    Chercher(*encore.base);
    for (std::size_t i = 0; i < toutes->size(); ++i)
        if (!(*toutes)[i].nom.empty())
            Exiger(encore.base->LireCommune(NoCommune{static_cast<std::uint32_t>(i + 1)}) ==
                   (*toutes)[i]);
    Exiger(disque.Octets(Chemin).size() <= disque.capacite);
    return 0;
}
