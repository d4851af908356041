#include "interchange/releves/ImportReleve.h"

#include "doublures/Coherence.h"
#include "doublures/SessionEssai.h"
#include "messages/Dorvane.h"
#include "messages/Releve.h"
#include "shell/Demarrage.h"
#include "storage/Base.h"
#include "storage/Slots.h"
#include "values/Texte1252.h"

#include <memory>

#include <doctest/doctest.h>

namespace dorvane::interchange {

namespace {

using Sorte = SorteReleve;

/// A survey imported into a base that is then opened.
struct EssaiReleve : doublures::SessionEssai {
    EssaiReleve() {
        shell::Demarrage(session);
        shell::ChoisirLangue(session, "Français");
    }
    void Importer(Sorte sorte, std::string_view fichier) {
        base.reset();
        rapport = {};
        const Releve releve = LireReleve(fichier, sorte);
        REQUIRE(ImporterReleve(session, releve, "actes.csv", chemin, rapport));
        texteRapport = ComposerRapport(rapport, releve, session);
        // What the preview tells is what the import does.
        CHECK(ComposerRapport(ExaminerReleve(session, releve), releve, session) == texteRapport);
        storage::ProgressionMuette muet;
        base = storage::OuvrirBase(session.disque, chemin, muet).base;
        REQUIRE(base != nullptr);
        CHECK(doublures::Ecarts(*base) == "");
    }
    [[nodiscard]] std::string Nom(std::uint32_t n) const {
        return std::string{base->R_NOM.LireTexte(NoOrdre{n})};
    }
    [[nodiscard]] std::string Annee(std::uint32_t n) const {
        return std::string{base->R_NAISS.LireCellule(NoOrdre{n})};
    }
    [[nodiscard]] std::vector<NoMessage> Constats() const {
        std::vector<NoMessage> messages;
        for (const RapportReleve::Constat& c : rapport.constats)
            messages.push_back(c.message);
        return messages;
    }
    [[nodiscard]] std::vector<std::string> Roles(std::uint32_t e) const {
        std::vector<std::string> roles;
        for (const storage::LienEvenement& lien : base->R_EVT.Liens(NoEvenement{e}))
            roles.push_back(std::to_string(lien.individu.valeur) + lien.role);
        return roles;
    }
    std::filesystem::path chemin = dossier / "releve.LGD";
    RapportReleve rapport;
    std::string texteRapport;
    std::unique_ptr<storage::Base> base;
};

using Mots = std::vector<std::string>;
using Messages = std::vector<NoMessage>;

}  // namespace

TEST_CASE_FIXTURE(EssaiReleve, "a baptism gives an event, the child, the father and the mother") {
    Importer(Sorte::Bapteme,
             "Année;Mois;Jour\n1780;3;12;Mer;Dupont;Jean Louis Marie;M;Dupont;Pierre;Martin;Anne;"
             "parrain Luc\n");
    CHECK(Constats().empty());
    CHECK(base->entete.NbTriIndividus == 3);
    CHECK(Nom(1) == "Dupont;Jean;Louis Marie;12/3");
    CHECK(Annee(1) == "1780");
    CHECK(base->R_SEXE.LireCellule(NoOrdre{1}) == Sexe::Homme);
    CHECK(base->R_PERE.LireCellule(NoOrdre{1}) == NoOrdre{2});
    CHECK(base->R_MERE.LireCellule(NoOrdre{1}) == NoOrdre{3});
    CHECK(base->R_ENFANT.Elements(NoOrdre{2}) == std::vector{NoOrdre{1}});
    CHECK(base->R_SEXE.LireCellule(NoOrdre{3}) == Sexe::Femme);
    CHECK(base->R_EVT.TypeEvt(NoEvenement{1}) == "CHR");
    CHECK(base->R_EVT.CleDateEvt(NoEvenement{1}) == DateVersSerie(DateCivile{12, 3, 1780}));
    CHECK(base->R_EVT.LieuEvt(NoEvenement{1}) == "Mer");
    CHECK(base->R_EVT.NoteEvt(NoEvenement{1}) ==
          "Baptême\r\nEnfant Jean Louis Marie Dupont Sexe : H\r\n\tPère Pierre Dupont\r\n\tMère "
          "Anne Martin\r\nparrain Luc"_1252);
    CHECK(Roles(1) == Mots{"1CHIL", "2FATH", "3MOTH"});
    CHECK(base->R_LSTEVT.TexteElement(NoOrdre{3}, 1) == "MOTH");
    CHECK(base->R_EVT.Documents(NoEvenement{1}) == std::vector{NoDocument{1}});
    CHECK(base->R_IMAGE.TitreDoc(NoDocument{1}) == "Relevé Baptême"_1252);
    CHECK(base->R_IMAGE.FichierDoc(NoDocument{1}) == "actes.csv");
}

TEST_CASE_FIXTURE(EssaiReleve, "the keywords of names are the first ones of the base") {
    Importer(Sorte::Bapteme, "1780;3;12;Mer;Dupont;Jean Louis;M\n");
    const auto libelle = [this](std::uint32_t k) {
        return base->motsCles.LibelleType(NoMotCle{k}).libelle;
    };
    CHECK(Mots{libelle(1), libelle(2), libelle(3)} == Mots{"FNAM", "OFNM", "BIRN"});
    CHECK(base->motsCles.LibelleType(NoMotCle{1}).symbole == u'¶'_1252);
    CHECK(base->motsCles.LibelleType(NoMotCle{3}).symbole == '|');
    CHECK(storage::NbSlots(base->entete.SlotsIndividu) == 0);
    const char autres = base->motsCles.LibelleType(NoMotCle{2}).symbole;
    CHECK(base->R_TEXTE.LireTexte(NoOrdre{1}) ==
          std::string{"|Dupont ¶Jean "_1252} + autres + "Louis\r\n");
    CHECK(base->R_INDEX.ListeMots(base->motsCles.TypeDuSymbole(autres)).size() == 1);
    Importer(Sorte::Sepulture, "1780;3;12;Mer;Dupont;Jean;M\n");
    CHECK(libelle(4) == "BURI");
    CHECK(storage::NbSlots(base->entete.SlotsIndividu) == 1);
    Importer(Sorte::Ascendance, "1;Dupont;Jean;forgeron\n");
    CHECK(Mots{libelle(1), libelle(2)} == Mots{"FNAM", "BIRN"});
}

TEST_CASE_FIXTURE(EssaiReleve, "a year alone gives the date 01/01 and the year") {
    Importer(Sorte::Bapteme, "1780;;;Mer;Dupont;Jean;F\n");
    CHECK(base->R_EVT.CleDateEvt(NoEvenement{1}) == DateVersSerie(DateCivile{1, 1, 1780}));
    CHECK(Nom(1) == "Dupont;Jean;");
    CHECK(Annee(1) == "1780");
    CHECK(Constats().empty());
}

TEST_CASE_FIXTURE(EssaiReleve, "a person of neither sex H nor F is stored with I and told") {
    Importer(Sorte::Bapteme, "1780;1;1;Mer;Dupont;Jean;?\n1780;1;1;Mer;Durand;Luc;\n");
    CHECK(base->R_SEXE.LireCellule(NoOrdre{1}) == Sexe::Indetermine);
    CHECK(base->R_SEXE.LireCellule(NoOrdre{2}) == Sexe::Indetermine);
    CHECK(Constats() == Messages{message::RapportSexeIncompris});
    CHECK(base->R_EVT.NoteEvt(NoEvenement{1}) == "Baptême\r\nEnfant Jean Dupont"_1252);
}

TEST_CASE_FIXTURE(EssaiReleve, "a marriage joins two persons and names their four parents") {
    Importer(Sorte::Mariage,
             "1786,2,7,Talcy,Moreau,Jean,25,feu Louis,Petit,Anne,Rose Girard,Blanc,Marie,20 ans,"
             "Paul,Roux,feue Jeanne,,témoin Luc\n");
    CHECK(Constats().empty());
    CHECK(base->entete.NbTriIndividus == 6);
    CHECK(Nom(1) == "Moreau;Jean;;CAL");
    CHECK(Annee(1) == "1761");
    CHECK(Nom(2) == "Moreau;Louis;;;BEF");
    CHECK(base->R_DECES.LireCellule(NoOrdre{2}) == "1786");
    CHECK(Nom(5) == "Blanc;Paul;");
    CHECK(base->R_DECES.LireCellule(NoOrdre{5}).empty());
    CHECK(base->R_DECES.LireCellule(NoOrdre{6}) == "1786");
    CHECK(base->R_EPOUX.LireCellule(NoMariage{1}) == NoOrdre{1});
    CHECK(base->R_EPOUSE.LireCellule(NoMariage{1}) == NoOrdre{4});
    CHECK(base->R_DEBMAR.LireCellule(NoMariage{1}) == "1786");
    CHECK(storage::LieuMariage(*base, NoMariage{1}) == "Talcy");
    CHECK(base->R_PERE.LireCellule(NoOrdre{4}) == NoOrdre{5});
    CHECK(Roles(1) == Mots{"1HUSB", "4WIFE", "2FATH", "3MOTH", "5FATH", "6MOTH"});
    CHECK(base->R_EVT.NoteEvt(NoEvenement{1}) ==
          "Mariage\r\nEpoux Jean Moreau 25 ans\r\n\tVeuf de Rose Girard\r\n\tPère feu Louis "
          "Moreau\r\n\tMère Anne Petit\r\nEpouse Marie Blanc 20 ans\r\n\tPère Paul "
          "Blanc\r\n\tMère feue Jeanne Roux\r\ntémoin Luc"_1252);
    CHECK(base->R_EVT.LibelleEvt(NoEvenement{1}) == "Jean Moreau - Marie Blanc");
}

TEST_CASE_FIXTURE(EssaiReleve, "a burial reads an age, a dead father and a partner") {
    Importer(Sorte::Sepulture,
             "1780\t3\t12\tMer\tDupont\tAnne\tF\t45 ans\t\tTalcy\tDupont\tfeu Pierre\t\t\tMoreau\t"
             "Jean\tnote\n1780\t3\t12\tMer\tDupont\tLuc\tM\t3 jours\t\t\t\t\t\t\t\t\t\n");
    CHECK(Constats().empty());
    CHECK(Nom(1) == "Dupont;Anne;;BET 1734 AND;12/3");
    CHECK(Annee(1) == "1735");
    CHECK(base->R_DECES.LireCellule(NoOrdre{1}) == "1780");
    CHECK(storage::LieuNaissance(*base, NoOrdre{1}) == "Talcy");
    const storage::TableSlots slots = storage::SlotsDe(*base, NoOrdre{1});
    REQUIRE(slots.size() == 1);
    CHECK(slots[0] == storage::ValeurSlot{"12/3", "1780", "Mer"});
    CHECK(base->R_DECES.LireCellule(NoOrdre{2}) == "1780");
    CHECK(base->R_EPOUX.LireCellule(NoMariage{1}) == NoOrdre{3});
    CHECK(base->R_EPOUSE.LireCellule(NoMariage{1}) == NoOrdre{1});
    CHECK(Roles(1) == Mots{"1DEAD", "2FATH", "3SPOU"});
    CHECK(base->R_EVT.TypeEvt(NoEvenement{1}) == "BURI");
    CHECK(base->R_EVT.NoteEvt(NoEvenement{1}) ==
          "Inhumation\r\nDéfunt Anne Dupont Sexe : F Age : 45 ans Naissance : de Talcy\r\n\tPère "
          "décédé Pierre Dupont\r\n\tConjoint Jean Moreau\r\nnote"_1252);
    CHECK(Annee(4) == "1780");
}

TEST_CASE_FIXTURE(EssaiReleve, "a dead parent is told in the column of the surname as well") {
    Importer(Sorte::Sepulture,
             "1780;3;12;Mer;Dupont;Luc;M;;;;feu Dupont;Pierre;Feue Martin;Anne;Blanc;feue Rose\n");
    CHECK(Nom(2) == "Dupont;Pierre;;;BEF");
    CHECK(Nom(3) == "Martin;Anne;;;BEF");
    CHECK(Nom(4) == "Blanc;Rose;;;BEF");
    CHECK(base->R_DECES.LireCellule(NoOrdre{3}) == "1780");
    CHECK(base->R_EVT.NoteEvt(NoEvenement{1}) ==
          "Inhumation\r\nDéfunt Luc Dupont Sexe : H\r\n\tPère décédé Pierre Dupont\r\n\tMère Anne "
          "Feue Martin\r\n\tConjoint feue Rose Blanc"_1252);
}

TEST_CASE_FIXTURE(EssaiReleve, "a burial that tells the birth believes it rather than the age") {
    Importer(Sorte::Sepulture, "1780;3;12;Mer;Dupont;Luc;M;45 ans;12 mars 1736;Talcy\n");
    CHECK(Nom(1) == "Dupont;Luc;;12/3;12/3");
    CHECK(Annee(1) == "1736");
    CHECK(base->R_EVT.NoteEvt(NoEvenement{1}) ==
          "Inhumation\r\nDéfunt Luc Dupont Sexe : H Age : 45 ans Naissance : 12 mars 1736 de "
          "Talcy"_1252);
}

TEST_CASE_FIXTURE(EssaiReleve, "ascendants are joined by their Sosa numbers, in any order") {
    Importer(Sorte::Ascendance,
             "Sosa;Nom\n3;Martin;Anne;;;;;;1844;Mer\n1;Dupont;Luc;;1845;Blois\n2;Dupont;Jean;"
             "forgeron;12/3/1820;Saint Malo;;;;;né tard\n9;Le Goff;Rose\n2;Autre;Paul\nx;Y;Z\n");
    CHECK(base->entete.NbTriIndividus == 4);
    CHECK(base->R_PERE.LireCellule(NoOrdre{2}) == NoOrdre{3});
    CHECK(base->R_MERE.LireCellule(NoOrdre{2}) == NoOrdre{1});
    CHECK(base->R_DEBMAR.LireCellule(NoMariage{1}) == "1844");
    CHECK(storage::LieuMariage(*base, NoMariage{1}) == "Mer");
    CHECK(Nom(3) == "Dupont;Jean;;12/3");
    CHECK(storage::LieuNaissance(*base, NoOrdre{3}) == "Saint Malo");
    CHECK(storage::SlotsDe(*base, NoOrdre{3}).at(0).lieu == "forgeron");
    CHECK(storage::NoteDe(*base, NoOrdre{3}) == "né tard"_1252);
    CHECK(base->R_SEXE.LireCellule(NoOrdre{3}) == Sexe::Homme);
    CHECK(base->entete.DernierEvenement == 0);
    CHECK(Constats() == Messages{message::RapportEnfantAbsentDuReleve, message::RapportSosaEnDouble,
                                 message::RapportSosaPasUnNombre});
    CHECK(rapport.constats[0].ligne == 5);
}

TEST_CASE_FIXTURE(EssaiReleve, "a marriage without its other partner is told, never dropped") {
    Importer(Sorte::Ascendance,
             "1;Dupont;Luc;;;;;;1870;Mer\n2;Dupont;Jean;;;;;;1844;Mer\n6;A;B;;;;;;1800\n7;C;D\n");
    CHECK(base->entete.DernierMariage == 0);
    CHECK(Constats() ==
          Messages{message::RapportConjointAbsentDuReleve, message::RapportConjointAbsentDuReleve,
                   message::RapportEnfantAbsentDuReleve, message::RapportConjointAbsentDuReleve,
                   message::RapportEnfantAbsentDuReleve});
    Importer(Sorte::Ascendance, "1;Dupont;Luc\n2;Dupont;Jean;;;;;;1844;Mer\n3;Martin;Anne\n");
    CHECK(Constats().empty());
    CHECK(base->R_DEBMAR.LireCellule(NoMariage{1}) == "1844");
}

TEST_CASE_FIXTURE(EssaiReleve, "a line without a separator stops the import and keeps the rest") {
    Importer(Sorte::Bapteme, "1780;1;1;Mer;Dupont;Jean;M\nrien\n1781;1;1;Mer;Durand;Luc;M\n");
    CHECK(base->entete.NbTriIndividus == 1);
    CHECK(Constats() == Messages{message::RapportLigneSansSeparateur});
    CHECK(texteRapport.find("Ligne 2 : ") != std::string::npos);
}

TEST_CASE_FIXTURE(EssaiReleve, "what is not understood is told line by line") {
    Importer(Sorte::Bapteme,
             "an 4;1;1;Mer;Dupont;Jean;M\n1780;1;1;Mer;;;M\n1780;2;31;Mer;Durand;Luc;M;;;;;;x\n");
    CHECK(Constats() == Messages{message::RapportDateIncomprise, message::RapportLigneSansNom,
                                 message::RapportTropDeColonnes,
                                 message::RapportJourOuMoisIncompris});
    CHECK(base->R_EVT.CleDateEvt(NoEvenement{1}) == storage::CleSansDate);
    CHECK(rapport.lignes == 2);
}

TEST_CASE_FIXTURE(EssaiReleve, "hostile characters shift no record") {
    Importer(Sorte::Bapteme, "1780;1;1;M#er;\"Du;pont#\";\"Je;an\";M;\"A;b\";C#d;;;#\xFF\n");
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == "Du,pont-");
    CHECK(base->R_EVT.LieuEvt(NoEvenement{1}) == "M-er");
    CHECK(base->R_NOM.PrenomDe(NoOrdre{2}) == "C-d");
}

