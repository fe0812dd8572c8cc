#ifndef KRM_TOOLKIT_INSTRUMENTSTYLE_H
#define KRM_TOOLKIT_INSTRUMENTSTYLE_H

#include <QProxyStyle>

// The toolkit's own style with what the instrument's screen needs beside it:
// button icons large enough to recognise with gloves on (32 x 32 pixels
// wherever a screen gives no size of its own), and texts that fit their
// boxes in every language. A text wider than its box (a label, a button, a
// check box, a combo's current entry, a group's title, a row of a list or a
// table), or a wrapped one taller than its box, is drawn in the largest size
// in which it fits, never below MinTextPixels (textfit.h); the widget keeps
// its font and its size, so the screen's layout does not move.
class InstrumentStyle : public QProxyStyle
{
public:
    enum { ButtonIconPixels = 32 };

    InstrumentStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

    // The room of the text of a button beside its icon, inside the box the
    // style gives the button's label.
    static int textBesideIcon(int box, int icon) { return box - icon - IconSpacing; }
    // The room of the text of a list's or table's cell of the width given.
    int cellTextRoom(int cell, const QWidget* view) const;

private:
    enum { IconSpacing = 4 };
};

#endif
