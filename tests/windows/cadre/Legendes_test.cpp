#include "windows/controles/Legendes.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>

#include "windows/Essai.h"
#include "windows/cadre/Commandes.h"
#include "windows/cadre/FrmCalendrier.h"
#include "windows/communes/FrmCommune.h"
#include "windows/controles/FrmRapport.h"
#include "windows/controles/FrmTexte.h"
#include "windows/echange/FrmExporter.h"
#include "windows/echange/FrmReleve.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/faits/FrmDesImage.h"
#include "windows/faits/FrmLstEvt.h"
#include "windows/faits/FrmLstImage.h"
#include "windows/faits/FrmUtilImage.h"
#include "windows/fiche/FrmMisajour.h"
#include "windows/graphe/FrmPalette.h"
#include "windows/mots/FrmMot.h"
#include "windows/mots/FrmMotCle.h"
#include "windows/mots/FrmUsuels.h"
#include "windows/personnes/FrmConjoints.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmEnfants.h"
#include "windows/personnes/FrmLiens.h"
#include "windows/personnes/FrmNom.h"
#include "windows/personnes/FrmNouveauLien.h"
#include "windows/personnes/FrmPere.h"
#include "windows/personnes/FrmRecherche.h"
#include "windows/reglages/FrmParametre.h"
#include "windows/soin/FrmControle.h"

