#pragma once

#include <QMainWindow>
#include <QTimer>

#include "interchange/releves/Releve.h"
#include "records/ModeleFamille.h"
#include "values/Sexe.h"
#include "windows/cadre/Commandes.h"
#include "windows/graphe/PaletteGraphe.h"

#include <span>
#include <vector>

class QLabel;
class QMenu;
class QStackedWidget;
class QToolBar;
class QTranslator;

namespace dorvane {
struct Phrase;
}
namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

class Accueil;
class CadreAvancement;
class FenetreFille;
class FrmDebut;
class FrmExporter;

/// The main window: menus, bars, the family chart.
class MDIForm1 final : public QMainWindow {
    Q_OBJECT

public:
    /// `session` outlives the window. It is started once the window is attached to its ports.
    explicit MDIForm1(shell::Session& session);
    ~MDIForm1() override;

    /// Reads everything again that the window shows.
    void Actualiser();

    /// Closes the windows beside this one.
    void FermerFenetres();

    /// Asks every window that holds unsaved entries what becomes of them; false to stay.
    [[nodiscard]] bool ConfirmerFermeture();

    /// Takes a window beside this one in: what it asks for is done, and it appears in the window
    /// bar. It is shown by the caller.
    void Accueillir(FenetreFille& fille);

    /// A text in the status bar; empty clears it.
    void Annoncer(const QString& texte);

    /// `texte` in code page 1252.
    void MontrerRapport(const Phrase& titre, const std::string& texte);

    /// The first start asks for the colours of the chart, once.
    void DemanderPalette();

    /// Moves to a person of the base, after the question for an unsaved sheet. Nothing for the
    /// current person and for who has no record.
    void AllerA(NoOrdre individu);

    /// Opens the export window with the persons of a list as what is selected.
    void ExporterListe(const std::vector<NoOrdre>& liste);

    /// The table of the commands: menus, lines and entries in their order.
    [[nodiscard]] static std::span<const Commande> Commandes();

    [[nodiscard]] CadreAvancement& Cadre() { return *cadre_; }
    [[nodiscard]] FrmDebut& Graphe() { return *graphe_; }

protected:
    void closeEvent(QCloseEvent* evenement) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;

private:
    // The menus, made of the table.
    void FaireMenus();
    void FaireBarres();
    [[nodiscard]] QMenu* FaireMenu(const Commande& rangee);
    [[nodiscard]] QAction* FaireAction(QMenu& menu, const Commande& rangee);
    void PoserLangues();
    void PoserHistorique();
    void PoserIcones();
    void PoserEtats();
    void PoserCoches();
    void Executer(const Commande& commande);
    [[nodiscard]] QAction* ActionNommee(const QString& nom) const;

    // What the entries do.
    static const Commande Table[];
    template <auto action, auto... arguments>
    static void Appel(MDIForm1& fenetre) {
        (fenetre.*action)(arguments...);
    }
    template <class Fenetre>
    static void MontrerFenetre(MDIForm1& fenetre) {
        fenetre.Montrer<Fenetre>();
    }
    template <int presentation>
    [[nodiscard]] static bool Presentee(const MDIForm1& fenetre);
    template <Palette palette>
    [[nodiscard]] static bool Coloree(const MDIForm1& fenetre);
    [[nodiscard]] static bool IconesMontrees(const MDIForm1& fenetre);
    [[nodiscard]] static bool FenetresMontrees(const MDIForm1& fenetre);
    void Nouveau();
    void Ouvrir();
    void Fermer();
    void Enregistrer();
    void Sauvegarde();
    void Restauration();
    void Importer();
    void Exporter();
    void ExporterSelectif();
    void Integrer();
    FrmExporter* FenetreExport();
    void ImporterActes(interchange::SorteReleve sorte);
    void Geneanet();
    void Quitter();
    void Precedent();
    void Suivant();
    void Noms();
    void Modifier();
    void NouvelIndividu();
    void SupprimerIndividu();
    void Reglages();
    void OuvrirFiche(NoOrdre individu);
    void MenuParent(NoOrdre enfant, Cote cote, const QPoint& point);
    void CreerParent(NoOrdre enfant, Cote cote);
    void ChercherParent(NoOrdre enfant, Cote cote);
    void DeposerParent(NoOrdre enfant, Cote cote, NoOrdre parent);
    void AllerDeCujus(int k);
    void ChoisirDeCujus(int k);
    void Agrandir();
    void Diminuer();
    void Ajuster();
    void Gauche();
    void Droite();
    void BarreIcones();
    void BarreFenetres();
    void Communes();
    void Controle();
    void Depannage();
    void Reorganiser();

    void Histo(int rang);
    void Presentation(int presentation);
    void PoserPalette(Palette palette);
    void ChangerLangue(const QString& nom);
    void Traduire();
    void TraduireQt();
    void PasVers(records::Parente parente);
    void MenuIndividu(NoOrdre individu, const QPoint& point);
    void DireGenerations();
    void SuivreFenetres();
    void Minuterie();
    void ActualiserEtat();
    [[nodiscard]] QList<FenetreFille*> Filles() const;
    void RelireTout(const FenetreFille* sauf);

    /// Shows the one window of a class, made at the first call.
    template <class Fenetre>
    Fenetre& Montrer();

    shell::Session& session_;
    QStackedWidget* pages_;
    Accueil* accueil_;
    FrmDebut* graphe_;
    QToolBar* icones_;
    QToolBar* fenetres_;
    QLabel* etatPersonne_;
    QLabel* etatDeCujus_;
    CadreAvancement* cadre_;
    QString numerosIcones_;
    QTimer Minuterie1_;
    QTimer Minuterie2_;
    QTranslator* traducteur_ = nullptr;
    NoOrdre conjointPrecedent_{};  ///< from whom the last step to a spouse came
    bool arrete_ = false;          ///< the session has been closed
    const void* baseMontree_ = nullptr;
};

template <class Fenetre>
Fenetre& MDIForm1::Montrer() {
    auto* fenetre = findChild<Fenetre*>(QString{}, Qt::FindDirectChildrenOnly);
    if (fenetre == nullptr) {
        fenetre = new Fenetre{session_, this};
        Accueillir(*fenetre);
    }
    fenetre->show();
    fenetre->raise();
    fenetre->activateWindow();
    SuivreFenetres();
    return *fenetre;
}

}  // namespace dorvane::windows
