#include "math/compensazione.h"
#include "math/compensazione_2.h"
#include "math/rndf.h"
#include "math/floatbits.h"
#include "math/reference.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>

static const float kNaN = std::numeric_limits<float>::quiet_NaN();
static const float kInf = std::numeric_limits<float>::infinity();

namespace {

_ramp_iv sampleCurve()
{
    _ramp_iv c;
    for (int k = 0; k < RAMP_POINTS; k++) {
        c.corrente[k] = 0.01f * static_cast<float>(k) + 0.003f;
        c.tensione[k] = 37.6f - 0.07f * static_cast<float>(k);
    }
    return c;
}

struct CurvaOut {
    float vmpp, impp, pmax, vmax, imax;
};

CurvaOut runCurva(const _ramp_iv& in, _ramp_iv* out, float isc, float voc, float g, float t,
                  const _panelFeature& f)
{
    CurvaOut o = {-1, -1, -1, -1, -1};
    compensazione_curva(&in, out, isc, voc, g, t, &f, &o.vmpp, &o.impp, &o.pmax, &o.vmax,
                        &o.imax);
    return o;
}

} // namespace

class TestCompensazione : public QObject
{
    Q_OBJECT
private slots:
    void currentIsScaledByTemperatureAndIrradiance()
    {
        _panelFeature f = referenceModule();
        // 4 A at 800 W/m2 and 45.04 (rounded 45.0) degrees C.
        COMPARE_BITS(compensazione_pto_corrente(4.0f, 8.8f, 800.0f, 45.04f, &f), 4.95f);
        f.kisc = 0.06f;
        COMPARE_BITS(compensazione_pto_corrente(8.8f, 8.8f, 650.0f, 52.3f, &f), 13.31f);
    }
    void currentIsWorkedOutInDouble()
    {
        // Near rounding boundaries of rndCurrent, find currents where a factor
        // narrowed to float, or the whole formula in single precision, would
        // round differently; the double result is the instrument's.
        const _panelFeature f = referenceModule();
        const float g = 812.0f, t = 45.3f;
        const float k = f.kisc / 100.0f, t1 = rndTemperature(t), g1 = rndIrradiation(g);
        const double gain = k * (25.0 - t1) + 1.0;
        const float gainSingle = static_cast<float>(gain);
        int told = 0;
        for (int m = 100; m < 900 && told < 2; m++) {
            const double boundary = m / 100.0 - 0.0005;
            float i = static_cast<float>(boundary / gain / (1000.0 / g1));
            for (int n = 0; n < 300; n++)
                i = std::nextafter(i, 0.0f);
            for (int n = 0; n < 600; n++, i = std::nextafter(i, 100.0f)) {
                const float inDouble = rndCurrent(static_cast<float>(i * gain * (1000.0 / g1)));
                const float narrowedGain =
                    rndCurrent(static_cast<float>(i * static_cast<double>(gainSingle)
                                                  * (1000.0 / g1)));
                const float inSingle = rndCurrent(i * gainSingle * (1000.0f / g1));
                if (inDouble != narrowedGain || inDouble != inSingle) {
                    COMPARE_BITS(compensazione_pto_corrente(i, 0, g, t, &f), inDouble);
                    told += inDouble != narrowedGain;
                }
            }
        }
        QVERIFY2(told > 0, "no current tells a narrowed factor apart");
    }
    void currentAtStandardConditionsIsOnlyRounded()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(compensazione_pto_corrente(1.999f, 0, 1000.0f, 25.0f, &f), 1.99f);
        for (float i : {0.0f, 0.013f, 4.567f, 8.8f})
            COMPARE_BITS(compensazione_pto_corrente(i, 0, 1000.0f, 25.0f, &f), rndCurrent(i));
    }
    void currentIgnoresIsc()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(compensazione_pto_corrente(4.0f, 8.8f, 800.0f, 45.0f, &f),
                     compensazione_pto_corrente(4.0f, -123.0f, 800.0f, 45.0f, &f));
    }
    void voltageIsShiftedByTemperatureAndIrradiance()
    {
        _panelFeature f = referenceModule();
        COMPARE_BITS(compensazione_pto_tensione(30.0f, 37.6f, 0, 0, 800.0f, 45.04f, &f), 32.9f);
        f.kvoc = -0.34f;
        COMPARE_BITS(compensazione_pto_tensione(27.3f, 36.9f, 0, 0, 650.0f, 52.3f, &f), 31.7f);
    }
    void voltageShiftIsWorkedOutInDouble()
    {
        // Near a rounding boundary of 0.1 V, find a voltage where the shift in
        // double and in single precision round differently; the double one is
        // the instrument's.
        const _panelFeature f = referenceModule();
        const float g = 200.0f, t = 61.2f, voc = 37.6f;
        const float k = f.kvoc / 100.0f, t1 = rndTemperature(t), g1 = rndIrradiation(g);
        const float v1 = rndVoltage(voc);
        const double shift = v1 * (k * (25.0 - t1) + std::log(1000.0 / g1) * 0.06);
        const float shiftSingle = v1 * (k * (25.0f - t1) + std::log(1000.0f / g1) * 0.06f);
        for (double boundary : {30.05, 12.35, 20.45}) {
            float v = static_cast<float>(boundary - shift);
            for (int n = 0; n < 300; n++)
                v = std::nextafter(v, 0.0f);
            for (int n = 0; n < 600; n++, v = std::nextafter(v, 100.0f)) {
                const float inDouble = rndVoltage(static_cast<float>(v + shift));
                const float inSingle = rndVoltage(v + shiftSingle);
                if (inDouble != inSingle) {
                    COMPARE_BITS(compensazione_pto_tensione(v, voc, 0, 0, g, t, &f), inDouble);
                    return;
                }
            }
        }
        QFAIL("no voltage tells the two precisions apart");
    }
    void voltageAtStandardConditionsIsOnlyRounded()
    {
        const _panelFeature f = referenceModule();
        for (float v : {0.0f, 1.95f, 12.34f, 37.6f})
            COMPARE_BITS(compensazione_pto_tensione(v, 37.6f, 0, 0, 1000.0f, 25.0f, &f),
                         rndVoltage(v));
    }
    void voltageShiftComesFromOpenCircuitVoltage()
    {
        // kvoc 0, 25 degrees C, 500 W/m2: the shift is rndVoltage(voc) * ln 2 * 0.06.
        _panelFeature f = referenceModule();
        f.kvoc = 0.0f;
        COMPARE_BITS(compensazione_pto_tensione(0.0f, 10.0f, 0, 0, 500.0f, 25.0f, &f), 0.4f);
        COMPARE_BITS(compensazione_pto_tensione(0.0f, 20.0f, 0, 0, 500.0f, 25.0f, &f), 0.8f);
        // The current arguments play no part.
        COMPARE_BITS(compensazione_pto_tensione(0.0f, 20.0f, 7.0f, 9.0f, 500.0f, 25.0f, &f),
                     0.8f);
    }
    void zeroKvocStillShiftsByTheLogarithm()
    {
        _panelFeature f = referenceModule();
        f.kvoc = 0.0f;
        COMPARE_BITS(compensazione_pto_tensione(30.0f, 37.6f, 0, 0, 500.0f, 25.0f, &f), 31.6f);
    }
    void negativeTranslatedVoltageIsClampedBeforeRounding()
    {
        // At 0 degrees C the shift is 37.6 * -0.0032 * 25 = -3.008 V: 1 V would
        // become -2.008, which is clamped to +0 (rndVoltage alone would give -2.0).
        const _panelFeature f = referenceModule();
        COMPARE_BITS(compensazione_pto_tensione(1.0f, 37.6f, 0, 0, 1000.0f, 0.0f, &f), 0.0f);
        COMPARE_BITS(compensazione_pto_tensione(3.0f, 37.6f, 0, 0, 1000.0f, 0.0f, &f), 0.0f);
        COMPARE_BITS(compensazione_pto_tensione(3.1f, 37.6f, 0, 0, 1000.0f, 0.0f, &f), 0.1f);
    }
    void noIrradianceGivesZero()
    {
        const _panelFeature f = referenceModule();
        for (float g : {0.0f, -0.0f, -5.0f, kNaN, -kInf}) {
            COMPARE_BITS(compensazione_pto_corrente(4.0f, 8.8f, g, 45.0f, &f), 0.0f);
            COMPARE_BITS(compensazione_pto_tensione(30.0f, 37.6f, 0, 0, g, 45.0f, &f), 0.0f);
        }
    }
    void irradianceRoundedToZeroDividesByZero()
    {
        // 0.4 W/m2 passes the test g > 0, then rounds to 0: 1000 / 0.
        const _panelFeature f = referenceModule();
        COMPARE_BITS(compensazione_pto_corrente(4.0f, 8.8f, 0.4f, 45.0f, &f), kInf);
        QVERIFY(std::isnan(compensazione_pto_corrente(0.0f, 8.8f, 0.4f, 45.0f, &f)));
        COMPARE_BITS(compensazione_pto_tensione(30.0f, 37.6f, 0, 0, 0.4f, 45.0f, &f), kInf);
    }
    void curveWithoutIrradianceIsAllZero()
    {
        const _panelFeature f = referenceModule();
        const _ramp_iv in = sampleCurve();
        for (float g : {0.0f, -1.0f, kNaN}) {
            _ramp_iv out = in;
            const CurvaOut o = runCurva(in, &out, 8.8f, 37.6f, g, 45.0f, f);
            for (int k = 0; k < RAMP_POINTS; k++) {
                COMPARE_BITS(out.corrente[k], 0.0f);
                COMPARE_BITS(out.tensione[k], 0.0f);
            }
            COMPARE_BITS(o.vmpp, 0.0f);
            COMPARE_BITS(o.impp, 0.0f);
            COMPARE_BITS(o.pmax, 0.0f);
            COMPARE_BITS(o.vmax, 0.0f);
            COMPARE_BITS(o.imax, 0.0f);
        }
    }
    void curvePointsEqualThePointFunctions()
    {
        _panelFeature f = referenceModule();
        const _ramp_iv in = sampleCurve();
        const float conditions[][2] = {{1000, 25}, {800, 45.04f}, {212.6f, -3.7f},
                                       {1187.3f, 71.2f}, {1, 25}, {0.4f, 25}};
        for (const auto& c : conditions) {
            _ramp_iv out;
            runCurva(in, &out, 8.8f, 37.6f, c[0], c[1], f);
            for (int k = 0; k < RAMP_POINTS; k++) {
                const float i =
                    compensazione_pto_corrente(in.corrente[k], 8.8f, c[0], c[1], &f);
                COMPARE_BITS(out.corrente[k], i);
                COMPARE_BITS(out.tensione[k], compensazione_pto_tensione(in.tensione[k], 37.6f,
                                                                         in.corrente[k], i,
                                                                         c[0], c[1], &f));
            }
        }
    }
    void curveTakesMaximumPowerPointAndMaxima()
    {
        const _panelFeature f = referenceModule();
        _ramp_iv in;
        std::memset(&in, 0, sizeof in);
        in.tensione[0] = 40.0f; // the highest voltage, no current
        in.corrente[5] = 3.0f;
        in.tensione[5] = 20.0f; // 60 W
        in.corrente[9] = 9.0f;  // the highest current, no voltage
        _ramp_iv out;
        const CurvaOut o = runCurva(in, &out, 9.0f, 40.0f, 1000.0f, 25.0f, f);
        COMPARE_BITS(o.pmax, 60.0f);
        COMPARE_BITS(o.vmpp, 20.0f);
        COMPARE_BITS(o.impp, 3.0f);
        COMPARE_BITS(o.vmax, 40.0f);
        COMPARE_BITS(o.imax, 9.0f);
    }
    void curveTieOfMaximumPowerKeepsLowerIndex()
    {
        const _panelFeature f = referenceModule();
        _ramp_iv in;
        std::memset(&in, 0, sizeof in);
        in.corrente[10] = 2.0f;
        in.tensione[10] = 10.0f; // 20 W
        in.corrente[20] = 1.0f;
        in.tensione[20] = 20.0f; // 20 W again
        in.corrente[30] = 4.0f;
        in.tensione[30] = 4.9f; // 19.6 W, rounds to 20 W
        _ramp_iv out;
        const CurvaOut o = runCurva(in, &out, 4.0f, 20.0f, 1000.0f, 25.0f, f);
        COMPARE_BITS(o.pmax, 20.0f);
        COMPARE_BITS(o.vmpp, 10.0f);
        COMPARE_BITS(o.impp, 2.0f);
    }
    void curveOutputsStartAtZero()
    {
        // Whatever the outputs held, a curve without power leaves them 0.
        const _panelFeature f = referenceModule();
        _ramp_iv in;
        std::memset(&in, 0, sizeof in);
        _ramp_iv out;
        const CurvaOut o = runCurva(in, &out, 0, 0, 1000.0f, 25.0f, f);
        COMPARE_BITS(o.pmax, 0.0f);
        COMPARE_BITS(o.vmpp, 0.0f);
        COMPARE_BITS(o.impp, 0.0f);
        COMPARE_BITS(o.vmax, 0.0f);
        COMPARE_BITS(o.imax, 0.0f);
    }
    void powerOfHotModuleRisesWithNegativeKpmax()
    {
        const _panelFeature f = referenceModule();
        // 200 W at 45 degrees C: 200 * (1 + 0.0043 * 20) = 217.2 W.
        COMPARE_BITS(compensazione_potenza_secondo_ht(200.0f, 1000.0f, 45.0f, &f), 217.0f);
        _panelFeature g = f;
        g.kpmax = -0.41f;
        COMPARE_BITS(compensazione_potenza_secondo_ht(231.4f, 650.0f, 52.3f, &g), 396.0f);
    }
    void powerIsWorkedOutInDouble()
    {
        const _panelFeature f = referenceModule();
        const float g = 812.0f, t = 45.3f;
        const float t1 = rndTemperature(t), g1 = rndIrradiation(g);
        for (int n = 1; n < 1000000; n++) {
            const float p = 0.01f * static_cast<float>(n);
            const float inDouble = rndPower(static_cast<float>(
                p * (f.kpmax / 100.0 * (25.0 - t1) + 1.0) * (1000.0 / g1)));
            const float inSingle =
                rndPower(p * (f.kpmax / 100.0f * (25.0f - t1) + 1.0f) * (1000.0f / g1));
            if (inDouble != inSingle) {
                COMPARE_BITS(compensazione_potenza_secondo_ht(p, g, t, &f), inDouble);
                return;
            }
        }
        QFAIL("no power tells the two precisions apart");
    }
    void powerAtStandardConditionsIsOnlyRounded()
    {
        const _panelFeature f = referenceModule();
        COMPARE_BITS(compensazione_potenza_secondo_ht(231.4f, 1000.0f, 25.0f, &f), 231.0f);
        COMPARE_BITS(compensazione_potenza_secondo_ht(231.5f, 1000.0f, 25.0f, &f), 232.0f);
    }
    void powerWithoutRoundedIrradianceIsOnlyRounded()
    {
        // The power path tests the rounded irradiance: 0.4 W/m2 does not divide by 0.
        const _panelFeature f = referenceModule();
        for (float g : {0.4f, 0.0f, -20.0f, kNaN})
            COMPARE_BITS(compensazione_potenza_secondo_ht(231.6f, g, 45.0f, &f), 232.0f);
    }
    void vmppIsPowerOverCurrentRounded()
    {
        COMPARE_BITS(compensazione_vmpp_secondo_ht(8.2f, 250.0f), 30.5f);
        COMPARE_BITS(compensazione_vmpp_secondo_ht(8.0f, 250.0f), 31.3f);
        COMPARE_BITS(compensazione_vmpp_secondo_ht(0.0f, 250.0f), kInf);
    }
};

QTEST_GUILESS_MAIN(TestCompensazione)
#include "tst_compensazione.moc"
