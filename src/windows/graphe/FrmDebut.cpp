#include "windows/graphe/FrmDebut.h"

#include <QContextMenuEvent>
#include <QGestureEvent>
#include <QKeyEvent>
#include <QPinchGesture>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include "messages/Dorvane.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/controles/Vignettes.h"

#include <algorithm>
#include <cmath>

namespace dorvane::windows {

namespace {

constexpr double SurfaceMax = 32000;     ///< units in each direction
constexpr double EchelleMin = 0.12;      ///< boxes are dots
constexpr double EchelleLisible = 0.62;  ///< the smallest scale that the program chooses by itself
constexpr double EchelleAisee = 1.25;    ///< the largest one
constexpr double Bord = 28;              ///< around the chart, in pixels of the screen
constexpr int DureeGlissement = 200;     ///< ms
constexpr double PasMolette = 1.15;      ///< for one notch of the wheel
constexpr double PasMenu = 1.5;          ///< for `MnuAgrandir` and `MnuDiminuer`

}  // namespace

FrmDebut::FrmDebut(shell::Session& session, QWidget* parent)
    : QGraphicsView{parent}, session_{session} {
    setObjectName(QStringLiteral("FrmDébut"));
    setScene(&scene_);
    setFrameShape(QFrame::NoFrame);
    setDragMode(QGraphicsView::ScrollHandDrag);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    setRenderHint(QPainter::Antialiasing);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->grabGesture(Qt::PinchGesture);
    scene_.setItemIndexMethod(QGraphicsScene::NoIndex);
    glissement_.setDuration(DureeGlissement);
    glissement_.setEasingCurve(QEasingCurve::OutCubic);
    glissement_.setStartValue(0.0);
    glissement_.setEndValue(1.0);
    connect(&glissement_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& part) { Placer(part.toDouble()); });
    PoserPalette(PaletteEnCours(session_));
}

FrmDebut::~FrmDebut() {
    glissement_.stop();
}

void FrmDebut::PoserPalette(Palette palette) {
    palette_ = palette;
    Actualiser();
}

void FrmDebut::AppliquerPresentation() {
    const shell::Disposition disposition =
        shell::DispositionDe(session_.parametres.base.affichage.typePresentation);
    generations_ = {disposition.large, disposition.haute};
    ajuste_ = true;
    montree_ = NoOrdre{};
    Actualiser();
}

void FrmDebut::ChangerGenerations(records::Generations generations) {
    generations_ = generations;
    Actualiser();
}

StyleGraphe FrmDebut::FaireStyle() const {
    const shell::Affichage& affichage = session_.parametres.base.affichage;
    const shell::Presentation& presentation = affichage.Courante();
    StyleGraphe style{FairePalette(palette_, affichage),
                      records::MesuresDe(affichage.typePresentation), font(), font(),
                      presentation.proportionnel};
    if (style.palette.policesReglees) {
        style.nom.setFamily(TexteVersQt(presentation.nomPolice));
        style.dates.setFamily(style.nom.family());
    }
    if (style.palette.policesReglees && !presentation.proportionnel &&
        presentation.taillePolice > 0) {
        style.nom.setPointSize(presentation.taillePolice);
        style.dates.setPointSize(presentation.taillePolice);
    } else {
        style.nom.setPixelSize(style.mesures.tailleNom);
        style.dates.setPixelSize(style.mesures.tailleDates);
    }
    style.nom.setWeight(QFont::DemiBold);
    return style;
}

ContenuCase FrmDebut::LireCase(const records::CaseFamille& modele) const {
    ContenuCase contenu;
    if (!modele.individu) {
        const bool parent = modele.sorte != records::CaseFamille::Sorte::Conjoint;
        contenu.bulle = TexteEcran(
            session_, parent ? message::BulleParentInconnu : message::BulleConjointInconnu);
        return contenu;
    }
    shell::Session& session = session_;
    contenu.nom = TexteVersQt(records::NomAffiche(session, modele.individu)).trimmed();
    contenu.dates = TexteVersQt(records::DatesDeVie(session, modele.individu));
    contenu.numeros = TexteVersQt(records::NumerosAffiches(session, modele.individu));
    contenu.bulle = TexteVersQt(records::NomEtDates(session, modele.individu)).trimmed();
    if (modele.repetee)
        contenu.bulle += u'\n' + TexteEcran(session, message::BulleFigurePlusieursFois);
    contenu.sexe = session.base->R_SEXE.LireCellule(modele.individu);
    if (style_.mesures.vignette)
        contenu.vignette =
            VignetteDe(session, modele.individu,
                       static_cast<int>(style_.mesures.hauteur * devicePixelRatioF()));
    return contenu;
}

void FrmDebut::Construire() {
    scene_.clear();
    cases_.clear();
    style_ = FaireStyle();
    modele_ = {};
    dessin_ = {};
    if (session_.base)
        modele_ =
            records::ConstruireFamille(*session_.base, session_.PersonneEnCours, generations_);
    if (modele_.cases.empty()) return;
    dessin_ = records::DessinerFamille(*session_.base, modele_, style_.mesures);
    scene_.addItem(new FondGraphique{dessin_, style_});
    cases_.reserve(modele_.cases.size());
    for (std::size_t i = 0; i < modele_.cases.size(); ++i) {
        const records::CaseFamille& c = modele_.cases[i];
        cases_.push_back(new CaseGraphique{i, c, CaseScene(i), LireCase(c), style_});
        scene_.addItem(cases_.back());
    }
}

