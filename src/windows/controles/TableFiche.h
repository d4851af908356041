#pragma once

#include <QIcon>
#include <QStringList>
#include <QTableView>

#include "values/Numeros.h"

#include <cstdint>
#include <filesystem>
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

/// A short list on the sheet: at most 200 rows. A row about a person can be dragged. Enter and a
/// double click open a row.
class TableFiche final : public QTableView {
    Q_OBJECT

public:
    /// What can be dropped on the list.
    enum class Depot : std::uint8_t { Rien, Personnes, Fichiers };

    explicit TableFiche(QWidget* parent);

    /// `session` outlives the list, `page` is a literal: the headers are the captions of the
    /// columns of this list in that page. Column `large` takes what the others leave.
    void Attacher(shell::Session& session, const char* page, int colonnes, int large);

    void Prendre(Depot depot);
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
    /// A person was dropped. This and the next come once the drop has ended: what follows may ask
    /// the user.
    void deposee(quint32 individu);
    void fichiersDeposes(const std::vector<std::filesystem::path>& fichiers);

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dragMoveEvent(QDragMoveEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;

private:
    class Modele;

    [[nodiscard]] bool Convient(const QDropEvent& evenement) const;

    shell::Session* session_ = nullptr;
    Modele* modele_ = nullptr;
    QString vide_;
    Depot depot_ = Depot::Rien;
};

}  // namespace dorvane::windows
