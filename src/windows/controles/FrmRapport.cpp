#include "windows/controles/FrmRapport.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "messages/Dorvane.h"
#include "shell/FichierSur.h"
#include "shell/Session.h"
#include "windows/controles/Legendes.h"

namespace dorvane::windows {

FrmRapport::FrmRapport(shell::Session& session, const QString& titre, const QString& texte,
                       QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmRapport"), parent},
      texte_{new QPlainTextEdit{texte, this}},
      etat_{new QLabel{this}} {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(titre);
    resize(720, 520);
    texte_->setObjectName(QStringLiteral("TxtRapport"));
    texte_->setReadOnly(true);
    texte_->setTabChangesFocus(true);
    texte_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    texte_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto* colonne = new QVBoxLayout{this};
    colonne->setContentsMargins(12, 12, 12, 12);
    colonne->setSpacing(12);
    colonne->addWidget(texte_);
    auto* rang = new QHBoxLayout;
    rang->setSpacing(6);
    rang->addWidget(etat_, 1);
    const auto bouton = [&](const char* nom, void (FrmRapport::*action)()) {
        auto* nouveau = new QPushButton{this};
        nouveau->setObjectName(QString::fromLatin1(nom));
        connect(nouveau, &QPushButton::clicked, this, action);
        rang->addWidget(nouveau);
        return nouveau;
    };
    bouton("CmdCopier", &FrmRapport::CmdCopierClique)->setAutoDefault(false);
    bouton("CmdEnregistrer", &FrmRapport::CmdEnregistrerClique)->setAutoDefault(false);
    auto* fermer = new QPushButton{this};
    fermer->setObjectName(QStringLiteral("CmdFermer"));
    fermer->setDefault(true);
    connect(fermer, &QPushButton::clicked, this, &QDialog::close);
    rang->addWidget(fermer);
    colonne->addLayout(rang);
    Traduire();
    texte_->setFocus();
}

void FrmRapport::CmdCopierClique() {
    QGuiApplication::clipboard()->setText(texte_->toPlainText());
    etat_->setText(TexteEcran(S(), message::EtatRapportCopie));
}

void FrmRapport::CmdEnregistrerClique() {
    const std::optional<std::filesystem::path> chemin =
        S().dialogue.ChoisirFichier({shell::DemandeFichier::Sorte::Enregistrer,
                                     {},
                                     S().Message(message::FiltreFichiersTexte),
                                     ".txt",
                                     {}});
    if (!chemin) return;
    const std::string nom = shell::CheminAffiche(*chemin);
    if (shell::EcrireTout(*chemin, texte_->toPlainText().toStdString() + '\n'))
        etat_->setText(
            TexteEcran(S().catalogue.Composer(shell::Msg(message::EtatRapportEnregistre, nom))));
    else
        S().dialogue.Informer(shell::Msg(message::FichierNonEcritAutreNom, nom));
}

}  // namespace dorvane::windows
