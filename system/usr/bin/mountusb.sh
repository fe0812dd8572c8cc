#!/bin/sh
# Mounts the first partition of the first USB disk (/dev/sda1 ... /dev/sdy1)
# at /media/usb. Its output is only read to the end by the program; the
# result shows in checkmountusb.sh.
#
# KRM_ROOT: the system root, empty on the instrument.

ROOT=${KRM_ROOT-}
MNT=/media/usb

dev=
for letter in a b c d e f g h i j k l m n o p q r s t u v w x y; do
    if [ -b "$ROOT/dev/sd${letter}1" ]; then
        dev=$ROOT/dev/sd${letter}1
        break
    fi
done
if [ -z "$dev" ]; then
    echo "mountusb.sh: no USB disk partition" >&2
    exit 1
fi
if [ -n "$("$ROOT/usr/bin/checkmountusb.sh")" ]; then
    echo "mountusb.sh: already mounted"
    exit 0
fi
mkdir -p "$ROOT$MNT" || exit 1
mount -o noatime "$dev" "$ROOT$MNT" || exit 1
echo "$dev mounted on $MNT"
exit 0
