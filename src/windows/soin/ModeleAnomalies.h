#pragma once

#include <QAbstractTableModel>

#include "records/ControleBase.h"
#include "windows/controles/ModeleListe.h"

#include <map>
#include <optional>
#include <vector>

namespace dorvane::windows {

/// What a check of the base has found, in the order of the scan. A row stands for what was found,
/// even when the person has changed since. The number of a row is its place from 1.
class ModeleAnomalies final : public ModeleListe {
    Q_OBJECT

public:
    /// The last column holds 1 in each row, for those who count in a spreadsheet.
    enum Colonne { Numero_, Anomalie, Identite, Compte, NbColonnes };

    ModeleAnomalies(shell::Session& session, QObject* parent);

    /// Takes findings in; they are shown by the next `Poser`.
    void Recevoir(std::vector<records::Constat>&& constats);
    void Vider();

    /// The numbers of the findings of one kind, or of all kinds.
    [[nodiscard]] std::vector<std::uint32_t> Numeros(
        std::optional<records::SorteConstat> sorte) const;
    /// How many findings there are of each kind.
    [[nodiscard]] const std::map<records::SorteConstat, std::uint32_t>& Comptes() const {
        return comptes_;
    }
    [[nodiscard]] std::size_t Nombre() const { return constats_.size(); }
    /// The finding of a number; null for 0. Valid until the next `Recevoir`.
    [[nodiscard]] const records::Constat* Constat(std::uint32_t numero) const;
    /// The rows as they are shown, in the language in use.
    [[nodiscard]] std::vector<records::Constat> Montres() const;

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The person of the first of these rows, for dragging.
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& lignes) const override;

protected:
    [[nodiscard]] std::string Texte(std::uint32_t numero, int colonne) const override;
    [[nodiscard]] std::string Cle(std::uint32_t numero, int colonne) const override;
    [[nodiscard]] QVariant Autre(std::uint32_t numero, int colonne, int role) const override;

private:
    std::vector<records::Constat> constats_;
    std::map<records::SorteConstat, std::uint32_t> comptes_;
};

/// The kinds of findings with their counts, in their order; the first row stands for all kinds.
class ModeleSortes final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Colonne { Sorte, Nombre, NbColonnes };

    /// `session` outlives the model.
    ModeleSortes(const shell::Session& session, QObject* parent);

    /// New counts. Kinds that are there already keep their row and their selection; none goes away
    /// but by `Vider`.
    void Compter(const std::map<records::SorteConstat, std::uint32_t>& comptes);
    void Vider();
    void Traduire();

    /// The kind of a row; none for the first one and for no row.
    [[nodiscard]] std::optional<records::SorteConstat> SorteDe(int rangee) const;
    /// The row of a kind; 0 when it has none.
    [[nodiscard]] int Rangee(records::SorteConstat sorte) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Ligne {
        std::optional<records::SorteConstat> sorte;  ///< none: all kinds
        std::uint32_t nombre;
    };

    const shell::Session& session_;
    std::vector<Ligne> lignes_;
};

}  // namespace dorvane::windows
