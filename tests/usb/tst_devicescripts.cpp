// The instrument's own stick scripts (system/usr/bin), run for real under a
// test root: the copy scripts on plain folders, and the whole round of
// mount, copy both ways and unmount on a FAT image behind a loop device, in
// a private mount namespace so that nothing shows outside the test.
#include "platform/command.h"
#include "support/testroot.h"
#include "usbfixture.h"

#include <QDirIterator>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace
{

const char* const scripts[] = {"checkmountusb.sh", "mountusb.sh", "umountusb.sh", "krmcopyfrom.sh",
                               "krmcopyto.sh"};
const char* const dataDirs[] = {"datapanel", "datacompany", "datainstallation", "datameapanel",
                                "datameastring"};

QString sourceScript(const char* name)
{
    return QString(KRM_TEST_DATA_DIR) + "/../../system/usr/bin/" + name;
}

bool installScripts(const TestRoot& root)
{
    if (!root.mkdir("/usr/bin"))
        return false;
    for (const char* name : scripts) {
        const QString target = root.path("/usr/bin") + "/" + name;
        QFile::remove(target);
        if (!QFile::copy(sourceScript(name), target))
            return false;
    }
    return true;
}

struct Run {
    int code;
    QByteArray out;
    QByteArray err;
};

// A shell line under dash, the small shell of the instrument, with the root
// set; $ROOT names it in the line too.
Run sh(const TestRoot& root, const QString& line, const QStringList& wrapper = {})
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("KRM_ROOT", root.root());
    env.insert("ROOT", root.root());
    p.setProcessEnvironment(env);
    QStringList args = wrapper;
    args << "/bin/dash"
         << "-c" << line;
    p.start(args.takeFirst(), args);
    if (!p.waitForFinished(60000))
        return {-1, QByteArray(), "did not end"};
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(),
            p.readAllStandardError()};
}

// The five copies one way, then the other, as the copy screens call them.
QString copyToLine(const QString& target)
{
    QString line;
    for (const char* d : dataDirs)
        line += QString("\"$ROOT/usr/bin/krmcopyto.sh\" /%1 %2 || exit 10\n").arg(d, target);
    return line;
}

QString copyFromLine(const QString& source)
{
    QString line;
    for (const char* d : dataDirs)
        line += QString("\"$ROOT/usr/bin/krmcopyfrom.sh\" %2 /%1 || exit 11\n").arg(d, source);
    return line;
}

} // namespace

using namespace usb;

class TestDeviceScripts : public QObject
{
    Q_OBJECT

private slots:
    void shellQuoteGivesTheShellEveryCharacterBackAsOneWord()
    {
        TestRoot root;
        for (const std::string& word : {std::string("a b 'c'; touch pwned"), std::string("''"),
                                        std::string("$(id) `id` \\ \"x\""), std::string(),
                                        std::string("new\nline\ttab*?[a]")}) {
            Run r =
                sh(root, QString::fromStdString("printf '%s|' " + shellQuote(word) + "; echo $#"));
            QCOMPARE(r.out, QByteArray::fromStdString(word) + "|0\n");
        }
        QVERIFY(!QFileInfo::exists(QDir::currentPath() + "/pwned"));
    }
    void copyScriptsCopyBothWaysIntoAFolderWithBlanksQuotesAndASemicolon()
    {
        TestRoot root;
        QVERIFY(installScripts(root));
        QVERIFY(fillData(root));
        const auto before = contents(root.path("/krm510data"));
        // the target as the program quotes it
        const QString target = "\"$ROOT/stick/a b 'c'; touch pwned/krm510data\"";
        Run to = sh(root, copyToLine(target));
        QVERIFY2(to.code == 0, to.err.constData());
        QCOMPARE(contents(root.root() + "/stick/a b 'c'; touch pwned/krm510data"), before);
        QVERIFY(QDir(root.path("/krm510data")).removeRecursively());
        Run from = sh(root, copyFromLine(target));
        QVERIFY2(from.code == 0, from.err.constData());
        QCOMPARE(contents(root.path("/krm510data")), before);
        QVERIFY(!QFileInfo::exists(root.root() + "/pwned"));
    }

    void copyFromReplacesTheWholeDirectory()
    {
        TestRoot root;
        QVERIFY(installScripts(root));
        QVERIFY(root.write("/stick/krm510data/datapanel/new/model", "new"));
        QVERIFY(root.write("/krm510data/datapanel/old/model", "old"));
        Run r = sh(root, "\"$ROOT/usr/bin/krmcopyfrom.sh\" \"$ROOT/stick/krm510data\" /datapanel");
        QCOMPARE(r.code, 0);
        QVERIFY(!root.exists("/krm510data/datapanel/old"));
        QCOMPARE(root.read("/krm510data/datapanel/new/model"), QByteArray("new"));
    }

