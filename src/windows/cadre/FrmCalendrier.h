#pragma once

#include <QDialog>

#include "values/Calendriers.h"
#include "windows/controles/FenetreFille.h"

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;

namespace Ui {
class FrmCalendrier;
}

namespace dorvane::windows {

/// The calculator between the Gregorian and the Republican calendar. The other date follows while
/// one is typed; nothing is stored.
class FrmCalendrier final : public FenetreFille {
    Q_OBJECT

public:
    FrmCalendrier(shell::Session& session, QWidget* parent);
    ~FrmCalendrier() override;

    void Traduire() override;

private:
    /// The fields of one calendar.
    struct Champs {
        QLineEdit* jour;
        QComboBox* mois;
        QComboBox* annee;
        QLabel* refusJour;
        QLabel* refusMois;
        QLabel* refusAnnee;
    };
    using Conversion = DateConvertie (*)(const DateDeListe&);

    void CmdGRClique();
    void CmdRGClique();
    void Relier(const Champs& champs, void (FrmCalendrier::*convertir)());
    void Convertir(const Champs& de, const Champs& vers, Conversion conversion);
    [[nodiscard]] static DateDeListe Lire(const Champs& champs);
    static void Montrer(const Champs& champs, const DateDeListe& date);
    static void EffacerRefus(const Champs& champs);
    void Refuser(const Champs& champs, NoMessage refus);

    std::unique_ptr<Ui::FrmCalendrier> ui_;
    Champs gregorien_;
    Champs republicain_;
};

}  // namespace dorvane::windows
