# SPDX-License-Identifier: GPL-3.0-or-later
# The program folder: the programs beside Maps/, Symbols/, Web/, Help/ and Media/, complete after
# every build, so that what is tested is what is shipped.
set(NUBIVANE_PROGRAM_FOLDER ${CMAKE_BINARY_DIR}/Nubivane)

file(GLOB_RECURSE NUBIVANE_CONTENT CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/content/*)
add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/program_folder.stamp
    COMMAND ${CMAKE_COMMAND} -E make_directory
        ${NUBIVANE_PROGRAM_FOLDER}/Maps ${NUBIVANE_PROGRAM_FOLDER}/Symbols
        ${NUBIVANE_PROGRAM_FOLDER}/Web ${NUBIVANE_PROGRAM_FOLDER}/Help
        ${NUBIVANE_PROGRAM_FOLDER}/Media
    COMMAND ${CMAKE_COMMAND} -E copy_directory
        ${PROJECT_SOURCE_DIR}/content ${NUBIVANE_PROGRAM_FOLDER}
    COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/program_folder.stamp
    DEPENDS ${NUBIVANE_CONTENT}
    COMMENT "Filling the program folder")
add_custom_target(program_folder ALL DEPENDS ${CMAKE_BINARY_DIR}/program_folder.stamp)

# Puts a program into the program folder.
function(nubivane_program target)
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${NUBIVANE_PROGRAM_FOLDER})
    add_dependencies(${target} program_folder nubivane-video)
endfunction()
