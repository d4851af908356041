#include "interchange/commandes/IntegrerLgr.h"

#include "interchange/lgr/ImportLgr.h"
#include "interchange/lgr/LireLgr.h"
#include "interchange/lgr/MotsClesLgr.h"
#include "interchange/lgr/PoserLgr.h"
#include "messages/Dorvane.h"
#include "messages/Echange.h"
#include "messages/Exporter.h"
#include "messages/Messages.h"
#include "shell/CycleDeVie.h"
#include "shell/FichierSur.h"
#include "shell/Parametres.h"
#include "storage/Base.h"
#include "storage/ConstruireIndex.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <unordered_set>
#include <utility>

namespace dorvane::interchange {
namespace {

/// A kind of records that must fit behind those of the base.
struct Besoin {
    NoMessage message;      ///< told when they do not
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

bool TientDans(shell::Session& session, const ContenuLgr& contenu, const std::string& nom) {
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
        if (b.apporte > b.limite - std::min(b.present, b.limite)) {
            session.dialogue.Informer(shell::Msg(b.message, nom, std::to_string(b.limite)));
            return false;
        }
    return true;
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
        storage::AvancementMuet muet;
        if (base_.entete.TypeTri != '0') static_cast<void>(base_.R_TRI.TrierIndividus(muet));
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
        std::string indexes = "|";
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
        storage::AvancementMuet muet;
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

IssueIntegration Issue(IssueImport lecture) {
    return lecture == IssueImport::Inexploitable ? IssueIntegration::PasUnEchange
                                                 : IssueIntegration::Abandonnee;
}

void Expliquer(shell::Session& session, IssueIntegration issue, const std::string& nom) {
    if (issue == IssueIntegration::Illisible)
        session.dialogue.Informer(shell::Msg(message::FichierIllisible, nom));
    if (issue == IssueIntegration::PasUnEchange)
        session.dialogue.Informer(shell::Msg(message::FichierPasUnEchange, nom));
    if (issue == IssueIntegration::Abandonnee)
        session.dialogue.Informer(shell::Msg(message::InfoIntegrationAbandonnee));
}

/// Everything up to the first change of the base.
IssueIntegration Preparer(shell::Session& session, std::string& octets, ContenuLgr& contenu,
                          RapportImport& rapport, const std::string& nom) {
    const IssueImport lecture = LireContenuLgr(session, octets, contenu, rapport);
    if (lecture != IssueImport::Fait) return Issue(lecture);
    if (!TientDans(session, contenu, nom)) return IssueIntegration::TropGrande;
    if (!contenu.complet) {
        shell::Question question;
        question.texte = shell::Msg(message::ConfirmerIntegrerFichierIncomplet, nom);
        question.titre = shell::Msg(message::TitreIntegration);
        question.defaut = shell::Reponse::Non;
        if (!session.dialogue.Confirmer(question)) return IssueIntegration::Abandonnee;
    }
    return session.progression.Avancer(0, 0) ? IssueIntegration::Faite
                                             : IssueIntegration::Abandonnee;
}

/// Asks the user once the content is known; empty: nothing is asked. False to leave the base alone:
/// why is known to the user.
using PermettreLgr = std::function<bool(const ContenuLgr& contenu)>;

Integration Integrer(shell::Session& session, const std::filesystem::path& fichier,
                     const PermettreLgr& permettre) {
    Integration integration;
    const std::string nom = shell::CheminAffiche(fichier.filename());
    std::optional<std::string> octets = shell::LireTout(fichier);
    if (octets) {
        ContenuLgr contenu;
        const shell::CadreProgression cadre{session.progression,
                                            shell::Msg(message::TitreIntegration),
                                            shell::Msg(message::EtatLectureFichier)};
        integration.issue = Preparer(session, *octets, contenu, integration.rapport, nom);
        if (integration.issue == IssueIntegration::Faite) {
            if (permettre && !permettre(contenu)) {
                integration.issue = IssueIntegration::Abandonnee;
                return integration;
            }
            session.progression.Phase(shell::Msg(message::EtatEcritureBase));
            Ecriture{session, contenu, integration.rapport}.Executer();
        }
    }
    Expliquer(session, integration.issue, nom);
    if (integration.issue == IssueIntegration::Faite)
        integration.texte = ComposerRapport(integration.rapport, session, nom);
    return integration;
}

std::string DireContenu(const shell::Session& session, const ContenuLgr& contenu) {
    const auto dire = [&session](NoMessage message, std::size_t un, std::size_t deux) {
        return session.catalogue.Composer(
            shell::Msg(message, std::to_string(un), std::to_string(deux)));
    };
    return dire(message::ContenuPersonnesUnions, contenu.individus.size(), contenu.unions.size()) +
           ", " +
           dire(message::ContenuEvenementsDocuments, contenu.evenements.size(),
                contenu.documents.size());
}

/// Says what will be added, and that a copy is the only way back; the copy is made on a yes.
bool Permettre(shell::Session& session, const ContenuLgr& contenu, const std::string& nom) {
    shell::Question question;
    question.texte = shell::Msg(message::ConfirmerIntegration, nom, DireContenu(session, contenu));
    question.texte.suite = message::ProposerCopieAvantOperation;
    question.titre = shell::Msg(message::TitreIntegration);
    question.boutons = shell::Boutons::OuiNonAnnuler;
    question.grave = true;
    const shell::Reponse reponse = session.dialogue.Demander(question);
    if (reponse == shell::Reponse::Annuler) return false;
    return reponse == shell::Reponse::Non || shell::Sauvegarder(session);
}

}  // namespace

Integration IntegrerLgr(shell::Session& session, const std::filesystem::path& fichier) {
    return Integrer(session, fichier, {});
}

void IntegrerFichier(shell::Session& session, const std::filesystem::path& fichier,
                     const MontrerRapport& montrer) {
    if (!session.BaseOuverte() || !shell::CommandePermise(session)) return;
    const std::string nom = shell::CheminAffiche(fichier.filename());
    const Integration integration = Integrer(session, fichier, [&](const ContenuLgr& contenu) {
        return Permettre(session, contenu, nom);
    });
    session.ecran.Actualiser();
    if (integration.issue != IssueIntegration::Faite) return;
    session.dialogue.Annoncer(shell::Msg(message::EtatIntegrationTerminee, nom));
    if (montrer) montrer(session.Message(message::TitreIntegration), integration.texte);
}

void MnuIntegrer(shell::Session& session, const MontrerRapport& montrer) {
    if (!session.BaseOuverte() || !shell::CommandePermise(session)) return;
    shell::DemandeFichier demande;
    demande.titre = shell::Msg(message::TitreIntegrerFichier);
    demande.filtre = session.Message(message::FiltreExportDorvane);
    demande.extension = ".lgr";
    demande.depart = session.CheminEchange;
    if (const auto fichier = session.dialogue.ChoisirFichier(demande))
        IntegrerFichier(session, *fichier, montrer);
}

}  // namespace dorvane::interchange
