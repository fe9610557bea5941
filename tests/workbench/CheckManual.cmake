# The manual page names every option that the workbench has, and groff has nothing to say about it.
#
#   cmake -DWORKBENCH=... -DMANUAL=... -P CheckManual.cmake
execute_process(COMMAND "${WORKBENCH}" --help OUTPUT_VARIABLE HELP COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "--[a-z-]+" OPTIONS "${HELP}")
file(READ "${MANUAL}" TEXT)
string(REPLACE "\\-" "-" TEXT "${TEXT}")
foreach(OPTION IN LISTS OPTIONS)
    if(NOT TEXT MATCHES "\\\\fB${OPTION}\\\\fR")
        message(FATAL_ERROR "${MANUAL} does not name ${OPTION}")
    endif()
endforeach()
execute_process(COMMAND groff -man -ww -Tutf8 "${MANUAL}"
    OUTPUT_QUIET ERROR_VARIABLE REMARKS COMMAND_ERROR_IS_FATAL ANY)
if(REMARKS)
    message(FATAL_ERROR "${REMARKS}")
endif()
