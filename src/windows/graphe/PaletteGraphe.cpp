#include "windows/graphe/PaletteGraphe.h"

#include <QApplication>
#include <QPalette>

#include "shell/Session.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace dorvane::windows {

namespace {

constexpr const char* Section = "Fenêtres";
constexpr const char* Cle = "Palette";
constexpr std::array<const char*, 3> Noms{"Classique", "Claire", "Sombre"};

/// The ground of the classic chart loses one of its channels towards the bottom.
QColor SansCanal(QColor fond, const std::string& canal) {
    if (canal == "Rouge")
        fond.setRed(0);
    else if (canal == "Vert")
        fond.setGreen(0);
    else
        fond.setBlue(0);
    return fond;
}

CouleursSexe Reglees(std::uint32_t cadre, std::uint32_t police) {
    return {CouleurDe(cadre), CouleurDe(police), CouleurDe(police)};
}

PaletteGraphe Classique(const shell::Affichage& a) {
    const QColor fond = CouleurDe(a.couleurFond);
    const QColor libre = Contraste(Qt::white, fond) >= Contraste(Qt::black, fond)
                             ? QColor{Qt::white}
                             : QColor{Qt::black};
    return {fond,
            a.degrade ? SansCanal(fond, a.couleurDegrade) : fond,
            Reglees(a.couleurCadreHomme, a.couleurPoliceHomme),
            Reglees(a.couleurCadreFemme, a.couleurPoliceFemme),
            Reglees(a.couleurCadreIndetermine, a.couleurPoliceIndetermine),
            libre,
            libre,
            fond,
            libre,
            libre,
            true};
}

PaletteGraphe Claire() {
    return {QColor{0xF6, 0xF5, 0xF2},
            QColor{0xF6, 0xF5, 0xF2},
            {QColor{0xE3, 0xED, 0xF9}, QColor{0x8F, 0xB2, 0xDB}, QColor{0x17, 0x2B, 0x45}},
            {QColor{0xFB, 0xE7, 0xE4}, QColor{0xDF, 0xA3, 0x9A}, QColor{0x4C, 0x1B, 0x16}},
            {QColor{0xEC, 0xEC, 0xE8}, QColor{0xB2, 0xB2, 0xAA}, QColor{0x2E, 0x2E, 0x2A}},
            QColor{0x6A, 0x6A, 0x63},
            QColor{0x9A, 0x9A, 0x92},
            QColor{0xF6, 0xF5, 0xF2},
            QColor{0x4A, 0x4A, 0x45},
            QColor{0xC2, 0x6A, 0x00},
            false};
}

PaletteGraphe Sombre() {
    return {QColor{0x1E, 0x21, 0x26},
            QColor{0x1E, 0x21, 0x26},
            {QColor{0xB9, 0xCF, 0xE8}, QColor{0x7F, 0xA5, 0xD0}, QColor{0x12, 0x22, 0x36}},
            {QColor{0xEB, 0xC6, 0xC1}, QColor{0xCB, 0x8E, 0x86}, QColor{0x3B, 0x13, 0x0F}},
            {QColor{0xCB, 0xCC, 0xC8}, QColor{0x96, 0x97, 0x92}, QColor{0x22, 0x22, 0x20}},
            QColor{0xA3, 0xA8, 0xB0},
            QColor{0x72, 0x78, 0x82},
            QColor{0x1E, 0x21, 0x26},
            QColor{0xC9, 0xCD, 0xD3},
            QColor{0xF2, 0xB1, 0x4A},
            false};
}

/// Relative luminance, 0 to 1.
double Luminance(const QColor& couleur) {
    const auto lineaire = [](double v) {
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) +
           0.0722 * lineaire(couleur.blueF());
}

}  // namespace

QColor CouleurDe(std::uint32_t couleur) {
    return {static_cast<int>(couleur & 0xFFU), static_cast<int>(couleur >> 8U & 0xFFU),
            static_cast<int>(couleur >> 16U & 0xFFU)};
}

PaletteGraphe FairePalette(Palette palette, const shell::Affichage& affichage) {
    switch (palette) {
        case Palette::Classique:
            return Classique(affichage);
        case Palette::Claire:
            return Claire();
        case Palette::Sombre:
            break;
    }
    return Sombre();
}

std::optional<Palette> PaletteChoisie(const shell::Session& session) {
    const std::string nom = session.parametres.Valeur(Section, Cle);
    for (std::size_t i = 0; i < Noms.size(); ++i)
        if (nom == Noms[i]) return static_cast<Palette>(i);
    return std::nullopt;
}

void MemoriserPalette(shell::Session& session, Palette palette) {
    // What cannot be saved is told when the settings are saved at the end.
    static_cast<void>(
        session.parametres.SauverValeur(Section, Cle, Noms[static_cast<std::size_t>(palette)]));
}

Palette PaletteDuBureau() {
    return QApplication::palette().color(QPalette::Window).lightness() < 128 ? Palette::Sombre
                                                                             : Palette::Claire;
}

double Contraste(const QColor& a, const QColor& b) {
    const double un = Luminance(a) + 0.05;
    const double deux = Luminance(b) + 0.05;
    return std::max(un, deux) / std::min(un, deux);
}

Palette PaletteEnCours(const shell::Session& session) {
    return PaletteChoisie(session).value_or(PaletteDuBureau());
}

}  // namespace dorvane::windows
