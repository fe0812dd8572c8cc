#ifndef KRM_REPORT_CURVEDIAGNOSIS_H
#define KRM_REPORT_CURVEDIAGNOSIS_H

#include "measuredcurve.h"
#include "reportthresholds.h"

#include <vector>

// What the shape of a measured curve says, in findings with the numbers behind
// them (thresholds in reportthresholds.h). Works on the board's measured
// points. Steps need nothing but the curve; the other findings compare it with
// the curve of the reference module's data sheet (SheetModel) at the measured
// temperature and at the irradiance the measured Isc stands for, and are not
// given without a reference module.
struct Finding {
    enum Kind {
        Step,            // bypass diodes conducting: shading, mismatch, a damaged cell
        VocDeficit,      // Voc short by about a whole number of substrings
        LowCurrent,      // low current, normal shape
        SteepIscSlope,   // low shunt resistance
        ShallowVocSlope, // high series resistance
        LowFillFactor,   // nothing else explains it
    };
    Kind kind = Step;
    double measured = 0; // step: its current / Isc; deficit: substrings; current: Isc / expected;
                         // slopes: normalised slope or resistance; fill factor: percent
    double expected = 0; // the data sheet's curve's (step: 0)
    double voltage = 0;  // step: where it lies, V; deficit: the missing volts
    double ohmPerModule = 0; // slopes: the equivalent shunt or added series resistance
};

class CurveDiagnosis
{
public:
    explicit CurveDiagnosis(const _measure& record,
                            int substrings = thresholds::substringsPerModule);

    std::vector<Finding> findings;
    bool reference = false; // the findings that need the data sheet were looked for
    bool vocJudged = false; // the temperature was measured or entered, not taken from Voc
    int substrings = thresholds::substringsPerModule;

    bool healthy() const { return findings.empty(); }
    bool has(Finding::Kind kind) const;
    const Finding* first(Finding::Kind kind) const;

    // Normalised slope -dI/dV * Voc / Isc at each point, fitted over the
    // points either side.
    static std::vector<double> normalisedSlopes(const MeasuredCurve& curve);
    // The plateaus of a curve, as index ranges [first, last].
    static std::vector<std::pair<size_t, size_t>> plateaus(const MeasuredCurve& curve);
};

#endif
