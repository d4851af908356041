#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "Icones", Texte, message::TitreBarreIcones},
    {"MDIForm1", "Fenetre", Texte, message::TitreFenetresOuvertes},
    {"MDIForm1", "CmdAnnuler", Texte, message::BoutonAnnulerTraitement},
    {"MDIForm1", "CmdAnnuler", Bulle, message::BulleArreterTraitement},
    {"MDIForm1", "CmdAccueilPersonne", Texte, message::BoutonCreerPremierePersonne},
    {"MDIForm1", "CmdAccueilOuvrir", Texte, message::BoutonOuvrirBase},
    {"MDIForm1", "CmdAccueilNouveau", Texte, message::BoutonCreerBase},
    {"MDIForm1", "CmdAccueilImporter", Texte, message::BoutonImporterGedcom},
    {"MDIForm1", "LblRecentes", Texte, message::TitreBasesRecentes},

    {"FrmRapport", "TxtRapport", Acces, message::TitreRapportImport},
    {"FrmRapport", "CmdCopier", Texte, message::BoutonCopierRapport},
    {"FrmRapport", "CmdEnregistrer", Texte, message::BoutonEnregistrerRapportSous},
    {"FrmRapport", "CmdFermer", Texte, message::BoutonFermerRapport},

    {"FrmPalette", "", Texte, message::TitreCouleursGraphe},
    {"FrmPalette", "LblQuestion", Texte, message::DemanderCouleursGraphe},
    {"FrmPalette", "OptClassique", Texte, message::MenuPaletteClassique},
    {"FrmPalette", "OptClaire", Texte, message::MenuPaletteClaire},
    {"FrmPalette", "OptSombre", Texte, message::MenuPaletteSombre},
    {"FrmPalette", "CmdValider", Texte, message::BoutonUtiliserCouleurs},

    {"FrmCalendrier", "", Texte, message::TitreCalendrierRepublicain},
    {"FrmCalendrier", "LblGrégorien", Texte, message::TitreDateGregorienne},
    {"FrmCalendrier", "LblRépublicain", Texte, message::TitreDateRepublicaine},
    {"FrmCalendrier", "LblJourG", Texte, message::JourGregorien},
    {"FrmCalendrier", "LblMoisG", Texte, message::MoisGregorien},
    {"FrmCalendrier", "LblAnnéeG", Texte, message::AnneeGregorienne},
    {"FrmCalendrier", "LblJourR", Texte, message::JourRepublicain},
    {"FrmCalendrier", "LblMoisR", Texte, message::MoisRepublicain},
    {"FrmCalendrier", "LblAnnéeR", Texte, message::AnneeRepublicaine},
    {"FrmCalendrier", "CmdGR", Texte, message::BoutonVersRepublicain},
    {"FrmCalendrier", "CmdRG", Texte, message::BoutonVersGregorien},
    {"FrmCalendrier", "CmdFermer", Texte, message::BoutonFermerCalendrier},
    {"FrmCalendrier", "LblTables", Texte, message::LimitesDuCalendrier},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagJAN, 0},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagFEB, 1},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagMAR, 2},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagAPR, 3},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagMAY, 4},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagJUN, 5},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagJUL, 6},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagAUG, 7},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagSEP, 8},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagOCT, 9},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagNOV, 10},
    {"FrmCalendrier", "LstMoisG", Ligne, message::TagDEC, 11},
};

}  // namespace

std::span<const Legende> LegendesPrincipales() {
    return Table;
}

}  // namespace dorvane::windows
