#pragma once

#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>

#include "records/FicheDocument.h"
#include "records/FicheEvenement.h"
#include "windows/Essai.h"
#include "windows/controles/Unicode.h"
#include "windows/personnes/FrmNom.h"

#include <utility>

namespace dorvane::windows {

/// Names the window that came instead, and closes it: a test does not wait for ever.
inline void Renoncer() {
    QWidget* autre = QApplication::activeModalWidget();
    const auto* boite = qobject_cast<QMessageBox*>(autre);
    FAIL_CHECK("no such window came up; instead: ",
               autre == nullptr ? "none" : autre->metaObject()->className(), " ",
               boite == nullptr ? std::string{} : boite->text().toStdString());
    if (autre != nullptr) autre->close();
}

/// Windows that are still waited for.
inline int& Attendues() {
    static int attendues = 0;
    return attendues;
}

/// Runs `action` on the next window of that class that stands over the others; fails when none
/// comes.
template <class Voulue, class Action>
void SurFenetre(Action action, int ms = 5000) {
    auto* minuteur = new QTimer{qApp};
    const QDeadlineTimer fin{ms};
    ++Attendues();
    QObject::connect(minuteur, &QTimer::timeout, minuteur, [minuteur, action, fin] {
        auto* fenetre = qobject_cast<Voulue*>(QApplication::activeModalWidget());
        if (fenetre == nullptr && !fin.hasExpired()) return;
        minuteur->stop();
        minuteur->deleteLater();
        --Attendues();
        if (fenetre == nullptr)
            Renoncer();
        else
            action(*fenetre);
    });
    minuteur->start(10);
}

/// Answers the next box; its text is kept.
inline std::shared_ptr<QString> Repondre(QMessageBox::StandardButton bouton) {
    auto texte = std::make_shared<QString>();
    SurFenetre<QMessageBox>([texte, bouton](QMessageBox& boite) {
        *texte = boite.text();
        if (boite.button(bouton) == nullptr) {
            FAIL_CHECK("no such button");
            boite.close();
            return;
        }
        QTest::mouseClick(boite.button(bouton), Qt::LeftButton);
    });
    return texte;
}

/// Picks a person in the next chooser.
inline void ChoisirDansNoms(const char* filtre) {
    SurFenetre<FrmNom>([filtre](FrmNom& noms) {
        auto* champ = noms.findChild<QLineEdit*>(QStringLiteral("TxtFiltre"));
        REQUIRE(champ != nullptr);
        champ->setText(QString::fromUtf8(filtre));
        QTest::keyClick(champ, Qt::Key_Return);
    });
}

/// One window of events or documents over the family of the Martins.
template <class Forme>
struct Faits : FenetreEssai {
    Faits() { DemarrerFamille(); }
    ~Faits() {
        CHECK(QTest::qWaitFor([] { return Attendues() == 0; }, 6000));
    }
    Faits(const Faits&) = delete;
    Faits& operator=(const Faits&) = delete;

    template <class... Args>
    Forme& Montrer(Args&&... args) {
        fenetre = std::make_unique<Forme>(S(), std::forward<Args>(args)..., &Fenetre());
        fenetre->show();
        fenetre->activateWindow();
        REQUIRE(QTest::qWaitFor([this] { return QApplication::activeWindow() == fenetre.get(); }));
        return *fenetre;
    }
    template <class Controle>
    Controle& C(const char* nom) {
        auto* controle = fenetre->template findChild<Controle*>(QString::fromUtf8(nom));
        CAPTURE(nom);
        REQUIRE(controle != nullptr);
        return *controle;
    }
    QLineEdit& Champ(const char* nom) { return C<QLineEdit>(nom); }
    void Cliquer(const char* nom) { QTest::mouseClick(&C<QAbstractButton>(nom), Qt::LeftButton); }
    /// Any character, also those that no key of the test library makes.
    void Frapper(const char* texte) {
        for (const QChar c : QString::fromUtf8(texte)) {
            QKeyEvent appui{QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString{c}};
            QApplication::sendEvent(fenetre->focusWidget(), &appui);
        }
    }
    void Taper(QWidget& champ, const char* texte) {
        champ.setFocus();
        QTest::keyClick(&champ, Qt::Key_A, Qt::ControlModifier);
        Frapper(texte);
    }
    void Touche(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier) {
        QTest::keyClick(fenetre->focusWidget(), touche, avec);
    }
    /// Drags what `donnees` holds over a place of a widget, and lets it fall there.
    static void Deposer(QWidget& cible, const QPoint& point, const QMimeData& donnees) {
        QDragEnterEvent entre{point, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&cible, &entre);
        CHECK(entre.isAccepted());
        QDragMoveEvent passe{point, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier};
        // As the desktop does where the enter was accepted.
        passe.accept();
        QApplication::sendEvent(&cible, &passe);
        CHECK(passe.isAccepted());
        QDropEvent depose{point, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&cible, &depose);
    }
    /// The field that the keys go to.
    [[nodiscard]] QString Foyer() const {
        return fenetre->focusWidget() == nullptr ? QString{} : fenetre->focusWidget()->objectName();
    }
    /// A cell as it is shown.
    QString Case(const char* table, int rangee, int colonne) {
        const QAbstractItemModel& modele = *C<QTableView>(table).model();
        return modele.index(rangee, colonne).data().toString();
    }
    int Rangees(const char* table) { return C<QTableView>(table).model()->rowCount(); }

    NoEvenement Evenement(std::string_view date, std::string_view type, std::string_view lieu,
                          std::vector<storage::LienEvenement> liens) {
        const NoEvenement e = S().base->NouvelEvenement();
        storage::PartiesEvt parties;
        parties.cleDate = *SaisirDateEvenement(date, S().Ordre(), S().Mots());
        parties.description = storage::DescriptionEvt{std::string{lieu}, {}, std::string{type}};
        S().base->R_EVT.EcrireEvt(e, parties);
        S().base->R_TRI.AjouterEvt(e);
        for (const storage::LienEvenement& lien : liens)
            REQUIRE(records::LierPersonne(S(), e, lien.individu, lien.role));
        return e;
    }
    NoDocument Document(std::string_view titre, std::string_view fichier,
                        std::string_view type = {}) {
        records::SaisieDocument saisie;
        saisie.valeurs = {std::string{titre}, std::string{fichier}, std::string{type}, {}};
        REQUIRE(records::ValiderDocument(S(), saisie).etat == records::IssueDocument::Etat::Ecrit);
        return saisie.document;
    }
    /// A small picture beside the base.
    std::filesystem::path Image(const char* nom) const {
        const std::filesystem::path chemin = dossier / nom;
        QImage image{80, 60, QImage::Format_RGB32};
        image.fill(Qt::darkGreen);
        REQUIRE(image.save(QString::fromStdString(chemin.string())));
        return chemin;
    }

    std::unique_ptr<Forme> fenetre;
};

}  // namespace dorvane::windows
