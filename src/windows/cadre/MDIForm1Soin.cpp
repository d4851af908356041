// The entries of the main window that look after a base: check, repair and reorganisation.
#include "messages/Controle.h"
#include "records/Depannage.h"
#include "shell/Reorganisation.h"
#include "shell/Session.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/OuvrirTexte.h"
#include "windows/soin/FrmControle.h"

namespace dorvane::windows {

void MDIForm1::Controle() {
    Montrer<FrmControle>().Controler();
}

void MDIForm1::Depannage() {
    const records::BilanDepannage bilan = records::MnuDepannage(session_);
    if (!bilan.issue) return;
    RelireTout(nullptr);
    if (!bilan.journal.empty())
        OuvrirTexte(session_, bilan.journal,
                    TexteEcran(session_, message::TitreCompteRenduDepannage), *this);
}

void MDIForm1::Reorganiser() {
    shell::MnuReorganiser(session_);
}

}  // namespace dorvane::windows
