// The simulator's versions of the instrument's scripts and system commands,
// installed into the machine folder. Each works only under the folder (its
// path is written into the script), never on the host, and logs its call to
// <root>/var/lib/krm510-sim/commands.log.
#include "scripts.h"

#include "util.h"

namespace sim {

namespace {

std::string shellQuote(const std::string& text)
{
    std::string quoted = "'";
    for (char c : text) {
        if (c == '\'')
            quoted += "'\\''";
        else
            quoted += c;
    }
    return quoted + "'";
}

std::string prelude(const std::string& root, const std::string& name)
{
    return "#!/bin/sh\n"
           "# krm510-simd: the simulated instrument's " + name + ".\n"
           "# It acts only inside the machine folder below, never on the host.\n"
           "ROOT=" + shellQuote(root) + "\n"
           "STATE=\"$ROOT/var/lib/krm510-sim\"\n"
           "HOSTDATE=/bin/date; [ -x \"$HOSTDATE\" ] || HOSTDATE=/usr/bin/date\n"
           "log() { mkdir -p \"$STATE\"; printf '%s\\n' \"$*\" >> \"$STATE/commands.log\"; }\n"
           "inroot() { case \"$1\" in \"$ROOT\"|\"$ROOT\"/*) printf '%s' \"$1\";; /*) printf '%s%s' \"$ROOT\" \"$1\";; *) printf '%s' \"$1\";; esac; }\n"
           "log " + name + " \"$@\"\n";
}

const char* const checkMount =
    "if [ -e \"$ROOT/dev/sda1\" ] && [ -L \"$ROOT/media/sda1\" ]; then\n"
    "    echo \"/dev/sda1 on /media/sda1 type vfat (rw,relatime)\"\n"
    "fi\n"
    "exit 0\n";

const char* const mount =
    "if [ ! -e \"$ROOT/dev/sda1\" ]; then\n"
    "    echo \"mount: /dev/sda1: no such device\" >&2\n"
    "    exit 32\n"
    "fi\n"
    "mkdir -p \"$ROOT/media\" \"$STATE/stick\"\n"
    "[ -L \"$ROOT/media/sda1\" ] || ln -s \"$STATE/stick\" \"$ROOT/media/sda1\"\n"
    "echo \"/dev/sda1 mounted on /media/sda1\"\n"
    "exit 0\n";

const char* const umount =
    "if [ -L \"$ROOT/media/sda1\" ]; then\n"
    "    rm -f \"$ROOT/media/sda1\"\n"
    "    echo \"/media/sda1 unmounted\"\n"
    "fi\n"
    "exit 0\n";

const char* const copyFrom =
    "[ $# -ge 2 ] || exit 2\n"
    "src=$(inroot \"$1\")\n"
    "name=${2#/}\n"
    "case \"$name\" in ''|*/*|*..*) exit 2;; esac\n"
    "[ -d \"$src/$name\" ] || exit 1\n"
    "mkdir -p \"$ROOT/krm510data\"\n"
    "rm -rf \"$ROOT/krm510data/$name\"\n"
    "cp -R \"$src/$name\" \"$ROOT/krm510data/$name\"\n";

const char* const copyTo =
    "[ $# -ge 2 ] || exit 2\n"
    "name=${1#/}\n"
    "dst=$(inroot \"$2\")\n"
    "case \"$name\" in ''|*/*|*..*) exit 2;; esac\n"
    "mkdir -p \"$dst\" || exit 1\n"
    "[ -d \"$ROOT/krm510data/$name\" ] || exit 1\n"
    "rm -rf \"$dst/$name\"\n"
    "cp -R \"$ROOT/krm510data/$name\" \"$dst/$name\"\n";

// The instrument's own upgrade script from the source tree, run with the
// machine folder as its system root: a package is checked and installed on
// the desktop exactly as on the instrument.
const std::string upgrade = "KRM_ROOT=\"$ROOT\" exec /bin/sh " +
                            shellQuote(KRM_DEVICE_SCRIPTS "/krmupgrade.sh") + " \"$@\"\n";

const char* const linkUp =
    "link_up() {\n"
    "    [ -n \"$1\" ] && printf '%s\\n' \"$1\" > \"$STATE/bt.mac\"\n"
    "    [ -f \"$STATE/bt.pty\" ] || return 1\n"
    "    ln -sfn \"$(cat \"$STATE/bt.pty\")\" \"$ROOT/dev/rfcomm0\"\n"
    "    mkdir -p \"$ROOT/var/run\"\n"
    "    echo 4242 > \"$ROOT/var/run/rfcomm.pid\"\n"
    "}\n"
    "link_down() { rm -f \"$ROOT/dev/rfcomm0\" \"$ROOT/var/run/rfcomm.pid\"; }\n";

const char* const hci =
    "case \"$1\" in\n"
    "start) link_up \"$2\" || exit 1 ;;\n"
    "stop) link_down ;;\n"
    "*) echo \"usage: krmhci.sh start MAC | stop\" >&2; exit 2 ;;\n"
    "esac\n"
    "exit 0\n";

const char* const rfcomm =
    "case \"$1\" in\n"
    "connect|bind) link_up \"$3\" || exit 1 ;;\n"
    "release|unbind) link_down ;;\n"
    "*) [ -L \"$ROOT/dev/rfcomm0\" ] && echo \"rfcomm0: $(cat \"$STATE/bt.mac\" 2>/dev/null) channel 0 connected\" ;;\n"
    "esac\n"
    "exit 0\n";

const char* const pidof =
    "rc=1\n"
    "out=\n"
    "for name; do\n"
    "    case \"$name\" in -*) continue ;; esac\n"
    "    f=\"$ROOT/var/run/${name##*/}.pid\"\n"
    "    if [ -f \"$f\" ]; then out=\"$out $(cat \"$f\")\"; rc=0; fi\n"
    "done\n"
    "[ $rc -eq 0 ] && echo ${out# }\n"
    "exit $rc\n";

const char* const date =
    "off=0\n"
    "[ -f \"$STATE/clock-offset\" ] && off=$(cat \"$STATE/clock-offset\")\n"
    "value=\n"
    "case \"$1\" in\n"
    "-s|--set) value=$2 ;;\n"
    "--set=*) value=${1#--set=} ;;\n"
    "esac\n"
    "if [ -n \"$value\" ]; then\n"
    "    value=${value#+}\n"
    "    t=$($HOSTDATE -d \"$value\" +%s) || exit 1\n"
    "    echo $((t - $($HOSTDATE +%s))) > \"$STATE/clock-offset\"\n"
    "    printf '%s\\n' \"$value\" > \"$STATE/date-set\"\n"
    "    exec $HOSTDATE -d \"@$t\"\n"
    "fi\n"
    "exec $HOSTDATE -d \"@$(( $($HOSTDATE +%s) + off ))\" \"$@\"\n";

const char* const hwclock =
    "off=0\n"
    "[ -f \"$STATE/clock-offset\" ] && off=$(cat \"$STATE/clock-offset\")\n"
    "host=$($HOSTDATE +%s)\n"
    "case \"$1\" in\n"
    "-w|--systohc) echo \"$((host + off)) $host\" > \"$STATE/hwclock\" ;;\n"
    "-s|--hctosys)\n"
    "    [ -f \"$STATE/hwclock\" ] || exit 1\n"
    "    read rtc then < \"$STATE/hwclock\"\n"
    "    echo $((rtc + host - then - host)) > \"$STATE/clock-offset\" ;;\n"
    "-r|--show|'')\n"
    "    if [ -f \"$STATE/hwclock\" ]; then read rtc then < \"$STATE/hwclock\"; t=$((rtc + host - then));\n"
    "    else t=$((host + off)); fi\n"
    "    $HOSTDATE -d \"@$t\" ;;\n"
    "*) exit 1 ;;\n"
    "esac\n"
    "exit 0\n";

const char* const rm =
    "for a do\n"
    "    shift\n"
    "    case \"$a\" in \"$ROOT\"|\"$ROOT\"/*) ;; /*) a=\"$ROOT$a\" ;; esac\n"
    "    set -- \"$@\" \"$a\"\n"
    "done\n"
    "exec /bin/rm \"$@\"\n";

} // namespace

bool installScripts(const std::string& root, std::string* error)
{
    struct Script {
        const char* path;
        const char* name;
        std::string body;
    };
    const Script scripts[] = {
        {"/usr/bin/checkmountusb.sh", "checkmountusb.sh", checkMount},
        {"/usr/bin/mountusb.sh", "mountusb.sh", mount},
        {"/usr/bin/umountusb.sh", "umountusb.sh", umount},
        {"/usr/bin/krmcopyfrom.sh", "krmcopyfrom.sh", copyFrom},
        {"/usr/bin/krmcopyto.sh", "krmcopyto.sh", copyTo},
        {"/usr/bin/krmupgrade.sh", "krmupgrade.sh", upgrade},
        {"/usr/bin/krmhci.sh", "krmhci.sh", std::string(linkUp) + hci},
        {"/usr/bin/rfcomm", "rfcomm", std::string(linkUp) + rfcomm},
        {"/usr/bin/pidof", "pidof", pidof},
        {"/usr/bin/hwclock", "hwclock", hwclock},
        {"/bin/date", "date", date},
        {"/bin/rm", "rm", rm},
    };
    for (const Script& s : scripts) {
        if (!writeFile(root + s.path, prelude(root, s.name) + s.body, true)) {
            if (error)
                *error = std::string("cannot write ") + root + s.path;
            return false;
        }
    }
    return true;
}

} // namespace sim
