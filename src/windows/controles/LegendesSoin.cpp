#include "messages/Controle.h"
#include "messages/Faits.h"
#include "messages/Messages.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {

    {"FrmControle", "", Texte, message::TitreControleBase},
    {"FrmControle", "LblFiltre", Texte, message::FiltrerListe},
    {"FrmControle", "TxtFiltre", Invite, message::InviteMotsAnomalieOuNom},
    {"FrmControle", "LblSortes", Texte, message::SortesDAnomalies},
    {"FrmControle", "LstSortes", Acces, message::SortesDAnomalies},
    {"FrmControle", "LstSortes", Colonne, message::ColonneAnomalie, 0},
    {"FrmControle", "LstSortes", Colonne, message::ColonneNombreAnomalies, 1},
    {"FrmControle", "LblAno", Texte, message::AnomaliesRelevees},
    {"FrmControle", "GrdAno", Acces, message::AnomaliesRelevees},
    {"FrmControle", "GrdAno", Colonne, message::ColonneNumeroPersonne, 0},
    {"FrmControle", "GrdAno", Colonne, message::ColonneAnomalie, 1},
    {"FrmControle", "GrdAno", Colonne, message::Personne, 2},
    {"FrmControle", "GrdAno", Colonne, message::ColonneNombreAnomalies, 3},
    {"FrmControle", "GrdFiche", Acces, message::FicheDeLaPersonne},
    {"FrmControle", "GrdFiche", Colonne, message::ColonneRubriqueFiche, 0},
    {"FrmControle", "GrdFiche", Colonne, message::ColonneContenuFiche, 1},
    {"FrmControle", "Avancement", Acces, message::EtatControleEnCours},
    {"FrmControle", "CmdFiche", Texte, message::BoutonOuvrirFiche},
    {"FrmControle", "CmdAller", Texte, message::BoutonAller},
    {"FrmControle", "CmdTexte", Texte, message::BoutonEnTexte},
    {"FrmControle", "CmdRelancer", Texte, message::BoutonRecontroler},
};

}  // namespace

std::span<const Legende> LegendesSoin() {
    return Table;
}

}  // namespace dorvane::windows