#include <map>
#include <set>
#include <vector>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// All windows that have captions, in one place.
struct Toutes : FenetreEssai {
    Toutes() {
        DemarrerFamille();
        fenetres.emplace_back(new FrmNom{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmCommune{S(), &Fenetre()});
        fenetres.emplace_back(new FrmRapport{S(), {}, {}, &Fenetre()});
        fenetres.emplace_back(new FrmPalette{S(), Palette::Claire, &Fenetre()});
        fenetres.emplace_back(new FrmCalendrier{S(), &Fenetre()});
        fenetres.emplace_back(new FrmPere{S(), NoOrdre{3}, Cote::Pere, &Fenetre()});
        fenetres.emplace_back(new FrmEnfants{S(), NoOrdre{3}, &Fenetre()});
        fenetres.emplace_back(new FrmConjoints{S(), NoOrdre{3}, &Fenetre()});
        fenetres.emplace_back(new FrmLiens{S(), NoOrdre{3}, &Fenetre()});
        fenetres.emplace_back(new FrmNouveauLien{S(), NoOrdre{3}, NoOrdre{1}, &Fenetre()});
        fenetres.emplace_back(new FrmRecherche{S(), &Fenetre()});
        fenetres.emplace_back(new FrmControle{S(), &Fenetre()});
        fenetres.emplace_back(new FrmMisajour{S(), &Fenetre()});
        fenetres.emplace_back(new FrmCreation{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmDesEvt{S(), {}, {}, {}, &Fenetre()});
        fenetres.emplace_back(new FrmLstEvt{S(), &Fenetre()});
        fenetres.emplace_back(new FrmMot{S(), NoOrdre{3}, {}, &Fenetre()});
        fenetres.emplace_back(new FrmDesImage{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmLstImage{S(), &Fenetre()});
        fenetres.emplace_back(new FrmUtilImage{S(), {}, &Fenetre()});
        fenetres.emplace_back(new FrmTexte{S(), &Fenetre()});
        fenetres.emplace_back(new FrmMotCle{S(), &Fenetre()});
        fenetres.emplace_back(new FrmUsuels{S(), &Fenetre()});
        fenetres.emplace_back(new FrmExporter{S(), &Fenetre()});
        fenetres.emplace_back(new FrmParametre{S(), BoutonsIcones(), &Fenetre()});
        fenetres.emplace_back(new FrmReleve{S(),
                                            interchange::SorteReleve::Bapteme,
                                            "1780;1;1;Mer;Dupont;Jean;?\n",
                                            {},
                                            &Fenetre()});
        for (FenetreFille* fille : fenetres) {
            parNom[fille->objectName()] = fille;
            // Parts that translate themselves have captions of their own.
            for (const Legende& legende : TableLegendes()) {
                const QString nom = QString::fromUtf8(legende.fenetre);
                if (auto* partie = fille->findChild<QWidget*>(nom)) parNom.emplace(nom, partie);
            }
        }
        parNom[QStringLiteral("MDIForm1")] = &Fenetre();
    }
    std::vector<FenetreFille*> fenetres;
    std::map<QString, QWidget*> parNom;
};

/// The letter of a mnemonic, in small; 0 when there is none.
QChar Mnemonique(const QString& texte) {
    for (qsizetype i = 0; i + 1 < texte.size(); ++i) {
        if (texte[i] != u'&') continue;
        if (texte[i + 1] != u'&') return texte[i + 1].toLower();
        ++i;
    }
    return {};
}

void VerifierMenu(const QMenu& menu) {
    std::set<QChar> lettres;
    for (const QAction* action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible()) continue;
        const QChar lettre = Mnemonique(action->text());
        // Names of persons and of languages have none.
        if (lettre.isNull()) continue;
        CAPTURE(action->text());
        CHECK(lettres.insert(lettre).second);
    }
}

/// What of a window can be seen at once.
void VerifierPage(const QWidget& fenetre) {
    std::set<QChar> lettres;
    const auto prendre = [&lettres, &fenetre](const QString& texte, const QWidget* controle) {
        const QChar lettre = Mnemonique(texte);
        if (lettre.isNull() || (controle != nullptr && !controle->isVisibleTo(&fenetre))) return;
        CAPTURE(texte.toStdString());
        CHECK(lettres.insert(lettre).second);
    };
    if (const auto* barre = fenetre.findChild<QMenuBar*>())
        for (const QAction* action : barre->actions())
            prendre(action->text(), nullptr);
    for (const QLabel* etiquette : fenetre.findChildren<QLabel*>())
        if (etiquette->window() == &fenetre) prendre(etiquette->text(), etiquette);
    for (const QAbstractButton* bouton : fenetre.findChildren<QAbstractButton*>())
        if (bouton->window() == &fenetre && !bouton->inherits("QToolButton"))
            prendre(bouton->text(), bouton);
}

void VerifierMnemoniques(QWidget& fenetre) {
    // The pages of a dialog are there one at a time.
    if (auto* onglets = fenetre.findChild<QTabWidget*>()) {
        for (int i = 0; i < onglets->count(); ++i) {
            onglets->setCurrentIndex(i);
            VerifierPage(fenetre);
        }
    } else if (auto* pages = fenetre.findChild<QStackedWidget*>(QStringLiteral("Pages"))) {
        for (int i = 0; i < pages->count(); ++i) {
            pages->setCurrentIndex(i);
            VerifierPage(fenetre);
        }
    } else {
        VerifierPage(fenetre);
    }
    for (const QMenu* menu : fenetre.findChildren<QMenu*>())
        VerifierMenu(*menu);
}

}  // namespace

TEST_CASE_FIXTURE(Toutes, "Legendes: every caption has its control, and a text in both languages") {
    for (const char* langue : {"Français", "English"}) {
        REQUIRE(shell::ChoisirLangue(S(), langue));
        for (const Legende& legende : TableLegendes()) {
            CAPTURE(std::string{legende.fenetre});
            CAPTURE(std::string{legende.controle});
            const auto fenetre = parNom.find(QString::fromUtf8(legende.fenetre));
            REQUIRE(fenetre != parNom.end());
            const QString nom = QString::fromUtf8(legende.controle);
            CHECK((nom.isEmpty() || fenetre->second->findChild<QObject*>(nom) != nullptr));
            CHECK_FALSE(S().Message(legende.message).empty());
        }
    }
}

TEST_CASE_FIXTURE(Toutes, "Legendes: no mnemonic stands twice in a window or a menu") {
    for (const char* langue : {"Français", "English"}) {
        REQUIRE(shell::ChoisirLangue(S(), langue));
        Fenetre().Actualiser();
        for (FenetreFille* fille : fenetres)
            fille->Traduire();
        for (const auto& [nom, fenetre] : parNom) {
            if (!fenetre->isWindow()) continue;
            CAPTURE(nom.toStdString());
            VerifierMnemoniques(*fenetre);
        }
    }
}

TEST_CASE("TexteEcran: no-break spaces stand before double signs and inside quotes") {
    CHECK(TexteEcran(std::string{"« Oui » : 3 ?"_1252}) ==
          QStringLiteral("«\u00A0Oui\u00A0»\u00A0: 3\u00A0?"));
    CHECK(TexteEcran(std::string{"12:30, no?"}) == "12:30, no?");
    CHECK(SansMnemonique(QStringLiteral("&Ouvrir...")) == "Ouvrir");
    CHECK(SansMnemonique(QStringLiteral("Dupont && fils")) == "Dupont & fils");
}
