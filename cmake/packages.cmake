# SPDX-License-Identifier: GPL-3.0-or-later
# What `cpack` makes: a .tar.gz of the portable program folder, and a .deb.
set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PACKAGE_NAME Nubivane)
set(CPACK_PACKAGE_VENDOR "Nubivane developers")
set(CPACK_PACKAGE_CONTACT "Nubivane developers <developers@nubivane.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for weather forecasts drawn on maps")
set(CPACK_PACKAGE_FILE_NAME
    Nubivane-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/package_layout.cmake)

set(CPACK_DEBIAN_PACKAGE_NAME nubivane)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${CPACK_PACKAGE_CONTACT})
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Beside the libraries, which dpkg-shlibdeps finds: the plugins that Qt loads by itself for TIFF and
# SVG, and on Wayland; the fonts by whose widths texts are measured; the way to the user's browser.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qt6-image-formats-plugins, libqt6svg6, qt6-wayland, fonts-liberation2, xdg-utils")
# Certificates for encrypted uploads, and what leads to the desktop's keyring.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, libsecret-1-0")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "rclone, hunspell-dictionary")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A forecast is a map and a sheet for each period, on which moving weather
symbols, labels and drawings lie beside titles and texts. From it come a
web page, which can be sent to a server by FTP, pictures, moving GIFs, AVI
and MP4 videos and prints.
.
The package holds the editor (Nubivane), the same work for scripts and
schedulers (nubivane-cli), base maps of many regions, collections of
symbols and examples.")
include(CPack)
