// Header, persons and what the phases share; families, events and documents are in
// RedactionFamilles.cpp.
#include "interchange/gedcom/RedactionGedcom.h"

#include "interchange/gedcom/DatesGedcom.h"
#include "shell/Horloge.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/SortesEvenement.h"
#include "values/Texte1252.h"
#include "values/TexteRiche.h"

#include <algorithm>
#include <array>

namespace dorvane::interchange {

namespace {

constexpr std::array<std::string_view, 6> PartiesDuNom{"NPFX", "GIVN", "NICK",
                                                       "SPFX", "SURN", "NSFX"};
constexpr std::array<std::string_view, 14> Attributs{"RESI", "CAST", "DSCR", "EDUC", "IDNO",
                                                     "NATI", "NCHI", "NMR",  "OCCU", "PROP",
                                                     "RELI", "SSN",  "TITL", "PEDI"};
/// Tags that the format has beside those of the kinds of events.
constexpr std::array<std::string_view, 3> AutresEvenements{"BAPM", "CHRA", "BAPL"};
constexpr std::string_view AutreEvenementDeFamille = "MARS";
constexpr std::array<std::string_view, 6> Roles{role::Enfant, role::Epoux, role::Epouse,
                                                role::Mere,   role::Pere,  role::Conjoint};

template <std::size_t N>
bool Contient(const std::array<std::string_view, N>& mots, std::string_view mot) {
    return std::ranges::find(mots, mot) != mots.end();
}

bool EstEvenement(std::string_view tag) {
    return EstSorte(tag, UsageSorte::Individuelle) || Contient(AutresEvenements, tag);
}

bool EstEvenementDeFamille(std::string_view tag) {
    return EstSorte(tag, UsageSorte::Familiale) || tag == AutreEvenementDeFamille;
}

bool FinitUnMot(char c) {
    return c == ' ' || c == '\r' || c == '\n';
}

bool EstVide(const storage::ValeurSlot& valeur) {
    return valeur == storage::ValeurSlot{};
}

}  // namespace

RedactionGedcom::RedactionGedcom(shell::Session& session, const OptionsGedcom& options)
    : session_{session},
      base_{*session.base},
      options_{options},
      sortie_{options.jeu},
      familles_{FormerFamilles(*session.base)},
      definitionIndividu_{base_.DefinitionIndividu()},
      definitionMariage_{base_.DefinitionMariage()},
      individus_(base_.entete.DernierIndividu + 1ULL),
      evenementsEnTable_(base_.entete.DernierEvenement + 1ULL),
      evenements_(base_.entete.DernierEvenement + 1ULL),
      documents_(base_.entete.DernierDocument + 1ULL) {
    MarquerChoisis();
    ReleverCodes();
    // Tags and dates in words make the text a third longer than the base.
    sortie_.Prevoir(std::size_t{base_.volume.FinFichier()} / 2 * 3);
}

void RedactionGedcom::ReleverCodes() {
    for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k) {
        const storage::MotCle& type = base_.motsCles.LibelleType(NoMotCle{k});
        const bool connu = Contient(Attributs, type.libelle) || EstEvenement(type.libelle) ||
                           EstEvenementDeFamille(type.libelle);
        if (connu && !EstMarqueurFixe(type.symbole))
            codes_[static_cast<unsigned char>(type.symbole)] = true;
    }
}

/// A word of the text begins with the code of a keyword that may go out under its tag.
bool RedactionGedcom::AMotCle(std::string_view texte) const {
    bool debut = true;
    for (const char c : texte) {
        if (debut && codes_[static_cast<unsigned char>(c)]) return true;
        debut = FinitUnMot(c);
    }
    return false;
}

