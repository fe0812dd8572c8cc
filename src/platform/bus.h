#ifndef KRM_PLATFORM_BUS_H
#define KRM_PLATFORM_BUS_H

#include <cstddef>
#include <cstdint>

// The SPI, I2C and GPIO requests of the instrument, one call per ioctl or
// write of the device driver. Two back ends implement this interface and the
// program is linked with one of them: the Linux one issues the real ioctls on
// the device nodes; the simulated one sends each request to the simulated
// instrument and waits for its answer. The code above never knows which.
//
// Device paths are the instrument's ("/dev/spidev0.0", "/dev/i2c-1",
// "/dev/gpio/93"); they are resolved through the system root here. Each call
// returns what the system call would: -1 on failure, a descriptor from the
// opens, the ioctl's result otherwise.
class Bus
{
public:
    // Flags as for open(2): O_RDONLY or O_RDWR.
    static int open(const char* devicePath, int flags);
    static int close(int fd);

    // spidev: SPI_IOC_WR_MODE / SPI_IOC_RD_MODE and the like.
    static int spiWriteMode(int fd, uint8_t mode);
    static int spiReadMode(int fd, uint8_t* mode);
    static int spiWriteBitsPerWord(int fd, uint8_t bits);
    static int spiReadBitsPerWord(int fd, uint8_t* bits);
    static int spiWriteMaxSpeed(int fd, uint32_t hz);
    static int spiReadMaxSpeed(int fd, uint32_t* hz);
    // One SPI_IOC_MESSAGE(1): len bytes out of tx (never null), into rx when
    // rx is not null. Returns the byte count or -1.
    static int spiTransfer(int fd, const uint8_t* tx, uint8_t* rx, size_t len);

    // i2c-dev: I2C_SLAVE, I2C_TIMEOUT, I2C_RETRIES and a plain write.
    static int i2cSlave(int fd, int address);
    static int i2cTimeout(int fd, int value);
    static int i2cRetries(int fd, int value);
    static int i2cWrite(int fd, const uint8_t* data, size_t len);

    // The board's GPIO driver: one node per line, four requests.
    enum GpioRequest : unsigned long {
        GPIO_SET_INPUT = 0x4700,
        GPIO_READ = 0x80044701,
        GPIO_SET_OUTPUT = 0x4702,
        GPIO_WRITE = 0x40044703
    };
    // arg is read (GPIO_WRITE) or written (GPIO_READ); null for the others.
    static int gpioRequest(int fd, GpioRequest request, int* arg);
};

#endif
