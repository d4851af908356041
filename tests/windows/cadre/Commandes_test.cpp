#include "windows/cadre/Commandes.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "messages/Messages.h"
#include "storage/Base.h"
#include "windows/Essai.h"
#include "windows/controles/FenetreFille.h"
#include "windows/controles/Legendes.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// A table of which each name is found in the window, and the rows of each menu in order.
struct Tableau : FenetreEssai {
    static QString Nom(const Commande& rangee) { return QString::fromUtf8(rangee.nom); }

    [[nodiscard]] QMenu* MenuNomme(const char* nom) const {
        return Fenetre().findChild<QMenu*>(QString::fromUtf8(nom));
    }
    /// What a menu, or the bar, shows: lines as "-", menus and entries by their names.
    [[nodiscard]] QStringList Montre(const char* menu) const {
        const QList<QAction*> actions =
            *menu == '\0' ? Fenetre().menuBar()->actions() : MenuNomme(menu)->actions();
        QStringList noms;
        for (const QAction* action : actions)
            noms << (action->isSeparator() ? QStringLiteral("-")
                     : action->menu()      ? action->menu()->objectName()
                                           : action->objectName());
        return noms;
    }
    /// Chooses a command, and whether exactly one box told that it cannot be done now.
    bool DitRefus(const char* nom) {
        const auto texte = RepondreBoite(QMessageBox::Ok);
        Action(nom).trigger();
        return texte->startsWith(QStringLiteral("Opération impossible"));
    }
};

constexpr EtatCommandes SansBase{};
constexpr EtatCommandes AvecBase{true, {false, false}};
constexpr EtatCommandes SecondNumerote{true, {false, true}};

/// The names of the entries that are enabled in a state.
std::set<std::string> Offertes(const EtatCommandes& etat) {
    std::set<std::string> noms;
    for (const Commande& rangee : MDIForm1::Commandes())
        if (rangee.faire != nullptr && Offerte(rangee.besoin, etat)) noms.insert(rangee.nom);
    return noms;
}

}  // namespace

TEST_CASE("Offerte: without a base only these stay enabled") {
    const std::set<std::string> attendues{
        "MnuNouveau",    "MnuOuvrir",      "MnuRestauration",  "MnuImporter",
        "MnuBaptème",    "MnuSépulture",   "MnuRelevéMariage", "MnuRelevéAscendance",
        "MnuHisto(0)",   "MnuHisto(1)",    "MnuHisto(2)",      "MnuHisto(3)",
        "MnuHisto(4)",   "MnuQuitter",     "MnuClassique",     "MnuClaire",
        "MnuSombre",     "MnuBarreIcones", "MnuBarreFenetres", "MnuUsuels",
        "MnuCalendrier", "MnuCommunes",    "MnuParametres"};
    CHECK(Offertes(SansBase) == attendues);
}

TEST_CASE("Offerte: with a base all but the way to a reference person that is not numbered") {
    std::set<std::string> toutes;
    for (const Commande& rangee : MDIForm1::Commandes())
        if (rangee.faire != nullptr) toutes.insert(rangee.nom);
    std::set<std::string> offertes = Offertes(AvecBase);
    CHECK(offertes.insert("MnuAller1_1").second);
    CHECK(offertes.insert("MnuAller1_2").second);
    CHECK(offertes == toutes);
    offertes.erase("MnuAller1_1");
    CHECK(Offertes(SecondNumerote) == offertes);
}

TEST_CASE("Commandes: no name, no shortcut and no number of the icon bar stands twice") {
    std::set<std::string> noms;
    std::set<QString> touches;
    std::set<int> boutons;
    for (const Commande& rangee : MDIForm1::Commandes()) {
        CAPTURE(std::string{rangee.nom});
        if (*rangee.nom != '\0') CHECK(noms.insert(rangee.nom).second);
        for (const QString& une :
             QString::fromLatin1(rangee.touches).split(u' ', Qt::SkipEmptyParts)) {
            CHECK(touches.insert(QKeySequence{une}.toString()).second);
            CHECK_FALSE(QKeySequence{une}.isEmpty());
        }
        if (rangee.bouton != Commande::SansBouton) CHECK(boutons.insert(rangee.bouton).second);
    }
    CHECK(boutons.count(SeparateurIcones) == 0);
}

