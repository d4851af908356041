#include "messages/Messages.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/Octets.h"
#include "values/SortesEvenement.h"

#include <algorithm>
#include <array>
#include <string_view>
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

/// Whether the journal leads back to a later state than that of the file: an older copy was put in
/// its place. A base never becomes shorter, nor does its header tell so, unless it told of more
/// than there was.
bool EstPosterieur(const EtatJournal& journal, Fichier& fichier) {
    const std::uint64_t taille = fichier.Taille();
    if (taille < journal.finCommise) return true;
    constexpr std::size_t PlaceFin = 30;
    if (journal.enTete.size() < TailleEnTete) return false;
    std::string octets(TailleEnTete, '\0');
    fichier.Lire(Position{1}, octets);
    const auto fin = [](std::string_view enTete) {
        return Chaine4VersNum(enTete.substr(PlaceFin, 4));
    };
    return PorteMarque(octets) &&
           fin(octets) < std::min<std::uint64_t>(fin(journal.enTete), taille);
}

/// Puts the journal aside under a name that nothing replays. False when the system refuses.
bool EcarterJournal(Disque& disque, const std::filesystem::path& journal,
                    std::filesystem::path& ecarte) {
    ecarte = journal;
    ecarte += ".ancien";
    for (int rang = 2; disque.Existe(ecarte); ++rang) {
        ecarte = journal;
        ecarte += ".ancien" + std::to_string(rang);
    }
    if (!disque.Renommer(journal, ecarte)) return false;
    disque.ViderDossier(journal);
    return true;
}

/// Replays and removes the journal. False when that is not possible.
bool Reprendre(Disque& disque, const std::filesystem::path& journal, Fichier& fichier,
               Progression& progression, bool& reprise) {
    const CadreProgression cadre{progression, Msg(message::TitreRecuperationBase),
                                 Msg(message::EtatRetourEtatPrecedent)};
    const bool rejoue = RejouerJournal(disque, journal, fichier).has_value();
    fichier.Vider();
    reprise = rejoue && !fichier.EnDefaut() && disque.Supprimer(journal);
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
        auto volume = std::make_unique<Volume>(disque, std::move(fichier), chemin,
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
        base->R_TRI.ChargerTris();
        base->volume.FixerFin(
            static_cast<std::uint32_t>(base->FinDesFiches(base->volume.FinFichier(), taille)));
        base->volume.ProtegerZones(base->ZonesDuCommit());
        base->marques = {};
        return base;
    }

    static void Remplir(Base& base, const OptionsBase& options, std::filesystem::path provisoire) {
        base.provisoire_ = std::move(provisoire);
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

bool EstNomReserve(const std::filesystem::path& chemin) {
    constexpr std::array<std::string_view, 8> Extensions{
        ".log", ".sav", ".verrou", ".nouveau", ".partiel", ".ancien", ".fus", ".tmp"};
    const std::string extension = EnMinuscules(chemin.extension().native());
    return std::ranges::find(Extensions, extension) != Extensions.end() ||
           EnMinuscules(chemin.filename().native()) == "reorg.fic";
}

std::optional<std::uint32_t> CompterPersonnes(Disque& disque, const std::filesystem::path& chemin) {
    const std::unique_ptr<Fichier> fichier = disque.Ouvrir(chemin, ModeOuverture::LectureSeule);
    if (!fichier) return std::nullopt;
    std::string octets(TailleEnTete, '\0');
    fichier->Lire(Position{1}, octets);
    if (fichier->EnDefaut() || !PorteMarque(octets)) return std::nullopt;
    return DecoderEnTete(octets, {}).NbTriIndividus;
}

ResultatOuverture OuvrirBase(Disque& disque, const std::filesystem::path& chemin,
                             Progression& progression) {
    if (!disque.Existe(chemin)) return {Ouverture::Introuvable, nullptr};
    // Its journal would be the file itself.
    if (CheminJournal(chemin) == chemin) return {Ouverture::NomReserve, nullptr};
    ResultatVerrou verrou = disque.Verrouiller(chemin);
    if (verrou.etat != EtatVerrou::Pris) return {EtatDuVerrou(verrou.etat), nullptr};
    std::unique_ptr<Fichier> fichier = disque.Ouvrir(chemin, ModeOuverture::LireEcrire);
    if (!fichier) return {Ouverture::Refusee, nullptr};
    const std::filesystem::path cheminJournal = CheminJournal(chemin);
    const bool aReprendre = disque.Existe(cheminJournal);
    const EtatJournal journal = aReprendre ? ExaminerJournal(disque, cheminJournal) : EtatJournal{};
    // A commit that was cut may have left half a mark; the journal then holds the whole one.
    const bool marquee = PorteMarque(LireMarque(*fichier));
    if (fichier->EnDefaut()) return {Ouverture::Refusee, nullptr};
    if (aReprendre && !journal.lisible) return {Ouverture::JournalIllisible, nullptr};
    if (!marquee && !PorteMarque(journal.enTete)) return {Ouverture::PasUneBase, nullptr};
    ResultatOuverture resultat;
    if (aReprendre) {
        if (EstDAutrui(disque, journal, chemin)) return {Ouverture::JournalDAutrui, nullptr};
        const bool pret =
            EstPosterieur(journal, *fichier)
                ? EcarterJournal(disque, cheminJournal, resultat.journalEcarte)
                : Reprendre(disque, cheminJournal, *fichier, progression, resultat.reprise);
        if (!pret) return {Ouverture::Abimee, nullptr};
    }
    if (!PorteMarque(LireMarque(*fichier)))
        return {fichier->EnDefaut() ? Ouverture::Refusee : Ouverture::PasUneBase, nullptr};
    resultat.base = Ouvreur::Lire(disque, chemin, std::move(verrou.verrou), std::move(fichier));
    if (resultat.base->EnDefaut()) return {Ouverture::Refusee, nullptr};
    resultat.etat = Ouverture::Faite;
    return resultat;
}

ResultatOuverture NouvelleBase(Disque& disque, const std::filesystem::path& chemin,
                               const OptionsBase& options) {
    if (EstNomReserve(chemin)) return {Ouverture::NomReserve, nullptr};
    ResultatVerrou verrou = disque.Verrouiller(chemin);
    if (verrou.etat != EtatVerrou::Pris) return {EtatDuVerrou(verrou.etat), nullptr};
    std::filesystem::path provisoire = chemin;
    provisoire += ".nouveau";
    std::unique_ptr<Fichier> fichier = disque.Ouvrir(provisoire, ModeOuverture::Creer);
    if (!fichier) return {Ouverture::Refusee, nullptr};
    auto volume = std::make_unique<Volume>(disque, std::move(fichier), chemin, FinNouvelle, true);
    auto base = std::make_unique<Base>(disque, chemin, std::move(verrou.verrou), std::move(volume));
    Ouvreur::Remplir(*base, options, std::move(provisoire));
    return {Ouverture::Faite, std::move(base)};
}

}  // namespace dorvane::storage
