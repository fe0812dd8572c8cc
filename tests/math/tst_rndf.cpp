#include "math/rndf.h"
#include "math/floatbits.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <vector>
#include <limits>

static const float kNaN = std::numeric_limits<float>::quiet_NaN();
static const float kInf = std::numeric_limits<float>::infinity();

class TestRndf : public QObject
{
    Q_OBJECT
private slots:
    void rndCurrentTruncatesToHundredths()
    {
        COMPARE_BITS(rndCurrent(1.999f), 1.99f);
        COMPARE_BITS(rndCurrent(1.995f), 1.99f);
        COMPARE_BITS(rndCurrent(2.0f), 2.0f);
    }
    void rndCurrentAddsFiveHundredthsNotHalf()
    {
        // 1.9995 * 100 + 0.05 reaches 200: the only rounding up left.
        COMPARE_BITS(rndCurrent(1.9995f), 2.0f);
        COMPARE_BITS(rndCurrent(0.0096f), 0.01f);
        COMPARE_BITS(rndCurrent(0.0094f), 0.0f);
    }
    void rndVoltageRoundsToTenthsHalfUp()
    {
        COMPARE_BITS(rndVoltage(1.95f), 2.0f);
        COMPARE_BITS(rndVoltage(0.25f), 0.3f);
        COMPARE_BITS(rndVoltage(0.24f), 0.2f);
        COMPARE_BITS(rndVoltage(37.86f), 37.9f);
    }
    void rndVoltageNarrowsBeforeFloor()
    {
        // 1.9499999f * 10.0 + 0.5 is 19.99999928 in double: floor would give 19,
        // but the value is narrowed to float first, where it is 20.
        const float x = 1.9499999f;
        QVERIFY(std::floor(x * 10.0 + 0.5) == 19.0);
        COMPARE_BITS(rndVoltage(x), 2.0f);
    }
    void rndTemperatureWorksInDoubleBeforeNarrowing()
    {
        // -0.05f * 10.0 + 0.5 is -7.45e-9 in double (single precision would
        // give exactly 0): the floor goes down to -1.
        COMPARE_BITS(rndTemperature(-0.05f), -0.1f);
        COMPARE_BITS(rndTemperature(25.04f), 25.0f);
        COMPARE_BITS(rndTemperature(25.05f), 25.1f);
    }
    void rndPowerRoundsToWholeWatts()
    {
        COMPARE_BITS(rndPower(2.5f), 3.0f);
        COMPARE_BITS(rndPower(2.4f), 2.0f);
        COMPARE_BITS(rndPower(-2.5f), -2.0f);
    }
    void rndPowerAddsInSingle()
    {
        // 0.49999997f + 0.5f is exactly halfway below 1 and rounds to 1.0f.
        COMPARE_BITS(rndPower(0.49999997f), 1.0f);
        COMPARE_BITS(rndPower(0.4999999f), 0.0f);
    }
    void rndIrradiationRoundsToWholeUnits()
    {
        COMPARE_BITS(rndIrradiation(785.5f), 786.0f);
        COMPARE_BITS(rndIrradiation(0.4f), 0.0f);
        COMPARE_BITS(rndIrradiation(0.49999997f), 1.0f);
    }
    void roundingFamilyPassesNanAndInfinity()
    {
        QVERIFY(std::isnan(rndCurrent(kNaN)));
        QVERIFY(std::isnan(rndVoltage(kNaN)));
        QVERIFY(std::isnan(rndTemperature(kNaN)));
        QVERIFY(std::isnan(rndPower(kNaN)));
        QVERIFY(std::isnan(rndIrradiation(kNaN)));
        QVERIFY(std::isnan(rndDPmax(kNaN)));
        COMPARE_BITS(rndCurrent(kInf), kInf);
        COMPARE_BITS(rndVoltage(-kInf), -kInf);
        COMPARE_BITS(rndPower(kInf), kInf);
    }
    void rndDPmaxRoundsToTenthsInDouble()
    {
        COMPARE_BITS(rndDPmax(1.25f), 1.3f);
        COMPARE_BITS(rndDPmax(-0.05f), -0.1f);
        COMPARE_BITS(rndDPmax(-2.34f), -2.3f);
    }
    void rndfCutsRatherThanRounds()
    {
        COMPARE_BITS(rndf(1.999f, 2), 1.99f);
        COMPARE_BITS(rndf(2.7f, 0), 2.0f);
        COMPARE_BITS(rndf(37.86f, 1), 37.8f);
    }
    void rndfCutsTowardZero()
    {
        COMPARE_BITS(rndf(-1.999f, 2), -1.99f);
        COMPARE_BITS(rndf(-2.7f, 0), -2.0f);
    }
    void rndfOfSmallNegativeGivesPositiveZero()
    {
        // The integer 0 has no sign: the result is +0, not -0.
        COMPARE_BITS(rndf(-0.001f, 2), 0.0f);
    }
    void rndfMultipliesInSingle()
    {
        // 0.29f * 100.0f is 29.0f in single precision (28.9999998 in double):
        // the cut keeps 29.
        const float x = 0.29f;
        QVERIFY(static_cast<int>(static_cast<double>(x) * 100.0) == 28);
        COMPARE_BITS(rndf(x, 2), 0.29f);
    }
    void rndfOfNanIsNan()
    {
        QVERIFY(std::isnan(rndf(kNaN, 2)));
        QVERIFY(std::isnan(rndf(-kNaN, 0)));
    }
    void rndfOfInfinityIsThatInfinity()
    {
        COMPARE_BITS(rndf(kInf, 2), kInf);
        COMPARE_BITS(rndf(-kInf, 2), -kInf);
    }
    void rndfBeyondIntRangeKeepsTheScaledValue()
    {
        // 3e9 is beyond the int range and already whole: nothing is cut.
        COMPARE_BITS(rndf(3e7f, 2), 3e7f);
        COMPARE_BITS(rndf(-3e7f, 2), -3e7f);
        COMPARE_BITS(rndf(1e30f, 0), 1e30f);
        // A product that overflows to infinity stays infinite.
        COMPARE_BITS(rndf(3e37f, 2), kInf);
    }
    void rndfAtTheEdgeOfIntRangeStillCuts()
    {
        // The largest float below 2^31 is converted as an int.
        const float edge = std::nextafter(2147483648.0f, 0.0f);
        COMPARE_BITS(rndf(edge, 0), edge);
        COMPARE_BITS(rndf(2147483648.0f, 0), 2147483648.0f);
        COMPARE_BITS(rndf(-2147483648.0f, 0), -2147483648.0f);
    }
    void myroundUsesExclusiveOrNotPowerOfTen()
    {
        // n = 2: scale 2 ^ 10 = 8; 1.999 * 8 = 15.992, cut to 15, / 8.
        COMPARE_BITS(myround(1.999f, 2), 1.875f);
        // n = 0: scale 10, the same as rndf to one decimal.
        COMPARE_BITS(myround(1.999f, 0), rndf(1.999f, 1));
        // n = 5: scale 15.
        COMPARE_BITS(myround(1.0f / 3.0f, 5), 5.0f / 15.0f);
    }
    void myroundAboveFiveReturnsValue()
    {
        COMPARE_BITS(myround(1.999f, 6), 1.999f);
        QVERIFY(std::isnan(myround(kNaN, 2)));
    }
};

QTEST_GUILESS_MAIN(TestRndf)
#include "tst_rndf.moc"
