#include "records/ControleBase.h"

#include "messages/Messages.h"
#include "records/ControleEvenements.h"
#include "records/FamilleEnMemoire.h"
#include "records/NomsAffiches.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <bitset>
#include <optional>
#include <string_view>

namespace dorvane::records {
namespace {

using shell::Msg;

constexpr std::int32_t LongueVie = 100;
constexpr std::int32_t AgeMinimal = 10;
constexpr std::int32_t AgeMaximalPere = 75;
constexpr std::int32_t AgeMaximalMere = 50;
constexpr std::int32_t MargeDeces = 10;

/// The findings on one side of the parents.
struct ConstatsParent {
    Sexe sexe;
    SorteConstat mauvaisSexe;
    SorteConstat pasEnfant;
    SorteConstat pasAvant;
    SorteConstat tropJeune;
    SorteConstat tropVieux;
    std::int32_t ageMaximal;
    SorteConstat bienApresDeces;
    std::optional<SorteConstat> apresDeces;
    SorteConstat decennie;
};
constexpr ConstatsParent Pere{Sexe::Homme,
                              SorteConstat::PereNonMasculin,
                              SorteConstat::AbsentDesEnfantsDuPere,
                              SorteConstat::PerePasNeAvantEnfant,
                              SorteConstat::PereMoinsDe10Ans,
                              SorteConstat::PerePlusDe75Ans,
                              AgeMaximalPere,
                              SorteConstat::NaissancePlusDe10AnsApresDecesPere,
                              SorteConstat::NaissancePlusDUnAnApresDecesPere,
                              SorteConstat::NaissanceAvantCelleDuPere};
constexpr ConstatsParent Mere{Sexe::Femme,
                              SorteConstat::MereNonFeminine,
                              SorteConstat::AbsentDesEnfantsDeLaMere,
                              SorteConstat::MerePasNeeAvantEnfant,
                              SorteConstat::MereMoinsDe10Ans,
                              SorteConstat::MerePlusDe50Ans,
                              AgeMaximalMere,
                              SorteConstat::NaissancePlusDe10AnsApresDecesMere,
                              {},
                              SorteConstat::NaissanceAvantCelleDeLaMere};

/// A year whose last digit is not known can only be compared by its first three.
bool SansUnite(const AnneeLue& annee) {
    return annee.decade && !EstChiffre(annee.tri[3]);
}

bool Avant(const AnneeLue& a, const AnneeLue& b) {
    return a.exacte && b.exacte && *a.exacte < *b.exacte;
}

class Controle {
public:
    Controle(shell::Session& session, const std::function<void(const Constat&)>& recevoir)
        : session_{session}, base_{*session.base}, recevoir_{recevoir}, famille_{*session.base} {}

    void Controler(NoOrdre n, std::uint32_t rang) {
        n_ = n;
        rang_ = rang;
        dits_.reset();
        ControlerRang();
        ControlerPersonne();
        ControlerVie();
        ControlerParent(famille_.Pere(n), Pere);
        ControlerParent(famille_.Mere(n), Mere);
        ControlerUnionDesParents();
        ControlerEnfants();
        for (const std::uint16_t m : famille_.unions.De(n))
            ControlerMariage(NoMariage{m});
        ControlerEvenements(session_, n, [this](SorteConstat sorte) { Dire(sorte); });
        precedente_ = n;
    }
    [[nodiscard]] std::uint32_t Nombre() const { return nombre_; }

private:
    void Dire(SorteConstat sorte) {
        const auto place = static_cast<std::size_t>(sorte);
        if (dits_.test(place)) return;
        dits_.set(place);
        ++nombre_;
        recevoir_({n_, rang_, sorte, session_.Message(MessageDe(sorte)),
                   std::string{SansBlancs(NomEtDates(session_, n_))}});
    }

    /// By the form in which the table sorts; an empty year sorts too.
    void ControlerRang() {
        bool bas = false;
        if (base_.entete.TypeTri == TypeTri::Naissance) {
            std::string cle = Replie(base_.R_NAISS.AnneeTri(n_));
            bas = precedente_ && cle < cle_;
            cle_ = std::move(cle);
        } else if (base_.entete.TypeTri == TypeTri::Nom) {
            std::string cle = base_.R_TRI.CleDe(n_);
            bas = precedente_ && cle < cle_;
            cle_ = std::move(cle);
        }
        if (bas) Dire(SorteConstat::HorsOrdreDeTri);
    }

