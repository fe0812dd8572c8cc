#ifndef KRM_REPORT_VERDICTBAND_H
#define KRM_REPORT_VERDICTBAND_H

#include "data/coredata.h"

// How sure the verdict is. The band U, in percent of the power, is the
// root-sum-square of the irradiance sensor's class, the temperature's
// uncertainty times the module's power coefficient, and the translation's own
// (thresholds.h). A deviation of Pmax from nominal (after the ageing
// allowance, as the instrument stored it) within U of either tolerance limit
// is "inconclusive", whatever the instrument said.
class VerdictBand
{
public:
    explicit VerdictBand(const _measure& record);

    bool valid() const { return ok; }
    double irradiancePart = 0;  // percent
    double temperaturePart = 0; // percent
    double translationPart = 0; // percent
    double band = 0;            // U, percent
    double deviation = 0;       // percent, as stored
    double lowerLimit = 0;      // percent, minus the minus tolerance
    double upperLimit = 0;      // percent, the plus tolerance
    bool inconclusive = false;

private:
    bool ok = false;
};

#endif
