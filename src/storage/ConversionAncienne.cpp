#include "storage/ConversionAncienne.h"

#include "messages/Messages.h"
#include "messages/Soin.h"
#include "values/Comparaison.h"
#include "values/Marqueurs.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace dorvane::storage {
namespace {

constexpr std::uint32_t PasCompteur = 100;

/// Labels of slots as stored, with their tags; those that are neutral already are left out.
using Remplacements = std::vector<std::pair<std::string, std::string>>;

class Conversion {
public:
    Conversion(Base& base, const ConversionsTextes& conversions)
        : b_{base},
          conversions_{conversions},
          slotsIndividu_{Lister(base.DefinitionIndividu())},
          slotsMariage_{Lister(base.DefinitionMariage())} {}

    void ConvertirMotsCles() {
        for (NoMotCle k{1}; k.valeur <= b_.motsCles.Nombre(); ++k.valeur) {
            MotCle type = b_.motsCles.LibelleType(k);
            std::string tag = conversions_.tagDeLibelle(type.libelle);
            if (tag == type.libelle) continue;
            type.libelle = std::move(tag);
            b_.motsCles.CreerType(k, type);
        }
    }

    void ConvertirIndividu(NoOrdre n) {
        ConvertirNom(n);
        const std::string texte{b_.R_TEXTE.LireTexte(n)};
        if (const std::string nouveau = Lignes(texte, slotsIndividu_); nouveau != texte) {
            b_.R_INDEX.MajIndex(n, texte, nouveau);
            b_.R_TEXTE.EcrireTexte(n, nouveau);
        }
        ConvertirListe(b_.R_LIEN, n);
        ConvertirListe(b_.R_LSTEVT, n);
    }

    void ConvertirMariage(NoMariage m) {
        const std::string texte{b_.R_TXTMAR.LireTexte(m)};
        const std::string nouveau = Lignes(DateDUnion(texte), slotsMariage_);
        if (nouveau == texte) return;
        for (const NoOrdre n : {b_.R_EPOUX.LireCellule(m), b_.R_EPOUSE.LireCellule(m)})
            if (n) b_.R_INDEX.MajIndex(n, texte, nouveau);
        b_.R_TXTMAR.EcrireTexte(m, nouveau);
    }

    void ConvertirEvenement(NoEvenement e) {
        if (!b_.R_EVT.LireCellule(e)) return;
        PartiesEvt parties;
        DescriptionEvt description = b_.R_EVT.Description(e);
        if (std::string tag = conversions_.tagDeLibelle(description.type);
            tag != description.type) {
            description.type = std::move(tag);
            parties.description = std::move(description);
        }
        std::vector<LienEvenement> liens = b_.R_EVT.Liens(e);
        bool change = false;
        for (LienEvenement& lien : liens) {
            std::string tag = conversions_.tagDeLibelle(lien.role);
            change = change || tag != lien.role;
            lien.role = std::move(tag);
        }
        if (change) parties.liens = std::move(liens);
        if (parties.description || parties.liens) b_.R_EVT.EcrireEvt(e, parties);
    }

private:
    Remplacements Lister(const DefinitionSlots& definition) const {
        Remplacements remplacements;
        for (std::size_t k = 0; k < NbSlots(definition.slots); ++k) {
            const std::string& libelle = definition.libelles[k];
            std::string tag = conversions_.tagDeLibelle(libelle);
            if (tag != libelle) remplacements.emplace_back(libelle, std::move(tag));
        }
        return remplacements;
    }

    /// The text with the labels of its slot lines replaced. The first line holds no slot.
    static std::string Lignes(std::string texte, const Remplacements& remplacements) {
        std::size_t debut = texte.find('\n');
        while (debut != std::string::npos) {
            ++debut;
            for (const auto& [libelle, tag] : remplacements)
                if (texte.compare(debut, libelle.size(), libelle) == 0 &&
                    texte.compare(debut + libelle.size(), 1, " ") == 0) {
                    texte.replace(debut, libelle.size(), tag);
                    break;
                }
            debut = texte.find('\n', debut);
        }
        return texte;
    }

