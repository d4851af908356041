// The entries of the main window that import surveys and hand the base over to another tool.
#include "interchange/commandes/Importer.h"
#include "interchange/releves/RemiseGeneanet.h"
#include "messages/Dorvane.h"
#include "messages/Releve.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "shell/Session.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/OuvrirTexte.h"
#include "windows/controles/Unicode.h"
#include "windows/echange/FrmReleve.h"
#include "windows/echange/LanceurOutil.h"

#include <optional>
#include <string>
#include <utility>

namespace dorvane::windows {

/// The file is chosen, shown with what would come of it, and imported.
void MDIForm1::ImporterActes(interchange::SorteReleve sorte) {
    shell::DemandeFichier demande;
    demande.titre = shell::Msg(message::TitreChoisirFichierReleve);
    demande.filtre = "Texte (*.txt, *.csv)|*.txt;*.csv";
    demande.extension = ".txt";
    const std::optional<std::filesystem::path> fichier = session_.dialogue.ChoisirFichier(demande);
    if (!fichier) return;
    std::optional<std::string> octets = shell::LireTout(*fichier);
    if (!octets) {
        session_.dialogue.Informer(
            shell::Msg(message::FichierIllisible, Utf8VersTexte(fichier->string()).octets));
        return;
    }
    FrmReleve apercu{session_, sorte, std::move(*octets),
                     QString::fromStdString(fichier->filename().string()), this};
    if (apercu.exec() != QDialog::Accepted) return;
    interchange::ImporterActes(session_, apercu.Lu(), *fichier);
}

void MDIForm1::Geneanet() {
    interchange::MnuGeneanet(
        session_,
        [this](const interchange::AppelOutil& appel) { return LancerEtAttendre(session_, appel); },
        [this](const std::filesystem::path& fichier) {
            OuvrirTexte(session_, fichier, TexteEcran(session_, message::TitreRemiseGeneanet),
                        *this);
        });
}

}  // namespace dorvane::windows
