#include "shell/Session.h"

#include "storage/Base.h"

namespace dorvane::shell {

std::string DeCujus::NumeroDe(NoOrdre personne) const {
    if (personne.valeur >= sosa.size()) return {};
    const std::int32_t index = sosa[personne.valeur];
    if (index > 0) return std::to_string(numerosAsc[static_cast<std::size_t>(index)]);
    if (index < 0) return numerosDesc[static_cast<std::size_t>(-index)];
    return {};
}

Session::Session(const Lieux& lieux, const Ports& ports)
    : dialogue{ports.dialogue},
      progression{ports.progression},
      horloge{ports.horloge},
      ecran{ports.ecran},
      disque{ports.disque},
      parametres{lieux} {
    deCujus[0].libelle = "[...]";
    deCujus[1].libelle = "{...}";
}

Session::~Session() = default;

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
}

}  // namespace dorvane::shell
