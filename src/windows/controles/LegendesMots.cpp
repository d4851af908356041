#include "messages/Mots.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"FrmTexte", "", Texte, message::TitreEditeurTexte},
    {"FrmTexte", "TxtTexte", Acces, message::TitreEditeurTexte},
    {"FrmTexte", "Sauve", Texte, message::EditeurEnregistrer},
    {"FrmTexte", "Abandon", Texte, message::EditeurAbandonner},
    {"FrmTexte", "Gras", Texte, message::EditeurGras},
    {"FrmTexte", "Souligné", Texte, message::EditeurSouligne},
    {"FrmTexte", "Italique", Texte, message::EditeurItalique},
    {"FrmTexte", "Gauche", Texte, message::EditeurAlignerAGauche},
    {"FrmTexte", "Centre", Texte, message::EditeurCentrer},
    {"FrmTexte", "Droite", Texte, message::EditeurAlignerADroite},
    {"FrmTexte", "Couper", Texte, message::EditeurCouper},
    {"FrmTexte", "Copier", Texte, message::EditeurCopier},
    {"FrmTexte", "Coller", Texte, message::EditeurColler},
    {"FrmTexte", "Défaire", Texte, message::EditeurAnnulerFrappe},
    {"FrmTexte", "Refaire", Texte, message::EditeurRetablir},
    {"FrmTexte", "Rubriques", Texte, message::EditeurMotsUsuels},
    {"FrmTexte", "LstMot", Acces, message::EditeurMotsUsuels},
    {"FrmTexte", "CmdFermerMots", Bulle, message::BulleMasquerMots},
    {"FrmTexte", "CmdFermerMots", Acces, message::BulleMasquerMots},
    {"FrmTexte", "CmdSauve", Texte, message::BoutonEnregistrerTexte},
    {"FrmTexte", "CmdAbandon", Texte, message::BoutonAbandonnerTexte},

    {"FrmUsuels", "", Texte, message::TitreMotsUsuels},
    {"FrmUsuels", "LblRubrique", Texte, message::RubriqueMotsUsuels},
    {"FrmUsuels", "LblMots", Texte, message::MotsDeLaRubrique},
    {"FrmUsuels", "LblMot", Texte, message::NouveauMotUsuel},
    {"FrmUsuels", "CmdMotNouveau", Texte, message::BoutonAjouterMotUsuel},
    {"FrmUsuels", "CmdMotSup", Texte, message::BoutonSupprimerMotUsuel},
    {"FrmUsuels", "LblNouvRubr", Texte, message::NouvelleRubrique},
    {"FrmUsuels", "CmdNouvRubr", Texte, message::BoutonCreerRubrique},
    {"FrmUsuels", "CmdSupRub", Texte, message::BoutonSupprimerRubrique},
    {"FrmUsuels", "CmdFermer", Texte, message::BoutonFermerMots},

    {"FrmMotClé", "", Texte, message::TitreMotsCles},
    {"FrmMotClé", "LblMots", Texte, message::ListeDesMotsCles},
    {"FrmMotClé", "LstMClé", Colonne, message::ColonneLibelleMotCle, 0},
    {"FrmMotClé", "LstMClé", Colonne, message::ColonneCodeMotCle, 1},
    {"FrmMotClé", "LstMClé", Colonne, message::ColonneIndexMotCle, 2},
    {"FrmMotClé", "CmdMotUp", Bulle, message::BulleMonterMotCle},
    {"FrmMotClé", "CmdMotUp", Acces, message::BulleMonterMotCle},
    {"FrmMotClé", "CmdMotDown", Bulle, message::BulleDescendreMotCle},
    {"FrmMotClé", "CmdMotDown", Acces, message::BulleDescendreMotCle},
    {"FrmMotClé", "LblLibellé", Texte, message::MotCleLibelle},
    {"FrmMotClé", "LblCode", Texte, message::MotCleCode},
    {"FrmMotClé", "LblAideCode", Texte, message::AideCodeMotCle},
    {"FrmMotClé", "ChxIndex", Texte, message::MotCleIndexer},
    {"FrmMotClé", "C_Ajout", Texte, message::BoutonAjouterMotCle},
    {"FrmMotClé", "C_Maj", Texte, message::BoutonMajMotCle},
    {"FrmMotClé", "C_Supp", Texte, message::BoutonSupprimerMotCle},
    {"FrmMotClé", "ChkDatée", Texte, message::LigneDatee},
    {"FrmMotClé", "ChkDatée", Bulle, message::BulleLigneDatee},
    {"FrmMotClé", "LblInd", Texte, message::LignesDeLaFiche},
    {"FrmMotClé", "GrdDonnéeInd", Acces, message::LignesDeLaFiche},
    {"FrmMotClé", "CmdAjtMotInd", Bulle, message::BulleMettreDansLaFiche},
    {"FrmMotClé", "CmdAjtMotInd", Acces, message::BulleMettreDansLaFiche},
    {"FrmMotClé", "CmdSupMotInd", Bulle, message::BulleRetirerLigne},
    {"FrmMotClé", "CmdSupMotInd", Acces, message::BulleRetirerLigne},
    {"FrmMotClé", "CmdMotIndUp", Bulle, message::BulleMonterMotCle},
    {"FrmMotClé", "CmdMotIndUp", Acces, message::BulleMonterMotCle},
    {"FrmMotClé", "CmdMotIndDown", Bulle, message::BulleDescendreMotCle},
    {"FrmMotClé", "CmdMotIndDown", Acces, message::BulleDescendreMotCle},
    {"FrmMotClé", "LblMar", Texte, message::LignesDeLUnion},
    {"FrmMotClé", "GrdDonnéeMar", Acces, message::LignesDeLUnion},
    {"FrmMotClé", "CmdAjtMotMar", Bulle, message::BulleMettreDansLesUnions},
    {"FrmMotClé", "CmdAjtMotMar", Acces, message::BulleMettreDansLesUnions},
    {"FrmMotClé", "CmdSupMotMar", Bulle, message::BulleRetirerLigne},
    {"FrmMotClé", "CmdSupMotMar", Acces, message::BulleRetirerLigne},
    {"FrmMotClé", "CmdMotMarUp", Bulle, message::BulleMonterMotCle},
    {"FrmMotClé", "CmdMotMarUp", Acces, message::BulleMonterMotCle},
    {"FrmMotClé", "CmdMotMarDown", Bulle, message::BulleDescendreMotCle},
    {"FrmMotClé", "CmdMotMarDown", Acces, message::BulleDescendreMotCle},
    {"FrmMotClé", "CmdFermer", Texte, message::BoutonFermerMots},
};

}  // namespace

std::span<const Legende> LegendesMots() {
    return Table;
}

}  // namespace dorvane::windows
