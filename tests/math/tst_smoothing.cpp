#include "math/smoothing.h"
#include "math/floatbits.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <vector>

namespace {

// A module curve that runs from open circuit (index 0) to short circuit:
// current rises from 0.5 A to 5.6 A, voltage falls from 51.1 V to 0.
_ramp_iv rampCurve()
{
    _ramp_iv c;
    for (int k = 0; k < RAMP_POINTS; k++) {
        c.corrente[k] = 0.5f + 0.01f * static_cast<float>(k);
        c.tensione[k] = 0.1f * static_cast<float>(RAMP_POINTS - 1 - k);
    }
    return c;
}

_ramp_iv zeroCurve()
{
    _ramp_iv c;
    std::memset(&c, 0, sizeof c);
    return c;
}

float sum10(const float* w, int n)
{
    float s = 0.0f;
    for (int i = 0; i < 10; i++)
        s += w[n + i];
    return s;
}

} // namespace

class TestSmoothing : public QObject
{
    Q_OBJECT
private slots:
    void allZeroCurveStaysZero()
    {
        const _ramp_iv zero = zeroCurve();
        for (int selector : {0, 1}) {
            _ramp_iv out = rampCurve();
            QCOMPARE(smoothing(&zero, &out, MEA_PANEL, selector), 1);
            for (int k = 0; k < RAMP_POINTS; k++) {
                COMPARE_BITS(out.corrente[k], 0.0f);
                COMPARE_BITS(out.tensione[k], 0.0f);
            }
        }
    }
    void vmaxOfPointOneFloatPullsDeadPoints()
    {
        // 0.1f is above the double 0.1: step 2 runs and every dead point,
        // point 0 included, takes vmax.
        _ramp_iv in = zeroCurve();
        in.tensione[0] = 0.05f;
        in.tensione[1] = 0.1f;
        _ramp_iv out;
        smoothing_senza_rimbalzi(&in, &out, MEA_PANEL);
        const std::vector<float> w(10, 0.1f);
        COMPARE_BITS(out.tensione[0], sum10(w.data(), 0) / 10.0f);
        COMPARE_BITS(out.tensione[300], sum10(w.data(), 0) / 10.0f);
    }
    void vmaxNotAbovePointOneSkipsThePull()
    {
        // vmax just below 0.1: step 2 is skipped, so the dead points keep the
        // voltage of their cleaned left neighbour, 0.05 all along.
        _ramp_iv in = zeroCurve();
        in.tensione[0] = 0.05f;
        in.tensione[1] = std::nextafter(0.1f, 0.0f);
        _ramp_iv out;
        smoothing_senza_rimbalzi(&in, &out, MEA_PANEL);
        const std::vector<float> w(10, 0.05f);
        COMPARE_BITS(out.tensione[0], sum10(w.data(), 0) / 10.0f);
        COMPARE_BITS(out.tensione[300], sum10(w.data(), 0) / 10.0f);
    }
    void selectorOneKeepsBounces()
    {
        _ramp_iv in = rampCurve();
        in.corrente[200] = 0.0f; // a bounce in the middle
        _ramp_iv viaSelector, direct;
        smoothing(&in, &viaSelector, MEA_PANEL, 1);
        smoothing_solo_curva(&in, &direct, MEA_PANEL);
        QVERIFY(std::memcmp(&viaSelector, &direct, sizeof direct) == 0);
    }
    void everyOtherSelectorRemovesBounces()
    {
        _ramp_iv in = rampCurve();
        in.corrente[200] = 0.0f;
        _ramp_iv direct;
        smoothing_senza_rimbalzi(&in, &direct, MEA_PANEL);
        for (int selector : {0, 2, -1, 7}) {
            _ramp_iv out;
            smoothing(&in, &out, MEA_PANEL, selector);
            QVERIFY(std::memcmp(&out, &direct, sizeof direct) == 0);
        }
    }
    void bounceTakesNeighbourInSoloCurva()
    {
        _ramp_iv in = rampCurve();
        in.corrente[200] = 0.05f;
        in.tensione[200] = 30.0f;
        _ramp_iv work = in;
        work.corrente[200] = in.corrente[199];
        work.tensione[200] = in.tensione[199];
        _ramp_iv out;
        smoothing_solo_curva(&in, &out, MEA_PANEL);
        for (int n = 191; n <= 200; n++) {
            COMPARE_BITS(out.corrente[n], sum10(work.corrente, n) / 10.0f);
            COMPARE_BITS(out.tensione[n], sum10(work.tensione, n) / 10.0f);
        }
    }
    void bounceIsPulledToVmaxInSenzaRimbalzi()
    {
        _ramp_iv in = rampCurve();
        in.corrente[200] = 0.05f;
        _ramp_iv work = in;
        work.corrente[200] = 0.0f;
        work.tensione[200] = in.tensione[1]; // vmax: the highest voltage of 1 .. 511
        _ramp_iv out;
        smoothing_senza_rimbalzi(&in, &out, MEA_PANEL);
        for (int n = 191; n <= 200; n++) {
            COMPARE_BITS(out.corrente[n], sum10(work.corrente, n) / 10.0f);
            COMPARE_BITS(out.tensione[n], sum10(work.tensione, n) / 10.0f);
        }
    }
    void vmaxIsTakenBeforeThePointIsCleaned()
    {
        // A dead point carrying the highest voltage still sets vmax.
        _ramp_iv in = rampCurve();
        in.corrente[300] = 0.0f;
        in.tensione[300] = 80.0f;
        _ramp_iv out;
        smoothing_senza_rimbalzi(&in, &out, MEA_PANEL);
        // Point 300 now carries 80 V in the window of point 291.
        float w[10];
        for (int i = 0; i < 10; i++)
            w[i] = in.tensione[291 + i];
        w[9] = 80.0f;
        COMPARE_BITS(out.tensione[291], sum10(w, 0) / 10.0f);
    }
    void deadPointZeroIsPulledToVmax()
    {
        // Point 0 is never cleaned, but step 2 covers it: below 0.1 A it
        // takes vmax, which then enters the average of point 0.
        _ramp_iv in = rampCurve();
        in.corrente[0] = 0.0f;
        in.tensione[0] = 3.0f;
        _ramp_iv out;
        smoothing_senza_rimbalzi(&in, &out, MEA_PANEL);
        float w[10];
        for (int i = 0; i < 10; i++)
            w[i] = in.tensione[i];
        w[0] = in.tensione[1]; // vmax over points 1 .. 511
        COMPARE_BITS(out.tensione[0], sum10(w, 0) / 10.0f);
    }
    void negativeVoltageAtPointZeroStaysInTheWindow()
    {
        _ramp_iv in = rampCurve();
        in.tensione[0] = -4.0f;
        for (int selector : {0, 1}) {
            _ramp_iv out;
            smoothing(&in, &out, MEA_PANEL, selector);
            COMPARE_BITS(out.tensione[0], sum10(in.tensione, 0) / 10.0f);
        }
    }
    void negativeVoltageMakesAPointDead()
    {
        _ramp_iv in = rampCurve();
        in.tensione[100] = -1.0f;
        _ramp_iv out;
        smoothing_solo_curva(&in, &out, MEA_PANEL);
        _ramp_iv work = in;
        work.corrente[100] = in.corrente[99];
        work.tensione[100] = in.tensione[99];
        COMPARE_BITS(out.corrente[95], sum10(work.corrente, 95) / 10.0f);
        COMPARE_BITS(out.tensione[95], sum10(work.tensione, 95) / 10.0f);
    }
    void currentOfPointOneIsTheThreshold()
    {
        // 0.1f is above 0.1: alive. The float just below it is dead.
        _ramp_iv in = rampCurve();
        in.corrente[50] = 0.1f;
        in.corrente[60] = std::nextafter(0.1f, 0.0f);
        _ramp_iv work = in;
        work.corrente[60] = in.corrente[59];
        work.tensione[60] = in.tensione[59];
        _ramp_iv out;
        smoothing_solo_curva(&in, &out, MEA_PANEL);
        COMPARE_BITS(out.corrente[50], sum10(work.corrente, 50) / 10.0f);
        COMPARE_BITS(out.tensione[55], sum10(work.tensione, 55) / 10.0f);
    }
    void soloCurvaLeavesLastTenPointsRaw()
    {
        _ramp_iv in = rampCurve();
        in.corrente[505] = 0.0f; // dead: cleaned in the window of 501, raw beyond
        _ramp_iv work = in;
        work.corrente[505] = in.corrente[504];
        work.tensione[505] = in.tensione[504];
        _ramp_iv out;
        smoothing_solo_curva(&in, &out, MEA_PANEL);
        COMPARE_BITS(out.corrente[501], sum10(work.corrente, 501) / 10.0f);
        for (int k = 502; k < 511; k++) {
            COMPARE_BITS(out.corrente[k], in.corrente[k]);
            COMPARE_BITS(out.tensione[k], in.tensione[k]);
        }
    }
    void senzaRimbalziLeavesLastTwentyPointsRaw()
    {
        _ramp_iv in = rampCurve();
        in.corrente[495] = 0.0f; // dead: cleaned in the window of 491, raw beyond
        _ramp_iv work = in;
        work.corrente[495] = 0.0f;
        _ramp_iv out;
        smoothing_senza_rimbalzi(&in, &out, MEA_PANEL);
        COMPARE_BITS(out.corrente[491], sum10(work.corrente, 491) / 10.0f);
        for (int k = 492; k < 511; k++) {
            COMPARE_BITS(out.corrente[k], in.corrente[k]);
            COMPARE_BITS(out.tensione[k], in.tensione[k]);
        }
    }
    void averageSumsTenSamplesAscendingInSingle()
    {
        // 2^24 + 1 is 2^24 in single precision: summed from the left the
        // nine ones are lost one by one.
        _ramp_iv in = rampCurve();
        in.corrente[100] = 16777216.0f;
        for (int i = 101; i < 110; i++)
            in.corrente[i] = 1.0f;
        _ramp_iv out;
        smoothing_solo_curva(&in, &out, MEA_PANEL);
        COMPARE_BITS(out.corrente[100], 16777216.0f / 10.0f);
    }
    void averageIsSummedAfreshForEachPoint()
    {
        // A running sum would carry the lost ones of point 100 into point 101.
        _ramp_iv in = rampCurve();
        in.corrente[100] = 16777216.0f;
        for (int i = 101; i < 111; i++)
            in.corrente[i] = 1.0f;
        _ramp_iv out;
        smoothing_solo_curva(&in, &out, MEA_PANEL);
        COMPARE_BITS(out.corrente[101], 1.0f);
    }
    void averageDividesAsDoubleWould()
    {
        // The sum is divided by 10.0: in double and narrowed, which is the
        // single division for every float sum.
        quint32 state = 12345;
        for (int t = 0; t < 20000; t++) {
            _ramp_iv in;
            for (int k = 0; k < RAMP_POINTS; k++) {
                state = state * 1664525u + 1013904223u;
                in.corrente[k] = 0.1f + static_cast<float>(state >> 8) / 1048576.0f;
                in.tensione[k] = static_cast<float>(state & 0xFFFF) / 97.0f;
            }
            _ramp_iv out;
            smoothing_solo_curva(&in, &out, MEA_PANEL);
            const int n = 1 + t % 501; // point 0 is pinned
            COMPARE_BITS(out.corrente[n], static_cast<float>(sum10(in.corrente, n) / 10.0));
            COMPARE_BITS(out.tensione[n], static_cast<float>(sum10(in.tensione, n) / 10.0));
        }
    }
    void panelEndPointsAreOpenAndShortCircuit()
    {
        const _ramp_iv in = rampCurve();
        for (int selector : {0, 1}) {
            _ramp_iv out;
            smoothing(&in, &out, MEA_PANEL, selector);
            COMPARE_BITS(out.corrente[0], 0.0f);
            COMPARE_BITS(out.tensione[511], 0.0f);
            COMPARE_BITS(out.corrente[511], out.corrente[510]);
            COMPARE_BITS(out.corrente[511], in.corrente[510]);
        }
    }
    void otherTypesPinTheOtherAxes()
    {
        const _ramp_iv in = rampCurve();
        for (_meaType type : {MEA_STRING, static_cast<_meaType>(5)}) {
            _ramp_iv out;
            smoothing_solo_curva(&in, &out, type);
            COMPARE_BITS(out.tensione[0], 0.0f);
            COMPARE_BITS(out.corrente[511], 0.0f);
            COMPARE_BITS(out.tensione[511], in.tensione[510]);
        }
    }
    void unknownTypeCleansAsAModule()
    {
        // Any type but MEA_STRING cleans as a module; only the end points differ.
        _ramp_iv in = rampCurve();
        in.corrente[200] = 0.0f;
        _ramp_iv panel, other;
        smoothing_senza_rimbalzi(&in, &panel, MEA_PANEL);
        smoothing_senza_rimbalzi(&in, &other, static_cast<_meaType>(5));
        for (int k = 1; k < 511; k++) {
            COMPARE_BITS(other.corrente[k], panel.corrente[k]);
            COMPARE_BITS(other.tensione[k], panel.tensione[k]);
        }
    }
    void stringTypeCutsEverythingAfterTheFirstDeadPoint()
    {
        _ramp_iv in = rampCurve();
        in.corrente[300] = 0.0f;
        _ramp_iv out;
        smoothing_senza_rimbalzi(&in, &out, MEA_STRING);
        // Point 300 stays as it is; 301 .. 511 carry 0 A and voltage[299].
        _ramp_iv work = in;
        for (int j = 301; j < RAMP_POINTS; j++) {
            work.corrente[j] = 0.0f;
            work.tensione[j] = in.tensione[299];
        }
        COMPARE_BITS(out.corrente[250], sum10(work.corrente, 250) / 10.0f);
        COMPARE_BITS(out.tensione[295], sum10(work.tensione, 295) / 10.0f);
        // The second cut on the target: the first average below 0.1 A keeps
        // its voltage, and everything after it is cut to that voltage.
        int first = -1;
        for (int k = 0; k < RAMP_POINTS && first < 0; k++) {
            if (sum10(work.corrente, k) / 10.0f < 0.1f && k <= 491)
                first = k;
        }
        QVERIFY(first > 0);
        const float kept = sum10(work.tensione, first) / 10.0f;
        COMPARE_BITS(out.tensione[first], kept);
        for (int k = first + 1; k < 511; k++) {
            COMPARE_BITS(out.corrente[k], 0.0f);
            COMPARE_BITS(out.tensione[k], kept);
        }
        COMPARE_BITS(out.tensione[511], kept);
        COMPARE_BITS(out.corrente[511], 0.0f);
        COMPARE_BITS(out.tensione[0], 0.0f);
    }
    void sourceAndTargetMayBeTheSameCurve()
    {
        _ramp_iv in = rampCurve();
        in.corrente[200] = 0.0f;
        _ramp_iv separate;
        smoothing(&in, &separate, MEA_PANEL, 0);
        smoothing(&in, &in, MEA_PANEL, 0);
        QVERIFY(std::memcmp(&in, &separate, sizeof in) == 0);
    }
};

QTEST_GUILESS_MAIN(TestSmoothing)
#include "tst_smoothing.moc"
