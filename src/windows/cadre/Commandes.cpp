// The table of commands: one row for each entry of the main window, in the order of its menus.
#include "windows/cadre/Commandes.h"

#include "interchange/releves/Releve.h"
#include "messages/Communes.h"
#include "messages/Controle.h"
#include "messages/Dorvane.h"
#include "messages/Exporter.h"
#include "messages/Messages.h"
#include "messages/Releve.h"
#include "shell/Parametres.h"
#include "shell/Session.h"
#include "windows/cadre/FrmCalendrier.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/faits/FrmLstEvt.h"
#include "windows/faits/FrmLstImage.h"
#include "windows/mots/FrmMotCle.h"
#include "windows/mots/FrmUsuels.h"
#include "windows/personnes/FrmRecherche.h"

#include <algorithm>
#include <string_view>

namespace dorvane::windows {

namespace {

using interchange::SorteReleve;

constexpr Besoin Rien{};
constexpr Besoin Calme{.calme = true};
constexpr Besoin BaseMontree{.base = BesoinBase::Montree};
constexpr Besoin UneBase{.base = BesoinBase::Ouverte};
constexpr Besoin BaseAuCalme{.base = BesoinBase::Ouverte, .calme = true};
constexpr Besoin Numerotes1{.base = BesoinBase::Ouverte, .deCujus = 1};
constexpr Besoin Numerotes2{.base = BesoinBase::Ouverte, .deCujus = 2};
constexpr int SansBouton = Commande::SansBouton;

constexpr Commande Menu(const char* dans, const char* nom, NoMessage legende) {
    return {SorteCommande::Menu, dans, nom, legende};
}

constexpr Commande Trait(const char* dans, const char* nom = "") {
    return {SorteCommande::Filet, dans, nom};
}

constexpr Commande Entree(const char* dans, const char* nom, NoMessage legende, const char* touches,
                          int bouton, Besoin besoin, void (*faire)(MDIForm1&)) {
    return {SorteCommande::Commande, dans, nom, legende, touches, bouton, besoin, faire};
}

constexpr Commande Cochee(SorteCommande sorte, const char* dans, const char* nom, NoMessage legende,
                          const char* touches, Besoin besoin, void (*faire)(MDIForm1&),
                          bool (*coche)(const MDIForm1&)) {
    return {sorte, dans, nom, legende, touches, SansBouton, besoin, faire, coche};
}

constexpr const char* Fichier = "MnuFichier";
constexpr const char* Releves = "MnuRelevés";
constexpr const char* DeLaPersonne = "MnuPersonne";
constexpr const char* ChoixDeCujus = "MnuChoixDeCujus";
constexpr const char* Affichage = "MnuAffichage";
constexpr const char* Presentations = "MnuPrésentation";
constexpr const char* Couleurs = "MnuPalette";
constexpr const char* Outils = "MnuOutils";
constexpr const char* Soin = "MnuSoin";

constexpr auto Bascule = SorteCommande::Bascule;
constexpr auto Choix = SorteCommande::Choix;

}  // namespace

template <int presentation>
bool MDIForm1::Presentee(const MDIForm1& fenetre) {
    return fenetre.session_.parametres.base.affichage.typePresentation == presentation;
}

template <Palette palette>
bool MDIForm1::Coloree(const MDIForm1& fenetre) {
    return PaletteEnCours(fenetre.session_) == palette;
}

bool MDIForm1::IconesMontrees(const MDIForm1& fenetre) {
    return fenetre.session_.parametres.generaux.barreMenus;
}

bool MDIForm1::FenetresMontrees(const MDIForm1& fenetre) {
    return fenetre.session_.parametres.generaux.barreFenetres;
}

constexpr Commande MDIForm1::Table[] = {
    Menu("", Fichier, message::MenuFichier),
    Entree(Fichier, "MnuNouveau", message::MenuNouvelleBase, "Ctrl+N", 0, Rien,
           Appel<&MDIForm1::Nouveau>),
    Entree(Fichier, "MnuOuvrir", message::MenuOuvrirBase, "Ctrl+O", 1, Rien,
           Appel<&MDIForm1::Ouvrir>),
    Entree(Fichier, "MnuFermer", message::MenuFermerBase, "Ctrl+W", 2, BaseMontree,
           Appel<&MDIForm1::Fermer>),
    Trait(Fichier),
    Entree(Fichier, "MnuEnregistrer", message::MenuEnregistrerBase, "Ctrl+S", 3, BaseMontree,
           Appel<&MDIForm1::Enregistrer>),
    Entree(Fichier, "MnuSauvegarde", message::MenuSauvegarder, "Ctrl+B", 4, BaseMontree,
           Appel<&MDIForm1::Sauvegarde>),
    Entree(Fichier, "MnuRestauration", message::MenuRestaurerSauvegarde, "Ctrl+R", 5, Rien,
           Appel<&MDIForm1::Restauration>),
    Trait(Fichier),
    Entree(Fichier, "MnuImporter", message::MenuImporter, "Ctrl+I", 10, Rien,
           Appel<&MDIForm1::Importer>),
    Menu(Fichier, Releves, message::MenuReleves),
    Entree(Releves, "MnuBaptème", message::MenuReleveBaptemes, "", SansBouton, Calme,
           Appel<&MDIForm1::ImporterActes, SorteReleve::Bapteme>),
    Entree(Releves, "MnuRelevéMariage", message::MenuReleveMariages, "", SansBouton, Calme,
           Appel<&MDIForm1::ImporterActes, SorteReleve::Mariage>),
    Entree(Releves, "MnuSépulture", message::MenuReleveSepultures, "", SansBouton, Calme,
           Appel<&MDIForm1::ImporterActes, SorteReleve::Sepulture>),
    Entree(Releves, "MnuRelevéAscendance", message::MenuReleveAscendance, "", SansBouton, Calme,
           Appel<&MDIForm1::ImporterActes, SorteReleve::Ascendance>),
    Entree(Fichier, "MnuIntégrer", message::MenuIntegrerFichierDorvane, "", SansBouton, UneBase,
           Appel<&MDIForm1::Integrer>),
    Trait(Fichier),
    Entree(Fichier, "MnuExporter", message::MenuExporter, "Ctrl+Shift+E", SansBouton, UneBase,
           Appel<&MDIForm1::Exporter>),
    Entree(Fichier, "MnuExporterSélectif", message::MenuExporterSelection, "", SansBouton, UneBase,
           Appel<&MDIForm1::ExporterSelectif>),
    Entree(Fichier, "MnuGénéanet", message::MenuRemettreAGeneanet, "", SansBouton, UneBase,
           Appel<&MDIForm1::Geneanet>),
    Trait(Fichier, "TraitHistorique"),
    Entree(Fichier, "MnuHisto(0)", {}, "", SansBouton, Rien, Appel<&MDIForm1::Histo, 0>),
    Entree(Fichier, "MnuHisto(1)", {}, "", SansBouton, Rien, Appel<&MDIForm1::Histo, 1>),
    Entree(Fichier, "MnuHisto(2)", {}, "", SansBouton, Rien, Appel<&MDIForm1::Histo, 2>),
    Entree(Fichier, "MnuHisto(3)", {}, "", SansBouton, Rien, Appel<&MDIForm1::Histo, 3>),
    Entree(Fichier, "MnuHisto(4)", {}, "", SansBouton, Rien, Appel<&MDIForm1::Histo, 4>),
    Trait(Fichier),
    Entree(Fichier, "MnuQuitter", message::MenuQuitter, "Ctrl+Q", SansBouton, Rien,
           Appel<&MDIForm1::Quitter>),

    Menu("", DeLaPersonne, message::MenuPersonne),
    Entree(DeLaPersonne, "MnuPrécédent", message::MenuPersonnePrecedente, "Ctrl+PgUp", 11, UneBase,
           Appel<&MDIForm1::Precedent>),
    Entree(DeLaPersonne, "MnuSuivant", message::MenuPersonneSuivante, "Ctrl+PgDown", 12, UneBase,
           Appel<&MDIForm1::Suivant>),
    Entree(DeLaPersonne, "MnuListe", message::MenuListeParNom, "Ctrl+F", 8, UneBase,
           MontrerFenetre<FrmRecherche>),
    Entree(DeLaPersonne, "MnuNoms", message::MenuTousLesNoms, "Ctrl+L", 9, BaseAuCalme,
           Appel<&MDIForm1::Noms>),
    Trait(DeLaPersonne),
    Entree(DeLaPersonne, "MnuModif", message::MenuModifierFiche, "F2", 17, UneBase,
           Appel<&MDIForm1::Modifier>),
    Entree(DeLaPersonne, "MnuNouvInd", message::MenuNouvellePersonne, "Ctrl+Shift+N", 18,
           BaseAuCalme, Appel<&MDIForm1::NouvelIndividu>),
    Entree(DeLaPersonne, "MnuSupprInd", message::MenuSupprimerPersonne, "", 32, BaseAuCalme,
           Appel<&MDIForm1::SupprimerIndividu>),
    Trait(DeLaPersonne),
    Entree(DeLaPersonne, "MnuLstEvt", message::MenuEvenements, "Ctrl+E", 22, UneBase,
           MontrerFenetre<FrmLstEvt>),
    Entree(DeLaPersonne, "MnuLstImage", message::MenuDocuments, "Ctrl+D", 23, UneBase,
           MontrerFenetre<FrmLstImage>),
    Trait(DeLaPersonne),
    Entree(DeLaPersonne, "MnuAller1_1", message::MenuPremierDeCujus, "Ctrl+1", 13, Numerotes1,
           Appel<&MDIForm1::AllerDeCujus, 1>),
    Entree(DeLaPersonne, "MnuAller1_2", message::MenuSecondDeCujus, "Ctrl+2", 14, Numerotes2,
           Appel<&MDIForm1::AllerDeCujus, 2>),
    Menu(DeLaPersonne, ChoixDeCujus, message::MenuChoisirDeCujus),
    Entree(ChoixDeCujus, "MnuDeCujus1", {}, "Ctrl+Shift+1", SansBouton, BaseAuCalme,
           Appel<&MDIForm1::ChoisirDeCujus, 1>),
    Entree(ChoixDeCujus, "MnuDeCujus2", {}, "Ctrl+Shift+2", SansBouton, BaseAuCalme,
           Appel<&MDIForm1::ChoisirDeCujus, 2>),

    Menu("", Affichage, message::MenuAffichage),
    Menu(Affichage, Presentations, message::MenuPresentation),
    Cochee(Choix, Presentations, "MnuPrésentation(1)", message::MenuPresentationGrandesCases,
           "Alt+1", BaseMontree, Appel<&MDIForm1::Presentation, 1>, Presentee<1>),
    Cochee(Choix, Presentations, "MnuPrésentation(2)", message::MenuPresentationCasesMoyennes,
           "Alt+2", BaseMontree, Appel<&MDIForm1::Presentation, 2>, Presentee<2>),
    Cochee(Choix, Presentations, "MnuPrésentation(3)", message::MenuPresentationPetitesCases,
           "Alt+3", BaseMontree, Appel<&MDIForm1::Presentation, 3>, Presentee<3>),
    Cochee(Choix, Presentations, "MnuPrésentation(4)", message::MenuPresentationUneLigne, "Alt+4",
           BaseMontree, Appel<&MDIForm1::Presentation, 4>, Presentee<4>),
    Menu(Affichage, Couleurs, message::MenuCouleursGraphe),
    Cochee(Choix, Couleurs, "MnuClassique", message::MenuPaletteClassique, "", Rien,
           Appel<&MDIForm1::PoserPalette, Palette::Classique>, Coloree<Palette::Classique>),
    Cochee(Choix, Couleurs, "MnuClaire", message::MenuPaletteClaire, "", Rien,
           Appel<&MDIForm1::PoserPalette, Palette::Claire>, Coloree<Palette::Claire>),
    Cochee(Choix, Couleurs, "MnuSombre", message::MenuPaletteSombre, "", Rien,
           Appel<&MDIForm1::PoserPalette, Palette::Sombre>, Coloree<Palette::Sombre>),
    Trait(Affichage),
    Entree(Affichage, "MnuAgrandir", message::MenuAgrandir, "Ctrl++ Ctrl+=", 15, BaseMontree,
           Appel<&MDIForm1::Agrandir>),
    Entree(Affichage, "MnuDiminuer", message::MenuDiminuer, "Ctrl+-", 16, BaseMontree,
           Appel<&MDIForm1::Diminuer>),
    Entree(Affichage, "MnuAjuster", message::MenuAjusterALaFenetre, "Ctrl+0", 30, BaseMontree,
           Appel<&MDIForm1::Ajuster>),
    Trait(Affichage),
    Entree(Affichage, "MnuGauche", message::MenuPlusDeDescendants, "Ctrl+Left", 28, BaseMontree,
           Appel<&MDIForm1::Gauche>),
    Entree(Affichage, "MnuDroite", message::MenuPlusDAscendants, "Ctrl+Right", 29, BaseMontree,
           Appel<&MDIForm1::Droite>),
    Trait(Affichage),
    Cochee(Bascule, Affichage, "MnuBarreIcones", message::MenuBarreIcones, "", Rien,
           Appel<&MDIForm1::BarreIcones>, IconesMontrees),
    Cochee(Bascule, Affichage, "MnuBarreFenetres", message::MenuBarreFenetres, "", Rien,
           Appel<&MDIForm1::BarreFenetres>, FenetresMontrees),

    Menu("", Outils, message::MenuOutils),
    Entree(Outils, "MnuMotsClés", message::MenuMotsCles, "", 24, UneBase,
           MontrerFenetre<FrmMotCle>),
    Entree(Outils, "MnuUsuels", message::MenuMotsUsuels, "Ctrl+U", 25, Rien,
           MontrerFenetre<FrmUsuels>),
    Trait(Outils),
    Entree(Outils, "MnuCalendrier", message::MenuCalendrierRepublicain, "Ctrl+K", 31, Rien,
           MontrerFenetre<FrmCalendrier>),
    Entree(Outils, "MnuCommunes", message::MenuCommunes, "", SansBouton, Rien,
           Appel<&MDIForm1::Communes>),
    Trait(Outils),
    Menu(Outils, Soin, message::MenuEntretienBase),
    Entree(Soin, "MnuControle", message::MenuControlerBase, "", SansBouton, BaseAuCalme,
           Appel<&MDIForm1::Controle>),
    Entree(Soin, "MnuDépannage", message::MenuDepannerBase, "", SansBouton, BaseMontree,
           Appel<&MDIForm1::Depannage>),
    Entree(Soin, "MnuRéorganiser", message::MenuReorganiserBase, "", SansBouton, BaseMontree,
           Appel<&MDIForm1::Reorganiser>),
    Trait(Outils),
    Entree(Outils, "MnuParametres", message::MenuReglages, "Ctrl+,", 26, Calme,
           Appel<&MDIForm1::Reglages>),

    Menu("", "MnuLng", message::MenuLangue),
};

std::span<const Commande> MDIForm1::Commandes() {
    static_assert(
        std::ranges::count_if(Table,
                              [](const Commande& rangee) {
                                  return std::string_view{rangee.nom}.starts_with("MnuHisto(");
                              }) == shell::TailleHistorique,
        "one entry for each base that is remembered");
    return Table;
}

std::vector<BoutonIcone> BoutonsIcones() {
    std::vector<BoutonIcone> boutons;
    for (const Commande& commande : MDIForm1::Commandes())
        if (commande.bouton != SansBouton)
            boutons.push_back({commande.bouton, commande.nom, commande.legende});
    std::ranges::sort(boutons, {}, &BoutonIcone::no);
    return boutons;
}

}  // namespace dorvane::windows
