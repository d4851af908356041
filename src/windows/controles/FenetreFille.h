#pragma once

#include <QDialog>

#include "values/Phrase.h"

#include <cstdint>
#include <functional>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

class MotsDeLangue;

/// Size and place of a window as it was last left, kept in the settings under its name. Nothing
/// when there is none; false then.
bool RestaurerPlace(QWidget& fenetre, const shell::Session& session);
void MemoriserPlace(const QWidget& fenetre, shell::Session& session);

/// A window beside the main one: it translates itself, keeps its place, and Escape closes it.
class FenetreFille : public QDialog {
    Q_OBJECT

public:
    /// `session` outlives the window. `nom` is the name of the form.
    FenetreFille(shell::Session& session, const QString& nom, QWidget* parent);

    /// Takes over the language in use. Called once the controls are there, and after a change.
    virtual void Traduire();

    /// The language has changed; `avant` is the former one. What is typed is written in the new
    /// words, and what is shown is read again.
    virtual void ChangerLangue(const MotsDeLangue& avant);

    /// Another window has changed the base: reads again what this one shows. What the user has
    /// typed and not saved stays.
    virtual void Recharger() {}

    /// Before another base, or none, is opened: asks what becomes of unsaved entries. False when
    /// the user keeps the window as it is.
    [[nodiscard]] virtual bool ConfirmerFermeture() { return true; }

Q_SIGNALS:
    // What a window asks of the main one. A person is a number.

    /// Show that person in the chart.
    void allerDemande(quint32 individu);
    /// Open the person sheet on that person.
    void ficheDemandee(quint32 individu);
    /// Something was written to the base: the chart and the other windows read it again.
    void baseChangee();

protected:
    bool event(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;
    void done(int resultat) override;

    /// Ctrl+S, before the base is saved: writes what is typed in this window. False when the base
    /// is not to be saved now: something was refused, or was not for the base.
    [[nodiscard]] virtual bool EnregistrerSaisie() { return true; }

    /// Asks what becomes of entries that are not saved: yes saves them, no gives them up, and
    /// cancel, which is also Escape and the closing of the box, leaves all as it is. True when the
    /// entries are settled.
    [[nodiscard]] bool QuitterSaisie(const Phrase& question,
                                     const std::function<bool()>& enregistrer,
                                     const std::function<void()>& abandonner);

    /// The same for a window that goes with its entries: `enregistrer` closes it itself.
    void Renoncer(const Phrase& question, const std::function<void()>& enregistrer);

    [[nodiscard]] shell::Session& S() const { return session_; }

private:
    void QuitterProgramme();

    shell::Session& session_;
    bool placee_ = false;
};

}  // namespace dorvane::windows
