// The desktop instrument as the launcher assembles it: a machine folder seeded
// by krm510-desktop, krm510-simd on it, and the desktop variant in an X server
// of the instrument's size (Xvfb, 1024 x 600 at 72 dots per inch). The hardware
// keys are pressed through the simulator and the screen is read back from the
// X server.
#include "data/coredata.h"
#include "data/datapanel.h"
#include "data/datasetting.h"
#include "data/direntry.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QSet>
#include <QtTest>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#ifndef KRM_DESKTOP_PATH
#error "KRM_DESKTOP_PATH must name the krm510-desktop binary"
#endif

namespace
{

// Below the status bar, whose clock may tick between two pictures.
const int menuTop = 80;

void pause(int ms)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        usleep(10000);
}

QString screenshotDir()
{
    return QStringLiteral(KRM_BINARY_DIR "/screenshots");
}

// Bounding box of the pixels that differ, below `top`; empty when none do.
QRect difference(const QImage& a, const QImage& b, int top)
{
    QRect box;
    if (a.size() != b.size())
        return QRect(0, 0, 1, 1);
    for (int y = top; y < a.height(); y++)
        for (int x = 0; x < a.width(); x++)
            if (a.pixel(x, y) != b.pixel(x, y))
                box |= QRect(x, y, 1, 1);
    return box;
}

void freePanel(_panel* p)
{
    free(p->brandName);
    free(p->brandDir);
    free(p->modelName);
    free(p->modelFile);
}

// The same screen, but for the clock of the settings' date field, whose
// minute may turn between two pictures: below `top`, under 2 % of the pixels
// differ.
bool sameScreen(const QImage& a, const QImage& b, int top)
{
    if (a.size() != b.size())
        return false;
    int differing = 0;
    for (int y = top; y < a.height(); y++)
        for (int x = 0; x < a.width(); x++)
            if (a.pixel(x, y) != b.pixel(x, y))
                differing++;
    return differing < a.width() * (a.height() - top) / 50;
}

int distinctColours(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4)
            colours.insert(image.pixel(x, y));
    return colours.size();
}

// Xvfb of the instrument's screen on a display number it picks itself, the
// machine folder seeded by the program, the simulator, and the program.
class Desktop
{
public:
    explicit Desktop(const TestRoot& root) : rootPath(root.root())
    {
        if (!QFile::exists("/usr/bin/Xvfb")) {
            error = "Xvfb is missing (scripts/test installs it)";
            return;
        }
        int fds[2];
        if (pipe(fds) != 0)
            return;
        // -displayfd: Xvfb chooses a free display and writes its number there
        // once it accepts clients.
        xvfb.setProgram("/usr/bin/Xvfb");
        xvfb.setArguments({"-displayfd", QString::number(fds[1]), "-screen", "0", "1024x600x24",
                           "-dpi", "72", "-br", "-nolisten", "tcp", "-nolisten", "unix",
                           "-noreset"});
        xvfb.setChildProcessModifier([fds]() { ::close(fds[0]); });
        xvfb.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        xvfb.start();
        ::close(fds[1]);
        QByteArray number;
        char c;
        QElapsedTimer t;
        t.start();
        while (t.elapsed() < 15000 && read(fds[0], &c, 1) == 1 && c != '\n')
            number += c;
        ::close(fds[0]);
        if (number.isEmpty()) {
            error = "Xvfb did not start";
            return;
        }
        display = ":" + QString::fromLatin1(number);
    }

    ~Desktop()
    {
        for (QProcess* p : {&program, &xvfb})
            if (p->state() != QProcess::NotRunning) {
                p->terminate();
                if (!p->waitForFinished(3000))
                    p->kill();
                p->waitForFinished(1000);
            }
    }

    bool isValid() const { return !display.isEmpty(); }

    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("DISPLAY", display);
        env.insert("QT_QPA_PLATFORM", "xcb");
        env.insert("XDG_RUNTIME_DIR", rootPath + "/run");
        QDir().mkpath(rootPath + "/run");
        QFile::setPermissions(rootPath + "/run",
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return env;
    }

    bool startProgram(double scale)
    {
        program.setProgram(KRM_DESKTOP_PATH);
        program.setArguments({"--root", rootPath, "--scale", QString::number(scale)});
        program.setProcessEnvironment(environment());
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start();
        return program.waitForStarted(5000);
    }

