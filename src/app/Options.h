#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace dorvane::outil {

// How the verbs of the command line and what they take are declared. What reads the line is known
// to one source alone. These are handles: they are copied, and live as long as their
// `LigneDeCommande`.

/// An argument or an option of a verb, to which rules are given.
class Option {
public:
    explicit Option(CLI::Option* option) : option_{option} {}

    Option& Requise();
    /// Not both.
    Option& Exclut(const Option& autre);
    /// Not without the other.
    Option& Exige(const Option& autre);
    /// One of these words.
    Option& Parmi(const std::vector<std::string>& mots);
    Option& Entre(std::uint32_t premier, std::uint32_t dernier);
    /// So many values each time that it stands in the line.
    Option& ParGroupes(int nombre);
    /// One value each time that it stands in the line; it may stand there again.
    Option& UneALaFois();
    /// `raison` tells what is wrong with the line when the option stands in it; empty: nothing is.
    Option& Verifier(const std::function<std::string()>& raison);

    /// The line holds it. Known once what stands before it has been read.
    [[nodiscard]] bool EstDonnee() const;

private:
    CLI::Option* option_;
};

/// A verb of the command line, or the whole of them.
class Verbe {
public:
    Verbe(CLI::App* app, std::function<int()>* travail) : app_{app}, travail_{travail} {}

    /// A verb below this one.
    [[nodiscard]] Verbe Sous(const std::string& nom, const std::string& aide);
    /// The same for a verb that only gathers others: the line holds one of these behind it.
    [[nodiscard]] Verbe Groupe(const std::string& nom, const std::string& aide);
    /// Another name.
    void Alias(const std::string& nom);

    /// An option when the name begins with "--", else an argument in its place; read into `cible`,
    /// which outlives the line. For `std::string`, an optional one, `std::uint32_t`, and vectors
    /// of them, which take every value given.
    template <class Valeur>
    Option Ajouter(const std::string& nom, Valeur& cible, const std::string& aide = {});
    /// An option without a value.
    Option Drapeau(const std::string& nom, bool& cible, const std::string& aide = {});
    /// A value of an enum, by its word or its number. `cible` is the enum or an optional one.
    template <class Enum, class Cible>
    Option Choix(const std::string& nom, Cible& cible,
                 std::initializer_list<std::pair<std::string_view, Enum>> mots,
                 const std::string& aide) {
        static_assert(sizeof(Enum) == sizeof(std::uint8_t));
        std::vector<std::pair<std::string, std::uint8_t>> numeros;
        for (const auto& [mot, valeur] : mots)
            numeros.emplace_back(mot, static_cast<std::uint8_t>(valeur));
        return Choisir(
            nom, numeros, [&cible](std::uint8_t numero) { cible = static_cast<Enum>(numero); },
            aide);
    }

    /// From the first argument that is not declared on, nothing is read any more.
    void LaisserLeReste();
    /// What was not read.
    [[nodiscard]] std::vector<std::string> Reste() const;

    /// What the verb does once the whole line is read; answers the exit status.
    void Faire(std::function<int()> travail);

private:
    Option Choisir(const std::string& nom,
                   const std::vector<std::pair<std::string, std::uint8_t>>& mots,
                   std::function<void(std::uint8_t)> poser, const std::string& aide);

    CLI::App* app_;
    std::function<int()>* travail_;
};

/// A whole command line, of which one verb is given.
class LigneDeCommande {
public:
    LigneDeCommande(const std::string& aide, const std::string& nom);
    ~LigneDeCommande();
    LigneDeCommande(const LigneDeCommande&) = delete;
    LigneDeCommande& operator=(const LigneDeCommande&) = delete;

    [[nodiscard]] Verbe Verbes();

    /// Reads the line. Nothing when it can be done; else the exit status, once the help asked for
    /// or what is wrong with the line has been written.
    [[nodiscard]] std::optional<int> Lire(int nombre, const char* const* arguments);
    /// Does the work of the verb that was read; answers the exit status.
    [[nodiscard]] int Executer() const { return travail_(); }

private:
    std::unique_ptr<CLI::App> app_;
    std::function<int()> travail_;
};

/// Adds a verb whose options live as long as the line: `declarer` names them, `travail` is done
/// with what was read into them.
template <class Options>
void Declarer(Verbe parent, const std::string& nom, const std::string& aide,
              const std::function<void(Verbe&, Options&)>& declarer,
              int (*travail)(const Options&)) {
    auto options = std::make_shared<Options>();
    Verbe verbe = parent.Sous(nom, aide);
    declarer(verbe, *options);
    verbe.Faire([options, travail] { return travail(*options); });
}

}  // namespace dorvane::outil
