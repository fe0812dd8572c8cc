// The boot loader's line driver over a real pseudo-terminal whose far end the
// test plays: its settings, the block write, and the reads of an exact
// number of bytes that end in time-outs when the count is missed.
#include "device/ulserialport.h"
#include "platform/clock.h"
#include "ptyboard.h"
#include "support/testroot.h"

#include <QtTest>

#include <cstring>

class TestUlSerialPort : public QObject
{
    Q_OBJECT

private slots:
    void settingsAreThirtyEightKiloBaudRawAndRestored()
    {
        TestRoot root(0.0);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        struct termios found;
        QVERIFY(board.settings(&found));
        cfsetispeed(&found, B9600);
        cfsetospeed(&found, B9600);
        found.c_cflag = (found.c_cflag & ~CSIZE) | CS7 | CSTOPB | PARENB | PARODD | CRTSCTS;
        found.c_lflag |= ICANON | ECHO;
        QVERIFY(board.setSettings(found));
        QVERIFY(board.settings(&found));

        int fd = UlOpenSerialPort();
        QVERIFY(fd > 0);
        struct termios saved, working;
        UlSettingSerialPort(fd, &saved, &working);
        struct termios now;
        QVERIFY(board.settings(&now));
        QCOMPARE(cfgetispeed(&now), speed_t(B38400));
        QCOMPARE(cfgetospeed(&now), speed_t(B38400));
        QCOMPARE(now.c_cflag & CSIZE, tcflag_t(CS8));
        QCOMPARE(now.c_cflag & (PARENB | PARODD | CRTSCTS), tcflag_t(0));
        QCOMPARE(now.c_cflag & CSTOPB, tcflag_t(CSTOPB)); // stop bits as found
        QCOMPARE(now.c_cflag & (CREAD | CLOCAL), tcflag_t(CREAD | CLOCAL));
        QCOMPARE(now.c_iflag, tcflag_t(IGNBRK));
        QCOMPARE(now.c_oflag, tcflag_t(0));
        QCOMPARE(now.c_lflag, tcflag_t(0));
        QCOMPARE(now.c_cc[VMIN], cc_t(1));
        QCOMPARE(now.c_cc[VTIME], cc_t(5));

        UlCloseSerialPort(fd, &saved);
        QVERIFY(board.settings(&now));
        QCOMPARE(cfgetospeed(&now), speed_t(B9600));
        QCOMPARE(now.c_cflag, found.c_cflag);
        QCOMPARE(now.c_lflag, found.c_lflag);
    }

    void settingANegativeDescriptorDoesNothing()
    {
        struct termios saved, working;
        std::memset(&saved, 0x5A, sizeof saved);
        std::memset(&working, 0x5A, sizeof working);
        UlSettingSerialPort(-1, &saved, &working);
        struct termios untouched;
        std::memset(&untouched, 0x5A, sizeof untouched);
        QCOMPARE(std::memcmp(&saved, &untouched, sizeof saved), 0);
        QCOMPARE(std::memcmp(&working, &untouched, sizeof working), 0);
    }

    void openFailsWithoutTheNode()
    {
        TestRoot root(0.0);
        QCOMPARE(UlOpenSerialPort(), -1);
    }

    void blockWriteNeedsALengthAndALine()
    {
        TestRoot root(0.0);
        PtyBoard board(root);
        int fd = UlOpenSerialPort();
        struct termios saved, working;
        UlSettingSerialPort(fd, &saved, &working);
        QVERIFY(!UlWriteSerialBlock(fd, "\x25", 0));
        QVERIFY(!UlWriteSerialBlock(-1, "\x25", 1));
        QVERIFY(UlWriteSerialBlock(fd, "\x03\x00\x04", 3));
        QCOMPARE(board.received(), QByteArray("\x03\x00\x04", 3));
        UlCloseSerialPort(fd, &saved);
    }

