#include "debugbrask/dialogviewztstdatabrask.h"

#include "debugbrask/datasave.h"

#include <QListWidget>

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
    for (int k = 0; k < TST_BRASK_POINTS; k++)
        _list->addItem(QString("%1\t%2\t%3\t%4\t%5")
                           .arg(k, 0, 10)
                           .arg(_tst->corrente[k], 0, 10)
                           .arg(_tst->tensione[k], 0, 10)
                           .arg(_tst->vGateImp[k], 0, 10)
                           .arg(_tst->vGateEff[k], 0, 10));
}

int DialogViewZTstDataBrask::write(char* data, char* time, char* comment)
{
    return saveMeasureZTstDatBrask(data, time, comment, _tst, _target, _tempStart, _tempStop);
}
