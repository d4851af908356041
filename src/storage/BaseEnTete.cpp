// How a base takes up and lays down its fixed zone: the directories and the header.
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t FinZoneFixe = 3573;
constexpr std::uint32_t DebutRepertoires = 201;
constexpr std::uint32_t FinRepertoires = 3088;
constexpr std::uint32_t TailleRepertoire = 128;
constexpr std::uint32_t EntreesRepertoire = 32;
constexpr std::uint32_t TailleRepMotsCles = 200;
constexpr std::uint32_t PosRepIndex = 2193;
constexpr std::uint32_t EntreesIndex = 64;  // in the fixed zone; 96 more behind
constexpr std::uint32_t TailleRepIndex = 4 * EntreesIndex;
constexpr std::uint32_t EntreesSuiteIndex = 96;
constexpr std::uint32_t TailleSuiteIndividus = 1664;
constexpr std::uint32_t TailleSuiteMariages = 640;
constexpr std::uint32_t TailleSuiteIndex = 384;
constexpr std::uint32_t SuiteLstEvt = 1536;

/// A directory of the fixed zone; -1: it has no second half.
struct Place {
    Repertoire* repertoire;
    std::uint32_t position;
    std::int32_t suite;
};

constexpr std::size_t NbIndividus = 12;
constexpr std::size_t NbMariages = 5;

/// Directories whose second half lies in the overflow zone of the persons.
std::array<Place, NbIndividus> PlacesIndividus(Base& b) {
    return {{{&b.R_TRI.individus.repertoire, 401, 0},
             {&b.R_SEXE.repertoire, 529, 128},
             {&b.R_NAISS.repertoire, 657, 256},
             {&b.R_DECES.repertoire, 785, 384},
             {&b.R_PERE.repertoire, 913, 512},
             {&b.R_MERE.repertoire, 1041, 640},
             {&b.R_NOM.repertoire, 1169, 768},
             {&b.R_TEXTE.repertoire, 1297, 896},
             {&b.R_ENFANT.repertoire, 1425, 1024},
             {&b.R_MARIAG.repertoire, 1553, 1152},
             {&b.R_LSTIMG.repertoire, 2705, 1280},
             {&b.R_LIEN.repertoire, 2961, 1408}}};
}

std::array<Place, NbMariages> PlacesMariages(Base& b) {
    return {{{&b.R_EPOUX.repertoire, 1681, 0},
             {&b.R_EPOUSE.repertoire, 1809, 128},
             {&b.R_DEBMAR.repertoire, 1937, 256},
             {&b.R_FINMAR.repertoire, 2065, 384},
             {&b.R_TXTMAR.repertoire, 2833, 512}}};
}

std::array<Place, 2> PlacesSimples(Base& b) {
    return {{{&b.R_IMAGE.repertoire, 2449, -1}, {&b.R_TRI.documents.repertoire, 2577, -1}}};
}

std::string LireOctets(Volume& volume, std::uint32_t position, std::uint32_t taille) {
    std::string octets(taille, '\0');
    volume.Lire(Position{position}, octets);
    return octets;
}

template <class Places>
void LireRepertoires(Volume& volume, const Places& places, Position zone) {
    for (const Place& place : places) {
        place.repertoire->Vider();
        place.repertoire->Decoder(LireOctets(volume, place.position, TailleRepertoire), 0);
        if (zone && place.suite >= 0)
            place.repertoire->Decoder(
                LireOctets(volume, zone.valeur + static_cast<std::uint32_t>(place.suite),
                           TailleRepertoire),
                EntreesRepertoire);
    }
}

/// Puts first halves into the image of the fixed zone and second halves into the zone.
template <class Places>
void ComposerRepertoires(const Places& places, std::string& fixe, std::string& zone) {
    for (const Place& place : places) {
        fixe.replace(place.position - DebutRepertoires, TailleRepertoire,
                     place.repertoire->Octets(0, EntreesRepertoire));
        if (place.suite >= 0 && !zone.empty())
            zone.replace(static_cast<std::size_t>(place.suite), TailleRepertoire,
                         place.repertoire->Octets(EntreesRepertoire, EntreesRepertoire));
    }
}

void LireRepertoireEvt(Volume& volume, Repertoire& repertoire, Position position) {
    repertoire.Vider();
    if (position) repertoire.Decoder(LireOctets(volume, position.valeur, TailleRepertoire), 0);
}

}  // namespace

