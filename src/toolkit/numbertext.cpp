#include "toolkit/numbertext.h"

#include <cmath>

bool finiteNumber(const QString& text, float* value)
{
    bool ok = false;
    float number = text.toFloat(&ok);
    if (!ok || !std::isfinite(number))
        return false;
    if (value != nullptr)
        *value = number;
    return true;
}

QString storedNumberText(float value, int decimals)
{
    if (!std::isfinite(value))
        return "----";
    return QString::number(static_cast<double>(value), 'f', decimals);
}

static QString plainDigits(float value)
{
    // as many decimals as the bound has, none for a whole number
    QString text = QString::number(static_cast<double>(value), 'f', 6);
    while (text.contains('.') && (text.endsWith('0') || text.endsWith('.')))
        text.chop(1);
    return text;
}

QString rangeText(float low, float high)
{
    return plainDigits(low) + " - " + plainDigits(high);
}
