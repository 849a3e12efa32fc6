# Compiler settings shared by every target of this project, on one interface target.
add_library(quorbel_options INTERFACE)
target_compile_options(quorbel_options INTERFACE -Wall -Wextra -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(quorbel_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(QUORBEL_WERROR)
    target_compile_options(quorbel_options INTERFACE -Werror)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # The sloppiness settings are what ccache asks for with precompiled headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
    target_compile_options(quorbel_options INTERFACE -fpch-preprocess)
endif()
