#include "device/ad7795.h"

#include "platform/bus.h"
#include "platform/clock.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>

namespace {

const char* const spiDevice = "/dev/spidev0.0";

float s_pyrano = 10.54f;
unsigned char g_ad_pyrano = 64;
float k_pyrano = 0;
int lettura_in_corso = 0;
int adlevel_old = 0;
float irr_old = 0;
float temperature_old = 0;

// Mode register: continuous conversion, internal 64 kHz clock, FS = 9.
const uint8_t modeWrite[3] = {0x08, 0x00, 0x09};
// IO register: both excitation currents on at 1 mA.
const uint8_t ioWrite[2] = {0x28, 0x03};
const uint8_t configRegister = 0x10;
const uint8_t statusRead[2] = {0x40, 0x00};
const uint8_t dataRead[3] = {0x58, 0x00, 0x00};
const uint8_t rdyBit = 0x80;
// Status reads before a conversion that has not become ready is given up as a
// failed transfer. A status read of two bytes at 4 MHz takes about 0.1 ms on
// the instrument's bus, so 10000 polls last about a second: eight times the
// slowest conversion of the set-up (the first one on a new channel, twice the
// 60 ms of FS 9). The bound counts polls, not time, so it is the same at any
// pace of the clock. The old instrument trusted RDY and polled for ever.
const int maxReadyPolls = 10000;

} // namespace

int open_ad7795()
{
    lettura_in_corso = 1;
    int fd = Bus::open(spiDevice, O_RDWR);
    if (fd < 0) {
        lettura_in_corso = 0;
        return -1;
    }
    uint8_t mode = 3;
    uint8_t bits = 8;
    uint32_t speed = 4000000;
    if (Bus::spiWriteMode(fd, mode) < 0 || Bus::spiReadMode(fd, &mode) < 0 ||
        Bus::spiWriteBitsPerWord(fd, bits) < 0 || Bus::spiReadBitsPerWord(fd, &bits) < 0 ||
        Bus::spiWriteMaxSpeed(fd, speed) < 0 || Bus::spiReadMaxSpeed(fd, &speed) < 0) {
        Bus::close(fd);
        lettura_in_corso = 0;
        return -1;
    }
    return fd;
}

int init_ad7795()
{
    lettura_in_corso = 1;
    int fd = open_ad7795();
    if (fd < 0) {
        lettura_in_corso = 0;
        std::printf("ad7795 open error\n");
        std::fflush(stdout);
        return -1;
    }
    const uint8_t configWrite[3] = {configRegister, 0x14, 0x33};
    int result = Bus::spiTransfer(fd, modeWrite, nullptr, sizeof modeWrite);
    if (result >= 0)
        result = Bus::spiTransfer(fd, configWrite, nullptr, sizeof configWrite);
    if (result >= 0)
        result = Bus::spiTransfer(fd, ioWrite, nullptr, sizeof ioWrite);
    Bus::close(fd);
    lettura_in_corso = 0;
    Clock::usleep(1000);
    return result;
}

int read_probe(int fd, _probe probe)
{
    lettura_in_corso = 1;
    uint8_t config[3] = {configRegister, 0x14, 0x33};
    switch (probe) {
    case AD_REFERENCE:
        break;
    case AD_PT100:
        config[2] = 0x32;
        break;
    case AD_PYRANO:
        config[1] = static_cast<uint8_t>(0x10 + g_ad_pyrano);
        config[2] = 0x30;
        break;
    case AD_BATTERY:
        config[1] = 0x10;
        config[2] = 0x35;
        break;
    }
    uint8_t rx[3] = {0, 0, 0};
    int result = 0;
    // Writing the mode restarts the conversion on the new channel.
    if (Bus::spiTransfer(fd, modeWrite, rx, sizeof modeWrite) >= 0 &&
        Bus::spiTransfer(fd, config, rx, sizeof config) >= 0) {
        Clock::usleep(100);
        bool ready = false;
        bool failed = false;
        for (int poll = 0; !ready && !failed; poll++) {
            if (poll == maxReadyPolls) {
                failed = true;
                break;
            }
            uint8_t status[2] = {0, 0};
            failed = Bus::spiTransfer(fd, statusRead, status, sizeof statusRead) < 0;
            ready = (status[1] & rdyBit) == 0;
        }
        if (!failed && Bus::spiTransfer(fd, dataRead, rx, sizeof dataRead) >= 0)
            result = rx[1] * 256 + rx[2];
    }
    lettura_in_corso = 0;
    return result;
}

