// An import that replaces a base, cut at every operation on the disk in turn. Whatever the failure,
// what stands under the name of the base is the old one or the new one, whole.
#include "doublures/DialogueScript.h"
#include "doublures/DisqueMemoire.h"
#include "doublures/DossierTemporaire.h"
#include "doublures/EcranScript.h"
#include "doublures/HorlogeFixe.h"
#include "doublures/Inventaire.h"
#include "doublures/ProgressionScript.h"
#include "doublures/SeanceEssai.h"
#include "interchange/gedcom/ImportGedcom.h"
#include "storage/Base.h"

#include <memory>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr const char* Chemin = "/famille.LGD";
constexpr const char* CheminLog = "/famille.LOG";
constexpr const char* Provisoire = "/famille.LGD.nouveau";

std::string Gedcom() {
    std::string texte = "0 HEAD\n1 NOTE base\n";
    for (int i = 1; i <= 12; ++i) {
        const std::string n = std::to_string(i);
        texte.append("0 @I").append(n).append("@ INDI\n1 NAME Jean /Neuf").append(n);
        texte.append("/\n1 SEX M\n1 BIRT\n2 DATE 18").append(std::to_string(50 - i));
        texte += "\n2 PLAC Vitré\n1 OCCU maire\n1 SOUR @S1@\n1 NOTE @N1@\n";
    }
    return texte +
           "0 @F1@ FAM\n1 HUSB @I12@\n1 WIFE @I11@\n1 CHIL @I1@\n1 MARR\n2 DATE 1840\n"
           "0 @S1@ SOUR\n1 DATE 1 JAN 1840\n1 TITL acte\n0 @N1@ NOTE note\n0 TRLR\n";
}

/// A session on a disk, and one import in it; true when it is done.
bool Importer(DisqueMemoire& disque) {
    const doublures::DossierTemporaire dossier;
    doublures::DialogueScript dialogue;
    dialogue.reponses = {shell::Reponse::Oui};
    doublures::ProgressionScript progression;
    doublures::HorlogeFixe horloge;
    doublures::EcranScript ecran;
    shell::Session session{{dossier.chemin, dossier.chemin, dossier.chemin},
                           {dialogue, progression, horloge, ecran, disque}};
    interchange::RapportImport rapport;
    const shell::Issue issue = interchange::ImporterTexte(session, Gedcom(), Chemin, rapport);
    CHECK(progression.cadres == 0);
    return issue.cause == shell::Cause::Fait;
}

/// What the base says once it is opened; "" when there is none.
std::string Relire(DisqueMemoire& disque) {
    ProgressionMuette muet;
    const ResultatOuverture resultat = OuvrirBase(disque, Chemin, muet);
    return resultat.base ? Inventaire{*resultat.base}.Texte() : std::string{};
}

/// A disk with a base on it; `enSuspens`: a session died while it committed more.
std::unique_ptr<DisqueMemoire> Preparer(bool enSuspens) {
    DisqueMemoire disque;
    {
        const ResultatOuverture resultat = NouvelleBase(disque, Chemin, {});
        SeanceEssai seance{*resultat.base, 5};
        for (int i = 0; i < 30; ++i)
            seance.Agir();
        REQUIRE(resultat.base->Enregistrer());
    }
    if (!enSuspens) return disque.Survivre();
    for (int n = 1;; ++n) {
        const auto essai = disque.Survivre();
        ProgressionMuette muet;
        const ResultatOuverture resultat = OuvrirBase(*essai, Chemin, muet);
        SeanceEssai seance{*resultat.base, 6};
        for (int i = 0; i < 30; ++i)
            seance.Agir();
        const std::string avant = essai->Octets(Chemin);
        essai->panne = Panne::Arret;
        essai->panneA = essai->operations + n;
        REQUIRE_FALSE((resultat.base->Enregistrer() && !essai->Mort()));
        // Late enough for the file to be half way between two commits.
        if (essai->Existe(CheminLog) && essai->Octets(Chemin) != avant && n > 8)
            return essai->Survivre();
    }
}

void CouperPartout(bool enSuspens) {
    const auto depart = Preparer(enSuspens);
    const std::string ancienne = Relire(*depart->Survivre());
    REQUIRE_FALSE(ancienne.empty());

    const auto temoin = depart->Survivre();
    REQUIRE(Importer(*temoin));
    const int total = temoin->operations;
    const std::string nouvelle = Relire(*temoin);
    REQUIRE(nouvelle != ancienne);
    REQUIRE(total > 8);

    int anciennes = 0;
    int nouvelles = 0;
    for (const Panne panne :
         {Panne::Refus, Panne::Plein, Panne::Dechirure, Panne::Arret, Panne::ArretDechire}) {
        for (int n = 1; n <= total; ++n) {
            CAPTURE(static_cast<int>(panne));
            CAPTURE(n);
            const auto disque = depart->Survivre();
            disque->panne = panne;
            disque->panneA = n;
            const bool fait = Importer(*disque);
            const auto apres = disque->Survivre();
            const std::string lu = Relire(*apres);
            const bool estNouvelle = lu == nouvelle;
            CHECK((estNouvelle || lu == ancienne));
            if (!disque->Mort()) CHECK(estNouvelle == fait);
            if (panne == Panne::Refus && !fait) {
                CHECK_FALSE(apres->Existe(Provisoire));
                CHECK_FALSE(apres->Existe(CheminJournal(Provisoire)));
            }
            (estNouvelle ? nouvelles : anciennes) += 1;
            for (std::uint32_t graine = 1; disque->Mort() && graine <= 2; ++graine) {
                const std::string coupe = Relire(*disque->CouperCourant(graine));
                CHECK((coupe == nouvelle || coupe == ancienne));
            }
        }
    }
    CHECK(anciennes > 0);
    CHECK(nouvelles > 0);
}

}  // namespace

TEST_CASE("Import cut: the old base or the new one stands whole, whatever the disk refuses") {
    CouperPartout(false);
}

TEST_CASE(
    "Import cut: a base that waited for its journal stands whole too, until the new one does") {
    CouperPartout(true);
}
