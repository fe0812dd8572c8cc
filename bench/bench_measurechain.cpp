// The arithmetic of one module measure, from the board's counts to the
// verdict, as the module screen runs it: end points, conversion of the ramp,
// smoothing and alignment, plot scales, irradiance check, cell temperature,
// translation to standard conditions with its smoothing and alignment, plot
// scales, degradation allowance and verdict.
//
// Usage: bench_measurechain [measures]   (default 1000)
// Instructions per measure, counted only inside measureOnce:
//   valgrind --tool=callgrind --toggle-collect='*measureOnce*' ./bench_measurechain 100
// and divide the total Ir by the number of measures. On the instrument's
// processor (scripts/armel-bench) the count between marks 1 and 2 covers the
// measures.

#include "math/curvechain.h"
#include "math/dpmax.h"
#include "math/scale.h"
#include "math/temperatura.h"
#include "math/utility.h"

#include "data/datasetting.h"

#include "insnmark.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace
{

struct Input {
    _configParam config;
    _raw_ramp_iv raw;
    _info_last info;
    _panelFeature reference;
    float temperature, before, after;
};

struct Output {
    _ramp_iv exact, rounded, smooth, stcRamp, stcSmooth;
    float isc, voc, pmax, vmpp, impp;
    CurveFigures stc;
    float scales[4];
    bool stcValid;
    Verdict verdict;
};

// A 250 W module of 60 cells at 850 W/m2, spread over the 512 slots the way
// the board's 128 points arrive.
void makeInput(Input* in)
{
    defaultConfig(&in->config);
    const double isc = 7.1, voc = 34.4, knee = 2.0;
    int ci[128], cv[128];
    for (int k = 0; k < 128; k++) {
        const double v = voc * (1.0 - k / 127.0);
        const double i = isc * (1.0 - std::exp((v - voc) / knee));
        ci[k] = static_cast<int>(std::lround(i / in->config.adci1)) + in->config.adci1offset;
        cv[k] = static_cast<int>(std::lround((v - in->config.adcv1offset) / in->config.adcv1));
    }
    ci[64] = 3; // one bounce
    for (int k = 0; k < 128; k++) {
        in->raw.corrente[2 * k] = ci[k];
        in->raw.tensione[2 * k] = cv[k];
    }
    for (int k = 256; k < RAMP_POINTS; k++) {
        in->raw.corrente[k] = ci[127];
        in->raw.tensione[k] = cv[127];
    }
    for (int k = 1; k <= 509; k += 2) {
        in->raw.corrente[k] = (in->raw.corrente[k - 1] + in->raw.corrente[k + 1]) / 2;
        in->raw.tensione[k] = (in->raw.tensione[k - 1] + in->raw.tensione[k + 1]) / 2;
    }
    in->info = {};
    in->info.icc = ci[127];
    in->info.voc = cv[0];
    in->reference = {250.0f, 8.2f,  30.5f,  8.8f,   37.6f, 2,
                     45.0f,  0.05f, -0.32f, -0.43f, 3.0f,  -3.0f};
    in->temperature = 22.4f;
    in->before = 851.3f;
    in->after = 848.9f;
}

__attribute__((noinline)) void measureOnce(const Input* in, Output* out)
{
    measuredEndPoints(&in->info, &in->config, &out->isc, &out->voc);
    convertRamp(&in->raw, &in->config, &out->exact, &out->rounded, &out->pmax, &out->vmpp,
                &out->impp);
    smoothAndScale(&out->rounded, &out->smooth, out->isc, out->voc);
    float vmax, imax;
    curveMaxima(&out->smooth, &vmax, &imax);
    out->scales[0] = panelVScale(vmax);
    out->scales[1] = panelIScale(imax);
    out->stcValid = !irradianceDeltaExceeded(in->before, in->after);
    const float t = calcola_temperatura(PROBE_AMBIENT, 1, in->temperature, in->before, out->voc,
                                        &in->reference);
    if (temperatureOutOfLimits(t) || !out->stcValid)
        return;
    const CurveFigures measured = {out->isc, out->voc, out->impp, out->vmpp, out->pmax};
    translateToStc(&out->rounded, &measured, in->before, t, &in->reference, &out->stcRamp,
                   &out->stcSmooth, &out->stc);
    curveMaxima(&out->stcSmooth, &vmax, &imax);
    out->scales[2] = panelVScale(vmax);
    out->scales[3] = panelIScale(imax);
    const float d = degradationAllowance(true, 2.0f, 0.7f);
    out->verdict = panelVerdict(out->stc.pmax, &in->reference, d);
}

} // namespace

int main(int argc, char** argv)
{
    const int measures = argc > 1 ? std::atoi(argv[1]) : 1000;
    static Input in;
    static Output out;
    makeInput(&in);
    double check = 0;
    const auto start = std::chrono::steady_clock::now();
    insnMark(1);
    for (int m = 0; m < measures; m++) {
        out.vmpp = out.impp = 0;
        measureOnce(&in, &out);
        check += out.stc.pmax + out.smooth.corrente[300];
    }
    insnMark(2);
    const auto end = std::chrono::steady_clock::now();
    const double us = std::chrono::duration<double, std::micro>(end - start).count();
    std::printf("measures %d, %.2f us per measure\n", measures, measures ? us / measures : 0.0);
    std::printf("OPC: Isc %.2f A Voc %.2f V Pmax %.2f W Vmpp %.2f V Impp %.2f A\n", out.isc,
                out.voc, out.pmax, out.vmpp, out.impp);
    std::printf("STC: Isc %.2f A Voc %.2f V Pmax %.2f W Vmpp %.2f V Impp %.2f A\n", out.stc.isc,
                out.stc.voc, out.stc.pmax, out.stc.vmpp, out.stc.impp);
    std::printf("deviation %.2f %%, verdict %d, scales %.0f V %.0f A (checksum %g)\n",
                out.verdict.deltaPmax, out.verdict.result, out.scales[2], out.scales[3], check);
    return 0;
}
