#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "MnuFichier", Texte, message::MenuFichier},
    {"MDIForm1", "MnuNouveau", Texte, message::MenuNouvelleBase},
    {"MDIForm1", "MnuOuvrir", Texte, message::MenuOuvrirBase},
    {"MDIForm1", "MnuFermer", Texte, message::MenuFermerBase},
    {"MDIForm1", "MnuEnregistrer", Texte, message::MenuEnregistrerBase},
    {"MDIForm1", "MnuSauvegarde", Texte, message::MenuSauvegarder},
    {"MDIForm1", "MnuRestauration", Texte, message::MenuRestaurerSauvegarde},
    {"MDIForm1", "MnuImporter", Texte, message::MenuImporter},
    {"MDIForm1", "MnuQuitter", Texte, message::MenuQuitter},
    {"MDIForm1", "MnuPersonne", Texte, message::MenuPersonne},
    {"MDIForm1", "MnuPrécédent", Texte, message::MenuPersonnePrecedente},
    {"MDIForm1", "MnuSuivant", Texte, message::MenuPersonneSuivante},
    {"MDIForm1", "MnuNoms", Texte, message::MenuTousLesNoms},
    {"MDIForm1", "MnuListe", Texte, message::MenuListeParNom},
    {"MDIForm1", "MnuModif", Texte, message::MenuModifierFiche},
    {"MDIForm1", "MnuNouvInd", Texte, message::MenuNouvellePersonne},
    {"MDIForm1", "MnuSupprInd", Texte, message::MenuSupprimerPersonne},
    {"MDIForm1", "MnuLstEvt", Texte, message::MenuEvenements},
    {"MDIForm1", "MnuLstImage", Texte, message::MenuDocuments},
    {"MDIForm1", "MnuMotsClés", Texte, message::MenuMotsCles},
    {"MDIForm1", "MnuUsuels", Texte, message::MenuMotsUsuels},
    {"MDIForm1", "MnuParametres", Texte, message::MenuReglages},
    {"MDIForm1", "MnuChoixDeCujus", Texte, message::MenuChoisirDeCujus},
    {"MDIForm1", "MnuAller1_1", Texte, message::MenuPremierDeCujus},
    {"MDIForm1", "MnuAller1_2", Texte, message::MenuSecondDeCujus},
    {"MDIForm1", "MnuAffichage", Texte, message::MenuAffichage},
    {"MDIForm1", "MnuAgrandir", Texte, message::MenuAgrandir},
    {"MDIForm1", "MnuDiminuer", Texte, message::MenuDiminuer},
    {"MDIForm1", "MnuAjuster", Texte, message::MenuAjusterALaFenetre},
    {"MDIForm1", "MnuGauche", Texte, message::MenuPlusDeDescendants},
    {"MDIForm1", "MnuDroite", Texte, message::MenuPlusDAscendants},
    {"MDIForm1", "MnuPrésentation", Texte, message::MenuPresentation},
    {"MDIForm1", "MnuPrésentation(1)", Texte, message::MenuPresentationGrandesCases},
    {"MDIForm1", "MnuPrésentation(2)", Texte, message::MenuPresentationCasesMoyennes},
    {"MDIForm1", "MnuPrésentation(3)", Texte, message::MenuPresentationPetitesCases},
    {"MDIForm1", "MnuPrésentation(4)", Texte, message::MenuPresentationUneLigne},
    {"MDIForm1", "MnuPalette", Texte, message::MenuCouleursGraphe},
    {"MDIForm1", "MnuClassique", Texte, message::MenuPaletteClassique},
    {"MDIForm1", "MnuClaire", Texte, message::MenuPaletteClaire},
    {"MDIForm1", "MnuSombre", Texte, message::MenuPaletteSombre},
    {"MDIForm1", "MnuBarreIcones", Texte, message::MenuBarreIcones},
    {"MDIForm1", "MnuBarreFenetres", Texte, message::MenuBarreFenetres},
    {"MDIForm1", "MnuOutils", Texte, message::MenuOutils},
    {"MDIForm1", "MnuCalendrier", Texte, message::MenuCalendrierRepublicain},
    {"MDIForm1", "MnuLng", Texte, message::MenuLangue},
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
