#!/bin/sh
# Copies one data directory of the instrument into a folder on the stick,
# which it creates:
#   krmcopyto.sh /<name> <target folder>
# <name> is one of the five data directories.
#
# KRM_ROOT: the system root, empty on the instrument. The target is a path as
# the program gives it and is taken as it stands.

ROOT=${KRM_ROOT-}
DATA=$ROOT/krm510data

[ $# -eq 2 ] || { echo "usage: krmcopyto.sh /<name> <target>" >&2; exit 2; }
name=${1#/}
dst=$2
case "$name" in
datapanel | datacompany | datainstallation | datameapanel | datameastring) ;;
*) echo "krmcopyto.sh: not a data directory: $1" >&2; exit 2 ;;
esac
[ -d "$DATA/$name" ] || { echo "krmcopyto.sh: no $name on the instrument" >&2; exit 1; }
mkdir -p "$dst" || exit 1
rm -rf "$dst/$name"
cp -R "$DATA/$name" "$dst/$name" || exit 1
sync
exit 0
