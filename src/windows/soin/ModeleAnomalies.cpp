#include "windows/soin/ModeleAnomalies.h"

#include <QLocale>
#include <QMimeData>

#include "messages/Controle.h"
#include "records/Famille.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <string>
#include <utility>

namespace dorvane::windows {

namespace {

constexpr std::size_t ChiffresCle = 8;

/// A number as a key that compares as a text.
std::string CleDe(std::uint32_t nombre) {
    const std::string chiffres = std::to_string(nombre);
    return std::string(ChiffresCle - std::min(ChiffresCle, chiffres.size()), '0') + chiffres;
}

}  // namespace

ModeleAnomalies::ModeleAnomalies(shell::Session& session, QObject* parent)
    : ModeleListe{session, NbColonnes, "FrmControle", "GrdAno", parent} {}

void ModeleAnomalies::Recevoir(std::vector<records::Constat>&& constats) {
    for (records::Constat& constat : constats) {
        ++comptes_[constat.sorte];
        // The catalogue has it, and in the language in use.
        constat.texte = {};
        constats_.push_back(std::move(constat));
    }
}

void ModeleAnomalies::Vider() {
    Poser({});
    constats_.clear();
    comptes_.clear();
}

std::vector<std::uint32_t> ModeleAnomalies::Numeros(
    std::optional<records::SorteConstat> sorte) const {
    std::vector<std::uint32_t> numeros;
    for (std::size_t i = 0; i < constats_.size(); ++i)
        if (!sorte || constats_[i].sorte == *sorte)
            numeros.push_back(static_cast<std::uint32_t>(i) + 1);
    return numeros;
}

const records::Constat* ModeleAnomalies::Constat(std::uint32_t numero) const {
    return numero == 0 || numero > constats_.size() ? nullptr : &constats_[numero - 1];
}

std::vector<records::Constat> ModeleAnomalies::Montres() const {
    std::vector<records::Constat> montres;
    for (int rangee = 0; rangee < rowCount({}); ++rangee) {
        montres.push_back(*Constat(Numero(rangee)));
        montres.back().texte = S().Message(records::MessageDe(montres.back().sorte));
    }
    return montres;
}

std::string ModeleAnomalies::Texte(std::uint32_t numero, int colonne) const {
    const records::Constat* constat = Constat(numero);
    if (constat == nullptr) return {};
    switch (colonne) {
        case Numero_:
            return std::to_string(constat->individu.valeur);
        case Anomalie:
            return S().Message(records::MessageDe(constat->sorte));
        case Identite:
            return constat->identite;
        default:
            return "1";
    }
}

std::string ModeleAnomalies::Cle(std::uint32_t numero, int colonne) const {
    const records::Constat* constat = Constat(numero);
    if (constat != nullptr && colonne == Numero_) return CleDe(constat->individu.valeur);
    return ModeleListe::Cle(numero, colonne);
}

QVariant ModeleAnomalies::Autre(std::uint32_t numero, int colonne, int role) const {
    const records::Constat* constat = Constat(numero);
    if (constat == nullptr) return {};
    if (role == Qt::TextAlignmentRole && (colonne == Numero_ || colonne == Compte))
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && colonne == Numero_)
        return TexteEcran(S().catalogue.Composer(
            shell::Msg(message::BulleRangDeTri, std::to_string(constat->rang))));
    if (role == Qt::DecorationRole && colonne == Identite &&
        records::Existe(*S().base, constat->individu))
        return IconeSexe(S().base->R_SEXE.LireCellule(constat->individu));
    return ModeleListe::Autre(numero, colonne, role);
}

Qt::ItemFlags ModeleAnomalies::flags(const QModelIndex& index) const {
    const Qt::ItemFlags etat = ModeleListe::flags(index);
    return index.isValid() ? etat | Qt::ItemIsDragEnabled : etat;
}

QMimeData* ModeleAnomalies::mimeData(const QModelIndexList& lignes) const {
    const records::Constat* constat =
        lignes.isEmpty() ? nullptr : Constat(Numero(lignes.constFirst().row()));
    if (constat == nullptr || !S().base || !records::Existe(*S().base, constat->individu))
        return nullptr;
    return PersonneVersMime(S(), constat->individu);
}

ModeleSortes::ModeleSortes(const shell::Session& session, QObject* parent)
    : QAbstractTableModel{parent}, session_{session}, lignes_{{std::nullopt, 0}} {}

void ModeleSortes::Compter(const std::map<records::SorteConstat, std::uint32_t>& comptes) {
    lignes_[0].nombre = 0;
    for (const auto& [sorte, nombre] : comptes) {
        lignes_[0].nombre += nombre;
        const auto apres =
            std::find_if(lignes_.begin() + 1, lignes_.end(),
                         [cherchee = sorte](const Ligne& l) { return l.sorte >= cherchee; });
        if (apres != lignes_.end() && apres->sorte == sorte) {
            apres->nombre = nombre;
            continue;
        }
        const int rangee = static_cast<int>(apres - lignes_.begin());
        beginInsertRows({}, rangee, rangee);
        lignes_.insert(apres, {sorte, nombre});
        endInsertRows();
    }
    Q_EMIT dataChanged(index(0, Nombre), index(rowCount({}) - 1, Nombre));
}

void ModeleSortes::Vider() {
    beginResetModel();
    lignes_ = {{std::nullopt, 0}};
    endResetModel();
}

void ModeleSortes::Traduire() {
    Q_EMIT dataChanged(index(0, 0), index(rowCount({}) - 1, NbColonnes - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, NbColonnes - 1);
}

std::optional<records::SorteConstat> ModeleSortes::SorteDe(int rangee) const {
    if (rangee < 0 || rangee >= rowCount({})) return {};
    return lignes_[static_cast<std::size_t>(rangee)].sorte;
}

int ModeleSortes::Rangee(records::SorteConstat sorte) const {
    const auto place = std::find_if(lignes_.begin(), lignes_.end(),
                                    [sorte](const Ligne& l) { return l.sorte == sorte; });
    return place == lignes_.end() ? 0 : static_cast<int>(place - lignes_.begin());
}

int ModeleSortes::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lignes_.size());
}

int ModeleSortes::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : NbColonnes;
}

QVariant ModeleSortes::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Ligne& ligne = lignes_[static_cast<std::size_t>(index.row())];
    if (role == Qt::TextAlignmentRole && index.column() == Nombre)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    if (index.column() == Nombre) return QLocale{}.toString(ligne.nombre);
    return TexteEcran(session_,
                      ligne.sorte ? records::MessageDe(*ligne.sorte) : message::ToutesLesAnomalies);
}

QVariant ModeleSortes::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return TitreColonne(session_, "FrmControle", "LstSortes", section);
}

}  // namespace dorvane::windows
