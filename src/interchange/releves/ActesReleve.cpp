// The acts of a survey, each kind with its columns, persons and words.
#include "interchange/releves/ActesReleve.h"

#include "interchange/gedcom/NomGedcom.h"
#include "interchange/releves/LectureActe.h"
#include "messages/Releve.h"
#include "shell/Libelles.h"
#include "values/Comparaison.h"
#include "values/SortesEvenement.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvane::interchange {

namespace {

namespace col = colonnes;

constexpr std::uint32_t PasDeProgression = 100;

/// Persons whom one line may name.
std::uint32_t PersonnesParActe(SorteReleve sorte) {
    switch (sorte) {
        case SorteReleve::Bapteme:
            return 3;
        case SorteReleve::Mariage:
            return 6;
        case SorteReleve::Sepulture:
            return 4;
        case SorteReleve::Ascendance:
            break;
    }
    return 1;
}

std::string NomComplet(std::string_view nom, std::string_view prenoms) {
    std::string complet{prenoms};
    if (!complet.empty() && !nom.empty()) complet += ' ';
    return complet.append(nom);
}

/// Parts of a text that are there only with their value.
void Ajouter(std::string& texte, std::string_view mot, std::string_view valeur) {
    if (!valeur.empty()) texte.append(mot).append(valeur);
}
void AjouterLigne(std::string& texte, std::string_view mot, std::string_view valeur) {
    if (!valeur.empty()) texte.append("\r\n").append(mot).append(valeur);
}

/// The acts of one survey, line by line.
class Actes {
public:
    Actes(const shell::Session& session, SortieActes& ecrivain, const Releve& releve,
          RapportReleve& rapport)
        : session_{session}, ecrivain_{ecrivain}, releve_{releve}, rapport_{rapport} {}

    bool Ecrire(const AvancerActes& avancer) {
        const auto total = static_cast<std::uint32_t>(releve_.lignes.size());
        std::uint32_t fait = 0;
        for (const LigneReleve& ligne : releve_.lignes) {
            if (++fait % PasDeProgression == 0 && !avancer(fait, total)) return false;
            ligne_ = &ligne;
            if (ligne.trop || ligne.champs.size() > TitresColonnes(releve_.sorte).size())
                Noter(message::RapportTropDeColonnes);
            if (EstTropLongue(ligne)) Noter(message::RapportValeurTropLongue);
            if (!ecrivain_.APlace(PersonnesParActe(releve_.sorte)))
                Noter(message::RapportBasePleine);
            else if (Reprendre())
                ++rapport_.lignes;
        }
        Lier();
        return true;
    }

private:
    struct Ascendant {
        NoOrdre n{};
        const LigneReleve* ligne = nullptr;
    };

    [[nodiscard]] std::string_view Champ(std::size_t colonne) const {
        return ligne_->Champ(colonne);
    }
    /// Names are cut at this length; remarks, in the last column, have no limit.
    [[nodiscard]] bool EstTropLongue(const LigneReleve& ligne) const {
        const std::size_t remarques = TitresColonnes(releve_.sorte).size() - 1;
        for (std::size_t i = 0; i < std::min(remarques, ligne.champs.size()); ++i)
            if (ligne.champs[i].size() > NomLePlusLong) return true;
        return false;
    }
    void Noter(NoMessage message) { rapport_.constats.push_back({ligne_->numero, message}); }
    [[nodiscard]] std::string Libelle(std::string_view tag) const {
        return shell::LibelleDeTag(session_.catalogue, tag);
    }

    bool Reprendre() {
        switch (releve_.sorte) {
            case SorteReleve::Bapteme:
                return Bapteme();
            case SorteReleve::Mariage:
                return Mariage();
            case SorteReleve::Sepulture:
                return Sepulture();
            case SorteReleve::Ascendance:
                break;
        }
        return LireAscendant();
    }

    /// The three columns of the date are the same in every kind of act.
    DateActe LireDate() {
        DateActe date =
            LireDateActe(Champ(col::BapAnnee), Champ(col::BapMois), Champ(col::BapJour));
        if (!date.serie)
            Noter(message::RapportDateIncomprise);
        else if (date.approchee)
            Noter(message::RapportJourOuMoisIncompris);
        return date;
    }

    Sexe LireSexe(std::string_view champ) {
        const std::string sexe = Replie(champ);
        if (sexe == "H" || sexe == "M") return Sexe::Homme;
        if (sexe == "F") return Sexe::Femme;
        if (!sexe.empty() && sexe != "I") Noter(message::RapportSexeIncompris);
        return Sexe::Indetermine;
    }

    std::optional<Age> LireAgeDe(std::string_view champ) {
        std::optional<Age> age = LireAge(champ);
        if (!age && !champ.empty()) Noter(message::RapportAgeIncompris);
        return age;
    }

