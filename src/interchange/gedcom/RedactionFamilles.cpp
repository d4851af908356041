// Families, events as sources, documents as notes.
#include "interchange/gedcom/DatesGedcom.h"
#include "interchange/gedcom/RedactionGedcom.h"
#include "interchange/gedcom/TitreDocument.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Dates.h"
#include "values/SortesEvenement.h"

#include <algorithm>

namespace dorvane::interchange {

void RedactionGedcom::EcrireFamille(std::uint32_t famille) {
    const FamilleExport& f = familles_.familles[famille];
    const bool membre = EstEcrit(f.epoux) || EstEcrit(f.epouse) ||
                        std::ranges::any_of(f.enfants, [this](NoOrdre n) { return EstEcrit(n); });
    if (!membre) return;
    ++comptes_.unions;
    sortie_.Enregistrement('F', famille, "FAM");
    if (EstEcrit(f.epoux)) sortie_.Renvoi(1, "HUSB", 'I', f.epoux.valeur);
    if (EstEcrit(f.epouse)) sortie_.Renvoi(1, "WIFE", 'I', f.epouse.valeur);
    for (const NoOrdre enfant : f.enfants)
        if (EstEcrit(enfant)) sortie_.Renvoi(1, "CHIL", 'I', enfant.valeur);
    if (!familles_.EstUnion(famille)) return;
    const NoMariage m{famille};
    EcrireVie("MARR", storage::DateMariageBrute(base_, m), base_.R_DEBMAR.LireCellule(m),
              storage::LieuMariage(base_, m));
    const std::string texte{base_.R_TXTMAR.LireTexte(m)};
    const storage::TexteDecoupe decoupe = storage::DecouperTexte(texte, definitionMariage_);
    EcrireRubriques(definitionMariage_, decoupe.slots, Sujet::Famille, true);
    EcrireTexteLibre({}, decoupe.note, Sujet::Famille);
}

void RedactionGedcom::EcrireSource(NoEvenement e) {
    ++comptes_.evenements;
    const storage::DescriptionEvt description = base_.R_EVT.Description(e);
    sortie_.Enregistrement('E', e.valeur, "SOUR");
    sortie_.Ligne(1, "DATA");
    const std::string& type = description.type;
    if (EstSorte(type, UsageSorte::Source))
        sortie_.Valeur(2, "EVEN", type == tag::Bapteme ? "BAPM" : std::string_view{type});
    else
        sortie_.Valeur(2, "EVEN", '(' + shell::LibelleDeTag(session_.catalogue, type) + ')');
    if (const auto jour = SerieVersDate(base_.R_EVT.CleDateEvt(e)); jour)
        sortie_.Valeur(3, "DATE", EcrireJourGedcom(jour->jour, jour->mois, jour->annee));
    sortie_.Valeur(3, "PLAC", description.lieu);
    static_cast<void>(sortie_.Texte("2 NOTE ", 3, base_.R_EVT.NoteEvt(e)));
    for (const NoDocument d : base_.R_EVT.Documents(e)) {
        if (!d || d.valeur >= documents_.size()) continue;
        documents_[d.valeur] = true;
        sortie_.Renvoi(2, "NOTE", 'D', d.valeur);
    }
    sortie_.Valeur(1, "TITL", description.libelle);
}

void RedactionGedcom::EcrireDocument(NoDocument d) {
    ++comptes_.documents;
    const storage::Document document = base_.R_IMAGE.LireDoc(d);
    const std::string debut = "0 @D" + std::to_string(d.valeur) + "@ NOTE ";
    // The format has no title for a note: one that a reader would not make of the text by itself
    // goes in front, as a line of its own.
    std::string texte = document.note;
    if (TitreDocument(texte) != document.titre)
        texte = document.titre + (texte.empty() ? "" : "\r\n") + texte;
    if (!sortie_.Texte(debut, 1, texte)) sortie_.Enregistrement('D', d.valeur, "NOTE");
    sortie_.Valeur(1, "REFN", document.fichier);
    if (document.type.empty()) return;
    sortie_.Ligne(1, "REFN");
    sortie_.Valeur(2, "TYPE", document.type);
}

}  // namespace dorvane::interchange
