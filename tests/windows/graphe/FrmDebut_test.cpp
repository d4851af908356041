#include "windows/graphe/FrmDebut.h"

#include <QMenu>
#include <QWheelEvent>

#include "windows/Essai.h"
#include "windows/controles/Unicode.h"
#include "windows/graphe/EnQt.h"

#include <algorithm>
#include <random>

using namespace dorvane;
using namespace dorvane::windows;

namespace {

QString Noms(const FrmDebut& graphe) {
    QStringList noms;
    for (const CaseGraphique* boite : graphe.Cases())
        noms << (boite->Individu() ? boite->Contenu().nom : QStringLiteral("?"));
    return noms.join(QStringLiteral(", "));
}

std::size_t IndiceDe(const FrmDebut& graphe, std::uint32_t n) {
    for (const CaseGraphique* boite : graphe.Cases())
        if (boite->Individu() == NoOrdre{n}) return boite->Indice();
    FAIL("the person has no box");
    return 0;
}

void DoubleClic(FrmDebut& graphe, std::size_t indice) {
    const QPoint point = graphe.CaseEcran(indice).center();
    QTest::mouseClick(graphe.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(graphe.viewport(), Qt::LeftButton, {}, point);
}

/// A line runs through a box, not only along its edge.
bool Traverse(const records::Trait& trait, const QRectF& boite) {
    const QRectF dedans = boite.adjusted(1, 1, -1, -1);
    for (std::size_t i = 1; i < trait.size(); ++i) {
        const QRectF segment = QRectF{EnQt(trait[i - 1]), EnQt(trait[i])}.normalized();
        if (segment.right() > dedans.left() && segment.left() < dedans.right() &&
            segment.bottom() > dedans.top() && segment.top() < dedans.bottom())
            return true;
    }
    return false;
}

}  // namespace

TEST_CASE_FIXTURE(FenetreEssai,
                  "FrmDébut: the person, ascendants, spouses and children have boxes") {
    DemarrerFamille();
    CHECK(Noms(Graphe()) == QStringLiteral("Paul Martin, Louis Martin, Rose Blanc, Anne Évrard, "
                                           "Jeanne Noël, Luc Martin, Marie Martin, Jules Martin"));
    const ContenuCase& paul = Graphe().Cases()[0]->Contenu();
    CHECK(paul.dates == "1820-1890");
    CHECK(paul.sexe == Sexe::Homme);
    CHECK(paul.bulle == "Paul Martin (1820-1890)");
    CHECK(Graphe().Cases()[0]->toolTip() == "Paul Martin (1820-1890)");
    QStringList unions;
    for (const records::EtiquetteUnion& etiquette : Graphe().Dessin().unions)
        unions << TexteVersQt(etiquette.annee);
    unions.sort();
    CHECK(unions.join(u' ') == "1815 1850 1860");
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "FrmDébut: ascendants stand on the right, descendants on the left") {
    DemarrerFamille();
    const auto boite = [this](std::size_t indice) { return Graphe().CaseScene(indice); };
    CHECK(boite(IndiceDe(Graphe(), 1)).left() > boite(0).right());
    CHECK(boite(IndiceDe(Graphe(), 6)).right() < boite(0).left());
    CHECK(boite(IndiceDe(Graphe(), 4)).top() > boite(0).bottom());
    CHECK(boite(0).center() == QPointF{0, 0});
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: a double click moves to the person of a box") {
    DemarrerFamille();
    DoubleClic(Graphe(), IndiceDe(Graphe(), 1));
    CHECK(EnCours() == 1);
    CHECK(Graphe().Cases()[0]->Individu() == NoOrdre{1});
    DoubleClic(Graphe(), 0);
    CHECK(EnCours() == 1);
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: the current person is in view after every move") {
    DemarrerFamille();
    for (const std::uint32_t n : {1U, 6U, 8U, 4U, 2U, 3U}) {
        AllerA(n);
        CHECK(Graphe().viewport()->rect().contains(Graphe().CaseEcran(0)));
    }
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: a move glides in 200 ms and ends where it should") {
    DemarrerFamille();
    Graphe().Glisser(true);
    auto& glissement =
        *Graphe().findChild<QVariantAnimation*>(QString{}, Qt::FindDirectChildrenOnly);
    CHECK(glissement.duration() == 200);
    AllerA(1);
    CHECK(glissement.state() == QAbstractAnimation::Running);
    glissement.setCurrentTime(200);
    CHECK(glissement.state() == QAbstractAnimation::Stopped);
    CHECK(Graphe().viewport()->rect().contains(Graphe().CaseEcran(0)));
    const QRect fin = Graphe().CaseEcran(0);
    // A move that overtakes another one.
    AllerA(6);
    glissement.setCurrentTime(100);
    AllerA(1);
    glissement.setCurrentTime(200);
    CHECK(Graphe().CaseEcran(0) == fin);
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "FrmDébut: the right button offers the relatives, each with a star") {
    DemarrerFamille();
    const QPoint point = Graphe().CaseEcran(0).center();
    QContextMenuEvent evenement{QContextMenuEvent::Mouse, point,
                                Graphe().viewport()->mapToGlobal(point)};
    QApplication::sendEvent(Graphe().viewport(), &evenement);
    auto* menu = Fenetre().findChild<QMenu*>(QStringLiteral("MnuIndividu"));
    REQUIRE(menu != nullptr);
    QStringList textes;
    QAction* rose = nullptr;
    for (QAction* action : menu->actions()) {
        textes << action->text();
        if (action->data().toUInt() == 2) rose = action;
    }
    CHECK(textes.join(u'|') ==
          QStringLiteral("Paul Martin (1820-1890)* |Père et mère|Louis Martin (1790-1860)* |"
                         "Rose Blanc (o1795) * |Conjoints|Anne Évrard (1825-1858)* |"
                         "Jeanne Noël (o1835) * |Enfants|Luc Martin (o1851) * |"
                         "Marie Martin (o1853) * |Jules Martin (o1861) * ||Ouvrir la fiche..."));
    REQUIRE(rose != nullptr);
    rose->trigger();
    CHECK(EnCours() == 2);
    menu->close();
}

TEST_CASE_FIXTURE(FenetreEssai,
                  "FrmDébut: MnuAgrandir and MnuDiminuer scale by 1.5, below 32000 units") {
    DemarrerFamille();
    const double depart = Graphe().Echelle();
    Action("MnuAgrandir").trigger();
    CHECK(Graphe().Echelle() == doctest::Approx(depart * 1.5));
    Action("MnuDiminuer").trigger();
    CHECK(Graphe().Echelle() == doctest::Approx(depart));
    for (int i = 0; i < 30; ++i)
        Graphe().Agrandir();
    const records::Rectangle& cadre = Graphe().Dessin().cadre;
    const double surface = std::max(cadre.largeur, cadre.hauteur) * Graphe().Echelle();
    CHECK(surface < 32000);
    CHECK(surface * 1.5 >= 32000);
    CHECK_FALSE(Graphe().Agrandir());
    Touche(Qt::Key_0, Qt::ControlModifier);
    const QRect vue = Graphe().viewport()->rect();
    for (std::size_t i = 0; i < Graphe().Cases().size(); ++i)
        CHECK(vue.contains(Graphe().CaseEcran(i)));
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: the wheel zooms around the pointer") {
    DemarrerFamille();
    const QPoint souris{300, 200};
    const QPointF dessous = Graphe().mapToScene(souris);
    const double avant = Graphe().Echelle();
    for (const int sens : {120, 120, -120, 120}) {
        QWheelEvent molette{QPointF{souris},
                            Graphe().viewport()->mapToGlobal(QPointF{souris}),
                            {},
                            {0, sens},
                            Qt::NoButton,
                            Qt::NoModifier,
                            Qt::NoScrollPhase,
                            false};
        QApplication::sendEvent(Graphe().viewport(), &molette);
    }
    CHECK(Graphe().Echelle() > avant * 1.2);
    const QPointF ecart = Graphe().mapToScene(souris) - dessous;
    CHECK(std::abs(ecart.x()) < 3);
    CHECK(std::abs(ecart.y()) < 3);
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: MnuGauche and MnuDroite change the generations") {
    DemarrerFamille();
    CHECK(Graphe().Generations() == records::Generations{4, 2});
    Action("MnuDroite").trigger();
    CHECK(Graphe().Generations() == records::Generations{6, 1});
    Action("MnuGauche").trigger();
    CHECK(Graphe().Generations() == records::Generations{5, 3});
    for (int i = 0; i < 8; ++i)
        Action("MnuGauche").trigger();
    CHECK(Graphe().Generations().ascendantes == 0);
    CHECK(Noms(Graphe()) == QStringLiteral("Paul Martin, Anne Évrard, Jeanne Noël, Luc Martin, "
                                           "Marie Martin, Jules Martin"));
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: each presentation has its boxes and generations") {
    DemarrerFamille();
    const records::Generations attendues[] = {{2, 1}, {4, 2}, {6, 3}, {8, 4}};
    double hauteur = 1000;
    for (int i = 1; i <= 4; ++i) {
        CAPTURE(i);
        QTest::keyClick(&Graphe(), static_cast<Qt::Key>(Qt::Key_0 + i), Qt::AltModifier);
        CHECK(S().parametres.base.affichage.typePresentation == i);
        CHECK(Graphe().Generations() == attendues[i - 1]);
        CHECK(Graphe().Dessin().boites[0].hauteur < hauteur);
        hauteur = Graphe().Dessin().boites[0].hauteur;
    }
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: a change of a name is seen after the refresh") {
    DemarrerFamille();
    S().base->R_NOM.EcrireNom(NoOrdre{3}, "Martin;Paulin;;;");
    CHECK(S().base->marques.AffichagePerime);
    Fenetre().Actualiser();
    CHECK(Graphe().Cases()[0]->Contenu().nom == "Paulin Martin");
    CHECK_FALSE(S().base->marques.AffichagePerime);
}

TEST_CASE_FIXTURE(FenetreEssai, "FrmDébut: lines never cross boxes, in any presentation") {
    DemarrerFamille();
    std::mt19937 hasard{7};
    doublures::FamilleEssai famille{*S().base};
    std::vector<NoOrdre> tous{NoOrdre{3}};
    for (int k = 0; k < 70; ++k) {
        const NoOrdre parent = tous[hasard() % tous.size()];
        const NoOrdre conjoint = famille.Creer(Sexe::Femme, "Autre", "Une");
        if (hasard() % 3 != 0) famille.Marier(parent, conjoint, "1900");
        const NoOrdre enfant = famille.Creer(Sexe::Homme, "Martin", "Enfant");
        famille.Parents(enfant, parent, hasard() % 4 == 0 ? NoOrdre{} : conjoint);
        tous.push_back(enfant);
    }
    for (int presentation = 1; presentation <= 4; ++presentation) {
        for (const NoOrdre n : tous) {
            const auto modele = records::ConstruireFamille(*S().base, n, {5, 5});
            const records::DessinFamille dessin =
                records::DessinerFamille(*S().base, modele, records::MesuresDe(presentation));
            for (const records::Trait& trait : dessin.traits) {
                const bool croise = std::any_of(
                    dessin.boites.begin(), dessin.boites.end(),
                    [&](const records::Rectangle& boite) { return Traverse(trait, EnQt(boite)); });
                CHECK_FALSE(croise);
            }
        }
    }
}

TEST_CASE("PaletteGraphe: texts of our own palettes are read at a contrast of 4.5 at least") {
    for (const Palette choix : {Palette::Claire, Palette::Sombre}) {
        const PaletteGraphe palette = FairePalette(choix, {});
        for (const CouleursSexe& c : {palette.homme, palette.femme, palette.indetermine})
            CHECK(Contraste(c.texte, c.fond) >= 7);
        CHECK(Contraste(palette.texteLibre, palette.etiquette) >= 4.5);
        CHECK(Contraste(palette.inconnu, palette.fond) >= 4.5);
        CHECK(Contraste(palette.accent, palette.fond) >= 3);
    }
    CHECK(Contraste(Qt::black, Qt::white) == doctest::Approx(21));
}

TEST_CASE("PaletteGraphe: the classic palette is the one of the settings") {
    const PaletteGraphe palette = FairePalette(Palette::Classique, {});
    CHECK(palette.fond == QColor{0x80, 0x00, 0xFF});
    CHECK(palette.fondBas == QColor{0x80, 0x00, 0x00});
    CHECK(palette.homme.fond == QColor{0x00, 0xFF, 0xFF});
    CHECK(palette.femme.texte == QColor{0xFF, 0x00, 0x00});
    CHECK(palette.policesReglees);
    shell::Affichage sans;
    sans.degrade = false;
    CHECK(FairePalette(Palette::Classique, sans).fondBas == palette.fond);
}
