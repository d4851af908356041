#include "windows/personnes/FrmCreation.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QToolButton>

#include "windows/Essai.h"
#include "windows/controles/Completeur.h"
#include "windows/controles/Unicode.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The form over the family of the Martins.
struct Formulaire : FenetreEssai {
    Formulaire() { DemarrerFamille(); }

    FrmCreation& Ouvrir(const SaisieDepart& depart = {}) {
        fenetre = std::make_unique<FrmCreation>(S(), depart, &Fenetre());
        fenetre->show();
        fenetre->activateWindow();
        REQUIRE(QTest::qWaitFor([this] { return QApplication::activeWindow() == fenetre.get(); }));
        return *fenetre;
    }
    template <class Controle>
    Controle& C(const char* nom) {
        auto* controle = fenetre->findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    QLineEdit& Champ(const char* nom) { return C<QLineEdit>(nom); }
    void Taper(const char* nom, const char* texte) {
        Champ(nom).setFocus();
        Champ(nom).selectAll();
        Frapper(texte);
    }
    /// Any character, also those that no key of the test library makes.
    void Frapper(const char* texte) const {
        for (const QChar c : QString::fromUtf8(texte)) {
            QKeyEvent appui{QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString{c}};
            QApplication::sendEvent(fenetre->focusWidget(), &appui);
        }
    }
    void Entree() const { QTest::keyClick(fenetre->focusWidget(), Qt::Key_Return); }

    std::unique_ptr<FrmCreation> fenetre;
    NoOrdre suivant{9};  ///< number of the next person
};

}  // namespace

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: typed and validated by keys, the person is made whole") {
    Ouvrir({.nom = "Martin", .sexe = Sexe::Femme});
    CHECK(Champ("T_Nom").text() == "Martin");
    CHECK(C<QRadioButton>("O_Sexe(1)").isChecked());
    // The surname stands: the first names are next.
    CHECK(fenetre->focusWidget() == &Champ("T_Prénom"));
    Frapper("Louise");
    Taper("TxtJNaiss", "12/3");
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab);
    CHECK(Champ("TxtJNaiss").text() == QStringLiteral("12 mars"));
    CHECK(fenetre->focusWidget() == &Champ("T_Naiss"));
    Frapper("1858");
    CHECK(C<QLabel>("LblJourNaiss").text() == "vendredi");
    Taper("TxtLieuNaiss", "Saint Malo");
    Taper("TxtIndL(0)", "dentellière");
    Entree();
    CHECK(fenetre->result() == QDialog::Accepted);
    CHECK(fenetre->Individu() == suivant);
    storage::Base& lue = *S().base;
    CHECK(lue.R_NOM.LireTexte(suivant) == "Martin;Louise;;12/3;");
    CHECK(lue.R_SEXE.LireCellule(suivant) == Sexe::Femme);
    CHECK(lue.R_NAISS.LireCellule(suivant) == "1858");
    CHECK(storage::LieuNaissance(lue, suivant) == "Saint Malo");
    CHECK(storage::SlotsDe(lue, suivant)[0].lieu == "dentellière"_1252);
}

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: Escape on an untouched form makes nobody, without a question") {
    Ouvrir({.nom = "Martin", .sexe = Sexe::Homme});
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK_FALSE(fenetre->isVisible());
    CHECK_FALSE(fenetre->Individu());
    CHECK(S().base->entete.DernierIndividu == suivant.valeur - 1);
}

TEST_CASE_FIXTURE(Formulaire, "FrmCréation: Escape after typing asks, and a no makes nobody") {
    Ouvrir();
    Taper("T_Nom", "Durand");
    const auto texte = RepondreBoite(QMessageBox::No);
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK(texte->contains("créée"));
    CHECK_FALSE(fenetre->isVisible());
    CHECK(S().base->entete.DernierIndividu == suivant.valeur - 1);
}

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: Escape after typing, and a cancel, keeps the form and its fields") {
    Ouvrir();
    Taper("T_Nom", "Durand");
    RepondreBoite(QMessageBox::Cancel);
    QTest::keyClick(fenetre.get(), Qt::Key_Escape);
    CHECK(fenetre->isVisible());
    CHECK(Champ("T_Nom").text() == "Durand");
}

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: a person without a name is refused, the focus on the surname") {
    Ouvrir();
    Taper("T_Naiss", "1850");
    const auto texte = RepondreBoite(QMessageBox::Ok);
    Entree();
    CHECK(*texte == "Indiquez au moins un nom ou un prénom.");
    CHECK(fenetre->isVisible());
    CHECK(fenetre->focusWidget() == &Champ("T_Nom"));
    CHECK(Champ("T_Naiss").text() == "1850");
}

TEST_CASE_FIXTURE(Formulaire, "FrmCréation: the sex that the caller wants cannot be changed") {
    Ouvrir({.nom = "Martin", .sexe = Sexe::Homme});
    CHECK(C<QRadioButton>("O_Sexe(0)").isChecked());
    CHECK_FALSE(C<QRadioButton>("O_Sexe(1)").isEnabled());
    CHECK_FALSE(C<QRadioButton>("O_Sexe(2)").isEnabled());
}

