#pragma once

#include <QDialog>

#include "windows/controles/FenetreFille.h"
#include "windows/controles/ListeFiltree.h"

#include <cstdint>
#include <vector>

class QDropEvent;
class QPushButton;

namespace dorvane::windows {

class ModeleListe;

/// What the list of all events and the list of all documents share: a filtered list, the buttons
/// below it, drops on its rows, and a second life as a chooser.
class FenetreListe : public FenetreFille {
    Q_OBJECT

public:
    void Traduire() override;
    void Recharger() override;

protected:
    /// The buttons that both have, by what they are for.
    struct Boutons {
        QPushButton* ajout;
        QPushButton* maj;
        QPushButton* supp;
        QPushButton* choisir;
        QPushButton* fermer;
    };

    FenetreListe(shell::Session& session, const QString& nom, QWidget* parent);

    /// Called once, when the controls are there; they, and `modele`, outlive their use.
    void Monter(const ListeFiltree::Pieces& pieces, const ListeFiltree::Messages& messages,
                ModeleListe& modele, const Boutons& boutons);

    /// Runs the window as a chooser without the buttons `caches`; 0 when the user gives up.
    [[nodiscard]] std::uint32_t Choisir(const std::vector<QPushButton*>& caches);

    /// All records of the base, in their order.
    [[nodiscard]] virtual std::vector<std::uint32_t> Numeros() const = 0;
    /// The record chosen is opened: by Enter, a double click or its button. Not in a chooser,
    /// where Enter and the double click choose.
    virtual void OuvrirChoisi() = 0;
    virtual void Ajouter() = 0;
    /// Asks and removes; false when it stays.
    [[nodiscard]] virtual bool SupprimerChoisi() = 0;
    /// What can be done with the record chosen, if there is one.
    virtual void PoserBoutons();

    /// A record was written: the list reads again and stands on it.
    void Ecrite(std::uint32_t numero);
    /// The record under the pointer; 0 beside the rows.
    [[nodiscard]] std::uint32_t Sous(const QObject* objet, const QDropEvent& evenement) const;

    [[nodiscard]] std::uint32_t NumeroChoisi() const { return liste_->Choisi(); }
    [[nodiscard]] bool PourChoisir() const { return choix_; }
    void done(int resultat) override;

private:
    void Supprimer();

    QTableView* table_ = nullptr;
    ModeleListe* modele_ = nullptr;
    ListeFiltree* liste_ = nullptr;
    Boutons boutons_{};
    bool choix_ = false;  ///< runs as a chooser
};

}  // namespace dorvane::windows
