#include "device/ulserialport.h"

#include "platform/clock.h"
#include "platform/systemroot.h"

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/select.h>
#include <unistd.h>

int UlOpenSerialPort()
{
    return ::open(SystemRoot::path("/dev/ttyS1").c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
}

void UlSettingSerialPort(int fd, struct termios* saved, struct termios* working)
{
    if (fd < 0)
        return;
    tcgetattr(fd, saved);
    tcgetattr(fd, working);
    cfsetispeed(working, B38400);
    cfsetospeed(working, B38400);
    // The stop bits stay as found.
    working->c_cflag |= CS8 | CREAD | CLOCAL;
    working->c_cflag &= ~(CRTSCTS | PARENB | PARODD);
    working->c_iflag = IGNBRK;
    working->c_oflag = 0;
    working->c_lflag = 0;
    working->c_cc[VMIN] = 1;
    working->c_cc[VTIME] = 5;
    tcflush(fd, TCIFLUSH);
    tcsetattr(fd, TCSANOW, working);
}

void UlCloseSerialPort(int fd, struct termios* saved)
{
    if (fd < 0)
        return;
    tcsetattr(fd, TCSANOW, saved);
    ::close(fd);
}

bool UlWriteSerialBlock(int fd, const char* data, int length)
{
    if (length < 1 || fd < 0)
        return false;
    ssize_t written = ::write(fd, data, static_cast<size_t>(length));
    return written == length;
}

int UlReadAtomicSerialPort(int fd, char* buffer, int* count)
{
    if (fd < 0 || fd >= FD_SETSIZE)
        return -1;
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(fd, &readable);
    struct timeval timeout;
    timeout.tv_sec = 1;
    timeout.tv_usec = 0;
    if (Clock::select(fd + 1, &readable, nullptr, nullptr, &timeout) <= 0)
        return -1;
    ssize_t n = ::read(fd, buffer, 127);
    if (n < 0)
        n = 0;
    buffer[n] = '\0';
    *count = static_cast<int>(n);
    return static_cast<int>(n);
}

int UlReadSerialData(int fd, char* buffer, int length)
{
    if (length < 1)
        return 0;
    long received = 0;
    int timeouts = 0;
    char piece[128];
    for (;;) {
        int n = 0;
        if (UlReadAtomicSerialPort(fd, piece, &n) < 0) {
            if (++timeouts >= UL_READ_TIMEOUTS)
                break;
            continue;
        }
        if (n == 0) {
            // Readable with nothing in it: the far end has gone. Counts as a
            // wait that ran out, so a dead line ends like a silent one.
            if (++timeouts >= UL_READ_TIMEOUTS)
                break;
            continue;
        }
        if (received < length) {
            long room = length - received;
            std::memcpy(buffer + received, piece, static_cast<size_t>(n < room ? n : room));
        }
        received += n;
        if (received == length)
            return 1;
        if (received - length > UL_READ_OVERRUN)
            break;
    }
    printf("-- %s : timeout expired --\n", "UlReadSerialData");
    return 0;
}
