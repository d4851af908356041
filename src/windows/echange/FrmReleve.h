#pragma once

#include <QDialog>

#include "interchange/releves/ImportReleve.h"
#include "windows/controles/FenetreFille.h"

#include <memory>
#include <string>

namespace Ui {
class FrmReleve;
}

namespace dorvane::windows {

class ModeleReleve;

/// A survey before it becomes a base: its lines under the columns of the kind, what would come of
/// it, and the lines that are not understood. Accepted when the user wants it.
class FrmReleve final : public FenetreFille {
    Q_OBJECT

public:
    /// `octets`: the bytes of the file, `nom`: its name for the screen.
    FrmReleve(shell::Session& session, interchange::SorteReleve sorte, std::string octets,
              const QString& nom, QWidget* parent);
    ~FrmReleve() override;

    /// What is to be imported: the kind may have been changed.
    [[nodiscard]] const interchange::Releve& Lu() const { return releve_; }

    void Traduire() override;

private:
    void Lire();
    void Montrer();
    void MontrerConstats();
    void AllerAuConstat(int rang);

    std::unique_ptr<Ui::FrmReleve> ui_;
    ModeleReleve* modele_;
    std::string octets_;
    QString nom_;
    interchange::Releve releve_;
    interchange::RapportReleve rapport_;
};

}  // namespace dorvane::windows
