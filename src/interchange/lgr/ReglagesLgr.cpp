#include "interchange/lgr/ReglagesLgr.h"

#include "shell/CycleDeVie.h"
#include "shell/Session.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

constexpr std::string_view CleAffichageNom = "Affichage Nom";
constexpr std::string_view CleTypeDocument = "Type Document ";
constexpr int MaxReglage = 1000000000;

std::string EnTexte(std::uint32_t champ) {
    return std::to_string(champ);
}
std::string EnTexte(int champ) {
    return std::to_string(champ);
}
std::string EnTexte(bool champ) {
    return champ ? "1" : "0";
}
std::string EnTexte(const std::string& champ) {
    return champ;
}

void DeTexte(std::uint32_t& champ, std::string_view texte) {
    champ = static_cast<std::uint32_t>(std::max(0, shell::NombreIndulgent(texte)));
}
void DeTexte(int& champ, std::string_view texte) {
    champ = std::clamp(shell::NombreIndulgent(texte), 0, MaxReglage);
}
void DeTexte(bool& champ, std::string_view texte) {
    champ = shell::NombreIndulgent(texte) == 1;
}
void DeTexte(std::string& champ, std::string_view texte) {
    champ = texte;
}

/// The keys of the chart that an exchange text has, in its order.
template <class Affichage, class Visite>
void ParcourirAffichageLgr(Affichage& a, Visite visite) {
    visite("Couleur Fond"_1252, a.couleurFond);
    visite("Dégradé"_1252, a.degrade);
    visite("Couleur Cadre Homme"_1252, a.couleurCadreHomme);
    visite("Couleur Cadre Femme"_1252, a.couleurCadreFemme);
    visite("Couleur Cadre Indéterminé"_1252, a.couleurCadreIndetermine);
    visite("Couleur Police Homme"_1252, a.couleurPoliceHomme);
    visite("Couleur Police Femme"_1252, a.couleurPoliceFemme);
    visite("Couleur Police Indéterminé"_1252, a.couleurPoliceIndetermine);
    visite("Maximum Recherche Parenté"_1252, a.maximumRechercheParente);
    visite("Type Présentation"_1252, a.typePresentation);
    const auto pourChacune = [&a, &visite](std::string_view debut, auto champ) {
        for (std::size_t i = 0; i < a.presentations.size(); ++i)
            visite(std::string{debut} + std::to_string(i + 1), a.presentations[i].*champ);
    };
    pourChacune("Nom Police ", &shell::Presentation::nomPolice);
    pourChacune("Taille Police ", &shell::Presentation::taillePolice);
    pourChacune("Nombre Cases ", &shell::Presentation::nombreCases);
    pourChacune("Proportionnel ", &shell::Presentation::proportionnel);
}

/// Those of the base itself.
template <class Reglages, class Visite>
void ParcourirConversionsLgr(Reglages& b, Visite visite) {
    visite("Conversion nom"_1252, b.conversionNom);
    visite("Conversion prénom"_1252, b.conversionPrenom);
}
template <class Reglages, class Visite>
void ParcourirAuteurLgr(Reglages& b, Visite visite) {
    visite("Auteur", b.auteur);
    for (std::size_t i = 0; i < b.adresse.size(); ++i)
        visite("Adresse " + std::to_string(i + 1), b.adresse[i]);
}

class Lignes {
public:
    void Ajouter(std::string_view cle, std::string_view valeur) {
        texte_.append(cle).append(1, '=');
        for (const char c : valeur)
            texte_ += c == '\r' || c == '\n' ? ' ' : c;
        texte_ += "\r\n";
    }
    [[nodiscard]] std::string Rendre() { return std::move(texte_); }

private:
    std::string texte_;
};

}  // namespace

std::string ComposerReglagesLgr(const shell::Session& session,
                                const std::function<bool(NoOrdre)>& estEcrit) {
    const shell::ReglagesBase& b = session.parametres.base;
    Lignes lignes;
    const auto toujours = [&](std::string_view cle, const auto& champ) {
        lignes.Ajouter(cle, EnTexte(champ));
    };
    const auto siRempli = [&](std::string_view cle, const std::string& champ) {
        if (!champ.empty()) lignes.Ajouter(cle, champ);
    };
    const auto siEcrit = [&](std::string_view cle, NoOrdre n) {
        if (n && estEcrit(n)) lignes.Ajouter(cle, EnTexte(n.valeur));
    };
    ParcourirAffichageLgr(b.affichage, toujours);
    siEcrit("Personne en cours", session.PersonneEnCours);
    siEcrit("De Cujus", session.deCujus[0].individu);
    siEcrit("De Cujus 2", session.deCujus[1].individu);
    lignes.Ajouter(CleAffichageNom, session.parametres.generaux.affichageNom);
    ParcourirConversionsLgr(b, toujours);
    ParcourirAuteurLgr(b, siRempli);
    std::string_view reste = b.typeDocument;
    for (int i = 1; !reste.empty(); ++i) {
        const std::size_t barre = reste.find('/');
        lignes.Ajouter(std::string{CleTypeDocument} + std::to_string(i), reste.substr(0, barre));
        reste.remove_prefix(barre == std::string_view::npos ? reste.size() : barre + 1);
    }
    return lignes.Rendre();
}

bool PrendreReglagesLgr(shell::Session& session, const std::filesystem::path& chemin,
                        std::span<const std::string_view> lignes) {
    shell::Parametres& parametres = session.parametres;
    const std::filesystem::path entier = shell::CheminEntier(chemin);
    parametres.LireParametresBase(entier);
    shell::ReglagesBase& b = parametres.base;
    b.personneEnCours = 1;
    b.deCujus1 = b.deCujus2 = 0;
    std::string types;
    std::string modele;
    for (const std::string_view ligne : lignes) {
        const std::size_t egal = ligne.find('=');
        if (egal == std::string_view::npos) continue;
        const std::string_view cle = SansBlancs(ligne.substr(0, egal));
        const std::string_view valeur = SansBlancs(ligne.substr(egal + 1));
        const auto prendre = [&](std::string_view nom, auto& champ) {
            if (cle == nom) DeTexte(champ, valeur);
        };
        ParcourirAffichageLgr(b.affichage, prendre);
        prendre("Personne en cours", b.personneEnCours);
        prendre("De Cujus", b.deCujus1);
        prendre("De Cujus 2", b.deCujus2);
        ParcourirConversionsLgr(b, prendre);
        ParcourirAuteurLgr(b, prendre);
        prendre(CleAffichageNom, modele);
        if (cle.starts_with(CleTypeDocument)) types.append(valeur).append(1, '/');
    }
    if (!types.empty()) b.typeDocument = types;
    const bool sauve = parametres.SauverParametresBase(entier);
    // The template of names belongs to the whole program; what the file had is kept beside.
    return sauve && (modele.empty() || parametres.SauverValeur(shell::CheminVersUtf8(entier),
                                                               CleAffichageNom, modele));
}

}  // namespace dorvane::interchange
