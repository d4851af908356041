#include "storage/Base.h"

#include <algorithm>
#include <utility>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t TailleSuiteIndividus = 1664;

}  // namespace

Base::Base(Disque& disque, std::filesystem::path chemin, std::unique_ptr<Verrou> verrou,
           std::unique_ptr<Volume> volumeOuvert)
    : volumePossede_{std::move(volumeOuvert)},
      volume{*volumePossede_},
      regles{ReglesInitiales()},
      motsCles{volume, marques, entete},
      R_SEXE{volume, marques},
      R_NAISS{volume, marques},
      R_DECES{volume, marques},
      R_PERE{volume, marques},
      R_MERE{volume, marques},
      R_NOM{volume, marques},
      R_TEXTE{volume, marques},
      R_ENFANT{volume, marques, R_NAISS},
      R_MARIAG{volume, marques, false},
      R_EPOUX{volume, marques},
      R_EPOUSE{volume, marques},
      R_DEBMAR{volume, marques},
      R_FINMAR{volume, marques},
      R_TXTMAR{volume, marques},
      R_IMAGE{volume, marques},
      R_LSTIMG{volume, marques, true},
      R_LIEN{volume, marques},
      R_EVT{volume, marques},
      R_LSTEVT{volume, marques, R_EVT},
      R_INDEX{volume, marques, entete, motsCles, R_NAISS},
      R_TRI{volume, marques, entete, regles, R_NOM, R_NAISS, R_EVT, R_IMAGE},
      disque_{disque},
      chemin_{std::move(chemin)},
      verrou_{std::move(verrou)} {}

Base::~Base() {
    AbandonnerProvisoire();
}

void Base::AbandonnerProvisoire() {
    if (!provisoire_.empty()) static_cast<void>(disque_.Supprimer(provisoire_));
    provisoire_.clear();
}

void Base::AllouerSuiteIndividus() {
    entete.PosSuiteIndividus = volume.Ajouter(std::string(TailleSuiteIndividus, '\0'));
}

void Base::FixerDernierIndividu(std::uint32_t n) {
    if (n <= entete.DernierIndividu) return;
    entete.DernierIndividu = std::min(n, MaxIndividus);
    if (entete.DernierIndividu > SeuilSuite && !entete.PosSuiteIndividus) AllouerSuiteIndividus();
    marques.ModifBase = true;
}

NoOrdre Base::NouvelIndividu() {
    if (entete.DernierIndividu >= MaxIndividus) return {};
    FixerDernierIndividu(entete.DernierIndividu + 1);
    return NoOrdre{entete.DernierIndividu};
}

NoMariage Base::NouveauMariage() {
    // Two bytes of the header are all that stops unions, besides the reach of their columns.
    if (entete.DernierMariage >= R_EPOUX.Portee()) return {};
    marques.ModifBase = true;
    return NoMariage{++entete.DernierMariage};
}

NoEvenement Base::NouvelEvenement() {
    if (entete.DernierEvenement >= MaxEvenements) return {};
    marques.ModifBase = true;
    return NoEvenement{++entete.DernierEvenement};
}

NoDocument Base::NouveauDocument() {
    if (entete.DernierDocument >= MaxDocuments) return {};
    marques.ModifBase = true;
    return NoDocument{++entete.DernierDocument};
}

DefinitionSlots Base::Definition(const Slots& slots) {
    DefinitionSlots definition{slots, {}};
    for (std::size_t k = 0; k < NbSlots(slots); ++k)
        definition.libelles[k] =
            motsCles.LibelleType(motsCles.TypeDuSymbole(slots[k].symbole)).libelle;
    return definition;
}

DefinitionSlots Base::DefinitionIndividu() {
    return Definition(entete.SlotsIndividu);
}

DefinitionSlots Base::DefinitionMariage() {
    return Definition(entete.SlotsMariage);
}

void Base::InitColonnes() {
    R_NAISS.InitColonne();
    R_DECES.InitColonne();
    R_MERE.InitColonne();
    R_PERE.InitColonne();
    R_SEXE.InitColonne();
    R_EPOUX.InitColonne();
    R_EPOUSE.InitColonne();
    R_DEBMAR.InitColonne();
    R_FINMAR.InitColonne();
    R_ENFANT.InitColonne();
    R_MARIAG.InitColonne();
    R_NOM.InitColonne();
    R_TEXTE.InitColonne();
    R_INDEX.InitColonne();
    R_IMAGE.InitColonne();
    R_LSTIMG.InitColonne();
    R_TXTMAR.InitColonne();
    R_LIEN.InitColonne();
    R_LSTEVT.InitColonne();
    R_EVT.InitColonne();
    motsCles.Oublier();
}

bool Base::Enregistrer() {
    if (!marques.Modifie()) return !EnDefaut();
    // The tables of sorting forget that they were changed once they are handed over.
    marques.ModifBase = true;
    if (!volume.Commettre(PreparerEnTete())) return false;
    if (!PrendreSaPlace()) {
        // Under the name stands another file still: it must not be given a journal of this one.
        volume.OublierCommit();
        return false;
    }
    volume.ProtegerZones(ZonesDuCommit());
    entete.marque = MarqueCourante;
    marques.ModifBase = false;
    return true;
}

bool Base::PrendreSaPlace() {
    if (provisoire_.empty()) return true;
    // A journal of the file that goes would be replayed over this one.
    if (!SupprimerJournal(disque_, chemin_)) return false;
    if (disque_.Existe(chemin_)) disque_.DonnerDroits(provisoire_, chemin_);
    if (!disque_.Renommer(provisoire_, chemin_)) return false;
    provisoire_.clear();
    disque_.ViderDossier(chemin_);
    return true;
}

bool Base::EnregistrerCopie(Disque& disque, const std::filesystem::path& chemin) {
    marques.ModifBase = marques.Modifie();
    return volume.CopierVers(disque, chemin, PreparerEnTete());
}

bool Base::ViderSurDisque() {
    volume.ViderSurDisque();
    return !EnDefaut();
}

bool Base::Fermer() {
    const bool fait = Enregistrer();
    // Another program may take the same name as soon as the lock is given back.
    AbandonnerProvisoire();
    verrou_.reset();
    return fait;
}

bool SupprimerJournal(Disque& disque, const std::filesystem::path& base) {
    const std::filesystem::path journal = CheminJournal(base);
    if (!disque.Existe(journal)) return true;
    if (EstDAutrui(disque, ExaminerJournal(disque, journal), base)) return false;
    if (!disque.Supprimer(journal)) return false;
    disque.ViderDossier(journal);
    return true;
}

}  // namespace dorvane::storage
