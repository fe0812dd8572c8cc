#ifndef KRM_TOOLKIT_TEXTFIT_H
#define KRM_TOOLKIT_TEXTFIT_H

#include <QFont>
#include <QRect>
#include <QString>

class QPaintDevice;

// The smallest text an operator reads in the sun, in pixels: no text of the
// instrument is drawn smaller.
constexpr int MinTextPixels = 11;

// The font's pixel size, whatever way its size was given.
int fontPixels(const QFont& font);

// A text fitted to its box: the font it is drawn in and whether it fits there.
struct TextFit {
    QFont font;
    bool fits;
};

// The text laid out with the flags of a drawn item (alignment, word wrap,
// mnemonic) in the largest pixel size, not above the font's own, in which it
// is no wider and no taller than the box, measured on the device (the
// screen's resolution without one); never below MinTextPixels, where a text
// may still overflow (`fits` false).
TextFit fitTextInBox(const QFont& font, const QString& text, const QRect& box, int flags,
                     const QPaintDevice* device = nullptr);

// The room a text of a widget has: the whole box for a text that wraps, its
// width alone for one that does not (its lines are drawn centred on the box
// and may pass its height).
QRect textRoom(const QRect& box, int flags);

#endif
