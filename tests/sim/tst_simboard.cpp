// The simulated measuring board, spoken to over its pseudo-terminal with a
// plain termios client as the program does: echo, data lines, status line,
// its conditions, its supply and its faults.
#include "platform/bus.h"
#include "support/siminstrument.h"
#include "support/termiosclient.h"
#include "support/testroot.h"

#include <QElapsedTimer>
#include <QtTest>
#include <cmath>
#include <fcntl.h>

namespace
{

// Data lines between the echo and the status line.
QList<QByteArray> dataLines(const QByteArray& reply, const QByteArray& command)
{
    int start = reply.indexOf(command);
    int end = reply.indexOf("ERROR");
    if (start < 0 || end < 0)
        return {};
    QByteArray data = reply.mid(start + command.size(), end - start - command.size());
    QList<QByteArray> lines = data.split('\r');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

int status(const QByteArray& reply)
{
    int at = reply.indexOf("ERROR ");
    if (at < 0)
        return -1;
    return reply.mid(at + 6, reply.indexOf('\r', at) - at - 6).toInt();
}

bool writePower(int level)
{
    int fd = Bus::open("/dev/gpio/106", O_RDWR);
    if (fd < 0)
        return false;
    bool ok = Bus::gpioRequest(fd, Bus::GPIO_SET_OUTPUT, nullptr) == 0 &&
              Bus::gpioRequest(fd, Bus::GPIO_WRITE, &level) == 0;
    Bus::close(fd);
    return ok;
}

} // namespace

class TestSimBoard : public QObject
{
    Q_OBJECT

private slots:
    void versionIsEchoTextAndStatus()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"));
        QVERIFY(line.isOpen());
        QCOMPARE(line.exchange("ver\r"), QByteArray("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
        QCOMPARE(sim.boardCommands(), QStringList{"ver"});
    }
    void everyCommandAnswersAsTheProtocolSays_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("columns");
        QTest::newRow("ver") << QByteArray("ver\r") << 1 << 1;
        QTest::newRow("ramp") << QByteArray("ramp 40 1 0 1000 2300\r") << 40 << 2;
        QTest::newRow("charge") << QByteArray("charge 25 0\r") << 25 << 2;
        QTest::newRow("curr_mean") << QByteArray("curr_mean 1\r") << 1 << 1;
        QTest::newRow("volt_mean") << QByteArray("volt_mean 0\r") << 1 << 1;
        QTest::newRow("mea_utroque") << QByteArray("mea_utroque\r") << 512 << 2;
        QTest::newRow("info_last") << QByteArray("info_last\r") << 1 << 9;
        QTest::newRow("volt_sum") << QByteArray("volt_sum 1\r") << 1 << 1;
        QTest::newRow("volt_spot") << QByteArray("volt_spot 1\r") << 1 << 1;
        QTest::newRow("mea_brask") << QByteArray("mea_brask\r") << 128 << 4;
        QTest::newRow("Z_tst_brask") << QByteArray("Z_tst_brask 1500 0\r") << 128 << 4;
        QTest::newRow("Z_kill_brask") << QByteArray("Z_kill_brask 1500 1\r") << 128 << 4;
        QTest::newRow("temp_hsink") << QByteArray("temp_hsink\r") << 1 << 1;
        QTest::newRow("Z_sweep_brask") << QByteArray("Z_sweep_brask 2000 0\r") << 128 << 4;
    }
    void everyCommandAnswersAsTheProtocolSays()
    {
        QFETCH(QByteArray, command);
        QFETCH(int, lines);
        QFETCH(int, columns);
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray reply = line.exchange(command);
        QVERIFY2(reply.startsWith(command), reply.left(40).constData());
        QVERIFY(reply.endsWith("ERROR 0\r"));
        QCOMPARE(status(reply), 0);
        QList<QByteArray> data = dataLines(reply, command);
        QCOMPARE(data.size(), lines);
        for (const QByteArray& l : data)
            QCOMPARE(l.split('\t').size(), columns);
    }
    void unknownCommandGivesError1()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"));
        QCOMPARE(line.exchange("hello\r"), QByteArray("hello\rERROR 1\r"));
    }
    void countsComeOutRightWithTheDefaultCalibration()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(25));
        TermiosClient line(root.path("/dev/ttyS1"));
        int isc = dataLines(line.exchange("curr_mean 1\r"), "curr_mean 1\r").value(0).toInt();
        int voc = dataLines(line.exchange("volt_mean 1\r"), "volt_mean 1\r").value(0).toInt();
        QVERIFY(std::fabs(isc * 0.0064f - 8.7) <= 0.0064);
        QVERIFY(std::fabs(voc * 0.282624f + 0.147721f - 37.5) <= 0.15);
        int isc0 = dataLines(line.exchange("curr_mean 0\r"), "curr_mean 0\r").value(0).toInt();
        QVERIFY(std::fabs(isc0 * 0.0032f - 8.7) <= 0.0032);
        QList<QByteArray> info =
            dataLines(line.exchange("info_last\r"), "info_last\r").value(0).split('\t');
        QCOMPARE(info.size(), 9);
        QCOMPARE(info[5].toInt(), isc);
        QCOMPARE(info[6].toInt(), voc);
    }
    void meaBraskSweepsFromOpenCircuitToShortCircuit()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(25));
        TermiosClient line(root.path("/dev/ttyS1"));
        QList<QByteArray> data = dataLines(line.exchange("mea_brask\r"), "mea_brask\r");
        QCOMPARE(data.size(), 128);
        QList<QByteArray> first = data.first().split('\t'), last = data.last().split('\t');
        QCOMPARE(first[0].toInt(), 0); // no current at Voc
        QVERIFY(std::fabs(first[1].toInt() * 0.282624 + 0.147721 - 37.5) < 0.3); // Voc
        QVERIFY(std::fabs(last[0].toInt() * 0.0064 - 8.7) < 0.01);               // Isc
        QCOMPARE(last[1].toInt(), 0);
        // Power has its maximum near the data sheet's 250 W.
        double best = 0;
        for (const QByteArray& l : data) {
            QList<QByteArray> c = l.split('\t');
            best = qMax(best, c[0].toInt() * 0.0064 * (c[1].toInt() * 0.282624 + 0.147721));
        }
        QVERIFY2(best > 240 && best < 256, qPrintable(QString::number(best)));
    }
    void noiseOnTheCountsIsSeededAndOfTheGivenSpread()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(25));
        TermiosClient line(root.path("/dev/ttyS1"));
        const QByteArray ramp("ramp 512 1 0 1000 2300\r");
        auto counts = [&] {
            QList<int> all;
            for (const QByteArray& l : dataLines(line.exchange(ramp), ramp))
                for (const QByteArray& c : l.split('\t'))
                    all << c.toInt();
            return all;
        };
        const QList<int> clean = counts();
        QCOMPARE(clean.size(), 1024);
        QVERIFY(sim.setFault("noise 2 7"));
        const QList<int> first = counts();
        QVERIFY(sim.setFault("noise 2 7"));
        QCOMPARE(counts(), first); // the same seed, the same noise
        QVERIFY(sim.setFault("noise 2 8"));
        QVERIFY(counts() != first);
        // the spread: a standard deviation near 2 counts over the points away
        // from the converters' ends
        double sum = 0, squares = 0;
        int n = 0;
        for (int k = 0; k < clean.size(); k++) {
            if (clean[k] < 50 || clean[k] > 4045)
                continue;
            const double d = first[k] - clean[k];
            sum += d;
            squares += d * d;
            n++;
        }
        QVERIFY(n > 500);
        const double sd = std::sqrt(squares / n - (sum / n) * (sum / n));
        QVERIFY2(sd > 1.7 && sd < 2.3, qPrintable(QString::number(sd)));
        QVERIFY(std::fabs(sum / n) < 0.3);
        QVERIFY(sim.setFault("none"));
        QCOMPARE(counts(), clean);
        QVERIFY(!sim.setFault("noise -1"));
    }
    void heatSinkWarmsWithEachRamp()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setAmbientTemperature(22));
        TermiosClient line(root.path("/dev/ttyS1"));
        double before =
            dataLines(line.exchange("temp_hsink\r"), "temp_hsink\r").value(0).toDouble();
        QVERIFY(std::fabs(before - 22.0) < 0.01);
        line.exchange("mea_brask\r");
        line.exchange("mea_brask\r");
        double after = dataLines(line.exchange("temp_hsink\r"), "temp_hsink\r").value(0).toDouble();
        QVERIFY(after > before + 1.0);
    }
    void sourceConditionsGiveTheBoardsErrors_data()
    {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<int>("error");
        QTest::newRow("reversed polarity") << QByteArray("fault reverse") << 7;
        QTest::newRow("floating negative") << QByteArray("fault floating") << 8;
        QTest::newRow("open circuit") << QByteArray("fault open") << 10;
        QTest::newRow("dark") << QByteArray("set irradiance 0") << 9;
        QTest::newRow("hot heat sink") << QByteArray("board hsink 80") << 11;
        QTest::newRow("over voltage") << QByteArray("set series 30") << 3;
        QTest::newRow("forced") << QByteArray("board status 6") << 6;
    }
    void sourceConditionsGiveTheBoardsErrors()
    {
        QFETCH(QByteArray, scenario);
        QFETCH(int, error);
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command(scenario));
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray reply = line.exchange("mea_brask\r");
        QCOMPARE(reply, "mea_brask\r" + QByteArray("ERROR ") + QByteArray::number(error) + "\r");
    }
    void silentWhileItsPowerLineIsOff()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(writePower(1));
        QCOMPARE(sim.powerLineLevel(), 1);
        TermiosClient line(root.path("/dev/ttyS1"));
        QCOMPARE(line.exchange("ver\r"), QByteArray());
        QVERIFY(sim.boardCommands().isEmpty());
        QVERIFY(writePower(0));
        // Power-up: the boot loader greets, then the firmware answers.
        QCOMPARE(line.readExactly(5, 2000), QByteArray("\0\x09\x09\x09\x0D", 5));
        QCOMPARE(line.exchange("ver\r"), QByteArray("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
    }
    void faultNoStatusLine()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("nostatus"));
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray reply = line.exchange("mea_brask\r");
        QVERIFY(reply.startsWith("mea_brask\r"));
        QVERIFY(!reply.contains("ERROR"));
        QCOMPARE(reply.count('\r'), 129);
    }
    void faultStrayBytesBeforeTheEcho()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("stray"));
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray reply = line.exchange("ver\r");
        QVERIFY(!reply.startsWith("ver\r"));
        QVERIFY(reply.endsWith("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
    }
    void faultStatusLineInTheMiddle()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("midstatus 7"));
        TermiosClient line(root.path("/dev/ttyS1"));
        // the reply comes in pieces; a simulator held off the cores for more
        // than the usual 150 ms between them must not cut it in two
        QByteArray reply = line.exchange("mea_brask\r", 1000);
        int mid = reply.indexOf("ERROR 7\r");
        QVERIFY(mid > 0);
        QCOMPARE(reply.left(mid).count('\r'), 1 + 64);
        QVERIFY(reply.endsWith("ERROR 0\r"));
    }
    void faultGarbageLines()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("garbage"));
        TermiosClient line(root.path("/dev/ttyS1"));
        QList<QByteArray> data = dataLines(line.exchange("mea_brask\r"), "mea_brask\r");
        QVERIFY(data.size() > 128);
        QCOMPARE(data.first(), QByteArray("@@!!##"));
    }
    void faultLongReply_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::newRow("20000") << 20001;
        QTest::newRow("100000") << 100000;
    }
    void faultLongReply()
    {
        QFETCH(int, bytes);
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("long " + QByteArray::number(bytes) + " once"));
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray reply = line.exchange("mea_brask\r", 300);
        QVERIFY(reply.size() >= bytes);
        QVERIFY(reply.endsWith("ERROR 0\r"));
        // A fault given with "once" is gone after one reply.
        QCOMPARE(line.exchange("ver\r"), QByteArray("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
    }
    void faultPauseLongerThanTheSilence()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("pause 400"));
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray first = line.exchange("mea_brask\r", 150);
        QVERIFY(first.startsWith("mea_brask\r"));
        QVERIFY(!first.contains("ERROR"));
        QByteArray rest = line.readUntilSilence(600);
        QVERIFY(rest.endsWith("ERROR 0\r"));
        QCOMPARE((first + rest).count('\r'), 130);
    }
    void faultReplyThatNeverGoesSilent()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("endless"));
        TermiosClient line(root.path("/dev/ttyS1"));
        line.write("ver\r");
        QByteArray reply = line.readUntilSilence(200, 60);
        QCOMPARE(reply.size(), 60); // still talking: stopped by the byte limit
        QVERIFY(sim.setBoardFault("none"));
    }
    void faultBinaryNoise()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("noise"));
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray reply = line.exchange("ver\r");
        QVERIFY(reply.size() > 34);
        QVERIFY(reply.endsWith("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
    }
    void faultNulInTheData()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("nul"));
        TermiosClient line(root.path("/dev/ttyS1"));
        QByteArray reply = line.exchange("ver\r");
        QCOMPARE(reply, QByteArray("ver\r\0KRM510PD FP 2.1 BRASK\rERROR 0\r", 35));
        QVERIFY(sim.setBoardFault("none"));
        QCOMPARE(line.exchange("ver\r"), QByteArray("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
    }
    void forcedReplyIsSentExactly()
    {
        TestRoot root;
        SimInstrument sim(root);
        QByteArray exact("xx\0ver\rFOO 3.4 PROTO\rERROR 0\r", 27);
        QVERIFY(sim.forceBoardReply(exact));
        TermiosClient line(root.path("/dev/ttyS1"));
        QCOMPARE(line.exchange("ver\r"), exact);
        QCOMPARE(line.exchange("ver\r"), QByteArray("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
        QCOMPARE(sim.boardCommands(), (QStringList{"ver", "ver"}));
    }
    void realModeIsPacedAt9600Baud()
    {
        TestRoot root;
        SimInstrument sim(root, false);
        TermiosClient line(root.path("/dev/ttyS1"));
        QElapsedTimer timer;
        timer.start();
        QByteArray reply = line.exchange("info_last\r", 300);
        qint64 ms = timer.elapsed() - 300;
        QCOMPARE(status(reply), 0);
        // About a millisecond per byte, plus the board's moment to measure.
        QVERIFY2(ms >= reply.size() - 5, qPrintable(QString::number(ms)));
    }
};

QTEST_GUILESS_MAIN(TestSimBoard)
#include "tst_simboard.moc"
