#include "shell/CopiesDatees.h"

#include "storage/Disque.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

namespace dorvane::shell {

namespace {

namespace fs = std::filesystem;

/// " 2026-11-22 0953": 0 stands for any digit.
constexpr std::string_view Modele = " 0000-00-00 0000";

bool SuitLeModele(std::string_view texte) {
    return std::ranges::equal(texte, Modele, [](char c, char modele) {
        return modele == '0' ? c >= '0' && c <= '9' : c == modele;
    });
}

/// Where the minute begins in a stem, with what tells two of one minute apart behind it; its length
/// when there is none.
std::size_t PlaceDate(std::string_view nom) {
    for (std::size_t i = 0; i + Modele.size() <= nom.size(); ++i) {
        const std::string_view reste = nom.substr(i + Modele.size());
        const bool seul = reste.empty() || (reste.size() == 2 && reste[0] == ' ');
        if (seul && SuitLeModele(nom.substr(i, Modele.size()))) return i;
    }
    return nom.size();
}

fs::path AvecStem(const fs::path& chemin, std::string stem) {
    return chemin.parent_path() / fs::path{stem.append(chemin.extension().native())};
}

}  // namespace

fs::path CheminDate(const fs::path& sauvegarde, const Moment& m) {
    std::array<char, 64> date{};
    std::snprintf(date.data(), date.size(), " %04d-%02d-%02d %02d%02d", m.annee, m.mois, m.jour,
                  m.heure, m.minute);
    return AvecStem(sauvegarde, sauvegarde.stem().native() + date.data());
}

fs::path SansDate(const fs::path& sauvegarde) {
    const std::string stem = sauvegarde.stem().native();
    return AvecStem(sauvegarde, stem.substr(0, PlaceDate(stem)));
}

std::vector<fs::path> ListerDatees(const fs::path& sauvegarde) {
    std::vector<fs::path> datees;
    std::error_code erreur;
    const fs::path dossier = sauvegarde.has_parent_path() ? sauvegarde.parent_path() : ".";
    for (fs::directory_iterator i{dossier, erreur}, fin; !erreur && i != fin; i.increment(erreur)) {
        const fs::path chemin = sauvegarde.parent_path() / i->path().filename();
        if (chemin != sauvegarde && SansDate(chemin) == sauvegarde) datees.push_back(chemin);
    }
    std::ranges::sort(datees, std::greater{});
    return datees;
}

fs::path CheminDateLibre(storage::Disque& disque, const fs::path& sauvegarde,
                         const Moment& moment) {
    fs::path date = CheminDate(sauvegarde, moment);
    for (char rang = '2'; disque.Existe(date) && rang <= '9'; ++rang)
        date = AvecStem(sauvegarde, CheminDate(sauvegarde, moment).stem().native() + ' ' + rang);
    return date;
}

std::optional<fs::path> Dater(storage::Disque& disque, const fs::path& sauvegarde,
                              const Moment& maintenant) {
    if (!disque.Existe(sauvegarde)) return fs::path{};
    std::error_code erreur;
    if (fs::is_directory(sauvegarde, erreur)) return std::nullopt;
    const Moment moment = MomentDuFichier(sauvegarde).value_or(maintenant);
    fs::path date = CheminDateLibre(disque, sauvegarde, moment);
    if (!disque.Renommer(sauvegarde, date)) return std::nullopt;
    return date;
}

void Epurer(storage::Disque& disque, const fs::path& sauvegarde, int gardees) {
    const std::vector<fs::path> datees = ListerDatees(sauvegarde);
    for (std::size_t i = static_cast<std::size_t>(std::max(gardees, 0)); i < datees.size(); ++i)
        static_cast<void>(disque.Supprimer(datees[i]));
}

}  // namespace dorvane::shell
