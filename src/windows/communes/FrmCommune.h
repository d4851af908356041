#pragma once

#include <QDialog>
#include <QPointer>

#include "interchange/communes/GestionCommunes.h"
#include "storage/Commune.h"
#include "windows/controles/FenetreFille.h"

#include <array>
#include <functional>
#include <memory>

class QLineEdit;

namespace Ui {
class FrmCommune;
}

namespace dorvane::windows {

class ListeFiltree;
class ModeleCommunes;
class SuiviLieu;

/// The base of communes: searched while one types, read and edited. What is found goes into the
/// place that the user was typing, or to the clipboard.
class FrmCommune final : public FenetreFille {
    Q_OBJECT

public:
    /// The file is opened by `Ouvrir`. A `SuiviLieu` under `parent` tells where places go.
    FrmCommune(shell::Session& session, QWidget* parent);
    ~FrmCommune() override;

    /// Reads the file of the settings, once. False when that cannot be done: a message has told
    /// why, and the window is to be closed.
    [[nodiscard]] bool Ouvrir();

    void Traduire() override;
    /// Other settings may name another file.
    void Recharger() override;
    [[nodiscard]] bool ConfirmerFermeture() override;
    void reject() override;

protected:
    [[nodiscard]] bool EnregistrerSaisie() override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    void done(int resultat) override;

private:
    void Connecter();
    void PoserMenuListe();
    [[nodiscard]] std::array<QLineEdit*, 5> Champs() const;
    [[nodiscard]] storage::Commune Lire(std::size_t& remplaces) const;
    [[nodiscard]] bool Modifiee() const;

    void ChercherDepuisLeDebut();
    /// Fills the list again, and selects a commune, 0 for the first row. The sheet follows unless
    /// it holds unsaved entries.
    void Chercher(storage::NoCommune choisie);
    void Compter();
    void ChoisirDansListe(quint32 numero);
    void Quitter(storage::NoCommune vers);
    /// Selects a commune, if need be by another search.
    void AllerA(storage::NoCommune n);
    void Montrer(storage::NoCommune n);
    /// Digits only are typed into the codes; what a list has brought stays.
    void PoserMasques();
    void SuivreFiche();
    void CompleterRattachement();
    void SuivreDestination();

    bool Enregistrer();
    void Nouvelle();
    void Supprimer();
    void AllerAuRattachement();
    void Travailler(const std::function<shell::Issue()>& travail);
    void Utiliser(const storage::Commune& commune);

    std::unique_ptr<Ui::FrmCommune> ui_;
    interchange::GestionCommunes communes_;
    ModeleCommunes* modele_;
    ListeFiltree* liste_;
    QPointer<SuiviLieu> lieux_;
    storage::NoCommune numero_{};  ///< in the sheet; 0: a new one
    storage::Commune lue_;         ///< as the base had it when the sheet was filled
    storage::Commune montree_;     ///< the same as the fields give it back
    bool ouverte_ = false;
    bool remplit_ = false;    ///< the list or the sheet is being filled: the user does nothing
    bool travaille_ = false;  ///< a long job runs
};

}  // namespace dorvane::windows
