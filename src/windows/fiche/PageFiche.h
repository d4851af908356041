#pragma once

#include <QList>
#include <QWidget>

#include "records/SaisieFiche.h"
#include "values/Numeros.h"

#include <cstddef>
#include <string>

class QAbstractButton;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

class EditeurNote;
class TableFiche;

/// What a page of the sheet asks of the sheet.
class ServicesFiche {
public:
    ServicesFiche() = default;
    virtual ~ServicesFiche() = default;
    ServicesFiche(const ServicesFiche&) = delete;
    ServicesFiche& operator=(const ServicesFiche&) = delete;

    /// Before an operation on the person: saves what is typed, makes a new person. False when that
    /// was refused.
    [[nodiscard]] virtual bool Preparer() = 0;
    /// An operation has written to the base: the sheet reads again. `valider`: it also commits, as
    /// after every change of the relatives.
    virtual void Ecrit(bool valider) = 0;
    /// Shows another person in the sheet, after the question for what is typed.
    virtual void Montrer(NoOrdre individu) = 0;
    /// A field was changed.
    virtual void Changer() = 0;
    /// What is typed is to be given up or saved; false to stay.
    [[nodiscard]] virtual bool Demander() = 0;
};

/// One page of `SSTab1`.
class PageFiche : public QWidget {
public:
    /// Both outlive the page.
    PageFiche(shell::Session& session, ServicesFiche& fiche, QWidget* parent)
        : QWidget{parent}, session_{session}, fiche_{fiche} {}

    /// Reads all that the page shows of a person. `garder`: fields that were changed keep what they
    /// say; otherwise it is given up.
    virtual void Charger(NoOrdre individu, bool garder) = 0;
    /// Fills what of the sheet is typed on this page.
    virtual void Lire(records::SaisieFiche& /*saisie*/, std::size_t& /*remplaces*/) const {}
    virtual void Traduire() = 0;
    /// The controls in the order of reading.
    [[nodiscard]] virtual QList<QWidget*> Ordre() const = 0;
    /// What stands behind the title of the page; empty for nothing.
    [[nodiscard]] virtual QString Compte() const { return {}; }

protected:
    [[nodiscard]] shell::Session& S() const { return session_; }
    [[nodiscard]] ServicesFiche& Fiche() const { return fiche_; }
    [[nodiscard]] NoOrdre Individu() const { return individu_; }
    void PoserIndividu(NoOrdre individu) { individu_ = individu; }

    /// An icon and the text of a message as tip and name.
    void Habiller(QAbstractButton& bouton, const char* icone, NoMessage message) const;
    /// The rows about persons of a list lead to their sheet.
    void RelierPersonnes(TableFiche& table);
    /// Shows a stored note; a formatted one can be changed in the large editor only.
    static void PoserNote(EditeurNote& editeur, const std::string& note);
    /// The same, but with `garder` a note that is no longer `stockee` stays; `stockee` becomes
    /// `note`.
    static void RelireNote(EditeurNote& editeur, const std::string& note, std::string& stockee,
                           bool garder);
    /// Opens the large editor on the note of a field; `de` names the note for the caption.
    void EditerNote(EditeurNote& editeur, const QString& de);

private:
    shell::Session& session_;
    ServicesFiche& fiche_;
    NoOrdre individu_{};
};

}  // namespace dorvane::windows
