#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;
class QToolButton;

namespace dorvane::windows {

/// The progress frame in the status bar: what is done, how far, and a button to stop it.
class CadreAvancement final : public QFrame {
    Q_OBJECT

public:
    explicit CadreAvancement(QWidget* parent);

    void Montrer(const QString& texte);
    void Texte(const QString& texte);

    /// `total` 0: the end is not known, and the bar moves to and fro.
    void Avancer(std::uint32_t fait, std::uint32_t total);

    /// Says that the cancellation was heard, until the next `Montrer`.
    void DireAnnulation(const QString& texte);

Q_SIGNALS:
    void annulationDemandee();
    /// What the frame shows, for a window that shows it too.
    void montre(const QString& texte, quint32 fait, quint32 total);

private:
    QLabel* texte_;
    QProgressBar* barre_;
    QToolButton* annuler_;
};

}  // namespace dorvane::windows
