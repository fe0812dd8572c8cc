#include "math/dpmax.h"

#include <cmath>

float DELTAPMAX(float p, float pRef)
{
    const float d = p - pRef;
    if (std::fabs(d) < 0.001)
        return 0.0f;
    return d / pRef * 100.0f;
}

float degradationAllowance(bool enabled, float years, float percent)
{
    if (!enabled)
        return 0.0f;
    return static_cast<float>(percent / 100.0 * years);
}

float expectedPower(int npan, float pmax, float deg)
{
    const float nominal = static_cast<float>(npan) * pmax;
    return static_cast<float>(nominal * (1.0 - deg));
}
