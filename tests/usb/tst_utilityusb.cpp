#include "platform/command.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "usb/utilityusb.h"

#include <QtTest>

class TestUtilityUsb : public QObject
{
    Q_OBJECT

    static void script(const TestRoot& root, const QByteArray& body)
    {
        QVERIFY(root.write("/usr/bin/checkmountusb.sh", "#!/bin/sh\n" + body + "\n"));
        QFile(root.path("/usr/bin/checkmountusb.sh"))
            .setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    }

private slots:
    void usbMountedOnEmptyOutputIsFalse()
    {
        TestRoot root;
        script(root, "true");
        QVERIFY(!usbMounted());
    }
    void usbMountedLooksAtTheLastLineOnly()
    {
        TestRoot root;
        script(root, "echo /dev/sda1 on /media/sda1 type vfat\necho none");
        QVERIFY(!usbMounted());
        script(root, "echo none\necho /dev/sdb1 on /media/sdb1 type vfat");
        QVERIFY(usbMounted());
    }
    void usbMountedIsCaseSensitive()
    {
        TestRoot root;
        script(root, "echo /dev/SDA1 on /media");
        QVERIFY(!usbMounted());
    }
    void usbMountedWithoutTheScriptIsFalse()
    {
        TestRoot root;
        QVERIFY(!usbMounted());
    }
    void usbMountedFollowsTheSimulatedStick()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(!usbMounted());
        QVERIFY(sim.stickIn());
        QCOMPARE(Command::system("/usr/bin/mountusb.sh"), 0);
        QVERIFY(usbMounted());
        QCOMPARE(Command::system("/usr/bin/umountusb.sh"), 0);
        QVERIFY(!usbMounted());
    }
    void wholeDiskNodeWithoutNumberIsNotFound()
    {
        TestRoot root;
        QVERIFY(root.write("/dev/sda", "disk"));
        QCOMPARE(usbCheckSD(), 0);
    }
    void numberZeroIsTriedToo()
    {
        TestRoot root;
        QVERIFY(root.write("/dev/sdc0", "partition"));
        QCOMPARE(usbCheckSD(), 1);
    }
    void lastNodeOfTheSearchIsFound()
    {
        TestRoot root;
        QVERIFY(root.write("/dev/sdy19", "partition"));
        QCOMPARE(usbCheckSD(), 1);
        QFile::remove(root.path("/dev/sdy19"));
        QVERIFY(root.write("/dev/sdz1", "beyond the search"));
        QVERIFY(root.write("/dev/sda20", "beyond the search"));
        QCOMPARE(usbCheckSD(), 0);
    }
    void stickInTheSimulatorGivesItsNode()
    {
        TestRoot root;
        SimInstrument sim(root);
        QCOMPARE(usbCheckSD(), 0);
        QVERIFY(sim.stickIn());
        QCOMPARE(usbCheckSD(), 1);
        QVERIFY(sim.stickOut());
        QCOMPARE(usbCheckSD(), 0);
    }
};

QTEST_GUILESS_MAIN(TestUtilityUsb)
#include "tst_utilityusb.moc"
