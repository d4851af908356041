#include "interchange/ImportGedcom.h"

#include "interchange/LecteurAnnexes.h"
#include "interchange/LecteurFamille.h"
#include "interchange/LecteurIndividu.h"
#include "interchange/MemoireImport.h"
#include "shell/FichierSur.h"
#include "shell/Parametres.h"
#include "storage/ConstruireIndex.h"
#include "storage/Disque.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvane::interchange {
namespace {

constexpr std::uint32_t PasDeProgression = 100;  ///< records between two steps of the frame

/// Shows a job of the storage floor as one more phase of the frame that is already there.
class PhaseDImport final : public storage::Avancement {
public:
    /// `progression` outlives the object.
    explicit PhaseDImport(shell::Progression& progression) : progression_{progression} {}

    void Commencer(const storage::TexteAvancement& titre,
                   const storage::TexteAvancement& /*texte*/) override {
        Phase(titre);
    }
    void Phase(const storage::TexteAvancement& texte) override {
        progression_.Phase({texte.message, std::string{texte.litteral}, {}, {}});
    }
    [[nodiscard]] bool Avancer(std::uint32_t fait, std::uint32_t total) override {
        return progression_.Avancer(fait, total);
    }
    void Terminer() override {}

private:
    shell::Progression& progression_;
};

/// The two passes over one text, already in code page 1252.
class Import {
public:
    Import(shell::Session& session, storage::Base& base, std::string_view texte, FinDeLigne fin,
           RapportImport& rapport)
        : session_{session},
          base_{base},
          texte_{texte},
          fin_{fin},
          rapport_{rapport},
          textes_{session},
          contexte_{base, textes_, rapport, pile_},
          marqueurs_{base},
          slotsIndividu_{marqueurs_},
          slotsMariage_{marqueurs_},
          liens_{contexte_},
          familles_{contexte_},
          individu_{contexte_, slotsIndividu_, liens_, {base.entete.OptPrenomUnique}},
          annexes_{contexte_, liens_},
          memoire_{familles_} {
        memoire_.Prevoir(texte.size());
    }

    /// False when the user has given up.
    [[nodiscard]] bool Executer() {
        return PremierePasse() && SecondePasse() && Trier() && Indexer();
    }

    [[nodiscard]] const EnTeteLu& EnTete() { return annexes_.EnTete(); }

private:
    struct Famille {
        std::size_t debut;    ///< 0-based offset of the line of level 0
        std::uint32_t ligne;  ///< its number
    };
    enum class Genre : std::uint8_t { Aucun, Individu, Famille, Annexe };

    [[nodiscard]] bool PremierePasse();
    void OuvrirEnregistrement(const LigneGedcom& ligne, std::size_t debut);
    void FermerEnregistrement();
    void OuvrirIndividu(const LigneGedcom& ligne);
    void OuvrirAnnexe(const LigneGedcom& ligne);
    void LireLigne(const LigneGedcom& ligne);
    void AjouterDescription();
    [[nodiscard]] bool SecondePasse();
    void LireFamille(LecteurFamille& lecteur, const Famille& famille);
    void VerifierFamilles();
    void EcrireSlots();
    [[nodiscard]] ReglesNoms Regles() const;
    [[nodiscard]] bool Trier();
    [[nodiscard]] bool Indexer();
    [[nodiscard]] bool Avancer(std::size_t ou, std::uint32_t nombre);

