#pragma once

#include "doublures/SessionEssai.h"
#include "records/AccordEvenements.h"
#include "records/Famille.h"
#include "records/Fiche.h"
#include "records/FicheDocument.h"
#include "records/FicheEvenement.h"
#include "records/FicheMotsCles.h"
#include "records/Filiation.h"
#include "records/Individus.h"
#include "records/Liens.h"
#include "records/Unions.h"
#include "storage/Base.h"
#include "values/Texte1252.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace dorvane::doublures {

/// Somebody who edits a base as the windows let one do it, by chance: any operation on any person,
/// with any text, whether it makes sense or not. Questions are answered by chance. The same seed
/// gives the same story.
class HistoireEssai {
public:
    /// `essai` outlives the object and has a base open.
    HistoireEssai(SessionEssai& essai, std::uint32_t graine)
        : session_{essai.session}, hasard_{graine} {}

    /// One thing that a user does; its name.
    std::string_view Agir() {
        using Geste = void (HistoireEssai::*)();
        struct Acte {
            std::string_view nom;
            Geste geste;
            std::uint32_t poids;
        };
        static constexpr Acte Actes[] = {
            {"create", &HistoireEssai::Creer, 9},
            {"sheet", &HistoireEssai::Modifier, 14},
            {"delete", &HistoireEssai::Supprimer, 8},
            {"give parent", &HistoireEssai::DonnerParent, 8},
            {"new parent", &HistoireEssai::ParentCree, 3},
            {"take parent", &HistoireEssai::RetirerParent, 3},
            {"attach child", &HistoireEssai::Attacher, 6},
            {"new child", &HistoireEssai::EnfantCree, 4},
            {"take child", &HistoireEssai::RetirerEnfant, 2},
            {"union", &HistoireEssai::Unir, 7},
            {"take union", &HistoireEssai::Desunir, 3},
            {"order unions", &HistoireEssai::OrdonnerUnions, 2},
            {"link", &HistoireEssai::Lier, 5},
            {"take link", &HistoireEssai::Delier, 3},
            {"new event", &HistoireEssai::NouvelEvenement, 10},
            {"event", &HistoireEssai::ModifierEvenement, 8},
            {"delete event", &HistoireEssai::SupprimerEvenement, 2},
            {"persons of event", &HistoireEssai::LierEvenement, 5},
            {"new document", &HistoireEssai::NouveauDocument, 4},
            {"document", &HistoireEssai::ModifierDocument, 3},
            {"delete document", &HistoireEssai::SupprimerDocument, 1},
            {"documents of person", &HistoireEssai::DocumentsPersonne, 5},
            {"documents of event", &HistoireEssai::DocumentsEvenement, 4},
            {"keywords", &HistoireEssai::MotsCles, 3},
        };
        std::uint32_t somme = 0;
        for (const Acte& acte : Actes)
            somme += acte.poids;
        std::uint32_t tire = Tirer(somme);
        for (const Acte& acte : Actes) {
            if (tire < acte.poids) {
                (this->*acte.geste)();
                return acte.nom;
            }
            tire -= acte.poids;
        }
        return {};
    }

    /// Gives a link another label on one side, by the sheet.
    std::string_view ChangerLibelle() {
        const NoOrdre n = Present();
        if (n && B().R_LIEN.NbElements(n) != 0) {
            records::SaisieFiche saisie = records::ChargerFiche(session_, n);
            const auto liens = static_cast<std::uint32_t>(B().R_LIEN.NbElements(n));
            saisie.lien = records::SaisieLien{1 + Tirer(liens), Libelle()};
            static_cast<void>(records::ValiderFiche(session_, saisie));
        }
        return "label of a link";
    }

    /// What the user answers next.
    shell::Reponse Repondre() { return Tirer(5) < 3 ? shell::Reponse::Oui : shell::Reponse::Non; }

