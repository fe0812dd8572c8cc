#include "device/monitor.h"

#include "platform/bus.h"

#include <cstdint>
#include <fcntl.h>

namespace {

const char* const i2cDevice = "/dev/i2c-1";
const int dimmerAddress = 0x60;

// Opens the bus and addresses the dimmer: the descriptor or -1.
int openDimmer()
{
    int fd = Bus::open(i2cDevice, O_RDWR);
    if (fd < 0)
        return -1;
    if (Bus::i2cSlave(fd, dimmerAddress) < 0) {
        Bus::close(fd);
        return -1;
    }
    Bus::i2cTimeout(fd, 1);
    Bus::i2cRetries(fd, 1);
    Bus::i2cSlave(fd, dimmerAddress);
    return fd;
}

} // namespace

unsigned char monitor_pwm_byte(int percent)
{
    // (100 - 0) * 2.55 is just below 255 in double precision: 254.
    return static_cast<unsigned char>(static_cast<int>((100 - percent) * 2.55));
}

int monitor_set_value(int percent)
{
    if (static_cast<unsigned int>(percent) > 100)
        return -1;
    const uint8_t write[2] = {2, monitor_pwm_byte(percent)};
    int fd = openDimmer();
    if (fd < 0)
        return -1;
    Bus::i2cWrite(fd, write, sizeof write);
    Bus::close(fd);
    return 0;
}

int monitor_pwm_set_default()
{
    int fd = openDimmer();
    if (fd < 0)
        return -1;
    // PSC0 0, PWM0 0, PSC1 0, PWM1 0x40, LS0 0x0E: output 0 on PWM0, 1 on PWM1.
    const uint8_t writes[5][2] = {{1, 0x00}, {2, 0x00}, {3, 0x00}, {4, 0x40}, {5, 0x0E}};
    for (const auto& write : writes) {
        Bus::i2cSlave(fd, dimmerAddress);
        Bus::i2cWrite(fd, write, sizeof write);
    }
    Bus::close(fd);
    return 0;
}
