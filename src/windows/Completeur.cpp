#include "windows/Completeur.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QStringListModel>

#include "windows/Unicode.h"

namespace dorvane::windows {

namespace {

constexpr std::size_t MaxEnTapant = 12;
constexpr std::size_t MaxEnListe = 500;

}  // namespace

Completeur::Completeur(QLineEdit& champ, shell::Session& session, std::string_view symboles)
    : QCompleter{&champ},
      champ_{champ},
      completion_{session, symboles},
      mots_{new QStringListModel{this}} {
    setModel(mots_);
    // The words are already those that fit, whatever their accents.
    setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    setMaxVisibleItems(static_cast<int>(MaxEnTapant));
    champ.setCompleter(this);
    connect(&champ, &QLineEdit::textEdited, this,
            [this](const QString& texte) { Proposer(texte, MaxEnTapant, false); });
}

void Completeur::MontrerTout() {
    Proposer(champ_.text(), MaxEnListe, champ_.text().trimmed().isEmpty());
    if (mots_->rowCount() == 0) Proposer({}, MaxEnListe, true);
    champ_.setFocus();
    complete();
}

void Completeur::Proposer(const QString& debut, std::size_t max, bool tous) {
    QStringList mots;
    for (const std::string& mot : completion_.Chercher(QtVersTexte(debut).octets, max, tous))
        mots << TexteVersQt(mot);
    // What stands there already need not be proposed.
    if (mots.size() == 1 && mots.first() == debut.trimmed()) mots.clear();
    mots_->setStringList(mots);
    if (mots.isEmpty() && popup()->isVisible()) popup()->hide();
}

}  // namespace dorvane::windows
