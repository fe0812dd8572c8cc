#!/bin/sh
# Installs an upgrade package from the USB stick:
#   krmupgrade.sh <package>
#
# The package is a tar file holding
#   manifest        SHA-256 sums (sha256sum form) of every other file
#   manifest.sig    Ed25519 signature of the manifest
#   version         the version's name
#   app/            the program (bin/krm510), its catalogues (flang/) and
#                   scripts (scripts/)
#   firmware/ORVIAp.hex   optional: the measuring board's firmware
#
# Nothing is installed unless the signature verifies against the public key
# of the instrument (outside every version, no package replaces it) and every
# file matches its sum, with no file more or less. The new version is
# unpacked beside the old one, and one rename of the link "current" switches
# to it: after a power cut either the old or the new program is whole.
# "/usr/bin/krm510", "/etc/flang" and the scripts reach the program through
# that link. A firmware image is left at /home/ORVIAp.hex only for a package
# that was installed; the program flashes it and removes it.
#
# Every refusal is printed and logged with its reason.
#
# KRM_ROOT: the system root, empty on the instrument; the tests set it.

ROOT=${KRM_ROOT-}
BASE=$ROOT/opt/krm510
KEY=$ROOT/etc/krm510/upgrade.pub
IMAGE=$ROOT/home/ORVIAp.hex
LOG=$ROOT/var/log/krmupgrade.log

set -f
PKG=$1
STAGE=

say() {
    printf 'krmupgrade.sh: %s\n' "$*"
    mkdir -p "$(dirname "$LOG")" 2>/dev/null
    printf '%s krmupgrade.sh: %s\n' "$(date '+%Y-%m-%d %H:%M:%S' 2>/dev/null)" "$*" >>"$LOG" 2>/dev/null
}

fail() {
    say "refused: $*"
    [ -n "$STAGE" ] && rm -rf "$STAGE"
    exit 1
}

# An image left from before is never flashed for this package.
rm -f "$IMAGE"

[ $# -eq 1 ] || fail "usage: krmupgrade.sh <package>"
[ -f "$PKG" ] || fail "no package file: $PKG"
[ -f "$KEY" ] || fail "no public key at /etc/krm510/upgrade.pub"
[ -d "$BASE/versions" ] || fail "no versioned folder at /opt/krm510/versions"
command -v openssl >/dev/null 2>&1 || fail "openssl is missing"

# Only plain files and folders with plain names, inside the package.
names=$(tar -tf "$PKG" 2>/dev/null) || fail "not a package (tar): $PKG"
for name in $names; do
    case "$name" in
    /* | *..* | *[!A-Za-z0-9._/-]*) fail "bad member name: $name" ;;
    manifest | manifest.sig | version | app | app/* | firmware | firmware/ | firmware/ORVIAp.hex) ;;
    *) fail "unexpected member: $name" ;;
    esac
done
types=$(tar -tvf "$PKG" | cut -c1 | sort -u | tr -d '\n')
case "$types" in
*[!d-]*) fail "links or special files in the package" ;;
esac

STAGE=$BASE/.staging.$$
rm -rf "$STAGE"
mkdir -p "$STAGE" || fail "cannot make $STAGE"
tar -xf "$PKG" -C "$STAGE" || fail "cannot unpack the package"

[ -f "$STAGE/manifest" ] && [ -f "$STAGE/manifest.sig" ] || fail "no signed manifest"
openssl pkeyutl -verify -pubin -inkey "$KEY" -rawin -in "$STAGE/manifest" \
    -sigfile "$STAGE/manifest.sig" >/dev/null 2>&1 || fail "bad signature"

# Every file listed and right, no file unlisted.
(cd "$STAGE" && sha256sum -c --status manifest) || fail "a file does not match its sum"
listed=$(sed 's/^[0-9a-f]*  *\**//' "$STAGE/manifest" | sort)
present=$(cd "$STAGE" && find . -type f ! -name manifest ! -name manifest.sig | sed 's#^\./##' | sort)
[ "$listed" = "$present" ] || fail "the manifest does not list exactly the package's files"

version=$(cat "$STAGE/version")
case "$version" in
'' | *[!A-Za-z0-9._-]* | .*) fail "bad version name" ;;
esac
[ -x "$STAGE/app/bin/krm510" ] || [ -f "$STAGE/app/bin/krm510" ] || fail "no program in the package"

dir=$version
[ -e "$BASE/versions/$dir" ] && dir=$version.$$
mv "$STAGE/app" "$BASE/versions/$dir" || fail "cannot place the new version"
chmod 755 "$BASE/versions/$dir/bin/krm510" "$BASE/versions/$dir"/scripts/*.sh 2>/dev/null
sync
rm -f "$BASE/current.new"
ln -s "versions/$dir" "$BASE/current.new" || fail "cannot make the new link"
mv -T "$BASE/current.new" "$BASE/current" || fail "cannot switch to the new version"
sync

if [ -f "$STAGE/firmware/ORVIAp.hex" ]; then
    mkdir -p "$(dirname "$IMAGE")"
    cp "$STAGE/firmware/ORVIAp.hex" "$IMAGE.new" && mv "$IMAGE.new" "$IMAGE"
    say "firmware image left for the board"
fi
rm -rf "$STAGE"
sync
say "installed version $version"
exit 0
