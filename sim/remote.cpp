// The remote sensor unit: text commands ending in CR, answers ending in CR LF,
// no echo and no status line. Generation 1 answers converter counts (its own
// AD converter, pyranometer channel at the gain its sensitivity calls for,
// PT100 and reference at gain 16 with 1 mA); generation 2 answers values.
#include "instrument.h"

#include "util.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace sim {

namespace {
const double remoteRate = 3840.0; // 38400 baud

// The gain code that a sensitivity calls for (the full sensor output fills
// the converter), as the instrument's own front end picks it.
int gainCode(double sens)
{
    if (sens >= 625.0)
        return 0;
    if (sens >= 312.2)
        return 1;
    if (sens >= 156.2)
        return 2;
    if (sens >= 78.125)
        return 3;
    if (sens >= 39.06)
        return 4;
    if (sens >= 19.53)
        return 5;
    if (sens >= 9.76)
        return 6;
    return 7;
}

long adcCount(double mv, int gain, double k)
{
    double code = mv * gain * k;
    if (!std::isfinite(code))
        return 0;
    return std::lround(std::max(0.0, std::min(65535.0, code)));
}
} // namespace

void RemoteUnit::input(const std::string& bytes)
{
    for (char c : bytes) {
        if (c == '\r') {
            std::string text = pending;
            pending.clear();
            command(text);
        } else if (c != '\n') {
            pending += c;
            if (pending.size() > 1024)
                pending.clear();
        }
    }
}

void RemoteUnit::command(const std::string& text)
{
    log.push_back(text);
    std::vector<std::string> w = splitWords(text);
    if (w.empty())
        return;
    const std::string& cmd = w[0];
    const Calibration& c = inst->cal;
    const Environment& e = inst->env;
    std::string answer;
    bool answered = true;
    if (cmd == "VERSION") {
        answer = generation >= 2 ? "KRM510RU : VER 2.1.0" : "KRM510RU : VER 1.0.3";
    } else if (cmd == "PYSENS") {
        double v;
        if (w.size() > 1 && parseDouble(w[1], &v) && v > 0)
            sensitivity = v;
        answered = false;
    } else if (cmd == "TOFF" || cmd == "TON" || cmd == "STOPREMOTO") {
        answered = false;
    } else if (generation < 2 && cmd == "ADCPIRANO") {
        double mv = noIrradiance ? 0.0 : std::max(0.0, e.irradiance) / 1000.0 * c.pyranoSens;
        answer = format("%ld", adcCount(mv, 1 << gainCode(c.pyranoSens), c.kpyra));
    } else if (generation < 2 && (cmd == "ADCPANEL" || cmd == "ADCAMBIENT")) {
        bool none = cmd == "ADCPANEL" ? noCell : noAmbient;
        double t = cmd == "ADCPANEL" ? inst->moduleTemperature() : e.tambient;
        answer = none ? std::string("65535")
                      : format("%ld", adcCount(100.0 * (1.0 + c.pt100Alpha * t), 16, c.kpyra));
    } else if (generation < 2 && cmd == "ADCREF") {
        answer = format("%ld", adcCount(c.rref, 16, c.kpyra));
    } else if (generation >= 2 && cmd == "IRR") {
        // The unit divides its pyranometer's millivolts by the sensitivity it was told.
        double mv = std::max(0.0, e.irradiance) / 1000.0 * c.pyranoSens;
        answer = noIrradiance ? std::string("IRR = -- W/m2")
                              : format("IRR = %.1f W/m2", mv / sensitivity * 1000.0);
    } else if (generation >= 2 && cmd == "TEMPCELL") {
        answer = noCell ? std::string("TEMP CELL = -- C")
                        : format("TEMP CELL = %.1f C", inst->moduleTemperature());
    } else if (generation >= 2 && cmd == "TEMPENV") {
        answer = noAmbient ? std::string("TEMP ENV = -- C") : format("TEMP ENV = %.1f C", e.tambient);
    } else {
        answered = false;
    }
    if (!answered)
        return;
    line.setRate(inst->fast ? 0.0 : remoteRate);
    if (!forcedReplies.empty()) {
        // A forced answer stands as it is, without CR LF.
        line.send(forcedReplies.front(), inst->fast ? 0.0 : 100.0);
        forcedReplies.pop_front();
        return;
    }
    line.send(answer + "\r\n", inst->fast ? 0.0 : 100.0);
}

} // namespace sim
