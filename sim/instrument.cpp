#include "instrument.h"

#include "scripts.h"
#include "util.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sim
{

const char* const keyNames[6] = {"escape", "up", "backtab", "return", "down", "tab"};
const int keyLines[6] = {93, 86, 89, 75, 81, 88};

namespace
{
const int adapterLine = 105;
const int powerLine = 106;
const char* const spiNode = "/dev/spidev0.0";
const char* const i2cNode = "/dev/i2c-1";
const int backlightAddress = 0x60;

std::string gpioNode(int line)
{
    return "/dev/gpio/" + std::to_string(line);
}

std::string ok(const std::string& text = std::string())
{
    return text.empty() ? std::string("ok") : "ok " + text;
}

std::string fail(const std::string& text)
{
    return "error " + text;
}

int channelCode(const std::string& name)
{
    if (name == "pyrano" || name == "ain1")
        return 0;
    if (name == "ain2")
        return 1;
    if (name == "pt100" || name == "ain3")
        return 2;
    if (name == "reference" || name == "ain4")
        return 3;
    if (name == "ain5")
        return 4;
    if (name == "battery" || name == "ain6")
        return 5;
    return -1;
}
} // namespace

Instrument::Instrument(const std::string& rootFolder, bool fastMode)
    : root(rootFolder), fast(fastMode)
{
    while (root.size() > 1 && root.back() == '/')
        root.pop_back();
}

Instrument::~Instrument()
{
    if (!cleanUp)
        return;
    // Take away what only exists while the simulator runs.
    for (const auto& node : nodes)
        unlink(path(node.first).c_str());
    unlink(path("/dev/rfcomm0").c_str());
    unlink((stateDir() + "/bt.pty").c_str());
    unlink(path("/var/run/rfcomm.pid").c_str());
    unlink(path("/media/sda1").c_str());
}

double Instrument::cellTemperature() const
{
    if (std::isnan(env.tcell))
        return env.tambient + (pv.dataSheet().noct - 20.0) / 800.0 * env.irradiance;
    return env.tcell;
}

double Instrument::moduleTemperature() const
{
    return std::isnan(env.tmodule) ? cellTemperature() : env.tmodule;
}

void Instrument::applyConditions()
{
    pv.setConditions(env.irradiance, cellTemperature());
}

bool Instrument::createNode(const std::string& devicePath)
{
    auto found = nodes.find(devicePath);
    if (found == nodes.end())
        return false;
    std::string host = path(devicePath);
    unlink(host.c_str());
    removed.erase(devicePath);
    if (found->second.empty())
        return writeFile(host, std::string());
    return symlink(found->second.c_str(), host.c_str()) == 0;
}

bool Instrument::removeNode(const std::string& devicePath)
{
    if (nodes.find(devicePath) == nodes.end())
        return false;
    unlink(path(devicePath).c_str());
    removed.insert(devicePath);
    return true;
}

bool Instrument::start(std::string* error)
{
    for (const char* dir :
         {"/dev/gpio", "/usr/bin", "/bin", "/var/run", "/media", "/etc", "/krm510data"})
        makePath(path(dir));
    makePath(stateDir() + "/stick");
    nodes[spiNode] = "";
    nodes[i2cNode] = "";
    for (int line : keyLines) {
        nodes[gpioNode(line)] = "";
        gpio[line] = Gpio{false, 1, 0};
    }
    nodes[gpioNode(adapterLine)] = "";
    gpio[adapterLine] = Gpio{false, env.adapter ? 1 : 0, 0};
    nodes[gpioNode(powerLine)] = "";
    gpio[powerLine] = Gpio{true, 0, 0};
    if (!boardLine.open(error))
        return false;
    nodes["/dev/ttyS1"] = boardLine.slavePath();
    boardLine.setRate(fast ? 0.0 : 960.0);
    board.resetFlash();
    if (!setRemoteLink(remote.link, error))
        return false;
    for (const auto& node : nodes)
        if (!createNode(node.first)) {
            if (error)
                *error = "cannot create " + path(node.first);
            return false;
        }
    applyConditions();
    return installScripts(root, error);
}

bool Instrument::setRemoteLink(std::string link, std::string* error)
{
    for (auto it = nodes.begin(); it != nodes.end();) {
        if (it->first.compare(0, 11, "/dev/ttyUSB") == 0) {
            unlink(path(it->first).c_str());
            removed.erase(it->first);
            it = nodes.erase(it);
        } else {
            ++it;
        }
    }
    unlink((stateDir() + "/bt.pty").c_str());
    unlink(path("/dev/rfcomm0").c_str());
    unlink(path("/var/run/rfcomm.pid").c_str());
    remote.line.close();
    remote.link = "none";
    if (link == "none")
        return true;
    long number = -1;
    bool usb = link.compare(0, 3, "usb") == 0 && parseInt(link.substr(3), &number) && number >= 0 &&
               number <= 99;
    if (!usb && link != "rfcomm") {
        if (error)
            *error = "link is none, usb<n> or rfcomm";
        return false;
    }
    if (!remote.line.open(error))
        return false;
    remote.link = link;
    if (usb) {
        std::string node = "/dev/ttyUSB" + std::to_string(number);
        nodes[node] = remote.line.slavePath();
        return createNode(node);
    }
    // Bluetooth: the link script makes /dev/rfcomm0 when it is started.
    return writeFile(stateDir() + "/bt.pty", remote.line.slavePath() + "\n");
}

std::vector<SerialLine*> Instrument::lines()
{
    std::vector<SerialLine*> all;
    if (boardLine.isOpen())
        all.push_back(&boardLine);
    if (remote.line.isOpen())
        all.push_back(&remote.line);
    return all;
}

void Instrument::lineReadable(SerialLine* line)
{
    std::string bytes = line->receive();
    if (bytes.empty())
        return;
    if (line == &boardLine)
        board.input(bytes);
    else if (line == &remote.line)
        remote.input(bytes);
}

double Instrument::tick()
{
    double now = nowMs();
    board.tick(now);
    double next = -1.0;
    for (SerialLine* line : lines()) {
        bool blocked = false;
        double due = line->service(now, &blocked);
        if (due >= 0 && (next < 0 || due < next))
            next = due;
    }
    if (board.mode == Board::LoaderWindow) {
        double due = std::max(0.0, board.windowEnd - now);
        if (next < 0 || due < next)
            next = due;
    }
    return next;
}

void Instrument::setPowerLevel(int level)
{
    gpio[powerLine].level = level;
    board.powerChanged(level == 0); // active low
}

void Instrument::stickIn()
{
    stick = true;
    makePath(stateDir() + "/stick");
    nodes["/dev/sda1"] = "";
    createNode("/dev/sda1");
}

void Instrument::stickOut()
{
    stick = false;
    removeNode("/dev/sda1");
    nodes.erase("/dev/sda1");
    removed.erase("/dev/sda1");
    unlink(path("/media/sda1").c_str()); // pulled out while mounted
}

std::string Instrument::handle(const std::string& line, bool* quit)
{
    std::vector<std::string> w = splitWords(line);
    if (w.empty())
        return fail("empty request");
    if (w[0] == "bus")
        return bus(w);
    return scenario(w, line, quit);
}

std::string Instrument::gpioRequest(const std::string& dev, const std::string& verb,
                                    const std::vector<std::string>& w)
{
    long number = -1;
    if (!parseInt(dev.substr(10), &number))
        return ok("-1");
    Gpio& g = gpio[static_cast<int>(number)];
    if (verb == "gpio.input") {
        g.output = false;
        return ok("0");
    }
    if (verb == "gpio.output") {
        g.output = true;
        return ok("0");
    }
    if (verb == "gpio.read") {
        if (g.tap) {
            g.tap = false;
            return ok("0 0");
        }
        return ok("0 " + std::to_string(g.level));
    }
    if (verb == "gpio.write") {
        long level = 0;
        if (w.size() < 4 || !parseInt(w[3], &level))
            return ok("-1");
        g.writes++;
        if (!g.output)
            return ok("0"); // an input line ignores what is written
        if (number == powerLine)
            setPowerLevel(level != 0 ? 1 : 0);
        else
            g.level = level != 0 ? 1 : 0;
        return ok("0");
    }
    return ok("-1");
}

std::string Instrument::bus(const std::vector<std::string>& w)
{
    if (w.size() < 3)
        return fail("bus <verb> <device> ...");
    const std::string& verb = w[1];
    const std::string& dev = w[2];
    if (verb.compare(0, 5, "gpio.") == 0) {
        if (dev.compare(0, 10, "/dev/gpio/") != 0)
            return ok("-1");
        return gpioRequest(dev, verb, w);
    }
    if (verb.compare(0, 4, "spi.") == 0) {
        if (dev != spiNode)
            return ok("-1");
        std::vector<unsigned long>& s = spiSettings[dev];
        if (s.empty())
            s = {0, 8, 500000};
        long value = 0;
        if (verb == "spi.mode.w" && w.size() > 3 && parseInt(w[3], &value)) {
            s[0] = static_cast<unsigned long>(value);
            return ok("0");
        }
        if (verb == "spi.bits.w" && w.size() > 3 && parseInt(w[3], &value)) {
            s[1] = static_cast<unsigned long>(value);
            return ok("0");
        }
        if (verb == "spi.speed.w" && w.size() > 3 && parseInt(w[3], &value)) {
            s[2] = static_cast<unsigned long>(value);
            return ok("0");
        }
        if (verb == "spi.mode.r")
            return ok("0 " + std::to_string(s[0]));
        if (verb == "spi.bits.r")
            return ok("0 " + std::to_string(s[1]));
        if (verb == "spi.speed.r")
            return ok("0 " + std::to_string(s[2]));
        if (verb == "spi.xfer" && w.size() > 3) {
            std::string tx;
            if (!fromHex(w[3], &tx) || tx.empty())
                return ok("-1");
            std::string rx;
            if (s[0] != 3 || s[1] != 8)
                rx.assign(tx.size(), '\xff'); // the chip only talks SPI mode 3, 8 bits
            else
                rx = adc.transfer(tx);
            return ok(std::to_string(tx.size()) + " " + toHex(rx));
        }
        return ok("-1");
    }
    if (verb.compare(0, 4, "i2c.") == 0) {
        if (dev != i2cNode)
            return ok("-1");
        if (verb == "i2c.slave" || verb == "i2c.timeout" || verb == "i2c.retries") {
            i2cLog.push_back(verb.substr(4) + " " + (w.size() > 3 ? w[3] : std::string()));
            return ok("0");
        }
        if (verb == "i2c.write" && w.size() > 4) {
            long address = -1;
            std::string data;
            if (!parseInt(w[3], &address) || !fromHex(w[4], &data) || data.empty())
                return ok("-1");
            i2cLog.push_back(format("write 0x%02lx %s", address & 0xFF, w[4].c_str()));
            if (address != backlightAddress)
                return ok("-1"); // nobody acknowledges
            uint8_t reg = static_cast<uint8_t>(data[0]) & 0x07;
            if (data.size() >= 2 && reg >= 1 && reg <= 5)
                backlight[reg] = static_cast<uint8_t>(data[1]);
            return ok(std::to_string(data.size()));
        }
        return ok("-1");
    }
    return ok("-1");
}

std::string Instrument::pvQuery(const std::vector<std::string>& w)
{
    if (w.size() < 2 || w[1] == "figures") {
        PvFigures f = pv.figures();
        return ok(format("isc=%.6g voc=%.6g pmax=%.6g vmpp=%.6g impp=%.6g maxima=%d", f.isc, f.voc,
                         f.pmax, f.vmpp, f.impp, f.maxima));
    }
    if (w[1] == "model") {
        const DiodeModel& m = pv.model();
        return ok(format("iph=%.6g i0=%.6g a=%.6g rs=%.6g rsh=%.6g krs=%.6g", m.iph, m.i0, m.a,
                         m.rs, m.gsh > 0 ? 1.0 / m.gsh : INFINITY, m.krs));
    }
    if (w[1] == "current" && w.size() > 2) {
        double v;
        if (!parseDouble(w[2], &v))
            return fail("pv current <volts>");
        return ok(format("%.6g", pv.currentAt(v)));
    }
    if (w[1] == "voltage" && w.size() > 2) {
        double i;
        if (!parseDouble(w[2], &i))
            return fail("pv voltage <amperes>");
        return ok(format("%.6g", pv.voltageAt(i)));
    }
    if (w[1] == "iv") {
        long n = 32;
        if (w.size() > 2 && (!parseInt(w[2], &n) || n < 2 || n > 2000))
            return fail("pv iv [points 2..2000]");
        double voc = std::max(0.0, pv.voltageAt(0.0));
        std::string text;
        for (long k = 0; k < n; k++) {
            double v = voc * (1.0 - static_cast<double>(k) / static_cast<double>(n - 1));
            text += format("%s%.5g,%.5g", k ? " " : "", v, pv.currentAt(v));
        }
        return ok(text);
    }
    return fail("pv figures|model|iv [n]|current <V>|voltage <A>");
}

std::string Instrument::scenario(const std::vector<std::string>& w, const std::string& line,
                                 bool* quit)
{
    const std::string& cmd = w[0];
    auto number = [&w](size_t i, double* v) { return i < w.size() && parseDouble(w[i], v); };
    auto integer = [&w](size_t i, long* v) { return i < w.size() && parseInt(w[i], v); };
    double v = 0;
    long n = 0;

    if (cmd == "ping")
        return ok(format("krm510-simd pid=%d root=%s mode=%s", static_cast<int>(getpid()),
                         root.c_str(), fast ? "fast" : "real"));
    if (cmd == "timing") {
        if (w.size() >= 2) {
            if (w[1] != "fast" && w[1] != "real")
                return fail("timing [fast|real]");
            fast = w[1] == "fast";
            board.retime(); // the remote unit's line takes its pace with each answer
        }
        return ok(fast ? "fast" : "real");
    }
    if (cmd == "quit") {
        *quit = true;
        return ok("bye");
    }
    if (cmd == "set" && w.size() >= 3) {
        const std::string& what = w[1];
        if (what == "irradiance" && number(2, &v) && v >= 0) {
            env.irradiance = v;
        } else if (what == "tcell") {
            if (w[2] == "auto")
                env.tcell = NAN;
            else if (number(2, &v))
                env.tcell = v;
            else
                return fail("set tcell <C>|auto");
        } else if (what == "tmodule") {
            if (w[2] == "cell")
                env.tmodule = NAN;
            else if (number(2, &v))
                env.tmodule = v;
            else
                return fail("set tmodule <C>|cell");
        } else if (what == "tambient" && number(2, &v)) {
            env.tambient = v;
        } else if (what == "probe" && (w[2] == "module" || w[2] == "ambient")) {
            env.probeOnModule = w[2] == "module";
        } else if (what == "pt100" && (w[2] == "open" || w[2] == "ok")) {
            env.pt100Open = w[2] == "open";
        } else if (what == "battery" && number(2, &v) && v >= 0) {
            env.battery = v;
        } else if (what == "adapter" && integer(2, &n)) {
            env.adapter = n != 0;
            gpio[adapterLine].level = env.adapter ? 1 : 0;
        } else if (what == "series" && integer(2, &n) && n >= 1 && n <= 100) {
            pv.setSeries(static_cast<int>(n));
        } else if (what == "module") {
            DataSheet s = pv.dataSheet();
            for (size_t i = 2; i < w.size(); i++) {
                size_t eq = w[i].find('=');
                double x;
                if (eq == std::string::npos || !parseDouble(w[i].substr(eq + 1), &x))
                    return fail("set module key=value ...: " + w[i]);
                std::string key = w[i].substr(0, eq);
                if (key == "pmax")
                    s.pmax = x;
                else if (key == "impp")
                    s.impp = x;
                else if (key == "vmpp")
                    s.vmpp = x;
                else if (key == "isc")
                    s.isc = x;
                else if (key == "voc")
                    s.voc = x;
                else if (key == "kisc")
                    s.kisc = x;
                else if (key == "kvoc")
                    s.kvoc = x;
                else if (key == "kpmax")
                    s.kpmax = x;
                else if (key == "noct")
                    s.noct = x;
                else if (key == "cells")
                    s.cells = static_cast<int>(x);
                else if (key == "bypass")
                    s.bypass = static_cast<int>(x);
                else
                    return fail("unknown module key " + key);
            }
            std::string error;
            int series = pv.series();
            if (!pv.setDataSheet(s, &error))
                return fail(error);
            pv.setSeries(series);
        } else if (what == "cal" && w.size() >= 4 && number(3, &v)) {
            const std::string& k = w[2];
            if (k == "adci0")
                cal.adci[0] = v;
            else if (k == "adci1")
                cal.adci[1] = v;
            else if (k == "adci0offset")
                cal.adciOffset[0] = static_cast<int>(v);
            else if (k == "adci1offset")
                cal.adciOffset[1] = static_cast<int>(v);
            else if (k == "adcv0")
                cal.adcv[0] = v;
            else if (k == "adcv1")
                cal.adcv[1] = v;
            else if (k == "adcv0offset")
                cal.adcvOffset[0] = v;
            else if (k == "adcv1offset")
                cal.adcvOffset[1] = v;
            else if (k == "kpyra")
                cal.kpyra = v;
            else if (k == "pyrano")
                cal.pyranoSens = v;
            else if (k == "divider")
                cal.batteryDivider = v;
            else
                return fail("unknown calibration key " + k);
        } else {
            return fail("set "
                        "irradiance|tcell|tmodule|tambient|probe|pt100|battery|adapter|series|"
                        "module|cal ...");
        }
        applyConditions();
        return ok();
    }
    if (cmd == "get") {
        return ok(
            format("irradiance=%g tcell=%g tmodule=%g tambient=%g probe=%s battery=%g adapter=%d "
                   "series=%d power=%d hsink=%.2f stick=%s remote=%s gen=%d",
                   env.irradiance, cellTemperature(), moduleTemperature(), env.tambient,
                   env.probeOnModule ? "module" : "ambient", env.battery, env.adapter ? 1 : 0,
                   pv.series(), gpio[powerLine].level, board.hsink_now(nowMs()),
                   stick ? "in" : "out", remote.link.c_str(), remote.generation));
    }
    if (cmd == "pv")
        return pvQuery(w);
    if (cmd == "fault" && w.size() >= 2) {
        const std::string& f = w[1];
        if (f == "none" || f == "clear") {
            fault = SourceFault::None;
            pv.clearShading();
            board.setNoise(0.0, 1);
        } else if (f == "open") {
            fault = SourceFault::Open;
        } else if (f == "reverse") {
            fault = SourceFault::Reverse;
        } else if (f == "floating") {
            fault = SourceFault::Floating;
        } else if (f == "shade" && number(2, &v)) {
            long module = 0, sub = 0;
            if ((w.size() > 3 && !integer(3, &module)) || (w.size() > 4 && !integer(4, &sub)) ||
                !pv.setShade(static_cast<int>(module), static_cast<int>(sub), v))
                return fail("fault shade <factor 0..1> [module] [substring]");
        } else if (f == "bypass" && w.size() >= 3 &&
                   (w[2] == "short" || w[2] == "open" || w[2] == "ok")) {
            long module = 0, sub = 0;
            PvSource::Bypass b = w[2] == "short"  ? PvSource::BypassShort
                                 : w[2] == "open" ? PvSource::BypassOpen
                                                  : PvSource::BypassOk;
            if ((w.size() > 3 && !integer(3, &module)) || (w.size() > 4 && !integer(4, &sub)) ||
                !pv.setBypass(static_cast<int>(module), static_cast<int>(sub), b))
                return fail("fault bypass short|open|ok [module] [substring]");
        } else if (f == "rs" && number(2, &v) && std::isfinite(v) && v >= 0) {
            pv.setAddedSeries(v);
        } else if (f == "shunt" && number(2, &v) && std::isfinite(v) && v >= 0) {
            pv.setShunt(v);
        } else if (f == "noise" && number(2, &v) && std::isfinite(v) && v >= 0) {
            long seed = 1;
            if (w.size() > 3 && (!integer(3, &seed) || seed < 0))
                return fail("fault noise <counts> [seed]");
            board.setNoise(v, static_cast<unsigned>(seed));
        } else {
            return fail(
                "fault none|open|reverse|floating|shade <f> [m] [s]|bypass short|open|ok [m] [s]"
                "|rs <ohm>|shunt <ohm>|noise <counts> [seed]");
        }
        return ok();
    }
    if (cmd == "key" && w.size() >= 3) {
        int index = -1;
        for (int i = 0; i < 6; i++)
            if (w[2] == keyNames[i])
                index = i;
        if (index < 0 || (w[1] != "press" && w[1] != "release" && w[1] != "tap"))
            return fail("key press|release|tap escape|up|backtab|return|down|tab");
        Gpio& g = gpio[keyLines[index]];
        g.tap = w[1] == "tap";
        g.level = w[1] == "press" ? 0 : 1;
        return ok();
    }
    if (cmd == "stick" && w.size() >= 2) {
        if (w[1] == "in")
            stickIn();
        else if (w[1] == "out")
            stickOut();
        else if (w[1] != "path")
            return fail("stick in|out|path");
        return ok(stateDir() + "/stick");
    }
    if (cmd == "node" && w.size() >= 3) {
        if (w[1] == "remove" && removeNode(w[2]))
            return ok();
        if (w[1] == "restore" && createNode(w[2]))
            return ok();
        return fail("node remove|restore <device path the simulator made>");
    }
    if (cmd == "nodes") {
        std::string text;
        for (const auto& node : nodes)
            text += (text.empty() ? "" : " ") + node.first +
                    (removed.count(node.first) ? "(removed)" : "");
        return ok(text);
    }
    if (cmd == "adc" && w.size() >= 2) {
        if (w[1] == "force" && w.size() >= 4) {
            int ch = channelCode(w[2]);
            if (ch < 0)
                return fail("adc force pyrano|pt100|reference|battery|ain1..ain6 <count>|off");
            if (w[3] == "off")
                adc.forced.erase(ch);
            else if (integer(3, &n) && n >= 0 && n <= 65535)
                adc.forced[ch] = n;
            else
                return fail("count 0..65535 or off");
            return ok();
        }
        if (w[1] == "stuck" && w.size() >= 3 && (w[2] == "on" || w[2] == "off")) {
            adc.stuck = w[2] == "on";
            return ok();
        }
        if (w[1] == "registers")
            return ok(format("mode=0x%04x config=0x%04x io=0x%02x transfers=%d", adc.mode,
                             adc.config, adc.io, adc.transfers));
        if (w[1] == "count" && w.size() >= 4 && integer(3, &n)) {
            int ch = channelCode(w[2]);
            if (ch < 0)
                return fail("adc count <channel> <gain>");
            return ok(std::to_string(adc.count(ch, static_cast<int>(n), true)));
        }
        return fail("adc force <channel> <count>|off, adc stuck on|off, adc registers, adc count "
                    "<channel> <gain>");
    }
    if (cmd == "board" && w.size() >= 2) {
        const std::string& what = w[1];
        if (what == "log") {
            if (w.size() > 2 && w[2] == "clear") {
                board.log.clear();
                return ok();
            }
            std::string text = std::to_string(board.log.size());
            for (const auto& l : board.log)
                text += " " + escape(l);
            return ok(text);
        }
        if (what == "fault" && w.size() >= 3) {
            static const std::set<std::string> names = {"nostatus", "stray", "midstatus",
                                                        "garbage",  "long",  "pause",
                                                        "endless",  "noise", "nul"};
            if (w[2] == "none") {
                board.faults.clear();
                board.onceFaults.clear();
                return ok();
            }
            if (!names.count(w[2]))
                return fail("board fault none|nostatus|stray|midstatus [code]|garbage|long [bytes]|"
                            "pause [ms]|endless|noise|nul [once]");
            long arg = w[2] == "midstatus" ? 7
                       : w[2] == "long"    ? 20480
                       : w[2] == "pause"   ? 11000
                                           : 0;
            bool once = false;
            for (size_t i = 3; i < w.size(); i++) {
                if (w[i] == "once")
                    once = true;
                else if (!integer(i, &arg))
                    return fail("bad argument " + w[i]);
            }
            board.faults[w[2]] = arg;
            if (once)
                board.onceFaults.insert(w[2]);
            return ok();
        }
        if (what == "clear" && w.size() >= 3) {
            board.faults.erase(w[2]);
            return ok();
        }
        if (what == "reply") {
            size_t at = line.find("reply");
            std::string text = line.substr(at + 5);
            size_t start = text.find_first_not_of(" \t");
            text = start == std::string::npos ? std::string() : text.substr(start);
            board.forcedReplies.push_back(unescape(text));
            return ok(std::to_string(board.forcedReplies.size()));
        }
        if (what == "status" && w.size() >= 3) {
            if (w[2] == "auto")
                board.forcedStatus = -1;
            else if (integer(2, &n) && n >= 0)
                board.forcedStatus = n;
            else
                return fail("board status <n>|auto");
            return ok();
        }
        if (what == "hsink") {
            if (w.size() >= 3 && number(2, &v)) {
                board.hsink = v;
                board.hsinkAt = nowMs();
                board.hsinkHeld = w.size() >= 4 && w[3] == "hold";
            }
            return ok(format("%.2f", board.hsink_now(nowMs())));
        }
        if (what == "version" && w.size() >= 3) {
            size_t at = line.find("version");
            board.version = line.substr(at + 8);
            return ok();
        }
        if (what == "eol" && w.size() >= 3) {
            board.eol = unescape(w[2]);
            return ok();
        }
        if (what == "state")
            return ok(format("power=%s mode=%s pending=%d", board.powered ? "on" : "off",
                             board.mode == Board::App      ? "app"
                             : board.mode == Board::Loader ? "loader"
                                                           : "window",
                             boardLine.outputPending() ? 1 : 0));
        return fail(
            "board log [clear]|fault ...|clear <fault>|reply <escaped bytes>|status <n>|auto|"
            "hsink [C [hold]]|version <text>|eol <escaped>|state");
    }
    if (cmd == "loader" && w.size() >= 2) {
        if (w[1] == "chip" && w.size() >= 5 && integer(2, &n)) {
            long process = 0, family = 0;
            if (!integer(3, &process) || !integer(4, &family) || family < 0 || family > 3)
                return fail("loader chip <id> <process> <family 0..3>");
            board.chipId = static_cast<unsigned>(n);
            board.chipProcess = static_cast<unsigned>(process);
            board.family = static_cast<int>(family);
            board.resetFlash();
            return ok();
        }
        if (w[1] == "version" && integer(2, &n)) {
            board.loaderVersion = static_cast<int>(n);
            return ok();
        }
        if (w[1] == "nak" && w.size() >= 3 && w[2] == "forever") {
            board.nakCount = -1;
            return ok();
        }
        if (w[1] == "nak" && integer(2, &n) && n >= 0) {
            board.nakCount = static_cast<int>(n);
            return ok();
        }
        if (w[1] == "silent" && w.size() >= 3) {
            if (w[2] == "none") {
                board.silentCommands.clear();
                return ok();
            }
            if (integer(2, &n) && (n == 0x11 || n == 0x09 || n == 0x02 || n == 0x03)) {
                board.silentCommands.insert(static_cast<int>(n));
                return ok();
            }
        }
        if (w[1] == "window" && integer(2, &n) && n >= 0) {
            board.windowMs = static_cast<double>(n);
            return ok();
        }
        if (w[1] == "greeting" || (w[1] == "reply" && w.size() >= 3 && integer(2, &n) &&
                                   (n == 0x11 || n == 0x09 || n == 0x02 || n == 0x03))) {
            // The rest of the line, escaped, after the verb (and the command byte).
            size_t at = line.find(w[1]) + w[1].size();
            if (w[1] == "reply")
                at = line.find(w[2], at) + w[2].size();
            std::string text = line.substr(at);
            size_t start = text.find_first_not_of(" \t");
            text = start == std::string::npos ? std::string() : unescape(text.substr(start));
            if (w[1] == "greeting") {
                board.greeting = text;
                return ok();
            }
            board.loaderReplies[static_cast<int>(n)].push_back(text);
            return ok(std::to_string(board.loaderReplies[static_cast<int>(n)].size()));
        }
        return fail("loader chip <id> <process> <family>|version <n>|nak <n>|nak forever|"
                    "silent 0x11|0x09|0x02|0x03|none|window <ms>|"
                    "greeting <escaped>|reply 0x11|0x09|0x02|0x03 <escaped>");
    }
    if (cmd == "flash" && w.size() >= 2) {
        if (w[1] == "rows") {
            std::string text = std::to_string(board.rowsWritten.size());
            for (uint32_t a : board.rowsWritten)
                text += format(" 0x%06x", a);
            return ok(text);
        }
        if (w[1] == "read" && w.size() >= 3 && integer(2, &n) && n >= 0) {
            long count = 1;
            if (w.size() > 3 && (!integer(3, &count) || count < 1 || count > 4096))
                return fail("flash read <address> [count]");
            std::string text;
            for (long i = 0; i < count; i++) {
                auto found = board.flash.find(static_cast<uint32_t>(n + 2 * i));
                text += format("%s%06x", i ? " " : "",
                               found == board.flash.end() ? 0xFFFFFFu : found->second);
            }
            return ok(text);
        }
        if (w[1] == "reset") {
            board.resetFlash();
            return ok();
        }
        return fail("flash rows|read <address> [count]|reset");
    }
    if (cmd == "backlight") {
        return ok(format("psc0=%u pwm0=%u psc1=%u pwm1=%u ls0=%u writes=%zu", backlight[1],
                         backlight[2], backlight[3], backlight[4], backlight[5], i2cLog.size()));
    }
    if (cmd == "i2c" && w.size() >= 2 && w[1] == "log") {
        std::string text = std::to_string(i2cLog.size());
        for (const auto& l : i2cLog)
            text += " " + escape(l);
        return ok(text);
    }
    if (cmd == "power") {
        const Gpio& g = gpio[powerLine];
        return ok(
            format("level=%d board=%s writes=%d", g.level, board.powered ? "on" : "off", g.writes));
    }
    if (cmd == "gpio" && w.size() >= 2 && integer(1, &n)) {
        if (w.size() >= 3) {
            long level;
            if (!integer(2, &level))
                return fail("gpio <line> [level]");
            if (n == powerLine)
                setPowerLevel(level != 0 ? 1 : 0);
            else
                gpio[static_cast<int>(n)].level = level != 0 ? 1 : 0;
        }
        const Gpio& g = gpio[static_cast<int>(n)];
        return ok(format("level=%d direction=%s writes=%d tap=%d", g.level, g.output ? "out" : "in",
                         g.writes, g.tap ? 1 : 0));
    }
    if (cmd == "remote" && w.size() >= 3) {
        if (w[1] == "gen" && integer(2, &n) && (n == 1 || n == 2)) {
            remote.generation = static_cast<int>(n);
            return ok();
        }
        if (w[1] == "link") {
            std::string error;
            std::string link = w[2];
            if (link == "usb" && w.size() > 3)
                link += w[3];
            if (!setRemoteLink(link, &error))
                return fail(error);
            return ok();
        }
        if (w[1] == "novalue" && w.size() >= 4) {
            bool none = w[3] == "1" || w[3] == "on";
            if (w[2] == "irr")
                remote.noIrradiance = none;
            else if (w[2] == "tcell")
                remote.noCell = none;
            else if (w[2] == "tenv")
                remote.noAmbient = none;
            else
                return fail("remote novalue irr|tcell|tenv on|off");
            return ok();
        }
        if (w[1] == "log") {
            if (w[2] == "clear") {
                remote.log.clear();
                return ok();
            }
        }
        if (w[1] == "reply") {
            size_t at = line.find("reply");
            std::string text = line.substr(at + 5);
            size_t start = text.find_first_not_of(" \t");
            text = start == std::string::npos ? std::string() : text.substr(start);
            remote.forcedReplies.push_back(unescape(text));
            return ok(std::to_string(remote.forcedReplies.size()));
        }
        return fail(
            "remote gen 1|2, link none|usb <n>|rfcomm, novalue irr|tcell|tenv on|off, log clear, "
            "reply <escaped>");
    }
    if (cmd == "remote" && w.size() == 2 && w[1] == "log") {
        std::string text = std::to_string(remote.log.size());
        for (const auto& l : remote.log)
            text += " " + escape(l);
        return ok(text);
    }
    return fail("unknown command: " + cmd + " (see sim/README.md)");
}

} // namespace sim
