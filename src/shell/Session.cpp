#include "shell/Session.h"

#include "shell/Communes.h"
#include "storage/Base.h"

namespace dorvane::shell {

std::string DeCujus::NumeroDe(NoOrdre personne) const {
    if (personne.valeur >= sosa.size()) return {};
    const std::int32_t index = sosa[personne.valeur];
    if (index > 0) return std::to_string(numerosAsc[static_cast<std::size_t>(index)]);
    if (index < 0) return numerosDesc[static_cast<std::size_t>(-index)];
    return {};
}

/// Hears what happens in the base.
class Session::Veilleur final : public storage::Observateur {
public:
    explicit Veilleur(Session& session) : session_{session} {}

    void ParentChange(NoOrdre enfant, NoOrdre parent) override {
        for (DeCujus& cujus : session_.deCujus) {
            const std::vector<std::int32_t>& sosa = cujus.sosa;
            if (enfant.valeur >= sosa.size() || parent.valeur >= sosa.size()) continue;
            if (sosa[enfant.valeur] != 0 || sosa[parent.valeur] != 0) cujus.perime = true;
        }
    }

    void Signaler(storage::Incident incident, std::uint32_t numero) override {
        constexpr std::size_t MaxIncidents = 100;
        if (session_.incidents.size() < MaxIncidents)
            session_.incidents.emplace_back(incident, numero);
    }

private:
    Session& session_;
};

Session::Session(const Lieux& lieux, const Ports& ports)
    : dialogue{ports.dialogue},
      progression{ports.progression},
      horloge{ports.horloge},
      ecran{ports.ecran},
      disque{ports.disque},
      parametres{lieux},
      communes{std::make_unique<Communes>(ports.disque, parametres)},
      veilleur_{std::make_unique<Veilleur>(*this)} {
    deCujus[0].libelle = "[...]";
    deCujus[1].libelle = "{...}";
}

Session::~Session() {
    // Before what it tells.
    base.reset();
}

const ReglesNoms& Session::Regles() const {
    regles_.deplacer = base ? base->entete.OptParticules : parametres.generaux.motCleNom;
    return regles_;
}

void Session::AppliquerReglages() {
    const ReglagesGeneraux& generaux = parametres.generaux;
    motsDates_ = LireMotsDates([this](NoMessage no) { return catalogue.Message(no); });
    ordreDate_ = LireOrdreDate(generaux.ordreDate).value_or(OrdreDate::JourMoisAnnee);
    modeleNom_ = LireModeleNom(generaux.affichageNom);
    regles_.particules = generaux.particules;
    if (base) base->regles.particules = generaux.particules;
}

void Session::PoserBase(std::unique_ptr<storage::Base> nouvelle) {
    base = std::move(nouvelle);
    incidents.clear();
    indexationFaite = true;
    if (!base) return;
    base->marques.observateur = veilleur_.get();
    base->regles.particules = parametres.generaux.particules;
    TypeTri = base->entete.TypeTri;
}

}  // namespace dorvane::shell
