#pragma once

#include "shell/Issue.h"
#include "storage/BaseCommunes.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::interchange {

/// The rules of the window of the communes. Every change is in the file once it is answered as
/// done; after anything else, which a message has told, memory and file are as before. A file in
/// the program folder that cannot be written is copied to the folder of the settings, after a
/// question, and the settings name the copy from then on.
class GestionCommunes {
public:
    /// `session` outlives the object.
    explicit GestionCommunes(shell::Session& session) : session_{session} {}

    /// Opens the file of the settings. When it cannot, a base that was open stays so.
    [[nodiscard]] shell::Issue Ouvrir();
    /// The settings name another file than the one that is open.
    [[nodiscard]] bool Perimee() const;

    /// Only once `Ouvrir` has answered true; lives until the next change.
    [[nodiscard]] const storage::BaseCommunes& Base() const { return *base_; }
    /// Communes without the deleted ones.
    [[nodiscard]] std::uint32_t Nombre() const { return nombre_; }

    /// Communes whose name begins with `texte`, or sounds like it, in the order of names and all
    /// homonyms among them; all for an empty text.
    [[nodiscard]] std::vector<storage::NoCommune> Chercher(std::string_view texte,
                                                           bool parSon) const;

    /// Adds a commune (`n` 0) or changes it; its number, 0 when refused.
    [[nodiscard]] storage::NoCommune Enregistrer(storage::NoCommune n,
                                                 const storage::Commune& commune);
    /// Asks first, and tells how many communes then name one that is not there.
    [[nodiscard]] shell::Issue Supprimer(storage::NoCommune n);
    /// Shows its phases, and the sizes before and after. Numbers stay.
    [[nodiscard]] shell::Issue Reorganiser();
    /// Asks for a list (CSV), and adds its communes or, after a question, replaces all by them.
    /// Tells what came in and what was left out.
    [[nodiscard]] shell::Issue ChargerListe(bool remplacer);

private:
    /// Tries a change until it is in the file or the user is told why it is not. `essai` is refused
    /// when the file is no longer what was read, and then memory is as the file; by the system when
    /// it cannot be written here.
    [[nodiscard]] shell::Issue Changer(const std::function<shell::Issue()>& essai);
    [[nodiscard]] shell::Issue IssueDe(storage::EcritureCommunes ecriture) const;
    [[nodiscard]] shell::Issue EcrireBase();
    [[nodiscard]] shell::Issue Composer(const std::vector<storage::Commune>& communes);
    [[nodiscard]] bool Relire();
    [[nodiscard]] shell::Issue ProposerCopie();
    void Compter();

    shell::Session& session_;
    std::filesystem::path chemin_;
    std::unique_ptr<storage::BaseCommunes> base_;
    std::uint32_t nombre_ = 0;
};

}  // namespace dorvane::interchange
