#include "windows/controles/FrmTexte.h"

#include "ui_FrmTexte.h"
#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "messages/Mots.h"
#include "records/MotsUsuels.h"
#include "shell/Session.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

#include <array>

namespace dorvane::windows {

namespace {

constexpr int LargeurMots = 220;

struct BoutonAlignement {
    const char* nom;
    Qt::AlignmentFlag alignement;
};
constexpr std::array<BoutonAlignement, 3> Alignements{
    {{"Gauche", Qt::AlignLeft}, {"Centre", Qt::AlignHCenter}, {"Droite", Qt::AlignRight}}};

}  // namespace

FrmTexte::FrmTexte(shell::Session& session, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmTexte"), parent},
      ui_{std::make_unique<Ui::FrmTexte>()},
      barre_{nullptr},
      rubriques_{new QMenu{this}} {
    ui_->setupUi(this);
    barre_ = ui_->Barre;
    FaireBarre();
    ui_->CdrMot->hide();
    ui_->Partage->setSizes({760 - LargeurMots, LargeurMots});
    ui_->Partage->setStretchFactor(0, 1);
    ui_->CmdFermerMots->setIcon(Icone("Abandonner"));
    connect(ui_->CmdFermerMots, &QToolButton::clicked, ui_->CdrMot, &QWidget::hide);
    connect(ui_->LstMot, &QListWidget::itemActivated, this, &FrmTexte::InsererMot);
    connect(ui_->TxtTexte, &QTextEdit::cursorPositionChanged, this, &FrmTexte::SuivreCurseur);
    connect(ui_->TxtTexte, &QTextEdit::currentCharFormatChanged, this, &FrmTexte::SuivreCurseur);
    connect(ui_->TxtTexte, &QTextEdit::textChanged, this, &FrmTexte::Compter);
    connect(ui_->CmdSauve, &QPushButton::clicked, this, &FrmTexte::Sauver);
    connect(ui_->CmdAbandon, &QPushButton::clicked, this, &FrmTexte::reject);
    Traduire();
    ui_->TxtTexte->setFocus();
}

FrmTexte::~FrmTexte() = default;

QAction* FrmTexte::Bouton(const char* nom, const char* icone, const QKeySequence& touches) {
    auto* action = new QAction{Icone(icone), {}, this};
    action->setObjectName(QString::fromUtf8(nom));
    action->setShortcut(touches);
    action->setShortcutContext(Qt::WindowShortcut);
    barre_->addAction(action);
    return action;
}

void FrmTexte::FaireBarre() {
    EditeurNote* texte = ui_->TxtTexte;
    connect(Bouton("Sauve", "MnuEnregistrer", QKeySequence::Save), &QAction::triggered, this,
            &FrmTexte::Sauver);
    connect(Bouton("Abandon", "Abandonner", {}), &QAction::triggered, this, &FrmTexte::reject);
    barre_->addSeparator();
    // The keys of these three are those of the editor itself.
    QAction* gras = Bouton("Gras", "Gras", {});
    QAction* souligne = Bouton("Souligné", "Souligné", {});
    QAction* italique = Bouton("Italique", "Italique", {});
    connect(gras, &QAction::triggered, texte, &EditeurNote::basculerGras);
    connect(souligne, &QAction::triggered, texte, &EditeurNote::basculerSouligne);
    connect(italique, &QAction::triggered, texte, &EditeurNote::basculerItalique);
    for (QAction* action : {gras, souligne, italique})
        action->setCheckable(true);
    barre_->addSeparator();
    for (const BoutonAlignement& bouton : Alignements) {
        QAction* action = Bouton(bouton.nom, bouton.nom, {});
        action->setCheckable(true);
        const Qt::AlignmentFlag alignement = bouton.alignement;
        connect(action, &QAction::triggered, this, [this, alignement] {
            ui_->TxtTexte->setAlignment(alignement);
            SuivreCurseur();
        });
    }
    barre_->addSeparator();
    connect(Bouton("Couper", "Couper", {}), &QAction::triggered, texte, &QTextEdit::cut);
    connect(Bouton("Copier", "Copier", {}), &QAction::triggered, texte, &QTextEdit::copy);
    connect(Bouton("Coller", "Coller", {}), &QAction::triggered, texte, &QTextEdit::paste);
    barre_->addSeparator();
    connect(Bouton("Défaire", "Defaire", {}), &QAction::triggered, texte, &QTextEdit::undo);
    connect(Bouton("Refaire", "Refaire", {}), &QAction::triggered, texte, &QTextEdit::redo);
    barre_->addSeparator();
    QAction* mots = Bouton("Rubriques", "MnuUsuels", {});
    mots->setMenu(rubriques_);
    if (auto* bouton = qobject_cast<QToolButton*>(barre_->widgetForAction(mots)))
        bouton->setPopupMode(QToolButton::InstantPopup);
    connect(rubriques_, &QMenu::aboutToShow, this, &FrmTexte::FaireRubriques);
    FaireRubriques();
}

void FrmTexte::FaireRubriques() {
    rubriques_->clear();
    for (const std::string& rubrique : records::ListerRubriques(S())) {
        const QString nom = TexteVersQt(rubrique);
        QAction* action = rubriques_->addAction(QString{nom}.replace(u'&', QStringLiteral("&&")));
        connect(action, &QAction::triggered, this, [this, nom] { MontrerRubrique(nom); });
    }
}

void FrmTexte::MontrerRubrique(const QString& rubrique) {
    ui_->LblRubrique->setText(rubrique);
    ui_->LstMot->clear();
    for (const std::string& mot : records::ListerMotsUsuels(S(), QtVersTexte(rubrique).octets))
        ui_->LstMot->addItem(TexteVersQt(mot));
    ui_->LblAide->setText(TexteEcran(
        S(), ui_->LstMot->count() == 0 ? message::RubriqueSansMot : message::EditeurAideMots));
    ui_->CdrMot->show();
    ui_->LstMot->setCurrentRow(0);
    ui_->LstMot->setFocus();
}

void FrmTexte::InsererMot() {
    if (const QListWidgetItem* mot = ui_->LstMot->currentItem()) {
        ui_->TxtTexte->insertPlainText(mot->text());
        ui_->TxtTexte->setFocus();
    }
}

void FrmTexte::SuivreCurseur() {
    const EditeurNote& texte = *ui_->TxtTexte;
    const auto cocher = [this](const char* nom, bool coche) {
        findChild<QAction*>(QString::fromUtf8(nom))->setChecked(coche);
    };
    cocher("Gras", texte.fontWeight() > QFont::Normal);
    cocher("Souligné", texte.fontUnderline());
    cocher("Italique", texte.fontItalic());
    const Qt::Alignment alignement = texte.alignment();
    cocher("Centre", alignement.testFlag(Qt::AlignHCenter));
    cocher("Droite", alignement.testFlag(Qt::AlignRight));
    cocher("Gauche",
           !alignement.testFlag(Qt::AlignHCenter) && !alignement.testFlag(Qt::AlignRight));
}

void FrmTexte::Compter() {
    const int nombre = ui_->TxtTexte->document()->characterCount() - 1;
    ui_->LblNombre->setText(TexteEcran(S().catalogue.Composer(
        shell::Msg(message::EditeurNombreCaracteres, std::to_string(nombre)))));
}

void FrmTexte::Traduire() {
    FenetreFille::Traduire();
    if (!titre_.isEmpty())
        setWindowTitle(QStringLiteral("%1 \u2013 %2")
                           .arg(TexteEcran(S(), message::TitreEditeurTexte), titre_));
    FaireRubriques();
    Compter();
    SuivreCurseur();
}

bool FrmTexte::Editer(std::string& note, const QString& titre, std::size_t auPlus) {
    titre_ = titre;
    auPlus_ = auPlus;
    ui_->TxtTexte->Poser(note);
    Traduire();
    if (exec() != Accepted || !ui_->TxtTexte->EstModifiee()) return false;
    note = ui_->TxtTexte->Note();
    return true;
}

void FrmTexte::Sauver() {
    const std::size_t taille = ui_->TxtTexte->Note().size();
    if (auPlus_ > 0 && taille > auPlus_) {
        S().dialogue.Informer(
            shell::Msg(message::TexteTropLong, std::to_string(taille), std::to_string(auPlus_)));
        return;
    }
    if (const std::size_t remplaces = ui_->TxtTexte->Remplaces(); remplaces > 0)
        S().dialogue.Informer(
            shell::Msg(message::TexteHorsJeuDeCaracteres, std::to_string(remplaces)));
    accept();
}

bool FrmTexte::EnregistrerSaisie() {
    Sauver();
    return false;
}

/// Escape and the close button lose nothing without a question.
void FrmTexte::reject() {
    if (!ui_->TxtTexte->EstModifiee()) return FenetreFille::reject();
    Renoncer(shell::Msg(message::ProposerEnregistrerTexte), [this] { Sauver(); });
}

}  // namespace dorvane::windows
