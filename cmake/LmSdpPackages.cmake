# Debian packages, made by cpack in the build directory: runtime libraries, what a compiler needs, the program, and the
# documents. Paths are those below /usr; what Debian asks of a package beyond its files, FinishPackages.cmake adds.

# One package of each component that is there, named as Debian names the parts of a library.
set(CPACK_COMPONENTS_ALL Runtime Development Documentation)
if(TARGET lmsdp)
    list(APPEND CPACK_COMPONENTS_ALL Tools)
endif()
set(runtime "liblmsdpobject${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "liblmsdpobject-dev")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME "liblmsdpobject-doc")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME "lmsdp")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION "libs")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION "doc")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION "comm")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE "all")

# The first line is the synopsis of one package; one for all would be put in front of it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(about [[
LmSdpObject reads an SDP body (RFC 2327, RFC 4566, and a=crypto of
RFC 4568) into a tree of objects, one for each line, lets a program look
at it and change it, and writes it back.
]])
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "SDP bodies as objects: shared libraries\n${about}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "SDP bodies as objects: headers\n${about}
This package has the headers, a CMake package and a pkg-config file.")
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION "SDP bodies as objects: documents and examples\n${about}
This package has the documents and the example programs.")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION [[look into SDP bodies
lmsdp shows what an SDP body (RFC 4566) holds, writes it back in its
usual form, and says line by line what is refused, lost or changed.]])

# What the libraries and the program need is asked of the system that they are built on; what a compiler needs is not
# seen in any file.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_LIST_DIR}/packages/triggers")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION}), liblog4cplus-dev, libace-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "pkg-config")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "liblmsdpobject-doc")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION})")

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGE_CONTACT "LmSdpObject developers <nobody@invalid.invalid>")
set(CPACK_PACKAGE_VENDOR "LmSdpObject")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/packages/FinishPackages.cmake")
set(CPACK_LMSDP_SOURCE_DIR "${PROJECT_SOURCE_DIR}")
set(CPACK_VERBATIM_VARIABLES ON)

include(CPack)
