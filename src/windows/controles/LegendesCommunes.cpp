#include "messages/Communes.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {

    {"FrmCommune", "", Texte, message::TitreCommunes},
    {"FrmCommune", "LblCherche", Texte, message::ChercherCommune},
    {"FrmCommune", "TxtCherche", Invite, message::InviteNomDeCommune},
    {"FrmCommune", "TxtCherche", Acces, message::ChercherCommune},
    {"FrmCommune", "ChkSon", Texte, message::ChercherALOreille},
    {"FrmCommune", "ChkSon", Bulle, message::BulleChercherALOreille},
    {"FrmCommune", "LstCommunes", Acces, message::TitreCommunes},
    {"FrmCommune", "LstCommunes", Colonne, message::ColonneNomCommune, 0},
    {"FrmCommune", "LstCommunes", Colonne, message::ColonneRattachementCommune, 1},
    {"FrmCommune", "LstCommunes", Colonne, message::ColonnePrecisionCommune, 2},
    {"FrmCommune", "LstCommunes", Colonne, message::ColonneCodeCommune, 3},
    {"FrmCommune", "LstCommunes", Colonne, message::ColonneAutreCodeCommune, 4},
    {"FrmCommune", "LblNom", Texte, message::CommuneNom},
    {"FrmCommune", "TxtNom", Acces, message::CommuneNom},
    {"FrmCommune", "LblRattachement", Texte, message::CommuneRattachement},
    {"FrmCommune", "TxtRattachement", Acces, message::CommuneRattachement},
    {"FrmCommune", "CmdRattachement", Bulle, message::BulleAllerAuRattachement},
    {"FrmCommune", "CmdRattachement", Acces, message::BulleAllerAuRattachement},
    {"FrmCommune", "LblPrecision", Texte, message::CommunePrecision},
    {"FrmCommune", "TxtPrecision", Invite, message::InvitePrecisionCommune},
    {"FrmCommune", "TxtPrecision", Acces, message::CommunePrecision},
    {"FrmCommune", "LblCode", Texte, message::CommuneCode},
    {"FrmCommune", "TxtCode", Acces, message::CommuneCode},
    {"FrmCommune", "LblAutreCode", Texte, message::CommuneAutreCode},
    {"FrmCommune", "TxtAutreCode", Acces, message::CommuneAutreCode},
    {"FrmCommune", "LblCommentaire", Texte, message::CommuneCommentaire},
    {"FrmCommune", "TxtCommentaire", Acces, message::CommuneCommentaire},
    {"FrmCommune", "MnuMaj", Texte, message::BoutonEnregistrerCommune},
    {"FrmCommune", "MnuMaj", Bulle, message::BulleEnregistrerCommune},
    {"FrmCommune", "CmdNouvelle", Texte, message::BoutonNouvelleCommune},
    {"FrmCommune", "CmdSupprimer", Texte, message::BoutonSupprimerCommune},
    {"FrmCommune", "CmdListe", Texte, message::BoutonChargerListeCommunes},
    {"FrmCommune", "MnuAjouterListe", Texte, message::MenuAjouterListeCommunes},
    {"FrmCommune", "MnuRemplacerListe", Texte, message::MenuRemplacerParListeCommunes},
    {"FrmCommune", "CmdReorganiser", Texte, message::BoutonReorganiserCommunes},
    {"FrmCommune", "CmdReorganiser", Bulle, message::BulleReorganiserCommunes},
    {"FrmCommune", "CmdFermer", Texte, message::BoutonFermerCommunes},
};

}  // namespace

std::span<const Legende> LegendesCommunes() {
    return Table;
}

}  // namespace dorvane::windows
