#pragma once

#include <QAbstractTableModel>

#include "values/Numeros.h"

#include <string>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// A short list of persons by mark of parents, name and life dates. The headers are the captions of
/// columns 0 to 2 of `Grille1` in the window named.
class ModelePersonnes final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Colonne { Marque, Nom, Dates, NbColonnes };

    /// `session` outlives the model, `fenetre` is a literal.
    ModelePersonnes(shell::Session& session, std::string fenetre, QObject* parent)
        : QAbstractTableModel{parent}, session_{session}, fenetre_{std::move(fenetre)} {}

    /// Takes over another list; rows that stay keep their selection.
    void Remplacer(const std::vector<NoOrdre>& personnes);
    /// The names and dates may have changed.
    void Relire();

    /// The person of a row; 0 for no row.
    [[nodiscard]] NoOrdre Individu(int rangee) const;
    /// The row of a person; -1 when it is not in the list.
    [[nodiscard]] int Rangee(NoOrdre individu) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The person of the first of these rows, for dragging.
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& lignes) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    shell::Session& session_;
    std::string fenetre_;
    std::vector<NoOrdre> personnes_;
};

}  // namespace dorvane::windows
