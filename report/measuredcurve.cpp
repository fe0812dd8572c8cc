#include "measuredcurve.h"

#include <algorithm>

MeasuredCurve::MeasuredCurve(const _measure& record) : iscA(record.misc), vocV(record.mvoc)
{
    for (int k = firstSlot; k <= lastSlot; k += slotStep)
        pts.push_back({record.ramp.tensione[k], record.ramp.corrente[k]});
    std::stable_sort(pts.begin(), pts.end(),
                     [](const CurvePoint& a, const CurvePoint& b) { return a.v < b.v; });
}

MeasuredCurve::MeasuredCurve(std::vector<CurvePoint> points, double isc, double voc)
    : pts(std::move(points)), iscA(isc), vocV(voc)
{
}

CurvePoint MeasuredCurve::maximumPowerPoint() const
{
    CurvePoint best;
    for (const CurvePoint& p : pts)
        if (p.v * p.i > best.v * best.i)
            best = p;
    return best;
}

LineFit MeasuredCurve::fit(const std::vector<double>& x, const std::vector<double>& y)
{
    LineFit line;
    const size_t n = std::min(x.size(), y.size());
    if (n < 2)
        return line;
    double sx = 0, sy = 0, sxx = 0, sxy = 0;
    for (size_t k = 0; k < n; k++) {
        sx += x[k];
        sy += y[k];
        sxx += x[k] * x[k];
        sxy += x[k] * y[k];
    }
    const double d = double(n) * sxx - sx * sx;
    if (!(d > 0))
        return line;
    line.slope = (double(n) * sxy - sx * sy) / d;
    line.offset = (sy - line.slope * sx) / double(n);
    line.valid = true;
    return line;
}
