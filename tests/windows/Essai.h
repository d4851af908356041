#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "doublures/DossierTemporaire.h"
#include "doublures/FamilleEssai.h"
#include "doublures/SessionEssai.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"
#include "windows/cadre/Programme.h"
#include "windows/graphe/FrmDebut.h"

#include <functional>
#include <memory>
#include <string>

#include <doctest/doctest.h>

namespace dorvane::windows {

/// Lets a failed check print what it compared.
inline doctest::String toString(const QString& texte) {
    return texte.toUtf8().constData();
}

/// Types a text letter by letter, accents included.
inline void Taper(QWidget& champ, const QString& texte) {
    for (const QChar lettre : texte) {
        QKeyEvent appui{QEvent::KeyPress, 0, Qt::NoModifier, QString{lettre}};
        QKeyEvent relache{QEvent::KeyRelease, 0, Qt::NoModifier, QString{lettre}};
        QApplication::sendEvent(&champ, &appui);
        QApplication::sendEvent(&champ, &relache);
    }
}

/// Runs `action` as soon as a modal window is up; fails when none comes.
inline void SurModal(const std::function<void(QWidget&)>& action, int ms = 3000) {
    auto* minuteur = new QTimer{qApp};
    const QDeadlineTimer fin{ms};
    QObject::connect(minuteur, &QTimer::timeout, minuteur, [minuteur, action, fin] {
        QWidget* fenetre = QApplication::activeModalWidget();
        if (fenetre == nullptr && !fin.hasExpired()) return;
        minuteur->stop();
        minuteur->deleteLater();
        if (fenetre == nullptr)
            FAIL_CHECK("no modal window came up");
        else
            action(*fenetre);
    });
    minuteur->start(10);
}

/// Answers the next message box with a button, and keeps its text.
inline std::shared_ptr<QString> RepondreBoite(QMessageBox::StandardButton bouton) {
    auto texte = std::make_shared<QString>();
    SurModal([texte, bouton](QWidget& fenetre) {
        auto* boite = qobject_cast<QMessageBox*>(&fenetre);
        if (boite == nullptr || boite->button(bouton) == nullptr) {
            FAIL_CHECK("no message box with that button");
            fenetre.close();
            return;
        }
        *texte = boite->text();
        QTest::mouseClick(boite->button(bouton), Qt::LeftButton);
    });
    return texte;
}

/// Types a path in the next file dialog, or gives it up when the path is empty.
inline void RepondreFichier(const std::filesystem::path& chemin) {
    SurModal([chemin](QWidget& fenetre) {
        auto* champ = fenetre.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (champ == nullptr || chemin.empty()) {
            if (champ == nullptr) FAIL_CHECK("no file dialog");
            fenetre.close();
            return;
        }
        champ->setText(QString::fromStdString(chemin.string()));
        QTest::keyClick(champ, Qt::Key_Return);
    });
}

/// The program with its real windows on a folder of its own, where lies the family of the Martins:
/// Louis (1) and Rose (2) are the parents of Paul (3), who married Anne (4) in 1850 and Jeanne (5)
/// in 1860; Luc (6) and Marie (7) are children of Paul and Anne, Jules (8) of Paul and Jeanne.
class FenetreEssai {
public:
    FenetreEssai() {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        doublures::EcrireFichier(dossier / "partage/Français.mes",
                                 doublures::CatalogueDuProjet("fr"));
        doublures::EcrireFichier(dossier / "partage/English.mes",
                                 doublures::CatalogueDuProjet("en"));
        FaireFamille();
        programme = std::make_unique<Programme>(
            shell::Lieux{dossier / "partage", dossier / "config", dossier / "cache"});
        Fenetre().Graphe().Glisser(false);
    }

    /// Starts with the family or another file; a path of nothing starts without.
    void Demarrer(const std::filesystem::path& fichier) const {
        programme->Demarrer(fichier);
        REQUIRE(QTest::qWaitForWindowExposed(&Fenetre()));
    }
    void DemarrerFamille() const {
        Demarrer(base);
        REQUIRE(S().PersonneEnCours == NoOrdre{1});
        AllerA(3);
    }
    void AllerA(std::uint32_t n) const { Fenetre().AllerA(NoOrdre{n}); }

    [[nodiscard]] shell::Session& S() const { return programme->session; }
    [[nodiscard]] MDIForm1& Fenetre() const { return programme->fenetre; }
    [[nodiscard]] FrmDebut& Graphe() const { return programme->fenetre.Graphe(); }
    [[nodiscard]] std::uint32_t EnCours() const { return S().PersonneEnCours.valeur; }

    [[nodiscard]] QAction& Action(const char* nom) const {
        auto* action = Fenetre().findChild<QAction*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(action != nullptr);
        return *action;
    }
    template <class Controle>
    [[nodiscard]] Controle& Trouver(const char* nom) const {
        auto* controle = Fenetre().findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    void Touche(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier) const {
        QTest::keyClick(&Graphe(), touche, avec);
    }

    doublures::DossierTemporaire dossier;
    std::filesystem::path base = dossier / "Martin.LGD";
    std::unique_ptr<Programme> programme;

private:
    void FaireFamille() const {
        storage::DisqueReel disque;
        auto nouvelle = storage::NouvelleBase(disque, base, {TypeTri::Nom, false, false}).base;
        REQUIRE(nouvelle != nullptr);
        doublures::FamilleEssai famille{*nouvelle};
        const NoOrdre louis = famille.Creer(Sexe::Homme, "Martin", "Louis", "1790", "1860");
        const NoOrdre rose = famille.Creer(Sexe::Femme, "Blanc", "Rose", "1795");
        const NoOrdre paul = famille.Creer(Sexe::Homme, "Martin", "Paul", "1820", "1890");
        const NoOrdre anne = famille.Creer(Sexe::Femme, "Évrard"_1252, "Anne", "1825", "1858");
        const NoOrdre jeanne = famille.Creer(Sexe::Femme, "Noël"_1252, "Jeanne", "1835");
        famille.Parents(paul, louis, rose);
        famille.Marier(louis, rose, "1815");
        famille.Marier(paul, anne, "1850");
        famille.Marier(paul, jeanne, "1860");
        famille.Parents(famille.Creer(Sexe::Homme, "Martin", "Luc", "1851"), paul, anne);
        famille.Parents(famille.Creer(Sexe::Femme, "Martin", "Marie", "1853"), paul, anne);
        famille.Parents(famille.Creer(Sexe::Homme, "Martin", "Jules", "1861"), paul, jeanne);
        REQUIRE(nouvelle->Fermer());
    }
};

}  // namespace dorvane::windows
