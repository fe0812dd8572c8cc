#ifndef KRM_MATH_UTILITY_H
#define KRM_MATH_UTILITY_H

#include "data/coredata.h"

// Small steps on a whole curve that the test screens and the viewer share.
// All single precision; each factor is worked out once and then applied to
// every point.

// End-point alignment: the last current above 0 (scanning down from 511) and
// the first voltage above 0 (scanning up from 0) are found; every current is
// multiplied by isc / that current and every voltage by voc / that voltage, so
// the curve ends on isc and begins on voc (within the rounding of one product).
// Where no such value exists the factor is 1: the curve keeps its values on
// that axis.
void scaleEndPoints(_ramp_iv* curve, float isc, float voc);

// The largest voltage and current of a curve (from 0; NaN points are passed
// over), which size the plot axes.
void curveMaxima(const _ramp_iv* curve, float* vmax, float* imax);

// The power curve drawn over an I-V curve: y[k] = I * 9.5 * V / largest
// product, in double and stored as float, so that its top sits at 9.5 on the
// current axis. Each product V * I is single precision; they are compared in
// double. Returns the largest product (0 for a curve without power, where the
// values are then infinities or NaN, as the instrument draws them).
float powerCurve(const _ramp_iv* curve, float y[RAMP_POINTS]);

#endif
