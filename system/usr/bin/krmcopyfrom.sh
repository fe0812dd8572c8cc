#!/bin/sh
# Copies one data directory from a "krm510data" folder on the stick into the
# instrument's data directory, replacing it whole:
#   krmcopyfrom.sh <source folder> /<name>
# <name> is one of the five data directories. The former directory is
# replaced only once the copy is complete.
#
# KRM_ROOT: the system root, empty on the instrument. The source is a path
# as the program gives it and is taken as it stands.

ROOT=${KRM_ROOT-}
DATA=$ROOT/krm510data

[ $# -eq 2 ] || { echo "usage: krmcopyfrom.sh <source> /<name>" >&2; exit 2; }
src=$1
name=${2#/}
case "$name" in
datapanel | datacompany | datainstallation | datameapanel | datameastring) ;;
*) echo "krmcopyfrom.sh: not a data directory: $2" >&2; exit 2 ;;
esac
[ -d "$src/$name" ] || { echo "krmcopyfrom.sh: no $name in the source" >&2; exit 1; }
mkdir -p "$DATA" || exit 1
rm -rf "$DATA/$name.new"
if ! cp -R "$src/$name" "$DATA/$name.new"; then
    rm -rf "$DATA/$name.new"
    exit 1
fi
rm -rf "$DATA/$name" && mv "$DATA/$name.new" "$DATA/$name" || exit 1
sync
exit 0