    // The whole screen, as the X server has it; a null image on failure.
    QImage grab() const
    {
        const QString file = rootPath + "/grab.png";
        QFile::remove(file);
        QProcess helper;
        QProcessEnvironment env = environment();
        // the grabber is a tool here, not the code under test: what the X11
        // libraries keep for the life of a process is no finding
        env.insert("ASAN_OPTIONS", env.value("ASAN_OPTIONS") + ":detect_leaks=0");
        helper.setProcessEnvironment(env);
        helper.start(QCoreApplication::applicationFilePath(), {"--grab", file});
        if (!helper.waitForFinished(10000) || helper.exitCode() != 0)
            return QImage();
        return QImage(file).convertToFormat(QImage::Format_RGB32);
    }

    // The screen once it is the same in two pictures in a row, at most `ms`.
    QImage steadyScreen(int ms) const
    {
        QElapsedTimer t;
        t.start();
        QImage last = grab();
        while (t.elapsed() < ms) {
            pause(100);
            QImage now = grab();
            if (!now.isNull() && now == last)
                return now;
            last = now;
        }
        return QImage();
    }

    QString rootPath;
    QString display;
    QString error;
    QProcess xvfb;
    QProcess program;
};

int blackIn(const QImage& image, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); y++)
        for (int x = area.left(); x <= area.right(); x++)
            if (image.pixel(x, y) == qRgb(0, 0, 0))
                count++;
    return count;
}

// The menu in the toolkit's light palette over the whole screen: dark labels
// in each of the three columns.
bool looksLikeMenu(const QImage& image)
{
    return image.size() == QSize(1024, 600) && QColor(image.pixel(512, 590)).lightness() > 200 &&
           blackIn(image, QRect(0, menuTop, 341, 600 - menuTop)) > 500 &&
           blackIn(image, QRect(341, menuTop, 341, 600 - menuTop)) > 500 &&
           blackIn(image, QRect(682, menuTop, 342, 600 - menuTop)) > 500;
}

// The next steady screen that differs from `before` below the status bar,
// or a null image after `ms`.
QImage changedFrom(const Desktop& desktop, const QImage& before, int ms = 15000)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms) {
        const QImage now = desktop.grab();
        if (!now.isNull() && !difference(before, now, menuTop).isEmpty())
            return desktop.steadyScreen(ms);
        pause(50);
    }
    return QImage();
}

// Holds Escape until the menu is back, as an operator would.
bool backToMenu(const Desktop& desktop, const SimInstrument& sim, const QImage& menu)
{
    if (!sim.pressKey("escape"))
        return false;
    bool back = false;
    QElapsedTimer t;
    t.start();
    while (!back && t.elapsed() < 15000) {
        back = difference(menu, desktop.grab(), menuTop).isEmpty();
        if (!back)
            pause(50);
    }
    return sim.releaseKey("escape") && back;
}

// Runs krm510-desktop --seed on the folder; its output line.
QByteArray seed(const QString& root)
{
    QProcess p;
    p.start(KRM_DESKTOP_PATH, {"--root", root, "--seed"});
    if (!p.waitForFinished(30000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        return QByteArray();
    return p.readAllStandardOutput();
}

const QByteArray keyLines[][2] = {{"escape", "93"}, {"up", "86"},   {"backtab", "89"},
                                  {"return", "75"}, {"down", "81"}, {"tab", "88"}};

QByteArray keyLine(const char* key)
{
    for (const auto& k : keyLines)
        if (k[0] == key)
            return k[1];
    return QByteArray();
}

// One quick press of a key: the instrument reads the line low once and sees
// exactly one key event. Returns once it has read it.
bool tap(const SimInstrument& sim, const char* key)
{
    if (!sim.command(QByteArray("key tap ") + key))
        return false;
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < 10000) {
        if (sim.field("gpio " + keyLine(key), "tap") == "0")
            return true;
        pause(5);
    }
    return false;
}

} // namespace

class TestDesktop : public QObject
{
    Q_OBJECT

