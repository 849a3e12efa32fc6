# The Debian package: cpack -G DEB in a release build tree.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorbel)
set(CPACK_PACKAGE_VENDOR "The Quorbel developers")
set(CPACK_PACKAGE_CONTACT "The Quorbel developers <hello@quorbel.app>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "read and edit the words inside photos")
set(CPACK_PACKAGE_DESCRIPTION
"Quorbel edits the descriptive metadata stored inside photo files: titles,
captions, keywords, dates, creators, copyright, ratings, places and positions.
Each field is written to all of its EXIF, IPTC and XMP homes at once.
.
Place search and a map work without a network.")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://quorbel.app/)
# Libraries are found by dpkg-shlibdeps; these are run or loaded, not linked.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "perl, libimage-exiftool-perl (>= 12.57), libqt6sql6-sqlite, libqt6svg6, qt6-image-formats-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, qt6-translations-l10n, fonts-inter, fonts-jetbrains-mono")

# Debian wants the changelog and the manual pages compressed, and a copyright file, under these names.
find_program(GZIP_PROGRAM gzip REQUIRED)
set(doc_dir ${PROJECT_BINARY_DIR}/packaging)
set(packed)
function(quorbel_compress source output)
    add_custom_command(OUTPUT ${output}
        COMMAND sh -c "${GZIP_PROGRAM} -9nc '${source}' > '${output}'"
        DEPENDS ${source}
        VERBATIM)
    set(packed ${packed} ${output} PARENT_SCOPE)
endfunction()
quorbel_compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${doc_dir}/changelog.gz)
quorbel_compress(${PROJECT_SOURCE_DIR}/data/quorbel.1 ${doc_dir}/quorbel.1.gz)
install(FILES ${doc_dir}/quorbel.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
foreach(language IN LISTS QUORBEL_LANGUAGES)
    file(MAKE_DIRECTORY ${doc_dir}/${language})
    quorbel_compress(${PROJECT_SOURCE_DIR}/data/man/${language}/quorbel.1 ${doc_dir}/${language}/quorbel.1.gz)
    install(FILES ${doc_dir}/${language}/quorbel.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/${language}/man1)
endforeach()
file(MAKE_DIRECTORY ${doc_dir})
add_custom_target(package_docs ALL DEPENDS ${packed})
install(FILES ${doc_dir}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quorbel RENAME changelog.gz)
install(FILES ${PROJECT_SOURCE_DIR}/data/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quorbel)
include(CPack)
