# Run by cpack when the files of all packages lie in place: each package gets its changelog and its terms of use, and
# what Debian wants compressed is compressed.

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER "${component}" upper)
    set(share "${CPACK_TEMPORARY_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share")
    set(doc "${share}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
    file(MAKE_DIRECTORY "${doc}")
    file(COPY_FILE "${CPACK_LMSDP_SOURCE_DIR}/cmake/packages/copyright" "${doc}/copyright")
    file(COPY_FILE "${CPACK_LMSDP_SOURCE_DIR}/CHANGELOG.md" "${doc}/changelog")
    file(GLOB manuals "${share}/man/man*/*")
    execute_process(COMMAND gzip -9n "${doc}/changelog" ${manuals} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
