# Fails when a source passes 400 lines: it has then more than one subject. Functions are held by the
# lint (60 lines, .clang-tidy). What is longer on purpose is named here, with its limit and why.
# RACINE: the folder of the project.
cmake_minimum_required(VERSION 3.25)
set(LIMITE 400)
set(ADMISES
    src/interchange/gedcom/FicheGedcom.cpp=420   # one branch for each tag of a sheet
    src/interchange/lgr/PoserLgr.cpp=420         # the records of one format, in its order
    src/interchange/releves/ActesReleve.cpp=420  # one function for each kind of survey
    src/values/NoteRiche.cpp=450                 # reader and writer of one format
)

file(GLOB_RECURSE sources RELATIVE ${RACINE} ${RACINE}/src/*.cpp ${RACINE}/src/*.h
    ${RACINE}/tests/*.cpp ${RACINE}/tests/*.h ${RACINE}/bench/*.cpp ${RACINE}/bench/*.h)
foreach(source IN LISTS sources)
    file(READ ${RACINE}/${source} texte)
    string(REGEX REPLACE "[^\n]" "" fins "${texte}")
    string(LENGTH "${fins}" lignes)
    set(limite ${LIMITE})
    # A file of tests may hold more cases than its subject has functions.
    if(source MATCHES "^tests/")
        set(limite 550)
    endif()
    foreach(admise IN LISTS ADMISES)
        if(admise MATCHES "^${source}=([0-9]+)$")
            set(limite ${CMAKE_MATCH_1})
        endif()
    endforeach()
    if(lignes GREATER limite)
        message(SEND_ERROR "${source}: ${lignes} lines, at most ${limite}")
    endif()
endforeach()
