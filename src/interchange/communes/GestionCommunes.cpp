#include "interchange/communes/GestionCommunes.h"

#include "interchange/communes/LireListeCommunes.h"
#include "messages/Communes.h"
#include "messages/Messages.h"
#include "shell/FichierSur.h"
#include "shell/RelaisAvancement.h"
#include "shell/Session.h"
#include "values/Comparaison.h"
#include "values/Phonetique.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <utility>

namespace dorvane::interchange {

namespace {

using storage::BaseCommunes;
using storage::Commune;
using storage::NoCommune;

/// Line numbers that the report of a list names; of more it tells how many there are.
constexpr std::size_t MaxLignesDites = 10;

/// Remembers that the user gave up: the work itself only says that it is not done.
class RelaisAbandon final : public storage::Avancement {
public:
    explicit RelaisAbandon(shell::Session& session)
        : relais_{session.progression, session.catalogue} {}
    void Commencer(const storage::TexteAvancement& titre,
                   const storage::TexteAvancement& texte) override {
        relais_.Commencer(titre, texte);
    }
    void Phase(const storage::TexteAvancement& texte) override { relais_.Phase(texte); }
    [[nodiscard]] bool Avancer(std::uint32_t fait, std::uint32_t total) override {
        const bool continuer = relais_.Avancer(fait, total);
        abandon = abandon || !continuer;
        return continuer;
    }
    void Terminer() override { relais_.Terminer(); }

