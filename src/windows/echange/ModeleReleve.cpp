#include "windows/echange/ModeleReleve.h"

#include <QApplication>
#include <QStyle>

#include "messages/Releve.h"
#include "shell/Session.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>

namespace dorvane::windows {

ModeleReleve::ModeleReleve(const shell::Session& session, QObject* parent)
    : QAbstractTableModel{parent}, session_{session} {}

void ModeleReleve::Poser(const interchange::Releve& releve,
                         const interchange::RapportReleve& rapport) {
    beginResetModel();
    releve_ = &releve;
    constats_.clear();
    for (const interchange::RapportReleve::Constat& constat : rapport.constats)
        constats_[constat.ligne] << TexteEcran(session_, constat.message);
    endResetModel();
}

int ModeleReleve::Rangee(std::uint32_t ligne) const {
    if (releve_ == nullptr) return -1;
    const auto place =
        std::ranges::lower_bound(releve_->lignes, ligne, {}, &interchange::LigneReleve::numero);
    if (place == releve_->lignes.end() || place->numero != ligne) return -1;
    return static_cast<int>(place - releve_->lignes.begin());
}

int ModeleReleve::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || releve_ == nullptr ? 0 : static_cast<int>(releve_->lignes.size());
}

int ModeleReleve::columnCount(const QModelIndex& parent) const {
    if (parent.isValid() || releve_ == nullptr) return 0;
    return 1 + static_cast<int>(interchange::TitresColonnes(releve_->sorte).size());
}

QVariant ModeleReleve::data(const QModelIndex& index, int role) const {
    const interchange::LigneReleve& ligne = releve_->lignes[static_cast<std::size_t>(index.row())];
    const auto constats = constats_.find(ligne.numero);
    const bool compris = constats == constats_.end();
    if (role == Qt::DisplayRole) {
        if (index.column() == 0) return ligne.numero;
        return TexteVersQt(ligne.Champ(static_cast<std::size_t>(index.column() - 1)));
    }
    if (index.column() == 0 && role == Qt::TextAlignmentRole)
        return QVariant{Qt::AlignRight | Qt::AlignVCenter};
    if (!compris && role == Qt::ToolTipRole) return constats->second.join(QLatin1Char('\n'));
    if (!compris && index.column() == 0 && role == Qt::DecorationRole)
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    if (!compris && index.column() == 0 && role == Qt::AccessibleTextRole)
        return QString::number(ligne.numero) + QLatin1Char(' ') + constats->second.join(u' ');
    return {};
}

QVariant ModeleReleve::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || releve_ == nullptr) return {};
    if (section == 0)
        return role == Qt::DisplayRole ? QVariant{TexteEcran(session_, message::ColonneLigneReleve)}
                                       : QVariant{};
    const auto colonne = static_cast<std::size_t>(section - 1);
    if (role != Qt::DisplayRole) return {};
    const QString titre =
        TexteEcran(session_, interchange::TitresColonnes(releve_->sorte)[colonne]);
    if (!releve_->titres) return titre;
    // What the file itself calls the column stands below, to see at once whether they agree.
    return QString{titre + u'\n' + TexteVersQt(releve_->titres->Champ(colonne))};
}

}  // namespace dorvane::windows