    shell::Session& session_;
    storage::Base& base_;
    std::string_view texte_;
    FinDeLigne fin_;
    RapportImport& rapport_;
    TextesImport textes_;
    PileEtiquettes pile_;
    ContexteImport contexte_;
    MarqueursImport marqueurs_;
    SlotsImport slotsIndividu_;
    SlotsImport slotsMariage_;
    LiensImport liens_;
    FamillesImport familles_;
    LecteurIndividu individu_;
    LecteurAnnexes annexes_;
    MemoireImport memoire_;
    ClesImport cles_;
    std::vector<Famille> debuts_;
    Genre genre_ = Genre::Aucun;
};

bool Import::Avancer(std::size_t ou, std::uint32_t nombre) {
    if (nombre % PasDeProgression != 0) return true;
    // In kilobytes: a file may be larger than a counter.
    return session_.progression.Avancer(static_cast<std::uint32_t>(ou / 1024),
                                        static_cast<std::uint32_t>(texte_.size() / 1024 + 1));
}

void Import::OuvrirIndividu(const LigneGedcom& ligne) {
    const NoOrdre n = base_.NouvelIndividu();
    if (!n) {
        contexte_.Noter(Constat::Limite, ligne);
        return;
    }
    genre_ = Genre::Individu;
    if (!ligne.cle.empty() && !cles_.individus.Noter(ligne.cle, n.valeur))
        contexte_.Noter(Constat::Doublon, ligne);
    individu_.Commencer(n);
}

void Import::OuvrirAnnexe(const LigneGedcom& ligne) {
    const CodeEtiquette code = ligne.code;
    std::uint32_t numero = 0;
    bool cleNeuve = true;
    if (code == "SOUR"_tag) {
        numero = base_.NouvelEvenement().valeur;
        cleNeuve = numero == 0 || ligne.cle.empty() || cles_.sources.Noter(ligne.cle, numero);
    } else if (code == "NOTE"_tag || code == "TITL"_tag) {
        numero = base_.NouveauDocument().valeur;
        cleNeuve = numero == 0 || ligne.cle.empty() || cles_.notes.Noter(ligne.cle, numero);
    } else if (code != "HEAD"_tag && code != "SUBM"_tag) {
        contexte_.Noter(Constat::NonRepris, ligne);
    }
    if (numero == 0 && (code == "SOUR"_tag || code == "NOTE"_tag || code == "TITL"_tag))
        contexte_.Noter(Constat::Limite, ligne);
    if (!cleNeuve) contexte_.Noter(Constat::Doublon, ligne);
    genre_ = Genre::Annexe;
    annexes_.Commencer(ligne, numero);
}

void Import::OuvrirEnregistrement(const LigneGedcom& ligne, std::size_t debut) {
    genre_ = Genre::Aucun;
    switch (ligne.code) {
        case "INDI"_tag:
            OuvrirIndividu(ligne);
            break;
        case "FAM"_tag:
            genre_ = Genre::Famille;
            debuts_.push_back({debut, ligne.numero});
            if (!ligne.cle.empty() && !cles_.familles.Noter(ligne.cle, 1))
                contexte_.Noter(Constat::Doublon, ligne);
            break;
        case "TRLR"_tag:
            rapport_.finTrouvee = true;
            break;
        default:
            OuvrirAnnexe(ligne);
    }
}

void Import::FermerEnregistrement() {
    if (genre_ == Genre::Annexe) annexes_.Terminer();
    if (genre_ == Genre::Individu) {
        individu_.Terminer();
        familles_.AjouterIndividu(individu_.Sexe());
        memoire_.AjouterIndividu(individu_.LigneNom(), individu_.AnneeNaissance(),
                                 individu_.Texte());
        const NoOrdre n{base_.entete.DernierIndividu};
        base_.R_TRI.FixerRang(n.valeur, n);
        base_.entete.NbTriIndividus = n.valeur;
    }
    genre_ = Genre::Aucun;
}

void Import::LireLigne(const LigneGedcom& ligne) {
    if (genre_ == Genre::Famille) return;
    if (!pile_.Entrer(ligne.niveau, ligne.etiquette, ligne.code)) {
        rapport_.Noter(Constat::SansParent, ligne.etiquette, ligne.numero);
        return;
    }
    if (genre_ == Genre::Individu)
        individu_.Lire(ligne);
    else if (genre_ == Genre::Annexe)
        annexes_.Lire(ligne);
    else
        contexte_.Noter(Constat::NonRepris, ligne);
}

bool Import::PremierePasse() {
    LecteurDeLignes lecteur{texte_, fin_};
    LigneGedcom ligne;
    bool continuer = true;
    while (continuer && !rapport_.finTrouvee) {
        switch (lecteur.Lire(ligne)) {
            case LecteurDeLignes::Sorte::Fin:
                continuer = false;
                break;
            case LecteurDeLignes::Sorte::Vide:
                ++rapport_.lignesVides;
                break;
            case LecteurDeLignes::Sorte::Illisible:
                rapport_.Noter(Constat::Illisible, {}, ligne.numero);
                break;
            case LecteurDeLignes::Sorte::Ligne:
                if (ligne.niveau > 0) {
                    LireLigne(ligne);
                    break;
                }
                FermerEnregistrement();
                pile_.Entrer(0, ligne.etiquette, ligne.code);
                OuvrirEnregistrement(ligne, lecteur.Debut());
                if (!Avancer(lecteur.Debut(), base_.entete.DernierIndividu)) return false;
        }
        rapport_.lignes = ligne.numero;
    }
    FermerEnregistrement();
    // What stands behind the last record is no record; the report says how much of it there is.
    while (true) {
        const LecteurDeLignes::Sorte sorte = lecteur.Lire(ligne);
        if (sorte == LecteurDeLignes::Sorte::Fin) break;
        if (sorte != LecteurDeLignes::Sorte::Vide)
            rapport_.Noter(Constat::NonRepris, "TRLR +", ligne.numero);
    }
    AjouterDescription();
    return true;
}

void Import::AjouterDescription() {
    const EnTeteLu& entete = annexes_.EnTete();
    if (entete.note.empty()) return;
    const NoDocument d = base_.NouveauDocument();
    if (!d) return;
    storage::Document document;
    document.titre = textes_.Message(967);
    document.note = storage::SansDiese(entete.note);
    base_.R_IMAGE.EcrireDoc(d, document);
}

void Import::LireFamille(LecteurFamille& lecteur, const Famille& famille) {
    LecteurDeLignes lignes{texte_, fin_, famille.debut, famille.ligne};
    LigneGedcom ligne;
    bool premiere = true;
    for (auto sorte = lignes.Lire(ligne); sorte != LecteurDeLignes::Sorte::Fin;
         sorte = lignes.Lire(ligne)) {
        if (sorte != LecteurDeLignes::Sorte::Ligne) continue;
        if (ligne.niveau == 0 && !premiere) break;
        if (!pile_.Entrer(ligne.niveau, ligne.etiquette, ligne.code)) {
            rapport_.Noter(Constat::SansParent, ligne.etiquette, ligne.numero);
            continue;
        }
        if (premiere)
            lecteur.Commencer(ligne);
        else
            lecteur.Lire(ligne);
        premiere = false;
    }
}

void Import::VerifierFamilles() {
    for (const LecteurIndividu::Reference& r : individu_.Familles())
        if (cles_.familles.Chercher(r.cle) == 0)
            rapport_.Noter(Constat::Reference,
                           std::string{r.chemin} + " @" + std::string{r.cle} + "@", r.ligne);
}

bool Import::SecondePasse() {
    session_.progression.Phase(shell::Msg(808));
    LecteurFamille lecteur{contexte_, slotsMariage_, liens_, familles_, cles_};
    std::uint32_t nombre = 0;
    for (const Famille& famille : debuts_) {
        LireFamille(lecteur, famille);
        if (lecteur.Terminer()) memoire_.AjouterUnion(lecteur.Texte());
        if (!Avancer(famille.debut, ++nombre)) return false;
    }
    VerifierFamilles();
    familles_.Ecrire();
    liens_.Ecrire(cles_);
    storage::Base& base = base_;
    for (std::uint32_t d = 1; d <= base.entete.DernierDocument; ++d)
        base.R_TRI.FixerRang(d, NoDocument{d});
    base.entete.NbTriDocuments = base.entete.DernierDocument;
    base.R_TRI.TrierDocuments();
    EcrireSlots();
    rapport_.individus = base.entete.DernierIndividu;
    rapport_.unions = base.entete.DernierMariage;
    rapport_.evenements = base.entete.DernierEvenement;
    rapport_.documents = base.entete.DernierDocument;
    return true;
}

void Import::EcrireSlots() {
    base_.entete.SlotsIndividu = slotsIndividu_.PourEnTete(base_.entete.SlotsIndividu);
    base_.entete.SlotsMariage = slotsMariage_.PourEnTete(base_.entete.SlotsMariage);
    base_.marques.ModifBase = true;
}

ReglesNoms Import::Regles() const {
    ReglesNoms regles = base_.regles;
    regles.deplacer = base_.entete.OptParticules;
    return regles;
}

bool Import::Trier() {
    const bool demander = session_.parametres.Valeur("Defaut", "Tri Import", "1") != "0";
    PhaseDImport avancement{session_.progression};
    if (demander && session_.dialogue.Confirmer(shell::Msg(1079)))
        return base_.R_TRI.TrierIndividus(memoire_, avancement);
    // A table out of order would mislead every search by rank.
    if (!memoire_.EstTriee(base_.entete.TypeTri, Regles())) base_.entete.TypeTri = '0';
    return true;
}

bool Import::Indexer() {
    std::vector<NoMotCle> types;
    for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k)
        if (base_.motsCles.LibelleType(NoMotCle{k}).indexe ||
            base_.motsCles.LibelleType(NoMotCle{k}).symbole == '|')
            types.emplace_back(k);
    PhaseDImport avancement{session_.progression};
    return storage::ConstruireIndex(base_, types, memoire_, avancement);
}

