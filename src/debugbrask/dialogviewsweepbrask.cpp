#include "debugbrask/dialogviewsweepbrask.h"

#include "debugbrask/datasave.h"

DialogViewSweepBrask::DialogViewSweepBrask(QWidget* parent, _tstBrask* tst, int target,
                                           float tempStart, float tempStop)
    : DialogViewBrask(parent), _tst(tst), _target(target), _tempStart(tempStart),
      _tempStop(tempStop)
{
    setObjectName("Z sweep Brask");
    build(tr("View Data Sweep Brask Unit"),
          QStringList{tr("Num."), tr("ADI (dec)"), tr("ADV (dec)"), tr("vGate Imp(dec)"),
                      tr("vGate Eff(dec)")},
          tr("Save"), tr("Exit"));
}

void DialogViewSweepBrask::addValueOnList()
{
    addGateRows(_tst);
}

int DialogViewSweepBrask::write(char* data, char* time, char* comment)
{
    return saveMeasureSweepBrask(data, time, comment, _tst, _target, _tempStart, _tempStop);
}
