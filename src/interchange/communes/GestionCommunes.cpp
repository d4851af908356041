#include "interchange/communes/GestionCommunes.h"

#include "interchange/communes/LireListeCommunes.h"
#include "messages/Communes.h"
#include "messages/Messages.h"
#include "shell/FichierSur.h"
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

using shell::Issue;
using storage::BaseCommunes;
using storage::Commune;
using storage::NoCommune;

/// Line numbers that the report of a list names; of more it tells how many there are.
constexpr std::size_t MaxLignesDites = 10;

/// Told.
Issue RefuserFichier(shell::Session& session, const std::filesystem::path& chemin) {
    return Dire(session.dialogue, Issue::Refusee(shell::Msg(message::FichierPasUneBaseDeCommunes,
                                                            shell::CheminAffiche(chemin))));
}

/// Told.
Issue RefuserNombre(shell::Session& session) {
    return Dire(session.dialogue,
                Issue::Refusee(shell::Msg(message::BaseCommunesPleine,
                                          std::to_string(BaseCommunes::MaxCommunes))));
}

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

shell::Issue GestionCommunes::Ouvrir() {
    const std::filesystem::path& chemin = session_.parametres.generaux.fichierCommunes;
    storage::ResultatCommunes r = BaseCommunes::OuvrirCommunes(session_.disque, chemin);
    if (r.etat == storage::OuvertureCommunes::Absente)
        return Dire(session_.dialogue,
                    Issue::ParSysteme(shell::Msg(message::FichierCommunesIntrouvable)));
    if (r.etat != storage::OuvertureCommunes::Faite) return RefuserFichier(session_, chemin);
    chemin_ = chemin;
    base_ = std::move(r.base);
    Compter();
    return Issue::Faite();
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

Issue GestionCommunes::Changer(const std::function<Issue()>& essai) {
    for (;;) {
        auto avant = std::make_unique<BaseCommunes>(*base_);
        Issue issue = essai();
        if (issue) {
            Compter();
            return issue;
        }
        base_ = std::move(avant);
        if (issue.cause == shell::Cause::Refuse) static_cast<void>(Relire());
        if (issue.cause != shell::Cause::Systeme) return Dire(session_.dialogue, std::move(issue));
        if (Issue copiee = ProposerCopie(); !copiee) return copiee;
    }
}

/// The program folder of an installation belongs to the system: the user gets a file of their own.
Issue GestionCommunes::ProposerCopie() {
    const shell::Lieux& lieux = session_.parametres.lieux;
    std::filesystem::path refuse = chemin_;
    if (chemin_.parent_path() == lieux.repertoire) {
        const std::filesystem::path copie = NomLibre(lieux.configuration, chemin_.filename());
        if (!session_.dialogue.Confirmer(shell::Msg(message::ProposerCopieFichierCommunes,
                                                    shell::CheminAffiche(chemin_),
                                                    shell::CheminAffiche(copie))))
            return Issue::Arretee();
        std::error_code erreur;
        std::filesystem::create_directories(lieux.configuration, erreur);
        if (shell::CopierTout(chemin_, copie)) {
            session_.parametres.generaux.fichierCommunes = copie;
            // A refusal is told when the settings are saved at the end.
            static_cast<void>(session_.parametres.SauverParametres());
            chemin_ = copie;
            if (Relire()) return Issue::Faite();
        }
        refuse = copie;
    }
    return Dire(session_.dialogue, Issue::ParSysteme(shell::Msg(message::FichierCommunesNonEcrit,
                                                                shell::CheminAffiche(refuse))));
}

Issue GestionCommunes::IssueDe(storage::EcritureCommunes ecriture) const {
    switch (ecriture) {
        case storage::EcritureCommunes::Faite:
            return Issue::Faite();
        case storage::EcritureCommunes::ChangeeAilleurs:
            return Issue::Refusee(
                shell::Msg(message::FichierCommunesChangeAilleurs, shell::CheminAffiche(chemin_)));
        case storage::EcritureCommunes::Abandonnee:
            return Issue::Arretee();
        case storage::EcritureCommunes::Refusee:
            break;
    }
    return Issue::ParSysteme();
}

Issue GestionCommunes::EcrireBase() {
    return IssueDe(base_->EnregistrerCommunes());
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
        static_cast<void>(RefuserNombre(session_));
        return {};
    }
    NoCommune ecrite;
    const Issue issue = Changer([&] {
        ecrite = n;
        // One that has gone meanwhile comes in again.
        if (!n || !base_->MajCommune(n, commune)) ecrite = base_->AjouterCommune(commune);
        return ecrite ? EcrireBase() : Issue::Arretee();
    });
    return issue ? ecrite : NoCommune{};
}

