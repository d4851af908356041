#pragma once

#include "interchange/gedcom/ContexteImport.h"
#include "interchange/gedcom/TableCles.h"
#include "storage/Evenements.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// An event read from a source, before anyone takes part in it.
struct EvenementLu {
    std::int32_t cleDate = storage::CleSansDate;
    storage::DescriptionEvt description;
    std::string note;
};

/// What joins the records of an import to each other, gathered while reading and written once all
/// records are known: links between persons, persons of events, documents of persons and events.
class LiensImport {
public:
    explicit LiensImport(const ContexteImport& contexte) : contexte_{contexte} {}

    void AjouterEvenement(NoEvenement e, EvenementLu evenement);

    /// A link from `individu` to the person of an identifier.
    void Lier(NoOrdre individu, std::string_view cle, const LigneGedcom& ligne);
    /// Label of the link made last, as a RELA line has it.
    void NommerDernierLien(const LigneGedcom& ligne);

    /// `individu` takes part in the event of a source. `role`: a tag, or empty.
    void Participer(NoOrdre individu, std::string_view cle, std::string_view role,
                    const LigneGedcom& ligne);
    /// Role of the `combien` participations made last, as a ROLE line has it.
    void NommerDernierRole(const LigneGedcom& ligne, std::size_t combien);

    void Attacher(NoOrdre individu, std::string_view cleNote, const LigneGedcom& ligne);
    void AttacherAEvenement(std::string_view cleSource, std::string_view cleNote,
                            const LigneGedcom& ligne);

    /// Resolves all references and writes lists and events. Entries past 200 of a person are left
    /// out and noted. False when the user has given up.
    void Ecrire(const ClesImport& cles);

private:
    struct Lien {
        NoOrdre individu;
        std::string_view cle;
        std::string texte;
        std::uint32_t ligne;
    };
    struct Piece {
        std::string_view source;
        std::string_view note;
        std::uint32_t ligne;
    };
    using Reference = std::string_view;

    void EcrireLiens(const ClesImport& cles);
    void EcrireDocuments(const ClesImport& cles);
    void EcrireEvenements(const ClesImport& cles);
    void EcrireParticipations(std::vector<std::vector<storage::LienEvenement>>& personnes,
                              const ClesImport& cles);
    /// The tag of a role or label. One that is too long for a record will be cut, and is noted.
    [[nodiscard]] std::string TagDe(const LigneGedcom& ligne) const;
    std::uint32_t Resoudre(const TableCles& table, std::string_view cle, std::uint32_t ligne,
                           std::string_view chemin);

    ContexteImport contexte_;
    std::vector<EvenementLu> evenements_;  ///< event e at e - 1
    std::vector<Lien> liens_;
    std::vector<Lien> participations_;
    std::vector<Lien> documents_;
    std::vector<Piece> pieces_;
};

}  // namespace dorvane::interchange
