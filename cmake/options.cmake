# SPDX-License-Identifier: GPL-3.0-or-later
# The one place for the language standard, warnings, defines, sanitizers and the linker.
# Targets link nubivane_options; nothing sets flags elsewhere.
add_library(nubivane_options INTERFACE)
target_compile_features(nubivane_options INTERFACE cxx_std_20)
target_compile_options(nubivane_options INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor)
target_compile_definitions(nubivane_options INTERFACE
    QT_NO_KEYWORDS              # "slots" and "signals" are ordinary words here
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_CAST_TO_ASCII         # text becomes bytes only where an encoding is named
)
if(NUBIVANE_WERROR)
    target_compile_options(nubivane_options INTERFACE -Werror)
endif()

# What ships is held to more than its tests, whose texts and numbers are written down as they come.
add_library(nubivane_strict INTERFACE)
target_compile_options(nubivane_strict INTERFACE -Wconversion -Wold-style-cast -Wpedantic)
target_compile_definitions(nubivane_strict INTERFACE
    QT_NO_CAST_FROM_ASCII       # a literal says whether it is text (u""_s) or Latin-1 (""_L1)
)

# What ships reads files and servers that nobody vouches for. _FORTIFY_SOURCE needs an optimizer, and
# the sanitizers look at the same places better.
set(hardened $<AND:$<NOT:$<CONFIG:Debug>>,$<NOT:$<BOOL:${NUBIVANE_SANITIZE}>>>)
target_compile_options(nubivane_options INTERFACE
    $<${hardened}:-fstack-protector-strong;-fcf-protection;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
target_link_options(nubivane_options INTERFACE
    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie> -Wl,-z,relro,-z,now)

# A program loads the libraries that it calls, not all that the engine could call: most tests start in
# half the time without those of the video encoder.
target_link_options(nubivane_options INTERFACE -Wl,--as-needed)

# Tests go without the checks of undefined behaviour: they look at what ships, which has them, and
# are a third quicker to build.
define_property(TARGET PROPERTY NUBIVANE_TEST INITIALIZE_FROM_VARIABLE NUBIVANE_TEST)
if(NUBIVANE_SANITIZE)
    set(undefined $<$<NOT:$<BOOL:$<TARGET_PROPERTY:NUBIVANE_TEST>>>:,undefined>)
    target_compile_options(nubivane_options INTERFACE
        -fsanitize=address${undefined} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(nubivane_options INTERFACE -fsanitize=address,undefined)
endif()

# A faster linker where the machine has one.
find_program(NUBIVANE_MOLD mold)
if(NUBIVANE_MOLD AND NOT NUBIVANE_FUZZ)
    target_link_options(nubivane_options INTERFACE -fuse-ld=mold)
endif()

find_program(NUBIVANE_CCACHE ccache)
if(NUBIVANE_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${NUBIVANE_CCACHE})
endif()
