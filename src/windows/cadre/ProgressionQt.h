#pragma once

#include <QObject>
#include <QPointer>

#include "shell/Progression.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

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
    /// Milliseconds since some moment; never goes back.
    using Chronometre = std::function<std::int64_t()>;

    ProgressionQt();

    /// Before the first job; both outlive it.
    void Attacher(const shell::Session& session, CadreAvancement& cadre);

    /// From now on time is told by `chronometre`, and not by the machine.
    void Chronometrer(Chronometre chronometre) { chronometre_ = std::move(chronometre); }

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
    Chronometre chronometre_;
    std::int64_t debut_ = 0;
    std::optional<std::int64_t>
        cession_;  ///< when the event loop last ran; none before the first job
    int cadres_ = 0;
    bool abandon_ = false;
    bool montre_ = false;
};

}  // namespace dorvane::windows
