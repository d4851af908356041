#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QSet>

#include "doublures/Coherence.h"
#include "windows/Conduite.h"
#include "windows/controles/Legendes.h"
#include "windows/graphe/FrmPalette.h"

using namespace dorvane;
using namespace dorvane::windows;

namespace {

/// A caption without mnemonic, dots and colon, as it may stand inside a sentence.
QString Epurer(const QString& legende) {
    QString texte = SansMnemonique(legende);
    while (texte.endsWith(QChar{0x2026}))
        texte.chop(1);
    return texte.trimmed();
}

/// The chapter, section by section: what it names in bold, and what its steps have one type.
struct Section {
    QSet<QString> noms;
    QStringList saisies;
};

std::vector<Section> LireChapitre() {
    QFile fichier{QStringLiteral(RACINE_SOURCES "/docs/manuel/premiere-famille.md")};
    REQUIRE(fichier.open(QIODevice::ReadOnly));
    const QString texte = QString::fromUtf8(fichier.readAll());
    static const QRegularExpression Titre{QStringLiteral("^## .*$"),
                                          QRegularExpression::MultilineOption};
    static const QRegularExpression Gras{QStringLiteral("\\*\\*([^*]+)\\*\\*")};
    static const QRegularExpression Code{QStringLiteral("`([^`]+)`")};
    static const QRegularExpression Pas{QStringLiteral("^(\\d+\\.|   )")};
    std::vector<Section> sections;
    QStringList parts = texte.split(Titre);
    parts.removeFirst();
    for (const QString& part : parts) {
        Section section;
        for (auto i = Gras.globalMatch(part); i.hasNext();)
            section.noms << Epurer(i.next().captured(1).replace(u'\n', u' '));
        for (const QString& ligne : part.split(u'\n')) {
            if (!Pas.match(ligne).hasMatch()) continue;
            for (auto i = Code.globalMatch(ligne); i.hasNext();) {
                const QString saisie = i.next().captured(1);
                // An extension is told, not typed.
                if (!saisie.startsWith(u'.')) section.saisies << saisie;
            }
        }
        sections.push_back(section);
    }
    return sections;
}

/// A reader who does what the chapter says, and looks at the screen for what it names.
struct Lecteur : Conduite {
    Lecteur() : sections{LireChapitre()} { REQUIRE(sections.size() == 11); }
    ~Lecteur() {
        // Nothing of the chapter is left unread, unless a step has failed.
        CHECK(section == sections.size());
    }
    Lecteur(const Lecteur&) = delete;
    Lecteur& operator=(const Lecteur&) = delete;

    /// All that can be read on what of a window is shown, tips included.
    void Regarder(const QWidget& fenetre) {
        vus << Epurer(fenetre.windowTitle());
        for (const QWidget* widget : fenetre.findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            vus << Epurer(widget->accessibleName());
            if (const auto* bouton = qobject_cast<const QAbstractButton*>(widget))
                vus << Epurer(bouton->text());
            if (const auto* etiquette = qobject_cast<const QLabel*>(widget))
                vus << Epurer(etiquette->text());
            if (const auto* onglets = qobject_cast<const QTabWidget*>(widget))
                for (int i = 0; i < onglets->count(); ++i)
                    vus << Epurer(onglets->tabText(i).section(QStringLiteral(" ("), 0, 0));
        }
    }
    /// The main window with its menus pulled down.
    void RegarderPrincipale() {
        Regarder(Fenetre());
        for (const QMenu* menu : Fenetre().findChildren<QMenu*>()) {
            vus << Epurer(menu->title());
            for (const QAction* action : menu->actions())
                vus << Epurer(action->text());
        }
    }
    void RegarderFiche() {
        Devant(Fiche());
        Regarder(Fiche());
    }
    /// Takes the next text that the section has one type, for that field.
    const char* Lire(const char* attendu) {
        const QStringList& saisies = sections.at(section).saisies;
        CAPTURE(attendu);
        REQUIRE(lues < saisies.size());
        CHECK(saisies[lues].toStdString() == attendu);
        ++lues;
        return attendu;
    }
    void Ecrire(const QWidget& fenetre, const char* champ, const char* texte) {
        Remplir(fenetre, champ, Lire(texte));
    }
    /// The section has been done: each of its names was on the screen, each of its texts typed.
    void Tourner() {
        CAPTURE(section);
        for (const QString& nom : sections.at(section).noms) {
            CAPTURE(nom.toStdString());
            CHECK(vus.contains(nom));
        }
        CHECK(lues == sections.at(section).saisies.size());
        vus.clear();
        lues = 0;
        ++section;
    }
    /// The next window is the form of a new person: `remplir`, then Enter.
    void Former(Enchainement& formes, const std::function<void(QWidget&)>& remplir) {
        formes.Fenetre("FrmCréation", [this, remplir](QWidget& forme) {
            Regarder(forme);
            remplir(forme);
            QTest::keyClick(forme.focusWidget(), Qt::Key_Return);
        });
    }

