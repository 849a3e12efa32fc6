# Compiler settings shared by every target of this project, on one interface target.
add_library(quorbel_options INTERFACE)
target_compile_options(quorbel_options INTERFACE -Wall -Wextra -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(quorbel_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(QUORBEL_WERROR)
    target_compile_options(quorbel_options INTERFACE -Werror)
endif()

# The tests are over a hundred programs of the same libraries; gold links each in half the time.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold QUORBEL_HAS_GOLD)
if(QUORBEL_HAS_GOLD AND CMAKE_BUILD_TYPE STREQUAL "Debug")
    target_link_options(quorbel_options INTERFACE -fuse-ld=gold)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Paths count relative to the source folder, so that several work trees share what they compile.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
    # gcc's precompiled headers are not the same from one build to the next, so nothing compiled with them is ever
    # found again: measured, a second tree took 110 s with them and 2 s without.
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
