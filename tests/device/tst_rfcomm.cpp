// The RFCOMM configuration file that the Bluetooth link script reads.
#include "device/rfcomm.h"
#include "support/testroot.h"

#include <QFile>
#include <QtTest>

#include <unistd.h>

namespace {
const QByteArray expected = "#\n"
                            "# RFCOMM configuration file.\n"
                            "#\n"
                            "\n"
                            "rfcomm0 {\n"
                            "#       # Automatically bind the device at startup\n"
                            "        bind no;\n"
                            "#\n"
                            "#       # Bluetooth address of the device\n"
                            "        device 00:1A:7D:DA:71:13;\n"
                            "#\n"
                            "#       # RFCOMM channel for the connection\n"
                            "        channel 0;\n"
                            "#\n"
                            "#       # Description of the connection\n"
                            "        comment \"KRM RU 01\";\n"
                            "}\n";
} // namespace

class TestRfcomm : public QObject
{
    Q_OBJECT

private slots:
    void configurationFileIsWrittenAnew()
    {
        TestRoot root;
        QVERIFY(root.write(RFCOMM_CONF, QByteArray(5000, 'x')));
        QCOMPARE(createBlueRFCOMM("00:1A:7D:DA:71:13", "KRM RU 01"), int(expected.size()));
        QCOMPARE(root.read(RFCOMM_CONF), expected);
    }

    void nullAddressOrNameTouchesNothing()
    {
        TestRoot root;
        QVERIFY(root.write(RFCOMM_CONF, "old"));
        QCOMPARE(createBlueRFCOMM(nullptr, "KRM RU 01"), -1);
        QCOMPARE(createBlueRFCOMM("00:1A:7D:DA:71:13", nullptr), -1);
        QCOMPARE(root.read(RFCOMM_CONF), QByteArray("old"));
    }

    void fileThatCannotBeCreatedFails()
    {
        TestRoot root;
        QVERIFY(!root.exists("/etc/bluetooth"));
        QCOMPARE(createBlueRFCOMM("00:1A:7D:DA:71:13", "KRM RU 01"), -1);
        // A file where the folder should be.
        QVERIFY(root.write("/etc/bluetooth", "not a folder"));
        QCOMPARE(createBlueRFCOMM("00:1A:7D:DA:71:13", "KRM RU 01"), -1);
    }

    void fileThatCannotBeWrittenWholeFails()
    {
        TestRoot root;
        QVERIFY(root.mkdir("/etc/bluetooth"));
        QVERIFY(symlink("/dev/full", root.path(RFCOMM_CONF).toLocal8Bit().constData()) == 0);
        QCOMPARE(createBlueRFCOMM("00:1A:7D:DA:71:13", "KRM RU 01"), -1);
    }
};

QTEST_GUILESS_MAIN(TestRfcomm)
#include "tst_rfcomm.moc"
