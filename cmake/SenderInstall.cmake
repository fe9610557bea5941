# What `cmake --install` gives: headers, libraries, programs, translations, a desktop entry, and the files by which
# find_package and pkg-config find the library.
include(CMakePackageConfigHelpers)

set(SENDER_INCLUDE_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}/SenderModuleDialog-${PROJECT_VERSION_MAJOR}")
set(SENDER_CMAKE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/SenderModuleDialog")

target_include_directories(SenderModuleDialog INTERFACE "$<INSTALL_INTERFACE:${SENDER_INCLUDE_FOLDER}>")

install(TARGETS SenderModuleDialog OrviControl TevraData HardwareSupport CommonClass
    EXPORT SenderModuleDialogTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
# The calculations beyond the library: an archive, for programs that only calculate.
install(TARGETS sender_instruments
    EXPORT SenderModuleDialogTargets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
target_include_directories(sender_instruments INTERFACE "$<INSTALL_INTERFACE:${SENDER_INCLUDE_FOLDER}>")
# Programs find the libraries beside them wherever the tree is put.
set_target_properties(sender-workbench sender-tool PROPERTIES
    INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
install(TARGETS sender-workbench sender-tool
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# Headers keep their paths: #include "SenderModuleDialog/geometry/Line.h" and "host/TevraData/ProjectData.h".
install(DIRECTORY "${PROJECT_SOURCE_DIR}/SenderModuleDialog" "${PROJECT_SOURCE_DIR}/host"
    "${PROJECT_SOURCE_DIR}/instruments"
    DESTINATION "${SENDER_INCLUDE_FOLDER}"
    FILES_MATCHING PATTERN "*.h")
# The simulated host can be used and watched through these.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/simulator/CommonClass"
    DESTINATION "${SENDER_INCLUDE_FOLDER}/simulator"
    FILES_MATCHING PATTERN "*.h")

install(EXPORT SenderModuleDialogTargets
    NAMESPACE SenderModuleDialog::
    DESTINATION "${SENDER_CMAKE_FOLDER}")
configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/SenderModuleDialogConfig.cmake.in"
    "${CMAKE_BINARY_DIR}/SenderModuleDialogConfig.cmake"
    INSTALL_DESTINATION "${SENDER_CMAKE_FOLDER}")
write_basic_package_version_file("${CMAKE_BINARY_DIR}/SenderModuleDialogConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_BINARY_DIR}/SenderModuleDialogConfig.cmake"
    "${CMAKE_BINARY_DIR}/SenderModuleDialogConfigVersion.cmake"
    DESTINATION "${SENDER_CMAKE_FOLDER}")

configure_file("${PROJECT_SOURCE_DIR}/cmake/SenderModuleDialog.pc.in" "${CMAKE_BINARY_DIR}/SenderModuleDialog.pc" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/SenderModuleDialog.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
install(FILES "${PROJECT_SOURCE_DIR}/workbench/sender-workbench.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")

# What the tool writes of itself, under the names by which man and the shells find it.
set(SENDER_TOOL_PAGES "${PROJECT_BINARY_DIR}/tools")
install(FILES "${SENDER_TOOL_PAGES}/sender-tool.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${SENDER_TOOL_PAGES}/sender-tool.bash"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
    RENAME sender-tool)
install(FILES "${SENDER_TOOL_PAGES}/_sender-tool"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
