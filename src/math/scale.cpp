#include "math/scale.h"

float panelVScale(double maximum)
{
    static const float ladder[] = {30, 50, 70, 100, 150, 200, 300, 500, 700, 1000};
    const double a = maximum * 1.05;
    for (float step : ladder) {
        if (a < step)
            return step;
    }
    return 1500.0f;
}

float stringVScale(double maximum)
{
    return panelVScale(maximum);
}

float panelIScale(double maximum)
{
    return maximum > 10.0 ? 12.0f : 10.0f;
}

float stringIScale(double maximum)
{
    return panelIScale(maximum);
}