    /// A parent named in an act; one who is told to be dead died before it.
    NoOrdre CreerParent(std::string_view nom, std::string_view prenoms, Sexe sexe,
                        const DateActe& date) {
        const ParentActe parent = LireParent(nom, prenoms);
        PersonneActe p;
        p.nom = parent.nom;
        p.prenoms = parent.prenoms;
        p.sexe = sexe;
        if (parent.decede && !date.date.annee.empty()) p.deces = {"BEF", date.date.annee};
        return ecrivain_.Creer(p);
    }

    bool Bapteme() {
        const std::string_view nom = Champ(col::BapNom);
        const std::string_view prenoms = Champ(col::BapPrenoms);
        if (nom.empty() && prenoms.empty()) {
            Noter(message::RapportLigneSansNom);
            return false;
        }
        const DateActe date = LireDate();
        PersonneActe enfant;
        enfant.nom = nom;
        enfant.prenoms = prenoms;
        enfant.sexe = LireSexe(Champ(col::BapSexe));
        enfant.naissance = date.date;
        const NoOrdre n = ecrivain_.Creer(enfant);
        const NoOrdre pere =
            CreerParent(Champ(col::BapNomPere), Champ(col::BapPrenomsPere), Sexe::Homme, date);
        const NoOrdre mere =
            CreerParent(Champ(col::BapNomMere), Champ(col::BapPrenomsMere), Sexe::Femme, date);
        ecrivain_.Rattacher(n, pere, mere);

        std::string texte = Libelle(tag::Bapteme) + "\r\nEnfant " + NomComplet(nom, prenoms);
        if (enfant.sexe != Sexe::Indetermine)
            texte.append(" Sexe : ").append(1, static_cast<char>(enfant.sexe));
        AjouterLigne(texte, "\tPère "_1252,
                     NomComplet(Champ(col::BapNomPere), Champ(col::BapPrenomsPere)));
        AjouterLigne(texte, "\tMère "_1252,
                     NomComplet(Champ(col::BapNomMere), Champ(col::BapPrenomsMere)));
        AjouterLigne(texte, "", Champ(col::BapRemarques));
        Inscrire({std::string{tag::Bapteme}, date.serie, Champ(col::BapLieu),
                  NomComplet(nom, prenoms), texte},
                 {{n, role::Enfant}, {pere, role::Pere}, {mere, role::Mere}});
        return true;
    }

    struct Epoux {
        NoOrdre n{};
        NoOrdre pere{};
        NoOrdre mere{};
        std::string nom;
        std::string texte;
    };

    /// One side of a marriage: the partner, the parents, and the lines of the text.
    Epoux LireEpoux(std::size_t premiere, Sexe sexe, const DateActe& date) {
        const auto champ = [&](col::Epoux colonne) { return Champ(premiere + colonne); };
        const bool homme = sexe == Sexe::Homme;
        PersonneActe p;
        p.nom = champ(col::EpNom);
        p.prenoms = champ(col::EpPrenoms);
        p.sexe = sexe;
        if (const std::optional<Age> age = LireAgeDe(champ(col::EpAge)))
            p.naissance = AnneeSelonAge(*age, date.serie);
        Epoux e;
        e.nom = NomComplet(p.nom, p.prenoms);
        e.n = ecrivain_.Creer(p);
        // The column holds given names only: the surname is the child's.
        if (!champ(col::EpPrenomsPere).empty())
            e.pere = CreerParent(p.nom, champ(col::EpPrenomsPere), Sexe::Homme, date);
        e.mere = CreerParent(champ(col::EpNomMere), champ(col::EpPrenomsMere), Sexe::Femme, date);
        ecrivain_.Rattacher(e.n, e.pere, e.mere);

        AjouterLigne(e.texte, homme ? "Epoux " : "Epouse ", e.nom);
        const std::string_view age = champ(col::EpAge);
        Ajouter(e.texte, " ", age);
        if (!age.empty() && EstNumerique(age)) e.texte += " ans";
        AjouterLigne(e.texte, homme ? "\tVeuf de " : "\tVeuve de ", champ(col::EpVeuf));
        if (!champ(col::EpPrenomsPere).empty())
            AjouterLigne(e.texte, "\tPère "_1252, NomComplet(p.nom, champ(col::EpPrenomsPere)));
        AjouterLigne(e.texte, "\tMère "_1252,
                     NomComplet(champ(col::EpNomMere), champ(col::EpPrenomsMere)));
        return e;
    }

