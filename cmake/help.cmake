# SPDX-License-Identifier: GPL-3.0-or-later
# The help: pages of help/ compiled into the one file that the program and other readers of such
# files open. It is made anew when a page, a picture or the contents change.
if(NOT NUBIVANE_HELP)
    return()
endif()
find_program(NUBIVANE_CHMCMD chmcmd)
if(NOT NUBIVANE_CHMCMD)
    message(FATAL_ERROR "chmcmd, which compiles the help, is missing (Debian: fp-utils). "
        "-DNUBIVANE_HELP=OFF builds without the help.")
endif()

set(NUBIVANE_HELP_FILE ${NUBIVANE_PROGRAM_FOLDER}/Help/Nubivane.chm)
file(GLOB_RECURSE NUBIVANE_HELP_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/help/*)
add_custom_command(
    OUTPUT ${NUBIVANE_HELP_FILE}
    COMMAND ${CMAKE_COMMAND}
        -DSOURCES=${PROJECT_SOURCE_DIR}/help -DWORK=${CMAKE_BINARY_DIR}/help
        -DOUTPUT=${NUBIVANE_HELP_FILE} -DCHMCMD=${NUBIVANE_CHMCMD}
        -P ${PROJECT_SOURCE_DIR}/cmake/compile_help.cmake
    DEPENDS ${NUBIVANE_HELP_SOURCES} ${PROJECT_SOURCE_DIR}/cmake/compile_help.cmake
    COMMENT "Compiling the help")
add_custom_target(help_file ALL DEPENDS ${NUBIVANE_HELP_FILE})
add_dependencies(program_folder help_file)
