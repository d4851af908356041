#include "windows/controles/ModelePersonnes.h"

#include <QMimeData>

#include "messages/Dorvane.h"
#include "records/Choix.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>

namespace dorvane::windows {

namespace {

/// What a mark stands for, in words.
NoMessage MessageMarque(std::string_view marque) {
    if (marque == "*") return message::BulleParentsInconnus;
    if (marque == "P") return message::BullePereConnu;
    return marque == "M" ? message::BulleMereConnue : message::BulleParentsConnus;
}

}  // namespace

void ModelePersonnes::Remplacer(const std::vector<NoOrdre>& personnes) {
    // A list that only grows or shrinks by some rows, as during a search, keeps its place on the
    // screen.
    std::size_t debut = 0;
    while (debut < personnes.size() && debut < personnes_.size() &&
           personnes[debut] == personnes_[debut])
        ++debut;
    std::size_t fin = 0;
    while (fin < personnes.size() - debut && fin < personnes_.size() - debut &&
           personnes[personnes.size() - 1 - fin] == personnes_[personnes_.size() - 1 - fin])
        ++fin;
    const auto a = static_cast<int>(debut);
    if (personnes_.size() > debut + fin) {
        beginRemoveRows({}, a, static_cast<int>(personnes_.size() - fin) - 1);
        personnes_.erase(personnes_.begin() + a,
                         personnes_.end() - static_cast<std::ptrdiff_t>(fin));
        endRemoveRows();
    }
    if (personnes.size() > debut + fin) {
        beginInsertRows({}, a, static_cast<int>(personnes.size() - fin) - 1);
        personnes_ = personnes;
        endInsertRows();
    }
}

void ModelePersonnes::Relire() {
    if (!personnes_.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount({}) - 1, NbColonnes - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, NbColonnes - 1);
}

NoOrdre ModelePersonnes::Individu(int rangee) const {
    return rangee >= 0 && rangee < rowCount({}) ? personnes_[static_cast<std::size_t>(rangee)]
                                                : NoOrdre{};
}

int ModelePersonnes::Rangee(NoOrdre individu) const {
    const auto place = std::find(personnes_.begin(), personnes_.end(), individu);
    return place == personnes_.end() ? -1 : static_cast<int>(place - personnes_.begin());
}

int ModelePersonnes::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(personnes_.size());
}

int ModelePersonnes::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : NbColonnes;
}

QVariant ModelePersonnes::data(const QModelIndex& index, int role) const {
    const NoOrdre individu = Individu(index.row());
    if (!individu || !session_.base) return {};
    if (role == Qt::TextAlignmentRole && index.column() == Marque) return QVariant{Qt::AlignCenter};
    const bool bulle = role == Qt::ToolTipRole || role == Qt::AccessibleTextRole;
    if (role != Qt::DisplayRole && !bulle) return {};
    switch (index.column()) {
        case Marque: {
            const std::string_view marque = records::MarqueParents(*session_.base, individu);
            return bulle ? TexteEcran(session_, MessageMarque(marque)) : TexteVersQt(marque);
        }
        case Nom:
            return TexteVersQt(records::NomAffiche(session_, individu));
        case Dates:
            return TexteVersQt(records::DatesDeVie(session_, individu));
        default:
            return {};
    }
}

Qt::ItemFlags ModelePersonnes::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

QMimeData* ModelePersonnes::mimeData(const QModelIndexList& lignes) const {
    return lignes.isEmpty() ? nullptr
                            : PersonneVersMime(session_, Individu(lignes.constFirst().row()));
}

QVariant ModelePersonnes::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return TitreColonne(session_, fenetre_.c_str(), "Grille1", section);
}

}  // namespace dorvane::windows
