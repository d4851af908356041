#include "windows/Icones.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <cstring>

namespace dorvane::windows {

namespace {

/// Drawings on a field of 24 by 24, lines of one width without fill.
struct Dessin {
    const char* nom;
    const char* trace;
};

constexpr Dessin Dessins[] = {
    {"MnuNouveau", "M6 3h8l4 4v14H6zM14 3v4h4M12 11v6M9 14h6"},
    {"MnuOuvrir", "M3 19V5h6l2 3h8v3M3 19l3-8h16l-3 8z"},
    {"MnuFermer", "M3 19V5h6l2 3h10v11zM10 11l4 5M14 11l-4 5"},
    {"MnuEnregistrer", "M4 4h13l3 3v13H4zM8 4v5h8V4M8 20v-7h8v7"},
    {"MnuSauvegarde", "M4 4h16v5H4zM5 9v11h14V9M12 11v6M9 14.5l3 3 3-3"},
    {"MnuRestauration", "M4 4h16v5H4zM5 9v11h14V9M12 18v-6M9 14.5l3-3 3 3"},
    {"MnuImporter", "M12 3v11M7.5 9.5l4.500 4.500 4.500-4.500M4 15v5h16v-5"},
    {"MnuPrécédent", "M15 5l-7 7 7 7"},
    {"MnuSuivant", "M9 5l7 7-7 7"},
    {"MnuAller1_1", "M12 3a3 3 0 1 1 0 6 3 3 0 1 1 0-6M5 15h6M5 21h14M16.500 12.500l1.500-1v7"},
    {"MnuAller1_2",
     "M12 3a3 3 0 1 1 0 6 3 3 0 1 1 0-6M5 15h6M5 21h14M15 13q3-2.500 3.500 0 0 "
     "1.500-3.500 5.500h3.500"},
    {"MnuNoms", "M4 6h16M4 11h16M4 16h8M17 14a3 3 0 1 1 0 6 3 3 0 1 1 0-6M19.200 19.200L22 22"},
    {"MnuGauche",
     "M3 9h6v6H3zM9 12h4M13 6v12M13 6h3M13 18h3M13 12h3M18.500 4h3M18.500 12h3M20 "
     "10.500v3"},
    {"MnuDroite", "M15 9h6v6h-6zM15 12h-4M11 6v12M11 6H8M11 18H8M11 12H8M2.500 12h3M4 10.500v3"},
    {"MnuAgrandir",
     "M10.500 4a6.500 6.500 0 1 1 0 13 6.500 6.500 0 1 1 0-13M15.500 15.500L21 "
     "21M10.500 7.500v6M7.500 10.500h6"},
    {"MnuDiminuer",
     "M10.500 4a6.500 6.500 0 1 1 0 13 6.500 6.500 0 1 1 0-13M15.500 15.500L21 "
     "21M7.500 10.500h6"},
    {"MnuAjuster", "M4 9V4h5M15 4h5v5M20 15v5h-5M9 20H4v-5M9 9h6v6H9z"},
    {"MnuCalendrier",
     "M4 6h16v14H4zM4 10h16M8 3v5M16 3v5M8 14h2M12 14h2M16 14h.500M8 17h2M12 17h2"},
    {"SexeH", "M10 9a5 5 0 1 1 0 10 5 5 0 1 1 0-10M13.600 10.400L20 4M15 4h5v5"},
    {"SexeF", "M12 3a5 5 0 1 1 0 10 5 5 0 1 1 0-10M12 13v8M8.500 17.500h7"},
    {"SexeI", "M12 7a5 5 0 1 1 0 10 5 5 0 1 1 0-10"},
    {"Union", "M9 7a5 5 0 1 1 0 10 5 5 0 1 1 0-10M15 7a5 5 0 1 1 0 10 5 5 0 1 1 0-10"},
    {"Enfants", "M12 4v6M6 16v-6h12v6M4 16h4v4H4zM16 16h4v4h-4z"},
    {"Famille",
     "M9 2.500a3.500 3.500 0 1 1 0 7 3.500 3.500 0 1 1 0-7M15 2.500a3.500 3.500 0 1 1 0 "
     "7 3.500 3.500 0 1 1 0-7M12 9.500V13M6 17v-4h12v4M4 17h4v4H4zM16 17h4v4h-4z"},
};

const Dessin* Trouver(const char* nom) {
    for (const Dessin& dessin : Dessins)
        if (std::strcmp(dessin.nom, nom) == 0) return &dessin;
    return nullptr;
}

/// Paints a drawing in the colour of the palette in use.
class Moteur final : public QIconEngine {
public:
    explicit Moteur(const char* nom) : nom_{nom} {}

    void paint(QPainter* peintre, const QRect& cadre, QIcon::Mode mode,
               QIcon::State /*etat*/) override {
        const QPalette palette = QApplication::palette();
        const QPalette::ColorGroup groupe =
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette::ColorRole role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        QSvgRenderer dessin{DessinIcone(nom_, palette.color(groupe, role))};
        dessin.render(peintre, QRectF{cadre});
    }
    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
        QPixmap image{taille};
        image.fill(Qt::transparent);
        QPainter peintre{&image};
        paint(&peintre, QRect{QPoint{}, taille}, mode, etat);
        return image;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new Moteur{*this}; }

private:
    const char* nom_;
};

}  // namespace

QByteArray DessinIcone(const char* nom, const QColor& couleur) {
    const Dessin* dessin = Trouver(nom);
    if (dessin == nullptr) return {};
    return "<svg viewBox='0 0 24 24'><path fill='none' stroke='" + couleur.name().toLatin1() +
           "' stroke-width='1.7' stroke-linecap='round' stroke-linejoin='round' d='" +
           QByteArray{dessin->trace} + "'/></svg>";
}

QIcon Icone(const char* nom) {
    const Dessin* dessin = Trouver(nom);
    return dessin == nullptr ? QIcon{} : QIcon{new Moteur{dessin->nom}};
}

QIcon IconeSexe(char sexe) {
    return Icone(sexe == 'H' ? "SexeH" : sexe == 'F' ? "SexeF" : "SexeI");
}

QIcon IconeProgramme() {
    static const QByteArray Image =
        "<svg viewBox='0 0 64 64'>"
        "<rect width='64' height='64' rx='13' fill='#25466b'/>"
        "<path d='M22 32h10M32 16v32M32 16h10M32 48h10' fill='none' stroke='#fff' "
        "stroke-width='3' stroke-linecap='round' stroke-linejoin='round'/>"
        "<rect x='8' y='24' width='18' height='16' rx='4' fill='#f4c95d'/>"
        "<rect x='40' y='9' width='17' height='14' rx='4' fill='#9cc4ee'/>"
        "<rect x='40' y='41' width='17' height='14' rx='4' fill='#f0a8a0'/></svg>";
    QIcon icone;
    for (const int cote : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap image{cote, cote};
        image.fill(Qt::transparent);
        QPainter peintre{&image};
        QSvgRenderer{Image}.render(&peintre);
        icone.addPixmap(image);
    }
    return icone;
}

}  // namespace dorvane::windows
