# Makes what the program reads (.qm) from what translators write (translations/*.ts).
#
# A build never changes the .ts files: the target "translations" brings them up to date with the texts in the code, and a
# test tells when that was forgotten.
# Those besides English, by the names of QLocale.
set(QUORBEL_LANGUAGES ar de es fr ja zh_CN)

find_program(LRELEASE lrelease PATHS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} NO_DEFAULT_PATH REQUIRED)
find_program(LUPDATE lupdate PATHS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} NO_DEFAULT_PATH REQUIRED)

function(quorbel_release_translation source output)
    get_filename_component(folder ${output} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    add_custom_command(OUTPUT ${output}
        COMMAND ${LRELEASE} -silent -nounfinished ${source} -qm ${output}
        DEPENDS ${source}
        VERBATIM)
endfunction()
