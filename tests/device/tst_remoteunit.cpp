// The remote sensor unit against the simulated unit over real
// pseudo-terminals: both links, both generations, the connection sequence
// and its waits, the values and their "no value" answers, the rfcomm process
// as the sign of a Bluetooth link, and units that answer garbage.
#include "data/datasetting.h"
#include "device/ad7795.h"
#include "device/remoteunit.h"
#include "platform/clock.h"
#include "platform/command.h"
#include "support/siminstrument.h"
#include "support/termiosclient.h"
#include "support/testroot.h"

#include <QFile>
#include <QtTest>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

// The configuration the unit reads in connect.
bool writeConfig(float cpyar, const char* mac = "00:11:22:33:44:55")
{
    _configParam config;
    defaultConfig(&config);
    config.cpyar = cpyar;
    std::strncpy(config.bluemac, mac, BLUEMAC_SIZE - 1);
    config.bluemac[BLUEMAC_SIZE - 1] = '\0';
    return saveConfigFile(config) > 0;
}

// The commands the simulated unit received, in order.
QList<QByteArray> unitLog(const SimInstrument& sim)
{
    QList<QByteArray> words = sim.value("remote log").split(' ');
    if (!words.isEmpty())
        words.removeFirst(); // the count
    return words;
}

QByteArray linkTarget(const QString& path)
{
    return QFile::symLinkTarget(path).toLocal8Bit();
}

QByteArray fdTarget(int fd)
{
    char buffer[256] = {0};
    QByteArray link = "/proc/self/fd/" + QByteArray::number(fd);
    ssize_t n = readlink(link.constData(), buffer, sizeof buffer - 1);
    return n > 0 ? QByteArray(buffer, static_cast<int>(n)) : QByteArray();
}

int countOf(const QByteArray& text, const QByteArray& what)
{
    return static_cast<int>(text.count(what));
}

// One counter-check value of the simulated unit, asked before the program
// opens the line.
int askUnit(const TestRoot& root, const char* node, const QByteArray& command)
{
    TermiosClient line(root.path(node), 38400);
    return std::atoi(line.exchange(command).constData());
}

// The converter scale and pyranometer the local formulas use, as the
// configuration defaults give them.
void setLocalPyranometer()
{
    setKforPyrano(26.17963f);
    setGforPyrano(10.54f);
}

} // namespace

class TestRemoteUnit : public QObject
{
    Q_OBJECT

private slots:
    void commandTablesAsTheUnitAndTheScriptKnowThem()
    {
        const char* const commands[] = {"STOPREMOTO\r", "TOFF\r",     "TON\r",    "ADCPIRANO\r",
                                        "ADCAMBIENT\r", "ADCREF\r",   "ADCPANEL\r", "VERSION\r",
                                        "PYSENS %f\r",  "IRR\r",      "TEMPCELL\r", "TEMPENV\r"};
        for (int i = 0; i < 12; i++)
            QCOMPARE(QByteArray(remote_cmd[i]), QByteArray(commands[i]));
        QCOMPARE(QByteArray(remote_cmd[12]), QByteArray());
        QCOMPARE(QByteArray(bluez_cmd[0]), QByteArray("mknod /dev/rfcomm0 c 216 0"));
        // Two commands in one text, as it has always stood.
        QCOMPARE(QByteArray(bluez_cmd[1]),
                 QByteArray("chmod 666 /dev/rfcomm0hciconfig hci0 reset"));
        QCOMPARE(QByteArray(bluez_cmd[2]), QByteArray("hciconfig hci0 down"));
        QCOMPARE(QByteArray(bluez_cmd[3]), QByteArray("hciconfig hci0 up"));
        QCOMPARE(QByteArray(bluez_cmd[4]), QByteArray("rfcomm connect 0"));
        QCOMPARE(QByteArray(bluez_cmd[5]), QByteArray());
    }

