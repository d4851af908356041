#include "windows/controles/TablesLegendes.h"

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

    {"FrmMisajour", "LblPère", Texte, 2700},
    {"FrmMisajour", "LblMère", Texte, 2702},
    {"FrmMisajour", "CmdSupprimer", Texte, 2682},
    {"FrmMisajour", "CmdFermer", Texte, 2699},

    {"PageFaits", "LblFaits", Texte, 2671},
    {"PageFaits", "LblNote", Texte, 2703},
    {"PageFaits", "TxtInd", Acces, 2703},
    {"PageFaits", "C_Texte", Texte, 2704},

    {"PageUnions", "LblConjoints", Texte, 2705},
    {"PageUnions", "L_Conjoint", Acces, 2705},
    {"PageUnions", "L_Conjoint", Colonne, 2723, 0},
    {"PageUnions", "L_Conjoint", Colonne, 2724, 1},
    {"PageUnions", "LblUnion", Texte, 2706},
    {"PageUnions", "LblDateMar", Texte, 2707},
    {"PageUnions", "TxtJMar", Invite, 2640},
    {"PageUnions", "T_Dmar", Invite, 2641},
    {"PageUnions", "T_Dmar", Acces, 2728},
    {"PageUnions", "LblFinMar", Texte, 2708},
    {"PageUnions", "T_Fmar", Invite, 2641},
    {"PageUnions", "T_Fmar", Acces, 2729},
    {"PageUnions", "LblLieuMar", Texte, 2709},
    {"PageUnions", "LblTxtMar", Texte, 2721},
    {"PageUnions", "TxtMar", Acces, 2721},
    {"PageUnions", "C_TexteMar", Texte, 2704},
    {"PageUnions", "LblEnfants", Texte, 2720},
    {"PageUnions", "L_Enfants", Acces, 2720},
    {"PageUnions", "L_Enfants", Colonne, 2725, 0},
    {"PageUnions", "L_Enfants", Colonne, 2726, 1},
    {"PageUnions", "L_Enfants", Colonne, 2727, 2},

    {"PageLiens", "GrdLiens", Acces, 2695},
    {"PageLiens", "GrdLiens", Colonne, 2736, 0},
    {"PageLiens", "GrdLiens", Colonne, 2737, 1},
    {"PageLiens", "LblLien", Texte, 2730},
    {"PageLiens", "CmdLienAjout", Texte, 2731},
    {"PageLiens", "CmdLienSup", Texte, 2732},

    {"FrmNouveauLien", "LblLien", Texte, 2730},
    {"FrmNouveauLien", "CmdValider", Texte, 2738},
    {"FrmNouveauLien", "CmdAnnuler", Texte, 2739},

    {"PageEvts", "GrdEvts", Acces, 2696},
    {"PageEvts", "GrdEvts", Colonne, 2743, 0},
    {"PageEvts", "GrdEvts", Colonne, 2744, 1},
    {"PageEvts", "GrdEvts", Colonne, 2745, 2},
    {"PageEvts", "GrdEvts", Colonne, 2746, 3},
    {"PageEvts", "GrdEvts", Colonne, 2747, 4},
    {"PageEvts", "CmdEvtAjout", Texte, 2740},
    {"PageEvts", "CmdEvtMaj", Texte, 2741},
    {"PageEvts", "CmdEvtSup", Texte, 2742},

    {"PageDocuments", "LstImage", Acces, 2697},
    {"PageDocuments", "LstImage", Colonne, 2754, 0},
    {"PageDocuments", "LstImage", Colonne, 2755, 1},
    {"PageDocuments", "LstImage", Colonne, 2756, 2},
    {"PageDocuments", "CmdImageAjout", Texte, 2750},
    {"PageDocuments", "CmdImageMaj", Texte, 2751},
    {"PageDocuments", "CmdImageVoir", Texte, 2752},
    {"PageDocuments", "CmdImageSup", Texte, 2753},

    {"PageFratrie", "GrdFratrie", Acces, 2698},
    {"PageFratrie", "GrdFratrie", Colonne, 2770, 0},
    {"PageFratrie", "GrdFratrie", Colonne, 2771, 1},
    {"PageFratrie", "GrdFratrie", Colonne, 2772, 2},
};

}  // namespace

std::span<const Legende> LegendesFiche() {
    return Table;
}

}  // namespace dorvane::windows
