#include "windows/controles/ModeleListe.h"

#include "shell/Session.h"
#include "values/Comparaison.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <utility>

namespace dorvane::windows {

ModeleListe::ModeleListe(shell::Session& session, int colonnes, const char* fenetre,
                         const char* controle, QObject* parent)
    : QAbstractTableModel{parent},
      session_{session},
      colonnes_{colonnes},
      fenetre_{fenetre},
      controle_{controle} {}

void ModeleListe::Poser(std::vector<std::uint32_t> numeros) {
    beginResetModel();
    tous_ = std::move(numeros);
    replies_.clear();
    Composer();
    endResetModel();
}

void ModeleListe::Filtrer(const QString& filtre) {
    // Folded word by word: the two halves of "Jean-Paul" stay side by side.
    mots_ = CouperEnMots(QtVersTexte(filtre).octets);
    for (std::string& mot : mots_)
        mot = Replie(mot);
    beginResetModel();
    Composer();
    endResetModel();
}

void ModeleListe::Relire() {
    replies_.clear();
    if (!montres_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount({}) - 1, colonnes_ - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, colonnes_ - 1);
}

void ModeleListe::Composer() {
    montres_.clear();
    if (mots_.empty()) {
        montres_ = tous_;
    } else {
        if (replies_.size() != tous_.size()) {
            replies_.clear();
            for (const std::uint32_t numero : tous_)
                replies_.push_back(Replie(TexteFiltre(numero)));
        }
        for (std::size_t i = 0; i < tous_.size(); ++i)
            if (ContientTout(replies_[i], mots_)) montres_.push_back(tous_[i]);
    }
    Ranger();
}

void ModeleListe::Ranger() {
    if (colonneTri_ < 0) return;
    std::vector<std::pair<std::string, std::uint32_t>> cles;
    cles.reserve(montres_.size());
    for (const std::uint32_t numero : montres_)
        cles.emplace_back(Cle(numero, colonneTri_), numero);
    const bool croissant = ordreTri_ == Qt::AscendingOrder;
    std::stable_sort(cles.begin(), cles.end(), [croissant](const auto& a, const auto& b) {
        return croissant ? a.first < b.first : b.first < a.first;
    });
    std::transform(cles.begin(), cles.end(), montres_.begin(),
                   [](const auto& cle) { return cle.second; });
}

void ModeleListe::sort(int colonne, Qt::SortOrder ordre) {
    if (colonne == colonneTri_ && ordre == ordreTri_) return;
    colonneTri_ = colonne;
    ordreTri_ = ordre;
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList anciens = persistentIndexList();
    std::vector<std::uint32_t> numeros;
    for (const QModelIndex& ancien : anciens)
        numeros.push_back(Numero(ancien.row()));
    Composer();
    QModelIndexList nouveaux;
    for (std::size_t i = 0; i < numeros.size(); ++i)
        nouveaux << index(Rangee(numeros[i]), anciens[static_cast<qsizetype>(i)].column());
    changePersistentIndexList(anciens, nouveaux);
    Q_EMIT layoutChanged();
}

std::uint32_t ModeleListe::Numero(int rangee) const {
    return rangee >= 0 && rangee < rowCount({}) ? montres_[static_cast<std::size_t>(rangee)] : 0;
}

int ModeleListe::Rangee(std::uint32_t numero) const {
    const auto place = std::find(montres_.begin(), montres_.end(), numero);
    return place == montres_.end() ? -1 : static_cast<int>(place - montres_.begin());
}

int ModeleListe::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(montres_.size());
}

int ModeleListe::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : colonnes_;
}

QVariant ModeleListe::data(const QModelIndex& index, int role) const {
    const std::uint32_t numero = Numero(index.row());
    if (numero == 0 || !session_.base) return {};
    if (role == Qt::DisplayRole) return TexteVersQt(Texte(numero, index.column()));
    return Autre(numero, index.column(), role);
}

std::string ModeleListe::TexteFiltre(std::uint32_t numero) const {
    std::string texte;
    for (int colonne = 0; colonne < colonnes_; ++colonne)
        texte += Texte(numero, colonne) + '\n';
    return texte;
}

std::string ModeleListe::Cle(std::uint32_t numero, int colonne) const {
    return Replie(Texte(numero, colonne));
}

QVariant ModeleListe::Autre(std::uint32_t numero, int colonne, int role) const {
    // What a column is too narrow for.
    if (role == Qt::ToolTipRole) return TexteVersQt(Texte(numero, colonne));
    return {};
}

QVariant ModeleListe::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return TitreColonne(session_, fenetre_, controle_, section);
}

}  // namespace dorvane::windows
