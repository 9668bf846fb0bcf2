# Makes the sample database BASE anew with HOST.
get_filename_component(folder ${BASE} DIRECTORY)
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder})
execute_process(COMMAND ${HOST} --base sqlite:${BASE} demo COMMAND_ERROR_IS_FATAL ANY)
