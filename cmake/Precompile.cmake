# What most sources include, read by the compiler once for all of them: a build from nothing takes
# half the time. Sources include what they name all the same; the build with the other compiler,
# which goes without, says so when one forgets.
option(DORVANE_PRECOMPILE "Let g++ precompile the headers that most sources include" ON)

set(ENTETES_COEUR
    <algorithm> <array> <charconv> <cstddef> <cstdint> <filesystem> <functional> <map> <memory> <optional>
    <span> <string> <string_view> <system_error> <unordered_map> <unordered_set> <utility> <vector>)
set(ENTETES_FENETRES
    <QAction> <QApplication> <QComboBox> <QDialog> <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit>
    <QListWidget> <QMainWindow> <QMenu> <QMimeData> <QPainter> <QPushButton> <QTableView>
    <QTimer> <QToolButton> <QVBoxLayout>)

# A kind of sources whose headers are compiled once: "coeur", "fenetres", and those of the tests.
function(precompiler_sorte sorte)
    cmake_parse_arguments(P "" "" "ENTETES;DEPEND" ${ARGN})
    if(NOT DORVANE_PRECOMPILE OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        return()
    endif()
    set(vide ${PROJECT_BINARY_DIR}/precompile/${sorte}.cpp)
    if(NOT EXISTS ${vide})
        file(WRITE ${vide} "")
    endif()
    add_library(precompile_${sorte} OBJECT ${vide})
    target_link_libraries(precompile_${sorte} PRIVATE ${P_DEPEND} reglages)
    if(sorte MATCHES "fenetres")
        target_compile_definitions(precompile_${sorte} PRIVATE QT_NO_KEYWORDS)
    endif()
    target_precompile_headers(precompile_${sorte} PRIVATE ${P_ENTETES})
endfunction()

function(precompiler cible sorte)
    if(TARGET precompile_${sorte})
        target_precompile_headers(${cible} REUSE_FROM precompile_${sorte})
    endif()
endfunction()
