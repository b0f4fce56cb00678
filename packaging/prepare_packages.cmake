# Run by cpack when the files are in place and nothing is packed yet.

# Without these cpack would make packages that depend on nothing, and say so only in passing.
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps REQUIRED)
find_program(FILE file REQUIRED)

set(packed ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*)
file(GLOB_RECURSE to_compress ${packed}/*.1 ${packed}/*.5 ${packed}/*.7 ${packed}/changelog)
execute_process(COMMAND gzip --best --no-name ${to_compress} COMMAND_ERROR_IS_FATAL ANY)
