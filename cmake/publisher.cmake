# SPDX-License-Identifier: GPL-3.0-or-later
# The publisher's servers and addresses. A deployment sets them; without them each service tells
# that it cannot connect.
foreach(service REPORT PACK VERSION)
    set(NUBIVANE_${service}_HOST "" CACHE STRING "FTP server of the service ${service}")
    set(NUBIVANE_${service}_USER "" CACHE STRING "User name there")
    set(NUBIVANE_${service}_PASSWORD "" CACHE STRING "Password there")
endforeach()
set(NUBIVANE_DOWNLOAD_HOST "" CACHE STRING "Web server of the installers")
set(NUBIVANE_WEB_ADDRESS "" CACHE STRING "Web address in the About box and for software centres")
set(NUBIVANE_PICTURE_ADDRESS "" CACHE STRING "Web address of docs/editor.png, for software centres")
set(NUBIVANE_SUPPORT_ADDRESS "" CACHE STRING "E-mail address of the support in the About box")