    void Debuter();
    void CreerPremiere();
    void EcrireNote();
    void CreerParents();
    void CreerUnion();
    void CreerEnfants();
    void CreerEvenement();
    void CreerDocument();

    std::vector<Section> sections;
    std::size_t section = 0;
    qsizetype lues = 0;
    QSet<QString> vus;
    std::filesystem::path chemin = dossier / "Vasseur.LGD";
};

void Lecteur::Debuter() {
    Enchainement formes;
    formes.Fenetre("FrmPalette", [this](QWidget& question) {
        Regarder(question);
        Cliquer(question, "OptClaire");
        QTest::keyClick(&question, Qt::Key_Return);
    });
    Fenetre().DemanderPalette();
    RegarderPrincipale();
    Tourner();
    RegarderPrincipale();
    RepondreFichier(dossier / Lire("Vasseur"));
    Cliquer(Fenetre(), "CmdAccueilNouveau");
    REQUIRE(S().CheminBase == chemin);
    Tourner();
}

void Lecteur::CreerPremiere() {
    RegarderPrincipale();
    Enchainement formes;
    Former(formes, [this](QWidget& forme) {
        Ecrire(forme, "T_Nom", "Vasseur");
        Ecrire(forme, "T_Prénom", "Émile");
        Cliquer(forme, "O_Sexe(0)");
        Ecrire(forme, "TxtJNaiss", "12 mars");
        Ecrire(forme, "T_Naiss", "1890");
        Ecrire(forme, "TxtLieuNaiss", "Hautval");
        CHECK(Controler<QLabel>(forme, "LblJourNaiss").text() == "mercredi");
    });
    Devant(Fenetre());
    QTest::keyClick(&Fenetre(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    CHECK(EnCours() == 1);
    Tourner();
}

void Lecteur::EcrireNote() {
    RegarderPrincipale();
    OuvrirFiche();
    Page(1);
    RegarderFiche();
    Ecrire(Fiche(), "TxtInd", "Horloger à Hautval.");
    EnregistrerParTouches();
    CHECK(storage::NoteDe(B(), NoOrdre{1}) == "Horloger à Hautval."_1252);
    Tourner();
}

void Lecteur::CreerParents() {
    RegarderFiche();
    Enchainement formes;
    Former(formes, [this](QWidget& forme) {
        Ecrire(forme, "T_Prénom", "Jules");
        Ecrire(forme, "T_Naiss", "1860");
    });
    Cliquer(Fiche(), "CmdCréPère");
    Former(formes, [this](QWidget& forme) {
        CHECK(forme.focusWidget()->objectName() == "T_Nom");
        Ecrire(forme, "T_Nom", "Lenoir");
        Ecrire(forme, "T_Prénom", "Marie");
        Ecrire(forme, "T_Naiss", "1865");
    });
    formes.Fenetre("", [this](QWidget& boite) {
        Regarder(boite);
        auto* question = qobject_cast<QMessageBox*>(&boite);
        REQUIRE(question != nullptr);
        CHECK(question->text().contains(QStringLiteral("créer une union avec Jules Vasseur")));
        QTest::keyClick(&boite, Qt::Key_Return);
    });
    Cliquer(Fiche(), "CmdCréMère");
    CHECK(B().R_MARIAG.NbElements(NoOrdre{2}) == 1);
    Tourner();
}

void Lecteur::CreerUnion() {
    Page(2);
    RegarderFiche();
    Enchainement formes;
    Former(formes, [this](QWidget& forme) {
        Ecrire(forme, "T_Nom", "Petit");
        Ecrire(forme, "T_Prénom", "Louise");
        Ecrire(forme, "T_Naiss", "1894");
    });
    Cliquer(Fiche(), "CmdCréConjoint");
    CHECK(Fiche().focusWidget()->objectName() == "TxtJMar");
    Ecrire(Fiche(), "TxtJMar", "4 mai");
    Ecrire(Fiche(), "T_Dmar", "1919");
    Ecrire(Fiche(), "TxtLieuMar", "Hautval");
    EnregistrerParTouches();
    CHECK(B().R_TXTMAR.LireTexte(NoMariage{2}) == "4/5 @Hautval");
    Tourner();
}

void Lecteur::CreerEnfants() {
    RegarderFiche();
    const auto enfant = [this](const char* prenom, const char* sexe, const char* annee) {
        Enchainement formes;
        Former(formes, [this, prenom, sexe, annee](QWidget& forme) {
            Ecrire(forme, "T_Prénom", prenom);
            Cliquer(forme, sexe);
            Ecrire(forme, "T_Naiss", annee);
        });
        Cliquer(Fiche(), "CmdCréEnfant");
    };
    enfant("André", "O_Sexe(0)", "1920");
    enfant("Simone", "O_Sexe(1)", "1923");
    CHECK(B().R_ENFANT.NbElements(NoOrdre{4}) == 2);
    Tourner();
}

void Lecteur::CreerEvenement() {
    Page(4);
    RegarderFiche();
    Enchainement formes;
    formes.Fenetre("FrmDesEvt", [this](QWidget& evenement) {
        Regarder(evenement);
        Ecrire(evenement, "CboTypeEvt", "Naissance");
        Ecrire(evenement, "TxtDate", "12 mars 1890");
        Ecrire(evenement, "TxtLieu", "Hautval");
        QTest::keyClick(evenement.focusWidget(), Qt::Key_Return);
    });
    Cliquer(Fiche(), "CmdEvtAjout");
    REQUIRE(B().entete.DernierEvenement == 1);
    CHECK(B().R_EVT.Liens(NoEvenement{1}).at(0).role == "CHIL");
    Tourner();
}

void Lecteur::CreerDocument() {
    doublures::EcrireFichier(dossier / "acte.pdf", "%PDF");
    Page(5);
    RegarderFiche();
    Enchainement formes;
    formes.Fenetre("FrmLstImage", [this](QWidget& liste) {
        Regarder(liste);
        Cliquer(liste, "CmdAjout");
        Regarder(liste);
        Cliquer(liste, "CmdChoisir");
    });
    formes.Fenetre("FrmDesImage", [this](QWidget& document) {
        Regarder(document);
        Ecrire(document, "TxtIntitulé", "Acte de naissance");
        Cliquer(document, "CmdFichier");
        QTest::keyClick(&Controler<QLineEdit>(document, "TxtIntitulé"), Qt::Key_Return);
    });
    formes.Fenetre("QFileDialog", [this](QWidget& fichiers) {
        auto& nom = Controler<QLineEdit>(fichiers, "fileNameEdit");
        nom.setText(QString::fromStdString((dossier / "acte.pdf").string()));
        QTest::keyClick(&nom, Qt::Key_Return);
    });
    Cliquer(Fiche(), "CmdImageAjout");
    REQUIRE(B().R_LSTIMG.NbElements(NoOrdre{1}) == 1);
    CHECK(B().R_IMAGE.FichierDoc(NoDocument{1}) == "acte.pdf");
    QTest::keyClick(&Fiche(), Qt::Key_Escape);
    Tourner();
}

}  // namespace

TEST_CASE_FIXTURE(Lecteur, "The first family of the manual is typed as it is written") {
    Debuter();
    CreerPremiere();
    EcrireNote();
    CreerParents();
    CreerUnion();
    CreerEnfants();
    CreerEvenement();
    CreerDocument();

    Devant(Fenetre());
    RegarderPrincipale();
    std::size_t personnes = 0;
    for (const records::CaseFamille& boite : Graphe().Modele().cases)
        personnes += boite.individu ? 1U : 0U;
    CHECK(personnes == 6);
    Tourner();

    RegarderPrincipale();
    QTest::keyClick(&Fenetre(), Qt::Key_S, Qt::ControlModifier);
    CHECK(Fenetre().windowTitle().contains(QString::fromStdString(chemin.string())));
    CHECK(doublures::Coherence{B()}.Ecarts() == "");
    QTest::keyClick(&Fenetre(), Qt::Key_B, Qt::ControlModifier);
    CHECK(std::filesystem::exists(dossier / "Vasseur.SAV"));
    if (S().BaseOuverte()) Action("MnuFermer").trigger();
    RegarderPrincipale();
    CHECK(Trouver<QAbstractButton>("CmdRecente(0)").text() == "Vasseur");
    Tourner();
}
