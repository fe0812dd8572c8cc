#ifndef KRM_PLATFORM_CLOCK_H
#define KRM_PLATFORM_CLOCK_H

#include <QTimer>
#include <sys/select.h>
#include <vector>

// Every sleep, select time-out and timer of the program goes through here.
// The requested time is multiplied by the time scale: 1 on the instrument,
// smaller in tests so that a ten second silence of the measuring board does
// not cost ten seconds. The protocol logic never changes with the scale.
//
// The clock also records what it was asked for, in the unscaled time the code
// requested, so a test can assert "2 s, then three 1 s time-outs" without
// looking at the wall clock. Consecutive equal requests are merged and
// counted. The record is bounded: past `maxRecorded` entries the oldest go.
class Clock
{
public:
    enum Kind { Sleep, Usleep, Select, Timer, SingleShot };

    struct Wait {
        Kind kind;
        long long micros; // as requested, before scaling; -1 for a select without time-out
        int count;        // consecutive equal requests
        bool operator==(const Wait& o) const
        {
            return kind == o.kind && micros == o.micros && count == o.count;
        }
    };

    static constexpr size_t maxRecorded = 4096;

    static void setScale(double scale);
    static double scale();

    static unsigned int sleep(unsigned int seconds);
    static int usleep(unsigned int micros);
    // select(2) with the time-out scaled; the caller's timeval is not changed.
    static int select(int nfds, fd_set* readfds, fd_set* writefds, fd_set* exceptfds,
                      const struct timeval* timeout);

    // Timer intervals, in milliseconds as the code states them.
    static int interval(int ms);
    static void start(QTimer* timer, int ms);
    template <typename Receiver, typename Slot>
    static void singleShot(int ms, const Receiver* receiver, Slot slot)
    {
        record(SingleShot, static_cast<long long>(ms) * 1000);
        QTimer::singleShot(interval(ms), receiver, slot);
    }

    static std::vector<Wait> waits();
    static void clearWaits();
    // Total of the requested time of one kind, in microseconds.
    static long long requested(Kind kind);

    static void record(Kind kind, long long micros);

private:
    static long long scaled(long long micros);
};

#endif
