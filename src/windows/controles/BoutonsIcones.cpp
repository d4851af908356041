#include "windows/controles/BoutonsIcones.h"

namespace dorvane::windows {

namespace {

constexpr BoutonIcone Boutons[] = {
    {0, "MnuNouveau"},    {1, "MnuOuvrir"},       {2, "MnuFermer"},    {3, "MnuEnregistrer"},
    {4, "MnuSauvegarde"}, {5, "MnuRestauration"}, {8, "MnuListe"},     {9, "MnuNoms"},
    {10, "MnuImporter"},  {11, "MnuPrécédent"},   {12, "MnuSuivant"},  {13, "MnuAller1_1"},
    {14, "MnuAller1_2"},  {15, "MnuAgrandir"},    {16, "MnuDiminuer"}, {17, "MnuModif"},
    {18, "MnuNouvInd"},   {22, "MnuLstEvt"},      {23, "MnuLstImage"}, {24, "MnuMotsClés"},
    {25, "MnuUsuels"},    {26, "MnuParametres"},  {28, "MnuGauche"},   {29, "MnuDroite"},
    {30, "MnuAjuster"},   {31, "MnuCalendrier"},  {32, "MnuSupprInd"},
};

}  // namespace

std::span<const BoutonIcone> BoutonsIcones() {
    return Boutons;
}

const char* ActionDuBouton(int no) {
    for (const BoutonIcone& bouton : Boutons)
        if (bouton.no == no) return bouton.action;
    return nullptr;
}

}  // namespace dorvane::windows
