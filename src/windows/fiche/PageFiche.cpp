#include "windows/fiche/PageFiche.h"

#include <QAbstractButton>

#include "shell/Session.h"
#include "windows/controles/EditeurNote.h"
#include "windows/controles/FrmTexte.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/TableFiche.h"

namespace dorvane::windows {

void PageFiche::Habiller(QAbstractButton& bouton, const char* icone, NoMessage message) const {
    bouton.setIcon(Icone(icone));
    const QString texte = TexteEcran(session_, message);
    bouton.setToolTip(texte);
    bouton.setAccessibleName(texte);
}

void PageFiche::RelierPersonnes(TableFiche& table) {
    connect(&table, &TableFiche::ouverte, this, [this, &table] {
        const LigneFiche* ligne = table.Courante();
        if (ligne != nullptr && ligne->individu) fiche_.Montrer(ligne->individu);
    });
}

void PageFiche::PoserNote(EditeurNote& editeur, const std::string& note) {
    editeur.Poser(note);
    editeur.setReadOnly(note.starts_with("{\\rtf1"));
}

void PageFiche::RelireNote(EditeurNote& editeur, const std::string& note, std::string& stockee,
                           bool garder) {
    const bool changee = garder && editeur.Note() != stockee;
    stockee = note;
    if (!changee) PoserNote(editeur, note);
}

void PageFiche::EditerNote(EditeurNote& editeur, const QString& de) {
    std::string note = editeur.Note();
    FrmTexte fenetre{session_, window()};
    if (!fenetre.Editer(note, de)) return;
    PoserNote(editeur, note);
    fiche_.Changer();
}

}  // namespace dorvane::windows
