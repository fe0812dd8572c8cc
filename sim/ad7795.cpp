// The AD7795 as the program sees it through spidev: the communications
// register and the registers behind it (status, mode, configuration, data,
// ID, IO), continuous conversion with RDY, results from the world.
#include "instrument.h"

#include "util.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {
// Output data rates of the mode register's FS code, Hz (data sheet table).
const double updateRates[16] = {470, 470, 242, 123, 62, 50, 39, 33.2,
                                19.6, 16.7, 16.7, 12.5, 10, 8.33, 6.25, 4.17};
const int registerSize[8] = {1, 2, 2, 2, 1, 1, 2, 2};
} // namespace

void Ad7795::reset()
{
    mode = 0x000A;
    config = 0x0710;
    io = 0;
    startedAt = nowMs();
    busyPolls = 1;
    dataRead = false;
}

double Ad7795::conversionMs() const
{
    return 1000.0 / updateRates[mode & 0x0F];
}

bool Ad7795::ready()
{
    if (stuck || dataRead)
        return false;
    if (inst->fast) {
        if (busyPolls > 0) {
            busyPolls--;
            return false;
        }
        return true;
    }
    // After a restart a conversion needs the filter's settling time, twice
    // the conversion period.
    return nowMs() - startedAt >= 2.0 * conversionMs();
}

long Ad7795::count(int channel, int gain, bool unipolar) const
{
    auto forcedCount = forced.find(channel);
    if (forcedCount != forced.end())
        return forcedCount->second;
    const Calibration& c = inst->cal;
    const Environment& e = inst->env;
    double excitationMa = 0.0;
    switch (io & 0x03) {
    case 1:
        excitationMa = 0.010;
        break;
    case 2:
        excitationMa = 0.210;
        break;
    case 3:
        excitationMa = 1.0;
        break;
    default:
        break;
    }
    double mv = 0.0;
    switch (channel) {
    case 0: // AIN1: pyranometer
        mv = std::max(0.0, e.irradiance) / 1000.0 * c.pyranoSens;
        break;
    case 2: { // AIN3: PT100
        if (e.pt100Open && excitationMa > 0)
            return 65535;
        double t = e.probeOnModule ? inst->moduleTemperature() : e.tambient;
        mv = excitationMa * 100.0 * (1.0 + c.pt100Alpha * t);
        break;
    }
    case 3: // AIN4: reference resistor
        mv = excitationMa * c.rref;
        break;
    case 5: // AIN6: battery divider
        mv = e.battery * c.batteryDivider * 1000.0;
        break;
    default:
        mv = 0.0;
    }
    double code;
    if (unipolar)
        code = mv * gain * c.kpyra;
    else
        code = 32768.0 + mv * gain * c.kpyra / 2.0;
    if (!std::isfinite(code))
        return 0;
    return std::lround(std::max(0.0, std::min(65535.0, code)));
}

std::string Ad7795::transfer(const std::string& tx)
{
    transfers++;
    std::string rx(tx.size(), '\xff');
    size_t pos = 0;
    int ones = 0;
    while (pos < tx.size()) {
        uint8_t comm = static_cast<uint8_t>(tx[pos]);
        if (comm == 0xFF) {
            // 32 ones in a row reset the serial interface and the chip.
            if (++ones >= 4)
                reset();
            pos++;
            continue;
        }
        ones = 0;
        if (comm & 0x80) { // WEN high: not a write to the communications register
            pos++;
            continue;
        }
        bool read = (comm & 0x40) != 0;
        int rs = (comm >> 3) & 0x07;
        int size = registerSize[rs];
        if (read) {
            uint32_t value = 0;
            switch (rs) {
            case 0: { // status
                bool rdy = ready();
                value = (rdy ? 0x00 : 0x80) | 0x08 | (config & 0x07);
                break;
            }
            case 1:
                value = mode;
                break;
            case 2:
                value = config;
                break;
            case 3: {
                int gain = 1 << ((config >> 8) & 0x07);
                bool unipolar = (config & 0x1000) != 0;
                value = static_cast<uint32_t>(count(config & 0x0F, gain, unipolar));
                // The next result of the continuous conversion comes one
                // conversion period later.
                startedAt = nowMs() - conversionMs();
                busyPolls = 1;
                break;
            }
            case 4:
                value = 0x0E; // AD7795
                break;
            case 5:
                value = io;
                break;
            case 6:
                value = 0x8000;
                break;
            default:
                value = 0x5000;
            }
            for (int i = 0; i < size && pos + 1 + static_cast<size_t>(i) < tx.size(); i++)
                rx[pos + 1 + static_cast<size_t>(i)] =
                    static_cast<char>((value >> (8 * (size - 1 - i))) & 0xFF);
            pos += 1 + static_cast<size_t>(size);
            continue;
        }
        if (pos + 1 + static_cast<size_t>(size) > tx.size())
            break; // an unfinished write is dropped
        uint32_t value = 0;
        for (int i = 0; i < size; i++)
            value = (value << 8) | static_cast<uint8_t>(tx[pos + 1 + static_cast<size_t>(i)]);
        switch (rs) {
        case 1:
            mode = static_cast<uint16_t>(value);
            startedAt = nowMs();
            busyPolls = 1;
            dataRead = false;
            break;
        case 2:
            config = static_cast<uint16_t>(value);
            startedAt = nowMs();
            busyPolls = 1;
            dataRead = false;
            break;
        case 5:
            io = static_cast<uint8_t>(value);
            break;
        default:
            break;
        }
        pos += 1 + static_cast<size_t>(size);
    }
    return rx;
}

} // namespace sim
