#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace dorvane::outil {

// One function for each verb of `dorvane-outil`. Results go to standard output in UTF-8, messages
// to standard error; the answer is the exit status.

struct OptionsImport {
    std::filesystem::path fichier;
    std::filesystem::path base;  ///< empty: the name of the file with ".LGD", beside it
    bool remplacer = false;
    bool trier = false;
    bool json = false;
    std::string langue;
};

[[nodiscard]] int Creer(const std::filesystem::path& base);
[[nodiscard]] int Importer(const OptionsImport& options);
[[nodiscard]] int DonnerInfos(const std::filesystem::path& base, bool json);
[[nodiscard]] int Lister(const std::filesystem::path& base, bool json);
[[nodiscard]] int MontrerPersonne(const std::filesystem::path& base, std::uint32_t numero,
                                  bool json);
[[nodiscard]] int Sauvegarder(const std::filesystem::path& base);
[[nodiscard]] int Restaurer(const std::filesystem::path& sauvegarde, bool remplacer);
[[nodiscard]] int CompilerCatalogues(const std::vector<std::string>& sources,
                                     const std::filesystem::path& dossier);
[[nodiscard]] int ListerCatalogue(const std::filesystem::path& fichier);
/// `-` in place of the arguments reads one call a line from standard input.
[[nodiscard]] int CalculerValeurs(const std::string& operation,
                                  const std::vector<std::string>& arguments,
                                  const std::string& langue);

}  // namespace dorvane::outil
