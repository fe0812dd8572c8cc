#ifndef KRM_REPORT_IEC60891_H
#define KRM_REPORT_IEC60891_H

#include "measuredcurve.h"
#include "reportthresholds.h"

#include <vector>

// A second translation of the measured curve to 1000 W/m2 and 25 degrees C,
// beside the instrument's own: IEC 60891, edition 2 (2009), procedures 1 and 2.
//
// Procedure 1:  I2 = I1 + Isc1 (G2/G1 - 1) + alpha (T2 - T1)
//               V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + beta (T2 - T1)
// Procedure 2:  I2 = I1 (1 + alpha_rel (T2 - T1)) G2/G1
//               V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1))
//                    - Rs (I2 - I1) - kappa I2 (T2 - T1)
//
// alpha and beta are the data sheet's coefficients (alpha in A/K, beta in V/K
// for the whole string); kappa is a default per module; Rs is fitted to the
// measured points: the single-diode equation with the photocurrent equal to
// Isc and no shunt, V - Voc = a ln(1 - I/Isc) - Rs I, is linear in a and Rs
// and is solved by least squares on the points between 10 % and 90 % of Isc.
// Rs, kappa and beta of a string are those of a module times the modules.
// The instrument's own "Rs" figure (V/I at the maximum power point) is not a
// series resistance and is not used.
struct IecFigures {
    double pmax = 0;
    double voc = 0;
    double isc = 0;
};

class Iec60891
{
public:
    // The measure's record with its reference module (mcomp 1).
    explicit Iec60891(const _measure& record, double kappaPerModule = thresholds::kappaPerModule);

    bool valid() const { return ok; }

    // The coefficients used, for the whole string.
    double alpha = 0;      // A/K, from the data sheet's kisc
    double beta = 0;       // V/K, from the data sheet's kvoc
    double alphaRel = 0;   // 1/K
    double betaRel = 0;    // 1/K
    double rs = 0;         // ohm, fitted to the measured points
    double diodeA = 0;     // V, the fitted a (n Ns kT/q)
    bool rsFitted = false; // false: Rs from the data sheet's closed form
    double kappa = 0;      // ohm/K

    IecFigures procedure1;
    IecFigures procedure2;
    std::vector<CurvePoint> curve1;
    std::vector<CurvePoint> curve2;

    // The least-squares fit named above, on a measured curve: false when the
    // points do not determine it.
    static bool fitSingleDiode(const MeasuredCurve& curve, double* a, double* rs);

private:
    bool ok = false;
};

#endif
