#!/bin/sh
# Writes everything out and unmounts the USB stick from /media/usb.
#
# KRM_ROOT: the system root, empty on the instrument.

ROOT=${KRM_ROOT-}
MNT=/media/usb

sync
if [ -n "$("$ROOT/usr/bin/checkmountusb.sh")" ]; then
    umount "$ROOT$MNT" || exit 1
    echo "$MNT unmounted"
fi
exit 0
