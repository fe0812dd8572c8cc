#ifndef KRM_MATH_RNDF_H
#define KRM_MATH_RNDF_H

// The rounding family of the instrument. Every printed, compared or stored
// figure of a measure passes through one of these, so each keeps its exact
// rule:
//  - rndTemperature, rndVoltage: floorf of (x * 10.0 + 0.5) worked out in
//    double and narrowed to float, divided by 10.0f: tenths, half up.
//  - rndCurrent: floorf of (x * 100.0 + 0.05), double narrowed to float,
//    divided by 100.0f. The 0.05 (not 0.5) is how current is read on this
//    instrument: nearly truncated to the hundredth of an ampere.
//  - rndPower, rndIrradiation: floorf(x + 0.5f), whole units, all single.
//  - rndDPmax: tenths, half up, all in double.
//  - rndf: x * 10^decimals in single precision, cut toward zero to an
//    integer, divided again: this one truncates.
//  - myround: as rndf with the scale n ^ 10 (exclusive or), when n <= 5.
// A NaN or an infinity goes through every one of them unchanged in kind; no
// float is converted to an integer unless it is inside the int range.

float rndTemperature(float x);
float rndVoltage(float x);
float rndCurrent(float x);
float rndPower(float x);
float rndIrradiation(float x);
float rndDPmax(float x);
float rndf(float x, int decimals);
float myround(float x, int n);

#endif
