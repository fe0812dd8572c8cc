// The screen's share of the instrument's processor, for the instruction
// counter (scripts/armel-bench). Each run counts between insnMark(1) and
// insnMark(2):
//
//   bench_screen bare          a bare Qt 6 program: QApplication and one
//                              QLabel in helvetica 38 bold, from main to the
//                              label painted
//   bench_screen startup       the instrument's start-up (startInstrument),
//                              from main to the main menu painted, on a
//                              machine folder of its own with no simulated
//                              instrument answering; the clock runs as on
//                              the instrument (a wait executes nothing, so
//                              the mandated four seconds count no
//                              instruction; at scale 0 the status bar's
//                              timers would run without pause); marks 3
//                              (the splash about to be painted) and 4 (the
//                              menu shown, before its first layout) split it
//   bench_screen repaint <n>   the module screen's plot with a measured and
//                              a translated curve of 512 points, drawn again
//                              n times as after a measure (marks 1 and 2
//                              around the n repaints)
//
// Run with QT_HASH_SEED=0 and QT_QPA_PLATFORM=offscreen so that counts repeat.
#include "platform/systemroot.h"
#include "shell/desktopseed.h"
#include "shell/startup.h"
#include "toolkit/look.h"
#include "toolkit/plotter.h"

#include "insnmark.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPaintEvent>
#include <QTemporaryDir>
#include <QTimer>

#include <cmath>
#include <cstdio>
#include <cstring>

namespace
{

// Ends the event loop once a widget of the given class has painted.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(const char* className) : m_className(className) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // the phases of the start-up: the splash about to be painted (mark
        // 3), the menu built and shown, before its first layout (mark 4)
        if (!m_splash && event->type() == QEvent::Paint &&
            std::strcmp(watched->metaObject()->className(), "QSplashScreen") == 0) {
            m_splash = true;
            insnMark(3);
        }
        if (!m_shown && event->type() == QEvent::Show &&
            std::strcmp(watched->metaObject()->className(), m_className) == 0) {
            m_shown = true;
            insnMark(4);
        }
        if (!m_done && event->type() == QEvent::Paint &&
            std::strcmp(watched->metaObject()->className(), m_className) == 0) {
            m_done = true;
            QTimer::singleShot(0, qApp, [] {
                insnMark(2);
                // The first paint may come before the event loop runs (the
                // splash waits for the menu to be exposed), and the loop
                // forgets an exit asked before it starts: ask until it ends.
                QTimer* ender = new QTimer(qApp);
                QObject::connect(ender, &QTimer::timeout, [] { QCoreApplication::exit(0); });
                ender->start(0);
            });
        }
        return false;
    }

private:
    const char* m_className;
    bool m_done = false;
    bool m_splash = false;
    bool m_shown = false;
};

FirstPaint* menuPainted = nullptr;

// Installed as the application object is made inside startInstrument.
void watchTheMenu()
{
    if (menuPainted)
        qApp->installEventFilter(menuPainted);
}
Q_COREAPP_STARTUP_FUNCTION(watchTheMenu)

int bare(int argc, char** argv)
{
    QApplication app(argc, argv);
    FirstPaint painted("QLabel");
    app.installEventFilter(&painted);
    QLabel label("KRM 510");
    QFont font("helvetica", 38);
    font.setBold(true);
    label.setFont(font);
    label.showMaximized();
    return app.exec();
}

int startup(int argc, char** argv)
{
    QTemporaryDir machine(QDir::tempPath() + "/krm510-bench-XXXXXX");
    SystemRoot::set(machine.path().toStdString());
    // the settings and catalogues the start-up reads
    if (seedDesktopRoot(QStringLiteral(KRM_CATALOGUE_DIR)) < 0)
        return 1;
    FirstPaint painted("Orvia");
    menuPainted = &painted;
    insnMark(1);
    return startInstrument(argc, argv);
}

int repaint(int argc, char** argv, int times)
{
    QApplication app(argc, argv);
    setInstrumentLook();
    QWidget screen;
    screen.resize(1024, 600);
    Plotter* plot = new Plotter(&screen, "Panel IV", &screen);
    plot->setGeometry(0, 0, 1024, 536);
    PlotSettings settings;
    settings.minX = 0;
    settings.maxX = 40;
    settings.minY = 0;
    settings.maxY = 10;
    plot->setPlotSettings(settings);
    QVector<QPointF> measured, translated;
    for (int i = 0; i < 512; i++) {
        const double v = 37.0 * (511 - i) / 511;
        measured << QPointF(v, 8.0 * (1 - std::exp((v - 37.0) / 2.2)));
        const double vs = 38.5 * (511 - i) / 511;
        translated << QPointF(vs, 8.6 * (1 - std::exp((vs - 38.5) / 2.2)));
    }
    plot->setTitle("ABC 250");
    screen.show();
    QCoreApplication::processEvents();
    insnMark(1);
    for (int i = 0; i < times; i++) {
        plot->setCurveData(0, measured);
        plot->setCurveData(1, translated);
        plot->repaint();
    }
    insnMark(2);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "72");
    const char* what = argc > 1 ? argv[1] : "";
    int one = 1;
    if (std::strcmp(what, "bare") == 0) {
        insnMark(1);
        return bare(one, argv);
    }
    if (std::strcmp(what, "startup") == 0)
        return startup(one, argv);
    if (std::strcmp(what, "repaint") == 0)
        return repaint(one, argv, argc > 2 ? std::atoi(argv[2]) : 1);
    std::fprintf(stderr, "usage: bench_screen bare | startup | repaint <n>\n");
    return 2;
}
