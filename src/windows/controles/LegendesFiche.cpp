#include "messages/Fiche.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"ChampsFiche", "LblNom", Texte, message::FicheNom},
    {"ChampsFiche", "LblPrénom", Texte, message::FichePrenoms},
    {"ChampsFiche", "LblPrénomAutres", Texte, message::FicheAutresPrenoms},
    {"ChampsFiche", "LblSexe", Texte, message::FicheSexe},
    {"ChampsFiche", "O_Sexe(0)", Texte, message::BoutonSexeHomme},
    {"ChampsFiche", "O_Sexe(1)", Texte, message::BoutonSexeFemme},
    {"ChampsFiche", "O_Sexe(2)", Texte, message::BoutonSexeIndetermine},
    {"ChampsFiche", "LblNaissance", Texte, message::FicheNaissance},
    {"ChampsFiche", "LblLieuNaiss", Texte, message::FicheLieuNaissance},
    {"ChampsFiche", "LblDécès", Texte, message::FicheDeces},
    {"ChampsFiche", "LblLieuDécès", Texte, message::FicheLieuDeces},
    {"ChampsFiche", "T_Nom", Acces, message::ChampNom},
    {"ChampsFiche", "T_Prénom", Acces, message::ChampPrenoms},
    {"ChampsFiche", "Tx_PrénomAutres", Acces, message::ChampAutresPrenoms},
    {"ChampsFiche", "TxtJNaiss", Acces, message::ChampJourMoisNaissance},
    {"ChampsFiche", "TxtJNaiss", Invite, message::InviteJourEtMoisFiche},
    {"ChampsFiche", "T_Naiss", Acces, message::AccesAnneeNaissance},
    {"ChampsFiche", "T_Naiss", Invite, message::InviteAnneeFiche},
    {"ChampsFiche", "TxtLieuNaiss", Acces, message::AccesLieuNaissance},
    {"ChampsFiche", "TxtJDécès", Acces, message::ChampJourMoisDeces},
    {"ChampsFiche", "TxtJDécès", Invite, message::InviteJourEtMoisFiche},
    {"ChampsFiche", "T_Décès", Acces, message::AccesAnneeDeces},
    {"ChampsFiche", "T_Décès", Invite, message::InviteAnneeFiche},
    {"ChampsFiche", "TxtLieuDécès", Acces, message::AccesLieuDeces},

    {"FrmCréation", "", Texte, message::TitreNouvellePersonne},
    {"FrmCréation", "LblFaits", Texte, message::EnTeteFaits},
    {"FrmCréation", "CmdCréer", Texte, message::BoutonCreerPersonne},
    {"FrmCréation", "CmdAnnuler", Texte, message::BoutonAnnulerCreation},

    {"FrmMisajour", "LblPère", Texte, message::FichePere},
    {"FrmMisajour", "LblMère", Texte, message::FicheMere},
    {"FrmMisajour", "CmdSupprimer", Texte, message::BoutonSupprimerPersonne},
    {"FrmMisajour", "CmdFermer", Texte, message::BoutonFermerFiche},

    {"PageFaits", "LblFaits", Texte, message::EnTeteFaits},
    {"PageFaits", "LblNote", Texte, message::FicheNote},
    {"PageFaits", "TxtInd", Acces, message::FicheNote},
    {"PageFaits", "C_Texte", Texte, message::BoutonGrandEditeur},

    {"PageUnions", "LblConjoints", Texte, message::EnTeteConjoints},
    {"PageUnions", "L_Conjoint", Acces, message::EnTeteConjoints},
    {"PageUnions", "L_Conjoint", Colonne, message::ColonneConjoint, 0},
    {"PageUnions", "L_Conjoint", Colonne, message::ColonneAnneeUnion, 1},
    {"PageUnions", "LblUnion", Texte, message::EnTeteUnion},
    {"PageUnions", "LblDateMar", Texte, message::UnionDate},
    {"PageUnions", "TxtJMar", Invite, message::InviteJourEtMoisFiche},
    {"PageUnions", "T_Dmar", Invite, message::InviteAnneeFiche},
    {"PageUnions", "T_Dmar", Acces, message::AccesAnneeDebutUnion},
    {"PageUnions", "LblFinMar", Texte, message::UnionJusquEn},
    {"PageUnions", "T_Fmar", Invite, message::InviteAnneeFiche},
    {"PageUnions", "T_Fmar", Acces, message::AccesAnneeFinUnion},
    {"PageUnions", "LblLieuMar", Texte, message::UnionLieu},
    {"PageUnions", "LblTxtMar", Texte, message::EnTeteNoteUnion},
    {"PageUnions", "TxtMar", Acces, message::EnTeteNoteUnion},
    {"PageUnions", "C_TexteMar", Texte, message::BoutonGrandEditeur},
    {"PageUnions", "LblEnfants", Texte, message::EnTeteEnfants},
    {"PageUnions", "L_Enfants", Acces, message::EnTeteEnfants},
    {"PageUnions", "L_Enfants", Colonne, message::ColonneEnfant, 0},
    {"PageUnions", "L_Enfants", Colonne, message::ColonneDatesEnfant, 1},
    {"PageUnions", "L_Enfants", Colonne, message::ColonneAutreParent, 2},

    {"PageLiens", "GrdLiens", Acces, message::TitrePageLiens},
    {"PageLiens", "GrdLiens", Colonne, message::ColonnePersonneLiee, 0},
    {"PageLiens", "GrdLiens", Colonne, message::ColonneQualiteLien, 1},
    {"PageLiens", "LblLien", Texte, message::QualiteDuLien},
    {"PageLiens", "CmdLienAjout", Texte, message::BoutonLierAUnePersonne},
    {"PageLiens", "CmdLienSup", Texte, message::BoutonRetirerLien},

    {"FrmNouveauLien", "LblLien", Texte, message::QualiteDuLien},
    {"FrmNouveauLien", "CmdValider", Texte, message::BoutonLier},
    {"FrmNouveauLien", "CmdAnnuler", Texte, message::BoutonAnnulerLien},

    {"PageEvts", "GrdEvts", Acces, message::TitrePageEvenements},
    {"PageEvts", "GrdEvts", Colonne, message::ColonneDatePageEvenements, 0},
    {"PageEvts", "GrdEvts", Colonne, message::ColonneTypePageEvenements, 1},
    {"PageEvts", "GrdEvts", Colonne, message::ColonneRolePageEvenements, 2},
    {"PageEvts", "GrdEvts", Colonne, message::ColonneLieuPageEvenements, 3},
    {"PageEvts", "GrdEvts", Colonne, message::ColonneLibellePageEvenements, 4},
    {"PageEvts", "CmdEvtAjout", Texte, message::BoutonAjouterEvenement},
    {"PageEvts", "CmdEvtMaj", Texte, message::BoutonOuvrirEvenement},
    {"PageEvts", "CmdEvtSup", Texte, message::BoutonRetirerDeLEvenement},

    {"PageDocuments", "LstImage", Acces, message::TitrePageDocuments},
    {"PageDocuments", "LstImage", Colonne, message::ColonneTitrePageDocuments, 0},
    {"PageDocuments", "LstImage", Colonne, message::ColonneTypePageDocuments, 1},
    {"PageDocuments", "LstImage", Colonne, message::ColonneFichierPageDocuments, 2},
    {"PageDocuments", "CmdImageAjout", Texte, message::BoutonAjouterDocument},
    {"PageDocuments", "CmdImageMaj", Texte, message::BoutonModifierDocument},
    {"PageDocuments", "CmdImageVoir", Texte, message::BoutonAfficherDocument},
    {"PageDocuments", "CmdImageSup", Texte, message::BoutonDetacherDocument},

    {"PageFratrie", "GrdFratrie", Acces, message::TitrePageFratrie},
    {"PageFratrie", "GrdFratrie", Colonne, message::ColonnePersonneFratrie, 0},
    {"PageFratrie", "GrdFratrie", Colonne, message::ColonneDatesFratrie, 1},
    {"PageFratrie", "GrdFratrie", Colonne, message::ColonneParentsCommuns, 2},
};

}  // namespace

std::span<const Legende> LegendesFiche() {
    return Table;
}

}  // namespace dorvane::windows
