#include "device/serialport.h"

#include "platform/clock.h"
#include "platform/systemroot.h"

#include <QProgressDialog>

#include <cstdio>
#include <cstring>
#include <string.h>
#include <fcntl.h>
#include <sys/select.h>
#include <unistd.h>

SerialPort::SerialPort() : fd(0)
{
    std::memset(&oldtio, 0, sizeof oldtio);
    std::memset(&newtio, 0, sizeof newtio);
    fd = ::open(SystemRoot::path("/dev/ttyS1").c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (fd < 1)
        return;
    settingSerialPort();
}

SerialPort::~SerialPort()
{
    if (fd <= 0)
        return;
    tcsetattr(fd, TCSANOW, &oldtio);
    ::close(fd);
}

void SerialPort::settingSerialPort()
{
    tcgetattr(fd, &oldtio);
    tcgetattr(fd, &newtio);
    cfsetispeed(&newtio, B9600);
    cfsetospeed(&newtio, B9600);
    // 8 data bits, receiver on, local line; parity stays disabled, so the odd
    // selector does nothing. Stop bits and hang-up are left as found.
    newtio.c_cflag &= ~(CRTSCTS | CSIZE | PARENB | PARODD | CREAD | CLOCAL);
    newtio.c_cflag |= CS8 | CREAD | CLOCAL | PARODD;
    newtio.c_lflag &= ~(ICANON | ECHO);
    newtio.c_iflag = IGNBRK;
    newtio.c_oflag = 0;
    newtio.c_cc[VMIN] = 1;
    newtio.c_cc[VTIME] = 5;
    tcflush(fd, TCIFLUSH);
    tcsetattr(fd, TCSANOW, &newtio);
}

int SerialPort::writeSerialPort(const char* text)
{
    if (fd <= 0)
        return -1;
    size_t length = std::strlen(text);
    ssize_t written = ::write(fd, text, length);
    if (written < 0 || static_cast<size_t>(written) != length)
        return -1;
    return static_cast<int>(written);
}

int SerialPort::readAtomicSerialPort(char* buffer, int* count, unsigned int timeoutMs)
{
    if (fd <= 0 || fd >= FD_SETSIZE)
        return -1;
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(fd, &readable);
    struct timeval timeout;
    timeout.tv_sec = timeoutMs / 1000;
    timeout.tv_usec = (timeoutMs % 1000) * 1000;
    if (Clock::select(fd + 1, &readable, nullptr, nullptr, &timeout) <= 0)
        return -1;
    ssize_t n = ::read(fd, buffer, 127);
    if (n <= 0)
        return static_cast<int>(n);
    buffer[n] = '\0';
    *count = static_cast<int>(n);
    return static_cast<int>(n);
}

int SerialPort::readSerialPort(char* buffer, int size, int* count, int* error,
                               unsigned int timeoutMs, QProgressDialog* progress)
{
    *count = 0;
    *error = -1;
    if (progress != nullptr)
        progress->setValue(0);
    SerialReply reply{buffer, size, 0, 0};
    bool abandoned = false;
    int lines = 0;
    char scratch[256];
    for (;;) {
        std::memset(scratch, 0, sizeof scratch);
        int n = 0;
        if (readAtomicSerialPort(scratch, &n, timeoutMs) <= 0)
            break;
        for (int i = 0; i < n; i++) {
            if (scratch[i] == '\r' || scratch[i] == '\n') {
                if (progress != nullptr)
                    progress->setValue(lines);
                lines++;
            }
        }
        if (appendSerialReply(&reply, scratch, n) < 0) {
            abandoned = true;
            break;
        }
    }
    if (abandoned)
        reply.count = 0;
    if (size > 0)
        buffer[reply.count] = '\0';
    if (abandoned || (reply.count == 0 && reply.discarded == 0))
        return 0;
    *count = reply.count;
    *error = cutStatusLine(buffer, count);
    return 1;
}

int SerialPort::writeReadSerialPort(const char* command, char* data, int dataSize, int* count,
                                    int* error, char separator, unsigned int timeoutMs,
                                    QProgressDialog* progress)
{
    int written = writeSerialPort(command);
    if (written < 1)
        return written;
    char reply[replySize];
    int replyCount = 0;
    if (readSerialPort(reply, replySize, &replyCount, error, timeoutMs, progress) == 0)
        return -1;
    int result = takeEchoedData(reply, replyCount, command, data, dataSize, count, separator);
    // The board's replies are text. A NUL byte behind the echo ends that text:
    // the status line behind it is not found and the reply is not good, even
    // when the line went on to "ERROR 0". Noise before the echo, NULs included,
    // is only dropped with the rest of what precedes the echo.
    if (result == 1 && nulBehindEcho(reply, replyCount, command))
        *error = -1;
    return result;
}

int appendSerialReply(SerialReply* reply, const char* bytes, int n)
{
    if (n <= 0)
        return 0;
    int room = reply->size - 1 - reply->count;
    int keep = room < 0 ? 0 : (n < room ? n : room);
    if (keep > 0) {
        std::memcpy(reply->buffer + reply->count, bytes, static_cast<size_t>(keep));
        reply->count += keep;
    }
    reply->discarded += n - keep;
    return reply->discarded >= SerialPort::maxDiscarded ? -1 : 0;
}

int cutStatusLine(char* buffer, int* count)
{
    int error = -1;
    char* status = static_cast<char*>(memmem(buffer, static_cast<size_t>(*count), "ERROR", 5));
    if (status == nullptr)
        return error;
    if (std::sscanf(status, "ERROR %d\r", &error) != 1)
        error = -1;
    *count = static_cast<int>(status - buffer);
    *status = '\0';
    return error;
}

bool nulBehindEcho(const char* reply, int replyCount, const char* command)
{
    size_t length = std::strlen(command);
    size_t total = static_cast<size_t>(replyCount < 0 ? 0 : replyCount);
    const char* echo = static_cast<const char*>(memmem(reply, total, command, length));
    if (echo == nullptr)
        return false;
    const char* from = echo + length;
    return std::memchr(from, '\0', static_cast<size_t>(reply + total - from)) != nullptr;
}

int takeEchoedData(const char* reply, int replyCount, const char* command, char* data,
                   int dataSize, int* count, char separator)
{
    size_t length = std::strlen(command);
    const char* echo = static_cast<const char*>(
        memmem(reply, static_cast<size_t>(replyCount < 0 ? 0 : replyCount), command, length));
    if (echo == nullptr || dataSize < 1)
        return -1;
    if (separator < 7 || separator > 14)
        separator = 0;
    const char* from = echo + length;
    int available = static_cast<int>(reply + replyCount - from);
    int n = 0;
    for (; n < available && n < dataSize - 1; n++)
        data[n] = (from[n] == '\r' && separator != 0) ? separator : from[n];
    data[n] = '\0';
    *count = n;
    return 1;
}
