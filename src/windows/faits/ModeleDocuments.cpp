#include "windows/faits/ModeleDocuments.h"

#include <QIcon>
#include <QPixmap>

#include "messages/Faits.h"
#include "records/FicheDocument.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"
#include "windows/controles/Vignettes.h"

namespace dorvane::windows {

namespace {

/// The drawing for a document without a picture.
const char* NomIcone(const records::EtatDocument& etat) {
    if (etat.Absent()) return "FichierAbsent";
    if (etat.nature == records::NatureDocument::Adresse) return "Adresse";
    return etat.nature == records::NatureDocument::Courriel ? "Courriel" : "Fichier";
}

}  // namespace

ModeleDocuments::ModeleDocuments(shell::Session& session, const char* fenetre, const char* controle,
                                 QObject* parent)
    : ModeleListe{session, NbColonnes, fenetre, controle, parent} {}

std::vector<std::uint32_t> ModeleDocuments::Numeros(const shell::Session& session) {
    if (!session.base) return {};
    const std::vector<std::uint16_t>& tri = session.base->R_TRI.documents.Numeros();
    return {tri.begin(), tri.end()};
}

records::EtatDocument ModeleDocuments::EtatDe(NoDocument document) const {
    return records::EtatDe(S().CheminBase, S().base->R_IMAGE.LireDoc(document));
}

std::string ModeleDocuments::Texte(std::uint32_t numero, int colonne) const {
    const NoDocument document{numero};
    switch (colonne) {
        case Titre:
            return records::TitreAffiche(S(), document);
        case Type:
            return S().base->R_IMAGE.TypeDoc(document);
        case Fichier:
            return S().base->R_IMAGE.FichierDoc(document);
        default: {
            const NoMessage message = records::MessageDEtat(EtatDe(document));
            std::string etat = message ? S().Message(message) : std::string{};
            if (S().base->entete.DocBase == document)
                etat += (etat.empty() ? "" : ", ") + S().Message(message::DocumentTitreDeLaBase);
            return etat;
        }
    }
}

QVariant ModeleDocuments::Autre(std::uint32_t numero, int colonne, int role) const {
    const NoDocument document{numero};
    if (role == Qt::DecorationRole && colonne == Titre) {
        const records::EtatDocument etat = EtatDe(document);
        const QPixmap vignette = VignetteDeFichier(etat.fichier, CoteVignette);
        if (!vignette.isNull()) return vignette;
        return Icone(NomIcone(etat));
    }
    // The whole title, with what stands behind its slash.
    if (role == Qt::ToolTipRole && colonne == Titre)
        return TexteVersQt(S().base->R_IMAGE.TitreDoc(document));
    if (role == Qt::SizeHintRole && colonne == Titre)
        return QSize{CoteVignette * 4, CoteVignette + 4};
    return ModeleListe::Autre(numero, colonne, role);
}

}  // namespace dorvane::windows
