#include "toolkit/instrumentstyle.h"

#include <QStyleFactory>

InstrumentStyle::InstrumentStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

int InstrumentStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                 const QWidget* widget) const
{
    if (metric == PM_ButtonIconSize)
        return ButtonIconPixels;
    return QProxyStyle::pixelMetric(metric, option, widget);
}
