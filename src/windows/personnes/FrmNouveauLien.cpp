#include "windows/personnes/FrmNouveauLien.h"

#include "ui_FrmNouveauLien.h"
#include <QCompleter>
#include <QLineEdit>

#include "messages/Dorvane.h"
#include "messages/Fiche.h"
#include "records/Liens.h"
#include "records/MotsUsuels.h"
#include "records/NomsAffiches.h"
#include "shell/Libelles.h"
#include "shell/Session.h"
#include "values/SortesEvenement.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

QStringList MotsDeLiens(const shell::Session& session) {
    QStringList mots;
    for (const std::string& mot :
         records::ListerMotsUsuels(session, shell::LibelleDeTag(session.catalogue, tag::Relation)))
        mots << TexteVersQt(mot);
    return mots;
}

FrmNouveauLien::FrmNouveauLien(shell::Session& session, NoOrdre individu, NoOrdre autre,
                               QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmNouveauLien"), parent},
      ui_{std::make_unique<Ui::FrmNouveauLien>()},
      individu_{individu},
      autre_{autre} {
    ui_->setupUi(this);
    SuivreLangue(*ui_->CboLien->lineEdit(), SorteSaisie::Libelle);
    ui_->CboLien->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    ui_->CboLien->completer()->setCompletionMode(QCompleter::PopupCompletion);
    connect(ui_->CmdValider, &QPushButton::clicked, this, &FrmNouveauLien::Valider);
    connect(ui_->CmdAnnuler, &QPushButton::clicked, this, &FrmNouveauLien::reject);
    FrmNouveauLien::Traduire();
    ui_->CboLien->setFocus();
}

FrmNouveauLien::~FrmNouveauLien() = default;

bool FrmNouveauLien::Lier(shell::Session& session, NoOrdre individu, NoOrdre autre,
                          QWidget* parent) {
    if (!records::PeutLier(session, individu, autre)) return false;
    FrmNouveauLien fenetre{session, individu, autre, parent};
    return fenetre.exec() == QDialog::Accepted;
}

void FrmNouveauLien::Traduire() {
    FenetreFille::Traduire();
    setWindowTitle(TexteEcran(S().catalogue.Composer(
        shell::Msg(message::TitreLienAvec, records::NomAffiche(S(), autre_)))));
    const QString saisi = ui_->CboLien->currentText();
    ui_->CboLien->clear();
    ui_->CboLien->addItems(MotsDeLiens(S()));
    ui_->CboLien->setCurrentIndex(-1);
    ui_->CboLien->setEditText(saisi);
}

bool FrmNouveauLien::EnregistrerSaisie() {
    Valider();
    return !isVisible();
}

void FrmNouveauLien::reject() {
    const QString saisi = ui_->CboLien->currentText().trimmed();
    if (saisi.isEmpty()) return FenetreFille::reject();
    Renoncer(shell::Msg(message::ProposerEnregistrerLien, QtVersTexte(saisi).octets),
             [this] { Valider(); });
}

void FrmNouveauLien::Valider() {
    std::size_t remplaces = 0;
    const std::string libelle = LireChamp(ui_->CboLien->currentText(), remplaces);
    if (AccepterRemplaces(S(), remplaces) && records::AjouterLien(S(), individu_, autre_, libelle))
        return accept();
    ui_->CboLien->setFocus();
    ui_->CboLien->lineEdit()->selectAll();
}

}  // namespace dorvane::windows
