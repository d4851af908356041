#pragma once

#include "values/Numeros.h"
#include "values/Phrase.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::shell {

using dorvane::Litteral;
using dorvane::Msg;
using dorvane::Phrase;

enum class Reponse { Oui, Non, Annuler };

/// The buttons of a question. `ValiderAnnuler` answers `Oui` or `Annuler`.
enum class Boutons { OuiNon, OuiNonAnnuler, ValiderAnnuler };

struct Question {
    Phrase texte;
    Phrase titre{};  ///< empty: the name of the program
    Boutons boutons = Boutons::OuiNon;
    Reponse defaut = Reponse::Oui;  ///< the button that Enter presses
    bool grave = false;             ///< something will be lost: shown as a warning
};

struct DemandePersonne {
    NoOrdre depart{};  ///< the person first shown; 0: none
    Phrase titre{};
    /// The only persons offered, in this order; empty: all persons of the base.
    std::vector<NoOrdre> parmi{};
};

struct DemandeFichier {
    enum class Sorte {
        Ouvrir,       ///< the file must exist
        Enregistrer,  ///< an existing file is overwritten only after the dialog's own question
        Dossier       ///< an existing folder
    };
    Sorte sorte = Sorte::Ouvrir;
    Phrase titre{};
    /// In code page 1252, pairs "description|pattern;pattern" joined by "|", such as
    /// "Généalogie (*.lgd) |*.lgd|". Empty: all files.
    std::string filtre{};
    /// Given to a name typed without extension, with its dot and in the case wanted, ".LGD".
    std::string extension{};
    /// Where the dialog starts: a folder, or a whole path whose name is proposed. Empty: the
    /// current folder.
    std::filesystem::path depart{};
};

/// What the logic tells the user, and asks. Windows answer with boxes, the command line with its
/// options, tests with a script: the logic cannot tell which.
class Dialogue {
public:
    virtual ~Dialogue() = default;

    /// Shows the message and returns when it has been read. An empty title is the program's name.
    virtual void Informer(const Phrase& texte, const Phrase& titre) = 0;
    void Informer(const Phrase& texte) { Informer(texte, Phrase{}); }

    /// Puts the text in the status area without waiting; an empty text clears the area.
    virtual void Annoncer(const Phrase& texte) = 0;

    /// Asks and waits. Closing the box is `Annuler`, or `Non` where there is no such button.
    [[nodiscard]] virtual Reponse Demander(const Question& question) = 0;

    /// Asks with yes and no (or the buttons of the question); true for yes.
    [[nodiscard]] bool Confirmer(const Question& question) {
        return Demander(question) == Reponse::Oui;
    }
    [[nodiscard]] bool Confirmer(const Phrase& texte, const Phrase& titre = {},
                                 Reponse defaut = Reponse::Oui) {
        return Demander({texte, titre, Boutons::OuiNon, defaut}) == Reponse::Oui;
    }

    /// Lets the user pick one person; 0 when the user gives up.
    [[nodiscard]] virtual NoOrdre ChoisirPersonne(const DemandePersonne& demande) = 0;

    /// Asks for a file or a folder; nothing when the user gives up.
    [[nodiscard]] virtual std::optional<std::filesystem::path> ChoisirFichier(
        const DemandeFichier& demande) = 0;
};

}  // namespace dorvane::shell
