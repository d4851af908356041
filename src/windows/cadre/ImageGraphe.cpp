#include "windows/cadre/ImageGraphe.h"

#include <QApplication>
#include <QBuffer>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>

#include "messages/Dorvane.h"
#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/FichierSur.h"
#include "values/Texte1252.h"
#include "windows/cadre/Programme.h"
#include "windows/graphe/FrmDebut.h"

#include <iostream>
#include <string_view>

namespace dorvane::windows {

namespace {

/// Nobody is there: what would be told goes to standard error, what would be asked is refused.
class DialogueMuet final : public shell::Dialogue {
public:
    using Dialogue::Informer;

    void Attacher(const shell::Session& session) { session_ = &session; }

    void Informer(const shell::Phrase& texte, const shell::Phrase& /*titre*/) override {
        std::cerr << TexteVersUtf8(session_->catalogue.Composer(texte)) << '\n';
    }
    void Annoncer(const shell::Phrase& /*texte*/) override {}
    [[nodiscard]] shell::Reponse Demander(const shell::Question& question) override {
        return question.boutons == shell::Boutons::OuiNon ? shell::Reponse::Non
                                                          : shell::Reponse::Annuler;
    }
    [[nodiscard]] NoOrdre ChoisirPersonne(const shell::DemandePersonne& /*demande*/) override {
        return {};
    }
    [[nodiscard]] std::optional<std::filesystem::path> ChoisirFichier(
        const shell::DemandeFichier& /*demande*/) override {
        return std::nullopt;
    }

private:
    const shell::Session* session_ = nullptr;
};

bool EcrirePng(const QPixmap& image, const std::filesystem::path& sortie) {
    QByteArray octets;
    QBuffer tampon{&octets};
    tampon.open(QIODevice::WriteOnly);
    if (!image.save(&tampon, "PNG")) return false;
    return shell::EcrireTout(sortie, {octets.constData(), static_cast<std::size_t>(octets.size())});
}

}  // namespace

void AssombrirBureau() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor fond{0x2A, 0x2D, 0x32};
    const QColor champ{0x1F, 0x22, 0x26};
    const QColor texte{0xE6, 0xE8, 0xEB};
    const QColor pale{0x86, 0x8B, 0x92};
    QPalette palette{
        texte, fond, fond.lighter(150), fond.darker(160), fond.lighter(120), texte, texte,
        champ, fond};
    palette.setColor(QPalette::AlternateBase, champ.lighter(120));
    palette.setColor(QPalette::Highlight, QColor{0x3D, 0x6E, 0xA8});
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, champ);
    palette.setColor(QPalette::ToolTipText, texte);
    palette.setColor(QPalette::PlaceholderText, pale);
    palette.setColor(QPalette::Link, QColor{0x8A, 0xB8, 0xF0});
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, pale);
    QApplication::setPalette(palette);
}

bool ImagerFenetre(const DemandeImage& demande) {
    if (demande.sombre) AssombrirBureau();
    DialogueMuet dialogue;
    Programme programme{shell::LieuxDuSysteme(), dialogue};
    dialogue.Attacher(programme.session);
    shell::Demarrage(programme.session);
    // What a first start would ask is answered by the desktop.
    if (demande.sombre || !PaletteChoisie(programme.session))
        programme.fenetre.Graphe().PoserPalette(PaletteDuBureau());
    programme.fenetre.resize(demande.taille);
    if (!shell::OuvrirChemin(programme.session, demande.base)) return false;
    programme.fenetre.show();
    QApplication::processEvents();
    if (!EcrirePng(programme.fenetre.grab(), demande.sortie)) {
        dialogue.Informer(
            shell::Msg(message::FichierNonEcritAutreNom, shell::CheminAffiche(demande.sortie)));
        return false;
    }
    return true;
}

}  // namespace dorvane::windows
