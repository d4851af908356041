#include "records/FicheDocument.h"

#include "messages/Messages.h"
#include "records/AccordEvenements.h"
#include "records/EssaiFamille.h"
#include "records/FicheEvenement.h"
#include "shell/FichierSur.h"

#include <string>
#include <vector>

using namespace dorvane;
using namespace dorvane::records;

namespace {

using Etat = IssueDocument::Etat;
using Mots = std::vector<std::string>;
using Documents = std::vector<NoDocument>;

struct Scene : EssaiFamille {
    NoOrdre louis = Creer(Sexe::Homme, "Martin", "Louis", "1790");
    NoOrdre rose = Creer(Sexe::Femme, "Blanc", "Rose", "1795");

    NoDocument Document(std::string_view titre, std::string_view fichier = "a.jpg") {
        SaisieDocument saisie;
        saisie.valeurs.titre = titre;
        saisie.valeurs.fichier = fichier;
        REQUIRE(ValiderDocument(session, saisie).etat == Etat::Ecrit);
        return saisie.document;
    }
    NoEvenement Evenement(std::string_view date) {
        SaisieEvenement saisie = NouvelEvenement(louis, "MAIN");
        saisie.date = date;
        saisie.type = "CENS";
        REQUIRE(ValiderEvenement(session, saisie).etat == IssueEvenement::Etat::Ecrit);
        return saisie.evenement;
    }
    std::string Titres() {
        std::string titres;
        for (std::uint32_t rang = 1; rang <= base.entete.NbTriDocuments; ++rang)
            titres += base.R_IMAGE.TitreDoc(base.R_TRI.DocumentAuRang(rang)) + '|';
        return titres;
    }
    void Oublier() {
        base.marques.ModifBase = base.marques.ModifTriEvenements = false;
        base.marques.ModifTriIndividus = base.marques.ModifTriDocuments = false;
        fin = base.volume.FinFichier();
    }
    [[nodiscard]] bool Intacte() const {
        return !base.marques.Modifie() && base.volume.FinFichier() == fin;
    }
    std::uint32_t fin = 0;
};

}  // namespace

TEST_CASE_FIXTURE(Scene,
                  "ValiderDocument: a new document is numbered, counted and sorted by title") {
    Document("Mariage");
    Document("École"_1252);
    Document("acte");
    CHECK(Titres() == "acte|École|Mariage|"_1252);
    CHECK(base.entete.DernierDocument == 3);
    CHECK(base.entete.NbTriDocuments == 3);
    CHECK(base.marques.ModifTriDocuments);
}

