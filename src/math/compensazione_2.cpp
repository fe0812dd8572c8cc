#include "math/compensazione_2.h"

#include "math/rndf.h"

float compensazione_potenza_secondo_ht(float p, float g, float t, const _panelFeature* f)
{
    const float t1 = rndTemperature(t);
    const float g1 = rndIrradiation(g);
    if (!(g1 > 0))
        return rndPower(p);
    const double power = p * (f->kpmax / 100.0 * (25.0 - t1) + 1.0) * (1000.0 / g1);
    return rndPower(static_cast<float>(power));
}

float compensazione_vmpp_secondo_ht(float impp, float pmax)
{
    return rndVoltage(pmax / impp);
}
