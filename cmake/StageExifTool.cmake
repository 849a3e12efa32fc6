# Puts ExifTool where the program looks for it first: share/quorbel/exiftool/exiftool.
#
# It is a link to the system's own tool, not a copy: the script and its library
# then always come from one package and get that package's security updates.
find_program(EXIFTOOL_SCRIPT exiftool)
if(NOT EXIFTOOL_SCRIPT)
    message(FATAL_ERROR "ExifTool not found. Run scripts/setup, or install libimage-exiftool-perl.")
endif()
file(MAKE_DIRECTORY ${QUORBEL_SHARE_DIR}/exiftool)
file(CREATE_LINK ${EXIFTOOL_SCRIPT} ${QUORBEL_SHARE_DIR}/exiftool/exiftool SYMBOLIC)
install(FILES ${QUORBEL_SHARE_DIR}/exiftool/exiftool
    DESTINATION ${CMAKE_INSTALL_DATADIR}/quorbel/exiftool)
