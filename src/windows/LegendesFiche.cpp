#include "windows/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"ChampsFiche", "LblNom", Texte, 2650},
    {"ChampsFiche", "LblPrénom", Texte, 2651},
    {"ChampsFiche", "LblPrénomAutres", Texte, 2652},
    {"ChampsFiche", "LblSexe", Texte, 2653},
    {"ChampsFiche", "O_Sexe(0)", Texte, 2654},
    {"ChampsFiche", "O_Sexe(1)", Texte, 2655},
    {"ChampsFiche", "O_Sexe(2)", Texte, 2656},
    {"ChampsFiche", "LblNaissance", Texte, 2657},
    {"ChampsFiche", "LblLieuNaiss", Texte, 2658},
    {"ChampsFiche", "LblDécès", Texte, 2659},
    {"ChampsFiche", "LblLieuDécès", Texte, 2660},
    {"ChampsFiche", "T_Nom", Acces, 2602},
    {"ChampsFiche", "T_Prénom", Acces, 2603},
    {"ChampsFiche", "Tx_PrénomAutres", Acces, 2604},
    {"ChampsFiche", "TxtJNaiss", Acces, 2605},
    {"ChampsFiche", "TxtJNaiss", Invite, 2640},
    {"ChampsFiche", "T_Naiss", Acces, 2661},
    {"ChampsFiche", "T_Naiss", Invite, 2641},
    {"ChampsFiche", "TxtLieuNaiss", Acces, 2663},
    {"ChampsFiche", "TxtJDécès", Acces, 2606},
    {"ChampsFiche", "TxtJDécès", Invite, 2640},
    {"ChampsFiche", "T_Décès", Acces, 2662},
    {"ChampsFiche", "T_Décès", Invite, 2641},
    {"ChampsFiche", "TxtLieuDécès", Acces, 2664},

    {"FrmCréation", "", Texte, 2670},
    {"FrmCréation", "LblFaits", Texte, 2671},
    {"FrmCréation", "CmdCréer", Texte, 2672},
    {"FrmCréation", "CmdAnnuler", Texte, 2673},
};

}  // namespace

std::span<const Legende> LegendesFiche() {
    return Table;
}

}  // namespace dorvane::windows