    void ControlerPersonne() {
        const Sexe sexe = famille_.SexeDe(n_);
        if (!EstConnu(sexe)) Dire(SorteConstat::SexeIndetermine);
        if (!famille_.Naissance(n_).pleine) Dire(SorteConstat::AnneeNaissanceAbsente);
        const storage::LigneNom nom = base_.R_NOM.LireNom(n_);
        const bool sansPrenom = SansBlancs(nom.prenom).empty();
        if (SansBlancs(nom.nom).empty()) Dire(SorteConstat::NomAbsent);
        if (sansPrenom) Dire(SorteConstat::PrenomAbsent);
        if (!famille_.Pere(n_) && !famille_.Mere(n_) && famille_.unions.De(n_).empty() &&
            famille_.enfants.De(n_).empty() && base_.R_LIEN.NbElements(n_) == 0 &&
            base_.R_LSTEVT.NbElements(n_) == 0 && base_.R_LSTIMG.NbElements(n_) == 0)
            Dire(SorteConstat::PersonneIsolee);
    }

    void ControlerVie() {
        const AnneeLue& naissance = famille_.Naissance(n_);
        const AnneeLue& deces = famille_.Deces(n_);
        if (!naissance.comparable || !deces.comparable) return;
        if (naissance.exacte && deces.exacte) {
            if (*deces.exacte < *naissance.exacte) Dire(SorteConstat::DecesAvantNaissance);
            if (*deces.exacte > *naissance.exacte + LongueVie)
                Dire(SorteConstat::DecesPlusDe100AnsApresNaissance);
        } else if (TexteDe(deces.tri) < TexteDe(naissance.tri)) {
            Dire(SorteConstat::DecesAvantNaissance);
        }
    }

    void ControlerParent(NoOrdre parent, const ConstatsParent& m) {
        if (!parent) return;
        if (famille_.SexeDe(parent) != m.sexe) Dire(m.mauvaisSexe);
        if (!famille_.enfants.Contient(parent, n_.valeur)) Dire(m.pasEnfant);
        const AnneeLue& naissance = famille_.Naissance(n_);
        if (!naissance.pleine) return;
        ControlerAge(naissance, famille_.Naissance(parent), m);
        ControlerApresDeces(naissance, famille_.Deces(parent), m);
    }
    void ControlerAge(const AnneeLue& naissance, const AnneeLue& celleDuParent,
                      const ConstatsParent& m) {
        if (naissance.exacte && celleDuParent.exacte) {
            const std::int32_t age = *naissance.exacte - *celleDuParent.exacte;
            if (age <= 0)
                Dire(m.pasAvant);
            else if (age < AgeMinimal)
                Dire(m.tropJeune);
            else if (age > m.ageMaximal)
                Dire(m.tropVieux);
        } else if (naissance.decade && celleDuParent.decade &&
                   *naissance.decade < *celleDuParent.decade) {
            Dire(m.decennie);
        }
    }
    void ControlerApresDeces(const AnneeLue& naissance, const AnneeLue& deces,
                             const ConstatsParent& m) {
        if (naissance.exacte && deces.exacte) {
            if (*naissance.exacte > *deces.exacte + MargeDeces) Dire(m.bienApresDeces);
            if (m.apresDeces && *naissance.exacte > *deces.exacte + 1) Dire(*m.apresDeces);
        } else if ((SansUnite(naissance) || SansUnite(deces)) && naissance.decade && deces.decade &&
                   *naissance.decade > *deces.decade + 1) {
            // Two decades apart: more than ten years whatever the last digits.
            Dire(m.bienApresDeces);
        }
    }

    /// Of several unions of the same couple one that fits is enough.
    void ControlerUnionDesParents() {
        const NoOrdre pere = famille_.Pere(n_);
        const NoOrdre mere = famille_.Mere(n_);
        if (!pere || !mere) return;
        if (famille_.unions.De(pere).empty()) return Dire(SorteConstat::ParentsConnusPereSansUnion);
        const AnneeLue& naissance = famille_.Naissance(n_);
        bool vue = false;
        bool toutesApres = true;
        bool toutesFinies = true;
        for (const std::uint16_t numero : famille_.unions.De(pere)) {
            const NoMariage m{numero};
            if (famille_.Epoux(m) != pere || famille_.Epouse(m) != mere) continue;
            vue = true;
            toutesApres = toutesApres && Avant(naissance, famille_.Debut(m));
            toutesFinies = toutesFinies && Avant(famille_.Fin(m), naissance);
        }
        if (vue && toutesApres) Dire(SorteConstat::UnionParentsDebuteApresNaissance);
        if (vue && toutesFinies) Dire(SorteConstat::UnionParentsFinieAvantNaissance);
    }

