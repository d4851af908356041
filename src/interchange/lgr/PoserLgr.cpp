#include "interchange/lgr/PoserLgr.h"

#include "interchange/commun/OrdreImport.h"
#include "interchange/lgr/DatesLgr.h"
#include "messages/Messages.h"
#include "shell/Parametres.h"
#include "storage/Slots.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/Octets.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <array>

namespace dorvane::interchange {
namespace {

constexpr std::uint32_t Pas = 100;             ///< records between two looks at the cancel button
constexpr std::size_t MaxLigneNom = 1000;      ///< bytes of a name line
constexpr std::size_t MaxDescription = 32000;  ///< bytes of the words of an event or document
constexpr std::string_view Retour = "\r\n";

/// The five fields of the second line of a person.
struct ChampsNom {
    std::array<std::string_view, 3> noms;
    DateLgr naissance;
    DateLgr deces;
};

ChampsNom CouperNom(std::string_view ligne) {
    const storage::LigneNom lue = storage::DecouperNom(ligne);
    return {{lue.nom, lue.prenom, lue.autrePrenom},
            LireDateLgr(lue.jourMoisNaissance),
            LireDateLgr(lue.jourMoisDeces)};
}

/// Puts the word of a place at the end of the first line.
void AjouterLieu(std::string& texte, char marqueur, std::string_view lieu) {
    const std::size_t ou = std::min(texte.find('\r'), texte.size());
    std::string mot = BlancsEnPoints(lieu);
    mot.insert(0, ou == 0 ? std::string{marqueur} : std::string{' ', marqueur});
    texte.insert(ou, mot);
}

/// A line for a place may hold a year in older files: where the date has none and the text does not
/// name the place.
bool PrendreAnnee(std::string_view lieu, std::string_view texte, char marqueur, DateLgr& date) {
    lieu = SansBlancs(lieu);
    if (!EstAnneeSeule(lieu) || !date.annee.empty()) return false;
    if (storage::LireLieu(texte, marqueur) == lieu) return false;
    date.annee = lieu;
    return true;
}

std::string_view PremiereLigne(std::string_view texte) {
    return texte.substr(0, texte.find('\r'));
}

}  // namespace

PoserLgr::PoserLgr(storage::Base& base, const shell::TableLibelles& libelles,
                   const ContenuLgr& contenu, const MotsClesLgr& motsCles, const NomsLgr* noms,
                   RapportImport& rapport)
    : base_{base},
      libelles_{libelles},
      contenu_{contenu},
      motsCles_{motsCles},
      nomsAdaptes_{noms},
      rapport_{rapport},
      decalageIndividus_{base.entete.DernierIndividu},
      decalageUnions_{base.entete.DernierMariage},
      decalageDocuments_{base.entete.DernierDocument},
      decalageEvenements_{base.entete.DernierEvenement} {
    individus_.Prendre(contenu.individus, storage::MaxIndividus - decalageIndividus_, "INDIVIDUS",
                       rapport);
    documents_.Prendre(contenu.documents, storage::MaxDocuments - decalageDocuments_, "IMAGES",
                       rapport);
    evenements_.Prendre(contenu.evenements, storage::MaxEvenements - decalageEvenements_,
                        "EVENEMENTS", rapport);
    listes_.Accorder(contenu, individus_, documents_, evenements_, rapport);
}

bool PoserLgr::Poser(const SuivreLgr& suivre) {
    if (!PoserDocuments(suivre) || !PoserIndividus(suivre) || !PoserUnions(suivre) ||
        !PoserEvenements(suivre))
        return false;
    PoserListes();
    base_.marques.ModifBase = true;
    base_.marques.AffichagePerime = true;
    rapport_.individus = static_cast<std::uint32_t>(individus_.Ordre().size());
    rapport_.unions = static_cast<std::uint32_t>(contenu_.unions.size());
    rapport_.documents = static_cast<std::uint32_t>(documents_.Ordre().size());
    rapport_.evenements = static_cast<std::uint32_t>(evenements_.Ordre().size());
    return true;
}

/// A text of one line, fit for a record.
std::string PoserLgr::Champ(std::string_view valeur) const {
    return storage::SansDiese(valeur);
}

/// A role or the label of a link, in its neutral form.
std::string PoserLgr::Label(std::string_view valeur) const {
    return storage::SansDiese(contenu_.Avant97() ? libelles_.TagDeLibelle(valeur) : valeur);
}

/// `texte` cut to what can be read back.
std::string PoserLgr::Limiter(std::string texte, std::size_t taille, std::string_view section,
                              std::uint32_t ligne) {
    if (texte.size() > taille) {
        texte.resize(taille);
        rapport_.Noter(Constat::Remplace, section, ligne);
    }
    return texte;
}

/// Keeps a text that is not the one of the file; `lu`, which is, needs no keeping.
std::string_view PoserLgr::Garder(std::string_view texte, std::string_view lu) {
    if (texte.data() == lu.data() && texte.size() == lu.size()) return lu;
    return propres_.emplace_back(texte);
}

std::string_view PoserLgr::TexteDIndividu(const IndividuLgr& lu, std::string_view nom,
                                          std::string_view prenom) {
    std::string_view texte = motsCles_.Convertir(lu.texte, tampon_);
    std::string neuf;
    const auto changer = [&](std::string valeur) {
        neuf = std::move(valeur);
        texte = neuf;
    };
    if (texte.find('#') != std::string_view::npos) changer(storage::SansDiese(texte));
    if (nomsAdaptes_ != nullptr) changer(nomsAdaptes_->Adapter(texte, nom, prenom));
    const auto placer = [&](char marqueur, std::string_view lieu) {
        if (SansBlancs(lieu).empty() || !storage::LireLieu(texte, marqueur).empty()) return;
        std::string change{texte};
        AjouterLieu(change, marqueur, storage::SansDiese(lieu));
        changer(std::move(change));
    };
    placer(marqueur::LieuNaissance, lu.lieuNaissance);
    placer(marqueur::LieuDeces, lu.lieuDeces);
    return Garder(texte, lu.texte);
}

void PoserLgr::PoserSexeEtParents(const IndividuLgr& lu, NoOrdre n) {
    base_.R_SEXE.EcrireCellule(
        n, lu.sexe.size() == 1 ? SexeLu(static_cast<Sexe>(lu.sexe[0])) : Sexe::Indetermine);
    const ListesLgr::Parents& parents = listes_.ParentsDe(individus_.Place(lu.numero));
    const auto numero = [&](ListesLgr::Place place) {
        return NoOrdre{contenu_.individus[place].numero + decalageIndividus_};
    };
    if (parents.pere != ListesLgr::Aucune) base_.R_PERE.EcrireCellule(n, numero(parents.pere));
    if (parents.mere != ListesLgr::Aucune) base_.R_MERE.EcrireCellule(n, numero(parents.mere));
}

void PoserLgr::PoserIndividu(const IndividuLgr& lu) {
    const NoOrdre n{lu.numero + decalageIndividus_};
    ChampsNom champs = CouperNom(lu.nom);
    IndividuLgr sans = lu;
    if (PrendreAnnee(lu.lieuNaissance, lu.texte, marqueur::LieuNaissance, champs.naissance))
        sans.lieuNaissance = {};
    if (PrendreAnnee(lu.lieuDeces, lu.texte, marqueur::LieuDeces, champs.deces))
        sans.lieuDeces = {};

    std::string ligne{champs.noms[0]};
    ligne.append(";").append(champs.noms[1]).append(";").append(champs.noms[2]);
    if (!champs.naissance.jourMois.empty() || !champs.deces.jourMois.empty())
        ligne.append(";")
            .append(champs.naissance.jourMois)
            .append(";")
            .append(champs.deces.jourMois);
    ligne = Limiter(storage::SansDiese(ligne), MaxLigneNom, "INDIVIDUS", lu.ligne);
    const storage::LigneNom stocke = storage::DecouperNom(ligne);
    base_.R_NOM.EcrireNom(n, ligne == ";;" ? std::string_view{} : ligne);
    base_.R_NAISS.EcrireCellule(n, champs.naissance.annee);
    base_.R_DECES.EcrireCellule(n, champs.deces.annee);
    PoserSexeEtParents(lu, n);
    const std::string_view texte = TexteDIndividu(sans, stocke.nom, stocke.prenom);
    base_.R_TEXTE.EcrireTexte(n, texte);

    Vie& vie = vies_[individus_.Place(lu.numero)];
    vie = {static_cast<std::uint32_t>(noms_.size()), static_cast<std::uint16_t>(stocke.nom.size()),
           static_cast<std::uint16_t>(stocke.prenom.size()), AnneeTri(base_.R_NAISS.LireCellule(n)),
           texte};
    noms_.append(stocke.nom).append(stocke.prenom);
}

// By number, as the cells lie; the table of persons keeps the order of the file.
bool PoserLgr::PoserIndividus(const SuivreLgr& suivre) {
    vies_.resize(contenu_.individus.size());
    base_.FixerDernierIndividu(decalageIndividus_ + individus_.Dernier());
    std::uint32_t fait = 0;
    for (const std::uint32_t place : individus_.ParNumero()) {
        PoserIndividu(contenu_.individus[place]);
        if (++fait % Pas == 0 && !suivre(message::EtatPersonnesLues, fait)) return false;
    }
    std::uint32_t rang = base_.entete.NbTriIndividus;
    for (const std::uint32_t place : individus_.Ordre())
        base_.R_TRI.FixerRang(++rang,
                              NoOrdre{contenu_.individus[place].numero + decalageIndividus_});
    base_.entete.NbTriIndividus = rang;
    return true;
}

/// The text of a union holds its date and place in the first line; where it does not, the two lines
/// of the record make it.
std::string_view PoserLgr::TexteDUnion(const UnionLgr& lue, std::string_view jourMois) {
    std::string_view texte = motsCles_.Convertir(lue.texte, tampon_);
    std::string neuf;
    if (texte.find('#') != std::string_view::npos) {
        neuf = storage::SansDiese(texte);
        texte = neuf;
    }
    const std::string_view tete = PremiereLigne(texte);
    const bool date =
        SansBlancs(tete.substr(0, tete.find(marqueur::LieuMariage))) == SansBlancs(jourMois);
    const bool lieu =
        SansBlancs(lue.lieu).empty() || !storage::LireLieu(texte, marqueur::LieuMariage).empty();
    if (date && lieu) return Garder(texte, lue.texte);
    std::string change{texte};
    if (!date && !jourMois.empty()) {
        if (!change.empty()) change.insert(0, Retour);
        change.insert(0, storage::SansDiese(jourMois));
    }
    if (!lieu) AjouterLieu(change, marqueur::LieuMariage, storage::SansDiese(lue.lieu));
    return propres_.emplace_back(std::move(change));
}

void PoserLgr::PoserUnion(std::uint32_t rang) {
    const UnionLgr& lue = contenu_.unions[rang];
    const NoMariage m = base_.NouveauMariage();
    if (!m) {
        rapport_.Noter(Constat::Limite, "MARIAGES", lue.ligne);
        return;
    }
    const ListesLgr::Couple& couple = listes_.CoupleDe(rang);
    if (couple.epoux == ListesLgr::Aucune && couple.epouse == ListesLgr::Aucune) {
        rapport_.Noter(Constat::SansUnion, "MARIAGES", lue.ligne);
        return;
    }
    const auto numero = [&](ListesLgr::Place place) {
        return place == ListesLgr::Aucune
                   ? NoOrdre{}
                   : NoOrdre{contenu_.individus[place].numero + decalageIndividus_};
    };
    DatesUnionLgr dates = LireDatesUnionLgr(lue.date);
    UnionLgr sans = lue;
    if (PrendreAnnee(lue.lieu, lue.texte, marqueur::LieuMariage, dates.debut)) sans.lieu = {};
    base_.R_EPOUX.EcrireCellule(m, numero(couple.epoux));
    base_.R_EPOUSE.EcrireCellule(m, numero(couple.epouse));
    base_.R_DEBMAR.EcrireCellule(m, dates.debut.annee);
    base_.R_FINMAR.EcrireCellule(m, dates.fin);
    textesUnions_[rang] = TexteDUnion(sans, dates.debut.jourMois);
    base_.R_TXTMAR.EcrireTexte(m, textesUnions_[rang]);
}

bool PoserLgr::PoserUnions(const SuivreLgr& suivre) {
    textesUnions_.resize(contenu_.unions.size());
    for (std::uint32_t rang = 0; rang < contenu_.unions.size(); ++rang) {
        PoserUnion(rang);
        if ((rang + 1) % Pas == 0 && !suivre(message::LibUnion, rang + 1)) return false;
    }
    return true;
}

void PoserLgr::PoserListes() {
    struct Enfant {
        std::uint32_t parent;
        std::uint32_t enfant;
        QuatreOctets annee;
    };
    std::vector<Enfant> enfants;
    const auto numero = [&](ListesLgr::Place place) {
        return contenu_.individus[place].numero + decalageIndividus_;
    };
    for (const std::uint32_t i : individus_.Ordre()) {
        const auto [pere, mere] = listes_.ParentsDe(i);
        if (pere != ListesLgr::Aucune) enfants.push_back({numero(pere), numero(i), vies_[i].annee});
        if (mere != ListesLgr::Aucune && mere != pere)
            enfants.push_back({numero(mere), numero(i), vies_[i].annee});
    }
    // Stable: equal years stay in the order of the file.
    std::ranges::stable_sort(enfants, [](const Enfant& a, const Enfant& b) {
        return a.parent != b.parent ? a.parent < b.parent
                                    : TexteDe(a.annee).compare(TexteDe(b.annee)) < 0;
    });
    std::string liste;
    for (std::size_t i = 0; i < enfants.size();) {
        const std::uint32_t parent = enfants[i].parent;
        liste.clear();
        for (; i < enfants.size() && enfants[i].parent == parent; ++i)
            liste += NumVersChaine2(enfants[i].enfant);
        base_.R_ENFANT.EcrireListe(NoOrdre{parent}, liste);
    }
    for (const std::uint32_t i : individus_.ParNumero()) {
        const NoOrdre n{numero(i)};
        liste.clear();
        for (const ListesLgr::Place u : listes_.UnionsDe(i))
            if (u + 1 + decalageUnions_ <= base_.entete.DernierMariage)
                liste += NumVersChaine2(u + 1 + decalageUnions_);
        if (!liste.empty()) base_.R_MARIAG.EcrireListe(n, liste);
        liste.clear();
        for (const ListesLgr::Place d : listes_.DocumentsDe(i))
            liste += NumVersChaine2(contenu_.documents[d].numero + decalageDocuments_);
        if (!liste.empty()) base_.R_LSTIMG.EcrireListe(n, liste);
        liste.clear();
        for (const ListesLgr::Lien& lien : listes_.LiensDe(i))
            liste += base_.R_LIEN.ComposerElement(NoOrdre{numero(lien.vers)}, Label(lien.texte));
        if (!liste.empty()) base_.R_LIEN.EcrireListe(n, liste);
        std::vector<ListesLgr::Lien> roles = listes_.EvenementsDe(i);
        std::ranges::stable_sort(roles, {},
                                 [&](const ListesLgr::Lien& l) { return clesDates_[l.vers]; });
        liste.clear();
        for (const ListesLgr::Lien& lien : roles)
            liste += base_.R_LSTEVT.ComposerElement(
                NoEvenement{contenu_.evenements[lien.vers].numero + decalageEvenements_},
                Label(lien.texte));
        if (!liste.empty()) base_.R_LSTEVT.EcrireListe(n, liste);
    }
}

bool PoserLgr::PoserDocuments(const SuivreLgr& suivre) {
    std::uint32_t rang = base_.entete.NbTriDocuments;
    std::uint32_t fait = 0;
    base_.entete.DernierDocument += documents_.Dernier();
    for (const std::uint32_t place : documents_.ParNumero()) {
        const DocumentLgr& lu = contenu_.documents[place];
        const NoDocument d{lu.numero + decalageDocuments_};
        storage::Document document;
        document.titre = Limiter(Champ(lu.titre), MaxDescription / 2, "IMAGES", lu.ligne);
        const std::size_t place255 = std::min(lu.fichier.find('\xFF'), lu.fichier.size());
        document.fichier =
            Limiter(Champ(lu.fichier.substr(0, place255)), MaxDescription / 4, "IMAGES", lu.ligne);
        if (place255 < lu.fichier.size())
            document.type = Limiter(Champ(lu.fichier.substr(place255 + 1)), MaxDescription / 8,
                                    "IMAGES", lu.ligne);
        document.note = Limiter(storage::SansDiese(lu.texte), MaxDescription, "IMAGES", lu.ligne);
        base_.R_IMAGE.EcrireDoc(d, document);
        base_.R_TRI.FixerRang(++rang, d);
        if (++fait % Pas == 0 && !suivre(message::Document, fait)) return false;
    }
    base_.entete.NbTriDocuments = rang;
    if (fait != 0) base_.R_TRI.TrierDocuments();
    return true;
}

void PoserLgr::PoserEvenement(const EvenementLgr& lu, std::uint32_t place) {
    storage::PartiesEvt parties;
    parties.cleDate = clesDates_[place];
    parties.note = storage::SansDiese(lu.texte);
    storage::DescriptionEvt description{
        Limiter(Champ(lu.lieu), MaxDescription / 4, "EVENEMENTS", lu.ligne),
        Limiter(Champ(lu.titre), MaxDescription / 2, "EVENEMENTS", lu.ligne),
        Limiter(storage::SansDiese(libelles_.TagDeLibelle(lu.type)), MaxDescription / 8,
                "EVENEMENTS", lu.ligne)};
    parties.description = std::move(description);
    parties.liens.emplace();
    for (const ListesLgr::Lien& lien : listes_.PersonnesDe(place))
        parties.liens->push_back(
            {NoOrdre{contenu_.individus[lien.vers].numero + decalageIndividus_},
             Label(lien.texte)});
    parties.documents.emplace();
    for (const ListesLgr::Place d : listes_.PiecesDe(place))
        parties.documents->emplace_back(contenu_.documents[d].numero + decalageDocuments_);
    base_.R_EVT.EcrireEvt(NoEvenement{lu.numero + decalageEvenements_}, parties);
}

bool PoserLgr::PoserEvenements(const SuivreLgr& suivre) {
    clesDates_.resize(contenu_.evenements.size());
    for (std::size_t i = 0; i < clesDates_.size(); ++i) {
        const std::string_view date = contenu_.evenements[i].date;
        clesDates_[i] = date.empty() ? storage::CleSansDate
                                     : std::max(shell::NombreIndulgent(date), storage::CleSansDate);
    }
    std::uint32_t rang = base_.entete.NbTriEvenements;
    std::uint32_t fait = 0;
    base_.entete.DernierEvenement += evenements_.Dernier();
    for (const std::uint32_t place : evenements_.ParNumero()) {
        const EvenementLgr& lu = contenu_.evenements[place];
        PoserEvenement(lu, place);
        base_.R_TRI.FixerRang(++rang, NoEvenement{lu.numero + decalageEvenements_});
        if (++fait % Pas == 0 && !suivre(message::TagEVEN, fait)) return false;
    }
    base_.entete.NbTriEvenements = rang;
    if (fait != 0) base_.R_TRI.TrierEvenements();
    return true;
}

storage::ElementTri PoserLgr::ElementDe(NoOrdre n) {
    const Vie& vie = vies_[individus_.Place(n.valeur)];
    const std::string_view noms = noms_;
    return {noms.substr(vie.debut, vie.nom), noms.substr(vie.debut + vie.nom, vie.prenom),
            TexteDe(vie.annee)};
}

void PoserLgr::TextesDe(NoOrdre n, std::vector<std::string_view>& textes) {
    const ListesLgr::Place place = individus_.Place(n.valeur);
    textes.push_back(vies_[place].texte);
    for (const ListesLgr::Place u : listes_.UnionsDe(place))
        textes.push_back(textesUnions_[u]);
}

bool PoserLgr::EstTriee(TypeTri typeTri) {
    ReglesNoms regles = base_.regles;
    regles.deplacer = base_.entete.OptParticules;
    std::vector<NoOrdre> ordre;
    for (const std::uint32_t place : individus_.Ordre())
        ordre.emplace_back(contenu_.individus[place].numero);
    return SontTries(*this, ordre, typeTri, regles);
}

}  // namespace dorvane::interchange
