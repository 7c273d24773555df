# Installs the libraries, their headers, the CMake package and the pkg-config file. Everything in it is found from
# the place where it lies, so that the installed tree can be moved as a whole.

include(CMakePackageConfigHelpers)

set(lmsdp_include_dir "${CMAKE_INSTALL_INCLUDEDIR}/LmSdpObject")
set(lmsdp_cmake_dir "${CMAKE_INSTALL_LIBDIR}/cmake/LmSdpObject")
set(lmsdp_libraries LmSdpObject LmUtil harnwick-srtp harnwick-core)

# Shared and static libraries may be installed side by side, from two builds, so each has its own list of targets.
if(BUILD_SHARED_LIBS)
    set(lmsdp_linkage shared)
else()
    set(lmsdp_linkage static)
endif()

install(TARGETS ${lmsdp_libraries}
    EXPORT LmSdpObject-${lmsdp_linkage}
    RUNTIME COMPONENT Runtime
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Development
    FILE_SET HEADERS DESTINATION "${lmsdp_include_dir}" COMPONENT Development)
install(EXPORT LmSdpObject-${lmsdp_linkage}
    NAMESPACE LmSdpObject::
    DESTINATION "${lmsdp_cmake_dir}"
    COMPONENT Development)

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/LmSdpObjectConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/LmSdpObjectConfig.cmake"
    INSTALL_DESTINATION "${lmsdp_cmake_dir}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/LmSdpObjectConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/LmSdpObjectConfig.cmake"
    "${PROJECT_BINARY_DIR}/LmSdpObjectConfigVersion.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/FindACE.cmake"
    DESTINATION "${lmsdp_cmake_dir}"
    COMPONENT Development)

list(TRANSFORM lmsdp_libraries PREPEND "-l" OUTPUT_VARIABLE LMSDP_PC_LIBS)
list(JOIN LMSDP_PC_LIBS " " LMSDP_PC_LIBS)
file(RELATIVE_PATH LMSDP_PC_PREFIX "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
string(REGEX REPLACE "/$" "" LMSDP_PC_PREFIX "${LMSDP_PC_PREFIX}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/LmSdpObject.pc.in" "${PROJECT_BINARY_DIR}/LmSdpObject.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/LmSdpObject.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT Development)

# The documents, with the examples beside them, so that the links between them hold. A source package may lack some.
set(lmsdp_doc_dir "${CMAKE_INSTALL_DATADIR}/doc/LmSdpObject")
foreach(page IN ITEMS README.md CHANGELOG.md CONTRIBUTING.md)
    install(FILES "${PROJECT_SOURCE_DIR}/${page}" DESTINATION "${lmsdp_doc_dir}" COMPONENT Documentation OPTIONAL)
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" "${PROJECT_SOURCE_DIR}/examples"
    DESTINATION "${lmsdp_doc_dir}"
    COMPONENT Documentation
    OPTIONAL
    FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "*.properties" PATTERN "*.cpp")
