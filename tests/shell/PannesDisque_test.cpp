// The life of a base on a disk that refuses, with two programs, and after a death in mid-edit.
#include "doublures/DialogueScript.h"
#include "doublures/DisqueMemoire.h"
#include "doublures/SessionEssai.h"
#include "messages/Dorvane.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <string>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::shell;
using namespace dorvane::doublures;

namespace {

namespace fs = std::filesystem;

NoOrdre Creer(storage::Base& base, const std::string& nom) {
    const NoOrdre n = base.NouvelIndividu();
    base.R_SEXE.EcrireCellule(n, Sexe::Homme);
    base.R_NOM.EcrireNom(n, nom + ";Jean;;;");
    base.R_TRI.AjouterIndividu(n);
    return n;
}

/// A session on a disk in memory, with the base "Martin" on it and open.
struct Fragile {
    SessionEssai lieux;
    storage::DisqueMemoire disque;
    DialogueScript dialogue;
    ProgressionScript progression;
    Session session{lieux.Lieux(), {dialogue, progression, lieux.horloge, lieux.ecran, disque}};
    const fs::path chemin = "/d/famille.LGD";
    const fs::path sauvegarde = "/d/famille.SAV";

    Fragile() {
        Demarrage(session);
        dialogue.fichiers.emplace_back(chemin);
        MnuNouveau(session);
        Creer(*session.base, "Martin");
        REQUIRE(MnuEnregistrer(session));
    }
    /// The operation of the disk from now that fails.
    void Casser(storage::Panne panne, int dans = 1) {
        disque.panne = panne;
        disque.panneA = disque.operations + dans;
    }
    /// Name of person 1 of the base on the disk as the next program finds it, and how many there
    /// are; "" when it is no base.
    [[nodiscard]] std::string Relire(const fs::path& base) const {
        const auto apres = disque.Survivre();
        storage::ProgressionMuette muet;
        const storage::ResultatOuverture resultat = storage::OuvrirBase(*apres, base, muet);
        if (!resultat.base) return {};
        return resultat.base->R_NOM.NomDe(NoOrdre{1}) + ' ' +
               std::to_string(resultat.base->entete.DernierIndividu);
    }
    [[nodiscard]] NoMessage DernierMessage() const {
        return dialogue.entendu.empty() ? NoMessage{} : dialogue.entendu.back().no;
    }
};

}  // namespace

TEST_CASE("A commit refused at any operation is told, and the file is as before or as meant") {
    int refus = 0;
    for (int n = 1; n < 60; ++n) {
        CAPTURE(n);
        Fragile f;
        Creer(*f.session.base, "Durand");
        f.Casser(storage::Panne::Plein, n);
        const bool fait{MnuEnregistrer(f.session)};
        if (!fait) CHECK(f.DernierMessage() == message::EnregistrementBaseEchoue);
        refus += fait ? 0 : 1;
        CHECK(f.Relire(f.chemin) == (fait ? "Martin 2" : "Martin 1"));
        CHECK(f.progression.sabliers == 0);
    }
    CHECK(refus > 5);
}

