#include "iec60891.h"

#include "sheetmodel.h"

#include <cmath>

namespace
{
constexpr double targetIrradiance = 1000.0;
constexpr double targetTemperature = 25.0;

// The largest power of a curve: a parabola fitted by least squares to the
// power of the points around the best one (the board's readings are noisy,
// two of them may share a voltage), its top when it lies among them.
double curvePmax(const std::vector<CurvePoint>& curve)
{
    constexpr size_t halfWindow = 4;
    size_t best = 0;
    for (size_t k = 0; k < curve.size(); k++)
        if (curve[k].v * curve[k].i > curve[best].v * curve[best].i)
            best = k;
    if (curve.empty())
        return 0.0;
    const double p = curve[best].v * curve[best].i;
    if (best < halfWindow || best + halfWindow >= curve.size())
        return p;
    const double x0 = curve[best].v;
    double s[5] = {0, 0, 0, 0, 0}, t[3] = {0, 0, 0};
    for (size_t k = best - halfWindow; k <= best + halfWindow; k++) {
        const double x = curve[k].v - x0, y = curve[k].v * curve[k].i;
        double xn = 1;
        for (int e = 0; e < 5; e++) {
            s[e] += xn;
            if (e < 3)
                t[e] += xn * y;
            xn *= x;
        }
    }
    // normal equations for y = c0 + c1 x + c2 x^2, by Cramer's rule
    const auto det = [](double a, double b, double c, double d, double e, double f, double g,
                        double h, double i) {
        return a * (e * i - f * h) - b * (d * i - f * g) + c * (d * h - e * g);
    };
    const double d = det(s[0], s[1], s[2], s[1], s[2], s[3], s[2], s[3], s[4]);
    if (!(std::fabs(d) > 0))
        return p;
    const double c0 = det(t[0], s[1], s[2], t[1], s[2], s[3], t[2], s[3], s[4]) / d;
    const double c1 = det(s[0], t[0], s[2], s[1], t[1], s[3], s[2], t[2], s[4]) / d;
    const double c2 = det(s[0], s[1], t[0], s[1], s[2], t[1], s[2], s[3], t[2]) / d;
    if (!(c2 < 0))
        return p;
    const double x = -c1 / (2 * c2);
    if (x < curve[best - halfWindow].v - x0 || x > curve[best + halfWindow].v - x0)
        return p;
    return c0 + c1 * x + c2 * x * x;
}
} // namespace

bool Iec60891::fitSingleDiode(const MeasuredCurve& curve, double* a, double* rs)
{
    const double isc = curve.isc(), voc = curve.voc();
    if (!(isc > 0 && voc > 0))
        return false;
    // V - Voc = a x - Rs I with x = ln(1 - I/Isc)
    double sxx = 0, sxi = 0, sii = 0, sxy = 0, siy = 0;
    int n = 0;
    for (const CurvePoint& p : curve.points()) {
        if (p.i < thresholds::rsFitLowCurrent * isc || p.i > thresholds::rsFitHighCurrent * isc)
            continue;
        const double x = std::log(1.0 - p.i / isc), y = p.v - voc;
        sxx += x * x;
        sxi += x * p.i;
        sii += p.i * p.i;
        sxy += x * y;
        siy += p.i * y;
        n++;
    }
    // normal equations of y = a x + r (-I)
    const double d = sxx * sii - sxi * sxi;
    if (n < 3 || !(std::fabs(d) > 0))
        return false;
    const double fa = (sxy * sii - siy * sxi) / d;
    const double fr = -(sxx * siy - sxi * sxy) / d;
    if (!(fa > 0) || !std::isfinite(fr))
        return false;
    *a = fa;
    *rs = std::max(0.0, fr);
    return true;
}

Iec60891::Iec60891(const _measure& record, double kappaPerModule)
{
    const _panelFeature& f = record.ref;
    const int n = record.mnpan;
    const double g1 = record.mirr, t1 = record.mtemp;
    if (record.mcomp != 1 || n < 1 || !(g1 > 0) || !(record.misc > 0) || !(record.mvoc > 0))
        return;
    const MeasuredCurve measured(record);
    alphaRel = f.kisc / 100.0;
    betaRel = f.kvoc / 100.0;
    alpha = alphaRel * f.isc;
    beta = betaRel * f.voc * n;
    kappa = kappaPerModule * n;
    rsFitted = fitSingleDiode(measured, &diodeA, &rs);
    if (!rsFitted) {
        const SheetModel sheet(f, n, g1, t1);
        rs = sheet.rs();
        diodeA = sheet.a();
    }
    const double isc1 = measured.isc(), voc1 = measured.voc();
    const double dt = targetTemperature - t1, ratio = targetIrradiance / g1;

    const auto first = [&](double v1, double i1) {
        const double i2 = i1 + isc1 * (ratio - 1.0) + alpha * dt;
        return CurvePoint{v1 - rs * (i2 - i1) - kappa * i2 * dt + beta * dt, i2};
    };
    const auto second = [&](double v1, double i1) {
        const double i2 = i1 * (1.0 + alphaRel * dt) * ratio;
        const double v2 = v1 + voc1 * (betaRel * dt + thresholds::procedure2A * std::log(ratio)) -
                          rs * (i2 - i1) - kappa * i2 * dt;
        return CurvePoint{v2, i2};
    };
    curve1.push_back(first(0.0, isc1));
    curve2.push_back(second(0.0, isc1));
    for (const CurvePoint& p : measured.points()) {
        curve1.push_back(first(p.v, p.i));
        curve2.push_back(second(p.v, p.i));
    }
    curve1.push_back(first(voc1, 0.0));
    curve2.push_back(second(voc1, 0.0));

    procedure1.isc = curve1.front().i;
    procedure2.isc = curve2.front().i;
    procedure2.voc = curve2.back().v;
    // Procedure 1 lifts every current, so its zero current lies beyond the
    // measured Voc: the fitted equation carries the measured curve there.
    const double i1AtZero = -(isc1 * (ratio - 1.0) + alpha * dt);
    const double arg = 1.0 - i1AtZero / isc1;
    const double v1AtZero = arg > 0 ? voc1 + diodeA * std::log(arg) - rs * i1AtZero : voc1;
    procedure1.voc = first(v1AtZero, i1AtZero).v;
    procedure1.pmax = curvePmax(curve1);
    procedure2.pmax = curvePmax(curve2);
    ok = procedure1.pmax > 0 && procedure2.pmax > 0;
}
