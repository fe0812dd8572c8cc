#include "verdictband.h"

#include "reportthresholds.h"

#include <cmath>

VerdictBand::VerdictBand(const _measure& record)
{
    if (record.mcomp != 1)
        return;
    irradiancePart = thresholds::irradianceUncertainty;
    temperaturePart = thresholds::temperatureUncertainty * std::fabs(record.ref.kpmax);
    translationPart = thresholds::translationUncertainty;
    band = std::sqrt(irradiancePart * irradiancePart + temperaturePart * temperaturePart +
                     translationPart * translationPart);
    deviation = record.mdpmax;
    lowerLimit = -std::fabs(record.ref.tollm);
    upperLimit = std::fabs(record.ref.tollp);
    inconclusive =
        std::fabs(deviation - lowerLimit) <= band || std::fabs(deviation - upperLimit) <= band;
    ok = std::isfinite(deviation) && std::isfinite(band);
}
