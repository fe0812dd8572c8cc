#include "math/compensazione.h"

#include "math/rndf.h"

#include <cmath>

namespace {

// The two factors of a translated current, computed once per curve:
// current = rndCurrent(i * gain * irradiance), evaluated left to right in
// double as the single formula would be.
struct CurrentFactor {
    bool valid; // irradiance above 0
    double gain;
    double irradiance;
};

CurrentFactor currentFactor(float g, float t, const _panelFeature* f)
{
    CurrentFactor c = {false, 0.0, 0.0};
    if (!(g > 0))
        return c;
    const float k = f->kisc / 100.0f;
    const float t1 = rndTemperature(t);
    const float g1 = rndIrradiation(g);
    c.valid = true;
    c.gain = k * (25.0 - t1) + 1.0;
    c.irradiance = 1000.0 / g1;
    return c;
}

inline float applyCurrent(const CurrentFactor& c, float i)
{
    if (!c.valid)
        return 0.0f;
    return rndCurrent(static_cast<float>(i * c.gain * c.irradiance));
}

// The voltage shift, the same for every point of a curve.
struct VoltageShift {
    bool valid;
    double shift;
};

VoltageShift voltageShift(float voc, float g, float t, const _panelFeature* f)
{
    VoltageShift s = {false, 0.0};
    if (!(g > 0))
        return s;
    const float k = f->kvoc / 100.0f;
    const float t1 = rndTemperature(t);
    const float g1 = rndIrradiation(g);
    const float v1 = rndVoltage(voc);
    s.valid = true;
    s.shift = v1 * (k * (25.0 - t1) + std::log(1000.0 / g1) * 0.06);
    return s;
}

inline float applyVoltage(const VoltageShift& s, float v)
{
    if (!s.valid)
        return 0.0f;
    float moved = static_cast<float>(v + s.shift);
    if (moved < 0)
        moved = 0.0f;
    return rndVoltage(moved);
}

} // namespace

float compensazione_pto_corrente(float i, float /*isc*/, float g, float t, const _panelFeature* f)
{
    return applyCurrent(currentFactor(g, t, f), i);
}

float compensazione_pto_tensione(float v, float voc, float /*i*/, float /*iStc*/, float g,
                                 float t, const _panelFeature* f)
{
    return applyVoltage(voltageShift(voc, g, t, f), v);
}

void compensazione_curva(const _ramp_iv* in, _ramp_iv* out, float /*isc*/, float voc, float g,
                         float t, const _panelFeature* f, float* vmppOut, float* imppOut,
                         float* pmaxOut, float* vmaxOut, float* imaxOut)
{
    *vmppOut = 0.0f;
    *imppOut = 0.0f;
    *pmaxOut = 0.0f;
    *vmaxOut = 0.0f;
    *imaxOut = 0.0f;
    const CurrentFactor current = currentFactor(g, t, f);
    const VoltageShift shift = voltageShift(voc, g, t, f);
    for (int k = 0; k < RAMP_POINTS; k++) {
        const float i = applyCurrent(current, in->corrente[k]);
        const float v = applyVoltage(shift, in->tensione[k]);
        out->corrente[k] = i;
        out->tensione[k] = v;
        const float p = rndPower(v * i);
        if (p > *pmaxOut) {
            *vmppOut = v;
            *imppOut = i;
            *pmaxOut = p;
        }
        if (v > *vmaxOut)
            *vmaxOut = v;
        if (i > *imaxOut)
            *imaxOut = i;
    }
}
