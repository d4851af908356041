#include "app/CommandeBase.h"

#include "messages/Dorvane.h"
#include "messages/Outil.h"
#include "records/Famille.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <iostream>
#include <string_view>

namespace dorvane::outil {

void DeclarerBase(Verbe& verbe, OptionsBase& options) {
    verbe.Ajouter("BASE", options.base, "Le fichier .LGD").Requise();
    const Option oui = verbe.Drapeau("--oui", options.oui, "Répond oui à toutes les questions");
    verbe.Drapeau("--non", options.non, "Répond non à toutes les questions").Exclut(oui);
}

int AvecBase(const OptionsBase& options, const std::function<int(Atelier&)>& travail) {
    Atelier atelier{{}};
    if (options.oui) atelier.dialogue.reponse = shell::Reponse::Oui;
    if (options.non) atelier.dialogue.reponse = shell::Reponse::Non;
    if (const int statut = atelier.Ouvrir(options.base); statut != Fait) return statut;
    const int statut = travail(atelier);
    // A refusal in the middle of a command leaves nothing behind: the base goes without a commit.
    return statut == Fait ? atelier.Fermer() : statut;
}

int SauvegarderBase(const std::filesystem::path& base) {
    Atelier atelier{{}};
    if (const int statut = atelier.Ouvrir(base); statut != Fait) return statut;
    // Only a whole, closed file is copied: a leftover journal was replayed by the opening.
    if (const int statut = atelier.Fermer(); statut != Fait) return statut;
    const std::filesystem::path& reel = atelier.session.CheminBase;
    const std::filesystem::path copie = shell::CheminSauvegarde(reel);
    if (!shell::EcrireSauvegarde(atelier.session, reel)) {
        atelier.dialogue.Informer(
            shell::Msg(message::SauvegardeNonEcrite, shell::CheminAffiche(copie)));
        return RefusSysteme;
    }
    const std::filesystem::path montre =
        base.is_absolute() ? copie : std::filesystem::proximate(copie);
    std::cout << montre.string() << '\n';
    return Fait;
}

std::string LireArgument(Atelier& atelier, const std::string& utf8) {
    TexteRecu recu = Utf8VersTexte(utf8);
    if (recu.remplaces != 0)
        atelier.dialogue.Informer(shell::Msg(message::ArgumentHorsJeuDeCaracteres, recu.octets,
                                             std::to_string(recu.remplaces)));
    return std::move(recu.octets);
}

void Prendre(Atelier& atelier, const std::optional<std::string>& option, std::string& champ) {
    if (option) champ = LireArgument(atelier, *option);
}

int VerifierCible(Atelier& atelier, const Cible& cible) {
    std::error_code erreur;
    const auto refuser = [&](NoMessage message, int statut = Refus) {
        atelier.dialogue.Informer(shell::Msg(message, shell::CheminAffiche(cible.fichier)));
        return statut;
    };
    if (!cible.lu.empty() && std::filesystem::equivalent(cible.fichier, cible.lu, erreur))
        return refuser(message::CibleFichierLu, MauvaisUsage);
    if (shell::EstFichierDeBase(shell::CheminEntier(cible.fichier), cible.base))
        return refuser(message::CibleFichierDeLaBase);
    const std::filesystem::file_status etat = std::filesystem::status(cible.fichier, erreur);
    if (!std::filesystem::exists(etat)) return Fait;
    if (!std::filesystem::is_regular_file(etat))
        return refuser(message::CiblePasUnFichier, RefusSysteme);
    return cible.remplacer ? Fait : refuser(message::FichierExisteSansRemplacer);
}

bool PersonneExiste(Atelier& atelier, std::uint32_t numero) {
    if (records::Existe(*atelier.session.base, NoOrdre{numero})) return true;
    atelier.dialogue.Informer(
        shell::Msg(message::NumeroDePersonneInexistant, std::to_string(numero)));
    return false;
}

DateTapee CouperDateTapee(const std::string& date) {
    const std::string_view texte = SansBlancs(date);
    const std::size_t coupe = texte.find_last_of(" /");
    const std::string_view fin = texte.substr(coupe == std::string_view::npos ? 0 : coupe + 1);
    if (!EstNumerique(fin) || fin.size() > 4) return {std::string{texte}, {}};
    const std::string_view debut =
        coupe == std::string_view::npos ? std::string_view{} : texte.substr(0, coupe);
    // "12/3" is a day and a month.
    if (fin.size() < 3 && debut.find('/') == std::string_view::npos && !debut.empty())
        return {std::string{texte}, {}};
    return {std::string{SansBlancs(debut)}, std::string{fin}};
}

}  // namespace dorvane::outil
