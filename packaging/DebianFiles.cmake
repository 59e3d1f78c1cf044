# Runs over the files of the Debian package before they are packed: adds its changelog, copyright and what lintian need
# not tell, compresses what Debian wants compressed, and takes out of the programs what only their compiler knows.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
file(GLOB pages ${share}/man/man1/*.1)
configure_file(${CPACK_ORVANE_SOURCES}/packaging/debian/changelog ${share}/doc/orvane/changelog COPYONLY)
configure_file(${CPACK_ORVANE_SOURCES}/packaging/debian/copyright ${share}/doc/orvane/copyright COPYONLY)
configure_file(${CPACK_ORVANE_SOURCES}/packaging/debian/lintian-overrides ${share}/lintian/overrides/orvane COPYONLY)
execute_process(COMMAND gzip -9nf ${pages} ${share}/doc/orvane/changelog COMMAND_ERROR_IS_FATAL ANY)
file(GLOB programs ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*)
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs} COMMAND_ERROR_IS_FATAL ANY)

# Whatever the umask of the builder was: what can be run is for all to run, the rest for all to read.
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr COMMAND_ERROR_IS_FATAL ANY)
