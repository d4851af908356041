# Makes the names of the messages from the texts of the catalogue: for donnees/catalogue/fiche.tsv
# the header messages/Fiche.h, and messages/Noms.h, which tells the name of a number.
# Called while building: cmake -DSORTIE=folder -DSOURCES=file.tsv,file.tsv -P Messages.cmake
# A header that would be the same is left alone, so that one new text compiles few sources.
cmake_minimum_required(VERSION 3.25)
string(REPLACE "," ";" SOURCES "${SOURCES}")

set(vus)
set(table)
foreach(source IN LISTS SOURCES)
    file(READ ${source} texte)
    string(REGEX MATCHALL "(^|\n)[0-9]+\t[^\t\n]*" lignes "${texte}")
    set(declarations)
    foreach(ligne IN LISTS lignes)
        string(STRIP "${ligne}" ligne)
        if(NOT ligne MATCHES "^([0-9]+)\t([A-Z][A-Za-z0-9]+)$")
            message(FATAL_ERROR "${source}: no name for a message: ${ligne}")
        endif()
        set(numero ${CMAKE_MATCH_1})
        set(nom ${CMAKE_MATCH_2})
        if(nom IN_LIST vus)
            message(FATAL_ERROR "${source}: the name ${nom} is given twice")
        endif()
        list(APPEND vus ${nom})
        string(APPEND declarations "inline constexpr NoMessage ${nom}{${numero}};\n")
        string(APPEND table "        {${numero}, \"${nom}\"},\n")
    endforeach()
    get_filename_component(base ${source} NAME_WE)
    string(SUBSTRING ${base} 0 1 initiale)
    string(SUBSTRING ${base} 1 -1 reste)
    string(TOUPPER ${initiale} initiale)
    file(CONFIGURE OUTPUT ${SORTIE}/messages/${initiale}${reste}.h @ONLY CONTENT "#pragma once

#include \"values/Numeros.h\"

namespace dorvane::message {

@declarations@
}  // namespace dorvane::message
")
endforeach()

file(CONFIGURE OUTPUT ${SORTIE}/messages/Noms.h @ONLY CONTENT "#pragma once

#include \"values/Numeros.h\"

#include <cstdint>
#include <string_view>
#include <utility>

namespace dorvane::message {

/// The name of a message in the code; empty for a number that no message bears.
[[nodiscard]] constexpr std::string_view Nom(NoMessage no) {
    constexpr std::pair<std::uint32_t, std::string_view> Table[] = {
@table@    };
    for (const auto& [numero, nom] : Table)
        if (numero == no.valeur) return nom;
    return {};
}

}  // namespace dorvane::message
")
