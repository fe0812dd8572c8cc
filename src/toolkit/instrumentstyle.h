#ifndef KRM_TOOLKIT_INSTRUMENTSTYLE_H
#define KRM_TOOLKIT_INSTRUMENTSTYLE_H

#include <QProxyStyle>

// The toolkit's own style with what the instrument's screen needs beside it:
// button icons large enough to recognise with gloves on (32 x 32 pixels
// wherever a screen gives no size of its own).
class InstrumentStyle : public QProxyStyle
{
public:
    enum { ButtonIconPixels = 32 };

    InstrumentStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};

#endif
