#include "app/Terminal.h"

#include "messages/Outil.h"
#include "values/Texte1252.h"

#include <unistd.h>

#include <iostream>

namespace dorvane::outil {

std::string DialogueTerminal::EnClair(const shell::Phrase& phrase) const {
    return TexteVersUtf8(catalogue != nullptr ? catalogue->Composer(phrase) : phrase.valeur);
}

void DialogueTerminal::Informer(const shell::Phrase& texte, const shell::Phrase& titre) {
    const std::string tete = titre.EstVide() ? std::string{} : EnClair(titre) + ": ";
    std::cerr << tete << EnClair(texte) << '\n';
}

void DialogueTerminal::Annoncer(const shell::Phrase& texte) {
    if (!texte.EstVide()) std::cerr << EnClair(texte) << '\n';
}

shell::Reponse DialogueTerminal::Demander(const shell::Question& question) {
    if (reponse) return *reponse;
    if (isatty(STDIN_FILENO) == 0) {
        const bool annulable = question.boutons != shell::Boutons::OuiNon;
        Informer(question.texte);
        Informer(shell::Msg(annulable ? message::SansTerminalAbandon : message::SansTerminalNon));
        return annulable ? shell::Reponse::Annuler : shell::Reponse::Non;
    }
    while (true) {
        std::cerr << EnClair(question.texte) << " [o/n] ";
        std::string ligne;
        if (!std::getline(std::cin, ligne)) return shell::Reponse::Annuler;
        if (ligne.empty()) return question.defaut;
        if (ligne[0] == 'o' || ligne[0] == 'O' || ligne[0] == 'y' || ligne[0] == 'Y')
            return shell::Reponse::Oui;
        if (ligne[0] == 'n' || ligne[0] == 'N') return shell::Reponse::Non;
    }
}

NoOrdre DialogueTerminal::ChoisirPersonne(const shell::DemandePersonne& demande) {
    return demande.depart;
}

std::optional<std::filesystem::path> DialogueTerminal::ChoisirFichier(
    const shell::DemandeFichier& /*demande*/) {
    if (fichier.empty()) return std::nullopt;
    return fichier;
}

}  // namespace dorvane::outil
