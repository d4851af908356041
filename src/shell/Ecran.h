#pragma once

#include "shell/Dialogue.h"

#include <string>

namespace dorvane::shell {

/// What the session asks of the windows around it. The command line has none and answers with
/// `EcranAbsent`.
class Ecran {
public:
    virtual ~Ecran() = default;

    /// Closes the person sheet through its own path if it has unsaved entries. False when the user
    /// keeps it open: what was asked for does not happen.
    [[nodiscard]] virtual bool FermerFiche() = 0;

    /// Unloads every window but the main one.
    virtual void FermerFenetres() = 0;

    /// Reads everything again that the main window shows: title, menus, history, captions of the
    /// `De Cujus`, current person, chart.
    virtual void Actualiser() = 0;

    /// Shows the report of an operation, lines of text in code page 1252, and does not wait.
    virtual void MontrerRapport(const Phrase& titre, const std::string& texte) = 0;
};

/// Where there is no window, nothing stands in the way.
class EcranAbsent final : public Ecran {
public:
    [[nodiscard]] bool FermerFiche() override { return true; }
    void FermerFenetres() override {}
    void Actualiser() override {}
    void MontrerRapport(const Phrase& /*titre*/, const std::string& /*texte*/) override {}
};

}  // namespace dorvane::shell
