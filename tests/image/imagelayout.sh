#!/bin/sh
# The device image's own tests (ctest label image).
#
#   imagelayout.sh layout <image.tar.gz> <source tree>
#       The image holds exactly our files, where the instrument has them: the
#       program, every script of system/usr/bin (the start script among them),
#       the compiled catalogues, the default settings, the empty data tree and
#       fontconfig's cache; the start script runs the program on linuxfb at
#       72 dpi with the evdev touch screen.
#   imagelayout.sh nosimulator <image.tar.gz>
#       The device program carries no simulated bus back end: the simulator's
#       socket name does not occur in it.
set -eu
fail() { echo "FAIL: $*" >&2; exit 1; }
image=$1
[ -f "$image" ] || fail "no image $image"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/root"
tar -C "$work/root" -xzf "$image"

case $2 in
layout)
    src=$3
    expected=$work/expected
    {
        echo usr/bin/krm510
        for f in "$src"/system/usr/bin/*; do echo "usr/bin/${f##*/}"; done
        for lang in it en fr de es; do echo "etc/flang/krm510_$lang"; done
        for f in "$src"/system/etc/*; do [ -f "$f" ] && echo "etc/${f##*/}"; done
        for d in datapanel datacompany datainstallation datameapanel datameastring; do
            echo "krm510data/$d/"
        done
    } | sort > "$expected"
    (cd "$work/root" && find . -mindepth 1 \( -type f -o -type l -o -type d -empty \) -print |
        sed 's|^\./||' |
        while read -r p; do if [ -d "$p" ]; then echo "$p/"; else echo "$p"; fi; done) |
        grep -v '^var/cache/fontconfig/' | sort > "$work/found"
    diff -u "$expected" "$work/found" || fail "the image's files differ from the list (- missing, + extra)"
    ls "$work"/root/var/cache/fontconfig/*.cache-* >/dev/null 2>&1 || fail "no fontconfig cache"
    for f in "$src"/system/usr/bin/* "$src"/system/etc/*; do
        case $f in */etc/*) rel=etc/${f##*/} ;; *) rel=usr/bin/${f##*/} ;; esac
        cmp -s "$f" "$work/root/$rel" || fail "$rel is not the file of system/"
        case $rel in usr/bin/*) [ -x "$work/root/$rel" ] || fail "$rel is not executable" ;; esac
    done
    [ -x "$work/root/usr/bin/krm510" ] || fail "the program is not executable"
    start=$work/root/usr/bin/krm510start.sh
    grep -q '^FBDEV=/dev/fb' "$start" || fail "start script: no frame buffer variable at its top"
    grep -q '^TOUCHDEV=/dev/input/' "$start" || fail "start script: no touch device variable"
    grep -q 'QT_QPA_PLATFORM="linuxfb:fb=\$FBDEV' "$start" || fail "start script: not on linuxfb"
    grep -q 'QT_FONT_DPI=72' "$start" || fail "start script: not at 72 dpi"
    grep -q 'evdevtouch:\$TOUCHDEV' "$start" || fail "start script: no evdev touch input"
    grep -q 'exec "\$PROGRAM"' "$start" || fail "start script: does not run the program"
    ;;
nosimulator)
    prog=$work/root/usr/bin/krm510
    [ -f "$prog" ] || fail "no program"
    if grep -q 'krm510-sim.sock' "$prog"; then fail "the device program holds the simulated bus"; fi
    ;;
*) fail "unknown check $2" ;;
esac
echo "PASS: $2"
