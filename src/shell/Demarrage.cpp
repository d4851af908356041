#include "shell/Demarrage.h"

#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view LangueParDefaut = "Français";

fs::path FichierLangue(const Session& session, std::string_view nom) {
    return session.parametres.lieux.repertoire / fs::path{std::string{nom} + ".mes"};
}

/// Opens the catalogue of the language, or the French one when it is missing.
void OuvrirCatalogue(Session& session) {
    std::string& langue = session.parametres.generaux.langue;
    if (!session.catalogue.Ouvrir(FichierLangue(session, langue)) && langue != LangueParDefaut) {
        langue = LangueParDefaut;
        session.catalogue.Ouvrir(FichierLangue(session, langue));
    }
    session.AppliquerReglages();
}

void DireEtat(Session& session, Magasin::Etat etat) {
    if (etat == Magasin::Etat::Abime)
        session.dialogue.Informer(
            Msg(message::ReglagesAbimes, CheminAffiche(session.parametres.magasin.MisDeCote())));
    if (etat == Magasin::Etat::Illisible) {
        session.dialogue.Informer(Msg(message::ReglagesIllisibles));
        session.sansReglages = true;
    }
}

bool PeutEcrireDans(const fs::path& dossier) {
    if (dossier.empty()) return false;
    const fs::path essai = dossier / "x.tmp";
    const int no = open(essai.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (no < 0) return false;
    close(no);
    unlink(essai.c_str());
    return true;
}

/// A working folder that cannot be written is replaced without a word.
void EssayerTravail(Session& session) {
    fs::path& travail = session.parametres.generaux.travail;
    if (PeutEcrireDans(travail)) return;
    const fs::path temp = session.parametres.DossierTemp();
    if (temp.empty()) {
        session.dialogue.Informer(Msg(message::AucunDossierDeTravail));
        return;
    }
    travail = temp;
    static_cast<void>(session.parametres.SauverTravail());
}

}  // namespace

void Demarrage(Session& session, const fs::path& fichier) {
    const Magasin::Etat etat = session.parametres.ChargerParametres();
    OuvrirCatalogue(session);
    DireEtat(session, etat);
    EssayerTravail(session);
    session.TypeTri = TypeTri::Naissance;
    session.ecran.Actualiser();
    if (!fichier.empty()) OuvrirFichierDepose(session, fichier);
}

bool Arret(Session& session) {
    const fs::path temporaires[] = {FichierTemporaire(session, "Crit"),
                                    FichierTemporaire(session, "Suit")};
    const bool aSupprimer = !session.CheminBase.empty();
    Clore(session);
    if (session.base) return false;
    if (!session.parametres.SauverParametres() && !session.sansReglages) {
        session.sansReglages = true;
        session.dialogue.Informer(Msg(message::ReglagesNonEnregistres));
    }
    std::error_code erreur;
    if (aSupprimer)
        for (const fs::path& temporaire : temporaires)
            fs::remove(temporaire, erreur);
    return true;
}

bool ConfirmerSortie(Session& session) {
    return CommandePermise(session) &&
           session.dialogue.Confirmer(
               Question{Msg(message::ConfirmerQuitterDorvane), {}, Boutons::OuiNonAnnuler});
}

void OuvrirFichierDepose(Session& session, const fs::path& chemin) {
    const std::string extension = ExtensionDe(chemin);
    const bool base = extension == ".lgd";
    if (!base && extension != ".lgr" && extension != ".ged") return;
    if (!session.disque.Existe(chemin)) return;
    if (base)
        MnuOuvrir(session, chemin);
    else if (session.importer)
        session.importer(chemin);
}

std::vector<Langue> LanguesOffertes(const Session& session) {
    std::vector<Langue> langues;
    std::error_code erreur;
    for (fs::directory_iterator i{session.parametres.lieux.repertoire, erreur}, fin;
         !erreur && i != fin; i.increment(erreur)) {
        if (ExtensionDe(i->path()) != ".mes") continue;
        const std::string nom = i->path().stem().native();
        // The caption may differ from the name on disk; only the name opens the file.
        std::string libelle = Utf8VersTexte(nom).octets;
        if (!libelle.empty()) libelle = libelle.substr(0, 1) + EnMinuscules(libelle.substr(1));
        langues.push_back({nom, TexteVersUtf8(libelle), nom == session.parametres.generaux.langue});
    }
    std::sort(langues.begin(), langues.end(),
              [](const Langue& a, const Langue& b) { return a.nom < b.nom; });
    return langues;
}

bool ChoisirLangue(Session& session, const std::string& nom) {
    std::error_code erreur;
    if (!fs::is_regular_file(FichierLangue(session, nom), erreur)) return false;
    session.parametres.generaux.langue = nom;
    OuvrirCatalogue(session);
    return true;
}

}  // namespace dorvane::shell
