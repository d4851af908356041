#pragma once

#include "doublures/DialogueScript.h"
#include "doublures/DisqueMemoire.h"
#include "doublures/EcranScript.h"
#include "doublures/HorlogeFixe.h"
#include "doublures/ProgressionScript.h"
#include "shell/Session.h"

#include <filesystem>

namespace dorvane::doublures {

/// A session without settings, catalogue or real files: what a fuzz target runs in.
struct SessionMemoire {
    DialogueScript dialogue;
    ProgressionScript progression;
    HorlogeFixe horloge;
    EcranScript ecran;
    storage::DisqueMemoire disque;
    std::filesystem::path nulle = "/nulle-part";
    shell::Session session{{nulle, nulle, nulle}, {dialogue, progression, horloge, ecran, disque}};
};

}  // namespace dorvane::doublures
