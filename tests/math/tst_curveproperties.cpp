// Properties of the measuring chain over thousands of random measures, from
// the board's counts to the verdict, run as the module and string screens run
// it.
//
// The generator keeps to the conditions under which the arithmetic is meant
// to give values (outside them it gives infinities or NaN by design):
//  - both irradiance readings are at least 1 W/m2 (up to 1500);
//  - the reference module has kvoc not 0 (-0.2 to -0.5 %/C), pmax above 0,
//    voc above 0;
//  - the curve has at least one point of positive power, and the current at
//    maximum power is at least 0.1 A;
//  - the board's short-circuit current is at least 0.5 A;
//  - as on the screens, the translation runs only when the cell temperature is
//    within -20 .. 100 degrees C.
// Everything else is free: bounces, dead points, negative voltages, counts off
// the calibration, every probe mode, degradation on and off. The seed is fixed.

#include "math/compensazione.h"
#include "math/curvechain.h"
#include "math/dpmax.h"
#include "math/floatbits.h"
#include "math/rndf.h"
#include "math/scale.h"
#include "math/smoothing.h"
#include "math/temperatura.h"
#include "math/utility.h"

#include "data/datasetting.h"

#include <QtTest>

#include <cmath>
#include <cstdint>
#include <random>

namespace
{

const int kMeasures = 3000;
const std::uint32_t kSeed = 510u;
const char kChainDigest[] = "333e15edccde9f7b3c230be00fd4a2b475db8747e2a646df5defd31fbe225495";

class Random
{
public:
    explicit Random(std::uint32_t seed) : m_engine(seed) {}
    // Uniform in [lo, hi), from 24 bits of the engine (the same on every
    // standard library).
    double uniform(double lo, double hi)
    {
        return lo + (hi - lo) * static_cast<double>(m_engine() >> 8) / 16777216.0;
    }
    int below(int n) { return static_cast<int>(m_engine() % static_cast<std::uint32_t>(n)); }
    bool chance(double p) { return uniform(0, 1) < p; }

private:
    std::mt19937 m_engine;
};

struct Sample {
    _configParam config;
    _raw_ramp_iv raw;
    _info_last info;
    _panelFeature reference;
    _probeTemp probe;
    int npan;
    float temperature;
    float before, after; // irradiance readings
    bool degradation;
    float years, percent;
};

int countOf(double value, float gain, double offset)
{
    return static_cast<int>(std::lround(value / gain + offset));
}

Sample makeSample(Random& r)
{
    Sample s;
    defaultConfig(&s.config);
    s.config.adci1 = static_cast<float>(r.uniform(0.004, 0.008));
    s.config.adci1offset = r.below(40) - 20;
    s.config.adcv1 = static_cast<float>(r.uniform(0.2, 0.35));
    s.config.adcv1offset = static_cast<float>(r.uniform(-0.5, 0.5));

    s.npan = r.chance(0.5) ? 1 : 1 + r.below(20);
    const double isc = r.uniform(0.5, 15.0);
    const double voc = r.uniform(5.0, 60.0) * s.npan;
    const double knee = r.uniform(0.02, 0.12) * voc;

    // The board's 128 points from open circuit to short circuit.
    int ci[128], cv[128];
    for (int k = 0; k < 128; k++) {
        double v = voc * (1.0 - k / 127.0);
        double i = isc * (1.0 - std::exp((v - voc) / knee));
        i *= 1.0 + r.uniform(-0.01, 0.01);
        v *= 1.0 + r.uniform(-0.01, 0.01);
        if (k > 5 && k < 120 && r.chance(0.03))
            i = r.uniform(0.0, 0.1); // a bounce: the current collapses for a point
        if (r.chance(0.01))
            v = -r.uniform(0.0, 2.0); // a negative voltage
        ci[k] = countOf(i, s.config.adci1, s.config.adci1offset);
        cv[k] = countOf(v - s.config.adcv1offset, s.config.adcv1, 0.0);
    }
    if (r.chance(0.2)) {
        // The board stops early: the last points are dead.
        const int from = 100 + r.below(28);
        for (int k = from; k < 128; k++)
            ci[k] = cv[k] = 0;
    }
    // Spread over the 512 slots as the board's reply is.
    for (int k = 0; k < 128; k++) {
        s.raw.corrente[2 * k] = ci[k];
        s.raw.tensione[2 * k] = cv[k];
    }
    for (int k = 256; k < RAMP_POINTS; k++) {
        s.raw.corrente[k] = ci[127];
        s.raw.tensione[k] = cv[127];
    }
    for (int k = 1; k <= 509; k += 2) {
        s.raw.corrente[k] = (s.raw.corrente[k - 1] + s.raw.corrente[k + 1]) / 2;
        s.raw.tensione[k] = (s.raw.tensione[k - 1] + s.raw.tensione[k + 1]) / 2;
    }

    s.info = {};
    s.info.icc =
        countOf(isc * (1.0 + r.uniform(-0.03, 0.03)), s.config.adci1, s.config.adci1offset);
    s.info.voc =
        countOf(voc * (1.0 + r.uniform(-0.03, 0.03)) - s.config.adcv1offset, s.config.adcv1, 0.0);

    _panelFeature& f = s.reference;
    f.voc = static_cast<float>(voc / s.npan * r.uniform(0.9, 1.1));
    f.isc = static_cast<float>(isc);
    f.pmax = static_cast<float>(r.uniform(1.0, 500.0));
    f.impp = f.isc * 0.93f;
    f.vmpp = f.voc * 0.8f;
    f.type = r.below(6);
    f.noct = static_cast<float>(r.uniform(40.0, 50.0));
    f.kisc = static_cast<float>(r.uniform(0.0, 0.1));
    f.kvoc = static_cast<float>(r.uniform(-0.5, -0.2));
    f.kpmax = static_cast<float>(r.uniform(-0.6, -0.2));
    f.tollp = static_cast<float>(r.uniform(-5.0, 5.0));
    f.tollm = static_cast<float>(r.uniform(-5.0, 5.0));

    s.probe = static_cast<_probeTemp>(r.below(5)); // 4: an unknown mode
    s.temperature = static_cast<float>(r.uniform(-25.0, 105.0));
    s.before = static_cast<float>(r.uniform(1.0, 1500.0));
    s.after = std::max(1.0f, static_cast<float>(s.before * r.uniform(0.95, 1.05)));
    s.degradation = r.chance(0.5);
    s.years = static_cast<float>(r.uniform(0.0, 25.0));
    s.percent = static_cast<float>(r.uniform(0.0, 1.0));
    return s;
}

struct Run {
    float isc, voc, pmax, vmpp, impp;
    _ramp_iv exact, rounded, smooth, preScale;
    bool deltaExceeded;
    float cell;
    bool translated;
    _ramp_iv stcRamp, stcSmooth, stcPreScale;
    CurveFigures stc;
    float vScale, iScale;
    Verdict verdict;
};

// The chain of one measure, in the order the screens call it.
void runChain(const Sample& s, Run* out)
{
    measuredEndPoints(&s.info, &s.config, &out->isc, &out->voc);
    out->vmpp = 0;
    out->impp = 0;
    convertRamp(&s.raw, &s.config, &out->exact, &out->rounded, &out->pmax, &out->vmpp, &out->impp);
    smoothing(&out->rounded, &out->preScale, MEA_PANEL, 0);
    smoothAndScale(&out->rounded, &out->smooth, out->isc, out->voc);
    out->deltaExceeded = irradianceDeltaExceeded(s.before, s.after);
    out->cell =
        calcola_temperatura(s.probe, s.npan, s.temperature, s.before, out->voc, &s.reference);
    out->translated = !temperatureOutOfLimits(out->cell);
    if (!out->translated)
        return;
    const CurveFigures measured = {out->isc, out->voc, out->impp, out->vmpp, out->pmax};
    translateToStc(&out->rounded, &measured, s.before, out->cell, &s.reference, &out->stcRamp,
                   &out->stcSmooth, &out->stc);
    smoothing(&out->stcRamp, &out->stcPreScale, MEA_PANEL, 0);
    float vmax, imax;
    curveMaxima(&out->stcSmooth, &vmax, &imax);
    out->vScale = panelVScale(vmax);
    out->iScale = panelIScale(imax);
    const float d = degradationAllowance(s.degradation, s.years, s.percent);
    out->verdict = s.npan == 1 ? panelVerdict(out->stc.pmax, &s.reference, d)
                               : stringVerdict(s.npan, out->stc.pmax, &s.reference, d);
}

bool curveFinite(const _ramp_iv& c)
{
    for (int k = 0; k < RAMP_POINTS; k++) {
        if (!std::isfinite(c.corrente[k]) || !std::isfinite(c.tensione[k]))
            return false;
    }
    return true;
}

template <typename Check> void forEachMeasure(Check check)
{
    Random r(kSeed);
    for (int m = 0; m < kMeasures; m++) {
        const Sample s = makeSample(r);
        Run run;
        runChain(s, &run);
        check(m, s, run);
        if (QTest::currentTestFailed())
            return;
    }
}

void addFloat(QCryptographicHash& hash, float value)
{
    const std::uint32_t bits = floatBits(value);
    const char bytes[4] = {char(bits & 0xff), char((bits >> 8) & 0xff), char((bits >> 16) & 0xff),
                           char(bits >> 24)};
    hash.addData(QByteArrayView(bytes, 4));
}

void addCurve(QCryptographicHash& hash, const _ramp_iv& c)
{
    for (int k = 0; k < RAMP_POINTS; k++) {
        addFloat(hash, c.corrente[k]);
        addFloat(hash, c.tensione[k]);
    }
}

// Every value the chain gives, bit for bit, in one SHA-256.
QByteArray chainDigest()
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    forEachMeasure([&](int, const Sample&, const Run& run) {
        for (float v : {run.isc, run.voc, run.pmax, run.vmpp, run.impp, run.cell})
            addFloat(hash, v);
        for (const _ramp_iv* c : {&run.exact, &run.rounded, &run.smooth, &run.preScale})
            addCurve(hash, *c);
        hash.addData(QByteArrayView(run.deltaExceeded ? "d" : "-"));
        if (!run.translated)
            return;
        for (const _ramp_iv* c : {&run.stcRamp, &run.stcSmooth, &run.stcPreScale})
            addCurve(hash, *c);
        for (float v : {run.stc.isc, run.stc.voc, run.stc.impp, run.stc.vmpp, run.stc.pmax,
                        run.vScale, run.iScale, run.verdict.deltaPmax})
            addFloat(hash, v);
        hash.addData(QByteArrayView(run.verdict.result ? "1" : "0"));
    });
    return hash.result().toHex();
}

} // namespace

