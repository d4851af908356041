#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "windows/Essai.h"
#include "windows/controles/TableFiche.h"
#include "windows/fiche/FrmMisajour.h"

#include <memory>

namespace dorvane::windows {

/// The sheet over the family of the Martins, on Paul (3).
struct Feuille : FenetreEssai {
    Feuille() {
        DemarrerFamille();
        fiche = std::make_unique<FrmMisajour>(S(), &Fenetre());
        Fenetre().Accueillir(*fiche);
        fiche->show();
        fiche->activateWindow();
        REQUIRE(QTest::qWaitFor([this] { return QApplication::activeWindow() == fiche.get(); }));
        REQUIRE(fiche->Ouvrir(NoOrdre{3}));
    }

    template <class Controle>
    Controle& C(const char* nom) {
        auto* controle = fiche->findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    QLineEdit& Champ(const char* nom) { return C<QLineEdit>(nom); }
    QString Texte(const char* nom) { return Champ(nom).text(); }
    TableFiche& Liste(const char* nom) { return C<TableFiche>(nom); }
    void Page(int page) {
        QTest::keyClick(fiche.get(), static_cast<Qt::Key>(Qt::Key_1 + page), Qt::ControlModifier);
    }
    void Taper(const char* nom, const char* texte) {
        Champ(nom).setFocus();
        Champ(nom).selectAll();
        Frapper(texte);
    }
    void Frapper(const char* texte) {
        if (*texte == '\0') QTest::keyClick(fiche->focusWidget(), Qt::Key_Delete);
        for (const QChar c : QString::fromUtf8(texte)) {
            QKeyEvent appui{QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString{c}};
            QApplication::sendEvent(fiche->focusWidget(), &appui);
        }
    }
    void Entree() { QTest::keyClick(fiche->focusWidget(), Qt::Key_Return); }
    void Cliquer(const char* nom) {
        auto& bouton = C<QAbstractButton>(nom);
        CAPTURE(nom);
        REQUIRE(bouton.isEnabled());
        QTest::mouseClick(&bouton, Qt::LeftButton);
    }
    storage::Base& B() { return *S().base; }
    bool AEnregistrer() { return C<QPushButton>("C_Maj").isEnabled(); }

    std::unique_ptr<FrmMisajour> fiche;
};

}  // namespace dorvane::windows
