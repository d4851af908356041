#pragma once

#include "shell/Ecran.h"

namespace dorvane::doublures {

/// Windows that count what they are asked.
class EcranScript final : public shell::Ecran {
public:
    bool ficheSeFerme = true;  ///< the user lets the person sheet go
    int fermeturesFiche = 0;
    int fermetures = 0;
    int actualisations = 0;

    [[nodiscard]] bool FermerFiche() override {
        ++fermeturesFiche;
        return ficheSeFerme;
    }
    void FermerFenetres() override { ++fermetures; }
    void Actualiser() override { ++actualisations; }
};

}  // namespace dorvane::doublures
