# SPDX-License-Identifier: GPL-3.0-or-later
# nubivane_unity(TARGET): with NUBIVANE_UNITY the sources of each folder of a target are compiled as one,
# which takes much less time: a machine without any cache proves a change sooner. The inner names
# of one folder's files therefore differ from each other.
option(NUBIVANE_UNITY "Compile the sources of a folder as one" OFF)
if(NUBIVANE_UNITY)
    # Said of classes of one source whose members are of types that only this source knows.
    target_compile_options(nubivane_options INTERFACE -Wno-subobject-linkage)
endif()

function(nubivane_unity target)
    if(NOT NUBIVANE_UNITY)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    foreach(source ${sources})
        get_filename_component(folder ${source} DIRECTORY)
        string(MAKE_C_IDENTIFIER "folder/${folder}" group)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
