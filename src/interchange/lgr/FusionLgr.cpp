#include "interchange/lgr/FusionLgr.h"

#include "interchange/lgr/ImportLgr.h"
#include "interchange/lgr/LireLgr.h"
#include "interchange/lgr/MotsClesLgr.h"
#include "interchange/lgr/PoserLgr.h"
#include "messages/Dorvane.h"
#include "messages/Echange.h"
#include "shell/FichierSur.h"
#include "shell/Parametres.h"
#include "storage/Base.h"
#include "storage/ConstruireIndex.h"
#include "values/Marqueurs.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace dorvane::interchange {
namespace {

/// A kind of records that must fit behind those of the base.
struct Besoin {
    NoMessage message;      ///< why not, when they do not
    std::uint32_t present;  ///< highest number of the base
    std::uint32_t apporte;  ///< highest number of the file
    std::uint32_t limite;
};

template <class Record>
std::uint32_t DernierNumero(const std::vector<Record>& records) {
    std::uint32_t dernier = 0;
    for (const Record& record : records)
        dernier = std::max(dernier, record.numero);
    return dernier;
}

shell::Issue VerifierPlace(const shell::Session& session, const ContenuLgr& contenu,
                           const std::string& nom) {
    const storage::EnTete& e = session.base->entete;
    const Besoin besoins[] = {
        {message::IntegrationTropDePersonnes, e.DernierIndividu, DernierNumero(contenu.individus),
         storage::MaxIndividus},
        {message::IntegrationTropDUnions, e.DernierMariage,
         static_cast<std::uint32_t>(contenu.unions.size()), session.base->R_EPOUX.Portee()},
        {message::IntegrationTropDEvenements, e.DernierEvenement, DernierNumero(contenu.evenements),
         storage::MaxEvenements},
        {message::IntegrationTropDeDocuments, e.DernierDocument, DernierNumero(contenu.documents),
         storage::MaxDocuments}};
    for (const Besoin& b : besoins)
        if (b.apporte > b.limite - std::min(b.present, b.limite))
            return shell::Issue::Refusee(shell::Msg(b.message, nom, std::to_string(b.limite)));
    return shell::Issue::Faite();
}

/// Writes the content into the open base. Nothing stops it: it ends in memory as a whole, and the
/// next commit takes it or none of it.
class Ecriture {
public:
    /// All outlive the object.
    Ecriture(shell::Session& session, const ContenuLgr& contenu, RapportImport& rapport)
        : session_{session},
          base_{*session.base},
          contenu_{contenu},
          libelles_{session.catalogue},
          indexes_{Indexes()},
          premier_{session.base->entete.DernierIndividu + 1},
          motsCles_{base_, libelles_, contenu, rapport},
          noms_{Noms()},
          poser_{
              base_,  libelles_, contenu, motsCles_, noms_.nom || noms_.prenom ? &noms_ : nullptr,
              rapport} {}

    void Executer() {
        AjouterSlots(base_.entete.SlotsIndividu, contenu_.slotsIndividu);
        AjouterSlots(base_.entete.SlotsMariage, contenu_.slotsMariage);
        const auto suivre = [this](NoMessage message, std::uint32_t nombre) {
            session_.progression.Phase(
                shell::Litteral(session_.Message(message) + ' ' + std::to_string(nombre)));
            // Keeps the screen alive; the answer comes too late.
            static_cast<void>(session_.progression.Avancer(nombre, 0));
            return true;
        };
        static_cast<void>(poser_.Poser(suivre));
        storage::ProgressionMuette muet;
        if (base_.entete.TypeTri != TypeTri::Creation)
            static_cast<void>(base_.R_TRI.TrierIndividus(muet));
        Indexer();
        for (shell::DeCujus& deCujus : session_.deCujus)
            deCujus.perime = deCujus.perime || static_cast<bool>(deCujus.individu);
    }

private:
    NomsLgr Noms() {
        NomsLgr noms{false, false, base_.entete.OptPrenomUnique, session_.Regles()};
        if (contenu_.parametres.size() < 2) return noms;
        noms.nom = (contenu_.parametres[0] == "1") != base_.entete.OptParticules;
        noms.prenom = (contenu_.parametres[1] == "1") != base_.entete.OptPrenomUnique;
        return noms;
    }

    /// Symbols of the keywords that have a word list now.
    std::string Indexes() {
        std::string indexes(1, marqueur::Nom);
        for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k) {
            const storage::MotCle& type = base_.motsCles.LibelleType(NoMotCle{k});
            if (type.indexe) indexes += type.symbole;
        }
        return indexes;
    }

