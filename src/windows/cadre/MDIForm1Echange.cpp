// The entries of the main window that export the base and merge a file into it.
#include "interchange/commandes/IntegrerLgr.h"
#include "shell/CycleDeVie.h"
#include "shell/Session.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/controles/CadreAvancement.h"
#include "windows/controles/ModelePersonnes.h"
#include "windows/echange/FrmExporter.h"
#include "windows/personnes/FrmRecherche.h"

#include <string>

namespace dorvane::windows {

/// Null when no export can be prepared now.
FrmExporter* MDIForm1::FenetreExport() {
    if (!session_.base || !shell::CommandePermise(session_)) return nullptr;
    auto& fenetre = Montrer<FrmExporter>();
    connect(&fenetre, &FrmExporter::annulationDemandee, cadre_,
            &CadreAvancement::annulationDemandee, Qt::UniqueConnection);
    connect(cadre_, &CadreAvancement::montre, &fenetre, &FrmExporter::DireAvancement,
            Qt::UniqueConnection);
    return &fenetre;
}

void MDIForm1::Exporter() {
    FenetreExport();
}

void MDIForm1::ExporterListe(const std::vector<NoOrdre>& liste) {
    if (FrmExporter* fenetre = FenetreExport()) fenetre->Selectionner(liste);
}

/// The list of the search of names is what is selected, when it is open.
void MDIForm1::ExporterSelectif() {
    std::vector<NoOrdre> liste;
    const auto* recherche = findChild<FrmRecherche*>(QString{}, Qt::FindDirectChildrenOnly);
    if (recherche != nullptr && recherche->isVisible())
        if (const auto* modele = recherche->findChild<ModelePersonnes*>())
            for (int rangee = 0; rangee < modele->rowCount({}); ++rangee)
                liste.push_back(modele->Individu(rangee));
    ExporterListe(liste);
}

void MDIForm1::Integrer() {
    interchange::MnuIntegrer(session_);
    RelireTout(nullptr);
}

}  // namespace dorvane::windows
