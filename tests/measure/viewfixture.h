#ifndef KRM_TESTS_VIEWFIXTURE_H
#define KRM_TESTS_VIEWFIXTURE_H

#include "data/datameasures.h"
#include "measure/panelfixture.h"

#include <QtTest>
#include <cmath>
#include <cstring>
#include <functional>

// Saved measures for the viewer's and the measure archive's tests: a curve of
// a module like the simulated one, with figures and a reference module.
namespace viewfixture
{

// An I-V curve from the open-circuit end (point 0) to the short circuit
// (point 511).
inline void sampleCurve(_ramp_iv* ramp, float isc, float voc)
{
    for (int k = 0; k < RAMP_POINTS; k++) {
        const double v = voc * double(RAMP_POINTS - 1 - k) / (RAMP_POINTS - 1);
        const double i = isc * (1.0 - std::exp((v - voc) / (0.06 * voc)));
        ramp->tensione[k] = float(v);
        ramp->corrente[k] = float(i < 0 ? 0 : i);
    }
}

// A module measure with a reference (SIM 250) and a passed verdict; change
// may alter it before it is saved.
inline _measure sampleMeasure()
{
    _measure m;
    std::memset(&m, 0, sizeof m);
    m.mdata = const_cast<char*>("2026/05/04");
    m.mtime = const_cast<char*>("11:22:33");
    m.mnpan = 1;
    m.misc = 8.02f;
    m.mvoc = 36.4f;
    m.mimpp = 7.45f;
    m.mvmpp = 28.9f;
    m.mpmax = 215.31f;
    m.sisc = 8.71f;
    m.svoc = 37.48f;
    m.simpp = 8.21f;
    m.svmpp = 30.44f;
    m.spmax = 249.91f;
    m.mdpmax = -0.04f;
    m.mtemp = 45.0f;
    m.mprobe = PROBE_MODULE;
    m.mirr = 850.0f;
    m.mcomp = 1;
    m.mcom = const_cast<char*>("Tetto sud");
    m.rrimb = 0;
    m.mtest = 1;
    m.mrstest = 1;
    m.mrs = 0.42f;
    m.mrsi1 = 905.0f;
    m.mrsi2 = 601.0f;
    m.rname = const_cast<char*>("SIM 250");
    m.rbname = const_cast<char*>("Simul");
    m.ref = panelfixture::simulatedSheet(3);
    sampleCurve(&m.ramp, m.misc, m.mvoc);
    return m;
}

// Saves the measure and returns its file name (empty on failure).
inline QByteArray save(const _measure& m, _meaType type)
{
    if (saveMeasuresData(&m, type, 510) <= 0)
        return QByteArray();
    char name[MEASURE_NAME_SIZE];
    measureFileName(m.mdata, m.mtime, name);
    return QByteArray(name);
}

inline QByteArray saveSample(_meaType type, const std::function<void(_measure&)>& change = {})
{
    _measure m = sampleMeasure();
    if (type == MEA_STRING)
        m.mrstest = 0;
    if (change)
        change(m);
    return save(m, type);
}

// The archive's node of a saved file; closeListMeasures frees it.
inline _listMeasures* node(const QByteArray& file, _meaType type)
{
    return getSingleListMeasures(file.constData(), type);
}

} // namespace viewfixture

#endif
