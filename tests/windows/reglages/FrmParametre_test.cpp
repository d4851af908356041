#include "windows/reglages/FrmParametre.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QToolButton>

#include "shell/Reglages.h"
#include "windows/Essai.h"
#include "windows/cadre/Commandes.h"
#include "windows/faits/FrmDesEvt.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// The settings window over the family, its controls found by their names.
struct Bureau : FenetreEssai {
    Bureau() {
        DemarrerFamille();
        forme = std::make_unique<FrmParametre>(S(), BoutonsIcones(), &Fenetre());
        forme->show();
        REQUIRE(QTest::qWaitForWindowExposed(forme.get()));
    }

    template <class Controle>
    [[nodiscard]] Controle& C(const char* nom) const {
        auto* controle = forme->findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    void Page(int rang) const { C<QListWidget>("LstPages").setCurrentRow(rang); }
    void Cliquer(const char* nom) const {
        QTest::mouseClick(&C<QAbstractButton>(nom), Qt::LeftButton);
    }
    [[nodiscard]] std::string Ordre() const {
        std::string ordre;
        for (std::uint32_t r = 1; r <= S().base->entete.NbTriIndividus; ++r)
            ordre += std::to_string(S().base->R_TRI.IndividuAuRang(r).valeur);
        return ordre;
    }

    std::unique_ptr<FrmParametre> forme;
};

}  // namespace

TEST_CASE_FIXTURE(
    Bureau, "FrmParametre: saving without a change writes the same settings and asks nothing") {
    const auto avant = S().parametres.magasin.LireSection("Defaut");
    const auto roles = shell::LireReglages(S()).evenements;
    const auto particules = S().parametres.Mots("Particule");
    Cliquer("CmdValider");
    CHECK_FALSE(forme->isVisible());
    CHECK(S().parametres.magasin.LireSection("Defaut") == avant);
    CHECK(shell::LireReglages(S()).evenements == roles);
    CHECK(S().parametres.Mots("Particule") == particules);
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: another sort order is asked for, and the persons follow") {
    const std::string avant = Ordre();
    QTest::mouseClick(&C<QRadioButton>("OptTri0"), Qt::LeftButton, {}, QPoint{8, 8});
    SUBCASE("yes") {
        const auto dit = RepondreBoite(QMessageBox::Yes);
        Cliquer("CmdValider");
        CHECK(dit->contains(QStringLiteral("ordre de création")));
        CHECK(Ordre() == "12345678");
    }
    SUBCASE("no") {
        RepondreBoite(QMessageBox::No);
        Cliquer("CmdValider");
        CHECK(Ordre() == avant);
    }
    SUBCASE("cancel asks whether the changes are to be kept, and sorts nothing") {
        const auto dit = RepondreBoite(QMessageBox::No);
        Cliquer("CmdAnnuler");
        CHECK(dit->startsWith(QStringLiteral("Les réglages ont été modifiés")));
        CHECK_FALSE(forme->isVisible());
        CHECK(Ordre() == avant);
    }
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: the display name is put together and shown in a sample") {
    CHECK(C<QLabel>("LblExemple").text().contains(QStringLiteral("Jean Martin")));
    Cliquer("LstModèleDown");
    CHECK(C<QLabel>("LblExemple").text().contains(QStringLiteral("Martin Jean")));
    C<QComboBox>("CboJeton").setCurrentIndex(3);
    Cliquer("LstModèleAjt");
    CHECK(C<QLabel>("LblExemple").text().contains(QStringLiteral("[5]")));
    Cliquer("CmdValider");
    CHECK(S().parametres.generaux.affichageNom == "BIRN/FNAM/NUMB/");
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: particles are added, ticked and taken away") {
    Page(1);
    auto& table = C<QTableWidget>("TblParticules");
    const int nombre = table.rowCount();
    Taper(C<QLineEdit>("TxtParticule"), QStringLiteral("zu der"));
    Cliquer("CmdPartAjt");
    REQUIRE(table.rowCount() == nombre + 1);
    table.item(nombre, 1)->setCheckState(Qt::Unchecked);
    table.setCurrentCell(0, 0);
    Cliquer("CmdPartSup");
    Cliquer("CmdValider");
    const auto& particules = S().parametres.generaux.particules;
    REQUIRE(particules.size() == static_cast<std::size_t>(nombre));
    CHECK(particules.back().mot == "zu der");
    CHECK_FALSE(particules.back().prenoms);
    CHECK(particules.back().noms);
    CHECK(S().parametres.Valeur("Particule", "zu der") == "0 1");
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: a kind of event gets a role, and another kind is made") {
    Page(3);
    auto& types = C<QListWidget>("LstTypesEvt");
    auto& roles = C<QTableWidget>("TblRoles");
    REQUIRE(types.item(0)->text() == QStringLiteral("Naissance"));
    const int nombre = roles.rowCount();
    Cliquer("CmdRoleAjt");
    auto* libelle = qobject_cast<QComboBox*>(roles.cellWidget(nombre, 0));
    libelle->setEditText(QStringLiteral("Sage-femme"));
    qobject_cast<QComboBox*>(roles.cellWidget(nombre, 1))->setCurrentIndex(2);
    Taper(C<QLineEdit>("TxtTypeEvt"), QStringLiteral("Tirage au sort"));
    Cliquer("LstTypesEvtAjt");
    CHECK(types.currentItem()->text() == QStringLiteral("Tirage au sort"));
    Cliquer("CmdValider");
    const auto naissance = S().parametres.RolesEvenement("BIRT");
    REQUIRE(naissance.size() == static_cast<std::size_t>(nombre + 1));
    CHECK(naissance.back() == shell::RoleEvenement{false, Sexe::Femme, "Sage-femme"});
    CHECK(S().parametres.RolesEvenement("Tirage au sort").size() == 1);
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: Escape closes at once when nothing was changed") {
    for (int page = 0; page < 6; ++page)
        Page(page);
    QTest::keyClick(forme.get(), Qt::Key_Escape);
    CHECK_FALSE(forme->isVisible());
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: Escape with changes can stay, or save them") {
    Page(4);
    Taper(C<QLineEdit>("TxtAuteur"), QStringLiteral("Anne"));
    RepondreBoite(QMessageBox::Cancel);
    QTest::keyClick(forme.get(), Qt::Key_Escape);
    CHECK(forme->isVisible());
    CHECK(C<QLineEdit>("TxtAuteur").text() == QStringLiteral("Anne"));
    RepondreBoite(QMessageBox::Yes);
    QTest::keyClick(forme.get(), Qt::Key_Escape);
    CHECK_FALSE(forme->isVisible());
    CHECK(S().parametres.base.auteur == "Anne");
}

