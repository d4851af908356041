#pragma once

#include "app/Options.h"

namespace dorvane::outil {

// The verbs, by subjects; each function adds its own to those of the line.

/// `nouveau`, `infos`, `lister`, `personne`, `sauvegarder`, `restaurer`: a base as a whole.
void DeclarerVerbesBase(Verbe racine);
/// `importer`.
void DeclarerVerbesImport(Verbe racine);
/// `catalogue`: the texts of the program.
void DeclarerVerbeCatalogue(Verbe racine);
/// `calculer`: operations on values, without a base.
void DeclarerVerbeCalculer(Verbe racine);

/// `creer`, `modifier`, `supprimer`, `lier`, `delier`.
void DeclarerVerbesFiche(Verbe racine);
/// `evenement`, `document`.
void DeclarerVerbesFaits(Verbe racine);
/// `motcle`, `rechercher`, `parametre`.
void DeclarerVerbesReglages(Verbe racine);

/// `reorganiser`, `controler`, `depanner`.
void DeclarerVerbesSoin(Verbe racine);

/// `exporter`.
void DeclarerVerbesExport(Verbe racine);
/// `integrer`.
void DeclarerVerbesEchange(Verbe racine);

/// `communes`: the base of communes, apart from any family.
void DeclarerVerbesCommunes(Verbe racine);

/// `releve`: surveys of registers.
void DeclarerVerbesReleve(Verbe racine);

}  // namespace dorvane::outil
