#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "MnuCommunes", Texte, 4031},

    {"FrmCommune", "", Texte, 4030},
    {"FrmCommune", "LblCherche", Texte, 4032},
    {"FrmCommune", "TxtCherche", Invite, 4033},
    {"FrmCommune", "TxtCherche", Acces, 4032},
    {"FrmCommune", "ChkSon", Texte, 4034},
    {"FrmCommune", "ChkSon", Bulle, 4035},
    {"FrmCommune", "LstCommunes", Acces, 4030},
    {"FrmCommune", "LstCommunes", Colonne, 4041, 0},
    {"FrmCommune", "LstCommunes", Colonne, 4042, 1},
    {"FrmCommune", "LstCommunes", Colonne, 4043, 2},
    {"FrmCommune", "LstCommunes", Colonne, 4044, 3},
    {"FrmCommune", "LstCommunes", Colonne, 4045, 4},
    {"FrmCommune", "LblNom", Texte, 4046},
    {"FrmCommune", "TxtNom", Acces, 4046},
    {"FrmCommune", "LblRattachement", Texte, 4047},
    {"FrmCommune", "TxtRattachement", Acces, 4047},
    {"FrmCommune", "CmdRattachement", Bulle, 4053},
    {"FrmCommune", "CmdRattachement", Acces, 4053},
    {"FrmCommune", "LblPrecision", Texte, 4048},
    {"FrmCommune", "TxtPrecision", Invite, 4052},
    {"FrmCommune", "TxtPrecision", Acces, 4048},
    {"FrmCommune", "LblCode", Texte, 4049},
    {"FrmCommune", "TxtCode", Acces, 4049},
    {"FrmCommune", "LblAutreCode", Texte, 4050},
    {"FrmCommune", "TxtAutreCode", Acces, 4050},
    {"FrmCommune", "LblCommentaire", Texte, 4051},
    {"FrmCommune", "TxtCommentaire", Acces, 4051},
    {"FrmCommune", "MnuMaj", Texte, 4057},
    {"FrmCommune", "MnuMaj", Bulle, 4058},
    {"FrmCommune", "CmdNouvelle", Texte, 4059},
    {"FrmCommune", "CmdSupprimer", Texte, 4060},
    {"FrmCommune", "CmdListe", Texte, 4061},
    {"FrmCommune", "MnuAjouterListe", Texte, 4062},
    {"FrmCommune", "MnuRemplacerListe", Texte, 4063},
    {"FrmCommune", "CmdReorganiser", Texte, 4064},
    {"FrmCommune", "CmdReorganiser", Bulle, 4065},
    {"FrmCommune", "CmdFermer", Texte, 4072},
};

}  // namespace

std::span<const Legende> LegendesCommunes() {
    return Table;
}

}  // namespace dorvane::windows
