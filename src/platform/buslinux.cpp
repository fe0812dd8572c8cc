// The Linux back end of the bus interface: the real ioctls of spidev, i2c-dev
// and the board's GPIO driver, on device nodes resolved through the system
// root. The device program links this file (library krm510bus_linux).
#include "platform/bus.h"

#include "platform/systemroot.h"

#include <cstring>
#include <fcntl.h>
#include <linux/i2c-dev.h>
#include <linux/spi/spidev.h>
#include <sys/ioctl.h>
#include <unistd.h>

int Bus::open(const char* devicePath, int flags)
{
    if (devicePath == nullptr)
        return -1;
    return ::open(SystemRoot::path(devicePath).c_str(), flags);
}

int Bus::close(int fd)
{
    return ::close(fd);
}

int Bus::spiWriteMode(int fd, uint8_t mode)
{
    return ioctl(fd, SPI_IOC_WR_MODE, &mode);
}

int Bus::spiReadMode(int fd, uint8_t* mode)
{
    return ioctl(fd, SPI_IOC_RD_MODE, mode);
}

int Bus::spiWriteBitsPerWord(int fd, uint8_t bits)
{
    return ioctl(fd, SPI_IOC_WR_BITS_PER_WORD, &bits);
}

int Bus::spiReadBitsPerWord(int fd, uint8_t* bits)
{
    return ioctl(fd, SPI_IOC_RD_BITS_PER_WORD, bits);
}

int Bus::spiWriteMaxSpeed(int fd, uint32_t hz)
{
    return ioctl(fd, SPI_IOC_WR_MAX_SPEED_HZ, &hz);
}

int Bus::spiReadMaxSpeed(int fd, uint32_t* hz)
{
    return ioctl(fd, SPI_IOC_RD_MAX_SPEED_HZ, hz);
}

int Bus::spiTransfer(int fd, const uint8_t* tx, uint8_t* rx, size_t len)
{
    if (tx == nullptr)
        return -1;
    struct spi_ioc_transfer transfer;
    memset(&transfer, 0, sizeof transfer);
    transfer.tx_buf = reinterpret_cast<unsigned long>(tx);
    transfer.rx_buf = reinterpret_cast<unsigned long>(rx);
    transfer.len = static_cast<uint32_t>(len);
    return ioctl(fd, SPI_IOC_MESSAGE(1), &transfer);
}

int Bus::i2cSlave(int fd, int address)
{
    return ioctl(fd, I2C_SLAVE, address);
}

int Bus::i2cTimeout(int fd, int value)
{
    return ioctl(fd, I2C_TIMEOUT, value);
}

int Bus::i2cRetries(int fd, int value)
{
    return ioctl(fd, I2C_RETRIES, value);
}

int Bus::i2cWrite(int fd, const uint8_t* data, size_t len)
{
    if (data == nullptr)
        return -1;
    return static_cast<int>(::write(fd, data, len));
}

int Bus::gpioRequest(int fd, GpioRequest request, int* arg)
{
    if (request == GPIO_READ || request == GPIO_WRITE) {
        if (arg == nullptr)
            return -1;
        return ioctl(fd, static_cast<unsigned long>(request), arg);
    }
    return ioctl(fd, static_cast<unsigned long>(request), 0);
}
