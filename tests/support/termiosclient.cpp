#include "support/termiosclient.h"

#include <QString>
#include <cerrno>
#include <fcntl.h>
#include <sys/select.h>
#include <termios.h>
#include <unistd.h>

TermiosClient::TermiosClient(const QString& hostPath, int baud)
{
    fd = ::open(hostPath.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return;
    struct termios tio;
    if (tcgetattr(fd, &tio) == 0) {
        cfmakeraw(&tio);
        speed_t speed = baud == 38400 ? B38400 : B9600;
        cfsetispeed(&tio, speed);
        cfsetospeed(&tio, speed);
        tio.c_cc[VMIN] = 1;
        tio.c_cc[VTIME] = 5;
        tcflush(fd, TCIFLUSH);
        tcsetattr(fd, TCSANOW, &tio);
    }
}

TermiosClient::~TermiosClient()
{
    if (fd >= 0)
        ::close(fd);
}

bool TermiosClient::write(const QByteArray& bytes)
{
    if (fd < 0)
        return false;
    qsizetype done = 0;
    while (done < bytes.size()) {
        ssize_t n = ::write(fd, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (n < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (n <= 0)
            return false;
        done += n;
    }
    return true;
}

QByteArray TermiosClient::readUntilSilence(int silenceMs, int maxBytes)
{
    QByteArray data;
    while (fd >= 0 && data.size() < maxBytes) {
        fd_set set;
        FD_ZERO(&set);
        FD_SET(fd, &set);
        struct timeval tv;
        tv.tv_sec = silenceMs / 1000;
        tv.tv_usec = (silenceMs % 1000) * 1000;
        int r = select(fd + 1, &set, nullptr, nullptr, &tv);
        if (r < 0 && errno == EINTR)
            continue;
        if (r <= 0)
            break;
        char buffer[4096];
        ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n > 0)
            data.append(buffer, static_cast<int>(n));
        else if (n == 0 || (errno != EAGAIN && errno != EINTR))
            break;
    }
    return data;
}

QByteArray TermiosClient::readExactly(int count, int timeoutMs)
{
    QByteArray data;
    int waited = 0;
    while (fd >= 0 && data.size() < count && waited < timeoutMs) {
        fd_set set;
        FD_ZERO(&set);
        FD_SET(fd, &set);
        struct timeval tv = {0, 20000};
        int r = select(fd + 1, &set, nullptr, nullptr, &tv);
        if (r <= 0) {
            waited += 20;
            continue;
        }
        char buffer[4096];
        ssize_t n = ::read(fd, buffer, static_cast<size_t>(qMin<qsizetype>(count - data.size(), 4096)));
        if (n > 0)
            data.append(buffer, static_cast<int>(n));
    }
    return data;
}

QByteArray TermiosClient::exchange(const QByteArray& command, int silenceMs)
{
    if (!write(command))
        return QByteArray();
    return readUntilSilence(silenceMs);
}