/// The text of the file in code page 1252; `octets` holds it where no conversion is needed.
std::string_view Preparer(std::string& octets, RapportImport& rapport) {
    rapport.jeu = ChoisirJeu(octets);
    std::size_t marque = rapport.jeu.marque;
    if (rapport.jeu.jeu != Jeu::Ansi) {
        const bool notre = octets.find("1 SOUR DORVANE") < 1000;
        TexteDecode decode =
            Decoder(std::string_view{octets}.substr(marque), rapport.jeu.jeu, notre);
        rapport.translitteres = decode.translitteres;
        rapport.perdus = decode.perdus;
        octets = std::move(decode.octets);
        marque = 0;
    }
    // Records end their fields with bytes 0: none may come from outside.
    if (octets.find('\0') != std::string::npos) {
        rapport.octetsNuls = static_cast<std::size_t>(std::ranges::count(octets, '\0'));
        std::ranges::replace(octets, '\0', ' ');
    }
    return std::string_view{octets}.substr(marque);
}

/// Where the base is written until it is whole.
std::filesystem::path CheminProvisoire(const std::filesystem::path& base) {
    std::filesystem::path chemin = base;
    chemin += "~imp";
    return chemin;
}

/// Gives the new base its name. The journal of a base that stood there before goes first: it
/// belongs to no one.
bool Installer(storage::Disque& disque, const std::filesystem::path& provisoire,
               const std::filesystem::path& base) {
    const std::filesystem::path journal = storage::CheminJournal(base);
    if (disque.Existe(journal) && !disque.Supprimer(journal)) return false;
    return disque.Renommer(provisoire, base) && disque.ViderDossier(base);
}

