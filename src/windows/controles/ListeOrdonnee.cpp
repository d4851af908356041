#include "windows/controles/ListeOrdonnee.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QToolButton>

#include "windows/controles/Icones.h"

#include <algorithm>

namespace dorvane::windows {

namespace {

constexpr int Espace = 6;

}  // namespace

ListeOrdonnee::ListeOrdonnee(const QString& nom, QWidget* parent)
    : QWidget{parent}, liste_{new QListWidget{this}} {
    liste_->setObjectName(nom);
    liste_->installEventFilter(this);
    auto* rang = new QHBoxLayout{this};
    rang->setContentsMargins(0, 0, 0, 0);
    rang->setSpacing(Espace);
    rang->addWidget(liste_);
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(Espace);
    rang->addLayout(colonne);
    ajouter_ = FaireBouton(nom + QStringLiteral("Ajt"), "Ajouter");
    retirer_ = FaireBouton(nom + QStringLiteral("Sup"), "Retirer");
    monter_ = FaireBouton(nom + QStringLiteral("Up"), "Monter");
    descendre_ = FaireBouton(nom + QStringLiteral("Down"), "Descendre");
    for (QToolButton* bouton : {ajouter_, retirer_, monter_, descendre_})
        colonne->addWidget(bouton);
    colonne->addStretch();
    connect(liste_, &QListWidget::currentRowChanged, this, &ListeOrdonnee::ActiverBoutons);
    connect(liste_, &QListWidget::itemChanged, this, &ListeOrdonnee::change);
    connect(ajouter_, &QToolButton::clicked, this, &ListeOrdonnee::ajoutDemande);
    connect(retirer_, &QToolButton::clicked, this, &ListeOrdonnee::Retirer);
    connect(monter_, &QToolButton::clicked, this, [this] { Deplacer(-1); });
    connect(descendre_, &QToolButton::clicked, this, [this] { Deplacer(1); });
    ActiverBoutons();
}

QToolButton* ListeOrdonnee::FaireBouton(const QString& nom, const char* icone) {
    auto* bouton = new QToolButton{this};
    bouton->setObjectName(nom);
    bouton->setIcon(Icone(icone));
    return bouton;
}

void ListeOrdonnee::Poser(const QList<Entree>& entrees) {
    const int rang = liste_->currentRow();
    liste_->clear();
    for (const Entree& entree : entrees)
        Ajouter(entree);
    // No row at all in an empty list.
    liste_->setCurrentRow(std::min(std::max(rang, 0), liste_->count() - 1));
}

QList<ListeOrdonnee::Entree> ListeOrdonnee::Entrees() const {
    QList<Entree> entrees;
    for (int i = 0; i < liste_->count(); ++i)
        entrees << Entree{liste_->item(i)->text(), liste_->item(i)->data(Qt::UserRole)};
    return entrees;
}

void ListeOrdonnee::Ajouter(const Entree& entree) {
    auto* article = new QListWidgetItem{entree.texte};
    article->setData(Qt::UserRole, entree.valeur);
    if (modifiable_) article->setFlags(article->flags() | Qt::ItemIsEditable);
    liste_->insertItem(liste_->currentRow() + 1, article);
    liste_->setCurrentItem(article);
    ActiverBoutons();
    Q_EMIT change();
}

void ListeOrdonnee::RendreModifiable() {
    modifiable_ = true;
}

void ListeOrdonnee::Retirer() {
    if (liste_->currentRow() < 0) return;
    delete liste_->takeItem(liste_->currentRow());
    ActiverBoutons();
    Q_EMIT change();
}

void ListeOrdonnee::Deplacer(int sens) {
    const int rang = liste_->currentRow();
    const int vers = rang + sens;
    if (rang < 0 || vers < 0 || vers >= liste_->count()) return;
    QListWidgetItem* article = liste_->takeItem(rang);
    liste_->insertItem(vers, article);
    liste_->setCurrentItem(article);
    Q_EMIT change();
}

void ListeOrdonnee::ActiverBoutons() {
    const int rang = liste_->currentRow();
    retirer_->setEnabled(rang >= 0);
    monter_->setEnabled(rang > 0);
    descendre_->setEnabled(rang >= 0 && rang + 1 < liste_->count());
}

bool ListeOrdonnee::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet != liste_ || evenement->type() != QEvent::KeyPress)
        return QWidget::eventFilter(objet, evenement);
    const auto* touche = static_cast<QKeyEvent*>(evenement);
    const bool alt = touche->modifiers().testFlag(Qt::AltModifier);
    if (touche->key() == Qt::Key_Delete)
        Retirer();
    else if (touche->key() == Qt::Key_Insert)
        Q_EMIT ajoutDemande();
    else if (alt && touche->key() == Qt::Key_Up)
        Deplacer(-1);
    else if (alt && touche->key() == Qt::Key_Down)
        Deplacer(1);
    else
        return QWidget::eventFilter(objet, evenement);
    return true;
}

}  // namespace dorvane::windows