    std::uint32_t Tirer(std::uint32_t sur) {
        return static_cast<std::uint32_t>(hasard_() % std::uint64_t{sur});
    }

private:
    [[nodiscard]] storage::Base& B() const { return *session_.base; }
    template <std::size_t N>
    std::string Parmi(const std::array<std::string_view, N>& textes) {
        return std::string{textes[Tirer(N)]};
    }
    template <class Numero>
    Numero Dans(std::uint32_t dernier) {
        // Now and then a number that was never given.
        return Numero{Tirer(40) == 0 ? dernier + 1 : dernier == 0 ? 0 : 1 + Tirer(dernier)};
    }
    NoOrdre Individu() {
        if (B().entete.NbTriIndividus != 0 && Tirer(20) != 0)
            return B().R_TRI.IndividuAuRang(1 + Tirer(B().entete.NbTriIndividus));
        return Dans<NoOrdre>(B().entete.DernierIndividu);
    }
    /// For what the windows only do with a person who is there.
    NoOrdre Present() {
        const std::uint32_t n = B().entete.NbTriIndividus;
        return n == 0 ? NoOrdre{} : B().R_TRI.IndividuAuRang(1 + Tirer(n));
    }
    NoEvenement Evenement() {
        const std::uint32_t n = B().entete.NbTriEvenements;
        return n == 0 ? NoEvenement{} : B().R_TRI.EvtAuRang(1 + Tirer(n));
    }
    NoDocument Document() {
        const std::uint32_t n = B().entete.NbTriDocuments;
        return n == 0 ? NoDocument{} : B().R_TRI.DocumentAuRang(1 + Tirer(n));
    }
    Cote UnCote() { return Tirer(2) == 0 ? Cote::Pere : Cote::Mere; }

    std::string Nom() {
        static constexpr std::array<std::string_view, 12> Noms{
            "Dupont", "DUPONT", "Évrard-Noël"_1252, "de La Tour", "d'Arc",   "O;Brien", "N#mero",
            "",       "Zola",   "von der Au",       "  Blanc  ",  "Ab;Cd;Ef"};
        return Parmi(Noms);
    }
    std::string Prenom() {
        static constexpr std::array<std::string_view, 9> Prenoms{
            "Jean", "Jean Marie", "Zoé"_1252, "Anne-Marie", "Luc;Paul",
            "",     "|Max",       "\xB6 Eve", "Li"};
        return Parmi(Prenoms);
    }
    std::string Annee() {
        static constexpr std::array<std::string_view, 12> Annees{
            "1850", "1851", "1820", "1790", "1880", "1900", "950", "-44", "18?", "", "", "?"};
        return Parmi(Annees);
    }
    std::string JourMois() {
        static constexpr std::array<std::string_view, 9> Jours{
            "",           "12 mars", "vers", "1er janvier", "31 février"_1252,
            "3 brumaire", "12;3",    "#",    "mai"};
        return Parmi(Jours);
    }
    std::string Lieu() {
        static constexpr std::array<std::string_view, 9> Lieux{
            "",    "Brest",  "BREST", "Saint Malo", "Lyon (Rhône)"_1252,
            "A#B", "$Paris", "...",   "L'Île"_1252};
        return Parmi(Lieux);
    }
    std::string Note() {
        static constexpr std::array<std::string_view, 9> Notes{
            "",
            "Une note.",
            "|DUPONT \xB6Jean $Brest",
            "ligne\r\nOCCU 12/3/1850 $Brest\r\nfin",
            "{\\rtf1\\ansi $Lyon \\'23 |Zola\\par}",
            "@Brest @Brest @Lyon",
            "un#deux",
            "CHR 1/2/1850 @Lyon",
            "~Caen $Caen"};
        return Parmi(Notes);
    }
    std::string Libelle() {
        static constexpr std::array<std::string_view, 6> Libelles{"voisin", "ami", "Parrain",
                                                                  "n#1",    "",    "GODF"};
        return Parmi(Libelles);
    }

