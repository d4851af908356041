#pragma once

#include <QAbstractTableModel>

#include "values/Numeros.h"

#include <string>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// Persons in rows: names are read when a row is painted, so that a whole base opens at once.
class ModeleNoms final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Colonnes { Nom, Dates, Parents, Sexe, Famille, NbColonnes };

    /// `session` outlives the model. `parmi`: the persons offered, in order; empty: all of the
    /// base in sort order.
    ModeleNoms(shell::Session& session, const std::vector<NoOrdre>& parmi, QObject* parent);

    /// Keeps the rows in whose name and dates all words of `filtre` occur, whatever their case
    /// and accents. Empty: all rows.
    void Filtrer(const QString& filtre);

    [[nodiscard]] NoOrdre Individu(int rangee) const;
    /// The row of a person, -1 when the filter hides it.
    [[nodiscard]] int Rangee(NoOrdre individu) const;
    [[nodiscard]] int Total() const { return static_cast<int>(tous_.size()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QVariant Texte(NoOrdre individu, int colonne) const;
    [[nodiscard]] QString Bulle(NoOrdre individu, int colonne) const;
    [[nodiscard]] QVariant Image(NoOrdre individu, int colonne) const;
    [[nodiscard]] std::uint32_t MessageFamille(NoOrdre individu) const;

    shell::Session& session_;
    std::vector<NoOrdre> tous_;
    std::vector<NoOrdre> montres_;
    std::vector<std::string> replies_;  ///< what the filter looks at; made by the first filter
};

}  // namespace dorvane::windows
