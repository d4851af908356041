#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>

#include "records/SaisieEvenement.h"
#include "shell/Parametres.h"

#include <optional>
#include <string>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// The persons of an event that is being edited, with their roles; behind them the compulsory roles
/// that nobody has.
class ModeleLiens final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Colonne { Role, Personne, Dates, NbColonnes };

    /// Both outlive the model.
    ModeleLiens(shell::Session& session, const records::SaisieEvenement& saisie, QObject* parent);

    /// Takes the event over as it is now.
    void Relire();

    /// Index of the link of a row in the event; nothing for a role that nobody has.
    [[nodiscard]] std::optional<std::size_t> Lien(int rangee) const;
    /// Stored form of the role of a row; empty for no row.
    [[nodiscard]] std::string RoleDe(int rangee) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& valeur, int role) override;

Q_SIGNALS:
    /// The user gave the link of a row another role, as shown.
    void roleChange(int rangee, const QString& role);

private:
    [[nodiscard]] QVariant Texte(int rangee, int colonne) const;
    [[nodiscard]] NoMessage MessageDefaut(int rangee) const;

    shell::Session& session_;
    const records::SaisieEvenement& saisie_;
    std::vector<shell::RoleEvenement> manquants_;
};

/// Edits a role in its cell: the roles of the kind, or a word of the user's own.
class EditeurRole final : public QStyledItemDelegate {
    Q_OBJECT

public:
    EditeurRole(shell::Session& session, const records::SaisieEvenement& saisie, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editeur, const QModelIndex& index) const override;
    void setModelData(QWidget* editeur, QAbstractItemModel* modele,
                      const QModelIndex& index) const override;

private:
    shell::Session& session_;
    const records::SaisieEvenement& saisie_;
};

}  // namespace dorvane::windows
