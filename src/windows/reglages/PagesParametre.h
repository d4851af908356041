#pragma once

#include <QWidget>

#include "shell/Reglages.h"
#include "windows/reglages/BoutonIcone.h"

#include <array>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTableWidget;
class QToolButton;

namespace dorvane::windows {

class ListeOrdonnee;

/// One page of the settings window.
class PageParametre : public QWidget {
    Q_OBJECT

public:
    /// `session` outlives the page.
    PageParametre(shell::Session& session, QWidget* parent);

    /// Shows what is set.
    virtual void Charger(const shell::Reglages& reglages) = 0;
    /// Takes over what is shown; answers how many characters the settings cannot hold.
    virtual std::size_t Lire(shell::Reglages& reglages) = 0;
    /// A word is typed for a list of the page and not added to it yet.
    [[nodiscard]] virtual bool MotEnAttente() const { return false; }
    /// Adds it.
    virtual void VerserMot() {}
    /// Texts that no caption gives: rows of lists, examples.
    virtual void Traduire() {}

protected:
    [[nodiscard]] shell::Session& S() const { return session_; }

private:
    shell::Session& session_;
};

/// Order of the persons, display name, case of what is typed, keywords of names.
class ParametreNoms final : public PageParametre {
    Q_OBJECT

public:
    ParametreNoms(shell::Session& session, QWidget* parent);
    void Charger(const shell::Reglages& reglages) override;
    std::size_t Lire(shell::Reglages& reglages) override;
    void Traduire() override;

private:
    void FaireJetons();
    [[nodiscard]] QString TexteJeton(const QString& jeton) const;
    [[nodiscard]] std::string Modele() const;
    void MontrerExemple();

    std::array<QRadioButton*, 3> tris_{};
    ListeOrdonnee* modele_;
    QComboBox* jetons_;
    QLabel* exemple_;
    std::array<QComboBox*, 3> casses_{};
    QCheckBox* prenomUnique_;
    QCheckBox* deplacer_;
};

/// The particles of names.
class ParametreParticules final : public PageParametre {
    Q_OBJECT

public:
    ParametreParticules(shell::Session& session, QWidget* parent);
    void Charger(const shell::Reglages& reglages) override;
    std::size_t Lire(shell::Reglages& reglages) override;
    [[nodiscard]] bool MotEnAttente() const override;
    void VerserMot() override;
    void Traduire() override;

private:
    void AjouterLigne(const Particule& particule);
    void Ajouter();
    void Retirer();

    QTableWidget* table_;
    QLineEdit* mot_;
    QToolButton* ajouter_;
    QToolButton* retirer_;
};

/// The family chart: presentations, colours, depth of the search for kinship.
class ParametreGraphe final : public PageParametre {
    Q_OBJECT

public:
    ParametreGraphe(shell::Session& session, QWidget* parent);
    void Charger(const shell::Reglages& reglages) override;
    std::size_t Lire(shell::Reglages& reglages) override;
    void Traduire() override;

private:
    void FaireTable();
    void ChoisirCouleur(std::size_t rang);
    void MontrerCouleur(std::size_t rang);
    [[nodiscard]] static std::array<std::uint32_t*, 7> Couleurs(shell::Affichage& affichage);

    QComboBox* presentation_;
    QTableWidget* table_;
    std::array<QPushButton*, 7> boutons_{};
    QCheckBox* degrade_;
    QSpinBox* parente_;
    QCheckBox* nouvelles_;
    shell::Affichage affichage_;
};

/// Kinds of events and their roles.
class ParametreEvenements final : public PageParametre {
    Q_OBJECT

public:
    ParametreEvenements(shell::Session& session, QWidget* parent);
    void Charger(const shell::Reglages& reglages) override;
    std::size_t Lire(shell::Reglages& reglages) override;
    [[nodiscard]] bool MotEnAttente() const override;
    void VerserMot() override;
    void Traduire() override;

private:
    void ListerTypes(int rang);
    void MontrerRoles();
    void GarderRoles(std::size_t& remplaces);
    void AjouterRole(const shell::RoleEvenement& role);
    void AjouterType();
    [[nodiscard]] std::string Neutre(const QString& texte, std::size_t& remplaces) const;
    [[nodiscard]] QString Affiche(const std::string& neutre) const;

    ListeOrdonnee* types_;
    QTableWidget* roles_;
    QLineEdit* type_;
    QToolButton* ajouterRole_;
    QToolButton* retirerRole_;
    std::vector<shell::TypeEvenement> evenements_;
    int montre_ = -1;
    std::size_t remplaces_ = 0;  ///< characters lost in kinds that are not shown
};

/// Author, address and kinds of documents of the open base.
class ParametreBase final : public PageParametre {
    Q_OBJECT

public:
    ParametreBase(shell::Session& session, QWidget* parent);
    void Charger(const shell::Reglages& reglages) override;
    std::size_t Lire(shell::Reglages& reglages) override;

private:
    QLabel* sansBase_;
    QWidget* corps_;
    QLineEdit* auteur_;
    std::array<QLineEdit*, 8> adresse_{};
    ListeOrdonnee* types_;
};

/// Folders, saving, dates, bars.
class ParametreProgramme final : public PageParametre {
    Q_OBJECT

public:
    ParametreProgramme(shell::Session& session, const std::vector<BoutonIcone>& offerts,
                       QWidget* parent);
    void Charger(const shell::Reglages& reglages) override;
    std::size_t Lire(shell::Reglages& reglages) override;
    void Traduire() override;

private:
    QLineEdit* FaireChemin(QWidget* ligne, const char* nom, const char* bouton, bool dossier,
                           const char* filtre);
    void FaireBoutons();
    void AjouterIcone();

    QLineEdit* travail_;
    QLineEdit* communes_;
    QLineEdit* geneanet_;
    QSpinBox* frequence_;
    QComboBox* ordre_;
    QCheckBox* triImport_;
    QComboBox* jeu_;
    QCheckBox* barreIcones_;
    QCheckBox* barreFenetres_;
    ListeOrdonnee* icones_;
    QComboBox* boutons_;
    std::vector<BoutonIcone> offerts_;  ///< what may stand in the icon bar
};

}  // namespace dorvane::windows
