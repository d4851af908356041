#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "MnuSoin", Texte, 4250},
    {"MDIForm1", "MnuControle", Texte, 4251},
    {"MDIForm1", "MnuDépannage", Texte, 4252},
    {"MDIForm1", "MnuRéorganiser", Texte, 4253},

    {"FrmControle", "", Texte, 504},
    {"FrmControle", "LblFiltre", Texte, 3065},
    {"FrmControle", "TxtFiltre", Invite, 4264},
    {"FrmControle", "LblSortes", Texte, 4254},
    {"FrmControle", "LstSortes", Acces, 4254},
    {"FrmControle", "LstSortes", Colonne, 4256, 0},
    {"FrmControle", "LstSortes", Colonne, 4257, 1},
    {"FrmControle", "LblAno", Texte, 505},
    {"FrmControle", "GrdAno", Acces, 505},
    {"FrmControle", "GrdAno", Colonne, 4258, 0},
    {"FrmControle", "GrdAno", Colonne, 4256, 1},
    {"FrmControle", "GrdAno", Colonne, 3070, 2},
    {"FrmControle", "GrdAno", Colonne, 4257, 3},
    {"FrmControle", "GrdFiche", Acces, 4277},
    {"FrmControle", "GrdFiche", Colonne, 4275, 0},
    {"FrmControle", "GrdFiche", Colonne, 4276, 1},
    {"FrmControle", "Avancement", Acces, 4269},
    {"FrmControle", "CmdFiche", Texte, 3076},
    {"FrmControle", "CmdAller", Texte, 3075},
    {"FrmControle", "CmdTexte", Texte, 4265},
    {"FrmControle", "CmdRelancer", Texte, 4266},
};

}  // namespace

std::span<const Legende> LegendesSoin() {
    return Table;
}

}  // namespace dorvane::windows
