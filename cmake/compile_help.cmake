# SPDX-License-Identifier: GPL-3.0-or-later
# Compiles the help: cmake -DSOURCES= -DWORK= -DOUTPUT= -DCHMCMD= -P compile_help.cmake
#
# The contents come from contents.txt, whose lines are names of pages, or headings, set in by two
# blanks a level; titles are the pages' own. The index comes from the pages' keywords, which are
# parted by semicolons.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK})
file(COPY ${SOURCES}/ DESTINATION ${WORK})
file(GLOB_RECURSE files RELATIVE ${WORK} ${WORK}/*.htm ${WORK}/*.css ${WORK}/*.png)
list(SORT files)

# read_page(name): its title in `title`, its keywords in `keywords`.
function(read_page name)
    file(READ ${WORK}/${name} html)
    if(NOT html MATCHES "<title>([^<]+)</title>")
        message(FATAL_ERROR "help/${name} has no title")
    endif()
    set(title ${CMAKE_MATCH_1} PARENT_SCOPE)
    set(keywords "" PARENT_SCOPE)
    if(html MATCHES "<meta name=\"keywords\" content=\"([^\"]*)\">")
        set(keywords ${CMAKE_MATCH_1} PARENT_SCOPE)
    endif()
endfunction()

# add_entry(text title page): a line of contents or index.
function(add_entry variable title page)
    set(entry "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"${title}\">")
    if(page)
        string(APPEND entry "<param name=\"Local\" value=\"${page}\">")
    endif()
    set(${variable} "${${variable}}${entry}</OBJECT>\n" PARENT_SCOPE)
endfunction()

set(frame_begin "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML><BODY>\n")
set(frame_end "</BODY></HTML>\n")

set(contents "")
set(depth 0)
file(STRINGS ${SOURCES}/contents.txt lines)
foreach(line IN LISTS lines)
    string(STRIP "${line}" text)
    string(LENGTH "${line}" line_length)
    string(LENGTH "${text}" text_length)
    math(EXPR level "(${line_length} - ${text_length}) / 2 + 1")
    while(depth LESS level)
        string(APPEND contents "<UL>\n")
        math(EXPR depth "${depth} + 1")
    endwhile()
    while(depth GREATER level)
        string(APPEND contents "</UL>\n")
        math(EXPR depth "${depth} - 1")
    endwhile()
    if(text MATCHES "\\.htm$")
        read_page(${text})
        add_entry(contents "${title}" ${text})
    else()
        add_entry(contents "${text}" "")
    endif()
endforeach()
while(depth GREATER 0)
    string(APPEND contents "</UL>\n")
    math(EXPR depth "${depth} - 1")
endwhile()
file(WRITE ${WORK}/contents.hhc "${frame_begin}${contents}${frame_end}")

set(index "<UL>\n")
foreach(name IN LISTS files)
    if(name MATCHES "\\.htm$")
        read_page(${name})
        foreach(keyword IN LISTS keywords)
            string(STRIP "${keyword}" keyword)
            add_entry(index "${keyword}" ${name})
        endforeach()
    endif()
endforeach()
file(WRITE ${WORK}/index.hhk "${frame_begin}${index}</UL>\n${frame_end}")

list(JOIN files "\n" file_lines)
file(WRITE ${WORK}/Nubivane.hhp "[OPTIONS]
Compatibility=1.1 or later
Compiled file=Nubivane.chm
Contents file=contents.hhc
Default topic=index.htm
Default window=main
Full-text search=Yes
Index file=index.hhk
Language=0x409 English (United States)
Title=Nubivane Help

[WINDOWS]
main=\"Nubivane Help\",\"contents.hhc\",\"index.hhk\",\"index.htm\",\"index.htm\",,,,,0x63520,280,0x384e,[80,60,1080,800],,,,,,,0

[FILES]
${file_lines}
")
execute_process(COMMAND ${CHMCMD} Nubivane.hhp WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
# The compiler writes a file even where something is missing, and says so in one of its notes.
if(NOT result EQUAL 0 OR output MATCHES "[Ee]rror|not found|missing" OR
        NOT EXISTS ${WORK}/Nubivane.chm)
    message(FATAL_ERROR "The help does not compile:\n${output}")
endif()
file(COPY_FILE ${WORK}/Nubivane.chm ${OUTPUT}.new)
file(RENAME ${OUTPUT}.new ${OUTPUT})
