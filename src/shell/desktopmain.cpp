// krm510-desktop: the instrument's program on a desktop, on the simulated
// instrument (krm510-simd). The same start-up as the device's main; only the
// machine folder differs, and the launcher names it:
//
//   krm510-desktop --root DIR [--scale S] [Qt options]   run the instrument
//   krm510-desktop --root DIR --seed [CATALOGUES]         prepare DIR, then exit
//
// --scale multiplies every sleep, time-out and timer (1 = the instrument's own
// pace). The display is expected to be the instrument's: 1024 x 600 pixels at
// 72 dots per inch (the launcher runs a nested X server of that size).
#include "platform/clock.h"
#include "platform/systemroot.h"
#include "shell/desktopseed.h"
#include "shell/startup.h"

#include <QApplication>
#include <QByteArray>
#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#ifndef KRM_CATALOGUE_DIR
#error "KRM_CATALOGUE_DIR must name the compiled catalogues of the build"
#endif

namespace
{

// The instrument's display server gives a maximized window the whole screen
// and the keys. A nested X server has no window manager to do it, so the
// desktop variant does it itself, before the window is first drawn, and gives
// the keys back to the screen underneath when one closes.
class MaximizedFillsScreen : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType()) {
            QWidget* widget = static_cast<QWidget*>(watched);
            if (widget->isWindow() && (widget->windowState() & Qt::WindowMaximized) &&
                widget->screen()) {
                widget->setGeometry(widget->screen()->geometry());
                widget->activateWindow(); // and its keys, as on the instrument
            }
        }
        if (event->type() == QEvent::Hide && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->isWindow()) {
            // the keys go back to the screen underneath, the newest first
            const QWidgetList windows = QApplication::topLevelWidgets();
            QWidget* next = QApplication::activeModalWidget();
            if (next == watched)
                next = nullptr;
            for (int i = windows.size() - 1; next == nullptr && i >= 0; i--)
                if (windows[i] != watched && windows[i]->isVisible() &&
                    (windows[i]->windowState() & Qt::WindowMaximized))
                    next = windows[i];
            if (next != nullptr && next != watched)
                next->activateWindow();
        }
        return false;
    }
};

// Runs as the application object is made inside the start-up.
void fillScreenWhenMaximized()
{
    qApp->installEventFilter(new MaximizedFillsScreen(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(fillScreenWhenMaximized)

static int usage()
{
    fprintf(stderr, "usage: krm510-desktop --root DIR [--scale S] [--seed [CATALOGUES]]\n");
    return 2;
}

int main(int argc, char** argv)
{
    std::string root;
    double scale = 1.0;
    bool seed = false;
    const char* catalogues = KRM_CATALOGUE_DIR;
    std::vector<char*> rest{argv[0]};
    for (int i = 1; i < argc; i++) {
        if (strcmp(argv[i], "--root") == 0 && i + 1 < argc) {
            root = argv[++i];
        } else if (strcmp(argv[i], "--scale") == 0 && i + 1 < argc) {
            char* end = nullptr;
            scale = strtod(argv[++i], &end);
            if (end == argv[i] || *end != '\0' || !(scale >= 0.0 && scale <= 100.0))
                return usage();
        } else if (strcmp(argv[i], "--seed") == 0) {
            seed = true;
            if (i + 1 < argc && argv[i + 1][0] != '-')
                catalogues = argv[++i];
        } else {
            rest.push_back(argv[i]); // the toolkit's own options
        }
    }
    if (root.empty() || root[0] != '/')
        return usage();
    SystemRoot::set(root);
    Clock::setScale(scale);

    if (seed) {
        const int modules = seedDesktopRoot(QString::fromLocal8Bit(catalogues));
        if (modules < 0) {
            fprintf(stderr, "krm510-desktop: cannot prepare %s\n", root.c_str());
            return 1;
        }
        printf("krm510-desktop: %s ready, %d modules written\n", root.c_str(), modules);
        return 0;
    }

    // Point sizes are the instrument's pixel sizes: 72 dots per inch, and no
    // scaling of the desktop's own.
    if (qEnvironmentVariableIsEmpty("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "72");
    if (qEnvironmentVariableIsEmpty("QT_ENABLE_HIGHDPI_SCALING"))
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    int count = static_cast<int>(rest.size());
    rest.push_back(nullptr);
    return startInstrument(count, rest.data());
}