    bool Mariage() {
        bool personne = true;
        for (const std::size_t premiere : {std::size_t{col::MarEpoux}, std::size_t{col::MarEpouse}})
            for (const std::size_t colonne : {std::size_t{col::EpNom}, std::size_t{col::EpPrenoms}})
                personne = personne && Champ(premiere + colonne).empty();
        if (personne) {
            Noter(message::RapportLigneSansNom);
            return false;
        }
        const DateActe date = LireDate();
        const Epoux epoux = LireEpoux(col::MarEpoux, Sexe::Homme, date);
        const Epoux epouse = LireEpoux(col::MarEpouse, Sexe::Femme, date);
        if (ecrivain_.Unir(epoux.n, epouse.n, date.date, Champ(col::MarLieu))) ++rapport_.unions;
        std::string texte = Libelle(tag::Mariage) + epoux.texte + epouse.texte;
        AjouterLigne(texte, "", Champ(col::MarRemarques));
        std::string titre = epoux.nom;
        Ajouter(titre, epoux.nom.empty() ? "" : " - ", epouse.nom);
        Inscrire({std::string{tag::Mariage}, date.serie, Champ(col::MarLieu), titre, texte},
                 {{epoux.n, role::Epoux},
                  {epouse.n, role::Epouse},
                  {epoux.pere, role::Pere},
                  {epoux.mere, role::Mere},
                  {epouse.pere, role::Pere},
                  {epouse.mere, role::Mere}});
        return true;
    }

    bool Sepulture() {
        PersonneActe defunt;
        defunt.nom = Champ(col::SepNom);
        defunt.prenoms = Champ(col::SepPrenoms);
        if (defunt.EstVide()) {
            Noter(message::RapportLigneSansNom);
            return false;
        }
        const DateActe date = LireDate();
        defunt.sexe = LireSexe(Champ(col::SepSexe));
        const std::optional<Age> age = LireAgeDe(Champ(col::SepAge));
        defunt.naissance = LireDateLibre(Champ(col::SepDateNaissance));
        if (defunt.naissance.EstVide() && age)
            defunt.naissance = NaissanceSelonAge(*age, date.serie);
        defunt.lieuNaissance = Champ(col::SepLieuNaissance);
        defunt.deces = date.date;
        defunt.inhumation = date.date;
        defunt.lieuInhumation = Champ(col::SepLieu);
        const NoOrdre n = ecrivain_.Creer(defunt);
        const NoOrdre pere =
            CreerParent(Champ(col::SepNomPere), Champ(col::SepPrenomsPere), Sexe::Homme, date);
        const NoOrdre mere =
            CreerParent(Champ(col::SepNomMere), Champ(col::SepPrenomsMere), Sexe::Femme, date);
        ecrivain_.Rattacher(n, pere, mere);
        PersonneActe autre;
        const ParentActe veuf =
            LireParent(Champ(col::SepNomConjoint), Champ(col::SepPrenomsConjoint));
        autre.nom = veuf.nom;
        autre.prenoms = veuf.prenoms;
        const std::optional<Cote> sien = CoteDuSexe(defunt.sexe);
        autre.sexe = sien ? SexeDuCote(AutreCote(*sien)) : Sexe::Indetermine;
        if (veuf.decede && !date.date.annee.empty()) autre.deces = {"BEF", date.date.annee};
        const NoOrdre conjoint = ecrivain_.Creer(autre);
        if (defunt.sexe == Sexe::Femme ? ecrivain_.Unir(conjoint, n, {}, {})
                                       : ecrivain_.Unir(n, conjoint, {}, {}))
            ++rapport_.unions;
        Inscrire({std::string{tag::Inhumation}, date.serie, Champ(col::SepLieu),
                  NomComplet(defunt.nom, defunt.prenoms), TexteSepulture(defunt.sexe)},
                 {{n, role::Defunt},
                  {pere, role::Pere},
                  {mere, role::Mere},
                  {conjoint, role::Conjoint}});
        return true;
    }

    [[nodiscard]] std::string TexteSepulture(Sexe sexe) const {
        std::string texte = Libelle(tag::Inhumation);
        AjouterLigne(texte, "Défunt "_1252, NomComplet(Champ(col::SepNom), Champ(col::SepPrenoms)));
        if (sexe != Sexe::Indetermine) texte.append(" Sexe : ").append(1, static_cast<char>(sexe));
        Ajouter(texte, " Age : ", Champ(col::SepAge));
        const bool ne = !Champ(col::SepDateNaissance).empty();
        Ajouter(texte, " Naissance : ", Champ(col::SepDateNaissance));
        Ajouter(texte, ne ? " de " : " Naissance : de ", Champ(col::SepLieuNaissance));
        const ParentActe pere = LireParent(Champ(col::SepNomPere), Champ(col::SepPrenomsPere));
        const std::string nomPere = NomComplet(pere.nom, pere.prenoms);
        if (pere.decede)
            texte.append("\r\n\t")
                .append("Père décédé"_1252)
                .append(nomPere.empty() ? "" : " ")
                .append(nomPere);
        else
            AjouterLigne(texte, "\tPère "_1252, nomPere);
        AjouterLigne(texte, "\tMère "_1252,
                     NomComplet(Champ(col::SepNomMere), Champ(col::SepPrenomsMere)));
        AjouterLigne(texte, "\tConjoint ",
                     NomComplet(Champ(col::SepNomConjoint), Champ(col::SepPrenomsConjoint)));
        AjouterLigne(texte, "", Champ(col::SepRemarques));
        return texte;
    }

