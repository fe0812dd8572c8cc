// The serial line to the measuring board over a real pseudo-terminal whose far
// end the test plays: settings, the double opening, bounded replies and lines
// that misbehave.
#include "device/powerdevice.h"
#include "device/serialport.h"
#include "platform/clock.h"
#include "ptyboard.h"
#include "support/testroot.h"

#include <QtTest>

#include <cstring>
#include <sys/stat.h>

namespace {

QByteArray braskReply(int lines, const QByteArray& status = "ERROR 0\r\n")
{
    QByteArray text = "mea_brask\r\n";
    for (int k = 0; k < lines; k++)
        text += QByteArray::number(k + 1) + '\t' + QByteArray::number(2 * k) + '\t' +
                QByteArray::number(k) + '\t' + QByteArray::number(k) + "\r\n";
    return text + status;
}

bool rampIsZero(const _raw_ramp_iv& ramp)
{
    for (int i = 0; i < RAMP_POINTS; i++)
        if (ramp.corrente[i] != 0 || ramp.tensione[i] != 0)
            return false;
    return true;
}

Clock::Wait lastWait()
{
    std::vector<Clock::Wait> waits = Clock::waits();
    return waits.empty() ? Clock::Wait{Clock::Sleep, 0, 0} : waits.back();
}

} // namespace

