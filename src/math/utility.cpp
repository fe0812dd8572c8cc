#include "math/utility.h"

void scaleEndPoints(_ramp_iv* curve, float isc, float voc)
{
    float foundI = 0.0f;
    for (int k = RAMP_POINTS - 1; k >= 0; k--) {
        if (curve->corrente[k] > 0) {
            foundI = curve->corrente[k];
            break;
        }
    }
    float foundV = 0.0f;
    for (int k = 0; k < RAMP_POINTS; k++) {
        if (curve->tensione[k] > 0) {
            foundV = curve->tensione[k];
            break;
        }
    }
    // A missing value stands for the end point itself: isc / isc is 1 for
    // every usable end point, and 1 is taken outright so that an end point of
    // 0 leaves the curve as it is instead of making it NaN.
    const float kI = foundI == 0.0f ? 1.0f : isc / foundI;
    const float kV = foundV == 0.0f ? 1.0f : voc / foundV;
    for (int k = 0; k < RAMP_POINTS; k++) {
        curve->corrente[k] *= kI;
        curve->tensione[k] *= kV;
    }
}

void curveMaxima(const _ramp_iv* curve, float* vmax, float* imax)
{
    float v = 0.0f;
    float i = 0.0f;
    for (int k = 0; k < RAMP_POINTS; k++) {
        if (curve->tensione[k] > v)
            v = curve->tensione[k];
        if (curve->corrente[k] > i)
            i = curve->corrente[k];
    }
    *vmax = v;
    *imax = i;
}

float powerCurve(const _ramp_iv* curve, float y[RAMP_POINTS])
{
    float largest = 0.0f;
    for (int k = 0; k < RAMP_POINTS; k++) {
        const float p = curve->tensione[k] * curve->corrente[k];
        if (static_cast<double>(p) > static_cast<double>(largest))
            largest = p;
    }
    for (int k = 0; k < RAMP_POINTS; k++)
        y[k] = static_cast<float>(curve->corrente[k] * 9.5 * curve->tensione[k] / largest);
    return largest;
}
