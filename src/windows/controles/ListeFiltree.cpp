#include "windows/controles/ListeFiltree.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTableView>

#include "shell/Session.h"
#include "windows/controles/EnTeteListe.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ModeleListe.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <utility>

namespace dorvane::windows {

ListeFiltree::ListeFiltree(shell::Session& session, const Pieces& pieces, const Messages& messages,
                           ModeleListe& modele, const QString& nom, QObject* parent)
    : QObject{parent},
      session_{session},
      pieces_{pieces},
      messages_{messages},
      modele_{modele},
      nom_{nom} {
    QTableView& liste = *pieces_.liste;
    liste.setModel(&modele_);
    liste.verticalHeader()->hide();
    // One height for all rows: measuring each would read the whole base.
    liste.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    liste.verticalHeader()->setDefaultSectionSize(liste.fontMetrics().height() + 8);
    QHeaderView& entete = *liste.horizontalHeader();
    entete.setHighlightSections(false);
    entete.setSectionsClickable(true);
    entete.setSortIndicatorClearable(true);
    entete.setSortIndicatorShown(true);
    PreparerEntete(liste, session_, nom_);
    connect(&entete, &QHeaderView::sortIndicatorChanged, this,
            [this](int colonne, Qt::SortOrder ordre) { modele_.sort(colonne, ordre); });
    connect(&liste, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT ouvert(modele_.Numero(index.row())); });
    connect(liste.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { Q_EMIT choisi(Choisi()); });
    liste.installEventFilter(this);
    if (pieces_.filtre != nullptr) {
        connect(pieces_.filtre, &QLineEdit::textChanged, this, &ListeFiltree::Filtrer);
        pieces_.filtre->installEventFilter(this);
    }
}

std::uint32_t ListeFiltree::Choisi() const {
    return modele_.Numero(pieces_.liste->currentIndex().row());
}

void ListeFiltree::Choisir(std::uint32_t numero) {
    ChoisirRangee(std::max(0, modele_.Rangee(numero)));
}

void ListeFiltree::ChoisirRangee(int rangee) {
    QTableView& liste = *pieces_.liste;
    const int colonne = std::max(0, liste.horizontalHeader()->logicalIndex(0));
    const QModelIndex index = modele_.index(std::min(rangee, modele_.rowCount({}) - 1), colonne);
    liste.setCurrentIndex(index);
    liste.scrollTo(index, QAbstractItemView::EnsureVisible);
    Q_EMIT choisi(Choisi());
}

void ListeFiltree::Poser(std::vector<std::uint32_t> numeros) {
    const std::uint32_t avant = Choisi();
    const int rangee = std::max(0, pieces_.liste->currentIndex().row());
    modele_.Poser(std::move(numeros));
    const int meme = modele_.Rangee(avant);
    ChoisirRangee(meme >= 0 ? meme : rangee);
    Compter();
}

void ListeFiltree::Filtrer() {
    const std::uint32_t avant = Choisi();
    modele_.Filtrer(pieces_.filtre->text());
    Choisir(avant);
    Compter();
}

void ListeFiltree::Traduire() {
    modele_.Relire();
    Compter();
}

void ListeFiltree::Compter() {
    const int montres = modele_.rowCount({});
    const std::string total = std::to_string(modele_.Total());
    const shell::Phrase nombre = montres == modele_.Total()
                                     ? shell::Msg(messages_.nombre, total)
                                     : shell::Msg(messages_.partie, std::to_string(montres), total);
    pieces_.nombre->setText(TexteEcran(session_.catalogue.Composer(nombre)));
    pieces_.pages->setCurrentIndex(montres > 0 ? 0 : 1);
    const shell::Phrase vide =
        modele_.Total() == 0 || pieces_.filtre == nullptr
            ? shell::Msg(messages_.vide)
            : shell::Msg(messages_.sansTrouve, QtVersTexte(pieces_.filtre->text()).octets);
    pieces_.vide->setText(TexteEcran(session_.catalogue.Composer(vide)));
}

void ListeFiltree::Memoriser() {
    MemoriserEntete(*pieces_.liste, session_, nom_);
}

/// The arrows move in the list while the filter has the focus; Enter opens the row in both.
bool ListeFiltree::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::KeyPress) return QObject::eventFilter(objet, evenement);
    const int touche = static_cast<QKeyEvent*>(evenement)->key();
    if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
        if (Choisi() != 0) Q_EMIT ouvert(Choisi());
        return true;
    }
    if (touche == Qt::Key_Delete && objet == pieces_.liste) {
        if (Choisi() != 0) Q_EMIT retire(Choisi());
        return true;
    }
    const bool deplacement = touche == Qt::Key_Up || touche == Qt::Key_Down ||
                             touche == Qt::Key_PageUp || touche == Qt::Key_PageDown;
    if (objet == pieces_.filtre && deplacement) {
        QCoreApplication::sendEvent(pieces_.liste, evenement);
        return true;
    }
    return QObject::eventFilter(objet, evenement);
}

}  // namespace dorvane::windows
