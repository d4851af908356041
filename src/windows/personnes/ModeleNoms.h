#pragma once

#include <QAbstractTableModel>

#include "values/Numeros.h"
#include "windows/controles/ModeleListe.h"

#include <string>
#include <vector>

namespace dorvane::windows {

/// Persons in rows. A filter looks at name and dates.
class ModeleNoms final : public ModeleListe {
    Q_OBJECT

public:
    enum Colonnes { Nom, Dates, Parents, Sexe, Famille, NbColonnes };

    /// `session` outlives the model. `parmi`: the persons offered, in order; empty: all of the
    /// base in sort order.
    ModeleNoms(shell::Session& session, const std::vector<NoOrdre>& parmi, QObject* parent);

    /// A place by name or year can be asked for: the rows are those of a base in order.
    [[nodiscard]] bool Positionnable() const;
    /// The row of the first person at or after a name or year in the order of the base, in which
    /// the rows must stand; -1 without rows.
    [[nodiscard]] int Position(const QString& texte) const;

    [[nodiscard]] NoOrdre Individu(int rangee) const { return NoOrdre{Numero(rangee)}; }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The person of the first of these rows, for dragging.
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& lignes) const override;
    void sort(int colonne, Qt::SortOrder ordre) override;

protected:
    [[nodiscard]] std::string Texte(std::uint32_t numero, int colonne) const override;
    [[nodiscard]] std::string TexteFiltre(std::uint32_t numero) const override;
    [[nodiscard]] std::string Cle(std::uint32_t numero, int colonne) const override;
    [[nodiscard]] QVariant Autre(std::uint32_t numero, int colonne, int role) const override;

private:
    [[nodiscard]] QString Bulle(NoOrdre individu, int colonne) const;
    [[nodiscard]] QVariant Image(NoOrdre individu, int colonne) const;
    /// Unions and children of a person, in the order in which the column sorts.
    enum class EtatFamille { Aucune, UnionsEtEnfants, UnionSansEnfant, EnfantsSansUnion };
    [[nodiscard]] EtatFamille FamilleDe(NoOrdre individu) const;

    bool choix_;  ///< only some persons are offered
};

}  // namespace dorvane::windows
