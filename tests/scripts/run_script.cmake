# Plays SCRIPT with HOST on a copy of the sample database BASE, made in the folder WORK, and compares
# the transcript with EXPECTED. If both are the same file, the script is what the transcript has after
# "> ". The clock shows 24/11/2026 and the region is Spain, unless the script's first line is
# "# opciones: …" with other options of the host. With DESKTOP set to --escritorio it is played on
# real windows, and the toolkit must not print anything.
#
# The program runs in WORK and writes its documents to the folder out in it, so that the transcript
# names them out/NAME on every machine. The folder imagenes is copied there too.
#
# Whether screenshots are taken depends on the desktop: those lines are left out.
#
# With KORVANTES_UPDATE_SCRIPTS set in the environment, EXPECTED is overwritten instead: read the
# difference before you keep it. A new transcript starts as its "> " lines alone.
file(REMOVE_RECURSE ${WORK})
file(COPY ${BASE} ${BASE}.vespara ${CMAKE_CURRENT_LIST_DIR}/imagenes DESTINATION ${WORK})
foreach(path IN ITEMS HOST SCRIPT EXPECTED)
  cmake_path(ABSOLUTE_PATH ${path})
endforeach()
get_filename_component(base_name ${BASE} NAME)
if(SCRIPT STREQUAL EXPECTED)
  set(SCRIPT ${WORK}/guion)
  execute_process(COMMAND sed -n "s/^> //p" ${EXPECTED} OUTPUT_FILE ${SCRIPT}
                          COMMAND_ERROR_IS_FATAL ANY)
endif()

set(options --regional es-ES --hoy 24/11/2026 --salida out)
file(STRINGS ${SCRIPT} first_line LIMIT_COUNT 1 ENCODING UTF-8)
if(first_line MATCHES "^# opciones: (.*)$")
  separate_arguments(more UNIX_COMMAND "${CMAKE_MATCH_1}")
  list(APPEND options ${more})
endif()

set(transcript ${WORK}/transcript)
execute_process(
  COMMAND ${HOST} --base sqlite:${WORK}/${base_name} ${options} ${DESKTOP} guion ${SCRIPT}
  COMMAND grep -v "^.captura."
  WORKING_DIRECTORY ${WORK}
  OUTPUT_FILE ${transcript}
  ERROR_VARIABLE errors
  RESULTS_VARIABLE statuses)
list(GET statuses 0 status)

if(DEFINED ENV{KORVANTES_UPDATE_SCRIPTS})
  configure_file(${transcript} ${EXPECTED} COPYONLY)
endif()

execute_process(COMMAND diff -u ${EXPECTED} ${transcript} RESULT_VARIABLE different)
if(different)
  message(FATAL_ERROR "The transcript is not ${EXPECTED}.\n${errors}")
endif()

# The status is 1 if there are [error] lines, and 0 otherwise.
file(STRINGS ${transcript} error_lines REGEX "^\\[error\\]" ENCODING UTF-8)
if(error_lines)
  set(expected_status 1)
else()
  set(expected_status 0)
endif()
if(NOT status EQUAL expected_status)
  message(FATAL_ERROR "Exit status ${status} in place of ${expected_status}.\n${errors}")
endif()

# One line reports the [error] lines.
string(REGEX REPLACE "^korvantes-host: el guion ha dado errores: [^\n]*\n$" "" unexpected "${errors}")
if(unexpected)
  message(FATAL_ERROR "Standard error has more to say than it should:\n${unexpected}")
endif()