    // Starts everything and waits for the main menu; the menu's picture.
    QImage startToMainMenu(const TestRoot& root, Desktop& desktop, SimInstrument& sim)
    {
        if (!desktop.isValid() || !sim.isRunning() || !desktop.startProgram(0.05))
            return QImage();
        // The menu has set the backlight up by the time it is shown.
        // Bounds, not pauses: on a loaded shared machine the start-up took more
        // than 30 s; each loop ends as soon as the menu is there.
        const int startBound = 120000;
        QElapsedTimer t;
        t.start();
        while (t.elapsed() < startBound && sim.field("backlight", "writes").toInt() == 0)
            pause(50);
        (void)root;
        // then the menu replaces the splash: white labels in all three columns
        while (t.elapsed() < startBound) {
            const QImage screen = desktop.steadyScreen(30000);
            if (!screen.isNull() && looksLikeMenu(screen))
                return screen;
        }
        return QImage();
    }

private slots:
    void seedingMakesTheMachineFolder()
    {
        TestRoot root;
        const QByteArray said = seed(root.root());
        QVERIFY2(said.contains("12 modules written"), said.constData());

        // settings with the defaults, read back completely
        _configParam read, defaults;
        QCOMPARE(readConfigFile(&read), 0);
        defaultConfig(&defaults);
        QCOMPARE(read.lang, defaults.lang);
        QCOMPARE(read.irrmin, defaults.irrmin);
        QCOMPARE(read.bright, defaults.bright);
        // the five catalogues, the five data directories, no measure
        QCOMPARE(QDir(root.path("/etc/flang")).entryList(QDir::Files).size(), 5);
        for (const char* dir : {DIR_DATA_PANEL, DIR_DATA_COMPANY, DIR_DATA_INSTALLATION,
                                DIR_DATA_MEA_PANEL, DIR_DATA_MEA_STRING})
            QVERIFY2(QFileInfo(root.path(dir)).isDir(), dir);
        QCOMPARE(countFileDir(DIR_DATA_MEA_PANEL, COUNT_FILES), 0);
        QCOMPARE(countFileDir(DIR_DATA_MEA_STRING, COUNT_FILES), 0);
        // the start-up's program of the device image is there and does nothing, quietly
        QProcess myspi;
        myspi.start(root.path("/home/myspi"), QStringList());
        QVERIFY(myspi.waitForFinished(10000));
        QCOMPARE(myspi.exitStatus(), QProcess::NormalExit);
        QCOMPARE(myspi.exitCode(), 0);
        QCOMPARE(myspi.readAll(), QByteArray());

        // a dozen modules of several technologies, read through the file layer
        int modules = 0;
        QSet<int> technologies;
        QStringList brands;
        _listBrand* brandList = readListBrandPanel(nullptr);
        for (_listBrand* b = brandList; b != nullptr; b = b->next) {
            brands << QString::fromLatin1(b->name);
            _listModel* models = readListModelPanel(b->dir);
            for (_listModel* m = models; m != nullptr; m = m->next) {
                _panel panel;
                memset(&panel, 0, sizeof panel);
                QCOMPARE(getPanel(&panel, b->dir, m->file), 0);
                const _panelFeature& f = panel.feature;
                QVERIFY2(f.pmax > 50 && f.pmax < 500, m->name);
                QVERIFY2(f.impp > 0 && f.impp < f.isc, m->name);
                QVERIFY2(f.vmpp > 0 && f.vmpp < f.voc, m->name);
                QVERIFY2(f.vmpp * f.impp > 0.97f * f.pmax && f.vmpp * f.impp < 1.03f * f.pmax,
                         m->name);
                QVERIFY2(f.kvoc < 0 && f.kpmax < 0 && f.kisc > 0, m->name);
                QVERIFY2(f.noct >= 40 && f.noct <= 50, m->name);
                QCOMPARE(QByteArray(panel.modelName), QByteArray(m->name));
                technologies.insert(f.type);
                modules++;
                freePanel(&panel);
            }
            closeListModelBrand(models);
        }
        closeListBrandPanel(brandList);
        QCOMPARE(modules, 12);
        QVERIFY2(brands.size() >= 4, qPrintable(brands.join(", ")));
        QCOMPARE(technologies, (QSet<int>{1, 2, 3, 4, 5}));
    }

