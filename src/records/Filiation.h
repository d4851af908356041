#pragma once

#include "storage/ActionListe.h"
#include "values/Numeros.h"
#include "values/Sexe.h"

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// Fathers, mothers and children. A child and each of its parents hold one another: the cell of the
/// child, the list of children of the parent. Every operation keeps both in step, also at the
/// moment of each question that it asks through the dialogue of the session.
///
/// Operations that answer a `bool`: false when nothing was written, because it was refused, which
/// has been told, or because the user said no. A base is open.

/// Puts the child into the list of a parent, by year of birth and behind equal years, or takes it
/// out. The cell of the child, and the limit of 200, are the caller's.
void MajEnfant(shell::Session& session, NoOrdre parent, NoOrdre enfant,
               storage::ActionListe action);

/// `parent` may become the parent of `enfant` on this side: a person of that sex, not the child
/// itself nor a descendant of it, with room in the list. Else the reason is told.
[[nodiscard]] bool PeutEtreParent(shell::Session& session, NoOrdre enfant, Cote cote,
                                  NoOrdre parent);

/// Gives the child a parent who was chosen among the persons of the base (`C_Rechpère`,
/// `C_Rechmère`): replaces the one who stands there, offers a union with the other parent, the
/// partners of the chosen one as other parent, and the children of the other parent to the chosen.
[[nodiscard]] bool DonnerParent(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent);

/// The same for a parent who has just been created for this child (`CmdCréPère`, `CmdCréMère`):
/// warns of a death before a birth.
[[nodiscard]] bool ParentCree(shell::Session& session, NoOrdre enfant, Cote cote, NoOrdre parent);

/// Takes the parent of a side away, after a question (`C_Spère`, `C_Smère`). False without one.
[[nodiscard]] bool RetirerParent(shell::Session& session, NoOrdre enfant, Cote cote);

/// A child may be given to the person, and to the partner of the union when one is named: asked
/// before the search or the creation of the child, and told when not.
[[nodiscard]] bool PeutAvoirEnfant(shell::Session& session, NoOrdre parent, NoMariage mariage = {});

/// Asks before a child who has another parent on that side loses it to `parent`; true where it has
/// none.
[[nodiscard]] bool ConfirmerRemplacement(shell::Session& session, NoOrdre enfant, Cote cote,
                                         NoOrdre parent);

/// Gives the person a child who was chosen among the persons of the base (`CmdRechEnft`): asks
/// before a parent is replaced, and offers the partners of the person as other parent.
[[nodiscard]] bool AttacherEnfant(shell::Session& session, NoOrdre parent, NoOrdre enfant);

/// The same for a child who has just been created (`CmdCréEnfant`). The partner of `mariage`, the
/// union selected in the sheet (0 for none), becomes the other parent. Warns of a death before the
/// birth.
[[nodiscard]] bool EnfantCree(shell::Session& session, NoOrdre parent, NoOrdre enfant,
                              NoMariage mariage);

/// Takes a child away, after a question (`CmdSupEnft`).
[[nodiscard]] bool RetirerEnfant(shell::Session& session, NoOrdre parent, NoOrdre enfant);

/// Asks, child by child, whether `parent` is the parent on this side of those children of `autre`
/// who have none there, and links the ones for whom the user says yes. `avertir`: each of them
/// is warned of, without blocking, when `parent` died in a year before that of its birth.
void ProposerEnfants(shell::Session& session, NoOrdre autre, Cote cote, NoOrdre parent,
                     bool avertir);

}  // namespace dorvane::records
