#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>

#include "windows/Enchainement.h"
#include "windows/Essai.h"
#include "windows/controles/TableFiche.h"
#include "windows/controles/Unicode.h"
#include "windows/fiche/FrmMisajour.h"

namespace dorvane::windows {

/// What a user types in the form of a person, from left to right; an empty text is passed over.
struct Personne {
    const char* nom = "";  ///< typed over what the form proposes
    const char* prenom = "";
    Sexe sexe = Sexe::Vide;  ///< `Vide`: as the form proposes
    const char* jourNaissance = "";
    const char* anneeNaissance = "";
    const char* lieuNaissance = "";
    const char* jourDeces = "";
    const char* anneeDeces = "";
    const char* lieuDeces = "";
};

template <class Controle>
[[nodiscard]] Controle& Controler(const QWidget& fenetre, const char* nom) {
    auto* controle = fenetre.findChild<Controle*>(QString::fromUtf8(nom));
    CAPTURE(nom);
    REQUIRE(controle != nullptr);
    return *controle;
}

/// Types over what a field holds, as one does who has come there by Tab.
inline void Remplir(const QWidget& fenetre, const char* nom, const char* texte) {
    if (*texte == '\0') return;
    auto* liste = fenetre.findChild<QComboBox*>(QString::fromUtf8(nom));
    auto& champ = liste != nullptr ? *liste->lineEdit() : Controler<QWidget>(fenetre, nom);
    CAPTURE(nom);
    REQUIRE(champ.isVisible());
    REQUIRE(champ.isEnabled());
    champ.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&champ, Qt::Key_A, Qt::ControlModifier);
    Taper(champ, QString::fromUtf8(texte));
}

inline void Cliquer(const QWidget& fenetre, const char* nom) {
    auto& bouton = Controler<QAbstractButton>(fenetre, nom);
    CAPTURE(nom);
    REQUIRE(bouton.isVisible());
    REQUIRE(bouton.isEnabled());
    QTest::mouseClick(&bouton, Qt::LeftButton);
}

/// Clicks the row that holds a text.
inline void CliquerRangee(QTableView& liste, const char* texte) {
    const QAbstractItemModel& modele = *liste.model();
    for (int i = 0; i < modele.rowCount(); ++i)
        for (int j = 0; j < modele.columnCount(); ++j) {
            const QModelIndex index = modele.index(i, j);
            if (!index.data().toString().contains(QString::fromUtf8(texte))) continue;
            QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                              liste.visualRect(index).center());
            return;
        }
    FAIL("no such row: " << texte);
}

inline void RemplirFormulaire(const QWidget& forme, const Personne& p) {
    Remplir(forme, "T_Nom", p.nom);
    Remplir(forme, "T_Prénom", p.prenom);
    if (p.sexe == Sexe::Homme) Cliquer(forme, "O_Sexe(0)");
    if (p.sexe == Sexe::Femme) Cliquer(forme, "O_Sexe(1)");
    Remplir(forme, "TxtJNaiss", p.jourNaissance);
    Remplir(forme, "T_Naiss", p.anneeNaissance);
    Remplir(forme, "TxtLieuNaiss", p.lieuNaissance);
    Remplir(forme, "TxtJDécès", p.jourDeces);
    Remplir(forme, "T_Décès", p.anneeDeces);
    Remplir(forme, "TxtLieuDécès", p.lieuDeces);
}

/// The program driven by mouse and keys alone, from an empty screen on.
struct Conduite : FenetreEssai {
    Conduite() { Demarrer({}); }

    /// Creates a base through the menu.
    void Nouvelle(const std::filesystem::path& fichier) const {
        RepondreFichier(fichier);
        QTest::keyClick(&Fenetre(), Qt::Key_N, Qt::ControlModifier);
        REQUIRE(S().BaseOuverte());
    }

    [[nodiscard]] storage::Base& B() const { return *S().base; }

    [[nodiscard]] FrmMisajour& Fiche() const {
        auto* fiche = Fenetre().findChild<FrmMisajour*>();
        REQUIRE(fiche != nullptr);
        REQUIRE(fiche->isVisible());
        return *fiche;
    }
    /// Brings a window to the front, as a click on it does.
    static void Devant(QWidget& fenetre) {
        // What was asked of the desktop before comes first.
        QCoreApplication::processEvents();
        fenetre.activateWindow();
        REQUIRE(QTest::qWaitFor([&fenetre] { return QApplication::activeWindow() == &fenetre; }));
    }
    /// Opens the sheet of the current person by its key.
    void OuvrirFiche() const {
        Devant(Fenetre());
        QTest::keyClick(&Fenetre(), Qt::Key_F2);
        REQUIRE(Fiche().Individu() == S().PersonneEnCours);
        REQUIRE(QTest::qWaitForWindowActive(&Fiche()));
    }
    /// Shows a page of the sheet, 1 to 6, by its keys.
    void Page(int page) const {
        Devant(Fiche());
        QTest::keyClick(&Fiche(), static_cast<Qt::Key>(Qt::Key_0 + page), Qt::ControlModifier);
        REQUIRE(Controler<QTabWidget>(Fiche(), "SSTab1").currentIndex() == page - 1);
    }
    /// Saves from any field, by the keys.
    void EnregistrerParTouches() const {
        Devant(Fiche());
        QTest::keyClick(Fiche().focusWidget(), Qt::Key_Return, Qt::ControlModifier);
        CHECK_FALSE(Controler<QWidget>(Fiche(), "C_Maj").isEnabled());
    }
    void Enregistrer() const { Cliquer(Fiche(), "C_Maj"); }

    /// Opens a person by the list of all names.
    void AllerPar(const char* filtre) const {
        Enchainement noms;
        noms.Fenetre("FrmNom", [filtre](QWidget& fenetre) {
            Taper(*fenetre.focusWidget(), QString::fromUtf8(filtre));
            QTest::keyClick(fenetre.focusWidget(), Qt::Key_Return);
        });
        Action("MnuNoms").trigger();
    }
    /// A person from the menu, with nothing around.
    void CreerSeul(const Personne& p) const {
        Enchainement formes;
        Creation(formes, p);
        Action("MnuNouvInd").trigger();
    }
    /// The next step fills the form of a new person and validates it with Enter.
    static Enchainement& Creation(Enchainement& formes, const Personne& p) {
        return formes.Fenetre("FrmCréation", [p](QWidget& forme) {
            RemplirFormulaire(forme, p);
            QTest::keyClick(forme.focusWidget(), Qt::Key_Return);
        });
    }

    /// The person of that name, by the base itself.
    [[nodiscard]] NoOrdre Qui(const char* prenom, const char* nom) const {
        for (NoOrdre n{1}; n.valeur <= B().entete.DernierIndividu; ++n.valeur)
            if (TexteVersQt(B().R_NOM.PrenomDe(n)) == QString::fromUtf8(prenom) &&
                TexteVersQt(B().R_NOM.NomDe(n)) == QString::fromUtf8(nom))
                return n;
        FAIL("nobody of that name: " << prenom << ' ' << nom);
        return {};
    }
};

}  // namespace dorvane::windows
