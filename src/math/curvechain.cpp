#include "math/curvechain.h"

#include "math/compensazione.h"
#include "math/compensazione_2.h"
#include "math/correzione.h"
#include "math/dpmax.h"
#include "math/evaluatetest.h"
#include "math/rndf.h"
#include "math/smoothing.h"
#include "math/utility.h"

#include <cmath>

void measuredEndPoints(const _info_last* info, const _configParam* config, float* isc,
                       float* voc)
{
    const float i = correzCorrente(info->icc, config->adci1, config->adci1offset);
    const float v = correzTensione(info->voc, config->adcv1, config->adcv1offset);
    *voc = rndf(rndf(v * i, 2) / i, 2);
    *isc = rndCurrent(i);
}

void convertRamp(const _raw_ramp_iv* raw, const _configParam* config, _ramp_iv* exact,
                 _ramp_iv* rounded, float* pmax, float* vmpp, float* impp,
                 PointProgress progress, void* context)
{
    float best = 0.0f;
    for (int k = 0; k < RAMP_POINTS; k++) {
        const float i = correzCorrente(raw->corrente[k], config->adci1, config->adci1offset);
        const float v = correzTensione(raw->tensione[k], config->adcv1, config->adcv1offset);
        exact->corrente[k] = i;
        exact->tensione[k] = v;
        const float ir = rndCurrent(i);
        const float vr = rndVoltage(v);
        rounded->corrente[k] = ir;
        rounded->tensione[k] = vr;
        const float p = rndPower(vr * ir);
        if (p > best) {
            best = p;
            *vmpp = vr;
            *impp = ir;
        }
        if (progress)
            progress(context, k);
    }
    *pmax = rndf(*impp * *vmpp, 2);
    *vmpp = rndf(*pmax / *impp, 2);
}

void smoothAndScale(const _ramp_iv* curve, _ramp_iv* smooth, float isc, float voc)
{
    smoothing(curve, smooth, MEA_PANEL, 0);
    scaleEndPoints(smooth, isc, voc);
}

bool irradianceDeltaExceeded(float before, float after)
{
    const float a = rndIrradiation(before);
    const float b = rndIrradiation(after);
    const float d = std::fabs((a - b) / b * 100);
    const double limit = before > 700 ? 1.7 : 3.0;
    return d >= limit;
}

void translateToStc(const _ramp_iv* ramp, const CurveFigures* measured, float g, float t,
                    const _panelFeature* f, _ramp_iv* rampStc, _ramp_iv* rampStcSmooth,
                    CurveFigures* stc)
{
    float vmax = 0.0f;
    float imax = 0.0f;
    compensazione_curva(ramp, rampStc, measured->isc, measured->voc, g, t, f, &stc->vmpp,
                        &stc->impp, &stc->pmax, &vmax, &imax);

    stc->isc = compensazione_pto_corrente(measured->isc, measured->isc, g, t, f);
    stc->voc = compensazione_pto_tensione(measured->voc, measured->voc, 0, stc->isc, g, t, f);
    stc->impp = compensazione_pto_corrente(measured->impp, measured->isc, g, t, f);
    stc->pmax = compensazione_potenza_secondo_ht(measured->pmax, g, t, f);
    stc->vmpp = compensazione_vmpp_secondo_ht(stc->impp, stc->pmax);
    stc->pmax = rndf(stc->vmpp * stc->impp, 2);
    stc->vmpp = rndf(stc->pmax / stc->impp, 2);
    stc->voc = rndf(rndf(stc->isc * stc->voc, 2) / stc->isc, 2);

    smoothAndScale(rampStc, rampStcSmooth, stc->isc, stc->voc);
}

Verdict panelVerdict(float pmaxStc, const _panelFeature* f, float deg)
{
    Verdict v;
    v.deltaPmax = DELTAPMAX(pmaxStc, expectedPower(1, f->pmax, deg));
    v.result = evaluateTestPannello(pmaxStc, f, deg);
    return v;
}

Verdict stringVerdict(int npan, float pmaxStc, const _panelFeature* f, float deg)
{
    Verdict v;
    v.deltaPmax = DELTAPMAX(pmaxStc, expectedPower(npan, f->pmax, deg));
    v.result = evaluateTestStringa(v.deltaPmax, f, deg);
    return v;
}
