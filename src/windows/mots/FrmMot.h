#pragma once

#include <QDialog>

#include "records/SaisieEvenement.h"
#include "records/SaisieFiche.h"
#include "windows/controles/FenetreFille.h"

#include <array>
#include <memory>

class QLineEdit;

namespace Ui {
class FrmMot;
}

namespace dorvane::windows {

/// The keyword rows of a person, filled in from an event. Modal: shown by `exec`, which answers
/// `Accepted` once something was written.
class FrmMot final : public FenetreFille {
    Q_OBJECT

public:
    FrmMot(shell::Session& session, NoOrdre individu, const records::SaisieEvenement& evenement,
           QWidget* parent);
    ~FrmMot() override;

    void ChangerLangue(const MotsDeLangue& avant) override;
    /// Asks first when something is not saved.
    void reject() override;

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    [[nodiscard]] bool EnregistrerSaisie() override;

private:
    struct Rangee {
        QLineEdit* jourMois = nullptr;  ///< null in a row without a date
        QLineEdit* annee = nullptr;
        QLineEdit* lieu = nullptr;  ///< null behind the last row
    };

    void FaireRangees();
    [[nodiscard]] QLineEdit* FaireChamp(const char* nom, std::size_t k, std::string_view texte,
                                        NoMessage acces, const QString& rubrique);
    void Reprendre();
    [[nodiscard]] records::RangeesSlots Lire(std::size_t& remplaces) const;
    void Valider();

    std::unique_ptr<Ui::FrmMot> ui_;
    NoOrdre individu_;
    const records::SaisieEvenement& evenement_;
    records::RangeesSlots slots_;
    std::array<Rangee, 10> rangees_{};
    std::size_t courante_ = 0;  ///< the row that has the focus, or had it last
};

}  // namespace dorvane::windows
