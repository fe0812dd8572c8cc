// The simulated back end of the bus interface (library krm510bus_sim), linked
// by the desktop variant and by the tests. The device node is opened for real
// under the system root (the simulator creates it as a plain file and may take
// it away), so a missing device fails as on the instrument and descriptors are
// real. Every request is then sent as one text line over the Unix socket
// "<root>/dev/krm510-sim.sock" to the simulated instrument, which answers with
// one line: "ok <result> [hex bytes]". No simulator, or one that does not
// answer within a few seconds, makes the request fail with -1.
#include "platform/bus.h"

#include "platform/systemroot.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

struct OpenDevice {
    std::string path; // as the program named it, e.g. "/dev/i2c-1"
    int i2cAddress = -1;
};

std::map<int, OpenDevice> openDevices;

const char* const socketDevicePath = "/dev/krm510-sim.sock";
const int replyTimeoutSeconds = 3;

bool sendAll(int s, const std::string& text)
{
    size_t done = 0;
    while (done < text.size()) {
        ssize_t n = ::send(s, text.data() + done, text.size() - done, MSG_NOSIGNAL);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<size_t>(n);
    }
    return true;
}

// One request line out, one reply line back; false when the simulator cannot
// be reached or does not answer in time.
bool exchange(const std::string& request, std::string* reply)
{
    std::string path = SystemRoot::path(socketDevicePath);
    int dirFd = -1;
    struct sockaddr_un address;
    memset(&address, 0, sizeof address);
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        // A long root: reach the socket through the folder's descriptor.
        std::string dir = SystemRoot::path("/dev");
        dirFd = ::open(dir.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
        if (dirFd < 0)
            return false;
        path = "/proc/self/fd/" + std::to_string(dirFd) + "/krm510-sim.sock";
    }
    memcpy(address.sun_path, path.c_str(), path.size() + 1);
    int s = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (s < 0) {
        if (dirFd >= 0)
            ::close(dirFd);
        return false;
    }
    struct timeval tv;
    tv.tv_sec = replyTimeoutSeconds;
    tv.tv_usec = 0;
    setsockopt(s, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
    setsockopt(s, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv);
    bool ok = ::connect(s, reinterpret_cast<struct sockaddr*>(&address), sizeof address) == 0;
    if (dirFd >= 0)
        ::close(dirFd);
    ok = ok && sendAll(s, request + "\n");
    reply->clear();
    while (ok) {
        char buffer[512];
        ssize_t n = ::recv(s, buffer, sizeof buffer, 0);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            ok = false;
            break;
        }
        reply->append(buffer, static_cast<size_t>(n));
        size_t end = reply->find('\n');
        if (end != std::string::npos) {
            reply->resize(end);
            break;
        }
    }
    ::close(s);
    return ok;
}

std::string hex(const uint8_t* data, size_t len)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(len * 2);
    for (size_t i = 0; i < len; i++) {
        text += digits[data[i] >> 4];
        text += digits[data[i] & 0x0F];
    }
    return text;
}

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// Sends "bus <verb> <device> <arguments>", answers the result number of the
// reply (or -1) and its second word, if any, in `extra`.
int busRequest(int fd, const char* verb, const std::string& arguments, std::string* extra = nullptr)
{
    auto found = openDevices.find(fd);
    if (found == openDevices.end()) {
        errno = EBADF;
        return -1;
    }
    std::string line = std::string("bus ") + verb + " " + found->second.path;
    if (!arguments.empty())
        line += " " + arguments;
    std::string reply;
    if (!exchange(line, &reply) || reply.compare(0, 3, "ok ") != 0) {
        errno = EIO;
        return -1;
    }
    const char* p = reply.c_str() + 3;
    char* end = nullptr;
    long result = strtol(p, &end, 10);
    if (end == p) {
        errno = EIO;
        return -1;
    }
    if (extra != nullptr) {
        while (*end == ' ')
            end++;
        *extra = end;
    }
    if (result < 0)
        errno = EIO;
    return static_cast<int>(result);
}

bool unhex(const std::string& text, uint8_t* out, size_t len)
{
    if (text.size() < len * 2)
        return false;
    for (size_t i = 0; i < len; i++) {
        int hi = hexValue(text[2 * i]);
        int lo = hexValue(text[2 * i + 1]);
        if (hi < 0 || lo < 0)
            return false;
        out[i] = static_cast<uint8_t>(hi * 16 + lo);
    }
    return true;
}

