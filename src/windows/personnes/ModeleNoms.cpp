#include "windows/personnes/ModeleNoms.h"

#include <QIcon>
#include <QMimeData>

#include "messages/Dorvane.h"
#include "records/NomsAffiches.h"
#include "records/PositionNoms.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <utility>

namespace dorvane::windows {

ModeleNoms::ModeleNoms(shell::Session& session, const std::vector<NoOrdre>& parmi, QObject* parent)
    : ModeleListe{session, NbColonnes, "FrmNom", "LstNoms", parent}, choix_{!parmi.empty()} {
    std::vector<std::uint32_t> numeros;
    if (choix_) {
        for (const NoOrdre individu : parmi)
            numeros.push_back(individu.valeur);
    } else if (S().base) {
        const std::vector<std::uint16_t>& tri = S().base->R_TRI.individus.Numeros();
        numeros.assign(tri.begin(), tri.end());
    }
    Poser(std::move(numeros));
}

std::string ModeleNoms::TexteFiltre(std::uint32_t numero) const {
    return records::NomEtDates(S(), NoOrdre{numero});
}

std::string ModeleNoms::Cle(std::uint32_t numero, int colonne) const {
    const NoOrdre individu{numero};
    switch (colonne) {
        case Nom:
            return Replie(records::NomAffiche(S(), individu));
        case Dates:
            return S().base->R_NAISS.AnneeTri(individu);
        case Sexe:
            return std::string(1, static_cast<char>(S().base->R_SEXE.LireCellule(individu)));
        case Famille:
            return std::to_string(static_cast<int>(FamilleDe(individu)));
        default:
            return Texte(numero, colonne);
    }
}

void ModeleNoms::sort(int colonne, Qt::SortOrder ordre) {
    if (S().base) ModeleListe::sort(colonne, ordre);
}

bool ModeleNoms::Positionnable() const {
    return !choix_ && S().base && AUneCle(S().base->entete.TypeTri);
}

int ModeleNoms::Position(const QString& texte) const {
    if (rowCount({}) == 0 || !S().base) return -1;
    return static_cast<int>(records::PositionDans(
        *S().base, static_cast<std::size_t>(rowCount({})),
        [this](std::size_t rangee) { return Individu(static_cast<int>(rangee)); },
        QtVersTexte(texte).octets));
}

QVariant ModeleNoms::Autre(std::uint32_t numero, int colonne, int role) const {
    const NoOrdre individu{numero};
    switch (role) {
        case Qt::DecorationRole:
            return Image(individu, colonne);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return Bulle(individu, colonne);
        case Qt::TextAlignmentRole:
            return colonne == Parents ? QVariant{Qt::AlignCenter} : QVariant{};
        default:
            return {};
    }
}

std::string ModeleNoms::Texte(std::uint32_t numero, int colonne) const {
    const NoOrdre individu{numero};
    if (colonne == Nom) return records::NomAffiche(S(), individu);
    if (colonne == Dates) return records::DatesDeVie(S(), individu);
    if (colonne != Parents) return {};
    const bool pere{S().base->R_PERE.LireCellule(individu)};
    const bool mere{S().base->R_MERE.LireCellule(individu)};
    // Both known is the ordinary case and bears no mark.
    if (pere && mere) return {};
    return pere ? "ox" : mere ? "xo" : "xx";
}

QString ModeleNoms::Bulle(NoOrdre individu, int colonne) const {
    switch (colonne) {
        case Parents: {
            const bool pere{S().base->R_PERE.LireCellule(individu)};
            const bool mere{S().base->R_MERE.LireCellule(individu)};
            return TexteEcran(S(), pere && mere ? message::BulleParentsConnus
                                   : pere       ? message::BullePereConnu
                                   : mere       ? message::BulleMereConnue
                                                : message::BulleParentsInconnus);
        }
        case Sexe:
            return TexteEcran(S(), records::MessageDuSexe(S().base->R_SEXE.LireCellule(individu)));
        case Famille: {
            switch (FamilleDe(individu)) {
                case EtatFamille::UnionsEtEnfants:
                    return TexteEcran(S(), message::BulleUnionsEtEnfants);
                case EtatFamille::UnionSansEnfant:
                    return TexteEcran(S(), message::BulleUnionSansEnfant);
                case EtatFamille::EnfantsSansUnion:
                    return TexteEcran(S(), message::BulleEnfantsSansUnion);
                case EtatFamille::Aucune:
                    break;
            }
            return {};
        }
        default:
            return TexteVersQt(Texte(individu.valeur, colonne));
    }
}

ModeleNoms::EtatFamille ModeleNoms::FamilleDe(NoOrdre individu) const {
    const bool unions = S().base->R_MARIAG.NbElements(individu) != 0;
    const bool enfants = S().base->R_ENFANT.NbElements(individu) != 0;
    if (unions) return enfants ? EtatFamille::UnionsEtEnfants : EtatFamille::UnionSansEnfant;
    return enfants ? EtatFamille::EnfantsSansUnion : EtatFamille::Aucune;
}

QVariant ModeleNoms::Image(NoOrdre individu, int colonne) const {
    if (colonne == Sexe) return IconeSexe(S().base->R_SEXE.LireCellule(individu));
    if (colonne != Famille) return {};
    switch (FamilleDe(individu)) {
        case EtatFamille::UnionsEtEnfants:
            return Icone("Famille");
        case EtatFamille::UnionSansEnfant:
            return Icone("Union");
        case EtatFamille::EnfantsSansUnion:
            return Icone("Enfants");
        case EtatFamille::Aucune:
            break;
    }
    return {};
}

Qt::ItemFlags ModeleNoms::flags(const QModelIndex& index) const {
    return ModeleListe::flags(index) | Qt::ItemIsDragEnabled;
}

QMimeData* ModeleNoms::mimeData(const QModelIndexList& lignes) const {
    return lignes.isEmpty() ? nullptr : PersonneVersMime(S(), Individu(lignes.constFirst().row()));
}

}  // namespace dorvane::windows