    /// Those that had a list, and the new ones of the file that have one in it.
    std::vector<NoMotCle> Types() {
        std::vector<NoMotCle> types;
        for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k) {
            const char symbole = base_.motsCles.LibelleType(NoMotCle{k}).symbole;
            const bool nouveau = motsCles_.EstNouveau(NoMotCle{k}) &&
                                 std::ranges::any_of(contenu_.index, [&](char c) {
                                     return motsCles_.Marqueur(c) == symbole;
                                 });
            if (symbole != ' ' && (nouveau || indexes_.find(symbole) != std::string::npos))
                types.emplace_back(k);
        }
        return types;
    }

    /// Different words of these keywords in the texts of the new persons.
    std::size_t CompterMots(const std::vector<NoMotCle>& types) {
        std::unordered_set<std::string> mots;
        ParcourirTextes([&](NoOrdre /*n*/, const std::string& texte) {
            for (const NoMotCle k : types) {
                const char symbole = base_.motsCles.LibelleType(k).symbole;
                if (texte.find(symbole) == std::string::npos) continue;
                for (const std::string& mot : storage::MotsDuTexte(texte, symbole))
                    mots.insert(symbole + mot);
            }
        });
        return mots.size();
    }

    template <class Faire>
    void ParcourirTextes(Faire faire) {
        for (NoOrdre n{premier_}; n.valeur <= base_.entete.DernierIndividu; ++n.valeur) {
            faire(n, std::string{base_.R_TEXTE.LireTexte(n)});
            for (const NoMariage m : base_.R_MARIAG.Elements(n))
                faire(n, std::string{base_.R_TXTMAR.LireTexte(m)});
        }
    }

    // Building the lists anew is quick, but takes an entry for every word of the base. When these
    // run short the new words are entered one by one.
    void Indexer() {
        storage::ProgressionMuette muet;
        const std::vector<NoMotCle> types = Types();
        std::size_t entrees = base_.entete.NbIndex + CompterMots(types);
        for (const NoMotCle k : types)
            entrees += base_.R_INDEX.ListeMots(k).size();
        if (entrees <= storage::MaxIndex) {
            static_cast<void>(storage::ConstruireIndex(base_, types, muet));
            return;
        }
        ParcourirTextes(
            [&](NoOrdre n, const std::string& texte) { base_.R_INDEX.MajIndex(n, {}, texte); });
        std::vector<NoMotCle> nouveaux = types;
        std::erase_if(nouveaux, [&](NoMotCle k) { return !motsCles_.EstNouveau(k); });
        static_cast<void>(storage::ConstruireIndex(base_, nouveaux, muet));
    }

    /// Rows of the file that the base lacks come behind its own while there is room: without its
    /// row a line of a sheet is a line of the note.
    void AjouterSlots(storage::Slots& slots, const std::vector<SlotLgr>& lus) {
        for (const SlotLgr& lu : lus) {
            const std::size_t n = storage::NbSlots(slots);
            const char marqueur = motsCles_.Marqueur(lu.marqueur);
            if (n == slots.size() || marqueur == ' ' || !base_.motsCles.TypeDuSymbole(marqueur) ||
                std::ranges::find(slots, marqueur, &storage::Slot::symbole) != slots.end())
                continue;
            slots[n] = {marqueur, lu.drapeau};
        }
    }

    shell::Session& session_;
    storage::Base& base_;
    const ContenuLgr& contenu_;
    shell::TableLibelles libelles_;
    std::string indexes_;
    std::uint32_t premier_;  ///< number of the first new person
    MotsClesLgr motsCles_;
    NomsLgr noms_;
    PoserLgr poser_;
};

shell::Issue Abandon() {
    return shell::Issue::Arretee(shell::Msg(message::InfoIntegrationAbandonnee));
}

/// Everything up to the first change of the base.
shell::Issue Preparer(shell::Session& session, std::string& octets, const std::string& nom,
                      ContenuLgr& contenu, RapportImport& rapport) {
    shell::Issue lecture = LireContenuLgr(session, octets, nom, contenu, rapport);
    if (lecture.cause == shell::Cause::Arrete) return Abandon();
    return lecture ? VerifierPlace(session, contenu, nom) : lecture;
}

}  // namespace

shell::Issue FusionnerLgr(shell::Session& session, const std::filesystem::path& fichier,
                          const PermettreLgr& permettre, RapportImport& rapport) {
    const std::string nom = shell::CheminAffiche(fichier.filename());
    std::optional<std::string> octets = shell::LireTout(fichier);
    if (!octets) return shell::Issue::ParSysteme(shell::Msg(message::FichierIllisible, nom));
    ContenuLgr contenu;
    const shell::CadreProgression cadre{session.progression, shell::Msg(message::TitreIntegration),
                                        shell::Msg(message::EtatLectureFichier)};
    if (shell::Issue lue = Preparer(session, *octets, nom, contenu, rapport); !lue) return lue;
    if (shell::Issue permise = permettre(contenu); !permise) return permise;
    // The last moment to give up, that of the question too.
    if (!session.progression.Avancer(0, 0)) return Abandon();
    session.progression.Phase(shell::Msg(message::EtatEcritureBase));
    Ecriture{session, contenu, rapport}.Executer();
    return shell::Issue::Faite();
}

}  // namespace dorvane::interchange
