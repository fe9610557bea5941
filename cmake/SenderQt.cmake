# Which Qt everything is built with. Folders name its targets by this number: Qt${SENDER_QT}::Widgets.
set(SENDER_QT 5 CACHE STRING "The Qt that everything is built with: 5 or 6")
set_property(CACHE SENDER_QT PROPERTY STRINGS 5 6)
set(SENDER_QT5_VERSION 5.15)
set(SENDER_QT6_VERSION 6.4)
set(SENDER_QT_VERSION "${SENDER_QT${SENDER_QT}_VERSION}")
# Qt 6 keeps QTextCodec in a module of its own.
set(SENDER_QT5_CODECS Core)
set(SENDER_QT6_CODECS Core5Compat)
set(SENDER_QT_CODECS "${SENDER_QT${SENDER_QT}_CODECS}")
if(NOT SENDER_QT_VERSION)
    message(FATAL_ERROR "SENDER_QT is ${SENDER_QT}: it takes 5 or 6.")
endif()
