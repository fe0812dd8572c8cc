#ifndef KRM_REPORT_REPORTTHRESHOLDS_H
#define KRM_REPORT_REPORTTHRESHOLDS_H

// Every number the report's second opinion rests on, in one place; the
// report's appendix prints them with these names' meaning. Currents are in
// parts of the measured Isc, voltages in parts of the measured Voc, slopes
// "normalised": the slope in A/V times Voc / Isc, so that one number fits a
// module and a string, a bright and a dull day.
namespace thresholds
{

// ---- IEC 60891 translation
// Curve correction factor, ohm per kelvin per module, when nothing better is
// known (IEC 60891 leaves it to measurement; this is a typical crystalline
// silicon module's value).
constexpr double kappaPerModule = 0.0025;
// Irradiance correction of procedure 2 (the 2009 edition's typical a).
constexpr double procedure2A = 0.06;
// The series resistance is fitted on the points between these currents.
constexpr double rsFitLowCurrent = 0.10;
constexpr double rsFitHighCurrent = 0.90;

// ---- The curve's shape
// A point lies on a plateau when its normalised slope is below this.
constexpr double plateauSlope = 1.0;
// Points either side of a point whose slope is fitted.
constexpr int slopeHalfWindow = 2;
// A plateau needs at least this share of Voc.
constexpr double plateauMinLength = 0.03;
// A step: a plateau at least this share of Isc below the one before it.
constexpr double stepMinDrop = 0.05;
// A Voc deficit of at least this many substrings, within this distance of a
// whole number of them, is the sign of a shorted bypass diode.
constexpr double vocDeficitMinSubstrings = 0.6;
constexpr double vocDeficitWholeTolerance = 0.3;
// Substrings per module (one bypass diode each) unless told otherwise.
constexpr int substringsPerModule = 3;
// Isc below this share of the data sheet's at the measured conditions.
constexpr double lowCurrentRatio = 0.90;
// The slope near Isc is fitted on the points up to this share of Voc.
constexpr double iscSlopeRegion = 0.40;
// Steeper than the data sheet's curve by this much (normalised): low shunt.
constexpr double iscSlopeExcess = 0.08;
// The slope near Voc is fitted on the points below this share of Isc.
constexpr double vocSlopeRegion = 0.40;
// A resistance near Voc above the data sheet's curve's by this much,
// normalised (ohm times Isc / Voc): high series resistance.
constexpr double vocResistanceExcess = 0.08;
// A fill factor this many points (percent) below the data sheet's curve's.
constexpr double fillFactorDeficit = 5.0;

// ---- The band on the verdict, percent of the power
constexpr double irradianceUncertainty = 5.0;  // the irradiance sensor's class
constexpr double temperatureUncertainty = 2.0; // degrees C, times the power coefficient
constexpr double translationUncertainty = 1.0; // the translation itself

} // namespace thresholds

#endif
