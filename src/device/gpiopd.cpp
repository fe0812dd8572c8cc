#include "device/gpiopd.h"

#include "platform/bus.h"

#include <fcntl.h>

namespace {
// 1 while the adapter line is being read.
int power_supply_open = 0;
} // namespace

int isPowerSupply()
{
    power_supply_open = 1;
    int level = -1;
    int fd = Bus::open("/dev/gpio/105", O_RDWR);
    if (fd >= 0) {
        int result = Bus::gpioRequest(fd, Bus::GPIO_SET_INPUT, nullptr);
        if (result >= 0) {
            int read = 0;
            result = Bus::gpioRequest(fd, Bus::GPIO_READ, &read);
            level = result < 0 ? result : read;
        } else {
            level = result;
        }
        Bus::close(fd);
    }
    power_supply_open = 0;
    return level;
}

int powerDeviceStart(int value)
{
    if (static_cast<unsigned int>(value) > 1)
        return -4;
    int fd = Bus::open("/dev/gpio/106", O_RDWR);
    if (fd < 0)
        return -3;
    // The line stays open when it cannot be made an output, as it always has.
    if (Bus::gpioRequest(fd, Bus::GPIO_SET_OUTPUT, nullptr) < 0)
        return -2;
    int result = Bus::gpioRequest(fd, Bus::GPIO_WRITE, &value);
    Bus::close(fd);
    return result;
}