class TestCurveProperties : public QObject
{
    Q_OBJECT
private slots:
    void generatorMeetsItsPreconditions()
    {
        int translated = 0, perProbe[5] = {0, 0, 0, 0, 0}, strings = 0, withDegradation = 0;
        forEachMeasure([&](int m, const Sample& s, const Run& run) {
            QVERIFY2(s.before >= 1.0f && s.after >= 1.0f, qPrintable(QString::number(m)));
            QVERIFY(s.reference.kvoc != 0.0f && s.reference.pmax > 0.0f);
            QVERIFY2(run.pmax > 0.0f && run.impp >= 0.1f, qPrintable(QString::number(m)));
            QVERIFY2(run.isc >= 0.5f, qPrintable(QString::number(m)));
            translated += run.translated;
            perProbe[s.probe]++;
            strings += s.npan > 1;
            withDegradation += run.translated && s.degradation;
        });
        qInfo("%d measures: %d translated, %d strings, %d with degradation; probes %d %d %d %d %d",
              kMeasures, translated, strings, withDegradation, perProbe[0], perProbe[1],
              perProbe[2], perProbe[3], perProbe[4]);
        // The sample covers what it is meant to cover.
        QVERIFY(translated > kMeasures / 2);
        for (int n : perProbe)
            QVERIFY(n > kMeasures / 10);
        QVERIFY(strings > kMeasures / 4);
        QVERIFY(withDegradation > kMeasures / 10);
    }
    void everyValueStaysFinite()
    {
        forEachMeasure([](int m, const Sample&, const Run& run) {
            const QByteArray at = QByteArray::number(m);
            QVERIFY2(std::isfinite(run.isc) && std::isfinite(run.voc), at);
            QVERIFY2(std::isfinite(run.pmax) && std::isfinite(run.vmpp) && std::isfinite(run.impp),
                     at);
            QVERIFY2(curveFinite(run.exact) && curveFinite(run.rounded) && curveFinite(run.smooth),
                     at);
            QVERIFY2(std::isfinite(run.cell), at);
            if (!run.translated)
                return;
            QVERIFY2(curveFinite(run.stcRamp) && curveFinite(run.stcSmooth), at);
            QVERIFY2(std::isfinite(run.stc.isc) && std::isfinite(run.stc.voc) &&
                         std::isfinite(run.stc.impp) && std::isfinite(run.stc.vmpp) &&
                         std::isfinite(run.stc.pmax),
                     at);
            QVERIFY2(std::isfinite(run.verdict.deltaPmax), at);
            QVERIFY2(run.verdict.result == 0 || run.verdict.result == 1, at);
            QVERIFY2(run.vScale >= 30.0f && run.vScale <= 1500.0f, at);
        });
    }
    void endPointsAreOpenAndShortCircuit()
    {
        forEachMeasure([](int m, const Sample&, const Run& run) {
            const QByteArray at = QByteArray::number(m);
            QVERIFY2(floatBits(run.smooth.corrente[0]) == 0, at);
            QVERIFY2(floatBits(run.smooth.tensione[511]) == 0, at);
            if (!run.translated)
                return;
            QVERIFY2(floatBits(run.stcSmooth.corrente[0]) == 0, at);
            QVERIFY2(floatBits(run.stcSmooth.tensione[511]) == 0, at);
        });
    }
    void translatedEndPointsEqualStcFiguresWithinOneUlp()
    {
        int checked = 0;
        forEachMeasure([&](int m, const Sample&, const Run& run) {
            if (!run.translated)
                return;
            const QByteArray at = QByteArray::number(m);
            if (run.stcPreScale.corrente[511] > 0) {
                QVERIFY2(ulpDistance(run.stcSmooth.corrente[511], run.stc.isc) <= 1, at);
                checked++;
            }
            if (run.stcPreScale.tensione[0] > 0)
                QVERIFY2(ulpDistance(run.stcSmooth.tensione[0], run.stc.voc) <= 1, at);
        });
        QVERIFY(checked > kMeasures / 2);
    }
    void measuredEndPointsEqualMeasuredFiguresWithinOneUlp()
    {
        int checked = 0;
        forEachMeasure([&](int m, const Sample&, const Run& run) {
            const QByteArray at = QByteArray::number(m);
            if (run.preScale.corrente[511] > 0) {
                QVERIFY2(ulpDistance(run.smooth.corrente[511], run.isc) <= 1, at);
                checked++;
            }
            if (run.preScale.tensione[0] > 0)
                QVERIFY2(ulpDistance(run.smooth.tensione[0], run.voc) <= 1, at);
        });
        QVERIFY(checked > kMeasures / 2);
    }
    // The instrument's processor has no floating-point unit: its float and
    // double arithmetic is done in software, and must give exactly the bits
    // of the development machine. The digest was taken on x86-64 with the
    // host's libm kept off its FMA path (GLIBC_TUNABLES, set for this room's
    // tests), the path armel's libm takes for the one double function of
    // the chain, std::log.
    void chainGivesTheSameBitsOnEveryProcessor()
    {
        QCOMPARE(chainDigest(), QByteArray(kChainDigest));
    }
    void translatedPointsEqualPointFunctions()
    {
        forEachMeasure([](int m, const Sample& s, const Run& run) {
            if (!run.translated || m % 10 != 0)
                return;
            for (int k = 0; k < RAMP_POINTS; k++) {
                const float i = compensazione_pto_corrente(run.rounded.corrente[k], run.isc,
                                                           s.before, run.cell, &s.reference);
                const float v = compensazione_pto_tensione(run.rounded.tensione[k], run.voc,
                                                           run.rounded.corrente[k], i, s.before,
                                                           run.cell, &s.reference);
                QVERIFY(floatBits(run.stcRamp.corrente[k]) == floatBits(i));
                QVERIFY(floatBits(run.stcRamp.tensione[k]) == floatBits(v));
            }
        });
    }
};

QTEST_GUILESS_MAIN(TestCurveProperties)
#include "tst_curveproperties.moc"
