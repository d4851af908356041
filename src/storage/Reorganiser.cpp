// The new file: the fixed zone, the overflow zones if there are any, then record after record and
// block after block in the order of the phases. The header comes last: until then the file bears no
// version mark and is no base.
#include "storage/Reorganiser.h"

#include "messages/Messages.h"
#include "storage/CopieIndex.h"
#include "storage/ParcoursReorganisation.h"
#include "storage/Renumerotation.h"
#include "values/Octets.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t FinZoneFixe = 3088;
constexpr std::uint32_t FinAvantSuites = 3572;
constexpr std::uint32_t TailleSuiteIndividus = 1664;
constexpr std::uint32_t TailleSuiteIndex = 384;
constexpr std::uint32_t TailleSuiteMariages = 640;

constexpr std::size_t TailleTeteEvt = 20;
constexpr std::uint32_t TailleTeteDoc = 4;
// Where the readers give a text up that has no end.
constexpr std::size_t MaxDescription = 32100;
constexpr std::size_t MaxFicheDoc = 32028;
constexpr std::size_t MaxNoteDoc = 32050;
constexpr std::string_view FinDeListe{"\0\0", 2};

/// A year as its cell holds it: reading has dropped the blanks behind it.
std::string CelluleEntiere(std::string annee) {
    annee.resize(4, ' ');
    return annee;
}

class Copie {
public:
    Copie(Base& source, Base& cible, Progression& progression)
        : s_{source},
          c_{cible},
          progression_{progression},
          index_{source, cible},
          parcours_{source, cible, progression},
          numeros_{source, index_, parcours_, progression} {}

    IssueReorganisation Faire(BilanReorganisation& bilan) {
        const bool fait = numeros_.Faire(bilan) && Preparer() && index_.EcrireTypes() &&
                          CopierIndex() && CopierIndividus() && CopierMariages() &&
                          CopierDocuments() && CopierEvenements();
        if (!fait) return parcours_.Issue();
        EcrireTris();
        return c_.Enregistrer() ? IssueReorganisation::Faite : IssueReorganisation::Refusee;
    }

private:
    /// Header and overflow zones: the next allocation comes behind them.
    bool Preparer() {
        progression_.Phase(Litteral("Recopie fichier"_1252));
        const EnTete& ancien = s_.entete;
        EnTete& nouveau = c_.entete;
        nouveau.TypeTri = ancien.TypeTri;
        nouveau.TypePresentation = ancien.TypePresentation;
        nouveau.OptPrenomUnique = ancien.OptPrenomUnique;
        nouveau.OptParticules = ancien.OptParticules;
        nouveau.OptOrigine97 = ancien.OptOrigine97;
        nouveau.LibellesNeutres = true;
        nouveau.SlotsIndividu = ancien.SlotsIndividu;
        nouveau.SlotsMariage = ancien.SlotsMariage;
        nouveau.DocBase = NoDocument{Nouveau(numeros_.carteDocuments, ancien.DocBase.valeur)};
        nouveau.DernierIndividu = ancien.DernierIndividu;
        nouveau.DernierMariage = static_cast<std::uint32_t>(numeros_.mariages.size());
        nouveau.DernierDocument = static_cast<std::uint32_t>(numeros_.documents.size());
        nouveau.DernierEvenement = static_cast<std::uint32_t>(numeros_.evenements.size());
        nouveau.NbIndex = index_.Nombre();
        const auto reserver = [this](bool besoin, Position& position, std::uint32_t taille) {
            if (!besoin) return;
            if (c_.volume.FinFichier() < FinAvantSuites)
                c_.volume.Ajouter(std::string(FinAvantSuites - FinZoneFixe, '\0'));
            position = c_.volume.Ajouter(std::string(taille, '\0'));
        };
        reserver(nouveau.DernierIndividu > SeuilSuite, nouveau.PosSuiteIndividus,
                 TailleSuiteIndividus);
        reserver(nouveau.NbIndex > SeuilSuiteIndex, nouveau.PosSuiteIndex, TailleSuiteIndex);
        reserver(nouveau.DernierMariage > SeuilSuite, nouveau.PosSuiteMariages,
                 TailleSuiteMariages);
        c_.marques.ModifBase = true;
        progression_.Phase(Litteral("Recopie Mots-Clés"_1252));
        return true;
    }

