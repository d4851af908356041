#include "windows/faits/ModeleLiens.h"

#include <QApplication>
#include <QComboBox>
#include <QIcon>
#include <QLineEdit>
#include <QPalette>

#include "messages/Faits.h"
#include "records/FicheEvenement.h"
#include "records/NomsAffiches.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Listes.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

ModeleLiens::ModeleLiens(shell::Session& session, const records::SaisieEvenement& saisie,
                         QObject* parent)
    : QAbstractTableModel{parent}, session_{session}, saisie_{saisie} {}

void ModeleLiens::Relire() {
    beginResetModel();
    manquants_ = records::RolesManquants(session_, saisie_);
    endResetModel();
}

std::optional<std::size_t> ModeleLiens::Lien(int rangee) const {
    if (rangee < 0 || static_cast<std::size_t>(rangee) >= saisie_.liens.size()) return std::nullopt;
    return static_cast<std::size_t>(rangee);
}

std::string ModeleLiens::RoleDe(int rangee) const {
    if (const auto lien = Lien(rangee)) return saisie_.liens[*lien].role;
    const std::size_t manquant = static_cast<std::size_t>(rangee) - saisie_.liens.size();
    return rangee >= 0 && manquant < manquants_.size() ? manquants_[manquant].label : std::string{};
}

int ModeleLiens::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(saisie_.liens.size() + manquants_.size());
}

int ModeleLiens::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : NbColonnes;
}

QVariant ModeleLiens::Texte(int rangee, int colonne) const {
    if (colonne == Role)
        return TexteVersQt(shell::LibelleDeTag(session_.catalogue, RoleDe(rangee)));
    const auto lien = Lien(rangee);
    if (!lien)
        return colonne == Personne ? TexteEcran(session_, message::PersonneAChoisir) : QString{};
    const NoOrdre individu = saisie_.liens[*lien].individu;
    return TexteVersQt(colonne == Personne ? records::NomAffiche(session_, individu)
                                           : records::DatesDeVie(session_, individu));
}

/// What is wrong with a row; none when nothing is.
NoMessage ModeleLiens::MessageDefaut(int rangee) const {
    const auto lien = Lien(rangee);
    if (!lien) return message::BulleRoleObligatoire;
    return records::RoleConvient(session_, saisie_.type, saisie_.liens[*lien])
               ? NoMessage{}
               : message::BulleRoleInadapteAuSexe;
}

QVariant ModeleLiens::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount({}) || !session_.base) return {};
    const NoMessage defaut = MessageDefaut(index.row());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return Texte(index.row(), index.column());
        case Qt::ToolTipRole:
            return defaut ? TexteEcran(session_, defaut)
                          : Texte(index.row(), index.column()).toString();
        case Qt::AccessibleTextRole:
            return Texte(index.row(), index.column()).toString() +
                   (!defaut || index.column() != Role
                        ? QString{}
                        : QStringLiteral(" \u2013 ") + TexteEcran(session_, defaut));
        case Qt::DecorationRole:
            if (index.column() != Role || !defaut) return {};
            return Icone(defaut == message::BulleRoleObligatoire ? "Chercher" : "Abandonner");
        case Qt::ForegroundRole:
            return defaut == message::BulleRoleObligatoire
                       ? QVariant{QApplication::palette().color(QPalette::PlaceholderText)}
                       : QVariant{};
        default:
            return {};
    }
}

QVariant ModeleLiens::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return TitreColonne(session_, "FrmDesEvt", "GrdLiens", section);
}

Qt::ItemFlags ModeleLiens::flags(const QModelIndex& index) const {
    Qt::ItemFlags drapeaux = QAbstractTableModel::flags(index);
    if (index.column() == Role && Lien(index.row())) drapeaux |= Qt::ItemIsEditable;
    return drapeaux;
}

bool ModeleLiens::setData(const QModelIndex& index, const QVariant& valeur, int role) {
    if (role != Qt::EditRole || index.column() != Role || !Lien(index.row())) return false;
    Q_EMIT roleChange(index.row(), valeur.toString());
    return true;
}

EditeurRole::EditeurRole(shell::Session& session, const records::SaisieEvenement& saisie,
                         QObject* parent)
    : QStyledItemDelegate{parent}, session_{session}, saisie_{saisie} {}

QWidget* EditeurRole::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                   const QModelIndex& /*index*/) const {
    auto* liste = new QComboBox{parent};
    liste->setEditable(true);
    liste->lineEdit()->setMaxLength(static_cast<int>(storage::MaxTexteElement));
    liste->setAccessibleName(TexteEcran(session_, message::RoleDeLaPersonne));
    for (const shell::RoleEvenement& role : records::RolesDe(session_, saisie_))
        liste->addItem(TexteVersQt(shell::LibelleDeTag(session_.catalogue, role.label)));
    return liste;
}

void EditeurRole::setEditorData(QWidget* editeur, const QModelIndex& index) const {
    if (auto* liste = qobject_cast<QComboBox*>(editeur))
        liste->setEditText(index.data(Qt::EditRole).toString());
}

void EditeurRole::setModelData(QWidget* editeur, QAbstractItemModel* modele,
                               const QModelIndex& index) const {
    if (auto* liste = qobject_cast<QComboBox*>(editeur))
        modele->setData(index, liste->currentText());
}

}  // namespace dorvane::windows
