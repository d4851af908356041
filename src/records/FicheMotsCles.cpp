#include "records/FicheMotsCles.h"

#include "messages/Messages.h"
#include "messages/Mots.h"
#include "shell/Libelles.h"
#include "storage/Base.h"
#include "storage/ConstruireIndex.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/SortesEvenement.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace dorvane::records {

namespace {

constexpr std::size_t LibelleAuPlus = 34;
/// What cannot be a code: it would be read as a word, a blank or an end of record.
constexpr std::string_view Interdits = "-#0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ \xFF";
/// Tags of names, dates and places that are no kind of event.
constexpr std::array<std::string_view, 9> TagsReserves{
    tag::Nom, tag::Prenom, "NAIS", tag::Deces, tag::Mariage, "BIRP", "DEAP", "NAIP", "MARP"};

std::string Neutre(const shell::Session& session, std::string_view libelle) {
    libelle = SansBlancs(libelle);
    return session.base->entete.LibellesNeutres ? shell::TagDeLibelle(session.catalogue, libelle)
                                                : std::string{libelle};
}

bool EstReserve(std::string_view tag) {
    return std::ranges::find(TagsReserves, tag) != TagsReserves.end() ||
           EstSorte(tag, UsageSorte::MotCle);
}

/// The lines of one label begin with it and a blank: the other must not begin so.
bool SeConfondent(std::string_view a, std::string_view b) {
    const std::string avec = std::string{a} + ' ';
    return b.substr(0, avec.size()) == avec;
}

/// One character that may stand in front of words, else nothing; folded.
char CodeDe(std::string_view saisi) {
    const std::string code = Replie(saisi);
    if (code.size() != 1 || Interdits.find(code[0]) != std::string_view::npos) return ' ';
    return static_cast<unsigned char>(code[0]) < ' ' ? ' ' : code[0];
}

bool Refuser(shell::Session& session, const shell::Phrase& texte) {
    session.dialogue.Informer(texte);
    return false;
}

bool AccepterLibelle(shell::Session& session, NoMotCle sauf, const SaisieMotCle& saisie) {
    const std::string_view libelle = SansBlancs(saisie.libelle);
    if (libelle.empty()) return Refuser(session, shell::Msg(message::LibelleMotCleVide));
    const std::string neutre = Neutre(session, libelle);
    const bool illisible =
        std::ranges::any_of(neutre, [](char c) { return static_cast<unsigned char>(c) < ' '; });
    if (illisible || neutre.size() > LibelleAuPlus || neutre.find_first_of("#\xFF") != neutre.npos)
        return Refuser(session, shell::Msg(message::LibelleMotCleNonAutorise));
    storage::MotsCles& mots = session.base->motsCles;
    for (NoMotCle k{1}; k.valeur <= mots.Nombre(); ++k.valeur) {
        const std::string& autre = mots.LibelleType(k).libelle;
        if (k == sauf || autre.empty()) continue;
        if (autre == neutre)
            return Refuser(session, EstReserve(neutre)
                                        ? shell::Msg(message::CodeMotCleDejaPris)
                                        : shell::Msg(message::LibelleMotCleDejaPris, libelle));
        if (SeConfondent(autre, neutre) || SeConfondent(neutre, autre))
            return Refuser(session, shell::Msg(message::LibelleMotCleSeConfond, libelle));
    }
    return true;
}

NoMotCle PlaceLibre(shell::Session& session) {
    storage::MotsCles& mots = session.base->motsCles;
    for (NoMotCle k{1}; k.valeur <= mots.Nombre(); ++k.valeur)
        if (mots.LibelleType(k).libelle.empty()) return k;
    return NoMotCle{mots.Nombre() < storage::MaxMotsCles ? mots.Nombre() + 1 : 0};
}

/// Gives the keyword a word list of what the texts hold now. False when the user gave up.
bool Indexer(shell::Session& session, NoMotCle mot) {
    const std::string& tag = session.base->motsCles.LibelleType(mot).libelle;
    const shell::CadreProgression cadre{
        session.progression, shell::Litteral(shell::LibelleDeTag(session.catalogue, tag)),
        shell::Msg(message::EtatIndexation)};
    const std::array types{mot};
    return storage::ConstruireIndex(*session.base, types, session.progression);
}

storage::Slots& TableDe(shell::Session& session, TableLignes table) {
    storage::EnTete& entete = session.base->entete;
    return table == TableLignes::Individu ? entete.SlotsIndividu : entete.SlotsMariage;
}

void MarquerEnTete(shell::Session& session) {
    session.base->marques.ModifBase = true;
    session.base->marques.AffichagePerime = true;
}

void RetirerSymbole(storage::Slots& slots, char symbole) {
    const auto fin =
        std::remove_if(slots.begin(), slots.end(),
                       [symbole](const storage::Slot& slot) { return slot.symbole == symbole; });
    std::fill(fin, slots.end(), storage::Slot{});
}

void RenommerSymbole(shell::Session& session, char ancien, char nouveau) {
    for (const TableLignes table : {TableLignes::Individu, TableLignes::Mariage})
        for (storage::Slot& slot : TableDe(session, table))
            if (slot.symbole == ancien) slot.symbole = nouveau;
}

LigneMotCle LigneDe(const shell::Session& session, NoMotCle k, const storage::MotCle& type) {
    return {k,
            type.symbole,
            shell::LibelleDeTag(session.catalogue, type.libelle),
            type.indexe,
            EstMarqueurFixe(type.symbole),
            EstSorte(type.libelle, UsageSorte::MotCle)};
}

}  // namespace

