# The CMake packages that this machine's own programs are built with.
set(SENDER_HOST_PACKAGES "/usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake")
