#include "toolkit/textfit.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QHash>
#include <QPaintDevice>
#include <QWidget>

int fontPixels(const QFont& font)
{
    return QFontInfo(font).pixelSize();
}

TextFit fitTextInBox(const QFont& font, const QString& text, const QRect& box, int flags,
                     const QPaintDevice* device)
{
    // The size found is always the same for the same font, box, flags, text
    // and device, and finding it measures the text at every size from the
    // font's down: on the instrument's processor that search would be most of
    // a screen's drawing. Each answer is kept (a few hundred at most: the
    // texts of the screens in use).
    struct Fit {
        int px;
        bool fits;
    };
    static QHash<QString, Fit> found;
    const int dpi = device ? device->logicalDpiY() : 0;
    const QString key = font.key() + QLatin1Char('|') + QString::number(box.width()) +
                        QLatin1Char('x') + QString::number(box.height()) + QLatin1Char('|') +
                        QString::number(flags) + QLatin1Char('|') + QString::number(dpi) +
                        QLatin1Char('|') + text;
    auto known = found.constFind(key);
    QFont fitted = font;
    if (known == found.constEnd()) {
        int px = fontPixels(font);
        bool fits = false;
        while (true) {
            const QFontMetrics metrics =
                device ? QFontMetrics(fitted, device) : QFontMetrics(fitted);
            const QRect need = metrics.boundingRect(box, flags, text);
            fits = need.width() <= box.width() && need.height() <= box.height();
            if (fits || px <= MinTextPixels)
                break;
            fitted.setPixelSize(--px);
        }
        if (found.size() >= 1024)
            found.clear();
        known = found.insert(key, Fit{px, fits});
    }
    if (known->px != fontPixels(font))
        fitted.setPixelSize(known->px);
    return TextFit{fitted, known->fits};
}

QRect textRoom(const QRect& box, int flags)
{
    if (flags & Qt::TextWordWrap)
        return box;
    return QRect(box.left(), box.top(), box.width(), QWIDGETSIZE_MAX);
}
