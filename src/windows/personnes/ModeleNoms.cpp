#include "windows/personnes/ModeleNoms.h"

#include <QIcon>
#include <QMimeData>

#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "records/NomsAffiches.h"
#include "records/PositionNoms.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "windows/controles/GlisserPersonne.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <utility>

namespace dorvane::windows {

ModeleNoms::ModeleNoms(shell::Session& session, const std::vector<NoOrdre>& parmi, QObject* parent)
    : QAbstractTableModel{parent}, session_{session}, tous_{parmi}, choix_{!parmi.empty()} {
    if (tous_.empty() && session_.base) {
        tous_.reserve(session_.base->R_TRI.individus.Taille());
        for (const std::uint16_t n : session_.base->R_TRI.individus.Numeros())
            tous_.emplace_back(n);
    }
    montres_ = tous_;
}

void ModeleNoms::Filtrer(const QString& filtre) {
    mots_.clear();
    for (const QString& mot : filtre.split(u' ', Qt::SkipEmptyParts))
        mots_.push_back(Replie(QtVersTexte(mot).octets));
    beginResetModel();
    Retenir();
    endResetModel();
}

void ModeleNoms::Retenir() {
    montres_.clear();
    if (mots_.empty()) {
        montres_ = tous_;
    } else {
        if (replies_.empty())
            for (const NoOrdre n : tous_)
                replies_.push_back(Replie(records::NomEtDates(session_, n)));
        for (std::size_t i = 0; i < tous_.size(); ++i) {
            const std::string& nom = replies_[i];
            if (std::all_of(mots_.begin(), mots_.end(), [&nom](const std::string& mot) {
                    return nom.find(mot) != std::string::npos;
                }))
                montres_.push_back(tous_[i]);
        }
    }
    if (colonne_ < 0) return;
    std::vector<std::pair<std::string, NoOrdre>> cles;
    cles.reserve(montres_.size());
    for (const NoOrdre n : montres_)
        cles.emplace_back(Cle(n), n);
    std::stable_sort(cles.begin(), cles.end(), [this](const auto& a, const auto& b) {
        return ordre_ == Qt::AscendingOrder ? a.first < b.first : b.first < a.first;
    });
    std::transform(cles.begin(), cles.end(), montres_.begin(),
                   [](const auto& cle) { return cle.second; });
}

/// What a row is ordered by, for the column in use.
std::string ModeleNoms::Cle(NoOrdre individu) const {
    switch (colonne_) {
        case Nom:
            return Replie(records::NomAffiche(session_, individu));
        case Dates:
            return session_.base->R_NAISS.AnneeTri(individu);
        case Sexe:
            return std::string(1, session_.base->R_SEXE.LireCellule(individu));
        case Famille:
            return std::to_string(static_cast<int>(FamilleDe(individu)));
        default:
            return Texte(individu, colonne_).toString().toStdString();
    }
}

void ModeleNoms::sort(int colonne, Qt::SortOrder ordre) {
    if ((colonne == colonne_ && ordre == ordre_) || !session_.base) return;
    colonne_ = colonne;
    ordre_ = ordre;
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList avant = persistentIndexList();
    std::vector<NoOrdre> personnes;
    for (const QModelIndex& place : avant)
        personnes.push_back(Individu(place.row()));
    Retenir();
    QModelIndexList apres;
    for (qsizetype i = 0; i < avant.size(); ++i)
        apres << index(Rangee(personnes[static_cast<std::size_t>(i)]), avant[i].column());
    changePersistentIndexList(avant, apres);
    Q_EMIT layoutChanged();
}

bool ModeleNoms::Positionnable() const {
    const char tri = session_.base ? session_.base->entete.TypeTri : '0';
    return !choix_ && (tri == '1' || tri == '2');
}

int ModeleNoms::Position(const QString& texte) const {
    if (montres_.empty() || !session_.base) return -1;
    return static_cast<int>(
        records::PositionDans(*session_.base, montres_, QtVersTexte(texte).octets));
}

NoOrdre ModeleNoms::Individu(int rangee) const {
    return rangee >= 0 && rangee < rowCount({}) ? montres_[static_cast<std::size_t>(rangee)]
                                                : NoOrdre{};
}

int ModeleNoms::Rangee(NoOrdre individu) const {
    const auto place = std::find(montres_.begin(), montres_.end(), individu);
    return place == montres_.end() ? -1 : static_cast<int>(place - montres_.begin());
}

int ModeleNoms::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(montres_.size());
}

