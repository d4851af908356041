// One record: Num4 position, 1000 bytes.
// A seal: Num4 last byte of the commit + 1, then the mark, Num4 number of records behind it, 8
// bytes checksum of these records, Num2 length of the base's file name and the name, zeros.
#include "storage/Journal.h"

#include "values/Octets.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

namespace dorvane::storage {
namespace {

constexpr std::string_view MarqueSceau = "[Dorvane Journal 1]";
constexpr std::size_t FichesParLecture = 256;

/// FNV-1a over 64 bits: it tells torn batches, not forged ones.
class Somme {
public:
    void Ajouter(std::string_view octets) {
        for (const char c : octets)
            valeur_ = (valeur_ ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
    }
    [[nodiscard]] std::string Octets() const {
        return NumVersChaine4(static_cast<std::uint32_t>(valeur_ >> 32U)) +
               NumVersChaine4(static_cast<std::uint32_t>(valeur_ & 0xFFFFFFFFU));
    }

private:
    std::uint64_t valeur_ = 0xCBF29CE484222325ULL;
};

/// No system gives names of more than 255 bytes, nor does a seal.
std::string NomDansLeSceau(const std::filesystem::path& base) {
    return base.filename().native().substr(0, 255);
}

std::string ComposerSceau(std::uint32_t finCommise, std::uint32_t nombre, const Somme& somme,
                          std::string_view base) {
    std::string fiche = NumVersChaine4(finCommise + 1);
    fiche += MarqueSceau;
    fiche += NumVersChaine4(nombre) + somme.Octets();
    fiche += NumVersChaine2(static_cast<std::uint32_t>(base.size()));
    fiche += base;
    fiche.resize(Journal::TailleFiche, '\0');
    return fiche;
}

struct Sceau {
    std::uint32_t finCommise = 0;
    std::uint32_t nombre = 0;
    std::string somme;
    std::string base;
};

std::optional<Sceau> LireSceau(std::string_view fiche) {
    std::string_view reste = fiche.substr(4);
    if (!reste.starts_with(MarqueSceau)) return std::nullopt;
    reste.remove_prefix(MarqueSceau.size());
    constexpr std::size_t AvantNom = 14;
    const std::size_t longueur =
        std::min<std::size_t>(Chaine2VersNum(reste.substr(12, 2)), reste.size() - AvantNom);
    return Sceau{Chaine4VersNum(fiche) - 1, Chaine4VersNum(reste), std::string{reste.substr(4, 8)},
                 std::string{reste.substr(AvantNom, longueur)}};
}

/// Reads whole records by their number, from 0, some hundreds at a time.
class Lecteur {
public:
    explicit Lecteur(Fichier& fichier)
        : fichier_{fichier}, nombre_{fichier.Taille() / Journal::TailleFiche} {
        // Positions of the journal have 4 bytes like all others.
        nombre_ = std::min<std::uint64_t>(nombre_, 0xFFFFFFFFU / Journal::TailleFiche);
    }
    [[nodiscard]] std::uint64_t Nombre() const { return nombre_; }
    [[nodiscard]] std::string_view Fiche(std::uint64_t i) {
        if (i < premiere_ || i >= premiere_ + lues_) {
            lues_ = std::min<std::uint64_t>(FichesParLecture, nombre_ - i);
            premiere_ = i;
            tampon_.resize(lues_ * Journal::TailleFiche);
            fichier_.Lire(Position{static_cast<std::uint32_t>(i * Journal::TailleFiche + 1)},
                          tampon_);
        }
        return std::string_view{tampon_}.substr((i - premiere_) * Journal::TailleFiche,
                                                Journal::TailleFiche);
    }

private:
    Fichier& fichier_;
    std::uint64_t nombre_;
    std::uint64_t premiere_ = 0;
    std::uint64_t lues_ = 0;
    std::string tampon_;
};

bool LotEntier(Lecteur& lecteur, std::uint64_t premiere, const Sceau& sceau) {
    if (sceau.nombre > lecteur.Nombre() - premiere) return false;
    Somme somme;
    for (std::uint64_t i = premiere; i < premiere + sceau.nombre; ++i)
        somme.Ajouter(lecteur.Fiche(i));
    return somme.Octets() == sceau.somme;
}

/// Calls `faire(position, image)` for each image that counts.
template <class Faire>
void PourImages(Fichier& fichier, Faire faire) {
    Lecteur lecteur{fichier};
    const auto donner = [&](std::uint64_t premiere, std::uint64_t nombre) {
        for (std::uint64_t i = premiere; i < premiere + nombre; ++i) {
            const std::string_view fiche = lecteur.Fiche(i);
            faire(Position{Chaine4VersNum(fiche)}, fiche.substr(4));
        }
    };
    if (lecteur.Nombre() == 0) return;
    // A first record of zeros is a page that never reached the disk: the journal was not flushed,
    // so nothing had been overwritten.
    const std::string_view premiere = lecteur.Fiche(0);
    if (std::all_of(premiere.begin(), premiere.end(), [](char c) { return c == '\0'; })) return;
    if (!LireSceau(premiere)) {
        donner(0, lecteur.Nombre());
        return;
    }
    for (std::uint64_t i = 0; i < lecteur.Nombre();) {
        const std::optional<Sceau> sceau = LireSceau(lecteur.Fiche(i));
        if (!sceau || !LotEntier(lecteur, i + 1, *sceau)) return;
        donner(i + 1, sceau->nombre);
        i += 1 + std::uint64_t{sceau->nombre};
    }
}

}  // namespace

Journal::Journal(Disque& disque, const std::filesystem::path& base)
    : disque_{disque}, chemin_{CheminJournal(base)}, nomBase_{NomDansLeSceau(base)} {}

void Journal::Prendre(Fichier& base, Position debut, std::uint32_t longueur) {
    std::string image(TailleImage, '\0');
    for (std::uint32_t fait = 0; fait < longueur; fait += TailleImage) {
        std::uint32_t decalage = fait;
        if (fait + TailleImage > longueur && longueur >= TailleImage)
            decalage = longueur - TailleImage;
        const Position ici{debut.valeur + decalage};
        base.Lire(ici, image);
        lot_ += NumVersChaine4(ici.valeur);
        lot_ += image;
    }
    pris_.insert(debut.valeur);
}

bool Journal::Ecrire(std::uint32_t finCommise) {
    if (lot_.empty()) return true;
    // A journal that stands there now is that of another program.
    if (!fichier_) fichier_ = disque_.Ouvrir(chemin_, ModeOuverture::Neuf);
    if (!fichier_) return false;
    Somme somme;
    somme.Ajouter(lot_);
    const auto nombre = static_cast<std::uint32_t>(lot_.size() / TailleFiche);
    const std::string envoi = ComposerSceau(finCommise, nombre, somme, nomBase_) + lot_;
    const std::uint64_t fin = fin_ + envoi.size();
    if (fin >= 0xFFFFFFFFU) return false;
    fichier_->Ecrire(Position{static_cast<std::uint32_t>(fin_ + 1)}, envoi);
    fichier_->Vider();
    if (fichier_->EnDefaut()) return false;
    // A file whose name a power cut can take away would undo nothing. A system that cannot flush a
    // folder keeps that promise otherwise or not at all.
    if (!nomme_) disque_.ViderDossier(chemin_);
    nomme_ = true;
    fin_ = fin;
    lot_.clear();
    return true;
}

bool Journal::Supprimer() {
    lot_.clear();
    if (fichier_) {
        if (!disque_.Supprimer(chemin_) && disque_.Existe(chemin_)) return false;
        fichier_.reset();
        // The removal has happened, for everybody; a folder that cannot be flushed does not undo
        // it.
        disque_.ViderDossier(chemin_);
    }
    pris_.clear();
    fin_ = 0;
    nomme_ = false;
    return true;
}

std::filesystem::path CheminJournal(const std::filesystem::path& base) {
    constexpr std::size_t TailleExtension = 3;
    std::string chemin = base.string();
    chemin.resize(chemin.size() - std::min(chemin.size(), TailleExtension));
    return {chemin + "LOG"};
}

EtatJournal ExaminerJournal(Disque& disque, const std::filesystem::path& chemin) {
    constexpr std::size_t TailleEnTete = 200;
    EtatJournal etat;
    const std::unique_ptr<Fichier> journal = disque.Ouvrir(chemin, ModeOuverture::LectureSeule);
    if (!journal) return etat;
    if (Lecteur lecteur{*journal}; lecteur.Nombre() != 0) {
        if (const std::optional<Sceau> sceau = LireSceau(lecteur.Fiche(0))) {
            etat.base = sceau->base;
            etat.finCommise = sceau->finCommise;
        }
    }
    PourImages(*journal, [&](Position position, std::string_view image) {
        if (position == Position{1}) etat.enTete = image.substr(0, TailleEnTete);
    });
    etat.lisible = !journal->EnDefaut();
    return etat;
}

bool EstDAutrui(Disque& disque, const EtatJournal& journal, const std::filesystem::path& base) {
    return !journal.base.empty() && journal.base != NomDansLeSceau(base) &&
           disque.Existe(base.parent_path() / journal.base);
}

std::optional<std::uint32_t> RejouerJournal(Disque& disque, const std::filesystem::path& chemin,
                                            Fichier& base) {
    const std::unique_ptr<Fichier> journal = disque.Ouvrir(chemin, ModeOuverture::LectureSeule);
    if (!journal) return std::nullopt;
    const std::uint64_t taille = base.Taille();
    std::uint32_t rejouees = 0;
    PourImages(*journal, [&](Position position, std::string_view image) {
        if (!position || position.valeur > taille) return;
        base.Ecrire(position, image);
        ++rejouees;
    });
    if (journal->EnDefaut()) return std::nullopt;
    return rejouees;
}

}  // namespace dorvane::storage
