#include "messages/Dorvane.h"
#include "messages/Famille.h"
#include "windows/controles/TablesLegendes.h"

#include <array>
#include <cstddef>

namespace dorvane::windows {

namespace {

using enum Propriete;

/// The four windows that look for a relative have one form.
constexpr const char* Choix[] = {"FrmPère", "FrmEnfants", "FrmConjoints", "FrmLiens"};

constexpr Legende LegendesChoix[] = {
    {nullptr, "LblNom", Texte, message::NomOuNumero},
    {nullptr, "Commande1", Texte, message::BoutonFiltrer},
    {nullptr, "ChkAnnees", Texte, message::BoutonToutesLesAnnees},
    {nullptr, "ChkAnnees", Bulle, message::BulleToutesLesAnnees},
    {nullptr, "C_Préc", Texte, message::BoutonPagePrecedente},
    {nullptr, "C_Suiv", Texte, message::BoutonPageSuivante},
    {nullptr, "CmdChoisir", Texte, message::BoutonChoisirProche},
    {nullptr, "CmdAnnuler", Texte, message::BoutonAnnulerProche},
    {nullptr, "Grille1", Acces, message::PersonnesProposees},
    {nullptr, "Grille1", Colonne, message::ColonneParentsTrouves, 0},
    {nullptr, "Grille1", Colonne, message::ColonneNomTrouve, 1},
    {nullptr, "Grille1", Colonne, message::ColonneDatesTrouvees, 2},
};

constexpr Legende LegendesRecherche[] = {
    {"FrmRecherche", "", Texte, message::TitreRechercheParNom},
    {"FrmRecherche", "LblRecherche", Texte, message::TexteCherche},
    {"FrmRecherche", "T_Recherche", Invite, message::InvitePartieDuNom},
    {"FrmRecherche", "C_Recherche", Texte, message::BoutonRechercher},
    {"FrmRecherche", "ChxCumul", Texte, message::BoutonGarderListe},
    {"FrmRecherche", "Grille1", Acces, message::PersonnesTrouvees},
    {"FrmRecherche", "Grille1", Colonne, message::ColonneParentsTrouves, 0},
    {"FrmRecherche", "Grille1", Colonne, message::ColonneNomTrouve, 1},
    {"FrmRecherche", "Grille1", Colonne, message::ColonneDatesTrouvees, 2},
    {"FrmRecherche", "C_Affichage", Texte, message::BoutonVoirDansGraphe},
    {"FrmRecherche", "C_Maj", Texte, message::BoutonOuvrirFicheRecherche},
    {"FrmRecherche", "CmdAjouter", Texte, message::BoutonAjouterPersonneEnCours},
    {"FrmRecherche", "CmdAjouter", Bulle, message::BulleAjouterPersonneDuGraphe},
    {"FrmRecherche", "CmdEcarter", Texte, message::BoutonEcarterDeLaListe},
    {"FrmRecherche", "CmdEcarter", Bulle, message::BulleEcarterDeLaListe},
    {"FrmRecherche", "CmdParenté", Texte, message::BoutonParente},
    {"FrmRecherche", "CmdStats", Texte, message::BoutonStatistiques},
    {"FrmRecherche", "CmdImprimer", Texte, message::BoutonImprimer},
    {"FrmRecherche", "CmdFermer", Texte, message::BoutonFermerRecherche},
};

constexpr Legende LegendesNoms[] = {
    {"FrmNom", "", Texte, message::TitreChoisirPersonne},
    {"FrmNom", "LblFiltre", Texte, message::FiltrerNoms},
    {"FrmNom", "TxtFiltre", Invite, message::InviteMotsDuNomOuAnnees},
    {"FrmNom", "LstNoms", Colonne, message::ColonneNomListeNoms, 0},
    {"FrmNom", "LstNoms", Colonne, message::ColonneDatesPersonne, 1},
    {"FrmNom", "LstNoms", Colonne, message::ColonneParentsListeNoms, 2},
    {"FrmNom", "LstNoms", Colonne, message::ColonneSexeListeNoms, 3},
    {"FrmNom", "LstNoms", Colonne, message::ColonneFamilleListeNoms, 4},
    {"FrmNom", "LstNoms", Acces, message::MenuTousLesNoms},
    {"FrmNom", "CmdChoisir", Texte, message::BoutonChoisirListeNoms},
    {"FrmNom", "CmdAnnuler", Texte, message::BoutonAnnulerListeNoms},
};

consteval auto Assembler() {
    std::array<Legende, std::size(Choix) * std::size(LegendesChoix) + std::size(LegendesRecherche) +
                            std::size(LegendesNoms)>
        toutes{};
    std::size_t i = 0;
    for (const char* fenetre : Choix)
        for (Legende legende : LegendesChoix) {
            legende.fenetre = fenetre;
            toutes[i++] = legende;
        }
    for (const Legende& legende : LegendesRecherche)
        toutes[i++] = legende;
    for (const Legende& legende : LegendesNoms)
        toutes[i++] = legende;
    return toutes;
}

constexpr auto Table = Assembler();

}  // namespace

std::span<const Legende> LegendesFamille() {
    return Table;
}

}  // namespace dorvane::windows
