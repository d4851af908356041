#include "interchange/gedcom/LecteurAnnexes.h"

#include "interchange/gedcom/DatesGedcom.h"
#include "interchange/gedcom/NomGedcom.h"
#include "interchange/gedcom/TitreDocument.h"
#include "messages/Messages.h"
#include "storage/Textes.h"
#include "values/Comparaison.h"
#include "values/Dates.h"
#include "values/SortesEvenement.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

constexpr std::size_t MaxLignesAdresse = 7;

void AjouterLigne(std::string& texte, std::string_view ligne) {
    if (!texte.empty()) texte += "\r\n";
    texte += ligne;
}

/// Texts of records hold no "#", and fields are parted by bytes 0 and 255.
std::string Champ(std::string_view texte) {
    std::string champ = storage::SansDiese(texte);
    std::ranges::replace(champ, '\0', ' ');
    std::ranges::replace(champ, '\xFF', 'y');
    return champ;
}

}  // namespace

void LecteurAnnexes::Commencer(const LigneGedcom& ligne, std::uint32_t numero) {
    genre_ = ligne.code;
    cle_ = ligne.cle;
    numero_ = numero;
    evenement_ = {};
    document_ = {};
    courant_ = nullptr;
    adresse_.clear();
    lignesAdresse_ = 0;
    niveauEcarte_ = 0;
    deposantRetenu_ = genre_ == "SUBM"_tag && entete_.auteur.empty() && entete_.adresse.empty() &&
                      (entete_.cleDeposant.empty() || entete_.cleDeposant == cle_);
    if (genre_ == "NOTE"_tag || genre_ == "TITL"_tag) {
        document_.note = ligne.valeur;
        Suivre(document_.note);
    }
}

void LecteurAnnexes::Ecarter(const LigneGedcom& ligne) {
    contexte_.Noter(Constat::NonRepris, ligne);
    niveauEcarte_ = contexte_.pile.Niveau();
    courant_ = nullptr;
}

void LecteurAnnexes::Lire(const LigneGedcom& ligne) {
    const CodeEtiquette code = ligne.code;
    const std::size_t niveau = contexte_.pile.Niveau();
    if (niveauEcarte_ != 0 && niveau > niveauEcarte_) {
        if (genre_ != "HEAD"_tag) contexte_.Noter(Constat::NonRepris, ligne);
        return;
    }
    niveauEcarte_ = 0;
    if ((code == "CONT"_tag || code == "CONC"_tag) && courant_ != nullptr) {
        if (courant_ == &adresse_ && code == "CONT"_tag) {
            AjouterAdresse(ligne);
            return;
        }
        courant_->append(code == "CONT"_tag ? "\r\n" : " ").append(ligne.valeur);
        return;
    }
    courant_ = nullptr;
    switch (genre_) {
        case "HEAD"_tag:
            // The header speaks of the program that wrote the file; the report does not list it.
            if (!LireEnTete(ligne)) niveauEcarte_ = niveau;
            return;
        case "SUBM"_tag:
            if (!LireDeposant(ligne)) Ecarter(ligne);
            return;
        case "SOUR"_tag:
            if (numero_ == 0 || !LireSource(ligne)) Ecarter(ligne);
            return;
        case "NOTE"_tag:
        case "TITL"_tag:
            if (numero_ == 0 || !LireDocument(ligne)) Ecarter(ligne);
            return;
        default:
            Ecarter(ligne);
    }
}

bool LecteurAnnexes::LireEnTete(const LigneGedcom& ligne) {
    if (contexte_.pile.Niveau() != 1) return false;
    switch (ligne.code) {
        case "NOTE"_tag:
            // A reference names a document that is there anyway.
            if (!CleDeReference(ligne.valeur).empty()) return true;
            AjouterLigne(entete_.note, ligne.valeur);
            Suivre(entete_.note);
            return true;
        case "SUBM"_tag:
            entete_.cleDeposant = CleDeReference(ligne.valeur);
            return true;
        default:
            return false;
    }
}

void LecteurAnnexes::AjouterAdresse(const LigneGedcom& ligne) {
    AjouterLigne(adresse_, SansDoubleArobase(ligne.valeur));
    if (++lignesAdresse_ > MaxLignesAdresse) contexte_.Noter(Constat::Limite, ligne);
}

bool LecteurAnnexes::LireDeposant(const LigneGedcom& ligne) {
    if (!deposantRetenu_) return false;
    switch (ligne.code) {
        case "NAME"_tag:
            entete_.auteur = SansDoubleArobase(ligne.valeur);
            std::erase(entete_.auteur, '/');
            return true;
        case "ADDR"_tag:
        case "ADR1"_tag:
        case "ADR2"_tag:
        case "CITY"_tag:
        case "STAE"_tag:
        case "POST"_tag:
        case "CTRY"_tag:
        case "PHON"_tag:
            if (!ligne.valeur.empty()) AjouterAdresse(ligne);
            Suivre(adresse_);
            return true;
        default:
            return false;
    }
}

// "(word)" is the user's own kind; a christening is one kind under its three names.
void LecteurAnnexes::LireTypeDeSource(std::string_view valeur) {
    valeur = SansBlancs(valeur);
    if (valeur.size() >= 2 && valeur.front() == '(' && valeur.back() == ')')
        valeur = SansBlancs(valeur.substr(1, valeur.size() - 2));
    if (valeur == "BAPM" || valeur == "CHRA") valeur = tag::Bapteme;
    evenement_.description.type = contexte_.textes.Tag(valeur);
}

