#pragma once

#include <QWidget>

#include <functional>

class QListWidget;
class QToolButton;

namespace dorvane::windows {

/// A list that the user puts together: entries are added, taken out and moved with the buttons
/// beside it or with Insert, Delete and Alt with the arrows.
class ListeOrdonnee final : public QWidget {
    Q_OBJECT

public:
    /// `nom`: the name of the list for its captions; the buttons are that name with "Ajt", "Sup",
    /// "Up" and "Down" behind it.
    ListeOrdonnee(const QString& nom, QWidget* parent);

    /// One entry: what is shown, and what it stands for.
    struct Entree {
        QString texte;
        QVariant valeur;
    };

    void Poser(const QList<Entree>& entrees);
    [[nodiscard]] QList<Entree> Entrees() const;
    /// Adds behind the current entry and selects it.
    void Ajouter(const Entree& entree);
    /// Entries are texts that the user may type over.
    void RendreModifiable();
    [[nodiscard]] QListWidget& Liste() { return *liste_; }

Q_SIGNALS:
    void ajoutDemande();
    void change();

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    QToolButton* FaireBouton(const QString& nom, const char* icone);
    void Deplacer(int sens);
    void Retirer();
    void ActiverBoutons();

    QListWidget* liste_;
    QToolButton* ajouter_ = nullptr;
    QToolButton* retirer_ = nullptr;
    QToolButton* monter_ = nullptr;
    QToolButton* descendre_ = nullptr;
    bool modifiable_ = false;
};

}  // namespace dorvane::windows
