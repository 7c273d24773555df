# The code of the pages: what stands there is compiled, run and compared, so that a page cannot drift from the library.

# lmsdp_page_block(<result> <page> <language>): the first fenced block of that language; empty when there is none.
function(lmsdp_page_block result page language)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${page}")
    file(READ "${page}" text)
    set(block "")
    if(text MATCHES "\n```${language}\n([^`]*)```\n")
        set(block "${CMAKE_MATCH_1}")
    endif()
    set(${result} "${block}" PARENT_SCOPE)
endfunction()

# lmsdp_add_page_example(<name> <page> [<folder>]): the page's first program. Where the page has a block of text, that
# is what the program must print; a block of sdp is its standard input. It runs in `folder`.
function(lmsdp_add_page_example name page)
    lmsdp_page_block(code "${page}" cpp)
    if(code STREQUAL "")
        message(FATAL_ERROR "${page} has no block of C++ code")
    endif()
    set(base "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    file(CONFIGURE OUTPUT "${base}.cpp" CONTENT "${code}" @ONLY)

    lmsdp_page_block(printed "${page}" text)
    lmsdp_page_block(input "${page}" sdp)
    set(expected "${CMAKE_CURRENT_SOURCE_DIR}/expected/${name}.txt")
    if(printed)
        set(expected "${base}.txt")
        file(CONFIGURE OUTPUT "${expected}" CONTENT "${printed}" @ONLY)
    endif()
    file(CONFIGURE OUTPUT "${base}.sdp" CONTENT "${input}" @ONLY)
    lmsdp_add_example(${name} "${base}.cpp" "${expected}" "${base}.sdp" ${ARGN})
endfunction()

# lmsdp_check_page_snippets(<page> <source>): each block of C++ code in the page stands in the source, word for word.
function(lmsdp_check_page_snippets page source)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${page}" "${source}")
    file(READ "${page}" rest)
    file(READ "${source}" code)
    while(rest MATCHES "\n```cpp\n([^`]*)```\n(.*)")
        set(snippet "${CMAKE_MATCH_1}")
        set(rest "\n${CMAKE_MATCH_2}")
        string(FIND "${code}" "${snippet}" place)
        if(place EQUAL -1)
            message(FATAL_ERROR "${page} shows code that is not in ${source}:\n${snippet}")
        endif()
    endwhile()
endfunction()
