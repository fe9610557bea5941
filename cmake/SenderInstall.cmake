# What `cmake --install` gives: headers, libraries, programs, translations, a desktop entry, and the files by which
# find_package and pkg-config find the library. The components are what the packages are made of:
#   library       the shared library and its translations
#   simulator     the simulated host with the control kit
#   development   headers, archives, CMake and pkg-config files
#   applications  workbench and tool
include(CMakePackageConfigHelpers)

set(SENDER_INCLUDE_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}/SenderModuleDialog-${PROJECT_VERSION_MAJOR}")
set(SENDER_CMAKE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/SenderModuleDialog")

install(TARGETS SenderModuleDialog
    EXPORT SenderModuleDialogTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT library NAMELINK_COMPONENT development
    FILE_SET HEADERS DESTINATION "${SENDER_INCLUDE_FOLDER}" COMPONENT development)
install(TARGETS OrviControl TevraData HardwareSupport CommonClass
    EXPORT SenderModuleDialogTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT simulator
    FILE_SET HEADERS DESTINATION "${SENDER_INCLUDE_FOLDER}" COMPONENT development)
# The calculations beyond the library: an archive, for programs that only calculate.
install(TARGETS sender_instruments
    EXPORT SenderModuleDialogTargets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
    FILE_SET HEADERS DESTINATION "${SENDER_INCLUDE_FOLDER}" COMPONENT development)

# Programs find the libraries beside them wherever the installation is moved.
set_target_properties(sender-workbench sender-tool PROPERTIES
    INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
install(TARGETS sender-workbench sender-tool
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT applications)
install(FILES "${PROJECT_SOURCE_DIR}/workbench/sender-workbench.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications"
    COMPONENT applications)
install(FILES "${PROJECT_SOURCE_DIR}/workbench/sender-workbench.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps"
    COMPONENT applications)

install(EXPORT SenderModuleDialogTargets
    NAMESPACE SenderModuleDialog::
    DESTINATION "${SENDER_CMAKE_FOLDER}"
    COMPONENT development)
configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/SenderModuleDialogConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/SenderModuleDialogConfig.cmake"
    INSTALL_DESTINATION "${SENDER_CMAKE_FOLDER}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/SenderModuleDialogConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/SenderModuleDialogConfig.cmake"
    "${PROJECT_BINARY_DIR}/SenderModuleDialogConfigVersion.cmake"
    DESTINATION "${SENDER_CMAKE_FOLDER}"
    COMPONENT development)

# The file derives its prefix from its own path, so it stays right when the installation is moved.
set(SENDER_PKGCONFIG_FOLDER "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH SENDER_PREFIX_FROM_PKGCONFIG "/${SENDER_PKGCONFIG_FOLDER}" "/")
configure_file("${PROJECT_SOURCE_DIR}/cmake/SenderModuleDialog.pc.in" "${PROJECT_BINARY_DIR}/SenderModuleDialog.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/SenderModuleDialog.pc"
    DESTINATION "${SENDER_PKGCONFIG_FOLDER}"
    COMPONENT development)
