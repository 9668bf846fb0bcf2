# Plays SCRIPT with HOST on a copy of the sample database BASE, made in the folder WORK, and compares
# the transcript with EXPECTED. The clock stands at 24/11/2026 and the region is Spain, unless the
# script's first line is "# opciones: …" with other options of the host. With DESKTOP set to
# --escritorio it is played on real windows, whose toolkit must have nothing to say.
#
# The program runs in WORK and leaves its documents in the folder out there: the transcript names them
# out/NAME on every machine. The files of the folder imagenes are there too.
#
# Whether pictures were taken depends on the desktop: those lines are left out.
#
# With KORVANTES_UPDATE_SCRIPTS set in the environment, EXPECTED is written instead: read the
# difference before you keep it.
file(REMOVE_RECURSE ${WORK})
file(COPY ${BASE} ${BASE}.vespara ${CMAKE_CURRENT_LIST_DIR}/imagenes DESTINATION ${WORK})
foreach(path IN ITEMS HOST SCRIPT EXPECTED)
  cmake_path(ABSOLUTE_PATH ${path})
endforeach()
get_filename_component(base_name ${BASE} NAME)

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
  message(FATAL_ERROR "The transcript of ${SCRIPT} is not the expected one.\n${errors}")
endif()

# Status 1 tells of [error] lines, and of nothing else.
file(STRINGS ${transcript} error_lines REGEX "^\\[error\\]" ENCODING UTF-8)
if(error_lines)
  set(expected_status 1)
else()
  set(expected_status 0)
endif()
if(NOT status EQUAL expected_status)
  message(FATAL_ERROR "Exit status ${status} in place of ${expected_status}.\n${errors}")
endif()

# One line tells of the [error] lines.
string(REGEX REPLACE "^korvantes-host: el guion ha dado errores: [^\n]*\n$" "" unexpected "${errors}")
if(unexpected)
  message(FATAL_ERROR "Standard error has more to say than it should:\n${unexpected}")
endif()