    void atomicReadTimesOutAfterOneSecond()
    {
        TestRoot root(0.0);
        PtyBoard board(root);
        int fd = UlOpenSerialPort();
        struct termios saved, working;
        UlSettingSerialPort(fd, &saved, &working);
        char buffer[128];
        int count = 7;
        QCOMPARE(UlReadAtomicSerialPort(fd, buffer, &count), -1);
        QVERIFY(Clock::waits() == std::vector<Clock::Wait>({{Clock::Select, 1000000, 1}}));
        // At most 127 bytes a read, with a NUL behind them.
        QVERIFY(board.send(QByteArray(300, 'x')));
        QTest::qWait(50);
        std::memset(buffer, 1, sizeof buffer);
        QCOMPARE(UlReadAtomicSerialPort(fd, buffer, &count), 127);
        QCOMPARE(count, 127);
        QCOMPARE(buffer[127], '\0');
        UlCloseSerialPort(fd, &saved);
    }

    void exactLengthIsRead()
    {
        TestRoot root(0.1);
        PtyBoard board(root);
        int fd = UlOpenSerialPort();
        struct termios saved, working;
        UlSettingSerialPort(fd, &saved, &working);
        QVERIFY(board.send(QByteArray("\x00\x09\x09\x09\x0D", 5)));
        char buffer[5];
        QCOMPARE(UlReadSerialData(fd, buffer, 5), 1);
        QCOMPARE(QByteArray(buffer, 5), QByteArray("\x00\x09\x09\x09\x0D", 5));
        // A row longer than one atomic read.
        QByteArray row(1536, '\0');
        for (int i = 0; i < row.size(); i++)
            row[i] = static_cast<char>(i * 7);
        board.sendInBackground(row);
        QByteArray got(1536, '\0');
        QCOMPARE(UlReadSerialData(fd, got.data(), 1536), 1);
        QCOMPARE(got, row);
        board.stop();
        UlCloseSerialPort(fd, &saved);
    }

    // The old instrument gave a read of the loader 2000 time-outs of a
    // second; a read now ends after 10 s of silence.
    void everyWaitEnds_silenceEndsAfterTenTimeouts()
    {
        TestRoot root(0.0);
        PtyBoard board(root);
        int fd = UlOpenSerialPort();
        struct termios saved, working;
        UlSettingSerialPort(fd, &saved, &working);
        char buffer[2];
        QCOMPARE(UlReadSerialData(fd, buffer, 2), 0);
        QVERIFY(Clock::waits() == std::vector<Clock::Wait>({{Clock::Select, 1000000, 10}}));
        UlCloseSerialPort(fd, &saved);
    }

    void readPastTheLengthEndsInTheTimeouts()
    {
        TestRoot root(0.0);
        PtyBoard board(root);
        int fd = UlOpenSerialPort();
        struct termios saved, working;
        UlSettingSerialPort(fd, &saved, &working);
        // Six bytes where two were asked: the count is never equal.
        QVERIFY(board.send("\x02\x00garb"));
        QTest::qWait(50);
        Clock::clearWaits();
        char buffer[2] = {0, 0};
        QCOMPARE(UlReadSerialData(fd, buffer, 2), 0);
        QCOMPARE(QByteArray(buffer, 2), QByteArray("\x02\x00", 2)); // no byte past the buffer
        std::vector<Clock::Wait> waits = Clock::waits();
        QCOMPARE(waits.size(), size_t(1));
        QCOMPARE(waits[0].count, 11); // the read, then the ten time-outs
        UlCloseSerialPort(fd, &saved);
    }

    void endlessTalkIsGivenUp()
    {
        TestRoot root(0.1);
        PtyBoard board(root);
        int fd = UlOpenSerialPort();
        struct termios saved, working;
        UlSettingSerialPort(fd, &saved, &working);
        QVERIFY(board.send(QByteArray(200, 'x')));
        board.sendInBackground(QByteArray(), true);
        char buffer[8];
        QCOMPARE(UlReadSerialData(fd, buffer, 8), 0);
        board.stop();
        UlCloseSerialPort(fd, &saved);
    }
};

QTEST_MAIN(TestUlSerialPort)
#include "tst_ulserialport.moc"
