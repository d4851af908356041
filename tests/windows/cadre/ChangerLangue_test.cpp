// The language changes while windows are open and typed in.
#include <QPointer>

#include "records/AccordEvenements.h"
#include "records/Fiche.h"
#include "records/FicheEvenement.h"
#include "records/Liens.h"
#include "shell/Reglages.h"
#include "values/MotsDates.h"
#include "windows/Conduite.h"
#include "windows/faits/FrmDesEvt.h"
#include "windows/mots/FrmMot.h"
#include "windows/mots/FrmMotCle.h"
#include "windows/mots/FrmUsuels.h"
#include "windows/personnes/FrmCreation.h"
#include "windows/personnes/FrmNouveauLien.h"
#include "windows/reglages/FrmParametre.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

constexpr NoOrdre Paul{3};

struct Langue : FenetreEssai {
    Langue() { DemarrerFamille(); }
    ~Langue() { delete fenetre.data(); }
    Langue(const Langue&) = delete;
    Langue& operator=(const Langue&) = delete;

    template <class Forme, class... Args>
    Forme& Montrer(Args&&... args) {
        auto* forme = new Forme{S(), std::forward<Args>(args)..., &Fenetre()};
        fenetre = forme;
        forme->show();
        REQUIRE(QTest::qWaitForWindowExposed(forme));
        return *forme;
    }
    /// The sheet of the program on Paul.
    FrmMisajour& Fiche() {
        Action("MnuModif").trigger();
        auto* fiche = Fenetre().findChild<FrmMisajour*>();
        REQUIRE(fiche != nullptr);
        REQUIRE(fiche->Individu() == Paul);
        return *fiche;
    }
    void Parler(const char* langue) const {
        Action(langue).trigger();
        QCoreApplication::processEvents();
    }
    void Anglais() const { Parler("MnuLng(English)"); }
    void Francais() const { Parler("MnuLng(Français)"); }
    static QString Texte(const QWidget& forme, const char* champ) {
        const auto* liste = forme.findChild<QComboBox*>(QString::fromUtf8(champ));
        return liste != nullptr ? liste->currentText() : Controler<QLineEdit>(forme, champ).text();
    }
    QString Texte(const char* champ) const { return Texte(*fenetre, champ); }
    storage::LigneNom Noms() { return S().base->R_NOM.LireNom(Paul); }

    QPointer<QWidget> fenetre;
};

/// Bytes of the whole person.
std::string OctetsDe(storage::Base& base) {
    return std::string{base.R_NOM.LireNom(Paul).jourMoisNaissance} + '|' +
           std::string{base.R_NOM.LireNom(Paul).jourMoisDeces} + '|' +
           std::string{base.R_NAISS.LireCellule(Paul)} + '|' +
           std::string{base.R_TEXTE.LireTexte(Paul)} + '|' +
           std::string{base.R_TXTMAR.LireTexte(NoMariage{2})};
}

void Page(FrmMisajour& fiche, int page) {
    Controler<QTabWidget>(fiche, "SSTab1").setCurrentIndex(page - 1);
}

void TaperDates(FrmMisajour& fiche) {
    Page(fiche, 1);
    Remplir(fiche, "TxtJNaiss", "12 mars");
    Remplir(fiche, "T_Naiss", "1820");
    Remplir(fiche, "TxtJDécès", "vers août");
    Remplir(fiche, "TxtIndJ(1)", "1er mai");
    Remplir(fiche, "TxtIndA(1)", "1830");
    Remplir(fiche, "TxtIndL(1)", "Brest");
    Page(fiche, 2);
    Remplir(fiche, "TxtJMar", "4 février");
    Remplir(fiche, "T_Dmar", "1850");
}

}  // namespace

TEST_CASE_FIXTURE(Langue, "Sheet: dates typed and not saved are shown in the new words") {
    FrmMisajour& fiche = Fiche();
    TaperDates(fiche);
    Anglais();
    CHECK(Texte(fiche, "TxtJNaiss") == "12 March");
    CHECK(Texte(fiche, "T_Naiss") == "1820");
    CHECK(Texte(fiche, "TxtJDécès") == "about August");
    CHECK(Texte(fiche, "TxtIndJ(1)") == "1st May");
    CHECK(Texte(fiche, "TxtJMar") == "4 February");
    CHECK(Controler<QWidget>(fiche, "C_Maj").isEnabled());
    CHECK(Controler<QWidget>(fiche, "TxtJNaiss").toolTip() == "Changed, not saved yet");
    SUBCASE("and back") {
        Francais();
        CHECK(Texte(fiche, "TxtJNaiss") == "12 mars");
        CHECK(Texte(fiche, "TxtIndJ(1)") == "1er mai");
    }
}

