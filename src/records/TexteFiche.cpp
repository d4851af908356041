// Text of a person: "|Key ¶First.names $Birth.place ~Death.place", then on a line each the filled
// slots, "TAG 12/3/1850 $Place.name", then the note. Text of a union: "12/3 @Place", the same
// behind it.
#include "records/TexteFiche.h"

#include "storage/Base.h"
#include "values/Annees.h"
#include "values/Comparaison.h"
#include "values/Dates.h"
#include "values/Marqueurs.h"
#include "values/MotsDates.h"
#include "values/Noms.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <optional>

namespace dorvane::records {

namespace {

constexpr std::string_view Retour = "\r\n";
constexpr std::size_t TailleAnnee = 4;

/// A field of one line: trimmed, and a line end that came in by other ways than the keyboard is a
/// blank.
std::string UneLigne(std::string_view champ) {
    std::string ligne{champ};
    std::replace_if(
        ligne.begin(), ligne.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; },
        ' ');
    return std::string{SansBlancs(ligne)};
}

/// `texte` without the bytes of `marques`: a place is looked for behind the first such mark of the
/// whole text.
std::string SansMarques(std::string texte, std::string_view marques) {
    for (char& c : texte)
        if (marques.find(c) != std::string_view::npos) c = '-';
    return texte;
}

/// The note with each line ended by "\r\n", whatever its lines came with.
std::string LignesEntieres(std::string_view note) {
    std::string entieres;
    entieres.reserve(note.size());
    for (std::size_t i = 0; i < note.size(); ++i) {
        if (note[i] == '\r' && i + 1 < note.size() && note[i + 1] == '\n') continue;
        if (note[i] == '\n' || note[i] == '\r')
            entieres += Retour;
        else
            entieres += note[i];
    }
    return entieres;
}

/// What a day-month field stores. A field that shows what `stocke` shows was not touched: the text
/// shown may be shorter than the stored one ("ABT 12 MAY" shows as "mai"), which must not be lost
/// by a change of something else.
std::string GarderJourMois(const shell::Session& session, std::string_view champ,
                           std::string_view stocke) {
    if (MontrerJourMois(session, stocke) == UneLigne(champ))
        return storage::SansSeparateur(SansBlancs(stocke));
    return SaisirJourMois(session, champ);
}

/// The date of a slot line with the blank in front of it; empty when there is none.
std::string DateDeLigne(const shell::Session& session, const storage::ValeurSlot& valeur,
                        std::string_view stocke, char symbole) {
    const std::string annee = UneLigne(valeur.annee).substr(0, TailleAnnee);
    std::string jourMois = GarderJourMois(session, valeur.jourMois, stocke);
    // A sign of punctuation in the date would end it there; letters and digits belong to dates.
    if (!EstChiffre(symbole) && EnMajuscule(symbole) == EnMinuscule(symbole) && symbole != '/')
        jourMois = SansMarques(std::move(jourMois), {&symbole, 1});
    if (jourMois.empty()) {
        if (annee.empty()) return {};
        return std::string(1 + TailleAnnee - annee.size(), ' ') + annee;
    }
    if (EstChiffre(jourMois[0])) return ' ' + DateDeMotCle(jourMois, annee, session.Ordre());
    return ' ' + jourMois + std::string(1 + TailleAnnee - annee.size(), ' ') + annee;
}

/// `ancien`: the text that the record holds now.
void AjouterSlots(std::string& texte, const shell::Session& session, const RangeesSlots& rangees,
                  const storage::DefinitionSlots& definition, std::string_view ancien) {
    const storage::TableSlots stockes = storage::DecouperTexte(ancien, definition).slots;
    for (std::size_t k = 0; k < storage::NbSlots(definition.slots); ++k) {
        const char symbole = definition.slots[k].symbole;
        const std::string date = DateDeLigne(
            session, rangees[k], k < stockes.size() ? stockes[k].jourMois : "", symbole);
        const std::string lieu = UneLigne(rangees[k].lieu);
        // Without a label the line would come back as a line of the note.
        if (definition.libelles[k].empty() || (date.empty() && lieu.empty())) continue;
        texte.append(Retour).append(definition.libelles[k]).append(date);
        if (!lieu.empty()) texte.append(1, ' ').append(1, symbole).append(BlancsEnPoints(lieu));
    }
}

void AjouterNote(std::string& texte, std::string_view note) {
    if (!note.empty()) texte.append(Retour).append(LignesEntieres(note));
}

std::string CleDePrenom(const storage::Base& base, std::string_view prenom) {
    return base.entete.OptPrenomUnique ? std::string{SansBlancs(prenom)} : BlancsEnPoints(prenom);
}

/// The number that a year stands for; nothing when it does not sort as one.
std::optional<int> NombreAnnee(std::string_view annee) {
    annee = SansBlancs(annee);
    if (annee.empty() || annee.size() > TailleAnnee) return std::nullopt;
    const bool avant = annee[0] == '-';
    int nombre = 0;
    const std::string_view chiffres = annee.substr(avant ? 1 : 0);
    if (chiffres.empty() || !std::all_of(chiffres.begin(), chiffres.end(), EstChiffre))
        return std::nullopt;
    for (const char c : chiffres)
        nombre = nombre * 10 + (c - '0');
    return avant ? -nombre : nombre;
}

/// Whether a stored day-month text begins with one of the words that dates are made of.
bool PorteMotDeDate(std::string_view stocke) {
    constexpr std::string_view Mots[] = {"ABT", "AFT", "BEF", "BET", "AND", "EST", "CAL"};
    return std::any_of(std::begin(Mots), std::end(Mots),
                       [stocke](std::string_view mot) { return stocke.starts_with(mot); });
}

/// The marks of a line of a person: none may stand inside one of its names.
constexpr char MarquesLigne[] = {marqueur::Nom, marqueur::Prenom, marqueur::LieuNaissance,
                                 marqueur::LieuDeces};
constexpr std::string_view MarquesDuNom{MarquesLigne, sizeof MarquesLigne};

/// A word behind its mark, parted from what stands before; nothing for no word.
void AjouterMarque(std::string& texte, char marque, std::string_view mot) {
    if (!mot.empty()) texte.append(1, ' ').append(1, marque).append(mot);
}

}  // namespace

