#include "toolkit/textfit.h"

#include <QFontInfo>
#include <QFontMetrics>

int fontPixels(const QFont& font)
{
    return QFontInfo(font).pixelSize();
}

QFont fittedFont(const QFont& font, const QString& text, int width)
{
    QFont fitted = font;
    int px = fontPixels(font);
    while (px > MinTextPixels && QFontMetrics(fitted).horizontalAdvance(text) > width)
        fitted.setPixelSize(--px);
    return fitted;
}
