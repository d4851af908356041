// Record: Num4 position of the note, title, byte 0, file name, byte 255 and type if any, "#".
// Note: text, "#".
#include "storage/Documents.h"

#include "storage/Textes.h"
#include "values/Octets.h"

#include <algorithm>

namespace dorvane::storage {
namespace {

constexpr std::size_t MaxEcrit = 32000;  // a longer text would read as damaged
constexpr std::size_t MaxFiche = 32028;  // where readers by pieces of 104 give up, less the head
constexpr std::size_t MaxNote = 32050;   // the same by pieces of 50
constexpr std::uint32_t TailleTete = 4;
constexpr char Separateur = '\xFF';
constexpr std::string_view Retour = "\r\n";

std::string SansOctet(std::string_view champ, char octet, char remplace) {
    std::string propre = SansDiese(champ);
    std::replace(propre.begin(), propre.end(), octet, remplace);
    return propre;
}

std::string SansRetours(std::string_view note) {
    while (note.starts_with(Retour))
        note.remove_prefix(Retour.size());
    while (note.ends_with(Retour))
        note.remove_suffix(Retour.size());
    return std::string{note};
}

Document Decouper(std::string_view texte) {
    Document document;
    const std::size_t finTitre = texte.find('\0');
    document.titre = texte.substr(0, finTitre);
    if (finTitre == std::string_view::npos) return document;
    texte.remove_prefix(finTitre + 1);
    const std::size_t finNom = texte.find(Separateur);
    document.fichier = texte.substr(0, finNom);
    if (finNom != std::string_view::npos) document.type = texte.substr(finNom + 1);
    return document;
}

}  // namespace

const Document& Documents::LireDoc(NoDocument d) {
    if (d && d == noMemo_) return memo_;
    memo_ = {};
    noMemo_ = d;
    const Position position = LireCellule(d);
    if (!position) return memo_;
    std::string tete(TailleTete, '\0');
    volume_.Lire(position, tete);
    // Behind the head: the position of the note may hold the byte of "#".
    bool fini = false;
    bool noteFinie = true;
    const std::string texte =
        volume_.LireTexte(Position{position.valeur + TailleTete}, MaxFiche, &fini);
    std::string note;
    if (const Position ou{Chaine4VersNum(tete)}; fini && ou)
        note = volume_.LireTexte(ou, MaxNote, &noteFinie);
    if (!fini || !noteFinie) {
        marques_.Signaler(Incident::DocumentAbime, d.valeur);
        return memo_;
    }
    memo_ = Decouper(texte);
    memo_.note = SansRetours(note);
    return memo_;
}

Position Documents::PositionNote(NoDocument d) {
    std::string tete(TailleTete, '\0');
    volume_.Lire(LireCellule(d), tete);
    return Position{Chaine4VersNum(tete)};
}

void Documents::EcrireDoc(NoDocument d, const Document& document) {
    if (!d) return;
    const std::string note = SansDiese(document.note).substr(0, MaxEcrit);
    // A note that is the same stays where it is.
    const bool garde = !note.empty() && SansRetours(note) == LireDoc(d).note;
    const Position posNote = garde          ? PositionNote(d)
                             : note.empty() ? Position{}
                                            : volume_.Ajouter(note, "#");
    std::string fiche = NumVersChaine4(posNote.valeur);
    fiche += SansOctet(document.titre, '\0', ' ') + '\0';
    fiche += SansOctet(document.fichier, Separateur, 'y');
    if (!document.type.empty()) fiche += Separateur + SansDiese(document.type);
    EcrireCellule(d, volume_.Ajouter(std::string_view{fiche}.substr(0, MaxEcrit), "#"));
    noMemo_ = {};
}

void Documents::EffacerDoc(NoDocument d) {
    EcrireCellule(d, {});
    noMemo_ = {};
}

void Documents::InitColonne() {
    Colonne::InitColonne();
    noMemo_ = {};
}

}  // namespace dorvane::storage
