#include "platform/command.h"
#include "platform/systemroot.h"
#include "support/testroot.h"

#include <QtTest>

class TestCommand : public QObject
{
    Q_OBJECT

    static QString output(const char* commandLine)
    {
        FILE* p = Command::popen(commandLine, "r");
        if (p == nullptr)
            return QString();
        char buffer[256] = {0};
        size_t n = fread(buffer, 1, sizeof buffer - 1, p);
        buffer[n] = '\0';
        Command::pclose(p);
        return QString::fromLocal8Bit(buffer).trimmed();
    }

    static void script(const TestRoot& root, const char* devicePath, const QByteArray& body)
    {
        QVERIFY(root.write(devicePath, "#!/bin/sh\n" + body + "\n"));
        QFile(root.path(devicePath))
            .setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                            QFileDevice::ExeOwner);
    }

private slots:
    void bareNameIsTakenFromRootUsrBin()
    {
        TestRoot root;
        script(root, "/usr/bin/date", "echo machine-date \"$@\"");
        QCOMPARE(output("date +%s"), QString("machine-date +%s"));
    }
    void bareNameIsTakenFromRootBin()
    {
        TestRoot root;
        script(root, "/bin/pidof", "echo 4242");
        QCOMPARE(output("pidof rfcomm"), QString("4242"));
    }
    void usrBinComesBeforeBin()
    {
        TestRoot root;
        script(root, "/usr/bin/hwclock", "echo usr");
        script(root, "/bin/hwclock", "echo bin");
        QCOMPARE(output("hwclock -w"), QString("usr"));
    }
    void bareNameMissingInRootFallsBackToPath()
    {
        TestRoot root;
        QCOMPARE(output("echo host"), QString("host"));
    }
    void absoluteScriptPathResolvesThroughRoot()
    {
        TestRoot root;
        script(root, "/usr/bin/mountusb.sh", "echo mounted $1");
        QCOMPARE(output("/usr/bin/mountusb.sh stick"), QString("mounted stick"));
    }
    void systemReturnsTheExitStatus()
    {
        TestRoot root;
        script(root, "/home/myspi", "exit 3");
        int status = Command::system("/home/myspi");
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 3);
    }
    void missingScriptUnderRootNeverRunsTheHostOne()
    {
        TestRoot root;
        std::string line = Command::resolve("/usr/bin/umountusb.sh");
        QCOMPARE(QString::fromStdString(line), root.path("/usr/bin/umountusb.sh"));
        int status = Command::system("/usr/bin/umountusb.sh");
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 127);
    }
    void restOfTheLineIsKept()
    {
        TestRoot root;
        script(root, "/usr/bin/date", "echo x");
        QCOMPARE(QString::fromStdString(Command::resolve("  date -s \"2026-01-01 10:00\"")),
                 QString("  ") + root.path("/usr/bin/date") + " -s \"2026-01-01 10:00\"");
    }
    void rootWithBlanksIsQuoted()
    {
        SystemRoot::set("/tmp/a b");
        QCOMPARE(QString::fromStdString(Command::resolve("/home/myspi -x")),
                 QString("'/tmp/a b/home/myspi' -x"));
        SystemRoot::set("");
    }
    void emptyRootUsesTheDeviceLocations()
    {
        SystemRoot::set("");
        QCOMPARE(QString::fromStdString(Command::resolve("/usr/bin/krmhci.sh stop")),
                 QString("/usr/bin/krmhci.sh stop"));
    }
    void nullCommandIsRefused()
    {
        QVERIFY(Command::popen(nullptr, "r") == nullptr);
        QCOMPARE(Command::pclose(nullptr), -1);
    }
};

QTEST_GUILESS_MAIN(TestCommand)
#include "tst_command.moc"
