#ifndef KRM_TESTS_LOOKCHECK_H
#define KRM_TESTS_LOOKCHECK_H

#include <QColor>
#include <QImage>
#include <QStringList>

class QWidget;
class SimInstrument;

// Checks of what an operator in the sun sees on a screen.

// The contrast ratio of two colours (1 to 21): the lighter one's relative
// luminance plus 0.05 over the darker one's plus 0.05.
double contrastRatio(const QColor& a, const QColor& b);

// Walks every visible widget of the screen (a shown widget, laid out) and
// every font the plotter's painter drew a text in, and names each fault: a
// font below 11 pixels; a text that does not fit its box even in the size
// the instrument's style draws it in (the largest that fits, not below 11
// pixels): a label, a button (its icon beside), a check or radio box, every
// entry of a combo box, a group's title, a row of a list or a table, by the
// widest line of its text, and a wrapped label by its height too; a button's
// menu wider than the screen. Empty when the screen is legible.
QStringList legibilityFaults(QWidget* screen);

// The screen grabbed with the focus on widget A (`before`), then on widget B
// (`after`): names what is wrong with the focus mark. At least 20 pixels
// inside A must change, each by a contrast ratio of at least 3:1, and no
// pixel outside A and B may change.
QStringList focusMarkFaults(QWidget* screen, const QImage& before, const QImage& after, QWidget* a,
                            QWidget* b);

// The focus on widget A, then moved by one press of a hardware key of the
// simulated instrument: focusMarkFaults of the screen grabbed before and
// after, both ways (A to the widget the key reached, and back). When the
// status bar's clock turns between the two grabs, it tries once more.
QStringList focusMarkFaultsByKey(QWidget* screen, const SimInstrument& sim, QWidget* a,
                                 const char* key);

// True once the status bar of the screen shows the power supply, which it
// does from its first poll on: grabs compared for the focus are taken after
// it, so that only the focus changes between them.
bool showsPowerSupply(QWidget* screen);

// The screen (or any widget) as it is now on its window, its pending events
// served first.
QImage grabScreen(QWidget* screen);

#endif
