#pragma once

#include "shell/Ecran.h"

#include <string>
#include <vector>

namespace dorvane::doublures {

/// Windows that count what they are asked.
class EcranScript final : public shell::Ecran {
public:
    bool ficheSeFerme = true;  ///< the user lets the person sheet go
    int fermeturesFiche = 0;
    int fermetures = 0;
    int actualisations = 0;
    std::vector<shell::Phrase> titres;  ///< of the reports
    std::string rapport;                ///< the last one

    [[nodiscard]] bool FermerFiche() override {
        ++fermeturesFiche;
        return ficheSeFerme;
    }
    void FermerFenetres() override { ++fermetures; }
    void Actualiser() override { ++actualisations; }
    void MontrerRapport(const shell::Phrase& titre, const std::string& texte) override {
        titres.push_back(titre);
        rapport = texte;
    }
};

}  // namespace dorvane::doublures
