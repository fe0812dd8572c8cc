#include "math/rndf.h"

#include <cmath>

namespace {

// x * scale cut toward zero to an int, divided by scale again, as the
// instrument truncates its figures. The int conversion only happens inside
// the int range. Outside it a float has no fraction left (every float of
// magnitude 2^23 or more is a whole number), so the product is taken as it
// stands: a value beyond the int range gives x * scale / scale, an infinity
// stays that infinity and a NaN stays NaN (which the displays show as "----").
float truncScaled(float x, float scale)
{
    const float y = x * scale;
    if (!(y > -2147483648.0f && y < 2147483648.0f))
        return y / scale;
    // (float)(int)y, not truncf(y): a product in (-1, 0) gives +0, not -0.
    return static_cast<float>(static_cast<int>(y)) / scale;
}

} // namespace

float rndTemperature(float x)
{
    return std::floor(static_cast<float>(x * 10.0 + 0.5)) / 10.0f;
}

float rndVoltage(float x)
{
    return std::floor(static_cast<float>(x * 10.0 + 0.5)) / 10.0f;
}

float rndCurrent(float x)
{
    return std::floor(static_cast<float>(x * 100.0 + 0.05)) / 100.0f;
}

float rndPower(float x)
{
    return std::floor(x + 0.5f);
}

float rndIrradiation(float x)
{
    return std::floor(x + 0.5f);
}

float rndDPmax(float x)
{
    return static_cast<float>(std::floor(x * 10.0 + 0.5) / 10.0);
}

float rndf(float x, int decimals)
{
    return truncScaled(x, std::pow(10.0f, static_cast<float>(decimals)));
}

float myround(float x, int n)
{
    if (n > 5)
        return x;
    return truncScaled(x, static_cast<float>(n ^ 10));
}
