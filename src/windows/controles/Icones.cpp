#include "windows/controles/Icones.h"

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
    {"MnuExporter", "M12 14V3M7.500 7.500L12 3l4.500 4.500M4 15v5h16v-5"},
    {"MnuExporterSélectif",
     "M12 14V3M7.500 7.500L12 3l4.500 4.500M4 15v5h10M16 18.500l2 2.500 3.500-5"},
    {"MnuIntégrer", "M3 4h12v12H3zM9 16v4h12V8h-6M9 7v6M6 10h6"},
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
    {"MnuCommunes",
     "M12 21q-6.500-7-6.500-11.500a6.500 6.500 0 0 1 13 0Q18.500 14 12 21zM12 7.500a2 2 0 1 1 0 4 "
     "2 2 0 "
     "1 1 0-4"},
    {"MnuCalendrier",
     "M4 6h16v14H4zM4 10h16M8 3v5M16 3v5M8 14h2M12 14h2M16 14h.500M8 17h2M12 17h2"},
    {"Gras", "M7 4h6a4 4 0 0 1 0 8H7zM7 12h7.500a4 4 0 0 1 0 8H7z"},
    {"Italique", "M10 4h8M6 20h8M14 4l-4 16"},
    {"Souligné", "M7 4v7a5 5 0 0 0 10 0V4M5 20.500h14"},
    {"Gauche", "M4 5h16M4 10h10M4 15h16M4 20h10"},
    {"Centre", "M4 5h16M7 10h10M4 15h16M7 20h10"},
    {"Droite", "M4 5h16M10 10h10M4 15h16M10 20h10"},
    {"Couper",
     "M6 3l9 13M18 3L9 16M7 15a3 3 0 1 1 0 6 3 3 0 1 1 0-6M17 15a3 3 0 1 1 0 6 3 3 0 1 1 0-6"},
    {"Copier", "M8 8h12v13H8zM16 8V3H4v13h4"},
    {"Coller", "M6 5H4v16h16V5h-2M8 3h8v4H8zM8 12h8M8 16h6"},
    {"Defaire", "M8 5L3.500 9.500 8 14M4 9.500h10a5 5 0 0 1 0 10H9"},
    {"Refaire", "M16 5l4.500 4.500L16 14M20 9.500H10a5 5 0 0 0 0 10h5"},
    {"Valider", "M4 12.500l5.500 5.500L20 6.500"},
    {"Abandonner", "M5 5l14 14M19 5L5 19"},
    {"Ajouter", "M12 4v16M4 12h16"},
    {"Retirer", "M4 12h16"},
    {"Monter", "M12 20V5M5.500 11.500L12 5l6.500 6.500"},
    {"Descendre", "M12 4v15M5.500 12.500L12 19l6.500-6.500"},
    {"Verser", "M4 12h15M13 5.500l6.500 6.500-6.500 6.500"},
    {"Adresse", "M12 3a9 9 0 1 1 0 18 9 9 0 1 1 0-18M3 12h18M12 3q-4 4-4 9t4 9M12 3q4 4 4 9t-4 9"},
    {"Courriel", "M3 6h18v12H3zM3 6l9 7 9-7"},
    {"Fichier", "M6 3h8l4 4v14H6zM14 3v4h4"},
    {"FichierAbsent", "M6 3h8l4 4v14H6zM14 3v4h4M9.500 12l5 5M14.500 12l-5 5"},
    {"Chercher", "M10.500 4a6.500 6.500 0 1 1 0 13 6.500 6.500 0 1 1 0-13M15.500 15.500L21 21"},
    {"Choix", "M4 6h16M4 12h16M4 18h9M15.500 16.500l2.500 3 3.500-5"},
    {"MnuModif", "M4 20l1-4.500L16.500 4l3.500 3.500L8.500 19zM14 6.500l3.500 3.500"},
    {"MnuNouvInd",
     "M10 4a4 4 0 1 1 0 8 4 4 0 1 1 0-8M3 20c0-4 3-6 7-6q2 0 3.500.500M18 14v7M14.500 17.500h7"},
    {"MnuListe",
     "M9 4a3.500 3.500 0 1 1 0 7 3.500 3.500 0 1 1 0-7M3 19c0-3.500 2.500-5.500 6-5.500M16 "
     "13a3.500 "
     "3.500 0 1 1 0 7 3.500 3.500 0 1 1 0-7M18.500 19l3 3"},
    {"MnuSupprInd",
     "M10 4a4 4 0 1 1 0 8 4 4 0 1 1 0-8M3 20c0-4 3-6 7-6q2 0 3.500.500M14.500 17.500h7"},
    {"MnuLstEvt", "M4 6h16v14H4zM4 10h16M8 3v5M16 3v5M8 15h8"},
    {"MnuLstImage", "M3 5h18v14H3zM3 16l5-5 4 4 3-3 6 5M15.500 8.500h.500"},
    {"MnuMotsClés", "M8 8a4 4 0 1 1 0 8 4 4 0 1 1 0-8M12 12h9M18 12v4M15 12v3"},
    {"MnuUsuels", "M5 4h11l3 3v13H5zM8 9h8M8 13h8M8 17h5"},
    {"MnuControle",
     "M4 4h16v6M4 4v16h6M8 8h8M8 12h3M15 11a4 4 0 1 1 0 8 4 4 0 1 1 0-8M18 18l3.500 3.500"},
    {"MnuDépannage",
     "M14.500 6.500a5 5 0 0 1 6-1l-3 3 .500 2.500 2.500 .500 3-3a5 5 0 0 1-7 5.500L7 20.500a2.100 "
     "2.100 0 0 1-3.500-3.500L10.500 10a5 5 0 0 1 4-3.500"},
    {"MnuRéorganiser",
     "M4 5h7v5H4zM4 14h7v5H4zM14 7.500h6M14 16.500h6M17 5l3 2.500L17 10M17 14l3 2.500L17 19"},
    {"MnuParametres",
     "M12 8.500a3.500 3.500 0 1 1 0 7 3.500 3.500 0 1 1 0-7M12 2.500v3M12 18.500v3M2.500 "
     "12h3M18.500 "
     "12h3M5.300 5.300l2.100 2.100M16.600 16.600l2.100 2.100M5.300 18.700l2.100-2.100M16.600 "
     "7.400l2.100-2.100"},
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

QIcon IconeSexe(Sexe sexe) {
    return Icone(sexe == Sexe::Homme ? "SexeH" : sexe == Sexe::Femme ? "SexeF" : "SexeI");
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
