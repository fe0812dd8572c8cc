#ifndef KRM_TESTS_SCREENSHOT_H
#define KRM_TESTS_SCREENSHOT_H

#include "toolkit/look.h"

#include <QString>

class QWidget;

// Puts the offscreen platform on a screen like the instrument's: 1024 x 600
// pixels at 72 dots per inch, so that point sizes become the instrument's
// pixel sizes. Call it from the test class's `static void initMain()`, which
// runs before the application object exists. A platform other than the
// offscreen one (a developer watching on a desktop) is left alone.
void useInstrumentScreen();

// QTEST_MAIN makes pictures (QPixmap, QImage) 96 dots per inch whatever the
// screen says, while widgets keep the screen's: text drawn off-screen would
// then be larger than the widget measures it. Call it from initTestCase() to
// give pictures the screen's resolution again, as in the program.
void useInstrumentDpi();

// Renders the widget and its children into
// <build dir>/screenshots/<name>.png. Returns the path of the file, or an
// empty string if it could not be written.
QString saveScreenshot(QWidget* widget, const QString& name);

#endif
