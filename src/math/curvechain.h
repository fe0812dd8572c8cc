#ifndef KRM_MATH_CURVECHAIN_H
#define KRM_MATH_CURVECHAIN_H

#include "data/coredata.h"

// The sequences the module and string screens run on a measure, one call per
// step, so that a screen shows its own boxes, dialogs and plot between them:
//
//   measuredEndPoints        Isc and Voc of the board's report
//   convertRamp              counts to the exact and the rounded curve, and
//                            the maximum power point, normalised
//   smoothAndScale           smoothing, then end-point alignment (the plot's
//                            curve); then curveMaxima and the axis scales
//   irradianceDeltaExceeded  the irradiance stability check
//   calcola_temperatura, temperatureOutOfLimits   (temperatura.h)
//   translateToStc           translation of curve and figures, harmonisation,
//                            smoothing and end alignment of the translated curve
//   degradationAllowance     (dpmax.h), then panelVerdict or stringVerdict
//
// Every conversion uses the second calibration pair (adci1, adci1offset,
// adcv1, adcv1offset), whatever range the board reports.

// The five characteristic figures of a curve.
struct CurveFigures {
    float isc;
    float voc;
    float impp;
    float vmpp;
    float pmax;
};

// Isc and Voc of the board's report, converted; Voc is then made to multiply
// out with the unrounded Isc to a power cut at two decimals,
// rndf(rndf(voc * isc, 2) / isc, 2), and only after that Isc becomes
// rndCurrent(isc).
void measuredEndPoints(const _info_last* info, const _configParam* config, float* isc,
                       float* voc);

// Called with the index of each point converted, for a progress display.
typedef void (*PointProgress)(void* context, int k);

// Every slot converted: exact holds the unrounded values (what a measure file
// keeps), rounded holds rndCurrent and rndVoltage of them. On the rounded
// pairs the largest rndPower(V * I) gives the maximum power point: pmax starts
// at 0 and only a strictly greater power replaces it, so the first of equal
// maxima wins. vmpp and impp are taken as the caller holds them and are only
// replaced by such a point: a curve without power keeps the caller's previous
// ones. Last the point is normalised: pmax = rndf(impp * vmpp, 2), then
// vmpp = rndf(pmax / impp, 2). progress may be null.
void convertRamp(const _raw_ramp_iv* raw, const _configParam* config, _ramp_iv* exact,
                 _ramp_iv* rounded, float* pmax, float* vmpp, float* impp,
                 PointProgress progress = nullptr, void* context = nullptr);

// smoothing(curve, smooth, MEA_PANEL, 0), then scaleEndPoints(smooth, isc, voc).
void smoothAndScale(const _ramp_iv* curve, _ramp_iv* smooth, float isc, float voc);

// The change of irradiance between the readings before and after the ramp,
// |(G(before) - G(after)) / G(after) * 100| on the rounded values in single
// precision, reaches the limit: 1.7 percent when before (unrounded) is above
// 700 W/m2, else 3.0. true means the standard values are not to be given. A
// NaN difference (both readings 0) does not reach the limit.
bool irradianceDeltaExceeded(float before, float after);

// The translation at the end of a measure, at irradiance g and cell
// temperature t (from calcola_temperatura), with the reference module f:
// compensazione_curva of the rounded curve into rampStc; the figures from the
// measured ones (Isc, Voc, Impp by point, Pmax by kpmax, Vmpp from them);
// their harmonisation at two decimals so that the printed values multiply
// out (Pmax from Vmpp * Impp, Vmpp from Pmax / Impp, Voc from Isc * Voc); then
// smoothAndScale of rampStc into rampStcSmooth with the translated Isc and Voc.
void translateToStc(const _ramp_iv* ramp, const CurveFigures* measured, float g, float t,
                    const _panelFeature* f, _ramp_iv* rampStc, _ramp_iv* rampStcSmooth,
                    CurveFigures* stc);

struct Verdict {
    float deltaPmax; // percent from the nominal (less the allowance)
    int result;      // 1 passed, 0 failed
};

// The module verdict: DELTAPMAX against pmax * (1.0 - deg), and
// evaluateTestPannello on the translated power.
Verdict panelVerdict(float pmaxStc, const _panelFeature* f, float deg);
// The string verdict: DELTAPMAX against (npan * pmax) * (1.0 - deg), and
// evaluateTestStringa on that deviation, not on the power.
Verdict stringVerdict(int npan, float pmaxStc, const _panelFeature* f, float deg);

#endif
