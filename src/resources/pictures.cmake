# The program's pictures are our own artwork: drawpictures draws every one of
# them with QPainter at build time, and they are compiled into krm510core as
# the resource tree ":/icon/..." and ":/image/...". Included from
# src/CMakeLists.txt after krm510core is defined, so that the drawing command
# lives in the same directory as the library that consumes its output.

add_executable(drawpictures ${CMAKE_CURRENT_LIST_DIR}/generator/drawpictures.cpp)
target_link_libraries(drawpictures PRIVATE Qt6::Gui)

set(KRM_PICTURE_ICONS
    ac-adapter add alert-big apply archiveImpianti archiveList archiveMeasure archivePanel
    backspace battery-15 battery-25 battery-50 battery-75 battery-alert battery-empty
    battery-full belrix bluetooth cancel capslock confirm control-center2 edit editpanel
    enter exit find-panel graphpanel insertnew left next panelnew pannello radiotray1
    radiotray2 radiotray3 remove right save stringa trash usb-info usb-port usbadapter
    usbrs1 usbrs2 usbrs3 vac-adapter vbattery-15 vbattery-25 vbattery-50 vbattery-75
    vbattery-alert vbattery-empty vbattery-full view-refresh
    flag-england flag-france flag-germany flag-italy flag-spain)
set(KRM_PICTURE_IMAGES splash schema_pannello schema_stringhe)

set(KRM_PICTURES_DIR ${CMAKE_CURRENT_BINARY_DIR}/pictures)
set(KRM_PICTURES_SHEET ${CMAKE_BINARY_DIR}/pictures-contactsheet.png)
set(KRM_PICTURE_FILES)
foreach(name ${KRM_PICTURE_ICONS})
    list(APPEND KRM_PICTURE_FILES ${KRM_PICTURES_DIR}/icon/${name}.png)
endforeach()
foreach(name ${KRM_PICTURE_IMAGES})
    list(APPEND KRM_PICTURE_FILES ${KRM_PICTURES_DIR}/image/${name}.png)
endforeach()

add_custom_command(
    OUTPUT ${KRM_PICTURE_FILES} ${KRM_PICTURES_SHEET}
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
            ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:drawpictures> ${KRM_PICTURES_DIR} ${KRM_PICTURES_SHEET}
    DEPENDS drawpictures
    COMMENT "Drawing the program's pictures"
    VERBATIM)

# Qt writes the .qrc (prefix "/", files under icon/ and image/) and links its
# object file through krm510core's usage requirements, so that the pictures
# are registered in every executable linking the static library.
qt_add_resources(krm510core krm510pictures
    PREFIX "/"
    BASE ${KRM_PICTURES_DIR}
    FILES ${KRM_PICTURE_FILES})