void FrmDebut::Actualiser() {
    Arreter();
    // Where the person who becomes current stands now: the chart glides from there.
    Vue depuis{mapToScene(viewport()->rect().center()), Echelle()};
    bool connue = false;
    for (const CaseGraphique* boite : cases_)
        if (!connue && montree_ && boite->Individu() == session_.PersonneEnCours) {
            depuis.centre -= CaseScene(boite->Indice()).center();
            connue = true;
        }
    const bool autre = montree_ != session_.PersonneEnCours;
    Construire();
    if (ajuste_) Poser({{}, EchelleVoulue()});
    Etendre();
    if (autre || ajuste_) Centrer(depuis, connue && autre);
    montree_ = session_.PersonneEnCours;
    Traduire();
    viewport()->update();
}

void FrmDebut::Traduire() {
    const NoOrdre n = session_.PersonneEnCours;
    const std::string nom = records::NomEtDates(session_, n);
    setWindowTitle(n ? TexteVersQt(nom).trimmed()
                     : TexteEcran(session_, message::TitreGrapheFamille));
    setAccessibleName(TexteEcran(session_, message::TitreGrapheFamille));
    setAccessibleDescription(TexteEcran(session_.catalogue.Composer(
        shell::Msg(message::DescriptionGrapheFamille, nom, std::to_string(modele_.cases.size())))));
}

void FrmDebut::Centrer(const Vue& depuis, bool glisser) {
    vers_ = {CentreVoulu(), Echelle()};
    depuis_ = depuis;
    const bool anime = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    if (glisser && glisse_ && anime && isVisible()) {
        Placer(0);
        glissement_.start();
    } else {
        Placer(1);
    }
}

/// Shows the chart on the way from one view to the next: 0 is the beginning, 1 the end.
void FrmDebut::Placer(double part) {
    Poser({depuis_.centre + (vers_.centre - depuis_.centre) * part,
           depuis_.echelle + (vers_.echelle - depuis_.echelle) * part});
}

void FrmDebut::Poser(const Vue& vue) {
    setTransform(QTransform::fromScale(vue.echelle, vue.echelle));
    Etendre();
    centerOn(vue.centre);
}

/// Ends a movement where it was going.
void FrmDebut::Arreter() {
    if (glissement_.state() != QAbstractAnimation::Running) return;
    glissement_.stop();
    Placer(1);
}

/// The current person in the middle, but no empty ground where there is family to show.
QPointF FrmDebut::CentreVoulu() const {
    const QSizeF vue = QSizeF{viewport()->size()} / Echelle();
    const double bord = Bord / Echelle();
    const QRectF cadre = Cadre().adjusted(-bord, -bord, bord, bord);
    const auto placer = [](double debut, double fin, double taille) {
        if (fin - debut <= taille) return (debut + fin) / 2;
        return std::clamp(0.0, debut + taille / 2, fin - taille / 2);
    };
    return {placer(cadre.left(), cadre.right(), vue.width()),
            placer(cadre.top(), cadre.bottom(), vue.height())};
}

/// As many boxes in height as the presentation asks for; more when all of them fit.
double FrmDebut::EchelleVoulue() const {
    if (cases_.empty()) return 1;
    const records::MesuresGraphe& m = style_.mesures;
    const double rangs =
        std::max(1.0, session_.parametres.base.affichage.Courante().nombreCases / 2.0);
    const double parCases = viewport()->height() / (rangs * (m.hauteur + m.ecart));
    return std::clamp(std::max(parCases, EchelleEntiere()), EchelleLisible, EchelleAisee);
}

/// The scale at which the whole chart is seen.
double FrmDebut::EchelleEntiere() const {
    return std::min((viewport()->width() - 2 * Bord) / std::max(1.0, dessin_.cadre.largeur),
                    (viewport()->height() - 2 * Bord) / std::max(1.0, dessin_.cadre.hauteur));
}

/// The ground goes on around the chart, so that any box can come under the pointer.
void FrmDebut::Etendre() {
    const double x = viewport()->width() / Echelle();
    const double y = viewport()->height() / Echelle();
    scene_.setSceneRect(Cadre().adjusted(-x, -y, x, y));
}

bool FrmDebut::Echelonner(double facteur) {
    const double nouvelle = Echelle() * facteur;
    const double cote = std::max(dessin_.cadre.largeur, dessin_.cadre.hauteur);
    if (facteur > 1 && cote * nouvelle >= SurfaceMax) return false;
    if (facteur < 1 && nouvelle < EchelleMin) return false;
    Arreter();
    ajuste_ = false;
    scale(facteur, facteur);
    Etendre();
    return true;
}

bool FrmDebut::EchelonnerAuCentre(double facteur) {
    const QPointF centre = mapToScene(viewport()->rect().center());
    const bool fait = Echelonner(facteur);
    if (fait) centerOn(centre);
    return fait;
}

