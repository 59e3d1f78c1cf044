# Runs over the files of the Debian package before they are packed: adds its changelog and copyright and compresses
# what Debian wants compressed.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
file(GLOB pages ${share}/man/man1/*.1)
configure_file(${CPACK_ORVANE_SOURCES}/packaging/debian/changelog ${share}/doc/orvane/changelog COPYONLY)
configure_file(${CPACK_ORVANE_SOURCES}/packaging/debian/copyright ${share}/doc/orvane/copyright COPYONLY)
execute_process(COMMAND gzip -9nf ${pages} ${share}/doc/orvane/changelog COMMAND_ERROR_IS_FATAL ANY)

# Whatever the umask of the builder was: what can be run is for all to run, the rest for all to read.
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr COMMAND_ERROR_IS_FATAL ANY)
