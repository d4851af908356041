#pragma once

#include "values/MotsDates.h"

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

namespace dorvane::outil {

/// What `calculer` answers, one line of UTF-8 without its line end.
struct Calcul {
    bool correct = true;  ///< false: `texte` tells what is wrong with the request, in French
    std::string texte;
};

/// Works out one operation on values (`Replie`, `CleNom`, `CvtSaisieDate`...). Arguments and
/// answers are UTF-8; in both, `\t`, `\n`, `\r`, `\\` and `\xHH` (a byte of code page 1252) stand
/// for what a line cannot hold. A character that the code page lacks counts as its
/// nearest equivalent, or as "?".
///
/// `true` and `false` answer a question; a calendar answers day, month and year positions, or
/// `message N` for a refusal; no date has an empty serial.
[[nodiscard]] Calcul Calculer(std::string_view operation, std::span<const std::string> arguments,
                              const MotsDates& mots);

/// Answers each line of `entree` (an operation and its arguments, separated by tabs) by one line of
/// `sortie`. A wrong line is answered by `erreur: ` and the reason, and the others are served all
/// the same. Answers the exit status: 0, or 2 when a line was wrong.
[[nodiscard]] int ServirCalculs(std::istream& entree, std::ostream& sortie, const MotsDates& mots);

}  // namespace dorvane::outil
