#include "platform/clock.h"

#include <cerrno>
#include <cmath>
#include <deque>
#include <time.h>

namespace {
double timeScale = 1.0;
std::deque<Clock::Wait> recorded;
} // namespace

void Clock::setScale(double scale)
{
    timeScale = (std::isfinite(scale) && scale >= 0.0) ? scale : 1.0;
}

double Clock::scale()
{
    return timeScale;
}

void Clock::record(Kind kind, long long micros)
{
    if (!recorded.empty() && recorded.back().kind == kind && recorded.back().micros == micros) {
        recorded.back().count++;
        return;
    }
    if (recorded.size() >= maxRecorded)
        recorded.pop_front();
    recorded.push_back(Wait{kind, micros, 1});
}

long long Clock::scaled(long long micros)
{
    if (micros <= 0)
        return 0;
    if (timeScale == 1.0)
        return micros;
    return std::llround(static_cast<double>(micros) * timeScale);
}

static void sleepMicros(long long micros)
{
    if (micros <= 0)
        return;
    struct timespec ts;
    ts.tv_sec = static_cast<time_t>(micros / 1000000);
    ts.tv_nsec = static_cast<long>((micros % 1000000) * 1000);
    while (nanosleep(&ts, &ts) != 0 && errno == EINTR) {
    }
}

unsigned int Clock::sleep(unsigned int seconds)
{
    record(Sleep, static_cast<long long>(seconds) * 1000000);
    sleepMicros(scaled(static_cast<long long>(seconds) * 1000000));
    return 0;
}

int Clock::usleep(unsigned int micros)
{
    record(Usleep, micros);
    sleepMicros(scaled(micros));
    return 0;
}

int Clock::select(int nfds, fd_set* readfds, fd_set* writefds, fd_set* exceptfds,
                  const struct timeval* timeout)
{
    if (timeout == nullptr) {
        record(Select, -1);
        return ::select(nfds, readfds, writefds, exceptfds, nullptr);
    }
    long long micros = static_cast<long long>(timeout->tv_sec) * 1000000 + timeout->tv_usec;
    record(Select, micros);
    long long wait = scaled(micros);
    struct timeval tv;
    tv.tv_sec = static_cast<time_t>(wait / 1000000);
    tv.tv_usec = static_cast<suseconds_t>(wait % 1000000);
    return ::select(nfds, readfds, writefds, exceptfds, &tv);
}

int Clock::interval(int ms)
{
    long long us = scaled(static_cast<long long>(ms) * 1000);
    long long out = (us + 500) / 1000;
    if (ms > 0 && out == 0 && timeScale > 0.0)
        out = 1;
    return static_cast<int>(out);
}

void Clock::start(QTimer* timer, int ms)
{
    record(Timer, static_cast<long long>(ms) * 1000);
    timer->start(interval(ms));
}

std::vector<Clock::Wait> Clock::waits()
{
    return std::vector<Wait>(recorded.begin(), recorded.end());
}

void Clock::clearWaits()
{
    recorded.clear();
}

long long Clock::requested(Kind kind)
{
    long long sum = 0;
    for (const Wait& w : recorded)
        if (w.kind == kind && w.micros > 0)
            sum += w.micros * w.count;
    return sum;
}
