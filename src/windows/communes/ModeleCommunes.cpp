#include "windows/communes/ModeleCommunes.h"

#include "interchange/communes/GestionCommunes.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

ModeleCommunes::ModeleCommunes(shell::Session& session,
                               const interchange::GestionCommunes& communes, QObject* parent)
    : ModeleListe{session, NbColonnes, "FrmCommune", "LstCommunes", parent}, communes_{communes} {}

QVariant ModeleCommunes::data(const QModelIndex& index, int role) const {
    const std::uint32_t numero = Numero(index.row());
    if (numero == 0) return {};
    if (role == Qt::DisplayRole) return TexteVersQt(Texte(numero, index.column()));
    return Autre(numero, index.column(), role);
}

std::string ModeleCommunes::Texte(std::uint32_t numero, int colonne) const {
    const storage::Commune commune = communes_.Base().LireCommune(storage::NoCommune{numero});
    switch (colonne) {
        case Nom:
            return commune.nom;
        case Rattachement:
            return commune.rattachement;
        case Precision:
            return commune.precision;
        case Code:
            return commune.code;
        case AutreCode:
            return commune.autreCode;
        default:
            return {};
    }
}

}  // namespace dorvane::windows