void RedactionGedcom::MarquerChoisis() {
    const bool tous = options_.choix.choisis.empty();
    for (std::uint32_t rang = 1; rang <= base_.entete.NbTriIndividus; ++rang) {
        const std::uint32_t n = base_.R_TRI.IndividuAuRang(rang).valeur;
        if (n == 0 || n >= individus_.size()) continue;
        if (tous || (n < options_.choix.choisis.size() && options_.choix.choisis[n]))
            individus_[n] = true;
    }
    for (std::uint32_t rang = 1; rang <= base_.entete.NbTriEvenements; ++rang)
        if (const std::uint32_t e = base_.R_TRI.EvtAuRang(rang).valeur;
            e != 0 && e < evenementsEnTable_.size())
            evenementsEnTable_[e] = true;
    if (options_.choix.complet) evenements_ = evenementsEnTable_;
    for (std::uint32_t rang = 1; rang <= base_.entete.NbTriDocuments; ++rang)
        if (const std::uint32_t d = base_.R_TRI.DocumentAuRang(rang).valeur;
            d != 0 && d < documents_.size())
            documents_[d] = options_.choix.complet;
}

bool RedactionGedcom::EstEcrit(NoOrdre n) const {
    return n.valeur < individus_.size() && individus_[n.valeur];
}

bool RedactionGedcom::EstEcrit(NoEvenement e) const {
    return e.valeur < evenements_.size() && evenements_[e.valeur];
}

bool RedactionGedcom::EstEcrit(NoDocument d) const {
    return d.valeur < documents_.size() && documents_[d.valeur];
}

void RedactionGedcom::EcrireEnTete(const std::string& nomFichier) {
    const shell::Moment jour = session_.horloge.Maintenant();
    sortie_.Ligne(0, "HEAD");
    sortie_.Valeur(1, "SOUR", "DORVANE");
    sortie_.Valeur(2, "VERS", "99.0");
    sortie_.Valeur(1, "DEST", "PAF");
    sortie_.Valeur(1, "DATE", EcrireJourGedcom(jour.jour, jour.mois, jour.annee));
    sortie_.Ligne(1, "GEDC");
    sortie_.Valeur(2, "VERS", "5.5");
    sortie_.Valeur(2, "FORM", "Lineage-Linked");
    sortie_.Valeur(1, "CHAR", NomDeclare(options_.jeu));
    if (options_.reduit) return;
    sortie_.Valeur(1, "FILE", nomFichier);
    sortie_.Valeur(1, "LANG", "French");
    sortie_.Renvoi(1, "SUBM", 'S', 1);
    if (const NoDocument document = base_.entete.DocBase; document)
        static_cast<void>(sortie_.Texte("1 NOTE ", 2, base_.R_IMAGE.NoteDoc(document)));
    const shell::ReglagesBase& reglages = session_.parametres.base;
    sortie_.Enregistrement('S', 1, "SUBM");
    sortie_.Valeur(1, "NAME", reglages.auteur);
    bool commencee = false;
    for (std::size_t i = 0; i < 7; ++i)
        commencee |=
            sortie_.Valeur(commencee ? 2 : 1, commencee ? "CONT" : "ADDR", reglages.adresse[i]);
}

void RedactionGedcom::EcrireIndividu(NoOrdre n) {
    ++comptes_.individus;
    const std::string texte{base_.R_TEXTE.LireTexte(n)};
    const storage::TexteDecoupe decoupe = storage::DecouperTexte(texte, definitionIndividu_);
    sortie_.Enregistrement('I', n.valeur, "INDI");
    EcrireNom(n, decoupe.slots);
    const Sexe sexe = base_.R_SEXE.LireCellule(n);
    if (EstConnu(sexe)) sortie_.Valeur(1, "SEX", sexe == Sexe::Homme ? "M" : "F");
    EcrireRubriques(definitionIndividu_, decoupe.slots, Sujet::Individu, true);
    EcrireVie("BIRT", base_.R_NOM.JourMoisNaissance(n), base_.R_NAISS.LireCellule(n),
              storage::LireLieu(texte, marqueur::LieuNaissance));
    EcrireVie("DEAT", base_.R_NOM.JourMoisDeces(n), base_.R_DECES.LireCellule(n),
              storage::LireLieu(texte, marqueur::LieuDeces));
    EcrireRubriques(definitionIndividu_, decoupe.slots, Sujet::Individu, false);
    const std::string_view entier{texte};
    EcrireTexteLibre(entier.substr(0, entier.find('\r')), decoupe.note, Sujet::Individu);
    EcrireLiensFamille(n);
    EcrireAutresLiens(n);
}

