# The Debian package; scripts/package builds it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvane)
set(CPACK_PACKAGE_VENDOR "The Orvane developers")
set(CPACK_PACKAGE_CONTACT "The Orvane developers <maintainers@orvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design state machines for Zorlan controllers as tables")
set(CPACK_PACKAGE_DESCRIPTION
"Orvane is for control engineers. A machine is one table: each column is a
state, each row an event, and a cell says which state comes next and what is
done on the way. Orvane looks over the design while it is drawn and writes it
as assembly text for Zorlan controllers.
.
This package holds the desktop program, the command line program orvanec, the
help pages and ten example machines.")
set(CPACK_PACKAGE_FILE_NAME "orvane_${PROJECT_VERSION}_package") # DEB-DEFAULT puts version and machine in its place
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "www-browser, bash-completion")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianFiles.cmake)
set(CPACK_ORVANE_SOURCES ${PROJECT_SOURCE_DIR}) # told to that script

include(CPack)
