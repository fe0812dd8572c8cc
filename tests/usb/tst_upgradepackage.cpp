// The signed upgrade package: made by scripts/make-upgrade from a build tree
// with a key pair of the test's own, installed by the instrument's real
// krmupgrade.sh under a test root. A good package switches the version link
// and leaves the firmware image; a package with one changed byte, a wrong
// signature or a link inside installs nothing and leaves no image. The last
// test runs the whole upgrade from the stick screen on the simulated
// instrument.
#include "platform/systemroot.h"
#include "support/modaldriver.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "usb/usbdialog.h"
#include "usbfixture.h"

#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace usb;

namespace
{

const QString sourceDir = QString(KRM_TEST_DATA_DIR) + "/../..";

int run(const QString& program, const QStringList& args, QByteArray* err = nullptr,
        const QByteArray& krmRoot = QByteArray())
{
    QProcess p;
    if (!krmRoot.isNull()) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("KRM_ROOT", QString::fromLocal8Bit(krmRoot));
        p.setProcessEnvironment(env);
    }
    p.start(program, args);
    if (!p.waitForFinished(60000))
        return -1;
    if (err != nullptr)
        *err = p.readAllStandardError() + p.readAllStandardOutput();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Keys, a build tree and the instrument's versioned layout, all the test's.
class Workshop
{
public:
    explicit Workshop(const TestRoot& root) : root(root)
    {
        const QString d = dir.path();
        ok =
            run("openssl", {"genpkey", "-algorithm", "ed25519", "-out", d + "/upgrade.key"}) == 0 &&
            run("openssl",
                {"pkey", "-in", d + "/upgrade.key", "-pubout", "-out", d + "/upgrade.pub"}) == 0 &&
            run("openssl", {"genpkey", "-algorithm", "ed25519", "-out", d + "/other.key"}) == 0 &&
            writeFile(d + "/build/src/krm510", "program 2.0\n") &&
            writeFile(d + "/fw.hex", firmware());
        for (const char* lang : {"it", "en", "fr", "de", "es"})
            ok = ok && writeFile(d + "/build/system/etc/flang/krm510_" + lang,
                                 QByteArray("catalogue 2.0 ") + lang);
        // the instrument as its image leaves it, at version 1.0
        ok = ok && root.write("/opt/krm510/versions/1.0/bin/krm510", "program 1.0\n") &&
             root.write("/opt/krm510/versions/1.0/flang/krm510_it", "catalogue 1.0") &&
             QFile::link("versions/1.0", root.path("/opt/krm510/current")) &&
             root.mkdir("/etc/krm510") &&
             QFile::copy(d + "/upgrade.pub", root.path("/etc/krm510/upgrade.pub")) &&
             root.mkdir("/usr/bin");
        // the simulated instrument brings its own, which runs the real one
        if (!root.exists("/usr/bin/krmupgrade.sh"))
            ok = ok && QFile::copy(sourceDir + "/system/usr/bin/krmupgrade.sh",
                                   root.path("/usr/bin/krmupgrade.sh"));
    }

    // A package made by scripts/make-upgrade; empty on failure.
    QString make(const QString& name, bool withFirmware, const QString& key = "upgrade.key",
                 const QString& version = "2.0")
    {
        QString out = dir.path() + "/" + name;
        QStringList args = {dir.path() + "/build", dir.path() + "/" + key, version, out};
        if (withFirmware)
            args << dir.path() + "/fw.hex";
        QByteArray err;
        if (run(sourceDir + "/scripts/make-upgrade", args, &err) != 0) {
            qWarning("%s", err.constData());
            return QString();
        }
        return out;
    }

    // krmupgrade.sh as the program runs it; its exit code.
    int install(const QString& package, QByteArray* output = nullptr)
    {
        return run(root.path("/usr/bin/krmupgrade.sh"), {package}, output,
                   root.root().toLocal8Bit());
    }

