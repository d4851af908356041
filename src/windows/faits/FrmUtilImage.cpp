#include "windows/faits/FrmUtilImage.h"

#include "ui_FrmUtilImage.h"
#include <QHeaderView>
#include <QIcon>

#include "messages/Faits.h"
#include "messages/Messages.h"
#include "records/FicheEvenement.h"
#include "records/NomsAffiches.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "windows/controles/Icones.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/ListeFiltree.h"
#include "windows/controles/ModeleListe.h"
#include "windows/faits/FrmDesEvt.h"

namespace dorvane::windows {

namespace {

/// Events stand behind all numbers of persons.
constexpr std::uint32_t PremierEvenement = 1U << 20U;

NoOrdre IndividuDe(std::uint32_t numero) {
    return numero < PremierEvenement ? NoOrdre{numero} : NoOrdre{};
}

NoEvenement EvenementDe(std::uint32_t numero) {
    return numero < PremierEvenement ? NoEvenement{} : NoEvenement{numero - PremierEvenement};
}

}  // namespace

class FrmUtilImage::Modele final : public ModeleListe {
public:
    Modele(shell::Session& session, QObject* parent)
        : ModeleListe{session, 2, "FrmUtilImage", "LstUtil", parent} {}

protected:
    [[nodiscard]] std::string Texte(std::uint32_t numero, int colonne) const override {
        const NoEvenement evenement = EvenementDe(numero);
        if (colonne == 0) return S().Message(evenement ? message::TagEVEN : message::Personne);
        return evenement ? records::ResumeEvenement(S(), evenement)
                         : records::NomEtDates(S(), IndividuDe(numero));
    }
    [[nodiscard]] QVariant Autre(std::uint32_t numero, int colonne, int role) const override {
        if (role != Qt::DecorationRole || colonne != 0)
            return ModeleListe::Autre(numero, colonne, role);
        const NoOrdre individu = IndividuDe(numero);
        return individu ? IconeSexe(S().base->R_SEXE.LireCellule(individu)) : Icone("MnuLstEvt");
    }
};

FrmUtilImage::FrmUtilImage(shell::Session& session, NoDocument document, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmUtilImage"), parent},
      ui_{std::make_unique<Ui::FrmUtilImage>()},
      document_{document},
      modele_{new Modele{session, this}} {
    ui_->setupUi(this);
    ui_->LstUtil->setModel(modele_);
    ui_->LstUtil->setColumnWidth(0, 18 * fontMetrics().averageCharWidth());
    ui_->LstUtil->horizontalHeader()->setStretchLastSection(true);
    liste_ = new ListeFiltree{session,
                              {nullptr, ui_->LstUtil, ui_->LblNombre, ui_->Pages, ui_->LblVide},
                              {message::NombreUtilisations, message::NombreUtilisations,
                               message::DocumentSansUtilisation, message::DocumentSansUtilisation},
                              *modele_,
                              QStringLiteral("FrmUtilImage"),
                              this};
    connect(liste_, &ListeFiltree::choisi, this, &FrmUtilImage::PoserBoutons);
    connect(liste_, &ListeFiltree::ouvert, this, &FrmUtilImage::Aller);
    connect(ui_->CmdAller, &QPushButton::clicked, this, &FrmUtilImage::Aller);
    connect(ui_->CmdFiche, &QPushButton::clicked, this, &FrmUtilImage::OuvrirFiche);
    connect(ui_->CmdFermer, &QPushButton::clicked, this, &QDialog::reject);
    ui_->CmdFermer->setDefault(true);
    FrmUtilImage::Traduire();
    FrmUtilImage::Recharger();
    ui_->LstUtil->setFocus();
}

FrmUtilImage::~FrmUtilImage() = default;

void FrmUtilImage::Traduire() {
    FenetreFille::Traduire();
    ui_->LblTitre->setText(TexteEcran(S().catalogue.Composer(
        shell::Msg(message::OuLeDocumentEstUtilise, records::TitreAffiche(S(), document_)))));
    liste_->Traduire();
}

void FrmUtilImage::Recharger() {
    const records::UsagesDocument usages = records::ChercherUsages(S(), document_);
    std::vector<std::uint32_t> numeros;
    numeros.reserve(usages.individus.size() + usages.evenements.size());
    for (const NoOrdre individu : usages.individus)
        numeros.push_back(individu.valeur);
    for (const NoEvenement evenement : usages.evenements)
        numeros.push_back(PremierEvenement + evenement.valeur);
    liste_->Poser(std::move(numeros));
    PoserBoutons();
}

void FrmUtilImage::PoserBoutons() {
    ui_->CmdAller->setEnabled(liste_->Choisi() != 0);
    ui_->CmdFiche->setEnabled(bool{IndividuDe(liste_->Choisi())});
}

/// A person is shown in the chart, once this window has made room; an event is opened.
void FrmUtilImage::Aller() {
    const std::uint32_t choisi = liste_->Choisi();
    if (const NoEvenement evenement = EvenementDe(choisi); evenement) {
        FrmDesEvt fenetre{S(), evenement, {}, {}, this};
        fenetre.exec();
        if (!fenetre.Ecrit()) return;
        Recharger();
        Q_EMIT baseChangee();
    } else if (choisi != 0) {
        accept();
        Q_EMIT allerDemande(choisi);
    }
}

void FrmUtilImage::OuvrirFiche() {
    const NoOrdre individu = IndividuDe(liste_->Choisi());
    if (!individu) return;
    accept();
    Q_EMIT ficheDemandee(individu.valeur);
}

}  // namespace dorvane::windows