    bool CopierIndex() {
        return parcours_.Parcourir("Recopie Index"_1252, index_.Nombre(),
                                   [&](std::uint32_t e) { index_.Copier(NoIndex{e}); });
    }

    bool CopierIndividus() {
        return parcours_.Parcourir("Recopie Individus"_1252, s_.entete.DernierIndividu,
                                   [&](std::uint32_t i) {
                                       const NoOrdre n{i};
                                       CopierCellules(n);
                                       CopierTextes(n);
                                       CopierListes(n);
                                   });
    }
    // A cell that is empty is not written: a block of such cells costs no space.
    void CopierCellules(NoOrdre n) {
        if (const Sexe sexe = s_.R_SEXE.LireCellule(n); sexe != Sexe::Vide)
            c_.R_SEXE.EcrireCellule(n, sexe);
        CopierAnnee(s_.R_NAISS, c_.R_NAISS, n);
        CopierAnnee(s_.R_DECES, c_.R_DECES, n);
        if (const NoOrdre pere = s_.R_PERE.LireCellule(n)) c_.R_PERE.EcrireCellule(n, pere);
        if (const NoOrdre mere = s_.R_MERE.LireCellule(n)) c_.R_MERE.EcrireCellule(n, mere);
    }
    template <class Colonne, class Numero>
    static void CopierAnnee(Colonne& de, Colonne& vers, Numero n) {
        std::string annee = de.LireCellule(n);
        if (!annee.empty()) vers.EcrireCellule(n, CelluleEntiere(std::move(annee)));
    }
    template <class Colonne, class Numero>
    void CopierTexte(Colonne& de, Colonne& vers, Numero ancien, Numero nouveau) {
        const std::string_view texte = de.LireTexte(ancien);
        if (!texte.empty()) vers.EcrireCellule(nouveau, c_.volume.Ajouter(texte, "#"));
    }
    void CopierTextes(NoOrdre n) {
        CopierTexte(s_.R_NOM, c_.R_NOM, n, n);
        CopierTexte(s_.R_TEXTE, c_.R_TEXTE, n, n);
    }
    void CopierListes(NoOrdre n) {
        CopierNumeros(s_.R_ENFANT, c_.R_ENFANT, n, nullptr);
        CopierNumeros(s_.R_MARIAG, c_.R_MARIAG, n, &numeros_.carteMariages);
        CopierNumeros(s_.R_LSTIMG, c_.R_LSTIMG, n, &numeros_.carteDocuments);
        CopierPaires(s_.R_LIEN, c_.R_LIEN, n, nullptr);
        CopierPaires(s_.R_LSTEVT, c_.R_LSTEVT, n, &numeros_.carteEvenements);
    }
    void EcrireListe(ColonneListe& vers, NoOrdre n) {
        if (!entrees_.empty()) vers.EcrireCellule(n, c_.volume.Ajouter(entrees_, FinDeListe));
    }
    void CopierNumeros(ColonneListe& de, ColonneListe& vers, NoOrdre n, const Carte* carte) {
        entrees_ = de.ListeDe(n);
        if (carte != nullptr) {
            std::size_t fin = 0;
            for (std::size_t i = 0; i < entrees_.size(); i += 2) {
                const std::uint32_t nouveau =
                    Nouveau(*carte, Chaine2VersNum(std::string_view{entrees_}.substr(i, 2)));
                if (nouveau == 0) continue;
                entrees_.replace(fin, 2, NumVersChaine2(nouveau));
                fin += 2;
            }
            entrees_.resize(fin);
        }
        EcrireListe(vers, n);
    }
    template <class Liste>
    void CopierPaires(Liste& de, Liste& vers, NoOrdre n, const Carte* carte) {
        entrees_.clear();
        const std::size_t nombre = de.NbElements(n);
        for (std::size_t k = 1; k <= nombre; ++k) {
            const std::uint32_t ancien = de.ElementListe(n, k).valeur;
            const std::uint32_t nouveau = carte == nullptr ? ancien : Nouveau(*carte, ancien);
            if (nouveau != 0)
                entrees_ += NumVersChaine2(nouveau) +
                            NumVersChaine4(Partager(de.TexteElement(n, k)).valeur);
        }
        EcrireListe(vers, n);
    }
    /// Labels and roles are few and never change in place: each stands once in the new file.
    Position Partager(const std::string& texte) {
        Position& position = partages_[texte];
        if (!position) position = c_.volume.Ajouter(texte, "#");
        return position;
    }

