#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <memory>

#include <doctest/doctest.h>

namespace dorvane::windows {

/// What a user does in the modal windows that come up one after another or one inside another, in
/// order: each step waits for its own window, however long the program takes. A window that no step
/// expects, or one that does not come, fails the test and is closed, so that nothing hangs.
class Enchainement {
public:
    explicit Enchainement(int ms = 8000) : ms_{ms} { Armer(); }
    ~Enchainement() {
        *vivant_ = false;
        CHECK_MESSAGE(etapes_.empty(), etapes_.size() << " windows did not come up, first: "
                                                      << Premiere().toStdString());
    }
    Enchainement(const Enchainement&) = delete;
    Enchainement& operator=(const Enchainement&) = delete;

    /// A window by the name of its form.
    Enchainement& Fenetre(const char* nom, const std::function<void(QWidget&)>& action) {
        etapes_.push_back({QString::fromUtf8(nom), action});
        return *this;
    }
    /// A message box whose text contains `morceau`, answered with a button.
    Enchainement& Boite(QMessageBox::StandardButton bouton, const QString& morceau) {
        return Fenetre("", [bouton, morceau](QWidget& fenetre) {
            auto* boite = qobject_cast<QMessageBox*>(&fenetre);
            CAPTURE(boite->text().toStdString());
            CHECK(boite->text().contains(morceau));
            REQUIRE(boite->button(bouton) != nullptr);
            QTest::mouseClick(boite->button(bouton), Qt::LeftButton);
        });
    }
    [[nodiscard]] bool Fini() const { return etapes_.empty(); }

private:
    struct Etape {
        QString nom;  ///< of the form; empty for a message box
        std::function<void(QWidget&)> action;
    };
    static constexpr int Periode = 5;  ///< ms

    [[nodiscard]] QString Premiere() const {
        return etapes_.empty() ? QString{} : etapes_.front().nom;
    }

    /// Each look is a timer of its own: it goes on inside the loops of the windows.
    void Armer() {
        QTimer::singleShot(Periode, qApp, [this, vivant = vivant_] {
            if (!*vivant) return;
            Armer();
            Regarder();
        });
    }

    void Regarder() {
        QWidget* fenetre = QApplication::activeModalWidget();
        if (fenetre == nullptr || fenetre == courante_) {
            if (fenetre == nullptr) courante_ = nullptr;
            return;
        }
        const bool boite = qobject_cast<QMessageBox*>(fenetre) != nullptr;
        if (etapes_.empty() || etapes_.front().nom != (boite ? QString{} : fenetre->objectName()))
            return Attendre(*fenetre);
        attente_ = QDeadlineTimer{QDeadlineTimer::Forever};
        const Etape etape = etapes_.front();
        etapes_.pop_front();
        courante_ = fenetre;
        etape.action(*fenetre);
    }

    /// The window that was handled last may take a moment to go; one that stays is not expected.
    void Attendre(QWidget& fenetre) {
        if (attente_.isForever()) attente_ = QDeadlineTimer{ms_};
        if (!attente_.hasExpired()) return;
        const auto* boite = qobject_cast<QMessageBox*>(&fenetre);
        FAIL_CHECK("not expected: "
                   << fenetre.objectName().toStdString() << ' '
                   << (boite != nullptr ? boite->text() : fenetre.windowTitle()).toStdString());
        attente_ = QDeadlineTimer{QDeadlineTimer::Forever};
        fenetre.close();
    }

    int ms_;
    std::deque<Etape> etapes_;
    QPointer<QWidget> courante_;
    QDeadlineTimer attente_{QDeadlineTimer::Forever};
    std::shared_ptr<bool> vivant_ = std::make_shared<bool>(true);
};

}  // namespace dorvane::windows