TEST_CASE_FIXTURE(Fragile,
                  "A commit refused at the close: the base stays open unless one says no") {
    Creer(*session.base, "Durand");
    Casser(storage::Panne::Plein);
    SUBCASE("closing the question keeps it, and it is saved once there is room") {
        CHECK(MnuFermer(session).cause == Cause::Arrete);
        CHECK(
            session.catalogue.Composer(dialogue.entendu.back()) ==
            "Le système refuse d'enregistrer « /d/famille.LGD ». Rien n'est encore perdu.\n"
            "Oui : tout enregistrer dans un autre fichier, puis fermer. Non : fermer et perdre ce "
            "qui a changé. Annuler : garder la base ouverte, le temps de faire de la place."_1252);
        CHECK(dialogue.questions.back().defaut == Reponse::Annuler);
        REQUIRE(session.BaseOuverte());
        CHECK(session.CheminBase == chemin);
        doublures::EcrireFichier(session.Travail() / "Critfamille.tmp", "x");
        CHECK_FALSE(Arret(session));
        CHECK(session.BaseOuverte());
        CHECK(fs::exists(session.Travail() / "Critfamille.tmp"));
        CHECK_FALSE(MnuOuvrir(session, sauvegarde));
        CHECK(session.CheminBase == chemin);
        disque.FaireDeLaPlace();
        CHECK(Arret(session));
        CHECK_FALSE(session.BaseOuverte());
        CHECK_FALSE(fs::exists(session.Travail() / "Critfamille.tmp"));
        CHECK(Relire(chemin) == "Martin 2");
    }
    SUBCASE("a copy is written over no file of the base") {
        dialogue.pendant = [this] { disque.FaireDeLaPlace(); };
        for (const char* nom : {"/d/famille.LGD", "/d/famille.LOG", "/d/famille.SAV",
                                "/d/famille.LGD.verrou", "/d/autre/../famille.LOG"}) {
            CAPTURE(nom);
            Casser(storage::Panne::Plein);
            dialogue.reponses = {Reponse::Oui, Reponse::Annuler};
            dialogue.fichiers = {nom};
            CHECK(MnuFermer(session).cause == Cause::Arrete);
            CHECK(std::ranges::count(dialogue.entendu, message::CopieNonEnregistree, &Phrase::no) ==
                  1);
            dialogue.entendu.clear();
            REQUIRE(session.BaseOuverte());
            CHECK(Relire(chemin) == "Martin 1");
            CHECK_FALSE(disque.Existe(sauvegarde));
        }
    }
    SUBCASE("no gives the changes up") {
        dialogue.reponses = {Reponse::Non};
        CHECK(MnuFermer(session).cause == Cause::Systeme);
        CHECK_FALSE(session.BaseOuverte());
        CHECK(session.CheminBase.empty());
        CHECK(Relire(chemin) == "Martin 1");
    }
    SUBCASE("yes, and a copy elsewhere has everything") {
        dialogue.reponses = {Reponse::Oui, Reponse::Oui};
        dialogue.fichiers = {chemin, "/ailleurs/copie.LGD"};
        dialogue.pendant = [this] { disque.FaireDeLaPlace(); };
        disque.panne = storage::Panne::Aucune;
        session.base->R_NOM.EcrireNom(NoOrdre{1}, "Blanc;;;;");
        Casser(storage::Panne::Plein);
        CHECK(MnuFermer(session).cause == Cause::Systeme);
        CHECK_FALSE(session.BaseOuverte());
        CHECK(Relire(chemin) == "Martin 1");
        CHECK(Relire("/ailleurs/copie.LGD") == "Blanc 2");
        CHECK_FALSE(disque.Existe("/ailleurs/copie.LGD.nouveau"));
    }
}

TEST_CASE_FIXTURE(Fragile,
                  "A commit refused at the automatic save is told, and the counter starts again") {
    session.parametres.generaux.frequenceSauvegarde = 0;
    Creer(*session.base, "Durand");
    Minuterie1(session);
    CHECK(dialogue.entendu.empty());
    Casser(storage::Panne::Plein);
    Minuterie1(session);
    CHECK(DernierMessage() == message::EnregistrementBaseEchoue);
    CHECK(session.compteurMinuterie == 0);
    CHECK(session.BaseOuverte());
    CHECK(Relire(chemin) == "Martin 1");
}

TEST_CASE_FIXTURE(Fragile, "A tick below the limit flushes the file and commits nothing") {
    Creer(*session.base, "Durand");
    const int vidages = disque.vidages;
    const std::string octets = disque.Octets(chemin);
    Minuterie1(session);
    CHECK(disque.vidages > vidages);
    CHECK(disque.Octets(chemin) == octets);
    CHECK(session.base->marques.Modifie());
}

TEST_CASE("A backup refused at any operation never leaves a part of one") {
    int refus = 0;
    for (int n = 1; n < 60; ++n) {
        CAPTURE(n);
        Fragile f;
        MnuSauvegarde(f.session);
        REQUIRE(f.Relire(f.sauvegarde) == "Martin 1");
        REQUIRE(f.session.BaseOuverte());
        Creer(*f.session.base, "Durand");
        f.Casser(storage::Panne::Refus, n);
        const bool copiee{Sauvegarder(f.session)};
        refus += copiee ? 0 : 1;
        const bool gardee = f.DernierMessage() == message::FermerSansEnregistrer;
        if (!copiee)
            CHECK((gardee || f.DernierMessage() == message::SauvegardeNonEcriteBaseFermee));
        CHECK(f.session.BaseOuverte() == (copiee || gardee));
        CHECK(f.session.CheminBase.empty() != f.session.BaseOuverte());
        const std::string base = f.Relire(f.chemin);
        CHECK((base == "Martin 1" || base == "Martin 2"));
        // A journal of the base that stays open is not for its backup.
        if (gardee && f.disque.Existe("/d/famille.LOG")) continue;
        const std::string copie = f.Relire(f.sauvegarde);
        CHECK((copie == "Martin 1" || copie == "Martin 2"));
        if (copiee) CHECK(copie == "Martin 2");
    }
    CHECK(refus > 5);
}