void setKforPyrano(float k)
{
    k_pyrano = k;
}

void setGforPyrano(float sens)
{
    s_pyrano = sens;
    // The lower limit of each row belongs to it.
    if (sens < 9.76f)
        g_ad_pyrano = 7;
    else if (sens < 19.53f)
        g_ad_pyrano = 6;
    else if (sens < 39.06f)
        g_ad_pyrano = 5;
    else if (sens < 78.125f)
        g_ad_pyrano = 4;
    else if (sens < 156.2f)
        g_ad_pyrano = 3;
    else if (sens < 312.2f)
        g_ad_pyrano = 2;
    else if (sens < 625.0f)
        g_ad_pyrano = 1;
    else
        g_ad_pyrano = 0;
}

unsigned char getGforPyrano()
{
    return g_ad_pyrano;
}

float getSensPyrano()
{
    return s_pyrano;
}

float calc_irr(unsigned int level)
{
    float value = static_cast<float>(level);
    value /= k_pyrano;
    value /= std::ldexp(1.0f, g_ad_pyrano);
    value /= s_pyrano;
    value *= 1000.0f;
    return value;
}

float irradiationAcquire(char* ok)
{
    *ok = 0;
    if (lettura_in_corso)
        return irr_old;
    int fd = open_ad7795();
    if (fd < 0)
        return irr_old;
    int count = read_probe(fd, AD_PYRANO);
    Bus::close(fd);
    *ok = count != 0;
    float value = calc_irr(static_cast<unsigned int>(count));
    // A value that is not a number (a scale of 0 in the settings) is a failed
    // reading: the last value stands and is not replaced by it.
    if (!std::isfinite(value)) {
        *ok = 0;
        return irr_old;
    }
    if (value < 0.01)
        *ok = 0;
    irr_old = value;
    return value;
}

float pt100Temperature(int reference, int pt100, float gain, float offset)
{
    float ratio = static_cast<float>(pt100) / static_cast<float>(reference);
    float degrees = static_cast<float>((static_cast<double>(ratio) - 1.0) * 100.0 / 0.385);
    return degrees * gain + offset;
}

float temperatureAcquire(char* ok, float gain, float offset)
{
    *ok = 0;
    if (lettura_in_corso)
        return temperature_old;
    int fd = open_ad7795();
    if (fd < 0)
        return temperature_old;
    int reference = read_probe(fd, AD_REFERENCE);
    Clock::usleep(100);
    int pt100 = read_probe(fd, AD_PT100);
    Bus::close(fd);
    // 65535 is what an open probe reads.
    *ok = pt100 != 65535;
    float value = pt100Temperature(reference, pt100, gain, offset);
    // A reference count of 0 (a failed transfer) gives no number: the old
    // instrument stored it and, as no comparison holds for it, called it good.
    // It is a failed reading; the last value stands and is not replaced.
    if (!std::isfinite(value)) {
        *ok = 0;
        return temperature_old;
    }
    temperature_old = value;
    if (value < -10.0)
        *ok = 0;
    return value;
}

int batteryLevelOfCount(int count)
{
    if (count > 33686)
        return 0;
    if (count > 32784)
        return 1;
    if (count > 32064)
        return 2;
    if (count > 31112)
        return 3;
    if (count > 30080)
        return 4;
    if (count > 29184)
        return 5;
    if (count > 27930)
        return 6;
    return 7;
}

int batteryLevel()
{
    if (!lettura_in_corso) {
        int fd = open_ad7795();
        if (fd >= 0) {
            int count = read_probe(fd, AD_BATTERY);
            Bus::close(fd);
            adlevel_old = count;
        }
    }
    return batteryLevelOfCount(adlevel_old);
}
