// A record is a row of lines; its texts of several lines, and the record itself, end with a line
// "#". A number stands between two blanks; a minus takes the place of the first.
#include "interchange/lgr/RedactionLgr.h"

#include "interchange/lgr/DatesLgr.h"
#include "interchange/lgr/ReglagesLgr.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Marqueurs.h"
#include "values/Texte1252.h"

namespace dorvane::interchange {
namespace {

constexpr std::string_view Retour = "\r\n";

std::string Nombre(std::uint32_t nombre) {
    return ' ' + std::to_string(nombre) + ' ';
}

template <class Numero>
std::vector<bool> DansLaTable(std::uint32_t dernier, const storage::TableTri& table) {
    std::vector<bool> ensemble(dernier + 1);
    for (const std::uint16_t n : table.Numeros())
        if (n != 0 && n <= dernier) ensemble[n] = true;
    return ensemble;
}

}  // namespace

RedactionLgr::RedactionLgr(shell::Session& session, const ChoixExport& choix)
    : session_{session}, base_{*session.base}, choix_{choix} {
    MarquerIndividus();
    MarquerUnions();
    MarquerAnnexes();
}

void RedactionLgr::MarquerIndividus() {
    individus_ = DansLaTable<NoOrdre>(base_.entete.DernierIndividu, base_.R_TRI.individus);
    if (choix_.choisis.empty()) return;
    for (std::uint32_t n = 0; n < individus_.size(); ++n)
        individus_[n] = individus_[n] && Dans(choix_.choisis, n);
}

void RedactionLgr::MarquerUnions() {
    rangs_.assign(base_.entete.DernierMariage + 1, 0);
    for (NoMariage m{1}; m.valeur < rangs_.size(); ++m.valeur) {
        const NoOrdre epoux = base_.R_EPOUX.LireCellule(m);
        if (EstEcrit(epoux)) rangs_[m.valeur] = ++comptes_.unions;
        // A record begins with its husband: one of a wife alone has no place.
        if (!epoux && EstEcrit(base_.R_EPOUSE.LireCellule(m))) ++comptes_.omis;
    }
}

void RedactionLgr::MarquerAnnexes() {
    evenements_ = DansLaTable<NoEvenement>(base_.entete.DernierEvenement, base_.R_TRI.evenements);
    documents_ = DansLaTable<NoDocument>(base_.entete.DernierDocument, base_.R_TRI.documents);
    if (choix_.complet) return;
    std::vector<bool> evenements(evenements_.size());
    std::vector<bool> documents(documents_.size());
    for (NoOrdre n{1}; n.valeur < individus_.size(); ++n.valeur) {
        if (!EstEcrit(n)) continue;
        for (std::size_t k = 1; k <= base_.R_LSTEVT.NbElements(n); ++k)
            if (const NoEvenement e = base_.R_LSTEVT.ElementListe(n, k); EstEcrit(e))
                evenements[e.valeur] = true;
        for (const NoDocument d : base_.R_LSTIMG.Elements(n))
            if (EstEcrit(d)) documents[d.valeur] = true;
    }
    for (NoEvenement e{1}; e.valeur < evenements.size(); ++e.valeur)
        if (evenements[e.valeur])
            for (const NoDocument d : base_.R_EVT.Documents(e))
                if (EstEcrit(d)) documents[d.valeur] = true;
    evenements_ = std::move(evenements);
    documents_ = std::move(documents);
}

/// One value, which stays on one line whatever it holds.
void RedactionLgr::Ligne(std::string& sortie, std::string_view valeur) {
    for (std::size_t ou = valeur.find(Retour); ou != std::string_view::npos;
         ou = valeur.find(Retour)) {
        sortie.append(valeur.substr(0, ou)).append(1, ' ');
        valeur.remove_prefix(ou + Retour.size());
        ++comptes_.retouches;
    }
    sortie.append(valeur).append(Retour);
}

void RedactionLgr::Texte(std::string& sortie, std::string_view texte) {
    if (!texte.empty()) sortie.append(texte).append(Retour);
    sortie.append("#\r\n");
}

void RedactionLgr::EcrireReglages(std::string& sortie) {
    const storage::EnTete& entete = base_.entete;
    sortie.append("[Dorvane Version 99.0]\r\n[PARAMETRES]\r\n");
    sortie.append(entete.OptParticules ? "1\r\n" : "0\r\n");
    sortie.append(entete.OptPrenomUnique ? "1\r\n" : "0\r\n");
    sortie.append("[FIN PARAMETRES]\r\n[INI]\r\n");
    sortie += ComposerReglagesLgr(session_, [this](NoOrdre n) { return EstEcrit(n); });
    sortie.append("[FIN INI]\r\n");
    if (!EstEcrit(entete.DocBase)) return;
    sortie.append("[DESCRIPTION]\r\n").append(Nombre(entete.DocBase.valeur));
    sortie.append("\r\n[FIN DESCRIPTION]\r\n");
}

void RedactionLgr::EcrireMotsCles(std::string& sortie) {
    sortie.append("[MOTS CLES]\r\n");
    for (NoMotCle k{1}; k.valeur <= base_.motsCles.Nombre(); ++k.valeur) {
        const storage::MotCle& type = base_.motsCles.LibelleType(k);
        // A blank is the place of a keyword that was taken away.
        if (type.symbole == ' ') continue;
        Ligne(sortie, {&type.symbole, 1});
        Ligne(sortie, type.libelle);
    }
    sortie.append("[FIN MOTS CLES]\r\n");
}

template <class Slots>
void RedactionLgr::EcrireSlots(std::string& sortie, std::string_view section, const Slots& slots) {
    sortie.append("[").append(section).append("]\r\n");
    for (std::size_t k = 0; k < storage::NbSlots(slots); ++k) {
        Ligne(sortie, {&slots[k].symbole, 1});
        Ligne(sortie, {&slots[k].drapeau, 1});
    }
    sortie.append("[FIN ").append(section).append("]\r\n");
}

void RedactionLgr::EcrireTete(std::string& sortie) {
    EcrireReglages(sortie);
    EcrireMotsCles(sortie);
    EcrireSlots(sortie, "DONNEES INDIVIDUS", base_.entete.SlotsIndividu);
    EcrireSlots(sortie, "DONNEES MARIAGES", base_.entete.SlotsMariage);
}

void RedactionLgr::EcrireIdentite(std::string& sortie, NoOrdre n) {
    Ligne(sortie, Nombre(n.valeur));
    const storage::LigneNom nom = base_.R_NOM.LireNom(n);
    std::string ligne{nom.nom};
    ligne.append(1, ';').append(nom.prenom).append(1, ';').append(nom.autrePrenom).append(1, ';');
    ligne +=
        storage::SansSeparateur(EcrireDateLgr(nom.jourMoisNaissance, base_.R_NAISS.LireCellule(n)));
    ligne += ';';
    ligne += storage::SansDiese(EcrireDateLgr(nom.jourMoisDeces, base_.R_DECES.LireCellule(n)));
    Ligne(sortie, ligne);
    const Sexe sexe = base_.R_SEXE.LireCellule(n);
    sortie.append(1, EstConnu(sexe) ? static_cast<char>(sexe) : ' ').append(Retour);
    const std::string_view texte = base_.R_TEXTE.LireTexte(n);
    Ligne(sortie, storage::LireLieu(texte, marqueur::LieuNaissance));
    Ligne(sortie, storage::LireLieu(texte, marqueur::LieuDeces));
    const NoOrdre pere = base_.R_PERE.LireCellule(n);
    const NoOrdre mere = base_.R_MERE.LireCellule(n);
    Ligne(sortie, Nombre(EstEcrit(pere) ? pere.valeur : 0));
    Ligne(sortie, Nombre(EstEcrit(mere) ? mere.valeur : 0));
    Texte(sortie, texte);
}

void RedactionLgr::EcrireListes(std::string& sortie, NoOrdre n) {
    for (const NoDocument d : base_.R_LSTIMG.Elements(n))
        if (EstEcrit(d)) Ligne(sortie, Nombre(d.valeur));
    sortie.append("#\r\n");
    for (std::size_t k = 1; k <= base_.R_LIEN.NbElements(n); ++k) {
        const NoOrdre autre = base_.R_LIEN.ElementListe(n, k);
        if (!EstEcrit(autre)) continue;
        Ligne(sortie, Nombre(autre.valeur));
        Ligne(sortie, base_.R_LIEN.TexteElement(n, k));
    }
    bool titre = false;
    for (const NoMariage m : base_.R_MARIAG.Elements(n)) {
        if (!EstEcrite(m)) continue;
        if (!titre) sortie.append("{Mariages}\r\n");
        titre = true;
        Ligne(sortie, Nombre(rangs_[m.valeur]));
    }
    titre = false;
    for (std::size_t k = 1; k <= base_.R_LSTEVT.NbElements(n); ++k) {
        const NoEvenement e = base_.R_LSTEVT.ElementListe(n, k);
        if (!EstEcrit(e)) continue;
        if (!titre) sortie.append("{Evénements}\r\n"_1252);
        titre = true;
        Ligne(sortie, Nombre(e.valeur) + ';' + base_.R_LSTEVT.TexteElement(n, k));
    }
}

void RedactionLgr::EcrireIndividu(std::string& sortie, NoOrdre n) {
    EcrireIdentite(sortie, n);
    EcrireListes(sortie, n);
    sortie.append("#\r\n");
    ++comptes_.individus;
}

void RedactionLgr::EcrireUnion(std::string& sortie, NoMariage m) {
    const NoOrdre epouse = base_.R_EPOUSE.LireCellule(m);
    Ligne(sortie, Nombre(base_.R_EPOUX.LireCellule(m).valeur));
    Ligne(sortie, Nombre(EstEcrit(epouse) ? epouse.valeur : 0));
    Ligne(sortie, storage::SansDiese(EcrireDatesUnionLgr(
                      {{storage::DateMariageBrute(base_, m), base_.R_DEBMAR.LireCellule(m)},
                       base_.R_FINMAR.LireCellule(m)})));
    Ligne(sortie, storage::LieuMariage(base_, m));
    Texte(sortie, base_.R_TXTMAR.LireTexte(m));
}

void RedactionLgr::EcrireDocument(std::string& sortie, NoDocument d) {
    const storage::Document& document = base_.R_IMAGE.LireDoc(d);
    Ligne(sortie, Nombre(d.valeur));
    Ligne(sortie, document.titre);
    Ligne(sortie,
          document.type.empty() ? document.fichier : document.fichier + '\xFF' + document.type);
    Texte(sortie, document.note);
    ++comptes_.documents;
}

void RedactionLgr::EcrireEvenement(std::string& sortie, NoEvenement e) {
    Ligne(sortie, Nombre(e.valeur));
    Ligne(sortie, std::to_string(base_.R_EVT.CleDateEvt(e)));
    const storage::DescriptionEvt& description = base_.R_EVT.Description(e);
    Ligne(sortie, description.lieu);
    Ligne(sortie, description.type);
    Ligne(sortie, description.libelle);
    // The lists of an event have no end of their own: 200 entries are written, like the others.
    std::size_t nombre = 0;
    for (const storage::LienEvenement& lien : base_.R_EVT.Liens(e)) {
        if (!EstEcrit(lien.individu)) continue;
        if (++nombre > storage::MaxElements)
            ++comptes_.omis;
        else
            sortie.append(Nombre(lien.individu.valeur)).append(1, ';');
    }
    sortie.append(Retour);
    nombre = 0;
    for (const NoDocument d : base_.R_EVT.Documents(e)) {
        if (!EstEcrit(d)) continue;
        if (++nombre > storage::MaxElements)
            ++comptes_.omis;
        else
            sortie.append(Nombre(d.valeur)).append(1, ';');
    }
    sortie.append(Retour);
    Texte(sortie, base_.R_EVT.NoteEvt(e));
    ++comptes_.evenements;
}

void RedactionLgr::EcrirePied(std::string& sortie) {
    sortie.append("[INDEX]\r\n");
    for (NoMotCle k{1}; k.valeur <= base_.motsCles.Nombre(); ++k.valeur) {
        const storage::MotCle& type = base_.motsCles.LibelleType(k);
        if (type.symbole != ' ' && type.indexe) Ligne(sortie, {&type.symbole, 1});
    }
    sortie.append("[FIN INDEX]\r\n[FIN]\r\n");
}

}  // namespace dorvane::interchange
