#include "interchange/communes/CsvCommunes.h"

#include "interchange/jeux/JeuxDeCaracteres.h"
#include "values/Comparaison.h"

#include <csv.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace dorvane::interchange {

namespace {

using Champ = std::string storage::Commune::*;

struct Colonne {
    std::string_view titre;  ///< folded
    Champ champ;
};
constexpr std::array<Colonne, 7> Colonnes{{{"NOM", &storage::Commune::nom},
                                           {"CODE", &storage::Commune::code},
                                           {"AUTRE CODE", &storage::Commune::autreCode},
                                           {"RATTACHEMENT", &storage::Commune::rattachement},
                                           {"PRECISION", &storage::Commune::precision},
                                           {"DEPARTEMENT", &storage::Commune::precision},
                                           {"COMMENTAIRE", &storage::Commune::commentaire}}};
/// Columns of a list without a heading.
constexpr std::array<Champ, 6> SansTitres{
    &storage::Commune::nom,          &storage::Commune::code,      &storage::Commune::autreCode,
    &storage::Commune::rattachement, &storage::Commune::precision, &storage::Commune::commentaire};

std::optional<Champ> ChampDuTitre(std::string_view titre) {
    const std::string replie = Replie(titre);
    for (const Colonne& colonne : Colonnes)
        if (SansBlancs(replie) == colonne.titre) return colonne.champ;
    return {};
}

/// The separator that the first line has most in front.
unsigned char ChercherSeparateur(std::string_view texte) {
    const std::string_view ligne = texte.substr(0, texte.find_first_of("\r\n"));
    for (const char candidat : {';', '\t', ','})
        if (ligne.find(candidat) != std::string_view::npos)
            return static_cast<unsigned char>(candidat);
    return ';';
}

/// Takes the records as the parser brings them.
class Reception {
public:
    explicit Reception(ListeCommunes& liste) : liste_{liste} {}

    void Champ1252(std::string_view octets) { champs_.emplace_back(octets); }

    void FinEnregistrement() {
        ++numero_;
        const std::vector<std::string> champs = std::exchange(champs_, {});
        if (numero_ == 1 && LireTitres(champs)) return;
        if (liste_.nomInconnu) return;
        storage::Commune commune;
        for (std::size_t i = 0; i < std::min(champs.size(), colonnes_.size()); ++i)
            if (const std::optional<Champ>& colonne = colonnes_[i]) commune.*(*colonne) = champs[i];
        commune = storage::NettoyerCommune(commune);
        if (commune.nom.empty()) {
            if (!champs.empty()) liste_.sansNom.push_back(numero_);
        } else if (storage::TropLongue(commune)) {
            liste_.tropLongues.push_back(numero_);
        } else {
            liste_.communes.push_back(std::move(commune));
        }
    }

private:
    bool LireTitres(const std::vector<std::string>& champs) {
        for (const std::string& champ : champs)
            colonnes_.push_back(ChampDuTitre(champ));
        const auto aucune = [](const auto& c) { return !c.has_value(); };
        if (std::all_of(colonnes_.begin(), colonnes_.end(), aucune)) {
            colonnes_.assign(SansTitres.begin(), SansTitres.end());
            return false;
        }
        liste_.nomInconnu = std::none_of(colonnes_.begin(), colonnes_.end(),
                                         [](const auto& c) { return c == &storage::Commune::nom; });
        return true;
    }

    ListeCommunes& liste_;
    std::vector<std::string> champs_;
    std::vector<std::optional<Champ>> colonnes_;
    std::size_t numero_ = 0;
};

void RecevoirChamp(void* octets, std::size_t taille, void* reception) {
    static_cast<Reception*>(reception)->Champ1252({static_cast<const char*>(octets), taille});
}

void RecevoirFin(int /*octet*/, void* reception) {
    static_cast<Reception*>(reception)->FinEnregistrement();
}

}  // namespace

ListeCommunes LireCsvCommunes(std::string_view fichier) {
    ListeCommunes liste;
    const ChoixDeJeu choix = ChoisirJeu(fichier);
    const TexteDecode texte = Decoder(fichier.substr(choix.marque), choix.jeu, false);
    liste.remplaces = texte.translitteres + texte.perdus;

    Reception reception{liste};
    csv_parser analyseur{};
    if (csv_init(&analyseur, 0) != 0) return liste;
    csv_set_delim(&analyseur, ChercherSeparateur(texte.octets));
    csv_parse(&analyseur, texte.octets.data(), texte.octets.size(), RecevoirChamp, RecevoirFin,
              &reception);
    csv_fini(&analyseur, RecevoirChamp, RecevoirFin, &reception);
    csv_free(&analyseur);
    return liste;
}

}  // namespace dorvane::interchange
