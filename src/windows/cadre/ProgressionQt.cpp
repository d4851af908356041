#include "windows/cadre/ProgressionQt.h"

#include <QApplication>
#include <QCoreApplication>

#include "messages/Dorvane.h"
#include "shell/Session.h"
#include "windows/controles/CadreAvancement.h"
#include "windows/controles/Legendes.h"

#include <chrono>

namespace dorvane::windows {

namespace {

constexpr std::int64_t AvantMontrer = 300;  ///< ms: a shorter job would only flash the frame
constexpr std::int64_t EntreCessions = 40;  ///< ms between two passes of the event loop

std::int64_t Millisecondes() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

ProgressionQt::ProgressionQt() : chronometre_{Millisecondes} {}

void ProgressionQt::Attacher(const shell::Session& session, CadreAvancement& cadre) {
    session_ = &session;
    cadre_ = &cadre;
    connect(&cadre, &CadreAvancement::annulationDemandee, this, &ProgressionQt::Annuler);
}

QString ProgressionQt::Composer(const shell::Phrase& texte) const {
    return session_ == nullptr ? QString{} : TexteEcran(session_->catalogue.Composer(texte));
}

void ProgressionQt::Commencer(const shell::Phrase& titre, const shell::Phrase& texte) {
    if (cadres_++ == 0) {
        abandon_ = false;
        montre_ = false;
        debut_ = chronometre_();
        cession_ = debut_;
    }
    texte_ = Composer(texte.EstVide() ? titre : texte);
    if (montre_ && cadre_ != nullptr) cadre_->Texte(texte_);
}

void ProgressionQt::Phase(const shell::Phrase& texte) {
    texte_ = Composer(texte);
    if (montre_ && cadre_ != nullptr) cadre_->Texte(texte_);
}

bool ProgressionQt::Avancer(std::uint32_t fait, std::uint32_t total) {
    const std::int64_t maintenant = chronometre_();
    if (cession_ && maintenant - *cession_ < EntreCessions) return !abandon_;
    if (!montre_ && cadre_ != nullptr && maintenant - debut_ >= AvantMontrer) {
        montre_ = true;
        cadre_->Montrer(texte_);
    }
    if (montre_ && cadre_ != nullptr) cadre_->Avancer(fait, total);
    QCoreApplication::processEvents();
    cession_ = chronometre_();
    return !abandon_;
}

void ProgressionQt::Terminer() {
    if (cadres_ > 0 && --cadres_ > 0) return;
    montre_ = false;
    if (cadre_ != nullptr) cadre_->hide();
}

void ProgressionQt::Sablier(bool attente) {
    if (attente)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void ProgressionQt::Annuler() {
    if (cadres_ == 0) return;
    abandon_ = true;
    if (cadre_ != nullptr && session_ != nullptr)
        cadre_->DireAnnulation(TexteEcran(*session_, message::EtatAnnulation));
}

}  // namespace dorvane::windows