int readNumber(int fd, const char* verb, unsigned long* value)
{
    std::string extra;
    int result = busRequest(fd, verb, std::string(), &extra);
    if (result < 0)
        return result;
    char* end = nullptr;
    unsigned long v = strtoul(extra.c_str(), &end, 10);
    if (end == extra.c_str()) {
        errno = EIO;
        return -1;
    }
    *value = v;
    return result;
}

} // namespace

int Bus::open(const char* devicePath, int flags)
{
    if (devicePath == nullptr) {
        errno = EFAULT;
        return -1;
    }
    int fd = ::open(SystemRoot::path(devicePath).c_str(), flags | O_CLOEXEC);
    if (fd < 0)
        return fd;
    OpenDevice device;
    device.path = devicePath;
    openDevices[fd] = device;
    return fd;
}

int Bus::close(int fd)
{
    openDevices.erase(fd);
    return ::close(fd);
}

int Bus::spiWriteMode(int fd, uint8_t mode)
{
    return busRequest(fd, "spi.mode.w", std::to_string(mode));
}

int Bus::spiReadMode(int fd, uint8_t* mode)
{
    unsigned long value = 0;
    int result = readNumber(fd, "spi.mode.r", &value);
    if (result >= 0 && mode != nullptr)
        *mode = static_cast<uint8_t>(value);
    return result;
}

int Bus::spiWriteBitsPerWord(int fd, uint8_t bits)
{
    return busRequest(fd, "spi.bits.w", std::to_string(bits));
}

int Bus::spiReadBitsPerWord(int fd, uint8_t* bits)
{
    unsigned long value = 0;
    int result = readNumber(fd, "spi.bits.r", &value);
    if (result >= 0 && bits != nullptr)
        *bits = static_cast<uint8_t>(value);
    return result;
}

int Bus::spiWriteMaxSpeed(int fd, uint32_t hz)
{
    return busRequest(fd, "spi.speed.w", std::to_string(hz));
}

int Bus::spiReadMaxSpeed(int fd, uint32_t* hz)
{
    unsigned long value = 0;
    int result = readNumber(fd, "spi.speed.r", &value);
    if (result >= 0 && hz != nullptr)
        *hz = static_cast<uint32_t>(value);
    return result;
}

int Bus::spiTransfer(int fd, const uint8_t* tx, uint8_t* rx, size_t len)
{
    if (tx == nullptr || len == 0 || len > 4096) {
        errno = EINVAL;
        return -1;
    }
    std::string extra;
    int result = busRequest(fd, "spi.xfer", hex(tx, len), &extra);
    if (result < 0)
        return result;
    if (rx != nullptr && !unhex(extra, rx, len)) {
        errno = EIO;
        return -1;
    }
    return result;
}

int Bus::i2cSlave(int fd, int address)
{
    int result = busRequest(fd, "i2c.slave", std::to_string(address));
    if (result >= 0)
        openDevices[fd].i2cAddress = address;
    return result;
}

int Bus::i2cTimeout(int fd, int value)
{
    return busRequest(fd, "i2c.timeout", std::to_string(value));
}

int Bus::i2cRetries(int fd, int value)
{
    return busRequest(fd, "i2c.retries", std::to_string(value));
}

int Bus::i2cWrite(int fd, const uint8_t* data, size_t len)
{
    if (data == nullptr || len == 0 || len > 4096) {
        errno = EINVAL;
        return -1;
    }
    auto found = openDevices.find(fd);
    if (found == openDevices.end()) {
        errno = EBADF;
        return -1;
    }
    return busRequest(fd, "i2c.write", std::to_string(found->second.i2cAddress) + " " + hex(data, len));
}

int Bus::gpioRequest(int fd, GpioRequest request, int* arg)
{
    if ((request == GPIO_READ || request == GPIO_WRITE) && arg == nullptr) {
        errno = EFAULT;
        return -1;
    }
    const char* verb = nullptr;
    std::string arguments;
    switch (request) {
    case GPIO_SET_INPUT:
        verb = "gpio.input";
        break;
    case GPIO_SET_OUTPUT:
        verb = "gpio.output";
        break;
    case GPIO_READ:
        verb = "gpio.read";
        break;
    case GPIO_WRITE:
        verb = "gpio.write";
        arguments = std::to_string(*arg);
        break;
    default:
        errno = EINVAL;
        return -1;
    }
    std::string extra;
    int result = busRequest(fd, verb, arguments, &extra);
    if (result >= 0 && request == GPIO_READ) {
        char* end = nullptr;
        long level = strtol(extra.c_str(), &end, 10);
        if (end == extra.c_str()) {
            errno = EIO;
            return -1;
        }
        *arg = static_cast<int>(level);
    }
    return result;
}
