#pragma once

#include <QObject>

#include "values/Numeros.h"

#include <cstdint>

class QLabel;
class QLineEdit;
class QStackedWidget;
class QTableView;

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

class ModeleListe;

/// What the windows of lists share: a filter over a table, the count of rows, the reason of an
/// empty table, sorting and hiding of columns, Enter.
class ListeFiltree final : public QObject {
    Q_OBJECT

public:
    struct Pieces {
        QLineEdit* filtre;  ///< null: no filter
        QTableView* liste;
        QLabel* nombre;
        QStackedWidget* pages;  ///< first the table, then the label
        QLabel* vide;
    };
    struct Messages {
        NoMessage nombre;      ///< with the count
        NoMessage partie;      ///< with the rows shown and the count
        NoMessage sansTrouve;  ///< with the filter: it hides all rows
        NoMessage vide;        ///< there is no row at all
    };

    /// All outlive the object but its parent. `nom`: under which the columns are remembered.
    ListeFiltree(shell::Session& session, const Pieces& pieces, const Messages& messages,
                 ModeleListe& modele, const QString& nom, QObject* parent);

    [[nodiscard]] std::uint32_t Choisi() const;
    void Choisir(std::uint32_t numero);
    /// Takes other rows over; the selected one stays, or the one in its place.
    void Poser(std::vector<std::uint32_t> numeros);
    /// Texts and counts in the language in use.
    void Traduire();
    /// Keeps the columns for the next time.
    void Memoriser();

Q_SIGNALS:
    /// Enter or a double click on a row.
    void ouvert(quint32 numero);
    /// Del on a row.
    void retire(quint32 numero);
    /// Another row is selected, or none (0).
    void choisi(quint32 numero);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void Filtrer();
    void Compter();
    void ChoisirRangee(int rangee);

    shell::Session& session_;
    Pieces pieces_;
    Messages messages_;
    ModeleListe& modele_;
    QString nom_;
};

}  // namespace dorvane::windows