    bool CopierMariages() {
        return parcours_.Parcourir(
            "Recopie Mariages"_1252, numeros_.mariages.size(), [&](std::uint32_t i) {
                const NoMariage nouveau{i};
                const NoMariage ancien{numeros_.mariages[i - 1]};
                c_.R_EPOUX.EcrireCellule(nouveau, s_.R_EPOUX.LireCellule(ancien));
                if (const NoOrdre epouse = s_.R_EPOUSE.LireCellule(ancien))
                    c_.R_EPOUSE.EcrireCellule(nouveau, epouse);
                if (std::string debut = s_.R_DEBMAR.LireCellule(ancien); !debut.empty())
                    c_.R_DEBMAR.EcrireCellule(nouveau, CelluleEntiere(std::move(debut)));
                if (std::string fin = s_.R_FINMAR.LireCellule(ancien); !fin.empty())
                    c_.R_FINMAR.EcrireCellule(nouveau, CelluleEntiere(std::move(fin)));
                CopierTexte(s_.R_TXTMAR, c_.R_TXTMAR, ancien, nouveau);
            });
    }

    /// Appends the text at `debut` as it stands; 0 for none. `*fini`: it had an end.
    Position Recopier(Position debut, std::size_t limite, bool* fini = nullptr) {
        if (!debut) return {};
        const std::string texte = s_.volume.LireTexte(debut, limite, fini);
        if (texte.empty() || (fini != nullptr && !*fini)) return {};
        return c_.volume.Ajouter(texte, "#");
    }

    bool CopierDocuments() {
        return parcours_.Parcourir(
            "Recopie Documents"_1252, numeros_.documents.size(), [&](std::uint32_t i) {
                const Position fiche =
                    s_.R_IMAGE.LireCellule(NoDocument{numeros_.documents[i - 1]});
                std::string tete(TailleTeteDoc, '\0');
                s_.volume.Lire(fiche, tete);
                bool fini = false;
                const std::string texte =
                    s_.volume.LireTexte(Position{fiche.valeur + TailleTeteDoc}, MaxFicheDoc, &fini);
                bool noteFinie = true;
                Position note{};
                if (fini) note = Recopier(Position{Chaine4VersNum(tete)}, MaxNoteDoc, &noteFinie);
                const bool bon = fini && noteFinie;
                const std::string debut =
                    NumVersChaine4(note.valeur) + (bon ? texte : std::string(1, '\0'));
                c_.R_IMAGE.EcrireCellule(NoDocument{i}, c_.volume.Ajouter(debut, "#"));
            });
    }

    bool CopierEvenements() {
        return parcours_.Parcourir(
            "Recopie Evénements"_1252, numeros_.evenements.size(), [&](std::uint32_t i) {
                const NoEvenement ancien{numeros_.evenements[i - 1]};
                std::string tete(TailleTeteEvt, '\0');
                s_.volume.Lire(s_.R_EVT.LireCellule(ancien), tete);
                const auto champ = [&tete](std::size_t rang) {
                    return Position{Chaine4VersNum(std::string_view{tete}.substr(rang * 4, 4))};
                };
                bool fini = false;
                const Position note = Recopier(champ(1), MaxTexte);
                const Position liens = CopierLiensEvt(ancien);
                const Position documents = CopierDocumentsEvt(ancien);
                const Position description = Recopier(champ(4), MaxDescription, &fini);
                std::string nouvelle = tete.substr(0, 4);
                for (const Position position : {note, liens, documents, description})
                    nouvelle += NumVersChaine4(position.valeur);
                c_.R_EVT.EcrireCellule(NoEvenement{i}, c_.volume.Ajouter(nouvelle));
            });
    }
    Position CopierLiensEvt(NoEvenement e) {
        entrees_.clear();
        for (const LienEvenement& lien : s_.R_EVT.Liens(e))
            entrees_ +=
                NumVersChaine2(lien.individu.valeur) + NumVersChaine4(Partager(lien.role).valeur);
        return entrees_.empty() ? Position{} : c_.volume.Ajouter(entrees_, FinDeListe);
    }
    Position CopierDocumentsEvt(NoEvenement e) {
        entrees_.clear();
        for (const NoDocument d : s_.R_EVT.Documents(e))
            if (const std::uint32_t nouveau = Nouveau(numeros_.carteDocuments, d.valeur);
                nouveau != 0)
                entrees_ += NumVersChaine2(nouveau);
        return entrees_.empty() ? Position{} : c_.volume.Ajouter(entrees_, FinDeListe);
    }

