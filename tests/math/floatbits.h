#ifndef KRM_TESTS_MATH_FLOATBITS_H
#define KRM_TESTS_MATH_FLOATBITS_H

// Bit-for-bit comparison of floats for the mathematics tests: QCOMPARE on
// floats is fuzzy, and a rounding rule is only proven by the exact bits.

#include <QtTest>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

inline std::uint32_t floatBits(float x)
{
    std::uint32_t b;
    std::memcpy(&b, &x, sizeof b);
    return b;
}

inline QByteArray floatText(float x)
{
    return QByteArray::number(static_cast<double>(x), 'g', 9) + " (0x"
        + QByteArray::number(floatBits(x), 16) + ")";
}

#define COMPARE_BITS(actual, expected)                                                   \
    do {                                                                                 \
        const float a_ = (actual);                                                       \
        const float e_ = (expected);                                                     \
        QVERIFY2(floatBits(a_) == floatBits(e_),                                         \
                 (QByteArray(#actual " is ") + floatText(a_) + ", expected "             \
                  + floatText(e_)).constData());                                         \
    } while (0)

// Distance in units in the last place between two finite floats of one sign.
inline std::int64_t ulpDistance(float a, float b)
{
    return std::llabs(static_cast<std::int64_t>(floatBits(a))
                      - static_cast<std::int64_t>(floatBits(b)));
}

#endif
