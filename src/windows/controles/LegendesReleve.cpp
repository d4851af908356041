#include "messages/Releve.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "MnuRelevés", Texte, message::MenuReleves},
    {"MDIForm1", "MnuBaptème", Texte, message::MenuReleveBaptemes},
    {"MDIForm1", "MnuRelevéMariage", Texte, message::MenuReleveMariages},
    {"MDIForm1", "MnuSépulture", Texte, message::MenuReleveSepultures},
    {"MDIForm1", "MnuRelevéAscendance", Texte, message::MenuReleveAscendance},
    {"MDIForm1", "MnuGénéanet", Texte, message::MenuRemettreAGeneanet},

    {"FrmRelevé", "", Texte, message::TitreReleveAImporter},
    {"FrmRelevé", "LblSorte", Texte, message::SorteDeReleve},
    {"FrmRelevé", "GrdLignes", Acces, message::LignesDuReleve},
    {"FrmRelevé", "CmdImporter", Texte, message::BoutonImporterReleve},
    {"FrmRelevé", "CmdAnnuler", Texte, message::BoutonAnnulerReleve},
};

}  // namespace

std::span<const Legende> LegendesReleve() {
    return Table;
}

}  // namespace dorvane::windows