TEST_CASE_FIXTURE(Langue, "Sheet: what is saved after a change of language is what it was before") {
    FrmMisajour& fiche = Fiche();
    TaperDates(fiche);
    Cliquer(fiche, "C_Maj");
    const std::string attendus = OctetsDe(*S().base);
    CHECK(Noms().jourMoisNaissance == "12/3");
    // The same again, from the start, with the language between.
    for (const char* champ : {"TxtJNaiss", "TxtJDécès", "TxtIndJ(1)", "TxtJMar"})
        Controler<QLineEdit>(fiche, champ).clear();
    Cliquer(fiche, "C_Maj");
    REQUIRE(OctetsDe(*S().base) != attendus);
    TaperDates(fiche);
    Anglais();
    Cliquer(fiche, "C_Maj");
    CHECK(OctetsDe(*S().base) == attendus);
    CHECK(Texte(fiche, "TxtJNaiss") == "12 March");
}

TEST_CASE_FIXTURE(Langue, "Sheet: a stored date is read again, and is no change") {
    FrmMisajour& fiche = Fiche();
    TaperDates(fiche);
    Cliquer(fiche, "C_Maj");
    const std::string avant = OctetsDe(*S().base);
    Anglais();
    CHECK(Texte(fiche, "TxtJNaiss") == "12 March");
    CHECK(Texte(fiche, "TxtJMar") == "4 February");
    CHECK_FALSE(fiche.isWindowModified());
    Remplir(fiche, "T_Dmar", "1851");
    Cliquer(fiche, "C_Maj");
    CHECK(OctetsDe(*S().base) == avant);
}

TEST_CASE_FIXTURE(Langue, "Sheet: text that is no date yet stays as typed") {
    FrmMisajour& fiche = Fiche();
    for (const char* texte : {"12 ma", "Pentecôte", "12"}) {
        CAPTURE(texte);
        Remplir(fiche, "TxtJNaiss", texte);
        Anglais();
        CHECK(Texte(fiche, "TxtJNaiss") == QString::fromUtf8(texte));
        Francais();
        CHECK(Texte(fiche, "TxtJNaiss") == QString::fromUtf8(texte));
    }
}

TEST_CASE_FIXTURE(Langue,
                  "Sheet: the label of a link is that of the new language, saved as before") {
    REQUIRE(records::AjouterLien(S(), Paul, NoOrdre{1}, "voisin"));
    FrmMisajour& fiche = Fiche();
    Page(fiche, 3);
    Controler<TableFiche>(fiche, "GrdLiens")
        .setCurrentIndex(Controler<TableFiche>(fiche, "GrdLiens").model()->index(0, 0));
    Remplir(fiche, "TxtLien", "Parrain");
    Anglais();
    CHECK(Texte(fiche, "TxtLien") == "Godfather");
    Cliquer(fiche, "C_Maj");
    CHECK(S().base->R_LIEN.TexteElement(Paul, 1) == "GODF");
}

TEST_CASE_FIXTURE(Langue, "Event: date, kind and role follow, typed and not saved") {
    auto& evenement = Montrer<FrmDesEvt>(NoEvenement{}, Paul, std::string{});
    Remplir(evenement, "CboTypeEvt", "recensement");
    Remplir(evenement, "TxtDate", "12 mars 1820");
    Remplir(evenement, "CboRole", "Témoin");
    Anglais();
    CHECK(Texte("TxtDate") == "12 March 1820");
    CHECK(Texte("CboTypeEvt") == "Census");
    CHECK(Texte("CboRole") == "Witness");
    CHECK(Controler<QLabel>(evenement, "LblAvis").text() == "Sunday");
    Cliquer(evenement, "CmdMaj");
    REQUIRE(evenement.Evenement());
    CHECK(S().base->R_EVT.TypeEvt(evenement.Evenement()) == "CENS");
    CHECK(AfficherDateEvenement(S().base->R_EVT.CleDateEvt(evenement.Evenement()), S().Mots()) ==
          "12 March 1820");
}

