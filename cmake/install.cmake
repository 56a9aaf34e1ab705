# SPDX-License-Identifier: GPL-3.0-or-later
# Two ways to install. `cmake --install` makes a portable program folder: the programs beside their
# content, in any folder. The component "system" spreads the same over bin/ and share/ of a prefix,
# as packages of a distribution do; each user then gets a program folder of his own at the first
# start (see ProgramFolder::ofThisProgram).
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
set(NUBIVANE_CONTENT_FOLDERS Maps Symbols Media)
set(NUBIVANE_EXAMPLES
    examples/europe.nvpf examples/europe.nvpx examples/italy.nvpf examples/italy.nvpx
    examples/mediterranean.nvpf examples/mediterranean.nvpx)

# The program folder of the build may hold pages and symbols of whoever tried the programs there;
# only its help, which the build makes, is taken from it.
install(TARGETS Nubivane nubivane-cli nubivane-video
    RUNTIME DESTINATION . COMPONENT portable LIBRARY DESTINATION . COMPONENT portable)
install(DIRECTORY DESTINATION Web COMPONENT portable)
install(DIRECTORY ${NUBIVANE_PROGRAM_FOLDER}/Help DESTINATION . COMPONENT portable
    PATTERN .gitkeep EXCLUDE)
foreach(folder ${NUBIVANE_CONTENT_FOLDERS})
    install(DIRECTORY content/${folder} DESTINATION . COMPONENT portable)
endforeach()
install(FILES ${NUBIVANE_EXAMPLES} DESTINATION Examples COMPONENT portable)
install(FILES packaging/portable/README.txt CHANGELOG.md DESTINATION . COMPONENT portable)

# Not part of a plain `cmake --install`.
set(system COMPONENT system EXCLUDE_FROM_ALL)

install(TARGETS Nubivane nubivane-cli RUNTIME DESTINATION bin ${system})
install(TARGETS nubivane-video LIBRARY DESTINATION lib/nubivane/modules ${system})
# Who types the name of a program seldom holds the shift key.
file(CREATE_LINK Nubivane ${CMAKE_BINARY_DIR}/packaging/nubivane SYMBOLIC)
install(FILES ${CMAKE_BINARY_DIR}/packaging/nubivane DESTINATION bin ${system})
install(DIRECTORY ${NUBIVANE_PROGRAM_FOLDER}/Help DESTINATION share/nubivane ${system}
    PATTERN .gitkeep EXCLUDE)
foreach(folder ${NUBIVANE_CONTENT_FOLDERS})
    install(DIRECTORY content/${folder} DESTINATION share/nubivane ${system})
endforeach()
install(FILES ${NUBIVANE_EXAMPLES} DESTINATION share/doc/nubivane/examples ${system})

install(FILES packaging/linux/nubivane.desktop DESTINATION share/applications ${system})
install(FILES packaging/linux/nubivane-mime.xml
    DESTINATION share/mime/packages RENAME nubivane.xml ${system})
# Homepage and picture are the publisher's; software centres take no local ones.
set(NUBIVANE_APPSTREAM_LINKS "")
if(NUBIVANE_WEB_ADDRESS MATCHES "^https?://")
    string(APPEND NUBIVANE_APPSTREAM_LINKS "  <url type=\"homepage\">${NUBIVANE_WEB_ADDRESS}</url>\n")
endif()
if(NUBIVANE_PICTURE_ADDRESS MATCHES "^https?://")
    string(APPEND NUBIVANE_APPSTREAM_LINKS "  <screenshots>\n    <screenshot type=\"default\">\n"
        "      <caption>A forecast for one day</caption>\n"
        "      <image>${NUBIVANE_PICTURE_ADDRESS}</image>\n    </screenshot>\n  </screenshots>\n")
endif()
configure_file(packaging/linux/invalid.nubivane.nubivane.metainfo.xml.in
    ${CMAKE_BINARY_DIR}/packaging/invalid.nubivane.nubivane.metainfo.xml @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/packaging/invalid.nubivane.nubivane.metainfo.xml
    DESTINATION share/metainfo ${system})
install(FILES packaging/linux/nubivane-cli.bash
    DESTINATION share/bash-completion/completions RENAME nubivane-cli ${system})
install(FILES packaging/linux/nubivane-cli.zsh
    DESTINATION share/zsh/vendor-completions RENAME _nubivane-cli ${system})
install(FILES packaging/linux/nubivane-cli.fish
    DESTINATION share/fish/vendor_completions.d ${system})
foreach(size 16 22 24 32 48 64 128 256 512)
    install(FILES packaging/icons/nubivane-${size}.png
        DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME nubivane.png ${system})
endforeach()
install(FILES src/windows/icons/nubivane.svg DESTINATION share/icons/hicolor/scalable/apps ${system})
install(FILES packaging/debian/copyright DESTINATION share/doc/nubivane ${system})

# nubivane_compressed(FILE NAME FOLDER): installs a text as NAME.gz, without a time in it.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(nubivane_compressed file name folder)
    set(output ${CMAKE_BINARY_DIR}/packaging/${name}.gz)
    add_custom_command(OUTPUT ${output}
        COMMAND ${GZIP_PROGRAM} -9nc ${file} > ${output}
        DEPENDS ${file} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY NUBIVANE_COMPRESSED ${output})
    install(FILES ${output} DESTINATION ${folder} ${system})
endfunction()

foreach(page Nubivane.1 nubivane-cli.1)
    configure_file(packaging/linux/${page}.in ${CMAKE_BINARY_DIR}/packaging/${page} @ONLY)
    nubivane_compressed(${CMAKE_BINARY_DIR}/packaging/${page} ${page} share/man/man1)
endforeach()
file(CREATE_LINK Nubivane.1.gz ${CMAKE_BINARY_DIR}/packaging/nubivane.1.gz SYMBOLIC)
install(FILES ${CMAKE_BINARY_DIR}/packaging/nubivane.1.gz DESTINATION share/man/man1 ${system})
nubivane_compressed(${PROJECT_SOURCE_DIR}/packaging/debian/changelog changelog share/doc/nubivane)

get_property(compressed GLOBAL PROPERTY NUBIVANE_COMPRESSED)
add_custom_target(packaging_files ALL DEPENDS ${compressed})
