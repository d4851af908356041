#include "interchange/releves/RemiseGeneanet.h"

#include "interchange/gedcom/ExportGedcom.h"
#include "shell/CycleDeVie.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <system_error>

namespace dorvane::interchange {

namespace {

namespace fs = std::filesystem;

/// Writes the file of the tool, and tells why not.
shell::Issue Exporter(shell::Session& session, const fs::path& sortie) {
    std::error_code erreur;
    fs::create_directories(sortie.parent_path(), erreur);
    OptionsGedcom options;
    options.jeu = JeuDuReglage(session.parametres.generaux.jeuExport);
    options.reduit = true;
    return shell::Dire(session.dialogue, ExporterGedcom(session, sortie, options).issue);
}

/// The report bears the name of the file; one of an earlier run must not pass for this one's.
fs::path PreparerCompteRendu(const fs::path& sortie) {
    fs::path compteRendu = sortie;
    compteRendu.replace_extension(".err");
    std::error_code erreur;
    fs::remove(compteRendu, erreur);
    return compteRendu;
}

}  // namespace

void MnuGeneanet(shell::Session& session, const LancerOutil& lancer,
                 const MontrerFichier& montrer) {
    if (!session.base || !shell::CommandePermise(session)) return;
    // The tool runs in its folder, where a relative name would lead elsewhere.
    const fs::path outil = shell::CheminEntier(session.parametres.generaux.geneanet);
    fs::path sortie = outil / "geneanet" / session.base->Chemin().stem();
    sortie += ".ged";
    if (!Exporter(session, sortie)) return;
    const fs::path compteRendu = PreparerCompteRendu(sortie);
    bool lance = false;
    for (const char* programme : {"perl.exe", "perl"}) {
        lance = lancer({programme, {"ged2gen.pl", sortie.string()}, outil});
        if (lance) break;
    }
    std::error_code erreur;
    if (!lance) {
        session.dialogue.Informer(shell::Litteral("Erreur appel Généanet"_1252));
        return;
    }
    if (fs::exists(compteRendu, erreur)) montrer(compteRendu);
}

}  // namespace dorvane::interchange
