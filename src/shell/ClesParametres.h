#pragma once

#include "shell/Parametres.h"

#include <type_traits>

namespace dorvane::shell {

/// A path kept with a "/" behind it.
struct AvecBarre {
    std::string& texte;
};

/// A text kept in the settings as it stands in memory, UTF-8.
struct TexteUtf8 {
    std::string& texte;
};

/// Goes through the keys of the chart, in the order in which they are kept. `visite(cle, champ)`
/// receives each field by reference.
template <class Visite>
void ParcourirAffichage(Affichage& a, Visite visite) {
    visite("Couleur Fond", a.couleurFond);
    visite("Dégradé", a.degrade);
    visite("Couleur Dégradé", a.couleurDegrade);
    visite("Couleur Cadre Homme", a.couleurCadreHomme);
    visite("Couleur Cadre Femme", a.couleurCadreFemme);
    visite("Couleur Cadre Indéterminé", a.couleurCadreIndetermine);
    visite("Couleur Police Homme", a.couleurPoliceHomme);
    visite("Couleur Police Femme", a.couleurPoliceFemme);
    visite("Couleur Police Indéterminé", a.couleurPoliceIndetermine);
    visite("Maximum Recherche Parenté", a.maximumRechercheParente);
    visite("Type Présentation", a.typePresentation);
    const auto pourChacune = [&a, &visite](std::string_view debut, auto champ) {
        for (std::size_t i = 0; i < a.presentations.size(); ++i)
            visite(std::string{debut} + std::to_string(i + 1), a.presentations[i].*champ);
    };
    pourChacune("Nom Police ", &Presentation::nomPolice);
    pourChacune("Taille Police ", &Presentation::taillePolice);
    pourChacune("Nombre Cases ", &Presentation::nombreCases);
    pourChacune("Proportionnel ", &Presentation::proportionnel);
}

/// The same for the keys of the program in section `Defaut`, `Langue` first.
template <class Visite>
void ParcourirGeneraux(ReglagesGeneraux& g, Visite visite) {
    visite("Langue", TexteUtf8{g.langue});
    visite("Aide", g.aide);
    visite("Travail", g.travail);
    visite("Fichier Communes", g.fichierCommunes);
    visite("Généanet", g.geneanet);
    visite("Fréquence Sauvegarde", g.frequenceSauvegarde);
    visite("Sauvegardes Gardées", g.sauvegardesGardees);
    visite("Assistant", g.assistant);
    visite("Barre de menus", g.barreMenus);
    visite("Barre de fenêtres", g.barreFenetres);
    visite("Mot clé Prénom", g.motClePrenom);
    visite("Mot clé Nom", g.motCleNom);
    visite("Icones", g.icones);
    visite("Affichage Nom", g.affichageNom);
    visite("Ordre date", g.ordreDate);
    visite("Tri Import", g.triImport);
    visite("Jeu Export", g.jeuExport);
    ParcourirAffichage(g.affichage, visite);
}

/// The same for the keys of one base.
template <class Visite>
void ParcourirBase(ReglagesBase& b, Visite visite) {
    visite("Personne en cours", b.personneEnCours);
    visite("De Cujus", b.deCujus1);
    visite("De Cujus 2", b.deCujus2);
    visite("Conversion nom", b.conversionNom);
    visite("Conversion prénom", b.conversionPrenom);
    visite("Conversion lieu", b.conversionLieu);
    visite("Nom Image", AvecBarre{b.nomImage});
    visite("Auteur", b.auteur);
    for (std::size_t i = 0; i < b.adresse.size(); ++i)
        visite("Adresse " + std::to_string(i + 1), b.adresse[i]);
    visite("Type Document", b.typeDocument);
    ParcourirAffichage(b.affichage, visite);
}

}  // namespace dorvane::shell