    void Remplir(records::SaisieFiche& s) {
        // A few fields at a time, as one types.
        switch (Tirer(9)) {
            case 0:
                s.nom = Nom();
                break;
            case 1:
                s.prenom = Prenom();
                break;
            case 2:
                s.autrePrenom = Prenom();
                break;
            case 3:
                s.sexe = static_cast<Sexe>("HFI"[Tirer(3)]);
                break;
            case 4:
                s.anneeNaissance = Annee();
                s.jourMoisNaissance = JourMois();
                break;
            case 5:
                s.anneeDeces = Annee();
                s.jourMoisDeces = JourMois();
                break;
            case 6:
                s.lieuNaissance = Lieu();
                s.lieuDeces = Lieu();
                break;
            case 7:
                s.slots[Tirer(10)] = {JourMois(), Annee(), Lieu()};
                break;
            default:
                s.note = Note();
                break;
        }
    }
    NoOrdre CreerPersonne(Sexe sexe) {
        records::SaisieFiche saisie;
        saisie.nom = Nom();
        saisie.prenom = Prenom();
        for (int i = 0; i < 3; ++i)
            Remplir(saisie);
        saisie.sexe = sexe;
        return records::CreerIndividu(session_, saisie).individu;
    }
    void Creer() { CreerPersonne(static_cast<Sexe>("HFI"[Tirer(8) == 0 ? 2 : Tirer(2)])); }
    void Modifier() {
        const NoOrdre n = Present();
        if (!n) return;
        records::SaisieFiche saisie = records::ChargerFiche(session_, n);
        for (std::uint32_t i = 1 + Tirer(3); i > 0; --i)
            Remplir(saisie);
        const std::size_t unions = B().R_MARIAG.NbElements(n);
        if (unions != 0 && Tirer(2) == 0) {
            saisie.mariage = records::ChargerUnion(
                session_,
                B().R_MARIAG.ElementListe(n, 1 + Tirer(static_cast<std::uint32_t>(unions))));
            saisie.mariage->debut = Annee();
            saisie.mariage->fin = Annee();
            saisie.mariage->jourMois = JourMois();
            saisie.mariage->lieu = Lieu();
            saisie.mariage->note = Note();
        }
        static_cast<void>(records::ValiderFiche(session_, saisie));
    }
    void Supprimer() {
        if (const NoOrdre n = Present()) records::SupprimerIndividu(session_, n);
    }
    void DonnerParent() {
        static_cast<void>(records::DonnerParent(session_, Individu(), UnCote(), Individu()));
    }
    void ParentCree() {
        const NoOrdre enfant = Present();
        const Cote cote = UnCote();
        if (!enfant) return;
        if (const NoOrdre n = CreerPersonne(SexeDuCote(cote)))
            static_cast<void>(records::ParentCree(session_, enfant, cote, n));
    }
    void RetirerParent() {
        static_cast<void>(records::RetirerParent(session_, Individu(), UnCote()));
    }
    void Attacher() {
        const NoOrdre parent = Present();
        if (parent) static_cast<void>(records::AttacherEnfant(session_, parent, Individu()));
    }
    NoMariage UnionDe(NoOrdre n) {
        const std::size_t unions = B().R_MARIAG.NbElements(n);
        if (unions == 0 || Tirer(3) == 0) return {};
        return B().R_MARIAG.ElementListe(n, 1 + Tirer(static_cast<std::uint32_t>(unions)));
    }
    void EnfantCree() {
        const NoOrdre parent = Present();
        const NoMariage mariage = UnionDe(parent);
        if (!parent || !records::PeutAvoirEnfant(session_, parent, mariage)) return;
        if (const NoOrdre n = CreerPersonne(static_cast<Sexe>("HFI"[Tirer(3)])))
            static_cast<void>(records::EnfantCree(session_, parent, n, mariage));
    }
    void RetirerEnfant() {
        const NoOrdre parent = Present();
        const std::size_t enfants = B().R_ENFANT.NbElements(parent);
        const NoOrdre enfant =
            enfants == 0
                ? Individu()
                : B().R_ENFANT.ElementListe(parent, 1 + Tirer(static_cast<std::uint32_t>(enfants)));
        static_cast<void>(records::RetirerEnfant(session_, parent, enfant));
    }
    void Unir() {
        const NoOrdre n = Present();
        if (n) static_cast<void>(records::CreerUnion(session_, n, Individu()));
    }
    void Desunir() {
        static_cast<void>(
            records::RetirerUnion(session_, Dans<NoMariage>(B().entete.DernierMariage)));
    }
    void OrdonnerUnions() {
        records::ReordonnerUnion(session_, Individu(), Tirer(4), Tirer(2) == 0 ? -1 : 1);
    }
    void Lier() {
        static_cast<void>(records::AjouterLien(session_, Individu(), Individu(), Libelle()));
    }
    void Delier() { static_cast<void>(records::RetirerLien(session_, Individu(), 1 + Tirer(3))); }

