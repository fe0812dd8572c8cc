#!/bin/sh
# The device image's own tests (ctest label image).
#
#   imagelayout.sh layout <image.tar.gz> <source tree>
#       The image holds exactly our files, where the instrument has them: the
#       program, every script of system/usr/bin (the start script among them)
#       and the compiled catalogues in one version folder under
#       /opt/krm510/versions, reached through /opt/krm510/current from
#       /usr/bin and /etc/flang (the layout krmupgrade.sh switches); the
#       default settings, the upgrade key when one was given, the empty data
#       tree and fontconfig's cache. The start script runs the program on
#       linuxfb at 72 dpi with the evdev touch screen.
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
    root=$work/root
    current=$(readlink "$root/opt/krm510/current") || fail "no link /opt/krm510/current"
    case $current in versions/?*) ;; *) fail "/opt/krm510/current leads to $current" ;; esac
    app=opt/krm510/$current
    expected=$work/expected
    {
        echo "opt/krm510/current -> $current"
        echo "$app/bin/krm510"
        echo "usr/bin/krm510 -> /opt/krm510/current/bin/krm510"
        for f in "$src"/system/usr/bin/*; do
            echo "$app/scripts/${f##*/}"
            echo "usr/bin/${f##*/} -> /opt/krm510/current/scripts/${f##*/}"
        done
        for lang in it en fr de es; do echo "$app/flang/krm510_$lang"; done
        echo "etc/flang -> /opt/krm510/current/flang"
        for f in "$src"/system/etc/*; do [ -f "$f" ] && echo "etc/${f##*/}"; done
        [ -f "$root/etc/krm510/upgrade.pub" ] && echo etc/krm510/upgrade.pub
        for d in datapanel datacompany datainstallation datameapanel datameastring; do
            echo "krm510data/$d/"
        done
    } | sort > "$expected"
    (cd "$root" && find . -mindepth 1 \( -type f -o -type l -o -type d -empty \) -print |
        sed 's|^\./||' | while read -r p; do
            if [ -L "$p" ]; then echo "$p -> $(readlink "$p")"
            elif [ -d "$p" ]; then echo "$p/"
            else echo "$p"; fi
        done) | grep -v '^var/cache/fontconfig/' | sort > "$work/found"
    diff -u "$expected" "$work/found" || fail "the image's files differ from the list (- missing, + extra)"
    ls "$root"/var/cache/fontconfig/*.cache-* >/dev/null 2>&1 || fail "no fontconfig cache"
    for f in "$src"/system/usr/bin/* "$src"/system/etc/*; do
        case $f in */etc/*) rel=etc/${f##*/} ;; *) rel=$app/scripts/${f##*/} ;; esac
        cmp -s "$f" "$root/$rel" || fail "$rel is not the file of system/"
        case $rel in */scripts/*) [ -x "$root/$rel" ] || fail "$rel is not executable" ;; esac
    done
    [ -x "$root/$app/bin/krm510" ] || fail "the program is not executable"
    start=$root/$app/scripts/krm510start.sh
    grep -q '^FBDEV=/dev/fb' "$start" || fail "start script: no frame buffer variable at its top"
    grep -q '^TOUCHDEV=/dev/input/' "$start" || fail "start script: no touch device variable"
    grep -q 'QT_QPA_PLATFORM="linuxfb:fb=\$FBDEV' "$start" || fail "start script: not on linuxfb"
    grep -q 'QT_FONT_DPI=72' "$start" || fail "start script: not at 72 dpi"
    grep -q 'evdevtouch:\$TOUCHDEV' "$start" || fail "start script: no evdev touch input"
    grep -q 'exec "\$PROGRAM"' "$start" || fail "start script: does not run the program"
    ;;
nosimulator)
    prog=$(find "$work/root/opt/krm510/versions" -path '*/bin/krm510')
    [ -f "$prog" ] || fail "no program"
    if grep -q 'krm510-sim.sock' "$prog"; then fail "the device program holds the simulated bus"; fi
    ;;
*) fail "unknown check $2" ;;
esac
echo "PASS: $2"