std::string ComposerTexteIndividu(shell::Session& session, const SaisieFiche& saisie) {
    storage::Base& base = *session.base;
    const std::string nom = UneLigne(saisie.nom);
    const std::string cle = CleNom(nom.substr(0, nom.find(';')), session.Regles());
    const std::string prenom = CleDePrenom(base, UneLigne(saisie.prenom));
    const std::string naissance = BlancsEnPoints(UneLigne(saisie.lieuNaissance));
    const std::string deces = BlancsEnPoints(UneLigne(saisie.lieuDeces));
    std::string texte;
    if (!cle.empty()) texte.append(1, marqueur::Nom).append(SansMarques(cle, MarquesDuNom));
    AjouterMarque(texte, marqueur::Prenom, SansMarques(prenom, MarquesDuNom));
    AjouterMarque(texte, marqueur::LieuNaissance,
                  SansMarques(naissance, {&marqueur::LieuDeces, 1}));
    AjouterMarque(texte, marqueur::LieuDeces, SansMarques(deces, {&marqueur::LieuNaissance, 1}));
    AjouterSlots(texte, session, saisie.slots, base.DefinitionIndividu(),
                 base.R_TEXTE.LireTexte(saisie.individu));
    AjouterNote(texte, saisie.note);
    return storage::SansDiese(texte);
}

std::string ComposerTexteMariage(shell::Session& session, const SaisieUnion& saisie) {
    storage::Base& base = *session.base;
    std::string texte = SansMarques(
        GarderJourMois(session, saisie.jourMois, storage::DateMariageBrute(base, saisie.mariage)),
        {&marqueur::LieuMariage, 1});
    const std::string lieu = BlancsEnPoints(UneLigne(saisie.lieu));
    AjouterMarque(texte, marqueur::LieuMariage, lieu);
    AjouterSlots(texte, session, saisie.slots, base.DefinitionMariage(),
                 base.R_TXTMAR.LireTexte(saisie.mariage));
    AjouterNote(texte, saisie.note);
    return storage::SansDiese(texte);
}

