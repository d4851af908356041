#include "interchange/releves/EcrivainReleve.h"

#include "interchange/gedcom/NomGedcom.h"
#include "storage/ConstruireIndex.h"
#include "storage/Textes.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/SortesEvenement.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {

namespace {

/// Bytes of a place or title that fit the description of an event many times over.
constexpr std::size_t MaxChampEvenement = 1000;

std::string Propre(std::string_view champ) {
    std::string propre = storage::SansDiese(champ.substr(0, MaxChampEvenement));
    std::replace(propre.begin(), propre.end(), '\xFF', 'y');
    return propre;
}

/// `individus`: with those who are to come.
bool TientEncore(std::uint32_t individus, std::uint32_t evenements) {
    return individus <= storage::MaxIndividus && evenements < storage::MaxEvenements;
}

bool Contient(const Releve& releve, char c) {
    return std::ranges::any_of(releve.lignes, [c](const LigneReleve& ligne) {
        return std::ranges::any_of(ligne.champs, [c](const std::string& champ) {
            return champ.find(c) != std::string::npos;
        });
    });
}

}  // namespace

bool CompteActes::APlace(std::uint32_t personnes) const {
    return TientEncore(individus + personnes, evenements);
}

NoOrdre CompteActes::Creer(const PersonneActe& personne) {
    return personne.EstVide() ? NoOrdre{} : NoOrdre{++individus};
}

NoMariage CompteActes::Unir(NoOrdre epoux, NoOrdre epouse, const DateLue& /*date*/,
                            std::string_view /*lieu*/) {
    return epoux && epouse ? NoMariage{++unions} : NoMariage{};
}

void CompteActes::CreerEvenement(const EvenementActe& /*evenement*/,
                                 const std::vector<storage::LienEvenement>& /*participants*/) {
    ++evenements;
}

EcrivainReleve::EcrivainReleve(storage::Base& base, const Releve& releve)
    : base_{base},
      marqueurs_{base, [&releve](char c) { return Contient(releve, c); }},
      slots_{marqueurs_} {
    const SorteReleve sorte = releve.sorte;
    std::vector<std::string_view> premiers{tag::Prenom};
    if (sorte != SorteReleve::Ascendance) premiers.emplace_back(tag::AutresPrenoms);
    premiers.emplace_back(tag::Nom);
    if (sorte == SorteReleve::Sepulture) premiers.emplace_back(tag::Inhumation);
    if (sorte != SorteReleve::Ascendance) marqueAutres_ = marqueurs_.Marqueur(tag::AutresPrenoms);
    if (sorte == SorteReleve::Sepulture)
        static_cast<void>(slots_.Trouver(tag::Inhumation, tag::Inhumation, true));
    if (sorte == SorteReleve::Ascendance)
        static_cast<void>(slots_.Trouver(tag::Profession, tag::Profession, false));

    std::vector<NoMotCle> ordre;
    for (const std::string_view libelle : premiers)
        for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k)
            if (base_.motsCles.LibelleType(NoMotCle{k}).libelle == libelle) ordre.emplace_back(k);
    for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k)
        if (std::ranges::find(ordre, NoMotCle{k}) == ordre.end()) ordre.emplace_back(k);
    base_.motsCles.Reordonner(ordre);
}

bool EcrivainReleve::APlace(std::uint32_t personnes) const {
    return TientEncore(base_.entete.DernierIndividu + personnes, base_.entete.DernierEvenement);
}

NoOrdre EcrivainReleve::Creer(const PersonneActe& p) {
    if (p.EstVide()) return {};
    const NoOrdre n = base_.NouvelIndividu();
    if (!n) return {};
    const std::string_view prenoms = SansBlancs(p.prenoms).substr(0, NomLePlusLong);
    const std::size_t blanc = std::min(prenoms.find(' '), prenoms.size());
    NomLu nom = FaireNom(p.nom.substr(0, NomLePlusLong), prenoms.substr(0, blanc), false);
    nom.autres = SansBlancs(prenoms.substr(blanc));

    std::string ligne = nom.Ligne();
    if (!p.naissance.jourMois.empty() || !p.deces.jourMois.empty())
        ligne.append(1, ';').append(storage::SansSeparateur(p.naissance.jourMois));
    if (!p.deces.jourMois.empty())
        ligne.append(1, ';').append(storage::SansSeparateur(p.deces.jourMois));
    base_.R_NOM.EcrireNom(n, ligne);
    base_.R_SEXE.EcrireCellule(n, p.sexe);
    if (!p.naissance.annee.empty()) base_.R_NAISS.EcrireCellule(n, p.naissance.annee);
    if (!p.deces.annee.empty()) base_.R_DECES.EcrireCellule(n, p.deces.annee);
    base_.R_TEXTE.EcrireTexte(n, Texte(p, nom.motsCles, nom.autres));
    base_.R_TRI.FixerRang(n.valeur, n);
    base_.entete.NbTriIndividus = n.valeur;
    return n;
}

