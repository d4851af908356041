#include "messages/Messages.h"
#include "storage/Base.h"
#include "values/Marqueurs.h"
#include "values/SortesEvenement.h"

#include <algorithm>
#include <utility>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t FinNouvelle = 3573;
constexpr std::size_t TailleMarque = 30;

struct TypeInitial {
    std::string_view libelle;
    char symbole;
};

/// The keywords of a new base, in the order of their numbers.
constexpr TypeInitial TypesInitiaux[] = {
    {tag::Nom, marqueur::Nom},
    {tag::Prenom, marqueur::Prenom},
    {tag::Naissance, marqueur::LieuNaissance},
    {tag::Mariage, marqueur::LieuMariage},
    {tag::Deces, marqueur::LieuDeces},
    {tag::Profession, marqueur::Profession},
    {tag::Bapteme, marqueur::Bapteme},
    {tag::Inhumation, marqueur::Inhumation},
    {tag::Residence, marqueur::Residence},
    {tag::Divorce, marqueur::Divorce},
    {tag::Autre, marqueur::Autre},
};

std::string LireMarque(Fichier& fichier) {
    std::string marque(TailleMarque, '\0');
    fichier.Lire(Position{1}, marque);
    return marque;
}

/// Replays and removes the journal, if there is one. False when that is not possible.
bool Reprendre(Disque& disque, const std::filesystem::path& journal, Fichier& fichier,
               Progression& progression, bool& reprise) {
    if (!disque.Existe(journal)) return true;
    const CadreProgression cadre{progression, Msg(message::TitreRecuperationBase),
                                 Msg(message::EtatRetourEtatPrecedent)};
    RejouerJournal(disque, journal, fichier);
    fichier.Vider();
    reprise = !fichier.EnDefaut() && disque.Supprimer(journal);
    if (reprise) disque.ViderDossier(journal);
    return reprise;
}

Ouverture EtatDuVerrou(EtatVerrou etat) {
    return etat == EtatVerrou::Occupe ? Ouverture::Occupee : Ouverture::Refusee;
}

}  // namespace

/// Fills a base that has just been made.
struct Ouvreur {
    static std::unique_ptr<Base> Lire(Disque& disque, const std::filesystem::path& chemin,
                                      std::unique_ptr<Verrou> verrou,
                                      std::unique_ptr<Fichier> fichier) {
        // The end of the file is known once header and directories are read.
        const std::uint64_t taille = std::min<std::uint64_t>(fichier->Taille(), 0xFFFFFFFEU);
        auto volume = std::make_unique<Volume>(disque, std::move(fichier), CheminJournal(chemin),
                                               static_cast<std::uint32_t>(taille), false);
        auto base = std::make_unique<Base>(disque, chemin, std::move(verrou), std::move(volume));
        base->InitColonnes();
        base->LireEnTete();
        const std::uint64_t finBlocs = base->VerifierRepertoires(taille);
        const std::uint64_t fin =
            std::max(std::min<std::uint64_t>(base->entete.FinFichier, taille), finBlocs);
        constexpr std::uint64_t FinRepertoires = 3088;
        base->volume.FixerFin(static_cast<std::uint32_t>(
            std::min<std::uint64_t>(std::max(fin, FinRepertoires), 0xFFFFFFFEU)));
        base->volume.ProtegerZones(base->ZonesDuCommit());
        base->R_TRI.ChargerTris();
        base->marques = {};
        return base;
    }

    static void Remplir(Base& base, const OptionsBase& options) {
        base.InitColonnes();
        base.entete.TypeTri = options.TypeTri;
        base.entete.OptPrenomUnique = options.OptPrenomUnique;
        base.entete.OptParticules = options.OptParticules;
        base.entete.PosRepEvt = Position{3089};
        base.entete.PosRepTriEvt = Position{3345};
        base.entete.PosRepLstEvt = Position{3217};
        base.entete.SlotsIndividu[0] = {marqueur::Profession, ' '};
        base.entete.SlotsIndividu[1] = {marqueur::Bapteme, '1'};
        base.entete.SlotsIndividu[2] = {marqueur::Inhumation, '1'};
        base.entete.SlotsMariage[0] = {marqueur::Divorce, '1'};
        // All types share one empty word list.
        const Position vide = base.volume.Ajouter({"\0\0", 2});
        NoMotCle k{};
        for (const TypeInitial& type : TypesInitiaux) {
            ++k.valeur;
            base.motsCles.CreerType(k, {type.symbole, std::string{type.libelle}, true, vide});
        }
    }
};

ResultatOuverture OuvrirBase(Disque& disque, const std::filesystem::path& chemin,
                             Progression& progression) {
    if (!disque.Existe(chemin)) return {Ouverture::Introuvable, nullptr};
    ResultatVerrou verrou = disque.Verrouiller(chemin);
    if (verrou.etat != EtatVerrou::Pris) return {EtatDuVerrou(verrou.etat), nullptr};
    std::unique_ptr<Fichier> fichier = disque.Ouvrir(chemin, ModeOuverture::LireEcrire);
    if (!fichier) return {Ouverture::Refusee, nullptr};
    const std::filesystem::path journal = CheminJournal(chemin);
    // A commit that was cut may have left half a mark; the journal then holds the whole one.
    if (!PorteMarque(LireMarque(*fichier)) && !PorteMarque(MarqueDuJournal(disque, journal)))
        return {Ouverture::PasUneBase, nullptr};
    bool reprise = false;
    if (!Reprendre(disque, journal, *fichier, progression, reprise))
        return {Ouverture::Abimee, nullptr};
    if (!PorteMarque(LireMarque(*fichier))) return {Ouverture::PasUneBase, nullptr};
    return {Ouverture::Faite,
            Ouvreur::Lire(disque, chemin, std::move(verrou.verrou), std::move(fichier)), reprise};
}

ResultatOuverture NouvelleBase(Disque& disque, const std::filesystem::path& chemin,
                               const OptionsBase& options) {
    ResultatVerrou verrou = disque.Verrouiller(chemin);
    if (verrou.etat != EtatVerrou::Pris) return {EtatDuVerrou(verrou.etat), nullptr};
    if (!SupprimerJournal(disque, chemin)) return {Ouverture::Refusee, nullptr};
    std::unique_ptr<Fichier> fichier = disque.Ouvrir(chemin, ModeOuverture::Creer);
    if (!fichier) return {Ouverture::Refusee, nullptr};
    auto volume = std::make_unique<Volume>(disque, std::move(fichier), CheminJournal(chemin),
                                           FinNouvelle, true);
    auto base = std::make_unique<Base>(disque, chemin, std::move(verrou.verrou), std::move(volume));
    Ouvreur::Remplir(*base, options);
    return {Ouverture::Faite, std::move(base)};
}

}  // namespace dorvane::storage
