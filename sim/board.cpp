// The measuring board's firmware as seen on its serial line: the text
// protocol (echo, data lines, "ERROR %d\r"), its heat sink and conditions,
// its supply, its faults, and the boot loader that answers for a moment after
// each power-up.
#include "instrument.h"

#include "util.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace sim
{

namespace
{
const double boardRate = 960.0;   // 9600 baud, 8N1
const double loaderRate = 3840.0; // 38400 baud
const double hsinkTau = 600.0;    // s, cooling towards the ambient
const double hsinkLimit = 70.0;   // degrees C, the board refuses above

long clampCount(double value)
{
    if (!std::isfinite(value))
        return 0;
    return std::lround(std::max(0.0, std::min(4095.0, value)));
}
} // namespace

void Board::setNoise(double counts, unsigned seed)
{
    noiseCounts = std::max(0.0, counts);
    noiseSource.seed(seed);
}

long Board::noisy(long count)
{
    if (noiseCounts <= 0.0)
        return count;
    std::normal_distribution<double> spread(0.0, noiseCounts);
    return clampCount(static_cast<double>(count) + spread(noiseSource));
}

void Board::resetFlash()
{
    flash.clear();
    rowsWritten.clear();
    // The chip's first two instructions: the jump to the boot loader.
    flash[0] = 0x040C00;
    flash[2] = 0x000000;
}

double Board::hsink_now(double now)
{
    double ambient = inst->env.tambient;
    if (std::isnan(hsink)) {
        hsink = ambient;
        hsinkAt = now;
    }
    double dt = (now - hsinkAt) / 1000.0;
    if (dt > 0 && !hsinkHeld) {
        hsink = ambient + (hsink - ambient) * std::exp(-dt / hsinkTau);
        hsinkAt = now;
    }
    return hsink;
}

void Board::powerChanged(bool on)
{
    if (on == powered)
        return;
    powered = on;
    pending.clear();
    loaderBuffer.clear();
    inst->boardLine.clearOutput();
    if (!on) {
        mode = App;
        return;
    }
    greet();
}

void Board::greet()
{
    // After reset the boot loader greets and waits a moment for '%'.
    mode = LoaderWindow;
    inst->boardLine.setRate(inst->fast ? 0.0 : loaderRate);
    inst->boardLine.send(greeting);
    windowEnd = nowMs() + windowMs + (inst->fast ? 0.0 : 5.0 * 1000.0 / loaderRate);
}

void Board::retime()
{
    if (inst->fast)
        inst->boardLine.setRate(0.0);
    else
        inst->boardLine.setRate(mode == App ? boardRate : loaderRate);
}

void Board::tick(double now)
{
    if (mode == LoaderWindow && now >= windowEnd) {
        mode = App;
        inst->boardLine.setRate(inst->fast ? 0.0 : boardRate);
    }
    if (powered && mode == App && faults.count("endless") && !inst->boardLine.outputPending())
        inst->boardLine.send(".", 20.0);
}

void Board::input(const std::string& bytes)
{
    if (!powered)
        return; // a board without supply hears nothing
    std::string rest = bytes;
    if (mode == LoaderWindow) {
        size_t i = 0;
        if (!rest.empty() && rest[0] == 0x25) {
            mode = Loader;
            rest.erase(0, 1);
        } else if (!rest.empty()) {
            mode = App;
            inst->boardLine.setRate(inst->fast ? 0.0 : boardRate);
        }
        (void)i;
    }
    if (mode == Loader) {
        loaderInput(rest);
        return;
    }
    for (char c : rest) {
        if (c == '\r') {
            std::string line = pending;
            pending.clear();
            command(line);
        } else if (c != '\n') {
            pending += c;
            if (pending.size() > 4096)
                pending.clear();
        }
    }
}

void Board::loaderInput(const std::string& bytes)
{
    loaderBuffer += bytes;
    SerialLine& line = inst->boardLine;
    // A forced answer replaces the loader's own; the command still acts.
    auto forced = [this](int command) {
        auto found = loaderReplies.find(command);
        return found != loaderReplies.end() && !found->second.empty() ? &found->second : nullptr;
    };
    auto answer = [this, &line, &forced](int command, const std::string& own) {
        if (silentCommands.count(command))
            return;
        std::deque<std::string>* queue = forced(command);
        if (queue == nullptr) {
            line.send(own);
            return;
        }
        line.send(queue->front());
        queue->pop_front();
    };
    for (;;) {
        if (loaderBuffer.empty())
            return;
        uint8_t b = static_cast<uint8_t>(loaderBuffer[0]);
        size_t rowBytes = static_cast<size_t>(rowSize()) * 3;
        switch (b) {
        case 0x11: {
            loaderBuffer.erase(0, 1);
            std::string r;
            r += static_cast<char>(loaderVersion);
            r += '\0';
            answer(0x11, r);
            break;
        }
        case 0x09: {
            loaderBuffer.erase(0, 1);
            std::string r(8, '\0');
            r[0] = static_cast<char>(chipId & 0xFF);
            r[1] = static_cast<char>((chipId >> 8) & 0xFF);
            r[5] = static_cast<char>((chipProcess & 0x0F) << 4);
            answer(0x09, r);
            break;
        }
        case 0x02: {
            if (loaderBuffer.size() < 4)
                return;
            uint32_t address = static_cast<uint8_t>(loaderBuffer[1]) |
                               (static_cast<uint8_t>(loaderBuffer[2]) << 8) |
                               (static_cast<uint32_t>(static_cast<uint8_t>(loaderBuffer[3])) << 16);
            loaderBuffer.erase(0, 4);
            // Each instruction goes out high byte first: upper, middle, low.
            std::string r;
            for (int i = 0; i < rowSize(); i++) {
                auto found = flash.find(address + 2 * static_cast<uint32_t>(i));
                uint32_t word = found == flash.end() ? 0xFFFFFF : found->second;
                r += static_cast<char>((word >> 16) & 0xFF);
                r += static_cast<char>((word >> 8) & 0xFF);
                r += static_cast<char>(word & 0xFF);
            }
            answer(0x02, r);
            break;
        }
        case 0x03: {
            if (loaderBuffer.size() < 4 + rowBytes)
                return;
            uint32_t address = static_cast<uint8_t>(loaderBuffer[1]) |
                               (static_cast<uint8_t>(loaderBuffer[2]) << 8) |
                               (static_cast<uint32_t>(static_cast<uint8_t>(loaderBuffer[3])) << 16);
            // Each instruction comes low byte first, as the HEX file has it.
            for (int i = 0; i < rowSize(); i++) {
                size_t o = 4 + 3 * static_cast<size_t>(i);
                uint32_t word =
                    static_cast<uint8_t>(loaderBuffer[o]) |
                    (static_cast<uint8_t>(loaderBuffer[o + 1]) << 8) |
                    (static_cast<uint32_t>(static_cast<uint8_t>(loaderBuffer[o + 2])) << 16);
                flash[address + 2 * static_cast<uint32_t>(i)] = word;
            }
            loaderBuffer.erase(0, 4 + rowBytes);
            if (nakCount != 0) {
                if (nakCount > 0)
                    nakCount--;
                if (!silentCommands.count(0x03))
                    line.send(std::string(1, '\0'));
            } else if (forced(0x03) != nullptr && forced(0x03)->front() != std::string(1, '\x01')) {
                answer(0x03, std::string()); // a garbled acknowledgement: not taken as written
            } else {
                rowsWritten.push_back(address);
                answer(0x03, std::string(1, '\x01'));
            }
            break;
        }
        case 0x08:
            loaderBuffer.clear();
            greet();
            return;
        default: // 0x25 and anything unknown
            loaderBuffer.erase(0, 1);
        }
    }
}

long Board::condition(double* voc, double* isc)
{
    PvFigures f = inst->pv.figures();
    *voc = f.voc;
    *isc = f.isc;
    if (forcedStatus >= 0)
        return forcedStatus;
    switch (inst->fault) {
    case SourceFault::Reverse:
        return 7;
    case SourceFault::Floating:
        return 8;
    case SourceFault::Open:
        *voc = *isc = 0;
        return 10;
    default:
        break;
    }
    if (f.voc > 1000.0)
        return 3;
    if (f.isc > 20.0)
        return 4;
    if (f.pmax > 15000.0)
        return 5;
    if (hsink_now(nowMs()) >= hsinkLimit)
        return 11;
    if (f.voc < 1.0)
        return 9;
    if (f.isc < 0.05)
        return 10;
    return 0;
}

void Board::reply(const std::string& echo, const std::vector<std::string>& data, long status,
                  bool dataOnError)
{
    SerialLine& line = inst->boardLine;
    line.setRate(inst->fast ? 0.0 : boardRate);
    std::string head;
    if (faults.count("stray"))
        head += "#~\x7f@x";
    if (faults.count("noise")) {
        uint32_t seed = static_cast<uint32_t>(log.size()) * 2654435761u + 12345u;
        for (int i = 0; i < 24; i++) {
            seed = seed * 1103515245u + 12345u;
            char c = static_cast<char>((seed >> 16) & 0xFF);
            if (c == '\r' || c == '\n' || c == 'E')
                c = '\0';
            head += c;
        }
    }
    line.send(head + echo + "\r");
    std::vector<std::string> lines;
    if (status == 0 || dataOnError)
        lines = data;
    double measure = inst->fast ? 0.0 : (lines.size() > 16 ? measureMs : 50.0);
    if (faults.count("garbage")) {
        std::vector<std::string> mixed;
        mixed.push_back("@@!!##");
        for (size_t i = 0; i < lines.size(); i++) {
            mixed.push_back(lines[i]);
            if (i % 16 == 15)
                mixed.push_back("x?y\t*z");
        }
        lines = mixed;
    }
    std::string first, second;
    size_t half = lines.size() / 2;
    for (size_t i = 0; i < lines.size(); i++) {
        if (i == half && faults.count("midstatus"))
            first += format("ERROR %ld\r", faults["midstatus"]);
        (i < half ? first : second) += lines[i] + eol;
    }
    // A NUL byte on the line behind the echo, at the start of the second half of
    // the data (or alone when there is no data), before the status line.
    if (faults.count("nul"))
        second.insert(0, 1, '\0');
    auto longFault = faults.find("long");
    if (longFault != faults.end()) {
        std::string filler = lines.empty() ? std::string("0") : lines.back();
        size_t total = head.size() + echo.size() + 1 + first.size() + second.size();
        while (total < static_cast<size_t>(longFault->second)) {
            second += filler + eol;
            total += filler.size() + eol.size();
        }
    }
    line.send(first, measure);
    auto pause = faults.find("pause");
    line.send(second, pause != faults.end() ? static_cast<double>(pause->second) : 0.0);
    if (!faults.count("nostatus"))
        line.send(format("ERROR %ld\r", status));
    for (const auto& once : onceFaults)
        faults.erase(once);
    onceFaults.clear();
}

void Board::command(const std::string& text)
{
    log.push_back(text);
    if (!forcedReplies.empty()) {
        inst->boardLine.setRate(inst->fast ? 0.0 : boardRate);
        inst->boardLine.send(forcedReplies.front(), inst->fast ? 0.0 : 50.0);
        forcedReplies.pop_front();
        return;
    }
    std::vector<std::string> w = splitWords(text);
    std::string cmd = w.empty() ? std::string() : w[0];
    auto arg = [&w](size_t i, long fallback) {
        long v = fallback;
        if (i < w.size() && !parseInt(w[i], &v))
            v = fallback;
        return v;
    };
    const Calibration& c = inst->cal;
    auto iCount = [&c](double amps, int range) {
        return clampCount(amps / c.adci[range] + c.adciOffset[range]);
    };
    auto vCount = [&c](double volts, int range) {
        return clampCount((volts - c.adcvOffset[range]) / c.adcv[range]);
    };
    std::vector<std::string> data;
    double now = nowMs();

    if (cmd == "ver") {
        reply(text, {version}, forcedStatus > 0 ? forcedStatus : 0, false);
        return;
    }
    if (cmd == "temp_hsink") {
        reply(text, {format("%.2f", hsink_now(now))}, 0, false);
        return;
    }
    if (cmd == "info_last") {
        double voc, isc;
        long st = condition(&voc, &isc);
        (void)st;
        data.push_back(format("%d\t%d\t%d\t%d\t%d\t%ld\t%ld\t%d\t%ld", voc > 500.0 ? 1 : 0, 2, 8,
                              250, 127, iCount(isc, 1), vCount(voc, 1), 2047,
                              std::lround(2048.0 - 20.0 * (hsink_now(now) - 25.0))));
        reply(text, data, 0, false);
        return;
    }
    bool ramp = cmd == "ramp" || cmd == "charge" || cmd == "mea_utroque" || cmd == "mea_brask";
    bool ztest = cmd == "Z_tst_brask" || cmd == "Z_kill_brask" || cmd == "Z_sweep_brask";
    bool single =
        cmd == "curr_mean" || cmd == "volt_mean" || cmd == "volt_spot" || cmd == "volt_sum";
    if (!ramp && !ztest && !single) {
        reply(text, {}, 1, false); // unknown command
        return;
    }
    double voc, isc;
    long status = condition(&voc, &isc);
    if (single) {
        int range = arg(1, 0) == 1 ? 1 : 0;
        if (cmd == "curr_mean")
            data.push_back(format("%ld", iCount(isc, range)));
        else if (cmd == "volt_mean" || cmd == "volt_spot")
            data.push_back(format("%ld", vCount(voc, range)));
        else
            data.push_back(format("%ld", 64 * vCount(voc, range)));
        reply(text, data, status, false);
        return;
    }
    // A sweep of the electronic load from open circuit to short circuit.
    int points = 128;
    int range = 1;
    if (cmd == "ramp" || cmd == "charge") {
        points = static_cast<int>(std::max(1L, std::min(512L, arg(1, 1))));
        range = arg(2, 0) == 1 ? 1 : 0;
    } else if (cmd == "mea_utroque") {
        points = 512;
    }
    if (status == 0 || ztest) {
        bool dead = status != 0 && inst->fault != SourceFault::None;
        long target = arg(1, 0);
        for (int k = 0; k < points; k++) {
            double v = points > 1 ? voc * (1.0 - static_cast<double>(k) / (points - 1)) : 0.0;
            double i = dead ? 0.0 : std::max(0.0, inst->pv.sweepCurrentAt(v));
            if (dead)
                v = 0.0;
            if (cmd == "ramp" || cmd == "charge" || cmd == "mea_utroque") {
                data.push_back(
                    format("%ld\t%ld", noisy(iCount(i, range)), noisy(vCount(v, range))));
            } else {
                long gate1 =
                    ztest ? (cmd == "Z_sweep_brask" ? target * k / 127 : target) : 600 + 10 * k;
                long gate2 = std::max(0L, gate1 - 3);
                data.push_back(
                    format("%ld\t%ld\t%ld\t%ld", iCount(i, range), vCount(v, range), gate1, gate2));
            }
        }
        // The load took the module's power for about a second.
        PvFigures f = inst->pv.figures();
        if (!hsinkHeld)
            hsink = hsink_now(now) + 0.3 + (dead ? 0.0 : f.pmax / heatCapacity);
    }
    reply(text, data, status, ztest);
}

} // namespace sim