std::string ComposerLigneNom(shell::Session& session, const SaisieFiche& saisie) {
    const storage::LigneNom lue = session.base->R_NOM.LireNom(saisie.individu);
    std::string ligne = UneLigne(saisie.nom);
    ligne.append(";").append(UneLigne(saisie.prenom));
    ligne.append(";").append(UneLigne(saisie.autrePrenom));
    const std::string naissance =
        GarderJourMois(session, saisie.jourMoisNaissance, lue.jourMoisNaissance);
    const std::string deces = GarderJourMois(session, saisie.jourMoisDeces, lue.jourMoisDeces);
    if (!naissance.empty() || !deces.empty())
        ligne.append(";").append(naissance).append(";").append(deces);
    return storage::SansDiese(ligne);
}

void RepartirNoms(SaisieFiche& saisie) {
    const auto deverser = [](std::string& de, std::string& vers) {
        const std::size_t place = de.find(';');
        if (place == std::string::npos) return;
        const std::string reste = de.substr(place + 1);
        de.erase(place);
        vers = vers.empty() ? reste : reste + ';' + vers;
    };
    deverser(saisie.nom, saisie.prenom);
    deverser(saisie.prenom, saisie.autrePrenom);
}

std::string SaisirJourMois(const shell::Session& session, std::string_view saisie) {
    return storage::SansSeparateur(
        SansBlancs(CvtSaisieDate(UneLigne(saisie), session.Ordre(), session.Mots())));
}

std::string MontrerJourMois(const shell::Session& session, std::string_view jourMois) {
    return std::string{SansBlancs(CvtDateAffichage(SansBlancs(jourMois), session.Mots()))};
}

std::string JourDeLaSemaine(const shell::Session& session, std::string_view jourMois,
                            std::string_view annee) {
    const std::string date =
        std::string{SansBlancs(jourMois)}.append(1, ' ').append(SansBlancs(annee));
    return std::string{SansBlancs(NomJourSemaine(date, session.Ordre(), session.Mots()))};
}

std::string AppliquerCasse(const shell::Session& session, std::string_view texte, Casse casse) {
    const shell::ReglagesBase& reglages = session.parametres.base;
    const std::string& option = casse == Casse::Nom      ? reglages.conversionNom
                                : casse == Casse::Prenom ? reglages.conversionPrenom
                                                         : reglages.conversionLieu;
    if (option == "1") return EnMajuscules(texte);
    if (option != "2") return std::string{texte};
    return CapitaliseNom(texte,
                         casse == Casse::Nom      ? "N"
                         : casse == Casse::Prenom ? "P"
                                                  : "",
                         session.Regles());
}

AvisDate AviserDate(const shell::Session& session, std::string_view jourMois,
                    std::string_view annee, std::string_view naissance, std::string_view deces) {
    constexpr int VieLongue = 120;
    const std::string stocke = SaisirJourMois(session, jourMois);
    annee = SansBlancs(annee);
    const std::optional<int> an = NombreAnnee(annee);
    if (!annee.empty() && !an) return AvisDate::AnneeIllisible;
    if (!stocke.empty() && !PorteMotDeDate(stocke)) {
        // 2000 is a leap year: a 29 February without a year is no mistake.
        const std::string_view essai = annee.size() > 2 ? annee : std::string_view{"2000"};
        const bool mois = LireDate(JoindreAnnee("1/" + stocke, essai, OrdreDate::JourMoisAnnee),
                                   OrdreDate::JourMoisAnnee)
                              .has_value();
        if (!mois && !LireDate(JoindreAnnee(stocke, essai, session.Ordre()), session.Ordre()))
            return AvisDate::DateIllisible;
    }
    if (!stocke.empty() && annee.empty()) return AvisDate::AnneeManque;
    if (!an) return AvisDate::Bon;
    const std::optional<int> debut = NombreAnnee(naissance);
    const std::optional<int> fin = NombreAnnee(deces);
    if (debut && *an < *debut) return AvisDate::AvantNaissance;
    if (fin && *an > *fin) return AvisDate::ApresDeces;
    if (debut && *an - *debut > VieLongue) return AvisDate::VieTropLongue;
    return AvisDate::Bon;
}

}  // namespace dorvane::records
