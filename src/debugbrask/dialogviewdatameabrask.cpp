#include "debugbrask/dialogviewdatameabrask.h"

#include "data/datasetting.h"
#include "debugbrask/datasave.h"

#include <QListWidget>

DialogViewDataMeaBrask::DialogViewDataMeaBrask(QWidget* parent, _raw_ramp_iv* ramp,
                                               _info_last* info, float tempStart, float tempStop)
    : DialogViewBrask(parent), _ramp(ramp), _info(info), _tempStart(tempStart), _tempStop(tempStop)
{
    setObjectName("Mea Brask");
    readConfigFile(&_config);
    build(tr("View Data Mea Brask Unit User"),
          QStringList{tr("Num."), tr("I (dec)"), tr("V (dec)"), tr("I (A)"), tr("V (V)")},
          tr("Save"), tr("Exit"));
}

void DialogViewDataMeaBrask::addValueOnList()
{
    // the high range calibration whatever range the board reported
    for (int k = 0; k < RAMP_POINTS; k++) {
        float current =
            static_cast<float>(_ramp->corrente[k] - _config.adci1offset) * _config.adci1;
        float voltage =
            (static_cast<float>(_ramp->tensione[k]) - _config.adcv1offset) * _config.adcv1;
        _list->addItem(QString("%1\t%2\t%3\t%4\t%5")
                           .arg(k, 0, 10)
                           .arg(_ramp->corrente[k], 0, 10)
                           .arg(_ramp->tensione[k], 0, 10)
                           .arg(static_cast<double>(current), 0, 'g', 6)
                           .arg(static_cast<double>(voltage), 0, 'g', 6));
    }
}

int DialogViewDataMeaBrask::write(char* data, char* time, char* comment)
{
    return saveMeasureMeaBrask(data, time, comment, _ramp, _info, _tempStart, _tempStop);
}
