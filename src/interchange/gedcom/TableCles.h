#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dorvane::interchange {

/// Numbers given to the records of one kind, by their identifier. Identifiers are compared whole:
/// "A12" and "B12" differ, and so do "31" and "031". Their bytes live as long as the table.
class TableCles {
public:
    /// False when the identifier is there already: the first record keeps it.
    bool Noter(std::string_view cle, std::uint32_t numero) {
        const std::optional<std::uint32_t> rang = Rang(cle);
        if (!rang) return autres_.try_emplace(cle, numero).second;
        if (*rang >= numeriques_.size()) numeriques_.resize(*rang + *rang / 2 + 1000);
        if (numeriques_[*rang] != 0) return false;
        numeriques_[*rang] = numero;
        return true;
    }
    /// 0 when there is no such record.
    [[nodiscard]] std::uint32_t Chercher(std::string_view cle) const {
        if (const std::optional<std::uint32_t> rang = Rang(cle))
            return *rang < numeriques_.size() ? numeriques_[*rang] : 0;
        const auto ou = autres_.find(cle);
        return ou == autres_.end() ? 0 : ou->second;
    }

private:
    /// Plain numbers of at most 6 digits stand in a table by themselves: most files have no others.
    [[nodiscard]] static std::optional<std::uint32_t> Rang(std::string_view cle) {
        if (cle.empty() || cle.size() > 6 || cle.front() == '0') return std::nullopt;
        std::uint32_t rang = 0;
        for (const char c : cle) {
            if (c < '0' || c > '9') return std::nullopt;
            rang = rang * 10 + static_cast<std::uint32_t>(c - '0');
        }
        return rang;
    }

    std::vector<std::uint32_t> numeriques_;
    std::unordered_map<std::string_view, std::uint32_t> autres_;
};

/// The tables of a whole import.
struct ClesImport {
    TableCles individus;
    TableCles familles;  ///< the answer only says that the record is there
    TableCles sources;   ///< event numbers
    TableCles notes;     ///< document numbers
};

}  // namespace dorvane::interchange
