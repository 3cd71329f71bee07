# One function per kind of target; a folder's CMakeLists.txt then only lists sources and dependencies.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)

# Programs without widgets share libraries with those that have some, and are not to load what they don't use.
add_link_options(LINKER:--as-needed)
add_compile_options(-Wall -Wextra -Wpedantic $<$<BOOL:${QAZ_WERROR}>:-Werror>)
if(QAZ_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(QAZ_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH)

if(QAZ_PCH)
    # Parsing Qt's headers is most of the compile time; one precompiled header serves every target. It holds only
    # what many sources use: each compilation pays for its size. ccache would have to read it whole each time, which
    # takes longer than what is left to compile.
    file(WRITE ${PROJECT_BINARY_DIR}/pch.cpp.in "// Carries the precompiled header.\n")
    configure_file(${PROJECT_BINARY_DIR}/pch.cpp.in ${PROJECT_BINARY_DIR}/pch.cpp COPYONLY)
    add_library(qaz-pch STATIC ${PROJECT_BINARY_DIR}/pch.cpp)
    set_target_properties(qaz-pch PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_link_libraries(qaz-pch PRIVATE Qt5::Widgets)
    target_precompile_headers(qaz-pch PRIVATE
        <QApplication> <QCheckBox> <QColor> <QComboBox> <QDialog> <QDir> <QFile> <QFileInfo> <QGridLayout> <QHash>
        <QIcon> <QImage> <QLabel> <QListWidget> <QMap> <QMessageBox> <QPainter> <QPushButton> <QRegularExpression>
        <QSettings> <QSpinBox> <QStringList> <QTimer> <QVBoxLayout> <QVariant> <QVector>
        <memory> <optional> <vector>)
else()
    find_program(CCACHE ccache)
    if(CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
    endif()
endif()

function(qaz_configure_target name)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    if(QAZ_PCH)
        target_precompile_headers(${name} REUSE_FROM qaz-pch)
    endif()
endfunction()

# qaz_add_library(<name> ALIAS Qaz::Name SOURCES ... DEPENDS ...)
# Static unless BUILD_SHARED_LIBS is on, from the same objects: then a changed source costs one short link.
function(qaz_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "ALIAS" "SOURCES;DEPENDS")
    add_library(${name} ${arg_SOURCES})
    add_library(${arg_ALIAS} ALIAS ${name})
    target_link_libraries(${name} PUBLIC Qt5::Widgets ${arg_DEPENDS})
    set_target_properties(${name} PROPERTIES DEFINE_SYMBOL "")
    qaz_configure_target(${name})
endfunction()

# qaz_add_program(<name> SOURCES ... DEPENDS ...)
function(qaz_add_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE Qt5::Widgets ${arg_DEPENDS})
    qaz_configure_target(${name})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endfunction()

# qaz_add_test(<name> SOURCES ... DEPENDS ... [EXTRA_ENVIRONMENT VAR=value ...])
# A Qt Test program that runs under an X server of its own.
function(qaz_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS;EXTRA_ENVIRONMENT")
    if(NOT arg_SOURCES)
        set(arg_SOURCES ${name}.cpp)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE Qt5::Widgets Qt5::Test Qaz::TestSupport ${arg_DEPENDS})
    qaz_configure_target(${name})
    target_compile_definitions(${name} PRIVATE
        QAZ_SOURCE_DIR="${PROJECT_SOURCE_DIR}" QAZ_BINARY_DIR="${PROJECT_BINARY_DIR}")
    add_test(NAME ${name}
        COMMAND ${PROJECT_SOURCE_DIR}/tests/support/with-xvfb $<TARGET_FILE:${name}>)
    # A picture that is too large is no fault: the allocator says no, as it does without ASan.
    # No test draws with OpenGL, and the software driver loses memory when it is unloaded.
    # Memory that nobody initialised is never by chance what was there before.
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
        "QT_XCB_GL_INTEGRATION=none;QAZ_DATA_DIR=${PROJECT_BINARY_DIR}/share/qaz;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp;ASAN_OPTIONS=allocator_may_return_null=1;MALLOC_PERTURB_=165;${arg_EXTRA_ENVIRONMENT}")
endfunction()

# qaz_add_benchmark(<name> SOURCES ... DEPENDS ...)
function(qaz_add_benchmark name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS")
    qaz_add_program(${name} SOURCES ${arg_SOURCES} DEPENDS ${arg_DEPENDS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bench)
    target_compile_definitions(${name} PRIVATE
        QAZ_SOURCE_DIR="${PROJECT_SOURCE_DIR}" QAZ_BINARY_DIR="${PROJECT_BINARY_DIR}")
endfunction()
