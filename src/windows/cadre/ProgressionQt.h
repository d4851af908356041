#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include "shell/Progression.h"

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

class CadreAvancement;

/// Long jobs in the status bar of the main window. Between two steps the screen lives: windows are
/// painted, timers fire, the cancel button answers within a tenth of a second.
class ProgressionQt final : public QObject, public shell::Progression {
    Q_OBJECT

public:
    ProgressionQt() = default;

    /// Before the first job; both outlive it.
    void Attacher(const shell::Session& session, CadreAvancement& cadre);

    void Commencer(const shell::Phrase& titre, const shell::Phrase& texte) override;
    void Phase(const shell::Phrase& texte) override;
    [[nodiscard]] bool Avancer(std::uint32_t fait, std::uint32_t total) override;
    void Terminer() override;
    [[nodiscard]] bool EnCours() const override { return cadres_ > 0; }
    void Sablier(bool attente) override;

private:
    void Annuler();
    [[nodiscard]] QString Composer(const shell::Phrase& texte) const;

    const shell::Session* session_ = nullptr;
    QPointer<CadreAvancement> cadre_;
    QString texte_;
    QElapsedTimer depuisDebut_;
    QElapsedTimer depuisCession_;
    int cadres_ = 0;
    bool abandon_ = false;
    bool montre_ = false;
};

}  // namespace dorvane::windows