TEST_CASE_FIXTURE(Bureau,
                  "FrmParametre: what the settings cannot hold is asked for before it is lost") {
    Page(4);
    Taper(C<QLineEdit>("TxtAuteur"), QStringLiteral("京"));
    const auto dit = RepondreBoite(QMessageBox::No);
    Cliquer("CmdValider");
    CHECK(dit->contains(QStringLiteral("Enregistrer quand même")));
    CHECK(forme->isVisible());
    CHECK(S().parametres.base.auteur.empty());
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: the role that has the focus is the one that goes") {
    Page(3);
    auto& roles = C<QTableWidget>("TblRoles");
    REQUIRE(roles.rowCount() == 4);
    const auto mot = [&roles](int rangee) {
        return qobject_cast<QComboBox*>(roles.cellWidget(rangee, 0))->currentText();
    };
    REQUIRE(mot(1) == QStringLiteral("Père"));
    roles.cellWidget(1, 0)->setFocus();
    Cliquer("CmdRoleSup");
    REQUIRE(roles.rowCount() == 3);
    CHECK(mot(0) == QStringLiteral("Enfant"));
    CHECK(mot(1) == QStringLiteral("Mère"));
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: a kind that is there already is shown instead") {
    Page(3);
    auto& types = C<QListWidget>("LstTypesEvt");
    const int nombre = types.count();
    Taper(C<QLineEdit>("TxtTypeEvt"), QStringLiteral("Mariage"));
    Cliquer("LstTypesEvtAjt");
    CHECK(types.count() == nombre);
    CHECK(types.currentItem()->text() == QStringLiteral("Mariage"));
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: kinds and roles reach the window of an event at once") {
    Page(3);
    Taper(C<QLineEdit>("TxtTypeEvt"), QStringLiteral("Tirage au sort"));
    Cliquer("LstTypesEvtAjt");
    auto* libelle = qobject_cast<QComboBox*>(C<QTableWidget>("TblRoles").cellWidget(0, 0));
    libelle->setEditText(QStringLiteral("Conscrit"));
    Cliquer("CmdValider");
    FrmDesEvt evenement{S(), {}, {}, {}, &Fenetre()};
    auto* types = evenement.findChild<QComboBox*>(QStringLiteral("CboTypeEvt"));
    REQUIRE(types != nullptr);
    CHECK(types->findText(QStringLiteral("Tirage au sort")) >= 0);
    types->setEditText(QStringLiteral("Tirage au sort"));
    CHECK(evenement.findChild<QComboBox*>(QStringLiteral("CboRole"))->currentText() ==
          QStringLiteral("Conscrit"));
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: author, kinds of documents and bars are kept") {
    Page(4);
    Taper(C<QLineEdit>("TxtAuteur"), QStringLiteral("Hélène"));
    Page(5);
    C<QSpinBox>("SpnFréquence").setValue(5);
    C<QComboBox>("CboJeu").setCurrentText(QStringLiteral("UTF-8"));
    QTest::mouseClick(&C<QCheckBox>("ChkBarreIcones"), Qt::LeftButton, {}, QPoint{5, 8});
    Cliquer("CmdValider");
    CHECK(S().parametres.base.auteur == "H\xE9l\xE8ne");
    CHECK(S().parametres.generaux.frequenceSauvegarde == 5);
    CHECK(S().parametres.Valeur("Defaut", "Jeu Export") == "4");
    CHECK(S().parametres.generaux.barreMenus);
}

TEST_CASE_FIXTURE(Bureau, "FrmParametre: a refusal keeps the window and goes to its page") {
    Page(5);
    C<QLineEdit>("TxtTravail").setText(QStringLiteral("/proc/rien/du/tout"));
    Page(0);
    const auto dit = RepondreBoite(QMessageBox::Ok);
    Cliquer("CmdValider");
    CHECK(dit->contains(QStringLiteral("/proc/rien")));
    CHECK(forme->isVisible());
    CHECK(C<QListWidget>("LstPages").currentRow() == 5);
}
