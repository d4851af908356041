#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// What stands in place of the chart when there is none: without a base, the ways to get one; in an
/// empty base, what to do.
class Accueil final : public QWidget {
    Q_OBJECT

public:
    /// `session` outlives the window.
    Accueil(const shell::Session& session, QWidget* parent);

    /// Shows what holds now, in the language in use.
    void Actualiser();

Q_SIGNALS:
    /// A command of the main window, by its name.
    void commandeDemandee(const QString& nom);

private:
    void PoserRecentes();

    const shell::Session& session_;
    QLabel* titre_;
    QLabel* texte_;
    QPushButton* personne_;
    QPushButton* ouvrir_;
    QPushButton* nouveau_;
    QPushButton* importer_;
    QLabel* recentes_;
    QVBoxLayout* colonne_;
    QVBoxLayout* liste_;
};

}  // namespace dorvane::windows