    bool abandon = false;

private:
    shell::RelaisAvancement relais_;
};

/// All that a commune says, to know the same one again.
std::string CleEntiere(const Commune& c) {
    std::string cle;
    for (const std::string* champ :
         {&c.nom, &c.code, &c.autreCode, &c.rattachement, &c.precision, &c.commentaire})
        cle.append(*champ).append(1, '\0');
    return cle;
}

std::string Kilos(const std::filesystem::path& fichier) {
    std::error_code erreur;
    const std::uintmax_t octets = std::filesystem::file_size(fichier, erreur);
    return std::to_string(erreur ? 0 : (octets + 1023) / 1024);
}

std::string Joindre(const std::vector<std::size_t>& lignes) {
    std::string texte;
    for (std::size_t i = 0; i < std::min(lignes.size(), MaxLignesDites); ++i)
        texte.append(i == 0 ? "" : ", ").append(std::to_string(lignes[i]));
    if (lignes.size() > MaxLignesDites) texte.append(", ...");
    return texte;
}

/// A name for the copy that no file bears.
std::filesystem::path NomLibre(const std::filesystem::path& dossier,
                               const std::filesystem::path& nom) {
    std::filesystem::path libre = dossier / nom;
    std::error_code erreur;
    for (int i = 2; std::filesystem::exists(libre, erreur); ++i) {
        libre = dossier / nom.stem();
        libre += '-' + std::to_string(i);
        libre += nom.extension();
    }
    return libre;
}

}  // namespace

bool GestionCommunes::Ouvrir() {
    const std::filesystem::path& chemin = session_.parametres.generaux.fichierCommunes;
    storage::ResultatCommunes r = BaseCommunes::OuvrirCommunes(session_.disque, chemin);
    if (r.etat == storage::OuvertureCommunes::Faite) {
        chemin_ = chemin;
        base_ = std::move(r.base);
        Compter();
        return true;
    }
    session_.dialogue.Informer(
        r.etat == storage::OuvertureCommunes::Absente
            ? shell::Msg(message::FichierCommunesIntrouvable)
            : shell::Msg(message::FichierPasUneBaseDeCommunes, shell::CheminAffiche(chemin)));
    return false;
}

bool GestionCommunes::Perimee() const {
    return chemin_ != session_.parametres.generaux.fichierCommunes;
}

void GestionCommunes::Compter() {
    nombre_ = static_cast<std::uint32_t>(
        base_->ChercherDebut({}, storage::BaseCommunes::MaxCommunes).size());
}

bool GestionCommunes::Relire() {
    storage::ResultatCommunes r = BaseCommunes::OuvrirCommunes(session_.disque, chemin_);
    if (!r.base) return false;
    base_ = std::move(r.base);
    Compter();
    return true;
}

std::vector<NoCommune> GestionCommunes::Chercher(std::string_view texte, bool parSon) const {
    if (!parSon || SansBlancs(texte).empty())
        return base_->ChercherDebut(texte, BaseCommunes::MaxCommunes);
    std::vector<std::pair<std::string, NoCommune>> noms;
    for (const NoCommune n : base_->ChercherSoundex(ClePhonetique(texte)))
        noms.emplace_back(storage::CleCommune(base_->LireCommune(n).nom), n);
    std::sort(noms.begin(), noms.end());
    std::vector<NoCommune> trouvees;
    trouvees.reserve(noms.size());
    for (const auto& [nom, n] : noms)
        trouvees.push_back(n);
    return trouvees;
}

bool GestionCommunes::Changer(const std::function<Essai()>& essai) {
    for (;;) {
        auto avant = std::make_unique<BaseCommunes>(*base_);
        const Essai issue = essai();
        if (issue == Essai::Fait) {
            Compter();
            return true;
        }
        base_ = std::move(avant);
        if (issue == Essai::Abandonne) return false;
        if (issue == Essai::Ailleurs) {
            static_cast<void>(Relire());
            session_.dialogue.Informer(
                shell::Msg(message::FichierCommunesChangeAilleurs, shell::CheminAffiche(chemin_)));
            return false;
        }
        if (!ProposerCopie()) return false;
    }
}

/// The program folder of an installation belongs to the system: the user gets a file of their own.
bool GestionCommunes::ProposerCopie() {
    const shell::Lieux& lieux = session_.parametres.lieux;
    std::filesystem::path refuse = chemin_;
    if (chemin_.parent_path() == lieux.repertoire) {
        const std::filesystem::path copie = NomLibre(lieux.configuration, chemin_.filename());
        if (!session_.dialogue.Confirmer(shell::Msg(message::ProposerCopieFichierCommunes,
                                                    shell::CheminAffiche(chemin_),
                                                    shell::CheminAffiche(copie))))
            return false;
        std::error_code erreur;
        std::filesystem::create_directories(lieux.configuration, erreur);
        if (shell::CopierTout(chemin_, copie)) {
            session_.parametres.generaux.fichierCommunes = copie;
            // A refusal is told when the settings are saved at the end.
            static_cast<void>(session_.parametres.SauverParametres());
            chemin_ = copie;
            if (Relire()) return true;
        }
        refuse = copie;
    }
    session_.dialogue.Informer(
        shell::Msg(message::FichierCommunesNonEcrit, shell::CheminAffiche(refuse)));
    return false;
}

GestionCommunes::Essai GestionCommunes::EcrireBase() {
    switch (base_->EnregistrerCommunes()) {
        case storage::EcritureCommunes::Faite:
            return Essai::Fait;
        case storage::EcritureCommunes::ChangeeAilleurs:
            return Essai::Ailleurs;
        case storage::EcritureCommunes::Refusee:
            break;
    }
    return Essai::Refuse;
}

NoCommune GestionCommunes::Enregistrer(NoCommune n, const Commune& commune) {
    if (storage::NettoyerCommune(commune).nom.empty()) {
        session_.dialogue.Informer(shell::Msg(message::CommuneSansNom));
        return {};
    }
    if (storage::TropLongue(commune)) {
        session_.dialogue.Informer(shell::Msg(message::CommuneTropLongue));
        return {};
    }
    if (!n && base_->Nombre() >= BaseCommunes::MaxCommunes) {
        session_.dialogue.Informer(
            shell::Msg(message::BaseCommunesPleine, std::to_string(BaseCommunes::MaxCommunes)));
        return {};
    }
    NoCommune ecrite;
    const bool fait = Changer([&] {
        ecrite = n;
        // One that has gone meanwhile comes in again.
        if (!n || !base_->MajCommune(n, commune)) ecrite = base_->AjouterCommune(commune);
        return ecrite ? EcrireBase() : Essai::Abandonne;
    });
    return fait ? ecrite : NoCommune{};
}

bool GestionCommunes::Supprimer(NoCommune n) {
    const Commune commune = base_->LireCommune(n);
    if (commune.nom.empty()) return false;
    const std::string cle = storage::CleCommune(commune.nom);
    std::size_t rattachees = 0;
    // A homonym takes over those that name it.
    if (const auto toutes = base_->Toutes();
        toutes && base_->ChercherCommune(commune.nom).size() == 1)
        for (std::size_t i = 0; i < toutes->size(); ++i)
            if (i + 1 != n.valeur && storage::CleCommune((*toutes)[i].rattachement) == cle)
                ++rattachees;
    const std::string lieu = storage::TexteLieu(commune);
    shell::Question question;
    question.texte = rattachees == 0 ? shell::Msg(message::ConfirmerSupprimerCommune, lieu)
                                     : shell::Msg(message::ConfirmerSupprimerCommuneDeRattachement,
                                                  lieu, std::to_string(rattachees));
    question.defaut = shell::Reponse::Non;
    question.grave = true;
    if (!session_.dialogue.Confirmer(question)) return false;
    return Changer([&] {
        static_cast<void>(base_->SupprimerCommune(n));
        return EcrireBase();
    });
}

bool GestionCommunes::Reorganiser() {
    std::string avant;
    const bool fait = Changer([&] {
        // What another program has written since is kept.
        if (!Relire()) return Essai::Refuse;
        avant = Kilos(chemin_);
        RelaisAbandon relais{session_};
        if (base_->ReorganiserCommunes(relais)) return Essai::Fait;
        return relais.abandon ? Essai::Abandonne : Essai::Refuse;
    });
    if (fait)
        session_.dialogue.Informer(
            shell::Msg(message::InfoBaseCommunesReorganisee, avant, Kilos(chemin_)));
    return fait;
}

GestionCommunes::Essai GestionCommunes::Composer(const std::vector<Commune>& communes) {
    RelaisAbandon relais{session_};
    std::string octets;
    if (!storage::ComposerLgx(communes, relais, octets)) return Essai::Abandonne;
    std::filesystem::path voisin = chemin_;
    voisin += ".nouveau";
    if (!storage::EcrireLgx(session_.disque, chemin_, voisin, octets)) return Essai::Refuse;
    return Relire() ? Essai::Fait : Essai::Refuse;
}

bool GestionCommunes::ChargerListe(bool remplacer) {
    shell::DemandeFichier demande;
    demande.titre = shell::Msg(message::TitreChoisirListeCommunes);
    demande.filtre = session_.Message(message::FiltreListesCommunes);
    const auto fichier = session_.dialogue.ChoisirFichier(demande);
    if (!fichier) return false;
    const std::optional<ListeCommunes> liste = LireListeCommunes(session_.dialogue, *fichier);
    if (!liste) return false;
    const std::string nom = shell::CheminAffiche(fichier->filename());
    // The counts are those of the file as it is now.
    if (!Relire()) {
        session_.dialogue.Informer(
            shell::Msg(message::FichierPasUneBaseDeCommunes, shell::CheminAffiche(chemin_)));
        return false;
    }
    if (remplacer && nombre_ != 0) {
        shell::Question question;
        question.texte =
            shell::Msg(message::ConfirmerRemplacerCommunesParListe, std::to_string(nombre_), nom);
        question.defaut = shell::Reponse::Non;
        question.grave = true;
        if (!session_.dialogue.Confirmer(question)) return false;
    }
    std::vector<Commune> communes;
    std::set<std::string> connues;
    if (!remplacer) {
        std::optional<std::vector<Commune>> toutes = base_->Toutes();
        if (!toutes) {
            session_.dialogue.Informer(
                shell::Msg(message::FichierPasUneBaseDeCommunes, shell::CheminAffiche(chemin_)));
            return false;
        }
        communes = std::move(*toutes);
        for (const Commune& commune : communes)
            connues.insert(CleEntiere(commune));
    }
    const std::size_t avant = communes.size();
    for (const Commune& commune : liste->communes)
        if (connues.insert(CleEntiere(commune)).second) communes.push_back(commune);
    if (communes.size() > BaseCommunes::MaxCommunes) {
        session_.dialogue.Informer(
            shell::Msg(message::BaseCommunesPleine, std::to_string(BaseCommunes::MaxCommunes)));
        return false;
    }
    if (!Changer([&] { return Composer(communes); })) return false;

    const std::size_t ajoutees = communes.size() - avant;
    std::string bilan = session_.catalogue.Composer(
        shell::Msg(message::InfoCommunesAjoutees, std::to_string(ajoutees)));
    const auto dire = [&](NoMessage no, std::size_t combien, const std::string& reste) {
        if (combien == 0) return;
        bilan.append(1, '\n').append(
            session_.catalogue.Composer(shell::Msg(no, std::to_string(combien), reste)));
    };
    dire(message::InfoCommunesDejaPresentes, liste->communes.size() - ajoutees, {});
    dire(message::InfoLignesSansNom, liste->sansNom.size(), Joindre(liste->sansNom));
    dire(message::InfoLignesTropLongues, liste->tropLongues.size(), Joindre(liste->tropLongues));
    dire(message::ListeCommunesHorsJeuDeCaracteres, liste->remplaces, {});
    session_.dialogue.Informer(shell::Litteral(bilan));
    return true;
}

}  // namespace dorvane::interchange
