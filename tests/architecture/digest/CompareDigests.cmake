# Builds the digest program with several compilers at several optimisation levels and fails unless all print the same.
# cmake -D SOURCE_DIR=... -D BINARY_DIR=... -D COMPILERS="g++;clang++" -D QT=5 [-D LAUNCHER=ccache]
#     [-D CROSS_TOOLCHAIN=... -D CROSS_EMULATOR=...] -P CompareDigests.cmake
# A compiler that is named for another processor, such as aarch64-linux-gnu-g++, takes the toolchain file, and its
# programs run under the emulator.

set(LEVELS O0 O2 O3)
set(REFERENCE "")
set(FAILED FALSE)

# run(WHAT COMMAND...): output on failure only.
function(run WHAT)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE RESULT OUTPUT_VARIABLE OUTPUT ERROR_VARIABLE OUTPUT)
    if(NOT RESULT EQUAL 0)
        message(FATAL_ERROR "${WHAT} failed:\n${OUTPUT}")
    endif()
endfunction()

foreach(COMPILER IN LISTS COMPILERS)
    find_program(COMPILER_PATH NAMES ${COMPILER} NO_CACHE)
    if(NOT COMPILER_PATH)
        message(FATAL_ERROR "${COMPILER} is not installed: results must be compared between both compilers.")
    endif()
    get_filename_component(COMPILER_NAME "${COMPILER}" NAME)
    set(BUILD "${BINARY_DIR}/${COMPILER_NAME}")
    set(TOOLCHAIN "")
    set(EMULATOR "")
    if(COMPILER_NAME MATCHES "-linux-gnu-")
        set(TOOLCHAIN "-DCMAKE_TOOLCHAIN_FILE=${CROSS_TOOLCHAIN}")
        set(EMULATOR ${CROSS_EMULATOR})
    endif()
    run("Configuring for ${COMPILER}" "${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${BUILD}"
        -G "Ninja Multi-Config"
        "-DCMAKE_CXX_COMPILER=${COMPILER_PATH}"
        ${TOOLCHAIN}
        "-DSENDER_QT=${QT}"
        "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
        "-DCMAKE_CONFIGURATION_TYPES=O0\;O2\;O3"
        -DCMAKE_CXX_FLAGS_O0=-O0 -DCMAKE_CXX_FLAGS_O2=-O2 -DCMAKE_CXX_FLAGS_O3=-O3)
    foreach(LEVEL IN LISTS LEVELS)
        run("Building with ${COMPILER} -${LEVEL}"
            "${CMAKE_COMMAND}" --build "${BUILD}" --config ${LEVEL} --parallel --target sender_digest)
        execute_process(COMMAND ${EMULATOR} "${BUILD}/${LEVEL}/sender_digest"
            OUTPUT_VARIABLE DIGESTS RESULT_VARIABLE RESULT)
        if(NOT RESULT EQUAL 0)
            message(FATAL_ERROR "The digest program built with ${COMPILER} -${LEVEL} ended with ${RESULT}.")
        endif()
        if(REFERENCE STREQUAL "")
            set(REFERENCE "${DIGESTS}")
            set(REFERENCE_NAME "${COMPILER} -${LEVEL}")
            message("${REFERENCE_NAME}:\n${REFERENCE}")
        elseif(DIGESTS STREQUAL REFERENCE)
            message("${COMPILER} -${LEVEL}: the same")
        else()
            message("${COMPILER} -${LEVEL} differs from ${REFERENCE_NAME}:\n${DIGESTS}")
            set(FAILED TRUE)
        endif()
    endforeach()
    unset(COMPILER_PATH)
endforeach()

if(FAILED)
    message(FATAL_ERROR "Results depend on the compiler or its optimisation.")
endif()
