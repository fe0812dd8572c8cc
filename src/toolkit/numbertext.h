#ifndef KRM_TOOLKIT_NUMBERTEXT_H
#define KRM_TOOLKIT_NUMBERTEXT_H

#include <QString>

// Numbers as the screens take them from the operator and show them.

// True when text is a finite number within a float's range; value then
// receives it. The old screens took whatever the toolkit's conversion
// accepted, "nan", "inf" and "infinity" included, and compared the result
// with their bounds (a NaN passes every comparison unnoticed): a number is
// a number, so those texts, in any case and with any sign, and numbers
// beyond a float's range are refused like any other text.
bool finiteNumber(const QString& text, float* value);

// A stored number with the given decimals, or "----" when it is NaN or
// infinite (a stored "nan" or "inf" is a value the instrument does not have).
QString storedNumberText(float value, int decimals);

// The range of a refusal text in plain digits: "0 - 1000000", never "1e+06".
QString rangeText(float low, float high);

#endif
