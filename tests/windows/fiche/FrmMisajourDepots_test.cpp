#include <QComboBox>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

#include "records/Famille.h"
#include "records/Liens.h"
#include "windows/Enchainement.h"
#include "windows/FeuilleEssai.h"
#include "windows/controles/BoutonPersonne.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/faits/FrmDesImage.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

struct Depots : Feuille {
    /// False when the widget does not take it. The windows that a drop opens come afterwards.
    static bool Deposer(QWidget& cible, const QMimeData& donnees) {
        const QPoint point{10, 10};
        QDragEnterEvent entree{point, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier};
        entree.setAccepted(false);
        QApplication::sendEvent(&cible, &entree);
        if (!entree.isAccepted()) return false;
        QDropEvent depot{point, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&cible, &depot);
        CHECK(QApplication::activeModalWidget() == nullptr);
        QCoreApplication::processEvents();
        return true;
    }
    bool Deposer(QWidget& cible, NoOrdre individu) {
        const std::unique_ptr<QMimeData> donnees{PersonneVersMime(S(), individu)};
        return Deposer(cible, *donnees);
    }
    QMimeData* Fichiers(std::initializer_list<const char*> noms) {
        QList<QUrl> urls;
        for (const char* nom : noms) {
            doublures::EcrireFichier(dossier / nom, "x");
            urls << QUrl::fromLocalFile(QString::fromStdString((dossier / nom).string()));
        }
        auto* donnees = new QMimeData;
        donnees->setUrls(urls);
        return donnees;
    }
    /// The next window asks for the label of a link: each text is typed and validated in turn, an
    /// empty one gives up.
    static void Qualifier(Enchainement& suite, const char* texte) {
        suite.Fenetre("FrmNouveauLien", [texte](QWidget& fenetre) {
            if (*texte == '\0') {
                QTest::keyClick(&fenetre, Qt::Key_Escape);
                return;
            }
            windows::Taper(*fenetre.focusWidget(), QString::fromUtf8(texte));
            QTest::keyClick(fenetre.focusWidget(), Qt::Key_Return);
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Depots, "FrmMisajour: a person is dropped on a parent, or a list of spouses") {
    REQUIRE(fiche->Ouvrir(NoOrdre{8}));
    SUBCASE("a spouse") {
        CHECK(Deposer(*Liste("L_Conjoint").viewport(), NoOrdre{4}));
        CHECK(records::UnionDe(B(), NoOrdre{8}, NoOrdre{4}));
        CHECK(Liste("L_Conjoint").Lignes().size() == 1);
    }
    SUBCASE("a mother in place of the one who is there: a man is refused") {
        const auto texte = RepondreBoite(QMessageBox::Ok);
        CHECK(Deposer(C<BoutonPersonne>("N_Mère"), NoOrdre{6}));
        CHECK(texte->contains("ne convient pas"));
        CHECK(B().R_MERE.LireCellule(NoOrdre{8}) == NoOrdre{5});
    }
    SUBCASE("a mother in place of the one who is there: asked, and a cancel keeps her") {
        {
            Enchainement suite;
            suite.Boite(QMessageBox::Cancel, QStringLiteral("Jules"));
            CHECK(Deposer(C<BoutonPersonne>("N_Mère"), NoOrdre{4}));
        }
        CHECK(B().R_MERE.LireCellule(NoOrdre{8}) == NoOrdre{5});
        {
            Enchainement suite;
            suite.Boite(QMessageBox::Ok, QStringLiteral("Jules"));
            CHECK(Deposer(C<BoutonPersonne>("N_Mère"), NoOrdre{4}));
        }
        CHECK(B().R_MERE.LireCellule(NoOrdre{8}) == NoOrdre{4});
        CHECK(B().R_ENFANT.NbElements(NoOrdre{5}) == 0);
        CHECK(C<BoutonPersonne>("N_Mère").Individu() == NoOrdre{4});
    }
    SUBCASE("what is no person is not taken") {
        QMimeData texte;
        texte.setText("Martin");
        CHECK_FALSE(Deposer(C<BoutonPersonne>("N_Mère"), texte));
        CHECK_FALSE(Deposer(*Liste("L_Enfants").viewport(), texte));
    }
}

TEST_CASE_FIXTURE(Depots, "FrmMisajour: files that are dropped become documents of the person") {
    Page(4);
    const std::unique_ptr<QMimeData> donnees{Fichiers({"acte.jpg", "photo.png", "lettre.pdf"})};
    const auto fiches = [](Enchainement& suite, Qt::Key touche) {
        suite.Fenetre("FrmDesImage", [touche](QWidget& fenetre) {
            if (touche == Qt::Key_Escape) {
                fenetre.findChild<QLineEdit*>(QStringLiteral("TxtIntitulé"))->clear();
                fenetre.findChild<QLineEdit*>(QStringLiteral("TxtNomfic"))->clear();
                QTest::keyClick(&fenetre, touche);
                return;
            }
            QTest::mouseClick(fenetre.findChild<QPushButton*>(QStringLiteral("CmdValider")),
                              Qt::LeftButton);
        });
    };
    SUBCASE("one after the other; giving one up gives up the rest") {
        Taper("T_Prénom", "Pierre");
        {
            Enchainement suite;
            fiches(suite, Qt::Key_Return);
            fiches(suite, Qt::Key_Return);
            fiches(suite, Qt::Key_Escape);
            CHECK(Deposer(*Liste("LstImage").viewport(), *donnees));
        }
        CHECK(B().R_LSTIMG.Elements(NoOrdre{3}) == std::vector{NoDocument{1}, NoDocument{2}});
        REQUIRE(Liste("LstImage").Lignes().size() == 2);
        CHECK(Liste("LstImage").Lignes()[0].textes[0] == "acte");
        CHECK(Liste("LstImage").Lignes()[1].textes[2] == "photo.png");
        CHECK(B().entete.DernierDocument == 2);
        // What was typed is saved first.
        CHECK(B().R_NOM.PrenomDe(NoOrdre{3}) == "Pierre");
    }
    SUBCASE("of a person with 200 documents: told before a document is made") {
        for (int i = 0; i < 200; ++i) {
            const NoDocument d = B().NouveauDocument();
            B().R_IMAGE.EcrireDoc(d, {"Photo", "", "", ""});
            B().R_LSTIMG.ModifierListe(NoOrdre{3}, d, storage::ActionListe::Ajouter);
        }
        const auto texte = RepondreBoite(QMessageBox::Ok);
        CHECK(Deposer(*Liste("LstImage").viewport(), *donnees));
        CHECK(texte->contains("200"));
        CHECK(B().entete.DernierDocument == 200);
    }
    SUBCASE("an address of the web and a person are not taken") {
        QMimeData adresse;
        adresse.setUrls({QUrl{QStringLiteral("https://exemple.fr/a.jpg")}});
        CHECK_FALSE(Deposer(*Liste("LstImage").viewport(), adresse));
        CHECK_FALSE(Deposer(*Liste("LstImage").viewport(), NoOrdre{4}));
    }
}

TEST_CASE_FIXTURE(Depots, "FrmMisajour: a person dropped on the links is asked the label of") {
    Page(2);
    SUBCASE("a label that is typed and validated links both") {
        {
            Enchainement suite;
            Qualifier(suite, "Parrain");
            CHECK(Deposer(*Liste("GrdLiens").viewport(), NoOrdre{1}));
        }
        CHECK(records::ListerLiens(S(), NoOrdre{3}).size() == 1);
        CHECK(records::ListerLiens(S(), NoOrdre{1}).size() == 1);
        CHECK(Texte("TxtLien") == "Parrain");
    }
    SUBCASE("Escape links nobody") {
        {
            Enchainement suite;
            Qualifier(suite, "");
            CHECK(Deposer(*Liste("GrdLiens").viewport(), NoOrdre{1}));
        }
        CHECK(records::ListerLiens(S(), NoOrdre{1}).empty());
    }
    SUBCASE("a label that is refused stays to be put right") {
        REQUIRE(records::AjouterLien(S(), NoOrdre{3}, NoOrdre{1}, "Voisin"));
        fiche->Recharger();
        {
            Enchainement suite;
            Qualifier(suite, "Voisin");
            suite.Boite(QMessageBox::Ok, QStringLiteral("déjà ce lien"));
            suite.Fenetre("FrmNouveauLien", [](QWidget& fenetre) {
                auto* champ = fenetre.findChild<QComboBox*>();
                CHECK(champ->currentText() == "Voisin");
                CHECK(fenetre.focusWidget() == champ);
                windows::Taper(*fenetre.focusWidget(), QStringLiteral("Ami"));
                QTest::keyClick(fenetre.focusWidget(), Qt::Key_Return);
            });
            CHECK(Deposer(*Liste("GrdLiens").viewport(), NoOrdre{1}));
        }
        CHECK(records::ListerLiens(S(), NoOrdre{3}).size() == 2);
    }
    SUBCASE("characters that would be lost are told before") {
        {
            Enchainement suite;
            Qualifier(suite, "Αμί");
            suite.Boite(QMessageBox::No, QStringLiteral("Caractères"));
            Qualifier(suite, "");
            suite.Boite(QMessageBox::No, QStringLiteral("n'est pas enregistré"));
            CHECK(Deposer(*Liste("GrdLiens").viewport(), NoOrdre{1}));
        }
        CHECK(records::ListerLiens(S(), NoOrdre{1}).empty());
    }
    SUBCASE("the person of the sheet: refused, and no label asked") {
        const auto texte = RepondreBoite(QMessageBox::Ok);
        CHECK(Deposer(*Liste("GrdLiens").viewport(), NoOrdre{3}));
        CHECK(texte->contains("soi-même"));
    }
}
