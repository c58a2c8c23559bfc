# Run by cpack between installing and packing: what Debian expects elsewhere or in another form than
# other systems.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)

file(REMOVE ${share}/doc/corvel/README)  # how to copy the files
file(MAKE_DIRECTORY ${share}/zsh/vendor-completions)
file(RENAME ${share}/zsh/site-functions/_corvel ${share}/zsh/vendor-completions/_corvel)
file(REMOVE_RECURSE ${share}/zsh/site-functions)
execute_process(COMMAND gzip -9n ${share}/man/man1/corvel.1 ${share}/doc/corvel/changelog
    COMMAND_ERROR_IS_FATAL ANY)
file(MAKE_DIRECTORY ${share}/lintian/overrides)
file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/lintian-overrides ${share}/lintian/overrides/corvel)
