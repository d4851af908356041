#include "storage/Reorganiser.h"

#include "doublures/ContenuBase.h"
#include "doublures/FamilleEssai.h"
#include "doublures/MessagesLisibles.h"
#include "doublures/SeanceEssai.h"
#include "messages/Soin.h"
#include "storage/Essai.h"
#include "storage/OctetsVivants.h"
#include "values/Octets.h"
#include "values/Texte1252.h"

#include <algorithm>

using namespace dorvane;
using namespace dorvane::storage;

namespace {

constexpr const char* Nouveau = "Reorg.fic";

/// Counts the steps, notes the phases, and gives up at one of the steps.
class ProgressionEssai final : public Progression {
public:
    std::vector<std::string> phases;
    std::vector<NoMessage> messages;
    std::uint32_t pas = 0;
    std::uint32_t arret = 0;
    int cadres = 0;
    void Commencer(const Phrase& /*titre*/, const Phrase& /*texte*/) override { ++cadres; }
    void Phase(const Phrase& texte) override {
        phases.emplace_back(texte.valeur);
        if (texte.no) messages.push_back(texte.no);
    }
    [[nodiscard]] bool Avancer(std::uint32_t /*fait*/, std::uint32_t /*total*/) override {
        return ++pas != arret;
    }
    void Terminer() override { --cadres; }
    [[nodiscard]] bool EnCours() const override { return cadres > 0; }
    void Sablier(bool /*attente*/) override {}
};

struct Bureau : Essai {
    doublures::FamilleEssai famille{*base};
    ProgressionEssai progression;

