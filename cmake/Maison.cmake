# One library for each folder of src/. Each folder exports a view of itself alone
# (vues/<folder>/<folder> points to src/<folder>), so that a header of a folder which is not linked
# is not found: an upward include does not build.
function(maison_dossier nom)
    cmake_parse_arguments(D "QT" "" "DEPEND;PRIVE" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/src/${nom}/*.cpp ${PROJECT_SOURCE_DIR}/src/${nom}/*.h
        ${PROJECT_SOURCE_DIR}/src/${nom}/*.ui)
    set(vue ${PROJECT_BINARY_DIR}/vues/${nom})
    file(MAKE_DIRECTORY ${vue})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${nom} ${vue}/${nom} SYMBOLIC)
    set(compiles ${sources})
    list(FILTER compiles INCLUDE REGEX "\\.cpp$")
    if(NOT compiles)
        add_library(${nom} INTERFACE)
        target_include_directories(${nom} INTERFACE ${vue})
        target_link_libraries(${nom} INTERFACE ${D_DEPEND})
        return()
    endif()
    add_library(${nom} STATIC ${sources})
    target_include_directories(${nom} PUBLIC ${vue})
    target_link_libraries(${nom} PUBLIC ${D_DEPEND} PRIVATE reglages ${D_PRIVE})
    if(D_QT)
        set_target_properties(${nom} PROPERTIES AUTOMOC ON AUTOUIC ON)
        # "slots" and "signals" are words of ours below the windows.
        target_compile_definitions(${nom} PUBLIC QT_NO_KEYWORDS)
    endif()
endfunction()

# The tests of one folder: tests/<folder>/*_test.cpp in one program, one ctest entry.
function(maison_tests nom)
    cmake_parse_arguments(T "QT" "DELAI" "DEPEND" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${nom}/*_test.cpp
        ${PROJECT_SOURCE_DIR}/tests/${nom}/*.h)
    set(compiles ${sources})
    list(FILTER compiles INCLUDE REGEX "\\.cpp$")
    if(NOT compiles)
        return()
    endif()
    set(principal ${PROJECT_SOURCE_DIR}/tests/principal.cpp)
    if(T_QT)
        set(principal ${PROJECT_SOURCE_DIR}/tests/windows/principal.cpp)
    endif()
    add_executable(tests_${nom} ${principal} ${sources})
    target_include_directories(tests_${nom} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(tests_${nom} PRIVATE
        DONNEES_TESTS="${PROJECT_SOURCE_DIR}/tests/donnees"
        RACINE_SOURCES="${PROJECT_SOURCE_DIR}")
    target_link_libraries(tests_${nom} PRIVATE ${T_DEPEND} doctest::doctest reglages)
    if(T_QT)
        set_target_properties(tests_${nom} PROPERTIES AUTOMOC ON)
    endif()
    add_test(NAME ${nom} COMMAND tests_${nom})
    if(NOT T_DELAI)
        set(T_DELAI 300)
    endif()
    set_tests_properties(${nom} PROPERTIES TIMEOUT ${T_DELAI} ENVIRONMENT "${ENVIRONNEMENT_TESTS}")
endfunction()
