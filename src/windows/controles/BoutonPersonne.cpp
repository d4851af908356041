#include "windows/controles/BoutonPersonne.h"

#include <QApplication>
#include <QDropEvent>
#include <QMouseEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

namespace {

constexpr int Marge = 6;
constexpr int LargeurUtile = 160;

}  // namespace

BoutonPersonne::BoutonPersonne(QWidget* parent) : QToolButton{parent} {
    setFocusPolicy(Qt::StrongFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAcceptDrops(true);
}

void BoutonPersonne::Poser(NoOrdre individu, const QString& inconnu) {
    individu_ = individu;
    texte_ = individu ? TexteVersQt(records::NomEtDates(*session_, individu)).trimmed() : inconnu;
    // A person without a name and without dates is still a person.
    if (texte_.isEmpty()) texte_ = QString::number(individu.valeur);
    setIcon(individu ? IconeSexe(session_->base->R_SEXE.LireCellule(individu)) : QIcon{});
    setAccessibleName(texte_);
    setToolTip(texte_);
    setEnabled(true);
    update();
}

QSize BoutonPersonne::sizeHint() const {
    return {LargeurUtile, fontMetrics().height() + 2 * Marge};
}

void BoutonPersonne::paintEvent(QPaintEvent* /*evenement*/) {
    QStylePainter peintre{this};
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    peintre.drawComplexControl(QStyle::CC_ToolButton, option);
    QRect cadre = rect().adjusted(Marge, 0, -Marge, 0);
    if (!icon().isNull()) {
        const int cote = fontMetrics().height();
        icon().paint(&peintre, cadre.x(), (height() - cote) / 2, cote, cote);
        cadre.setLeft(cadre.left() + cote + Marge);
    }
    peintre.setPen(palette().color(individu_ ? QPalette::ButtonText : QPalette::PlaceholderText));
    peintre.drawText(cadre, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(texte_, Qt::ElideRight, cadre.width()));
}

void BoutonPersonne::mousePressEvent(QMouseEvent* evenement) {
    prise_ = evenement->pos();
    QToolButton::mousePressEvent(evenement);
}

void BoutonPersonne::mouseMoveEvent(QMouseEvent* evenement) {
    const bool loin =
        (evenement->pos() - prise_).manhattanLength() >= QApplication::startDragDistance();
    if (individu_ && (evenement->buttons() & Qt::LeftButton) != 0 && loin) {
        setDown(false);
        GlisserPersonne(*this, *session_, individu_);
        return;
    }
    QToolButton::mouseMoveEvent(evenement);
}

void BoutonPersonne::dragEnterEvent(QDragEnterEvent* evenement) {
    if (evenement->source() != this && PersonneDeMime(*session_, evenement->mimeData()))
        evenement->acceptProposedAction();
}

void BoutonPersonne::dropEvent(QDropEvent* evenement) {
    const NoOrdre individu = PersonneDeMime(*session_, evenement->mimeData());
    if (!individu) return;
    evenement->acceptProposedAction();
    // What follows may ask the user: the drop has ended by then.
    QMetaObject::invokeMethod(
        this, [this, individu] { Q_EMIT deposee(individu.valeur); }, Qt::QueuedConnection);
}

}  // namespace dorvane::windows
