#include "platform/clock.h"
#include "support/testroot.h"

#include <QtTest>
#include <unistd.h>

using W = Clock::Wait;

class TestClock : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        Clock::setScale(0.0);
        Clock::clearWaits();
    }
    void cleanup() { Clock::setScale(1.0); }

    void sleepRecordsRequestedSeconds()
    {
        Clock::sleep(2);
        QCOMPARE(Clock::waits(), (std::vector<W>{{Clock::Sleep, 2000000, 1}}));
    }
    void repeatedEqualWaitsAreCounted()
    {
        Clock::sleep(2);
        struct timeval tv = {1, 0};
        for (int i = 0; i < 3; i++)
            Clock::select(0, nullptr, nullptr, nullptr, &tv);
        QCOMPARE(Clock::waits(), (std::vector<W>{{Clock::Sleep, 2000000, 1},
                                                 {Clock::Select, 1000000, 3}}));
    }
    void selectTimeoutIsScaledButCallerValueKept()
    {
        Clock::setScale(0.01);
        int fds[2];
        QVERIFY(pipe(fds) == 0);
        fd_set set;
        FD_ZERO(&set);
        FD_SET(fds[0], &set);
        struct timeval tv = {1, 500000};
        int r = Clock::select(fds[0] + 1, &set, nullptr, nullptr, &tv);
        QCOMPARE(r, 0); // nothing to read: a time-out
        QCOMPARE(tv.tv_sec, time_t(1));
        QCOMPARE(tv.tv_usec, suseconds_t(500000));
        QCOMPARE(Clock::requested(Clock::Select), 1500000LL);
        close(fds[0]);
        close(fds[1]);
    }
    void selectStillSeesReadyData()
    {
        int fds[2];
        QVERIFY(pipe(fds) == 0);
        QCOMPARE(write(fds[1], "x", 1), ssize_t(1));
        fd_set set;
        FD_ZERO(&set);
        FD_SET(fds[0], &set);
        struct timeval tv = {10, 0};
        QCOMPARE(Clock::select(fds[0] + 1, &set, nullptr, nullptr, &tv), 1);
        QVERIFY(FD_ISSET(fds[0], &set));
        close(fds[0]);
        close(fds[1]);
    }
    void selectWithoutTimeoutIsRecordedAsUnbounded()
    {
        int fds[2];
        QVERIFY(pipe(fds) == 0);
        QCOMPARE(write(fds[1], "x", 1), ssize_t(1));
        fd_set set;
        FD_ZERO(&set);
        FD_SET(fds[0], &set);
        QCOMPARE(Clock::select(fds[0] + 1, &set, nullptr, nullptr, nullptr), 1);
        QCOMPARE(Clock::waits(), (std::vector<W>{{Clock::Select, -1, 1}}));
        close(fds[0]);
        close(fds[1]);
    }
    void usleepRecordsMicroseconds()
    {
        Clock::usleep(250000);
        Clock::usleep(250000);
        QCOMPARE(Clock::waits(), (std::vector<W>{{Clock::Usleep, 250000, 2}}));
        QCOMPARE(Clock::requested(Clock::Usleep), 500000LL);
    }
    void timerIntervalIsScaled()
    {
        Clock::setScale(0.1);
        QCOMPARE(Clock::interval(1000), 100);
        QCOMPARE(Clock::interval(60000), 6000);
        Clock::setScale(1.0);
        QCOMPARE(Clock::interval(700), 700);
    }
    void scaleZeroMakesTimersImmediate()
    {
        Clock::setScale(0.0);
        QCOMPARE(Clock::interval(60000), 0);
    }
    void tinyScaleKeepsATimerAtLeastOneMillisecond()
    {
        Clock::setScale(0.0001);
        QCOMPARE(Clock::interval(600), 1);
    }
    void startedTimerIsRecordedAndRuns()
    {
        Clock::setScale(0.001);
        QTimer timer;
        int fired = 0;
        connect(&timer, &QTimer::timeout, [&] { fired++; });
        Clock::start(&timer, 1000);
        QCOMPARE(timer.interval(), 1);
        QTRY_VERIFY(fired >= 2);
        QCOMPARE(Clock::waits(), (std::vector<W>{{Clock::Timer, 1000000, 1}}));
    }
    void singleShotIsRecordedAndFires()
    {
        Clock::setScale(0.001);
        bool fired = false;
        Clock::singleShot(2000, this, [&] { fired = true; });
        QTRY_VERIFY(fired);
        QCOMPARE(Clock::waits(), (std::vector<W>{{Clock::SingleShot, 2000000, 1}}));
    }
    void badScaleFallsBackToRealTime()
    {
        Clock::setScale(-1.0);
        QCOMPARE(Clock::scale(), 1.0);
        Clock::setScale(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(Clock::scale(), 1.0);
    }
    void recordIsBounded()
    {
        for (size_t i = 0; i < Clock::maxRecorded + 10; i++)
            Clock::usleep(static_cast<unsigned>(i + 1));
        std::vector<W> w = Clock::waits();
        QCOMPARE(w.size(), Clock::maxRecorded);
        QCOMPARE(w.front().micros, 11LL);
        QCOMPARE(w.back().micros, static_cast<long long>(Clock::maxRecorded + 10));
    }
};

QTEST_GUILESS_MAIN(TestClock)
#include "tst_clock.moc"