class TestSerialPort : public QObject
{
    Q_OBJECT

private slots:
    void lineIsSetTo9600EightBitsRawWhileOpen()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        SerialPort port;
        QVERIFY(port.fd > 0);
        struct termios tio;
        QVERIFY(board.settings(&tio));
        QCOMPARE(cfgetispeed(&tio), speed_t(B9600));
        QCOMPARE(cfgetospeed(&tio), speed_t(B9600));
        QCOMPARE(tio.c_cflag & CSIZE, tcflag_t(CS8));
        QVERIFY(tio.c_cflag & CREAD);
        QVERIFY(tio.c_cflag & CLOCAL);
        QVERIFY(!(tio.c_cflag & PARENB));
        QVERIFY(!(tio.c_cflag & CRTSCTS));
        QVERIFY(!(tio.c_lflag & ICANON));
        QVERIFY(!(tio.c_lflag & ECHO));
        QCOMPARE(tio.c_iflag, tcflag_t(IGNBRK));
        QCOMPARE(tio.c_oflag, tcflag_t(0));
        QCOMPARE(int(tio.c_cc[VMIN]), 1);
        QCOMPARE(int(tio.c_cc[VTIME]), 5);
    }

    void signalFlagsAreLeftAsFound()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        struct termios tio;
        QVERIFY(board.settings(&tio));
        tio.c_lflag |= ISIG;
        QVERIFY(board.setSettings(tio));
        SerialPort port;
        QVERIFY(board.settings(&tio));
        QVERIFY(tio.c_lflag & ISIG);
    }

    void deviceOpensTheLineTwice()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        QVERIFY(device.fd > 0);
        QVERIFY(device.serialPort->fd > 0);
        QVERIFY(device.fd != device.serialPort->fd);
        struct stat outer, inner;
        QCOMPARE(fstat(device.fd, &outer), 0);
        QCOMPARE(fstat(device.serialPort->fd, &inner), 0);
        QCOMPARE(outer.st_rdev, inner.st_rdev);
    }

    void closingTheDeviceRestoresThePowerUpSettings()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        struct termios before;
        QVERIFY(board.settings(&before));
        cfsetispeed(&before, B38400);
        cfsetospeed(&before, B38400);
        before.c_lflag |= ICANON | ECHO;
        before.c_iflag = ICRNL | IXON;
        QVERIFY(board.setSettings(before));
        QVERIFY(board.settings(&before));
        {
            PowerDevice device;
            struct termios during;
            QVERIFY(board.settings(&during));
            QCOMPARE(cfgetispeed(&during), speed_t(B9600));
        }
        struct termios after;
        QVERIFY(board.settings(&after));
        QCOMPARE(cfgetispeed(&after), speed_t(B38400));
        QCOMPARE(after.c_lflag, before.c_lflag);
        QCOMPARE(after.c_iflag, before.c_iflag);
        QCOMPARE(after.c_cflag, before.c_cflag);
    }

    void missingTtyS1FailsEveryCallAtOnce()
    {
        TestRoot root;
        PowerDevice device;
        QVERIFY(device.fd < 0);
        QVERIFY(device.serialPort->fd < 0);
        QCOMPARE(device.serialPort->writeSerialPort("ver\r"), -1);
        char data[16] = "kept";
        int count = 0, error = 55;
        QCOMPARE(device.serialPort->writeReadSerialPort("ver\r", data, sizeof data, &count,
                                                        &error, 10, 1000, nullptr),
                 -1);
        QCOMPARE(error, 55);
        QCOMPARE(QByteArray(data), QByteArray("kept"));
        QCOMPARE(device.getVersion(), int(PD_NO_REPLY));
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
        float t = 3;
        QCOMPARE(device.acquireTempHSink(&t), PD_NO_REPLY);
        QCOMPARE(t, 0.0f);
        // no board to wait for: not a single sleep or time-out
        QVERIFY(Clock::waits().empty());
    }

    void writeSendsTheWholeCommand()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        SerialPort port;
        QCOMPARE(port.writeSerialPort("Z_sweep_brask 12 1\r"), 19);
        QTRY_COMPARE(board.received(), QByteArray("Z_sweep_brask 12 1\r"));
    }

    void oneReadTakesAtMost127Bytes()
    {
        TestRoot root(0.05);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        SerialPort port;
        QVERIFY(board.send(QByteArray(300, 'q')));
        char buffer[256];
        std::memset(buffer, 'x', sizeof buffer);
        int count = 0;
        QCOMPARE(port.readAtomicSerialPort(buffer, &count, 1000), 127);
        QCOMPARE(count, 127);
        QCOMPARE(buffer[126], 'q');
        QCOMPARE(buffer[127], '\0');
        QCOMPARE(lastWait(), (Clock::Wait{Clock::Select, 1000000, 1}));
    }

    void oneReadTimesOutOnASilentLine()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        SerialPort port;
        char buffer[256];
        int count = 9;
        QCOMPARE(port.readAtomicSerialPort(buffer, &count, 2500), -1);
        QCOMPARE(count, 9);
        QCOMPARE(lastWait(), (Clock::Wait{Clock::Select, 2500000, 1}));
    }

    void replyIsClosedBySilenceAlone()
    {
        TestRoot root(0.05);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        SerialPort port;
        QVERIFY(board.send("ver\r\nA 1.2 B\r\nERROR 0\r\nlate\r\n"));
        char buffer[SerialPort::replySize];
        int count = 0, error = 0;
        QCOMPARE(port.readSerialPort(buffer, sizeof buffer, &count, &error, 1000, nullptr), 1);
        QCOMPARE(error, 0);
        QCOMPARE(QByteArray(buffer), QByteArray("ver\r\nA 1.2 B\r\n"));
        QCOMPARE(count, 14);
        // the reply ended on a full time-out, after the status line
        QCOMPARE(lastWait().micros, 1000000LL);
    }

    void silentLineReadsNothing()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        SerialPort port;
        char buffer[64];
        int count = 5, error = 5;
        QCOMPARE(port.readSerialPort(buffer, sizeof buffer, &count, &error, 1000, nullptr), 0);
        QCOMPARE(count, 0);
        QCOMPARE(error, -1);
    }

    void deadLineMakesGetVersionWaitTwoSecondsAndThreeTimeOuts()
    {
        TestRoot root;
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        device.versionMajor = device.versionMinor = device.versionProto = 9;
        QCOMPARE(device.getVersion(), int(PD_NO_REPLY));
        QCOMPARE(device.versionMajor, 0);
        QCOMPARE(device.versionMinor, 0);
        QCOMPARE(device.versionProto, 0);
        std::vector<Clock::Wait> expected{{Clock::Sleep, 2000000, 1}, {Clock::Select, 1000000, 3}};
        QCOMPARE(Clock::waits(), expected);
        QCOMPARE(board.received(), QByteArray("ver\rver\rver\r"));
    }

    void replyOf20000BytesLosesItsStatusLineBehindTheBuffer()
    {
        TestRoot root(0.02);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        QByteArray reply = "mea_brask\r\n" + QByteArray(20000 - 11 - 9, '7') + "ERROR 0\r\n";
        QCOMPARE(reply.size(), 20000);
        board.sendInBackground(reply);
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
        QCOMPARE(lastWait().micros, 10000000LL);
    }

    void replyOf20000BytesKeepsAStatusLineInsideTheBuffer()
    {
        TestRoot root(0.02);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        QByteArray head = "Z_tst_brask 5 1\r\n1\t2\t3\t4\r\nERROR 4\r\n";
        board.sendInBackground(head + QByteArray(20000 - head.size(), '#'));
        _tstBrask tst;
        QCOMPARE(device.acquireZTstBrask(&tst, 5, 1, nullptr), PD_OVER_CURRENT);
        QCOMPARE(tst.corrente[0], 1);
        QCOMPARE(tst.vGateEff[0], 4);
        QCOMPARE(tst.corrente[1], 0);
    }

    void replyOf100000BytesIsAbandoned()
    {
        TestRoot root(0.02);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        QByteArray head = "Z_sweep_brask 1 0\r\n1\t2\t3\t4\r\nERROR 0\r\n";
        board.sendInBackground(head + QByteArray(100000 - head.size(), '#'));
        _tstBrask tst;
        std::memset(&tst, 1, sizeof tst);
        QCOMPARE(device.acquireSweepBrask(&tst, 1, 0, nullptr), PD_NO_REPLY);
        // the whole reply is void: nothing of it reaches the record
        QCOMPARE(tst.corrente[0], 0);
        QCOMPARE(tst.vGateEff[0], 0);
    }

    void lineThatNeverGoesSilentIsAbandoned()
    {
        TestRoot root(0.02);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        board.sendInBackground(braskReply(128), true);
        _raw_ramp_iv ramp;
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
        board.stop();
    }

    void binaryNoiseOnTheLineIsNoReply()
    {
        TestRoot root(0.02);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        QByteArray noise;
        quint32 x = 99;
        for (int i = 0; i < 5000; i++) {
            x = x * 1664525u + 1013904223u;
            noise += char(x >> 24);
        }
        noise.replace("ERROR", "error");
        board.sendInBackground("temp_hsink\r" + noise);
        float t = 12.5f;
        QCOMPARE(device.acquireTempHSink(&t), PD_NO_REPLY);
        QCOMPARE(t, 0.0f);
    }

    // The old instrument read the reply as C text: the NUL ended it, the
    // status line behind was never found and its reader still went on with
    // the figures before the NUL and zeros behind. The reply is no reply.
    void numberIsANumber_nulInsideTheDataIsNoReply()
    {
        TestRoot root(0.05);
        PtyBoard board(root);
        QVERIFY(board.isValid());
        PowerDevice device;
        QVERIFY(board.send(QByteArray("info_last\r\n1\t2\0\xff\r\nERROR 0\r\n", 27)));
        _info_last info;
        std::memset(&info, 1, sizeof info);
        QCOMPARE(device.acquireLastInfo(&info), PD_NO_REPLY);
        QCOMPARE(info.range, 0);
        QCOMPARE(info.testmode, 0);
        QCOMPARE(info.gatestep, 0);
        QCOMPARE(info.ntc_dac, 0);
    }
};

QTEST_GUILESS_MAIN(TestSerialPort)
#include "tst_serialport.moc"