TEST_CASE_FIXTURE(Scene, "ValiderDocument: two documents may have the same title") {
    const NoDocument a = Document("Acte", "1.jpg");
    const NoDocument b = Document("Acte", "2.jpg");
    CHECK(Titres() == "Acte|Acte|");
    CHECK(base.R_TRI.DocumentAuRang(1) == a);
    CHECK(base.R_TRI.DocumentAuRang(2) == b);
    CHECK(Dit().empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderDocument: a document without a comment has no position of one") {
    const NoDocument d = Document("Acte");
    std::string tete(4, 'x');
    base.volume.Lire(base.R_IMAGE.LireCellule(d), tete);
    CHECK(tete == std::string(4, '\0'));
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderDocument: what did not change costs no byte; a new title moves the "
                  "document") {
    Document("Baptême"_1252);
    SaisieDocument saisie = ChargerDocument(session, Document("Acte"));
    Oublier();
    CHECK_FALSE(DocumentModifie(session, saisie));
    CHECK(ValiderDocument(session, saisie).etat == Etat::Inchange);
    CHECK(Intacte());
    saisie.valeurs.note = "Registre 3";
    saisie.valeurs.type = "Photo";
    CHECK(DocumentModifie(session, saisie));
    CHECK(ValiderDocument(session, saisie).etat == Etat::Ecrit);
    CHECK_FALSE(base.marques.ModifTriDocuments);
    CHECK(ChargerDocument(session, saisie.document) == saisie);
    saisie.valeurs.titre = "Certificat";
    CHECK(ValiderDocument(session, saisie).etat == Etat::Ecrit);
    CHECK(Titres() == "Baptême|Certificat|"_1252);
    CHECK(base.entete.NbTriDocuments == 2);
    CHECK(base.entete.DernierDocument == 2);
}

TEST_CASE_FIXTURE(Scene,
                  "ValiderDocument: nothing, names that would not be found again and texts that "
                  "would be cut are refused") {
    SaisieDocument saisie;
    Oublier();
    CHECK(ValiderDocument(session, saisie) == IssueDocument{Etat::Refuse, ChampDocument::Titre});
    saisie.valeurs.fichier = "photo#2.jpg";
    CHECK(ValiderDocument(session, saisie) == IssueDocument{Etat::Refuse, ChampDocument::Fichier});
    saisie.valeurs.fichier = "L'Ha\xFF.jpg";
    CHECK(ValiderDocument(session, saisie) == IssueDocument{Etat::Refuse, ChampDocument::Fichier});
    saisie.valeurs = {std::string(20000, 't'), std::string(11996, 'f'), "", ""};
    CHECK(ValiderDocument(session, saisie) == IssueDocument{Etat::Refuse, ChampDocument::Titre});
    saisie.valeurs.fichier = "a.jpg";
    saisie.valeurs.note = std::string(32001, 'n');
    CHECK(ValiderDocument(session, saisie) == IssueDocument{Etat::Refuse, ChampDocument::Note});
    base.entete.DernierDocument = storage::MaxDocuments;
    saisie.valeurs.note.clear();
    CHECK(ValiderDocument(session, saisie).etat == Etat::Refuse);
    base.entete.DernierDocument = 0;
    CHECK(Dit() == Mots{"DocumentSansTitreNiFichier", "NomFichierCaractereInterdit",
                        "NomFichierCaractereInterdit", "DocumentTropLong", "CommentaireTropLong",
                        "MaximumDocumentsBaseAtteint"});
    CHECK(Intacte());
    CHECK_FALSE(saisie.document);
    // To the byte.
    saisie.valeurs = {std::string(20000, 't'), std::string(11990, 'f'), "Acte",
                      std::string(32000, 'n')};
    CHECK(ValiderDocument(session, saisie).etat == Etat::Ecrit);
    CHECK(ChargerDocument(session, saisie.document) == saisie);
    CHECK(session.incidents.empty());
}

TEST_CASE_FIXTURE(Scene, "ValiderDocument: what would end a record early is made harmless") {
    SaisieDocument saisie;
    saisie.valeurs = {std::string("A\0B #1", 6), "a.jpg", "x#", "voir #2\r\n"};
    CHECK(ValiderDocument(session, saisie).etat == Etat::Ecrit);
    const storage::Document lu = ChargerDocument(session, saisie.document).valeurs;
    CHECK(lu == storage::Document{"A B -1", "a.jpg", "x-", "voir -2"});
    Oublier();
    CHECK(ValiderDocument(session, saisie).etat == Etat::Inchange);
    CHECK(Intacte());
}

TEST_CASE_FIXTURE(Scene, "ValiderDocument: a kind that is new joins the list of the base") {
    session.parametres.base.typeDocument = "Photo/Acte/";
    SaisieDocument saisie;
    saisie.valeurs = {"A", "a.jpg", "Carte", ""};
    CHECK(ValiderDocument(session, saisie).etat == Etat::Ecrit);
    saisie.valeurs.type = "Photo";
    CHECK(ValiderDocument(session, saisie).etat == Etat::Ecrit);
    saisie.valeurs.type = "A/B";
    CHECK(ValiderDocument(session, saisie).etat == Etat::Ecrit);
    CHECK(session.parametres.base.typeDocument == "Photo/Acte/Carte/");
    CHECK(TypesDocument(session) == Mots{"Photo", "Acte", "Carte", "E-Mail"});
}

TEST_CASE("TitreAffiche: a title is shown up to its slash; without one the file stands for it") {
    CHECK(TitreAffiche(storage::Document{"Acte / copie / 2", "", "", ""}) == "Acte");
    CHECK(TitreAffiche(storage::Document{"Acte", "b.jpg", "", ""}) == "Acte");
    CHECK(TitreAffiche(storage::Document{"", "images\\b.jpg", "", ""}) == "b.jpg");
    CHECK(TitreAffiche(storage::Document{"", "images/b.jpg", "", ""}) == "b.jpg");
    CHECK(TitreAffiche(storage::Document{}).empty());
}

TEST_CASE("NatureDe: files, links, addresses and mail are told by name and kind") {
    const auto sorte = [](const char* fichier, const char* type = "") {
        return NatureDe(storage::Document{"Titre", fichier, type, ""});
    };
    CHECK(sorte("") == NatureDocument::Rien);
    CHECK(sorte("  ") == NatureDocument::Rien);
    CHECK(sorte("photo@2x.jpg") == NatureDocument::Fichier);
    CHECK(sorte("Texte.LGO") == NatureDocument::Lien);
    CHECK(sorte("HTTP://EXEMPLE.FR") == NatureDocument::Adresse);
    CHECK(sorte("https://exemple.fr") == NatureDocument::Adresse);
    CHECK(sorte("jean@exemple.fr", "e-mail") == NatureDocument::Courriel);
    CHECK(sorte("mailto:jean@exemple.fr") == NatureDocument::Courriel);
    CHECK(NatureDe(storage::Document{"E-Mail", "jean@exemple.fr", "", ""}) ==
          NatureDocument::Courriel);
    CHECK(AdresseDe(storage::Document{"", "jean@exemple.fr", "E-Mail", ""}) ==
          "mailto:jean@exemple.fr");
    CHECK(AdresseDe(storage::Document{"", "MAILTO:jean@exemple.fr", "E-Mail", ""}) ==
          "MAILTO:jean@exemple.fr");
    CHECK(AdresseDe(storage::Document{"", "HTTP://EXEMPLE.FR", "", ""}) == "HTTP://EXEMPLE.FR");
    CHECK(AdresseDe(storage::Document{"", "a.jpg", "", ""}).empty());
}

TEST_CASE_FIXTURE(Scene,
                  "AttacherDocument: to a person once, to an event once, never a document that is "
                  "no more") {
    const NoDocument a = Document("A");
    const NoEvenement e = Evenement("1/1/1830");
    CHECK(AttacherDocument(session, louis, a));
    CHECK_FALSE(AttacherDocument(session, louis, a));
    CHECK(AttacherDocument(session, e, a));
    CHECK_FALSE(AttacherDocument(session, e, a));
    CHECK(Dit() == Mots{"DocumentDejaDansLaListe", "DocumentDejaDansLaListe"});
    CHECK_FALSE(AttacherDocument(session, louis, NoDocument{9}));
    CHECK_FALSE(AttacherDocument(session, NoOrdre{99}, a));
    CHECK_FALSE(AttacherDocument(session, NoEvenement{9}, a));
    CHECK(base.R_LSTIMG.Elements(louis) == Documents{a});
    CHECK(base.R_EVT.Documents(e) == Documents{a});
    CHECK(ChercherUsages(session, a) == UsagesDocument{{louis}, {e}});
}

TEST_CASE_FIXTURE(Scene, "AttacherDocument: the 201st document of a person is refused") {
    std::vector<NoDocument> tous;
    for (int i = 0; i <= 200; ++i)
        tous.push_back(Document("D"));
    for (int i = 0; i < 200; ++i)
        REQUIRE(AttacherDocument(session, louis, tous[static_cast<std::size_t>(i)]));
    Oublier();
    CHECK_FALSE(AttacherDocument(session, louis, tous[200]));
    CHECK_FALSE(PeutAvoirDocument(session, louis));
    CHECK_FALSE(PeutAvoirDocument(session, NoOrdre{99}));
    CHECK(Dit() == Mots{"MaximumDocumentsPersonneAtteint(Louis Martin)",
                        "MaximumDocumentsPersonneAtteint(Louis Martin)"});
    CHECK(Intacte());
}

TEST_CASE_FIXTURE(Scene, "DeplacerDocument: entries change places, never past the ends") {
    const NoDocument a = Document("A");
    const NoDocument b = Document("B");
    const NoEvenement e = Evenement("1/1/1830");
    for (const NoDocument d : {a, b}) {
        REQUIRE(AttacherDocument(session, louis, d));
        REQUIRE(AttacherDocument(session, e, d));
    }
    CHECK_FALSE(DeplacerDocument(session, louis, 1, -1));
    CHECK_FALSE(DeplacerDocument(session, louis, 2, 1));
    CHECK_FALSE(DeplacerDocument(session, e, 0, 1));
    CHECK(DeplacerDocument(session, louis, 1, 1));
    CHECK(DeplacerDocument(session, e, 2, -1));
    CHECK(base.R_LSTIMG.Elements(louis) == Documents{b, a});
    CHECK(base.R_EVT.Documents(e) == Documents{b, a});
}

TEST_CASE_FIXTURE(Scene, "DetacherDocument: asks, and leaves the document itself") {
    const NoDocument a = Document("Acte / copie");
    const NoEvenement e = Evenement("1/1/1830");
    REQUIRE(AttacherDocument(session, louis, a));
    REQUIRE(AttacherDocument(session, e, a));
    Repondre({Non, Oui, Oui});
    CHECK_FALSE(DetacherDocument(session, louis, 1));
    CHECK(DetacherDocument(session, louis, 1));
    CHECK(DetacherDocument(session, e, 1));
    CHECK_FALSE(DetacherDocument(session, e, 1));
    CHECK(Dit() == Mots{"ConfirmerDetacherDocument(Acte)+ConfirmerSuppression",
                        "ConfirmerDetacherDocument(Acte)+ConfirmerSuppression",
                        "ConfirmerDetacherDocument(Acte)+ConfirmerSuppression"});
    CHECK(base.R_LSTIMG.NbElements(louis) == 0);
    CHECK(ChercherUsages(session, a).Aucun());
    CHECK(base.R_IMAGE.LireCellule(a));
}

TEST_CASE_FIXTURE(Scene,
                  "SupprimerDocument: asks, then takes it from persons, events, table and title; "
                  "the number is not given again") {
    const NoDocument a = Document("Acte");
    const NoDocument b = Document("Baptême"_1252);
    const NoEvenement e = Evenement("1/1/1830");
    for (const NoDocument d : {a, b}) {
        REQUIRE(AttacherDocument(session, louis, d));
        REQUIRE(AttacherDocument(session, rose, d));
        REQUIRE(AttacherDocument(session, e, d));
    }
    PoserDocBase(session, a);
    Oublier();
    Repondre({Non});
    CHECK_FALSE(SupprimerDocument(session, a));
    CHECK(dialogue.titres.back().no == message::TitreSuppression);
    CHECK(Intacte());
    Repondre({Oui});
    CHECK(SupprimerDocument(session, a));
    CHECK(Dit() == Mots{"ConfirmerSupprimerDocument(Acte, 3)+ConfirmerSuppression",
                        "ConfirmerSupprimerDocument(Acte, 3)+ConfirmerSuppression"});
    CHECK_FALSE(base.R_IMAGE.LireCellule(a));
    CHECK(base.R_LSTIMG.Elements(louis) == Documents{b});
    CHECK(base.R_LSTIMG.Elements(rose) == Documents{b});
    CHECK(base.R_EVT.Documents(e) == Documents{b});
    CHECK(Titres() == "Baptême|"_1252);
    CHECK_FALSE(base.entete.DocBase);
    CHECK(base.entete.DernierDocument == 2);
    CHECK_FALSE(SupprimerDocument(session, a));
    CHECK(Document("Autre") == NoDocument{3});
}

TEST_CASE_FIXTURE(Scene, "PoserDocBase: sets the mark of the base, and only when it changes") {
    const NoDocument a = Document("Les Martin de Brest");
    Oublier();
    PoserDocBase(session, a);
    CHECK(base.marques.ModifBase);
    CHECK(shell::TitrePrincipal(session) == "Les Martin de Brest");
    Oublier();
    PoserDocBase(session, a);
    CHECK(Intacte());
    PoserDocBase(session, {});
    CHECK_FALSE(base.entete.DocBase);
}

TEST_CASE_FIXTURE(Scene, "ChargerDocument: a record without an end is empty, and told") {
    const NoDocument d = Document("Acte");
    base.R_IMAGE.EcrireCellule(d,
                               base.volume.Ajouter(std::string(4, '\0') + std::string(40000, 'x')));
    base.R_IMAGE.InitColonne();
    base.R_IMAGE.EcrireCellule(d,
                               base.volume.Ajouter(std::string(4, '\0') + std::string(40000, 'x')));
    CHECK(ChargerDocument(session, d).valeurs == storage::Document{});
    REQUIRE(session.incidents.size() == 1);
    CHECK(session.incidents[0] == std::pair{storage::Incident::DocumentAbime, d.valeur});
    CHECK(Dit() == Mots{"IncidentDocument(1)"});
}

TEST_CASE_FIXTURE(Scene, "CheminPourDocument: relative below the folder of the base, else whole") {
    CHECK(CheminPourDocument(session, dossier / "images/a.jpg") == "images/a.jpg");
    CHECK(CheminPourDocument(session, dossier / "images/../a.jpg") == "a.jpg");
    CHECK(CheminPourDocument(session, dossier / "../a.jpg") ==
          (dossier / "../a.jpg").lexically_normal());
    CHECK(CheminPourDocument(session, "/autre/a.jpg") == "/autre/a.jpg");
}

TEST_CASE_FIXTURE(Scene, "CreerLien: a text file that names its target, never over another file") {
    doublures::EcrireFichier(dossier / "note.odt", "x");
    const std::filesystem::path lien = CreerLien(session, dossier / "note.odt");
    CHECK(lien == dossier / "note.LGO");
    CHECK(shell::LireTout(lien) == "note.odt\n");
    CHECK(LireLien(lien) == dossier / "note.odt");
    CHECK(CreerLien(session, dossier / "note.odt") == lien);
    const std::filesystem::path autre = CreerLien(session, "/ailleurs/note.odt");
    CHECK(autre == dossier / "note 2.LGO");
    CHECK(LireLien(autre) == "/ailleurs/note.odt");
    CHECK(LireLien(lien) == dossier / "note.odt");
}

TEST_CASE_FIXTURE(Scene, "LireLien: what is no link file of ours names nothing") {
    doublures::EcrireFichier(dossier / "ole.lgo", std::string("\xD0\xCF\x11\xE0\0\0\0", 7));
    doublures::EcrireFichier(dossier / "vide.lgo", "");
    doublures::EcrireFichier(dossier / "long.lgo", std::string(5000, 'x'));
    for (const char* nom : {"ole.lgo", "vide.lgo", "long.lgo", "absent.lgo"})
        CHECK(LireLien(dossier / nom).empty());
}
