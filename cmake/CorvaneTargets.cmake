# How every target of the project is made.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTOUIC_SEARCH_PATHS "${PROJECT_SOURCE_DIR}/resources")

add_library(corvane_options INTERFACE)
target_compile_options(corvane_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
    # GCC 12 warns of any "literal" + std::string that it optimises (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(corvane_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
if(CORVANE_SANITIZERS)
    target_compile_options(corvane_options INTERFACE
        -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(corvane_options INTERFACE -fsanitize=address,undefined)
endif()

if(CORVANE_FUZZERS)
    target_compile_options(corvane_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# corvane_library(NAME SOURCES file... LINKS library...)
#
# A folder's library. Its include root is a directory of its own in the build tree that holds one
# link, named after the folder, to the folder: a file can include "store/NSManagedObject.h" only
# if its library links store, directly or through another. LINKS is PUBLIC: what a folder may
# include, those above it may include too.
function(corvane_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    set(include_root "${PROJECT_BINARY_DIR}/include/${name}")
    file(MAKE_DIRECTORY "${include_root}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${include_root}/${name}" SYMBOLIC)

    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${include_root}")
    target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE corvane_options)
endfunction()

# corvane_test(NAME SOURCES file... LINKS library... [MAIN Core|Gui|App])
#
# A test program over one folder. It runs on a QCoreApplication and links no widgets, unless MAIN
# asks for a QApplication (Gui) or the program's own (App), on the offscreen platform.
function(corvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "MAIN" "SOURCES;LINKS")
    if(NOT arg_MAIN)
        set(arg_MAIN Core)
    endif()
    add_executable(${name} ${arg_SOURCES} support/${arg_MAIN}Main.cpp)
    target_include_directories(${name} PRIVATE "${PROJECT_BINARY_DIR}/include/tests")
    target_link_libraries(${name} PRIVATE ${arg_LINKS} GTest::gtest corvane_options)
    # Every source sees it, as the one definition rule asks of what a template prints by.
    target_compile_options(${name} PRIVATE -include tests/support/TextPrinting.h)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 240
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=;TZ=UTC;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
