#include "math/temperatura.h"

#include "math/rndf.h"

float calcola_temperatura(_probeTemp probe, int npan, float t, float g, float voc,
                          const _panelFeature* f)
{
    const float vs = rndVoltage(voc / static_cast<float>(npan));
    const float t1 = rndTemperature(t);
    const float g1 = rndIrradiation(g);
    switch (probe) {
    case PROBE_AMBIENT:
        return static_cast<float>(t1 + (f->noct - 20.0) * g1 / 800.0);
    case PROBE_AUTO:
        if (g1 > 300) {
            const float k = f->kvoc / 100.0f;
            const float x =
                static_cast<float>((vs / f->voc - 1.0) + k * (f->noct - 20.0) * (g1 / 800.0));
            return x / k;
        }
        return static_cast<float>((f->noct - 20.0) * (g1 / 800.0) + 25.0);
    default:
        return t;
    }
}

float calcola_temperatura_ambiente_da_modulo(float tModule, float g, const _panelFeature* f)
{
    return rndTemperature(
        static_cast<float>(rndTemperature(tModule) + (f->noct - 20.0) * g / -800.0));
}

bool temperatureOutOfLimits(float t)
{
    return t < -20.0 || t > 100.0;
}
