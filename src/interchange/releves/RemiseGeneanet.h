#pragma once

#include "shell/Session.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace dorvane::interchange {

/// A program to be run with its arguments one by one, never through a shell.
struct AppelOutil {
    std::string programme;  ///< looked for on the path of the system
    std::vector<std::string> arguments;
    std::filesystem::path dossier;  ///< where it runs
};

/// How the floor above runs a program and waits for its end. False when it could not be started
/// or crashed; true when the user has ended it.
using LancerOutil = std::function<bool(const AppelOutil&)>;
/// How it shows the report of the tool.
using MontrerFichier = std::function<void(const std::filesystem::path&)>;

/// The hand-over to the conversion tool: a GEDCOM file with a reduced header in the folder
/// "geneanet" of the tool's folder, the tool on that file, and its report. Nothing without an open
/// base.
void MnuGeneanet(shell::Session& session, const LancerOutil& lancer, const MontrerFichier& montrer);

}  // namespace dorvane::interchange
