include("${CMAKE_CURRENT_LIST_DIR}/HostPackages.cmake")
include("${SENDER_HOST_PACKAGES}/Qt5/Qt5ConfigVersion.cmake")