TEST_CASE_FIXTURE(EssaiReleve, "a cancel leaves no base") {
    std::string lignes;
    for (int i = 0; i < 1000; ++i)
        lignes += "1780;1;1;Mer;Dupont;Jean;M\n";
    progression.annulerAu = 2;
    CHECK(ImporterReleve(session, LireReleve(lignes, Sorte::Bapteme), "a.csv", chemin, rapport) ==
          shell::Issue::Arretee(shell::Msg(message::ImportAbandonne)));
    CHECK_FALSE(std::filesystem::exists(chemin));
}

TEST_CASE_FIXTURE(EssaiReleve, "a survey fills a base up to its last person") {
    std::string lignes;
    for (int i = 1; i <= 64001; ++i)
        lignes += std::to_string(i) + ";D;J\n";
    Importer(Sorte::Ascendance, lignes);
    CHECK(base->entete.NbTriIndividus == 64000);
    CHECK(base->entete.DernierMariage == 31999);
    CHECK(Constats() == Messages{message::RapportBasePleine});
    CHECK(rapport.constats[0].ligne == 64001);
}

TEST_CASE_FIXTURE(EssaiReleve, "a name that is cut is told, a long remark is kept whole") {
    const std::string longue(301, 'N');
    Importer(Sorte::Bapteme, "1780;1;1;Mer;" + longue + ";Luc;M;;;;;" + longue + "\n1780;1;1;Mer;" +
                                 longue.substr(1) + ";Jean;M\n");
    CHECK(Constats() == Messages{message::RapportValeurTropLongue});
    CHECK(base->R_NOM.NomDe(NoOrdre{1}) == longue.substr(1));
    CHECK(base->R_EVT.NoteEvt(NoEvenement{1}).ends_with("\r\n" + longue));
}

TEST_CASE_FIXTURE(EssaiReleve, "a survey past the limit of events keeps what fits") {
    std::string lignes;
    for (int i = 0; i < 32010; ++i)
        lignes += "1780;1;1;Mer;D;J;M\n";
    Importer(Sorte::Bapteme, lignes);
    CHECK(base->entete.NbTriEvenements == 32000);
    CHECK(base->entete.NbTriIndividus == 32000);
    CHECK(Constats() == Messages(10, message::RapportBasePleine));
}

}  // namespace dorvane::interchange
