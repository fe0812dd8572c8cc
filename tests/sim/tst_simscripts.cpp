// The simulator's versions of the stick scripts and of date, hwclock and rm,
// run through the program's command runner: they act under the machine
// folder and never on the host.
#include "platform/command.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QtTest>
#include <cstdio>

namespace {
QByteArray output(const char* commandLine)
{
    FILE* p = Command::popen(commandLine, "r");
    if (p == nullptr)
        return QByteArray();
    QByteArray text;
    char buffer[256];
    size_t n;
    while ((n = fread(buffer, 1, sizeof buffer, p)) > 0)
        text.append(buffer, static_cast<int>(n));
    Command::pclose(p);
    return text.trimmed();
}
} // namespace

class TestSimScripts : public QObject
{
    Q_OBJECT

private slots:
    void nothingMountedWithoutAStick()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(!root.exists("/dev/sda1"));
        QCOMPARE(output("/usr/bin/checkmountusb.sh"), QByteArray());
        output("/usr/bin/mountusb.sh");
        QVERIFY(!output("/usr/bin/checkmountusb.sh").contains("sd"));
    }
    void stickMountsCopiesBothWaysAndUnmounts()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.stickIn());
        QVERIFY(root.exists("/dev/sda1"));
        output("/usr/bin/mountusb.sh");
        QByteArray mounted = output("/usr/bin/checkmountusb.sh");
        QVERIFY(mounted.contains("sd"));
        QByteArray mountPoint;
        for (const QByteArray& word : mounted.split(' '))
            if (word.contains("media") && mountPoint.isEmpty())
                mountPoint = word;
        QCOMPARE(mountPoint, QByteArray("/media/sda1"));
        QVERIFY(QFileInfo(root.path("/media/sda1")).isDir());

        // Copy to the stick: the target is made.
        QVERIFY(root.write("/krm510data/datapanel/brand/model", "PMAX = 250\n"));
        QCOMPARE(Command::system("/usr/bin/krmcopyto.sh /datapanel /media/sda1/krm510data"), 0);
        QString stick = sim.stickPath();
        QCOMPARE(QFile(stick + "/krm510data/datapanel/brand/model").size(), 11);
        // A host path under the machine folder works as well.
        QByteArray hostTarget = root.path("/media/sda1/other").toLocal8Bit();
        QCOMPARE(Command::system("/usr/bin/krmcopyto.sh /datapanel " + hostTarget), 0);
        QVERIFY(QFileInfo::exists(stick + "/other/datapanel/brand/model"));

        // Copy from the stick replaces the data directory.
        QVERIFY(QDir().mkpath(stick + "/krm510data/datacompany"));
        QFile company(stick + "/krm510data/datacompany/acme");
        QVERIFY(company.open(QIODevice::WriteOnly));
        company.write("NAME = ACME\n");
        company.close();
        QVERIFY(root.write("/krm510data/datacompany/old", "x"));
        QCOMPARE(Command::system("/usr/bin/krmcopyfrom.sh /media/sda1/krm510data /datacompany"), 0);
        QCOMPARE(root.read("/krm510data/datacompany/acme"), QByteArray("NAME = ACME\n"));
        QVERIFY(!root.exists("/krm510data/datacompany/old"));

        output("/usr/bin/umountusb.sh");
        QCOMPARE(output("/usr/bin/checkmountusb.sh"), QByteArray());
        QVERIFY(!root.exists("/media/sda1"));
        // The content stays on the stick.
        QVERIFY(QFileInfo::exists(stick + "/krm510data/datapanel/brand/model"));
        QByteArray log = root.read("/var/lib/krm510-sim/commands.log");
        QVERIFY(log.contains("krmcopyto.sh /datapanel /media/sda1/krm510data"));
    }
    void pullingTheStickUnmountsIt()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.stickIn());
        output("/usr/bin/mountusb.sh");
        QVERIFY(output("/usr/bin/checkmountusb.sh").contains("sd"));
        QVERIFY(sim.stickOut());
        QVERIFY(!root.exists("/dev/sda1"));
        QCOMPARE(output("/usr/bin/checkmountusb.sh"), QByteArray());
    }
    void copyNamesCannotLeaveTheDataTree()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(Command::system("/usr/bin/krmcopyto.sh /../etc /media/sda1") != 0);
        QVERIFY(Command::system("/usr/bin/krmcopyfrom.sh /media/sda1 /a/b") != 0);
    }
    void removeStaysUnderTheMachineFolder()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(root.write("/media/sda1x/krm510data/f", "x"));
        QCOMPARE(Command::system("rm -Rf /media/sda1x/krm510data"), 0);
        QVERIFY(!root.exists("/media/sda1x/krm510data"));
        QVERIFY(root.exists("/media/sda1x"));
    }
    void dateIsSetUnderTheMachineFolder()
    {
        TestRoot root;
        SimInstrument sim(root);
        QCOMPARE(Command::system("date -s +\"2031-07-04 10:30\"\n"), 0);
        QByteArray year = output("date +%Y");
        QCOMPARE(year, QByteArray("2031"));
        QCOMPARE(root.read("/var/lib/krm510-sim/date-set").trimmed(), QByteArray("2031-07-04 10:30"));
        // The host clock is untouched.
        QVERIFY(QDateTime::currentDateTime().date().year() < 2031);
        QCOMPARE(Command::system("hwclock -w\n"), 0);
        QVERIFY(root.exists("/var/lib/krm510-sim/hwclock"));
        QVERIFY(output("hwclock -r").contains("2031"));
    }
};

QTEST_GUILESS_MAIN(TestSimScripts)
#include "tst_simscripts.moc"
