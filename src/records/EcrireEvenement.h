#pragma once

#include "records/SaisieEvenement.h"
#include "storage/Evenements.h"

#include <vector>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

// What the operations on events share. No question is asked about the event itself.

using LiensEvenement = std::vector<storage::LienEvenement>;

/// The field at fault when the links cannot be stored, with the message told: a link twice, a role
/// that is too long, a person who would have more than 200 events.
[[nodiscard]] ChampEvenement RefuserLiens(shell::Session& session, NoEvenement evenement,
                                          const LiensEvenement& liens);

/// Writes `parties`, with the links, into the event and brings the lists of all persons concerned
/// into line with it: entries, roles, order of the dates. `RefuserLiens` has been asked.
void EcrireParties(shell::Session& session, NoEvenement evenement, storage::PartiesEvt parties);

/// Sets the family cells that new links tell: father and mother beside a child. `anciens` are the
/// links from before, `crees` persons made for the event. What replaces a parent is asked.
void LierFamilles(shell::Session& session, NoEvenement evenement, const LiensEvenement& anciens,
                  const std::vector<NoOrdre>& crees);

}  // namespace dorvane::records
