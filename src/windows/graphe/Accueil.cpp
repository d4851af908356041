#include "windows/graphe/Accueil.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "messages/Dorvane.h"
#include "shell/Session.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

namespace {

constexpr int LargeurColonne = 460;

/// A button that asks for a command and bears its drawing.
QPushButton* Bouton(Accueil* parent, const char* nom, const char* commande) {
    auto* bouton = new QPushButton{Icone(commande), {}, parent};
    bouton->setObjectName(QString::fromUtf8(nom));
    QObject::connect(bouton, &QPushButton::clicked, parent, [parent, commande] {
        Q_EMIT parent->commandeDemandee(QString::fromUtf8(commande));
    });
    bouton->setMinimumHeight(bouton->sizeHint().height() + 8);
    return bouton;
}

void Grossir(QLabel& etiquette, double facteur) {
    QFont police = etiquette.font();
    police.setPointSizeF(police.pointSizeF() * facteur);
    police.setBold(true);
    etiquette.setFont(police);
}

}  // namespace

Accueil::Accueil(const shell::Session& session, QWidget* parent)
    : QWidget{parent},
      session_{session},
      titre_{new QLabel{this}},
      texte_{new QLabel{this}},
      personne_{Bouton(this, "CmdAccueilPersonne", "MnuNouvInd")},
      ouvrir_{Bouton(this, "CmdAccueilOuvrir", "MnuOuvrir")},
      nouveau_{Bouton(this, "CmdAccueilNouveau", "MnuNouveau")},
      importer_{Bouton(this, "CmdAccueilImporter", "MnuImporter")},
      recentes_{new QLabel{this}},
      colonne_{new QVBoxLayout},
      liste_{new QVBoxLayout} {
    setObjectName(QStringLiteral("Accueil"));
    titre_->setObjectName(QStringLiteral("LblAccueil"));
    texte_->setObjectName(QStringLiteral("LblAccueilTexte"));
    recentes_->setObjectName(QStringLiteral("LblRecentes"));
    Grossir(*titre_, 1.7);
    Grossir(*recentes_, 1.0);
    texte_->setWordWrap(true);
    texte_->setFixedWidth(LargeurColonne);

    auto* dehors = new QVBoxLayout{this};
    dehors->setContentsMargins(12, 12, 12, 12);
    dehors->addStretch(2);
    dehors->addLayout(colonne_);
    dehors->addStretch(3);
    colonne_->setSpacing(6);
    for (QWidget* widget : {static_cast<QWidget*>(titre_), static_cast<QWidget*>(texte_)})
        colonne_->addWidget(widget, 0, Qt::AlignHCenter);
    colonne_->addSpacing(18);
    for (QPushButton* bouton : {personne_, ouvrir_, nouveau_, importer_}) {
        bouton->setFixedWidth(LargeurColonne * 2 / 3);
        colonne_->addWidget(bouton, 0, Qt::AlignHCenter);
    }
    colonne_->addSpacing(18);
    colonne_->addWidget(recentes_, 0, Qt::AlignHCenter);
    liste_->setSpacing(0);
    colonne_->addLayout(liste_);
    texte_->setAlignment(Qt::AlignHCenter);
}

void Accueil::Actualiser() {
    const bool ouverte = session_.BaseOuverte();
    titre_->setText(
        TexteEcran(session_, ouverte ? message::TitreBaseVide : message::TitreBienvenue));
    texte_->setText(
        TexteEcran(session_, ouverte ? message::AccueilBaseVide : message::AccueilSansBase));
    // Centred in its column, the label would get one line only.
    texte_->setMinimumHeight(texte_->heightForWidth(LargeurColonne));
    personne_->setVisible(ouverte);
    nouveau_->setVisible(!ouverte);
    PoserRecentes();
}

void Accueil::PoserRecentes() {
    while (QLayoutItem* element = liste_->takeAt(0)) {
        if (QWidget* bouton = element->widget()) bouton->deleteLater();
        delete element;
    }
    const auto& historique = session_.parametres.generaux.historique;
    recentes_->setVisible(!session_.BaseOuverte() && !historique.empty());
    if (session_.BaseOuverte()) return;
    for (std::size_t i = 0; i < historique.size(); ++i) {
        auto* bouton = new QPushButton{
            CheminVersQt(historique[i].stem()).replace(u'&', QStringLiteral("&&")), this};
        bouton->setObjectName(QStringLiteral("CmdRecente(%1)").arg(i));
        bouton->setToolTip(CheminVersQt(historique[i]));
        bouton->setFlat(true);
        bouton->setFixedWidth(LargeurColonne * 2 / 3);
        const QString commande = QStringLiteral("MnuHisto(%1)").arg(i);
        connect(bouton, &QPushButton::clicked, this,
                [this, commande] { Q_EMIT commandeDemandee(commande); });
        liste_->addWidget(bouton, 0, Qt::AlignHCenter);
    }
}

}  // namespace dorvane::windows
