#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/Parametres.h"
#include "shell/Session.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Unicode.h"
#include "windows/reglages/BoutonIcone.h"

#include <algorithm>
#include <cassert>

namespace dorvane::windows {

QAction* MDIForm1::ActionNommee(const QString& nom) const {
    return findChild<QAction*>(nom);
}

void MDIForm1::FaireMenus() {
    menuBar()->setNativeMenuBar(false);
    for (const Commande& rangee : Commandes()) {
        auto* dans = findChild<QMenu*>(QString::fromUtf8(rangee.menu));
        // A menu stands before what stands in it.
        assert(dans != nullptr || *rangee.menu == '\0');
        switch (rangee.sorte) {
            case SorteCommande::Menu:
                if (*rangee.menu == '\0')
                    menuBar()->addMenu(FaireMenu(rangee));
                else
                    dans->addMenu(FaireMenu(rangee));
                break;
            case SorteCommande::Filet:
                dans->addSeparator()->setObjectName(QString::fromUtf8(rangee.nom));
                break;
            case SorteCommande::Commande:
            case SorteCommande::Bascule:
            case SorteCommande::Choix:
                dans->addAction(FaireAction(*dans, rangee));
                break;
        }
    }
    ActionNommee(QStringLiteral("MnuQuitter"))->setMenuRole(QAction::QuitRole);
    ActionNommee(QStringLiteral("MnuParametres"))->setMenuRole(QAction::PreferencesRole);
}

QMenu* MDIForm1::FaireMenu(const Commande& rangee) {
    auto* menu = new QMenu{this};
    menu->setObjectName(QString::fromUtf8(rangee.nom));
    menu->setToolTipsVisible(true);
    return menu;
}

QAction* MDIForm1::FaireAction(QMenu& menu, const Commande& rangee) {
    auto* action = new QAction{Icone(rangee.nom), {}, this};
    action->setObjectName(QString::fromUtf8(rangee.nom));
    QList<QKeySequence> touches;
    for (const QString& texte : QString::fromLatin1(rangee.touches).split(u' ', Qt::SkipEmptyParts))
        touches << QKeySequence{texte};
    action->setShortcuts(touches);
    action->setCheckable(rangee.coche != nullptr);
    if (rangee.sorte == SorteCommande::Choix) {
        auto* groupe = menu.findChild<QActionGroup*>();
        if (groupe == nullptr) groupe = new QActionGroup{&menu};
        groupe->addAction(action);
    }
    connect(action, &QAction::triggered, this, [this, &rangee] { Executer(rangee); });
    return action;
}

void MDIForm1::Executer(const Commande& commande) {
    const Besoin& besoin = commande.besoin;
    if (besoin.calme && !shell::CommandePermise(session_)) return;
    if (besoin.base == BesoinBase::Ouverte && !session_.base) return;
    commande.faire(*this);
}

void MDIForm1::PoserIcones() {
    const QString numeros = QString::fromStdString(session_.parametres.generaux.icones);
    // The button just pressed lives in the bar: it is filled again only for another setting.
    if (numeros == numerosIcones_) return;
    numerosIcones_ = numeros;
    icones_->clear();
    bool trait = false;
    for (const QString& texte : numeros.split(u',', Qt::SkipEmptyParts)) {
        const int no = texte.trimmed().toInt();
        // A group of which nothing is there leaves no second line.
        if (no == SeparateurIcones) trait = !icones_->actions().isEmpty();
        const auto rangee = std::ranges::find(Commandes(), no, &Commande::bouton);
        if (no == Commande::SansBouton || rangee == Commandes().end()) continue;
        if (trait) icones_->addSeparator();
        trait = false;
        icones_->addAction(ActionNommee(QString::fromUtf8(rangee->nom)));
    }
}

void MDIForm1::PoserLangues() {
    auto* menu = findChild<QMenu*>(QStringLiteral("MnuLng"));
    menu->clear();
    for (const shell::Langue& langue : shell::LanguesOffertes(session_)) {
        const QString nom = QString::fromStdString(langue.nom);
        QAction* action = menu->addAction(QString::fromStdString(langue.libelle));
        action->setObjectName(QStringLiteral("MnuLng(%1)").arg(nom));
        action->setCheckable(true);
        action->setChecked(langue.courante);
        // Queued, because the menu is filled again and its entries go.
        connect(
            action, &QAction::triggered, this, [this, nom] { ChangerLangue(nom); },
            Qt::QueuedConnection);
    }
}

void MDIForm1::PoserHistorique() {
    const auto& chemins = session_.parametres.generaux.historique;
    ActionNommee(QStringLiteral("TraitHistorique"))->setVisible(!chemins.empty());
    for (std::size_t i = 0; i < shell::TailleHistorique; ++i) {
        QAction* action = ActionNommee(QStringLiteral("MnuHisto(%1)").arg(i));
        action->setVisible(i < chemins.size());
        if (i >= chemins.size()) continue;
        const QString nom = CheminVersQt(chemins[i].stem()).replace(u'&', QStringLiteral("&&"));
        action->setText(QStringLiteral("&%1. %2").arg(i + 1).arg(nom));
        action->setToolTip(CheminVersQt(chemins[i]));
        action->setData(CheminVersQt(chemins[i]));
    }
}

void MDIForm1::PoserEtats() {
    EtatCommandes etat;
    etat.base = session_.BaseOuverte();
    for (std::size_t k = 0; k < etat.deCujus.size(); ++k)
        etat.deCujus[k] = session_.deCujus[k].individu && !session_.deCujus[k].sosa.empty();
    for (const Commande& rangee : Commandes())
        if (rangee.faire != nullptr)
            ActionNommee(QString::fromUtf8(rangee.nom))->setEnabled(Offerte(rangee.besoin, etat));
}

void MDIForm1::PoserCoches() {
    for (const Commande& rangee : Commandes()) {
        if (rangee.coche == nullptr) continue;
        const bool cochee = rangee.coche(*this);
        // The one that is on takes the mark from the others of its menu.
        if (cochee || rangee.sorte == SorteCommande::Bascule)
            ActionNommee(QString::fromUtf8(rangee.nom))->setChecked(cochee);
    }
}

}  // namespace dorvane::windows