    void copyScriptsTakeOnlyTheFiveDataDirectories()
    {
        TestRoot root;
        QVERIFY(installScripts(root));
        QVERIFY(root.write("/stick/krm510data/datapanel/m", "x"));
        QCOMPARE(sh(root, "\"$ROOT/usr/bin/krmcopyfrom.sh\" \"$ROOT/stick\" /../etc").code, 2);
        QCOMPARE(sh(root, "\"$ROOT/usr/bin/krmcopyto.sh\" /etc \"$ROOT/stick\"").code, 2);
        QCOMPARE(sh(root, "\"$ROOT/usr/bin/krmcopyto.sh\" /datapanel").code, 2);
        // a source without the directory changes nothing
        QVERIFY(root.write("/krm510data/datacompany/c", "kept"));
        QCOMPARE(
            sh(root, "\"$ROOT/usr/bin/krmcopyfrom.sh\" \"$ROOT/stick/krm510data\" /datacompany")
                .code,
            1);
        QCOMPARE(root.read("/krm510data/datacompany/c"), QByteArray("kept"));
    }

    void checkmountusbPrintsNothingWithoutAStick()
    {
        TestRoot root;
        QVERIFY(installScripts(root));
        Run r = sh(root, "\"$ROOT/usr/bin/checkmountusb.sh\"");
        QCOMPARE(r.code, 0);
        QCOMPARE(r.out, QByteArray());
        QVERIFY(sh(root, "\"$ROOT/usr/bin/mountusb.sh\"").code != 0);
    }

    // As on the instrument: a FAT stick whose first partition is sda1 is
    // mounted, the database goes to it and comes back, and it is unmounted.
    void realStickOnALoopDeviceMountsCopiesBothWaysAndUnmounts()
    {
        if (geteuid() != 0)
            QSKIP("needs root for loop devices and mounts");
        const QString mkfs = QStandardPaths::findExecutable("mkfs.vfat", {"/sbin", "/usr/sbin"});
        if (mkfs.isEmpty())
            QSKIP("mkfs.vfat (dosfstools) is not installed");
        TestRoot root;
        QVERIFY(installScripts(root));
        QVERIFY(fillData(root));
        const auto before = contents(root.path("/krm510data"));
        const QString image = root.root() + "/stick.img";
        {
            QFile f(image);
            QVERIFY(f.open(QIODevice::WriteOnly));
            QVERIFY(f.resize(16 * 1024 * 1024));
        }
        QProcess fs;
        fs.start(mkfs, {"-n", "STICK", image});
        QVERIFY(fs.waitForFinished(30000));
        QCOMPARE(fs.exitCode(), 0);
        QProcess loop;
        loop.start("losetup", {"-f", "--show", image});
        QVERIFY(loop.waitForFinished(30000));
        const QString device = QString::fromLocal8Bit(loop.readAllStandardOutput()).trimmed();
        if (loop.exitCode() != 0 || device.isEmpty())
            QSKIP(qPrintable("loop devices are refused here: " +
                             QString::fromLocal8Bit(loop.readAllStandardError()).trimmed()));
        struct Detach {
            QString device;
            ~Detach() { QProcess::execute("losetup", {"-d", device}); }
        } detach{device};
        struct stat st;
        QCOMPARE(stat(device.toLocal8Bit().constData(), &st), 0);
        QCOMPARE(
            mknod(root.path("/dev/sda1").toLocal8Bit().constData(), S_IFBLK | 0600, st.st_rdev), 0);

        const QString folder = "\"$ROOT/media/usb/a b 'c'; touch pwned/krm510data\"";
        const QString line = "set -e\n"
                             "\"$ROOT/usr/bin/mountusb.sh\"\n"
                             "\"$ROOT/usr/bin/checkmountusb.sh\" > \"$ROOT/mounted\"\n" +
                             copyToLine(folder) + "rm -rf \"$ROOT/krm510data\"\n" +
                             copyFromLine(folder) +
                             "ls -a \"$ROOT/media/usb\" > \"$ROOT/stick-top\"\n"
                             "\"$ROOT/usr/bin/umountusb.sh\"\n"
                             "\"$ROOT/usr/bin/checkmountusb.sh\" > \"$ROOT/unmounted\"\n";
        Run r = sh(root, line, {"unshare", "-m", "--propagation", "private"});
        if (r.code != 0 && r.err.contains("unknown filesystem type"))
            QSKIP("the kernel here mounts no FAT file system (no vfat)");
        if (r.code != 0 && r.err.contains("unshare"))
            QSKIP(qPrintable("no private mount namespace here: " + QString::fromLocal8Bit(r.err)));
        QVERIFY2(r.code == 0, r.err.constData());
        QVERIFY(root.read("/mounted").startsWith("/dev/sda1 on /media/usb type vfat ("));
        QCOMPARE(root.read("/unmounted"), QByteArray());
        QVERIFY(root.read("/stick-top").contains("a b 'c'; touch pwned"));
        QCOMPARE(contents(root.path("/krm510data")), before);
        QVERIFY(!QFileInfo::exists(root.root() + "/pwned"));
        // nothing of the stick is left mounted outside
        QFile mounts("/proc/mounts");
        QVERIFY(mounts.open(QIODevice::ReadOnly));
        QVERIFY(!mounts.readAll().contains(root.root().toLocal8Bit()));
    }
};

QTEST_GUILESS_MAIN(TestDeviceScripts)
#include "tst_devicescripts.moc"
