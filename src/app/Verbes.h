#pragma once

#include <CLI/CLI.hpp>
#include <functional>

namespace dorvane::outil {

// The verbs that read and change the records of a base, by subjects. The verb that is given leaves
// its work in `faire`, which outlives the parser.

/// `creer`, `modifier`, `supprimer`, `lier`, `delier`.
void DeclarerVerbesFiche(CLI::App& app, std::function<int()>& faire);
/// `evenement`, `document`.
void DeclarerVerbesFaits(CLI::App& app, std::function<int()>& faire);
/// `motcle`, `rechercher`, `parametre`.
void DeclarerVerbesReglages(CLI::App& app, std::function<int()>& faire);

/// `reorganiser`, `controler`, `depanner`.
void DeclarerVerbesSoin(CLI::App& app, std::function<int()>& faire);

/// `exporter`.
void DeclarerVerbesExport(CLI::App& app, std::function<int()>& faire);
/// `integrer`.
void DeclarerVerbesEchange(CLI::App& app, std::function<int()>& faire);

/// `communes`: the base of communes, apart from any family.
void DeclarerVerbesCommunes(CLI::App& app, std::function<int()>& faire);

/// `releve`: surveys of registers.
void DeclarerVerbesReleve(CLI::App& app, std::function<int()>& faire);

}  // namespace dorvane::outil
