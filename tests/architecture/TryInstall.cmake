# Installs the build into a folder of its own, builds a program against it with find_package, and runs it; then asks
# pkg-config for the same library.
#
#   cmake -DBUILD_FOLDER=... -DCONSUMER=... -DWORK_FOLDER=... -DCXX=... -P TryInstall.cmake
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE STATUS OUTPUT_VARIABLE OUTPUT ERROR_VARIABLE OUTPUT)
    if(NOT STATUS EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${OUTPUT}")
    endif()
    set(OUTPUT "${OUTPUT}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_FOLDER}")
set(PREFIX "${WORK_FOLDER}/prefix")
run("${CMAKE_COMMAND}" --install "${BUILD_FOLDER}" --prefix "${PREFIX}")
run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK_FOLDER}/build" -G Ninja
    "-DCMAKE_PREFIX_PATH=${PREFIX}" "-DCMAKE_CXX_COMPILER=${CXX}")
run("${CMAKE_COMMAND}" --build "${WORK_FOLDER}/build")
set(ENV{QT_QPA_PLATFORM} offscreen)
run("${WORK_FOLDER}/build/consumer")
if(NOT OUTPUT MATCHES "22 0.3127 0.5")
    message(FATAL_ERROR "The program printed: ${OUTPUT}")
endif()

# What is installed runs where it is, and names no place of the build.
run("${PREFIX}/bin/sender-tool" cct 6500)
foreach(FILE sender-workbench.desktop)
    if(NOT EXISTS "${PREFIX}/share/applications/${FILE}")
        message(FATAL_ERROR "${FILE} is not installed")
    endif()
endforeach()
file(GLOB_RECURSE PC_FILES "${PREFIX}/SenderModuleDialog.pc")
file(GLOB_RECURSE CONFIG_FILES "${PREFIX}/SenderModuleDialogTargets*.cmake")
foreach(FILE ${PC_FILES} ${CONFIG_FILES})
    file(READ "${FILE}" TEXT)
    if(TEXT MATCHES "${BUILD_FOLDER}[^/]*/lib")
        message(FATAL_ERROR "${FILE} names the build folder")
    endif()
endforeach()