TEST_CASE("A restoration refused at any operation leaves the base that was there, or the backup") {
    int refus = 0;
    for (int n = 1; n < 40; ++n) {
        CAPTURE(n);
        Fragile f;
        MnuSauvegarde(f.session);
        Creer(*f.session.base, "Durand");
        MnuFermer(f.session);
        f.dialogue.fichiers.emplace_back(f.sauvegarde);
        f.dialogue.reponses = {Reponse::Oui};
        f.Casser(storage::Panne::Refus, n);
        const Issue issue = MnuRestauration(f.session);
        const std::string base = f.Relire(f.chemin);
        CHECK((base == "Martin 1" || base == "Martin 2"));
        if (base == "Martin 2") {
            ++refus;
            CHECK(f.DernierMessage() == message::SauvegardeNonRecopiee);
            CHECK(issue.cause == Cause::Systeme);
            CHECK_FALSE(f.session.BaseOuverte());
        }
        CHECK(f.Relire(f.sauvegarde) == "Martin 1");
        CHECK_FALSE(f.disque.Existe("/d/famille.LGD.nouveau"));
    }
    CHECK(refus > 1);
}

TEST_CASE_FIXTURE(Fragile,
                  "Two programs: the second is told, and gets the base once it is closed") {
    DialogueScript dialogue2;
    ProgressionScript progression2;
    Session autre{lieux.Lieux(), {dialogue2, progression2, lieux.horloge, lieux.ecran, disque}};
    Demarrage(autre);
    CHECK_FALSE(OuvrirChemin(autre, chemin));
    CHECK(dialogue2.entendu.back().no == message::BaseOccupee);
    CHECK(autre.CheminBase.empty());
    MnuFermer(session);
    CHECK(OuvrirChemin(autre, chemin));
    CHECK(autre.base->R_NOM.NomDe(NoOrdre{1}) == "Martin");
}

TEST_CASE_FIXTURE(
    SessionEssai,
    "A death in mid-edit: the next opening shows that it goes back and gives the last commit") {
    const fs::path chemin = dossier / "famille.LGD";
    constexpr std::uint32_t Nombre = 2500;
    const pid_t fils = ::fork();
    REQUIRE(fils >= 0);
    if (fils == 0) {
        Demarrage(session);
        dialogue.fichiers.emplace_back(chemin);
        MnuNouveau(session);
        storage::Base& base = *session.base;
        for (std::uint32_t n = 1; n <= Nombre; ++n)
            Creer(base, "Martin");
        if (!MnuEnregistrer(session)) ::_exit(1);
        // Little may wait in memory: blocks are overwritten long before a commit.
        base.volume.FixerTampons(1500, 9000);
        for (std::uint32_t tour = 1; tour <= 4; ++tour)
            for (std::uint32_t n = tour; n <= Nombre; n += 1000) {
                base.R_NAISS.EcrireCellule(NoOrdre{n}, "1850");
                base.R_DECES.EcrireCellule(NoOrdre{n}, "1900");
                base.R_PERE.EcrireCellule(NoOrdre{n}, NoOrdre{1});
                base.R_NOM.EcrireNom(NoOrdre{n}, "Durand;Paul;;;");
            }
        ::raise(SIGKILL);
    }
    int statut = 0;
    ::waitpid(fils, &statut, 0);
    REQUIRE(WIFSIGNALED(statut));
    REQUIRE(fs::exists(dossier / "famille.LOG"));

    Demarrage(session, chemin);
    REQUIRE(session.BaseOuverte());
    REQUIRE_FALSE(progression.titres.empty());
    CHECK(progression.titres.front().no == message::TitreRecuperationBase);
    CHECK(progression.textes.front().no == message::EtatRetourEtatPrecedent);
    CHECK(progression.cadres == 0);
    CHECK_FALSE(fs::exists(dossier / "famille.LOG"));
    CHECK(session.base->entete.DernierIndividu == Nombre);
    for (std::uint32_t n = 1; n <= Nombre; ++n) {
        CHECK(session.base->R_NOM.NomDe(NoOrdre{n}) == "Martin");
        CHECK(session.base->R_NAISS.LireCellule(NoOrdre{n}).empty());
        CHECK_FALSE(session.base->R_PERE.LireCellule(NoOrdre{n}));
    }
}
