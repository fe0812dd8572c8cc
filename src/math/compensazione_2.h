#ifndef KRM_MATH_COMPENSAZIONE_2_H
#define KRM_MATH_COMPENSAZIONE_2_H

#include "data/coredata.h"

// The characteristic power at standard conditions, taken from the measured
// maximum power and the data sheet's power coefficient kpmax rather than from
// the translated curve, and the Vmpp that goes with it.
//
// Precision: the power is worked out wholly in double (kpmax / 100.0
// included) on values widened from float, narrowed to float once, then
// rounded to whole watts with rndPower. Temperature and irradiance are rounded
// first; with a rounded irradiance not above 0 the power only gets rndPower.

// rndPower(p * (kpmax / 100 * (25 - T) + 1) * (1000 / G)).
float compensazione_potenza_secondo_ht(float p, float g, float t, const _panelFeature* f);
// rndVoltage(pmax / impp), the division in single precision.
float compensazione_vmpp_secondo_ht(float impp, float pmax);

#endif
