#pragma once

#include "records/Filiation.h"
#include "values/Numeros.h"

#include <cstddef>

namespace dorvane::shell {
class Session;
}

namespace dorvane::records {

/// Unions. The husband's and the wife's cells stand in step with the lists of unions of both. A
/// base is open; the answers are those of the operations on parents and children.

/// Puts the union at the end of the list of a person, or takes it out. The cells of the union, and
/// the limit of 200, are the caller's.
void MajMariage(shell::Session& session, NoOrdre individu, NoMariage mariage,
                storage::ActionListe action);

/// Where a partner comes from, which says how the refusal is worded.
enum class Provenance { Cherche, Cree };

/// The person may be given a partner: its sex is known and its list has room. Asked before the
/// search or the creation of the partner, and told when not.
[[nodiscard]] bool PeutAvoirConjoint(shell::Session& session, NoOrdre individu,
                                     Provenance provenance);

/// Both may be joined: two persons of the base, not of the same known sex, with room in both lists.
/// Else the reason is told. Two unions of the same persons are allowed: people marry again.
[[nodiscard]] bool PeutUnir(shell::Session& session, NoOrdre individu, NoOrdre partenaire);

/// Makes the union of two persons whom `PeutUnir` allows, without years and without text. Asks
/// nothing. 0 when the base holds 64000 unions, which is told.
NoMariage EcrireUnion(shell::Session& session, NoOrdre epoux, NoOrdre epouse);

/// Joins the person of the sheet with a partner, chosen or just created (`C_Rechconjoint`,
/// `CmdCréConjoint`): a man is the husband, a woman the wife, whatever the partner. Asks for the
/// children of each, one by one, whether they are the other's too. 0: refused.
[[nodiscard]] NoMariage CreerUnion(shell::Session& session, NoOrdre individu, NoOrdre partenaire);

/// Takes a union away, after a question (`C_Smar`): its text with the index words, years, cells and
/// entries. The number stays unused; the children keep their parents.
[[nodiscard]] bool RetirerUnion(shell::Session& session, NoMariage mariage);

/// Swaps entry `rang`, from 1, of the list of a person with the one before (`pas` -1) or behind
/// (1): `CmdMarUp`, `CmdMarDown`. The new rank; 0 when it cannot go there.
std::size_t ReordonnerUnion(shell::Session& session, NoOrdre individu, std::size_t rang, int pas);

}  // namespace dorvane::records
