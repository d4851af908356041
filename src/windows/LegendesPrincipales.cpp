#include "windows/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "MnuFichier", Texte, 2001},
    {"MDIForm1", "MnuNouveau", Texte, 2002},
    {"MDIForm1", "MnuOuvrir", Texte, 2003},
    {"MDIForm1", "MnuFermer", Texte, 2004},
    {"MDIForm1", "MnuEnregistrer", Texte, 2005},
    {"MDIForm1", "MnuSauvegarde", Texte, 2006},
    {"MDIForm1", "MnuRestauration", Texte, 2007},
    {"MDIForm1", "MnuImporter", Texte, 2008},
    {"MDIForm1", "MnuQuitter", Texte, 2009},
    {"MDIForm1", "MnuPersonne", Texte, 2010},
    {"MDIForm1", "MnuPrécédent", Texte, 2011},
    {"MDIForm1", "MnuSuivant", Texte, 2012},
    {"MDIForm1", "MnuNoms", Texte, 2013},
    {"MDIForm1", "MnuListe", Texte, 2108},
    {"MDIForm1", "MnuModif", Texte, 2109},
    {"MDIForm1", "MnuNouvInd", Texte, 2110},
    {"MDIForm1", "MnuSupprInd", Texte, 2111},
    {"MDIForm1", "MnuLstEvt", Texte, 2112},
    {"MDIForm1", "MnuLstImage", Texte, 2113},
    {"MDIForm1", "MnuMotsClés", Texte, 2114},
    {"MDIForm1", "MnuUsuels", Texte, 2115},
    {"MDIForm1", "MnuParametres", Texte, 2116},
    {"MDIForm1", "MnuChoixDeCujus", Texte, 2014},
    {"MDIForm1", "MnuAller1_1", Texte, 2015},
    {"MDIForm1", "MnuAller1_2", Texte, 2016},
    {"MDIForm1", "MnuAffichage", Texte, 2017},
    {"MDIForm1", "MnuAgrandir", Texte, 2018},
    {"MDIForm1", "MnuDiminuer", Texte, 2019},
    {"MDIForm1", "MnuAjuster", Texte, 2020},
    {"MDIForm1", "MnuGauche", Texte, 2021},
    {"MDIForm1", "MnuDroite", Texte, 2022},
    {"MDIForm1", "MnuPrésentation", Texte, 2036},
    {"MDIForm1", "MnuPrésentation(1)", Texte, 2023},
    {"MDIForm1", "MnuPrésentation(2)", Texte, 2024},
    {"MDIForm1", "MnuPrésentation(3)", Texte, 2025},
    {"MDIForm1", "MnuPrésentation(4)", Texte, 2026},
    {"MDIForm1", "MnuPalette", Texte, 2027},
    {"MDIForm1", "MnuClassique", Texte, 2028},
    {"MDIForm1", "MnuClaire", Texte, 2029},
    {"MDIForm1", "MnuSombre", Texte, 2030},
    {"MDIForm1", "MnuBarreIcones", Texte, 2031},
    {"MDIForm1", "MnuBarreFenetres", Texte, 2032},
    {"MDIForm1", "MnuOutils", Texte, 2033},
    {"MDIForm1", "MnuCalendrier", Texte, 2034},
    {"MDIForm1", "MnuLng", Texte, 2035},
    {"MDIForm1", "Icones", Texte, 2037},
    {"MDIForm1", "Fenetre", Texte, 2038},
    {"MDIForm1", "CmdAnnuler", Texte, 2050},
    {"MDIForm1", "CmdAnnuler", Bulle, 2052},
    {"MDIForm1", "CmdAccueilOuvrir", Texte, 2045},
    {"MDIForm1", "CmdAccueilNouveau", Texte, 2046},
    {"MDIForm1", "CmdAccueilImporter", Texte, 2047},
    {"MDIForm1", "LblRecentes", Texte, 2042},

    {"FrmRapport", "TxtRapport", Acces, 2246},
    {"FrmRapport", "CmdCopier", Texte, 2081},
    {"FrmRapport", "CmdEnregistrer", Texte, 2082},
    {"FrmRapport", "CmdFermer", Texte, 2083},

    {"FrmPalette", "", Texte, 2090},
    {"FrmPalette", "LblQuestion", Texte, 2091},
    {"FrmPalette", "OptClassique", Texte, 2028},
    {"FrmPalette", "OptClaire", Texte, 2029},
    {"FrmPalette", "OptSombre", Texte, 2030},
    {"FrmPalette", "CmdValider", Texte, 2092},

    {"FrmCalendrier", "", Texte, 2500},
    {"FrmCalendrier", "LblGrégorien", Texte, 2501},
    {"FrmCalendrier", "LblRépublicain", Texte, 2502},
    {"FrmCalendrier", "LblJourG", Texte, 2503},
    {"FrmCalendrier", "LblMoisG", Texte, 2504},
    {"FrmCalendrier", "LblAnnéeG", Texte, 2505},
    {"FrmCalendrier", "LblJourR", Texte, 2506},
    {"FrmCalendrier", "LblMoisR", Texte, 2507},
    {"FrmCalendrier", "LblAnnéeR", Texte, 2508},
    {"FrmCalendrier", "CmdGR", Texte, 2509},
    {"FrmCalendrier", "CmdRG", Texte, 2510},
    {"FrmCalendrier", "CmdFermer", Texte, 2511},
    {"FrmCalendrier", "LblTables", Texte, 2512},
    {"FrmCalendrier", "LstMoisG", Ligne, 730, 0},
    {"FrmCalendrier", "LstMoisG", Ligne, 731, 1},
    {"FrmCalendrier", "LstMoisG", Ligne, 732, 2},
    {"FrmCalendrier", "LstMoisG", Ligne, 733, 3},
    {"FrmCalendrier", "LstMoisG", Ligne, 734, 4},
    {"FrmCalendrier", "LstMoisG", Ligne, 735, 5},
    {"FrmCalendrier", "LstMoisG", Ligne, 736, 6},
    {"FrmCalendrier", "LstMoisG", Ligne, 737, 7},
    {"FrmCalendrier", "LstMoisG", Ligne, 738, 8},
    {"FrmCalendrier", "LstMoisG", Ligne, 739, 9},
    {"FrmCalendrier", "LstMoisG", Ligne, 740, 10},
    {"FrmCalendrier", "LstMoisG", Ligne, 741, 11},
};

}  // namespace

std::span<const Legende> LegendesPrincipales() {
    return Table;
}

}  // namespace dorvane::windows
