#!/bin/sh
# Tells whether the USB stick is mounted. For a mounted stick the last line
# is its mount entry in the form of mount's output:
#   /dev/sda1 on /media/usb type vfat (rw,noatime)
# the device name (with "sd") first, the mount point (with "media") third.
# Nothing is printed when no stick is mounted.
#
# KRM_ROOT: the system root, empty on the instrument; the tests set it to a
# folder of their own, and the paths printed are those under that root.

ROOT=${KRM_ROOT-}
MNT=/media/usb

found=
while read -r dev dir type opts rest; do
    if [ "$dir" = "$ROOT$MNT" ]; then
        found="${dev#"$ROOT"} on $MNT type $type ($opts)"
    fi
done </proc/mounts
[ -n "$found" ] && printf '%s\n' "$found"
exit 0
