#pragma once

#include "shell/Session.h"

#include <string>
#include <vector>

namespace dorvane::shell {

/// A kind of event with its roles, both as stored: tags, or the user's own words.
struct TypeEvenement {
    std::string type;
    std::vector<RoleEvenement> roles;
    friend bool operator==(const TypeEvenement&, const TypeEvenement&) = default;
};

/// All that the settings window edits. Texts in code page 1252.
struct Reglages {
    ReglagesGeneraux generaux;
    ReglagesBase base;                     ///< only with a base open
    Affichage affichage;                   ///< of the open base, else of new bases
    bool pourNouvelles = false;            ///< `affichage` also becomes that of new bases
    TypeTri typeTri = TypeTri::Naissance;  ///< of the open base, else of the next new one
    bool prenomUnique = false;  ///< first names are cut at their first blank in the word index
    bool deplacerParticules = false;  ///< particles of a surname go behind it in keys
    std::vector<TypeEvenement> evenements;
};

[[nodiscard]] Reglages LireReglages(const Session& session);

/// Would `ValiderReglages` change something? Both come from the same session.
[[nodiscard]] bool MemesReglages(const Reglages& a, const Reglages& b);

enum class ChampReglage { Aucun, Travail, Frequence, Evenements };

/// Takes the settings over and saves them: asks before persons are sorted in another order, and
/// sorts them again when a rule of their keys has changed. `reglages` comes back with what was
/// declined put back. `Aucun` when done; else where the refusal is: the message has been shown and
/// nothing has changed.
[[nodiscard]] ChampReglage ValiderReglages(Session& session, Reglages& reglages);

/// Puts the persons of the open base in another order. Asks first. False when the user says no or
/// gives up: the order is as before.
[[nodiscard]] bool ChangerTri(Session& session, TypeTri typeTri);

}  // namespace dorvane::shell
