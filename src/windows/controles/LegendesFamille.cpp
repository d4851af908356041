#include "windows/controles/TablesLegendes.h"

#include <array>
#include <cstddef>

namespace dorvane::windows {

namespace {

using enum Propriete;

/// The four windows that look for a relative have one form.
constexpr const char* Choix[] = {"FrmPère", "FrmEnfants", "FrmConjoints", "FrmLiens"};

constexpr Legende LegendesChoix[] = {
    {nullptr, "LblNom", Texte, 2850},       {nullptr, "Commande1", Texte, 2851},
    {nullptr, "ChkAnnees", Texte, 2852},    {nullptr, "ChkAnnees", Bulle, 2853},
    {nullptr, "C_Préc", Texte, 2854},       {nullptr, "C_Suiv", Texte, 2855},
    {nullptr, "CmdChoisir", Texte, 2857},   {nullptr, "CmdAnnuler", Texte, 2858},
    {nullptr, "Grille1", Acces, 2859},      {nullptr, "Grille1", Colonne, 2860, 0},
    {nullptr, "Grille1", Colonne, 2861, 1}, {nullptr, "Grille1", Colonne, 2862, 2},
};

constexpr Legende LegendesRecherche[] = {
    {"FrmRecherche", "", Texte, 2880},
    {"FrmRecherche", "LblRecherche", Texte, 2881},
    {"FrmRecherche", "T_Recherche", Invite, 2882},
    {"FrmRecherche", "C_Recherche", Texte, 2883},
    {"FrmRecherche", "ChxCumul", Texte, 2884},
    {"FrmRecherche", "Grille1", Acces, 2885},
    {"FrmRecherche", "Grille1", Colonne, 2860, 0},
    {"FrmRecherche", "Grille1", Colonne, 2861, 1},
    {"FrmRecherche", "Grille1", Colonne, 2862, 2},
    {"FrmRecherche", "C_Affichage", Texte, 2886},
    {"FrmRecherche", "C_Maj", Texte, 2887},
    {"FrmRecherche", "CmdAjouter", Texte, 2888},
    {"FrmRecherche", "CmdAjouter", Bulle, 2897},
    {"FrmRecherche", "CmdEcarter", Texte, 2889},
    {"FrmRecherche", "CmdEcarter", Bulle, 2898},
    {"FrmRecherche", "CmdParenté", Texte, 2890},
    {"FrmRecherche", "CmdStats", Texte, 2891},
    {"FrmRecherche", "CmdImprimer", Texte, 2892},
    {"FrmRecherche", "CmdFermer", Texte, 2893},
};

constexpr Legende LegendesNoms[] = {
    {"FrmNom", "", Texte, 2060},
    {"FrmNom", "LblFiltre", Texte, 2061},
    {"FrmNom", "TxtFiltre", Invite, 2073},
    {"FrmNom", "LstNoms", Colonne, 2062, 0},
    {"FrmNom", "LstNoms", Colonne, 2063, 1},
    {"FrmNom", "LstNoms", Colonne, 2064, 2},
    {"FrmNom", "LstNoms", Colonne, 2065, 3},
    {"FrmNom", "LstNoms", Colonne, 2066, 4},
    {"FrmNom", "LstNoms", Acces, 2013},
    {"FrmNom", "CmdChoisir", Texte, 2070},
    {"FrmNom", "CmdAnnuler", Texte, 2071},
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