void LecteurAnnexes::LireDateDeSource(const LigneGedcom& ligne) {
    const std::string entiere = DateEntiere(LireDateGedcom(ligne.valeur));
    const auto serie = DateVersSerie(entiere, OrdreDate::JourMoisAnnee);
    if (serie && evenement_.cleDate == storage::CleSansDate) {
        evenement_.cleDate = *serie;
        return;
    }
    // An event has a whole day or none: what is less stands in its note.
    contexte_.Noter(Constat::DansLaNote, ligne);
    AjouterLigne(evenement_.note, ligne.valeur);
}

bool LecteurAnnexes::LireTexte(const LigneGedcom& ligne, std::string& note) {
    const auto ajouter = [&](NoMessage message) {
        AjouterLigne(note, contexte_.textes.Message(message) + ": " + std::string{ligne.valeur});
        Suivre(note);
        return true;
    };
    switch (ligne.code) {
        case "AUTH"_tag:
            return ajouter(message::TagAUTH);
        case "CORP"_tag:
            return ajouter(message::Organisme);
        case "PUBL"_tag:
            return ajouter(message::TagPUBL);
        case "AGNC"_tag:
            return ajouter(message::Autorite);
        case "CAUS"_tag:
            return ajouter(message::Cause);
        case "CHAN"_tag:
            return ajouter(message::Modification);
        case "GODP"_tag:
            return ajouter(message::ParrainEtMarraine);
        case "TEMP"_tag:
            return ajouter(message::Temple);
        case "NAME"_tag:
            return ajouter(message::NomCite);
        case "REFN"_tag:
            return ajouter(message::Document);
        case "DATE"_tag:
            if (contexte_.pile.Parent() != "CHAN"_tag) return false;
            note += ligne.valeur;
            return true;
        case "TIME"_tag:
            if (contexte_.pile.Parent() != "DATE"_tag) return false;
            note.append(" - ").append(ligne.valeur);
            return true;
        default:
            return false;
    }
}

bool LecteurAnnexes::LireNoteDeSource(const LigneGedcom& ligne) {
    if (const std::string_view note = CleDeReference(ligne.valeur); !note.empty()) {
        liens_.AttacherAEvenement(cle_, note, ligne);
        return true;
    }
    AjouterLigne(evenement_.note, ligne.valeur);
    Suivre(evenement_.note);
    return true;
}

bool LecteurAnnexes::LireSource(const LigneGedcom& ligne) {
    switch (ligne.code) {
        case "DATA"_tag:
            return true;
        case "EVEN"_tag:
            LireTypeDeSource(ligne.valeur);
            return true;
        case "DATE"_tag:
            if (contexte_.pile.Parent() == "CHAN"_tag) break;
            LireDateDeSource(ligne);
            return true;
        case "PLAC"_tag:
            evenement_.description.lieu = ligne.valeur;
            Suivre(evenement_.description.lieu);
            return true;
        case "TITL"_tag:
            if (contexte_.pile.Niveau() != 1) return false;
            evenement_.description.libelle = ligne.valeur;
            Suivre(evenement_.description.libelle);
            return true;
        case "NOTE"_tag:
        case "TEXT"_tag:
            return LireNoteDeSource(ligne);
        default:
            break;
    }
    return LireTexte(ligne, evenement_.note);
}

bool LecteurAnnexes::LireDocument(const LigneGedcom& ligne) {
    const CodeEtiquette code = ligne.code;
    if (code == "REFN"_tag && contexte_.pile.Niveau() == 1) {
        if (!ligne.valeur.empty()) document_.fichier = ligne.valeur;
        return true;
    }
    if (code == "TYPE"_tag && contexte_.pile.Parent() == "REFN"_tag) {
        document_.type = ligne.valeur;
        return true;
    }
    return LireTexte(ligne, document_.note);
}

void LecteurAnnexes::Terminer() {
    if (deposantRetenu_) {
        for (std::string_view reste = adresse_; !reste.empty();) {
            const std::size_t fin = std::min(reste.find("\r\n"), reste.size());
            if (entete_.adresse.size() < MaxLignesAdresse)
                entete_.adresse.emplace_back(reste.substr(0, fin));
            reste.remove_prefix(std::min(fin + 2, reste.size()));
        }
        deposantRetenu_ = false;
    }
    if (numero_ == 0) return;
    if (genre_ == "SOUR"_tag) {
        evenement_.note = storage::SansDiese(SansDoubleArobase(evenement_.note));
        storage::DescriptionEvt& d = evenement_.description;
        d = {Champ(SansDoubleArobase(d.lieu)), Champ(SansDoubleArobase(d.libelle)),
             Champ(SansDoubleArobase(d.type))};
        std::ranges::replace(d.lieu, '\n', ' ');
        std::ranges::replace(d.lieu, '\r', ' ');
        liens_.AjouterEvenement(NoEvenement{numero_}, std::move(evenement_));
    } else {
        document_.note = SansDoubleArobase(document_.note);
        document_.titre = Champ(TitreDocument(document_.note));
        document_.fichier = Champ(SansDoubleArobase(document_.fichier));
        document_.type = Champ(SansDoubleArobase(document_.type));
        document_.note = storage::SansDiese(document_.note);
        contexte_.base.R_IMAGE.EcrireDoc(NoDocument{numero_}, document_);
    }
}

}  // namespace dorvane::interchange