std::uint64_t Base::VerifierRepertoires(std::uint64_t taille) {
    std::uint64_t fin = 0;
    const auto verifier = [&](Repertoire& repertoire) {
        fin = std::max(fin, repertoire.Verifier(taille));
    };
    for (const Place& place : PlacesIndividus(*this))
        verifier(*place.repertoire);
    for (const Place& place : PlacesMariages(*this))
        verifier(*place.repertoire);
    for (const Place& place : PlacesSimples(*this))
        verifier(*place.repertoire);
    for (Repertoire* repertoire : {&R_INDEX.repertoire, &R_EVT.repertoire, &R_LSTEVT.repertoire,
                                   &R_TRI.evenements.repertoire})
        verifier(*repertoire);
    return fin;
}

void Base::LireEnTete() {
    const std::string octets = LireOctets(volume, 1, TailleEnTete);
    R_INDEX.repertoire.Vider();
    R_INDEX.repertoire.Decoder(LireOctets(volume, PosRepIndex, TailleRepIndex), 0);
    entete = DecoderEnTete(octets, R_INDEX.PositionBloc(1));
    const std::uint64_t taille = volume.TailleDisque();
    // A zone that a damaged header puts outside the file is no zone.
    for (Position* position :
         {&entete.PosRepEvt, &entete.PosRepTriEvt, &entete.PosRepLstEvt, &entete.PosSuiteIndividus,
          &entete.PosSuiteIndex, &entete.PosSuiteMariages})
        if (position->valeur > taille || position->valeur <= TailleEnTete) *position = {};
    entete.DernierIndividu = std::min(entete.DernierIndividu, MaxIndividus);
    entete.NbIndex = std::min(entete.NbIndex, MaxIndex);

    motsCles.FixerRepertoire(LireOctets(volume, DebutRepertoires, TailleRepMotsCles));
    LireRepertoires(volume, PlacesIndividus(*this), entete.PosSuiteIndividus);
    LireRepertoires(volume, PlacesMariages(*this), entete.PosSuiteMariages);
    LireRepertoires(volume, PlacesSimples(*this), {});
    if (entete.PosSuiteIndex)
        R_INDEX.repertoire.Decoder(
            LireOctets(volume, entete.PosSuiteIndex.valeur, TailleSuiteIndex), EntreesIndex);
    LireRepertoireEvt(volume, R_EVT.repertoire, entete.PosRepEvt);
    LireRepertoireEvt(volume, R_TRI.evenements.repertoire, entete.PosRepTriEvt);
    LireRepertoireEvt(volume, R_LSTEVT.repertoire, entete.PosRepLstEvt);
    if (entete.PosRepLstEvt && entete.PosSuiteIndividus)
        R_LSTEVT.repertoire.Decoder(
            LireOctets(volume, entete.PosSuiteIndividus.valeur + SuiteLstEvt, TailleRepertoire),
            EntreesRepertoire);
    if (entete.anciens) LireAnciensReglages();
    if (entete.AvantVersion972()) ReconstruireSlots();
}

void Base::LireAnciensReglages() {
    constexpr std::uint32_t TaillePolice = 50;
    for (std::size_t i = 0; i < entete.anciens->polices.size(); ++i) {
        const Position position = entete.anciens->positionsPolices[i];
        if (!position) continue;
        std::string fiche = LireOctets(volume, position.valeur, TaillePolice);
        AnciensReglages::Police& police = entete.anciens->polices[i];
        const std::size_t finNom = fiche.find('#');
        police.nom = fiche.substr(0, finNom);
        if (finNom == std::string::npos) continue;
        const std::size_t finTaille = fiche.find('#', finNom + 1);
        police.taille = fiche.substr(
            finNom + 1, finTaille == std::string::npos ? finTaille : finTaille - finNom - 1);
        if (finTaille != std::string::npos) police.proportionnelle = fiche.substr(finTaille + 1, 1);
    }
}

void Base::ReconstruireSlots() {
    entete.SlotsIndividu = {};
    entete.SlotsMariage = {};
    for (NoMotCle k{1}; k.valeur <= motsCles.Nombre(); ++k.valeur) {
        const char symbole = motsCles.LibelleType(k).symbole;
        if (symbole == '\\') entete.SlotsIndividu[0] = {symbole, ' '};
        if (symbole == u'°'_1252) entete.SlotsIndividu[1] = {symbole, '1'};
        if (symbole == '^') entete.SlotsIndividu[2] = {symbole, '1'};
    }
}

