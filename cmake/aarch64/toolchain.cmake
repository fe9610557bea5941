# Compiles for AArch64 and runs the result under emulation. `./test --aarch64` has unpacked Qt's libraries of that
# architecture (unpack-root.sh).
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

cmake_path(SET SENDER_AARCH64_ROOT NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../../build/aarch64/root")
set(SENDER_AARCH64_LIBRARIES "${SENDER_AARCH64_ROOT}/usr/lib/aarch64-linux-gnu")
set(SENDER_AARCH64_LIBRARY_PATH "${SENDER_AARCH64_LIBRARIES}:${SENDER_AARCH64_ROOT}/lib/aarch64-linux-gnu")
set(CMAKE_CROSSCOMPILING_EMULATOR
    qemu-aarch64 -L /usr/aarch64-linux-gnu -E "LD_LIBRARY_PATH=${SENDER_AARCH64_LIBRARY_PATH}")
# Where the linker finds what Qt's libraries need in turn.
foreach(KIND EXE SHARED)
    set(CMAKE_${KIND}_LINKER_FLAGS_INIT "-Wl,-rpath-link,${SENDER_AARCH64_LIBRARY_PATH}")
endforeach()

set(Qt5_DIR "${CMAKE_CURRENT_LIST_DIR}" CACHE PATH "The folder of Qt5Config.cmake")
