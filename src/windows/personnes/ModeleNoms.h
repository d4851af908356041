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

    /// Orders the rows by a column, equal ones as the base has them; -1: as the base has all. Who
    /// is selected stays so.
    void sort(int colonne, Qt::SortOrder ordre) override;

    /// A place by name or year can be asked for: the rows are those of a base in order.
    [[nodiscard]] bool Positionnable() const;
    /// The row of the first person at or after a name or year in the order of the base, in which
    /// the rows must stand; -1 without rows.
    [[nodiscard]] int Position(const QString& texte) const;

    [[nodiscard]] NoOrdre Individu(int rangee) const;
    /// The row of a person, -1 when the filter hides it.
    [[nodiscard]] int Rangee(NoOrdre individu) const;
    [[nodiscard]] int Total() const { return static_cast<int>(tous_.size()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The person of the first of these rows, for dragging.
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& lignes) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QVariant Texte(NoOrdre individu, int colonne) const;
    [[nodiscard]] QString Bulle(NoOrdre individu, int colonne) const;
    [[nodiscard]] QVariant Image(NoOrdre individu, int colonne) const;
    /// Unions and children of a person, in the order in which the column sorts.
    enum class EtatFamille { Aucune, UnionsEtEnfants, UnionSansEnfant, EnfantsSansUnion };
    /// Fills `montres_` by filter and order.
    void Retenir();
    [[nodiscard]] std::string Cle(NoOrdre individu) const;
    [[nodiscard]] EtatFamille FamilleDe(NoOrdre individu) const;

    shell::Session& session_;
    std::vector<NoOrdre> tous_;
    std::vector<NoOrdre> montres_;
    std::vector<std::string> replies_;  ///< what the filter looks at; made by the first filter
    std::vector<std::string> mots_;     ///< of the filter, folded
    bool choix_;                        ///< only some persons are offered
    int colonne_ = -1;                  ///< ordered by it; -1: as the base
    Qt::SortOrder ordre_ = Qt::AscendingOrder;
};

}  // namespace dorvane::windows
