#include "math/temperatura.h"
#include "math/rndf.h"
#include "math/floatbits.h"
#include "math/reference.h"

#include <QtTest>

#include <cmath>
#include <limits>

static const float kNaN = std::numeric_limits<float>::quiet_NaN();
static const float kInf = std::numeric_limits<float>::infinity();

class TestTemperatura : public QObject
{
    Q_OBJECT
private slots:
    void ambientProbeAddsNoctRise()
    {
        // 20.04 rounds to 20.0; (45 - 20) * 800 / 800 = 25.
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura(PROBE_AMBIENT, 1, 20.04f, 800.0f, 36.0f, &f), 45.0f);
        _panelFeature g = f;
        g.noct = 47.5f;
        COMPARE_BITS(calcola_temperatura(PROBE_AMBIENT, 1, 18.37f, 912.6f, 36.0f, &g),
                     49.78437423706055f);
    }
    void moduleProbeGivesTemperatureUnrounded()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura(PROBE_MODULE, 1, 25.047f, 800.0f, 36.0f, &f), 25.047f);
    }
    void manualProbeGivesTemperatureUnrounded()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura(PROBE_MANUAL, 1, 31.26f, 800.0f, 36.0f, &f), 31.26f);
    }
    void unknownProbeBehavesAsModuleProbe()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura(static_cast<_probeTemp>(7), 1, 31.26f, 800.0f, 36.0f, &f),
                     31.26f);
        COMPARE_BITS(calcola_temperatura(static_cast<_probeTemp>(-1), 1, 31.26f, 800.0f, 36.0f, &f),
                     31.26f);
    }
    void autoProbeFollowsOpenCircuitVoltage()
    {
        // ((36 / 37.6 - 1) + -0.0032 * 25 * 1.25) / -0.0032, with no 25 added.
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura(PROBE_AUTO, 1, -20.0f, 1000.0f, 36.0f, &f),
                     44.5478515625f);
    }
    void autoProbeDividesStringVoltageByModuleCount()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura(PROBE_AUTO, 10, -20.0f, 850.0f, 362.0f, &f),
                     38.19812774658203f);
    }
    void autoProbeNarrowsBeforeDividingByKvoc()
    {
        // Find a measured Voc where narrowing before the division by k and
        // dividing in double give different floats; the narrowed one is the
        // instrument's.
        const _panelFeature f = referenceModule();
        const float k = f.kvoc / 100.0f;
        const float g1 = 1000.0f;
        for (int n = 0; n < 2000; n++) {
            const float voc = 30.0f + 0.01f * static_cast<float>(n);
            const float vs = rndVoltage(voc);
            const double x = (vs / f.voc - 1.0) + k * (f.noct - 20.0) * (g1 / 800.0);
            const float narrowedFirst = static_cast<float>(x) / k;
            if (narrowedFirst != static_cast<float>(x / k)) {
                COMPARE_BITS(calcola_temperatura(PROBE_AUTO, 1, -20.0f, g1, voc, &f),
                             narrowedFirst);
                return;
            }
        }
        QFAIL("no voltage tells the two orders apart");
    }
    void autoProbeAtExactly300UsesLowIrradianceRow()
    {
        // (45 - 20) * 300 / 800 + 25 = 34.375.
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura(PROBE_AUTO, 1, -20.0f, 300.0f, 36.0f, &f), 34.375f);
        // 300.4 rounds to 300: still the low row.
        COMPARE_BITS(calcola_temperatura(PROBE_AUTO, 1, -20.0f, 300.4f, 36.0f, &f), 34.375f);
    }
    void autoProbeAbove300UsesVoltageRow()
    {
        // 300.5 rounds to 301: the open-circuit voltage decides.
        const _panelFeature f = referenceModule();
        const float t = calcola_temperatura(PROBE_AUTO, 1, -20.0f, 300.5f, 37.6f, &f);
        // Vs equals voc: (0 + -0.0032 * 25 * 301 / 800) / -0.0032 = 25 * 301 / 800.
        QVERIFY(std::fabs(t - 9.40625f) < 1e-5f);
        QVERIFY(t != 34.375f);
    }
    void autoProbeWithZeroKvocGivesInfinity()
    {
        _panelFeature f = referenceModule();
        f.kvoc = 0.0f;
        const float t = calcola_temperatura(PROBE_AUTO, 1, -20.0f, 1000.0f, 36.0f, &f);
        QVERIFY(std::isinf(t));
        QVERIFY(temperatureOutOfLimits(t));
    }
    void autoProbeWithZeroKvocAtNominalVoltageGivesNan()
    {
        // Vs / voc - 1 is 0 and the k term is 0: 0 / 0. The limit test lets it
        // through, as both comparisons fail on NaN.
        _panelFeature f = referenceModule();
        f.kvoc = 0.0f;
        const float t = calcola_temperatura(PROBE_AUTO, 1, -20.0f, 1000.0f, 37.6f, &f);
        QVERIFY(std::isnan(t));
        QVERIFY(!temperatureOutOfLimits(t));
    }
    void autoProbeAtNanIrradianceUsesLowRow()
    {
        const _panelFeature f = referenceModule();
        QVERIFY(std::isnan(calcola_temperatura(PROBE_AUTO, 1, -20.0f, kNaN, 36.0f, &f)));
    }
    void limitsThemselvesPass()
    {
        QVERIFY(!temperatureOutOfLimits(-20.0f));
        QVERIFY(!temperatureOutOfLimits(100.0f));
        QVERIFY(!temperatureOutOfLimits(25.0f));
    }
    void beyondLimitsIsRefused()
    {
        QVERIFY(temperatureOutOfLimits(std::nextafter(-20.0f, -30.0f)));
        QVERIFY(temperatureOutOfLimits(std::nextafter(100.0f, 200.0f)));
        QVERIFY(temperatureOutOfLimits(kInf));
        QVERIFY(temperatureOutOfLimits(-kInf));
    }
    void ambientFromModuleIsInverseOfNoctRule()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura_ambiente_da_modulo(45.04f, 800.0f, &f), 20.0f);
        _panelFeature g = f;
        g.noct = 47.5f;
        COMPARE_BITS(calcola_temperatura_ambiente_da_modulo(51.37f, 912.6f, &g), 20.0f);
    }
    void ambientFromModuleUsesIrradianceUnrounded()
    {
        // 45 - 25 * 801.55 / 800 = 19.95156 gives 20.0; the rounded 802 would
        // give 19.9375 and so 19.9.
        const _panelFeature f = referenceModule();
        COMPARE_BITS(calcola_temperatura_ambiente_da_modulo(45.04f, 801.55f, &f), 20.0f);
        COMPARE_BITS(calcola_temperatura_ambiente_da_modulo(45.04f, 802.0f, &f), 19.9f);
    }
};

QTEST_GUILESS_MAIN(TestTemperatura)
#include "tst_temperatura.moc"
