#pragma once

#include <QAbstractTableModel>

#include <cstdint>
#include <string>
#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::windows {

/// Records in rows, by number. What a row says is read when it is painted, so that a whole base
/// opens at once; the first filter and the first sort read all of it.
class ModeleListe : public QAbstractTableModel {
    Q_OBJECT

public:
    /// `session` outlives the model; the headers are the captions of the columns of `controle`.
    ModeleListe(shell::Session& session, int colonnes, const char* fenetre, const char* controle,
                QObject* parent);

    /// The rows in their natural order. Filter and sort stay.
    void Poser(std::vector<std::uint32_t> numeros);
    /// Keeps the rows in whose texts all words of `filtre` occur, whatever their case and accents.
    /// Empty: all rows.
    void Filtrer(const QString& filtre);
    /// The texts may have changed.
    void Relire();

    /// 0 for no row.
    [[nodiscard]] std::uint32_t Numero(int rangee) const;
    /// The row of a record; -1 when it is not shown.
    [[nodiscard]] int Rangee(std::uint32_t numero) const;
    [[nodiscard]] int Total() const { return static_cast<int>(tous_.size()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    /// A column below 0 gives the natural order back.
    void sort(int colonne, Qt::SortOrder ordre) override;

protected:
    [[nodiscard]] virtual std::string Texte(std::uint32_t numero, int colonne) const = 0;
    /// What the filter looks at: all columns, unless a list says otherwise.
    [[nodiscard]] virtual std::string TexteFiltre(std::uint32_t numero) const;
    /// What a column sorts by; bytes compare as unsigned.
    [[nodiscard]] virtual std::string Cle(std::uint32_t numero, int colonne) const;
    /// Other roles than the text.
    [[nodiscard]] virtual QVariant Autre(std::uint32_t numero, int colonne, int role) const;

    [[nodiscard]] shell::Session& S() const { return session_; }

private:
    void Composer();
    void Ranger();

    shell::Session& session_;
    int colonnes_;
    const char* fenetre_;
    const char* controle_;
    std::vector<std::uint32_t> tous_;
    std::vector<std::uint32_t> montres_;
    std::vector<std::string> replies_;  ///< what the filter looks at; made by the first filter
    std::vector<std::string> mots_;     ///< of the filter, folded
    int colonneTri_ = -1;
    Qt::SortOrder ordreTri_ = Qt::AscendingOrder;
};

}  // namespace dorvane::windows
