#pragma once

#include <QAbstractTableModel>

#include "records/FichierDeDocument.h"
#include "values/Numeros.h"
#include "windows/controles/ModeleListe.h"

namespace dorvane::windows {

/// Documents: all of the base by title, or those of an event. A file that is not there is marked.
class ModeleDocuments final : public ModeleListe {
    Q_OBJECT

public:
    enum Colonne { Titre, Type, Fichier, Etat, NbColonnes };

    /// `fenetre` and `controle` name the captions of the columns.
    ModeleDocuments(shell::Session& session, const char* fenetre, const char* controle,
                    QObject* parent);

    /// The numbers of the sort table.
    [[nodiscard]] static std::vector<std::uint32_t> Numeros(const shell::Session& session);

    /// Pixels of the pictures in the first column.
    static constexpr int CoteVignette = 36;

protected:
    [[nodiscard]] std::string Texte(std::uint32_t numero, int colonne) const override;
    [[nodiscard]] QVariant Autre(std::uint32_t numero, int colonne, int role) const override;

private:
    [[nodiscard]] records::EtatDocument EtatDe(NoDocument document) const;
};

}  // namespace dorvane::windows
