// Dragging persons out of the chart and dropping them on it, and the boxes that invite.
#include <QApplication>
#include <QDragEnterEvent>
#include <QMouseEvent>

#include "windows/controles/GlisserPersonne.h"
#include "windows/graphe/CaseGraphique.h"
#include "windows/graphe/FrmDebut.h"

namespace dorvane::windows {

FrmDebut::PlaceParent FrmDebut::ParentInconnu(const CaseGraphique* boite) const {
    if (boite == nullptr || boite->Individu()) return {};
    using Sorte = records::CaseFamille::Sorte;
    const std::vector<records::CaseFamille>& cases = modele_.cases;
    const records::CaseFamille& place = cases[boite->Indice()];
    if (place.sorte != Sorte::Ascendant) return {};
    // The father's box comes before the mother's.
    for (std::size_t i = 0; i < boite->Indice(); ++i)
        if (cases[i].sorte == Sorte::Ascendant && cases[i].parent == place.parent)
            return {cases[place.parent].individu, Cote::Mere};
    return {cases[place.parent].individu, Cote::Pere};
}

void FrmDebut::mousePressEvent(QMouseEvent* evenement) {
    const CaseGraphique* boite = CaseSous(evenement->pos());
    saisie_ = NoOrdre{};
    if (evenement->button() == Qt::LeftButton && boite != nullptr) {
        // A box is dragged by itself, the ground scrolls.
        saisie_ = boite->Individu();
        pointSaisie_ = evenement->pos();
        setFocus(Qt::MouseFocusReason);
        return;
    }
    QGraphicsView::mousePressEvent(evenement);
}

void FrmDebut::mouseMoveEvent(QMouseEvent* evenement) {
    const bool assez =
        (evenement->pos() - pointSaisie_).manhattanLength() >= QApplication::startDragDistance();
    if (saisie_ && evenement->buttons().testFlag(Qt::LeftButton)) {
        if (!assez) return;
        const NoOrdre individu = saisie_;
        saisie_ = NoOrdre{};
        GlisserPersonne(*this, session_, individu);
        return;
    }
    QGraphicsView::mouseMoveEvent(evenement);
}

void FrmDebut::mouseReleaseEvent(QMouseEvent* evenement) {
    saisie_ = NoOrdre{};
    const PlaceParent place = ParentInconnu(CaseSous(evenement->pos()));
    if (evenement->button() == Qt::LeftButton && place.enfant)
        Q_EMIT parentDemande(place.enfant.valeur, place.cote,
                             evenement->globalPosition().toPoint());
    QGraphicsView::mouseReleaseEvent(evenement);
}

void FrmDebut::dragEnterEvent(QDragEnterEvent* evenement) {
    // Files are left to the main window.
    if (PersonneDeMime(session_, evenement->mimeData()))
        evenement->acceptProposedAction();
    else
        evenement->ignore();
}

void FrmDebut::dragMoveEvent(QDragMoveEvent* evenement) {
    evenement->setAccepted(static_cast<bool>(PersonneDeMime(session_, evenement->mimeData())));
}

void FrmDebut::dropEvent(QDropEvent* evenement) {
    const NoOrdre individu = PersonneDeMime(session_, evenement->mimeData());
    if (!individu) return evenement->ignore();
    evenement->acceptProposedAction();
    const PlaceParent place = ParentInconnu(CaseSous(evenement->position().toPoint()));
    // The list that the person comes from waits until the drop has ended.
    QMetaObject::invokeMethod(
        this,
        [this, place, individu] {
            if (place.enfant)
                Q_EMIT parentDepose(place.enfant.valeur, place.cote, individu.valeur);
            else
                Q_EMIT personneDemandee(individu.valeur);
        },
        Qt::QueuedConnection);
}

}  // namespace dorvane::windows