TEST_CASE_FIXTURE(Langue, "Event: a stored one is shown in the new words, and is no change") {
    records::SaisieEvenement saisie = records::NouvelEvenement(Paul, "MAIN");
    saisie.date = "1/5/1820";
    saisie.type = "CENS";
    static_cast<void>(records::ValiderEvenement(S(), saisie));
    REQUIRE(saisie.evenement);
    auto& evenement = Montrer<FrmDesEvt>(saisie.evenement, NoOrdre{}, std::string{});
    CHECK(Texte("TxtDate") == "1er mai 1820");
    Anglais();
    CHECK(Texte("TxtDate") == "1st May 1820");
    CHECK(Texte("CboTypeEvt") == "Census");
    CHECK(Controler<QTableView>(evenement, "GrdLiens").model()->index(0, 0).data().toString() ==
          "Principal");
    QTest::keyClick(&Controler<QWidget>(evenement, "TxtDate"), Qt::Key_Escape);
    CHECK_FALSE(evenement.isVisible());
}

TEST_CASE_FIXTURE(Langue,
                  "New person: typed dates and rows follow; what was proposed is no change") {
    SaisieDepart depart;
    depart.jourMoisNaissance = "12 mars";
    depart.anneeNaissance = "1820";
    auto& creation = Montrer<FrmCreation>(depart);
    SUBCASE("typed") {
        Remplir(creation, "T_Nom", "Roux");
        Remplir(creation, "TxtIndJ(1)", "3 août");
        Remplir(creation, "TxtIndA(1)", "1821");
        Anglais();
        CHECK(Texte("TxtJNaiss") == "12 March");
        CHECK(Texte("TxtIndJ(1)") == "3 August");
        Cliquer(creation, "CmdCréer");
        CHECK(S().base->R_NOM.LireNom(creation.Individu()).jourMoisNaissance == "12/3");
    }
    SUBCASE("proposed") {
        Anglais();
        CHECK(Texte("TxtJNaiss") == "12 March");
        QTest::keyClick(&creation, Qt::Key_Escape);
        CHECK_FALSE(creation.isVisible());
    }
}

TEST_CASE_FIXTURE(Langue, "Rows of an event: typed dates follow, and nothing else is a change") {
    const records::SaisieEvenement evenement;
    auto& rangees = Montrer<FrmMot>(Paul, evenement);
    SUBCASE("typed") {
        Remplir(rangees, "TxtIndJ(1)", "14 mars");
        Remplir(rangees, "TxtIndA(1)", "1820");
        Anglais();
        CHECK(Texte("TxtIndJ(1)") == "14 March");
        Cliquer(rangees, "CmdValider");
        Francais();
        CHECK(records::ChargerFiche(S(), Paul).slots[1].jourMois == "14 mars");
    }
    SUBCASE("nothing typed") {
        Anglais();
        QTest::keyClick(&rangees, Qt::Key_Escape);
        CHECK_FALSE(rangees.isVisible());
    }
}

TEST_CASE_FIXTURE(Langue, "Keywords: a typed label follows, an own one stays, code and index too") {
    auto& mots = Montrer<FrmMotCle>();
    Remplir(mots, "Tx_LMClé", "µ");
    SUBCASE("a name of ours") {
        Remplir(mots, "Tx_MClé", "Diplôme");
        Anglais();
        CHECK(Texte("Tx_MClé") == "Graduation");
    }
    SUBCASE("an own one") {
        Remplir(mots, "Tx_MClé", "Taille");
        Anglais();
        CHECK(Texte("Tx_MClé") == "Taille");
    }
    CHECK(Texte("Tx_LMClé") == QStringLiteral("µ"));
}

TEST_CASE_FIXTURE(Langue, "Usual words and new links: what is typed follows or stays") {
    SUBCASE("words") {
        auto& usuels = Montrer<FrmUsuels>();
        Remplir(usuels, "TxtMot", "Diplôme");
        Remplir(usuels, "TxtRubrique", "Terrains");
        Anglais();
        CHECK(Texte("TxtMot") == "Graduation");
        CHECK(Texte("TxtRubrique") == "Terrains");
    }
    SUBCASE("a link") {
        auto& lien = Montrer<FrmNouveauLien>(Paul, NoOrdre{1});
        Remplir(lien, "CboLien", "Parrain");
        Anglais();
        CHECK(Texte("CboLien") == "Godfather");
        CHECK(Controler<QComboBox>(lien, "CboLien").findText(QStringLiteral("Godfather")) >= 0);
    }
}

TEST_CASE_FIXTURE(Langue, "Settings: kinds and roles of events are those of before") {
    auto& reglages = Montrer<FrmParametre>(std::vector<BoutonIcone>{});
    const auto avant = shell::LireReglages(S()).evenements;
    Anglais();
    QTest::keyClick(&reglages, Qt::Key_Escape);
    CHECK_FALSE(reglages.isVisible());
    CHECK(shell::LireReglages(S()).evenements == avant);
}
