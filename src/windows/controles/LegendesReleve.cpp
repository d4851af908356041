#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "MnuRelevés", Texte, 4199},
    {"MDIForm1", "MnuBaptème", Texte, 4195},
    {"MDIForm1", "MnuRelevéMariage", Texte, 4196},
    {"MDIForm1", "MnuSépulture", Texte, 4197},
    {"MDIForm1", "MnuRelevéAscendance", Texte, 4198},
    {"MDIForm1", "MnuGénéanet", Texte, 4180},

    {"FrmRelevé", "", Texte, 4185},
    {"FrmRelevé", "LblSorte", Texte, 4186},
    {"FrmRelevé", "GrdLignes", Acces, 4187},
    {"FrmRelevé", "CmdImporter", Texte, 4192},
    {"FrmRelevé", "CmdAnnuler", Texte, 4193},
};

}  // namespace

std::span<const Legende> LegendesReleve() {
    return Table;
}

}  // namespace dorvane::windows