std::string EcrivainReleve::Texte(const PersonneActe& p, const std::string& motsCles,
                                  const std::string& autres) {
    std::string texte = motsCles;
    const auto jeton = [&texte](char marque, std::string_view valeur) {
        if (marque == '\0' || valeur.empty()) return;
        if (!texte.empty()) texte += ' ';
        texte.append(1, marque).append(BlancsEnPoints(valeur));
    };
    jeton(marqueAutres_, autres);
    jeton(marqueur::LieuNaissance, p.lieuNaissance);
    jeton(marqueur::LieuDeces, p.lieuDeces);
    texte += "\r\n";

    slots_.Vider();
    if (!p.inhumation.EstVide() || !p.lieuInhumation.empty()) {
        const std::size_t rang = slots_.Trouver(tag::Inhumation, tag::Inhumation, true);
        if (rang != SlotsImport::Aucun)
            slots_.At(rang) = {true, p.inhumation, std::string{p.lieuInhumation}};
    }
    if (!p.profession.empty()) {
        const std::size_t rang = slots_.Trouver(tag::Profession, tag::Profession, false);
        if (rang != SlotsImport::Aucun) slots_.At(rang) = {true, {}, std::string{p.profession}};
    }
    slots_.Composer(texte);
    texte += p.note;
    return storage::SansDiese(texte);
}

void EcrivainReleve::Rattacher(NoOrdre enfant, NoOrdre pere, NoOrdre mere) {
    if (!enfant) return;
    base_.R_PERE.EcrireCellule(enfant, pere);
    base_.R_MERE.EcrireCellule(enfant, mere);
    for (const NoOrdre parent : {pere, mere})
        if (parent) base_.R_ENFANT.ModifierListe(parent, enfant, storage::ActionListe::Ajouter);
}

NoMariage EcrivainReleve::Unir(NoOrdre epoux, NoOrdre epouse, const DateLue& date,
                               std::string_view lieu) {
    if (!epoux || !epouse) return {};
    const NoMariage m = base_.NouveauMariage();
    if (!m) return {};
    base_.R_EPOUX.EcrireCellule(m, epoux);
    base_.R_EPOUSE.EcrireCellule(m, epouse);
    if (!date.annee.empty()) base_.R_DEBMAR.EcrireCellule(m, date.annee);
    std::string texte = date.jourMois;
    if (!lieu.empty())
        texte.append(texte.empty() ? "" : " ")
            .append(1, marqueur::LieuMariage)
            .append(BlancsEnPoints(lieu));
    base_.R_TXTMAR.EcrireTexte(m, storage::SansDiese(texte));
    base_.R_MARIAG.ModifierListe(epoux, m, storage::ActionListe::Ajouter);
    base_.R_MARIAG.ModifierListe(epouse, m, storage::ActionListe::Ajouter);
    return m;
}

void EcrivainReleve::CreerEvenement(const EvenementActe& evenement,
                                    const std::vector<storage::LienEvenement>& participants) {
    const NoEvenement e = base_.NouvelEvenement();
    if (!e) return;
    storage::PartiesEvt parties;
    parties.cleDate = evenement.jour.value_or(storage::CleSansDate);
    parties.note = storage::SansDiese(evenement.texte);
    parties.liens = participants;
    parties.documents = std::vector<NoDocument>{NoDocument{1}};
    parties.description = storage::DescriptionEvt{Propre(evenement.lieu), Propre(evenement.titre),
                                                  std::string{evenement.tag}};
    base_.R_EVT.EcrireEvt(e, parties);
    for (const storage::LienEvenement& lien : participants)
        base_.R_LSTEVT.ModifierListe(lien.individu, e, storage::ActionListe::Ajouter, lien.role);
    base_.R_TRI.FixerRang(e.valeur, e);
    base_.entete.NbTriEvenements = e.valeur;
}

void EcrivainReleve::CreerDocument(const std::string& titre, const std::string& fichier) {
    const NoDocument d = base_.NouveauDocument();
    if (!d) return;
    storage::Document document;
    document.titre = Propre(titre);
    document.fichier = Propre(fichier);
    base_.R_IMAGE.EcrireDoc(d, document);
    base_.R_TRI.FixerRang(d.valeur, d);
    base_.entete.NbTriDocuments = d.valeur;
}

void EcrivainReleve::Terminer() {
    storage::ProgressionMuette muet;  // at most 64000 persons: a fraction of a second
    base_.entete.SlotsIndividu = slots_.PourEnTete({});
    base_.entete.SlotsMariage = {};
    base_.marques.ModifBase = true;
    base_.R_TRI.TrierEvenements();
    base_.R_TRI.TrierDocuments();
    static_cast<void>(base_.R_TRI.TrierIndividus(muet));
    std::vector<NoMotCle> types;
    for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k)
        if (base_.motsCles.LibelleType(NoMotCle{k}).indexe) types.emplace_back(k);
    static_cast<void>(storage::ConstruireIndex(base_, types, muet));
}

}  // namespace dorvane::interchange
