#ifndef KRM_MATH_DPMAX_H
#define KRM_MATH_DPMAX_H

// Deviation of the translated maximum power from the nominal one, and the
// ageing allowance that lowers the nominal power.

// (p - pRef) / pRef * 100 in single precision; exactly 0 when |p - pRef| is
// below 0.001 W (that test against the double constant).
float DELTAPMAX(float p, float pRef);

// The ageing allowance as a fraction: percent / 100.0 * years, worked out in
// double and stored as float, when the operator applied one; else 0.
float degradationAllowance(bool enabled, float years, float percent);

// The power a measure is held against: npan * pmax in single precision,
// widened, times (1.0 - deg), narrowed to float. With npan 1 this is
// pmax * (1.0 - deg), the module's reference; with the module count, the
// string's.
float expectedPower(int npan, float pmax, float deg);

#endif
