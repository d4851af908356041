#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"FrmTexte", "", Texte, 3250},
    {"FrmTexte", "TxtTexte", Acces, 3250},
    {"FrmTexte", "Sauve", Texte, 3251},
    {"FrmTexte", "Abandon", Texte, 3252},
    {"FrmTexte", "Gras", Texte, 3253},
    {"FrmTexte", "Souligné", Texte, 3254},
    {"FrmTexte", "Italique", Texte, 3255},
    {"FrmTexte", "Gauche", Texte, 3256},
    {"FrmTexte", "Centre", Texte, 3257},
    {"FrmTexte", "Droite", Texte, 3258},
    {"FrmTexte", "Couper", Texte, 3259},
    {"FrmTexte", "Copier", Texte, 3260},
    {"FrmTexte", "Coller", Texte, 3261},
    {"FrmTexte", "Défaire", Texte, 3262},
    {"FrmTexte", "Refaire", Texte, 3263},
    {"FrmTexte", "Rubriques", Texte, 3264},
    {"FrmTexte", "LstMot", Acces, 3264},
    {"FrmTexte", "CmdFermerMots", Bulle, 3272},
    {"FrmTexte", "CmdFermerMots", Acces, 3272},
    {"FrmTexte", "CmdSauve", Texte, 3273},
    {"FrmTexte", "CmdAbandon", Texte, 3274},

    {"FrmUsuels", "", Texte, 3240},
    {"FrmUsuels", "LblRubrique", Texte, 3241},
    {"FrmUsuels", "LblMots", Texte, 3242},
    {"FrmUsuels", "LblMot", Texte, 3243},
    {"FrmUsuels", "CmdMotNouveau", Texte, 3244},
    {"FrmUsuels", "CmdMotSup", Texte, 3245},
    {"FrmUsuels", "LblNouvRubr", Texte, 3246},
    {"FrmUsuels", "CmdNouvRubr", Texte, 3247},
    {"FrmUsuels", "CmdSupRub", Texte, 3248},
    {"FrmUsuels", "CmdFermer", Texte, 3225},

    {"FrmMotClé", "", Texte, 3210},
    {"FrmMotClé", "LblMots", Texte, 3211},
    {"FrmMotClé", "LstMClé", Colonne, 3226, 0},
    {"FrmMotClé", "LstMClé", Colonne, 3227, 1},
    {"FrmMotClé", "LstMClé", Colonne, 3228, 2},
    {"FrmMotClé", "CmdMotUp", Bulle, 3218},
    {"FrmMotClé", "CmdMotUp", Acces, 3218},
    {"FrmMotClé", "CmdMotDown", Bulle, 3219},
    {"FrmMotClé", "CmdMotDown", Acces, 3219},
    {"FrmMotClé", "LblLibellé", Texte, 3212},
    {"FrmMotClé", "LblCode", Texte, 3213},
    {"FrmMotClé", "LblAideCode", Texte, 3231},
    {"FrmMotClé", "ChxIndex", Texte, 3214},
    {"FrmMotClé", "C_Ajout", Texte, 3215},
    {"FrmMotClé", "C_Maj", Texte, 3216},
    {"FrmMotClé", "C_Supp", Texte, 3217},
    {"FrmMotClé", "ChkDatée", Texte, 3229},
    {"FrmMotClé", "ChkDatée", Bulle, 3233},
    {"FrmMotClé", "LblInd", Texte, 3220},
    {"FrmMotClé", "GrdDonnéeInd", Acces, 3220},
    {"FrmMotClé", "CmdAjtMotInd", Bulle, 3222},
    {"FrmMotClé", "CmdAjtMotInd", Acces, 3222},
    {"FrmMotClé", "CmdSupMotInd", Bulle, 3224},
    {"FrmMotClé", "CmdSupMotInd", Acces, 3224},
    {"FrmMotClé", "CmdMotIndUp", Bulle, 3218},
    {"FrmMotClé", "CmdMotIndUp", Acces, 3218},
    {"FrmMotClé", "CmdMotIndDown", Bulle, 3219},
    {"FrmMotClé", "CmdMotIndDown", Acces, 3219},
    {"FrmMotClé", "LblMar", Texte, 3221},
    {"FrmMotClé", "GrdDonnéeMar", Acces, 3221},
    {"FrmMotClé", "CmdAjtMotMar", Bulle, 3223},
    {"FrmMotClé", "CmdAjtMotMar", Acces, 3223},
    {"FrmMotClé", "CmdSupMotMar", Bulle, 3224},
    {"FrmMotClé", "CmdSupMotMar", Acces, 3224},
    {"FrmMotClé", "CmdMotMarUp", Bulle, 3218},
    {"FrmMotClé", "CmdMotMarUp", Acces, 3218},
    {"FrmMotClé", "CmdMotMarDown", Bulle, 3219},
    {"FrmMotClé", "CmdMotMarDown", Acces, 3219},
    {"FrmMotClé", "CmdFermer", Texte, 3225},
};

}  // namespace

std::span<const Legende> LegendesMots() {
    return Table;
}

}  // namespace dorvane::windows
