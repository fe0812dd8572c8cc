#include "pvsource.h"

#include "util.h"

#include <algorithm>
#include <cmath>

namespace sim
{

namespace
{

const double kOverQ = 8.617333262e-5; // Boltzmann constant over the electron charge, V/K
const double tStcK = 298.15;
// Bypass diode (Schottky): saturation current and n kT/q.
const double bypassIs = 1.7e-6;
const double bypassA = 0.0257;
// Reverse breakdown of a cell, volts per cell, for substrings whose bypass
// diode has failed open.
const double breakdownPerCell = 12.0;

double expClamped(double x)
{
    return std::exp(std::min(x, 700.0));
}

// Cell branch current of one module (or substring) at junction voltage vj.
double branchCurrent(const DiodeModel& m, double vj)
{
    return m.iph - m.i0 * (expClamped(vj / m.a) - 1.0) - vj * m.gsh;
}

// Solves the three point equations (Isc, Voc, MPP), linear in Iph, I0, Gsh,
// for given a and Rs.
bool solvePoints(const DataSheet& s, double a, double rs, DiodeModel* m)
{
    double e1 = std::exp(s.isc * rs / a) - 1.0;
    double e2 = std::exp(s.voc / a) - 1.0;
    double e3 = std::exp((s.vmpp + s.impp * rs) / a) - 1.0;
    double A[3][4] = {{1.0, -e1, -s.isc * rs, s.isc},
                      {1.0, -e2, -s.voc, 0.0},
                      {1.0, -e3, -(s.vmpp + s.impp * rs), s.impp}};
    for (int col = 0; col < 3; col++) {
        int pivot = col;
        for (int r = col + 1; r < 3; r++)
            if (std::fabs(A[r][col]) > std::fabs(A[pivot][col]))
                pivot = r;
        if (std::fabs(A[pivot][col]) < 1e-300)
            return false;
        for (int k = 0; k < 4; k++)
            std::swap(A[col][k], A[pivot][k]);
        for (int r = 0; r < 3; r++) {
            if (r == col)
                continue;
            double f = A[r][col] / A[col][col];
            for (int k = 0; k < 4; k++)
                A[r][k] -= f * A[col][k];
        }
    }
    m->iph = A[0][3] / A[0][0];
    m->i0 = A[1][3] / A[1][1];
    m->gsh = A[2][3] / A[2][2];
    m->a = a;
    m->rs = rs;
    return std::isfinite(m->iph) && std::isfinite(m->i0) && std::isfinite(m->gsh) && m->i0 > 0 &&
           m->gsh >= 0 && m->iph > 0;
}

// dP/dV at the data sheet's maximum power point for the model.
double mppSlope(const DataSheet& s, const DiodeModel& m)
{
    double vj = s.vmpp + s.impp * m.rs;
    double d = m.i0 / m.a * std::exp(vj / m.a) + m.gsh;
    double didv = -d / (1.0 + m.rs * d);
    return s.impp + s.vmpp * didv;
}

// For a given a, the Rs that puts the power maximum at the data sheet's MPP.
bool fitForA(const DataSheet& s, double a, DiodeModel* out)
{
    double rsMax = (s.voc - s.vmpp) / s.impp;
    const int steps = 400;
    bool havePrev = false;
    double prevRs = 0, prevSlope = 0;
    for (int k = 0; k <= steps; k++) {
        double rs = rsMax * k / steps;
        DiodeModel m;
        if (!solvePoints(s, a, rs, &m)) {
            havePrev = false;
            continue;
        }
        double slope = mppSlope(s, m);
        if (havePrev && ((prevSlope <= 0) != (slope <= 0))) {
            double lo = prevRs, hi = rs;
            double slo = prevSlope;
            for (int i = 0; i < 80; i++) {
                double mid = 0.5 * (lo + hi);
                DiodeModel mm;
                if (!solvePoints(s, a, mid, &mm))
                    break;
                double sm = mppSlope(s, mm);
                if ((sm <= 0) == (slo <= 0)) {
                    lo = mid;
                    slo = sm;
                } else {
                    hi = mid;
                }
            }
            return solvePoints(s, a, 0.5 * (lo + hi), out);
        }
        havePrev = true;
        prevRs = rs;
        prevSlope = slope;
    }
    return false;
}

double modelKpmax(const DataSheet& s, const DiodeModel& m)
{
    double p25 = modulePmax(conditionsModel(m, s, 1000.0, 25.0));
    double p35 = modulePmax(conditionsModel(m, s, 1000.0, 35.0));
    return (p35 - p25) / p25 / 10.0 * 100.0;
}

} // namespace

DiodeModel conditionsModel(const DiodeModel& stc, const DataSheet& s, double irradiance,
                           double cellTemperature)
{
    double dT = cellTemperature - 25.0;
    double tK = cellTemperature + 273.15;
    double ki = s.kisc / 100.0 * s.isc;
    double kv = s.kvoc / 100.0 * s.voc;
    double gr = std::max(irradiance, 0.0) / 1000.0;
    DiodeModel m = stc;
    m.a = stc.a * tK / tStcK;
    m.iph = std::max(stc.iph + ki * dT, 0.0) * gr;
    double fNow = (s.isc + ki * dT) / (std::exp((s.voc + kv * dT) / m.a) - 1.0);
    double fStc = s.isc / (std::exp(s.voc / stc.a) - 1.0);
    m.i0 = stc.i0 * fNow / fStc;
    m.gsh = stc.gsh * gr;
    m.rs = std::max(0.0, stc.rs * (1.0 + stc.krs * dT));
    return m;
}

double moduleVoc(const DiodeModel& m)
{
    double lo = 0.0, hi = m.a * 690.0;
    for (int i = 0; i < 200; i++) {
        double mid = 0.5 * (lo + hi);
        if (branchCurrent(m, mid) > 0)
            lo = mid;
        else
            hi = mid;
    }
    return 0.5 * (lo + hi);
}

double modulePmax(const DiodeModel& m)
{
    double vjOc = moduleVoc(m);
    auto power = [&m](double vj) {
        double i = branchCurrent(m, vj);
        return i * (vj - i * m.rs);
    };
    // Golden section over the junction voltage, then the best of it.
    double lo = 0.0, hi = vjOc;
    const double r = 0.5 * (std::sqrt(5.0) - 1.0);
    double x1 = hi - r * (hi - lo), x2 = lo + r * (hi - lo);
    double f1 = power(x1), f2 = power(x2);
    for (int i = 0; i < 200 && hi - lo > 1e-12; i++) {
        if (f1 < f2) {
            lo = x1;
            x1 = x2;
            f1 = f2;
            x2 = lo + r * (hi - lo);
            f2 = power(x2);
        } else {
            hi = x2;
            x2 = x1;
            f2 = f1;
            x1 = hi - r * (hi - lo);
            f1 = power(x1);
        }
    }
    return power(0.5 * (lo + hi));
}

bool fitDataSheet(const DataSheet& s, DiodeModel* model, std::string* error)
{
    if (!(s.isc > 0 && s.voc > 0 && s.impp > 0 && s.vmpp > 0 && s.impp < s.isc && s.vmpp < s.voc &&
          s.cells > 0 && s.bypass > 0 && s.bypass <= s.cells)) {
        if (error)
            *error = "need 0 < impp < isc, 0 < vmpp < voc, cells >= bypass >= 1";
        return false;
    }
    // Candidate ideality factors n from 0.8 to 2.5 per cell.
    const double vtCell = kOverQ * tStcK;
    std::vector<std::pair<double, DiodeModel>> fits;
    for (int k = 0; k <= 68; k++) {
        double n = 0.8 + 0.025 * k;
        DiodeModel m;
        if (fitForA(s, n * s.cells * vtCell, &m))
            fits.emplace_back(n, m);
    }
    if (fits.empty()) {
        if (error)
            *error = "no single-diode model fits these figures";
        return false;
    }
    size_t best = 0;
    if (s.kpmax == 0.0) {
        // No coefficient of power: an ideality of 1.3.
        for (size_t i = 1; i < fits.size(); i++)
            if (std::fabs(fits[i].first - 1.3) < std::fabs(fits[best].first - 1.3))
                best = i;
        *model = fits[best].second;
        return true;
    }
    std::vector<double> err(fits.size());
    for (size_t i = 0; i < fits.size(); i++) {
        err[i] = std::fabs(modelKpmax(s, fits[i].second) - s.kpmax);
        if (err[i] < err[best])
            best = i;
    }
    // Refine between the neighbours of the best candidate.
    double lo = fits[best > 0 ? best - 1 : best].first;
    double hi = fits[best + 1 < fits.size() ? best + 1 : best].first;
    DiodeModel bestModel = fits[best].second;
    double bestErr = err[best];
    for (int i = 0; i <= 40; i++) {
        double n = lo + (hi - lo) * i / 40.0;
        DiodeModel m;
        if (!fitForA(s, n * s.cells * vtCell, &m))
            continue;
        double e = std::fabs(modelKpmax(s, m) - s.kpmax);
        if (e < bestErr) {
            bestErr = e;
            bestModel = m;
        }
    }
    // What the ideality leaves over goes into the temperature coefficient of
    // the series resistance (of the order of copper's 0.4 % per degree).
    if (bestErr > 1e-4) {
        double lo = -0.02, hi = 0.1;
        DiodeModel m = bestModel;
        m.krs = lo;
        double flo = modelKpmax(s, m) - s.kpmax;
        m.krs = hi;
        double fhi = modelKpmax(s, m) - s.kpmax;
        if ((flo > 0) != (fhi > 0)) {
            for (int i = 0; i < 60; i++) {
                m.krs = 0.5 * (lo + hi);
                double f = modelKpmax(s, m) - s.kpmax;
                if ((f > 0) == (flo > 0))
                    lo = m.krs;
                else
                    hi = m.krs;
            }
            m.krs = 0.5 * (lo + hi);
        } else {
            m.krs = std::fabs(flo) < std::fabs(fhi) ? -0.02 : 0.1;
        }
        bestModel = m;
    }
    *model = bestModel;
    return true;
}

PvSource::PvSource()
{
    std::string error;
    fitDataSheet(sheet, &stc, &error);
    rebuild();
}

bool PvSource::setDataSheet(const DataSheet& s, std::string* error)
{
    DiodeModel m;
    if (!fitDataSheet(s, &m, error))
        return false;
    sheet = s;
    stc = m;
    strings.clear();
    rebuild();
    return true;
}

void PvSource::setSeries(int n)
{
    modules = std::max(1, std::min(n, 100));
    rebuild();
}

void PvSource::setConditions(double irradiance, double cellTemperature)
{
    g = std::max(0.0, irradiance);
    t = cellTemperature;
    rebuild();
}

void PvSource::clearShading()
{
    strings.clear();
    addedRs = 0.0;
    shuntR = 0.0;
    rebuild();
}

void PvSource::setAddedSeries(double ohmPerModule)
{
    addedRs = std::max(0.0, ohmPerModule);
    rebuild();
}

void PvSource::setShunt(double ohmPerModule)
{
    shuntR = std::max(0.0, ohmPerModule);
    rebuild();
}

bool PvSource::setShade(int module, int substring, double factor)
{
    if (module < 0 || module >= modules || substring < 0 || substring >= sheet.bypass)
        return false;
    strings[static_cast<size_t>(module)][static_cast<size_t>(substring)].shade =
        std::max(0.0, std::min(1.0, factor));
    rebuild();
    return true;
}

bool PvSource::setBypass(int module, int substring, Bypass state)
{
    if (module < 0 || module >= modules || substring < 0 || substring >= sheet.bypass)
        return false;
    strings[static_cast<size_t>(module)][static_cast<size_t>(substring)].bypass = state;
    rebuild();
    return true;
}

void PvSource::rebuild()
{
    cacheValid = false;
    now = conditionsModel(stc, sheet, g, t);
    strings.resize(static_cast<size_t>(modules));
    for (auto& m : strings)
        m.resize(static_cast<size_t>(sheet.bypass));
    groups.clear();
    for (const auto& m : strings) {
        for (const auto& s : m) {
            bool found = false;
            for (auto& gr : groups) {
                if (gr.state.shade == s.shade && gr.state.bypass == s.bypass) {
                    gr.count++;
                    found = true;
                    break;
                }
            }
            if (!found)
                groups.push_back(Group{s, 1});
        }
    }
}

double PvSource::substringVoltage(double current, const Substring& s) const
{
    if (s.bypass == BypassShort)
        return 0.0;
    double b = sheet.bypass;
    DiodeModel m = now;
    m.a = now.a / b;
    m.rs = now.rs / b;
    m.gsh = now.gsh * b;
    m.iph = now.iph * s.shade;
    double cellsPerSub = sheet.cells / b;
    double vbr = breakdownPerCell * cellsPerSub;
    auto total = [&](double vj) {
        double ic = branchCurrent(m, vj);
        double v = vj - ic * m.rs;
        double ib = 0.0;
        if (s.bypass == BypassOk)
            ib = bypassIs * (expClamped(-v / bypassA) - 1.0);
        double brk = 1e-6 * (expClamped((-v - vbr) / 1.0) - 1.0);
        if (brk < 0)
            brk = 0;
        return ic + ib + brk - current;
    };
    double lo = -1e5, hi = 0.95 * 700.0 * m.a;
    for (int i = 0; i < 120; i++) {
        double mid = 0.5 * (lo + hi);
        if (total(mid) > 0)
            lo = mid;
        else
            hi = mid;
    }
    double vj = 0.5 * (lo + hi);
    return vj - branchCurrent(m, vj) * m.rs;
}

double PvSource::cellsVoltageAt(double current) const
{
    double v = 0.0;
    for (const auto& gr : groups)
        v += gr.count * substringVoltage(current, gr.state);
    return v;
}

double PvSource::voltageAt(double current) const
{
    const double series = modules * addedRs;
    if (shuntR <= 0.0)
        return cellsVoltageAt(current) - series * current;
    // The shunts of identical modules in series act as one of their sum
    // across the string's cells. The cells carry the terminal current plus
    // what the shunt takes: find that cell current c, with
    // c - V(c) / Rsh = current (rising in c, bracketed around the current).
    const double rsh = modules * shuntR;
    const double spread = std::fabs(cellsVoltageAt(current)) / rsh + 1e-6;
    double lo = current - spread, hi = current + spread;
    for (int i = 0; i < 60; i++) {
        double mid = 0.5 * (lo + hi);
        if (mid - cellsVoltageAt(mid) / rsh < current)
            lo = mid;
        else
            hi = mid;
    }
    return cellsVoltageAt(0.5 * (lo + hi)) - series * current;
}

double PvSource::currentAt(double voltage) const
{
    double lo = -1.0, hi = now.iph * 1.2 + 0.1;
    for (int i = 0; i < 70; i++) {
        double mid = 0.5 * (lo + hi);
        if (voltageAt(mid) > voltage)
            lo = mid;
        else
            hi = mid;
    }
    return 0.5 * (lo + hi);
}

PvFigures PvSource::figures() const
{
    buildCache();
    return cachedFigures;
}

double PvSource::sweepCurrentAt(double voltage) const
{
    buildCache();
    if (tableV.empty())
        return 0.0;
    if (voltage >= tableV.front())
        return tableI.front();
    if (voltage <= tableV.back())
        return tableI.back();
    size_t lo = 0, hi = tableV.size() - 1;
    while (hi - lo > 1) {
        size_t mid = (lo + hi) / 2;
        if (tableV[mid] > voltage)
            lo = mid;
        else
            hi = mid;
    }
    double span = tableV[lo] - tableV[hi];
    double t = span > 0 ? (tableV[lo] - voltage) / span : 0.0;
    return tableI[lo] + t * (tableI[hi] - tableI[lo]);
}

void PvSource::buildCache() const
{
    if (cacheValid)
        return;
    cacheValid = true;
    PvFigures& f = cachedFigures;
    f = PvFigures();
    tableI.clear();
    tableV.clear();
    f.voc = std::max(0.0, voltageAt(0.0));
    f.isc = std::max(0.0, currentAt(0.0));
    if (f.isc <= 0.0 || f.voc <= 0.0)
        return;
    const int n = 2000;
    std::vector<double> p(n + 1);
    for (int k = 0; k <= n; k++) {
        double i = f.isc * k / n;
        double v = k == 0 ? f.voc : k == n ? 0.0 : voltageAt(i);
        tableI.push_back(i);
        tableV.push_back(v);
        p[static_cast<size_t>(k)] = i * v;
    }
    double global = *std::max_element(p.begin(), p.end());
    // Local maxima, counted when the dip before the next one is deep enough.
    std::vector<int> peaks;
    for (int k = 1; k < n; k++) {
        size_t u = static_cast<size_t>(k);
        if (p[u] > p[u - 1] && p[u] >= p[u + 1])
            peaks.push_back(k);
    }
    std::vector<int> kept;
    for (int k : peaks) {
        if (kept.empty()) {
            kept.push_back(k);
            continue;
        }
        int prev = kept.back();
        double dip = *std::min_element(p.begin() + prev, p.begin() + k + 1);
        double lower = std::min(p[static_cast<size_t>(prev)], p[static_cast<size_t>(k)]);
        if (lower - dip > 0.005 * global)
            kept.push_back(k);
        else if (p[static_cast<size_t>(k)] > p[static_cast<size_t>(prev)])
            kept.back() = k;
    }
    f.maxima = static_cast<int>(kept.size());
    // Refine the global maximum by golden section in current.
    int best = 0;
    for (int k = 0; k <= n; k++)
        if (p[static_cast<size_t>(k)] > p[static_cast<size_t>(best)])
            best = k;
    double lo = f.isc * std::max(0, best - 1) / n, hi = f.isc * std::min(n, best + 1) / n;
    auto power = [this](double i) { return i * voltageAt(i); };
    const double r = 0.5 * (std::sqrt(5.0) - 1.0);
    for (int i = 0; i < 60; i++) {
        double x1 = hi - r * (hi - lo), x2 = lo + r * (hi - lo);
        if (power(x1) < power(x2))
            lo = x1;
        else
            hi = x2;
    }
    f.impp = 0.5 * (lo + hi);
    f.vmpp = voltageAt(f.impp);
    f.pmax = f.impp * f.vmpp;
}

} // namespace sim