int ModeleNoms::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : NbColonnes;
}

QVariant ModeleNoms::data(const QModelIndex& index, int role) const {
    const NoOrdre individu = Individu(index.row());
    if (!individu || !session_.base) return {};
    switch (role) {
        case Qt::DisplayRole:
            return Texte(individu, index.column());
        case Qt::DecorationRole:
            return Image(individu, index.column());
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return Bulle(individu, index.column());
        case Qt::TextAlignmentRole:
            return index.column() == Parents ? QVariant{Qt::AlignCenter} : QVariant{};
        default:
            return {};
    }
}

QVariant ModeleNoms::Texte(NoOrdre individu, int colonne) const {
    if (colonne == Nom) return TexteVersQt(records::NomAffiche(session_, individu));
    if (colonne == Dates) return TexteVersQt(records::DatesDeVie(session_, individu));
    if (colonne != Parents) return {};
    const bool pere{session_.base->R_PERE.LireCellule(individu)};
    const bool mere{session_.base->R_MERE.LireCellule(individu)};
    // Both known is the ordinary case and bears no mark.
    if (pere && mere) return {};
    return pere ? QStringLiteral("ox") : mere ? QStringLiteral("xo") : QStringLiteral("xx");
}

QString ModeleNoms::Bulle(NoOrdre individu, int colonne) const {
    switch (colonne) {
        case Parents: {
            const bool pere{session_.base->R_PERE.LireCellule(individu)};
            const bool mere{session_.base->R_MERE.LireCellule(individu)};
            return TexteEcran(session_, pere && mere ? message::BulleParentsConnus
                                        : pere       ? message::BullePereConnu
                                        : mere       ? message::BulleMereConnue
                                                     : message::BulleParentsInconnus);
        }
        case Sexe: {
            const char sexe = session_.base->R_SEXE.LireCellule(individu);
            return TexteEcran(session_, sexe == 'H'   ? message::SexeMasculin
                                        : sexe == 'F' ? message::SexeFeminin
                                                      : message::SexeIndetermine);
        }
        case Famille: {
            switch (FamilleDe(individu)) {
                case EtatFamille::UnionsEtEnfants:
                    return TexteEcran(session_, message::BulleUnionsEtEnfants);
                case EtatFamille::UnionSansEnfant:
                    return TexteEcran(session_, message::BulleUnionSansEnfant);
                case EtatFamille::EnfantsSansUnion:
                    return TexteEcran(session_, message::BulleEnfantsSansUnion);
                case EtatFamille::Aucune:
                    break;
            }
            return {};
        }
        default:
            return Texte(individu, colonne).toString();
    }
}

ModeleNoms::EtatFamille ModeleNoms::FamilleDe(NoOrdre individu) const {
    const bool unions = session_.base->R_MARIAG.NbElements(individu) != 0;
    const bool enfants = session_.base->R_ENFANT.NbElements(individu) != 0;
    if (unions) return enfants ? EtatFamille::UnionsEtEnfants : EtatFamille::UnionSansEnfant;
    return enfants ? EtatFamille::EnfantsSansUnion : EtatFamille::Aucune;
}

QVariant ModeleNoms::Image(NoOrdre individu, int colonne) const {
    if (colonne == Sexe) return IconeSexe(session_.base->R_SEXE.LireCellule(individu));
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
    return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

QMimeData* ModeleNoms::mimeData(const QModelIndexList& lignes) const {
    return lignes.isEmpty() ? nullptr
                            : PersonneVersMime(session_, Individu(lignes.constFirst().row()));
}

QVariant ModeleNoms::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return TitreColonne(session_, "FrmNom", "LstNoms", section);
}

}  // namespace dorvane::windows
