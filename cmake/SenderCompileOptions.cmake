# The options of every target: one interface target, so that no folder can be laxer.
add_library(sender_compile_options INTERFACE)
get_filename_component(SENDER_ROOT "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)

target_compile_options(sender_compile_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # Each product and sum is rounded on its own: results are the same on x86-64 and AArch64.
    -ffp-contract=off
    # Messages and checks name files by their path in the tree.
    "-fmacro-prefix-map=${SENDER_ROOT}/=")

# g++ 12 drops the rounding of double -> float -> double where two such values are stored side by side.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(sender_compile_options INTERFACE -fno-tree-slp-vectorize)
endif()

target_compile_definitions(sender_compile_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DEPRECATED_WARNINGS)

target_include_directories(sender_compile_options INTERFACE "${SENDER_ROOT}")

if(SENDER_SANITIZE)
    target_compile_options(sender_compile_options INTERFACE
        "-fsanitize=${SENDER_SANITIZE}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(sender_compile_options INTERFACE "-fsanitize=${SENDER_SANITIZE}")
endif()

# Everything a fuzz target reaches counts its branches for the fuzzer.
if(SENDER_BUILD_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "SENDER_BUILD_FUZZERS needs clang: configure with -DCMAKE_CXX_COMPILER=clang++.")
    endif()
    target_compile_options(sender_compile_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