    std::string DateEvenement() {
        static constexpr std::array<std::string_view, 9> Dates{"12 mars 1850",
                                                               "1/2/1851",
                                                               "29 février 1852"_1252,
                                                               "30/11/1820",
                                                               "31/12/1799",
                                                               "5 mai 1880",
                                                               "28/2/1900",
                                                               "31 février 1850"_1252,
                                                               ""};
        return Parmi(Dates);
    }
    std::string Type() {
        static constexpr std::array<std::string_view, 7> Types{"BIRT", "DEAT", "MARR", "CHR",
                                                               "BURI", "OCCU", ""};
        return Parmi(Types);
    }
    std::string Role() {
        static constexpr std::array<std::string_view, 9> Roles{
            "CHIL", "FATH", "MOTH", "WITN", "HUSB", "WIFE", "DEAD", "MAIN", "autre"};
        return Parmi(Roles);
    }
    void RemplirEvenement(records::SaisieEvenement& s) {
        switch (Tirer(6)) {
            case 0:
                s.date = DateEvenement();
                break;
            case 1:
                s.type = Type();
                break;
            case 2:
                s.lieu = Lieu();
                s.libelle = Libelle();
                break;
            case 3:
                s.note = Note();
                break;
            case 4:
                if (const NoOrdre n = Present()) s.liens.push_back({n, Role()});
                break;
            default:
                if (!s.liens.empty()) s.liens.erase(s.liens.begin());
                if (const NoDocument d = Document()) s.documents.push_back(d);
                break;
        }
    }
    void NouvelEvenement() {
        records::SaisieEvenement saisie = records::NouvelEvenement(Present(), Role());
        saisie.date = DateEvenement();
        saisie.type = Type();
        for (int i = 0; i < 3; ++i)
            RemplirEvenement(saisie);
        static_cast<void>(records::ValiderEvenement(session_, saisie));
    }
    void ModifierEvenement() {
        const NoEvenement e = Evenement();
        if (!e) return;
        records::SaisieEvenement saisie = records::ChargerEvenement(session_, e);
        RemplirEvenement(saisie);
        RemplirEvenement(saisie);
        static_cast<void>(records::ValiderEvenement(session_, saisie));
    }
    void SupprimerEvenement() {
        if (const NoEvenement e = Evenement()) records::SupprimerEvenement(session_, e);
    }
    void LierEvenement() {
        const NoEvenement e = Evenement();
        if (!e) return;
        switch (Tirer(3)) {
            case 0:
                records::LierPersonne(session_, e, Individu(), Role());
                break;
            case 1:
                if (const auto liens = B().R_EVT.Liens(e); !liens.empty())
                    records::DelierPersonne(session_, e, liens.front().individu, {});
                break;
            default:
                records::DeplacerLien(session_, e, 1 + Tirer(3), Tirer(2) == 0 ? -1 : 1);
                break;
        }
    }

    void RemplirDocument(records::SaisieDocument& s) {
        s.valeurs.titre = Nom() + "/x";
        s.valeurs.fichier = Tirer(6) == 0 ? "" : "photo" + std::to_string(Tirer(9)) + ".jpg";
        s.valeurs.type = Tirer(2) == 0 ? "" : "PHOTO";
        s.valeurs.note = Note();
    }
    void NouveauDocument() {
        records::SaisieDocument saisie;
        RemplirDocument(saisie);
        static_cast<void>(records::ValiderDocument(session_, saisie));
    }
    void ModifierDocument() {
        const NoDocument d = Document();
        if (!d) return;
        records::SaisieDocument saisie = records::ChargerDocument(session_, d);
        RemplirDocument(saisie);
        static_cast<void>(records::ValiderDocument(session_, saisie));
    }
    void SupprimerDocument() {
        if (const NoDocument d = Document()) records::SupprimerDocument(session_, d);
    }
    void DocumentsPersonne() {
        const NoOrdre n = Present();
        if (!n) return;
        switch (Tirer(4)) {
            case 0:
                records::DetacherDocument(session_, n, 1 + Tirer(3));
                break;
            case 1:
                records::DeplacerDocument(session_, n, 1 + Tirer(3), Tirer(2) == 0 ? -1 : 1);
                break;
            default:
                if (const NoDocument d = Document()) records::AttacherDocument(session_, n, d);
                break;
        }
    }
    void DocumentsEvenement() {
        const NoEvenement e = Evenement();
        if (!e) return;
        switch (Tirer(4)) {
            case 0:
                records::DetacherDocument(session_, e, 1 + Tirer(3));
                break;
            case 1:
                records::DeplacerDocument(session_, e, 1 + Tirer(3), Tirer(2) == 0 ? -1 : 1);
                break;
            default:
                if (const NoDocument d = Document()) records::AttacherDocument(session_, e, d);
                break;
        }
    }

    void MotsCles() {
        const NoMotCle mot{1 + Tirer(B().motsCles.Nombre())};
        const auto table =
            Tirer(2) == 0 ? records::TableLignes::Individu : records::TableLignes::Mariage;
        const std::string code(1, "!%^=+"[Tirer(5)]);
        switch (Tirer(7)) {
            case 0:
                records::AjouterMotCle(session_, {code, "Mot " + code, Tirer(2) == 0});
                break;
            case 1:
                records::ModifierMotCle(session_, mot, {code, "Autre " + code, Tirer(2) == 0});
                break;
            case 2:
                records::SupprimerMotCle(session_, mot);
                break;
            case 3:
                records::DeplacerMotCle(session_, mot, Tirer(2) == 0 ? -1 : 1);
                break;
            case 4:
                records::AjouterLigne(session_, table, mot, Tirer(2) == 0);
                break;
            case 5:
                records::RetirerLigne(session_, table, Tirer(10));
                break;
            default:
                records::DeplacerLigne(session_, table, Tirer(10), Tirer(2) == 0 ? -1 : 1);
                break;
        }
    }

    shell::Session& session_;
    std::mt19937 hasard_;
};

}  // namespace dorvane::doublures