/// The submitter of the file becomes the author in the settings of the base.
void EnregistrerAuteur(shell::Session& session, const EnTeteLu& entete,
                       const std::filesystem::path& base) {
    shell::Parametres& parametres = session.parametres;
    parametres.LireParametresBase(base);
    parametres.base.personneEnCours = 1;
    parametres.base.deCujus1 = parametres.base.deCujus2 = 0;
    parametres.base.auteur = entete.auteur;
    for (std::size_t i = 0; i < parametres.base.adresse.size(); ++i)
        parametres.base.adresse[i] = i < entete.adresse.size() ? entete.adresse[i] : std::string{};
    parametres.SauverParametresBase(base);
}

}  // namespace

IssueImport ImporterGedcom(shell::Session& session, const std::filesystem::path& fichier,
                           const std::filesystem::path& base, RapportImport& rapport) {
    std::optional<std::string> octets = shell::LireTout(fichier);
    if (!octets) return IssueImport::Illisible;
    return ImporterTexte(session, std::move(*octets), base, rapport);
}

IssueImport ImporterTexte(shell::Session& session, std::string octets,
                          const std::filesystem::path& base, RapportImport& rapport) {
    const std::string_view texte = Preparer(octets, rapport);
    const std::optional<FinDeLigne> fin = ChercherFinDeLigne(texte);
    if (!fin) return IssueImport::Inexploitable;

    // Held until the end: nobody opens or replaces the base meanwhile.
    const storage::ResultatVerrou verrou = session.disque.Verrouiller(base);
    if (verrou.etat == storage::EtatVerrou::Occupe) return IssueImport::Occupee;

    const shell::CadreProgression cadre{session.progression, shell::Msg(774), shell::Msg(775)};
    const std::filesystem::path provisoire = CheminProvisoire(base);
    storage::ResultatOuverture ouverture = storage::NouvelleBase(
        session.disque, provisoire,
        {'1', session.parametres.generaux.motClePrenom, session.parametres.generaux.motCleNom});
    if (ouverture.etat != storage::Ouverture::Faite) return IssueImport::Refuse;
    ouverture.base->regles.particules = session.parametres.generaux.particules;
    Import import{session, *ouverture.base, texte, *fin, rapport};
    const bool fini = import.Executer();
    const bool ecrite = fini && ouverture.base->Fermer();
    if (!ecrite) ouverture.base.reset();
    if (!ecrite || !Installer(session.disque, provisoire, base)) {
        (void)session.disque.Supprimer(provisoire);
        return fini ? IssueImport::Refuse : IssueImport::Abandonne;
    }
    EnregistrerAuteur(session, import.EnTete(), base);
    return IssueImport::Fait;
}

}  // namespace dorvane::interchange
