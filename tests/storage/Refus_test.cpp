// What the system refuses for a while, and what lies beside a base that is not its own.
#include "storage/Essai.h"
#include "storage/Reorganiser.h"
#include "values/Octets.h"

using namespace dorvane;
using namespace dorvane::storage;

namespace {

struct Famille : Essai {
    Famille() {
        Ajouter("avant", 40);
        REQUIRE(base->Enregistrer());
    }
    void Ajouter(const std::string& nom, std::uint32_t nombre) const {
        for (std::uint32_t i = 0; i < nombre; ++i)
            Creer(nom + std::to_string(i) + ";;;;", "18" + std::to_string(10 + i % 80));
        for (std::uint32_t n = 1; n <= 40; ++n)
            base->R_TEXTE.EcrireTexte(NoOrdre{n}, nom + std::string(500, 't'));
    }
    [[nodiscard]] static std::string Tout(Base& b) {
        std::string tout;
        for (NoOrdre n{1}; n.valeur <= b.entete.DernierIndividu; ++n.valeur) {
            tout += b.R_NOM.LireTexte(n);
            tout += b.R_NAISS.LireCellule(n);
            tout += b.R_TEXTE.LireTexte(n);
            tout += '\n';
        }
        for (const std::uint16_t n : b.R_TRI.individus.Numeros())
            tout += std::to_string(n) + ' ';
        return tout;
    }
    void Remplir(int dans) const {
        disque->panne = Panne::Plein;
        disque->panneA = disque->operations + dans;
    }
    void Relire() {
        base.reset();
        Ouvrir();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Famille,
                  "A refused commit loses nothing: once there is room the next one has all") {
    base->volume.FixerTampons(4000, 4000);
    bool refuse = true;
    int rattrapes = 0;
    int copies = 0;
    for (int n = 1; refuse; ++n) {
        CAPTURE(n);
        Remplir(n);
        Ajouter("pendant" + std::to_string(n), 3);
        const std::string attendu = Tout(*base);
        refuse = !base->Enregistrer();
        if (refuse) {
            CHECK(base->EnDefaut());
            CHECK(Tout(*base) == attendu);
            CHECK_FALSE(base->Enregistrer());
            Ajouter("ensuite", 1);
        }
        const std::string complet = Tout(*base);
        disque->FaireDeLaPlace();
        disque->panne = Panne::Aucune;
        if (base->Enregistrer()) {
            CHECK_FALSE(base->EnDefaut());
            CHECK_FALSE(disque->Existe(CheminLog));
            ++rattrapes;
        } else {
            // A flush of the base itself had failed: what the disk holds is unknown, a copy is not.
            REQUIRE(base->EnregistrerCopie(*disque, "copie.LGD"));
            base.reset();
            REQUIRE(disque->Supprimer(CheminLog));
            REQUIRE(disque->Renommer("copie.LGD", Chemin));
            ++copies;
        }
        Relire();
        CHECK(Tout(*base) == complet);
        base->volume.FixerTampons(4000, 4000);
    }
    CHECK(rattrapes > 5);
    CHECK(copies == 1);
}

TEST_CASE_FIXTURE(Famille, "A refused commit and a death: the file is the commit before") {
    base->volume.FixerTampons(4000, 4000);
    const std::string avant = Tout(*base);
    for (int n = 1; n < 12; ++n) {
        CAPTURE(n);
        const auto autre = disque->Survivre();
        autre->panne = Panne::Plein;
        autre->panneA = n;
        const ResultatOuverture ouverte = OuvrirBase(*autre, Chemin, muet);
        REQUIRE(ouverte.base);
        ouverte.base->volume.FixerTampons(4000, 4000);
        for (std::uint32_t i = 1; i <= 40; ++i)
            ouverte.base->R_TEXTE.EcrireTexte(NoOrdre{i}, std::string(900, 'p'));
        static_cast<void>(ouverte.base->Enregistrer());
        static_cast<void>(ouverte.base->Enregistrer());
        const auto apres = autre->Survivre();
        const ResultatOuverture relue = OuvrirBase(*apres, Chemin, muet);
        REQUIRE(relue.base);
        if (ouverte.base->EnDefaut()) CHECK(Tout(*relue.base) == avant);
    }
}

TEST_CASE_FIXTURE(Famille, "A copy elsewhere has all that a refused commit could not write") {
    Remplir(1);
    Ajouter("refuse", 30);
    CHECK_FALSE(base->Enregistrer());
    const std::string attendu = Tout(*base);
    DisqueMemoire ailleurs;
    REQUIRE(base->EnregistrerCopie(ailleurs, "copie.LGD"));
    const ResultatOuverture copie = OuvrirBase(ailleurs, "copie.LGD", muet);
    REQUIRE(copie.etat == Ouverture::Faite);
    CHECK_FALSE(copie.reprise);
    CHECK(Tout(*copie.base) == attendu);
    disque->FaireDeLaPlace();
    CHECK(base->Enregistrer());
    Relire();
    CHECK(Tout(*base) == attendu);
}

TEST_CASE_FIXTURE(Famille, "A copy that the other disk refuses leaves no file") {
    for (int n = 1; n <= 3; ++n) {
        DisqueMemoire ailleurs;
        ailleurs.panne = Panne::Refus;
        ailleurs.panneA = n;
        CHECK_FALSE(base->EnregistrerCopie(ailleurs, "copie.LGD"));
        CHECK_FALSE(ailleurs.Existe("copie.LGD"));
    }
}

TEST_CASE_FIXTURE(Famille, "What was read wrongly is never committed, not even later") {
    Rouvrir();
    disque->lectureRefusee = disque->lectures + 1;
    static_cast<void>(base->R_NOM.LireTexte(NoOrdre{3}));
    Ajouter("apres", 1);
    CHECK_FALSE(base->Enregistrer());
    CHECK_FALSE(base->Enregistrer());
    CHECK_FALSE(base->EnregistrerCopie(*disque, "copie.LGD"));
    CHECK_FALSE(disque->Existe("copie.LGD"));
}

TEST_CASE_FIXTURE(Famille, "A copy during which a reading fails is none") {
    for (int n = 1;; ++n) {
        CAPTURE(n);
        Relire();
        Ajouter("apres", 1);
        disque->lectureRefusee = disque->lectures + n;
        const bool faite = base->EnregistrerCopie(*disque, "copie.LGD");
        const bool lue = disque->lectures < disque->lectureRefusee;
        CHECK(faite == lue);
        CHECK(disque->Existe("copie.LGD") == lue);
        if (lue) break;
    }
}

TEST_CASE_FIXTURE(Famille, "A copy is refused once something could not be kept") {
    Remplir(1);
    Ajouter("refuse", 30);
    CHECK_FALSE(base->Enregistrer());
    CHECK_FALSE(base->volume.Ajouter(std::string(65U << 20U, 'x')));
    DisqueMemoire ailleurs;
    CHECK_FALSE(base->EnregistrerCopie(ailleurs, "copie.LGD"));
    CHECK_FALSE(ailleurs.Existe("copie.LGD"));
}

TEST_CASE_FIXTURE(Famille, "A file cut short by others: its journal brings it back as it was") {
    const std::string entiers = disque->Octets(Chemin);
    for (const std::size_t perdus : {1U, 300U, 3000U}) {
        disque->Poser(Chemin, entiers.substr(0, entiers.size() - perdus));
        Relire();
        const std::string avant = Tout(*base);
        base.reset();
        for (int n = 1;; ++n) {
            CAPTURE(perdus);
            CAPTURE(n);
            const auto autre = disque->Survivre();
            autre->panne = Panne::Arret;
            autre->panneA = n;
            const ResultatOuverture ouverte = OuvrirBase(*autre, Chemin, muet);
            REQUIRE(ouverte.base);
            for (std::uint32_t i = 1; i <= 40; ++i)
                ouverte.base->R_NAISS.EcrireCellule(NoOrdre{i}, "1999");
            const std::string apres = Tout(*ouverte.base);
            const bool faite = ouverte.base->Enregistrer() && !autre->Mort();
            const auto suite = autre->Survivre();
            const ResultatOuverture relue = OuvrirBase(*suite, Chemin, muet);
            REQUIRE(relue.etat == Ouverture::Faite);
            CHECK(relue.journalEcarte.empty());
            CHECK((Tout(*relue.base) == avant || Tout(*relue.base) == apres));
            if (faite) break;
        }
    }
}

TEST_CASE_FIXTURE(Famille, "OuvrirBase: a file that cannot be read is not taken for no base") {
    for (int n = 1;; ++n) {
        CAPTURE(n);
        base.reset();
        disque->lectureRefusee = disque->lectures + n;
        const Ouverture etat = OuvrirBase(*disque, Chemin, muet).etat;
        if (disque->lectures < disque->lectureRefusee) break;
        CHECK(etat == Ouverture::Refusee);
    }
}

TEST_CASE_FIXTURE(Famille,
                  "OuvrirBase: a journal that cannot be read stays, and nothing is opened") {
    disque->panne = Panne::Arret;
    disque->panneA = disque->operations + 6;
    Ajouter("perdu", 5);
    CHECK_FALSE(base->Enregistrer());
    const auto apres = disque->Survivre();
    REQUIRE(apres->Existe(CheminLog));
    const std::string journal = apres->Octets(CheminLog);
    const std::string octets = apres->Octets(Chemin);
    // The readings of the journal come behind that of the mark.
    for (int n = 2; n <= 3; ++n) {
        apres->lectureRefusee = apres->lectures + n;
        CHECK(OuvrirBase(*apres, Chemin, muet).etat != Ouverture::Faite);
        CHECK(apres->Octets(CheminLog) == journal);
        CHECK(apres->Octets(Chemin) == octets);
    }
    apres->lectureRefusee = 0;
    CHECK(OuvrirBase(*apres, Chemin, muet).reprise);
}

TEST_CASE_FIXTURE(Famille, "OuvrirBase: the journal of another base of the folder is left alone") {
    REQUIRE(base->Fermer());
    Journal journal{*disque, "famille.lgd"};
    const std::unique_ptr<Fichier> fichier = disque->Ouvrir(Chemin, ModeOuverture::LectureSeule);
    journal.Prendre(*fichier, Position{1}, 200);
    REQUIRE(journal.Ecrire(200));
    const std::string octets = disque->Octets(CheminLog);
    disque->Poser("famille.lgd", "the other");
    CHECK(OuvrirBase(*disque, Chemin, muet).etat == Ouverture::JournalDAutrui);
    CHECK(disque->Octets(CheminLog) == octets);
    // A base that was given another name together with its journal.
    REQUIRE(disque->Supprimer("famille.lgd"));
    CHECK(OuvrirBase(*disque, Chemin, muet).reprise);
}

TEST_CASE_FIXTURE(Famille, "OuvrirBase: a journal is not replayed over an older copy of its base") {
    const std::string ancienne = disque->Octets(Chemin);
    const std::string attendu = Tout(*base);
    Ajouter("plus tard", 20);
    REQUIRE(base->Enregistrer());
    disque->panne = Panne::Arret;
    disque->panneA = disque->operations + 6;
    Ajouter("perdu", 5);
    CHECK_FALSE(base->Enregistrer());
    const auto apres = disque->Survivre();
    const std::string journal = apres->Octets(CheminLog);
    REQUIRE_FALSE(journal.empty());
    apres->Poser(Chemin, ancienne);
    const ResultatOuverture ouverte = OuvrirBase(*apres, Chemin, muet);
    REQUIRE(ouverte.etat == Ouverture::Faite);
    CHECK_FALSE(ouverte.reprise);
    CHECK(ouverte.journalEcarte == "famille.LOG.ancien");
    CHECK(apres->Octets("famille.LOG.ancien") == journal);
    CHECK_FALSE(apres->Existe(CheminLog));
    CHECK(Tout(*ouverte.base) == attendu);
}

TEST_CASE_FIXTURE(Famille,
                  "NouvelleBase: until its first commit the file that it replaces stands") {
    REQUIRE(base->Fermer());
    const std::string ancienne = disque->Octets(Chemin);
    {
        const ResultatOuverture nouvelle = NouvelleBase(*disque, Chemin, {});
        REQUIRE(nouvelle.base);
        CHECK(disque->Octets(Chemin) == ancienne);
    }
    CHECK(disque->Octets(Chemin) == ancienne);
    CHECK_FALSE(disque->Existe("famille.LGD.nouveau"));
    for (int n = 1;; ++n) {
        CAPTURE(n);
        const auto autre = disque->Survivre();
        autre->panne = Panne::ArretDechire;
        autre->panneA = n;
        const ResultatOuverture nouvelle = NouvelleBase(*autre, Chemin, {});
        if (nouvelle.base) {
            nouvelle.base->marques.ModifBase = true;
            static_cast<void>(nouvelle.base->Enregistrer());
        }
        const auto apres = autre->Survivre();
        const ResultatOuverture ouverte = OuvrirBase(*apres, Chemin, muet);
        REQUIRE(ouverte.etat == Ouverture::Faite);
        const std::uint32_t personnes = ouverte.base->entete.NbTriIndividus;
        CHECK((personnes == 0 || personnes == 40));
        if (!autre->Mort()) break;
    }
}

TEST_CASE_FIXTURE(
    Famille, "NouvelleBase: committed but not in its place, it harms the old one with nothing") {
    const std::string ancienne = Tout(*base);
    REQUIRE(base->Fermer());
    int refusees = 0;
    for (int n = 1; n < 12; ++n) {
        for (int m = 1; m < 12; ++m) {
            CAPTURE(n);
            CAPTURE(m);
            const auto autre = disque->Survivre();
            const ResultatOuverture nouvelle = NouvelleBase(*autre, Chemin, {});
            REQUIRE(nouvelle.base);
            nouvelle.base->R_TRI.AjouterIndividu(nouvelle.base->NouvelIndividu());
            autre->panne = Panne::Refus;
            autre->panneA = autre->operations + n;
            // What was refused while the commit was prepared, it tries again by itself.
            if (nouvelle.base->Enregistrer()) break;
            ++refusees;
            for (std::uint32_t i = 0; i < 200; ++i)
                nouvelle.base->R_TRI.AjouterIndividu(nouvelle.base->NouvelIndividu());
            autre->panne = Panne::Arret;
            autre->panneA = autre->operations + m;
            const bool faite = nouvelle.base->Enregistrer();
            const auto apres = autre->Survivre();
            const ResultatOuverture ouverte = OuvrirBase(*apres, Chemin, muet);
            REQUIRE(ouverte.etat == Ouverture::Faite);
            const bool neuve = ouverte.base->entete.NbTriIndividus == 201;
            CHECK((neuve || Tout(*ouverte.base) == ancienne));
            if (faite && !autre->Mort()) CHECK(neuve);
        }
    }
    CHECK(refusees > 30);
}

TEST_CASE_FIXTURE(Famille,
                  "NouvelleBase: the journal of a base of like name keeps it from its place") {
    disque->panne = Panne::Arret;
    disque->panneA = disque->operations + 6;
    Ajouter("perdu", 5);
    CHECK_FALSE(base->Enregistrer());
    const auto apres = disque->Survivre();
    const std::string journal = apres->Octets(CheminLog);
    REQUIRE_FALSE(journal.empty());
    {
        const ResultatOuverture nouvelle = NouvelleBase(*apres, "famille.lgd", {});
        REQUIRE(nouvelle.base);
        nouvelle.base->marques.ModifBase = true;
        CHECK_FALSE(nouvelle.base->Fermer());
        // Before the lock is given back: another program may be next.
        CHECK_FALSE(apres->Existe("famille.lgd.nouveau"));
    }
    CHECK_FALSE(apres->Existe("famille.lgd"));
    CHECK_FALSE(apres->Existe("famille.lgd.nouveau"));
    CHECK(apres->Octets(CheminLog) == journal);
    CHECK(OuvrirBase(*apres, Chemin, muet).reprise);
}

TEST_CASE_FIXTURE(Famille, "Reorganisation: a reading that fails, whichever, leaves no new file") {
    Rouvrir();
    const int avant = disque->lectures;
    REQUIRE(ReorganiserVers(*disque, *base, "Reorg.fic", muet).issue == IssueReorganisation::Faite);
    const int lectures = disque->lectures - avant;
    REQUIRE(disque->Supprimer("Reorg.fic"));
    for (int n = 1; n <= lectures; ++n) {
        CAPTURE(n);
        Relire();
        disque->lectureRefusee = disque->lectures + n;
        const BilanReorganisation bilan = ReorganiserVers(*disque, *base, "Reorg.fic", muet);
        // Opening has taken some of the readings.
        if (disque->lectures < disque->lectureRefusee) break;
        CHECK(bilan.issue != IssueReorganisation::Faite);
        CHECK_FALSE(disque->Existe("Reorg.fic"));
    }
}
