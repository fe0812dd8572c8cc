#ifndef KRM_TOOLKIT_LOOK_H
#define KRM_TOOLKIT_LOOK_H

#include <QFont>

// The instrument's application font: "helvetica", 38 points, bold; at the
// screen's 72 dots per inch that is 38 pixels.
QFont instrumentFont();

// The look of every screen, set once after the application object exists:
// the font above, the toolkit's own light palette and style (the black of
// the instrument is the screen behind the windows, not the widgets), no
// pointer on the touch screen, a thick frame around the widget that has the
// keys, and a title strip drawn on every dialog that has a title (the screen
// has no window server to draw title bars). The device program, the desktop
// variant and every test that takes pictures call it, so a picture shows
// what the operator sees. Calling it again changes nothing.
void setInstrumentLook();

#endif
