#include "windows/personnes/FrmCreation.h"

#include "ui_FrmCreation.h"

#include "messages/Fiche.h"
#include "records/Individus.h"
#include "shell/Session.h"
#include "windows/controles/LangueSaisies.h"
#include "windows/controles/Legendes.h"
#include "windows/controles/Remplaces.h"

namespace dorvane::windows {

namespace {

constexpr int LargeurInitiale = 940;

}  // namespace

SaisieDepart DepartDeParent(const std::string& nomEnfant, Cote cote) {
    SaisieDepart depart;
    depart.nom = nomEnfant;
    depart.sexe = SexeDuCote(cote);
    depart.nomIncertain = cote == Cote::Mere;
    return depart;
}

FrmCreation::FrmCreation(shell::Session& session, const SaisieDepart& depart, QWidget* parent)
    : FenetreFille{session, QStringLiteral("FrmCréation"), parent},
      ui_{std::make_unique<Ui::FrmCreation>()} {
    ui_->setupUi(this);
    setObjectName(QStringLiteral("FrmCréation"));
    ui_->Champs->Attacher(session);
    ui_->Rangées->Attacher(session, RangeesFiche::Sorte::Individu);
    EnchainerTab(ui_->Champs->DernierChamp(), ui_->Rangées->Controles());
    ui_->LblFaits->setVisible(!ui_->Rangées->EstVide());
    depart_.nom = depart.nom;
    depart_.prenom = depart.prenom;
    depart_.sexe = SexeLu(depart.sexe);
    depart_.jourMoisNaissance = depart.jourMoisNaissance;
    depart_.anneeNaissance = depart.anneeNaissance;
    depart_.lieuNaissance = depart.lieuNaissance;
    depart_.anneeDeces = depart.anneeDeces;
    depart_.jourMoisDeces = depart.jourMoisDeces;
    depart_.lieuDeces = depart.lieuDeces;
    ui_->Champs->Montrer(depart_);
    ui_->Champs->LibererSexe(depart_.sexe == Sexe::Indetermine);
    connect(ui_->Champs, &ChampsFiche::change, this, [this] {
        std::size_t remplaces = 0;
        const records::SaisieFiche fiche = Lire(remplaces);
        ui_->Rangées->PoserVie(fiche.anneeNaissance, fiche.anneeDeces);
    });
    connect(ui_->CmdCréer, &QPushButton::clicked, this, qOverload<>(&FrmCreation::Creer));
    connect(ui_->CmdAnnuler, &QPushButton::clicked, this, &FrmCreation::reject);
    Traduire();
    resize(LargeurInitiale, sizeHint().height());
    ui_->Champs->AllerAuChamp(depart_.nom.empty() || depart.nomIncertain ? records::Champ::Nom
                                                                         : records::Champ::Prenom);
}

FrmCreation::~FrmCreation() = default;

NoOrdre FrmCreation::Creer(shell::Session& session, const SaisieDepart& depart, QWidget* parent) {
    FrmCreation fenetre{session, depart, parent};
    fenetre.exec();
    return fenetre.Individu();
}

void FrmCreation::Traduire() {
    FenetreFille::Traduire();
    ui_->Champs->Traduire();
    ui_->Rangées->Traduire();
}

void FrmCreation::ChangerLangue(const MotsDeLangue& avant) {
    for (std::string* date : {&depart_.jourMoisNaissance, &depart_.jourMoisDeces})
        *date = avant.Traduire(*date, SorteSaisie::JourMois, S());
    FenetreFille::ChangerLangue(avant);
}

bool FrmCreation::EnregistrerSaisie() {
    Creer();
    return !isVisible();
}

records::SaisieFiche FrmCreation::Lire(std::size_t& remplaces) const {
    records::SaisieFiche fiche;
    ui_->Champs->Lire(fiche, remplaces);
    ui_->Rangées->Lire(fiche.slots, remplaces);
    return fiche;
}

void FrmCreation::Creer() {
    if (!S().base) return;
    QuitterChamp(*this);
    std::size_t remplaces = 0;
    records::SaisieFiche fiche = Lire(remplaces);
    if (!AccepterRemplaces(S(), remplaces)) return;
    const records::IssueFiche issue = records::CreerIndividu(S(), fiche);
    if (issue.EstRefusee()) {
        ui_->Champs->AllerAuChamp(issue.champ);
        return;
    }
    individu_ = issue.individu;
    accept();
}

void FrmCreation::reject() {
    std::size_t remplaces = 0;
    if (Lire(remplaces) == depart_) return FenetreFille::reject();
    Renoncer(shell::Msg(message::ProposerCreerPersonne), [this] { Creer(); });
}

}  // namespace dorvane::windows
