# Qt for AArch64: the headers and tools of this machine's Qt, which do not depend on the processor, and the libraries
# that are unpacked beside the build.
include("${CMAKE_CURRENT_LIST_DIR}/HostPackages.cmake")
include("${SENDER_HOST_PACKAGES}/Qt5/Qt5Config.cmake")
foreach(MODULE Core Gui Test)
    if(NOT TARGET Qt5::${MODULE})
        continue()
    endif()
    get_target_property(CONFIGURATIONS Qt5::${MODULE} IMPORTED_CONFIGURATIONS)
    foreach(CONFIGURATION IN LISTS CONFIGURATIONS)
        set_target_properties(Qt5::${MODULE} PROPERTIES
            IMPORTED_LOCATION_${CONFIGURATION} "${SENDER_AARCH64_LIBRARIES}/libQt5${MODULE}.so.5")
    endforeach()
endforeach()
