#pragma once

#include "shell/Session.h"
#include "storage/DisqueReel.h"
#include "windows/cadre/DialogueQt.h"
#include "windows/cadre/EcranQt.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/cadre/ProgressionQt.h"

#include <filesystem>
#include <utility>

namespace dorvane::windows {

/// The program with its windows: the ports, the session, the main window, put together.
class Programme {
public:
    explicit Programme(const shell::Lieux& lieux);
    /// The same with a dialogue of the caller's, which outlives the object.
    Programme(const shell::Lieux& lieux, shell::Dialogue& dialogue);

    /// Starts the session, shows the window, opens the file of the command line if there is one.
    void Demarrer(const std::filesystem::path& fichier);

    /// Long jobs read their time from `chronometre` instead of the machine.
    void Chronometrer(ProgressionQt::Chronometre chronometre) {
        progression_.Chronometrer(std::move(chronometre));
    }

private:
    DialogueQt dialogueQt_;
    ProgressionQt progression_;
    EcranQt ecran_;
    shell::HorlogeSysteme horloge_;
    storage::DisqueReel disque_;

public:
    shell::Session session;
    MDIForm1 fenetre;
};

}  // namespace dorvane::windows
