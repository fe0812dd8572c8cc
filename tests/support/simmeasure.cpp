#include "simmeasure.h"

#include "data/datameasures.h"
#include "device/powerdevice.h"
#include "math/curvechain.h"
#include "math/temperatura.h"

#include <QtGlobal>

#include <cstring>

QString takeSimulatedMeasure(const _configParam& config, const _panelFeature& reference,
                             const SimMeasure& how)
{
    PowerDevice board;
    _raw_ramp_iv raw;
    const _pdError error = board.acquireBrask(&raw, nullptr);
    if (error != PD_OK) {
        qWarning("the board's ramp failed: %d", int(error));
        return QString();
    }
    _info_last info;
    std::memset(&info, 0, sizeof info);
    board.acquireLastInfo(&info);
    CurveFigures measured;
    measuredEndPoints(&info, &config, &measured.isc, &measured.voc);
    _ramp_iv exact, rounded, stc, stcSmooth;
    measured.pmax = 0;
    measured.vmpp = 0;
    measured.impp = 0;
    convertRamp(&raw, &config, &exact, &rounded, &measured.pmax, &measured.vmpp, &measured.impp);
    _panelFeature ref = reference;
    if (how.nominalPmax > 0)
        ref.pmax = how.nominalPmax;
    const float cell = calcola_temperatura(static_cast<_probeTemp>(how.probe), how.modules,
                                           how.temperature, how.irradiance, measured.voc, &ref);
    CurveFigures s;
    translateToStc(&rounded, &measured, how.irradiance, cell, &ref, &stc, &stcSmooth, &s);
    const _meaType type = how.modules > 1 ? MEA_STRING : MEA_PANEL;
    const Verdict verdict = type == MEA_STRING ? stringVerdict(how.modules, s.pmax, &ref, 0)
                                               : panelVerdict(s.pmax, &ref, 0);

    _measure m;
    std::memset(&m, 0, sizeof m);
    m.mdata = const_cast<char*>(how.date);
    m.mtime = const_cast<char*>(how.time);
    m.mnpan = how.modules;
    m.misc = measured.isc;
    m.mvoc = measured.voc;
    m.mimpp = measured.impp;
    m.mvmpp = measured.vmpp;
    m.mpmax = measured.pmax;
    m.mtemp = cell;
    m.mprobe = how.probe;
    m.mirr = how.irradiance;
    m.mcomp = 1;
    m.sisc = s.isc;
    m.svoc = s.voc;
    m.simpp = s.impp;
    m.svmpp = s.vmpp;
    m.spmax = s.pmax;
    m.mdpmax = verdict.deltaPmax;
    m.mtest = verdict.result;
    m.mcom = const_cast<char*>(how.comment);
    m.rname = const_cast<char*>("SIM 250");
    m.rbname = const_cast<char*>("Simul");
    m.ref = ref;
    m.ramp = exact;
    const int saved = saveMeasuresData(&m, type, 4711);
    if (saved <= 0) {
        qWarning("the measure was not saved: %d", saved);
        return QString();
    }
    char name[MEASURE_NAME_SIZE];
    measureFileName(m.mdata, m.mtime, name);
    return QString::fromLatin1(name);
}