    /// Reorganises what was committed and answers the bytes of the new file.
    std::string Reorganiser(BilanReorganisation* bilan = nullptr) {
        REQUIRE(base->Enregistrer());
        const BilanReorganisation b = ReorganiserVers(*disque, *base, Nouveau, progression);
        if (bilan != nullptr) *bilan = b;
        REQUIRE(b.issue == IssueReorganisation::Faite);
        CHECK(progression.cadres == 0);
        return disque->Octets(Nouveau);
    }
    /// Opens the new file as a base.
    std::unique_ptr<Base> Ouvrir(const std::string& octets) {
        disque->Poser("neuf.LGD", octets);
        ResultatOuverture resultat = OuvrirBase(*disque, "neuf.LGD", muet);
        REQUIRE(resultat.etat == Ouverture::Faite);
        return std::move(resultat.base);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bureau, "Reorganisation: an empty base keeps its keywords and nothing else") {
    const std::string octets = Reorganiser();
    const OctetsVivants vivants{octets};
    CHECK(vivants.Morts() == 0);
    CHECK(vivants.Lecteur().Num4(31) == octets.size());
    const std::unique_ptr<Base> neuve = Ouvrir(octets);
    CHECK(neuve->motsCles.Nombre() == 11);
    CHECK(neuve->motsCles.LibelleType(NoMotCle{6}).libelle == "OCCU");
    CHECK(neuve->entete.SlotsIndividu[0].symbole == '\\');
    CHECK(neuve->entete.SlotsMariage == base->entete.SlotsMariage);
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: the phases are told in their order") {
    famille.Creer(Sexe::Homme, "DURAND", "Jean");
    Reorganiser();
    const std::vector<std::string> voulues{
        "Contrôle Documents"_1252.data(),       "Contrôle Evénements"_1252.data(),
        "Réorganisation Documents"_1252.data(), "Réorganisation Evénements"_1252.data(),
        "Réorganisation Mariages"_1252.data(),  "Réorganisation Index"_1252.data(),
        "Réorganisation Indices"_1252.data(),   "Recopie fichier"_1252.data(),
        "Recopie Mots-Clés"_1252.data(),        "Recopie Index"_1252.data(),
        "Recopie Individus"_1252.data(),        "Recopie Mariages"_1252.data(),
        "Recopie Documents"_1252.data(),        "Recopie Evénements"_1252.data(),
        "Réorganisation terminée"_1252.data()};
    CHECK(progression.phases == voulues);
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: whatever was done to a base, its content stays, no byte "
                  "is dead, and a second time gives the same bytes") {
    for (std::uint32_t graine = 1; graine <= 12; ++graine) {
        CAPTURE(graine);
        Bureau jour;
        SeanceEssai seance{*jour.base, graine};
        for (int i = 0; i < 250; ++i)
            seance.Agir();
        const std::string octets = jour.Reorganiser();
        const OctetsVivants vivants{octets};
        CHECK(vivants.Morts() == 0);
        CHECK_FALSE(vivants.Deborde());
        CHECK(vivants.Lecteur().Num4(31) == octets.size());
        const std::unique_ptr<Base> neuve = jour.Ouvrir(octets);
        CHECK(ContenuBase{*neuve}.Texte() == ContenuBase{*jour.base}.Texte());
        // No hole is left in any numbering.
        CHECK(neuve->entete.NbTriDocuments == neuve->entete.DernierDocument);
        CHECK(neuve->entete.NbTriEvenements == neuve->entete.DernierEvenement);
        REQUIRE(ReorganiserVers(*jour.disque, *neuve, Nouveau, muet).issue ==
                IssueReorganisation::Faite);
        CHECK(jour.disque->Octets(Nouveau) == octets);
    }
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: deleted persons keep their numbers, and a block of them "
                  "costs no space") {
    base->FixerDernierIndividu(2500);
    const NoOrdre n{2500};
    base->R_NOM.EcrireNom(n, "DURAND;Jean");
    base->R_SEXE.EcrireCellule(n, Sexe::Homme);
    base->R_TRI.AjouterIndividu(n);
    // The blocks of the persons in between have been written once.
    for (const std::uint32_t parti : {7U, 1500U}) {
        base->R_NAISS.EcrireCellule(NoOrdre{parti}, "1850");
        base->R_NAISS.EcrireCellule(NoOrdre{parti}, "");
        base->R_PERE.EcrireCellule(NoOrdre{parti}, NoOrdre{1});
        base->R_PERE.EcrireCellule(NoOrdre{parti}, {});
    }
    const OctetsVivants vivants{Reorganiser()};
    const LecteurLgd& l = vivants.Lecteur();
    CHECK(l.Num2(37) == 2500);
    CHECK(l.Num2(35) == 1);
    CHECK(l.Bloc("SEXE", 1) == 0);
    CHECK(l.Bloc("SEXE", 2) == 0);
    CHECK(l.Bloc("NAISS", 1) == 0);
    CHECK(l.Bloc("PERE", 2) == 0);
    CHECK(l.Bloc("SEXE", 3) != 0);
    CHECK(l.TexteDe("NOM", 2500) == "DURAND;Jean");
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: a union whose husband is gone disappears with its text "
                  "and its index words, and leaves the list of the wife") {
    const NoOrdre anne = famille.Creer(Sexe::Femme, "MARTIN", "Anne");
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean");
    const NoOrdre paul = famille.Creer(Sexe::Homme, "LEROY", "Paul");
    const NoMariage perdu = famille.Marier(jean, anne, "1850");
    const NoMariage garde = famille.Marier(paul, anne, "1860");
    for (const auto& [m, texte] : {std::pair{perdu, "@Brest"}, {garde, "@Lyon"}}) {
        base->R_TXTMAR.EcrireTexte(m, texte);
        for (const NoOrdre n : {base->R_EPOUX.LireCellule(m), anne})
            base->R_INDEX.MajIndex(n, "", texte);
    }
    base->R_TRI.RetirerIndividu(jean);
    BilanReorganisation bilan;
    const std::string octets = Reorganiser(&bilan);
    CHECK(bilan.unionsSansEpoux == 1);
    CHECK(progression.messages == std::vector{message::EtatUnionsSansEpoux});
    CHECK(octets.find("Brest") == std::string::npos);
    CHECK(octets.find("BREST") == std::string::npos);
    const std::unique_ptr<Base> neuve = Ouvrir(octets);
    CHECK(neuve->entete.DernierMariage == 1);
    CHECK(neuve->R_MARIAG.Elements(anne) == std::vector{NoMariage{1}});
    CHECK(neuve->R_EPOUX.LireCellule(NoMariage{1}) == paul);
    CHECK(neuve->R_TXTMAR.LireTexte(NoMariage{1}) == "@Lyon");
    const NoIndex lyon = neuve->R_INDEX.ChercherMot(NoMotCle{4}, "LYON");
    REQUIRE(bool{lyon});
    CHECK(neuve->R_INDEX.PersonnesIndex(lyon).size() == 2);
    CHECK(neuve->R_INDEX.ListeMots(NoMotCle{4}).size() == 1);
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: a word that a dropped union shares with a text stays once") {
    const NoOrdre anne = famille.Creer(Sexe::Femme, "MARTIN", "Anne");
    const NoMariage m = famille.Marier({}, anne);
    base->R_TXTMAR.EcrireTexte(m, "@Brest @Brest");
    base->R_TEXTE.EcrireTexte(anne, "@Brest");
    base->R_INDEX.MajIndex(anne, "", "@Brest @Brest");
    base->R_INDEX.MajIndex(anne, "", "@Brest");
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    const NoIndex brest = neuve->R_INDEX.ChercherMot(NoMotCle{4}, "BREST");
    CHECK(neuve->R_INDEX.PersonnesIndex(brest) == std::vector{anne});
    CHECK(neuve->entete.DernierMariage == 0);
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: a husband owns his union whatever his sex cell holds") {
    const NoOrdre jean = famille.Creer(Sexe::Vide, "DURAND", "Jean");
    const NoOrdre anne = famille.Creer(Sexe::Femme, "MARTIN", "Anne");
    famille.Marier(jean, anne, "1850");
    BilanReorganisation bilan;
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser(&bilan));
    CHECK(bilan.unionsSansEpoux == 0);
    CHECK(neuve->R_MARIAG.Elements(anne) == std::vector{NoMariage{1}});
    CHECK(neuve->R_DEBMAR.LireCellule(NoMariage{1}) == "1850");
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: a union that its living husband does not list is kept") {
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean");
    const NoOrdre anne = famille.Creer(Sexe::Femme, "MARTIN", "Anne");
    const NoMariage m = famille.Marier(jean, anne, "1850");
    base->R_MARIAG.ModifierListe(jean, m, storage::ActionListe::Supprimer);
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->R_EPOUX.LireCellule(NoMariage{1}) == jean);
    CHECK(neuve->R_MARIAG.Elements(anne) == std::vector{NoMariage{1}});
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: unions are numbered by their husbands in sort order") {
    const NoOrdre anne = famille.Creer(Sexe::Femme, "MARTIN", "Anne", "1800");
    const NoOrdre zacharie = famille.Creer(Sexe::Homme, "ZOLA", "Zacharie", "1850");
    const NoOrdre abel = famille.Creer(Sexe::Homme, "ABEL", "Abel", "1820");
    famille.Marier(zacharie, anne, "1880");
    famille.Marier(abel, anne, "1840");
    famille.Marier(abel, anne, "1845");
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->R_DEBMAR.LireCellule(NoMariage{1}) == "1840");
    CHECK(neuve->R_DEBMAR.LireCellule(NoMariage{2}) == "1845");
    CHECK(neuve->R_DEBMAR.LireCellule(NoMariage{3}) == "1880");
    CHECK(neuve->R_MARIAG.Elements(anne) == std::vector{NoMariage{3}, NoMariage{1}, NoMariage{2}});
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: documents and events are numbered by rank, one that "
                  "nobody uses stays, and the document of the base follows") {
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean");
    NoDocument titre{};
    for (const char* nom : {"Zinc", "Parti", "Abbaye"}) {
        const NoDocument d = base->NouveauDocument();
        base->R_IMAGE.EcrireDoc(d, {nom, "photo.jpg", "PHOTO", "Une note"});
        base->R_TRI.AjouterDocument(d);
        if (std::string_view{nom} == "Zinc") titre = d;
    }
    base->R_LSTIMG.ModifierListe(jean, NoDocument{2}, storage::ActionListe::Ajouter);
    base->R_LSTIMG.ModifierListe(jean, NoDocument{1}, storage::ActionListe::Ajouter);
    base->entete.DocBase = titre;
    for (const std::int32_t date : {500, 100, 300}) {
        const NoEvenement e = base->NouvelEvenement();
        base->R_EVT.EcrireEvt(e, {.cleDate = date,
                                  .note = "note",
                                  .liens = {{{jean, "WITN"}}},
                                  .documents = {{NoDocument{2}, titre}},
                                  .description = DescriptionEvt{"Brest", "", "MARR"}});
        base->R_TRI.AjouterEvt(e);
        base->R_LSTEVT.ModifierListe(jean, e, storage::ActionListe::Ajouter, "WITN");
    }
    base->R_TRI.RetirerDocument(NoDocument{2});
    base->R_IMAGE.EffacerDoc(NoDocument{2});
    base->R_TRI.RetirerEvt(NoEvenement{3});
    base->R_EVT.EffacerEvt(NoEvenement{3});
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->entete.DernierDocument == 2);
    CHECK(neuve->R_IMAGE.TitreDoc(NoDocument{1}) == "Abbaye");
    CHECK(neuve->R_IMAGE.NoteDoc(NoDocument{2}) == "Une note");
    CHECK(neuve->entete.DocBase == NoDocument{2});
    CHECK(neuve->R_LSTIMG.Elements(jean) == std::vector{NoDocument{2}});
    CHECK(neuve->entete.DernierEvenement == 2);
    CHECK(neuve->R_EVT.CleDateEvt(NoEvenement{1}) == 100);
    CHECK(neuve->R_EVT.Documents(NoEvenement{1}) == std::vector{NoDocument{2}});
    CHECK(neuve->R_LSTEVT.NbElements(jean) == 2);
    CHECK(neuve->R_LSTEVT.ElementListe(jean, 2) == NoEvenement{2});
    CHECK(neuve->R_LSTEVT.TexteElement(jean, 2) == "WITN");
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: dead entries of the index are dropped, words keep their order") {
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean");
    std::string texte;
    for (const char* lieu : {"$Zurich", "$Brest", "$Lyon"}) {
        base->R_INDEX.MajIndex(jean, texte, lieu);
        texte = lieu;
    }
    base->R_INDEX.MajIndex(jean, texte, "$Lyon $Arles");
    REQUIRE(base->entete.NbIndex == 4);
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->entete.NbIndex == 2);
    CHECK(neuve->R_INDEX.ListeMots(NoMotCle{3}) == std::vector{NoIndex{1}, NoIndex{2}});
    CHECK(neuve->R_INDEX.MotIndex(NoIndex{1}) == "ARLES");
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: 32001 persons put the overflow zone at position 3573") {
    base->FixerDernierIndividu(32001);
    base->R_NOM.EcrireNom(NoOrdre{32001}, "DURAND;Jean");
    base->R_SEXE.EcrireCellule(NoOrdre{32001}, Sexe::Homme);
    base->R_TRI.AjouterIndividu(NoOrdre{32001});
    const OctetsVivants vivants{Reorganiser()};
    CHECK(vivants.Lecteur().Num4(161) == 3573);
    CHECK(vivants.Morts() == 0);
    CHECK(vivants.Lecteur().TexteDe("NOM", 32001) == "DURAND;Jean");
    CHECK(vivants.Lecteur().Tri("TRI", 1) == std::vector{32001U});
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: 32000 persons need no overflow zone") {
    base->FixerDernierIndividu(32000);
    base->R_NOM.EcrireNom(NoOrdre{32000}, "DURAND;Jean");
    base->R_TRI.AjouterIndividu(NoOrdre{32000});
    const OctetsVivants vivants{Reorganiser()};
    CHECK(vivants.Lecteur().Num4(161) == 0);
    CHECK(vivants.Lecteur().TexteDe("NOM", 32000) == "DURAND;Jean");
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: the zones follow the highest numbers, not the counts") {
    base->FixerDernierIndividu(40000);
    base->R_NOM.EcrireNom(NoOrdre{39999}, "DURAND;Jean");
    base->R_TRI.AjouterIndividu(NoOrdre{39999});
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->entete.DernierIndividu == 40000);
    CHECK(neuve->R_NOM.NomDe(NoOrdre{39999}) == "DURAND");
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: more than 32000 unions and 25600 words get their zones") {
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean");
    const NoOrdre anne = famille.Creer(Sexe::Femme, "MARTIN", "Anne");
    for (std::uint32_t i = 1; i <= 32005; ++i) {
        const NoMariage m = base->NouveauMariage();
        base->R_EPOUX.EcrireCellule(m, jean);
        base->R_EPOUSE.EcrireCellule(m, anne);
        base->R_DEBMAR.EcrireCellule(m, std::to_string(1000 + i % 900));
    }
    std::vector<NoIndex> mots;
    for (std::uint32_t i = 0; i < 25700; ++i) {
        const NoIndex e = base->R_INDEX.NouvelleEntree();
        base->R_INDEX.EcrireCelluleIndex(
            e, {base->volume.Ajouter("M" + std::to_string(100000 + i), "#"), 1,
                base->volume.Ajouter({"\0\1", 2})});
        mots.push_back(e);
    }
    base->R_INDEX.EcrireListeMots(NoMotCle{3}, mots);
    const std::string octets = Reorganiser();
    const OctetsVivants vivants{octets};
    CHECK(vivants.Morts() == 0);
    CHECK(vivants.Lecteur().Num4(165) == 3573);
    CHECK(vivants.Lecteur().Num4(169) == 3573 + 384);
    const std::unique_ptr<Base> neuve = Ouvrir(octets);
    CHECK(neuve->R_DEBMAR.LireCellule(NoMariage{32004}) == std::to_string(1000 + 32004 % 900));
    CHECK(neuve->R_INDEX.MotIndex(NoIndex{25700}) == "M125699");
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: order, options and rows of the base stay") {
    base->entete.TypeTri = TypeTri::Nom;
    base->entete.OptPrenomUnique = true;
    base->entete.OptParticules = true;
    base->entete.OptOrigine97 = true;
    base->entete.SlotsIndividu[1] = {'%', '1'};
    base->marques.ModifBase = true;
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->entete.TypeTri == TypeTri::Nom);
    CHECK(neuve->entete.OptPrenomUnique);
    CHECK(neuve->entete.OptParticules);
    CHECK(neuve->entete.OptOrigine97);
    CHECK(neuve->entete.SlotsIndividu == base->entete.SlotsIndividu);
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: what two ranks name is there once") {
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean");
    const NoDocument d = base->NouveauDocument();
    base->R_IMAGE.EcrireDoc(d, {"Titre", "a.jpg", "", ""});
    base->R_TRI.AjouterDocument(d);
    base->R_TRI.FixerRang(++base->entete.NbTriDocuments, d);
    base->R_TRI.FixerRang(++base->entete.NbTriIndividus, jean);
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->entete.DernierDocument == 1);
    CHECK(neuve->R_TRI.documents.Numeros() == std::vector<std::uint16_t>{1});
    CHECK(neuve->R_TRI.individus.Numeros() == std::vector<std::uint16_t>{1});
}

