# cmake -D build=... -D prefix=... -P install.cmake: installs, with nothing left of an earlier time.
file(REMOVE_RECURSE ${prefix})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${build} --prefix ${prefix}
                COMMAND_ERROR_IS_FATAL ANY)
