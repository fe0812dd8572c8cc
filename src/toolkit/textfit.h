#ifndef KRM_TOOLKIT_TEXTFIT_H
#define KRM_TOOLKIT_TEXTFIT_H

#include <QFont>
#include <QString>

// The smallest text an operator reads in the sun, in pixels: no text of the
// instrument is drawn smaller.
constexpr int MinTextPixels = 11;

// The font's pixel size, whatever way its size was given.
int fontPixels(const QFont& font);

// The font in the largest pixel size, not above its own, in which the text
// is at most `width` pixels wide; never below MinTextPixels (at that size a
// text may still be wider).
QFont fittedFont(const QFont& font, const QString& text, int width);

#endif