std::vector<LigneMotCle> ListerMotsCles(shell::Session& session) {
    std::vector<LigneMotCle> lignes;
    storage::MotsCles& mots = session.base->motsCles;
    for (NoMotCle k{1}; k.valeur <= mots.Nombre(); ++k.valeur)
        if (const storage::MotCle& type = mots.LibelleType(k); !type.libelle.empty())
            lignes.push_back(LigneDe(session, k, type));
    return lignes;
}

NoMotCle AjouterMotCle(shell::Session& session, const SaisieMotCle& saisie) {
    storage::MotsCles& mots = session.base->motsCles;
    const char code = CodeDe(saisie.code);
    if (code == ' ')
        return Refuser(session, shell::Msg(message::CodeMotCleNonAutorise)), NoMotCle{};
    if (mots.TypeDuSymbole(code))
        return Refuser(session, shell::Msg(message::CodeMotCleDejaPris)), NoMotCle{};
    if (!AccepterLibelle(session, {}, saisie)) return {};
    const NoMotCle place = PlaceLibre(session);
    if (!place) return Refuser(session, shell::Msg(message::MaximumMotsClesAtteint)), NoMotCle{};
    storage::MotCle type{code, Neutre(session, saisie.libelle), saisie.indexe, {}};
    mots.CreerType(place, type);
    MarquerEnTete(session);
    if (saisie.indexe && !Indexer(session, place)) {
        // The keyword stays; without its words it is searched by a scan.
        type.indexe = false;
        mots.CreerType(place, type);
    }
    return place;
}

bool ModifierMotCle(shell::Session& session, NoMotCle mot, const SaisieMotCle& saisie) {
    storage::MotsCles& mots = session.base->motsCles;
    const storage::MotCle avant = mots.LibelleType(mot);
    if (avant.libelle.empty()) return false;
    const bool memeCode = saisie.code.size() == 1 && saisie.code[0] == avant.symbole;
    const char code = memeCode ? avant.symbole : CodeDe(saisie.code);
    if (code == ' ') return Refuser(session, shell::Msg(message::CodeMotCleNonAutorise));
    if (!AccepterLibelle(session, mot, saisie)) return false;
    if (const NoMotCle autre = mots.TypeDuSymbole(code); autre && autre != mot)
        return Refuser(session, shell::Msg(message::CodePrisParAutreMotCle));
    const std::string libelle = Neutre(session, saisie.libelle);
    const std::string montre = shell::LibelleDeTag(session.catalogue, avant.libelle);
    if (code != avant.symbole && EstMarqueurFixe(avant.symbole))
        return Refuser(session, shell::Msg(message::MotCleReserve, montre));
    const bool orphelines = code != avant.symbole || libelle != avant.libelle;
    if (orphelines && !EstMarqueurFixe(avant.symbole) &&
        !session.dialogue.Confirmer({.texte = shell::Msg(message::ConfirmerChangerMotCle, montre),
                                     .defaut = shell::Reponse::Non,
                                     .grave = true}))
        return false;
    // A list of the words of another code would be wrong: it is built anew.
    const bool garde = avant.indexe && saisie.indexe && code == avant.symbole;
    if (!orphelines && saisie.indexe == avant.indexe) return true;
    mots.CreerType(mot, {code, libelle, saisie.indexe, garde ? avant.mots : Position{}});
    RenommerSymbole(session, avant.symbole, code);
    MarquerEnTete(session);
    if (!saisie.indexe || garde || Indexer(session, mot)) return true;
    mots.CreerType(mot, avant);
    RenommerSymbole(session, code, avant.symbole);
    return false;
}

