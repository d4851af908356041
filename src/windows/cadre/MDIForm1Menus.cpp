#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "shell/CycleDeVie.h"
#include "shell/Demarrage.h"
#include "shell/Session.h"
#include "windows/cadre/MDIForm1.h"
#include "windows/controles/BoutonsIcones.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Unicode.h"
#include "windows/graphe/FrmDebut.h"

#include <string>

namespace dorvane::windows {

QAction* MDIForm1::ActionNommee(const QString& nom) const {
    return findChild<QAction*>(nom);
}

QMenu* MDIForm1::FaireMenu(QWidget* parent, const char* nom) {
    auto* menu = new QMenu{this};
    menu->setObjectName(QString::fromUtf8(nom));
    menu->setToolTipsVisible(true);
    if (auto* barre = qobject_cast<QMenuBar*>(parent))
        barre->addMenu(menu);
    else if (auto* dessus = qobject_cast<QMenu*>(parent))
        dessus->addMenu(menu);
    return menu;
}

QAction* MDIForm1::FaireAction(QMenu* menu, const char* nom, const char* touches, Action action) {
    auto* nouvelle = new QAction{Icone(nom), {}, this};
    nouvelle->setObjectName(QString::fromUtf8(nom));
    if (touches != nullptr) nouvelle->setShortcut(QKeySequence{QString::fromLatin1(touches)});
    if (action != nullptr) connect(nouvelle, &QAction::triggered, this, action);
    menu->addAction(nouvelle);
    return nouvelle;
}

void MDIForm1::FaireMenus() {
    menuBar()->setNativeMenuBar(false);
    FaireFichier();
    FairePersonne();
    FaireAffichage();
    FaireOutils();
    menuLangues_ = FaireMenu(menuBar(), "MnuLng");
}

void MDIForm1::FaireFichier() {
    QMenu* menu = menuFichier_ = FaireMenu(menuBar(), "MnuFichier");
    FaireAction(menu, "MnuNouveau", "Ctrl+N", &MDIForm1::Nouveau);
    FaireAction(menu, "MnuOuvrir", "Ctrl+O", &MDIForm1::Ouvrir);
    FaireAction(menu, "MnuFermer", "Ctrl+W", &MDIForm1::Fermer);
    menu->addSeparator();
    FaireAction(menu, "MnuEnregistrer", "Ctrl+S", &MDIForm1::Enregistrer);
    FaireAction(menu, "MnuSauvegarde", "Ctrl+B", &MDIForm1::Sauvegarde);
    FaireAction(menu, "MnuRestauration", "Ctrl+R", &MDIForm1::Restauration);
    menu->addSeparator();
    FaireAction(menu, "MnuImporter", "Ctrl+I", &MDIForm1::Importer);
    FaireReleves(menu);
    FaireEchange(menu);
    FaireAction(menu, "MnuGénéanet", nullptr, &MDIForm1::Geneanet);
    traitHistorique_ = menu->addSeparator();
    for (std::size_t i = 0; i < historique_.size(); ++i) {
        const std::string nom = "MnuHisto(" + std::to_string(i) + ')';
        historique_[i] = FaireAction(menu, nom.c_str(), nullptr, nullptr);
        const int rang = static_cast<int>(i);
        connect(historique_[i], &QAction::triggered, this, [this, rang] { Histo(rang); });
    }
    menu->addSeparator();
    FaireAction(menu, "MnuQuitter", "Ctrl+Q", &MDIForm1::Quitter)->setMenuRole(QAction::QuitRole);
}

void MDIForm1::FairePersonne() {
    QMenu* menu = FaireMenu(menuBar(), "MnuPersonne");
    FaireAction(menu, "MnuPrécédent", "Ctrl+PgUp", &MDIForm1::Precedent);
    FaireAction(menu, "MnuSuivant", "Ctrl+PgDown", &MDIForm1::Suivant);
    FaireAction(menu, "MnuListe", "Ctrl+F", &MDIForm1::Liste);
    FaireAction(menu, "MnuNoms", "Ctrl+L", &MDIForm1::Noms);
    menu->addSeparator();
    FaireAction(menu, "MnuModif", "F2", &MDIForm1::Modifier);
    FaireAction(menu, "MnuNouvInd", "Ctrl+Shift+N", &MDIForm1::NouvelIndividu);
    FaireAction(menu, "MnuSupprInd", nullptr, &MDIForm1::SupprimerIndividu);
    menu->addSeparator();
    FaireAction(menu, "MnuLstEvt", "Ctrl+E", &MDIForm1::Evenements);
    FaireAction(menu, "MnuLstImage", "Ctrl+D", &MDIForm1::Documents);
    menu->addSeparator();
    FaireAction(menu, "MnuAller1_1", "Ctrl+1", &MDIForm1::AllerDeCujus1);
    FaireAction(menu, "MnuAller1_2", "Ctrl+2", &MDIForm1::AllerDeCujus2);
    QMenu* choix = FaireMenu(menu, "MnuChoixDeCujus");
    FaireAction(choix, "MnuDeCujus1", "Ctrl+Shift+1", &MDIForm1::ChoisirDeCujus1);
    FaireAction(choix, "MnuDeCujus2", "Ctrl+Shift+2", &MDIForm1::ChoisirDeCujus2);
}

void MDIForm1::FaireAffichage() {
    QMenu* menu = FaireMenu(menuBar(), "MnuAffichage");
    QMenu* tailles = FaireMenu(menu, "MnuPrésentation");
    presentations_ = new QActionGroup{this};
    for (int i = 1; i <= 4; ++i) {
        const std::string nom = "MnuPrésentation(" + std::to_string(i) + ')';
        const std::string touches = "Alt+" + std::to_string(i);
        QAction* action = FaireAction(tailles, nom.c_str(), touches.c_str(), nullptr);
        action->setCheckable(true);
        presentations_->addAction(action);
        connect(action, &QAction::triggered, this, [this, i] { Presentation(i); });
    }
    QMenu* couleurs = FaireMenu(menu, "MnuPalette");
    palettes_ = new QActionGroup{this};
    constexpr const char* Palettes[] = {"MnuClassique", "MnuClaire", "MnuSombre"};
    for (int i = 0; i < 3; ++i) {
        QAction* action = FaireAction(couleurs, Palettes[i], nullptr, nullptr);
        action->setCheckable(true);
        palettes_->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, i] { PoserPalette(static_cast<Palette>(i)); });
    }
    menu->addSeparator();
    FaireAction(menu, "MnuAgrandir", "Ctrl++", &MDIForm1::Agrandir)
        ->setShortcuts(
            {QKeySequence{QStringLiteral("Ctrl++")}, QKeySequence{QStringLiteral("Ctrl+=")}});
    FaireAction(menu, "MnuDiminuer", "Ctrl+-", &MDIForm1::Diminuer);
    FaireAction(menu, "MnuAjuster", "Ctrl+0", &MDIForm1::Ajuster);
    menu->addSeparator();
    FaireAction(menu, "MnuGauche", "Ctrl+Left", &MDIForm1::Gauche);
    FaireAction(menu, "MnuDroite", "Ctrl+Right", &MDIForm1::Droite);
    menu->addSeparator();
    FaireAction(menu, "MnuBarreIcones", nullptr, &MDIForm1::BarreIcones)->setCheckable(true);
    FaireAction(menu, "MnuBarreFenetres", nullptr, &MDIForm1::BarreFenetres)->setCheckable(true);
}

