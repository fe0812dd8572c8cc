// The test helper and the daemon's life: start, ready, scenario, stop, and no
// thread or descriptor left behind in the test process.
#include "platform/bus.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QDir>
#include <QtTest>
#include <csignal>
#include <fcntl.h>

class TestSimInstrument : public QObject
{
    Q_OBJECT

    static int entries(const char* dir)
    {
        return QDir(dir).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size();
    }

private slots:
    void startsWithItsDeviceNodes()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        for (const char* node : {"/dev/ttyS1", "/dev/spidev0.0", "/dev/i2c-1", "/dev/gpio/93", "/dev/gpio/86",
                                 "/dev/gpio/89", "/dev/gpio/75", "/dev/gpio/81", "/dev/gpio/88",
                                 "/dev/gpio/105", "/dev/gpio/106", "/dev/ttyUSB0", "/usr/bin/mountusb.sh",
                                 "/usr/bin/krmhci.sh", "/bin/date", "/usr/bin/hwclock"})
            QVERIFY2(root.exists(node), node);
        QVERIFY(!root.exists("/dev/sda1"));
    }
    void stopTakesItsNodesAway()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        QVERIFY(sim.stop());
        QVERIFY(!root.exists("/dev/ttyS1"));
        QVERIFY(!root.exists("/dev/krm510-sim.sock"));
        QVERIFY(!sim.isRunning());
    }
    void startAndStopLeaveNoThreadOrDescriptor()
    {
        int threads = entries("/proc/self/task");
        int fds = entries("/proc/self/fd");
        {
            TestRoot root;
            SimInstrument sim(root);
            QVERIFY(sim.isRunning());
            QVERIFY(sim.setIrradiance(500));
            int fd = Bus::open("/dev/gpio/106", O_RDWR);
            QVERIFY(fd >= 0);
            int level = -1;
            QCOMPARE(Bus::gpioRequest(fd, Bus::GPIO_READ, &level), 0);
            QCOMPARE(Bus::close(fd), 0);
        }
        QCOMPARE(entries("/proc/self/task"), threads);
        QCOMPARE(entries("/proc/self/fd"), fds);
    }
    void quitCommandEndsTheDaemon()
    {
        TestRoot root;
        SimInstrument sim(root);
        QCOMPARE(sim.call("quit"), QByteArray("ok bye"));
        QTRY_VERIFY_WITH_TIMEOUT(!root.exists("/dev/krm510-sim.sock"), 3000);
        QVERIFY(sim.stop());
    }
    void scenarioFileIsAppliedAtStart()
    {
        TestRoot root;
        SimInstrument sim(root, true, {"# a comment", "set irradiance 432", "set tambient 31.5"});
        QVERIFY(sim.isRunning());
        QCOMPARE(sim.field("get", "irradiance"), QByteArray("432"));
        QCOMPARE(sim.field("get", "tambient"), QByteArray("31.5"));
    }
    void unknownScenarioCommandIsAnError()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.call("no such thing").startsWith("error"));
        QVERIFY(!sim.command("set irradiance -5"));
    }
    void removedNodeComesBack()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        QVERIFY(!root.exists("/dev/spidev0.0"));
        QCOMPARE(Bus::open("/dev/spidev0.0", O_RDWR), -1);
        QVERIFY(sim.removeNode("/dev/ttyS1"));
        QVERIFY(!root.exists("/dev/ttyS1"));
        QVERIFY(sim.restoreNode("/dev/spidev0.0"));
        QVERIFY(sim.restoreNode("/dev/ttyS1"));
        QVERIFY(root.exists("/dev/ttyS1"));
        int fd = Bus::open("/dev/spidev0.0", O_RDWR);
        QVERIFY(fd >= 0);
        Bus::close(fd);
    }
};

QTEST_GUILESS_MAIN(TestSimInstrument)
#include "tst_siminstrument.moc"
