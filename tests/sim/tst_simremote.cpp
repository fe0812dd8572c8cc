// The simulated remote unit on its serial line: both generations, the
// "no value" answer, and the USB and Bluetooth links.
#include "data/coredata.h"
#include "platform/command.h"
#include "support/siminstrument.h"
#include "support/termiosclient.h"
#include "support/testroot.h"

#include <QtTest>
#include <cmath>
#include <cstdio>

namespace {
QByteArray output(const char* commandLine)
{
    FILE* p = Command::popen(commandLine, "r");
    if (p == nullptr)
        return QByteArray();
    char buffer[256] = {0};
    size_t n = fread(buffer, 1, sizeof buffer - 1, p);
    Command::pclose(p);
    return QByteArray(buffer, static_cast<int>(n)).trimmed();
}
} // namespace

class TestSimRemote : public QObject
{
    Q_OBJECT

private slots:
    void versionTwoAnswersValues()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(654.3));
        QVERIFY(sim.setModuleTemperature(41.2));
        QVERIFY(sim.setAmbientTemperature(18.4));
        TermiosClient line(root.path("/dev/ttyUSB0"), 38400);
        QVERIFY(line.isOpen());
        // Commands without an answer.
        QCOMPARE(line.exchange("TOFF\r"), QByteArray());
        QByteArray version = line.exchange("VERSION\r");
        int major = 0, minor = 0, patch = 0;
        QCOMPARE(sscanf(version.constData(), "%*s : %*s %d.%d.%d", &major, &minor, &patch), 3);
        QCOMPARE(major, 2);
        QCOMPARE(line.exchange("PYSENS 10.540000\r"), QByteArray());
        float irr = 0, cell = 0, env = 0;
        QCOMPARE(cSscanf(line.exchange("IRR\r").constData(), "%*s = %f %*s", &irr), 1);
        QCOMPARE(cSscanf(line.exchange("TEMPCELL\r").constData(), "%*s %*s = %f", &cell), 1);
        QCOMPARE(cSscanf(line.exchange("TEMPENV\r").constData(), "%*s %*s = %f", &env), 1);
        QVERIFY(std::fabs(irr - 654.3f) < 0.06f);
        QVERIFY(std::fabs(cell - 41.2f) < 0.06f);
        QVERIFY(std::fabs(env - 18.4f) < 0.06f);
    }
    void versionTwoUsesTheSensitivityItWasTold()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(1000));
        TermiosClient line(root.path("/dev/ttyUSB0"), 38400);
        line.exchange("PYSENS 21.080000\r");
        float irr = 0;
        QCOMPARE(cSscanf(line.exchange("IRR\r").constData(), "%*s = %f %*s", &irr), 1);
        QVERIFY(std::fabs(irr - 500.0f) < 0.06f);
    }
    void noValueIsTwoDashes()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("remote novalue irr on"));
        TermiosClient line(root.path("/dev/ttyUSB0"), 38400);
        QVERIFY(line.exchange("IRR\r").contains("--"));
        QVERIFY(!line.exchange("TEMPENV\r").contains("--"));
    }
    void versionOneAnswersCounts()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("remote gen 1"));
        QVERIFY(sim.setIrradiance(800));
        QVERIFY(sim.setModuleTemperature(30));
        TermiosClient line(root.path("/dev/ttyUSB0"), 38400);
        int major = 0, minor = 0, patch = 0;
        QCOMPARE(sscanf(line.exchange("VERSION\r").constData(), "%*s : %*s %d.%d.%d", &major, &minor, &patch), 3);
        QCOMPARE(major, 1);
        int pyrano = atoi(line.exchange("ADCPIRANO\r").constData());
        float irr = static_cast<float>(pyrano) / 26.17963f / 64.0f / 10.54f * 1000.0f;
        QVERIFY(std::fabs(irr - 800.0f) < 0.1f);
        int panel = atoi(line.exchange("ADCPANEL\r").constData());
        int reference = atoi(line.exchange("ADCREF\r").constData());
        float t = static_cast<float>((static_cast<double>(static_cast<float>(panel) / reference) - 1.0) * 100.0 / 0.385);
        QVERIFY(std::fabs(t - 30.0f) < 0.05f);
        QVERIFY(sim.command("remote novalue tenv on"));
        QCOMPARE(line.exchange("ADCAMBIENT\r").trimmed(), QByteArray("65535"));
        QCOMPARE(line.exchange("IRR\r"), QByteArray()); // not a generation 1 command
    }
    void usbAdapterOnAnotherNumber()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link usb 3"));
        QVERIFY(!root.exists("/dev/ttyUSB0"));
        QVERIFY(root.exists("/dev/ttyUSB3"));
        TermiosClient line(root.path("/dev/ttyUSB3"), 38400);
        QVERIFY(line.exchange("VERSION\r").contains("VER 2"));
        QVERIFY(sim.command("remote link none"));
        QVERIFY(!root.exists("/dev/ttyUSB3"));
    }
    void bluetoothLinkComesWithTheScript()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link rfcomm"));
        QVERIFY(!root.exists("/dev/rfcomm0"));
        QCOMPARE(output("pidof rfcomm"), QByteArray());
        QCOMPARE(Command::system("/usr/bin/krmhci.sh start 00:11:22:33:44:55"), 0);
        QVERIFY(root.exists("/dev/rfcomm0"));
        QVERIFY(output("pidof rfcomm").toInt() > 0);
        {
            TermiosClient line(root.path("/dev/rfcomm0"), 38400);
            QVERIFY(line.exchange("VERSION\r").contains("VER 2"));
        }
        QCOMPARE(Command::system("/usr/bin/krmhci.sh stop"), 0);
        QVERIFY(!root.exists("/dev/rfcomm0"));
        QCOMPARE(output("pidof rfcomm"), QByteArray());
        QVERIFY(root.read("/var/lib/krm510-sim/commands.log").contains("krmhci.sh start 00:11:22:33:44:55"));
    }
    void bluetoothUnitAbsentMeansNoLink()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link usb 0"));
        QVERIFY(Command::system("/usr/bin/krmhci.sh start 00:11:22:33:44:55") != 0);
        QVERIFY(!root.exists("/dev/rfcomm0"));
    }
    void forcedReplyStandsAsItIsForAnAnsweredCommand()
    {
        TestRoot root;
        SimInstrument sim(root);
        QCOMPARE(sim.value("remote reply \\xff\\x00garbage"), QByteArray("1"));
        QCOMPARE(sim.value("remote reply second"), QByteArray("2"));
        TermiosClient line(root.path("/dev/ttyUSB0"), 38400);
        // A command the unit does not answer leaves the queue alone.
        QCOMPARE(line.exchange("TOFF\r"), QByteArray());
        QCOMPARE(line.exchange("VERSION\r"), QByteArray("\xff\x00garbage", 9));
        QCOMPARE(line.exchange("IRR\r"), QByteArray("second"));
        QVERIFY(line.exchange("VERSION\r").contains("VER 2.1.0\r\n"));
    }
};

QTEST_GUILESS_MAIN(TestSimRemote)
#include "tst_simremote.moc"
