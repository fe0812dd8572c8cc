#include "line.h"

#include "util.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace sim {

SerialLine::~SerialLine()
{
    close();
}

bool SerialLine::open(std::string* error)
{
    close();
    master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
        if (error)
            *error = "cannot create a pseudo-terminal";
        close();
        return false;
    }
    const char* name = ptsname(master);
    if (name == nullptr) {
        close();
        return false;
    }
    slaveName = name;
    // The simulator keeps the slave side open itself, so that the line stays
    // up while the program has it closed, as a real port does.
    slave = ::open(slaveName.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave < 0) {
        if (error)
            *error = "cannot open " + slaveName;
        close();
        return false;
    }
    struct termios tio;
    if (tcgetattr(slave, &tio) == 0) {
        cfmakeraw(&tio);
        cfsetispeed(&tio, B9600);
        cfsetospeed(&tio, B9600);
        tcsetattr(slave, TCSANOW, &tio);
    }
    fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
    return true;
}

void SerialLine::close()
{
    if (slave >= 0)
        ::close(slave);
    if (master >= 0)
        ::close(master);
    slave = master = -1;
    queue.clear();
}

void SerialLine::send(const std::string& bytes, double delayMs)
{
    if (bytes.empty() && delayMs <= 0.0)
        return;
    queue.push_back(Piece{bytes, delayMs});
}

void SerialLine::clearOutput()
{
    queue.clear();
}

std::string SerialLine::receive()
{
    std::string text;
    if (master < 0)
        return text;
    char buffer[4096];
    for (;;) {
        ssize_t n = ::read(master, buffer, sizeof buffer);
        if (n > 0) {
            text.append(buffer, static_cast<size_t>(n));
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        break;
    }
    return text;
}

double SerialLine::service(double now, bool* blocked)
{
    *blocked = false;
    while (!queue.empty()) {
        if (now < nextAt)
            return nextAt - now;
        Piece& piece = queue.front();
        if (piece.delayMs > 0.0) {
            nextAt = now + piece.delayMs;
            piece.delayMs = 0.0;
            continue;
        }
        if (piece.bytes.empty()) {
            queue.pop_front();
            continue;
        }
        size_t chunk = piece.bytes.size();
        if (rate > 0.0)
            chunk = std::min(chunk, std::max<size_t>(1, static_cast<size_t>(rate / 100.0)));
        ssize_t n = ::write(master, piece.bytes.data(), chunk);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            *blocked = true;
            return 5.0;
        }
        piece.bytes.erase(0, static_cast<size_t>(n));
        if (piece.bytes.empty())
            queue.pop_front();
        if (rate > 0.0)
            nextAt = now + 1000.0 * static_cast<double>(n) / rate;
    }
    return -1.0;
}

} // namespace sim