TEST_CASE_FIXTURE(Formulaire, "FrmCréation: left undetermined, the sex cell stays blank") {
    Ouvrir();
    CHECK(C<QRadioButton>("O_Sexe(2)").isChecked());
    Taper("T_Nom", "Durand");
    Taper("T_Naiss", "1850");
    Entree();
    CHECK(S().base->R_SEXE.LireCellule(suivant) == Sexe::Vide);
}

TEST_CASE_FIXTURE(Formulaire, "FrmCréation: the case of the base applies when a field is left") {
    S().parametres.base.conversionNom = "1";
    S().parametres.base.conversionPrenom = "2";
    Ouvrir();
    Taper("T_Nom", "de la tour");
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab);
    CHECK(Champ("T_Nom").text() == "DE LA TOUR");
    Frapper("jean-marie");
    QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab);
    CHECK(Champ("T_Prénom").text() == "Jean-Marie");
}

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: what is odd about a date is told beside it while typing") {
    Ouvrir();
    CHECK(C<QLabel>("LblAvisNaiss").text() == "année manquante");
    Taper("T_Naiss", "18?");
    CHECK(C<QLabel>("LblAvisNaiss").text() == "année non triable");
    Taper("T_Naiss", "1850");
    CHECK(C<QLabel>("LblAvisNaiss").text().isEmpty());
    Taper("T_Décès", "1840");
    CHECK(C<QLabel>("LblAvisDécès").text() == "avant la naissance");
    Taper("TxtIndA(1)", "1830");
    CHECK(C<QLabel>("LblIndAvis(1)").text() == "avant la naissance");
}

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: characters that the base lacks are told before they are lost") {
    Ouvrir();
    Taper("T_Nom", "Ωmega");
    Taper("T_Naiss", "1850");
    auto texte = RepondreBoite(QMessageBox::No);
    Entree();
    CHECK(texte->contains(": 1."));
    CHECK(fenetre->isVisible());
    CHECK(S().base->entete.DernierIndividu == suivant.valeur - 1);
    texte = RepondreBoite(QMessageBox::Yes);
    QTest::mouseClick(&C<QPushButton>("CmdCréer"), Qt::LeftButton);
    CHECK(S().base->R_NOM.NomDe(suivant) == "?mega");
}

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: known words are proposed while typing and chosen by keys") {
    Ouvrir();
    Taper("T_Nom", "Durand");
    Taper("T_Naiss", "1850");
    Taper("TxtLieuNaiss", "Saint-Malo");
    Entree();
    Ouvrir();
    Champ("TxtLieuNaiss").setFocus();
    QTest::keyClicks(&Champ("TxtLieuNaiss"), "sai");
    QAbstractItemView* liste = Champ("TxtLieuNaiss").completer()->popup();
    REQUIRE(liste->isVisible());
    QTest::keyClick(liste, Qt::Key_Down);
    QTest::keyClick(liste, Qt::Key_Return);
    CHECK(Champ("TxtLieuNaiss").text() == "Saint-Malo");
    CHECK(fenetre->isVisible());
}

TEST_CASE_FIXTURE(Formulaire,
                  "FrmCréation: the words of a keyword are listed by the button of its row") {
    Ouvrir();
    Taper("T_Nom", "Durand");
    Taper("T_Naiss", "1850");
    Taper("TxtIndL(0)", "Meunier");
    Entree();
    Ouvrir();
    QTest::mouseClick(&C<QToolButton>("CmdIndSel(0)"), Qt::LeftButton);
    QAbstractItemView* liste = nullptr;
    for (const Completeur* mots : Champ("TxtIndL(0)").findChildren<Completeur*>())
        if (mots->popup()->isVisible()) liste = mots->popup();
    REQUIRE(liste != nullptr);
    REQUIRE(liste->model()->rowCount() == 1);
    QTest::keyClick(liste, Qt::Key_Down);
    QTest::keyClick(liste, Qt::Key_Return);
    CHECK(Champ("TxtIndL(0)").text() == "Meunier");
}

TEST_CASE_FIXTURE(Formulaire, "FrmCréation: the order of Tab is the order of reading") {
    Ouvrir();
    QStringList ordre;
    for (int i = 0; i < 13; ++i) {
        ordre << fenetre->focusWidget()->objectName();
        QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab);
    }
    CAPTURE(ordre.join(u' ').toStdString());
    CHECK(ordre.join(u' ') == QStringList{"T_Nom", "T_Prénom", "Tx_PrénomAutres", "O_Sexe(0)",
                                          "TxtJNaiss", "T_Naiss", "TxtLieuNaiss", "TxtJDécès",
                                          "T_Décès", "TxtLieuDécès", "TxtIndL(0)", "CmdIndSel(0)",
                                          "TxtIndJ(1)"}
                                  .join(u' '));
}
