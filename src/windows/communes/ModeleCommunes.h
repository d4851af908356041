#pragma once

#include <QAbstractTableModel>

#include "windows/controles/ModeleListe.h"

namespace dorvane::interchange {
class GestionCommunes;
}

namespace dorvane::windows {

/// Communes that were found. No base of persons needs to be open.
class ModeleCommunes final : public ModeleListe {
    Q_OBJECT

public:
    enum Colonne { Nom, Rattachement, Precision, Code, AutreCode, NbColonnes };

    /// `communes` outlives the model, and is open once there are rows.
    ModeleCommunes(shell::Session& session, const interchange::GestionCommunes& communes,
                   QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

protected:
    [[nodiscard]] std::string Texte(std::uint32_t numero, int colonne) const override;

private:
    const interchange::GestionCommunes& communes_;
};

}  // namespace dorvane::windows
