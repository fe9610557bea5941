# The kinds of target that the folders define. A folder names only its sources and its links.

# What ./run --bench and ./test --sanitize build.
add_custom_target(sender_benchmarks)
add_custom_target(sender_thread_tests)

# sender_object_library(NAME SOURCES ... LINK ... [PUBLIC_HEADERS ...]): one folder of the shared library. The public
# headers are those that a host includes, directly or through another one; the rest is not installed.
function(sender_object_library NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PUBLIC_HEADERS" ${ARGN})
    add_library(${NAME} OBJECT ${ARG_SOURCES})
    target_compile_definitions(${NAME} PRIVATE SENDERMODULEDIALOG_LIBRARY)
    target_link_libraries(${NAME} PUBLIC sender_compile_options ${ARG_LINK})
    list(TRANSFORM ARG_PUBLIC_HEADERS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    set_property(GLOBAL APPEND PROPERTY SENDER_PUBLIC_HEADERS ${ARG_PUBLIC_HEADERS})
endfunction()

# sender_public_headers(TARGET HEADERS...): what is installed with a target. Headers keep their paths below the root:
# #include "SenderModuleDialog/geometry/Line.h". More folders than one may add to a target.
function(sender_public_headers TARGET)
    set(HEADERS "")
    foreach(HEADER IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH HEADER)
        list(APPEND HEADERS "${HEADER}")
    endforeach()
    target_sources(${TARGET} PUBLIC
        FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${HEADERS})
    set_target_properties(${TARGET} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
    set_property(GLOBAL APPEND PROPERTY SENDER_INSTALLED_HEADERS ${HEADERS})
    set_property(GLOBAL APPEND PROPERTY SENDER_VERIFIED_TARGETS ${TARGET})
endfunction()

# sender_host_library(NAME SOURCES ... LINK ... PUBLIC_HEADERS ...): one of the shared libraries that a host brings.
function(sender_host_library NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PUBLIC_HEADERS" ${ARGN})
    string(TOUPPER ${NAME} UPPER_NAME)
    add_library(${NAME} SHARED ${ARG_SOURCES})
    target_compile_definitions(${NAME} PRIVATE ${UPPER_NAME}_LIBRARY)
    target_link_libraries(${NAME} PRIVATE sender_compile_options PUBLIC ${ARG_LINK})
    set_target_properties(${NAME} PROPERTIES INSTALL_RPATH "$ORIGIN")
    sender_public_headers(${NAME} ${ARG_PUBLIC_HEADERS})
endfunction()

# sender_add_test(NAME SOURCES ... LINK ... [DEFINITIONS ...] [LABELS ...] [ARGS ...] [TIMEOUT seconds]): one Qt Test
# class. Tests need no screen and may run side by side.
function(sender_add_test NAME)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;DEFINITIONS;LABELS;ARGS;ENVIRONMENT" ${ARGN})
    # A project that takes a part of the tree names the tests that this part can run.
    if(DEFINED SENDER_ONLY_TESTS AND NOT NAME IN_LIST SENDER_ONLY_TESTS)
        return()
    endif()
    add_executable(${NAME} ${ARG_SOURCES})
    target_link_libraries(${NAME} PRIVATE sender_compile_options ${ARG_LINK} Qt${SENDER_QT}::Test)
    target_compile_definitions(${NAME} PRIVATE ${ARG_DEFINITIONS})
    set_target_properties(${NAME} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
    add_test(NAME ${NAME} COMMAND ${NAME} ${ARG_ARGS})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    set_tests_properties(${NAME} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        LABELS "${ARG_LABELS}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${SENDER_SANITIZER_ENVIRONMENT};${ARG_ENVIRONMENT}")
    # Tests that run threads of their own are what the thread sanitizer is for.
    if("threads" IN_LIST ARG_LABELS)
        add_dependencies(sender_thread_tests ${NAME})
    endif()
endfunction()

# sender_add_scaled_tests(NAME): runs a test that looks at windows on screens of 150 and 200 per cent too.
function(sender_add_scaled_tests NAME)
    foreach(SCALE 1.5 2)
        add_test(NAME ${NAME}_at_${SCALE} COMMAND ${NAME})
        get_test_property(${NAME} ENVIRONMENT ENVIRONMENT)
        set_tests_properties(${NAME}_at_${SCALE} PROPERTIES
            TIMEOUT 300 ENVIRONMENT "${ENVIRONMENT};QT_SCALE_FACTOR=${SCALE}")
    endforeach()
endfunction()

# sender_add_benchmark(NAME SOURCES ... LINK ...): build/<preset>/bench/NAME, run by ./run --bench NAME.
function(sender_add_benchmark NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    set(TARGET bench_${NAME})
    add_executable(${TARGET} ${ARG_SOURCES})
    target_link_libraries(${TARGET} PRIVATE sender_compile_options ${ARG_LINK} benchmark::benchmark)
    add_dependencies(sender_benchmarks ${TARGET})
    set_property(TARGET sender_benchmarks APPEND PROPERTY SENDER_NAMES ${NAME})
    set_target_properties(${TARGET} PROPERTIES
        OUTPUT_NAME ${NAME} RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bench")
endfunction()
