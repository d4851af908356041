#include "windows/controles/ChampReplie.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include "values/Comparaison.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

void PlierChamp(QLineEdit& champ) {
    QObject::connect(&champ, &QLineEdit::textChanged, &champ, [&champ](const QString& texte) {
        const QString replie = TexteVersQt(Replie(QtVersTexte(texte).octets));
        if (replie == texte) return;
        const int curseur = champ.cursorPosition();
        const QSignalBlocker muet{champ};
        champ.setText(replie);
        champ.setCursorPosition(curseur);
    });
}

}  // namespace dorvane::windows
