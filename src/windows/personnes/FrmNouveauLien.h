#pragma once

#include <QDialog>
#include <QStringList>

#include "values/Numeros.h"
#include "windows/controles/FenetreFille.h"

#include <memory>

namespace Ui {
class FrmNouveauLien;
}

namespace dorvane::windows {

/// Asks what links two persons, and links them. It stays open while what is typed is refused.
class FrmNouveauLien final : public FenetreFille {
    Q_OBJECT

public:
    FrmNouveauLien(shell::Session& session, NoOrdre individu, NoOrdre autre, QWidget* parent);
    ~FrmNouveauLien() override;

    /// Runs the window where the two can be linked; false when no link was made.
    static bool Lier(shell::Session& session, NoOrdre individu, NoOrdre autre, QWidget* parent);

    void Traduire() override;
    /// Escape and the closing of the window ask first when a label is typed.
    void reject() override;

protected:
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    void Valider();

    std::unique_ptr<Ui::FrmNouveauLien> ui_;
    NoOrdre individu_;
    NoOrdre autre_;
};

/// The usual words of the user for links.
[[nodiscard]] QStringList MotsDeLiens(const shell::Session& session);

}  // namespace dorvane::windows