    void seedingAgainKeepsWhatIsThere()
    {
        TestRoot root;
        QVERIFY(!seed(root.root()).isEmpty());
        _configParam config;
        readConfigFile(&config);
        config.lang = _language(1);
        QVERIFY(saveConfigFile(config) > 0);
        QVERIFY(QFile::remove(root.path("/etc/flang/krm510_de")));
        const QStringList brands =
            QDir(root.path(DIR_DATA_PANEL)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QVERIFY(!brands.isEmpty());
        QVERIFY(QDir(root.path(DIR_DATA_PANEL) + "/" + brands.first()).removeRecursively());

        QVERIFY(seed(root.root()).contains(" 0 modules written"));
        readConfigFile(&config);
        QCOMPARE(int(config.lang), 1);                // the operator's settings stay
        QVERIFY(root.exists("/etc/flang/krm510_de")); // the catalogues come again
        QCOMPARE(
            QDir(root.path(DIR_DATA_PANEL)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(),
            brands.size() - 1);
    }

    void seedingRefusesARootThatIsAFile()
    {
        TestRoot root;
        QVERIFY(QDir(root.path("/etc")).removeRecursively());
        QVERIFY(root.write("/etc", "not a folder"));
        QProcess p;
        p.start(KRM_DESKTOP_PATH, {"--root", root.root(), "--seed"});
        QVERIFY(p.waitForFinished(30000));
        QCOMPARE(p.exitCode(), 1);
        QVERIFY(!root.exists("/krm510data/datapanel"));
    }

    void mainMenuOnTheInstrumentScreen()
    {
        TestRoot root;
        QVERIFY(!seed(root.root()).isEmpty());
        Desktop desktop(root);
        QVERIFY2(desktop.isValid(), qPrintable(desktop.error));
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());

        const QImage menu = startToMainMenu(root, desktop, sim);
        // The whole 1024 x 600 screen: the grid's labels dark on the light
        // window across it, the icons in colour.
        QVERIFY2(!menu.isNull(), "no main menu on the screen");
        QCOMPARE(menu.size(), QSize(1024, 600));
        QVERIFY(desktop.program.state() == QProcess::Running);
        QVERIFY2(distinctColours(menu) > 8, "the screen is blank");
        // The board's supply was switched on by the start-up.
        QCOMPARE(sim.powerLineLevel(), 0);
        QDir().mkpath(screenshotDir());
        QVERIFY(menu.save(screenshotDir() + "/desktop-main-menu.png"));

        // The focus starts on System: Return opens the settings over the
        // whole screen, Escape brings the menu back.
        QVERIFY(tap(sim, "return"));
        const QImage settings = changedFrom(desktop, menu);
        QVERIFY2(!settings.isNull(), "Return on System opened nothing");
        QVERIFY(difference(menu, settings, menuTop).width() > 512);
        QVERIFY(!sameScreen(menu, settings, menuTop));
        QVERIFY(settings.save(screenshotDir() + "/desktop-settings.png"));
        QVERIFY(backToMenu(desktop, sim, menu));

        // Down three times goes round the left column back to System, and so
        // does Up three times.
        for (const char* key : {"down", "up"}) {
            for (int i = 0; i < 3; i++)
                QVERIFY(tap(sim, key));
            QVERIFY(tap(sim, "return"));
            const QImage again = changedFrom(desktop, menu);
            QVERIFY2(!again.isNull(), key);
            QVERIFY(sameScreen(settings, again, menuTop));
            QVERIFY(backToMenu(desktop, sim, menu));
        }

        // One Down leaves System for the archive of modules: Return there does
        // not open the settings.
        // The mark of the focus moves with it.
        QVERIFY(tap(sim, "down"));
        const QImage onArchive = changedFrom(desktop, menu, 5000);
        QVERIFY2(!onArchive.isNull(), "the focus moved unseen");
        QVERIFY(tap(sim, "return"));
        const QImage elsewhere = changedFrom(desktop, onArchive, 1500);
        if (!elsewhere.isNull()) {
            QVERIFY(!sameScreen(settings, elsewhere, menuTop));
            QVERIFY(backToMenu(desktop, sim, onArchive));
        }
        // Up brings the focus back to System.
        QVERIFY(tap(sim, "up"));
        QVERIFY(tap(sim, "return"));
        const QImage last = changedFrom(desktop, menu);
        QVERIFY(!last.isNull());
        QVERIFY(sameScreen(settings, last, menuTop));
        QVERIFY(backToMenu(desktop, sim, menu));
    }

    void programStartsNoThreadOfItsOwn()
    {
        TestRoot root;
        QVERIFY(!seed(root.root()).isEmpty());
        Desktop desktop(root);
        QVERIFY2(desktop.isValid(), qPrintable(desktop.error));
        SimInstrument sim(root);
        QVERIFY(!startToMainMenu(root, desktop, sim).isNull());

        const qint64 pid = desktop.program.processId();
        const QString tasks = QString("/proc/%1/task").arg(pid);
        const QStringList ids = QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QVERIFY(ids.contains(QString::number(pid)));
        // The X connection's reader and the session bus of the accessibility
        // bridge: both started by the toolkit's X11 platform plugin.
        const QSet<QString> platform{"QXcbEventQueue", "QDBusConnection"};
        for (const QString& id : ids) {
            if (id == QString::number(pid))
                continue;
            QFile comm(tasks + "/" + id + "/comm");
            QVERIFY(comm.open(QIODevice::ReadOnly));
            const QString name = QString::fromLocal8Bit(comm.readAll()).trimmed();
            QVERIFY2(platform.contains(name), qPrintable("thread " + name));
        }
    }
};

// The same program is its own screen grabber: with --grab FILE it connects to
// the X server of DISPLAY and saves the whole screen.
static int grabScreen(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return 1;
    return screen->grabWindow(0).save(QString::fromLocal8Bit(argv[2]), "PNG") ? 0 : 1;
}

int main(int argc, char** argv)
{
    if (argc == 3 && strcmp(argv[1], "--grab") == 0)
        return grabScreen(argc, argv);
    QApplication app(argc, argv);
    QTEST_DISABLE_KEYPAD_NAVIGATION
    TestDesktop test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_desktop.moc"
