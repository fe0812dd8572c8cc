#!/bin/sh
# Starts the instrument's program on its own screen: the frame buffer through
# Qt's linuxfb platform at 72 dots per inch (1024 x 600 pixels on a panel of
# 361 x 212 mm), touches from the evdev touch screen. The six keys are read by
# the program itself on their GPIO lines, so no other input device is opened.
FBDEV=/dev/fb0
TOUCHDEV=/dev/input/event0
PROGRAM=/usr/bin/krm510

export QT_QPA_PLATFORM="linuxfb:fb=$FBDEV:mmsize=361x212"
export QT_FONT_DPI=72
export QT_QPA_FB_DISABLE_INPUT=1
export QT_QPA_FB_HIDECURSOR=1
export QT_QPA_GENERIC_PLUGINS="evdevtouch:$TOUCHDEV"
exec "$PROGRAM" "$@"
