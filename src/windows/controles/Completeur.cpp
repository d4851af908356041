#include "windows/controles/Completeur.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QStringListModel>

#include "windows/controles/SuiviLieu.h"
#include "windows/controles/Unicode.h"

namespace dorvane::windows {

namespace {

constexpr std::size_t MaxEnTapant = 12;
constexpr std::size_t MaxEnListe = 500;

}  // namespace

Completeur::Completeur(QLineEdit& champ, shell::Session& session, std::string_view symboles,
                       std::string_view enListe)
    : QCompleter{&champ},
      champ_{champ},
      tapes_{session, symboles},
      liste_{session, enListe.empty() ? symboles : enListe},
      mots_{new QStringListModel{this}} {
    setModel(mots_);
    if (symboles.find(records::mots::Lieux) != std::string_view::npos) MarquerLieu(champ);
    // The words are already those that fit, whatever their accents.
    setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    setMaxVisibleItems(static_cast<int>(MaxEnTapant));
    champ.setCompleter(this);
    connect(&champ, &QLineEdit::textEdited, this, [this](const QString& texte) {
        Poser(tapes_.Chercher(QtVersTexte(texte).octets, MaxEnTapant), texte);
    });
}

void Completeur::MontrerTout() {
    const std::string debut = QtVersTexte(champ_.text()).octets;
    std::vector<std::string> trouves = liste_.Chercher(debut, MaxEnListe, true);
    if (trouves.empty()) trouves = liste_.Chercher({}, MaxEnListe, true);
    Poser(trouves, {});
    champ_.setFocus();
    complete();
}

void Completeur::Poser(const std::vector<std::string>& trouves, const QString& debut) {
    QStringList mots;
    for (const std::string& mot : trouves)
        mots << TexteVersQt(mot);
    // What stands there already need not be proposed.
    if (mots.size() == 1 && mots.first() == debut.trimmed()) mots.clear();
    mots_->setStringList(mots);
    if (mots.isEmpty() && popup()->isVisible()) popup()->hide();
}

}  // namespace dorvane::windows
