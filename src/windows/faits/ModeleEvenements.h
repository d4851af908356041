#pragma once

#include <QAbstractTableModel>

#include "windows/controles/ModeleListe.h"

namespace dorvane::windows {

/// All events of the base in the order of their dates.
class ModeleEvenements final : public ModeleListe {
    Q_OBJECT

public:
    enum Colonne { Date, Type, Libelle, Lieu, Personnes, NbColonnes };

    ModeleEvenements(shell::Session& session, QObject* parent);

    /// The numbers of the sort table.
    [[nodiscard]] static std::vector<std::uint32_t> Numeros(const shell::Session& session);

protected:
    [[nodiscard]] std::string Texte(std::uint32_t numero, int colonne) const override;
    [[nodiscard]] std::string Cle(std::uint32_t numero, int colonne) const override;
};

}  // namespace dorvane::windows
