#include "sheetmodel.h"

#include <cmath>

namespace
{
constexpr double kelvin = 273.15;
constexpr double standardTemperature = 25.0;
constexpr double standardIrradiance = 1000.0;
} // namespace

SheetModel::SheetModel(const _panelFeature& f, int modules, double g, double t)
{
    const double isc = f.isc, voc = f.voc, impp = f.impp, vmpp = f.vmpp;
    if (!(isc > impp && impp > 0 && voc > vmpp && vmpp > 0 && g > 0 && modules > 0))
        return;
    const double rest = isc - impp;
    const double lnRest = std::log(rest / isc);
    const double denominator = impp + rest * lnRest;
    const double a = rest * (2.0 * vmpp - voc) / denominator;
    const double rs = (a * lnRest + voc - vmpp) / impp;
    if (!(a > 0) || !std::isfinite(a) || !std::isfinite(rs))
        return;
    const double dt = t - standardTemperature;
    const double aT = a * (t + kelvin) / (standardTemperature + kelvin);
    iscA = isc * g / standardIrradiance * (1.0 + f.kisc / 100.0 * dt);
    vocV = modules * (voc * (1.0 + f.kvoc / 100.0 * dt) + aT * std::log(g / standardIrradiance));
    aV = modules * aT;
    rsOhm = modules * std::max(0.0, rs);
    ok = iscA > 0 && vocV > 0;
}

double SheetModel::voltageAt(double current) const
{
    if (current >= iscA)
        return 0.0;
    return std::max(0.0, vocV + aV * std::log(1.0 - current / iscA) - rsOhm * current);
}

double SheetModel::currentAt(double voltage) const
{
    double lo = 0.0, hi = iscA;
    for (int k = 0; k < 60; k++) {
        const double mid = 0.5 * (lo + hi);
        if (voltageAt(mid) > voltage)
            lo = mid;
        else
            hi = mid;
    }
    return 0.5 * (lo + hi);
}

double SheetModel::pmax() const
{
    // the power is unimodal in the current: golden section
    double lo = 0.0, hi = iscA;
    const double r = (std::sqrt(5.0) - 1.0) / 2.0;
    for (int k = 0; k < 80; k++) {
        const double c = hi - r * (hi - lo), d = lo + r * (hi - lo);
        if (c * voltageAt(c) < d * voltageAt(d))
            lo = c;
        else
            hi = d;
    }
    const double i = 0.5 * (lo + hi);
    return i * voltageAt(i);
}

double SheetModel::fillFactor() const
{
    if (!ok)
        return 0.0;
    return pmax() / (iscA * vocV) * 100.0;
}
