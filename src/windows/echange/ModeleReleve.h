#pragma once

#include <QAbstractTableModel>

#include "interchange/releves/ImportReleve.h"

#include <unordered_map>

namespace dorvane::windows {

/// The lines of a survey under the columns that its kind has. The first column is the number of
/// the line in the file; a line that is not wholly understood bears a sign and says why.
class ModeleReleve final : public QAbstractTableModel {
    Q_OBJECT

public:
    /// `session` outlives the model.
    ModeleReleve(const shell::Session& session, QObject* parent);

    /// `releve` and `rapport` outlive their show.
    void Poser(const interchange::Releve& releve, const interchange::RapportReleve& rapport);
    /// The row of a line of the file; -1 when it is not among those read.
    [[nodiscard]] int Rangee(std::uint32_t ligne) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    const shell::Session& session_;
    const interchange::Releve* releve_ = nullptr;
    std::unordered_map<std::uint32_t, QStringList> constats_;  ///< by line of the file
};

}  // namespace dorvane::windows
