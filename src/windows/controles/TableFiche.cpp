#include "windows/controles/TableFiche.h"

#include <QAbstractTableModel>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Legendes.h"

#include <utility>

namespace dorvane::windows {

class TableFiche::Modele final : public QAbstractTableModel {
public:
    Modele(shell::Session& session, const char* page, QByteArray table, int colonnes,
           QObject* parent)
        : QAbstractTableModel{parent},
          session_{session},
          page_{page},
          table_{std::move(table)},
          colonnes_{colonnes} {}

    void Poser(std::vector<LigneFiche> lignes) {
        beginResetModel();
        lignes_ = std::move(lignes);
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(lignes_.size());
    }
    [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override {
        return colonnes_;
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        const LigneFiche& ligne = lignes_[static_cast<std::size_t>(index.row())];
        if (role == Qt::DisplayRole) return ligne.textes.value(index.column());
        if (role == Qt::ToolTipRole)
            return ligne.bulle.isEmpty() ? ligne.textes.value(index.column()) : ligne.bulle;
        if (role == Qt::DecorationRole && index.column() == 0) return ligne.icone;
        return {};
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
        return TitreColonne(session_, page_, table_.constData(), section);
    }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override {
        Qt::ItemFlags etat = QAbstractTableModel::flags(index);
        if (index.isValid() && lignes_[static_cast<std::size_t>(index.row())].individu)
            etat |= Qt::ItemIsDragEnabled;
        return etat;
    }
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& lignes) const override {
        if (lignes.isEmpty()) return nullptr;
        return PersonneVersMime(session_,
                                lignes_[static_cast<std::size_t>(lignes.first().row())].individu);
    }

    [[nodiscard]] const std::vector<LigneFiche>& Lignes() const { return lignes_; }

private:
    shell::Session& session_;
    const char* page_;
    QByteArray table_;
    int colonnes_;
    std::vector<LigneFiche> lignes_;
};

TableFiche::TableFiche(QWidget* parent) : QTableView{parent} {
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void TableFiche::Attacher(shell::Session& session, const char* page, int colonnes, int large) {
    session_ = &session;
    modele_ = new Modele{session, page, objectName().toUtf8(), colonnes, this};
    setModel(modele_);
    for (int colonne = 0; colonne < colonnes; ++colonne)
        horizontalHeader()->setSectionResizeMode(
            colonne, colonne == large ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    setDragEnabled(true);
    connect(this, &QTableView::doubleClicked, this, &TableFiche::ouverte);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, &TableFiche::choisie);
}

void TableFiche::Poser(std::vector<LigneFiche> lignes) {
    const LigneFiche* courante = Courante();
    const std::uint32_t numero = courante != nullptr ? courante->numero : 0;
    {
        const QSignalBlocker silence{selectionModel()};
        modele_->Poser(std::move(lignes));
        if (!Lignes().empty()) setCurrentIndex(modele_->index(0, 0));
        Choisir(numero);
    }
    Q_EMIT choisie();
    viewport()->update();
}

void TableFiche::DireVide(const QString& texte) {
    vide_ = texte;
    viewport()->update();
}

const std::vector<LigneFiche>& TableFiche::Lignes() const {
    return modele_->Lignes();
}

const LigneFiche* TableFiche::Courante() const {
    const int rangee = currentIndex().row();
    return rangee >= 0 && rangee < modele_->rowCount({})
               ? &Lignes()[static_cast<std::size_t>(rangee)]
               : nullptr;
}

void TableFiche::Choisir(std::uint32_t numero) {
    for (std::size_t i = 0; i < Lignes().size(); ++i)
        if (Lignes()[i].numero == numero) {
            setCurrentIndex(modele_->index(static_cast<int>(i), 0));
            return;
        }
}

void TableFiche::keyPressEvent(QKeyEvent* evenement) {
    if (Courante() != nullptr) {
        if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter) {
            Q_EMIT ouverte();
            return;
        }
        if (evenement->key() == Qt::Key_Delete) {
            Q_EMIT suppressionDemandee();
            return;
        }
    }
    QTableView::keyPressEvent(evenement);
}

void TableFiche::paintEvent(QPaintEvent* evenement) {
    QTableView::paintEvent(evenement);
    if (!Lignes().empty() || vide_.isEmpty()) return;
    QPainter peintre{viewport()};
    peintre.setPen(palette().color(QPalette::PlaceholderText));
    constexpr int Marge = 12;
    peintre.drawText(viewport()->rect().adjusted(Marge, Marge, -Marge, -Marge),
                     Qt::AlignCenter | Qt::TextWordWrap, vide_);
}

void TableFiche::Prendre(Depot depot) {
    depot_ = depot;
    setAcceptDrops(depot != Depot::Rien);
}

bool TableFiche::Convient(const QDropEvent& evenement) const {
    switch (depot_) {
        case Depot::Personnes:
            // Its own rows are not dropped on it.
            return evenement.source() != this && PersonneDeMime(*session_, evenement.mimeData());
        case Depot::Fichiers:
            return !FichiersDeMime(evenement.mimeData()).empty();
        case Depot::Rien:
            break;
    }
    return false;
}

void TableFiche::dragEnterEvent(QDragEnterEvent* evenement) {
    evenement->setAccepted(Convient(*evenement));
}

void TableFiche::dragMoveEvent(QDragMoveEvent* evenement) {
    evenement->setAccepted(Convient(*evenement));
}

void TableFiche::dropEvent(QDropEvent* evenement) {
    evenement->setAccepted(Convient(*evenement));
    if (!evenement->isAccepted()) return;
    const auto apres = [this](auto dire) {
        QMetaObject::invokeMethod(this, dire, Qt::QueuedConnection);
    };
    if (depot_ == Depot::Fichiers)
        apres([this, fichiers = FichiersDeMime(evenement->mimeData())] {
            Q_EMIT fichiersDeposes(fichiers);
        });
    else
        apres([this, individu = PersonneDeMime(*session_, evenement->mimeData())] {
            Q_EMIT deposee(individu.valeur);
        });
}

}  // namespace dorvane::windows