TEST_CASE("Commandes: an entry has something to do, a menu and a line have not") {
    for (const Commande& rangee : MDIForm1::Commandes()) {
        CAPTURE(std::string{rangee.nom});
        const bool entree =
            rangee.sorte != SorteCommande::Menu && rangee.sorte != SorteCommande::Filet;
        CHECK((rangee.faire != nullptr) == entree);
        const bool cochee =
            rangee.sorte == SorteCommande::Bascule || rangee.sorte == SorteCommande::Choix;
        CHECK((rangee.coche != nullptr) == cochee);
    }
}

TEST_CASE("BoutonsIcones: in the order of the numbers that the settings keep") {
    std::vector<int> numeros;
    for (const BoutonIcone& bouton : BoutonsIcones())
        numeros.push_back(bouton.no);
    CHECK(numeros == std::vector<int>{0,  1,  2,  3,  4,  5,  8,  9,  10, 11, 12, 13, 14, 15,
                                      16, 17, 18, 22, 23, 24, 25, 26, 28, 29, 30, 31, 32});
}

TEST_CASE_FIXTURE(Tableau, "MDIForm1: each menu has the rows of the table in their order") {
    DemarrerFamille();
    std::map<std::string, QStringList> attendus;
    for (const Commande& rangee : MDIForm1::Commandes())
        attendus[rangee.menu] << (rangee.sorte == SorteCommande::Filet ? QStringLiteral("-")
                                                                       : Nom(rangee));
    for (const auto& [menu, noms] : attendus) {
        CAPTURE(menu);
        CHECK(Montre(menu.c_str()).join(u' ') == noms.join(u' '));
    }
    CHECK(Montre("").join(u' ') == "MnuFichier MnuPersonne MnuAffichage MnuOutils MnuLng");
    // The languages are those whose files are there.
    CHECK(Montre("MnuLng").size() == 2);
}

TEST_CASE_FIXTURE(Tableau, "MDIForm1: each entry has text, tip, drawing and keys of its row") {
    DemarrerFamille();
    for (const char* langue : {"Français", "English"}) {
        REQUIRE(shell::ChoisirLangue(S(), langue));
        Fenetre().Actualiser();
        for (const Commande& rangee : MDIForm1::Commandes()) {
            CAPTURE(std::string{rangee.nom});
            if (!rangee.legende) continue;
            const QString texte = TexteEcran(S(), rangee.legende);
            CHECK_FALSE(texte.isEmpty());
            if (rangee.sorte == SorteCommande::Menu) {
                CHECK(MenuNomme(rangee.nom)->title() == texte);
                continue;
            }
            const QAction& action = Action(rangee.nom);
            CHECK(action.text() == texte);
            CHECK(action.toolTip().startsWith(SansMnemonique(texte)));
            QStringList touches;
            for (const QKeySequence& touche : action.shortcuts())
                touches << touche.toString();
            CHECK(touches.join(u' ') == QString::fromLatin1(rangee.touches));
            CHECK(action.toolTip().endsWith(u')') == !touches.isEmpty());
            // What may stand in the icon bar has a drawing.
            if (rangee.bouton != Commande::SansBouton) CHECK_FALSE(action.icon().isNull());
        }
    }
}

TEST_CASE_FIXTURE(Tableau, "MDIForm1: entries are enabled as the table says, with and without") {
    DemarrerFamille();
    for (const bool ouverte : {true, false}) {
        if (!ouverte) Action("MnuFermer").trigger();
        for (const Commande& rangee : MDIForm1::Commandes()) {
            CAPTURE(std::string{rangee.nom});
            // Of the bases opened before, those that there are show.
            if (rangee.faire == nullptr || !Action(rangee.nom).isVisible()) continue;
            CHECK(Action(rangee.nom).isEnabled() ==
                  Offerte(rangee.besoin, ouverte ? AvecBase : SansBase));
        }
    }
}

