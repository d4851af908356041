// links: records
// Any bytes as a base and as a list of pairs: the check, the repair and the reorganisation end
// without a crash, a hang or growth without bound; nobody is lost, and what was reorganised once
// comes out the same the second time.
#include "doublures/DialogueScript.h"
#include "doublures/DisqueMemoire.h"
#include "doublures/DossierTemporaire.h"
#include "doublures/EcranScript.h"
#include "doublures/HorlogeFixe.h"
#include "doublures/ProgressionScript.h"
#include "records/ControleBase.h"
#include "records/Depannage.h"
#include "shell/Reorganisation.h"
#include "storage/Base.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

using namespace dorvane;

namespace {

/// A session on a disk in memory; the list of pairs and the journal lie in a real folder.
struct Poste {
    doublures::DossierTemporaire dossier;
    doublures::DialogueScript dialogue;
    doublures::ProgressionScript progression;
    doublures::HorlogeFixe horloge;
    doublures::EcranScript ecran;
    storage::DisqueMemoire disque;
    shell::Session session{{dossier.chemin, dossier.chemin, dossier.chemin},
                           {dialogue, progression, horloge, ecran, disque}};
    std::filesystem::path chemin = dossier / "essai.LGD";

    Poste() {
        session.parametres.generaux.travail = dossier.chemin;
        session.AppliquerReglages();
        disque.capacite = 64U << 20U;
    }

    bool Ouvrir() {
        storage::ProgressionMuette muet;
        storage::ResultatOuverture resultat = storage::OuvrirBase(disque, chemin, muet);
        session.CheminBase = chemin;
        session.PoserBase(std::move(resultat.base));
        return session.BaseOuverte();
    }
    void Oublier() {
        dialogue.entendu.clear();
        dialogue.titres.clear();
        dialogue.annonces.clear();
        progression.titres.clear();
        progression.textes.clear();
    }
};

/// Small counts, so that a run stays short.
void Borner(std::string& octets) {
    for (const std::size_t position : {35U, 37U, 39U, 41U, 43U, 101U, 103U})
        if (octets.size() > position)
            octets[position - 1] = static_cast<char>(octets[position - 1] & 3);
}

std::vector<std::uint16_t> Personnes(storage::Base& base) {
    std::vector<std::uint16_t> personnes;
    for (const std::uint16_t n : base.R_TRI.individus.Numeros())
        if (n != 0 && n <= base.entete.DernierIndividu) personnes.push_back(n);
    std::sort(personnes.begin(), personnes.end());
    personnes.erase(std::unique(personnes.begin(), personnes.end()), personnes.end());
    return personnes;
}

void Soigner(Poste& poste) {
    shell::Session& session = poste.session;
    records::ControlerBase(session, [](const records::Constat& constat) {
        if (!records::MessageDe(constat.sorte)) std::abort();
    });
    const std::vector<std::uint16_t> avant = Personnes(*session.base);
    if (!records::DepannerBase(session, false).issue) std::abort();
    const std::vector<std::uint16_t> apres = Personnes(*session.base);
    if (!std::includes(apres.begin(), apres.end(), avant.begin(), avant.end())) std::abort();
    if (!session.base->Enregistrer() && !session.base->EnDefaut()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    constexpr std::size_t TailleMax = 100000;
    constexpr std::size_t TaillePaires = 64;
    if (taille > TailleMax) return 0;
    static Poste poste;
    std::string octets{reinterpret_cast<const char*>(donnees), taille};
    if (taille >= storage::MarqueCourante.size() && octets[0] != '[')
        octets.replace(0, storage::MarqueCourante.size(), storage::MarqueCourante);
    Borner(octets);
    {
        std::ofstream paires{poste.dossier / "essai.FUS", std::ios::binary};
        paires << octets.substr(octets.size() - std::min(octets.size(), TaillePaires));
    }
    poste.disque.Poser(poste.chemin, octets);
    poste.Oublier();
    if (!poste.Ouvrir()) return 0;
    Soigner(poste);
    poste.session.PoserBase(nullptr);
    if (shell::ReecrireBase(poste.session, poste.chemin).cause != shell::Cause::Fait) return 0;
    const std::string premiere = poste.disque.Octets(poste.chemin);
    if (!poste.Ouvrir()) std::abort();
    Soigner(poste);
    poste.session.PoserBase(nullptr);
    poste.disque.Poser(poste.chemin, premiere);
    if (shell::ReecrireBase(poste.session, poste.chemin).cause != shell::Cause::Fait) std::abort();
    if (poste.disque.Octets(poste.chemin) != premiere) std::abort();
    return 0;
}
