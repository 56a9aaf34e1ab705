# SPDX-License-Identifier: GPL-3.0-or-later
# Read by cpack once for each kind of package.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(component system)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
    set(component portable)
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build};${CPACK_PACKAGE_NAME};${component};/")