TEST_CASE_FIXTURE(Tableau, "MDIForm1: of the choices of a menu one is on, the one that holds") {
    DemarrerFamille();
    const auto cochees = [this](const char* menu) {
        QStringList noms;
        for (const QAction* action : MenuNomme(menu)->actions())
            if (action->isChecked()) noms << action->objectName();
        return noms.join(u' ');
    };
    Action("MnuPrésentation(3)").trigger();
    CHECK(cochees("MnuPrésentation") == QStringLiteral("MnuPrésentation(3)"));
    CHECK(S().parametres.base.affichage.typePresentation == 3);
    Action("MnuSombre").trigger();
    CHECK(cochees("MnuPalette") == "MnuSombre");
    S().parametres.base.affichage.typePresentation = 1;
    Fenetre().Actualiser();
    CHECK(cochees("MnuPrésentation") == QStringLiteral("MnuPrésentation(1)"));
    const bool icones = Action("MnuBarreIcones").isChecked();
    Action("MnuBarreIcones").trigger();
    CHECK(S().parametres.generaux.barreMenus == !icones);
    Fenetre().Actualiser();
    CHECK(Action("MnuBarreIcones").isChecked() == !icones);
}

TEST_CASE_FIXTURE(Tableau, "MDIForm1: an entry that needs quiet is refused while a long job runs") {
    DemarrerFamille();
    const shell::CadreProgression cadre{S().progression,
                                        shell::Msg(message::TitreReorganisationBase),
                                        shell::Msg(message::TitreReorganisationBase)};
    for (const Commande& rangee : MDIForm1::Commandes()) {
        if (!rangee.besoin.calme || !Action(rangee.nom).isEnabled()) continue;
        CAPTURE(std::string{rangee.nom});
        CHECK(DitRefus(rangee.nom));
    }
    CHECK(S().BaseOuverte());
}

TEST_CASE_FIXTURE(Tableau,
                  "MDIForm1: what asks for quiet by itself tells it once, and is no row "
                  "that needs it") {
    DemarrerFamille();
    const shell::CadreProgression cadre{S().progression,
                                        shell::Msg(message::TitreReorganisationBase),
                                        shell::Msg(message::TitreReorganisationBase)};
    const std::set<std::string> sansBase{"MnuNouveau",  "MnuOuvrir",   "MnuRestauration",
                                         "MnuImporter", "MnuHisto(0)", "MnuHisto(1)",
                                         "MnuHisto(2)", "MnuHisto(3)", "MnuHisto(4)"};
    const std::set<std::string> deLaBase{"MnuFermer", "MnuEnregistrer", "MnuSauvegarde",
                                         "MnuDépannage", "MnuRéorganiser"};
    for (const Commande& rangee : MDIForm1::Commandes()) {
        const bool montree = deLaBase.count(rangee.nom) != 0;
        if (!montree && sansBase.count(rangee.nom) == 0) continue;
        CAPTURE(std::string{rangee.nom});
        CHECK_FALSE(rangee.besoin.calme);
        CHECK(DitRefus(rangee.nom));
        if (!montree) continue;
        // A job may have closed the base for a while: that is told as well.
        std::unique_ptr<storage::Base> fermee = std::move(S().base);
        CHECK(DitRefus(rangee.nom));
        S().base = std::move(fermee);
    }
    CHECK(S().BaseOuverte());
}

TEST_CASE_FIXTURE(Tableau, "MDIForm1: no sheet is opened in an empty base") {
    Demarrer({});
    RepondreFichier(dossier / "Neuve");
    Action("MnuNouveau").trigger();
    REQUIRE(S().BaseOuverte());
    REQUIRE_FALSE(S().PersonneEnCours);
    Action("MnuModif").trigger();
    CHECK(Fenetre().findChild<FenetreFille*>() == nullptr);
}
