#ifndef KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASKDEBUG_H
#define KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASKDEBUG_H

#include "data/coredata.h"
#include "debugbrask/dialogviewbrask.h"

// The 512 slots of a service ramp, with the two gate voltages, raw and in units, and their file.
class DialogViewDataMeaBraskDebug : public DialogViewBrask
{
    Q_OBJECT
public:
    DialogViewDataMeaBraskDebug(QWidget* parent, _raw_ramp_vgate* ramp, _info_last* info,
                                float tempStart, float tempStop);

private:
    void addValueOnList() override;
    int write(char* data, char* time, char* comment) override;

    _raw_ramp_vgate* _ramp;
    _info_last* _info;
    float _tempStart;
    float _tempStop;
    _configParam _config;
};

#endif
