#pragma once

#include "app/Atelier.h"

#include <CLI/CLI.hpp>
#include <cstdint>
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
void DeclarerBase(CLI::App& verbe, OptionsBase& options);

/// Opens the base, runs `travail`, and commits what it wrote when it answers `Fait`; else the file
/// stays as it was. The answer is the exit status.
[[nodiscard]] int AvecBase(const OptionsBase& options, const std::function<int(Atelier&)>& travail);

/// An argument in code page 1252. Nothing, and a message, when it holds a character that the code
/// page lacks: it would be stored as something else.
[[nodiscard]] std::optional<std::string> LireArgument(Atelier& atelier, const std::string& utf8);

/// The same into `champ` when the option was given; false after a refusal.
[[nodiscard]] bool Prendre(Atelier& atelier, const std::optional<std::string>& option,
                           std::string& champ);

/// There is such a person; told when not.
[[nodiscard]] bool PersonneExiste(Atelier& atelier, std::uint32_t numero);

/// A date in words cut in two: "12/3/1820" is "12/3" and "1820", "vers 1820" is "vers" and "1820".
/// Without a year at its end it is all day and month.
struct DateTapee {
    std::string jourMois;
    std::string annee;
};
[[nodiscard]] DateTapee CouperDateTapee(const std::string& date);

/// Adds a verb on a base, whose options live as long as the parser and the work that it leaves in
/// `faire`.
template <class Options>
CLI::App* Declarer(CLI::App& app, std::function<int()>& faire, const char* nom, const char* aide,
                   const std::function<void(CLI::App&, Options&)>& declarer,
                   int (*travail)(Atelier&, const Options&)) {
    auto options = std::make_shared<Options>();
    CLI::App* verbe = app.add_subcommand(nom, aide);
    DeclarerBase(*verbe, *options);
    declarer(*verbe, *options);
    verbe->callback([options, travail, &faire] {
        faire = [options, travail] {
            return AvecBase(*options, [&](Atelier& atelier) { return travail(atelier, *options); });
        };
    });
    return verbe;
}

}  // namespace dorvane::outil
