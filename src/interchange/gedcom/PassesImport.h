#pragma once

#include "interchange/gedcom/LecteurAnnexes.h"
#include "interchange/gedcom/LecteurFamille.h"
#include "interchange/gedcom/LecteurIndividu.h"
#include "interchange/gedcom/MemoireImport.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace dorvane::interchange {

/// The two passes over one text, already in code page 1252, into a new base.
class PassesImport {
public:
    /// All outlive the object.
    PassesImport(shell::Session& session, storage::Base& base, std::string_view texte,
                 FinDeLigne fin, RapportImport& rapport)
        : session_{session},
          base_{base},
          texte_{texte},
          fin_{fin},
          rapport_{rapport},
          textes_{session},
          contexte_{base, textes_, rapport, pile_},
          marqueurs_{base, [texte](char c) { return texte.find(c) != std::string_view::npos; }},
          slotsIndividu_{marqueurs_},
          slotsMariage_{marqueurs_},
          liens_{contexte_},
          familles_{contexte_},
          individu_{contexte_, slotsIndividu_, liens_, {base.entete.OptPrenomUnique}},
          annexes_{contexte_, liens_},
          memoire_{familles_} {
        memoire_.Prevoir(texte.size());
        // Each by itself, which goes much faster than all three in one walk.
        for (const char c : {'#', ';', '\xFF'})
            separateurs_ = separateurs_ || texte.find(c) != std::string_view::npos;
    }

    /// False when the user has given up.
    [[nodiscard]] bool Executer() {
        return PremierePasse() && SecondePasse() && Trier() && Indexer();
    }

    [[nodiscard]] const EnTeteLu& EnTete() { return annexes_.EnTete(); }

private:
    struct Famille {
        std::size_t debut;    ///< 0-based offset of the line of level 0
        std::uint32_t ligne;  ///< its number
    };
    enum class Genre : std::uint8_t { Aucun, Individu, Famille, Annexe };

    [[nodiscard]] bool PremierePasse();
    void OuvrirEnregistrement(const LigneGedcom& ligne, std::size_t debut);
    void FermerEnregistrement();
    void OuvrirIndividu(const LigneGedcom& ligne);
    void OuvrirAnnexe(const LigneGedcom& ligne);
    void LireLigne(const LigneGedcom& ligne);
    /// Notes the line entered last when the base cannot hold its value as it stands.
    void NoterRemplacement(const LigneGedcom& ligne) const;
    void AjouterDescription();
    [[nodiscard]] bool SecondePasse();
    void LireFamille(LecteurFamille& lecteur, const Famille& famille);
    void VerifierFamilles();
    void ReleverMembres(const LecteurFamille& lecteur, std::uint64_t rang);
    void EcrireSlots();
    [[nodiscard]] ReglesNoms Regles() const;
    [[nodiscard]] bool Trier();
    [[nodiscard]] bool Indexer();
    /// Shows the count every 100, behind its message. False when the user has given up.
    [[nodiscard]] bool Avancer(std::size_t ou, NoMessage message, std::uint32_t nombre);
    [[nodiscard]] bool AvancerDUnEnregistrement(const LigneGedcom& ligne, std::size_t ou);

    shell::Session& session_;
    storage::Base& base_;
    std::string_view texte_;
    FinDeLigne fin_;
    RapportImport& rapport_;
    TextesImport textes_;
    PileEtiquettes pile_;
    ContexteImport contexte_;
    MarqueursImport marqueurs_;
    SlotsImport slotsIndividu_;
    SlotsImport slotsMariage_;
    LiensImport liens_;
    FamillesImport familles_;
    LecteurIndividu individu_;
    LecteurAnnexes annexes_;
    MemoireImport memoire_;
    ClesImport cles_;
    std::vector<Famille> debuts_;
    /// Who is a child and who a partner of which family, see `Appartenance`.
    std::vector<std::uint64_t> membres_;
    std::uint32_t enregistrements_ = 0;
    std::uint32_t compteMontre_ = 0;
    Genre genre_ = Genre::Aucun;
    bool separateurs_ = false;  ///< the text holds bytes that part records or fields
};

}  // namespace dorvane::interchange
