# Makes the pages of the headers and fails on a warning.
#
#   cmake -DDOXYGEN=... -DDOXYFILE=... -DOUTPUT=... -P MakePages.cmake
file(MAKE_DIRECTORY "${OUTPUT}")
file(READ "${DOXYFILE}" TEXT)
file(WRITE "${OUTPUT}/Doxyfile" "${TEXT}\nOUTPUT_DIRECTORY = \"${OUTPUT}\"\nWARN_AS_ERROR = FAIL_ON_WARNINGS\n")
execute_process(COMMAND "${DOXYGEN}" "${OUTPUT}/Doxyfile" OUTPUT_QUIET ERROR_VARIABLE WARNINGS RESULT_VARIABLE STATUS)
if(NOT STATUS EQUAL 0)
    message(FATAL_ERROR "${WARNINGS}")
endif()