bool SupprimerMotCle(shell::Session& session, NoMotCle mot) {
    const storage::MotCle type = session.base->motsCles.LibelleType(mot);
    if (type.libelle.empty()) return false;
    const std::string libelle = shell::LibelleDeTag(session.catalogue, type.libelle);
    if (EstMarqueurFixe(type.symbole))
        return Refuser(session, shell::Msg(message::MotCleReserve, libelle));
    if (!session.dialogue.Confirmer(
            {.texte = shell::Msg(message::ConfirmerSupprimerMotCle, libelle),
             .titre = shell::Msg(message::TitreSuppression),
             .defaut = shell::Reponse::Non,
             .grave = true}))
        return false;
    session.base->motsCles.EffacerType(mot);
    for (const TableLignes table : {TableLignes::Individu, TableLignes::Mariage})
        RetirerSymbole(TableDe(session, table), type.symbole);
    MarquerEnTete(session);
    return true;
}

NoMotCle DeplacerMotCle(shell::Session& session, NoMotCle mot, int sens) {
    const std::vector<LigneMotCle> lignes = ListerMotsCles(session);
    const auto ici = std::ranges::find(lignes, mot, &LigneMotCle::mot);
    if (ici == lignes.end() || (sens < 0 && ici == lignes.begin()) ||
        (sens > 0 && ici + 1 == lignes.end()))
        return {};
    const NoMotCle autre = (sens < 0 ? ici - 1 : ici + 1)->mot;
    std::vector<NoMotCle> ordre;
    for (NoMotCle k{1}; k.valeur <= session.base->motsCles.Nombre(); ++k.valeur)
        ordre.push_back(k == mot ? autre : k == autre ? mot : k);
    session.base->motsCles.Reordonner(ordre);
    return autre;
}

std::vector<LigneFiche> ListerLignes(shell::Session& session, TableLignes table) {
    std::vector<LigneFiche> lignes;
    const storage::Slots& slots = TableDe(session, table);
    for (std::size_t i = 0; i < storage::NbSlots(slots); ++i) {
        const NoMotCle mot = session.base->motsCles.TypeDuSymbole(slots[i].symbole);
        lignes.push_back({mot,
                          shell::LibelleDeTag(session.catalogue,
                                              session.base->motsCles.LibelleType(mot).libelle),
                          slots[i].drapeau == '1'});
    }
    return lignes;
}

bool AjouterLigne(shell::Session& session, TableLignes table, NoMotCle mot, bool datee) {
    const storage::MotCle type = session.base->motsCles.LibelleType(mot);
    storage::Slots& slots = TableDe(session, table);
    const std::size_t nombre = storage::NbSlots(slots);
    if (type.libelle.empty() || EstMarqueurFixe(type.symbole) || nombre >= slots.size() ||
        std::ranges::find(slots, type.symbole, &storage::Slot::symbole) != slots.end())
        return false;
    slots[nombre] = {type.symbole, datee ? '1' : ' '};
    MarquerEnTete(session);
    return true;
}

bool RetirerLigne(shell::Session& session, TableLignes table, std::size_t rang) {
    storage::Slots& slots = TableDe(session, table);
    if (rang >= storage::NbSlots(slots)) return false;
    RetirerSymbole(slots, slots[rang].symbole);
    MarquerEnTete(session);
    return true;
}

bool DeplacerLigne(shell::Session& session, TableLignes table, std::size_t rang, int sens) {
    storage::Slots& slots = TableDe(session, table);
    const std::size_t nombre = storage::NbSlots(slots);
    if (rang >= nombre || (sens < 0 && rang == 0) || (sens > 0 && rang + 1 >= nombre)) return false;
    std::swap(slots[rang], slots[sens < 0 ? rang - 1 : rang + 1]);
    MarquerEnTete(session);
    return true;
}

}  // namespace dorvane::records
