#include "interchange/lgr/ImportLgr.h"

#include "interchange/commun/OrdreImport.h"
#include "interchange/lgr/LireLgr.h"
#include "interchange/lgr/MotsClesLgr.h"
#include "interchange/lgr/PoserLgr.h"
#include "interchange/lgr/ReglagesLgr.h"
#include "messages/Dorvane.h"
#include "messages/Echange.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "storage/Base.h"
#include "storage/ConstruireIndex.h"
#include "values/Marqueurs.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace dorvane::interchange {
namespace {

/// One import into a new base.
class ImportNeuf {
public:
    /// All outlive the object.
    ImportNeuf(shell::Session& session, storage::Base& base, const ContenuLgr& contenu,
               RapportImport& rapport)
        : session_{session},
          base_{base},
          contenu_{contenu},
          libelles_{session.catalogue},
          motsCles_{base, libelles_, contenu, rapport},
          poser_{Regler(base, contenu), libelles_, contenu, motsCles_, nullptr, rapport} {}

    /// False when the user has given up.
    [[nodiscard]] bool Executer() {
        OrdonnerMotsCles();
        if (contenu_.aSlots) {
            base_.entete.SlotsIndividu = Slots(contenu_.slotsIndividu);
            base_.entete.SlotsMariage = Slots(contenu_.slotsMariage);
        }
        const auto suivre = [this](NoMessage message, std::uint32_t nombre) {
            session_.progression.Phase(
                shell::Litteral(session_.Message(message) + ' ' + std::to_string(nombre)));
            return session_.progression.Avancer(nombre, 0);
        };
        if (!poser_.Poser(suivre)) return false;
        base_.entete.DocBase = poser_.Document(contenu_.description);
        return Trier() && Indexer();
    }

private:
    static storage::Base& Regler(storage::Base& base, const ContenuLgr& contenu) {
        if (contenu.parametres.size() >= 2) {
            base.entete.OptParticules = contenu.parametres[0] == "1";
            base.entete.OptPrenomUnique = contenu.parametres[1] == "1";
        }
        base.entete.OptOrigine97 = !contenu.Avant97();
        return base;
    }

    /// Those of the file in its order, the others behind.
    void OrdonnerMotsCles() {
        std::vector<NoMotCle> ordre;
        const auto ajouter = [&](NoMotCle k) {
            if (k && std::ranges::find(ordre, k) == ordre.end()) ordre.push_back(k);
        };
        for (const NoMotCle k : motsCles_.Types())
            ajouter(k);
        for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k)
            ajouter(NoMotCle{k});
        base_.motsCles.Reordonner(ordre);
    }

    storage::Slots Slots(const std::vector<SlotLgr>& lus) {
        storage::Slots slots{};
        std::size_t n = 0;
        for (const SlotLgr& lu : lus) {
            const char marqueur = motsCles_.Marqueur(lu.marqueur);
            if (n < slots.size() && marqueur != ' ' && base_.motsCles.TypeDuSymbole(marqueur))
                slots[n++] = {marqueur, lu.drapeau};
        }
        return slots;
    }

    /// The file stands in the order of the base that wrote it.
    bool Trier() {
        for (const TypeTri type : {TypeTri::Naissance, TypeTri::Nom, TypeTri::Creation})
            if (poser_.EstTriee(type)) {
                base_.entete.TypeTri = type;
                return true;
            }
        return TrierImport(session_, base_, poser_);
    }

    bool Indexer() {
        std::string indexes;
        for (const char marqueur : contenu_.index)
            indexes += motsCles_.Marqueur(marqueur);
        std::vector<NoMotCle> types;
        for (std::uint32_t i = 1; i <= base_.motsCles.Nombre(); ++i) {
            const NoMotCle k{i};
            storage::MotCle type = base_.motsCles.LibelleType(k);
            const bool indexe =
                type.symbole == marqueur::Nom ||
                (contenu_.aIndex ? indexes.find(type.symbole) != std::string::npos : type.indexe);
            if (indexe)
                types.push_back(k);
            else if (type.indexe)
                base_.motsCles.CreerType(k, {type.symbole, type.libelle, false, {}});
        }
        return IndexerImport(session_, base_, types, poser_);
    }

    shell::Session& session_;
    storage::Base& base_;
    const ContenuLgr& contenu_;
    shell::TableLibelles libelles_;
    MotsClesLgr motsCles_;
    PoserLgr poser_;
};

}  // namespace

shell::Issue LireContenuLgr(shell::Session& session, std::string& octets, const std::string& nom,
                            ContenuLgr& contenu, RapportImport& rapport) {
    session.progression.Phase(shell::Msg(message::EtatLectureFichier));
    PreparationLgr preparation;
    const LectureLgr lecture =
        LireLgr(octets, contenu, preparation, [&session](std::uint32_t fait, std::uint32_t total) {
            return session.progression.Avancer(fait, total);
        });
    rapport.octetsNuls = preparation.octetsNuls;
    rapport.perdus = preparation.perdus;
    rapport.version = contenu.version;
    rapport.lignes = contenu.lignes;
    rapport.finTrouvee = contenu.complet;
    if (lecture == LectureLgr::PasUnEchange)
        return shell::Issue::Refusee(shell::Msg(message::FichierPasUnEchange, nom));
    return lecture == LectureLgr::Faite
               ? shell::Issue::Faite()
               : shell::Issue::Arretee(shell::Msg(message::ImportAbandonne));
}

shell::Issue ImporterOctetsLgr(shell::Session& session, std::string octets, const std::string& nom,
                               const std::filesystem::path& base, RapportImport& rapport) {
    ContenuLgr contenu;
    {
        const shell::CadreProgression cadre{session.progression,
                                            shell::Msg(message::TitreImportDorvane),
                                            shell::Msg(message::EtatLectureFichier)};
        shell::Issue lecture = LireContenuLgr(session, octets, nom, contenu, rapport);
        if (!lecture) return lecture;
    }
    shell::Issue issue =
        FaireBase(session, base,
                  {shell::Msg(message::TitreImportDorvane), shell::Msg(message::EtatEcritureBase)},
                  [&](storage::Base& nouvelle) {
                      return ImportNeuf{session, nouvelle, contenu, rapport}.Executer();
                  });
    if (issue && !PrendreReglagesLgr(session, base, contenu.reglages))
        shell::DireReglagesRefuses(session);
    return issue;
}

shell::Issue ImporterLgr(shell::Session& session, const std::filesystem::path& fichier,
                         const std::filesystem::path& base, RapportImport& rapport) {
    std::optional<std::string> octets = shell::LireTout(fichier);
    if (!octets)
        return shell::Issue::ParSysteme(
            shell::Msg(message::FichierIllisible, shell::CheminAffiche(fichier)));
    return ImporterOctetsLgr(session, std::move(*octets), shell::CheminAffiche(fichier.filename()),
                             base, rapport);
}

}  // namespace dorvane::interchange
