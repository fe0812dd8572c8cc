#ifndef KRM_MATH_SCALE_H
#define KRM_MATH_SCALE_H

// Full scales of the plot axes from the largest value of a curve. The voltage
// axis climbs a fixed ladder with 5 percent of head room (worked out in
// double); the current axis is 10 A, or 12 A above 10 A. A NaN maximum gives
// the top of the ladder and 10 A.

float panelVScale(double maximum);
float stringVScale(double maximum);
float panelIScale(double maximum);
float stringIScale(double maximum);

#endif