bool FrmDebut::Agrandir() {
    return EchelonnerAuCentre(PasMenu);
}

bool FrmDebut::Diminuer() {
    return EchelonnerAuCentre(1 / PasMenu);
}

void FrmDebut::Ajuster() {
    if (cases_.empty()) return;
    Arreter();
    ajuste_ = false;
    Poser({EnQt(dessin_.cadre.Milieu()), std::clamp(EchelleEntiere(), EchelleMin, EchelleAisee)});
}

QRect FrmDebut::CaseEcran(std::size_t indice) const {
    return mapFromScene(CaseScene(indice)).boundingRect();
}

CaseGraphique* FrmDebut::CaseSous(const QPoint& point) const {
    const QPointF scene = mapToScene(point);
    for (CaseGraphique* boite : cases_)
        if (CaseScene(boite->Indice()).contains(scene)) return boite;
    return nullptr;
}

void FrmDebut::mouseDoubleClickEvent(QMouseEvent* evenement) {
    const CaseGraphique* boite = CaseSous(evenement->pos());
    if (evenement->button() != Qt::LeftButton || boite == nullptr || !boite->Individu())
        return QGraphicsView::mouseDoubleClickEvent(evenement);
    if (boite->Indice() == 0)
        Q_EMIT ficheDemandee(boite->Individu().valeur);
    else
        Q_EMIT personneDemandee(boite->Individu().valeur);
}

void FrmDebut::contextMenuEvent(QContextMenuEvent* evenement) {
    if (cases_.empty()) return;
    const bool touche = evenement->reason() == QContextMenuEvent::Keyboard;
    const CaseGraphique* boite = touche ? cases_.front() : CaseSous(evenement->pos());
    if (boite == nullptr || !boite->Individu()) return;
    const QPoint point = touche ? viewport()->mapToGlobal(CaseEcran(boite->Indice()).center())
                                : evenement->globalPos();
    Q_EMIT menuDemande(boite->Individu().valeur, point);
}

void FrmDebut::wheelEvent(QWheelEvent* evenement) {
    const QPoint souris = evenement->position().toPoint();
    const QPointF avant = mapToScene(souris);
    const double crans = evenement->angleDelta().y() / 120.0;
    if (crans != 0 && Echelonner(std::pow(PasMolette, crans))) {
        // What was under the pointer stays there.
        const QPointF milieu = mapToScene(viewport()->rect().center());
        centerOn(milieu + avant - mapToScene(souris));
    }
    evenement->accept();
}

bool FrmDebut::viewportEvent(QEvent* evenement) {
    if (evenement->type() == QEvent::Gesture && Pincer(*static_cast<QGestureEvent*>(evenement)))
        return true;
    return QGraphicsView::viewportEvent(evenement);
}

bool FrmDebut::Pincer(QGestureEvent& evenement) {
    auto* pincement = static_cast<QPinchGesture*>(evenement.gesture(Qt::PinchGesture));
    if (pincement == nullptr) return false;
    const QPoint point = viewport()->mapFromGlobal(pincement->centerPoint().toPoint());
    const QPointF avant = mapToScene(point);
    if (Echelonner(pincement->scaleFactor()))
        centerOn(mapToScene(viewport()->rect().center()) + avant - mapToScene(point));
    return true;
}

void FrmDebut::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->modifiers() != Qt::NoModifier && evenement->modifiers() != Qt::KeypadModifier) {
        QGraphicsView::keyPressEvent(evenement);
        return;
    }
    using records::Parente;
    switch (evenement->key()) {
        case Qt::Key_Up:
            Q_EMIT pasDemande(Parente::Pere);
            return;
        case Qt::Key_Right:
            Q_EMIT pasDemande(Parente::Mere);
            return;
        case Qt::Key_Left:
            Q_EMIT pasDemande(Parente::Enfant);
            return;
        case Qt::Key_Down:
            Q_EMIT pasDemande(Parente::ConjointSuivant);
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!cases_.empty()) Q_EMIT ficheDemandee(cases_.front()->Individu().valeur);
            return;
        default:
            QGraphicsView::keyPressEvent(evenement);
    }
}

void FrmDebut::resizeEvent(QResizeEvent* evenement) {
    QGraphicsView::resizeEvent(evenement);
    if (cases_.empty()) return;
    Arreter();
    if (!ajuste_) {
        Etendre();
        return;
    }
    Poser({{}, EchelleVoulue()});
    centerOn(CentreVoulu());
}

void FrmDebut::drawBackground(QPainter* peintre, const QRectF& /*cadre*/) {
    const PaletteGraphe& palette = style_.palette;
    const QRectF vue = mapToScene(viewport()->rect()).boundingRect();
    if (palette.fond == palette.fondBas) {
        peintre->fillRect(vue, palette.fond);
        return;
    }
    QLinearGradient degrade{vue.topLeft(), vue.bottomLeft()};
    degrade.setColorAt(0, palette.fond);
    degrade.setColorAt(1, palette.fondBas);
    peintre->fillRect(vue, degrade);
}

}  // namespace dorvane::windows
