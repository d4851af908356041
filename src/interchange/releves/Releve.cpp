#include "interchange/releves/Releve.h"

#include "messages/Releve.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <array>

namespace dorvane::interchange {

namespace {

constexpr std::array<NoMessage, 12> TitresBapteme{
    message::ColonneAnneeReleve, message::ColonneMoisReleve,  message::ColonneJourReleve,
    message::ColonneLieuReleve,  message::ColonneNomReleve,   message::ColonnePrenomsReleve,
    message::ColonneSexeReleve,  message::ColonneNomPere,     message::ColonnePrenomsPere,
    message::ColonneNomMere,     message::ColonnePrenomsMere, message::ColonneRemarques};
constexpr std::array<NoMessage, 19> TitresMariage{
    message::ColonneAnneeReleve,       message::ColonneMoisReleve,
    message::ColonneJourReleve,        message::ColonneLieuReleve,
    message::ColonneNomEpoux,          message::ColonnePrenomsEpoux,
    message::ColonneAgeEpoux,          message::ColonnePrenomsPereEpoux,
    message::ColonneNomMereEpoux,      message::ColonnePrenomsMereEpoux,
    message::ColonneEpouxVeufDe,       message::ColonneNomEpouse,
    message::ColonnePrenomsEpouse,     message::ColonneAgeEpouse,
    message::ColonnePrenomsPereEpouse, message::ColonneNomMereEpouse,
    message::ColonnePrenomsMereEpouse, message::ColonneEpouseVeuveDe,
    message::ColonneRemarques};
constexpr std::array<NoMessage, 17> TitresSepulture{
    message::ColonneAnneeReleve,     message::ColonneMoisReleve,  message::ColonneJourReleve,
    message::ColonneLieuReleve,      message::ColonneNomReleve,   message::ColonnePrenomsReleve,
    message::ColonneSexeReleve,      message::ColonneAgeReleve,   message::ColonneDateNaissance,
    message::ColonneLieuNaissance,   message::ColonneNomPere,     message::ColonnePrenomsPere,
    message::ColonneNomMere,         message::ColonnePrenomsMere, message::ColonneNomConjoint,
    message::ColonnePrenomsConjoint, message::ColonneRemarques};
constexpr std::array<NoMessage, 11> TitresAscendance{
    message::ColonneNumeroSosa,  message::ColonneNomReleve,     message::ColonnePrenomsReleve,
    message::ColonneProfession,  message::ColonneDateNaissance, message::ColonneLieuNaissance,
    message::ColonneDateDeces,   message::ColonneLieuDeces,     message::ColonneDateMariage,
    message::ColonneLieuMariage, message::ColonneRemarques};

/// Between fields that all stand in quotes.
constexpr std::string_view GuillemetBlancGuillemet = "\" \"";

/// What parts the fields of a line; empty when nothing does.
std::string_view ChercherSeparateur(std::string_view ligne) {
    for (const std::string_view candidat : {std::string_view{";"}, std::string_view{"\t"},
                                            std::string_view{","}, GuillemetBlancGuillemet})
        if (ligne.find(candidat) != std::string_view::npos) return candidat;
    return {};
}

/// Takes a field in quotes off the head of `reste`, up to the separator or the end. A quote stands
/// twice inside. False when the quotes do not close in front of one: the field is then plain.
bool PrendreEntreGuillemets(std::string_view& reste, std::string_view separateur,
                            std::string& champ) {
    const std::size_t debut = reste.find_first_not_of(' ');
    if (debut == std::string_view::npos || reste[debut] != '"') return false;
    std::string lu;
    for (std::size_t i = debut + 1; i < reste.size(); ++i) {
        if (reste[i] != '"') {
            lu += reste[i];
        } else if (i + 1 < reste.size() && reste[i + 1] == '"') {
            lu += reste[i++];
        } else {
            const std::size_t suite = reste.find_first_not_of(' ', i + 1);
            if (suite != std::string_view::npos && !reste.substr(suite).starts_with(separateur))
                return false;
            reste.remove_prefix(suite == std::string_view::npos ? reste.size() : suite);
            champ = std::move(lu);
            return true;
        }
    }
    return false;
}

std::vector<std::string> CouperEntre(std::string_view ligne) {
    std::vector<std::string> champs;
    ligne.remove_prefix(std::min(ligne.find('"') == 0 ? std::size_t{1} : 0, ligne.size()));
    if (ligne.ends_with('"')) ligne.remove_suffix(1);
    for (std::size_t place = 0; place != std::string_view::npos;) {
        place = ligne.find(GuillemetBlancGuillemet);
        champs.emplace_back(SansBlancs(ligne.substr(0, place)));
        if (place != std::string_view::npos)
            ligne.remove_prefix(place + GuillemetBlancGuillemet.size());
    }
    return champs;
}

std::vector<std::string> Couper(std::string_view ligne, std::string_view separateur) {
    std::vector<std::string> champs;
    for (std::string_view reste = ligne;;) {
        std::string champ;
        if (!PrendreEntreGuillemets(reste, separateur, champ)) {
            const std::size_t fin = std::min(reste.find(separateur), reste.size());
            champ.assign(reste.substr(0, fin));
            reste.remove_prefix(fin);
        }
        std::replace(champ.begin(), champ.end(), '\t', ' ');
        champs.emplace_back(SansBlancs(champ));
        if (reste.empty()) return champs;
        reste.remove_prefix(separateur.size());
    }
}

bool EstTitre(const LigneReleve& ligne) {
    const std::string_view premier = ligne.Champ(0);
    return std::none_of(premier.begin(), premier.end(), EstChiffre);
}

/// Takes a line off the head of `texte`, without its end.
std::string_view PrendreLigne(std::string_view& texte) {
    const std::size_t fin = std::min(texte.find_first_of("\r\n"), texte.size());
    const std::string_view ligne = texte.substr(0, fin);
    texte.remove_prefix(fin);
    if (texte.starts_with("\r\n"))
        texte.remove_prefix(2);
    else if (!texte.empty())
        texte.remove_prefix(1);
    return ligne;
}

}  // namespace

std::span<const NoMessage> TitresColonnes(SorteReleve sorte) {
    switch (sorte) {
        case SorteReleve::Bapteme:
            return TitresBapteme;
        case SorteReleve::Mariage:
            return TitresMariage;
        case SorteReleve::Sepulture:
            return TitresSepulture;
        case SorteReleve::Ascendance:
            break;
    }
    return TitresAscendance;
}

std::optional<std::vector<std::string>> DecoupeReleve(std::string_view ligne, bool* trop) {
    const std::string_view separateur = ChercherSeparateur(ligne);
    if (separateur.empty()) return {};
    std::vector<std::string> champs = separateur == GuillemetBlancGuillemet
                                          ? CouperEntre(SansBlancs(ligne))
                                          : Couper(ligne, separateur);
    if (trop != nullptr) *trop = champs.size() > MaxChampsReleve;
    champs.resize(std::min(champs.size(), MaxChampsReleve));
    return champs;
}

Releve LireReleve(std::string_view fichier, SorteReleve sorte) {
    Releve releve;
    releve.sorte = sorte;
    releve.jeu = ChoisirJeu(fichier);
    TexteDecode decode = Decoder(fichier.substr(releve.jeu.marque), releve.jeu.jeu, false);
    releve.remplaces = decode.translitteres + decode.perdus;
    std::replace(decode.octets.begin(), decode.octets.end(), '\0', ' ');

    std::uint32_t numero = 0;
    for (std::string_view texte = decode.octets; !texte.empty();) {
        const std::string_view brute = PrendreLigne(texte);
        ++numero;
        if (brute.find_first_not_of(" \t;,\"") == std::string_view::npos) continue;
        LigneReleve ligne;
        ligne.numero = numero;
        std::optional<std::vector<std::string>> champs = DecoupeReleve(brute, &ligne.trop);
        if (!champs) {
            releve.ligneSansSeparateur = numero;
            break;
        }
        ligne.champs = std::move(*champs);
        if (releve.lignes.empty() && !releve.titres && EstTitre(ligne))
            releve.titres = std::move(ligne);
        else
            releve.lignes.push_back(std::move(ligne));
    }
    return releve;
}

}  // namespace dorvane::interchange
