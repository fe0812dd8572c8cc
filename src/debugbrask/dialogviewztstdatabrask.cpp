#include "debugbrask/dialogviewztstdatabrask.h"

#include "debugbrask/datasave.h"

DialogViewZTstDataBrask::DialogViewZTstDataBrask(QWidget* parent, _tstBrask* tst, int target,
                                                 float tempStart, float tempStop)
    : DialogViewBrask(parent), _tst(tst), _target(target), _tempStart(tempStart),
      _tempStop(tempStop)
{
    setObjectName("Z tst Brask");
    build(tr("View Data Z Tst Brask Unit"),
          QStringList{tr("Num."), tr("ADI (dec)"), tr("ADV (dec)"), tr("vGate imp(dec)"),
                      tr("vGate eff(dec)")},
          tr("Save"), tr("Exit"));
}

void DialogViewZTstDataBrask::addValueOnList()
{
    addGateRows(_tst);
}

int DialogViewZTstDataBrask::write(char* data, char* time, char* comment)
{
    return saveMeasureZTstDatBrask(data, time, comment, _tst, _target, _tempStart, _tempStop);
}
