#include "curvediagnosis.h"

#include "sheetmodel.h"

#include <algorithm>
#include <cmath>

using namespace thresholds;

namespace
{

double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : 0.5 * (values[n / 2 - 1] + values[n / 2]);
}

} // namespace

std::vector<double> CurveDiagnosis::normalisedSlopes(const MeasuredCurve& curve)
{
    const std::vector<CurvePoint>& p = curve.points();
    std::vector<double> slopes(p.size(), 0.0);
    const double scale = curve.voc() / curve.isc();
    for (size_t k = 0; k < p.size(); k++) {
        const size_t from = k >= size_t(slopeHalfWindow) ? k - slopeHalfWindow : 0;
        const size_t to = std::min(p.size() - 1, k + slopeHalfWindow);
        std::vector<double> v, i;
        for (size_t j = from; j <= to; j++) {
            v.push_back(p[j].v);
            i.push_back(p[j].i);
        }
        const LineFit line = MeasuredCurve::fit(v, i);
        slopes[k] = line.valid ? -line.slope * scale : 0.0;
    }
    return slopes;
}

std::vector<std::pair<size_t, size_t>> CurveDiagnosis::plateaus(const MeasuredCurve& curve)
{
    std::vector<std::pair<size_t, size_t>> runs;
    const std::vector<CurvePoint>& p = curve.points();
    const std::vector<double> slopes = normalisedSlopes(curve);
    size_t k = 0;
    while (k < p.size()) {
        if (!(slopes[k] < plateauSlope)) {
            k++;
            continue;
        }
        size_t end = k;
        while (end + 1 < p.size() && slopes[end + 1] < plateauSlope)
            end++;
        if (p[end].v - p[k].v >= plateauMinLength * curve.voc())
            runs.push_back({k, end});
        k = end + 1;
    }
    return runs;
}

bool CurveDiagnosis::has(Finding::Kind kind) const
{
    return first(kind) != nullptr;
}

const Finding* CurveDiagnosis::first(Finding::Kind kind) const
{
    for (const Finding& f : findings)
        if (f.kind == kind)
            return &f;
    return nullptr;
}

CurveDiagnosis::CurveDiagnosis(const _measure& record, int substringsPerModule)
    : substrings(substringsPerModule > 0 ? substringsPerModule : thresholds::substringsPerModule)
{
    const MeasuredCurve curve(record);
    const std::vector<CurvePoint>& p = curve.points();
    const double isc = curve.isc(), voc = curve.voc();
    const int n = std::max(1, record.mnpan);
    if (!(isc > 0 && voc > 0) || p.size() < 8)
        return;

    // Steps: each plateau below the one before it.
    const auto runs = plateaus(curve);
    std::vector<double> levels;
    for (const auto& [from, to] : runs) {
        std::vector<double> i;
        for (size_t k = from; k <= to; k++)
            i.push_back(p[k].i);
        levels.push_back(median(i));
    }
    size_t mainEnd = runs.empty() ? p.size() - 1 : runs.front().second;
    for (size_t r = 1; r < runs.size(); r++) {
        if (levels[r] > levels[r - 1] - stepMinDrop * isc)
            continue;
        Finding step;
        step.kind = Finding::Step;
        step.measured = levels[r] / isc;
        step.voltage = 0.5 * (p[runs[r - 1].second].v + p[runs[r].first].v);
        findings.push_back(step);
    }
    const bool steps = !findings.empty();

    reference = record.mcomp == 1;
    vocJudged = record.mprobe != PROBE_AUTO;
    if (!reference)
        return;
    const double g = record.mirr, t = record.mtemp;
    const SheetModel sheet(record.ref, n, g, t);
    if (!sheet.valid())
        return;

    // Voc short by whole substrings: a shorted bypass diode.
    if (vocJudged) {
        const double substringVoc = sheet.voc() / (n * substrings);
        const double missing = sheet.voc() - voc;
        const double count = missing / substringVoc;
        if (count >= vocDeficitMinSubstrings &&
            std::fabs(count - std::round(count)) <= vocDeficitWholeTolerance) {
            Finding f;
            f.kind = Finding::VocDeficit;
            f.measured = count;
            f.expected = sheet.voc();
            f.voltage = missing;
            findings.push_back(f);
        }
    }

    // Low current with the normal shape.
    if (!steps && isc < lowCurrentRatio * sheet.isc()) {
        Finding f;
        f.kind = Finding::LowCurrent;
        f.measured = isc / sheet.isc();
        f.expected = sheet.isc();
        findings.push_back(f);
    }

    // The slopes, against the sheet's curve at the irradiance that gives the
    // measured Isc, over the same points.
    const SheetModel shape(record.ref, n, g * isc / sheet.isc(), t);
    if (!shape.valid())
        return;
    {
        std::vector<double> v, im, is;
        for (size_t k = 0; k <= mainEnd && k < p.size(); k++) {
            if (p[k].v > iscSlopeRegion * voc)
                break;
            v.push_back(p[k].v);
            im.push_back(p[k].i);
            is.push_back(shape.currentAt(p[k].v));
        }
        const LineFit m = MeasuredCurve::fit(v, im), s = MeasuredCurve::fit(v, is);
        if (m.valid && s.valid) {
            const double excess = (s.slope - m.slope) * voc / isc;
            if (excess >= iscSlopeExcess) {
                Finding f;
                f.kind = Finding::SteepIscSlope;
                f.measured = -m.slope * voc / isc;
                f.expected = -s.slope * voc / isc;
                f.ohmPerModule = 1.0 / (s.slope - m.slope) / n;
                findings.push_back(f);
            }
        }
    }
    if (!steps) {
        std::vector<double> i, vm, vs;
        for (const CurvePoint& q : p) {
            if (q.i > vocSlopeRegion * isc || q.i <= 0)
                continue;
            i.push_back(q.i);
            vm.push_back(q.v);
            vs.push_back(shape.voltageAt(q.i));
        }
        const LineFit m = MeasuredCurve::fit(i, vm), s = MeasuredCurve::fit(i, vs);
        if (m.valid && s.valid) {
            const double excess = (s.slope - m.slope) * isc / voc;
            if (excess >= vocResistanceExcess) {
                Finding f;
                f.kind = Finding::ShallowVocSlope;
                f.measured = -m.slope * isc / voc;
                f.expected = -s.slope * isc / voc;
                f.ohmPerModule = (s.slope - m.slope) / n;
                findings.push_back(f);
            }
        }
    }

    // A low fill factor only when nothing else explains it.
    const double ff = record.mpmax / (voc * isc) * 100.0;
    const double ffSheet = shape.fillFactor();
    if (findings.empty() && ff < ffSheet - fillFactorDeficit) {
        Finding f;
        f.kind = Finding::LowFillFactor;
        f.measured = ff;
        f.expected = ffSheet;
        findings.push_back(f);
    }
}
