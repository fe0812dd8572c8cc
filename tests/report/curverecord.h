#ifndef KRM_TESTS_REPORT_CURVERECORD_H
#define KRM_TESTS_REPORT_CURVERECORD_H

#include "data/coredata.h"
#include "measure/panelfixture.h"

#include <algorithm>
#include <cstring>
#include <functional>

// A measure record of a made-up curve, laid out as the board fills it: 128
// points evenly in voltage on the even slots 0 to 254 (slot 0 at Voc), the
// odd slots and 256 to 511 repeating their neighbour; the simulated module's
// data sheet as reference, the temperature from the module probe, the
// maximum power point of the points. voltageAt(I) must fall from Voc at 0 to
// 0 at Isc.
inline _measure curveRecord(int modules, double g, double t, double isc, double voc,
                            const std::function<double(double)>& voltageAt)
{
    _measure m;
    std::memset(&m, 0, sizeof m);
    m.mnpan = modules;
    m.mirr = float(g);
    m.mtemp = float(t);
    m.mcomp = 1;
    m.mprobe = PROBE_MODULE;
    m.ref = panelfixture::simulatedSheet();
    m.misc = float(isc);
    m.mvoc = float(voc);
    for (int k = 0; k < 512; k++) {
        const int slot = std::min(k, 254) / 2;
        const double v = voc * (1.0 - slot / 127.0);
        double lo = 0, hi = isc;
        for (int j = 0; j < 80; j++) {
            const double mid = 0.5 * (lo + hi);
            (voltageAt(mid) > v ? lo : hi) = mid;
        }
        m.ramp.tensione[k] = float(v);
        m.ramp.corrente[k] = float(0.5 * (lo + hi));
        const float p = m.ramp.tensione[k] * m.ramp.corrente[k];
        if (p > m.mpmax) {
            m.mpmax = p;
            m.mvmpp = m.ramp.tensione[k];
            m.mimpp = m.ramp.corrente[k];
        }
    }
    return m;
}

#endif
