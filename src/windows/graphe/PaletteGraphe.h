#pragma once

#include <QColor>
#include <QFont>

#include "shell/Parametres.h"
#include "values/Sexe.h"

#include <optional>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// Which colours the chart has.
enum class Palette {
    Classique,  ///< those of the settings, with their gradient and fonts
    Claire,     ///< pale fills on a light ground
    Sombre,     ///< pale fills on a dark ground
};

/// Colours of the boxes of one sex.
struct CouleursSexe {
    QColor fond;
    QColor cadre;
    QColor texte;
};

/// All colours of the chart.
struct PaletteGraphe {
    QColor fond;     ///< ground, at the top
    QColor fondBas;  ///< ground, at the bottom; the same where there is no gradient
    CouleursSexe homme;
    CouleursSexe femme;
    CouleursSexe indetermine;
    QColor inconnu;       ///< frame and sign of a person who is not known
    QColor trait;         ///< lines between boxes
    QColor etiquette;     ///< ground of the years of unions
    QColor texteLibre;    ///< texts outside boxes
    QColor accent;        ///< frame of the current person
    bool policesReglees;  ///< fonts of the settings instead of the desktop's

    [[nodiscard]] const CouleursSexe& DeSexe(Sexe sexe) const {
        return sexe == Sexe::Homme ? homme : sexe == Sexe::Femme ? femme : indetermine;
    }
};

/// A 24-bit colour of the settings, red in the lowest byte.
[[nodiscard]] QColor CouleurDe(std::uint32_t couleur);

[[nodiscard]] PaletteGraphe FairePalette(Palette palette, const shell::Affichage& affichage);

/// The palette that the user has chosen; nothing before the first choice.
[[nodiscard]] std::optional<Palette> PaletteChoisie(const shell::Session& session);
void MemoriserPalette(shell::Session& session, Palette palette);

/// `Sombre` on a dark desktop, else `Claire`.
[[nodiscard]] Palette PaletteDuBureau();

/// The palette that the user has chosen; before the first choice, that of the desktop.
[[nodiscard]] Palette PaletteEnCours(const shell::Session& session);

/// Contrast of two colours, 1 (none) to 21 (black on white).
[[nodiscard]] double Contraste(const QColor& a, const QColor& b);

}  // namespace dorvane::windows