    struct Participant {
        NoOrdre individu;
        std::string_view role;
    };
    /// An event with those of its participants who are there.
    void Inscrire(const EvenementActe& evenement, std::initializer_list<Participant> participants) {
        std::vector<storage::LienEvenement> liens;
        for (const Participant& participant : participants)
            if (participant.individu)
                liens.push_back({participant.individu, std::string{participant.role}});
        ecrivain_.CreerEvenement(evenement, liens);
    }

    bool LireAscendant() {
        const std::string_view champ = Champ(col::AscSosa);
        std::uint64_t sosa = 0;
        const auto [fin, erreur] = std::from_chars(champ.data(), champ.data() + champ.size(), sosa);
        if (erreur != std::errc{} || fin != champ.data() + champ.size() || sosa == 0) {
            Noter(message::RapportSosaPasUnNombre);
            return false;
        }
        PersonneActe p;
        p.nom = Champ(col::AscNom);
        p.prenoms = Champ(col::AscPrenoms);
        if (p.EstVide() || ascendants_.contains(sosa)) {
            Noter(p.EstVide() ? message::RapportLigneSansNom : message::RapportSosaEnDouble);
            return false;
        }
        p.sexe = sosa == 1 ? Sexe::Indetermine : sosa % 2 == 0 ? Sexe::Homme : Sexe::Femme;
        p.naissance = LireDateLibre(Champ(col::AscDateNaissance));
        p.lieuNaissance = Champ(col::AscLieuNaissance);
        p.deces = LireDateLibre(Champ(col::AscDateDeces));
        p.lieuDeces = Champ(col::AscLieuDeces);
        p.profession = Champ(col::AscProfession);
        p.note = Champ(col::AscRemarques);
        ascendants_[sosa] = {ecrivain_.Creer(p), ligne_};
        return true;
    }

    [[nodiscard]] static bool DitMariage(const LigneReleve& ligne) {
        return !ligne.Champ(col::AscDateMariage).empty() ||
               !ligne.Champ(col::AscLieuMariage).empty();
    }

    /// Parents 2n and 2n + 1 of each n, and their union, whose date either line may give.
    void Lier() {
        for (const auto& [sosa, ascendant] : ascendants_) {
            const std::uint32_t ligneLue = ascendant.ligne->numero;
            if (sosa > 1 && !ascendants_.contains(sosa / 2))
                rapport_.constats.push_back({ligneLue, message::RapportEnfantAbsentDuReleve});
            // The partner of 2n is 2n + 1; number 1 has none in the file.
            if (DitMariage(*ascendant.ligne) &&
                (sosa == 1 || !ascendants_.contains(sosa ^ 1U) || !ascendants_.contains(sosa / 2)))
                rapport_.constats.push_back({ligneLue, message::RapportConjointAbsentDuReleve});
            if (sosa > UINT64_MAX / 2 - 1) continue;
            const Ascendant pere = Trouver(sosa * 2);
            const Ascendant mere = Trouver(sosa * 2 + 1);
            ecrivain_.Rattacher(ascendant.n, pere.n, mere.n);
            if (pere.ligne == nullptr || mere.ligne == nullptr) continue;
            const LigneReleve& ligne = DitMariage(*pere.ligne) ? *pere.ligne : *mere.ligne;
            if (ecrivain_.Unir(pere.n, mere.n, LireDateLibre(ligne.Champ(col::AscDateMariage)),
                               ligne.Champ(col::AscLieuMariage)))
                ++rapport_.unions;
        }
    }

    [[nodiscard]] Ascendant Trouver(std::uint64_t sosa) const {
        const auto place = ascendants_.find(sosa);
        return place == ascendants_.end() ? Ascendant{} : place->second;
    }

    const shell::Session& session_;
    SortieActes& ecrivain_;
    const Releve& releve_;
    RapportReleve& rapport_;
    const LigneReleve* ligne_ = nullptr;
    std::map<std::uint64_t, Ascendant> ascendants_;
};

}  // namespace

bool EcrireActes(const shell::Session& session, SortieActes& ecrivain, const Releve& releve,
                 RapportReleve& rapport, const AvancerActes& avancer) {
    return Actes{session, ecrivain, releve, rapport}.Ecrire(avancer);
}

}  // namespace dorvane::interchange
