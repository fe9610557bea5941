# `cpack` gives a Debian package for each component of SenderInstall.cmake.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL library simulator development applications)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "SenderModuleDialog maintainers <maintainers@sendermoduledialog.example>")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/lib")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The packages with libraries ask for the loader's cache to be renewed.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
    "${PROJECT_SOURCE_DIR}/packaging/triggers" "${PROJECT_SOURCE_DIR}/packaging/shlibs")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/triggers")

# sender_package(COMPONENT NAME SECTION SUMMARY TEXT [DEPENDS]): one package.
macro(sender_package COMPONENT NAME SECTION SUMMARY TEXT)
    string(TOUPPER "${COMPONENT}" UPPER)
    set(CPACK_DEBIAN_${UPPER}_PACKAGE_NAME "${NAME}")
    set(CPACK_DEBIAN_${UPPER}_PACKAGE_SECTION "${SECTION}")
    set(CPACK_COMPONENT_${UPPER}_DESCRIPTION "${SUMMARY}\n${TEXT}")
    set(CPACK_DEBIAN_${UPPER}_PACKAGE_DEPENDS "${ARGN}")
    set(SENDER_DOC_FOLDER "${CMAKE_INSTALL_DATADIR}/doc/${NAME}")
    install(FILES "${PROJECT_BINARY_DIR}/packaging/changelog.gz" "${PROJECT_BINARY_DIR}/packaging/changelog.Debian.gz"
        DESTINATION "${SENDER_DOC_FOLDER}" COMPONENT "${COMPONENT}")
    if(EXISTS "${PROJECT_SOURCE_DIR}/packaging/${NAME}.lintian-overrides")
        install(FILES "${PROJECT_SOURCE_DIR}/packaging/${NAME}.lintian-overrides"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" RENAME "${NAME}" COMPONENT "${COMPONENT}")
    endif()
endmacro()

# The workbench in Chinese has Qt's own buttons in Chinese with it.
set(CPACK_DEBIAN_APPLICATIONS_PACKAGE_RECOMMENDS "qttranslations5-l10n")
set(SAME "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
sender_package(library libsendermoduledialog1 libs
    "settings dialogs and chromaticity chart for LED-display senders"
    "Shared library with the dialogs of a sender module, the CIE 1931
chromaticity chart, and the calculation of geometry, colour
temperatures, video timings and EDID blocks."
    "libsendermoduledialog-simulator ${SAME}")
sender_package(simulator libsendermoduledialog-simulator libs
    "simulated host and control kit for libsendermoduledialog1"
    "The four libraries that a host brings, as a complete host in the
process: control kit, project with file, simulated senders and a journal
of every call.")
sender_package(development libsendermoduledialog-dev libdevel
    "development files of libsendermoduledialog1"
    "Headers, CMake package, pkg-config file, and an archive for programs
that only calculate."
    "libsendermoduledialog1 ${SAME}, libsendermoduledialog-simulator ${SAME}, qtbase5-dev")
sender_package(applications sender-applications utils
    "workbench and command-line tool for LED-display senders"
    "sender-workbench operates simulated senders with the dialogs of the
library. sender-tool calculates EDID blocks, timings, temperatures and
gamuts, and paints the chromaticity chart."
    "libsendermoduledialog1 ${SAME}, libsendermoduledialog-simulator ${SAME}")

# The tool's manual page and the shells' completions come from the table of subcommands.
find_program(GZIP gzip REQUIRED)
set(SENDER_PAGES "${PROJECT_BINARY_DIR}/packaging")
file(MAKE_DIRECTORY "${SENDER_PAGES}")
add_custom_command(
    OUTPUT "${SENDER_PAGES}/sender-tool.1.gz" "${SENDER_PAGES}/sender-tool.bash" "${SENDER_PAGES}/_sender-tool"
    COMMAND sender-tool manual > "${SENDER_PAGES}/sender-tool.1"
    COMMAND "${GZIP}" -9nf "${SENDER_PAGES}/sender-tool.1"
    COMMAND sender-tool completion bash > "${SENDER_PAGES}/sender-tool.bash"
    COMMAND sender-tool completion zsh > "${SENDER_PAGES}/_sender-tool"
    DEPENDS sender-tool
    VERBATIM)
# gzip -n omits name and time, so two builds give the same bytes.
add_custom_command(
    OUTPUT "${SENDER_PAGES}/sender-workbench.1.gz"
    COMMAND "${GZIP}" -9nc "${PROJECT_SOURCE_DIR}/workbench/sender-workbench.1" > "${SENDER_PAGES}/sender-workbench.1.gz"
    DEPENDS "${PROJECT_SOURCE_DIR}/workbench/sender-workbench.1"
    VERBATIM)
add_custom_command(
    OUTPUT "${SENDER_PAGES}/changelog.gz" "${SENDER_PAGES}/changelog.Debian.gz"
    COMMAND "${GZIP}" -9nc "${PROJECT_SOURCE_DIR}/CHANGELOG.md" > "${SENDER_PAGES}/changelog.gz"
    COMMAND "${GZIP}" -9nc "${PROJECT_SOURCE_DIR}/packaging/changelog.Debian" > "${SENDER_PAGES}/changelog.Debian.gz"
    DEPENDS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${PROJECT_SOURCE_DIR}/packaging/changelog.Debian"
    VERBATIM)
add_custom_target(sender_pages ALL DEPENDS
    "${SENDER_PAGES}/sender-tool.1.gz" "${SENDER_PAGES}/sender-tool.bash" "${SENDER_PAGES}/_sender-tool"
    "${SENDER_PAGES}/changelog.gz" "${SENDER_PAGES}/changelog.Debian.gz" "${SENDER_PAGES}/sender-workbench.1.gz")
install(FILES "${SENDER_PAGES}/sender-tool.1.gz" "${SENDER_PAGES}/sender-workbench.1.gz"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT applications)
install(FILES "${SENDER_PAGES}/sender-tool.bash"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME sender-tool COMPONENT applications)
install(FILES "${SENDER_PAGES}/_sender-tool"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions" COMPONENT applications)

include(CPack)
