#include "debugbrask/dialogviewzkilldatabrask.h"

#include "debugbrask/datasave.h"

DialogViewZKillDataBrask::DialogViewZKillDataBrask(QWidget* parent, _tstBrask* tst, int target,
                                                   float tempStart, float tempStop)
    : DialogViewBrask(parent), _tst(tst), _target(target), _tempStart(tempStart),
      _tempStop(tempStop)
{
    // the same object name as the Z test's view, as it always had
    setObjectName("Z tst Brask");
    build(tr("View Data Z Kill Brask Unit"),
          QStringList{tr("Num."), tr("ADI (dec)"), tr("ADV (dec)"), tr("vGate Imp(dec)"),
                      tr("vGate Eff(dec)")},
          tr("Save"), tr("Exit"));
}

void DialogViewZKillDataBrask::addValueOnList()
{
    addGateRows(_tst);
}

int DialogViewZKillDataBrask::write(char* data, char* time, char* comment)
{
    return saveMeasureZKillDataBrask(data, time, comment, _tst, _target, _tempStart, _tempStop);
}
