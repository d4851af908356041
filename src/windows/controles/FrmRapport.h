#pragma once

#include <QDialog>

#include "windows/controles/FenetreFille.h"

class QLabel;
class QPlainTextEdit;

namespace dorvane::windows {

/// A report to read, copy and save.
class FrmRapport final : public FenetreFille {
    Q_OBJECT

public:
    /// `titre` and `texte` as the screen shows them.
    FrmRapport(shell::Session& session, const QString& titre, const QString& texte,
               QWidget* parent);

private:
    void CmdCopierClique();
    void CmdEnregistrerClique();

    QPlainTextEdit* texte_;
    QLabel* etat_;
};

}  // namespace dorvane::windows
