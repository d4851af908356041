#pragma once

#include "app/Statuts.h"
#include "app/Terminal.h"
#include "shell/Ecran.h"
#include "shell/Horloge.h"
#include "shell/Session.h"
#include "storage/DisqueReel.h"
#include "storage/Progression.h"

#include <filesystem>
#include <string>

namespace dorvane::outil {

/// A session for one command: settings and texts, no windows.
class Atelier {
public:
    /// `langue`: stem of a catalogue, UTF-8; empty for the one of the settings.
    explicit Atelier(const std::string& langue);

    /// Opens a base for the command; tells why when it cannot. The answer is an exit status.
    [[nodiscard]] int Ouvrir(const std::filesystem::path& chemin);
    /// Gives the base up; a change is committed. The answer is an exit status.
    [[nodiscard]] int Fermer();

    DialogueTerminal dialogue;
    storage::ProgressionMuette progression;

private:
    shell::HorlogeSysteme horloge_;
    shell::EcranAbsent ecran_;
    storage::DisqueReel disque_;

public:
    shell::Session session;
};

}  // namespace dorvane::outil
