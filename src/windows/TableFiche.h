#pragma once

#include <QIcon>
#include <QStringList>
#include <QTableView>

#include "values/Numeros.h"

#include <cstdint>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// One row of a list on the sheet.
struct LigneFiche {
    QStringList textes;
    std::uint32_t numero = 0;  ///< of the record or rank that the row stands for
    NoOrdre individu{};        ///< whom the row is about; 0: nobody, the row cannot be dragged
    QIcon icone{};
    QString bulle{};
};

/// A short list on the sheet: at most 200 rows. A row about a person can be dragged; a person can
/// be dropped on the list. Enter and a double click open a row.
class TableFiche final : public QTableView {
    Q_OBJECT

public:
    explicit TableFiche(QWidget* parent);

    /// `session` outlives the list, `page` is a literal: the headers are the captions of the
    /// columns of this list in that page. Column `large` takes what the others leave.
    void Attacher(shell::Session& session, const char* page, int colonnes, int large);

    /// Takes other rows over; the row with the same number stays selected, else the first one.
    void Poser(std::vector<LigneFiche> lignes);
    /// What an empty list says.
    void DireVide(const QString& texte);

    /// The selected row; null when there is none. Valid until `Poser`.
    [[nodiscard]] const LigneFiche* Courante() const;
    [[nodiscard]] const std::vector<LigneFiche>& Lignes() const;
    void Choisir(std::uint32_t numero);

Q_SIGNALS:
    /// Enter or a double click on the selected row.
    void ouverte();
    /// Another row is selected, or none.
    void choisie();
    /// The key for deleting.
    void suppressionDemandee();
    void deposee(quint32 individu);

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dragMoveEvent(QDragMoveEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;

private:
    class Modele;

    shell::Session* session_ = nullptr;
    Modele* modele_ = nullptr;
    QString vide_;
};

}  // namespace dorvane::windows
