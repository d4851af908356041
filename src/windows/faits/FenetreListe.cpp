#include "windows/faits/FenetreListe.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "shell/Session.h"
#include "windows/controles/ModeleListe.h"

namespace dorvane::windows {

FenetreListe::FenetreListe(shell::Session& session, const QString& nom, QWidget* parent)
    : FenetreFille{session, nom, parent} {}

void FenetreListe::Monter(const ListeFiltree::Pieces& pieces,
                          const ListeFiltree::Messages& messages, ModeleListe& modele,
                          const Boutons& boutons) {
    table_ = pieces.liste;
    modele_ = &modele;
    boutons_ = boutons;
    table_->horizontalHeader()->setStretchLastSection(true);
    liste_ = new ListeFiltree{S(), pieces, messages, modele, objectName(), this};
    connect(liste_, &ListeFiltree::choisi, this, [this] { PoserBoutons(); });
    connect(liste_, &ListeFiltree::ouvert, this, [this] {
        if (choix_)
            accept();
        else
            OuvrirChoisi();
    });
    connect(liste_, &ListeFiltree::retire, this, &FenetreListe::Supprimer);
    connect(boutons_.ajout, &QPushButton::clicked, this, [this] { Ajouter(); });
    connect(boutons_.maj, &QPushButton::clicked, this, [this] { OuvrirChoisi(); });
    connect(boutons_.supp, &QPushButton::clicked, this, &FenetreListe::Supprimer);
    connect(boutons_.choisir, &QPushButton::clicked, this, &QDialog::accept);
    connect(boutons_.fermer, &QPushButton::clicked, this, &QDialog::reject);
    for (QWidget* cible : {static_cast<QWidget*>(this), table_->viewport()}) {
        cible->setAcceptDrops(true);
        cible->installEventFilter(this);
    }
    boutons_.choisir->hide();
    FenetreListe::Traduire();
    FenetreListe::Recharger();
    pieces.filtre->setFocus();
}

std::uint32_t FenetreListe::Choisir(const std::vector<QPushButton*>& caches) {
    choix_ = true;
    boutons_.choisir->show();
    boutons_.choisir->setDefault(true);
    for (QPushButton* bouton : caches)
        bouton->hide();
    return exec() == QDialog::Accepted ? NumeroChoisi() : 0;
}

void FenetreListe::Traduire() {
    FenetreFille::Traduire();
    liste_->Traduire();
}

void FenetreListe::Recharger() {
    liste_->Poser(Numeros());
    PoserBoutons();
}

void FenetreListe::PoserBoutons() {
    for (QPushButton* bouton : {boutons_.maj, boutons_.supp, boutons_.choisir})
        bouton->setEnabled(NumeroChoisi() != 0);
    boutons_.ajout->setEnabled(S().BaseOuverte());
}

void FenetreListe::Ecrite(std::uint32_t numero) {
    Recharger();
    liste_->Choisir(numero);
    Q_EMIT baseChangee();
}

void FenetreListe::Supprimer() {
    if (choix_ || !SupprimerChoisi()) return;
    Recharger();
    Q_EMIT baseChangee();
}

std::uint32_t FenetreListe::Sous(const QObject* objet, const QDropEvent& evenement) const {
    if (objet != table_->viewport()) return 0;
    const QModelIndex index = table_->indexAt(evenement.position().toPoint());
    return index.isValid() ? modele_->Numero(index.row()) : 0;
}

void FenetreListe::done(int resultat) {
    liste_->Memoriser();
    FenetreFille::done(resultat);
}

}  // namespace dorvane::windows
