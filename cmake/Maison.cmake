# The folders of src/, one library each, named after the folder: src/windows/graphe is the target
# windows_graphe. Each folder exports a view of itself alone (vues/<target>/<folder> points to
# src/<folder>), so that a header of a folder which is not linked is not found: an include of what
# stands above, or of a neighbour that is not named, does not build.

# What sources include and the build makes: the lint needs no more.
add_custom_target(generes)
# The forms of a folder are read whether or not the folders below are built.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

# The target of a folder or the library of another house: "windows/graphe", "Qt6::Svg".
function(maison_cibles resultat)
    set(cibles)
    foreach(nom IN LISTS ARGN)
        if(nom MATCHES "::|^/")
            list(APPEND cibles ${nom})
        else()
            string(REPLACE "/" "_" cible ${nom})
            list(APPEND cibles ${cible})
        endif()
    endforeach()
    set(${resultat} ${cibles} PARENT_SCOPE)
endfunction()

# A source that lies in a folder and is not in its list would be forgotten in silence.
function(maison_verifier_liste)
    file(GLOB presents RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
        ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.ui)
    foreach(present IN LISTS presents)
        if(NOT present IN_LIST ARGN)
            message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR}/CMakeLists.txt does not list ${present}")
        endif()
    endforeach()
endfunction()

# The library of the folder that calls. DEPEND: folders below and libraries that its headers show.
# PRIVE: libraries that its sources alone use. AILLEURS: sources of the folder that other targets build.
function(maison_dossier)
    cmake_parse_arguments(D "QT" "" "SOURCES;DEPEND;PRIVE;AILLEURS" ${ARGN})
    file(RELATIVE_PATH nom ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    maison_cibles(cible ${nom})
    maison_cibles(depend ${D_DEPEND})
    maison_cibles(prive ${D_PRIVE})
    maison_verifier_liste(${D_SOURCES} ${D_AILLEURS})
    set_property(GLOBAL APPEND PROPERTY MAISON_DOSSIERS ${nom})

    get_filename_component(parent ${nom} DIRECTORY)
    set(vue ${PROJECT_BINARY_DIR}/vues/${cible})
    file(MAKE_DIRECTORY ${vue}/${parent})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${vue}/${nom} SYMBOLIC)

    add_library(${cible} STATIC ${D_SOURCES})
    target_include_directories(${cible} PUBLIC ${vue})
    target_link_libraries(${cible} PUBLIC ${depend} PRIVATE reglages ${prive})
    if(D_QT)
        set_target_properties(${cible} PROPERTIES AUTOMOC ON AUTOUIC ON)
        add_dependencies(generes ${cible}_autogen)
        # "slots" and "signals" are words of ours below the windows.
        target_compile_definitions(${cible} PUBLIC QT_NO_KEYWORDS)
        precompiler(${cible} fenetres)
    else()
        precompiler(${cible} coeur)
    endif()
endfunction()

# The names of the messages, made from the texts of the catalogue before anything is compiled.
function(maison_messages)
    file(GLOB textes CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/donnees/catalogue/*.tsv)
    set(vue ${PROJECT_BINARY_DIR}/vues/messages)
    list(JOIN textes "," sources)
    set(entetes ${vue}/messages/Noms.h)
    foreach(texte IN LISTS textes)
        get_filename_component(base ${texte} NAME_WE)
        string(SUBSTRING ${base} 0 1 initiale)
        string(SUBSTRING ${base} 1 -1 reste)
        string(TOUPPER ${initiale} initiale)
        list(APPEND entetes ${vue}/messages/${initiale}${reste}.h)
    endforeach()
    set(faire ${CMAKE_COMMAND} -DSORTIE=${vue} -DSOURCES=${sources} -P ${PROJECT_SOURCE_DIR}/cmake/Messages.cmake)
    add_custom_command(OUTPUT ${vue}/faits COMMAND ${faire} COMMAND ${CMAKE_COMMAND} -E touch ${vue}/faits
        DEPENDS ${textes} ${PROJECT_SOURCE_DIR}/cmake/Messages.cmake BYPRODUCTS ${entetes} VERBATIM)
    add_custom_target(messages_faits DEPENDS ${vue}/faits)
    add_library(messages INTERFACE)
    target_include_directories(messages INTERFACE ${vue})
    add_dependencies(messages messages_faits)
    add_dependencies(generes messages_faits)
    set_property(GLOBAL APPEND PROPERTY MAISON_DOSSIERS messages)
endfunction()

# The tests of the folder that calls, tests/<folder>, in one program and one ctest entry of its name;
# those of windows in one entry for each source.
# VOISIN: the suite "voisin" of them wants files of other programs beside the sources; it is an entry
# of its own, which shows as skipped where they are missing.
function(maison_tests)
    cmake_parse_arguments(T "QT;VOISIN" "DELAI" "SOURCES;DEPEND" ${ARGN})
    file(RELATIVE_PATH nom ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
    maison_cibles(cible ${nom})
    set(cible tests_${cible})
    maison_cibles(depend ${T_DEPEND})
    maison_verifier_liste(${T_SOURCES})
    set(principal essais_principal)
    if(T_QT)
        set(principal essais_principal_fenetres)
    endif()
    add_executable(${cible} ${T_SOURCES})
    target_include_directories(${cible} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${cible} PRIVATE
        DONNEES_TESTS="${PROJECT_SOURCE_DIR}/tests/donnees"
        RACINE_SOURCES="${PROJECT_SOURCE_DIR}")
    target_link_libraries(${cible} PRIVATE ${depend} ${principal} doctest::doctest reglages essais)
    if(T_QT)
        set_target_properties(${cible} PROPERTIES AUTOMOC ON)
        add_dependencies(generes ${cible}_autogen)
        target_link_libraries(${cible} PRIVATE Qt6::Test)
        precompiler(${cible} essais_fenetres)
    else()
        precompiler(${cible} essais)
    endif()
    if(NOT T_DELAI)
        set(T_DELAI 300)
    endif()
    set(essais)
    if(T_QT)
        # Windows take their time: what one source tests is an entry, and they run side by side.
        foreach(source IN LISTS T_SOURCES)
            if(source MATCHES "^([^/]*)_test.cpp$")
                list(APPEND essais ${nom}/${CMAKE_MATCH_1})
                add_test(NAME ${nom}/${CMAKE_MATCH_1} COMMAND ${cible} --source-file=*/${source})
            endif()
        endforeach()
    else()
        list(APPEND essais ${nom})
        add_test(NAME ${nom} COMMAND ${cible} --test-suite-exclude=voisin)
    endif()
    if(T_VOISIN)
        list(APPEND essais ${nom}/voisin)
        add_test(NAME ${nom}/voisin COMMAND ${cible} --test-suite=voisin)
        set_tests_properties(${nom}/voisin PROPERTIES
            SKIP_REGULAR_EXPRESSION "skipped: the files of other programs")
    endif()
    set_tests_properties(${essais} PROPERTIES TIMEOUT ${T_DELAI} ENVIRONMENT "${ENVIRONNEMENT_TESTS}")
endfunction()
