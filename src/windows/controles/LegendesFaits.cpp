#include "messages/Dorvane.h"
#include "messages/Faits.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"FrmLstEvt", "", Texte, message::TitreTousLesEvenements},
    {"FrmLstEvt", "LblFiltre", Texte, message::FiltrerListe},
    {"FrmLstEvt", "TxtFiltre", Invite, message::InviteMotsDeLaListe},
    {"FrmLstEvt", "GrdEvts", Acces, message::TitreTousLesEvenements},
    {"FrmLstEvt", "GrdEvts", Colonne, message::ColonneDateListeEvenements, 0},
    {"FrmLstEvt", "GrdEvts", Colonne, message::ColonneTypeFait, 1},
    {"FrmLstEvt", "GrdEvts", Colonne, message::ColonneLibelleListeEvenements, 2},
    {"FrmLstEvt", "GrdEvts", Colonne, message::ColonneLieuListeEvenements, 3},
    {"FrmLstEvt", "GrdEvts", Colonne, message::ColonnePersonnes, 4},
    {"FrmLstEvt", "CmdAjout", Texte, message::BoutonNouveauDansListe},
    {"FrmLstEvt", "CmdMaj", Texte, message::BoutonModifierDansListe},
    {"FrmLstEvt", "CmdSupp", Texte, message::BoutonSupprimerDansListe},
    {"FrmLstEvt", "CmdChoisir", Texte, message::BoutonChoisirDansListe},
    {"FrmLstEvt", "CmdFermer", Texte, message::BoutonFermerListe},

    {"FrmLstImage", "", Texte, message::TitreTousLesDocuments},
    {"FrmLstImage", "LblFiltre", Texte, message::FiltrerListe},
    {"FrmLstImage", "TxtFiltre", Invite, message::InviteMotsDeLaListe},
    {"FrmLstImage", "LstImage", Acces, message::TitreTousLesDocuments},
    {"FrmLstImage", "LstImage", Colonne, message::ColonneTitreListeDocuments, 0},
    {"FrmLstImage", "LstImage", Colonne, message::ColonneTypeFait, 1},
    {"FrmLstImage", "LstImage", Colonne, message::ColonneFichierListeDocuments, 2},
    {"FrmLstImage", "LstImage", Colonne, message::ColonneEtatListeDocuments, 3},
    {"FrmLstImage", "CmdAjout", Texte, message::BoutonNouveauDansListe},
    {"FrmLstImage", "CmdMaj", Texte, message::BoutonModifierDansListe},
    {"FrmLstImage", "CmdOuvrir", Texte, message::BoutonOuvrirFichierListeDocuments},
    {"FrmLstImage", "CmdSupp", Texte, message::BoutonSupprimerDansListe},
    {"FrmLstImage", "CmdUtil", Texte, message::BoutonUtilisations},
    {"FrmLstImage", "DocBase", Texte, message::BoutonTitreDeLaBase},
    {"FrmLstImage", "DocBase", Bulle, message::BulleTitreDeLaBase},
    {"FrmLstImage", "CmdChoisir", Texte, message::BoutonChoisirDansListe},
    {"FrmLstImage", "CmdFermer", Texte, message::BoutonFermerListe},

    {"FrmUtilImage", "", Texte, message::TitreUtilisationsDocument},
    {"FrmUtilImage", "LstUtil", Acces, message::TitreUtilisationsDocument},
    {"FrmUtilImage", "LstUtil", Colonne, message::ColonneTypeFait, 0},
    {"FrmUtilImage", "LstUtil", Colonne, message::ColonneQuiOuQuoi, 1},
    {"FrmUtilImage", "CmdAller", Texte, message::BoutonAller},
    {"FrmUtilImage", "CmdFiche", Texte, message::BoutonOuvrirFiche},
    {"FrmUtilImage", "CmdFermer", Texte, message::BoutonFermerUtilisations},

    {"FrmDesEvt", "LblDate", Texte, message::EvenementDate},
    {"FrmDesEvt", "LblTypeEvt", Texte, message::EvenementType},
    {"FrmDesEvt", "LblLieu", Texte, message::EvenementLieu},
    {"FrmDesEvt", "LblLib", Texte, message::EvenementLibelle},
    {"FrmDesEvt", "LblComment", Texte, message::EvenementCommentaire},
    {"FrmDesEvt", "CmdTxtComment", Texte, message::BoutonAgrandirCommentaire},
    {"FrmDesEvt", "LblPersonnes", Texte, message::PersonnesDeLEvenement},
    {"FrmDesEvt", "LblRole", Texte, message::EvenementRole},
    {"FrmDesEvt", "CmdRechLien", Texte, message::BoutonChoisirPersonneRole},
    {"FrmDesEvt", "CmdRechLien", Bulle, message::BulleChercherPersonneRole},
    {"FrmDesEvt", "CmdCréLien", Texte, message::BoutonCreerPersonneRole},
    {"FrmDesEvt", "CmdMot", Bulle, message::BulleRemplirRubriques},
    {"FrmDesEvt", "CmdMot", Acces, message::BulleRemplirRubriques},
    {"FrmDesEvt", "CmdLienUp", Bulle, message::BulleMonterLigne},
    {"FrmDesEvt", "CmdLienUp", Acces, message::BulleMonterLigne},
    {"FrmDesEvt", "CmdLienDown", Bulle, message::BulleDescendreLigne},
    {"FrmDesEvt", "CmdLienDown", Acces, message::BulleDescendreLigne},
    {"FrmDesEvt", "CmdSupLien", Bulle, message::BulleRetirerPersonneEvenement},
    {"FrmDesEvt", "CmdSupLien", Acces, message::BulleRetirerPersonneEvenement},
    {"FrmDesEvt", "GrdLiens", Acces, message::PersonnesDeLEvenement},
    {"FrmDesEvt", "GrdLiens", Colonne, message::ColonneRolePersonne, 0},
    {"FrmDesEvt", "GrdLiens", Colonne, message::Personne, 1},
    {"FrmDesEvt", "GrdLiens", Colonne, message::ColonneDatesPersonne, 2},
    {"FrmDesEvt", "LblDocuments", Texte, message::DocumentsDeLEvenement},
    {"FrmDesEvt", "CmdRechDoc", Texte, message::BoutonAttacherDocument},
    {"FrmDesEvt", "CmdCréationDoc", Texte, message::BoutonNouveauDocument},
    {"FrmDesEvt", "CmdVoirDoc", Bulle, message::BulleOuvrirFichierDocument},
    {"FrmDesEvt", "CmdVoirDoc", Acces, message::BulleOuvrirFichierDocument},
    {"FrmDesEvt", "CmdDocUp", Bulle, message::BulleMonterLigne},
    {"FrmDesEvt", "CmdDocUp", Acces, message::BulleMonterLigne},
    {"FrmDesEvt", "CmdDocDown", Bulle, message::BulleDescendreLigne},
    {"FrmDesEvt", "CmdDocDown", Acces, message::BulleDescendreLigne},
    {"FrmDesEvt", "CmdSuppDoc", Bulle, message::BulleDetacherDocumentEvenement},
    {"FrmDesEvt", "CmdSuppDoc", Acces, message::BulleDetacherDocumentEvenement},
    {"FrmDesEvt", "LstDoc", Acces, message::DocumentsDeLEvenement},
    {"FrmDesEvt", "LstDoc", Colonne, message::ColonneTitreListeDocuments, 0},
    {"FrmDesEvt", "LstDoc", Colonne, message::ColonneTypeFait, 1},
    {"FrmDesEvt", "LstDoc", Colonne, message::ColonneFichierListeDocuments, 2},
    {"FrmDesEvt", "LstDoc", Colonne, message::ColonneEtatListeDocuments, 3},
    {"FrmDesEvt", "TxtComment", Acces, message::EvenementCommentaire},
    {"FrmDesEvt", "CmdMaj", Texte, message::BoutonEnregistrerEvenement},
    {"FrmDesEvt", "CmdAnnuler", Texte, message::BoutonAnnulerSaisie},

    {"FrmDesImage", "LblIntitulé", Texte, message::DocumentTitre},
    {"FrmDesImage", "LblNomfic", Texte, message::DocumentFichier},
    {"FrmDesImage", "CmdFichier", Texte, message::BoutonParcourirFichier},
    {"FrmDesImage", "ChkOle", Texte, message::DocumentParFichierDeLien},
    {"FrmDesImage", "LblTypeDoc", Texte, message::DocumentType},
    {"FrmDesImage", "LblComment", Texte, message::DocumentCommentaire},
    {"FrmDesImage", "TxtComment", Acces, message::DocumentCommentaire},
    {"FrmDesImage", "CmdTxtComment", Texte, message::BoutonAgrandirCommentaire},
    {"FrmDesImage", "LblApercu", Acces, message::ApercuDocument},
    {"FrmDesImage", "CmdOuvrir", Texte, message::BoutonOuvrirFichierFicheDocument},
    {"FrmDesImage", "CmdValider", Texte, message::BoutonEnregistrerDocument},
    {"FrmDesImage", "CmdAnnuler", Texte, message::BoutonAnnulerSaisie},

    {"FrmMot", "", Texte, message::TitreRubriquesFiche},
    {"FrmMot", "LblVide", Texte, message::AucuneRubriqueChoisie},
    {"FrmMot", "CmdReprendre", Texte, message::BoutonReprendreEvenement},
    {"FrmMot", "CmdReprendre", Bulle, message::BulleReprendreEvenement},
    {"FrmMot", "CmdValider", Texte, message::BoutonEnregistrerEvenement},
    {"FrmMot", "CmdAnnuler", Texte, message::BoutonAnnulerSaisie},
};

}  // namespace

std::span<const Legende> LegendesFaits() {
    return Table;
}

}  // namespace dorvane::windows
