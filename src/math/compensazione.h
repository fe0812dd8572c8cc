#ifndef KRM_MATH_COMPENSAZIONE_H
#define KRM_MATH_COMPENSAZIONE_H

#include "data/coredata.h"

// Translation of a measured curve, point by point, from operating conditions
// (irradiance g in W/m2, cell temperature t in degrees C) to 1000 W/m2 and
// 25 degrees C, with the temperature coefficients of the reference module.
//
// Precision: the coefficient kisc / 100 (kvoc / 100) is single precision;
// everything that meets a double constant (25.0, 1.0, 1000.0, the logarithm,
// 0.06) is double on values widened from float, narrowed only when handed to
// the rounding family. Temperature and irradiance are rounded first
// (rndTemperature, rndIrradiation). A current is scaled; a voltage is moved by
// one shift, the same for every point, taken from the open-circuit voltage
// and clamped at 0 before rndVoltage. Without an irradiance above 0 (0,
// negative, NaN) the result is 0.

// rndCurrent(i * (k * (25 - T) + 1) * (1000 / G)). isc is not used.
float compensazione_pto_corrente(float i, float isc, float g, float t, const _panelFeature* f);
// rndVoltage(max(0, v + V(voc) * (k * (25 - T) + ln(1000 / G) * 0.06))).
// i and iStc are not used.
float compensazione_pto_tensione(float v, float voc, float i, float iStc, float g, float t,
                                 const _panelFeature* f);
// Every point of in translated into out. The outputs start at 0; the point of
// largest rndPower(V * I) gives vmpp, impp and pmax (strictly greater: the
// first of equal maxima wins), vmax and imax are the largest voltage and
// current. The factor and the shift are worked out once for the curve; each
// point gives exactly what the two functions above give for it.
void compensazione_curva(const _ramp_iv* in, _ramp_iv* out, float isc, float voc, float g,
                         float t, const _panelFeature* f, float* vmppOut, float* imppOut,
                         float* pmaxOut, float* vmaxOut, float* imaxOut);

#endif
