#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace dorvane::interchange {

/// Numbers given to the records of one kind, by their identifier. Identifiers are compared whole:
/// "A12" and "B12" differ. Their bytes live as long as the table.
class TableCles {
public:
    void Prevoir(std::size_t nombre) { numeros_.reserve(nombre); }

    /// False when the identifier is there already: the first record keeps it.
    bool Noter(std::string_view cle, std::uint32_t numero) {
        return numeros_.try_emplace(cle, numero).second;
    }
    /// 0 when there is no such record.
    [[nodiscard]] std::uint32_t Chercher(std::string_view cle) const {
        const auto ou = numeros_.find(cle);
        return ou == numeros_.end() ? 0 : ou->second;
    }

private:
    std::unordered_map<std::string_view, std::uint32_t> numeros_;
};

/// The tables of a whole import.
struct ClesImport {
    TableCles individus;
    TableCles familles;  ///< the answer only says that the record is there
    TableCles sources;   ///< event numbers
    TableCles notes;     ///< document numbers
};

}  // namespace dorvane::interchange
