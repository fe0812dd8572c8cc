#include "math/evaluatetest.h"

#include "math/dpmax.h"

#include <cmath>

int evaluateTest(int npan, float p, const _panelFeature* f, float deg)
{
    const float expected = expectedPower(npan, f->pmax, deg);
    const float d = p - expected;
    const float minus = std::fabs(f->tollm);
    const float plus = std::fabs(f->tollp);
    const double lower = expected * (-minus / 100.0);
    const double upper = expected * (plus / 100.0);
    if (d >= static_cast<float>(lower * 1.01) && d <= static_cast<float>(upper * 0.99))
        return 1;
    if (d >= static_cast<float>(lower) && d <= static_cast<float>(upper))
        return 1;
    return 0;
}

int evaluateTestPannello(float p, const _panelFeature* f, float deg)
{
    return evaluateTest(1, p, f, deg);
}

int evaluateTestStringa(float dPercent, const _panelFeature* f, float /*deg*/)
{
    const float lower = static_cast<float>(-std::fabs(f->tollm) - 0.01);
    const float upper = static_cast<float>(std::fabs(f->tollp) + 0.01);
    return (dPercent >= lower && dPercent <= upper) ? 1 : 0;
}
