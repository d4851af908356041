#pragma once

#include "app/Atelier.h"
#include "app/Options.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace dorvane::outil {

/// What every command on the records of a base is given.
struct OptionsBase {
    std::string base;
    bool oui = false;  ///< every question is answered yes
    bool non = false;  ///< or no; neither: the terminal is asked
    bool json = false;
};

/// Declares BASE, --oui and --non.
void DeclarerBase(Verbe& verbe, OptionsBase& options);

/// Opens the base, runs `travail`, and commits what it wrote when it answers `Fait`; else the file
/// stays as it was. The answer is the exit status.
[[nodiscard]] int AvecBase(const OptionsBase& options, const std::function<int(Atelier&)>& travail);

/// Copies a base to its .SAV, whose path is written to standard output. Only a whole, closed file
/// is copied: a journal that was left is replayed first. The answer is the exit status.
[[nodiscard]] int SauvegarderBase(const std::filesystem::path& base);

/// An argument in code page 1252. Characters that the code page lacks are replaced, which is told
/// with their number.
[[nodiscard]] std::string LireArgument(Atelier& atelier, const std::string& utf8);

/// The same into `champ` when the option was given.
void Prendre(Atelier& atelier, const std::optional<std::string>& option, std::string& champ);

/// Where a verb is to write.
struct Cible {
    std::filesystem::path fichier;
    bool remplacer = false;        ///< what stands there may go
    std::filesystem::path lu{};    ///< the file that the verb reads; empty: none
    std::filesystem::path base{};  ///< the base that the verb has open; empty: none
};

/// The verb may write: there is nothing, or an ordinary file that may go, and it is neither the
/// file that is read nor one of those of the base. Tells why not. The answer is the exit status.
[[nodiscard]] int VerifierCible(Atelier& atelier, const Cible& cible);

/// There is such a person; told when not.
[[nodiscard]] bool PersonneExiste(Atelier& atelier, std::uint32_t numero);

/// A date in words cut in two: "12/3/1820" is "12/3" and "1820", "vers 1820" is "vers" and "1820".
/// Without a year at its end it is all day and month.
struct DateTapee {
    std::string jourMois;
    std::string annee;
};
[[nodiscard]] DateTapee CouperDateTapee(const std::string& date);

/// Adds a verb on a base: BASE stands first among what it takes, and `travail` gets the base open.
template <class Options>
void Declarer(Verbe parent, const std::string& nom, const std::string& aide,
              const std::function<void(Verbe&, Options&)>& declarer,
              int (*travail)(Atelier&, const Options&)) {
    auto options = std::make_shared<Options>();
    Verbe verbe = parent.Sous(nom, aide);
    DeclarerBase(verbe, *options);
    declarer(verbe, *options);
    verbe.Faire([options, travail] {
        return AvecBase(*options, [&](Atelier& atelier) { return travail(atelier, *options); });
    });
}

}  // namespace dorvane::outil