    QString current() const { return QFile::symLinkTarget(root.path("/opt/krm510/current")); }
    QStringList versions() const
    {
        return QDir(root.path("/opt/krm510/versions"))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    QStringList leftovers() const
    {
        return QDir(root.path("/opt/krm510"))
            .entryList({".staging*", "current.new"}, QDir::AllEntries | QDir::Hidden);
    }
    // Nothing installed: still version 1.0, no image, nothing left behind.
    void verifyUnchanged() const
    {
        QCOMPARE(current(), root.path("/opt/krm510/versions/1.0"));
        QCOMPARE(versions(), QStringList({"1.0"}));
        QVERIFY(!root.exists("/home/ORVIAp.hex"));
        QCOMPARE(leftovers(), QStringList());
    }

    const TestRoot& root;
    QTemporaryDir dir;
    bool ok = false;
};

// The package put on a mounted stick under the name given and installed from
// the stick screen: the texts of the boxes that followed.
QStringList upgradeFromStick(const SimInstrument& sim, const QString& package, const QString& name)
{
    if (package.isEmpty() || !sim.stickIn() ||
        system(qPrintable(sim.root() + "/usr/bin/mountusb.sh >/dev/null")) != 0 ||
        !QFile::copy(package, sim.stickPath() + "/" + name))
        return {"<no stick>"};
    UsbDialog d(nullptr);
    ModalDriver driver;
    driver.onNext([name](QWidget* files) { chooseUpgradeFile(files, name); });
    driver.answerBox();
    QTest::mouseClick(d.findChild<QPushButton*>("Aggiornamento"), Qt::LeftButton);
    QStringList texts;
    for (const ModalDriver::Box& box : driver.boxes)
        texts << box.text;
    return texts;
}

} // namespace

class TestUpgradePackage : public QObject
{
    Q_OBJECT

private slots:
    void signedPackageSwitchesTheLinkAndLeavesTheImage()
    {
        TestRoot root;
        Workshop w(root);
        QVERIFY(w.ok);
        const QString package = w.make("krm510-2.0.upg", true);
        QVERIFY(!package.isEmpty());
        QByteArray out;
        QCOMPARE(w.install(package, &out), 0);
        QVERIFY2(out.contains("installed version 2.0"), out.constData());
        QCOMPARE(w.current(), root.path("/opt/krm510/versions/2.0"));
        QCOMPARE(root.read("/opt/krm510/current/bin/krm510"), QByteArray("program 2.0\n"));
        QCOMPARE(root.read("/opt/krm510/current/flang/krm510_de"), QByteArray("catalogue 2.0 de"));
        QVERIFY(root.exists("/opt/krm510/current/scripts/krmupgrade.sh"));
        QCOMPARE(root.read("/home/ORVIAp.hex"), firmware());
        QCOMPARE(w.versions(), QStringList({"1.0", "2.0"}));
        QCOMPARE(w.leftovers(), QStringList());
        QVERIFY(root.read("/var/log/krmupgrade.log").contains("installed version 2.0"));
    }

    void packageWithoutFirmwareLeavesNoImage()
    {
        TestRoot root;
        Workshop w(root);
        QVERIFY(w.ok);
        QVERIFY(root.write("/home/ORVIAp.hex", "stale image of an earlier run"));
        const QString package = w.make("krm510-2.0.upg", false);
        QByteArray out;
        QVERIFY2(w.install(package, &out) == 0, out.constData());
        QCOMPARE(w.current(), root.path("/opt/krm510/versions/2.0"));
        QVERIFY(!root.exists("/home/ORVIAp.hex"));
    }