void MDIForm1::FaireOutils() {
    QMenu* menu = FaireMenu(menuBar(), "MnuOutils");
    FaireAction(menu, "MnuMotsClés", nullptr, &MDIForm1::MotsCles);
    FaireAction(menu, "MnuUsuels", "Ctrl+U", &MDIForm1::Usuels);
    menu->addSeparator();
    FaireAction(menu, "MnuCalendrier", "Ctrl+K", &MDIForm1::Calendrier);
    FaireAction(menu, "MnuCommunes", nullptr, &MDIForm1::Communes);
    menu->addSeparator();
    FaireSoin(menu);
    menu->addSeparator();
    FaireAction(menu, "MnuParametres", "Ctrl+,", &MDIForm1::Reglages)
        ->setMenuRole(QAction::PreferencesRole);
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
        const char* nom = ActionDuBouton(no);
        // A group of which nothing is there leaves no second line.
        if (no == SeparateurIcones) trait = !icones_->actions().isEmpty();
        if (nom == nullptr) continue;
        if (trait) icones_->addSeparator();
        trait = false;
        icones_->addAction(ActionNommee(QString::fromUtf8(nom)));
    }
}

void MDIForm1::PoserLangues() {
    menuLangues_->clear();
    for (const shell::Langue& langue : shell::LanguesOffertes(session_)) {
        const QString nom = QString::fromStdString(langue.nom);
        QAction* action = menuLangues_->addAction(QString::fromStdString(langue.libelle));
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
    traitHistorique_->setVisible(!chemins.empty());
    for (std::size_t i = 0; i < historique_.size(); ++i) {
        historique_[i]->setVisible(i < chemins.size());
        if (i >= chemins.size()) continue;
        const QString nom = CheminVersQt(chemins[i].stem()).replace(u'&', QStringLiteral("&&"));
        historique_[i]->setText(QStringLiteral("&%1. %2").arg(i + 1).arg(nom));
        historique_[i]->setToolTip(CheminVersQt(chemins[i]));
        historique_[i]->setData(CheminVersQt(chemins[i]));
    }
}

void MDIForm1::PoserEtats() {
    const bool ouverte = session_.BaseOuverte();
    for (QAction* action : findChildren<QAction*>()) {
        const QString nom = action->objectName();
        if (nom.startsWith(u"Mnu") && action->menu() == nullptr)
            action->setEnabled(shell::EtatMenu(ouverte, nom.toStdString()));
    }
    // Bars and colours belong to the window, not to a base.
    for (const char* nom :
         {"MnuBarreIcones", "MnuBarreFenetres", "MnuClassique", "MnuClaire", "MnuSombre"})
        ActionNommee(QString::fromLatin1(nom))->setEnabled(true);
    for (int k = 1; k <= 2; ++k) {
        const shell::DeCujus& cujus = session_.deCujus[static_cast<std::size_t>(k - 1)];
        ActionNommee(QStringLiteral("MnuAller1_%1").arg(k))
            ->setEnabled(ouverte && cujus.individu && !cujus.sosa.empty());
    }
}

}  // namespace dorvane::windows
