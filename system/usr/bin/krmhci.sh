#!/bin/sh
# Bluetooth link of the remote sensor unit: serial port rfcomm0 over RFCOMM.
#
#   krmhci.sh start <address>   reset the adapter and connect rfcomm0 to the unit
#   krmhci.sh stop              drop the connection
#
# After "start" an rfcomm process holds the connection and /dev/rfcomm0 is
# there within four seconds. The program opens the node and takes the running
# rfcomm process ("pidof rfcomm") as the sign of a live link. Without a valid
# address the address and channel of /etc/bluetooth/rfcomm.conf are used, the
# file the settings screen writes.

CONF=/etc/bluetooth/rfcomm.conf
NODE=/dev/rfcomm0
PIDFILE=/var/run/krmhci-rfcomm.pid
HCI=hci0

# Ends the rfcomm process this script started, and frees port 0.
link_down() {
    if [ -f "$PIDFILE" ]; then
        pid=$(cat "$PIDFILE")
        case "$pid" in
        '' | *[!0-9]*) ;;
        *) kill "$pid" 2>/dev/null ;;
        esac
        rm -f "$PIDFILE"
    fi
    rfcomm release 0 >/dev/null 2>&1
    return 0
}

link_up() {
    addr=$1
    link_down
    # RFCOMM port 0: character device 216, 0.
    if [ ! -c "$NODE" ]; then
        rm -f "$NODE"
        mknod "$NODE" c 216 0 || return 1
    fi
    chmod 666 "$NODE"
    hciconfig "$HCI" reset
    hciconfig "$HCI" down
    hciconfig "$HCI" up || return 1
    case "$addr" in
    [0-9A-Fa-f][0-9A-Fa-f]:[0-9A-Fa-f][0-9A-Fa-f]:[0-9A-Fa-f][0-9A-Fa-f]:[0-9A-Fa-f][0-9A-Fa-f]:[0-9A-Fa-f][0-9A-Fa-f]:[0-9A-Fa-f][0-9A-Fa-f])
        rfcomm -f "$CONF" connect 0 "$addr" >/dev/null 2>&1 &
        ;;
    *)
        rfcomm -f "$CONF" connect 0 >/dev/null 2>&1 &
        ;;
    esac
    pid=$!
    mkdir -p "$(dirname "$PIDFILE")"
    echo "$pid" >"$PIDFILE"
    # rfcomm stays in the foreground for as long as the connection lasts;
    # give it up to four seconds to reach the unit.
    n=0
    while [ "$n" -lt 4 ]; do
        if ! kill -0 "$pid" 2>/dev/null; then
            rm -f "$PIDFILE"
            return 1
        fi
        if rfcomm show 0 2>/dev/null | grep -q connected; then
            return 0
        fi
        sleep 1
        n=$((n + 1))
    done
    # Still trying: the program's own attempts to open the node decide.
    kill -0 "$pid" 2>/dev/null
}

case "$1" in
start)
    link_up "$2" || exit 1
    ;;
stop)
    link_down
    ;;
*)
    echo "usage: krmhci.sh start ADDRESS | stop" >&2
    exit 2
    ;;
esac
exit 0
