#include "interchange/gedcom/FicheGedcom.h"

#include "interchange/gedcom/NomGedcom.h"
#include "messages/Messages.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <iterator>
#include <utility>

namespace dorvane::interchange {
namespace {

/// By the digit of a QUAY line.
constexpr std::array<NoMessage, 4> Fiabilites{message::FiabiliteNulle, message::FiabiliteDouteuse,
                                              message::FiabiliteSourceSecondaire,
                                              message::FiabiliteSourceOriginale};

/// Joins two pieces by a blank when both are there.
void Joindre(std::string& texte, std::string_view suite, std::string_view separateur = " ") {
    if (!texte.empty() && !suite.empty()) texte += separateur;
    texte += suite;
}

}  // namespace

void FicheGedcom::Commencer() {
    for (Principal& p : principaux_)
        p = {};
    notes_.clear();
    slots_.Vider();
    structure_ = Structure::Aucune;
    nu_ = {};
    aSlot_ = false;
    courant_ = nullptr;
    niveauEcarte_ = 0;
}

void FicheGedcom::OuvrirStructure(Structure structure, std::string_view libelle) {
    structure_ = structure;
    libelle_ = contexte_.textes.Libelle(libelle);
    courant_ = nullptr;
}

void FicheGedcom::FermerStructure() {
    niveauEcarte_ = 0;
    courant_ = nullptr;
    NoterFaitNu();
    const Structure fermee = structure_;
    structure_ = Structure::Aucune;
    if (fermee != Structure::Autre) return;
    std::string contenu = dateAutre_.jourMois;
    Joindre(contenu, dateAutre_.annee, contenu.find('/') == std::string::npos ? " " : "/");
    Joindre(contenu, lieuAutre_, ", ");
    Joindre(contenu, valeurAutre_, ", ");
    notes_.append("\r\n").append(libelle_);
    if (!contenu.empty()) notes_.append(": ").append(contenu);
    notes_ += notesAutre_;
}

void FicheGedcom::OuvrirPrincipal(Rang rang, const LigneGedcom& ligne) {
    Principal& principal = principaux_[static_cast<std::size_t>(rang)];
    if (principal.vu) {
        OuvrirAutre(ligne);
        return;
    }
    principal.vu = true;
    principal_ = rang;
    OuvrirStructure(Structure::Principal, ligne.etiquette);
    GarderValeur(ligne);
}

// "Y" only says that the event took place. Other words are no place and no date: they follow the
// label of the event in the note.
void FicheGedcom::GarderValeur(const LigneGedcom& ligne) {
    if (!ligne.valeur.empty() && ligne.valeur != "Y") AjouterApresLibelle(ligne.valeur);
    if (ligne.valeur != "Y") return;
    const std::string record{contexte_.pile.Etiquette(0)};
    nu_ = {ligne.numero, record + '.' + std::string{ligne.etiquette}, notes_.size()};
}

// That an event took place, without a date, a place or a word, is nothing that a sheet can hold. A
// union is there all the same.
void FicheGedcom::NoterFaitNu() {
    const FaitNu fait = std::exchange(nu_, {});
    if (fait.ligne == 0 || fait.chemin == "FAM.MARR" || notes_.size() != fait.notes) return;
    if (structure_ == Structure::Principal) {
        const Principal& p = principaux_[static_cast<std::size_t>(principal_)];
        if (!p.date.EstVide() || !p.lieu.empty()) return;
    } else {
        const SlotsImport::Valeur& v = slots_.At(slot_);
        if (!v.date.EstVide() || !v.valeur.empty()) return;
    }
    contexte_.rapport.Noter(Constat::NonRepris, fait.chemin, fait.ligne);
}

void FicheGedcom::OuvrirSlot(const LigneGedcom& ligne, std::string_view etiquette,
                             std::string_view libelle, bool evenement) {
    const std::size_t rang = slots_.Trouver(etiquette, libelle, evenement);
    if (rang == SlotsImport::Aucun) {
        Ecarter(ligne, Constat::SansPlace);
        return;
    }
    SlotsImport::Valeur& valeur = slots_.At(rang);
    if (valeur.utilise) {
        OuvrirAutre(ligne);
        return;
    }
    valeur.utilise = true;
    aSlot_ = true;
    slot_ = rang;
    OuvrirStructure(Structure::Slot, libelle);
    if (evenement) {
        GarderValeur(ligne);
        return;
    }
    valeur.valeur = ligne.valeur;
    courant_ = &valeur.valeur;
    courantTient_ = true;
}

void FicheGedcom::OuvrirAutre(const LigneGedcom& ligne) {
    contexte_.Noter(Constat::DansLaNote, ligne);
    OuvrirStructure(Structure::Autre, ligne.etiquette);
    dateAutre_ = {};
    lieuAutre_.clear();
    notesAutre_.clear();
    valeurAutre_ = ligne.valeur == "Y" ? std::string_view{} : ligne.valeur;
    courant_ = &valeurAutre_;
    courantTient_ = false;
}

void FicheGedcom::AjouterTexte(NoMessage message, std::string_view valeur) {
    std::string& notes = Notes();
    notes += "\r\n";
    if (EnEvenement()) notes.append(libelle_).append(" - ");
    notes.append(contexte_.textes.Message(message)).append(": ").append(valeur);
    courant_ = &notes;
    courantTient_ = false;
}

void FicheGedcom::AjouterNote(std::string_view valeur) {
    std::string& notes = Notes();
    notes.append("\r\n").append(valeur);
    courant_ = &notes;
    courantTient_ = false;
}

void FicheGedcom::AjouterApresLibelle(std::string_view valeur) {
    assert(EnEvenement());
    Notes().append("\r\n").append(libelle_).append(" - ").append(valeur);
    courant_ = &Notes();
    courantTient_ = false;
}

void FicheGedcom::AjouterSuite(std::string_view texte) {
    Notes() += texte;
    courant_ = &Notes();
    courantTient_ = false;
}

void FicheGedcom::Ecarter(const LigneGedcom& ligne, Constat constat) {
    contexte_.Noter(constat, ligne);
    niveauEcarte_ = contexte_.pile.Niveau();
    courant_ = nullptr;
}

bool FicheGedcom::EstEcartee(const LigneGedcom& ligne) {
    if (niveauEcarte_ == 0) return false;
    if (contexte_.pile.Niveau() > niveauEcarte_) {
        contexte_.Noter(Constat::NonRepris, ligne);
        return true;
    }
    niveauEcarte_ = 0;
    return false;
}

void FicheGedcom::Continuer(const LigneGedcom& ligne, bool nouvelleLigne) {
    if (courant_ == nullptr) {
        contexte_.Noter(Constat::NonRepris, ligne);
        return;
    }
    courant_->append(nouvelleLigne && !courantTient_ ? "\r\n" : " ").append(ligne.valeur);
}

bool FicheGedcom::LireDate(const LigneGedcom& ligne) {
    if (contexte_.pile.Parent() == "CHAN"_tag && courant_ != nullptr) {
        courant_->append(ligne.valeur);
        return true;
    }
    if (!SousEvenement()) return false;
    courant_ = nullptr;
    DateLue* date = &dateAutre_;
    if (structure_ == Structure::Principal) {
        date = &principaux_[static_cast<std::size_t>(principal_)].date;
    } else if (structure_ == Structure::Slot) {
        date = &slots_.At(slot_).date;
        slots_.Dater(slot_);
    }
    if (!date->EstVide()) return false;
    *date = LireDateGedcom(ligne.valeur);
    if (OterArobases(date->jourMois)) contexte_.Noter(Constat::Remplace, ligne);
    return true;
}

bool FicheGedcom::LireLieu(const LigneGedcom& ligne) {
    if (!SousEvenement()) return false;
    courantTient_ = true;
    if (structure_ == Structure::Principal) {
        std::string& lieu = principaux_[static_cast<std::size_t>(principal_)].lieu;
        if (!lieu.empty()) return false;
        lieu = ligne.valeur;
        if (OterArobases(lieu)) contexte_.Noter(Constat::Remplace, ligne);
        // These two begin the places of birth and death in the text of a person.
        if (contexte_.pile.Racine() == "INDI"_tag &&
            lieu.find_first_of("$~") != std::string::npos) {
            contexte_.Noter(Constat::Remplace, ligne);
            std::ranges::replace(lieu, marqueur::LieuNaissance, '-');
            std::ranges::replace(lieu, marqueur::LieuDeces, '-');
        }
        courant_ = &lieu;
    } else if (structure_ == Structure::Slot) {
        std::string& valeur = slots_.At(slot_).valeur;
        // The place stands before what is there.
        std::string lieu{ligne.valeur};
        if (OterArobases(lieu)) contexte_.Noter(Constat::Remplace, ligne);
        Joindre(lieu, valeur);
        valeur = std::move(lieu);
        courant_ = &valeur;
    } else {
        lieuAutre_ = ligne.valeur;
        courant_ = &lieuAutre_;
    }
    return true;
}

bool FicheGedcom::LireHeure(const LigneGedcom& ligne) {
    if (contexte_.pile.Parent() != "DATE"_tag) return false;
    if (EnEvenement()) Notes().append("\r\n").append(libelle_);
    AjouterSuite(" - ");
    AjouterSuite(ligne.valeur);
    return true;
}

bool FicheGedcom::LireType(const LigneGedcom& ligne) {
    if (!SousEvenement()) return false;
    if (structure_ == Structure::Autre && contexte_.pile.Parent() == "EVEN"_tag) {
        libelle_ = contexte_.textes.Libelle(contexte_.textes.Tag(ligne.valeur));
        courant_ = &libelle_;
        courantTient_ = true;
        return true;
    }
    AjouterApresLibelle(ligne.valeur);
    return true;
}

bool FicheGedcom::AjouterAuSlot(const LigneGedcom& ligne, std::string_view etiquette) {
    const std::size_t rang = slots_.Trouver(etiquette, etiquette, false);
    if (rang == SlotsImport::Aucun) {
        Ecarter(ligne, Constat::SansPlace);
        return false;
    }
    SlotsImport::Valeur& valeur = slots_.At(rang);
    valeur.utilise = true;
    aSlot_ = true;
    Joindre(valeur.valeur, ligne.valeur, " - ");
    courant_ = &valeur.valeur;
    courantTient_ = true;
    return true;
}

bool FicheGedcom::LireAdresse(const LigneGedcom& ligne) {
    if (EnEvenement()) {
        if (!ligne.valeur.empty()) AjouterAuSlot(ligne, "ADDR");
        return true;
    }
    // The parts of an address of level 1 follow it on its line.
    if (contexte_.pile.Parent() != "ADDR"_tag || courant_ == nullptr) return false;
    const bool vide = courant_->ends_with(": ");
    courant_->append(vide ? "" : ", ").append(ligne.valeur);
    return true;
}

bool FicheGedcom::LireAdoption(const LigneGedcom& ligne) {
    const NoMessage qui = ligne.valeur == "HUSB"   ? message::TagFATH
                          : ligne.valeur == "WIFE" ? message::TagMOTH
                          : ligne.valeur == "BOTH" ? message::PereEtMere
                                                   : NoMessage{};
    if (!qui) return false;
    AjouterTexte(message::TagADOP, contexte_.textes.Message(qui));
    return true;
}

bool FicheGedcom::LireCitation(const LigneGedcom& ligne) {
    if (contexte_.pile.Parent() != "SOUR"_tag) return false;
    if (ligne.code == "QUAY"_tag) {
        const bool connue =
            ligne.valeur.size() == 1 && ligne.valeur[0] >= '0' && ligne.valeur[0] <= '3';
        AjouterTexte(message::Fiabilite,
                     connue ? std::string_view{contexte_.textes.Message(
                                  Fiabilites[static_cast<std::size_t>(ligne.valeur[0] - '0')])}
                            : ligne.valeur);
        return true;
    }
    AjouterSuite(" ");
    AjouterSuite(contexte_.textes.Message(message::MotPage));
    AjouterSuite(" - ");
    AjouterSuite(ligne.valeur);
    return true;
}

bool FicheGedcom::LireCorpsDeSource(const LigneGedcom& ligne) {
    const CodeEtiquette parent = contexte_.pile.Parent();
    if (ligne.code == "TEXT"_tag) {
        if (parent != "SOUR"_tag && parent != "DATA"_tag) return false;
        AjouterTexte(message::Source, ligne.valeur);
        return true;
    }
    if (parent != "SOUR"_tag) return false;
    Ignorer();
    if (!ligne.valeur.empty()) contexte_.Noter(Constat::NonRepris, ligne);
    return true;
}

/// Lines whose value goes to the note behind a label.
bool FicheGedcom::LireTexteLibelle(const LigneGedcom& ligne) {
    static constexpr std::pair<CodeEtiquette, NoMessage> Libelles[] = {
        {"AGNC"_tag, message::Autorite},     {"CAUS"_tag, message::Cause},
        {"CHAN"_tag, message::Modification}, {"GODP"_tag, message::ParrainEtMarraine},
        {"TEMP"_tag, message::Temple},       {"AUTH"_tag, message::TagAUTH},
        {"CORP"_tag, message::Organisme},    {"PUBL"_tag, message::TagPUBL},
        {"NAME"_tag, message::NomCite},      {"REFN"_tag, message::Document},
    };
    const auto* const libelle =
        std::ranges::find(Libelles, ligne.code, &std::pair<CodeEtiquette, NoMessage>::first);
    if (libelle == std::end(Libelles)) return false;
    AjouterTexte(libelle->second, ligne.valeur);
    return true;
}

bool FicheGedcom::LireSousLigne(const LigneGedcom& ligne) {
    switch (ligne.code) {
        case "CONT"_tag:
            Continuer(ligne, true);
            return true;
        case "CONC"_tag:
            Continuer(ligne, false);
            return true;
        case "DATE"_tag:
            return LireDate(ligne);
        case "PLAC"_tag:
            return LireLieu(ligne);
        case "TIME"_tag:
            return LireHeure(ligne);
        case "TYPE"_tag:
            return LireType(ligne);
        case "CEME"_tag:
            return EnEvenement() && (AjouterAuSlot(ligne, "BURP"), true);
        case "ADDR"_tag:
        case "ADR1"_tag:
        case "ADR2"_tag:
        case "CITY"_tag:
        case "STAE"_tag:
        case "POST"_tag:
        case "CTRY"_tag:
        case "PHON"_tag:
            return LireAdresse(ligne);
        case "ADOP"_tag:
            return LireAdoption(ligne);
        case "QUAY"_tag:
        case "PAGE"_tag:
            return LireCitation(ligne);
        case "EVEN"_tag:
        case "DATA"_tag:
        case "TEXT"_tag:
            return LireCorpsDeSource(ligne);
        default:
            return LireTexteLibelle(ligne);
    }
}

void FicheGedcom::ComposerSuite(std::string& texte) const {
    slots_.Composer(texte);
    std::string_view notes = notes_;
    while (notes.starts_with("\r\n"))
        notes.remove_prefix(2);
    texte += notes;
}

std::string TraduireAge(std::string_view age, TextesImport& textes) {
    if (age == "CHILD") return textes.Message(message::TagCHIL);
    if (age == "INFANT") return textes.Message(message::AgeNourrisson);
    if (age == "STILLBORN") return textes.Message(message::AgeMortNe);
    std::string traduit;
    for (const char c : age) {
        if (c == 'y')
            traduit += textes.Message(message::AgeAns);
        else if (c == 'm')
            traduit += textes.Message(message::AgeMois);
        else if (c == 'd')
            traduit += textes.Message(message::AgeJours);
        else
            traduit += c;
    }
    return traduit;
}

}  // namespace dorvane::interchange
