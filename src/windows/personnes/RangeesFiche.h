#pragma once

#include <QList>
#include <QWidget>

#include "records/SaisieFiche.h"
#include "storage/Slots.h"

#include <cstddef>
#include <string>
#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QToolButton;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

class Completeur;

/// Puts `suite` behind `avant` in the order of Tab.
void EnchainerTab(QWidget& avant, const QList<QWidget*>& suite);

/// The rows of keywords of a person or of a union: day and month, year, place or word. One row for
/// each slot of the base; the date of a plain one is not shown. Controls of row k, from 0, are
/// "TxtIndJ(k)", "TxtIndA(k)", "TxtIndL(k)", "CmdIndSel(k)", or "TxtMarJ(k)" and so on.
class RangeesFiche final : public QWidget {
    Q_OBJECT

public:
    enum class Sorte { Individu, Mariage };

    explicit RangeesFiche(QWidget* parent);

    /// `session` outlives the widget. Called once, before anything else.
    void Attacher(shell::Session& session, Sorte sorte);

    /// Makes the rows anew if the slots of the base have changed: `stockees` are their stored
    /// values then, and what was typed for a keyword that has a row still stays typed.
    void Reconstruire(const records::RangeesSlots& stockees);

    /// `garder`: fields that were changed keep what they say.
    void Montrer(const records::RangeesSlots& rangees, bool garder = false);
    void Lire(records::RangeesSlots& rangees, std::size_t& remplaces) const;
    /// Years of the life inside which the dates belong, as typed.
    void PoserVie(const std::string& naissance, const std::string& deces);
    void Traduire();
    /// The fields and buttons in the order of reading; others after `Reconstruire`.
    [[nodiscard]] QList<QWidget*> Controles() const;
    [[nodiscard]] bool EstVide() const { return rangees_.empty(); }

Q_SIGNALS:
    void change();

private:
    struct Rangee {
        QLabel* etiquette;
        QLineEdit* jourMois;
        QLineEdit* annee;
        QLineEdit* lieu;
        QToolButton* choix;
        QLabel* avis;
        Completeur* mots;
    };

    /// False when the rows are those of the base already.
    bool Construire();
    void AjouterRangee(std::size_t k);
    void Changer();
    void Aviser();

    shell::Session* session_ = nullptr;
    Sorte sorte_ = Sorte::Individu;
    QGridLayout* grille_;
    storage::DefinitionSlots definition_;
    std::vector<Rangee> rangees_;
    std::string naissance_;
    std::string deces_;
    bool montre_ = false;
};

}  // namespace dorvane::windows
