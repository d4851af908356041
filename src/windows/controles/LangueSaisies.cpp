#include "windows/controles/LangueSaisies.h"

#include <QSignalBlocker>

#include "shell/Session.h"
#include "values/Comparaison.h"
#include "values/LangueDates.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/Unicode.h"

#include <string>

namespace dorvane::windows {

namespace {

constexpr const char* Sorte = "sorteSaisie";

}  // namespace

void SuivreLangue(QLineEdit& champ, SorteSaisie sorte) {
    champ.setProperty(Sorte, static_cast<int>(sorte));
}

MotsDeLangue::MotsDeLangue(const shell::Session& session)
    : dates_{session.Mots()}, libelles_{session.catalogue} {}

std::string MotsDeLangue::Traduire(std::string_view saisie, SorteSaisie sorte,
                                   const shell::Session& session) const {
    switch (sorte) {
        case SorteSaisie::JourMois:
            return TraduireJourMois(saisie, session.Ordre(), dates_, session.Mots());
        case SorteSaisie::DateEvenement:
            return TraduireDateEvenement(saisie, session.Ordre(), dates_, session.Mots());
        case SorteSaisie::Libelle:
            break;
    }
    const std::string_view tag = libelles_.TagDeLibelle(SansBlancs(saisie));
    return tag == SansBlancs(saisie) ? std::string{saisie}
                                     : shell::LibelleDeTag(session.catalogue, tag);
}

void TraduireSaisies(const QWidget& fenetre, const MotsDeLangue& avant,
                     const shell::Session& session) {
    for (QLineEdit* champ : fenetre.findChildren<QLineEdit*>()) {
        const QVariant sorte = champ->property(Sorte);
        const bool marque = EstMarque(*champ);
        if (sorte.isValid()) {
            const QSignalBlocker silence{champ};
            ReecrireChamp(*champ, [&](const QString& texte) {
                const TexteRecu saisi = QtVersTexte(texte);
                if (saisi.remplaces != 0) return texte;
                return TexteVersQt(
                    avant.Traduire(saisi.octets, static_cast<SorteSaisie>(sorte.toInt()), session));
            });
        }
        if (!marque) continue;
        MarquerModifie(*champ, false, session);
        MarquerChamp(*champ, session);
    }
}

}  // namespace dorvane::windows
