#include "interchange/gedcom/ImportGedcom.h"

#include "interchange/commun/FaireBase.h"
#include "interchange/gedcom/LignesGedcom.h"
#include "interchange/gedcom/PassesImport.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "shell/Parametres.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace dorvane::interchange {
namespace {

/// The text of the file in code page 1252; `octets` holds it where no conversion is needed.
std::string_view Preparer(std::string& octets, RapportImport& rapport) {
    rapport.jeu = ChoisirJeu(octets);
    std::size_t marque = rapport.jeu.marque;
    if (rapport.jeu.jeu != Jeu::Ansi) {
        const bool notre = std::string_view{octets}.substr(0, 1000).find("1 SOUR DORVANE") !=
                           std::string_view::npos;
        TexteDecode decode =
            Decoder(std::string_view{octets}.substr(marque), rapport.jeu.jeu, notre);
        rapport.translitteres = decode.translitteres;
        rapport.perdus = decode.perdus;
        octets = std::move(decode.octets);
        marque = 0;
    }
    // Records end their fields with bytes 0: none may come from outside.
    if (octets.find('\0') != std::string::npos) {
        rapport.octetsNuls = static_cast<std::size_t>(std::ranges::count(octets, '\0'));
        std::ranges::replace(octets, '\0', ' ');
    }
    return std::string_view{octets}.substr(marque);
}

/// A record stands in the text that a family file may hold: what has none is a picture, a text or
/// nothing, whatever its name. In a file that is one, its first line tells.
bool AUnEnregistrement(std::string_view texte, FinDeLigne fin) {
    constexpr std::array Enregistrements{"HEAD"_tag, "INDI"_tag, "FAM"_tag,  "SOUR"_tag,
                                         "NOTE"_tag, "OBJE"_tag, "REPO"_tag, "SUBM"_tag,
                                         "SUBN"_tag, "TRLR"_tag};
    LecteurDeLignes lecteur{texte, fin};
    LigneGedcom ligne;
    for (auto sorte = lecteur.Lire(ligne); sorte != LecteurDeLignes::Sorte::Fin;
         sorte = lecteur.Lire(ligne))
        if (sorte == LecteurDeLignes::Sorte::Ligne && ligne.niveau == 0 &&
            std::ranges::find(Enregistrements, ligne.code) != Enregistrements.end())
            return true;
    return false;
}

/// The submitter of the file becomes the author in the settings of the base.
void EnregistrerAuteur(shell::Session& session, const EnTeteLu& entete,
                       const std::filesystem::path& base) {
    shell::Parametres& parametres = session.parametres;
    const std::filesystem::path chemin = shell::CheminEntier(base);
    parametres.LireParametresBase(chemin);
    parametres.base.personneEnCours = 1;
    parametres.base.deCujus1 = parametres.base.deCujus2 = 0;
    parametres.base.auteur = entete.auteur;
    for (std::size_t i = 0; i < parametres.base.adresse.size(); ++i)
        parametres.base.adresse[i] = i < entete.adresse.size() ? entete.adresse[i] : std::string{};
    if (!parametres.SauverParametresBase(chemin)) shell::DireReglagesRefuses(session);
}

}  // namespace

shell::Issue ImporterGedcom(shell::Session& session, const std::filesystem::path& fichier,
                            const std::filesystem::path& base, RapportImport& rapport) {
    std::optional<std::string> octets = shell::LireTout(fichier);
    if (!octets)
        return shell::Issue::ParSysteme(
            shell::Msg(message::FichierIllisible, shell::CheminAffiche(fichier)));
    return ImporterTexte(session, std::move(*octets), base, rapport);
}

shell::Issue ImporterTexte(shell::Session& session, std::string octets,
                           const std::filesystem::path& base, RapportImport& rapport) {
    const std::string_view texte = Preparer(octets, rapport);
    const std::optional<FinDeLigne> fin = ChercherFinDeLigne(texte);
    if (!fin || !AUnEnregistrement(texte, *fin))
        return shell::Issue::Refusee(shell::Litteral("Fichier GEDCOM inexploitable"_1252));

    EnTeteLu entete;
    shell::Issue issue = FaireBase(
        session, base,
        {shell::Msg(message::TitreImportGedcom), shell::Msg(message::EtatPremiereLecture)},
        [&](storage::Base& nouvelle) {
            PassesImport import{session, nouvelle, texte, *fin, rapport};
            const bool fini = import.Executer();
            entete = import.EnTete();
            return fini;
        });
    if (issue) EnregistrerAuteur(session, entete, base);
    return issue;
}

}  // namespace dorvane::interchange
