#pragma once

#include <QWidget>

#include "records/SaisieFiche.h"
#include "values/Sexe.h"

#include <cstddef>
#include <memory>

class QLabel;
class QLineEdit;

namespace Ui {
class ChampsFiche;
}

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {
enum class AvisDate;
enum class Casse;
}  // namespace dorvane::records

namespace dorvane::windows {

/// The name of a date that is odd, for the label beside it; empty when it is not.
[[nodiscard]] QString TexteAvis(const shell::Session& session, records::AvisDate avis);

/// The day-month field is written in words when it loses the focus, and when the language changes.
void SuivreJourMois(QLineEdit& champ, const shell::Session& session);
/// The field takes the case of the base when it loses the focus.
void SuivreCasse(QLineEdit& champ, const shell::Session& session, records::Casse casse);

/// The field that has the focus takes the form that it takes when it is left: what is typed is to
/// be saved while the user stands in it.
void QuitterChamp(const QWidget& fenetre);

/// Names, sex, birth and death: what the sheet and the form of a new person have in common.
class ChampsFiche final : public QWidget {
    Q_OBJECT

public:
    explicit ChampsFiche(QWidget* parent);
    ~ChampsFiche() override;

    /// `session` outlives the widget. Called once, before anything else.
    void Attacher(shell::Session& session);

    /// `garder`: fields that were changed keep what they say.
    void Montrer(const records::SaisieFiche& fiche, bool garder = false);
    /// Fills the fields of `fiche` that stand here; `remplaces` grows by the characters that code
    /// page 1252 lacks.
    void Lire(records::SaisieFiche& fiche, std::size_t& remplaces) const;

    void AllerAuChamp(records::Champ champ);
    void PoserSexe(Sexe sexe);
    /// The sex may be changed by the user.
    void LibererSexe(bool libre);
    void Traduire();
    /// The last field in the order of Tab.
    [[nodiscard]] QWidget& DernierChamp() const;

Q_SIGNALS:
    /// A field was changed, by the user or by `Montrer`.
    void change();

private:
    void Changer();
    void AviserDates();
    [[nodiscard]] Sexe SexeChoisi() const;

    std::unique_ptr<Ui::ChampsFiche> ui_;
    shell::Session* session_ = nullptr;
    Sexe sexeStocke_ = Sexe::Indetermine;
    bool montre_ = false;  ///< `Montrer` is at work
};

}  // namespace dorvane::windows