void Base::ViderColonnes() {
    R_SEXE.ViderColonne();
    R_MERE.ViderColonne();
    R_PERE.ViderColonne();
    R_NAISS.ViderColonne();
    R_DECES.ViderColonne();
    R_NOM.ViderColonne();
    R_TEXTE.ViderColonne();
    R_ENFANT.ViderColonne();
    R_MARIAG.ViderColonne();
    R_DEBMAR.ViderColonne();
    R_FINMAR.ViderColonne();
    R_EPOUSE.ViderColonne();
    R_EPOUX.ViderColonne();
    R_TXTMAR.ViderColonne();
    R_TRI.EcrireTriIndividus();
    R_INDEX.ViderColonne();
    R_IMAGE.ViderColonne();
    R_TRI.EcrireTriDocuments();
    R_LSTIMG.ViderColonne();
    R_LIEN.ViderColonne();
    R_EVT.ViderColonne();
    R_LSTEVT.ViderColonne();
    R_TRI.EcrireTriEvenements();
}

void Base::EcrireRepertoiresEvt() {
    if (entete.DernierEvenement == 0) {
        // The areas that a new file kept for them are given up.
        entete.PosRepEvt = entete.PosRepTriEvt = entete.PosRepLstEvt = {};
        return;
    }
    const auto ecrire = [&](Position& position, const Repertoire& repertoire) {
        const std::string octets = repertoire.Octets(0, EntreesRepertoire);
        if (position)
            volume.EcrireBloc(position, octets);
        else
            position = volume.Ajouter(octets);
    };
    ecrire(entete.PosRepEvt, R_EVT.repertoire);
    ecrire(entete.PosRepTriEvt, R_TRI.evenements.repertoire);
    ecrire(entete.PosRepLstEvt, R_LSTEVT.repertoire);
}

std::string Base::PreparerEnTete() {
    ViderColonnes();
    const auto allouer = [&](Position& position, bool besoin, std::uint32_t taille) {
        if (besoin && !position) position = volume.Ajouter(std::string(taille, '\0'));
        return std::string(besoin ? taille : 0, '\0');
    };
    std::string fixe(FinRepertoires - DebutRepertoires + 1, '\0');
    std::string individus = allouer(entete.PosSuiteIndividus, entete.DernierIndividu > SeuilSuite,
                                    TailleSuiteIndividus);
    std::string mariages =
        allouer(entete.PosSuiteMariages, entete.DernierMariage > SeuilSuite, TailleSuiteMariages);
    const std::string index =
        allouer(entete.PosSuiteIndex, entete.NbIndex > SeuilSuiteIndex, TailleSuiteIndex);
    std::string aucune;

    fixe.replace(0, TailleRepMotsCles, motsCles.OctetsRepertoire());
    ComposerRepertoires(PlacesIndividus(*this), fixe, individus);
    ComposerRepertoires(PlacesMariages(*this), fixe, mariages);
    ComposerRepertoires(PlacesSimples(*this), fixe, aucune);
    fixe.replace(PosRepIndex - DebutRepertoires, TailleRepIndex,
                 R_INDEX.repertoire.Octets(0, EntreesIndex));
    volume.EcrireBloc(Position{DebutRepertoires}, fixe);
    if (!individus.empty()) {
        individus.replace(SuiteLstEvt, TailleRepertoire,
                          R_LSTEVT.repertoire.Octets(EntreesRepertoire, EntreesRepertoire));
        volume.EcrireBloc(entete.PosSuiteIndividus, individus);
    }
    if (!mariages.empty()) volume.EcrireBloc(entete.PosSuiteMariages, mariages);
    if (!index.empty())
        volume.EcrireBloc(entete.PosSuiteIndex,
                          R_INDEX.repertoire.Octets(EntreesIndex, EntreesSuiteIndex));
    EcrireRepertoiresEvt();
    return ComposerEnTete(entete, volume.FinFichier());
}

std::vector<Zone> Base::ZonesDuCommit() const {
    std::vector<Zone> zones{{Position{1}, FinZoneFixe}};
    const auto ajouter = [&](Position debut, std::uint32_t longueur) {
        if (debut.valeur + longueur - 1 > FinZoneFixe) zones.push_back({debut, longueur});
    };
    if (entete.PosSuiteIndividus) ajouter(entete.PosSuiteIndividus, TailleSuiteIndividus);
    if (entete.PosSuiteMariages) ajouter(entete.PosSuiteMariages, TailleSuiteMariages);
    if (entete.PosSuiteIndex) ajouter(entete.PosSuiteIndex, TailleSuiteIndex);
    for (const Position position : {entete.PosRepEvt, entete.PosRepTriEvt, entete.PosRepLstEvt})
        if (position) ajouter(position, TailleRepertoire);
    return zones;
}

}  // namespace dorvane::storage