    /// Documents and events are numbered by rank: their tables count up from 1.
    void EcrireTris() {
        const auto suite = [](std::size_t nombre) {
            std::vector<std::uint16_t> numeros(nombre);
            for (std::size_t i = 0; i < nombre; ++i)
                numeros[i] = static_cast<std::uint16_t>(i + 1);
            return numeros;
        };
        c_.entete.NbTriIndividus = static_cast<std::uint32_t>(numeros_.individus.size());
        c_.entete.NbTriDocuments = static_cast<std::uint32_t>(numeros_.documents.size());
        c_.entete.NbTriEvenements = static_cast<std::uint32_t>(numeros_.evenements.size());
        c_.R_TRI.individus.Remplacer(numeros_.individus);
        c_.R_TRI.documents.Remplacer(suite(numeros_.documents.size()));
        c_.R_TRI.evenements.Remplacer(suite(numeros_.evenements.size()));
        c_.marques.ModifTriIndividus = c_.marques.ModifTriDocuments =
            c_.marques.ModifTriEvenements = true;
    }

    Base& s_;
    Base& c_;
    Progression& progression_;
    CopieIndex index_;
    ParcoursReorganisation parcours_;
    Renumerotation numeros_;
    std::unordered_map<std::string, Position> partages_;
    std::string entrees_;
};

/// The file opens, is as long as it should be and bears the header that was written.
bool Relire(Disque& disque, const std::filesystem::path& chemin, const std::string& entete,
            std::uint64_t taille) {
    const std::unique_ptr<Fichier> fichier = disque.Ouvrir(chemin, ModeOuverture::LectureSeule);
    if (!fichier || fichier->Taille() != taille) return false;
    std::string lu(TailleEnTete, '\0');
    return fichier->Lire(Position{1}, lu) == TailleEnTete && lu == entete && !fichier->EnDefaut();
}

}  // namespace

BilanReorganisation ReorganiserVers(Disque& disque, Base& source, const std::filesystem::path& vers,
                                    Progression& progression) {
    BilanReorganisation bilan;
    bilan.tailleAvant = source.volume.TailleDisque();
    std::unique_ptr<Fichier> fichier = disque.Ouvrir(vers, ModeOuverture::Creer);
    if (!fichier) return bilan;
    const CadreProgression cadre{progression, Msg(message::TitreReorganisationBase),
                                 Litteral("Contrôle Documents"_1252)};
    {
        auto volume = std::make_unique<Volume>(disque, std::move(fichier), vers, FinZoneFixe, true);
        Base cible{disque, vers, nullptr, std::move(volume)};
        cible.InitColonnes();
        bilan.issue = Copie{source, cible, progression}.Faire(bilan);
        bilan.tailleApres = cible.volume.FinFichier();
        const std::string entete = ComposerEnTete(cible.entete, cible.volume.FinFichier());
        // What could not be read was copied as nothing.
        if (source.EnDefaut() || (bilan.issue == IssueReorganisation::Faite &&
                                  !Relire(disque, vers, entete, bilan.tailleApres)))
            bilan.issue = IssueReorganisation::Refusee;
    }
    if (bilan.issue == IssueReorganisation::Faite) disque.DonnerDroits(vers, source.Chemin());
    if (bilan.issue == IssueReorganisation::Faite)
        progression.Phase(Litteral("Réorganisation terminée"_1252));
    else
        static_cast<void>(disque.Supprimer(vers));
    return bilan;
}

}  // namespace dorvane::storage