TEST_CASE_FIXTURE(Bureau, "Reorganisation: a year keeps its place in its cell") {
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean", "18", "44");
    // As another program may have left it.
    base->R_DECES.EcrireCellule(jean, "44  ");
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser());
    CHECK(neuve->R_NAISS.LireCellule(jean) == "  18");
    CHECK(neuve->R_DECES.LireCellule(jean) == "44");
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: a damaged record is counted and copied as an empty one") {
    const NoOrdre jean = famille.Creer(Sexe::Homme, "DURAND", "Jean");
    const NoDocument d = base->NouveauDocument();
    base->R_IMAGE.EcrireDoc(d, {"Titre", "a.jpg", "", ""});
    base->R_TRI.AjouterDocument(d);
    base->R_LSTIMG.ModifierListe(jean, d, storage::ActionListe::Ajouter);
    const NoEvenement e = base->NouvelEvenement();
    base->R_EVT.EcrireEvt(e, {.cleDate = 5, .description = DescriptionEvt{"Brest", "", "BIRT"}});
    base->R_TRI.AjouterEvt(e);
    // The last record of the file has no end.
    const Position fin = base->volume.Ajouter(std::string(40000, 'x'));
    base->R_IMAGE.EcrireCellule(d, fin);
    std::string tete = NumVersChaine4(1000005) + std::string(12, '\0');
    base->R_EVT.EcrireCellule(e, base->volume.Ajouter(tete + NumVersChaine4(fin.valeur)));
    REQUIRE(base->Enregistrer());
    base->InitColonnes();
    BilanReorganisation bilan;
    const std::unique_ptr<Base> neuve = Ouvrir(Reorganiser(&bilan));
    CHECK(bilan.documentsAbimes == 1);
    CHECK(bilan.evenementsAbimes == 1);
    CHECK(neuve->R_IMAGE.LireDoc(NoDocument{1}) == Document{});
    CHECK(neuve->R_LSTIMG.Elements(jean) == std::vector{NoDocument{1}});
    CHECK(neuve->R_EVT.CleDateEvt(NoEvenement{1}) == 5);
    CHECK(neuve->R_EVT.Description(NoEvenement{1}) == DescriptionEvt{});
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: given up at any step, the old file is as it was and the "
                  "new one is gone") {
    SeanceEssai seance{*base, 5};
    for (int i = 0; i < 150; ++i)
        seance.Agir();
    REQUIRE(base->Enregistrer());
    const std::string avant = disque->Octets(Chemin);
    ProgressionEssai temoin;
    REQUIRE(ReorganiserVers(*disque, *base, Nouveau, temoin).issue == IssueReorganisation::Faite);
    REQUIRE(temoin.pas > 8);
    for (std::uint32_t arret = 1; arret <= temoin.pas; ++arret) {
        CAPTURE(arret);
        ProgressionEssai essai;
        essai.arret = arret;
        CHECK(ReorganiserVers(*disque, *base, Nouveau, essai).issue ==
              IssueReorganisation::Abandonnee);
        CHECK(essai.cadres == 0);
        CHECK_FALSE(disque->Existe(Nouveau));
        CHECK(disque->Octets(Chemin) == avant);
    }
}

