# Finds ACE, which comes without a CMake package of its own, and makes the target ACE::ACE.

find_path(ACE_INCLUDE_DIR ace/Object_Manager.h)
find_library(ACE_LIBRARY ACE)
mark_as_advanced(ACE_INCLUDE_DIR ACE_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ACE
    REQUIRED_VARS ACE_LIBRARY ACE_INCLUDE_DIR
    REASON_FAILURE_MESSAGE "On Debian and Ubuntu: apt-get install libace-dev")

if(ACE_FOUND AND NOT TARGET ACE::ACE)
    add_library(ACE::ACE UNKNOWN IMPORTED)
    set_target_properties(ACE::ACE PROPERTIES
        IMPORTED_LOCATION "${ACE_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${ACE_INCLUDE_DIR}")
endif()