    void packageWithOneChangedByteInstallsNothing()
    {
        TestRoot root;
        Workshop w(root);
        QVERIFY(w.ok);
        const QString package = w.make("krm510-2.0.upg", true);
        QByteArray bytes = readFile(package);
        const int at = bytes.indexOf("program 2.0");
        QVERIFY(at > 0);
        bytes[at + 8] = '3';
        QVERIFY(writeFile(package, bytes));
        QByteArray out;
        QCOMPARE(w.install(package, &out), 1);
        QVERIFY2(out.contains("does not match its sum"), out.constData());
        w.verifyUnchanged();
        QVERIFY(root.read("/var/log/krmupgrade.log").contains("does not match its sum"));
    }

    void packageSignedWithAnotherKeyInstallsNothing()
    {
        TestRoot root;
        Workshop w(root);
        QVERIFY(w.ok);
        const QString package = w.make("krm510-2.0.upg", true, "other.key");
        QVERIFY(!package.isEmpty());
        QByteArray out;
        QCOMPARE(w.install(package, &out), 1);
        QVERIFY2(out.contains("bad signature"), out.constData());
        w.verifyUnchanged();
    }

    void packageWithALinkOrAPathOutsideInstallsNothing()
    {
        TestRoot root;
        Workshop w(root);
        QVERIFY(w.ok);
        const QString stage = w.dir.path() + "/evil";
        QVERIFY(writeFile(stage + "/version", "6.6\n"));
        QVERIFY(QDir().mkpath(stage + "/app/bin"));
        QVERIFY(QFile::link("/etc/krm510/upgrade.pub", stage + "/app/bin/krm510"));
        const QString linked = w.dir.path() + "/krm510-link.upg";
        QCOMPARE(run("tar", {"-cf", linked, "-C", stage, "version", "app"}), 0);
        QByteArray out;
        QCOMPARE(w.install(linked, &out), 1);
        QVERIFY2(out.contains("links or special files"), out.constData());
        w.verifyUnchanged();

        const QString outside = w.dir.path() + "/krm510-outside.upg";
        QCOMPARE(run("tar", {"-cf", outside, "-C", stage, "-P", "--transform",
                             "s#^version#../../version#", "version"}),
                 0);
        QCOMPARE(w.install(outside, &out), 1);
        QVERIFY2(out.contains("bad member name"), out.constData());
        w.verifyUnchanged();
    }

    void notATarFileInstallsNothing()
    {
        TestRoot root;
        Workshop w(root);
        QVERIFY(w.ok);
        QVERIFY(writeFile(w.dir.path() + "/krm510.upg", "just some bytes"));
        QCOMPARE(w.install(w.dir.path() + "/krm510.upg"), 1);
        w.verifyUnchanged();
    }

    // From the stick screen: the package on the stick is chosen, installed,
    // its firmware flashed and the image removed; then the restart box.
    void upgradeFromTheStickFlashesTheBoardAndSwitchesTheVersion()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        Workshop w(root);
        QVERIFY(w.ok);
        QCOMPARE(upgradeFromStick(sim, w.make("krm510-2.0.upg", true), "KRM510-2.0.UPG"),
                 QStringList({"Riavviare KRM510"}));
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x0800}));
        QVERIFY(!root.exists("/home/ORVIAp.hex"));
        QCOMPARE(w.current(), root.path("/opt/krm510/versions/2.0"));
        QCOMPARE(sim.powerLineLevel(), 0);
        QVERIFY(root.read("/var/lib/krm510-sim/commands.log").contains("krmupgrade.sh"));
    }

    void badPackageFromTheStickStillAsksForARestartAndFlashesNothing()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        Workshop w(root);
        QVERIFY(w.ok);
        QCOMPARE(upgradeFromStick(sim, w.make("krm510-2.0.upg", true, "other.key"), "krm510.upg"),
                 QStringList({"Riavviare KRM510"}));
        QVERIFY(sim.flashRows().isEmpty());
        QCOMPARE(sim.field("power", "writes"), QByteArray("0"));
        w.verifyUnchanged();
    }
};

QTEST_MAIN(TestUpgradePackage)
#include "tst_upgradepackage.moc"