Issue GestionCommunes::Supprimer(NoCommune n) {
    const Commune commune = base_->LireCommune(n);
    if (commune.nom.empty()) return Issue::Refusee();
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
    if (!session_.dialogue.Confirmer(question)) return Issue::Arretee();
    return Changer([&] {
        static_cast<void>(base_->SupprimerCommune(n));
        return EcrireBase();
    });
}

Issue GestionCommunes::Reorganiser() {
    std::string avant;
    Issue issue = Changer([&] {
        // What another program has written since is kept.
        if (!Relire()) return Issue::ParSysteme();
        avant = Kilos(chemin_);
        return IssueDe(base_->ReorganiserCommunes(session_.progression));
    });
    if (issue)
        session_.dialogue.Informer(
            shell::Msg(message::InfoBaseCommunesReorganisee, avant, Kilos(chemin_)));
    return issue;
}

Issue GestionCommunes::Composer(const std::vector<Commune>& communes) {
    std::string octets;
    if (!storage::ComposerLgx(communes, session_.progression, octets)) return Issue::Arretee();
    std::filesystem::path voisin = chemin_;
    voisin += ".nouveau";
    if (!storage::EcrireLgx(session_.disque, chemin_, voisin, octets)) return Issue::ParSysteme();
    return Relire() ? Issue::Faite() : Issue::ParSysteme();
}

Issue GestionCommunes::ChargerListe(bool remplacer) {
    shell::DemandeFichier demande;
    demande.titre = shell::Msg(message::TitreChoisirListeCommunes);
    demande.filtre = session_.Message(message::FiltreListesCommunes);
    const auto fichier = session_.dialogue.ChoisirFichier(demande);
    if (!fichier) return Issue::Arretee();
    ListeCommunes liste;
    if (Issue lue = Dire(session_.dialogue, LireListeCommunes(*fichier, liste)); !lue) return lue;
    const std::string nom = shell::CheminAffiche(fichier->filename());
    // The counts are those of the file as it is now.
    if (!Relire()) return RefuserFichier(session_, chemin_);
    if (remplacer && nombre_ != 0) {
        shell::Question question;
        question.texte =
            shell::Msg(message::ConfirmerRemplacerCommunesParListe, std::to_string(nombre_), nom);
        question.defaut = shell::Reponse::Non;
        question.grave = true;
        if (!session_.dialogue.Confirmer(question)) return Issue::Arretee();
    }
    std::vector<Commune> communes;
    std::set<std::string> connues;
    if (!remplacer) {
        std::optional<std::vector<Commune>> toutes = base_->Toutes();
        if (!toutes) return RefuserFichier(session_, chemin_);
        communes = std::move(*toutes);
        for (const Commune& commune : communes)
            connues.insert(CleEntiere(commune));
    }
    const std::size_t avant = communes.size();
    for (const Commune& commune : liste.communes)
        if (connues.insert(CleEntiere(commune)).second) communes.push_back(commune);
    if (communes.size() > BaseCommunes::MaxCommunes) return RefuserNombre(session_);
    Issue issue = Changer([&] { return Composer(communes); });
    if (!issue) return issue;

    const std::size_t ajoutees = communes.size() - avant;
    std::string bilan = session_.catalogue.Composer(
        shell::Msg(message::InfoCommunesAjoutees, std::to_string(ajoutees)));
    const auto dire = [&](NoMessage no, std::size_t combien, const std::string& reste) {
        if (combien == 0) return;
        bilan.append(1, '\n').append(
            session_.catalogue.Composer(shell::Msg(no, std::to_string(combien), reste)));
    };
    dire(message::InfoCommunesDejaPresentes, liste.communes.size() - ajoutees, {});
    dire(message::InfoLignesSansNom, liste.sansNom.size(), Joindre(liste.sansNom));
    dire(message::InfoLignesTropLongues, liste.tropLongues.size(), Joindre(liste.tropLongues));
    dire(message::ListeCommunesHorsJeuDeCaracteres, liste.remplaces, {});
    session_.dialogue.Informer(shell::Litteral(bilan));
    return issue;
}

}  // namespace dorvane::interchange