    /// The text of a union with the date words in front of its place in the stored form.
    std::string DateDUnion(std::string texte) const {
        const std::size_t lieu = texte.find(marqueur::LieuMariage);
        if (lieu == std::string::npos || lieu > texte.find('\r')) return texte;
        const std::string_view date = SansBlancs(std::string_view{texte}.substr(0, lieu));
        const std::size_t debut = static_cast<std::size_t>(date.data() - texte.data());
        if (date.empty()) return texte;
        const std::string stockee = SansDiese(conversions_.dateStockee(date));
        return texte.replace(debut, date.size(), stockee);
    }

    void ConvertirNom(NoOrdre n) {
        const std::string ligne{b_.R_NOM.LireTexte(n)};
        const LigneNom champs = DecouperNom(ligne);
        if (champs.jourMoisNaissance.empty() && champs.jourMoisDeces.empty()) return;
        std::string nouvelle{champs.nom};
        nouvelle.append(";").append(champs.prenom).append(";").append(champs.autrePrenom);
        for (const std::string_view date : {champs.jourMoisNaissance, champs.jourMoisDeces}) {
            nouvelle += ';';
            if (!date.empty()) nouvelle += SansSeparateur(conversions_.dateStockee(date));
        }
        if (nouvelle != ligne && nouvelle != ligne + ';') b_.R_NOM.EcrireNom(n, nouvelle);
    }

    template <class Liste>
    void ConvertirListe(Liste& liste, NoOrdre n) {
        std::string nouvelle;
        bool change = false;
        const std::size_t nombre = liste.NbElements(n);
        for (std::size_t k = 1; k <= nombre; ++k) {
            const std::string texte = liste.TexteElement(n, k);
            const std::string tag = conversions_.tagDeLibelle(texte);
            change = change || tag != texte;
            nouvelle += liste.ComposerElement(liste.ElementListe(n, k), tag);
        }
        if (change) liste.EcrireListe(n, nouvelle);
    }

    Base& b_;
    const ConversionsTextes& conversions_;
    Remplacements slotsIndividu_;
    Remplacements slotsMariage_;
};

template <class Travail>
bool Parcourir(Progression& progression, std::uint32_t nombre, Travail travail) {
    for (std::uint32_t i = 1; i <= nombre; ++i) {
        if ((i - 1) % PasCompteur == 0 && !progression.Avancer(i - 1, nombre)) return false;
        travail(i);
    }
    return true;
}

}  // namespace

bool ConvertirAncienne(Base& base, const ConversionsTextes& conversions, Progression& progression) {
    if (base.entete.LibellesNeutres) return true;
    constexpr std::size_t Tout = std::numeric_limits<std::size_t>::max();
    base.volume.FixerTampons(Tout, Tout);
    const CadreProgression cadre{progression, Msg(message::TitreReorganisationBase),
                                 Msg(message::EtatMajLibellesEtDates)};
    Conversion conversion{base, conversions};
    conversion.ConvertirMotsCles();
    const bool fait =
        Parcourir(progression, base.entete.DernierIndividu,
                  [&](std::uint32_t n) { conversion.ConvertirIndividu(NoOrdre{n}); }) &&
        Parcourir(progression, base.entete.DernierMariage,
                  [&](std::uint32_t m) { conversion.ConvertirMariage(NoMariage{m}); }) &&
        Parcourir(progression, std::min(base.entete.DernierEvenement, MaxEvenements),
                  [&](std::uint32_t e) { conversion.ConvertirEvenement(NoEvenement{e}); });
    // What could not be read would be converted to nothing.
    if (!fait || base.EnDefaut()) return false;
    base.entete.LibellesNeutres = true;
    base.marques.ModifBase = true;
    return true;
}

}  // namespace dorvane::storage
