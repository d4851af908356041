#include "records/LignesFiche.h"

#include "messages/Controle.h"
#include "messages/Faits.h"
#include "messages/Famille.h"
#include "messages/Messages.h"
#include "records/Famille.h"
#include "records/FicheDocument.h"
#include "records/FicheEvenement.h"
#include "records/Liens.h"
#include "records/NomsAffiches.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/SortesEvenement.h"
#include "values/TexteRiche.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace dorvane::records {

namespace {

/// The filled parts, separated by commas.
std::string Enumerer(std::initializer_list<std::string_view> morceaux) {
    std::string texte;
    for (const std::string_view morceau : morceaux) {
        const std::string_view propre = SansBlancs(morceau);
        if (propre.empty()) continue;
        if (!texte.empty()) texte += ", ";
        texte += propre;
    }
    return texte;
}

class Lecture {
public:
    Lecture(shell::Session& session, NoOrdre individu)
        : session_{session}, base_{*session.base}, n_{individu} {}

    std::vector<LigneLue> Lire() {
        LirePersonne();
        LireParents();
        LireUnions();
        for (const NoOrdre enfant : base_.R_ENFANT.Elements(n_))
            Ajouter(session_.Message(message::LigneEnfant), NomEtDates(session_, enfant), enfant);
        for (const LienAffiche& lien : ListerLiens(session_, n_))
            Ajouter(lien.libelle, NomEtDates(session_, lien.autre), lien.autre);
        LireFaits();
        return std::move(lignes_);
    }

private:
    void Ajouter(std::string libelle, std::string_view texte, NoOrdre individu = {}) {
        texte = SansBlancs(texte);
        if (!texte.empty()) lignes_.push_back({std::move(libelle), std::string{texte}, individu});
    }
    [[nodiscard]] std::string Libelle(std::string_view tag) const {
        return shell::LibelleDeTag(session_.catalogue, tag);
    }

    void LirePersonne() {
        Ajouter(session_.Message(message::Personne),
                Enumerer({session_.catalogue.Composer(
                              shell::Msg(message::NumeroDePersonne, std::to_string(n_.valeur))),
                          session_.Message(MessageDuSexe(base_.R_SEXE.LireCellule(n_)))}));
        Ajouter(Libelle(tag::Naissance),
                Enumerer({DateNaissance(session_, n_), storage::LieuNaissance(base_, n_)}));
        Ajouter(Libelle(tag::Deces),
                Enumerer({DateDeces(session_, n_), storage::LieuDeces(base_, n_)}));
        AjouterRangees(base_.DefinitionIndividu(), storage::SlotsDe(base_, n_));
    }
    void AjouterRangees(const storage::DefinitionSlots& definition,
                        const storage::TableSlots& rangees) {
        for (std::size_t k = 0; k < rangees.size() && k < definition.libelles.size(); ++k) {
            const storage::ValeurSlot& valeur = rangees[k];
            Ajouter(Libelle(definition.libelles[k]),
                    Enumerer({DateAffichee(session_, valeur.jourMois, valeur.annee), valeur.lieu}));
        }
    }

    void LireParents() {
        const NoOrdre pere = base_.R_PERE.LireCellule(n_);
        const NoOrdre mere = base_.R_MERE.LireCellule(n_);
        if (pere) Ajouter(Libelle(role::Pere), NomEtDates(session_, pere), pere);
        if (mere) Ajouter(Libelle(role::Mere), NomEtDates(session_, mere), mere);
    }

    void LireUnions() {
        for (const NoMariage m : base_.R_MARIAG.Elements(n_)) {
            const NoOrdre autre = PartenaireDe(base_, n_, m);
            std::string fin = base_.R_FINMAR.LireCellule(m);
            if (!SansBlancs(fin).empty())
                fin = session_.catalogue.Composer(
                    shell::Msg(message::LigneFinUnion, SansBlancs(fin)));
            Ajouter(session_.Message(message::LigneUnion),
                    Enumerer({NomEtDates(session_, autre), DateMariage(session_, m),
                              storage::LieuMariage(base_, m), fin}),
                    autre);
            AjouterRangees(base_.DefinitionMariage(), storage::SlotsMariageDe(base_, m));
        }
    }

    void LireFaits() {
        for (std::size_t k = 1; k <= base_.R_LSTEVT.NbElements(n_); ++k)
            Ajouter(session_.Message(message::TagEVEN),
                    ResumeEvenement(session_, base_.R_LSTEVT.ElementListe(n_, k)));
        for (const NoDocument d : base_.R_LSTIMG.Elements(n_))
            Ajouter(session_.Message(message::Document), TitreAffiche(session_, d));
        std::string tampon;
        const std::string note = storage::NoteDe(base_, n_);
        std::string texte{TexteSansRtf(note, tampon)};
        // The list has one line for each thing.
        for (char& octet : texte)
            if (octet == '\r' || octet == '\n' || octet == '\t') octet = ' ';
        Ajouter(session_.Message(message::LigneNote), texte);
    }

    shell::Session& session_;
    storage::Base& base_;
    NoOrdre n_;
    std::vector<LigneLue> lignes_;
};

}  // namespace

std::vector<LigneLue> LignesFiche(shell::Session& session, NoOrdre individu) {
    if (!session.base || !Existe(*session.base, individu)) return {};
    return Lecture{session, individu}.Lire();
}

}  // namespace dorvane::records
