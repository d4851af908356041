#pragma once

#include "doublures/DossierTemporaire.h"

#include <sys/wait.h>

#include <cstdlib>
#include <string>

namespace dorvane::parcours {

using doublures::DossierTemporaire;
using doublures::EcrireFichier;
using doublures::LireFichier;

/// What a run of the program has answered.
struct Reponse {
    int statut = -1;
    std::string sortie;
    std::string messages;
};

/// One folder, one configuration, and the program run in it.
struct Poste {
    Poste() {
        setenv("XDG_CONFIG_HOME", (dossier / "config").c_str(), 1);
        setenv("XDG_CACHE_HOME", (dossier / "cache").c_str(), 1);
        EcrireFichier(dossier / "famille.ged",
                      "0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 NAME Jean /Dupont/\n1 SEX M\n1 BIRT\n"
                      "2 DATE 12 MAR 1820\n2 PLAC Saint Malo\n1 OCCU forgeron\n0 @I2@ INDI\n"
                      "1 NAME Hélène /Martin/\n1 SEX F\n0 @I3@ INDI\n1 NAME Luc /Dupont/\n1 BIRT\n"
                      "2 DATE 1845\n1 OBJE\n2 FILE a.jpg\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n"
                      "1 CHIL @I3@\n1 MARR\n2 DATE 1844\n0 TRLR\n");
    }

    Reponse Lancer(const std::string& arguments, const std::string& entree = {}) const {
        EcrireFichier(dossier / "entree", entree);
        const std::string commande = "cd '" + dossier.chemin.string() + "' && '" OUTIL "' " +
                                     arguments + " < entree > sortie 2> messages";
        const int statut = std::system(commande.c_str());
        return {WIFEXITED(statut) ? WEXITSTATUS(statut) : -1, LireFichier(dossier / "sortie"),
                LireFichier(dossier / "messages")};
    }

    /// The same with the standard output or descriptors led elsewhere: "| true", ">&-". The status
    /// is that of the program itself.
    Reponse LancerVers(const std::string& arguments, const std::string& vers) const {
        return LancerShell("'" OUTIL "' " + arguments + ' ' + vers + "; exit ${PIPESTATUS[0]}");
    }
    /// The same once `avant` has been done in the shell.
    Reponse LancerApres(const std::string& avant, const std::string& arguments) const {
        return LancerShell(avant + "; '" OUTIL "' " + arguments);
    }

    DossierTemporaire dossier;

private:
    Reponse LancerShell(const std::string& texte) const {
        EcrireFichier(dossier / "commande", texte);
        const std::string commande =
            "cd '" + dossier.chemin.string() + "' && bash commande < entree > sortie 2> messages";
        const int statut = std::system(commande.c_str());
        return {WIFEXITED(statut) ? WEXITSTATUS(statut) : -1, LireFichier(dossier / "sortie"),
                LireFichier(dossier / "messages")};
    }
};

inline bool Contient(const std::string& texte, const std::string& morceau) {
    return texte.find(morceau) != std::string::npos;
}

}  // namespace dorvane::parcours