TEST_CASE_FIXTURE(Bureau,
                  "Reorganisation: records that run into one another are not copied for ever") {
    // One long text without an end, and many persons whose cells point into it.
    base->FixerDernierIndividu(5000);
    const Position texte = base->volume.Ajouter(std::string(300000, 'x'));
    for (NoOrdre n{1}; n.valeur <= 5000; ++n.valeur)
        base->R_TEXTE.EcrireCellule(n, texte);
    REQUIRE(base->Enregistrer());
    CHECK(ReorganiserVers(*disque, *base, Nouveau, muet).issue == IssueReorganisation::TropAbimee);
    CHECK_FALSE(disque->Existe(Nouveau));
}

TEST_CASE(
    "Reorganisation: a refusal or a death at any operation leaves the old file and no base "
    "that is half there") {
    Bureau depart;
    SeanceEssai seance{*depart.base, 9};
    for (int i = 0; i < 120; ++i)
        seance.Agir();
    REQUIRE(depart.base->Fermer());
    const std::string avant = depart.disque->Octets(Essai::Chemin);
    const auto entier = depart.disque->Survivre();
    ProgressionMuette muet;
    REQUIRE(ReorganiserVers(*entier, *OuvrirBase(*entier, Essai::Chemin, muet).base, Nouveau, muet)
                .issue == IssueReorganisation::Faite);
    const std::string voulu = entier->Octets(Nouveau);
    REQUIRE(entier->operations >= 3);
    for (int n = 1; n <= entier->operations; ++n)
        for (const Panne panne :
             {Panne::Refus, Panne::Plein, Panne::Dechirure, Panne::Arret, Panne::ArretDechire}) {
            CAPTURE(n);
            CAPTURE(static_cast<int>(panne));
            const auto disque = depart.disque->Survivre();
            disque->panne = panne;
            disque->panneA = n;
            const ResultatOuverture source = OuvrirBase(*disque, Essai::Chemin, muet);
            const BilanReorganisation bilan = ReorganiserVers(*disque, *source.base, Nouveau, muet);
            // A single refused write is made good by the commit.
            if (bilan.issue == IssueReorganisation::Faite)
                CHECK((panne == Panne::Refus && disque->Octets(Nouveau) == voulu));
            else
                CHECK(bilan.issue == IssueReorganisation::Refusee);
            CHECK(disque->Octets(Essai::Chemin) == avant);
            // What is left of the new file is in nobody's way the next time.
            const auto apres = disque->Survivre();
            const ResultatOuverture encore = OuvrirBase(*apres, Essai::Chemin, muet);
            REQUIRE(ReorganiserVers(*apres, *encore.base, Nouveau, muet).issue ==
                    IssueReorganisation::Faite);
            CHECK(apres->Octets(Nouveau) == voulu);
        }
}
