#pragma once

#include <QDialog>

#include "records/SaisieFiche.h"
#include "values/Numeros.h"
#include "values/Sexe.h"
#include "windows/controles/FenetreFille.h"

#include <memory>
#include <string>

namespace Ui {
class FrmCreation;
}

namespace dorvane::windows {

/// What the form of a new person starts with; texts in code page 1252.
struct SaisieDepart {
    std::string nom{};
    Sexe sexe = Sexe::Indetermine;  ///< `Indetermine`: the user chooses; else the person must be of
                                    ///< that sex
    std::string prenom{};
    std::string jourMoisNaissance{};
    std::string anneeNaissance{};
    std::string lieuNaissance{};
    std::string anneeDeces{};
    std::string jourMoisDeces{};
    std::string lieuDeces{};
    bool nomIncertain = false;  ///< the surname is a guess, to be typed over
};

/// What the form of a parent starts with: the surname of the child, which is a guess for a mother.
[[nodiscard]] SaisieDepart DepartDeParent(const std::string& nomEnfant, Cote cote);

/// "FrmCréation": makes a person. Modal: shown by `exec`, which answers `Accepted` once the person
/// is made.
class FrmCreation final : public FenetreFille {
    Q_OBJECT

public:
    FrmCreation(shell::Session& session, const SaisieDepart& depart, QWidget* parent);
    ~FrmCreation() override;

    /// The new person; 0 when the user gave up.
    [[nodiscard]] NoOrdre Individu() const { return individu_; }

    /// Runs the form; the new person, or 0.
    [[nodiscard]] static NoOrdre Creer(shell::Session& session, const SaisieDepart& depart,
                                       QWidget* parent);

    void Traduire() override;
    void ChangerLangue(const MotsDeLangue& avant) override;
    /// Escape and the closing of the window ask first when something was typed.
    void reject() override;

protected:
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    [[nodiscard]] records::SaisieFiche Lire(std::size_t& remplaces) const;
    void Creer();

    std::unique_ptr<Ui::FrmCreation> ui_;
    records::SaisieFiche depart_;
    NoOrdre individu_{};
};

}  // namespace dorvane::windows
