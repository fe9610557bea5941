# Installs the build into a folder of its own, moves that elsewhere, builds programs against it with find_package, and
# runs them; then builds one of them with qmake and pkg-config.
#
#   cmake -DBUILD_FOLDER=... -DCONSUMER=... -DEXAMPLES=... -DWORK_FOLDER=... -DCXX=... -DLAUNCHER=... -DQT=5 \
#         -P TryInstall.cmake
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE STATUS OUTPUT_VARIABLE OUTPUT ERROR_VARIABLE OUTPUT)
    if(NOT STATUS EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${OUTPUT}")
    endif()
    string(STRIP "${OUTPUT}" OUTPUT)
    set(OUTPUT "${OUTPUT}" PARENT_SCOPE)
endfunction()

function(require_file FILE)
    if(NOT EXISTS "${FILE}")
        message(FATAL_ERROR "${FILE} is not installed")
    endif()
endfunction()

# Nothing that is installed may depend on where it was installed first.
file(REMOVE_RECURSE "${WORK_FOLDER}")
run("${CMAKE_COMMAND}" --install "${BUILD_FOLDER}" --prefix "${WORK_FOLDER}/first")
set(PREFIX "${WORK_FOLDER}/prefix")
file(RENAME "${WORK_FOLDER}/first" "${PREFIX}")

run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK_FOLDER}/build" -G Ninja
    "-DCMAKE_PREFIX_PATH=${PREFIX}" "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
    "-DEXAMPLES=${EXAMPLES}" "-DSENDER_QT=${QT}")
run("${CMAKE_COMMAND}" --build "${WORK_FOLDER}/build")
set(ENV{QT_QPA_PLATFORM} offscreen)
run("${WORK_FOLDER}/build/consumer")
if(NOT OUTPUT MATCHES "22 0.3127 0.5")
    message(FATAL_ERROR "The program printed: ${OUTPUT}")
endif()

run("${WORK_FOLDER}/build/examples/gamut-coverage")
if(NOT OUTPUT MATCHES "coverage 0.68\n5000 K 0.34574,0.35867  D65 6500 K  outline 156 points  D65 real")
    message(FATAL_ERROR "gamut-coverage printed: ${OUTPUT}")
endif()
run("${WORK_FOLDER}/build/examples/edid-file" 1920 1080 60 "${WORK_FOLDER}/block.bin")
run("${PREFIX}/bin/sender-tool" edid 1920x1080@60 --format bin -o "${WORK_FOLDER}/expected.bin")
run("${CMAKE_COMMAND}" -E compare_files "${WORK_FOLDER}/block.bin" "${WORK_FOLDER}/expected.bin")
run("${WORK_FOLDER}/build/drive-minimal-host")
run("${WORK_FOLDER}/build/drive-canvas-dialog")
if(NOT OUTPUT MATCHES "canvas 2560 x 1440")
    message(FATAL_ERROR "canvas-dialog printed: ${OUTPUT}")
endif()
execute_process(COMMAND "${EXAMPLES}/../docs/make-wall.sh" OUTPUT_FILE "${WORK_FOLDER}/wall.csv" COMMAND_ERROR_IS_FATAL ANY)
run("${WORK_FOLDER}/build/examples/wall-matrices" "${WORK_FOLDER}/wall.csv")

# What is installed runs where it is, and names no place of the build.
run("${PREFIX}/bin/sender-tool" cct 6500)
require_file("${PREFIX}/share/applications/sender-workbench.desktop")
require_file("${PREFIX}/share/icons/hicolor/scalable/apps/sender-workbench.svg")
file(GLOB_RECURSE PC_FILE "${PREFIX}/SenderModuleDialog.pc")
file(GLOB_RECURSE CONFIG_FILES "${PREFIX}/SenderModuleDialogTargets*.cmake")
foreach(FILE ${PC_FILE} ${CONFIG_FILES})
    file(READ "${FILE}" TEXT)
    if(TEXT MATCHES "${BUILD_FOLDER}[^/]*/lib" OR TEXT MATCHES "${WORK_FOLDER}")
        message(FATAL_ERROR "${FILE} names a folder of the build")
    endif()
endforeach()

# Installed headers include only installed headers.
file(GLOB INCLUDE_FOLDER "${PREFIX}/include/SenderModuleDialog-*")
file(GLOB_RECURSE HEADERS "${INCLUDE_FOLDER}/*.h")
foreach(HEADER IN LISTS HEADERS)
    file(STRINGS "${HEADER}" LINES REGEX "^ *# *include \"")
    foreach(LINE IN LISTS LINES)
        string(REGEX REPLACE ".*\"(.*)\".*" "\\1" INCLUDED "${LINE}")
        if(NOT EXISTS "${INCLUDE_FOLDER}/${INCLUDED}")
            message(FATAL_ERROR "${HEADER} includes ${INCLUDED}, which is not installed")
        endif()
    endforeach()
endforeach()

cmake_path(GET PC_FILE PARENT_PATH PC_FOLDER)
set(ENV{PKG_CONFIG_PATH} "${PC_FOLDER}")
run(pkg-config --variable=libdir SenderModuleDialog)
require_file("${OUTPUT}/libSenderModuleDialog.so")
run(pkg-config --variable=includedir SenderModuleDialog)
require_file("${OUTPUT}/SenderModuleDialog/SenderModuleDialogInit.h")

# The second way to build: qmake.
set(QMAKE qmake)
if(QT EQUAL 6)
    set(QMAKE qmake6)
endif()
file(MAKE_DIRECTORY "${WORK_FOLDER}/qmake")
run("${CMAKE_COMMAND}" -E chdir "${WORK_FOLDER}/qmake"
    ${QMAKE} "${EXAMPLES}/minimal-host/minimal-host.pro" "QMAKE_CXX=${LAUNCHER} ${CXX}")
run("${CMAKE_COMMAND}" -E chdir "${WORK_FOLDER}/qmake" make)
require_file("${WORK_FOLDER}/qmake/minimal-host")