void RedactionGedcom::EcrireNom(NoOrdre n, const storage::TableSlots& slots) {
    const storage::LigneNom nom = base_.R_NOM.LireNom(n);
    std::string valeur{SansBlancs(nom.prenom)};
    if (const std::string_view autres = SansBlancs(nom.autrePrenom); !autres.empty())
        valeur += ' ' + std::string{autres};
    valeur += " /" + std::string{SansBlancs(nom.nom)} + '/';
    sortie_.Valeur(1, "NAME", valeur);
    const auto& libelles = definitionIndividu_.libelles;
    for (std::size_t i = 0; i < slots.size(); ++i)
        if (Contient(PartiesDuNom, libelles[i])) sortie_.Valeur(2, libelles[i], slots[i].lieu);
}

void RedactionGedcom::EcrireVie(std::string_view etiquette, std::string_view jourMois,
                                std::string_view annee, std::string_view lieu) {
    const std::string date = EcrireDateGedcom(jourMois, annee);
    if (date.empty() && SansBlancs(lieu).empty()) return;
    sortie_.Ligne(1, etiquette);
    sortie_.Valeur(2, "DATE", date);
    sortie_.Valeur(2, "PLAC", lieu);
}

/// `attributs`: those that stand before birth and death, else the others.
void RedactionGedcom::EcrireRubriques(const storage::DefinitionSlots& definition,
                                      const storage::TableSlots& slots, Sujet sujet,
                                      bool attributs) {
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const std::string& tag = definition.libelles[i];
        if (EstVide(slots[i]) || Contient(PartiesDuNom, tag)) continue;
        if (sujet == Sujet::Individu && Contient(Attributs, tag) != attributs) continue;
        EcrireRubrique(tag, slots[i], sujet);
    }
}

void RedactionGedcom::EcrireRubrique(std::string_view tag, const storage::ValeurSlot& valeur,
                                     Sujet sujet) {
    const std::string date = EcrireDateGedcom(valeur.jourMois, valeur.annee);
    const bool individu = sujet == Sujet::Individu;
    // The word of an attribute stands on its line, with or without a date.
    const bool attribut = individu ? Contient(Attributs, tag) || tag == "ADDR" : tag == "RESI";
    if (attribut) {
        if (!sortie_.Valeur(1, tag, valeur.lieu)) sortie_.Ligne(1, tag);
        sortie_.Valeur(2, "DATE", date);
        return;
    }
    // A christening has always gone out as a baptism, and comes back as what it was.
    const std::string_view connu = individu && tag == tag::Bapteme ? "BAPM" : tag;
    if (individu ? EstEvenement(connu) : EstEvenementDeFamille(tag)) {
        sortie_.Ligne(1, connu);
        sortie_.Valeur(2, "DATE", date);
        sortie_.Valeur(2, "PLAC", valeur.lieu);
        return;
    }
    sortie_.Ligne(1, "EVEN");
    sortie_.Valeur(2, "TYPE", shell::LibelleDeTag(session_.catalogue, tag));
    sortie_.Valeur(2, "DATE", date);
    static_cast<void>(sortie_.Texte("2 NOTE ", 3, valeur.lieu));
}

/// A word of a text with the code of a keyword in front: goes out under its tag when that is known
/// to the format. False: it stays in the note.
bool RedactionGedcom::EcrireMotCle(std::string_view mot, Sujet sujet) {
    if (mot.size() < 2 || !codes_[static_cast<unsigned char>(mot[0])]) return false;
    const NoMotCle k = base_.motsCles.TypeDuSymbole(mot[0]);
    const std::string tag = base_.motsCles.LibelleType(k).libelle;
    const std::string valeur = PointsEnBlancs(mot.substr(1));
    if (sujet == Sujet::Individu && Contient(Attributs, tag)) {
        sortie_.Valeur(1, tag, valeur);
        return true;
    }
    const bool evenement =
        sujet == Sujet::Individu ? EstEvenement(tag) : EstEvenementDeFamille(tag);
    if (!evenement) return false;
    sortie_.Ligne(1, tag);
    sortie_.Valeur(2, "PLAC", valeur);
    return true;
}

