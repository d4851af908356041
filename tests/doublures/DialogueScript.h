#pragma once

#include "doublures/MessagesLisibles.h"
#include "shell/Dialogue.h"

#include <deque>
#include <functional>
#include <ostream>
#include <vector>

namespace dorvane::shell {

/// Lets a failed check print what was said.
inline std::ostream& operator<<(std::ostream& flux, const Phrase& phrase) {
    flux << '[' << phrase.no;
    if (!phrase.valeur.empty()) flux << ' ' << phrase.valeur;
    if (!phrase.valeur2.empty()) flux << " | " << phrase.valeur2;
    if (phrase.suite) flux << " + " << phrase.suite;
    return flux << ']';
}

inline std::ostream& operator<<(std::ostream& flux, const std::vector<Phrase>& phrases) {
    for (const Phrase& phrase : phrases)
        flux << phrase;
    return flux;
}

}  // namespace dorvane::shell

namespace dorvane::doublures {

/// A user who answers by heart. Everything said and asked is kept, in order. A question without an
/// answer left is answered as its dialog would be when closed: the test sees it in `entendu`.
class DialogueScript final : public shell::Dialogue {
public:
    using Dialogue::Informer;

    std::vector<shell::Phrase> entendu;   ///< messages and questions
    std::vector<shell::Phrase> titres;    ///< the titles of `entendu`, at the same places
    std::vector<shell::Phrase> annonces;  ///< texts of the status area
    std::vector<shell::Question> questions;
    std::vector<shell::DemandePersonne> demandesPersonne;
    std::vector<shell::DemandeFichier> demandesFichier;
    std::deque<shell::Reponse> reponses;
    std::deque<NoOrdre> personnes;
    std::deque<std::optional<std::filesystem::path>> fichiers;
    std::function<void()> pendant;  ///< what is looked at while a message or question stands

    void Informer(const shell::Phrase& texte, const shell::Phrase& titre) override {
        entendu.push_back(texte);
        titres.push_back(titre);
        if (pendant) pendant();
    }

    void Annoncer(const shell::Phrase& texte) override { annonces.push_back(texte); }

    [[nodiscard]] shell::Reponse Demander(const shell::Question& question) override {
        entendu.push_back(question.texte);
        titres.push_back(question.titre);
        questions.push_back(question);
        if (pendant) pendant();
        if (reponses.empty())
            return question.boutons == shell::Boutons::OuiNon ? shell::Reponse::Non
                                                              : shell::Reponse::Annuler;
        const shell::Reponse reponse = reponses.front();
        reponses.pop_front();
        return reponse;
    }

    [[nodiscard]] NoOrdre ChoisirPersonne(const shell::DemandePersonne& demande) override {
        demandesPersonne.push_back(demande);
        if (personnes.empty()) return {};
        const NoOrdre choisie = personnes.front();
        personnes.pop_front();
        return choisie;
    }

    [[nodiscard]] std::optional<std::filesystem::path> ChoisirFichier(
        const shell::DemandeFichier& demande) override {
        demandesFichier.push_back(demande);
        if (fichiers.empty()) return std::nullopt;
        std::optional<std::filesystem::path> choisi = fichiers.front();
        fichiers.pop_front();
        return choisi;
    }
};

}  // namespace dorvane::doublures
