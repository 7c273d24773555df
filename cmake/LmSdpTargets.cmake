# What every target of this project has in common, and the folders that may be empty.

if(LMSDP_INSTRUMENT)
    add_compile_options(${LMSDP_INSTRUMENT})
    add_link_options(${LMSDP_INSTRUMENT})
endif()

if(LMSDP_IPO)
    include(CheckIPOSupported)
    check_ipo_supported(LANGUAGES CXX)
endif()

# The language, the warnings and the visibility of a library or program of ours.
function(lmsdp_target_defaults target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        -fno-semantic-interposition
        $<$<BOOL:${LMSDP_WERROR}>:-Werror>)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        INTERPROCEDURAL_OPTIMIZATION ${LMSDP_IPO})
endfunction()

# Sets `result` to the sources below `folder`, seen from the calling CMakeLists.txt. A new file needs no edit.
function(lmsdp_sources result folder)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
    set(${result} "${found}" PARENT_SCOPE)
endfunction()

# Enters `folder` when one of the switches is on. A folder that a source package left out is passed over.
function(lmsdp_add_folder folder)
    if(NOT EXISTS "${PROJECT_SOURCE_DIR}/${folder}/CMakeLists.txt")
        return()
    endif()
    foreach(switch IN LISTS ARGN)
        if(${switch})
            add_subdirectory("${PROJECT_SOURCE_DIR}/${folder}")
            return()
        endif()
    endforeach()
endfunction()