void RedactionGedcom::EcrireTexteLibre(std::string_view premiereLigne, std::string_view note,
                                       Sujet sujet) {
    for (std::size_t i = AMotCle(premiereLigne) ? 0 : premiereLigne.size();
         i < premiereLigne.size();) {
        const std::size_t fin = std::min(premiereLigne.find(' ', i), premiereLigne.size());
        static_cast<void>(EcrireMotCle(premiereLigne.substr(i, fin - i), sujet));
        i = fin + 1;
    }
    std::string tampon;
    const std::string_view simple = TexteSansRtf(note, tampon);
    if (!AMotCle(simple)) {
        static_cast<void>(sortie_.Texte("1 NOTE ", 2, simple));
        return;
    }
    std::string reste;
    for (std::size_t i = 0; i < simple.size();) {
        const std::size_t fin = std::min(simple.find_first_of(" \r\n", i), simple.size());
        const std::string_view mot = simple.substr(i, fin - i);
        const bool pris = EcrireMotCle(mot, sujet);
        if (!pris) reste += mot;
        i = fin;
        // The blank behind a word that went out goes with it.
        if (i < simple.size() && (!pris || simple[i] != ' ')) reste += simple[i];
        ++i;
    }
    static_cast<void>(sortie_.Texte("1 NOTE ", 2, reste));
}

void RedactionGedcom::EcrireLiensFamille(NoOrdre n) {
    for (const NoMariage m : base_.R_MARIAG.Elements(n))
        if (familles_.EstPartenaire(n, m)) sortie_.Renvoi(1, "FAMS", 'F', m.valeur);
    std::vector<std::uint32_t> dites;
    // The family of a child who is not written has this parent for a member, and is written.
    for (const NoOrdre enfant : base_.R_ENFANT.Elements(n)) {
        const std::uint32_t famille = familles_.FamilleDe(enfant);
        if (famille == 0 || familles_.EstUnion(famille)) continue;
        const FamilleExport& f = familles_.familles[famille];
        const bool parent = f.epoux == n || f.epouse == n;
        if (!parent || std::ranges::find(dites, famille) != dites.end()) continue;
        dites.push_back(famille);
        sortie_.Renvoi(1, "FAMS", 'F', famille);
    }
    if (const std::uint32_t famille = familles_.FamilleDe(n); famille != 0)
        sortie_.Renvoi(1, "FAMC", 'F', famille);
}

/// A role of the format may be stored as its tag or in words.
void RedactionGedcom::EcrireRole(std::string_view role) {
    if (SansBlancs(role).empty()) return;
    const auto* const connu = std::ranges::find_if(Roles, [&](std::string_view tag) {
        return role == tag || role == shell::LibelleDeTag(session_.catalogue, tag);
    });
    if (connu != Roles.end())
        sortie_.Valeur(3, "ROLE", *connu);
    else
        sortie_.Valeur(3, "ROLE", '(' + shell::LibelleDeTag(session_.catalogue, role) + ')');
}

void RedactionGedcom::EcrireAutresLiens(NoOrdre n) {
    for (std::size_t k = 1; k <= base_.R_LIEN.NbElements(n); ++k) {
        const NoOrdre autre = base_.R_LIEN.ElementListe(n, k);
        if (!EstEcrit(autre)) continue;
        sortie_.Renvoi(1, "ASSO", 'I', autre.valeur);
        sortie_.Valeur(2, "RELA", base_.R_LIEN.TexteElement(n, k));
    }
    for (std::size_t k = 1; k <= base_.R_LSTEVT.NbElements(n); ++k) {
        const NoEvenement e = base_.R_LSTEVT.ElementListe(n, k);
        if (e.valeur >= evenementsEnTable_.size() || !evenementsEnTable_[e.valeur]) continue;
        evenements_[e.valeur] = true;
        sortie_.Renvoi(1, "SOUR", 'E', e.valeur);
        sortie_.Ligne(2, "EVEN");
        EcrireRole(base_.R_LSTEVT.TexteElement(n, k));
    }
    for (const NoDocument d : base_.R_LSTIMG.Elements(n)) {
        if (!d || d.valeur >= documents_.size()) continue;
        documents_[d.valeur] = true;
        sortie_.Renvoi(1, "NOTE", 'D', d.valeur);
    }
}

}  // namespace dorvane::interchange