    void newUnitIsClosedWithTheGivenSensitivity()
    {
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.link, LINK_USB);
        QCOMPARE(unit.fd, -1);
        QCOMPARE(unit.version2, 0);
        QCOMPARE(unit.sensPyrano, 10.54f);
    }

    void localLinkConnectsToNothing()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        RemoteUnit unit(LINK_LOCAL, 10.54f);
        QCOMPARE(unit.connect(), 0);
        QCOMPARE(unit.fd, -1);
        QCOMPARE(unit.isConnect(), 0);
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        ok = 1;
        QCOMPARE(unit.getTempModulo(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        ok = 1;
        QCOMPARE(unit.getTempAmbiente(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        // No line, no script, no wait.
        QVERIFY(unitLog(sim).isEmpty());
        QVERIFY(Clock::waits().empty());
        QVERIFY(!root.read("/var/lib/krm510-sim/commands.log").contains("krmhci"));
    }

    void usbAdapterOnNumberThreeIsFoundOnTheFourthTry()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link usb 3"));
        // A second adapter further on is not reached: the search stops at 3.
        int decoy = posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(decoy >= 0 && grantpt(decoy) == 0 && unlockpt(decoy) == 0);
        QVERIFY(symlink(ptsname(decoy), root.path("/dev/ttyUSB7").toLocal8Bit().constData()) == 0);
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QCOMPARE(fdTarget(unit.fd), linkTarget(root.path("/dev/ttyUSB3")));
        QCOMPARE(unit.isConnect(), 1);
        QCOMPARE(unit.version2, 1);
        unit.disconnect();
        ::close(decoy);
    }

    void noAdapterNodeFailsWithoutWaiting()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link none"));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 0);
        QCOMPARE(unit.fd, -1);
        QCOMPARE(unit.isConnect(), 0);
        QVERIFY(Clock::waits().empty());
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
    }

    void versionTwoUnitIsToldTheConfiguredSensitivity()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(writeConfig(12.5f));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QCOMPARE(unit.version2, 1);
        QCOMPARE(unit.sensPyrano, 12.5f);
        QCOMPARE(unitLog(sim), QList<QByteArray>({"TOFF", "TOFF", "TOFF", "VERSION",
                                                   "PYSENS\\x2012.500000"}));
        // Three 1 s pauses behind "TOFF", 1 s before "VERSION", its reply
        // closed by 2 s of silence, 1 s behind "PYSENS".
        std::vector<Clock::Wait> waits = Clock::waits();
        QVERIFY(waits.size() >= 3);
        QVERIFY(waits.front() == (Clock::Wait{Clock::Sleep, 1000000, 4}));
        QVERIFY(waits.back() == (Clock::Wait{Clock::Sleep, 1000000, 1}));
        for (size_t i = 1; i + 1 < waits.size(); i++) {
            QCOMPARE(waits[i].kind, Clock::Select);
            QCOMPARE(waits[i].micros, 2000000LL);
            QVERIFY(waits[i].count >= 2); // the reply, then the silence
        }
    }

    void versionOneUnitGetsNoSensitivity()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote gen 1"));
        QVERIFY(writeConfig(12.5f));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QCOMPARE(unit.version2, 0);
        QCOMPARE(unitLog(sim), QList<QByteArray>({"TOFF", "TOFF", "TOFF", "VERSION"}));
        QVERIFY(Clock::waits().back().kind == Clock::Select);
    }

    void garbageToVersionIsTakenForAVersionOneUnit()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        // A generation 2 unit that answers noise to the three questions: a
        // text with no version, binary bytes, and a reply longer than the
        // reply buffer.
        QVERIFY(sim.command("remote reply \\x01\\x02\\x03 : VER x.y.z\\r\\n"));
        QVERIFY(sim.command("remote reply \\xff\\xfe\\x00KRM510RU : VER 2.1.0\\r\\n"));
        QVERIFY(sim.command("remote reply " + QByteArray(1500, 'Z') + " : VER 2.1.0"));
        setLocalPyranometer();
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QCOMPARE(unit.version2, 0);
        QList<QByteArray> log = unitLog(sim);
        QCOMPARE(log.count("VERSION"), 3);
        for (const QByteArray& command : log)
            QVERIFY(!command.startsWith("PYSENS"));
        // Each failed question is followed by a 1 s pause.
        std::vector<Clock::Wait> waits = Clock::waits();
        QVERIFY(waits.back() == (Clock::Wait{Clock::Sleep, 1000000, 1}));
        QCOMPARE(Clock::requested(Clock::Sleep), 7000000LL);
        // Taken for generation 1, it asks counts that a generation 2 unit
        // does not know: no answer, no value.
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        QVERIFY(unitLog(sim).contains("ADCPIRANO"));
    }

    void versionTwoValuesComeFromTheUnit()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(654.3));
        QVERIFY(sim.setModuleTemperature(41.2));
        QVERIFY(sim.setAmbientTemperature(18.4));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        char ok = 0;
        QVERIFY(std::fabs(unit.getPirano(&ok) - 654.3f) < 0.06f);
        QCOMPARE(ok, char(1));
        ok = 0;
        QVERIFY(std::fabs(unit.getTempModulo(&ok) - 41.2f) < 0.06f);
        QCOMPARE(ok, char(1));
        ok = 0;
        QVERIFY(std::fabs(unit.getTempAmbiente(&ok) - 18.4f) < 0.06f);
        QCOMPARE(ok, char(1));
        QCOMPARE(unitLog(sim).mid(5), QList<QByteArray>({"IRR", "TEMPCELL", "TEMPENV"}));
    }

    void versionTwoDashesMeanNoValue()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QVERIFY(sim.command("remote novalue irr on"));
        QVERIFY(sim.command("remote novalue tcell on"));
        QVERIFY(sim.command("remote novalue tenv on"));
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        ok = 1;
        QCOMPARE(unit.getTempModulo(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        ok = 1;
        QCOMPARE(unit.getTempAmbiente(&ok), 0.0f);
        QCOMPARE(ok, char(0));
    }

    void versionTwoReplyWithoutANumberIsOkWithZero()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QVERIFY(sim.command("remote reply IRR = abc W/m2\\r\\n"));
        char ok = 0;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(1));
        // A reply far longer than the reply buffer is cut, not overrun.
        QVERIFY(sim.command("remote reply TEMP CELL = 33.5 C" + QByteArray(3000, 'x') + "--"));
        ok = 0;
        QCOMPARE(unit.getTempModulo(&ok), 33.5f);
        QCOMPARE(ok, char(1));
    }

    void versionOneCountsAreTurnedIntoValuesHere()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setLocalPyranometer();
        QVERIFY(sim.command("remote gen 1"));
        QVERIFY(sim.setIrradiance(800));
        QVERIFY(sim.setModuleTemperature(30));
        QVERIFY(sim.setAmbientTemperature(15));
        int pyrano = askUnit(root, "/dev/ttyUSB0", "ADCPIRANO\r");
        QVERIFY(pyrano > 0);
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        char ok = 0;
        float irradiance = unit.getPirano(&ok);
        QCOMPARE(ok, char(1));
        QCOMPARE(irradiance, calc_irr(static_cast<unsigned>(pyrano)));
        QVERIFY(std::fabs(irradiance - 800.0f) < 0.1f);
        ok = 0;
        QVERIFY(std::fabs(unit.getTempModulo(&ok) - 30.0f) < 0.05f);
        QCOMPARE(ok, char(1));
        ok = 0;
        QVERIFY(std::fabs(unit.getTempAmbiente(&ok) - 15.0f) < 0.05f);
        QCOMPARE(ok, char(1));
        QCOMPARE(unitLog(sim).mid(5), QList<QByteArray>({"ADCPIRANO", "ADCPANEL", "ADCREF",
                                                           "ADCAMBIENT", "ADCREF"}));
    }

    void versionOneProbeCount65535IsNotOkButStillComputed()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote gen 1"));
        QVERIFY(sim.command("remote novalue tcell on"));
        int reference = askUnit(root, "/dev/ttyUSB0", "ADCREF\r");
        QVERIFY(reference > 0);
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        char ok = 1;
        float value = unit.getTempModulo(&ok);
        QCOMPARE(ok, char(0));
        float ratio = 65535.0f / static_cast<float>(reference);
        QCOMPARE(value, static_cast<float>((static_cast<double>(ratio) - 1.0) * 100.0 / 0.385));
        // The ambient probe is fine.
        ok = 0;
        unit.getTempAmbiente(&ok);
        QCOMPARE(ok, char(1));
    }

    void versionOneNoIrradianceIsNotOk()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setLocalPyranometer();
        QVERIFY(sim.command("remote gen 1"));
        QVERIFY(sim.command("remote novalue irr on"));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
    }

    void versionOneTemperatureBelowMinusTenIsNotOk()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote gen 1"));
        QVERIFY(sim.setModuleTemperature(-12));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        char ok = 1;
        QVERIFY(std::fabs(unit.getTempModulo(&ok) + 12.0f) < 0.05f);
        QCOMPARE(ok, char(0));
    }

    // The old instrument reported the 0 / 0 of a dead first-generation unit
    // as a good temperature. It is a failed reading: 0 and not ok.
    void numberIsANumber_versionOneDeadLineIsAFailedTemperature()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setLocalPyranometer();
        QVERIFY(sim.command("remote gen 1"));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QVERIFY(sim.command("remote link none")); // the adapter is pulled out
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        // Both counts read 0: 0 / 0
        ok = 1;
        QCOMPARE(unit.getTempModulo(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        ok = 1;
        QCOMPARE(unit.getTempAmbiente(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        // The descriptor stays until disconnect.
        QCOMPARE(unit.isConnect(), 1);
    }

    void numberIsANumber_versionOneReferenceZeroIsAFailedTemperature()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote gen 1"));
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        // the probe reads 30000 over a reference of 0: infinite
        QVERIFY(sim.command("remote reply 30000\\r\\n"));
        QVERIFY(sim.command("remote reply 0\\r\\n"));
        char ok = 1;
        QCOMPARE(unit.getTempModulo(&ok), 0.0f);
        QCOMPARE(ok, char(0));
    }

    void numberIsANumber_versionTwoNanOrInfIsAFailedReading()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QVERIFY(sim.command("remote reply IRR = nan W/m2\\r\\n"));
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        QVERIFY(sim.command("remote reply TEMP CELL = inf C\\r\\n"));
        ok = 1;
        QCOMPARE(unit.getTempModulo(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        QVERIFY(sim.command("remote reply TEMP ENV = -INFINITY C\\r\\n"));
        ok = 1;
        QCOMPARE(unit.getTempAmbiente(&ok), 0.0f);
        QCOMPARE(ok, char(0));
    }

    void readingOnAClosedLineIsNotOk()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        QCOMPARE(unit.disconnect(), 1);
        QCOMPARE(unit.fd, -1);
        QCOMPARE(unit.version2, 1); // not reset
        QVERIFY(sim.command("remote log clear"));
        char ok = 1;
        QCOMPARE(unit.getPirano(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        ok = 1;
        QCOMPARE(unit.getTempAmbiente(&ok), 0.0f);
        QCOMPARE(ok, char(0));
        QVERIFY(unitLog(sim).isEmpty());
        QCOMPARE(unit.isConnect(), 0);
    }

    void lineSettingsAreSetAndRestored()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        // The line as some other program left it: 9600 baud, 7 data bits,
        // two stop bits, odd parity, flow control.
        int holder = ::open(root.path("/dev/ttyUSB0").toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
        QVERIFY(holder >= 0);
        struct termios found;
        QCOMPARE(tcgetattr(holder, &found), 0);
        cfsetispeed(&found, B9600);
        cfsetospeed(&found, B9600);
        found.c_cflag = (found.c_cflag & ~CSIZE) | CS7 | CSTOPB | PARENB | PARODD | CRTSCTS;
        found.c_iflag = ICRNL;
        QCOMPARE(tcsetattr(holder, TCSANOW, &found), 0);
        QCOMPARE(tcgetattr(holder, &found), 0);

        RemoteUnit unit(LINK_USB, 10.54f);
        QCOMPARE(unit.connect(), 1);
        struct termios working;
        QCOMPARE(tcgetattr(holder, &working), 0);
        QCOMPARE(cfgetispeed(&working), speed_t(B38400));
        QCOMPARE(cfgetospeed(&working), speed_t(B38400));
        QCOMPARE(working.c_cflag & CSIZE, tcflag_t(CS8));
        QCOMPARE(working.c_cflag & (CSTOPB | PARENB | CRTSCTS), tcflag_t(0));
        QCOMPARE(working.c_cflag & PARODD, tcflag_t(PARODD)); // left as found
        QCOMPARE(working.c_iflag, tcflag_t(IGNBRK));
        QCOMPARE(working.c_oflag, tcflag_t(0));
        QCOMPARE(working.c_lflag, tcflag_t(0));
        QCOMPARE(working.c_cc[VMIN], cc_t(1));
        QCOMPARE(working.c_cc[VTIME], cc_t(5));

        QCOMPARE(unit.disconnect(), 1);
        struct termios after;
        QCOMPARE(tcgetattr(holder, &after), 0);
        QCOMPARE(cfgetospeed(&after), speed_t(B9600));
        QCOMPARE(after.c_cflag, found.c_cflag);
        QCOMPARE(after.c_iflag, found.c_iflag);
        ::close(holder);
    }

    void bluetoothConnectStartsTheLinkScriptWithTheAddress()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link rfcomm"));
        QVERIFY(writeConfig(10.54f, "00:1A:7D:DA:71:13"));
        {
            RemoteUnit unit(LINK_BLUETOOTH, 10.54f);
            QCOMPARE(unit.isConnect(), 0);
            QCOMPARE(unit.connect(), 1);
            QVERIFY(root.read("/var/lib/krm510-sim/commands.log")
                        .contains("krmhci.sh start 00:1A:7D:DA:71:13"));
            QCOMPARE(fdTarget(unit.fd), linkTarget(root.path("/dev/rfcomm0")));
            QCOMPARE(unit.isConnect(), 1);
            QCOMPARE(unit.version2, 1);
            // The node was there at once: no pause before the first "TOFF".
            QVERIFY(Clock::waits().front() == (Clock::Wait{Clock::Sleep, 1000000, 4}));
            QCOMPARE(unit.disconnect(), 1);
            QCOMPARE(unit.isConnect(), 0);
            QVERIFY(!root.exists("/dev/rfcomm0"));
            QCOMPARE(countOf(root.read("/var/lib/krm510-sim/commands.log"), "krmhci.sh stop"), 1);
        }
        // The destructor disconnects again: the stop script runs a second time.
        QCOMPARE(countOf(root.read("/var/lib/krm510-sim/commands.log"), "krmhci.sh stop"), 2);
    }

    // The settings take any 17 characters as the unit's address. The old
    // instrument put them into the link script's command line as they were,
    // so a semicolon there ran a command of its own.
    void onlyWhatIsMeantRuns_macReachesTheLinkScriptAsOneArgument()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link rfcomm"));
        const QByteArray mac = "1;reboot #3:44:55";
        QCOMPARE(mac.size(), 17);
        QVERIFY(writeConfig(10.54f, mac.constData()));
        // a harmless "reboot" first on the path, to tell if it ran
        const QByteArray marker = root.path("/rebooted").toLocal8Bit();
        QVERIFY(root.write("/fakebin/reboot", "#!/bin/sh\ntouch '" + marker + "'\n"));
        QVERIFY(QFile::setPermissions(root.path("/fakebin/reboot"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", root.path("/fakebin").toLocal8Bit() + ":" + path);
        RemoteUnit unit(LINK_BLUETOOTH, 10.54f);
        const int connected = unit.connect();
        qputenv("PATH", path);
        QCOMPARE(connected, 1);
        QVERIFY(!root.exists("/rebooted"));
        // the script's second argument is the whole address
        QCOMPARE(root.read("/var/lib/krm510-sim/bt.mac"), mac + "\n");
        QVERIFY(root.read("/var/lib/krm510-sim/commands.log")
                    .contains("krmhci.sh start " + mac + "\n"));
    }

    void bluetoothWithoutNodeTriesFourTimes()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        // The unit is on the USB adapter: the link script brings no node up.
        RemoteUnit unit(LINK_BLUETOOTH, 10.54f);
        QCOMPARE(unit.connect(), 0);
        QCOMPARE(unit.fd, -1);
        std::vector<Clock::Wait> waits = Clock::waits();
        QCOMPARE(waits.size(), size_t(1));
        QVERIFY(waits.front() == (Clock::Wait{Clock::Sleep, 1000000, 4}));
        QCOMPARE(countOf(root.read("/var/lib/krm510-sim/commands.log"), "krmhci.sh start"), 1);
    }

    void isConnectFollowsTheRfcommProcessNotTheNode()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("remote link rfcomm"));
        RemoteUnit unit(LINK_BLUETOOTH, 10.54f);
        QCOMPARE(unit.isConnect(), 0);
        // An rfcomm started by hand, the object never connected.
        QCOMPARE(Command::system("rfcomm connect 0 00:11:22:33:44:55"), 0);
        QCOMPARE(unit.fd, -1);
        QCOMPARE(unit.isConnect(), 1);
        // The node goes, the process stays: still a link.
        QVERIFY(QFile::remove(root.path("/dev/rfcomm0")));
        QCOMPARE(unit.isConnect(), 1);
        // Stopped by its own id, it is gone.
        QCOMPARE(Command::system("rfcomm release 0"), 0);
        QCOMPARE(unit.isConnect(), 0);
    }

    void usbDisconnectTwiceIsHarmless()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        RemoteUnit* unit = new RemoteUnit(LINK_USB, 10.54f);
        QCOMPARE(unit->connect(), 1);
        QCOMPARE(unit->disconnect(), 1);
        QCOMPARE(unit->disconnect(), 1);
        QCOMPARE(unit->fd, -1);
        delete unit;
        QVERIFY(!root.read("/var/lib/krm510-sim/commands.log").contains("krmhci"));
        // The line is free for the next one.
        RemoteUnit again(LINK_USB, 10.54f);
        QCOMPARE(again.connect(), 1);
    }
};

QTEST_MAIN(TestRemoteUnit)
#include "tst_remoteunit.moc"
