#include "math/dpmax.h"
#include "math/evaluatetest.h"
#include "math/floatbits.h"
#include "math/reference.h"

#include <QtTest>

#include <cmath>
#include <limits>

class TestEvaluateTest : public QObject
{
    Q_OBJECT
private slots:
    void deltaPmaxIsPercentOfReference()
    {
        COMPARE_BITS(DELTAPMAX(245.0f, 250.0f), -2.0f);
        COMPARE_BITS(DELTAPMAX(255.0f, 250.0f), 2.0f);
    }
    void deltaPmaxWithinAMilliwattIsExactlyZero()
    {
        COMPARE_BITS(DELTAPMAX(250.0005f, 250.0f), 0.0f);
        COMPARE_BITS(DELTAPMAX(249.9995f, 250.0f), 0.0f);
        COMPARE_BITS(DELTAPMAX(1.0f, 1.0009f), 0.0f);
        QVERIFY(DELTAPMAX(1.0f, 1.002f) != 0.0f);
    }
    void deltaPmaxIsSinglePrecision()
    {
        // A pair for which the single and the double quotient differ.
        const float ref = 250.0f;
        float p = 240.0f;
        while ((p - ref) / ref * 100.0f
               == static_cast<float>(double(p - ref) / double(ref) * 100.0))
            p = std::nextafter(p, 300.0f);
        COMPARE_BITS(DELTAPMAX(p, ref), (p - ref) / ref * 100.0f);
    }
    void degradationAllowanceIsPercentTimesYears()
    {
        COMPARE_BITS(degradationAllowance(true, 2.0f, 0.5f), 0.01f);
        COMPARE_BITS(degradationAllowance(true, 3.0f, 0.7f),
                     static_cast<float>(0.7f / 100.0 * 3.0f));
    }
    void degradationOffGivesNoAllowance()
    {
        COMPARE_BITS(degradationAllowance(false, 2.0f, 0.5f), 0.0f);
    }
    void expectedPowerMultipliesModulesInSingle()
    {
        COMPARE_BITS(expectedPower(10, 200.0f, 0.0f), 2000.0f);
        COMPARE_BITS(expectedPower(1, 250.0f, 0.01f), 247.5f);
        // npan * pmax is rounded to float before the double factor.
        const float product = 3.0f * 0.1f;
        COMPARE_BITS(expectedPower(3, 0.1f, 0.0f), product);
    }
    void powerInsideToleranceFailsNothing()
    {
        const _panelFeature f = referenceModule();
        QCOMPARE(evaluateTestPannello(250.0f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(245.0f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(255.0f, &f, 0.0f), 1);
    }
    void onePercentOfToleranceBelowLowerLimitStillPasses()
    {
        // Lower limit 250 - 7.5 = 242.5; widened by 1 percent to 242.425.
        const _panelFeature f = referenceModule();
        QCOMPARE(evaluateTestPannello(242.45f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(242.43f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(242.42f, &f, 0.0f), 0);
    }
    void upperLimitIsHeldExactly()
    {
        // Upper limit 257.5: step 5 stops at 257.425, step 6 reaches 257.5.
        const _panelFeature f = referenceModule();
        QCOMPARE(evaluateTestPannello(257.45f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(257.5f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(257.51f, &f, 0.0f), 0);
    }
    void toleranceSignDoesNotMatter()
    {
        _panelFeature f = referenceModule();
        f.tollm = 3.0f;
        f.tollp = -3.0f;
        QCOMPARE(evaluateTestPannello(242.43f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(242.42f, &f, 0.0f), 0);
        QCOMPARE(evaluateTestPannello(257.5f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(257.51f, &f, 0.0f), 0);
    }
    void zeroTolerancesPassOnlyExactPower()
    {
        _panelFeature f = referenceModule();
        f.tollm = 0.0f;
        f.tollp = 0.0f;
        QCOMPARE(evaluateTestPannello(250.0f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestPannello(std::nextafter(250.0f, 300.0f), &f, 0.0f), 0);
        QCOMPARE(evaluateTestPannello(std::nextafter(250.0f, 0.0f), &f, 0.0f), 0);
    }
    void zeroMinusToleranceRefusesAnyShortfall()
    {
        _panelFeature f = referenceModule();
        f.tollm = 0.0f;
        QCOMPARE(evaluateTestPannello(249.99f, &f, 0.0f), 0);
        QCOMPARE(evaluateTestPannello(257.0f, &f, 0.0f), 1);
    }
    void degradationLowersExpectedPower()
    {
        _panelFeature f = referenceModule();
        f.tollm = 0.0f;
        f.tollp = 0.0f;
        QCOMPARE(evaluateTestPannello(247.5f, &f, 0.01f), 1);
        QCOMPARE(evaluateTestPannello(247.5f, &f, 0.0f), 0);
    }
    void modulesCountInExpectedPower()
    {
        _panelFeature f = referenceModule();
        f.pmax = 200.0f;
        QCOMPARE(evaluateTest(10, 1960.0f, &f, 0.0f), 1);
        QCOMPARE(evaluateTest(10, 1930.0f, &f, 0.0f), 0);
        QCOMPARE(evaluateTest(1, 1960.0f, &f, 0.0f), 0);
    }
    void nanPowerFails()
    {
        const _panelFeature f = referenceModule();
        QCOMPARE(evaluateTestPannello(std::numeric_limits<float>::quiet_NaN(), &f, 0.0f), 0);
    }
    void stringVerdictHasMarginOfOneHundredth()
    {
        const _panelFeature f = referenceModule();
        QCOMPARE(evaluateTestStringa(-3.0f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestStringa(static_cast<float>(-3.0f - 0.01), &f, 0.0f), 1);
        QCOMPARE(evaluateTestStringa(-3.02f, &f, 0.0f), 0);
        QCOMPARE(evaluateTestStringa(static_cast<float>(3.0f + 0.01), &f, 0.0f), 1);
        QCOMPARE(evaluateTestStringa(3.02f, &f, 0.0f), 0);
    }
    void stringVerdictLimitsAreNarrowedToFloat()
    {
        // Find tolerances whose limits round away from zero when narrowed:
        // a deviation equal to the narrowed limit passes, though it lies
        // beyond the limit worked out in double.
        _panelFeature f = referenceModule();
        bool upperTold = false, lowerTold = false;
        for (int n = 1; n < 100 && !(upperTold && lowerTold); n++) {
            const float tol = 0.1f * static_cast<float>(n);
            const double upper = tol + 0.01;
            const double lower = -tol - 0.01;
            f.tollp = tol;
            f.tollm = tol;
            if (!upperTold && static_cast<float>(upper) > upper) {
                QCOMPARE(evaluateTestStringa(static_cast<float>(upper), &f, 0.0f), 1);
                upperTold = true;
            }
            if (!lowerTold && static_cast<float>(lower) < lower) {
                QCOMPARE(evaluateTestStringa(static_cast<float>(lower), &f, 0.0f), 1);
                lowerTold = true;
            }
        }
        QVERIFY(upperTold && lowerTold);
    }
    void stringVerdictIgnoresDegradation()
    {
        const _panelFeature f = referenceModule();
        for (float deg : {0.0f, 0.05f, 0.5f}) {
            QCOMPARE(evaluateTestStringa(-3.0f, &f, deg), 1);
            QCOMPARE(evaluateTestStringa(-3.5f, &f, deg), 0);
        }
    }
    void stringVerdictToleranceSignDoesNotMatter()
    {
        _panelFeature f = referenceModule();
        f.tollm = 2.0f;
        f.tollp = -1.0f;
        QCOMPARE(evaluateTestStringa(-2.0f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestStringa(1.0f, &f, 0.0f), 1);
        QCOMPARE(evaluateTestStringa(1.1f, &f, 0.0f), 0);
    }
};

QTEST_GUILESS_MAIN(TestEvaluateTest)
#include "tst_evaluatetest.moc"