    void ControlerEnfants() {
        const Sexe sexe = famille_.SexeDe(n_);
        for (const std::uint16_t numero : famille_.enfants.De(n_)) {
            const NoOrdre enfant{numero};
            if (sexe == Sexe::Homme && famille_.Pere(enfant) != n_)
                Dire(SorteConstat::EnfantAvecAutrePere);
            if (sexe == Sexe::Femme && famille_.Mere(enfant) != n_)
                Dire(SorteConstat::EnfantAvecAutreMere);
            if (!EstConnu(sexe)) Dire(SorteConstat::ParentDeSexeIndetermine);
        }
    }

    void ControlerMariage(NoMariage m) {
        const Sexe sexe = famille_.SexeDe(n_);
        if (sexe == Sexe::Homme && famille_.Epoux(m) != n_) Dire(SorteConstat::UnionAvecAutreEpoux);
        if (sexe == Sexe::Femme && famille_.Epouse(m) != n_)
            Dire(SorteConstat::UnionAvecAutreEpouse);
        const AnneeLue& debut = famille_.Debut(m);
        const AnneeLue& fin = famille_.Fin(m);
        const AnneeLue& naissance = famille_.Naissance(n_);
        const AnneeLue& deces = famille_.Deces(n_);
        if (Avant(fin, debut)) Dire(SorteConstat::FinUnionAvantDebut);
        if (Avant(debut, naissance)) Dire(SorteConstat::UnionAvantNaissance);
        if (Avant(deces, debut)) Dire(SorteConstat::UnionApresDeces);
        if (Avant(fin, naissance)) Dire(SorteConstat::FinUnionAvantNaissance);
        if (Avant(deces, fin)) Dire(SorteConstat::FinUnionApresDeces);
    }

    shell::Session& session_;
    storage::Base& base_;
    const std::function<void(const Constat&)>& recevoir_;
    FamilleEnMemoire famille_;
    NoOrdre n_{};
    NoOrdre precedente_{};
    std::uint32_t rang_ = 0;
    std::string cle_;
    std::bitset<NbSortesConstat> dits_;
    std::uint32_t nombre_ = 0;
};

}  // namespace

BilanControle ControlerBase(shell::Session& session,
                            const std::function<void(const Constat&)>& recevoir,
                            const std::function<bool()>& continuer) {
    BilanControle bilan;
    if (!session.base) return bilan;
    const shell::CadreProgression cadre{session.progression, Msg(message::TitreControleBase),
                                        Msg(message::AnomaliesRelevees)};
    const storage::Base* const base = session.base.get();
    Controle controle{session, recevoir};
    std::vector<bool> vue(storage::MaxIndividus + 1);
    bilan.complet = true;
    const std::uint32_t nombre = base->entete.NbTriIndividus;
    for (std::uint32_t rang = 1; rang <= nombre && bilan.complet; ++rang) {
        const NoOrdre n = base->R_TRI.IndividuAuRang(rang);
        if (n && n.valeur <= base->entete.DernierIndividu && !vue[n.valeur]) {
            vue[n.valeur] = true;
            controle.Controler(n, rang);
        }
        const bool suite = session.progression.Avancer(rang, nombre) && (!continuer || continuer());
        // While the screen lives the user may have closed the base.
        bilan.complet = session.base.get() == base && (suite || rang == nombre);
    }
    bilan.constats = controle.Nombre();
    if (bilan.complet) session.dialogue.Annoncer(Msg(message::EtatControleTermine));
    if (bilan.complet && bilan.constats == 0)
        session.dialogue.Informer(Msg(message::InfoAucuneAnomalie));
    return bilan;
}

std::string TexteDesConstats(const std::vector<Constat>& constats) {
    std::string texte;
    for (const Constat& constat : constats)
        texte += std::to_string(constat.individu.valeur) + '\t' + constat.texte + '\t' +
                 constat.identite + '\n';
    return TexteVersUtf8(texte);
}

}  // namespace dorvane::records
